#include "tools/properties/calc/property_correlation.h"

#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"
#include "numeric/single.h"

namespace kestrova {

using checked::Div;
using checked::Exp;
using checked::Log;
using checked::Pow;

namespace {

// sinh and cosh formed from exp, of an argument held as a single.
double hyperbolicSine(Single x) { return (Exp(x) - Exp(-x)) / 2; }
double hyperbolicCosine(Single x) { return (Exp(x) + Exp(-x)) / 2; }

double evaluate(double T, double Tc, const CorrelationCoefficients& coefficients, std::int16_t equation)
{
    const auto [A, B, C, D, E] = coefficients;
    switch (equation) {
    case 7:
        return A + B * T + C * Pow(T, 2) + D * Pow(T, 3) + E * Pow(T, 4);
    case 6:
        return Exp(A + Div(B, T) + C * Log(T) + D * Pow(T, E));
    case 5:
        return Div(A * Pow(T, B), 1 + Div(C, T) + Div(D, Pow(T, 2)));
    case 4:
        return Div(A, Pow(B, 1 + Pow(1 - Div(T, C), D)));
    case 3: {
        const Single Tr = Div(T, Tc);
        return A * Pow(1 - Tr, B + C * Tr + D * Pow(Tr, 2) + E * Pow(Tr, 3));
    }
    case 2: {
        const Single cOverT = Div(C, T);
        const Single eOverT = Div(E, T);
        return A + B * Pow(Div(C, T * hyperbolicSine(cOverT)), 2) + D * Pow(Div(E, T * hyperbolicCosine(eOverT)), 2);
    }
    default:
        return 0.0;
    }
}

} // namespace

double PropertyCorrelation(double T, double Tc, const CorrelationCoefficients& coefficients, std::int16_t equation)
{
    FaultScope scope("PropertyCorrelation");
    return checked::Finite(evaluate(T, Tc, coefficients, equation));
}

} // namespace kestrova
