#include "units/basConversions.h"

#include <array>
#include <cstddef>
#include <span>

namespace kestrova {

namespace {

// One display unit of a proportional quantity: the base value is multiplied
// by the factor, or divided by it, as the unit's table says. The way back uses
// the same constant the other way round, so a pair is exact up to rounding.
struct Factor {
    enum Kind { Times, Over } kind;
    double constant;
};

constexpr Factor times(double c) { return {Factor::Times, c}; }
constexpr Factor over(double c) { return {Factor::Over, c}; }
constexpr Factor same() { return times(1.0); }

double toUnit(std::span<const Factor> units, double x, UnitIndex index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= units.size())
        return 0.0;
    const Factor f = units[static_cast<std::size_t>(index)];
    return f.kind == Factor::Times ? x * f.constant : x / f.constant;
}

double fromUnit(std::span<const Factor> units, double x, UnitIndex index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= units.size())
        return 0.0;
    const Factor f = units[static_cast<std::size_t>(index)];
    return f.kind == Factor::Times ? x / f.constant : x * f.constant;
}

constexpr std::array kPressure{same(), over(14.696), times(2.035996189), times(27.679903968),
                               times(51.714752314), times(6.894733261), times(6894.733261), times(0.068947333)};
constexpr std::array kPascal{times(0.000145038), over(101325), times(0.000295297), times(0.0040146307),
                             times(0.007500617), times(0.001), same(), times(1e-05)};
constexpr std::array kDensity{same(), times(0.0160184634), times(16.018463373), times(0.1336805555)};
constexpr std::array kDensityProduct{times(0.062428181), times(0.001), same(), times(0.008345459)};
constexpr std::array kViscosity{times(1000), times(2419.2), same(), same()};
constexpr std::array kSurfaceTension{times(1000), over(14.5937267), same()};
constexpr std::array kRoughness{times(12), same(), times(304.8), times(30.48)};
constexpr std::array kFlow{same(), over(60), over(3600), times(0.4535923644), times(0.0075598799), times(0.000126)};
constexpr std::array kVelocity{times(60), same(), times(18.288), times(0.3048)};
constexpr std::array kLength{times(12), same(), times(0.000189393939), times(30.48), times(0.3048), times(0.0003048)};
constexpr std::array kDiameter{same(), over(12), times(0.0277777778), times(25.4), times(2.54), times(0.0254)};
constexpr std::array kHeatCapacity{times(0.239), times(0.239), same()};
constexpr std::array kExpansion{same(), times(1.8)};
constexpr std::array kPower{same(), times(0.745712)};
constexpr std::array kHead{same(), over(3.2808)};

} // namespace

double TemperatureToUnit(double x, UnitIndex index)
{
    switch (index) {
    case 0: return x;
    case 1: return (x - 32) / 1.8;
    case 2: return x + 459.69;
    case 3: return (x - 32) / 1.8 + 273.15;
    default: return 0.0;
    }
}

double TemperatureFromUnit(double x, UnitIndex index)
{
    switch (index) {
    case 0: return x;
    case 1: return 1.8 * x + 32;
    case 2: return x - 459.69;
    case 3: return 1.8 * (x - 273.15) + 32;
    default: return 0.0;
    }
}

double PressureToUnit(double x, UnitIndex index) { return toUnit(kPressure, x, index); }
double PressureFromUnit(double x, UnitIndex index) { return fromUnit(kPressure, x, index); }
double PascalToUnit(double x, UnitIndex index) { return toUnit(kPascal, x, index); }
double DensityToUnit(double x, UnitIndex index) { return toUnit(kDensity, x, index); }
double DensityFromUnit(double x, UnitIndex index) { return fromUnit(kDensity, x, index); }
double DensityProductToUnit(double a, double b, UnitIndex index) { return toUnit(kDensityProduct, a * b, index); }
double ViscosityToUnit(double x, UnitIndex index) { return toUnit(kViscosity, x, index); }
double ViscosityFromUnit(double x, UnitIndex index) { return fromUnit(kViscosity, x, index); }
double SurfaceTensionToUnit(double x, UnitIndex index) { return toUnit(kSurfaceTension, x, index); }
double SurfaceTensionFromUnit(double x, UnitIndex index) { return fromUnit(kSurfaceTension, x, index); }
double RoughnessToUnit(double x, UnitIndex index) { return toUnit(kRoughness, x, index); }
double RoughnessFromUnit(double x, UnitIndex index) { return fromUnit(kRoughness, x, index); }
double FlowToUnit(double x, UnitIndex index) { return toUnit(kFlow, x, index); }
double FlowFromUnit(double x, UnitIndex index) { return fromUnit(kFlow, x, index); }
double VelocityToUnit(double x, UnitIndex index) { return toUnit(kVelocity, x, index); }
double VelocityFromUnit(double x, UnitIndex index) { return fromUnit(kVelocity, x, index); }
double LengthToUnit(double x, UnitIndex index) { return toUnit(kLength, x, index); }
double LengthFromUnit(double x, UnitIndex index) { return fromUnit(kLength, x, index); }
double DiameterToUnit(double x, UnitIndex index) { return toUnit(kDiameter, x, index); }
double DiameterFromUnit(double x, UnitIndex index) { return fromUnit(kDiameter, x, index); }
double HeatCapacityToUnit(double x, UnitIndex index) { return toUnit(kHeatCapacity, x, index); }
double HeatCapacityFromUnit(double x, UnitIndex index) { return fromUnit(kHeatCapacity, x, index); }
double ExpansionToUnit(double x, UnitIndex index) { return toUnit(kExpansion, x, index); }
double ExpansionFromUnit(double x, UnitIndex index) { return fromUnit(kExpansion, x, index); }
double PowerToUnit(double x, UnitIndex index) { return toUnit(kPower, x, index); }
double HeadToUnit(double x, UnitIndex index) { return toUnit(kHead, x, index); }

} // namespace kestrova
