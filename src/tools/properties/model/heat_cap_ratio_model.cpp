#include "tools/properties/model/heat_cap_ratio_model.h"

#include "units/field_kinds.h"
#include "forms/model/user_interface.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/model/phys_props.h"

namespace kestrova {

using namespace heat_cap_ratio;
using checked::Div;
using checked::Pow;

namespace {

// Temperatures and pressures in the masks the document tools give them.
const FieldKind& kTemperature = field_kinds::temperature;
const FieldKind& kPressure = field_kinds::pressure;
const FieldKind kHeatCapacity{"Heat Capacity", HeatCapacityToUnit, HeatCapacityFromUnit,
                              {"##,##0.00", "##,##0.00", "##,##0.00"}};

using D = HeatCapRatioData;
const std::array<DialogField<D>, kFields> kFieldTable{{
    {{&kTemperature, Quantity::Temperature, &D::temperature}, kDialogInput},
    {{&kPressure, Quantity::Pressure, &D::pressure}, kDialogInput},
    {{&kTemperature, Quantity::Temperature, &D::criticalTemperature}, kDialogInput},
    {{&kPressure, Quantity::Pressure, &D::criticalPressure}, kDialogInput},
    {{&kHeatCapacity, Quantity::HeatCapacity, &D::heatCapacity}, kDialogInput},
    {{}, kDialogResult},
}};

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

HeatCapRatioModel::HeatCapRatioModel(UserInterface& ui, bool dataBaseValid, QObject* parent)
    : UnitFieldDialogModel(ui, kFieldTable, Ratio, kTitle, "A Heat Capacity Ratio has not been computed.", parent),
      dataBaseValid_(dataBaseValid)
{
    txtData[Ratio].toolTip = "Specific Heat Ratio";
    for (int i = 0; i < kOptions; ++i)
        options_[static_cast<size_t>(i)].toolTip = typicalRatios()[static_cast<size_t>(i)].formula;
    controls().family("Option1", options_);
    controls().add(unit_field_dialog::cmdApply, cmdApply_);
    controls().add(heat_cap_ratio::cmdPhysProps, cmdPhysProps_);
    controls().add(lblError, lblError_);
    controls().add(realGasFrame, realGas_);
}

void HeatCapRatioModel::Form_Activate()
{
    ChangeNotice notice(*this);
    ui_.setStatusText("Enter system parameters");
    showFields();
}

// A ratio not above 1 shows "(Check Input)" and turns the result red.
void HeatCapRatioModel::ComputeRatio()
{
    HeatCapRatioData& r = record_;
    try {
        FaultScope scope("ComputeRatio");
        const Single T = r.temperature + 459.67;
        const Single Pr = Div(r.pressure, r.criticalPressure);
        const Single Tr = Div(T, r.criticalTemperature + 459.67);
        const Single G = Div(Pr, Pow(Tr, 2)) * Pow(Div(0.712, Tr) + 0.132, 2) + 1;
        r.ratio = Div(r.heatCapacity, r.heatCapacity - 8.314 * G);
        const bool checkInput = !(r.ratio > 1.0);
        lblError_.visible = checkInput;
        txtData[Ratio].red = checkInput;
        txtData[Ratio].text = formatMask(r.ratio, "#0.000");
    } catch (const NumericFault&) {
        // The fields stay as they are.
    }
}

void HeatCapRatioModel::Option1_Click(int index)
{
    if (index < 0 || index >= kOptions)
        return;
    ChangeNotice notice(*this);
    for (int i = 0; i < kOptions; ++i)
        options_[static_cast<size_t>(i)].checked = i == index;
    if (index < kOptions - 1) {
        txtData[Ratio].text = typicalRatios()[static_cast<size_t>(index)].value;
    } else {
        txtData[Ratio].text.clear();
        txtData_LostFocus(Ratio);
    }
}

void HeatCapRatioModel::Option1_DblClick(int index)
{
    if (index < 0 || index >= kOptions || !cmdApply_.enabled)
        return;
    cmdApply_Click();
}

void HeatCapRatioModel::clickOther(const Control& control)
{
    if (control.family == "Option1")
        Option1_Click(control.index);
    else if (control == heat_cap_ratio::cmdPhysProps)
        cmdPhysProps_Click();
}

void HeatCapRatioModel::doubleClick(const Control& control)
{
    if (control.family == "Option1")
        Option1_DblClick(control.index);
}

// The critical conditions and heat capacity of the gas the physical
// properties tool last gave, and its name on the frame.
void HeatCapRatioModel::takeGasProperties()
{
    const PhysProps& props = physProps();
    record_.criticalPressure = props.criticalPressure;
    record_.criticalTemperature = props.criticalTemperature;
    record_.heatCapacity = props.heatCapacity;
    if (!props.gasName.empty())
        realGas_.caption = "Real Gas Calculation:  " + props.gasName;
}

void HeatCapRatioModel::cmdPhysProps_Click()
{
    ChangeNotice notice(*this);
    if (!fetchGasProperties(ui_, kTitle, dataBaseValid_, record_.temperature))
        return;
    takeGasProperties();
    for (int i : {CriticalTemperature, CriticalPressure, HeatCapacity})
        showField(i);
    ComputeRatio();
}

void HeatCapRatioModel::cmdReset_Click()
{
    ChangeNotice notice(*this);
    if (!askReset("Heat Capacity Ratio's"))
        return;
    takeGlobalUnits();
    const Single ratio = record_.ratio;
    record_ = HeatCapRatioData{};
    record_.ratio = ratio;
    for (int i = Temperature; i <= HeatCapacity; ++i)
        txtData[static_cast<size_t>(i)].text = "0.00";
    txtData[Ratio].text.clear();
    realGas_.caption = "Real Gas Calculation";
}

Single HeatCapRatioModel::GetHeatCapRatioValue(Single temperature, Single pressure,
                                               const std::function<void()>& showModal)
{
    return runForResult(
        [&] {
            record_.temperature = temperature;
            record_.pressure = pressure;
            takeGasProperties();
            showFields();
            ComputeRatio();
        },
        showModal);
}

} // namespace kestrova
