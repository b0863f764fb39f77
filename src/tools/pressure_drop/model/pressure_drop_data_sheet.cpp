// The pressure drop tool's data sheets: one row of the values as they stand
// on screen, for the table of the tab in front.

#include "datasheets/model/data_sheet.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/pressure_drop/model/pressure_drop_record.h"
#include "units/basLoadUnits.h"

namespace kestrova {

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

} // namespace

void PressureDropModel::PrintDataSheet(const DataSheetPrinter& printer)
{
    DataSheetColumns row;
    const auto text = [&](const char* column, const std::string& value) { row.emplace_back(column, value); };
    const auto unitText = [&](int field) {
        const std::vector<std::string>& list = unitList(pressureDropField(field).kind->tag);
        const UnitIndex index = cboUnits[static_cast<size_t>(field)].listIndex;
        return index >= 0 && index < static_cast<int>(list.size()) ? list[static_cast<size_t>(index)] : std::string();
    };
    const auto fields = [&](std::initializer_list<FieldColumns> columns) {
        for (const FieldColumns& c : columns) {
            text(c.value, txtData[static_cast<size_t>(c.field)].text);
            if (c.unit)
                text(c.unit, unitText(c.field));
        }
    };
    const auto display = [&](const char* column, int index) { text(column, txtDisplay[static_cast<size_t>(index)].text); };
    // A section's dimensions that do not apply go as the number 0, their units still from the lists.
    const auto dimension = [&](const char* column, const char* unit, int field, bool applies) {
        text(column, applies ? txtData[static_cast<size_t>(field)].text : "0");
        text(unit, unitText(field));
    };

    switch (tab) {
    case 0: {
        const bool circular = crossSectionLiquid == 0;
        text("Project", txtProject[0].text);
        text("Tag", txtTag[0].text);
        text("Fluid", liquidName);
        fields({{"Temp", "TUnits", 44}, {"Flowrate", "FUnits", 0}, {"Density", "DUnits", 1}, {"Viscosity", "VisUnits", 2}});
        text("CrossSection", captionWithoutAccelerator(kCrossSectionCaptions[static_cast<size_t>(crossSectionLiquid)]));
        dimension("Width", "WidthU", 3, !circular);
        dimension("Height", "HeightU", 4, !circular);
        dimension("Diameter", "DiameterU", 5, circular);
        fields({{"Roughness", "RoughnessU", 6}, {"Elevation", "ElevationU", 7}, {"Length", "LengthU", 8}});
        display("K1", 0);
        display("K2", 12);
        display("K3", 18);
        display("rE", 1);
        display("Regime", 2);
        display("fd", 3);
        fields({{"FVelocity", "FVelocityU", 9}, {"PD", "PdU", 10}});
        break;
    }
    case 1: {
        const int section = crossSectionGas - 3;
        const bool circular = section == 0;
        text("Project", txtProject[1].text);
        text("Tag", txtTag[1].text);
        text("CalcType", kCalcTypeCaptions[static_cast<size_t>(calcType)]);
        text("Fluid", gasName);
        fields({{"Flowrate", "FUnits", 11}, {"Pin", "PinU", 12}, {"Tin", "TinU", 13}, {"Viscosity", "VisUnits", 14}});
        display("MW", 4);
        display("z", 5);
        display("k", 6);
        text("CrossSection", captionWithoutAccelerator(kCrossSectionCaptions[static_cast<size_t>(section)]));
        dimension("Width", "WidthU", 43, !circular);
        dimension("Height", "HeightU", 42, !circular);
        dimension("Diameter", "DiameterU", 15, circular);
        fields({{"Roughness", "RoughnessU", 16}});
        display("K1", 7);
        display("K2", 19);
        display("K3", 20);
        display("rE", 8);
        display("fd", 9);
        display("MachIn", 10);
        display("MachOut", 11);
        fields({{"FlowVelin", "FlowVelinU", 18}, {"FlowVelexit", "FlowVelexitU", 19}, {"InletDen", "InletDenU", 20},
                {"ExitDen", "ExitDenU", 21}, {"ExitT", "ExitTU", 23}, {"SonicVel", "SonicVelU", 22},
                {"ExitP", "ExitPU", 25}, {"PD", "PdU", 24}, {"Length", "LengthU", 17}});
        break;
    }
    default:
        text("Project", txtProject[2].text);
        text("Tag", txtTag[2].text);
        fields({{"T", "TU", 45}});
        text("LiquidFluid", liquidName);
        text("GasFluid", gasName);
        fields({{"LiqFlowrate", "LiqFUnits", 28}, {"GasFlowrate", "GasFUnits", 30}, {"LiqD", "LiqDU", 27},
                {"GasD", "GasDU", 31}, {"LiqVis", "LiqVisU", 26}, {"GasVis", "GasVisU", 32},
                {"SurTen", "SurTenU", 29}});
        text("PipeOrient", captionWithoutAccelerator(kOrientationCaptions[static_cast<size_t>(orientation)]));
        fields({{"Diameter", "DiameterU", 35}, {"Roughness", "RoughnessU", 34}, {"Length", "LengthU", 33}});
        display("LiqRe", 16);
        display("GasRe", 13);
        display("LiqRegime", 14);
        display("GasRegime", 15);
        fields({{"LiqVel", "LiqVelU", 36}, {"GasVel", "GasVelU", 37}, {"AvgDen", "AvgDenU", 38},
                {"AvgVis", "AvgVisU", 39}, {"AvgVel", "AvgVelU", 40}});
        display("Regime", 17);
        fields({{"PD", "PdU", 41}});
        break;
    }
    printer.print(kReports[static_cast<size_t>(std::clamp(tab, 0, 2))], std::move(row));
}

} // namespace kestrova
