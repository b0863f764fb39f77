#include "frame/model/unit_options_model.h"

#include "forms/store/settings_store.h"
#include "forms/model/user_interface.h"
#include "units/basLoadUnits.h"

#include <map>
#include <stdexcept>

namespace kestrova {

namespace {

using Q = Quantity;

// Standard sets: American, Metric, SI, in the order of combos().
constexpr std::array<std::array<UnitIndex, 3>, 14> kStandardSets{{
    {0, 1, 1}, {0, 5, 5}, {0, 2, 1}, {0, 0, 3}, {0, 0, 0}, {1, 2, 2}, {0, 3, 3},
    {1, 3, 3}, {1, 4, 4}, {0, 3, 3}, {0, 5, 5}, {0, 2, 1}, {0, 1, 1}, {0, 1, 1}}};

} // namespace

const std::vector<UnitOptionsModel::Combo>& UnitOptionsModel::combos()
{
    static const std::vector<Combo> list{
        {"cboTBasis", "Temperature:", Q::Temperature},     {"cboPBasis", "Pressure:", Q::Pressure},
        {"cboDenBasis", "Density:", Q::Density},           {"cboVBasis", "Viscosity:", Q::Viscosity},
        {"cboSTBasis", "Surface Tension:", Q::SurfaceTension}, {"cboRBasis", "Abs. Roughness:", Q::Roughness},
        {"cboFRBasis", "Flow Rate:", Q::Flow},             {"cboVelBasis", "Velocity:", Q::Velocity},
        {"cboLBasis", "Length:", Q::Length},               {"cboDBasis", "Diameter:", Q::Diameter},
        {"cboPDBasis", "Pressure Drop:", Q::PressureDrop}, {"cboCPBasis", "Heat Capacity:", Q::HeatCapacity},
        {"cboPowerBasis", "Motor Power:", Q::Power},       {"cboHeadBasis", "Hydraulic Head:", Q::Head}};
    return list;
}

std::vector<std::string> UnitOptionsModel::comboItems(const std::string& comboName)
{
    // The dialog's own texts differ from the tools' lists in a few places.
    if (comboName == "cboTBasis")
        return {"°F", "°C", "°R", " K"};
    if (comboName == "cboPBasis")
        return {"psia", "atm", "inHg", "inH2O", "mmHg", "kPaa", "Pa", "Bara"};
    if (comboName == "cboVBasis")
        return {"cP", "lbm/ft-s", "kg/m-s", "N-s/m2"};
    if (comboName == "cboDenBasis")
        return {"lbm/ft3", "gm/cm3", "kg/m3", "lb/gal"};
    if (comboName == "cboCPBasis")
        return {"BTU/lbmol-°R", "cal/gmol-K", "kJ/kgmol-K"};
    static const std::map<std::string, const char*> tags{
        {"cboSTBasis", "Surface Tension"}, {"cboRBasis", "Roughness"}, {"cboFRBasis", "Flow Rate"},
        {"cboVelBasis", "Velocity"},       {"cboLBasis", "Length"},    {"cboDBasis", "Diameter"},
        {"cboPDBasis", "Pressure Drop"},   {"cboPowerBasis", "Power"}, {"cboHeadBasis", "Head"}};
    return unitList(tags.at(comboName));
}

UnitIndex& UnitOptionsModel::indexOf(const std::string& comboName)
{
    const auto& list = combos();
    for (size_t i = 0; i < list.size(); ++i)
        if (comboName == list[i].name)
            return listIndex[i];
    throw std::out_of_range("no combo " + comboName);
}

void UnitOptionsModel::Form_Activate()
{
    ui_.setBusyPointer(false);
    const auto& list = combos();
    for (size_t i = 0; i < list.size(); ++i)
        listIndex[i] = globalUnits()[list[i].quantity];
    // The pressure combo is set twice: the vapour pressure unit is what it shows.
    indexOf("cboPBasis") = globalUnits()[Quantity::VaporPressure];
}

void UnitOptionsModel::Option1_Click(int set)
{
    if (set < 0 || set > 2)
        return;
    for (size_t i = 0; i < kStandardSets.size(); ++i)
        listIndex[i] = kStandardSets[i][static_cast<size_t>(set)];
}

void UnitOptionsModel::setGlobals()
{
    const auto& list = combos();
    for (size_t i = 0; i < list.size(); ++i)
        globalUnits()[list[i].quantity] = listIndex[i];
    globalUnits()[Quantity::VaporPressure] = indexOf("cboPBasis");
}

void UnitOptionsModel::cmdSetDefault_Click()
{
    setGlobals();
}

void UnitOptionsModel::cmdSaveDefault_Click()
{
    setGlobals();
    globalUnits().save(store_);
}

} // namespace kestrova
