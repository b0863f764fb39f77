#pragma once
// Stored numbers. Every value that the program keeps is a 32-bit single; the
// arithmetic of one expression runs in double, and storing rounds to single.
// `Single` makes that rule hold by construction: it converts to double for any
// arithmetic, and rounds (and range-checks) when it is assigned.

#include <cfloat>
#include <cmath>
#include <cstdint>

namespace kestrova {

namespace detail {
// Raises the fault of a value no single can hold: NaN or beyond the range.
[[noreturn]] void raiseNotStorable(double value);
}

// Rounds a double to the nearest single. A NaN is an invalid operation and a
// value beyond the single range an overflow: both raise a NumericFault.
// Inline: a sound value costs one comparison and the conversion.
inline float roundToSingle(double value)
{
    // Half an ulp above FLT_MAX is where rounding to single reaches infinity.
    constexpr double kLimit = static_cast<double>(FLT_MAX) + 0x1p103;
    if (!(std::fabs(value) < kLimit)) [[unlikely]] // also NaN, which compares false
        detail::raiseNotStorable(value);
    return static_cast<float>(value);
}

class Single {
public:
    constexpr Single() = default;
    Single(double value) : value_(roundToSingle(value)) {} // NOLINT: storing rounds, by design
    constexpr operator double() const { return value_; }   // NOLINT: arithmetic runs in double

    constexpr float value() const { return value_; }

private:
    float value_ = 0.0f;
};

// A single literal as the program holds it: single(0.1) is 0.10000000149...
constexpr double single(double literal)
{
    return static_cast<double>(static_cast<float>(literal));
}

// Rounds to a 16-bit integer the way an integer argument is passed: to the
// nearest, halves to even; beyond -32768..32767 is an overflow.
std::int16_t roundToInteger16(double value);

} // namespace kestrova
