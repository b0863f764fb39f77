#pragma once
// The physical properties tool (frmPhysicalProperties) without its window: a
// compound of the data base, its correlations evaluated at a temperature in
// the units of each row, and GetPhysicalProperties, which applies them to the
// shared PhysProps record.

#include "forms/model/form_model.h"
#include "forms/model/user_interface.h"
#include "tools/properties/model/compound_data_base.h"
#include "units/basConversions.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrova {

// How a row's fields look: the pale colour of a value in range, blue for a
// compound without that correlation, red for a temperature at or beyond a limit.
enum class PropertyShade { InRange, Missing, OutOfRange };

class PhysicalPropertiesModel : public FormModel {
    Q_OBJECT

public:
    static constexpr int kRows = 9;
    static constexpr const char* kTitle = "Physical Properties";

    PhysicalPropertiesModel(UserInterface& ui, std::vector<Compound> compounds, QObject* parent = nullptr);

    void Form_Activate();
    void dbcComp_Click(int position);
    void txtPhysProp_LostFocus(int row); // rows 6, 7 and 8 take typing
    void setUnit(int row, UnitIndex unit);
    void cmdSelect_Click();
    void cmdClose_Click();
    void Refresh();

    void GetPhysicalProperties(FluidKind fluid, Single temperature, const std::function<void()>& showModal);

    static const char* rowCaption(int row);
    static const char* rowUnitTag(int row);

    const std::vector<Compound>& compounds() const { return compounds_; }
    int position = 0;
    std::array<double, kRows> value{};   // internal units; row 8 kelvin
    std::array<std::string, kRows> txtPhysProp;
    std::array<UnitIndex, kRows> cboPPUnits{};
    std::array<bool, kRows> unitEnabled{};
    std::array<PropertyShade, kRows> shade{};
    std::array<std::string, 6> txtLTL, txtUTL;
    std::string txtMW, txtAF;
    std::string frameCaption = "Physical Properties";
    std::optional<FluidKind> fluid; // absent when opened for browsing
    bool selectEnabled = false;

private:
    void showRow(int row);
    void showDamaged();
    bool reportDamage(); // true, after its message, for a compound that cannot be used
    UserInterface& ui_;
    std::vector<Compound> compounds_;
};

// The remembered position in the compound list between two showings.
int& rememberedCompoundPosition();

// Kelvin to the temperature list's unit, with 459.69 for Rankine, and back.
double kelvinToUnit(double kelvin, UnitIndex unit);
double kelvinFromUnit(double value, UnitIndex unit);

} // namespace kestrova
