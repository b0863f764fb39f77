#include "tools/piping/model/minor_losses_model.h"

#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"

#include <functional>

namespace kestrova {

using namespace minor_losses;

const std::array<Fitting, 35>& fittings()
{
    static const std::array<Fitting, 35> table{{
        {"Elbows", "45°", "Standard (R/D = 1), all types:", 500, 0.2},
        {"Elbows", "45°", "Long Radius (R/D = 1.5), all types:", 500, 0.15},
        {"Elbows", "45°", "Mittered, 1 weld (45° angle):", 500, 0.25},
        {"Elbows", "45°", "Mittered, 2 welds (22.5° angles):", 500, 0.15},
        {"Elbows", "90°", "Standard (R/D = 1), Screwed:", 800, 0.4},
        {"Elbows", "90°", "Standard (R/D = 1), Flanged/Welded:", 800, 0.25},
        {"Elbows", "90°", "Long Radius (R/D = 1.5), all types:", 800, 0.2},
        {"Elbows", "90°", "Mittered, 1 weld (90° angle):", 1000, 1.15},
        {"Elbows", "90°", "Mittered, 2 welds (45° angles):", 800, 0.35},
        {"Elbows", "90°", "Mittered, 3 welds (30° angles):", 800, 0.3},
        {"Elbows", "90°", "Mittered, 4 welds (22.5° angles):", 800, 0.27},
        {"Elbows", "90°", "Mittered, 5 welds (18° angles):", 800, 0.25},
        {"Elbows", "180°", "Standard (R/D = 1), Screwed:", 1000, 0.6},
        {"Elbows", "180°", "Standard (R/D = 1), Flanged/Welded:", 1000, 0.35},
        {"Elbows", "180°", "Long Radius (R/D = 1.5), all types:", 1000, 0.3},
        {"Valves", "Valve Types", "Gate, Ball, Plug  Full line Size, b = 1", 300, 0.1},
        {"Valves", "Valve Types", "Gate, Ball, Plug  b = 0.9", 500, 0.15},
        {"Valves", "Valve Types", "Gate, Ball, Plug  b = 0.8", 1000, 0.25},
        {"Valves", "Valve Types", "Globe, Standard:", 1500, 4},
        {"Valves", "Valve Types", "Globe, Angle or Y-type:", 1000, 2},
        {"Valves", "Valve Types", "Diaphragm, Dam type:", 1000, 2},
        {"Valves", "Valve Types", "Butterfly:", 800, 0.25},
        {"Valves", "Check Valves", "Lift:", 2000, 10},
        {"Valves", "Check Valves", "Swing:", 1500, 1.5},
        {"Valves", "Check Valves", "Tilting-Disk:", 1000, 0.5},
        {"Piping", "Entrance / Exit", "Flush Entrance:", 160, 0.50},
        {"Piping", "Entrance / Exit", "Projected (Borda) Entrance:", 160, 1},
        {"Piping", "Entrance / Exit", "Pipe Exit:", 0, 1},
        {"Piping", "Tees", "Tee, Through Flow:   Screwed:", 200, 0.1},
        {"Piping", "Tees", "Flanged / Welded:", 150, 0.5},
        {"Piping", "Tees", "Stub-in Type Branch:", 100, 0},
        {"Piping", "Tees", "Tee, Branch Flow:     Standard, Screwed:", 500, 0.7},
        {"Piping", "Tees", "Standard, Flanged / Welded:", 800, 0.8},
        {"Piping", "Tees", "Long Radius, Screwed:", 800, 0.4},
        {"Piping", "Tees", "Stub-in Type Branch:", 1000, 1},
    }};
    return table;
}

namespace {

// One addition of a running sum, stored as a single. Under the tool's
// resume-next rule a sum that no single can hold leaves the total as it was.
void addTo(Single& total, double addend)
{
    try {
        total = total + addend;
    } catch (const NumericFault&) {
    }
}

} // namespace

MinorLossesModel::MinorLossesModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui)
{
    // The quantities take digits alone; the other K a number; the rest are results.
    for (int n = 0; n < kFittings; ++n) {
        TextControl& quantity = txtQuantity[static_cast<size_t>(n)];
        quantity.keys = KeyRule::Digits;
        const Fitting& f = fittings()[static_cast<size_t>(n)];
        quantity.toolTip = "K1 = " + plainNumberText(f.K1) + ", K2 = " + plainNumberText(f.K2);
    }
    const TextControl result = controlOf(FieldRole{false, KeyRule::Number, FieldShade::Tinted});
    txtKValue = {result, result, controlOf(FieldRole{true, KeyRule::Number, FieldShade::Normal})};
    txtTotalK1 = txtTotalK2 = txtTotalK = result;
    txtTotalK1.toolTip = txtTotalK2.toolTip = "Total, 2-K Method";
    txtTotalK.toolTip = "Total Resistance Coeficient, K";
    ControlRegistry& all = controls();
    all.family("txtQuantity", txtQuantity);
    all.family("txtKValue", txtKValue);
    all.add(minor_losses::txtTotalK1, txtTotalK1);
    all.add(minor_losses::txtTotalK2, txtTotalK2);
    all.add(minor_losses::txtTotalK, txtTotalK);
}

void MinorLossesModel::Form_Load()
{
    ChangeNotice notice(*this);
    const int slot = CurrentLine();
    MinorLossStore& store = minorLossStore();
    for (size_t n = 0; n < txtQuantity.size(); ++n)
        txtQuantity[n].text = std::to_string(store.quantities[static_cast<size_t>(slot)][n]);
    txtKValue[Enlargements].text = plainNumberText(store.enlargementK);
    txtKValue[Contractions].text = plainNumberText(store.contractionK);
    txtKValue[OtherLosses].text = plainNumberText(store.otherK[static_cast<size_t>(slot)]);
    if (!store.hasData[static_cast<size_t>(slot)]) {
        loaded_ = false; // the reset runs without its question
        cmdReset_Click();
    }
    Sum();
    loaded_ = true;
}

void MinorLossesModel::Sum()
{
    ChangeNotice notice(*this);
    // Each fitting's K1 and K2 are singles, and each addition is stored.
    K1Sum = K2Sum = 0.0;
    for (size_t n = 0; n < txtQuantity.size(); ++n) {
        std::string& quantity = txtQuantity[n].text;
        if (quantity.empty())
            continue;
        const std::int16_t count = fieldInteger16Or0(quantity);
        addTo(K1Sum, count * Single(fittings()[n].K1));
        addTo(K2Sum, count * Single(fittings()[n].K2));
        if (quantity == "0")
            quantity.clear();
    }
    txtTotalK1.text = formatMask(K1Sum, "#,###,##0");
    txtTotalK2.text = formatMask(K2Sum, "###,##0.00");
    K3Sum = 0.0;
    for (TextControl& k : txtKValue) {
        if (k.text.empty())
            continue;
        addTo(K3Sum, fieldSingleOr0(k.text));
        if (k.text == "0")
            k.text.clear();
    }
    txtTotalK.text = formatMask(K3Sum, "###,##0.00");
}

void MinorLossesModel::txtKValue_LostFocus(int index)
{
    if (index != OtherLosses || txtKValue[OtherLosses].text.empty())
        return;
    ChangeNotice notice(*this);
    txtKValue[OtherLosses].text = formatMask(fieldSingleOr0(txtKValue[OtherLosses].text), "###,##0.000");
    Sum();
}

void MinorLossesModel::apply(bool hide)
{
    const size_t slot = static_cast<size_t>(CurrentLine());
    MinorLossStore& store = minorLossStore();
    for (size_t n = 0; n < txtQuantity.size(); ++n)
        store.quantities[slot][n] = fieldInteger16Or0(txtQuantity[n].text);
    store.otherK[slot] = fieldSingleOr0(txtKValue[OtherLosses].text);
    store.hasData[slot] = true;
    if (hide)
        closeRequested = true;
}

void MinorLossesModel::cmdApply_Click()
{
    ChangeNotice notice(*this);
    apply(true);
}

void MinorLossesModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (loaded_ && ui_.ask("Reset K Values", "Are you sure you want to reset all K values?", MessageIcon::Question,
                           MessageButtons::OkCancel, MessageAnswer::Cancel) == MessageAnswer::Cancel)
        return;
    for (TextControl& quantity : txtQuantity)
        quantity.text.clear();
    for (TextControl& k : txtKValue)
        k.text.clear();
    for (TextControl* total : {&txtTotalK1, &txtTotalK2, &txtTotalK})
        total->text.clear();
    const size_t slot = static_cast<size_t>(CurrentLine());
    MinorLossStore& store = minorLossStore();
    store.SegK1[slot] = store.SegK2[slot] = store.SegK3[slot] = 0.0;
    store.quantities[slot].fill(0);
    store.hasData[slot] = false;
    apply(false);
    store.hasData[slot] = false;
}

void MinorLossesModel::cmdContractionTable_Click()
{
    ChangeNotice notice(*this);
    const Single k = ui_.GetContractionK();
    if (k == 1.0) // the cancel value: a computed K of exactly 1 is dropped too
        return;
    minorLossStore().contractionK = k;
    txtKValue[Contractions].text = plainNumberText(k);
    Sum();
}

void MinorLossesModel::cmdEnlargementTable_Click()
{
    ChangeNotice notice(*this);
    const Single k = ui_.GetEnlargementK();
    if (k == 1.0)
        return;
    minorLossStore().enlargementK = k;
    txtKValue[Enlargements].text = plainNumberText(k);
    Sum();
}

void MinorLossesModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    cancelled = true;
    closeRequested = true;
}

void MinorLossesModel::GetKValue(const std::function<void()>& showModal)
{
    cancelled = false;
    showModal();
    if (cancelled)
        return;
    const size_t slot = static_cast<size_t>(CurrentLine());
    minorLossStore().SegK1[slot] = K1Sum;
    minorLossStore().SegK2[slot] = K2Sum;
    minorLossStore().SegK3[slot] = K3Sum;
}

void MinorLossesModel::showTexts(const std::array<std::string, kFittings>& quantities,
                                 const std::array<std::string, 3>& kValues)
{
    ChangeNotice notice(*this);
    for (size_t n = 0; n < quantities.size(); ++n)
        txtQuantity[n].text = quantities[n];
    for (size_t i = 0; i < kValues.size(); ++i)
        txtKValue[i].text = kValues[i];
    Sum();
}

// The sums follow each keystroke in a quantity and in the other K.
void MinorLossesModel::textEdited(const Control& field, const std::string& text)
{
    if (field.family == "txtQuantity" || field == minor_losses::txtKValue(OtherLosses)) {
        FormModel::textEdited(field, text);
        Sum();
    }
}

void MinorLossesModel::commit(const Control& field, const std::string& text)
{
    if (field == minor_losses::txtKValue(OtherLosses)) {
        txtKValue[OtherLosses].text = text;
        txtKValue_LostFocus(OtherLosses);
    } else if (TextControl* quantity = field.family == "txtQuantity" ? elementOf(txtQuantity, field) : nullptr) {
        quantity->text = text;
        Sum();
    }
}

void MinorLossesModel::click(const Control& control)
{
    if (control == minor_losses::cmdEnlargementTable)
        cmdEnlargementTable_Click();
    else if (control == minor_losses::cmdContractionTable)
        cmdContractionTable_Click();
    else if (control == minor_losses::cmdApply)
        cmdApply_Click();
    else if (control == minor_losses::cmdReset)
        cmdReset_Click();
    else if (control == minor_losses::cmdClose)
        cmdClose_Click();
}

} // namespace kestrova
