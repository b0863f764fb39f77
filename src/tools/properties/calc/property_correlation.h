#pragma once
// The temperature correlations of the compound data base, by equation number
// (7 to 2, the forms of DIPPR equations 100, 101, 102, 105, 106 and 107).

#include <array>
#include <cstdint>

namespace kestrova {

using CorrelationCoefficients = std::array<double, 5>; // A, B, C, D, E

// T and Tc in kelvin. An unknown equation number gives 0.
double PropertyCorrelation(double T, double Tc, const CorrelationCoefficients& coefficients, std::int16_t equation);

} // namespace kestrova
