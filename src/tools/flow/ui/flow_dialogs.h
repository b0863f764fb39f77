#pragma once
// The windows of the flow conversions and gas density tools.

#include "forms/ui/tool_dialog.h"
#include "forms/ui/unit_field_dialog.h"
#include "tools/flow/model/flow_conversions_model.h"
#include "tools/flow/model/gas_density_model.h"

namespace kestrova {

class frmFlowConversions : public ToolDialog {
public:
    frmFlowConversions(FlowConversionsModel& model, UserInterface& ui, QWidget* parent);
};

class frmGasDensity : public UnitFieldDialog {
public:
    frmGasDensity(GasDensityModel& model, UserInterface& ui, QWidget* parent);
};

} // namespace kestrova
