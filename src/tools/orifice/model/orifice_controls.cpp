// The orifice plates window's controls as the tool holds them: the binding
// of each field, the role of each control, the look of the options and of
// the solved quantity, and the narrow way the window reaches the tool's
// event routines by control.

#include "tools/orifice/model/orifice_model.h"

#include "forms/model/user_interface.h"
#include "units/field_kinds.h"

namespace kestrova {

using namespace orifice;

namespace {

// The tool's own masks for a pressure drop and a gas density.
const FieldKind kPressureDrop{"Pressure Drop", PressureToUnit, PressureFromUnit,
                              {"##,##0.00", "##,##0.0000", "##,##0.00", "##,##0.0", "##,##0.0", "##,##0.000", "##,##0.0",
                               "##,##0.0000"}};
const FieldKind kGasDensity{"Density", DensityToUnit, DensityFromUnit,
                            {"##,##0.0000", "##,##0.0000", "##,##0.0000", "##,##0.000"}};
const FieldKind kExpansion{"Expansion Coef", ExpansionToUnit, ExpansionFromUnit, sameMask("0.00E+00")};
// The permanent loss has one mask in every unit of its list.
const FieldKind kPermanentLoss{"Pressure Drop", PressureToUnit, PressureFromUnit, sameMask("##,##0.00")};

using O = OrificeData;
using Q = Quantity;
namespace k = field_kinds;

// Both tabs have the same rows, but the gas tab has the inlet pressure
// before its density. The expansion coefficients list under the temperature
// global, which maps onto their list by its scale.
std::array<FieldBinding<O>, kFields> makeFieldTable()
{
    std::array<FieldBinding<O>, kFields> table{};
    for (int t = 0; t < 2; ++t) {
        const bool gas = t == GasTab;
        auto row = table.begin() + kFirstField[static_cast<size_t>(t)];
        *row++ = {&k::flow, Q::Flow, gas ? &O::gasFlow : &O::liquidFlow};
        *row++ = {&kPressureDrop, Q::PressureDrop, &O::differentialPressure};
        *row++ = {&k::diameter, Q::Diameter, &O::orificeDiameter};
        *row++ = {&k::temperature, Q::Temperature, &O::temperature};
        if (gas)
            *row++ = {&k::pressure, Q::Pressure, &O::inletPressure};
        *row++ = {gas ? &kGasDensity : &k::density, Q::Density, gas ? &O::gasDensity : &O::liquidDensity};
        *row++ = {&k::viscosity, Q::Viscosity, gas ? &O::gasViscosity : &O::liquidViscosity};
        *row++ = {&k::temperature, Q::Temperature, &O::referenceTemperature};
        *row++ = {&k::diameter, Q::Diameter, &O::holeDiameter};
        *row++ = {&kExpansion, Q::Temperature, &O::elementExpansion};
        *row++ = {&k::diameter, Q::Diameter, &O::pipeID};
        *row++ = {&kExpansion, Q::Temperature, &O::pipeExpansion};
        *row++ = {&k::velocity, Q::Velocity, &O::velocityPipe};
        *row++ = {&k::velocity, Q::Velocity, &O::velocityOrifice};
        // The permanent loss takes the pressure global, though its list is the pressure drop's.
        *row++ = {&kPermanentLoss, Q::Pressure, &O::permanentLoss};
    }
    return table;
}
const std::array<FieldBinding<O>, kFields> kBindings = makeFieldTable();

bool isResultField(int field)
{
    return (field >= LiquidPipeVelocity && field <= LiquidPermanentLoss) || field >= GasPipeVelocity;
}

constexpr FieldRole kInput{true, KeyRule::SignedNumber, FieldShade::Normal};
constexpr FieldRole kText{true, KeyRule::Text, FieldShade::Normal};
constexpr FieldRole kMessage{false, KeyRule::Text, FieldShade::Result};

} // namespace

const FieldBinding<OrificeData>& orificeField(int index)
{
    return kBindings.at(static_cast<size_t>(index));
}

OrificeModel::OrificeModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui)
{
    for (int i = 0; i < kFields; ++i) {
        txtData[static_cast<size_t>(i)] = controlOf(isResultField(i) ? kResult : kInput);
        txtData[static_cast<size_t>(i)].widest = widestText(*orificeField(i).kind);
    }
    for (int i = 0; i < kDisplays; ++i) {
        txtDisplay[static_cast<size_t>(i)] = controlOf(i == HeatCapacityRatio ? kInput : kResult);
        const bool reynolds = i == LiquidPipeReynolds || i == LiquidOrificeReynolds || i == GasPipeReynolds ||
                              i == GasOrificeReynolds;
        txtDisplay[static_cast<size_t>(i)].widest = maskSample(reynolds ? "#,###,###,###" : "##0.0000");
    }
    txtErrorLiquid = txtErrorGas = controlOf(kMessage);
    for (auto* texts : {&txtProject, &txtTag})
        for (TextControl& text : *texts)
            text = controlOf(kText);
    Frame1 = {{{"Properties"}, {"Pipe Data"}, {"Pressure Taps"}, {"Compute"}, {"Element Data"}, {"Output"},
               {"Pressure Taps"}, {"Compute"}, {"Element Data"}, {"Pipe Data"}, {"Properties"}, {"Output"}}};
    showChoices();
    ControlRegistry& all = controls();
    all.family("txtData", txtData);
    all.family("cboUnits", cboUnits);
    all.family("txtDisplay", txtDisplay);
    all.add(orifice::txtErrorLiquid, txtErrorLiquid);
    all.add(orifice::txtErrorGas, txtErrorGas);
    all.family("optCompute", optCompute);
    all.family("optMeterTap", optMeterTap);
    all.family("cboElementMaterial", cboElementMaterial);
    all.family("cboPipeMaterial", cboPipeMaterial);
    all.family("txtProject", txtProject);
    all.family("txtTag", txtTag);
    all.family("Frame1", Frame1);
    all.add(orifice::SSTab1, SSTab1);
}

bool OrificeModel::fieldLocked(int field) const
{
    const int t = field >= GasFlow ? GasTab : LiquidTab;
    return field - kFirstField[static_cast<size_t>(t)] == compute[static_cast<size_t>(t)];
}

// The options, the materials and the tab show the choices; the solved
// quantity of each tab is locked and tinted, its unit list tinted but usable.
// Only the tab in front has its fields, lists and options in the tab order.
void OrificeModel::showChoices()
{
    SSTab1.listIndex = tab;
    for (int t = 0; t < 2; ++t) {
        const auto i = static_cast<size_t>(t);
        const bool shown = t == tab;
        for (int position = 0; position < 3; ++position) {
            const auto option = static_cast<size_t>(3 * t + position);
            optCompute[option].checked = position == compute[i];
            optMeterTap[option].checked = position == meterTap[i];
            optCompute[option].tabStop = optMeterTap[option].tabStop = shown;
            const int field = kFirstField[i] + position;
            const bool locked = fieldLocked(field);
            TextControl& text = txtData[static_cast<size_t>(field)];
            text.locked = locked;
            text.shade = locked ? FieldShade::Tinted : FieldShade::Normal;
            cboUnits[static_cast<size_t>(field)].shade = text.shade;
        }
        for (int field = kFirstField[i]; field < (t == LiquidTab ? GasFlow : kFields); ++field) {
            TextControl& text = txtData[static_cast<size_t>(field)];
            text.tabStop = shown && !text.locked;
            cboUnits[static_cast<size_t>(field)].tabStop = shown;
        }
        cboElementMaterial[i].listIndex = elementMaterial[i];
        cboPipeMaterial[i].listIndex = pipeMaterial[i];
        cboElementMaterial[i].tabStop = cboPipeMaterial[i].tabStop = shown;
        txtProject[i].tabStop = txtTag[i].tabStop = shown;
    }
    txtDisplay[HeatCapacityRatio].tabStop = tab == GasTab;
}

// --- the window's way in -----------------------------------------------------------------

void OrificeModel::commit(const Control& field, const std::string& text)
{
    if (field.family == "txtData") {
        if (TextControl* data = elementOf(txtData, field)) {
            data->text = text;
            txtData_LostFocus(field.index);
        }
    } else if (field == orifice::txtDisplay(HeatCapacityRatio)) {
        txtDisplay[HeatCapacityRatio].text = text;
        txtDisplay_LostFocus(HeatCapacityRatio);
    } else if (TextControl* plain = controls().find(field, controls().texts); plain && !plain->locked) {
        ChangeNotice notice(*this);
        plain->text = text; // the project and the tag
    }
}

void OrificeModel::click(const Control& control)
{
    if (control.family == "optCompute")
        optCompute_Click(control.index);
    else if (control.family == "optMeterTap")
        optMeterTap_Click(control.index);
    else if (control.family == "cmdTable")
        cmdTable_Click(control.index);
    else if (control.family == "cmdProperties")
        cmdProperties_Click(control.index);
    else if (control.family == "cmdReset")
        cmdReset_Click();
    else if (control.family == "cmdHelp")
        ui_.showHelp(control.index == 1 ? help::OrificeGas : help::OrificeLiquid);
}

void OrificeModel::choose(const Control& list, int entry)
{
    if (list.family == "cboUnits")
        setUnit(list.index, static_cast<UnitIndex>(entry));
    else if (list.family == "cboElementMaterial")
        cboElementMaterial_Click(list.index, entry);
    else if (list.family == "cboPipeMaterial")
        cboPipeMaterial_Click(list.index, entry);
    else if (list == orifice::SSTab1)
        SSTab1_Click(entry);
}

void OrificeModel::keyTyped(const Control&)
{
    ChangeNotice notice(*this);
    Form_KeyPress();
}

} // namespace kestrova
