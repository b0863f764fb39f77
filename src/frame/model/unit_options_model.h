#pragma once
// The Units of Measure dialog (frmUnitOptions) without its window: one combo
// per quantity, the three standard sets, "Set as Default" and "Save as Default".

#include "forms/store/global_units.h"

#include <array>
#include <string>
#include <vector>

namespace kestrova {

class SettingsStore;
class UserInterface;

class UnitOptionsModel {
public:
    // The combos in the dialog's order, each with its label and the quantity it sets.
    struct Combo {
        const char* name;  // "cboTBasis", ...
        const char* label; // "Temperature:", ...
        Quantity quantity;
    };
    static const std::vector<Combo>& combos();
    // The dialog's own texts of a combo's list.
    static std::vector<std::string> comboItems(const std::string& comboName);

    UnitOptionsModel(UserInterface& ui, SettingsStore& store) : ui_(ui), store_(store) {}

    void Form_Activate();
    void Option1_Click(int set); // 0 American, 1 Metric, 2 SI
    void cmdSetDefault_Click();
    void cmdSaveDefault_Click();

    // The list index each combo shows, by combo name.
    std::array<UnitIndex, 14> listIndex{};
    UnitIndex& indexOf(const std::string& comboName);

private:
    void setGlobals();
    UserInterface& ui_;
    SettingsStore& store_;
};

} // namespace kestrova
