#include "calc/request_args.h"

#include "numeric/numeric_fault.h"

#include <cmath>

namespace kestrova::calc {

namespace {

// A finite number, or the request's error or fault naming the argument; the
// name is made only for the message.
template <typename Name>
double checkedNumber(const nlohmann::json& value, const Name& name)
{
    if (!value.is_number())
        throw RequestError("argument '" + name() + "' is not a number");
    const double number = value.get<double>();
    if (!std::isfinite(number)) {
        FaultScope scope("arguments");
        raiseFault(FaultKind::Overflow, ("argument '" + name() + "'").c_str());
    }
    return number;
}

} // namespace

double numberValue(const nlohmann::json& value, const std::string& name)
{
    return checkedNumber(value, [&name] { return name; });
}

double elementValue(const nlohmann::json& value, std::string_view array, std::size_t index)
{
    return checkedNumber(value, [&] { return std::string(array) + "[" + std::to_string(index) + "]"; });
}

const nlohmann::json& RequestArgs::value(const std::string& name) const
{
    const auto found = args_.find(name);
    if (found == args_.end())
        throw RequestError("missing argument '" + name + "'");
    return *found;
}

double RequestArgs::real(const std::string& name) const
{
    return numberValue(value(name), name);
}

Single RequestArgs::single(const std::string& name) const
{
    const double number = real(name);
    FaultScope scope("arguments");
    return number;
}

std::int16_t RequestArgs::integer16(const std::string& name) const
{
    const double number = real(name);
    FaultScope scope("arguments");
    return roundToInteger16(number);
}

std::string RequestArgs::text(const std::string& name) const
{
    const nlohmann::json& v = value(name);
    if (!v.is_string())
        throw RequestError("argument '" + name + "' is not a text");
    return v.get<std::string>();
}

std::string RequestArgs::textOr(const std::string& name, const std::string& fallback) const
{
    return args_.contains(name) ? text(name) : fallback;
}

} // namespace kestrova::calc
