#include "tools/properties/model/compress_factor_model.h"

#include "units/field_kinds.h"
#include "forms/model/user_interface.h"
#include "forms/store/global_units.h"
#include "forms/store/settings_store.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/calc/equations_of_state.h"
#include "tools/properties/model/phys_props.h"

namespace kestrova {

using namespace compress_factor;

namespace {

// Temperatures and pressures in the masks the document tools give them.
const FieldKind& kTemperature = field_kinds::temperature;
const FieldKind& kPressure = field_kinds::pressure;

using D = CompressFactorData;
const std::array<DialogField<D>, kFields> kFieldTable{{
    {{&kTemperature, Quantity::Temperature, &D::temperature}, kDialogInput},
    {{&kPressure, Quantity::Pressure, &D::pressure}, kDialogInput},
    {{&kTemperature, Quantity::Temperature, &D::criticalTemperature}, kDialogInput},
    {{&kPressure, Quantity::Pressure, &D::criticalPressure}, kDialogInput},
    {{nullptr, Quantity::Length, &D::acentricFactor}, kDialogInput},
    {{}, kDialogResult},
}};

} // namespace

CompressFactorModel::CompressFactorModel(UserInterface& ui, SettingsStore* store, bool dataBaseValid, QObject* parent)
    : UnitFieldDialogModel(ui, kFieldTable, Z, kTitle, "A compressibility factor has not been computed.", parent),
      store_(store), dataBaseValid_(dataBaseValid)
{
    chkHydrogen_.toolTip = "Used only for S-R-K";
    controls().family("optEOS", optEOS_);
    controls().add(compress_factor::chkHydrogen, chkHydrogen_);
    controls().add(unit_field_dialog::cmdApply, cmdApply_);
    controls().add(compress_factor::cmdPhysProps, cmdPhysProps_);
    controls().add(inputsFrame, inputs_);
    showChoices();
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

// The options show the equation and the hydrogen form; the acentric factor
// is read only by the equations that take it.
void CompressFactorModel::showChoices()
{
    for (int i = 0; i < 3; ++i)
        optEOS_[static_cast<size_t>(i)].checked = i == eos_;
    chkHydrogen_.checked = hydrogen_;
    txtData[AcentricFactor].enabled = eos_ != 0;
}

void CompressFactorModel::optEOS_Click(int index)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    eos_ = index;
    if (store_)
        store_->save("Settings", "EOSOption", std::to_string(index));
    showChoices();
    ComputeZ();
}

void CompressFactorModel::chkHydrogen_Click(bool checked)
{
    ChangeNotice notice(*this);
    hydrogen_ = checked;
    showChoices();
    ComputeZ();
}

void CompressFactorModel::clickOther(const Control& control)
{
    if (control.family == "optEOS")
        optEOS_Click(control.index);
    else if (control == compress_factor::cmdPhysProps)
        cmdPhysProps_Click();
}

void CompressFactorModel::choose(const Control& list, int entry)
{
    if (list == compress_factor::chkHydrogen)
        chkHydrogen_Click(entry != 0);
    else
        UnitFieldDialogModel::choose(list, entry);
}

// An empty or unreadable acentric factor where the equation takes one, or
// conditions without a Z, leave the result empty.
void CompressFactorModel::ComputeZ()
{
    const CompressFactorData& r = record_;
    try {
        const double omega = txtData[AcentricFactor].enabled ? double(requiredFieldSingle(txtData[AcentricFactor].text)) : 0.0;
        const Single z = computeCompressibility(r.temperature, r.pressure, r.criticalTemperature, r.criticalPressure,
                                                omega, eos_, hydrogen_);
        txtData[Z].text = formatMask(z, "#0.0000");
    } catch (const NumericFault&) {
        txtData[Z].text.clear();
    }
}

// The critical conditions and the acentric factor of the gas the physical
// properties tool last gave, and its name on the frame.
void CompressFactorModel::takeGasProperties()
{
    const PhysProps& props = physProps();
    record_.criticalPressure = props.criticalPressure;
    record_.criticalTemperature = props.criticalTemperature;
    commitText(AcentricFactor, plainNumberText(props.acentricFactor));
    showField(CriticalTemperature);
    showField(CriticalPressure);
    if (!props.gasName.empty())
        inputs_.caption = "Inputs:  " + props.gasName;
}

void CompressFactorModel::cmdPhysProps_Click()
{
    ChangeNotice notice(*this);
    if (!fetchGasProperties(ui_, kTitle, dataBaseValid_, record_.temperature))
        return;
    takeGasProperties();
    ComputeZ();
}

void CompressFactorModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (!askReset("Compressibility Factors"))
        return;
    takeGlobalUnits();
    record_ = CompressFactorData{};
    for (int i : {Temperature, Pressure, CriticalTemperature, CriticalPressure})
        txtData[static_cast<size_t>(i)].text = "0.00";
    txtData[AcentricFactor].text.clear();
    txtData[Z].text.clear();
    inputs_.caption = "Inputs";
}

Single CompressFactorModel::GetZValue(Single temperature, Single pressure, const std::function<void()>& showModal)
{
    return runForResult(
        [&] {
            record_.pressure = pressure;
            record_.temperature = temperature;
            takeGasProperties();
            showFields();
            ComputeZ();
        },
        showModal);
}

} // namespace kestrova
