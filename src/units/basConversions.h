#pragma once
// The one place where a number changes its unit. Every quantity has a base
// unit in which the tools keep and compute it, and a list of display units
// (basLoadUnits). `...ToUnit` takes a base value to the unit of list index
// `index`; `...FromUnit` takes it back with the very same constant. An index
// outside the list gives 0. The arithmetic runs in double.

#include <cstdint>

namespace kestrova {

using UnitIndex = std::int16_t;

double TemperatureToUnit(double x, UnitIndex index);   // base °F
double TemperatureFromUnit(double x, UnitIndex index);
double PressureToUnit(double x, UnitIndex index);      // base psi
double PressureFromUnit(double x, UnitIndex index);
double PascalToUnit(double x, UnitIndex index);        // base Pa, to the pressure list
double DensityToUnit(double x, UnitIndex index);       // base lbm/ft3
double DensityFromUnit(double x, UnitIndex index);
double DensityProductToUnit(double a, double b, UnitIndex index); // a b in kg/m3
double ViscosityToUnit(double x, UnitIndex index);     // base Pa s
double ViscosityFromUnit(double x, UnitIndex index);
double SurfaceTensionToUnit(double x, UnitIndex index); // base N/m
double SurfaceTensionFromUnit(double x, UnitIndex index);
double RoughnessToUnit(double x, UnitIndex index);     // base ft
double RoughnessFromUnit(double x, UnitIndex index);
double FlowToUnit(double x, UnitIndex index);          // base lbm/hr
double FlowFromUnit(double x, UnitIndex index);
double VelocityToUnit(double x, UnitIndex index);      // base ft/s
double VelocityFromUnit(double x, UnitIndex index);
double LengthToUnit(double x, UnitIndex index);        // base ft
double LengthFromUnit(double x, UnitIndex index);
double DiameterToUnit(double x, UnitIndex index);      // base in
double DiameterFromUnit(double x, UnitIndex index);
double HeatCapacityToUnit(double x, UnitIndex index);  // base kJ/kgmol-K
double HeatCapacityFromUnit(double x, UnitIndex index);
double ExpansionToUnit(double x, UnitIndex index);     // base 1/°F
double ExpansionFromUnit(double x, UnitIndex index);
double PowerToUnit(double x, UnitIndex index);         // base hp
double HeadToUnit(double x, UnitIndex index);          // base ft

} // namespace kestrova
