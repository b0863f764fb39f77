// Single-phase friction: Reynolds numbers, the Darcy friction factor (laminar
// by cross-section, Churchill's equation when turbulent), velocity and heads.

#include "hydraulics/basTransportFunctions.h"

#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

using checked::Div;
using checked::Log;
using checked::Pow;

namespace {

constexpr double kCentipoiseToLbPerFtSecond = 0.000672;
constexpr double kCentipoiseToLbPerFtHour = 2.42;
constexpr double kTwiceGravity = 64.3484; // ft/s2
constexpr double kLaminarLimit = 2100;

double laminarFriction(double re, CrossSectionKind kind, double a, double k)
{
    switch (kind) {
    case 1:
        return Div(64, re);
    case 2: {
        const double polynomial = 95.959691 - 128.49339 * Pow(a, 1) + 171.78396 * Pow(a, 2)
            - 116.54346 * Pow(a, 3) + 34.206046 * Pow(a, 4);
        return Div(polynomial, re);
    }
    default: { // annulus, with k the inner over the outer diameter
        const double L = Log(k);
        const double S = Div(k * k + 1, Pow(1 - k, 2)) + Div(1 + k, (1 - k) * L);
        const Single P = S * (re / 64);
        return Div(1, P);
    }
    }
}

// Churchill's form, the same for every cross-section.
double turbulentFriction(double re, double e)
{
    const double A = Pow(Div(37530, re), 16);
    const double B = Pow(2.457 * Log(Div(1, Pow(Div(7, re), 0.9) + 0.27 * e)), 16);
    const double C = Div(1, Pow(A + B, 1.5));
    return 8 * Pow(Pow(Div(8, re), 12) + C, 1.0 / 12.0);
}

} // namespace

Single ReynoldsNumber(Single density, Single diameter, Single velocity, Single viscosity,
                      CrossSectionKind kind, Single dimension1, Single dimension2)
{
    FaultScope scope("ReynoldsNumber");
    const double M = viscosity * kCentipoiseToLbPerFtSecond;
    switch (kind) {
    case 1:
        return Div(density * diameter / 12 * velocity, M);
    case 2:
        return Div(Div((density + density) * velocity, M) * dimension1 * dimension2, dimension1 + dimension2) / 12;
    case 3:
        return Div(density * velocity * dimension1 / 12, M) * (1 - Div(dimension2, dimension1));
    default:
        return 0.0;
    }
}

double ReynoldsFromMassFlow(Single diameter, Single massFlow, Single viscosity)
{
    FaultScope scope("ReynoldsFromMassFlow");
    return checked::Finite(Div(massFlow * 4, viscosity * (kCentipoiseToLbPerFtHour * (kPi * (diameter / 12)))));
}

Single FrictionFactor(Single reynolds, Single relativeRoughness, CrossSectionKind kind,
                      Single aspectRatio, Single diameterRatio)
{
    FaultScope scope("FrictionFactor");
    if (kind < 1 || kind > 3)
        return 0.0;
    if (reynolds < kLaminarLimit)
        return laminarFriction(reynolds, kind, aspectRatio, diameterRatio);
    return turbulentFriction(reynolds, relativeRoughness);
}

Single FlowVelocity(Single massFlow, Single density, Single diameter)
{
    FaultScope scope("FlowVelocity");
    const double Q = Div(Div(massFlow, density), 3600);
    const double area = Pow(diameter / 12, 2) * (kPi / 4);
    return Div(Q, area);
}

Single StraightRunDrop(Single frictionFactor, Single length, Single diameter, Single velocity)
{
    FaultScope scope("StraightRunDrop");
    const Single D = diameter / 12;
    return Div(frictionFactor * length, D) * velocity * velocity / kTwiceGravity;
}

Single MinorLossDrop(Single resistanceCoefficient, Single velocity)
{
    FaultScope scope("MinorLossDrop");
    return resistanceCoefficient * velocity * velocity / kTwiceGravity;
}

} // namespace kestrova
