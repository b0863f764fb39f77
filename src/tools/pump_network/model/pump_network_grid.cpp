// The pump network's fields and summary grid: the binding of each field to
// the network, the rows of the grid with their unit lists and masks, the
// refresh of a field or a row, the blanking of zero cells, and the tips.

#include "tools/pump_network/model/pump_network_model.h"

#include "forms/model/unit_fields.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"
#include "units/field_kinds.h"

#include <bit>

namespace kestrova {

using namespace pump_network;

namespace {

namespace k = field_kinds;

// The tool's own field kinds; the results of head and power are never typed.
const FieldKind kFlow{"Flow Rate", FlowToUnit, FlowFromUnit,
                      {"##,##0", "##,##0.00", "##,##0.0000", "##,##0.00", "##,##0.000", "##,##0.000"}};
const FieldKind kPressureDrop{"Pressure Drop", PressureToUnit, PressureFromUnit, sameMask("##,##0.00")};
const FieldKind kMinimumDrop{"Pressure Drop", PressureToUnit, PressureFromUnit,
                             {"##,##0", "##,##0.0", "##,##0.0", "##,##0.0", "##,##0.0", "##,##0.0", "##,##0.0",
                              "##,##0.0"}};
const FieldKind kVaporPressure{"Vapor Pressure", PressureToUnit, PressureFromUnit, sameMask("##,##0.000")};
const FieldKind kHead{"Head", HeadToUnit, nullptr, sameMask("##,##0.00")};
const FieldKind kPower{"Power", PowerToUnit, nullptr, sameMask("##,##0.00")};
const FieldKind kGridViscosity{"Viscosity", ViscosityToUnit, ViscosityFromUnit, sameMask("0.00E+00")};
const FieldKind kGridDensity{"Density", DensityToUnit, DensityFromUnit,
                             {"##,##0.00", "##,##0.0000", "##,##0.0", "##,##0.000"}};

using S = NetworkState;
using Q = Quantity;

// The value of a line in one of the network's arrays: flow, destination
// pressure, height, valve drop.
enum LineArray { Flow, Destination, Height, ValveDrop };
template <int Line, LineArray Array>
Single& lineValue(S& s)
{
    switch (Array) {
    case Flow: return s.NetFlow[Line];
    case Destination: return s.NetPDest[Line];
    case Height: return s.NetHeight[Line];
    default: return s.NetDpCV[Line];
    }
}

template <int Line>
constexpr std::array<FieldBinding<S>, 3> destination()
{
    return {{{&kFlow, Q::Flow, nullptr, &lineValue<Line, Flow>},
             {&k::pressure, Q::Pressure, nullptr, &lineValue<Line, Destination>},
             {&k::length, Q::Length, nullptr, &lineValue<Line, Height>}}};
}

std::array<FieldBinding<S>, kFields> makeFieldTable()
{
    std::array<FieldBinding<S>, kFields> table{};
    const std::array<std::array<FieldBinding<S>, 3>, 6> destinations{
        destination<5>(), destination<6>(), destination<8>(), destination<10>(), destination<11>(), destination<3>()};
    for (size_t t = 0; t < destinations.size(); ++t)
        for (size_t k = 0; k < 3; ++k)
            table[3 * t + k] = destinations[t][k];
    table[SourceHeight] = {&k::length, Q::Length, nullptr, &lineValue<1, Height>};
    table[Valve5Drop] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<5, ValveDrop>};
    table[Valve6Drop] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<6, ValveDrop>};
    table[Valve8Drop] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<8, ValveDrop>};
    table[Valve10Drop] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<10, ValveDrop>};
    table[Valve11Drop] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<11, ValveDrop>};
    table[Valve3Drop] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<3, ValveDrop>};
    table[VaporPressure] = {&kVaporPressure, Q::VaporPressure, &S::VaporPress};
    table[PumpFlow] = {&kFlow, Q::Flow, nullptr, &lineValue<1, Flow>};
    table[PumpHead] = {&kHead, Q::Head, &S::PumpHead};
    table[PressureIncrease] = {&kPressureDrop, Q::PressureDrop, nullptr, &lineValue<1, ValveDrop>};
    table[NPSHa] = {&kHead, Q::Head, &S::NPSHa};
    table[MotorSize] = {&kPower, Q::Power, &S::MotorSize};
    table[DischargePressure] = {&k::pressure, Q::Pressure, &S::PDischarge};
    table[SuctionPressure] = {&k::pressure, Q::Pressure, &S::PSuction};
    table[MinimumValveDrop] = {&kMinimumDrop, Q::PressureDrop, &S::MinValveDp};
    return table;
}
const std::array<FieldBinding<S>, kFields> kFieldTable = makeFieldTable();

// The grid rows that have a unit list: cboUnits(34 + k) serves row kGridLists[k].row.
struct GridRowList {
    int row;
    const FieldKind* kind;
    Quantity quantity;
};
const std::array<GridRowList, 11> kGridLists{{
    {FlowRow, &kFlow, Q::Flow},
    {DiameterRow, &k::diameter, Q::Diameter},
    {LengthRow, &k::length, Q::Length},
    {RoughnessRow, &k::roughness, Q::Roughness},
    {ViscosityRow, &kGridViscosity, Q::Viscosity},
    {DensityRow, &kGridDensity, Q::Density},
    {VelocityRow, &k::velocity, Q::Velocity},
    {AddedDropRow, &kPressureDrop, Q::PressureDrop},
    {LineDropRow, &kPressureDrop, Q::PressureDrop},
    {ValveDropRow, &kPressureDrop, Q::PressureDrop},
    {DestinationRow, &k::pressure, Q::Pressure},
}};

const LineValues& rowValues(const NetworkState& s, const SegmentData& g, int row)
{
    switch (row) {
    case FlowRow: return s.NetFlow;
    case DiameterRow: return g.SegID;
    case LengthRow: return g.SegLength;
    case RoughnessRow: return g.SegRough;
    case ViscosityRow: return g.SegVisc;
    case DensityRow: return g.SegDensity;
    case VelocityRow: return s.NetVel;
    case AddedDropRow: return g.SegDpAdd;
    case LineDropRow: return s.NetDpLine;
    case ValveDropRow: return s.NetDpCV;
    default: return s.NetPDest;
    }
}

const std::array<const char*, kGridRows> kRowNames{"",       "Flow:",  "ID:",     "Length:", "K1:",  "K2:",
                                                   "K3:",    "e:",     "Visc:",   "Density:", "Vel:", "Re:",
                                                   "fd:",    "dP Add:", "dP Line:", "dP CV:", "P Dest:"};

const std::array<const char*, kGridRows> kRowTips{
    "Pipe Segment Data",
    "Flow Rate in Pipe Segment",
    "ID of Pipe Segment",
    "Length of Pipe Segment",
    "K1 of Pipe Segment",
    "K2 of Pipe Segment",
    "K3 of Pipe Segment",
    "Roughness of Pipe Segment",
    "Fluid Viscosity in Pipe Segment",
    "Fluid Density in Pipe Segment",
    "Fluid Velocity in Pipe Segment",
    "Fluid Re of Pipe Segment",
    "Friction Factor of Pipe Segment",
    "dP of Additional Equipment in Pipe Segment",
    "dP of Pipe Segment",
    "dP of Control Valve in Pipe Segment",
    "Pipe Segment Destination Pressure",
};

} // namespace

const char* PumpNetworkModel::unitTagOf(int list)
{
    return list < kFields ? kFieldTable.at(static_cast<size_t>(list)).kind->tag
                          : kGridLists.at(static_cast<size_t>(list - kFields)).kind->tag;
}

// Rows 15 and 16 have values only on the lines that end at a valve.
bool PumpNetworkModel::gridCellUsed(int row, int column)
{
    const int line = column - 1;
    if (row < ValveDropRow || column < 2)
        return true;
    return line == 3 || line == 5 || line == 6 || line == 8 || line == 10 || line == 11 ||
           (row == DestinationRow && line > 3);
}

std::string PumpNetworkModel::gridToolTip(int row, int column)
{
    if (row < 0 || row >= kGridRows || column == 1)
        return {};
    if (column <= 0)
        return kRowTips[static_cast<size_t>(row)];
    const std::string line = std::to_string(column - 1);
    if (row == 0)
        return "Pipe Segment " + line;
    if (row == DestinationRow)
        return "Pipe Segment " + line + " Destination Pressure";
    return std::string(kRowTips[static_cast<size_t>(row)]) + " " + line;
}

// The grid's fixed texts and each field's look and least width.
void PumpNetworkModel::setUpControls()
{
    grid[0][1] = "Line:";
    for (int c = 2; c < kGridColumns; ++c)
        grid[0][static_cast<size_t>(c)] = std::to_string(c - 1);
    for (int r = 1; r < kGridRows; ++r)
        grid[static_cast<size_t>(r)][0] = kRowNames[static_cast<size_t>(r)];
    for (int i = 0; i < kFields; ++i) {
        const bool input = i <= SourceHeight || i == VaporPressure || i == MinimumValveDrop;
        TextControl& field = txtData[static_cast<size_t>(i)];
        field = controlOf(input ? FieldRole{true, KeyRule::SignedNumber, FieldShade::Normal}
                                : FieldRole{false, KeyRule::Number, FieldShade::Tinted});
        field.widest = widestText(*kFieldTable[static_cast<size_t>(i)].kind);
    }
    for (TextControl* percent : {&txtHydraulicEff, &txtMinValvePercentdP}) {
        *percent = controlOf(FieldRole{true, KeyRule::Number, FieldShade::Normal});
        percent->widest = "888.888";
    }
    txtDescription = controlOf(FieldRole{true, KeyRule::Text, FieldShade::Normal});
}

void PumpNetworkModel::showField(int field)
{
    const auto i = static_cast<size_t>(field);
    showUnitField(kFieldTable[i], network, cboUnits[i], txtData[i]);
}

// Takes a typed text into the network: an input field through its unit,
// and stores nothing for a result.
void PumpNetworkModel::storeField(int field)
{
    const auto i = static_cast<size_t>(field);
    if (!txtData[i].locked)
        kFieldTable[i].of(network) = unitFieldValue(*kFieldTable[i].kind, txtData[i].text, cboUnits[i].listIndex);
}

void PumpNetworkModel::showGridRow(int list)
{
    const GridRowList& row = kGridLists[static_cast<size_t>(list - kFields)];
    const LineValues& values = rowValues(network, segments, row.row);
    for (int line = 1; line <= 11; ++line)
        if (gridCellUsed(row.row, line + 1))
            setGridCell(row.row, line + 1,
                        unitFieldText(*row.kind, values[static_cast<size_t>(line)], cboUnits[static_cast<size_t>(list)].listIndex));
}

void PumpNetworkModel::takeGlobalUnits()
{
    for (int i = 0; i < kUnitLists; ++i)
        cboUnits[static_cast<size_t>(i)].listIndex =
            globalUnits()[i < kFields ? kFieldTable[static_cast<size_t>(i)].setup
                                      : kGridLists[static_cast<size_t>(i - kFields)].quantity];
}

void PumpNetworkModel::UpDateGridFromInput()
{
    for (int list = kFields; list < kUnitLists; ++list)
        cboUnits_Click(list);
    const MinorLossStore& k = minorLossStore();
    for (int line = 1; line <= 11; ++line) {
        const auto l = static_cast<size_t>(line);
        setGridCell(K1Row, line + 1, formatMask(k.SegK1[l], "#,###,###0.0"));
        setGridCell(K2Row, line + 1, formatMask(k.SegK2[l], "#,##0.000"));
        setGridCell(K3Row, line + 1, formatMask(k.SegK3[l], "#,##0.000"));
    }
}

void PumpNetworkModel::setGridCell(int row, int column, std::string text)
{
    std::string& cell = grid.at(static_cast<size_t>(row)).at(static_cast<size_t>(column));
    if (cell == text)
        return; // the cleaning's verdict on it stands
    cell = std::move(text);
    cellsToClean_[static_cast<size_t>(row)] |= static_cast<std::uint16_t>(1u << column);
}

// Empties every value cell whose text reads as zero; a cell whose text cannot
// be read as a single stays as it is. Only the cells written since the last
// cleaning can have changed.
void PumpNetworkModel::CleanGrid()
{
    constexpr unsigned kValueColumns = ~0u << 2;
    for (size_t r = 1; r < grid.size(); ++r) {
        for (unsigned columns = cellsToClean_[r] & kValueColumns; columns != 0; columns &= columns - 1) {
            std::string& cell = grid[r][static_cast<size_t>(std::countr_zero(columns))];
            if (!cell.empty() && fieldReadsAsZero(cell))
                cell.clear();
        }
        cellsToClean_[r] = 0;
    }
}

} // namespace kestrova
