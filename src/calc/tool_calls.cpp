#include "calc/tool_calls.h"

#include "calc/tool_report.h"
#include "frame/global_units.h"
#include "numeric/numeric_fault.h"
#include "frame/scripted_user_interface.h"
#include "tools/piping/minor_loss_store.h"
#include "tools/piping/pipe_selection.h"
#include "tools/pressure_drop/pressure_drop_model.h"
#include "tools/properties/phys_props.h"

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

void applyRecord(PressureDropModel& tool, const json& record)
{
    const auto fields = tool.record.fields();
    const char* const* names = pressureDropFieldNames();
    for (auto it = record.begin(); it != record.end(); ++it) {
        int found = -1;
        for (int i = 0; i < PressureDropData::kFieldCount; ++i)
            if (it.key() == names[i])
                found = i;
        if (found < 0)
            throw RequestError("unknown record field '" + it.key() + "'");
        const double value = numberValue(it.value(), it.key());
        FaultScope scope("arguments");
        *fields[static_cast<size_t>(found)] = value;
    }
}

void pressureDropCalculateResults(const RequestArgs& a, JsonObject& result)
{
    resetSharedState();
    ScriptedUserInterface ui;
    PressureDropModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();

    const json& args = a.raw();
    if (args.contains("tab"))
        tool.tab = std::clamp<int>(a.integer16("tab"), 0, 2);
    if (args.contains("crossSection"))
        tool.selectCrossSection(std::clamp<int>(a.integer16("crossSection"), 0, 5));
    if (args.contains("calcType"))
        tool.calcType = std::clamp<int>(a.integer16("calcType"), 0, 1);
    if (args.contains("orientation"))
        tool.selectOrientation(std::clamp<int>(a.integer16("orientation"), 0, 2));

    const json& units = objectArgument(args, "units");
    checkControlNames(units, {{"cboUnits", kPressureDropFields}});
    for (const auto& [index, value] : controlsOf(units, "cboUnits", kPressureDropFields)) {
        const double number = numberValue(*value, "cboUnits(" + std::to_string(index) + ")");
        FaultScope scope("arguments");
        tool.setUnit(index, roundToInteger16(number));
    }
    applyRecord(tool, objectArgument(args, "record"));
    for (int i = 0; i < kPressureDropFields; ++i)
        tool.cboUnits_Click(i);

    const json& texts = objectArgument(args, "texts");
    checkControlNames(texts, {{"txtData", kPressureDropFields}, {"txtDisplay", PressureDropModel::kDisplays}});
    for (const auto& [index, value] : controlsOf(texts, "txtData", kPressureDropFields)) {
        tool.txtData[static_cast<size_t>(index)].text = textValue(*value, "txtData(" + std::to_string(index) + ")");
        tool.commitFieldText(index);
    }
    for (const auto& [index, value] : controlsOf(texts, "txtDisplay", PressureDropModel::kDisplays)) {
        tool.txtDisplay[static_cast<size_t>(index)].text = textValue(*value, "txtDisplay(" + std::to_string(index) + ")");
        tool.commitDisplayText(index);
    }
    tool.CalculateResults();
    reportPressureDrop(tool, ui, result);
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

void resetSharedState()
{
    globalUnits() = GlobalUnits{};
    minorLossStore() = MinorLossStore{};
    CurrentLine() = 0;
    physProps() = PhysProps{};
    propertiesCancelled() = false;
    pipeToolRoughness() = 0.0;
}

void addToolCalls(std::map<std::string, CallSpec, std::less<>>& calls)
{
    calls["PressureDrop.CalculateResults"] = {{}, pressureDropCalculateResults};
}

} // namespace kestrova::calc
