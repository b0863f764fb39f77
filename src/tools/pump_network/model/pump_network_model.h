#pragma once
// frmPumpSystem without its window: the network state, the 34 fields with
// their 45 unit lists (34 to 44 serve the rows of the summary grid), the
// 17 x 13 texts of the summary grid, the two percent fields, reset and the
// pass of the calculation after each edit.

#include "forms/model/form_model.h"
#include "tools/pump_network/calc/net_calc.h"
#include "units/basConversions.h"

#include <array>
#include <string>

namespace kestrova {

class UserInterface;

class PumpNetworkModel : public FormModel {
    Q_OBJECT

public:
    static constexpr const char* kTitle = "Pump System";
    static constexpr int kFields = 34;    // txtData(0) to txtData(33)
    static constexpr int kUnitLists = 45; // cboUnits(0) to cboUnits(44)
    static constexpr int kGridRows = 17, kGridColumns = 13;

    explicit PumpNetworkModel(UserInterface& ui, QObject* parent = nullptr);

    void Form_Load();
    void Form_Activate(); // takes the global unit set and runs a pass
    void setUnit(int list, UnitIndex unit);
    void cboUnits_Click(int index); // shows one field or grid row again from the state
    void txtData_LostFocus(int field);
    void txtHydraulicEff_LostFocus();
    void txtMinValvePercentdP_LostFocus();
    void cmdReset_Click(); // asks first
    void NetCalc();
    void UpDateGridFromInput();
    void CleanGrid();
    void ResetNetwork();

    static const char* unitTagOf(int list);

    NetworkState state;
    SegmentData segments; // SegK1 to SegK3 are taken from the minor loss store at each pass
    std::array<std::string, kFields> txtData;
    std::array<UnitIndex, kUnitLists> cboUnits{};
    std::array<std::array<std::string, kGridColumns>, kGridRows> grid;
    std::string txtHydraulicEff, txtMinValvePercentdP, txtDescription;
    std::string caption = kTitle;
    bool modified = false;

private:
    void showRow(int row);
    void setModified();
    UserInterface& ui_;
};

} // namespace kestrova
