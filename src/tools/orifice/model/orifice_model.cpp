// The orifice plate tool's events: load and activation, field commits, unit
// lists, the Compute and Pressure Taps options, the materials, the data
// buttons, reset and closing, and the calculation after each change.

#include "tools/orifice/model/orifice_model.h"

#include "forms/model/user_interface.h"
#include "forms/store/global_units.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "tools/properties/model/phys_props.h"

#include <algorithm>

namespace kestrova {

using namespace orifice;

// The calculation's output lands in the tool's controls.
class OrificeResults : public OrificeDisplay {
public:
    explicit OrificeResults(OrificeModel& model) : model_(model) {}
    void showDisplay(int index, const std::string& text) override
    {
        model_.txtDisplay.at(static_cast<size_t>(index)).text = text;
    }
    void refresh(int field) override { model_.showField(field); }
    void showErrorLiquid(const std::string& text) override { model_.txtErrorLiquid.text = text; }
    void showErrorGas(const std::string& text) override { model_.txtErrorGas.text = text; }

private:
    OrificeModel& model_;
};

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

// Setting the options and the materials runs their click routines, and so
// the calculation on the empty record: the window opens with the liquid
// tab's message of a pipe ID of zero.
void OrificeModel::Form_Load()
{
    ChangeNotice notice(*this);
    const BusyPointer busy(ui_);
    optCompute_Click(0);
    optMeterTap_Click(0);
    txtErrorLiquid.text.clear();
    txtErrorGas.text.clear();
    selectDefaultMaterials();
    record.referenceTemperature = 68;
    showField(LiquidReferenceTemperature);
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
        const FieldBinding<OrificeData>& f = orificeField(i);
        const bool coefficient = f.kind == orificeField(LiquidElementExpansion).kind;
        cboUnits[static_cast<size_t>(i)].listIndex = coefficient ? expansion : globalUnits()[f.setup];
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
    showChoices();
}

void OrificeModel::setUnit(int field, UnitIndex unit)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    cboUnits[static_cast<size_t>(field)].listIndex = unit;
    showField(field);
}

void OrificeModel::showField(int field)
{
    if (field < 0 || field >= kFields)
        return;
    const auto i = static_cast<size_t>(field);
    showUnitField(orificeField(field), record, cboUnits[i], txtData[i]);
}

void OrificeModel::commitFieldText(int field, const std::string& text)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    const auto i = static_cast<size_t>(field);
    txtData[i].text = text;
    commitUnitField(orificeField(field), record, cboUnits[i], txtData[i]);
}

void OrificeModel::txtData_LostFocus(int field)
{
    if (field < 0 || field >= kFields)
        return;
    ChangeNotice notice(*this);
    const auto i = static_cast<size_t>(field);
    commitUnitField(orificeField(field), record, cboUnits[i], txtData[i]);
    ComputeOrifice();
}

void OrificeModel::txtDisplay_LostFocus(int index)
{
    if (index != HeatCapacityRatio)
        return;
    ChangeNotice notice(*this);
    commitDisplayText(index, txtDisplay[HeatCapacityRatio].text);
    setDirty();
    ComputeOrifice();
}

// k is the only display that takes typing.
void OrificeModel::commitDisplayText(int index, const std::string& text)
{
    if (index < 0 || index >= kDisplays)
        return;
    ChangeNotice notice(*this);
    txtDisplay[static_cast<size_t>(index)].text = text;
    if (index == HeatCapacityRatio)
        record.heatCapacityRatio = fieldSingleOr0(text);
}

void OrificeModel::useRecord(const OrificeData& taken)
{
    ChangeNotice notice(*this);
    record = taken;
    for (int i = 0; i < kFields; ++i)
        showField(i);
}

void OrificeModel::optCompute_Click(int option)
{
    if (option < 0 || option > 5)
        return;
    ChangeNotice notice(*this);
    compute[static_cast<size_t>(option / 3)] = option % 3;
    showChoices();
    setDirty();
    ComputeOrifice();
}

void OrificeModel::optMeterTap_Click(int option)
{
    if (option < 0 || option > 5)
        return;
    ChangeNotice notice(*this);
    meterTap[static_cast<size_t>(option / 3)] = option % 3;
    showChoices();
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
    showChoices();
    coefficient = materials()[static_cast<size_t>(material)].coefficient;
    const int field = coefficientFields[static_cast<size_t>(tabIndex)];
    showField(field);
    if (material == kMaterials - 1)
        requestFocus(orifice::txtData(field));
    ComputeOrifice();
}

void OrificeModel::ComputeOrifice()
{
    ChangeNotice notice(*this);
    OrificeResults display(*this);
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
            showField(LiquidDensity);
            showField(LiquidViscosity);
            if (!props.liquidName.empty())
                Frame1[kPropertiesFrame[LiquidTab]].caption = "Properties:  " + (liquidName = props.liquidName);
        } else {
            record.gasViscosity = props.vaporViscosity;
            showField(GasViscosity);
            if (!props.gasName.empty())
                Frame1[kPropertiesFrame[GasTab]].caption = "Properties:  " + (gasName = props.gasName);
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
            showField(LiquidPipeID);
            showField(GasPipeID);
        }
    } else if (index == 2) {
        const Single k = ui_.GetHeatCapRatioValue(record.temperature, record.inletPressure);
        if (k != 0) { // written as text to k's field, whose change handler then runs
            commitDisplayText(HeatCapacityRatio, plainNumberText(k));
        }
    } else {
        const Single density = ui_.GetGasDensity(record.temperature, record.inletPressure);
        if (density != 0) {
            record.gasDensity = density;
            showField(GasDensity);
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
    showField(LiquidReferenceTemperature);
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
    for (TextControl& display : txtDisplay)
        display.text.clear();
    for (int option : {0, 3}) {
        optCompute_Click(option);
        optMeterTap_Click(option);
    }
    for (int frame : kPropertiesFrame)
        Frame1[static_cast<size_t>(frame)].caption = "Properties";
    for (auto* texts : {&txtProject, &txtTag})
        for (TextControl& text : *texts)
            text.text.clear();
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
