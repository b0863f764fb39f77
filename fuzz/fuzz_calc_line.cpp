// One request line of kestrova-calc: every line gets one answer line that is
// valid JSON, whatever the line held.

#include "fuzz_support.h"

#include "calc/calc_protocol.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kestrova::fuzz::ensureApplication();
    const std::string answer =
        kestrova::calc::answerRequest(std::string_view(reinterpret_cast<const char*>(data), size));
    if (answer.find('\n') != std::string::npos || !nlohmann::json::accept(answer)) {
        std::fprintf(stderr, "not one JSON line: %s\n", answer.c_str());
        std::abort();
    }
    return 0;
}
