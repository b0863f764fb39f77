#include "tools/properties/compress_factor_model.h"

#include "frame/global_units.h"
#include "frame/settings_store.h"
#include "frame/user_interface.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/phys_props.h"

#include <cmath>

namespace kestrova {

using checked::Div;
using checked::Exp;
using checked::Pow;
using checked::Sqr;

namespace {

const FieldKind kTemperature{"Temperature", TemperatureToUnit, TemperatureFromUnit,
                             {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00"}};
const FieldKind kPressure{"Pressure", PressureToUnit, PressureFromUnit,
                          {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00",
                           "##,##0.00"}};

struct Cubic {
    Single c2, c1, c0;
};

// Newton's method on Z^3 + c2 Z^2 + c1 Z + c0 from a start, at most 51 passes.
Single newtonRoot(const Cubic& c, Single z)
{
    for (int pass = 0; pass < 51; ++pass) {
        const Single f = Pow(z, 3) + c.c2 * Pow(z, 2) + c.c1 * z + c.c0;
        const Single step = Div(f, 3 * Pow(z, 2) + 2 * c.c2 * z + c.c1);
        const Single relative = std::fabs(Div(step, z));
        if (relative <= single(0.0001))
            break;
        z = z - step;
    }
    return z;
}

Cubic equationOfState(Single Tr, Single Pr, double omega, int eos, bool hydrogen)
{
    if (eos == 0) {
        const Single A = Div(0.42748 * Pr, Pow(Tr, 2.5));
        const Single B = Div(0.08664 * Pr, Tr);
        return {-1.0, A - B - Pow(B, 2), -A * B};
    }
    if (eos == 1) {
        Single alpha;
        if (hydrogen) {
            alpha = 1.202 * Exp(-0.30288 * Tr);
        } else {
            const Single m = 0.48 + 1.57 * omega - 0.176 * Pow(omega, 2);
            alpha = Pow(1 + m * (1 - Sqr(Tr)), 2);
        }
        const Single A = Div(alpha * 0.42748 * Pr, Pow(Tr, 2));
        const Single B = Div(0.08664 * Pr, Tr);
        return {-1.0, A - B - Pow(B, 2), -A * B};
    }
    const Single m = 0.37464 + 1.54226 * omega - 0.26992 * Pow(omega, 2);
    const Single alpha = Pow(1 + m * (1 - Sqr(Tr)), 2);
    const Single A = Div(alpha * 0.45724 * Pr, Pow(Tr, 2));
    const Single B = Div(0.0778 * Pr, Tr);
    return {B - 1, A - 3 * Pow(B, 2) - 2 * B, Pow(B, 3) + Pow(B, 2) - A * B};
}

} // namespace

Single computeCompressibility(Single temperature, Single pressure, Single criticalTemperature,
                              Single criticalPressure, double acentricFactor, int eos, bool hydrogen)
{
    FaultScope scope("ComputeZ");
    const Single Tr = Div(temperature + 459.67, criticalTemperature + 459.67);
    const Single Pr = Div(pressure, criticalPressure);
    const Cubic c = equationOfState(Tr, Pr, acentricFactor, eos, hydrogen);
    const Single gasRoot = newtonRoot(c, 1.0);
    // The liquid root and the third root are found as well; only a failure there matters.
    const Single liquidRoot = newtonRoot(c, single(0.001));
    const Single third = -c.c2 - gasRoot - liquidRoot;
    (void)third;
    return gasRoot;
}

const FieldKind& CompressFactorModel::kindOf(int index)
{
    return index % 2 == 0 ? kTemperature : kPressure;
}

CompressFactorModel::CompressFactorModel(UserInterface& ui, SettingsStore* store, QObject* parent)
    : FormModel(parent), ui_(ui), store_(store)
{
}

void CompressFactorModel::Form_Load()
{
    ChangeNotice notice(*this);
    optEOS_Click(store_ ? store_->getIndex("Settings", "EOSOption", 0, 3) : 0);
}

void CompressFactorModel::Form_Activate()
{
    ChangeNotice notice(*this);
    ui_.setStatusText("Enter system parameters");
    ComputeZ();
}

void CompressFactorModel::showField(int index)
{
    const Single values[] = {temperature, pressure, criticalTemperature, criticalPressure};
    txtData[static_cast<size_t>(index)] = unitFieldText(kindOf(index), values[index], cboUnits[static_cast<size_t>(index)]);
}

void CompressFactorModel::setUnit(int index, UnitIndex unit)
{
    if (index < 0 || index > 3)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(index)] = unit;
    showField(index);
}

void CompressFactorModel::commitText(int index)
{
    Single* targets[] = {&temperature, &pressure, &criticalTemperature, &criticalPressure};
    if (index >= 0 && index < 4) {
        *targets[index] =
            unitFieldValue(kindOf(index), txtData[static_cast<size_t>(index)], cboUnits[static_cast<size_t>(index)]);
        showField(index);
    }
}

void CompressFactorModel::txtData_LostFocus(int index)
{
    if (index < 0 || index > 4)
        return;
    ChangeNotice notice(*this);
    commitText(index);
    ComputeZ();
}

void CompressFactorModel::optEOS_Click(int index)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    eos = index;
    if (store_)
        store_->save("Settings", "EOSOption", std::to_string(index));
    acentricEnabled = index != 0;
    ComputeZ();
}

void CompressFactorModel::chkHydrogen_Click(bool checked)
{
    ChangeNotice notice(*this);
    hydrogen = checked;
    ComputeZ();
}

void CompressFactorModel::ComputeZ()
{
    try {
        double omega = 0;
        if (acentricEnabled) {
            omega = requiredFieldSingle(txtData[4]);
        }
        const Single z = computeCompressibility(temperature, pressure, criticalTemperature, criticalPressure, omega,
                                                eos, hydrogen);
        txtData[5] = formatMask(z, "#0.0000");
    } catch (const NumericFault&) {
        txtData[5].clear();
    }
}

void CompressFactorModel::cmdApply_Click()
{
    ChangeNotice notice(*this);
    if (txtData[5].empty()) {
        ui_.ask(kTitle, "A compressibility factor has not been computed.", MessageIcon::Warning, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    closeRequested = true;
}

void CompressFactorModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    cancelled = true;
    closeRequested = true;
}

void CompressFactorModel::cmdPhysProps_Click(bool dataBaseValid)
{
    ChangeNotice notice(*this);
    if (!dataBaseValid) {
        ui_.ask(kTitle, "The physical properties data base cannot be found. Use File, Locate Data Base to choose it.",
                MessageIcon::Warning, MessageButtons::Ok, MessageAnswer::Ok);
        return;
    }
    propertiesCancelled() = false;
    ui_.GetPhysicalProperties(FluidKind::Gas, temperature);
    if (propertiesCancelled())
        return;
    const PhysProps& props = physProps();
    criticalPressure = props.criticalPressure;
    criticalTemperature = props.criticalTemperature;
    txtData[4] = plainNumberText(props.acentricFactor);
    showField(2);
    showField(3);
    if (!props.gasName.empty())
        inputsCaption = "Inputs:  " + props.gasName;
    ComputeZ();
}

void CompressFactorModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (ui_.ask("Compressibility Factors", "Reset all input fields?", MessageIcon::Question, MessageButtons::OkCancel,
                MessageAnswer::Ok) == MessageAnswer::Cancel)
        return;
    cboUnits = {globalUnits()[Quantity::Temperature], globalUnits()[Quantity::Pressure],
                globalUnits()[Quantity::Temperature], globalUnits()[Quantity::Pressure]};
    temperature = pressure = criticalTemperature = criticalPressure = 0.0;
    for (int i = 0; i < 4; ++i)
        txtData[static_cast<size_t>(i)] = "0.00";
    txtData[4].clear();
    txtData[5].clear();
    inputsCaption = "Inputs";
}

Single CompressFactorModel::GetZValue(Single t, Single p, const std::function<void()>& showModal)
{
    {
        ChangeNotice notice(*this);
        cancelled = false;
        pressure = p;
        temperature = t;
        const PhysProps& props = physProps();
        criticalPressure = props.criticalPressure;
        criticalTemperature = props.criticalTemperature;
        txtData[4] = plainNumberText(props.acentricFactor);
        for (int i = 0; i < 4; ++i)
            showField(i);
        if (!props.gasName.empty())
            inputsCaption = "Inputs:  " + props.gasName;
        ComputeZ();
    }
    showModal();
    if (cancelled)
        return 0.0;
    return fieldSingleOr0(txtData[5]);
}

} // namespace kestrova
