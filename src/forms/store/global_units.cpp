#include "forms/store/global_units.h"

#include "forms/store/settings_store.h"
#include "units/basLoadUnits.h"

#include <string>

namespace kestrova {

namespace {
constexpr const char* kKeys[kQuantityCount] = {"TUnits",    "PUnits",    "DUnits",     "LVVUnits", "STUnits",
                                               "RoughUnits", "FlowUnits", "VelUnits",  "LengthUnits", "DiaUnits",
                                               "PDUnits",   "VPUnits",   "CPUnits",    "HeadUnits", "PowerUnits"};
constexpr int kKeysRead = 12;
constexpr const char* kTags[kQuantityCount] = {"Temperature", "Pressure", "Density",  "Viscosity", "Surface Tension",
                                               "Roughness",   "Flow Rate", "Velocity", "Length",   "Diameter",
                                               "Pressure Drop", "Vapor Pressure", "Heat Capacity", "Head", "Power"};
} // namespace

const char* unitKey(Quantity q)
{
    return kKeys[static_cast<int>(q)];
}

const char* unitTagOf(Quantity q)
{
    return kTags[static_cast<int>(q)];
}

void GlobalUnits::load(const SettingsStore& store)
{
    const GlobalUnits defaults;
    // An index beyond its list (the store edited by hand) falls back to the default.
    for (int i = 0; i < kKeysRead; ++i) {
        const auto units = static_cast<int>(unitList(kTags[i]).size());
        index[i] = static_cast<UnitIndex>(store.getIndex("Units", kKeys[i], defaults.index[i], units));
    }
}

void GlobalUnits::save(SettingsStore& store) const
{
    for (int i = 0; i < kQuantityCount; ++i)
        store.save("Units", kKeys[i], std::to_string(index[i]));
}

GlobalUnits& globalUnits()
{
    static GlobalUnits units;
    return units;
}

} // namespace kestrova
