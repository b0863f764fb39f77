// The pressure drop tool's data buttons: the tables and tools beside the
// fields hand back a value, which the record takes before the calculation.

#include "tools/pressure_drop/model/pressure_drop_model.h"

#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"
#include "units/basConversions.h"

namespace kestrova {

using namespace pressure_drop;

// --- the data buttons -----------------------------------------------------------------

void PressureDropModel::showKSums()
{
    const MinorLossStore& store = minorLossStore();
    for (const auto& fields : {kLiquidKFields, kGasKFields}) {
        txtDisplay[static_cast<size_t>(fields[0])].text = formatMask(store.SegK1[0], "#,###,##0");
        txtDisplay[static_cast<size_t>(fields[1])].text = formatMask(store.SegK2[0], "##0.00");
        txtDisplay[static_cast<size_t>(fields[2])].text = formatMask(store.SegK3[0], "##0.00");
    }
}

void PressureDropModel::cmdTable_Click(int index)
{
    if (index < 0 || index >= kButtons || !cmdTable[static_cast<size_t>(index)].enabled)
        return;
    ChangeNotice notice(*this);
    PressureDropData& r = record;
    const auto show = [this](std::initializer_list<int> fields) {
        for (int field : fields)
            showField(field);
    };
    switch (index) {
    case LiquidPipeTable: case GasPipeTable: case TwoPhasePipeTable: {
        const Single diameter = ui_.SelectPipeID("ID");
        if (diameter != 0)
            r.Diameter = diameter;
        r.Roughness = pipeToolRoughness();
        show({LiquidDiameter, LiquidRoughness, GasDiameter, GasRoughness, TwoPhaseDiameter, TwoPhaseRoughness});
        break;
    }
    case LiquidRoughnessTable: case GasRoughnessTable: case TwoPhaseRoughnessTable: {
        const Single roughness = ui_.SelectRoughness();
        if (roughness != 0)
            r.Roughness = roughness;
        show({LiquidRoughness, GasRoughness, TwoPhaseRoughness});
        break;
    }
    case LiquidMinorLossTable: case GasMinorLossTable:
        CurrentLine() = 0;
        ui_.GetKValue();
        if (minorLossStore().hasData[0])
            showKSums();
        break;
    case LiquidOuterTable: case GasOuterTable: case LiquidInnerTable: case GasInnerTable: {
        const bool outer = index == LiquidOuterTable || index == GasOuterTable;
        const Single diameter = ui_.SelectPipeID(outer ? "OD" : "ID");
        if (diameter != 0)
            (outer ? r.ConduitWidth : r.ConduitHeight) = diameter;
        show(outer ? std::initializer_list<int>{LiquidConduitWidth, GasConduitWidth}
                   : std::initializer_list<int>{LiquidConduitHeight, GasConduitHeight});
        r.Roughness = pipeToolRoughness();
        show({LiquidRoughness});
        break;
    }
    case CompressibilityTool: case HeatCapacityRatioTool: {
        const bool z = index == CompressibilityTool;
        const Single value = z ? ui_.GetZValue(r.InletTemperature, r.InletPressure)
                               : ui_.GetHeatCapRatioValue(r.InletTemperature, r.InletPressure);
        if (value != 0) {
            const int display = z ? Compressibility : HeatCapacityRatio;
            txtDisplay[static_cast<size_t>(display)].text = plainNumberText(value);
            txtDisplay_LostFocus(display);
        }
        break;
    }
    case RegimeMap:
        ui_.showRegimeMap(orientation == 0 ? "Horizontal" : "Vertical Up");
        break;
    case LiquidFlowConversion: case TwoPhaseLiquidFlowConversion: case GasFlowConversion:
    case TwoPhaseVaporFlowConversion: {
        const bool liquid = index == LiquidFlowConversion || index == TwoPhaseLiquidFlowConversion;
        const Single flow = ui_.GetFlowrateConversion(liquid ? 1 : 2);
        if (flow != 0)
            (liquid ? r.LiquidFlow : r.GasFlow) = flow;
        show(liquid ? std::initializer_list<int>{LiquidFlow, TwoPhaseLiquidFlow}
                    : std::initializer_list<int>{GasFlow, TwoPhaseVaporFlow});
        break;
    }
    case GasDensityTool: {
        const Single density = ui_.GetGasDensity(r.InletTemperature, r.InletPressure);
        if (density != 0)
            r.VaporDensity = density;
        show({TwoPhaseVaporDensity});
        break;
    }
    default:
        return;
    }
    setDirty();
    CalculateResults();
}

void PressureDropModel::cmdProperties_Click(int index)
{
    if (index < 0 || index > 3)
        return;
    ChangeNotice notice(*this);
    setDirty();
    const bool liquid = index == 0 || index == 2;
    propertiesCancelled() = false;
    propertiesCancelled() = !ui_.GetPhysicalProperties(liquid ? FluidKind::Liquid : FluidKind::Gas, record.InletTemperature);
    if (propertiesCancelled())
        return;
    const PhysProps& props = physProps();
    if (liquid) {
        if (!props.liquidName.empty()) {
            Frame1[LiquidFluidFrame].caption = "Fluid Data:  " + props.liquidName;
            txtLiquid.text = liquidName = props.liquidName;
        }
        record.LiquidDensity = props.liquidDensity;
        record.LiquidViscosity = props.liquidViscosity;
        // The properties tool hands the surface tension over in the first unit
        // of its list, dyn/cm; the record holds N/m.
        record.SurfaceTension = SurfaceTensionFromUnit(props.surfaceTension, 0);
        for (int field : {LiquidDensity, LiquidViscosity, TwoPhaseLiquidDensity, TwoPhaseLiquidViscosity, SurfaceTension})
            showField(field);
    } else {
        if (!props.gasName.empty()) {
            Frame1[GasFluidFrame].caption = "Fluid Data:  " + props.gasName;
            txtGas.text = gasName = props.gasName;
        }
        record.VaporViscosity = props.vaporViscosity;
        record.MolecularWeight = props.molecularWeight;
        txtDisplay[MolecularWeight].text = plainNumberText(record.MolecularWeight);
        for (int field : {GasViscosity, TwoPhaseVaporViscosity})
            showField(field);
    }
    showFluidNames();
}

void PressureDropModel::showFluidNames()
{
    twoPhaseFluids.caption = "Liquid: " + txtLiquid.text + "    Vapor: " + txtGas.text;
}

} // namespace kestrova
