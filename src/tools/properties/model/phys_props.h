#pragma once
// The last applied physical properties, shared by the tools that fetch them
// from the compound data base.

#include "numeric/single.h"

#include <string>

namespace kestrova {

struct PhysProps {
    Single temperature;         // °F
    Single molecularWeight;     // kg/kmol
    Single criticalTemperature; // °F
    Single criticalPressure;    // psi
    Single acentricFactor;
    Single liquidDensity;  // lb/ft3
    Single liquidViscosity; // kg/(m s)
    Single vaporViscosity;  // kg/(m s)
    Single vaporPressure;   // psi
    Single heatCapacity;    // kJ/(kmol K)
    Single surfaceTension;
    std::string liquidName;
    std::string gasName;
};

// The one shared record, and whether the last fetch ended without applying.
PhysProps& physProps();
bool& propertiesCancelled();

} // namespace kestrova
