#pragma once
// The arguments of one request, read by the program's own argument names and
// rounded as the program's arguments are: singles to 32 bits, integers to 16.

#include <nlohmann/json.hpp>

#include "numeric/single.h"

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrova::calc {

// A request that cannot be answered as asked: the message says why.
class RequestError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class RequestArgs {
public:
    explicit RequestArgs(const nlohmann::json& args) : args_(args) {}

    double real(const std::string& name) const;
    Single single(const std::string& name) const;
    std::int16_t integer16(const std::string& name) const;
    std::string text(const std::string& name) const;
    std::string textOr(const std::string& name, const std::string& fallback) const;
    template <std::size_t N>
    std::array<double, N> reals(const std::string& name) const;
    const nlohmann::json& raw() const { return args_; }

private:
    const nlohmann::json& value(const std::string& name) const;
    const nlohmann::json& args_;
};

double numberValue(const nlohmann::json& value, const std::string& name);
// Element `index` of the array argument `array`, named "array[index]" in a message.
double elementValue(const nlohmann::json& value, std::string_view array, std::size_t index);

template <std::size_t N>
std::array<double, N> RequestArgs::reals(const std::string& name) const
{
    const nlohmann::json& list = value(name);
    if (!list.is_array() || list.size() != N)
        throw RequestError("argument '" + name + "' must be an array of " + std::to_string(N) + " numbers");
    std::array<double, N> numbers{};
    for (std::size_t i = 0; i < N; ++i)
        numbers[i] = elementValue(list[i], name, i);
    return numbers;
}

} // namespace kestrova::calc
