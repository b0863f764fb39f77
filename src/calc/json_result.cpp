#include "calc/json_result.h"

#include <nlohmann/json.hpp>

#include "numeric/numeric_fault.h"

#include <cmath>
#include <cstdio>

namespace kestrova::calc {

std::string quoted(std::string_view text)
{
    // Replace what is not UTF-8 rather than fail on a message text.
    return nlohmann::json(std::string(text)).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string singleText(double value)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.9g", value);
    return buffer;
}

std::string realText(double value)
{
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.17g", value);
    return buffer;
}

void JsonObject::key(std::string_view name)
{
    if (!body_.empty())
        body_ += ", ";
    body_ += quoted(name);
    body_ += ": ";
}

JsonObject& JsonObject::single(std::string_view name, double value)
{
    key(name);
    body_ += singleText(value);
    return *this;
}

JsonObject& JsonObject::real(std::string_view name, double value)
{
    if (!std::isfinite(value))
        raiseFault(FaultKind::Overflow, "a result");
    key(name);
    body_ += realText(value);
    return *this;
}

JsonObject& JsonObject::integer(std::string_view name, long long value)
{
    key(name);
    body_ += std::to_string(value);
    return *this;
}

JsonObject& JsonObject::text(std::string_view name, std::string_view value)
{
    key(name);
    body_ += quoted(value);
    return *this;
}

JsonObject& JsonObject::boolean(std::string_view name, bool value)
{
    key(name);
    body_ += value ? "true" : "false";
    return *this;
}

JsonObject& JsonObject::null(std::string_view name)
{
    key(name);
    body_ += "null";
    return *this;
}

JsonObject& JsonObject::raw(std::string_view name, std::string_view json)
{
    key(name);
    body_ += json;
    return *this;
}

} // namespace kestrova::calc
