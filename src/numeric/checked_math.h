#pragma once
// The operations of an expression that can fail, each checked where it runs:
// a zero divisor, a logarithm of a non-positive number, a root of a negative
// one, a negative base under a fractional power, and any result that leaves
// the double range. A failing step raises a NumericFault at once.
//
// Each operation is inline with one test for the usual case (finite operands
// in the operation's plain domain) and one for a finite result; anything else
// goes to the operation's careful path out of line, which tells the faults
// apart in their order and computes the unusual cases that are sound (a zero
// base, a negative base under a whole exponent).

#include <cmath>
#include <limits>

namespace kestrova::checked {

namespace detail {
inline bool isFinite(double x)
{
    return std::fabs(x) < std::numeric_limits<double>::infinity(); // false for NaN too
}

[[noreturn]] void raiseNotFinite(double result, const char* operation);
double carefulDiv(double numerator, double denominator);
double carefulPow(double base, double exponent);
double carefulLog(double x);
double carefulSqr(double x);
double carefulExp(double x);

inline double finite(double result, const char* operation)
{
    if (!isFinite(result)) [[unlikely]]
        raiseNotFinite(result, operation);
    return result;
}
} // namespace detail

// The usual case's tests are joined by & rather than &&, so that they make
// one test without branches between them; clang's warning about & between
// truth values does not apply here.
#if defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wbitwise-instead-of-logical"
#endif

inline double Div(double numerator, double denominator)
{
    if (detail::isFinite(numerator) & detail::isFinite(denominator) & (denominator != 0.0)) [[likely]]
        return detail::finite(numerator / denominator, "a division");
    return detail::carefulDiv(numerator, denominator);
}

// The general power operation.
inline double Pow(double base, double exponent)
{
    if (detail::isFinite(base) & detail::isFinite(exponent) & (base > 0.0)) [[likely]]
        return detail::finite(std::pow(base, exponent), "a power");
    return detail::carefulPow(base, exponent);
}

#if defined(__clang__)
#pragma clang diagnostic pop
#endif

// The natural logarithm.
inline double Log(double x)
{
    if (detail::isFinite(x) & (x > 0.0)) [[likely]]
        return std::log(x);
    return detail::carefulLog(x);
}

// The square root.
inline double Sqr(double x)
{
    if (detail::isFinite(x) & (x >= 0.0)) [[likely]]
        return std::sqrt(x);
    return detail::carefulSqr(x);
}

inline double Exp(double x)
{
    if (detail::isFinite(x)) [[likely]]
        return detail::finite(std::exp(x), "an exponential");
    return detail::carefulExp(x);
}

// A double result that leaves the function: infinity or NaN is a fault.
inline double Finite(double x)
{
    return detail::finite(x, "a result");
}

} // namespace kestrova::checked
