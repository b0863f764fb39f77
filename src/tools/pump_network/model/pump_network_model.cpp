// The pump network tool's events: load and activation, the fields and unit
// lists, the pass after each edit, the drawing and the grid that open the
// segment dialog, reset and closing.

#include "tools/pump_network/model/pump_network_model.h"

#include "forms/model/user_interface.h"
#include "forms/store/global_units.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pump_network/model/pump_segment_input_model.h"

namespace kestrova {

using namespace pump_network;

// The pass's output lands in the tool's fields and grid.
class NetworkResults : public NetworkDisplay {
public:
    explicit NetworkResults(PumpNetworkModel& model) : model_(model) {}
    void refresh(int field) override { model_.cboUnits_Click(field); }
    void gridCell(int row, int column, const std::string& text) override
    {
        model_.setGridCell(row, column, text);
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

PumpNetworkModel::PumpNetworkModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui)
{
    setUpControls();
    ControlRegistry& all = controls();
    all.family("txtData", txtData);
    all.family("cboUnits", cboUnits);
    all.add(pump_network::txtHydraulicEff, txtHydraulicEff);
    all.add(pump_network::txtMinValvePercentdP, txtMinValvePercentdP);
    all.add(pump_network::txtDescription, txtDescription);
}

// --- load, activation --------------------------------------------------------------

void PumpNetworkModel::Form_Load()
{
    ChangeNotice notice(*this);
    network.PumpEff = 100;
    network.LinePercentDp = 30;
    network.MinValveDp = 10;
    showPercents();
    for (int i = 0; i < kUnitLists; ++i)
        cboUnits_Click(i);
    modified = false;
    ui_.setToolbarButtonEnabled("Save", true);
}

void PumpNetworkModel::Form_Activate()
{
    ChangeNotice notice(*this);
    takeGlobalUnits();
    for (int i = 0; i < kFields; ++i)
        cboUnits_Click(i);
    CurrentLine() = 1;
    {
        const BusyPointer busy(ui_);
        NetCalc();
    }
    ui_.setToolbarButtonEnabled("Print", true);
    ui_.setStatusText("Pump Network Design");
}

void PumpNetworkModel::showPercents()
{
    txtHydraulicEff.text = plainNumberText(network.PumpEff);
    txtMinValvePercentdP.text = plainNumberText(network.LinePercentDp);
}

// --- fields and unit lists --------------------------------------------------------------

void PumpNetworkModel::setUnit(int list, UnitIndex unit)
{
    if (list < 0 || list >= kUnitLists)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(list)].listIndex = unit;
    cboUnits_Click(list);
}

void PumpNetworkModel::cboUnits_Click(int index)
{
    if (index < 0 || index >= kUnitLists)
        return;
    ChangeNotice notice(*this);
    if (index < kFields) {
        showField(index);
        return;
    }
    showGridRow(index);
    CleanGrid();
}

void PumpNetworkModel::txtData_LostFocus(int field)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    storeField(field);
    cboUnits_Click(field);
    const bool flow = (field < SourceHeight && field % 3 == 0) || field == PumpFlow;
    const bool pressure = field < SourceHeight && field % 3 == 1;
    if (flow)
        cboUnits_Click(kFields + 0); // the grid's flow row
    if (pressure)
        cboUnits_Click(kUnitLists - 1); // the grid's destination row
    NetCalc();
}

// A percent field takes its text as a single; a text that is no number
// leaves the value as it was; the field shows the value's plain text.
void PumpNetworkModel::txtHydraulicEff_LostFocus()
{
    ChangeNotice notice(*this);
    try {
        network.PumpEff = requiredFieldSingle(txtHydraulicEff.text);
    } catch (const NumericFault&) {
    }
    showPercents();
    NetCalc();
}

void PumpNetworkModel::txtMinValvePercentdP_LostFocus()
{
    ChangeNotice notice(*this);
    try {
        network.LinePercentDp = requiredFieldSingle(txtMinValvePercentdP.text);
    } catch (const NumericFault&) {
    }
    showPercents();
    NetCalc();
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
    NetworkResults results(*this);
    kestrova::NetCalc(network, segments, results);
}

void PumpNetworkModel::useNetwork(const NetworkState& taken, const SegmentData& takenSegments)
{
    ChangeNotice notice(*this);
    network = taken;
    segments = takenSegments;
    for (int i = 0; i < kUnitLists; ++i)
        cboUnits_Click(i);
    showPercents();
}

void PumpNetworkModel::Form_KeyPress()
{
    ChangeNotice notice(*this);
    setModified();
}

void PumpNetworkModel::setModified()
{
    modified = true;
    ui_.setToolbarButtonEnabled("Save", true);
}

// --- the drawing, the grid and the segment dialog --------------------------------------------

void PumpNetworkModel::panNetwork_MouseDown(CanvasPoint point)
{
    const int segment = segmentAt(point);
    if (segment < 0)
        return;
    ChangeNotice notice(*this);
    openSegmentInput(pipeSegments()[static_cast<size_t>(segment)].line, true);
}

void PumpNetworkModel::grdSummary_DblClick(int column)
{
    if (column < 2 || column >= kGridColumns)
        return;
    ChangeNotice notice(*this);
    openSegmentInput(column - 1, false);
}

// The dialog edits the line's pipe data in place; each move to another line
// runs the pass, so the grid behind it follows. After it closes: the vapour
// pressure fetched for line 1 (from the drawing only), the copies down the
// network, the pass.
void PumpNetworkModel::openSegmentInput(int line, bool fromDrawing)
{
    CurrentLine() = static_cast<std::int16_t>(line);
    {
        PumpSegmentInputModel input(ui_, segments, requests, [this] {
            ChangeNotice notice(*this);
            const BusyPointer busy(ui_);
            NetCalc();
        });
        input.Form_Load();
        ui_.PumpSystemData(input);
    }
    if (fromDrawing && CurrentLine() == 1 && requests.vaporPressure != 0) {
        network.VaporPress = requests.vaporPressure;
        cboUnits_Click(VaporPressure);
    }
    {
        const BusyPointer busy(ui_);
        ApplyToRemainingLines();
        NetCalc();
    }
    setModified();
}

void PumpNetworkModel::ApplyToRemainingLines()
{
    const int from = CurrentLine();
    const auto copyDown = [from](LineValues& values) {
        for (int line = from + 1; line <= 11; ++line)
            values[static_cast<size_t>(line)] = values[static_cast<size_t>(from)];
    };
    if (from >= 1 && from <= 11) {
        if (requests.applyRoughness)
            copyDown(segments.SegRough);
        if (requests.applyDensity)
            copyDown(segments.SegDensity);
        if (requests.applyViscosity)
            copyDown(segments.SegVisc);
    }
    requests.applyRoughness = requests.applyDensity = requests.applyViscosity = false;
}

void PumpNetworkModel::cmdSizeGrid_Click()
{
    ChangeNotice notice(*this);
    gridFillsWindow = !gridFillsWindow;
}

void PumpNetworkModel::HSplitter_Moved(int position)
{
    ChangeNotice notice(*this);
    gridFillsWindow = position == 0;
}

// --- reset and closing ------------------------------------------------------------------------

void PumpNetworkModel::ResetNetwork()
{
    ChangeNotice notice(*this);
    const LineValues frictionFactors = network.NetFd; // not touched by a reset
    network = NetworkState{};
    network.NetFd = frictionFactors;
    segments = SegmentData{};
    unusedLineArrays = {};
    minorLossStore() = MinorLossStore{};
    for (int i = 0; i < kFields; ++i) {
        txtData[static_cast<size_t>(i)].text = "0";
        cboUnits_Click(i);
    }
    showPercents();
    for (int r = 1; r < kGridRows; ++r)
        for (int c = 2; c < kGridColumns; ++c)
            grid[static_cast<size_t>(r)][static_cast<size_t>(c)].clear();
    txtDescription.text.clear();
    caption = kTitle;
}

void PumpNetworkModel::cmdReset_Click()
{
    if (ui_.ask(kTitle, "Reset all input data?", MessageIcon::Warning, MessageButtons::OkCancel, MessageAnswer::Ok) ==
        MessageAnswer::Cancel)
        return;
    ChangeNotice notice(*this);
    ResetNetwork();
    setModified();
    fileName_.clear();
}

bool PumpNetworkModel::Form_QueryUnload()
{
    if (modified) {
        const MessageAnswer answer = ui_.ask(kTitle, "Save data before closing?", MessageIcon::Question,
                                             MessageButtons::YesNoCancel, MessageAnswer::Yes);
        if (answer == MessageAnswer::Cancel)
            return false;
        if (answer == MessageAnswer::Yes && !(fileName_.empty() ? ui_.runSaveAs() : OpenSaveData("Save")))
            return false; // nothing is lost: the window stays open
    }
    ChangeNotice notice(*this);
    ResetNetwork();
    ui_.setToolbarButtonEnabled("Save", false);
    ui_.setToolbarButtonEnabled("Print", false);
    return true;
}

// --- the window's way in -------------------------------------------------------------------------

void PumpNetworkModel::commit(const Control& field, const std::string& text)
{
    if (TextControl* data = field.family == "txtData" ? elementOf(txtData, field) : nullptr) {
        data->text = text;
        txtData_LostFocus(field.index);
    } else if (field == pump_network::txtHydraulicEff) {
        txtHydraulicEff.text = text;
        txtHydraulicEff_LostFocus();
    } else if (field == pump_network::txtMinValvePercentdP) {
        txtMinValvePercentdP.text = text;
        txtMinValvePercentdP_LostFocus();
    } else if (field == pump_network::txtDescription) {
        ChangeNotice notice(*this);
        txtDescription.text = text;
    }
}

void PumpNetworkModel::click(const Control& control)
{
    if (control == pump_network::cmdReset)
        cmdReset_Click();
    else if (control == pump_network::cmdSizeGrid)
        cmdSizeGrid_Click();
}

void PumpNetworkModel::choose(const Control& list, int entry)
{
    if (list.family == "cboUnits")
        setUnit(list.index, static_cast<UnitIndex>(entry));
}

void PumpNetworkModel::keyTyped(const Control&)
{
    Form_KeyPress();
}

} // namespace kestrova
