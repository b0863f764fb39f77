#include "tools/flow/model/gas_density_model.h"

#include "forms/store/global_units.h"
#include "forms/model/user_interface.h"
#include "numeric/field_text.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

namespace {

const FieldKind kTemperature{"Temperature", TemperatureToUnit, TemperatureFromUnit,
                             {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00"}};
const FieldKind kPressure{"Pressure", PressureToUnit, PressureFromUnit,
                          {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00",
                           "##,##0.00"}};
const FieldKind kDensity{"Density", DensityToUnit, DensityFromUnit,
                         {"##,##0.0000", "##,##0.0000", "##,##0.0000", "##,##0.000"}};

} // namespace

const FieldKind& GasDensityModel::kindOf(int index)
{
    return index == 0 ? kTemperature : index == 1 ? kPressure : kDensity;
}

GasDensityModel::GasDensityModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui) {}

void GasDensityModel::Form_Load()
{
    ChangeNotice notice(*this);
    for (int i = 0; i < 3; ++i)
        showField(i);
    txtData[3] = txtData[4] = "0.00";
}

void GasDensityModel::Form_Activate()
{
    ChangeNotice notice(*this);
    // The unit set-up of this form: density 0, pressure 1, temperature 2.
    cboUnits[0] = globalUnits()[Quantity::Density];
    cboUnits[1] = globalUnits()[Quantity::Pressure];
    cboUnits[2] = globalUnits()[Quantity::Temperature];
    for (int i = 0; i < 3; ++i)
        showField(i);
    ui_.setStatusText("Enter system parameters");
}

void GasDensityModel::showField(int index)
{
    const Single values[] = {temperature, pressure, density};
    txtData[static_cast<size_t>(index)] = unitFieldText(kindOf(index), values[index], cboUnits[static_cast<size_t>(index)]);
}

void GasDensityModel::setUnit(int index, UnitIndex unit)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(index)] = unit;
    showField(index);
}

void GasDensityModel::commitText(int index)
{
    Single* targets[] = {&temperature, &pressure, &density, &molecularWeight, &compressibility};
    const std::string& text = txtData[static_cast<size_t>(index)];
    *targets[index] = index < 3 ? unitFieldValue(kindOf(index), text, cboUnits[static_cast<size_t>(index)])
                                : fieldSingleOr0(text);
    if (index < 3)
        showField(index);
}

void GasDensityModel::txtData_LostFocus(int index)
{
    if (index < 0 || index > 4)
        return;
    ChangeNotice notice(*this);
    commitText(index);
    ComputeDensity();
}

void GasDensityModel::ComputeDensity()
{
    // A failing equation leaves a density of 0, and the field is shown anyway.
    try {
        FaultScope scope("GasDensity");
        density = checked::Div(pressure * molecularWeight, (compressibility * 10.73) * (temperature + 459.69));
    } catch (const NumericFault&) {
        density = 0.0;
    }
    showField(2);
}

void GasDensityModel::cmdApply_Click()
{
    ChangeNotice notice(*this);
    if (txtData[2].empty()) {
        ui_.ask(kTitle, "A gas density has not been computed.", MessageIcon::Warning, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    applied = true;
    closeRequested = true;
}

void GasDensityModel::cmdTable_Click()
{
    ChangeNotice notice(*this);
    const Single z = ui_.GetZValue(temperature, pressure);
    if (z != 0) {
        txtData[4] = plainNumberText(z);
        txtData_LostFocus(4);
    }
}

void GasDensityModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (ui_.ask(kTitle, "Reset all input fields?", MessageIcon::Question, MessageButtons::OkCancel,
                MessageAnswer::Ok) == MessageAnswer::Cancel)
        return;
    Form_Activate();
    temperature = pressure = density = molecularWeight = compressibility = 0.0;
    for (std::string& text : txtData)
        text = "0.00";
}

void GasDensityModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    closeRequested = true;
}

Single GasDensityModel::GetGasDensity(Single t, Single p, const std::function<void()>& showModal)
{
    {
        ChangeNotice notice(*this);
        applyEnabled = true;
        applied = false;
        temperature = t;
        pressure = p;
        showField(0);
        showField(1);
    }
    showModal();
    return applied ? density : Single(0.0);
}

} // namespace kestrova
