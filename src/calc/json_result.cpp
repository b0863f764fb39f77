#include "calc/json_result.h"

#include <nlohmann/json.hpp>

#include "numeric/numeric_fault.h"

#include <charconv>
#include <cmath>

namespace kestrova::calc {

namespace {

// Printable ASCII without a quote or a backslash stands in JSON as it is.
bool plainJson(std::string_view text)
{
    for (const char c : text)
        if (c < 0x20 || c > 0x7e || c == '"' || c == '\\')
            return false;
    return true;
}

// printf's "%.<digits>g", which round-trips a single at 9 and a double at 17.
std::string generalText(double value, int digits)
{
    char buffer[40];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits).ptr};
}

} // namespace

void appendQuoted(std::string& json, std::string_view text)
{
    if (plainJson(text)) {
        json.append(1, '"').append(text).append(1, '"');
        return;
    }
    // Replace what is not UTF-8 rather than fail on a message text.
    json += nlohmann::json(std::string(text)).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string quoted(std::string_view text)
{
    std::string json;
    json.reserve(text.size() + 2);
    appendQuoted(json, text);
    return json;
}

std::string singleText(double value)
{
    return generalText(value, 9);
}

std::string realText(double value)
{
    return generalText(value, 17);
}

void JsonObject::key(std::string_view name)
{
    if (!body_.empty())
        body_ += ", ";
    appendQuoted(body_, name);
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
    appendQuoted(body_, value);
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
