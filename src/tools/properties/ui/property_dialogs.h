#pragma once
// The windows of the fluid property tools: physical properties from the
// compound data base, the compressibility factor and the heat capacity ratio.

#include "forms/ui/tool_dialog.h"
#include "forms/ui/unit_field_dialog.h"
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
    void renderDrawing() override;

private:
    QGroupBox* propertiesFrame();
    PhysicalPropertiesModel& model_;
    QListWidget* dbcComp_ = nullptr;
    bool drawing_ = false; // the list is being drawn: its signals are not the user's
};

class frmCompressFactor : public UnitFieldDialog {
public:
    frmCompressFactor(CompressFactorModel& model, UserInterface& ui, QWidget* parent);
};

class frmHeatCapRatio : public UnitFieldDialog {
public:
    frmHeatCapRatio(HeatCapRatioModel& model, UserInterface& ui, QWidget* parent);
};

} // namespace kestrova
