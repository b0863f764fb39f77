#pragma once
// The global unit set: one unit index per quantity, which every tool takes
// over at each activation. Twelve of the fifteen are read from section
// "Units" at start; heat capacity, head and power are written but begin at 0
// in every run.

#include "units/basConversions.h"

#include <array>

namespace kestrova {

class SettingsStore;

enum class Quantity {
    Temperature, Pressure, Density, Viscosity, SurfaceTension, Roughness, Flow, Velocity,
    Length, Diameter, PressureDrop, VaporPressure, HeatCapacity, Head, Power
};
inline constexpr int kQuantityCount = 15;

struct GlobalUnits {
    std::array<UnitIndex, kQuantityCount> index{0, 0, 0, 0, 1, 1, 0, 1, 1, 0, 0, 0, 0, 0, 0};

    UnitIndex operator[](Quantity q) const { return index[static_cast<int>(q)]; }
    UnitIndex& operator[](Quantity q) { return index[static_cast<int>(q)]; }

    void load(const SettingsStore& store);  // the twelve keys that are read
    void save(SettingsStore& store) const;  // all fifteen keys
};

// The settings key of a quantity ("TUnits", "PUnits", ...).
const char* unitKey(Quantity q);
// The tag of the quantity's unit list (basLoadUnits).
const char* unitTagOf(Quantity q);

GlobalUnits& globalUnits();

} // namespace kestrova
