#include "tools/properties/model/heat_cap_ratio_model.h"

#include "forms/store/global_units.h"
#include "forms/model/user_interface.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/model/phys_props.h"

namespace kestrova {

using checked::Div;
using checked::Pow;

namespace {

const FieldKind kTemperature{"Temperature", TemperatureToUnit, TemperatureFromUnit,
                             {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00"}};
const FieldKind kPressure{"Pressure", PressureToUnit, PressureFromUnit,
                          {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00",
                           "##,##0.00"}};
const FieldKind kHeatCapacity{"Heat Capacity", HeatCapacityToUnit, HeatCapacityFromUnit,
                              {"##,##0.00", "##,##0.00", "##,##0.00"}};

} // namespace

const std::array<TypicalRatio, 18>& typicalRatios()
{
    static const std::array<TypicalRatio, 18> ratios{{
        {"Monatomic Gases...1.67", "1.67", "He, Ne, Kr, Hg, etc."},
        {"Diatomic Gases...1.41", "1.41", "O2, N2, Air, H2, CO, NO, etc."},
        {"Acetylene...1.28", "1.28", "C2H2"},
        {"Ammonia...1.31", "1.31", "NH3"},
        {"Butanes...1.1", "1.1", "C4H10"},
        {"Butylenes...1.1", "1.1", "C4H8"},
        {"Carbon Dioxide...1.28", "1.28", "CO2"},
        {"Chlorine...1.33", "1.33", "Cl2"},
        {"Ethane...1.24", "1.24", "C2H6"},
        {"Ethylene...1.25", "1.25", "C2H4"},
        {"Hydrogen Sulphide...1.33", "1.33", "H2S"},
        {"Methane...1.31", "1.31", "CH4"},
        {"Methyl Chloride...1.20", "1.20", "CH3Cl"},
        {"Propane...1.15", "1.15", "C3H8"},
        {"Propylene...1.16", "1.16", "C3H6"},
        {"Steam...1.32", "1.32", "H2O"},
        {"Sulphur Dioxide...1.27", "1.27", "SO2"},
        {"Use Real Gas (above)", "", "Use the Real Gas Calculation"},
    }};
    return ratios;
}

const FieldKind& HeatCapRatioModel::kindOf(int index)
{
    return index == 4 ? kHeatCapacity : index % 2 == 0 ? kTemperature : kPressure;
}

HeatCapRatioModel::HeatCapRatioModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui) {}

void HeatCapRatioModel::Form_Activate()
{
    ChangeNotice notice(*this);
    ui_.setStatusText("Enter system parameters");
    for (int i = 0; i < 5; ++i)
        showField(i);
}

void HeatCapRatioModel::showField(int index)
{
    const Single values[] = {temperature, pressure, criticalTemperature, criticalPressure, heatCapacity};
    txtData[static_cast<size_t>(index)] = unitFieldText(kindOf(index), values[index], cboUnits[static_cast<size_t>(index)]);
}

void HeatCapRatioModel::setUnit(int index, UnitIndex unit)
{
    if (index < 0 || index > 4)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(index)] = unit;
    showField(index);
}

void HeatCapRatioModel::commitText(int index)
{
    Single* targets[] = {&temperature, &pressure, &criticalTemperature, &criticalPressure, &heatCapacity};
    if (index >= 0 && index < 5) {
        *targets[index] =
            unitFieldValue(kindOf(index), txtData[static_cast<size_t>(index)], cboUnits[static_cast<size_t>(index)]);
        showField(index);
    }
}

void HeatCapRatioModel::txtData_LostFocus(int index)
{
    if (index < 0 || index > 5)
        return;
    ChangeNotice notice(*this);
    commitText(index);
    ComputeRatio();
}

void HeatCapRatioModel::ComputeRatio()
{
    try {
        FaultScope scope("ComputeRatio");
        const Single T = temperature + 459.67;
        const Single Pr = Div(pressure, criticalPressure);
        const Single Tr = Div(T, criticalTemperature + 459.67);
        const Single G = Div(Pr, Pow(Tr, 2)) * Pow(Div(0.712, Tr) + 0.132, 2) + 1;
        ratio = Div(heatCapacity, heatCapacity - 8.314 * G);
        errorShown = !(ratio > 1.0);
        txtData[5] = formatMask(ratio, "#0.000");
    } catch (const NumericFault&) {
        // The fields stay as they are.
    }
}

void HeatCapRatioModel::Option1_Click(int index)
{
    if (index < 0 || index > 17)
        return;
    ChangeNotice notice(*this);
    option = index;
    if (index < 17) {
        txtData[5] = typicalRatios()[static_cast<size_t>(index)].value;
    } else {
        txtData[5].clear();
        txtData_LostFocus(5);
    }
}

void HeatCapRatioModel::cmdApply_Click()
{
    ChangeNotice notice(*this);
    if (txtData[5].empty()) {
        ui_.ask(kTitle, "A Heat Capacity Ratio has not been computed.", MessageIcon::Warning, MessageButtons::Ok,
                MessageAnswer::Ok);
        return;
    }
    closeRequested = true;
}

void HeatCapRatioModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    cancelled = true;
    closeRequested = true;
}

void HeatCapRatioModel::cmdPhysProps_Click(bool dataBaseValid)
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
    heatCapacity = props.heatCapacity;
    for (int i : {2, 3, 4})
        showField(i);
    if (!props.gasName.empty())
        frameCaption = "Real Gas Calculation:  " + props.gasName;
    ComputeRatio();
}

void HeatCapRatioModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (ui_.ask("Heat Capacity Ratio's", "Reset all input fields?", MessageIcon::Question, MessageButtons::OkCancel,
                MessageAnswer::Ok) == MessageAnswer::Cancel)
        return;
    cboUnits = {globalUnits()[Quantity::Temperature], globalUnits()[Quantity::Pressure],
                globalUnits()[Quantity::Temperature], globalUnits()[Quantity::Pressure],
                globalUnits()[Quantity::HeatCapacity]};
    temperature = pressure = criticalTemperature = criticalPressure = heatCapacity = 0.0;
    for (int i = 0; i < 5; ++i)
        txtData[static_cast<size_t>(i)] = "0.00";
    txtData[5].clear();
    frameCaption = "Real Gas Calculation";
}

Single HeatCapRatioModel::GetHeatCapRatioValue(Single t, Single p, const std::function<void()>& showModal)
{
    {
        ChangeNotice notice(*this);
        cancelled = false;
        temperature = t;
        pressure = p;
        const PhysProps& props = physProps();
        criticalPressure = props.criticalPressure;
        criticalTemperature = props.criticalTemperature;
        heatCapacity = props.heatCapacity;
        for (int i = 0; i < 5; ++i)
            showField(i);
        if (!props.gasName.empty())
            frameCaption = "Real Gas Calculation:  " + props.gasName;
        ComputeRatio();
    }
    showModal();
    if (cancelled)
        return 0.0;
    return fieldSingleOr0(txtData[5]);
}

} // namespace kestrova
