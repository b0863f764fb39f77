#include "tools/pump_network/model/pump_network_model.h"

#include "units/field_kinds.h"
#include "forms/store/global_units.h"
#include "units/unit_field.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"

namespace kestrova {

namespace {

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

// The terminal lines in the order of the fields 0 to 17 and 19 to 24.
constexpr std::array<int, 6> kTerminals{5, 6, 8, 10, 11, 3};

const FieldKind& fieldKind(int field)
{
    if (field < 18)
        return field % 3 == 0 ? kFlow : field % 3 == 1 ? field_kinds::pressure : field_kinds::length;
    switch (field) {
    case 18: return field_kinds::length;
    case 25: return kVaporPressure;
    case 26: return kFlow;
    case 27:
    case 29: return kHead;
    case 30: return kPower;
    case 31:
    case 32: return field_kinds::pressure;
    case 33: return kMinimumDrop;
    default: return kPressureDrop; // the valve drops 19 to 24 and the pressure increase 28
    }
}

Single& fieldElement(NetworkState& s, int field)
{
    if (field < 18) {
        const int line = kTerminals[static_cast<size_t>(field / 3)];
        return field % 3 == 0 ? s.NetFlow[line] : field % 3 == 1 ? s.NetPDest[line] : s.NetHeight[line];
    }
    if (field >= 19 && field <= 24)
        return s.NetDpCV[kTerminals[static_cast<size_t>(field - 19)]];
    switch (field) {
    case 18: return s.NetHeight[1];
    case 25: return s.VaporPress;
    case 26: return s.NetFlow[1];
    case 27: return s.PumpHead;
    case 28: return s.NetDpCV[1];
    case 29: return s.NPSHa;
    case 30: return s.MotorSize;
    case 31: return s.PDischarge;
    case 32: return s.PSuction;
    default: return s.MinValveDp;
    }
}

bool isInputField(int field)
{
    return field <= 18 || field == 25 || field == 26 || field == 33;
}

Quantity fieldQuantity(int field)
{
    if (field < 19)
        return field == 18 || field % 3 == 2 ? Quantity::Length : field % 3 == 0 ? Quantity::Flow : Quantity::Pressure;
    switch (field) {
    case 25: return Quantity::VaporPressure;
    case 26: return Quantity::Flow;
    case 27:
    case 29: return Quantity::Head;
    case 30: return Quantity::Power;
    case 31:
    case 32: return Quantity::Pressure;
    default: return Quantity::PressureDrop;
    }
}

// The grid rows that have a unit list: cboUnits(34 + k) serves row kGridRowOfList[k].
struct GridRow {
    int row;
    const FieldKind* kind;
    Quantity quantity;
};
const std::array<GridRow, 11> kGridLists{{
    {1, &kFlow, Quantity::Flow},
    {2, &field_kinds::diameter, Quantity::Diameter},
    {3, &field_kinds::length, Quantity::Length},
    {7, &field_kinds::roughness, Quantity::Roughness},
    {8, &kGridViscosity, Quantity::Viscosity},
    {9, &kGridDensity, Quantity::Density},
    {10, &field_kinds::velocity, Quantity::Velocity},
    {13, &kPressureDrop, Quantity::PressureDrop},
    {14, &kPressureDrop, Quantity::PressureDrop},
    {15, &kPressureDrop, Quantity::PressureDrop},
    {16, &field_kinds::pressure, Quantity::Pressure},
}};

const LineValues* rowValues(const NetworkState& s, const SegmentData& g, int row)
{
    switch (row) {
    case 1: return &s.NetFlow;
    case 2: return &g.SegID;
    case 3: return &g.SegLength;
    case 7: return &g.SegRough;
    case 8: return &g.SegVisc;
    case 9: return &g.SegDensity;
    case 10: return &s.NetVel;
    case 13: return &g.SegDpAdd;
    case 14: return &s.NetDpLine;
    case 15: return &s.NetDpCV;
    default: return &s.NetPDest;
    }
}

// Rows 15 and 16 have values only on the lines that end at a valve.
bool cellHasValue(int row, int line)
{
    if (row != 15 && row != 16)
        return true;
    return line == 3 || line == 5 || line == 6 || line == 8 || line == 10 || line == 11 || (row == 16 && line > 3);
}

const std::array<const char*, 17> kRowNames{"",      "Flow:", "ID:",  "Length:", "K1:",     "K2:",      "K3:",
                                            "e:",    "Visc:", "Density:", "Vel:", "Re:", "fd:", "dP Add:",
                                            "dP Line:", "dP CV:", "P Dest:"};

class ModelDisplay : public NetworkDisplay {
public:
    explicit ModelDisplay(PumpNetworkModel& model) : model_(model) {}
    void refresh(int field) override { model_.cboUnits_Click(field); }
    void gridCell(int row, int column, const std::string& text) override
    {
        model_.grid.at(static_cast<size_t>(row)).at(static_cast<size_t>(column)) = text;
    }
    void endPass() override
    {
        model_.CleanGrid();
        model_.UpDateGridFromInput();
        model_.CleanGrid();
    }

private:
    PumpNetworkModel& model_;
};

} // namespace

PumpNetworkModel::PumpNetworkModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui)
{
    grid[0][1] = "Line:";
    for (int c = 2; c < kGridColumns; ++c)
        grid[0][static_cast<size_t>(c)] = std::to_string(c - 1);
    for (int r = 1; r < kGridRows; ++r)
        grid[static_cast<size_t>(r)][0] = kRowNames[static_cast<size_t>(r)];
}

const char* PumpNetworkModel::unitTagOf(int list)
{
    return list < kFields ? fieldKind(list).tag : kGridLists.at(static_cast<size_t>(list - kFields)).kind->tag;
}

void PumpNetworkModel::Form_Load()
{
    ChangeNotice notice(*this);
    state.PumpEff = 100;
    state.LinePercentDp = 30;
    state.MinValveDp = 10;
    txtHydraulicEff = plainNumberText(state.PumpEff);
    txtMinValvePercentdP = plainNumberText(state.LinePercentDp);
    for (int i = 0; i < kUnitLists; ++i)
        cboUnits_Click(i);
    modified = false;
    ui_.setToolbarButtonEnabled("Save", true);
}

void PumpNetworkModel::Form_Activate()
{
    ChangeNotice notice(*this);
    for (int i = 0; i < kUnitLists; ++i)
        cboUnits[static_cast<size_t>(i)] =
            globalUnits()[i < kFields ? fieldQuantity(i) : kGridLists[static_cast<size_t>(i - kFields)].quantity];
    for (int i = 0; i < kFields; ++i)
        cboUnits_Click(i);
    {
        const BusyPointer busy(ui_);
        NetCalc();
    }
    ui_.setStatusText("Pump Network Design");
}

void PumpNetworkModel::setUnit(int list, UnitIndex unit)
{
    if (list < 0 || list >= kUnitLists)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(list)] = unit;
    cboUnits_Click(list);
}

void PumpNetworkModel::cboUnits_Click(int index)
{
    if (index < 0 || index >= kUnitLists)
        return;
    ChangeNotice notice(*this);
    if (index < kFields) {
        const std::string text = unitFieldText(fieldKind(index), fieldElement(state, index), cboUnits[static_cast<size_t>(index)]);
        if (!text.empty())
            txtData[static_cast<size_t>(index)] = text;
        return;
    }
    showRow(index);
    CleanGrid();
}

void PumpNetworkModel::showRow(int list)
{
    const GridRow& row = kGridLists[static_cast<size_t>(list - kFields)];
    const LineValues& values = *rowValues(state, segments, row.row);
    for (int line = 1; line <= 11; ++line)
        if (cellHasValue(row.row, line))
            grid[static_cast<size_t>(row.row)][static_cast<size_t>(line + 1)] =
                unitFieldText(*row.kind, values[static_cast<size_t>(line)], cboUnits[static_cast<size_t>(list)]);
}

void PumpNetworkModel::UpDateGridFromInput()
{
    for (int list = kFields; list < kUnitLists; ++list)
        cboUnits_Click(list);
    const MinorLossStore& k = minorLossStore();
    for (int line = 1; line <= 11; ++line) {
        const auto l = static_cast<size_t>(line);
        grid[4][l + 1] = formatMask(k.SegK1[l], "#,###,###0.0");
        grid[5][l + 1] = formatMask(k.SegK2[l], "#,##0.000");
        grid[6][l + 1] = formatMask(k.SegK3[l], "#,##0.000");
    }
}

void PumpNetworkModel::CleanGrid()
{
    for (int r = 1; r < kGridRows; ++r)
        for (int c = 2; c < kGridColumns; ++c) {
            std::string& cell = grid[static_cast<size_t>(r)][static_cast<size_t>(c)];
            try {
                if (!cell.empty() && fieldSingle(cell) == 0)
                    cell.clear();
            } catch (const NumericFault&) {
                // resume next: the cell stays as it is
            }
        }
}

void PumpNetworkModel::NetCalc()
{
    ChangeNotice notice(*this);
    const MinorLossStore& k = minorLossStore();
    for (int line = 1; line <= 11; ++line) {
        const auto l = static_cast<size_t>(line);
        segments.SegK1[l] = k.SegK1[l];
        segments.SegK2[l] = k.SegK2[l];
        segments.SegK3[l] = k.SegK3[l];
    }
    ModelDisplay display(*this);
    kestrova::NetCalc(state, segments, display);
}

void PumpNetworkModel::txtData_LostFocus(int field)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    if (isInputField(field))
        fieldElement(state, field) =
            unitFieldValue(fieldKind(field), txtData[static_cast<size_t>(field)], cboUnits[static_cast<size_t>(field)]);
    cboUnits_Click(field);
    if ((field < 18 && field % 3 == 0) || field == 26)
        cboUnits_Click(34);
    if (field < 18 && field % 3 == 1)
        cboUnits_Click(44);
    NetCalc();
}

void PumpNetworkModel::txtHydraulicEff_LostFocus()
{
    ChangeNotice notice(*this);
    state.PumpEff = fieldSingleOr0(txtHydraulicEff);
    txtHydraulicEff = plainNumberText(state.PumpEff);
    NetCalc();
}

void PumpNetworkModel::txtMinValvePercentdP_LostFocus()
{
    ChangeNotice notice(*this);
    state.LinePercentDp = fieldSingleOr0(txtMinValvePercentdP);
    txtMinValvePercentdP = plainNumberText(state.LinePercentDp);
    NetCalc();
}

void PumpNetworkModel::ResetNetwork()
{
    ChangeNotice notice(*this);
    const LineValues frictionFactors = state.NetFd; // not touched by a reset
    state = NetworkState{};
    state.NetFd = frictionFactors;
    segments = SegmentData{};
    minorLossStore() = MinorLossStore{};
    for (int i = 0; i < kFields; ++i) {
        txtData[static_cast<size_t>(i)] = "0";
        cboUnits_Click(i);
    }
    txtHydraulicEff = plainNumberText(state.PumpEff);
    txtMinValvePercentdP = plainNumberText(state.LinePercentDp);
    for (int r = 1; r < kGridRows; ++r)
        for (int c = 2; c < kGridColumns; ++c)
            grid[static_cast<size_t>(r)][static_cast<size_t>(c)].clear();
    txtDescription.clear();
    caption = kTitle;
}

void PumpNetworkModel::cmdReset_Click()
{
    if (ui_.ask(kTitle, "Reset all input data?", MessageIcon::Warning, MessageButtons::OkCancel, MessageAnswer::Ok) ==
        MessageAnswer::Cancel)
        return;
    ResetNetwork();
    setModified();
}

void PumpNetworkModel::setModified()
{
    modified = true;
    ui_.setToolbarButtonEnabled("Save", true);
}

} // namespace kestrova
