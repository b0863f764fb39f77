#include "tools/flow/model/flow_conversions_model.h"

#include "forms/store/settings_store.h"
#include "units/unit_field.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"

#include <map>
#include <set>

namespace kestrova {

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

} // namespace

FlowConversionsModel::FlowConversionsModel(SettingsStore* store, QObject* parent) : FormModel(parent), store_(store)
{
}

std::string FlowConversionsModel::conversionCaption(int index) const
{
    static const char* american[] = {"SCFM -> lbm/hr", "lbm/hr -> SCFM", "gpm -> lbm/hr",
                                     "lbm/hr -> gpm",  "SCFM -> ACFM",   "ACFM -> SCFM"};
    static const char* metric[] = {"SCMH -> kg/hr", "kg/hr -> SCMH", "m3/hr -> kg/hr",
                                   "kg/hr -> m3/hr", "SCMH -> ACMH", "ACMH -> SCMH"};
    return (units == 0 ? american : metric)[index];
}

std::string FlowConversionsModel::unitLabel(const std::string& labelName) const
{
    static const std::map<std::string, std::pair<const char*, const char*>> labels{
        {"lblUnitsFT", {"°F", "°C"}},           {"lblUnitsFP", {"psig", "barg"}},
        {"lblUnitsSCFM", {"Std ft³/min", "Std m³/hr"}}, {"lblUnitsACFM", {"Act ft³/min", "Act m³/hr"}},
        {"lblUnitsGPM", {"gpm", "m³/hr"}},       {"lblUnitsLBHR", {"lbm/hr", "kg/hr"}}};
    const auto found = labels.find(labelName);
    if (found == labels.end())
        return {};
    return units == 0 ? found->second.first : found->second.second;
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
    const ConversionRoles& roles = kRoles[static_cast<size_t>(index)];
    for (int i = 0; i < 8; ++i) {
        Field& field = txtData[static_cast<size_t>(i)];
        field.text.clear();
        field.role = roles.inputs.count(i) ? ConversionRole::Input : i == roles.output ? ConversionRole::Output : ConversionRole::NotUsed;
    }
    stpEnabled = roles.standardCondition;
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
    StdPressure = 14.696;
    StdTemperature = temperatures[index];
    StdMolarVolume = volumes[index];
    convert();
}

void FlowConversionsModel::optUnits_Click(int index)
{
    if (index < 0 || index > 1)
        return;
    ChangeNotice notice(*this);
    units = index;
    for (Field& field : txtData)
        field.text.clear();
    if (store_)
        store_->save("Settings", "UnitSystem", std::to_string(index));
}

Single* FlowConversionsModel::fieldOf(int index)
{
    switch (index) {
    case 2: return &FlowTemperature;
    case 3: return &FlowPressure;
    case 4: return &FlowSCFM;
    case 5: return &FlowACFM;
    case 6: return &FlowGPM;
    case 7: return &FlowLBHR;
    default: return nullptr;
    }
}

void FlowConversionsModel::commitText(int index)
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
        commitText(index);
    } catch (const NumericFault&) {
        for (Field& field : txtData)
            field.text.clear();
        return;
    }
    convert();
}

void FlowConversionsModel::convert()
{
    try {
        FaultScope scope("FlowConversions");
        // The specific gravity and the molecular weight are read from their texts as singles.
        const auto sg = [this] { return requiredFieldSingle(txtData[0].text); };
        const auto mw = [this] { return requiredFieldSingle(txtData[1].text); };
        Single* result = nullptr;
        double metricFactor = 1;
        switch (conversion) {
        case 0:
            FlowLBHR = Div(FlowSCFM * 60 * mw(), StdMolarVolume);
            result = &FlowLBHR;
            metricFactor = kPoundsPerKilogram;
            break;
        case 1:
            FlowSCFM = Div(FlowLBHR * StdMolarVolume, mw() * 60);
            result = &FlowSCFM;
            metricFactor = kCubicMetresPerHour;
            break;
        case 2:
            FlowLBHR = sg() * (FlowGPM * 500);
            result = &FlowLBHR;
            metricFactor = kPoundsPerKilogram;
            break;
        case 3:
            FlowGPM = Div(FlowLBHR, sg() * 500);
            result = &FlowGPM;
            metricFactor = kGallonsPerMinute;
            break;
        case 4: {
            const Single a = Div(StdTemperature, FlowTemperature + 459.67);
            const Single b = Div(FlowPressure + StdPressure, StdPressure);
            FlowACFM = Div(FlowSCFM, a * b);
            result = &FlowACFM;
            metricFactor = kCubicMetresPerHour;
            break;
        }
        default: {
            const Single a = Div(StdTemperature, FlowTemperature + 460);
            const Single b = Div(FlowPressure + StdPressure, StdPressure);
            FlowSCFM = a * FlowACFM * b;
            result = &FlowSCFM;
            metricFactor = kCubicMetresPerHour;
            break;
        }
        }
        const double shown = units == 0 ? static_cast<double>(*result) : *result / metricFactor;
        txtData[static_cast<size_t>(kRoles[static_cast<size_t>(conversion)].output)].text = formatMask(shown, "###,##0.0000");
    } catch (const NumericFault&) {
        for (Field& field : txtData)
            field.text.clear();
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
        applyEnabled = true;
        applied = false;
        if (kind == 2) {
            conversionEnabled = {true, true, false, false, true, true};
            optConversion_Click(0);
            stpEnabled = true;
        } else {
            conversionEnabled = {false, false, true, false, false, false};
            optConversion_Click(2);
        }
    }
    showModal();
    return applied ? FlowLBHR : Single(0.0);
}

} // namespace kestrova
