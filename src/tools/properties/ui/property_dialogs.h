#pragma once
// The windows of the fluid property tools: physical properties from the
// compound data base, the compressibility factor and the heat capacity ratio.

#include "forms/ui/tool_dialog.h"
#include "tools/properties/model/compress_factor_model.h"
#include "tools/properties/model/heat_cap_ratio_model.h"
#include "tools/properties/model/physical_properties_model.h"

#include <array>
#include <vector>

class QCheckBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QListWidget;
class QRadioButton;

namespace kestrova {

class frmPhysicalProperties : public ToolDialog {
public:
    frmPhysicalProperties(PhysicalPropertiesModel& model, UserInterface& ui, QWidget* parent);

protected:
    void render() override;

private:
    PhysicalPropertiesModel& model_;
    QLineEdit* search_ = nullptr;
    QListWidget* dbcComp_ = nullptr;
    QGroupBox* frame_ = nullptr;
    std::array<QLineEdit*, PhysicalPropertiesModel::kRows> txtPhysProp_{};
    std::array<QComboBox*, PhysicalPropertiesModel::kRows> cboPPUnits_{};
    std::array<QLineEdit*, 6> txtLTL_{}, txtUTL_{};
    QLineEdit* txtMW_ = nullptr;
    QLineEdit* txtAF_ = nullptr;
    QPushButton* select_ = nullptr;
};

// The common frame of the two real-gas calculators: six data rows (the last
// is the result), unit lists on the rows that have units, and the button row
// "Get Physical Properties", "Reset Input Fields", "Apply Results", "Close".
class GasCalculatorDialog : public ToolDialog {
protected:
    using ToolDialog::ToolDialog;

    template <class Model>
    QGroupBox* dataRows(Model& model, const QString& title, const std::array<const char*, 6>& labels,
                        const std::vector<const char*>& unitTags);
    template <class Model>
    QHBoxLayout* calculatorButtons(Model& model, bool dataBaseValid);
    template <class Model>
    void renderRows(const Model& model);

    std::array<QLineEdit*, 6> txtData_{};
    std::vector<QComboBox*> cboUnits_;
};

class frmCompressFactor : public GasCalculatorDialog {
public:
    frmCompressFactor(CompressFactorModel& model, UserInterface& ui, bool dataBaseValid, QWidget* parent);

protected:
    void render() override;

private:
    CompressFactorModel& model_;
    QGroupBox* inputs_ = nullptr;
    std::array<QRadioButton*, 3> optEOS_{};
    QCheckBox* chkHydrogen_ = nullptr;
};

class frmHeatCapRatio : public GasCalculatorDialog {
public:
    frmHeatCapRatio(HeatCapRatioModel& model, UserInterface& ui, bool dataBaseValid, QWidget* parent);

protected:
    void render() override;

private:
    HeatCapRatioModel& model_;
    QGroupBox* realGas_ = nullptr;
    std::array<QRadioButton*, 18> options_{};
    QLabel* lblError_ = nullptr;
};

} // namespace kestrova
