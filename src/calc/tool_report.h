#pragma once
// What a run of a tool model showed the user, as JSON: the messages, and the
// state of the pressure drop and orifice tools after a run.

#include "calc/json_result.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace kestrova {
class ScriptedUserInterface;
class PressureDropModel;
class OrificeModel;
class PumpNetworkModel;
struct NetworkState;
class Single;
} // namespace kestrova

namespace kestrova::calc {

// [{"title": ..., "text": ..., "icon": "warning|stop|info|question"}, ...]
std::string messagesJson(const ScriptedUserInterface& ui);

// record, texts, frames, failed, messages and beeps of the pressure drop tool.
void reportPressureDrop(const PressureDropModel& tool, const ScriptedUserInterface& ui, JsonObject& result);

// record and texts of the orifice tool after a run.
void reportOrifice(const OrificeModel& model, JsonObject& result);

// Every array and scalar of the network, the texts of txtData(0..33) and the grid.
void reportPumpNetwork(const PumpNetworkModel& tool, JsonObject& result);

// The network's arrays of results and its scalars, by their program names.
std::vector<std::pair<const char*, std::array<Single, 12>*>> networkResultArrays(NetworkState& state);
Single* networkScalar(NetworkState& state, const std::string& name);

// The record field names of the pressure drop tool, in file order.
const char* const* pressureDropFieldNames();

} // namespace kestrova::calc
