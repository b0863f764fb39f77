#include "units/basLoadUnits.h"


namespace kestrova {

namespace {

using List = std::vector<std::string>;

const List kHeatCapacity{"BTU/lbmol-°R", "cal/gmmol-K", "kJ/kgmol-K"};
const List kTemperature{"°F", "°C", "°R", "K"};
const List kPressure{"psia", "atm", "inHg", "inH2O", "mmHg", "kPaa", "Paa", "Bara"};
const List kDensity{"lbm/ft³", "gm/cm³", "kg/m³", "lb/gal"};
const List kViscosity{"cP", "lbm/ft-hr", "kg/m-s", "N-s/m²"};
const List kSurfaceTension{"dyn/cm", "lbf/ft", "N/m"};
const List kRoughness{"in", "ft", "mm", "cm"};
const List kFlowRate{"lbm/hr", "lbm/min", "lbm/s", "kg/hr", "kg/min", "kg/s"};
const List kVelocity{"ft/min", "ft/s", "m/min", "m/s"};
const List kLength{"in", "ft", "mile", "cm", "m", "km"};
const List kDiameter{"in", "ft", "yd", "mm", "cm", "m"};
const List kPressureDrop{"psi", "atm", "inHg", "inH2O", "mmHg", "kPa", "Pa", "Bar"};
const List kHead{"ft", "m"};
const List kPower{"hp", "kW"};
const List kExpansion{"1/°F", "1/°C"};

const std::vector<std::pair<std::string, const List*>>& tagTable()
{
    static const std::vector<std::pair<std::string, const List*>> table{
        {"Heat Capacity", &kHeatCapacity}, {"Temperature", &kTemperature},     {"Pressure", &kPressure},
        {"Vapor Pressure", &kPressure},    {"Density", &kDensity},             {"Viscosity", &kViscosity},
        {"Surface Tension", &kSurfaceTension}, {"Roughness", &kRoughness},     {"Flow Rate", &kFlowRate},
        {"Velocity", &kVelocity},          {"Length", &kLength},               {"Diameter", &kDiameter},
        {"Pressure Drop", &kPressureDrop}, {"Head", &kHead},                   {"Power", &kPower},
        {"Expansion Coef", &kExpansion},
    };
    return table;
}

} // namespace

const std::vector<std::string>& unitList(std::string_view tag)
{
    static const List empty;
    for (const auto& [name, list] : tagTable())
        if (name == tag)
            return *list;
    return empty;
}

const std::vector<std::string>& unitTags()
{
    static const List tags = [] {
        List names;
        for (const auto& entry : tagTable())
            names.push_back(entry.first);
        return names;
    }();
    return tags;
}

} // namespace kestrova
