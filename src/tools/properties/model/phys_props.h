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

class UserInterface;

// A dialog tool's Properties button: the physical properties tool asked for a
// gas at the dialog's temperature. False, after the program's message under
// the dialog's title, when the data base cannot be found, and when the user
// closed the tool without applying; true when physProps() holds the gas.
bool fetchGasProperties(UserInterface& ui, const char* title, bool dataBaseValid, Single temperature);

} // namespace kestrova
