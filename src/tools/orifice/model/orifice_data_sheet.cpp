// The orifice tool's data sheets: one row of the values as they stand on
// screen, for the table of the tab in front.

#include "datasheets/model/data_sheet.h"
#include "tools/orifice/model/orifice_model.h"
#include "units/basLoadUnits.h"

namespace kestrova {

using namespace orifice;

namespace {

// The row of a data sheet taken from the controls as they stand.
class SheetRow {
public:
    SheetRow(const OrificeState& form, DataSheetColumns& row) : form_(form), row_(row) {}

    void text(const char* column, const std::string& value) { row_.emplace_back(column, value); }
    void field(const char* column, const char* unit, int index)
    {
        text(column, form_.txtData[static_cast<size_t>(index)].text);
        text(unit, unitText(index));
    }
    void display(const char* column, int index) { text(column, form_.txtDisplay[static_cast<size_t>(index)].text); }

private:
    std::string unitText(int field) const
    {
        const std::vector<std::string>& list = unitList(orificeField(field).kind->tag);
        const UnitIndex index = form_.cboUnits[static_cast<size_t>(field)].listIndex;
        return index >= 0 && index < static_cast<int>(list.size()) ? list[static_cast<size_t>(index)] : std::string();
    }

    const OrificeState& form_;
    DataSheetColumns& row_;
};

} // namespace

void OrificeModel::PrintDataSheet(const DataSheetPrinter& printer)
{
    DataSheetColumns columns;
    SheetRow row(view(), columns);
    const bool gas = tab == GasTab;
    const auto t = static_cast<size_t>(tab);
    const int g = kFirstField[t];
    const int p = gas ? GasDensity : LiquidDensity; // the gas tab has the inlet pressure before its density
    std::string computation = captionWithoutAccelerator(computeCaptions()[static_cast<size_t>(compute[t])]);
    computation.pop_back(); // and without its colon
    row.text("Project", txtProject[t].text);
    row.text("Tag", txtTag[t].text);
    row.text("Fluid", gas ? gasName : liquidName);
    row.text("Computation", computation);
    row.field("Flowrate", "FUnits", g);
    row.field("delP", "delPU", g + 1);
    row.field("OriDiameter", "OriDiameterU", g + 2);
    row.field("Temp", "TempU", g + 3);
    if (gas)
        row.field("UpPress", "UpPressU", InletPressure);
    row.field("Density", "DUnits", p);
    row.field("Viscosity", "VisUnits", p + 1);
    if (gas)
        row.display("kRatio", HeatCapacityRatio);
    row.field("RefT", "RefTU", p + 2);
    if (gas)
        row.field("DrainHoleDia", "DrainHoleU", DrainHole);
    else
        row.field("VentHoleDia", "VentHoleU", VentHole);
    row.text("ElementMat", materials()[static_cast<size_t>(elementMaterial[t])].name);
    row.field("EleExpanCoef", "EleExpanCoefU", kElementExpansionField[t]);
    row.text("TapType", captionWithoutAccelerator(tapCaptions()[static_cast<size_t>(meterTap[t])]));
    row.field("PipeDiameter", "PipeDiameterU", p + 5);
    row.text("PipeMat", materials()[static_cast<size_t>(pipeMaterial[t])].name);
    row.field("PipeExpanCoef", "PipeExpanU", kPipeExpansionField[t]);
    const int d = gas ? GasBeta : LiquidBeta; // the first result display of the tab
    row.display("BetaRatio", d);
    row.display("DisCd", d + 1);
    row.display("RenbD", d + 2);
    row.display("Rensd", d + 3);
    if (gas) {
        row.display("GasExpan", ExpansionFactor);
        row.display("PressRatio", PressureRatio);
    }
    row.display("MinLoss", gas ? GasMinorLoss : LiquidMinorLoss);
    row.field("VelocityD", "VelDU", p + 7);
    row.field("Velocitysd", "VelsdU", p + 8);
    row.field("PressLoss", "PressLossU", p + 9);
    printer.print(gas ? DataSheetReport{"ORPGas", "orpgas.rpt", "Orifice Plate - Gas/Vapor Flow"}
                      : DataSheetReport{"ORPLiquid", "orpliquid.rpt", "Orifice Plate - Liquid Flow"},
                  std::move(columns));
}

} // namespace kestrova
