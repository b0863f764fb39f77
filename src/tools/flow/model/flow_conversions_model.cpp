#include "tools/flow/model/flow_conversions_model.h"

#include "forms/store/settings_store.h"
#include "units/unit_field.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"

#include <set>

namespace kestrova {

using namespace flow_conversions;
using checked::Div;

namespace {

// Metric to American factors: m3/hr to ft3/min, m3/hr to gpm, kg/hr to lbm/hr.
constexpr double kCubicMetresPerHour = 0.588577779;
constexpr double kGallonsPerMinute = 4.40286754;
constexpr double kPoundsPerKilogram = 2.204622649;

struct ConversionRoles {
    std::set<int> inputs;
    int output;
    bool standardCondition;
};

const std::array<ConversionRoles, 6> kRoles{{{{1, 4}, 7, true},
                                             {{1, 7}, 4, true},
                                             {{0, 6}, 7, false},
                                             {{0, 7}, 6, false},
                                             {{2, 3, 4}, 5, true},
                                             {{2, 3, 5}, 4, true}}};

// The captions of the options and labels in each system of units.
const char* conversionCaption(int units, int index)
{
    static const char* american[] = {"SCFM -> lbm/hr", "lbm/hr -> SCFM", "gpm -> lbm/hr",
                                     "lbm/hr -> gpm",  "SCFM -> ACFM",   "ACFM -> SCFM"};
    static const char* metric[] = {"SCMH -> kg/hr", "kg/hr -> SCMH", "m3/hr -> kg/hr",
                                   "kg/hr -> m3/hr", "SCMH -> ACMH", "ACMH -> SCMH"};
    return (units == 0 ? american : metric)[index];
}

const char* unitCaption(int units, int label)
{
    static const std::array<std::pair<const char*, const char*>, 6> captions{
        {{"°F", "°C"}, {"psig", "barg"}, {"Std ft³/min", "Std m³/hr"}, {"Act ft³/min", "Act m³/hr"}, {"gpm", "m³/hr"},
         {"lbm/hr", "kg/hr"}}};
    const auto& pair = captions[static_cast<size_t>(label)];
    return units == 0 ? pair.first : pair.second;
}

} // namespace

FlowConversionsModel::FlowConversionsModel(SettingsStore* store, QObject* parent) : FormModel(parent), store_(store)
{
    ControlRegistry& all = controls();
    all.family("txtData", txtData);
    all.family("optConversion", optConversion);
    all.family("optSTP", optSTP);
    all.family("optUnits", optUnits);
    for (size_t i = 0; i < kUnitLabels.size(); ++i)
        all.add(Control{kUnitLabels[i]}, unitLabels[i]);
    all.add(flow_conversions::stpFrame, stpFrame);
    all.add(flow_conversions::cmdApply, cmdApply);
    cmdApply.enabled = false; // until a tool asks for a flow
    showChoices();
}

// The options, the labels and the fields show the choices: the inputs of the
// conversion take typing, its output is tinted, the other fields are off.
void FlowConversionsModel::showChoices()
{
    const ConversionRoles& roles = kRoles[static_cast<size_t>(conversion)];
    for (int i = 0; i < 6; ++i) {
        ButtonControl& option = optConversion[static_cast<size_t>(i)];
        option.caption = conversionCaption(units, i);
        option.enabled = conversionEnabled_[static_cast<size_t>(i)];
        option.checked = i == conversion;
    }
    for (int i = 0; i < 3; ++i)
        optSTP[static_cast<size_t>(i)].checked = i == stp;
    for (int i = 0; i < 2; ++i)
        optUnits[static_cast<size_t>(i)].checked = i == units;
    for (int i = 0; i < 6; ++i)
        unitLabels[static_cast<size_t>(i)].caption = unitCaption(units, i);
    stpFrame.enabled = stpEnabled_;
    for (int i = 0; i < kFields; ++i) {
        TextControl& field = txtData[static_cast<size_t>(i)];
        const bool input = roles.inputs.count(i) > 0;
        const bool output = i == roles.output;
        field.locked = !input;
        field.enabled = input || output;
        field.tabStop = input || output; // the result is reached by Tab, though it takes no typing
        field.keys = KeyRule::SignedNumber;
        field.shade = output ? FieldShade::Tinted : input ? FieldShade::Normal : FieldShade::Disabled;
    }
}

void FlowConversionsModel::clearTexts()
{
    for (TextControl& field : txtData)
        field.text.clear();
}

void FlowConversionsModel::Form_Load()
{
    ChangeNotice notice(*this);
    const auto read = [this](const char* key, int fallback, int count) {
        return store_ ? store_->getIndex("Settings", key, fallback, count) : fallback;
    };
    const int unitSystem = read("UnitSystem", read("Flow Conv Units", 0, 2), 2);
    const int condition = read("Flow Conv STP", 0, 3);
    const int chosen = read("FlowConversion", read("Flow Conv Conv", 0, 6), 6);
    optUnits_Click(unitSystem);
    optSTP_Click(condition);
    optConversion_Click(chosen);
}

void FlowConversionsModel::Form_Unload()
{
    if (!store_)
        return;
    store_->save("Settings", "Flow Conv Units", std::to_string(units));
    store_->save("Settings", "Flow Conv STP", std::to_string(stp));
    store_->save("Settings", "Flow Conv Conv", std::to_string(conversion));
    store_->sync();
}

void FlowConversionsModel::optConversion_Click(int index)
{
    if (index < 0 || index > 5)
        return;
    ChangeNotice notice(*this);
    conversion = index;
    clearTexts();
    stpEnabled_ = kRoles[static_cast<size_t>(index)].standardCondition;
    showChoices();
    if (store_)
        store_->save("Settings", "FlowConversion", std::to_string(index));
}

void FlowConversionsModel::optSTP_Click(int index)
{
    if (index < 0 || index > 2)
        return;
    ChangeNotice notice(*this);
    static const double temperatures[] = {519.67, 491.67, 518.67};
    static const double volumes[] = {379.4, 359.0, 378.7};
    stp = index;
    values.StdPressure = 14.696;
    values.StdTemperature = temperatures[index];
    values.StdMolarVolume = volumes[index];
    showChoices();
    convert();
}

void FlowConversionsModel::optUnits_Click(int index)
{
    if (index < 0 || index > 1)
        return;
    ChangeNotice notice(*this);
    units = index;
    clearTexts();
    showChoices();
    if (store_)
        store_->save("Settings", "UnitSystem", std::to_string(index));
}

Single* FlowConversionsModel::fieldOf(int index)
{
    switch (index) {
    case FlowingTemperature: return &values.FlowTemperature;
    case FlowingPressure: return &values.FlowPressure;
    case StandardVolumeFlow: return &values.FlowSCFM;
    case ActualVolumeFlow: return &values.FlowACFM;
    case LiquidVolumeFlow: return &values.FlowGPM;
    case MassFlow: return &values.FlowLBHR;
    default: return nullptr;
    }
}

void FlowConversionsModel::commitText(int index, const std::string& text)
{
    if (index < 0 || index >= kFields)
        return;
    ChangeNotice notice(*this);
    txtData[static_cast<size_t>(index)].text = text;
    store(index);
}

void FlowConversionsModel::store(int index)
{
    Single* field = fieldOf(index);
    if (!field)
        return;
    // An empty or unreadable text fails the run.
    const double typed = requiredFieldNumber(txtData[static_cast<size_t>(index)].text);
    if (units == 0) {
        *field = typed;
        return;
    }
    switch (index) {
    case 2: *field = typed * 1.8 + 32; break;
    case 3: *field = typed / 1.01325 * 14.696; break;
    case 4: case 5: *field = typed * kCubicMetresPerHour; break;
    case 6: *field = typed * kGallonsPerMinute; break;
    default: *field = typed * kPoundsPerKilogram; break;
    }
}

void FlowConversionsModel::txtData_LostFocus(int index)
{
    if (index < 0 || index > 7)
        return;
    ChangeNotice notice(*this);
    try {
        store(index);
    } catch (const NumericFault&) {
        clearTexts();
        return;
    }
    convert();
}

void FlowConversionsModel::convert()
{
    try {
        FaultScope scope("FlowConversions");
        // The specific gravity and the molecular weight are read from their texts as singles.
        const auto sg = [this] { return requiredFieldSingle(txtData[SpecificGravity].text); };
        const auto mw = [this] { return requiredFieldSingle(txtData[MolecularWeight].text); };
        FlowConversionsData& v = values;
        Single* result = nullptr;
        double metricFactor = 1;
        switch (conversion) {
        case 0:
            v.FlowLBHR = Div(v.FlowSCFM * 60 * mw(), v.StdMolarVolume);
            result = &v.FlowLBHR;
            metricFactor = kPoundsPerKilogram;
            break;
        case 1:
            v.FlowSCFM = Div(v.FlowLBHR * v.StdMolarVolume, mw() * 60);
            result = &v.FlowSCFM;
            metricFactor = kCubicMetresPerHour;
            break;
        case 2:
            v.FlowLBHR = sg() * (v.FlowGPM * 500);
            result = &v.FlowLBHR;
            metricFactor = kPoundsPerKilogram;
            break;
        case 3:
            v.FlowGPM = Div(v.FlowLBHR, sg() * 500);
            result = &v.FlowGPM;
            metricFactor = kGallonsPerMinute;
            break;
        case 4: {
            const Single a = Div(v.StdTemperature, v.FlowTemperature + 459.67);
            const Single b = Div(v.FlowPressure + v.StdPressure, v.StdPressure);
            v.FlowACFM = Div(v.FlowSCFM, a * b);
            result = &v.FlowACFM;
            metricFactor = kCubicMetresPerHour;
            break;
        }
        default: {
            const Single a = Div(v.StdTemperature, v.FlowTemperature + 460);
            const Single b = Div(v.FlowPressure + v.StdPressure, v.StdPressure);
            v.FlowSCFM = a * v.FlowACFM * b;
            result = &v.FlowSCFM;
            metricFactor = kCubicMetresPerHour;
            break;
        }
        }
        const double shown = units == 0 ? static_cast<double>(*result) : *result / metricFactor;
        txtData[static_cast<size_t>(kRoles[static_cast<size_t>(conversion)].output)].text = formatMask(shown, "###,##0.0000");
    } catch (const NumericFault&) {
        clearTexts();
    }
}

void FlowConversionsModel::cmdApply_Click()
{
    ChangeNotice notice(*this);
    applied = true;
    closeRequested = true;
}

void FlowConversionsModel::cmdCancel_Click()
{
    ChangeNotice notice(*this);
    closeRequested = true;
}

Single FlowConversionsModel::GetFlowrateConversion(int kind, const std::function<void()>& showModal)
{
    if (kind != 1 && kind != 2)
        return 0.0;
    {
        ChangeNotice notice(*this);
        cmdApply.enabled = true;
        applied = false;
        if (kind == 2) {
            conversionEnabled_ = {true, true, false, false, true, true};
            optConversion_Click(0);
            stpEnabled_ = true;
        } else {
            conversionEnabled_ = {false, false, true, false, false, false};
            optConversion_Click(2);
        }
        showChoices();
    }
    showModal();
    return applied ? values.FlowLBHR : Single(0.0);
}

void FlowConversionsModel::commit(const Control& field, const std::string& text)
{
    if (TextControl* typed = field.family == "txtData" ? elementOf(txtData, field) : nullptr; typed && !typed->locked) {
        typed->text = text;
        txtData_LostFocus(field.index);
    }
}

void FlowConversionsModel::click(const Control& control)
{
    if (control.family == "optConversion")
        optConversion_Click(control.index);
    else if (control.family == "optSTP")
        optSTP_Click(control.index);
    else if (control.family == "optUnits")
        optUnits_Click(control.index);
    else if (control == flow_conversions::cmdApply)
        cmdApply_Click();
    else if (control == flow_conversions::cmdCancel)
        cmdCancel_Click();
}

} // namespace kestrova
