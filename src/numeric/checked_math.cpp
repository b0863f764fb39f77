#include "numeric/checked_math.h"

#include "numeric/numeric_fault.h"

namespace kestrova::checked::detail {

void raiseNotFinite(double result, const char* operation)
{
    raiseFault(std::isnan(result) ? FaultKind::InvalidOperation : FaultKind::Overflow, operation);
}

double carefulDiv(double numerator, double denominator)
{
    finite(numerator, "a division");
    finite(denominator, "a division");
    if (denominator == 0.0)
        raiseFault(FaultKind::DivisionByZero, "a division");
    return finite(numerator / denominator, "a division");
}

double carefulPow(double base, double exponent)
{
    finite(base, "a power");
    finite(exponent, "a power");
    if (base == 0.0 && exponent < 0.0)
        raiseFault(FaultKind::DivisionByZero, "a power");
    if (base < 0.0 && exponent != std::trunc(exponent))
        raiseFault(FaultKind::InvalidOperation, "a power of a negative base");
    return finite(std::pow(base, exponent), "a power");
}

double carefulLog(double x)
{
    finite(x, "a logarithm");
    if (x <= 0.0)
        raiseFault(FaultKind::InvalidOperation, "a logarithm");
    return std::log(x);
}

double carefulSqr(double x)
{
    finite(x, "a square root");
    if (x < 0.0)
        raiseFault(FaultKind::InvalidOperation, "a square root");
    return std::sqrt(x);
}

double carefulExp(double x)
{
    finite(x, "an exponential");
    return finite(std::exp(x), "an exponential");
}

} // namespace kestrova::checked::detail
