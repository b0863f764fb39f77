#pragma once
// One request line of kestrova-calc in, one response line out.

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace kestrova::calc {

// The longest request line that is read at all, and the deepest nesting of
// arrays and objects a request may have: beyond either the line gets an
// error answer, and the next line is read as usual.
inline constexpr std::size_t kMaxRequestBytes = 1u << 20;
inline constexpr int kMaxRequestDepth = 64;

// Answers a JSON request object. Never throws: a malformed request gives an
// "error" answer and a numeric fault a "fault" answer.
std::string answerRequest(std::string_view line);

// Reads the next line of a request stream into `line`, without its end of
// line, but never more than kMaxRequestBytes of it: the rest of a longer line
// is skipped unread and `tooLong` is set. False at the end of the stream.
bool readRequestLine(std::istream& in, std::string& line, bool& tooLong);

// The answer to a line that was too long to be read.
std::string tooLongAnswer();

} // namespace kestrova::calc
