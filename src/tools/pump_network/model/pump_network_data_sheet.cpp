// The pump network's data sheet: one row of the texts as they stand in the
// window, the grid's eleven lines and the pump and valve fields, for the
// staging table "PumpNetwork".

#include "datasheets/model/data_sheet.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "units/basLoadUnits.h"

namespace kestrova {

using namespace pump_network;

namespace {

// The row of the data sheet taken from the controls as they stand.
class SheetRow {
public:
    SheetRow(const PumpNetworkState& form, DataSheetColumns& row) : form_(form), row_(row) {}

    // A column written a second time keeps the later text, as a table field does.
    void text(const std::string& column, const std::string& value)
    {
        for (auto& [name, text] : row_)
            if (name == column) {
                text = value;
                return;
            }
        row_.emplace_back(column, value);
    }
    // A unit list's text as it shows.
    std::string unit(int list) const
    {
        const std::vector<std::string>& entries = unitList(PumpNetworkModel::unitTagOf(list));
        const UnitIndex index = form_.cboUnits[static_cast<size_t>(list)].listIndex;
        return index >= 0 && index < static_cast<int>(entries.size()) ? entries[static_cast<size_t>(index)] : "";
    }
    // A field and, where a name is given, its unit beside it.
    void field(const char* column, const char* unitColumn, int index)
    {
        text(column, form_.txtData[static_cast<size_t>(index)].text);
        if (unitColumn)
            text(unitColumn, unit(index));
    }
    // A grid row: the unit of its list where it has one, then lines 1 to 11.
    void gridRow(int row, const char* unitColumn, int list, const char* prefix)
    {
        if (unitColumn)
            text(unitColumn, unit(list));
        for (int line = 1; line <= 11; ++line)
            text(prefix + std::to_string(line), form_.grid[static_cast<size_t>(row)][static_cast<size_t>(line + 1)]);
    }
    // The line drop row, whose columns mix the case of their names.
    void lineDropRow()
    {
        text("dPLU", unit(kFields + 8)); // cboUnits(42)
        for (int line = 1; line <= 11; ++line)
            text((line % 2 ? "DPL" : "dPL") + std::to_string(line),
                 form_.grid[LineDropRow][static_cast<size_t>(line + 1)]);
    }

private:
    const PumpNetworkState& form_;
    DataSheetColumns& row_;
};

} // namespace

void PumpNetworkModel::PrintDataSheet(const DataSheetPrinter& printer)
{
    DataSheetColumns columns;
    SheetRow row(view(), columns);
    row.text("Project", txtDescription.text);
    // cboUnits(34 + k) serves the k-th row with a list: flow, ID, length, e, visc, density, vel, dP add, dP line.
    row.gridRow(FlowRow, "FlowU", kFields + 0, "Flowrate");
    row.gridRow(DiameterRow, "PipeIDU", kFields + 1, "PipeID");
    row.gridRow(LengthRow, "LengthU", kFields + 2, "Length");
    row.gridRow(K1Row, nullptr, 0, "K1K");
    row.gridRow(K2Row, nullptr, 0, "K2K");
    row.gridRow(K3Row, nullptr, 0, "K3K");
    row.gridRow(RoughnessRow, "RoughU", kFields + 3, "Rough");
    row.gridRow(ViscosityRow, "VisU", kFields + 4, "Vis");
    row.gridRow(DensityRow, "DenU", kFields + 5, "Den");
    row.gridRow(VelocityRow, "VelU", kFields + 6, "Vel");
    row.gridRow(ReynoldsRow, nullptr, 0, "Ren");
    row.gridRow(FrictionRow, nullptr, 0, "FF");
    row.gridRow(AddedDropRow, "dPAU", kFields + 7, "dPA");
    row.lineDropRow();
    row.field("SourceH", "SourceHU", SourceHeight);
    row.field("DischPress", "DischPressU", DischargePressure);
    // The suction pressure's column is written twice, the second time with
    // its unit: the sheet shows the unit and no suction pressure.
    row.field("SuctPress", nullptr, SuctionPressure);
    row.text("SuctPress", row.unit(SuctionPressure));
    row.field("TDH", "TDHU", PumpHead);
    row.field("VPress", "VPressU", VaporPressure);
    row.field("NetPSHa", "NetPSHAU", NPSHa);
    row.text("PumpEff", txtHydraulicEff.text);
    row.field("Motor", "MotorU", MotorSize);
    row.field("MindP", "MindPU", MinimumValveDrop);
    row.text("LinePercdp", txtMinValvePercentdP.text);
    row.field("CV1", "CV1U", Valve3Drop);
    row.field("CV2", "CV2U", Valve5Drop);
    row.field("CV3", "CV3U", Valve6Drop);
    row.field("CV4", "CV4U", Valve8Drop);
    row.field("CV5", "CV5U", Valve10Drop);
    row.field("CV6", "CV6U", Valve11Drop);
    printer.print(DataSheetReport{"PumpNetwork", "pumpnetwork.rpt", "Pump Network"}, std::move(columns));
}

} // namespace kestrova
