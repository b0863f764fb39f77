#include "numeric/checked_math.h"

#include "numeric/numeric_fault.h"

#include <cmath>

namespace kestrova::checked {

namespace {
double finiteResult(double result, const char* operation)
{
    if (std::isnan(result))
        raiseFault(FaultKind::InvalidOperation, operation);
    if (std::isinf(result))
        raiseFault(FaultKind::Overflow, operation);
    return result;
}

void requireFinite(double operand, const char* operation)
{
    finiteResult(operand, operation);
}
} // namespace

double Div(double numerator, double denominator)
{
    requireFinite(numerator, "a division");
    requireFinite(denominator, "a division");
    if (denominator == 0.0)
        raiseFault(FaultKind::DivisionByZero, "a division");
    return finiteResult(numerator / denominator, "a division");
}

double Pow(double base, double exponent)
{
    requireFinite(base, "a power");
    requireFinite(exponent, "a power");
    if (base == 0.0 && exponent < 0.0)
        raiseFault(FaultKind::DivisionByZero, "a power");
    if (base < 0.0 && exponent != std::trunc(exponent))
        raiseFault(FaultKind::InvalidOperation, "a power of a negative base");
    return finiteResult(std::pow(base, exponent), "a power");
}

double Log(double x)
{
    requireFinite(x, "a logarithm");
    if (x <= 0.0)
        raiseFault(FaultKind::InvalidOperation, "a logarithm");
    return std::log(x);
}

double Sqr(double x)
{
    requireFinite(x, "a square root");
    if (x < 0.0)
        raiseFault(FaultKind::InvalidOperation, "a square root");
    return std::sqrt(x);
}

double Exp(double x)
{
    requireFinite(x, "an exponential");
    return finiteResult(std::exp(x), "an exponential");
}

double Finite(double x)
{
    return finiteResult(x, "a result");
}

} // namespace kestrova::checked
