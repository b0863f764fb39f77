#pragma once
// The physical properties tool (frmPhysicalProperties) without its window: a
// compound of the data base, its correlations evaluated at a temperature in
// the units of each row, and GetPhysicalProperties, which applies them to the
// shared PhysProps record.

#include "forms/model/help_contexts.h"
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

namespace physical_properties {
inline constexpr int kRows = 9; // rows 6, 7 and 8 take typing
enum Row : int {
    LiquidDensity = 0, LiquidViscosity = 1, VaporViscosity = 2, VaporPressure = 3, HeatCapacity = 4,
    SurfaceTension = 5, CriticalTemperature = 6, CriticalPressure = 7, SystemTemperature = 8,
};
inline Control txtPhysProp(int row) { return {"txtPhysProp", row}; }
inline Control cboPPUnits(int row) { return {"cboPPUnits", row}; }
inline Control txtLTL(int row) { return {"txtLTL", row}; }
inline Control txtUTL(int row) { return {"txtUTL", row}; }
inline const Control txtMW{"txtMW"};
inline const Control txtAF{"txtAF"};
inline const Control txtSearch{"txtSearch"};
inline const Control dbcComp{"dbcComp"};
inline const Control propertiesFrame{"Frame1", 3};
inline const Control cmdSelect{"cmdSelect"};
inline const Control cmdClose{"cmdClose"};
} // namespace physical_properties

// Everything the physical properties window shows, as the tool holds it.
struct PhysicalPropertiesState {
    int position = 0; // in the compound list
    std::array<double, physical_properties::kRows> value{}; // internal units; the system temperature in kelvin
    std::array<TextControl, physical_properties::kRows> txtPhysProp;
    std::array<ListControl, physical_properties::kRows> cboPPUnits;
    std::array<TextControl, 6> txtLTL, txtUTL;
    TextControl txtMW, txtAF, txtSearch;
    FrameControl frame{"Physical Properties"};
    ButtonControl cmdSelect;
    std::optional<FluidKind> fluid; // absent when opened for browsing
};

class PhysicalPropertiesModel : public FormModel, private PhysicalPropertiesState {
    Q_OBJECT

public:
    int helpTopic() const override { return help::PhysicalProperties; }
    static constexpr int kRows = physical_properties::kRows;
    static constexpr const char* kTitle = "Physical Properties";

    PhysicalPropertiesModel(UserInterface& ui, std::vector<Compound> compounds, QObject* parent = nullptr);

    const PhysicalPropertiesState& view() const { return *this; }

    void Form_Activate();
    void dbcComp_Click(int position);
    void txtSearch_Change(const std::string& text); // the first compound that starts with the text, or holds it
    void txtPhysProp_LostFocus(int row);
    void setUnit(int row, UnitIndex unit);
    void cmdSelect_Click();
    void cmdClose_Click();
    void Refresh();

    void GetPhysicalProperties(FluidKind fluid, Single temperature, const std::function<void()>& showModal);

    void commit(const Control& field, const std::string& text) override;
    void textEdited(const Control& field, const std::string& text) override;
    void click(const Control& control) override;
    void choose(const Control& list, int entry) override;

    static const char* rowCaption(int row);
    static const char* rowUnitTag(int row);

    const std::vector<Compound>& compounds() const { return compounds_; }

private:
    void showRow(int row);
    void shadeRow(int row, FieldShade shade);
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
