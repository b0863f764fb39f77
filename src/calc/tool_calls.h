#pragma once
// The tool calls of the protocol: one calculation run of a tool model, built
// fresh, given its inputs as a user would have left them.

#include "calc/function_calls.h"

namespace kestrova::calc {

void addToolCalls(std::map<std::string, CallSpec, std::less<>>& calls);

// The index of a control name such as "txtData(5)" within its family, or -1.
int controlIndex(const std::string& name, const std::string& family);

} // namespace kestrova::calc
