#include "tools/piping/model/reducer_model.h"

#include "forms/model/user_interface.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/piping/model/minor_loss_store.h"

#include <cmath>

namespace kestrova {

using checked::Pow;
using checked::Sqr;

namespace {

constexpr const char* kAngleMessage = "Invalid angle entered.\n \nThe angle entered must be between 0 and 180 degrees.";
constexpr const char* kBetaMessage = "Invalid beta entered.\n \nBeta must be between 0 and 1.";

} // namespace

ReducerModel::ReducerModel(ReducerKind kind, UserInterface& ui, QObject* parent)
    : FormModel(parent), kind_(kind), ui_(ui)
{
    for (TextControl& angle : txtAngle) {
        angle.keys = KeyRule::Number;
        angle.toolTip = "Angle in Degrees";
    }
    for (TextControl& beta : txtBeta) {
        beta.keys = KeyRule::Number;
        beta.toolTip = "d / D";
    }
    const TextControl result = controlOf(FieldRole{false, KeyRule::Number, FieldShade::Tinted});
    txtKValue.fill(result);
    txtTotalK = result;
    txtTotalK.text = "0";
    ControlRegistry& all = controls();
    all.family("txtAngle", txtAngle);
    all.family("txtBeta", txtBeta);
    all.family("txtKValue", txtKValue);
    all.add(reducer::txtTotalK, txtTotalK);
}

std::string ReducerModel::title() const
{
    return kind_ == ReducerKind::Contraction ? "Contractions" : "Englargements";
}

std::string ReducerModel::gradualLabel() const
{
    return kind_ == ReducerKind::Contraction ? "Gradual Contractions:" : "Gradual Englargements:";
}

std::string ReducerModel::suddenLabel() const
{
    return kind_ == ReducerKind::Contraction ? "Sudden Contractions:" : "Sudden Englargements:";
}

ReducerStore& ReducerModel::store() const
{
    return kind_ == ReducerKind::Contraction ? contractionStore() : enlargementStore();
}

void ReducerModel::Form_Load()
{
    ChangeNotice notice(*this);
    const auto& values = store().values[static_cast<size_t>(CurrentLine())];
    const auto shown = [](Single v) { return v == 0 ? std::string() : plainNumberText(v); };
    for (int row = 0; row < kRows; ++row) {
        if (row < kGradualRows)
            txtAngle[static_cast<size_t>(row)].text = shown(values[static_cast<size_t>(row)]);
        txtBeta[static_cast<size_t>(row)].text = shown(values[static_cast<size_t>(5 + row)]);
    }
    for (int row = 0; row < kRows; ++row)
        ComputeRow(row);
    if (!store().hasData[static_cast<size_t>(CurrentLine())]) {
        loaded_ = false;
        cmdReset_Click();
    }
    loaded_ = true;
}

void ReducerModel::ComputeRow(int row)
{
    if (row < 0 || row >= kRows)
        return;
    ChangeNotice notice(*this);
    std::string& k = txtKValue[static_cast<size_t>(row)].text;
    const std::string& betaText = txtBeta[static_cast<size_t>(row)].text;
    try {
        FaultScope scope(kind_ == ReducerKind::Contraction ? "Contractions" : "Enlargements");
        const Single beta = fieldSingleOr0(betaText);
        if (row >= kGradualRows) {
            if (betaText.empty())
                k.clear();
            else
                k = formatMask(Pow(1 - Pow(beta, 2), 2), "###,##0.000");
        } else if (txtAngle[static_cast<size_t>(row)].text.empty() || betaText.empty()) {
            k.clear();
        } else {
            const Single angle = fieldSingleOr0(txtAngle[static_cast<size_t>(row)].text);
            const double H = angle * 0.5 * 3.1415926536 / 180;
            const double area = 1 - Pow(beta, 2);
            double value;
            if (kind_ == ReducerKind::Contraction)
                value = (angle > 0 && angle < 45) ? 0.8 * std::sin(H * area) : area * 0.5 * Sqr(std::sin(H));
            else
                value = (angle > 0 && angle < 45) ? 2.6 * std::sin(H * Pow(area, 2)) : Pow(area, 2);
            k = formatMask(Single(value), "###,##0.000");
        }
    } catch (const NumericFault&) {
        // A failing step leaves the field as it was.
    }
    total();
}

void ReducerModel::total()
{
    // The total lives in its text: each addition reads it and the row's K as
    // singles and writes the sum back as plain text, rounded at every step.
    std::string& sum = txtTotalK.text;
    sum = "0";
    for (const TextControl& k : txtKValue) {
        try {
            sum = plainNumberText(Single(fieldSingleOr0(sum) + fieldSingleOr0(k.text)));
        } catch (const NumericFault&) {
            // resume next: the total stays as it was
        }
    }
}

// A value out of range is told, the row's K emptied, and the focus goes
// back to the field.
bool ReducerModel::refused(const Control& control, int row, const char* message)
{
    ui_.ask(title(), message, MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
    requestFocus(control);
    txtKValue[static_cast<size_t>(row)].text.clear();
    return false;
}

bool ReducerModel::txtAngle_LostFocus(int row)
{
    if (row < 0 || row >= kGradualRows)
        return true;
    ChangeNotice notice(*this);
    TextControl& field = txtAngle[static_cast<size_t>(row)];
    if (!field.text.empty()) {
        const Single angle = fieldSingleOr0(field.text);
        if (!(angle > 0 && angle < 180))
            return refused(reducer::txtAngle(row), row, kAngleMessage);
    }
    ComputeRow(row);
    return true;
}

bool ReducerModel::txtBeta_LostFocus(int row)
{
    if (row < 0 || row >= kRows)
        return true;
    ChangeNotice notice(*this);
    TextControl& field = txtBeta[static_cast<size_t>(row)];
    if (!field.text.empty()) {
        const Single beta = fieldSingleOr0(field.text);
        if (!(beta > 0 && beta < 1))
            return refused(reducer::txtBeta(row), row, kBetaMessage);
    }
    ComputeRow(row);
    return true;
}

void ReducerModel::cmdApply_Click()
{
    ChangeNotice notice(*this);
    const size_t slot = static_cast<size_t>(CurrentLine());
    auto& values = store().values[slot];
    for (int row = 0; row < kRows; ++row) {
        if (row < kGradualRows)
            values[static_cast<size_t>(row)] = fieldSingleOr0(txtAngle[static_cast<size_t>(row)].text);
        values[static_cast<size_t>(5 + row)] = fieldSingleOr0(txtBeta[static_cast<size_t>(row)].text);
    }
    store().hasData[slot] = true;
    closeRequested = true;
}

void ReducerModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    const char* question = kind_ == ReducerKind::Contraction ? "Piping Contractions" : "Piping Enlargements";
    if (loaded_ && ui_.ask(question, "Reset all data?", MessageIcon::Warning, MessageButtons::OkCancel,
                           MessageAnswer::Ok) == MessageAnswer::Cancel)
        return;
    for (auto* texts : {&txtBeta, &txtKValue})
        for (TextControl& field : *texts)
            field.text.clear();
    for (TextControl& field : txtAngle)
        field.text.clear();
    txtTotalK.text = "0";
    const size_t slot = static_cast<size_t>(CurrentLine());
    store().values[slot].fill(0.0);
    store().hasData[slot] = false;
}

void ReducerModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    cancelled = true;
    closeRequested = true;
}

Single ReducerModel::GetK(const std::function<void()>& showModal)
{
    cancelled = false;
    showModal();
    if (cancelled)
        return 1.0;
    return fieldSingleOr0(txtTotalK.text);
}

void ReducerModel::commit(const Control& field, const std::string& text)
{
    if (TextControl* angle = field.family == "txtAngle" ? elementOf(txtAngle, field) : nullptr) {
        angle->text = text;
        txtAngle_LostFocus(field.index);
    } else if (TextControl* beta = field.family == "txtBeta" ? elementOf(txtBeta, field) : nullptr) {
        beta->text = text;
        txtBeta_LostFocus(field.index);
    }
}

void ReducerModel::click(const Control& control)
{
    if (control == reducer::cmdApply)
        cmdApply_Click();
    else if (control == reducer::cmdReset)
        cmdReset_Click();
    else if (control == reducer::cmdClose)
        cmdClose_Click();
    else if (control == reducer::cmdHelp)
        ui_.showHelp(helpTopic());
}

} // namespace kestrova
