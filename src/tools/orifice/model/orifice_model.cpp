#include "tools/orifice/model/orifice_model.h"

#include "units/field_kinds.h"
#include "forms/store/global_units.h"
#include "units/unit_field.h"
#include "forms/model/user_interface.h"
#include "numeric/field_text.h"
#include "numeric/display_mask.h"
#include "tools/properties/model/phys_props.h"

#include <algorithm>

namespace kestrova {

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

struct OrificeField {
    const FieldKind* kind;
    Single OrificeData::*member;
    bool expansion; // the expansion lists follow the temperature global
    Quantity quantity;
};

using O = OrificeData;
using Q = Quantity;
namespace k = field_kinds;

// txtData(i) with cboUnits(i): liquid 0 to 13, gas 14 to 28. Both tabs have
// the same rows, but the gas tab has the inlet pressure before its density.
std::array<OrificeField, OrificeModel::kFields> makeFieldTable()
{
    std::array<OrificeField, OrificeModel::kFields> table{};
    for (int tab = 0; tab < 2; ++tab) {
        const bool gas = tab == 1;
        auto row = table.begin() + (gas ? 14 : 0);
        *row++ = {&k::flow, gas ? &O::gasFlow : &O::liquidFlow, false, Q::Flow};
        *row++ = {&kPressureDrop, &O::differentialPressure, false, Q::PressureDrop};
        *row++ = {&k::diameter, &O::orificeDiameter, false, Q::Diameter};
        *row++ = {&k::temperature, &O::temperature, false, Q::Temperature};
        if (gas)
            *row++ = {&k::pressure, &O::inletPressure, false, Q::Pressure};
        *row++ = {gas ? &kGasDensity : &k::density, gas ? &O::gasDensity : &O::liquidDensity, false, Q::Density};
        *row++ = {&k::viscosity, gas ? &O::gasViscosity : &O::liquidViscosity, false, Q::Viscosity};
        *row++ = {&k::temperature, &O::referenceTemperature, false, Q::Temperature};
        *row++ = {&k::diameter, &O::holeDiameter, false, Q::Diameter};
        *row++ = {&kExpansion, &O::elementExpansion, true, Q::Temperature};
        *row++ = {&k::diameter, &O::pipeID, false, Q::Diameter};
        *row++ = {&kExpansion, &O::pipeExpansion, true, Q::Temperature};
        *row++ = {&k::velocity, &O::velocityPipe, false, Q::Velocity};
        *row++ = {&k::velocity, &O::velocityOrifice, false, Q::Velocity};
        // The permanent loss takes the pressure global, though its list is the pressure drop's.
        *row++ = {&kPermanentLoss, &O::permanentLoss, false, Q::Pressure};
    }
    return table;
}
const std::array<OrificeField, OrificeModel::kFields> kFieldTable = makeFieldTable();

// The coefficient fields of the materials: element and pipe, on each tab.
constexpr std::array<int, 2> kElementExpansionField{8, 23}, kPipeExpansionField{10, 25};
constexpr int kLiquidFirstSolved = 0, kGasFirstSolved = 14;

// The calculation's output lands in the model's texts.
class ModelDisplay : public OrificeDisplay {
public:
    explicit ModelDisplay(OrificeModel& model) : model_(model) {}
    void showDisplay(int index, const std::string& text) override
    {
        model_.txtDisplay.at(static_cast<size_t>(index)) = text;
    }
    void refresh(int field) override { model_.showField(field); }
    void showErrorLiquid(const std::string& text) override { model_.txtErrorLiquid = text; }
    void showErrorGas(const std::string& text) override { model_.txtErrorGas = text; }

private:
    OrificeModel& model_;
};

} // namespace

const std::array<OrificeModel::Material, OrificeModel::kMaterials>& OrificeModel::materials()
{
    static const std::array<Material, kMaterials> table{{
        {"Carbon Steel", 6.7e-6},   {"Stainless Steel", 9.4e-6}, {"Hastelloy B", 5.6e-6},     {"Hastelloy C", 6.3e-6},
        {"Inconel X", 6.7e-6},      {"Stellite", 7.6e-6},        {"Copper", 9.3e-6},          {"Yellow Brass", 1.05e-5},
        {"Aluminum Bronze", 9.2e-6}, {"Beryllium Copper", 9.3e-6}, {"Cupronickel 30%", 8.5e-6}, {"K-Monel", 7.4e-6},
        {"Nickel", 8.3e-6},         {"Pyrex Glass", 2e-7},       {"Titanium", 4.7e-6},        {"Tantalum", 3.6e-6},
        {"Polypropylene", 7.8e-5},  {"PVDF", 6.1e-5},            {"PTFE", 7.2e-5},            {"Other!", 0},
    }};
    return table;
}

OrificeModel::OrificeModel(UserInterface& ui, QObject* parent) : FormModel(parent), ui_(ui) {}

// Setting the options and the materials runs their click routines, and so
// the calculation on the empty record: the window opens with the liquid
// tab's message of a pipe ID of zero.
void OrificeModel::Form_Load()
{
    ChangeNotice notice(*this);
    const BusyPointer busy(ui_);
    optCompute_Click(0);
    optMeterTap_Click(0);
    txtErrorLiquid.clear();
    txtErrorGas.clear();
    selectDefaultMaterials();
    record.referenceTemperature = 68;
    showField(6);
    dirty = false;
    ui_.setToolbarButtonEnabled("Save", true);
}

// Stainless steel elements and carbon steel pipes on both tabs, each through
// its click routine, which sets the coefficient and calculates.
void OrificeModel::selectDefaultMaterials()
{
    for (int t = 0; t < 2; ++t) {
        cboElementMaterial_Click(t, 1);
        cboPipeMaterial_Click(t, 0);
    }
}

void OrificeModel::Form_Activate()
{
    ChangeNotice notice(*this);
    // The expansion lists have no global of their own: "1/°F" with the
    // temperature in °F or °R, "1/°C" with °C or K.
    const UnitIndex temperature = globalUnits()[Quantity::Temperature];
    const UnitIndex expansion = (temperature == 0 || temperature == 2) ? 0 : 1;
    for (int i = 0; i < kFields; ++i) {
        const OrificeField& f = kFieldTable[static_cast<size_t>(i)];
        cboUnits[static_cast<size_t>(i)] = f.expansion ? expansion : globalUnits()[f.quantity];
        showField(i);
    }
    ui_.setToolbarButtonEnabled("Print", true);
    SSTab1_Click(tab);
}

void OrificeModel::SSTab1_Click(int newTab)
{
    ChangeNotice notice(*this);
    // The Compute and Pressure Taps choices carry over to the same position
    // on the tab shown; nothing is calculated.
    const int shown = std::clamp(newTab, 0, 1);
    compute[static_cast<size_t>(shown)] = compute[static_cast<size_t>(tab)];
    meterTap[static_cast<size_t>(shown)] = meterTap[static_cast<size_t>(tab)];
    tab = shown;
}

void OrificeModel::setUnit(int field, UnitIndex unit)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(field)] = unit;
    showField(field);
}

void OrificeModel::showField(int field)
{
    if (field < 0 || field >= kFields)
        return;
    const OrificeField& f = kFieldTable[static_cast<size_t>(field)];
    const std::string text = unitFieldText(*f.kind, record.*f.member, cboUnits[static_cast<size_t>(field)]);
    if (!text.empty())
        txtData[static_cast<size_t>(field)] = text;
}

void OrificeModel::commitFieldText(int field)
{
    if (field < 0 || field >= kFields)
        return;
    const OrificeField& f = kFieldTable[static_cast<size_t>(field)];
    record.*f.member = unitFieldValue(*f.kind, txtData[static_cast<size_t>(field)], cboUnits[static_cast<size_t>(field)]);
    showField(field);
}

void OrificeModel::txtData_LostFocus(int field)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    commitFieldText(field);
    ComputeOrifice();
}

void OrificeModel::txtDisplay_LostFocus(int index)
{
    if (index != 5)
        return;
    ChangeNotice notice(*this);
    record.heatCapacityRatio = fieldSingleOr0(txtDisplay[5]);
    setDirty();
    ComputeOrifice();
}

const char* OrificeModel::unitTagOf(int field)
{
    return kFieldTable.at(static_cast<size_t>(field)).kind->tag;
}

bool OrificeModel::fieldLocked(int field) const
{
    const bool gas = field >= kGasFirstSolved;
    return field - (gas ? kGasFirstSolved : kLiquidFirstSolved) == compute[gas ? 1 : 0];
}

void OrificeModel::optCompute_Click(int option)
{
    if (option < 0 || option > 5)
        return;
    ChangeNotice notice(*this);
    compute[static_cast<size_t>(option / 3)] = option % 3;
    setDirty();
    ComputeOrifice();
}

void OrificeModel::optMeterTap_Click(int option)
{
    if (option < 0 || option > 5)
        return;
    ChangeNotice notice(*this);
    meterTap[static_cast<size_t>(option / 3)] = option % 3;
    setDirty();
    ComputeOrifice();
}

void OrificeModel::cboElementMaterial_Click(int tabIndex, int material)
{
    chooseMaterial(tabIndex, material, elementMaterial, record.elementExpansion, kElementExpansionField);
}

void OrificeModel::cboPipeMaterial_Click(int tabIndex, int material)
{
    chooseMaterial(tabIndex, material, pipeMaterial, record.pipeExpansion, kPipeExpansionField);
}

// A material from the list sets its coefficient; "Other!" zeroes it and asks
// for it to be typed.
void OrificeModel::chooseMaterial(int tabIndex, int material, std::array<int, 2>& chosen, Single& coefficient,
                                  const std::array<int, 2>& coefficientFields)
{
    if (tabIndex < 0 || tabIndex > 1 || material < 0 || material >= kMaterials)
        return;
    ChangeNotice notice(*this);
    chosen[static_cast<size_t>(tabIndex)] = material;
    coefficient = materials()[static_cast<size_t>(material)].coefficient;
    const int field = coefficientFields[static_cast<size_t>(tabIndex)];
    showField(field);
    if (material == kMaterials - 1)
        focusRequest = "txtData(" + std::to_string(field) + ")";
    ComputeOrifice();
}

void OrificeModel::ComputeOrifice()
{
    ChangeNotice notice(*this);
    ModelDisplay display(*this);
    const auto shown = static_cast<size_t>(tab);
    kestrova::ComputeOrifice(record, tab == 0 ? OrificeFluid::Liquid : OrificeFluid::Gas,
                             static_cast<OrificeUnknown>(compute[shown]), static_cast<TapStyle>(meterTap[shown]), display);
}

const std::array<const char*, 3>& OrificeModel::computeCaptions()
{
    static const std::array<const char*, 3> captions{"&Flow Rate:", "&Differential Pressure:", "&Orifice Diameter:"};
    return captions;
}

const std::array<const char*, 3>& OrificeModel::tapCaptions()
{
    static const std::array<const char*, 3> captions{"&Flange Taps", "&D and D/2 Taps", "&Corner Taps"};
    return captions;
}

void OrificeModel::cmdProperties_Click(int index)
{
    if (index < 0 || index > 1)
        return;
    ChangeNotice notice(*this);
    propertiesCancelled() = false;
    propertiesCancelled() = !ui_.GetPhysicalProperties(index == 0 ? FluidKind::Liquid : FluidKind::Gas, record.temperature);
    if (!propertiesCancelled()) {
        const PhysProps& props = physProps();
        if (index == 0) {
            record.liquidDensity = props.liquidDensity;
            record.liquidViscosity = props.liquidViscosity;
            showField(4);
            showField(5);
            if (!props.liquidName.empty())
                propertiesCaption[0] = "Properties:  " + (liquidName = props.liquidName);
        } else {
            record.gasViscosity = props.vaporViscosity;
            showField(20);
            if (!props.gasName.empty())
                propertiesCaption[1] = "Properties:  " + (gasName = props.gasName);
        }
    }
    setDirty();
}

void OrificeModel::cmdTable_Click(int index)
{
    if (index < 0 || index > 3)
        return;
    ChangeNotice notice(*this);
    if (index <= 1) {
        const Single id = ui_.SelectPipeID("ID");
        if (id != 0) {
            record.pipeID = id;
            showField(9);
            showField(24);
        }
    } else if (index == 2) {
        const Single k = ui_.GetHeatCapRatioValue(record.temperature, record.inletPressure);
        if (k != 0) { // written as text to k's field, whose change handler then runs
            txtDisplay[5] = plainNumberText(k);
            record.heatCapacityRatio = fieldSingleOr0(txtDisplay[5]);
        }
    } else {
        const Single density = ui_.GetGasDensity(record.temperature, record.inletPressure);
        if (density != 0) {
            record.gasDensity = density;
            showField(19);
        }
    }
    setDirty();
    ComputeOrifice();
}

void OrificeModel::cmdReset_Click()
{
    if (ui_.ask(kTitle, "Reset all input fields?", MessageIcon::Question, MessageButtons::OkCancel,
                MessageAnswer::Ok) != MessageAnswer::Ok)
        return;
    ChangeNotice notice(*this);
    reset();
}

// Every input back to its start, except the fields a user keeps from case to
// case: the reference temperature and the differential pressure, the
// temperature and the two coefficients as the materials set them. The
// materials and options are set through their click routines, which
// calculate on the emptied record as a user's clicks would.
void OrificeModel::reset()
{
    record.referenceTemperature = 68;
    showField(6);
    caption = kTitle;
    const OrificeData kept = record;
    record = OrificeData{};
    record.referenceTemperature = kept.referenceTemperature;
    record.elementExpansion = kept.elementExpansion;
    record.pipeExpansion = kept.pipeExpansion;
    record.differentialPressure = kept.differentialPressure;
    record.permanentLoss = kept.permanentLoss;
    record.temperature = kept.temperature;
    selectDefaultMaterials();
    for (int i = 0; i < kFields; ++i)
        showField(i);
    for (std::string& text : txtDisplay)
        text.clear();
    for (int option : {0, 3}) {
        optCompute_Click(option);
        optMeterTap_Click(option);
    }
    propertiesCaption = {"Properties", "Properties"};
    txtProject = {};
    txtTag = {};
    setDirty();
    fileName_.clear();
}

bool OrificeModel::Form_QueryUnload()
{
    if (dirty) {
        const MessageAnswer answer = ui_.ask(kTitle, "Save data before closing?", MessageIcon::Question,
                                             MessageButtons::YesNoCancel, MessageAnswer::Yes);
        if (answer == MessageAnswer::Cancel)
            return false;
        if (answer == MessageAnswer::Yes && !(fileName_.empty() ? ui_.runSaveAs() : OpenSaveData("Save")))
            return false;
    }
    ChangeNotice notice(*this);
    reset();
    ui_.setToolbarButtonEnabled("Save", false);
    ui_.setToolbarButtonEnabled("Print", false);
    return true;
}

void OrificeModel::setDirty()
{
    dirty = true;
    ui_.setToolbarButtonEnabled("Save", true);
}

} // namespace kestrova
