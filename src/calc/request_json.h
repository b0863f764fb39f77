#pragma once
// A request line read into the JSON value the calls take apart. The line is
// read by simdjson and its value built as nlohmann's parser builds it (the
// same types, the last of two equal keys kept); a line that simdjson refuses,
// or that may hold a whole -0, goes to nlohmann's parser, whose value and
// error messages stand.

#include <nlohmann/json.hpp>

#include <string_view>

namespace kestrova::calc {

// Throws nlohmann::json::exception for a line that is not JSON.
nlohmann::json parseRequestJson(std::string_view line);

} // namespace kestrova::calc
