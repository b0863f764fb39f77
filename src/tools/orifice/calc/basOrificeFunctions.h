#pragma once
// The physics of a square-edged concentric orifice plate: the discharge
// coefficient (Reader-Harris/Gallagher, ISO 5167-2) with its validity
// warnings, the thermal expansion factor and the drain or vent hole factor.

#include "numeric/single.h"

#include <cstdint>
#include <string>

namespace kestrova {

// Pressure tap style: 0 flange, 1 D and D/2, 2 corner.
using TapStyle = std::int16_t;

// D in inches. `message` is assigned only when a warning is raised, never
// cleared: a later warning replaces an earlier one.
Single OrificeDischargeCoefficient(Single D, Single beta, Single Re, TapStyle tap, std::string& message);

// Coefficients per °F, temperatures in °F.
Single OrificeThermalFactor(Single beta, Single alphaElement, Single alphaPipe, Single temperature,
                            Single referenceTemperature);

// Hole diameter and D in the same unit.
Single OrificeDrainHoleFactor(Single beta, Single holeDiameter, Single D);

} // namespace kestrova
