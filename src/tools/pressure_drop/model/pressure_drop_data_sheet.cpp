// The pressure drop tool's data sheets: one row of the values as they stand
// on screen, for the table of the tab in front.

#include "datasheets/model/data_sheet.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pressure_drop/model/pressure_drop_record.h"
#include "units/basLoadUnits.h"

namespace kestrova {

using namespace pressure_drop;

namespace {

const std::array<DataSheetReport, 3> kReports{{
    {"PDLiquid", "pdliquid.rpt", "Liquid Pressure Drop"},
    {"PDGas", "pdgas.rpt", "Gas/Vapor Pressure Drop"},
    {"PD2P", "pd2p.rpt", "Two-Phase Pressure Drop"},
}};

// The option captions as the form shows them, accelerator sign first.
const std::array<const char*, 3> kCrossSectionCaptions{"&Circular", "&Rectangular", "&Annular"};
const std::array<const char*, 3> kOrientationCaptions{"&Horizontal", "&Upflow", "&Downflow"};
const std::array<const char*, 2> kCalcTypeCaptions{"Adiabatic", "Isothermal"};

// A value column and, where a name is given, its unit column beside it.
struct FieldColumns {
    const char* value;
    const char* unit;
    int field;
};

// The row of a data sheet taken from the controls as they stand.
class SheetRow {
public:
    SheetRow(const PressureDropState& form, DataSheetColumns& row) : form_(form), row_(row) {}

    void text(const char* column, const std::string& value) { row_.emplace_back(column, value); }
    void fields(std::initializer_list<FieldColumns> columns)
    {
        for (const FieldColumns& c : columns) {
            text(c.value, form_.txtData[static_cast<size_t>(c.field)].text);
            if (c.unit)
                text(c.unit, unitText(c.field));
        }
    }
    void display(const char* column, int index) { text(column, form_.txtDisplay[static_cast<size_t>(index)].text); }
    // A section's dimensions that do not apply go as the number 0, their units still from the lists.
    void dimension(const char* column, const char* unit, int field, bool applies)
    {
        text(column, applies ? form_.txtData[static_cast<size_t>(field)].text : "0");
        text(unit, unitText(field));
    }
    void heading(int tab)
    {
        text("Project", form_.txtProject[static_cast<size_t>(tab)].text);
        text("Tag", form_.txtTag[static_cast<size_t>(tab)].text);
    }

private:
    std::string unitText(int field) const
    {
        const std::vector<std::string>& list = unitList(pressureDropField(field).kind->tag);
        const UnitIndex index = form_.cboUnits[static_cast<size_t>(field)].listIndex;
        return index >= 0 && index < static_cast<int>(list.size()) ? list[static_cast<size_t>(index)] : std::string();
    }

    const PressureDropState& form_;
    DataSheetColumns& row_;
};

} // namespace

void PressureDropModel::PrintDataSheet(const DataSheetPrinter& printer)
{
    DataSheetColumns row;
    switch (tab) {
    case LiquidTab: liquidDataSheet(row); break;
    case GasTab: gasDataSheet(row); break;
    default: twoPhaseDataSheet(row); break;
    }
    printer.print(kReports[static_cast<size_t>(std::clamp(tab, 0, 2))], std::move(row));
}

void PressureDropModel::liquidDataSheet(DataSheetColumns& columns) const
{
    SheetRow row(view(), columns);
    const bool circular = crossSectionLiquid == 0;
    row.heading(LiquidTab);
    row.text("Fluid", liquidName);
    row.fields({{"Temp", "TUnits", LiquidTemperature}, {"Flowrate", "FUnits", LiquidFlow},
                {"Density", "DUnits", LiquidDensity}, {"Viscosity", "VisUnits", LiquidViscosity}});
    row.text("CrossSection", captionWithoutAccelerator(kCrossSectionCaptions[static_cast<size_t>(crossSectionLiquid)]));
    row.dimension("Width", "WidthU", LiquidConduitWidth, !circular);
    row.dimension("Height", "HeightU", LiquidConduitHeight, !circular);
    row.dimension("Diameter", "DiameterU", LiquidDiameter, circular);
    row.fields({{"Roughness", "RoughnessU", LiquidRoughness}, {"Elevation", "ElevationU", ElevationChange},
                {"Length", "LengthU", LiquidLength}});
    row.display("K1", LiquidK1);
    row.display("K2", LiquidK2);
    row.display("K3", LiquidK3);
    row.display("rE", LiquidReynolds);
    row.display("Regime", LiquidRegime);
    row.display("fd", LiquidFriction);
    row.fields({{"FVelocity", "FVelocityU", LiquidVelocity}, {"PD", "PdU", LiquidPressureDrop}});
}

void PressureDropModel::gasDataSheet(DataSheetColumns& columns) const
{
    SheetRow row(view(), columns);
    const int section = crossSectionGas - 3;
    const bool circular = section == 0;
    row.heading(GasTab);
    row.text("CalcType", kCalcTypeCaptions[static_cast<size_t>(calcType)]);
    row.text("Fluid", gasName);
    row.fields({{"Flowrate", "FUnits", GasFlow}, {"Pin", "PinU", InletPressure}, {"Tin", "TinU", InletTemperature},
                {"Viscosity", "VisUnits", GasViscosity}});
    row.display("MW", MolecularWeight);
    row.display("z", Compressibility);
    row.display("k", HeatCapacityRatio);
    row.text("CrossSection", captionWithoutAccelerator(kCrossSectionCaptions[static_cast<size_t>(section)]));
    row.dimension("Width", "WidthU", GasConduitWidth, !circular);
    row.dimension("Height", "HeightU", GasConduitHeight, !circular);
    row.dimension("Diameter", "DiameterU", GasDiameter, circular);
    row.fields({{"Roughness", "RoughnessU", GasRoughness}});
    row.display("K1", GasK1);
    row.display("K2", GasK2);
    row.display("K3", GasK3);
    row.display("rE", GasReynolds);
    row.display("fd", GasFriction);
    row.display("MachIn", InletMach);
    row.display("MachOut", OutletMach);
    row.fields({{"FlowVelin", "FlowVelinU", InletVelocity}, {"FlowVelexit", "FlowVelexitU", ExitVelocity},
                {"InletDen", "InletDenU", InletDensity}, {"ExitDen", "ExitDenU", ExitDensity},
                {"ExitT", "ExitTU", ExitTemperature}, {"SonicVel", "SonicVelU", SonicVelocity},
                {"ExitP", "ExitPU", ExitPressure}, {"PD", "PdU", GasPressureDrop}, {"Length", "LengthU", GasLength}});
}

void PressureDropModel::twoPhaseDataSheet(DataSheetColumns& columns) const
{
    SheetRow row(view(), columns);
    row.heading(TwoPhaseTab);
    row.fields({{"T", "TU", TwoPhaseTemperature}});
    row.text("LiquidFluid", liquidName);
    row.text("GasFluid", gasName);
    row.fields({{"LiqFlowrate", "LiqFUnits", TwoPhaseLiquidFlow}, {"GasFlowrate", "GasFUnits", TwoPhaseVaporFlow},
                {"LiqD", "LiqDU", TwoPhaseLiquidDensity}, {"GasD", "GasDU", TwoPhaseVaporDensity},
                {"LiqVis", "LiqVisU", TwoPhaseLiquidViscosity}, {"GasVis", "GasVisU", TwoPhaseVaporViscosity},
                {"SurTen", "SurTenU", SurfaceTension}});
    row.text("PipeOrient", captionWithoutAccelerator(kOrientationCaptions[static_cast<size_t>(orientation)]));
    row.fields({{"Diameter", "DiameterU", TwoPhaseDiameter}, {"Roughness", "RoughnessU", TwoPhaseRoughness},
                {"Length", "LengthU", TwoPhaseLength}});
    row.display("LiqRe", TwoPhaseLiquidReynolds);
    row.display("GasRe", TwoPhaseVaporReynolds);
    row.display("LiqRegime", TwoPhaseLiquidRegime);
    row.display("GasRegime", TwoPhaseVaporRegime);
    row.fields({{"LiqVel", "LiqVelU", TwoPhaseLiquidVelocity}, {"GasVel", "GasVelU", TwoPhaseVaporVelocity},
                {"AvgDen", "AvgDenU", AverageDensity}, {"AvgVis", "AvgVisU", AverageViscosity},
                {"AvgVel", "AvgVelU", AverageVelocity}});
    row.display("Regime", TwoPhaseRegime);
    row.fields({{"PD", "PdU", TwoPhasePressureDrop}});
}

} // namespace kestrova
