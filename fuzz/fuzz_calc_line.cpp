// One request line of kestrova-calc: every line gets one answer line that is
// valid JSON, whatever the line held, and the line is read as nlohmann's
// parser reads it (the same value, or a refusal by both).

#include "fuzz_support.h"

#include "calc/calc_protocol.h"
#include "calc/request_json.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

// The text of the value read, or of the refusal.
std::string readAs(std::string_view line, nlohmann::json (*read)(std::string_view))
{
    try {
        return read(line).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    } catch (const nlohmann::json::exception& error) {
        return std::string("refused: ") + error.what();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kestrova::fuzz::ensureApplication();
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    const std::string read = readAs(line, kestrova::calc::parseRequestJson);
    const std::string expected = readAs(line, [](std::string_view text) { return nlohmann::json::parse(text); });
    if (read != expected) {
        std::fprintf(stderr, "read as %s\nnlohmann reads %s\n", read.c_str(), expected.c_str());
        std::abort();
    }
    const std::string answer = kestrova::calc::answerRequest(line);
    if (answer.find('\n') != std::string::npos || !nlohmann::json::accept(answer)) {
        std::fprintf(stderr, "not one JSON line: %s\n", answer.c_str());
        std::abort();
    }
    return 0;
}
