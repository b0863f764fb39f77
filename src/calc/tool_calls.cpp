#include "calc/tool_calls.h"

#include "calc/tool_report.h"
#include "frame/model/shared_stores.h"
#include "numeric/field_text.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"
#include "forms/model/scripted_user_interface.h"
#include "units/unit_field.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/pump_network/model/pump_network_model.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pressure_drop/model/pressure_drop_model.h"
#include "tools/flow/model/flow_conversions_model.h"
#include "tools/flow/model/gas_density_model.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/properties/model/compress_factor_model.h"
#include "tools/properties/model/heat_cap_ratio_model.h"

#include <charconv>
#include <vector>

namespace kestrova::calc {

namespace {

using nlohmann::json;

const json& objectArgument(const json& args, const char* name)
{
    static const json empty = json::object();
    const auto found = args.find(name);
    if (found == args.end())
        return empty;
    if (!found->is_object())
        throw RequestError(std::string("argument '") + name + "' must be a JSON object");
    return *found;
}

// The indices named in an object's keys for one control family, ascending.
std::vector<std::pair<int, const json*>> controlsOf(const json& object, const std::string& family, int count)
{
    std::vector<std::pair<int, const json*>> controls;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const int index = controlIndex(it.key(), family);
        if (index >= 0 && index < count)
            controls.emplace_back(index, &it.value());
    }
    std::sort(controls.begin(), controls.end());
    return controls;
}

void checkControlNames(const json& object, const std::vector<std::pair<std::string, int>>& families)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        bool known = false;
        for (const auto& [family, count] : families) {
            const int index = controlIndex(it.key(), family);
            known = known || (index >= 0 && index < count);
        }
        if (!known)
            throw RequestError("unknown control '" + it.key() + "'");
    }
}

std::string textValue(const json& value, const std::string& name)
{
    if (!value.is_string())
        throw RequestError("text of '" + name + "' is not a text");
    return value.get<std::string>();
}

// Sets record fields by name; `fields` and `names` are in the same order.
template <size_t N>
void applyRecord(const std::array<Single*, N>& fields, const char* const* names, const json& record)
{
    for (auto it = record.begin(); it != record.end(); ++it) {
        int found = -1;
        for (size_t i = 0; i < N; ++i)
            if (it.key() == names[i])
                found = static_cast<int>(i);
        if (found < 0)
            throw RequestError("unknown record field '" + it.key() + "'");
        const double value = numberValue(it.value(), it.key());
        FaultScope scope("arguments");
        *fields[static_cast<size_t>(found)] = value;
    }
}

// Commits the texts of one control family, in ascending index order.
template <typename Commit>
void applyTexts(const json& texts, const std::string& family, int count, Commit commit)
{
    for (const auto& [index, value] : controlsOf(texts, family, count))
        commit(index, textValue(*value, Control{family, index}.name()));
}

// Chooses the unit lists named in `units` through `setUnit`.
template <typename SetUnit>
void applyUnits(const json& units, int count, SetUnit setUnit)
{
    checkControlNames(units, {{"cboUnits", count}});
    for (const auto& [index, value] : controlsOf(units, "cboUnits", count)) {
        const double number = numberValue(*value, Control{"cboUnits", index}.name());
        FaultScope scope("arguments");
        setUnit(index, roundToInteger16(number));
    }
}

void pressureDropCalculateResults(const RequestArgs& a, JsonObject& result)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    PressureDropModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();

    const json& args = a.raw();
    if (args.contains("tab"))
        tool.selectTab(a.integer16("tab"));
    if (args.contains("crossSection"))
        tool.selectCrossSection(std::clamp<int>(a.integer16("crossSection"), 0, 5));
    if (args.contains("calcType"))
        tool.selectCalcType(a.integer16("calcType"));
    if (args.contains("orientation"))
        tool.selectOrientation(std::clamp<int>(a.integer16("orientation"), 0, 2));

    applyUnits(objectArgument(args, "units"), kPressureDropFields,
               [&tool](int index, UnitIndex unit) { tool.setUnit(index, unit); });
    PressureDropData record = tool.view().record;
    applyRecord(record.fields(), pressureDropFieldNames(), objectArgument(args, "record"));
    tool.useRecord(record);

    const json& texts = objectArgument(args, "texts");
    checkControlNames(texts, {{"txtData", kPressureDropFields}, {"txtDisplay", PressureDropModel::kDisplays}});
    applyTexts(texts, "txtData", kPressureDropFields,
               [&tool](int index, const std::string& text) { tool.commitFieldText(index, text); });
    applyTexts(texts, "txtDisplay", PressureDropModel::kDisplays,
               [&tool](int index, const std::string& text) { tool.commitDisplayText(index, text); });
    tool.CalculateResults();
    reportPressureDrop(tool, ui, result);
}

void orificePlatesComputeOrifice(const RequestArgs& a, JsonObject& result)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    OrificeModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();

    const json& args = a.raw();
    if (args.contains("tab"))
        tool.SSTab1_Click(std::clamp<int>(a.integer16("tab"), 0, 1));
    // The options are clicked as a user clicks them: the position an index
    // gives (0 to 2 or 3 to 5) on the tab shown.
    if (args.contains("compute"))
        tool.optCompute_Click(3 * tool.view().tab + std::clamp<int>(a.integer16("compute"), 0, 5) % 3);
    if (args.contains("tap"))
        tool.optMeterTap_Click(3 * tool.view().tab + std::clamp<int>(a.integer16("tap"), 0, 5) % 3);
    applyUnits(objectArgument(args, "units"), OrificeModel::kFields,
               [&tool](int index, UnitIndex unit) { tool.setUnit(index, unit); });
    OrificeData record = tool.view().record;
    applyRecord(record.fields(), OrificeData::names().data(), objectArgument(args, "record"));
    tool.useRecord(record);

    const json& texts = objectArgument(args, "texts");
    checkControlNames(texts, {{"txtData", OrificeModel::kFields}, {"txtDisplay", OrificeModel::kDisplays}});
    applyTexts(texts, "txtData", OrificeModel::kFields,
               [&tool](int index, const std::string& text) { tool.commitFieldText(index, text); });
    applyTexts(texts, "txtDisplay", OrificeModel::kDisplays,
               [&tool](int index, const std::string& text) { tool.commitDisplayText(index, text); });
    tool.ComputeOrifice();
    reportOrifice(tool, result);
}

// A line array of the network: up to 12 numbers, element 0 unused.
void applyLineArray(const json& object, const char* name, LineValues& values)
{
    const auto found = object.find(name);
    if (found == object.end())
        return;
    if (!found->is_array() || found->size() > 12)
        throw RequestError(std::string("argument '") + name + "' must be an array of at most 12 numbers");
    for (size_t i = 0; i < found->size(); ++i) {
        const double number = elementValue((*found)[i], name, i);
        FaultScope scope("arguments");
        values[i] = number;
    }
}

void applyScalar(const json& object, const char* name, Single& value)
{
    if (!object.contains(name))
        return;
    const double number = numberValue(object[name], name);
    FaultScope scope("arguments");
    value = number;
}

void pumpNetworkNetCalc(const RequestArgs& a, JsonObject& result)
{
    resetSharedStores();
    ScriptedUserInterface ui;
    PumpNetworkModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();

    const json& args = a.raw();
    applyUnits(objectArgument(args, "units"), PumpNetworkModel::kUnitLists,
               [&tool](int index, UnitIndex unit) { tool.setUnit(index, unit); });
    NetworkState s = tool.view().network;
    SegmentData g = tool.view().segments;
    MinorLossStore& k = minorLossStore();
    const std::vector<std::pair<const char*, LineValues*>> inputs{
        {"NetFlow", &s.NetFlow}, {"NetPDest", &s.NetPDest}, {"NetHeight", &s.NetHeight}, {"SegLength", &g.SegLength},
        {"SegID", &g.SegID},     {"SegRough", &g.SegRough}, {"SegDensity", &g.SegDensity}, {"SegVisc", &g.SegVisc},
        {"SegDpAdd", &g.SegDpAdd}};
    for (const auto& [name, values] : inputs)
        applyLineArray(args, name, *values);
    LineValues k1{}, k2{}, k3{};
    applyLineArray(args, "SegK1", k1);
    applyLineArray(args, "SegK2", k2);
    applyLineArray(args, "SegK3", k3);
    for (size_t i = 0; i < 12; ++i) {
        k.SegK1[i] = k1[i];
        k.SegK2[i] = k2[i];
        k.SegK3[i] = k3[i];
    }
    for (const char* name : {"VaporPress", "MinValveDp", "LinePercentDp", "PumpEff"})
        applyScalar(args, name, *networkScalar(s, name));
    const json& earlier = objectArgument(args, "state");
    for (const auto& [name, values] : networkResultArrays(s))
        applyLineArray(earlier, name, *values);
    for (const char* name : {"PumpHead", "NPSHa", "MotorSize", "PDischarge", "PSuction"})
        applyScalar(earlier, name, *networkScalar(s, name));

    tool.useNetwork(s, g);
    tool.NetCalc();
    reportPumpNetwork(tool, result);
}

std::vector<std::string> textList(const RequestArgs& a, const std::string& name, size_t count)
{
    const json& list = a.raw().contains(name) ? a.raw()[name] : json::array();
    if (!list.is_array() || list.size() > count)
        throw RequestError("argument '" + name + "' must be an array of at most " + std::to_string(count) + " texts");
    std::vector<std::string> texts(count);
    for (size_t i = 0; i < list.size(); ++i)
        texts[i] = textValue(list[i], name + "[" + std::to_string(i) + "]");
    return texts;
}

void flowConversionsConvert(const RequestArgs& a, JsonObject& result)
{
    using flow_conversions::txtData;
    FlowConversionsModel tool(nullptr);
    tool.Form_Load();
    tool.optUnits_Click(std::clamp<int>(a.integer16("units"), 0, 1));
    tool.optSTP_Click(std::clamp<int>(a.integer16("stp"), 0, 2));
    tool.optConversion_Click(std::clamp<int>(a.integer16("conversion"), 0, 5));
    const json& texts = objectArgument(a.raw(), "texts");
    checkControlNames(texts, {{"txtData", 8}});
    const int field = std::clamp<int>(a.integer16("field"), 0, 7);
    std::map<int, std::string> given;
    for (const auto& [index, value] : controlsOf(texts, "txtData", 8))
        given[index] = textValue(*value, Control{"txtData", index}.name());
    // The other given fields were left before: they hold their values; a
    // field that takes no typing keeps its own text.
    for (const auto& [index, text] : given)
        tool.textEdited(txtData(index), text);
    try {
        for (const auto& [index, text] : given)
            if (index != field && !tool.view().txtData[static_cast<size_t>(index)].locked)
                tool.commitText(index, text);
    } catch (const NumericFault&) {
    }
    tool.txtData_LostFocus(field);
    const FlowConversionsState& form = tool.view();
    JsonObject shown;
    for (int i = 0; i < 8; ++i)
        shown.text(Control{"txtData", i}.name(), form.txtData[static_cast<size_t>(i)].text);
    const FlowConversionsData& v = form.values;
    JsonObject fields;
    fields.single("StdTemperature", v.StdTemperature)
        .single("StdPressure", v.StdPressure)
        .single("StdMolarVolume", v.StdMolarVolume)
        .single("FlowTemperature", v.FlowTemperature)
        .single("FlowPressure", v.FlowPressure)
        .single("FlowSCFM", v.FlowSCFM)
        .single("FlowACFM", v.FlowACFM)
        .single("FlowGPM", v.FlowGPM)
        .single("FlowLBHR", v.FlowLBHR);
    result.raw("texts", shown.str()).raw("fields", fields.str());
}

// The text of a control of a tool, as its window would show it.
std::string shownText(const FormModel& tool, const Control& control)
{
    const TextControl* text = tool.textOf(control);
    return text ? text->text : std::string();
}

void gasDensityCompute(const RequestArgs& a, JsonObject& result)
{
    ScriptedUserInterface ui;
    GasDensityModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    GasDensityData values = tool.record();
    values.temperature = a.single("temperature");
    values.pressure = a.single("pressure");
    values.molecularWeight = a.single("molecularWeight");
    values.compressibility = a.single("compressibility");
    tool.useRecord(values);
    tool.ComputeDensity();
    JsonObject texts;
    for (int i = 0; i < gas_density::kFields; ++i)
        texts.text(Control{"txtData", i}.name(), shownText(tool, unit_field_dialog::txtData(i)));
    result.single("density", tool.record().density).raw("texts", texts.str());
}

void compressFactorComputeZ(const RequestArgs& a, JsonObject& result)
{
    ScriptedUserInterface ui;
    CompressFactorModel tool(ui, nullptr);
    tool.Form_Load();
    CompressFactorData values = tool.record();
    values.temperature = a.single("temperature");
    values.pressure = a.single("pressure");
    values.criticalTemperature = a.single("criticalTemperature");
    values.criticalPressure = a.single("criticalPressure");
    tool.useRecord(values);
    tool.commitText(compress_factor::AcentricFactor, a.textOr("acentricText", ""));
    const json& hydrogen = a.raw().contains("hydrogen") ? a.raw()["hydrogen"] : json(false);
    tool.chkHydrogen_Click(hydrogen.is_boolean() ? hydrogen.get<bool>() : a.integer16("hydrogen") != 0);
    tool.optEOS_Click(std::clamp<int>(a.integer16("eos"), 0, 2));
    result.text("txtData(5)", shownText(tool, unit_field_dialog::txtData(compress_factor::Z)));
}

void heatCapRatioComputeRatio(const RequestArgs& a, JsonObject& result)
{
    ScriptedUserInterface ui;
    HeatCapRatioModel tool(ui);
    HeatCapRatioData values = tool.record();
    values.temperature = a.single("temperature");
    values.pressure = a.single("pressure");
    values.criticalTemperature = a.single("criticalTemperature");
    values.criticalPressure = a.single("criticalPressure");
    values.heatCapacity = a.single("heatCapacity");
    tool.useRecord(values);
    tool.ComputeRatio();
    const LabelControl* checkInput = tool.labelOf(heat_cap_ratio::lblError);
    result.single("ratio", tool.record().ratio)
        .text("text", shownText(tool, unit_field_dialog::txtData(heat_cap_ratio::Ratio)))
        .boolean("errorShown", checkInput && checkInput->visible);
}

void minorLossesSum(const RequestArgs& a, JsonObject& result)
{
    ScriptedUserInterface ui;
    MinorLossesModel tool(ui);
    std::array<std::string, minor_losses::kFittings> quantities;
    std::array<std::string, 3> kValues;
    const std::vector<std::string> givenQuantities = textList(a, "quantities", 35);
    const std::vector<std::string> givenKValues = textList(a, "kValues", 3);
    std::copy(givenQuantities.begin(), givenQuantities.end(), quantities.begin());
    std::copy(givenKValues.begin(), givenKValues.end(), kValues.begin());
    tool.showTexts(quantities, kValues);
    const MinorLossesState& form = tool.view();
    result.text("txtTotalK1", form.txtTotalK1.text).text("txtTotalK2", form.txtTotalK2.text).text("txtTotalK", form.txtTotalK.text);
}

void reducerRow(ReducerKind kind, const RequestArgs& a, JsonObject& result)
{
    ScriptedUserInterface ui;
    ReducerModel tool(kind, ui);
    const int row = a.integer16("row");
    if (row < 0 || row >= ReducerModel::kRows)
        throw RequestError("argument 'row' must be 0 to 9");
    // The angle and then the beta are left as a user leaves them: a value out
    // of range shows its message, empties the K and stops there.
    if (row < ReducerModel::kGradualRows)
        tool.commit(reducer::txtAngle(row), a.textOr("angle", ""));
    if (!tool.focusRequest())
        tool.commit(reducer::txtBeta(row), a.textOr("beta", ""));
    result.text(Control{"txtKValue", row}.name(), tool.view().txtKValue[static_cast<size_t>(row)].text)
        .raw("messages", messagesJson(ui));
}

} // namespace

int controlIndex(const std::string& name, const std::string& family)
{
    if (name.size() < family.size() + 3 || name.compare(0, family.size(), family) != 0 ||
        name[family.size()] != '(' || name.back() != ')')
        return -1;
    const char* first = name.data() + family.size() + 1;
    const char* last = name.data() + name.size() - 1;
    int index = -1;
    const auto [end, error] = std::from_chars(first, last, index);
    return (error == std::errc() && end == last) ? index : -1;
}

void addToolCalls(std::map<std::string, CallSpec, std::less<>>& calls)
{
    calls["PressureDrop.CalculateResults"] = {{}, pressureDropCalculateResults};
    calls["OrificePlates.ComputeOrifice"] = {{}, orificePlatesComputeOrifice};
    calls["PumpNetwork.NetCalc"] = {{}, pumpNetworkNetCalc};
    calls["FlowConversions.Convert"] = {{"conversion", "stp", "units", "field"}, flowConversionsConvert};
    calls["GasDensity.Compute"] = {{"temperature", "pressure", "molecularWeight", "compressibility"}, gasDensityCompute};
    calls["CompressFactor.ComputeZ"] = {
        {"temperature", "pressure", "criticalTemperature", "criticalPressure", "eos"}, compressFactorComputeZ};
    calls["HeatCapRatio.ComputeRatio"] = {
        {"temperature", "pressure", "criticalTemperature", "criticalPressure", "heatCapacity"}, heatCapRatioComputeRatio};
    calls["MinorLosses.Sum"] = {{}, minorLossesSum};
    calls["Contractions.Row"] = {{"row"}, [](const RequestArgs& a, JsonObject& r) { reducerRow(ReducerKind::Contraction, a, r); }};
    calls["Enlargements.Row"] = {{"row"}, [](const RequestArgs& a, JsonObject& r) { reducerRow(ReducerKind::Enlargement, a, r); }};
}

} // namespace kestrova::calc
