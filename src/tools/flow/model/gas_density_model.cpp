#include "tools/flow/model/gas_density_model.h"

#include "units/field_kinds.h"
#include "forms/model/user_interface.h"
#include "forms/store/global_units.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

using namespace gas_density;

namespace {

// Temperatures and pressures in the masks the document tools give them.
const FieldKind& kTemperature = field_kinds::temperature;
const FieldKind& kPressure = field_kinds::pressure;
const FieldKind kDensity{"Density", DensityToUnit, DensityFromUnit,
                         {"##,##0.0000", "##,##0.0000", "##,##0.0000", "##,##0.000"}};

using D = GasDensityData;
// The unit set-up of this form crosses its lists: the temperature list takes
// the density global's index and the density list the temperature's; only
// the index passes.
const std::array<DialogField<D>, kFields> kFieldTable{{
    {{&kTemperature, Quantity::Density, &D::temperature}, kDialogInput},
    {{&kPressure, Quantity::Pressure, &D::pressure}, kDialogInput},
    {{&kDensity, Quantity::Temperature, &D::density}, kDialogResult},
    {{nullptr, Quantity::Length, &D::molecularWeight}, kDialogUnsigned},
    {{nullptr, Quantity::Length, &D::compressibility}, kDialogUnsigned},
}};

} // namespace

GasDensityModel::GasDensityModel(UserInterface& ui, QObject* parent)
    : UnitFieldDialogModel(ui, kFieldTable, Density, kTitle, "A gas density has not been computed.", parent)
{
    cmdApply_.enabled = false; // until a tool asks for a density
    controls().add(unit_field_dialog::cmdApply, cmdApply_);
}

void GasDensityModel::Form_Load()
{
    ChangeNotice notice(*this);
    showFields();
    txtData[MolecularWeight].text = txtData[Compressibility].text = "0.00";
}

void GasDensityModel::Form_Activate()
{
    ChangeNotice notice(*this);
    takeGlobalUnits();
    showFields();
    ui_.setStatusText("Enter system parameters");
}

void GasDensityModel::ComputeDensity()
{
    // A failing equation leaves a density of 0, and the field is shown anyway.
    GasDensityData& r = record_;
    try {
        FaultScope scope("GasDensity");
        r.density = checked::Div(r.pressure * r.molecularWeight, (r.compressibility * 10.73) * (r.temperature + 459.69));
    } catch (const NumericFault&) {
        r.density = 0.0;
    }
    showField(Density);
}

void GasDensityModel::clickOther(const Control& control)
{
    if (control == gas_density::cmdTable)
        cmdTable_Click();
}

void GasDensityModel::cmdTable_Click()
{
    ChangeNotice notice(*this);
    const Single z = ui_.GetZValue(record_.temperature, record_.pressure);
    if (z != 0) {
        txtData[Compressibility].text = plainNumberText(z);
        txtData_LostFocus(Compressibility);
    }
}

void GasDensityModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (!askReset(kTitle))
        return;
    Form_Activate();
    record_ = GasDensityData{};
    for (TextControl& field : txtData)
        field.text = "0.00";
}

Single GasDensityModel::GetGasDensity(Single temperature, Single pressure, const std::function<void()>& showModal)
{
    return runForResult(
        [&] {
            cmdApply_.enabled = true;
            record_.temperature = temperature;
            record_.pressure = pressure;
            showField(Temperature);
            showField(Pressure);
        },
        showModal);
}

} // namespace kestrova
