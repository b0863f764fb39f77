#include "tools/properties/model/physical_properties_model.h"

#include "forms/store/global_units.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/model/phys_props.h"
#include "units/basLoadUnits.h"

#include <cctype>


namespace kestrova {

using namespace physical_properties;

namespace {

// The display masks of each row by unit index.
const char* maskOf(int row, UnitIndex unit)
{
    switch (row) {
    case 0: return (unit == 1 || unit == 3) ? "##,##0.0000" : "##,##0.000";
    case 1: case 2: return "0.000E+00";
    case 3:
        switch (unit) {
        case 1: case 7: return "##,##0.00000";
        case 3: case 4: case 6: return "#,###,##0";
        case 5: return "##,##0.000";
        default: return "##,##0.00";
        }
    case 4: return unit == 1 ? "##,##0.0000" : "##,##0.000";
    case 5: return unit == 0 ? "##,##0.0000" : "##,##0.000";
    case 7: return unit == 4 ? "##,##0.000" : unit == 7 ? "##,##0.00000" : "##,##0.00";
    default: return "##,##0.00";
    }
}

// A temperature limit in the display unit; empty when it cannot be shown.
std::string limitText(double kelvin, UnitIndex unit)
{
    try {
        return formatMask(kelvinToUnit(kelvin, unit), "##,##0");
    } catch (const NumericFault&) {
        return {};
    }
}

} // namespace

int& rememberedCompoundPosition()
{
    static int position = 0;
    return position;
}

double kelvinToUnit(double kelvin, UnitIndex unit)
{
    switch (unit) {
    case 0: return (kelvin - 273.15) * 1.8 + 32;
    case 1: return kelvin - 273.15;
    case 2: return (kelvin - 273.15) * 1.8 + 32 + 459.69;
    default: return kelvin;
    }
}

double kelvinFromUnit(double v, UnitIndex unit)
{
    switch (unit) {
    case 0: return (v - 32) / 1.8 + 273.15;
    case 1: return v + 273.15;
    case 2: return (v - 459.69 - 32) / 1.8 + 273.15;
    default: return v;
    }
}

const char* PhysicalPropertiesModel::rowCaption(int row)
{
    static const char* captions[kRows] = {"Liquid Density:", "Liquid Viscosity:", "Vapor Viscosity:",
                                          "Vapor Pressure:", "Heat Capacity (Cpv):", "Surface Tension:",
                                          "Critical Temperature:", "Critical Pressure:", "System Temperature:"};
    return captions[row];
}

const char* PhysicalPropertiesModel::rowUnitTag(int row)
{
    static const char* tags[kRows] = {"Density", "Viscosity", "Viscosity", "Vapor Pressure", "Heat Capacity",
                                      "Surface Tension", "Temperature", "Pressure", "Temperature"};
    return tags[row];
}

PhysicalPropertiesModel::PhysicalPropertiesModel(UserInterface& ui, std::vector<Compound> compounds, QObject* parent)
    : FormModel(parent), ui_(ui), compounds_(std::move(compounds))
{
    value[SystemTemperature] = 298.15;
    const TextControl result = controlOf(FieldRole{false, KeyRule::Number, FieldShade::Tinted});
    for (int row = 0; row < kRows; ++row)
        txtPhysProp[static_cast<size_t>(row)] =
            row >= CriticalTemperature ? controlOf(FieldRole{true, KeyRule::SignedNumber, FieldShade::PaleYellow})
                                       : controlOf(FieldRole{false, KeyRule::Number, FieldShade::PaleYellow});
    txtPhysProp[SystemTemperature].shade = FieldShade::Normal;
    txtLTL.fill(txtPhysProp[0]);
    txtUTL.fill(txtPhysProp[0]);
    txtMW = txtAF = result;
    txtSearch = controlOf(FieldRole{true, KeyRule::Text, FieldShade::Normal});
    cmdSelect.enabled = false; // until a tool asks for properties
    cmdSelect.toolTip = "Apply Results";
    ControlRegistry& all = controls();
    all.family("txtPhysProp", txtPhysProp);
    all.family("cboPPUnits", cboPPUnits);
    all.family("txtLTL", txtLTL);
    all.family("txtUTL", txtUTL);
    all.add(physical_properties::txtMW, txtMW);
    all.add(physical_properties::txtAF, txtAF);
    all.add(physical_properties::txtSearch, txtSearch);
    all.add(propertiesFrame, frame);
    all.add(physical_properties::cmdSelect, cmdSelect);
}

// A row's fields and its limits take the shade that says how far its value
// can be trusted; a row without a value has its unit list off.
void PhysicalPropertiesModel::shadeRow(int row, FieldShade shade)
{
    txtPhysProp[static_cast<size_t>(row)].shade = shade;
    if (row < 6) {
        txtLTL[static_cast<size_t>(row)].shade = shade;
        txtUTL[static_cast<size_t>(row)].shade = shade;
    }
    cboPPUnits[static_cast<size_t>(row)].enabled = shade != FieldShade::Blue;
}

void PhysicalPropertiesModel::Form_Activate()
{
    ChangeNotice notice(*this);
    // The unit set-up: density 0; viscosity 1, 2; pressure 3, 7; heat capacity 4;
    // surface tension 5; temperature 6, 8.
    const Quantity setup[kRows] = {Quantity::Density,        Quantity::Viscosity,      Quantity::Viscosity,
                                   Quantity::Pressure,       Quantity::HeatCapacity,   Quantity::SurfaceTension,
                                   Quantity::Temperature,    Quantity::Pressure,       Quantity::Temperature};
    for (int row = 0; row < kRows; ++row)
        cboPPUnits[static_cast<size_t>(row)].listIndex = globalUnits()[setup[row]];
    if (!compounds_.empty())
        position = std::clamp(rememberedCompoundPosition(), 0, static_cast<int>(compounds_.size()) - 1);
    Refresh();
}

void PhysicalPropertiesModel::dbcComp_Click(int newPosition)
{
    if (newPosition < 0 || newPosition >= static_cast<int>(compounds_.size()))
        return;
    ChangeNotice notice(*this);
    position = newPosition;
    rememberedCompoundPosition() = newPosition;
    Refresh();
    reportDamage();
}

bool PhysicalPropertiesModel::reportDamage()
{
    if (compounds_.empty() || compounds_[static_cast<size_t>(position)].damage.empty())
        return false;
    const Compound& c = compounds_[static_cast<size_t>(position)];
    ui_.ask(kTitle, "The data base record of " + c.name + " holds " + c.damage + ".\nThis compound cannot be used.",
            MessageIcon::Stop, MessageButtons::Ok, MessageAnswer::Ok);
    return true;
}

void PhysicalPropertiesModel::Refresh()
{
    ChangeNotice notice(*this);
    if (compounds_.empty())
        return;
    const Compound& c = compounds_[static_cast<size_t>(position)];
    frame.caption = "Physical Properties:  " + c.name;
    if (!c.damage.empty()) {
        showDamaged();
        return;
    }
    value[6] = c.criticalTemperature.value_or(0);
    value[7] = c.criticalPressure.value_or(0);
    for (int row : {CriticalTemperature, CriticalPressure}) {
        const bool known = (row == CriticalTemperature ? c.criticalTemperature : c.criticalPressure).has_value();
        shadeRow(row, known ? FieldShade::PaleYellow : FieldShade::Blue);
    }
    txtMW.text = c.molecularWeight ? plainNumberText(*c.molecularWeight) : "";
    txtAF.text = c.acentricFactor ? plainNumberText(*c.acentricFactor) : "";
    const double Tc = (value[6] - 32) / 1.8 + 273.15;
    const double T = value[8];
    for (int row = 0; row < 6; ++row) {
        const Compound::Block& block = c.blocks[static_cast<size_t>(row)];
        double result = 0;
        try {
            if (block.coefficients)
                result = PropertyCorrelation(T, Tc, *block.coefficients, block.equation);
        } catch (const NumericFault&) {
            result = 0; // a temperature beyond the correlation's reach
        }
        value[static_cast<size_t>(row)] = result;
        shadeRow(row, !block.coefficients                        ? FieldShade::Blue
                      : (T <= block.lower || T >= block.upper) ? FieldShade::Red
                                                               : FieldShade::PaleYellow);
        const UnitIndex tUnit = cboPPUnits[SystemTemperature].listIndex;
        txtLTL[static_cast<size_t>(row)].text = limitText(block.lower, tUnit);
        txtUTL[static_cast<size_t>(row)].text = limitText(block.upper, tUnit);
    }
    for (int row = 0; row < kRows; ++row)
        showRow(row);
}

// A compound whose record is damaged shows nothing but its name and the
// system temperature: no value of it is evaluated or handed on.
void PhysicalPropertiesModel::showDamaged()
{
    const double temperature = value[8];
    value.fill(0);
    value[8] = temperature;
    for (int row = 0; row < SystemTemperature; ++row) {
        txtPhysProp[static_cast<size_t>(row)].text.clear();
        shadeRow(row, FieldShade::Blue);
    }
    for (auto* texts : {&txtLTL, &txtUTL})
        for (TextControl& limit : *texts)
            limit.text.clear();
    txtMW.text.clear();
    txtAF.text.clear();
    showRow(8);
}

void PhysicalPropertiesModel::showRow(int row)
{
    const UnitIndex unit = cboPPUnits[static_cast<size_t>(row)].listIndex;
    const double v = value[static_cast<size_t>(row)];
    const double mw = compounds_.empty() ? 0 : compounds_[static_cast<size_t>(position)].molecularWeight.value_or(0);
    double shown = 0;
    switch (row) {
    case 0: shown = DensityProductToUnit(v, mw, unit); break;
    case 1: case 2: shown = ViscosityToUnit(v, unit); break;
    case 3: shown = PascalToUnit(v, unit); break;
    case 4: shown = HeatCapacityToUnit(v / 1000, unit); break;
    case 5: shown = SurfaceTensionToUnit(v, unit); break;
    case 6: shown = TemperatureToUnit(v, unit); break;
    case 7: shown = unit == 1 ? v : PressureToUnit(v, unit); break; // the second unit shows the value unconverted
    default: shown = kelvinToUnit(v, unit); break;
    }
    try {
        txtPhysProp[static_cast<size_t>(row)].text = formatMask(shown, maskOf(row, unit));
    } catch (const NumericFault&) {
        txtPhysProp[static_cast<size_t>(row)].text.clear();
    }
}

void PhysicalPropertiesModel::setUnit(int row, UnitIndex unit)
{
    if (row < 0 || row >= kRows)
        return;
    ChangeNotice notice(*this);
    cboPPUnits[static_cast<size_t>(row)].listIndex = unit;
    if (row == SystemTemperature)
        Refresh(); // the limits follow the temperature unit
    else
        showRow(row);
}

void PhysicalPropertiesModel::txtPhysProp_LostFocus(int row)
{
    if (row < CriticalTemperature || row >= kRows)
        return;
    ChangeNotice notice(*this);
    const std::string& text = txtPhysProp[static_cast<size_t>(row)].text;
    const UnitIndex unit = cboPPUnits[static_cast<size_t>(row)].listIndex;
    try {
        const double typed = parseFieldNumber(text);
        if (row == 8)
            value[8] = kelvinFromUnit(typed, unit);
        else if (row == 6)
            value[6] = TemperatureFromUnit(typed, unit);
        else if (row == 7)
            value[7] = unit == 1 ? typed : PressureFromUnit(typed, unit);
    } catch (const NumericFault&) {
    }
    if (row == 8)
        Refresh();
    else
        showRow(row);
}

void PhysicalPropertiesModel::cmdSelect_Click()
{
    ChangeNotice notice(*this);
    if (compounds_.empty() || reportDamage())
        return;
    PhysProps& p = physProps();
    const std::string& name = compounds_[static_cast<size_t>(position)].name;
    try {
        p.temperature = (value[8] - 273.15) * 1.8 + 32;
        p.molecularWeight = fieldSingleOr0(txtMW.text);
        p.criticalTemperature = value[6];
        p.criticalPressure = value[7];
        p.acentricFactor = fieldSingleOr0(txtAF.text);
        if (fluid != FluidKind::Liquid) {
            p.gasName = name;
            p.vaporViscosity = value[2];
            p.vaporPressure = PascalToUnit(value[3], 0);
            p.heatCapacity = value[4] / 1000;
        } else {
            p.liquidName = name;
            p.liquidDensity = DensityProductToUnit(value[0], p.molecularWeight, 0);
            p.liquidViscosity = value[1];
            p.surfaceTension = SurfaceTensionToUnit(value[5], 0);
            p.vaporPressure = PascalToUnit(value[3], 0);
        }
    } catch (const NumericFault&) {
    }
    propertiesCancelled() = false;
    closeRequested = true;
}

void PhysicalPropertiesModel::cmdClose_Click()
{
    ChangeNotice notice(*this);
    propertiesCancelled() = true;
    closeRequested = true;
}

void PhysicalPropertiesModel::GetPhysicalProperties(FluidKind kind, Single temperature,
                                                    const std::function<void()>& showModal)
{
    {
        ChangeNotice notice(*this);
        cmdSelect.enabled = true;
        fluid = kind;
        value[8] = (temperature - 32) / 1.8 + 273.15;
        propertiesCancelled() = true; // closing the window any other way is a cancel
    }
    showModal();
}

void PhysicalPropertiesModel::txtSearch_Change(const std::string& text)
{
    ChangeNotice notice(*this);
    txtSearch.text = text;
    if (text.empty())
        return;
    const auto folded = [](std::string value) {
        for (char& c : value)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return value;
    };
    const std::string wanted = folded(text);
    int holding = -1;
    for (size_t i = 0; i < compounds_.size(); ++i) {
        const std::string name = folded(compounds_[i].name);
        if (name.rfind(wanted, 0) == 0) {
            dbcComp_Click(static_cast<int>(i));
            return;
        }
        if (holding < 0 && name.find(wanted) != std::string::npos)
            holding = static_cast<int>(i);
    }
    if (holding >= 0)
        dbcComp_Click(holding);
}

void PhysicalPropertiesModel::commit(const Control& field, const std::string& text)
{
    if (TextControl* row = field.family == "txtPhysProp" ? elementOf(txtPhysProp, field) : nullptr; row && !row->locked) {
        row->text = text;
        txtPhysProp_LostFocus(field.index);
    }
}

void PhysicalPropertiesModel::textEdited(const Control& field, const std::string& text)
{
    if (field == physical_properties::txtSearch)
        txtSearch_Change(text);
    else
        FormModel::textEdited(field, text);
}

void PhysicalPropertiesModel::click(const Control& control)
{
    if (control == physical_properties::cmdSelect)
        cmdSelect_Click();
    else if (control == physical_properties::cmdClose)
        cmdClose_Click();
}

void PhysicalPropertiesModel::choose(const Control& list, int entry)
{
    if (list.family == "cboPPUnits")
        setUnit(list.index, static_cast<UnitIndex>(entry));
    else if (list == physical_properties::dbcComp && entry != position)
        dbcComp_Click(entry);
}

} // namespace kestrova
