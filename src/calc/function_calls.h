#pragma once
// The stateless calls of the protocol: correlations, unit conversions, the
// display formatter and the field reader. Each reads its arguments by the
// program's own names and writes its result object.

#include "calc/json_result.h"
#include "calc/request_args.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kestrova::calc {

using CallHandler = std::function<void(const RequestArgs&, JsonObject& result)>;

struct CallSpec {
    std::vector<std::string> arguments; // required, in the program's order
    CallHandler run;
};

const std::map<std::string, CallSpec, std::less<>>& functionCalls();

} // namespace kestrova::calc
