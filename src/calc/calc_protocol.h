#pragma once
// One request line of kestrova-calc in, one response line out.

#include <string>
#include <string_view>

namespace kestrova::calc {

// Answers a JSON request object. Never throws: a malformed request gives an
// "error" answer and a numeric fault a "fault" answer.
std::string answerRequest(std::string_view line);

} // namespace kestrova::calc
