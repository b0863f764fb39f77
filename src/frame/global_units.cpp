#include "frame/global_units.h"

#include "frame/settings_store.h"

#include <string>

namespace kestrova {

namespace {
constexpr const char* kKeys[kQuantityCount] = {"TUnits",    "PUnits",    "DUnits",     "LVVUnits", "STUnits",
                                               "RoughUnits", "FlowUnits", "VelUnits",  "LengthUnits", "DiaUnits",
                                               "PDUnits",   "VPUnits",   "CPUnits",    "HeadUnits", "PowerUnits"};
constexpr int kKeysRead = 12;
} // namespace

const char* unitKey(Quantity q)
{
    return kKeys[static_cast<int>(q)];
}

void GlobalUnits::load(const SettingsStore& store)
{
    const GlobalUnits defaults;
    for (int i = 0; i < kKeysRead; ++i)
        index[i] = static_cast<UnitIndex>(store.getInteger("Units", kKeys[i], defaults.index[i]));
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
