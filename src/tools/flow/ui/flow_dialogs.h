#pragma once
// The windows of the flow conversions and gas density tools.

#include "forms/ui/tool_dialog.h"
#include "tools/flow/model/flow_conversions_model.h"
#include "tools/flow/model/gas_density_model.h"

#include <array>

class QGroupBox;
class QLabel;
class QRadioButton;

namespace kestrova {

class frmFlowConversions : public ToolDialog {
public:
    frmFlowConversions(FlowConversionsModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    FlowConversionsModel& model_;
    std::array<QLineEdit*, 8> txtData_{};
    std::array<QRadioButton*, 6> optConversion_{};
    std::array<QRadioButton*, 3> optSTP_{};
    std::array<QRadioButton*, 2> optUnits_{};
    std::map<QString, QLabel*> unitLabels_;
    QGroupBox* stpFrame_ = nullptr;
    QPushButton* apply_ = nullptr;
};

class frmGasDensity : public ToolDialog {
public:
    frmGasDensity(GasDensityModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    GasDensityModel& model_;
    std::array<QLineEdit*, 5> txtData_{};
    std::array<QComboBox*, 3> cboUnits_{};
    QPushButton* apply_ = nullptr;
};

} // namespace kestrova
