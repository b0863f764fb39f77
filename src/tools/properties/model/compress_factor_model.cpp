#include "tools/properties/model/compress_factor_model.h"

#include "forms/store/global_units.h"
#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/calc/equations_of_state.h"
#include "tools/properties/model/phys_props.h"


namespace kestrova {

namespace {

const FieldKind kTemperature{"Temperature", TemperatureToUnit, TemperatureFromUnit,
                             {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00"}};
const FieldKind kPressure{"Pressure", PressureToUnit, PressureFromUnit,
                          {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00",
                           "##,##0.00"}};

} // namespace

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
    propertiesCancelled() = !ui_.GetPhysicalProperties(FluidKind::Gas, temperature);
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
