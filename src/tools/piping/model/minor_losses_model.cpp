#include "tools/piping/model/minor_losses_model.h"

#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"

#include <functional>

namespace kestrova {

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

MinorLossesModel::MinorLossesModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui) {}

void MinorLossesModel::Form_Load()
{
    ChangeNotice notice(*this);
    const int slot = CurrentLine();
    MinorLossStore& store = minorLossStore();
    for (size_t n = 0; n < txtQuantity.size(); ++n)
        txtQuantity[n] = std::to_string(store.quantities[static_cast<size_t>(slot)][n]);
    txtKValue[0] = plainNumberText(store.enlargementK);
    txtKValue[1] = plainNumberText(store.contractionK);
    txtKValue[2] = plainNumberText(store.otherK[static_cast<size_t>(slot)]);
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
        if (txtQuantity[n].empty())
            continue;
        const std::int16_t count = fieldInteger16Or0(txtQuantity[n]);
        addTo(K1Sum, count * Single(fittings()[n].K1));
        addTo(K2Sum, count * Single(fittings()[n].K2));
        if (txtQuantity[n] == "0")
            txtQuantity[n].clear();
    }
    txtTotalK1 = formatMask(K1Sum, "#,###,##0");
    txtTotalK2 = formatMask(K2Sum, "###,##0.00");
    K3Sum = 0.0;
    for (std::string& value : txtKValue) {
        if (value.empty())
            continue;
        addTo(K3Sum, fieldSingleOr0(value));
        if (value == "0")
            value.clear();
    }
    txtTotalK = formatMask(K3Sum, "###,##0.00");
}

void MinorLossesModel::txtKValue_LostFocus(int index)
{
    if (index != 2 || txtKValue[2].empty())
        return;
    ChangeNotice notice(*this);
    txtKValue[2] = formatMask(fieldSingleOr0(txtKValue[2]), "###,##0.000");
    Sum();
}

void MinorLossesModel::apply(bool hide)
{
    const size_t slot = static_cast<size_t>(CurrentLine());
    MinorLossStore& store = minorLossStore();
    for (size_t n = 0; n < txtQuantity.size(); ++n)
        store.quantities[slot][n] = fieldInteger16Or0(txtQuantity[n]);
    store.otherK[slot] = fieldSingleOr0(txtKValue[2]);
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
    for (std::string& text : txtQuantity)
        text.clear();
    for (std::string& text : txtKValue)
        text.clear();
    txtTotalK1.clear();
    txtTotalK2.clear();
    txtTotalK.clear();
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
    txtKValue[1] = plainNumberText(k);
    Sum();
}

void MinorLossesModel::cmdEnlargementTable_Click()
{
    ChangeNotice notice(*this);
    const Single k = ui_.GetEnlargementK();
    if (k == 1.0)
        return;
    minorLossStore().enlargementK = k;
    txtKValue[0] = plainNumberText(k);
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

} // namespace kestrova
