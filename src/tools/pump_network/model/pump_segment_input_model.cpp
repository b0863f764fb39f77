#include "tools/pump_network/model/pump_segment_input_model.h"

#include "forms/model/user_interface.h"
#include "forms/store/global_units.h"
#include "numeric/display_mask.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "units/field_kinds.h"

#include <cstdlib>

namespace kestrova {

using namespace pump_segment;

namespace {

const FieldKind kAddedLosses{"Pressure Drop", PressureToUnit, PressureFromUnit, sameMask("##,##0.00")};

using V = SegmentInputValues;
using Q = Quantity;
namespace k = field_kinds;
const std::array<FieldBinding<V>, kFields> kBindings{{
    {&k::length, Q::Length, &V::length},
    {&k::diameter, Q::Diameter, &V::diameter},
    {&k::roughness, Q::Roughness, &V::roughness},
    {&k::density, Q::Density, &V::density},
    {&k::viscosity, Q::Viscosity, &V::viscosity},
    {&kAddedLosses, Q::PressureDrop, &V::addedLosses},
}};

// The shared array of each field, at a line.
std::array<LineValues*, kFields> sharedArrays(SegmentData& g)
{
    return {&g.SegLength, &g.SegID, &g.SegRough, &g.SegDensity, &g.SegVisc, &g.SegDpAdd};
}

size_t lineIndex() { return static_cast<size_t>(std::clamp<int>(CurrentLine(), 1, 11)); }

} // namespace

PumpSegmentInputModel::PumpSegmentInputModel(UserInterface& ui, SegmentData& segments, SegmentRequests& requests,
                                             std::function<void()> passOnMove, QObject* parent)
    : FormModel(parent), ui_(ui), segments_(segments), requests_(requests), passOnMove_(std::move(passOnMove))
{
    for (int i = 0; i < kFields; ++i) {
        txtData[static_cast<size_t>(i)] = controlOf(FieldRole{true, KeyRule::SignedNumber, FieldShade::Normal});
        txtData[static_cast<size_t>(i)].widest = widestText(*kBindings[static_cast<size_t>(i)].kind);
    }
    txtData[Diameter].toolTip = "Inside Diameter";
    txtData[AddedLosses].toolTip = "Other Line Losses, meters, strainers, exchangers, furnaces, etc.";
    for (TextControl& k : txtDisplay) {
        k = controlOf(FieldRole{false, KeyRule::Number, FieldShade::Tinted});
        k.toolTip = "Minor Loss Coefficient";
        k.widest = maskSample("#,###,##0");
    }
    txtLineNumber = controlOf(FieldRole{false, KeyRule::Digits, FieldShade::Tinted});
    txtLineNumber.toolTip = "Pipe Segment Line Number";
    txtLineNumber.widest = "88";
    const char* tables[] = {"Pipe/Tube Diameter Table", "Roughness Table", "Get Physical Properties",
                            "Minor Fitting Loss Table"};
    for (size_t i = 0; i < cmdTable.size(); ++i)
        cmdTable[i].toolTip = tables[i];
    ControlRegistry& all = controls();
    all.family("cmdTable", cmdTable);
    all.family("txtData", txtData);
    all.family("cboUnits", cboUnits);
    all.family("txtDisplay", txtDisplay);
    all.add(pump_segment::txtLineNumber, txtLineNumber);
}

void PumpSegmentInputModel::Form_Load()
{
    ChangeNotice notice(*this);
    Form_Activate();
    txtLineNumber.text = std::to_string(lineIndex());
    scrollValue = -static_cast<int>(lineIndex());
    loadLine();
    loaded_ = true;
}

void PumpSegmentInputModel::Form_Activate()
{
    ChangeNotice notice(*this);
    for (int i = 0; i < kFields; ++i) {
        cboUnits[static_cast<size_t>(i)].listIndex = globalUnits()[kBindings[static_cast<size_t>(i)].setup];
        showField(i);
    }
}

// The line's pipe data into the working copy, its constants as plain text.
void PumpSegmentInputModel::loadLine()
{
    const size_t line = lineIndex();
    const auto shared = sharedArrays(segments_);
    for (int i = 0; i < kFields; ++i)
        kBindings[static_cast<size_t>(i)].of(values) = (*shared[static_cast<size_t>(i)])[line];
    for (int i = 0; i < kFields; ++i)
        showField(i);
    showConstants(false);
}

void PumpSegmentInputModel::showConstants(bool masked)
{
    const MinorLossStore& store = minorLossStore();
    const size_t line = lineIndex();
    const Single constants[] = {store.SegK1[line], store.SegK2[line], store.SegK3[line]};
    const char* masks[] = {"#,###,##0", "##0.00", "##0.00"};
    for (size_t i = 0; i < 3; ++i)
        txtDisplay[i].text = masked ? formatMask(constants[i], masks[i]) : plainNumberText(constants[i]);
}

// All six working values go to the shared arrays at the line.
void PumpSegmentInputModel::storeLine()
{
    const size_t line = lineIndex();
    const auto shared = sharedArrays(segments_);
    for (int i = 0; i < kFields; ++i)
        (*shared[static_cast<size_t>(i)])[line] = kBindings[static_cast<size_t>(i)].of(values);
}

void PumpSegmentInputModel::showField(int field)
{
    const auto i = static_cast<size_t>(field);
    showUnitField(kBindings[i], values, cboUnits[i], txtData[i]);
}

// The text into the working value, all six to the shared arrays, the field shown again.
void PumpSegmentInputModel::commitField(int field)
{
    if (field >= 0 && field < kFields) {
        const auto i = static_cast<size_t>(field);
        kBindings[i].of(values) = unitFieldValue(*kBindings[i].kind, txtData[i].text, cboUnits[i].listIndex);
    }
    storeLine();
    if (field >= 0 && field < kFields)
        showField(field);
}

void PumpSegmentInputModel::txtData_LostFocus(int field)
{
    ChangeNotice notice(*this);
    commitField(field);
}

void PumpSegmentInputModel::setUnit(int field, UnitIndex unit)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(field)].listIndex = unit;
    showField(field);
}

// A move to another line commits first with the line number taken as the
// field number (for lines 1 to 5 that field is read again), then shows the
// new line and runs the network's pass.
void PumpSegmentInputModel::scrLineNumber_Change(int value)
{
    if (!loaded_ || value < -11 || value > -1)
        return;
    ChangeNotice notice(*this);
    commitField(CurrentLine());
    scrollValue = value;
    CurrentLine() = static_cast<std::int16_t>(std::abs(value));
    txtLineNumber.text = std::to_string(CurrentLine());
    loadLine();
    if (passOnMove_)
        passOnMove_();
}

void PumpSegmentInputModel::cmdTable_Click(int index)
{
    ChangeNotice notice(*this);
    switch (index) {
    case PipeTable: {
        const Single diameter = ui_.SelectPipeID("ID");
        if (diameter == 0)
            return;
        values.diameter = diameter;
        values.roughness = pipeToolRoughness();
        showField(Diameter);
        showField(Roughness);
        requestFocus(pump_segment::txtData(Diameter));
        break;
    }
    case RoughnessTable: {
        const Single roughness = ui_.SelectRoughness();
        if (roughness == 0)
            return;
        values.roughness = roughness;
        showField(Roughness);
        requestFocus(pump_segment::txtData(Roughness));
        break;
    }
    case PhysicalProperties: {
        propertiesCancelled() = false;
        propertiesCancelled() = !ui_.GetPhysicalProperties(FluidKind::Liquid, 77);
        if (propertiesCancelled())
            return;
        const PhysProps& props = physProps();
        values.density = props.liquidDensity;
        values.viscosity = props.liquidViscosity;
        if (CurrentLine() == 1)
            requests_.vaporPressure = props.vaporPressure;
        // Shown first, then committed: the stored values are what the masks leave of them.
        for (int field : {Density, Viscosity})
            showField(field);
        for (int field : {Density, Viscosity})
            commitField(field);
        break;
    }
    case MinorLossTable:
        ui_.GetKValue();
        if (minorLossStore().hasData[lineIndex()])
            showConstants(true);
        break;
    default:
        break;
    }
}

// The label's value goes down the network once the dialog closes, from the
// line on which it closes.
void PumpSegmentInputModel::Label1_DblClick(int index)
{
    struct Question {
        const char* title;
        const char* text;
        bool SegmentRequests::*flag;
    };
    static const Question questions[] = {
        {"Absolute Roughness", "Apply this roughness value to all remaining lines in the network?",
         &SegmentRequests::applyRoughness},
        {"Density", "Apply this density value to all remaining lines in the network?", &SegmentRequests::applyDensity},
        {"Viscosity", "Apply his viscosity value to all remaining lines in the network?",
         &SegmentRequests::applyViscosity},
    };
    if (index < 2 || index > 4)
        return;
    const Question& q = questions[index - 2];
    if (ui_.ask(q.title, q.text, MessageIcon::Question, MessageButtons::YesNo, MessageAnswer::Yes) == MessageAnswer::Yes)
        requests_.*q.flag = true;
}

// The line's values and constants to zero; the shared pipe arrays take the
// zeros only at the next commit of a field of this line.
void PumpSegmentInputModel::cmdReset_Click()
{
    if (ui_.ask("Pump Network Input", "Reset all of this line's data?", MessageIcon::Question,
                MessageButtons::OkCancel, MessageAnswer::Cancel) == MessageAnswer::Cancel)
        return;
    ChangeNotice notice(*this);
    const size_t line = lineIndex();
    values = SegmentInputValues{};
    MinorLossStore& store = minorLossStore();
    store.SegK1[line] = store.SegK2[line] = store.SegK3[line] = 0.0;
    store.clearSlot(static_cast<int>(line));
    for (TextControl& k : txtDisplay)
        k.text = "0";
    for (int i = 0; i < kFields; ++i)
        showField(i);
}

void PumpSegmentInputModel::cmdOK_Click()
{
    ChangeNotice notice(*this);
    closeRequested = true;
}

void PumpSegmentInputModel::commit(const Control& field, const std::string& text)
{
    if (TextControl* data = field.family == "txtData" ? elementOf(txtData, field) : nullptr) {
        data->text = text;
        txtData_LostFocus(field.index);
    }
}

void PumpSegmentInputModel::click(const Control& control)
{
    if (control.family == "cmdTable")
        cmdTable_Click(control.index);
    else if (control == pump_segment::cmdReset)
        cmdReset_Click();
    else if (control == pump_segment::cmdOK)
        cmdOK_Click();
}

void PumpSegmentInputModel::choose(const Control& list, int entry)
{
    if (list.family == "cboUnits")
        setUnit(list.index, static_cast<UnitIndex>(entry));
    else if (list == pump_segment::scrLineNumber)
        scrLineNumber_Change(entry);
}

void PumpSegmentInputModel::doubleClick(const Control& control)
{
    if (control.family == "Label1")
        Label1_DblClick(control.index);
}

} // namespace kestrova
