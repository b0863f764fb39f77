#pragma once
// What a run of a tool model showed the user, as JSON: the messages, and the
// state of the pressure drop and orifice tools after a run.

#include "calc/json_result.h"

#include <string>

namespace kestrova {
class ScriptedUserInterface;
class PressureDropModel;
class OrificeModel;
} // namespace kestrova

namespace kestrova::calc {

// [{"title": ..., "text": ..., "icon": "warning|stop|info|question"}, ...]
std::string messagesJson(const ScriptedUserInterface& ui);

// record, texts, frames, failed, messages and beeps of the pressure drop tool.
void reportPressureDrop(const PressureDropModel& tool, const ScriptedUserInterface& ui, JsonObject& result);

// record and texts of the orifice tool after a run.
void reportOrifice(OrificeModel& tool, JsonObject& result);

// The record field names of the pressure drop tool, in file order.
const char* const* pressureDropFieldNames();

} // namespace kestrova::calc
