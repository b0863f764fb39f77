#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "forms/store/settings_store.h"
#include "forms/store/sqlite_session.h"
#include "numeric/numeric_fault.h"
#include "tools/properties/calc/equations_of_state.h"
#include "tools/properties/model/compress_factor_model.h"
#include "tools/properties/model/heat_cap_ratio_model.h"
#include "tools/properties/model/phys_props.h"
#include "tools/properties/model/physical_properties_model.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kestrova;

namespace {

// Methane: Tc 190.56 K (-116.65 °F), Pc 45.99 bar (667.0 psia), omega 0.011.
constexpr double kMethaneTc = -116.65, kMethanePc = 667.0;

double z(double t, double p, double omega, int eos, bool hydrogen = false)
{
    return computeCompressibility(t, p, kMethaneTc, kMethanePc, omega, eos, hydrogen);
}

// A control's text as the window shows it.
std::string shown(const FormModel& tool, const Control& control)
{
    const TextControl* text = tool.textOf(control);
    return text ? text->text : "(no control)";
}

} // namespace

TEST(Compressibility, CubicEquationsAgainstPublishedMethaneValues)
{
    // Methane at 100 °F and 1000 psia: Z = 0.89 (Standing-Katz, NIST 0.8905).
    EXPECT_NEAR(z(100, 1000, 0.011, 2), 0.8905, 0.006);
    EXPECT_NEAR(z(100, 1000, 0.011, 1), 0.8905, 0.03); // Soave reads about 3 % high here
    EXPECT_NEAR(z(100, 1000, 0.011, 0), 0.8905, 0.02);
    // Near the ideal gas at low pressure.
    EXPECT_NEAR(z(100, 14.7, 0.011, 2), 1.0, 0.003);
    // Redlich-Kwong ignores omega; Soave without omega has m = 0.48.
    EXPECT_EQ(z(100, 1000, 0.0, 0), z(100, 1000, 0.5, 0));
    EXPECT_NE(z(100, 1000, 0.0, 1), z(100, 1000, 0.2, 1));
    // The hydrogen form of Soave takes no omega.
    EXPECT_EQ(z(100, 1000, 0.0, 1, true), z(100, 1000, 0.3, 1, true));
    EXPECT_EQ(z(100, 1000, 0.011, 2, true), z(100, 1000, 0.011, 2, false));
    EXPECT_THROW(computeCompressibility(0, 0, 0, 0, 0, 0, false), NumericFault);
}

TEST(Compressibility, TheToolShowsZAndRefusesToApplyWithout)
{
    using namespace compress_factor;
    using unit_field_dialog::txtData;
    QTemporaryDir dir;
    SettingsStore store(dir.filePath("Kestrova.ini"));
    ScriptedUserInterface ui;
    CompressFactorModel tool(ui, &store);
    tool.Form_Load();
    EXPECT_EQ(tool.eos(), 0);
    EXPECT_FALSE(tool.textOf(txtData(AcentricFactor))->enabled); // Redlich-Kwong takes no omega
    tool.Form_Activate();
    EXPECT_EQ(shown(tool, txtData(Z)), ""); // all inputs zero
    tool.cmdApply_Click();
    EXPECT_EQ(ui.messages.back().text, "A compressibility factor has not been computed.");

    physProps().criticalTemperature = kMethaneTc;
    physProps().criticalPressure = kMethanePc;
    physProps().acentricFactor = 0.011;
    physProps().gasName = "Methane";
    const Single result = tool.GetZValue(100, 1000, [&] {
        EXPECT_EQ(tool.frameOf(inputsFrame)->caption, "Inputs:  Methane");
        tool.click(optEOS(2));
        EXPECT_TRUE(tool.textOf(txtData(AcentricFactor))->enabled);
        EXPECT_TRUE(tool.buttonOf(optEOS(2))->checked);
        EXPECT_EQ(shown(tool, txtData(Z)), "0.8880");
        tool.cmdApply_Click();
    });
    EXPECT_EQ(result, Single(0.888));
    EXPECT_EQ(store.get("Settings", "EOSOption", ""), "2");
    EXPECT_EQ(tool.GetZValue(100, 1000, [&] { tool.cmdClose_Click(); }), 0);

    // After a reset the empty acentric factor takes the error path.
    ui.answers = {MessageAnswer::Ok};
    tool.cmdReset_Click();
    EXPECT_EQ(shown(tool, txtData(AcentricFactor)), "");
    for (const auto& [field, text] : {std::pair{Temperature, "100"}, {Pressure, "1000"},
                                      {CriticalTemperature, "-116.65"}, {CriticalPressure, "667"}})
        tool.commit(txtData(field), text);
    EXPECT_EQ(shown(tool, txtData(Z)), "");
    physProps() = PhysProps{};
}

TEST(HeatCapacityRatio, RealGasCalculationAndTypicalValues)
{
    using namespace heat_cap_ratio;
    using unit_field_dialog::txtData;
    ScriptedUserInterface ui;
    HeatCapRatioModel tool(ui);
    HeatCapRatioData methane{};
    methane.temperature = 60;
    methane.pressure = 14.696;
    methane.criticalTemperature = kMethaneTc;
    methane.criticalPressure = kMethanePc;
    methane.heatCapacity = 35.7; // kJ/(kmol K)
    tool.useRecord(methane);
    tool.ComputeRatio();
    // Ideal gas: 35.7 / (35.7 - 8.314) = 1.3036; the residual term adds a little.
    EXPECT_NEAR(tool.record().ratio, 1.3036, 0.003);
    EXPECT_EQ(shown(tool, txtData(Ratio)), "1.305");
    EXPECT_FALSE(tool.labelOf(lblError)->visible);
    EXPECT_FALSE(tool.textOf(txtData(Ratio))->red);
    tool.click(Option1(11));
    EXPECT_EQ(shown(tool, txtData(Ratio)), "1.31");
    EXPECT_NEAR(tool.record().ratio, 1.305, 0.001); // the ratio itself is not changed
    tool.click(Option1(17));
    EXPECT_EQ(shown(tool, txtData(Ratio)), "1.305");
    tool.setUnit(HeatCapacity, 2); // kJ/(kmol K)
    tool.commit(txtData(HeatCapacity), "5");
    EXPECT_LT(tool.record().ratio, 0);
    EXPECT_TRUE(tool.labelOf(lblError)->visible); // "(Check Input)", and the ratio in red
    EXPECT_TRUE(tool.textOf(txtData(Ratio))->red);
    tool.commit(txtData(HeatCapacity), "0");
    EXPECT_EQ(tool.record().ratio, 0);
    EXPECT_TRUE(tool.labelOf(lblError)->visible);
    EXPECT_EQ(typicalRatios()[1].formula, std::string("O2, N2, Air, H2, CO, NO, etc."));
    EXPECT_EQ(tool.buttonOf(Option1(1))->toolTip, "O2, N2, Air, H2, CO, NO, etc.");
}

TEST(HeatCapacityRatio, ADoubleClickOnATypicalValueAppliesIt)
{
    using namespace heat_cap_ratio;
    ScriptedUserInterface ui;
    HeatCapRatioModel tool(ui);
    const Single k = tool.GetHeatCapRatioValue(60, 14.696, [&] {
        tool.click(Option1(6));
        tool.doubleClick(Option1(6)); // carbon dioxide
        EXPECT_TRUE(tool.closeRequested);
    });
    EXPECT_EQ(k, Single(1.28));
}

class PhysicalPropertiesTest : public testing::Test {
protected:
    PhysicalPropertiesTest()
        : tool(ui, readCompounds(QDir(KESTROVA_DATA_DIR).filePath("compounds.sqlite")))
    {
        globalUnits() = GlobalUnits{};
        tool.Form_Activate();
    }
    int positionOf(const std::string& name) const
    {
        for (size_t i = 0; i < tool.compounds().size(); ++i)
            if (tool.compounds()[i].name == name)
                return static_cast<int>(i);
        return -1;
    }
    const PhysicalPropertiesState& form() const { return tool.view(); }
    ScriptedUserInterface ui;
    PhysicalPropertiesModel tool;
};

TEST_F(PhysicalPropertiesTest, WaterAt25CelsiusAgainstPublishedValues)
{
    ASSERT_GT(tool.compounds().size(), 300u);
    tool.dbcComp_Click(positionOf("Water"));
    EXPECT_EQ(form().frame.caption, "Physical Properties:  Water");
    EXPECT_NEAR(form().value[8], 298.15, 1e-9);
    // 997.05 kg/m3, 0.890 mPa s, 3169.9 Pa (IAPWS).
    EXPECT_NEAR(form().value[0] * 18.01528, 997.05, 0.3);
    EXPECT_NEAR(form().value[1], 0.000890, 0.000005);
    EXPECT_NEAR(form().value[3], 3169.9, 5);
    EXPECT_EQ(form().txtPhysProp[0].shade, FieldShade::PaleYellow);
    tool.setUnit(0, 2);
    EXPECT_EQ(form().txtPhysProp[0].text, "996.813"); // kg/m3, from the data base's fit
    tool.setUnit(1, 0);
    EXPECT_EQ(form().txtPhysProp[1].text, "8.930E-01"); // cP

    // Applied for a liquid, the properties go to the shared record in its units.
    physProps() = PhysProps{};
    tool.GetPhysicalProperties(FluidKind::Liquid, 77, [&] { tool.cmdSelect_Click(); });
    EXPECT_FALSE(propertiesCancelled());
    EXPECT_EQ(physProps().liquidName, "Water");
    EXPECT_NEAR(physProps().liquidDensity, 62.24, 0.02); // lb/ft3
    EXPECT_NEAR(physProps().liquidViscosity, 0.00089, 0.000005);
    EXPECT_NEAR(physProps().vaporPressure, 0.4598, 0.001); // psi
    EXPECT_EQ(physProps().vaporViscosity, 0);             // a liquid leaves the vapour's
    EXPECT_NEAR(physProps().temperature, 77, 1e-4);
}

TEST_F(PhysicalPropertiesTest, MethaneHeatCapacityLimitsAndColours)
{
    tool.dbcComp_Click(positionOf("Methane"));
    // Ideal-gas Cp at 298.15 K: 35.69 kJ/(kmol K).
    EXPECT_NEAR(form().value[4] / 1000, 35.69, 0.1);
    tool.setUnit(4, 2);
    EXPECT_EQ(form().txtPhysProp[4].text, "35.778"); // kJ/(kmol K)
    // 25 °C is above methane's critical point: the liquid rows are out of range.
    EXPECT_EQ(form().txtPhysProp[0].shade, FieldShade::Red);
    EXPECT_EQ(form().txtPhysProp[4].shade, FieldShade::PaleYellow);
    EXPECT_EQ(form().txtUTL[0].shade, FieldShade::Red); // the limits take the row's colour
    EXPECT_EQ(form().txtUTL[0].text, "-117"); // 190.56 K in °F
    tool.GetPhysicalProperties(FluidKind::Gas, 77, [&] { tool.cmdSelect_Click(); });
    EXPECT_EQ(physProps().gasName, "Methane");
    EXPECT_NEAR(physProps().heatCapacity, 35.69, 0.1);
    EXPECT_NEAR(physProps().criticalTemperature, -116.65, 0.05);
    tool.GetPhysicalProperties(FluidKind::Gas, 77, [&] { tool.cmdClose_Click(); });
    EXPECT_TRUE(propertiesCancelled());
    physProps() = PhysProps{};
}

TEST_F(PhysicalPropertiesTest, TypingAFewLettersFindsTheCompound)
{
    tool.textEdited(physical_properties::txtSearch, "methan"); // the first that starts with them
    EXPECT_EQ(tool.compounds()[static_cast<size_t>(form().position)].name.rfind("Methane", 0), 0u);
    tool.textEdited(physical_properties::txtSearch, "ZZZNOTHING"); // nothing found: the compound stays
    EXPECT_EQ(tool.compounds()[static_cast<size_t>(form().position)].name.rfind("Methane", 0), 0u);
    tool.textEdited(physical_properties::txtSearch, "BUTANOL"); // in any case, anywhere in the name
    EXPECT_NE(tool.compounds()[static_cast<size_t>(form().position)].name.find("Butanol"), std::string::npos);
}

TEST_F(PhysicalPropertiesTest, AMissingCorrelationShowsBlue)
{
    const int butanol = positionOf("2-Butanol");
    ASSERT_GE(butanol, 0);
    tool.dbcComp_Click(butanol);
    EXPECT_EQ(form().txtPhysProp[3].shade, FieldShade::Blue); // no vapour pressure
    EXPECT_FALSE(form().cboPPUnits[3].enabled);
    EXPECT_EQ(form().value[3], 0);
}

// A copy of the shipped compound data base, damaged on purpose.
class DamagedCompoundsTest : public testing::Test {
protected:
    DamagedCompoundsTest() : copy(dir.filePath("compounds.sqlite"))
    {
        QFile::copy(QDir(KESTROVA_DATA_DIR).filePath("compounds.sqlite"), copy);
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    }
    void execute(const QString& statement)
    {
        ASSERT_TRUE(withSqlite(copy, SqliteAccess::ReadWrite, [&](QSqlDatabase& db) {
            QSqlQuery query(db);
            ASSERT_TRUE(query.exec(statement)) << statement.toStdString();
        }));
    }
    static int positionOf(const std::vector<Compound>& compounds, const std::string& name)
    {
        for (size_t i = 0; i < compounds.size(); ++i)
            if (compounds[i].name == name)
                return static_cast<int>(i);
        return -1;
    }
    QTemporaryDir dir;
    QString copy;
    ScriptedUserInterface ui;
};

TEST_F(DamagedCompoundsTest, AValueBeyondItsFieldMakesTheCompoundUnusableWithAMessage)
{
    // An infinite upper limit of Water's liquid density, an equation number of
    // 32768 for Methane's vapour pressure.
    execute("UPDATE Compounds SET LD_TMAX = 9e999 WHERE COMP = 'Water'");
    execute("UPDATE Compounds SET VP_EQ = 32768 WHERE COMP = 'Methane'");
    const std::vector<Compound> compounds = readCompounds(copy);
    const int water = positionOf(compounds, "Water");
    const int methane = positionOf(compounds, "Methane");
    ASSERT_GE(water, 0);
    ASSERT_GE(methane, 0);
    EXPECT_NE(compounds[static_cast<size_t>(water)].damage.find("Liquid Density"), std::string::npos);
    EXPECT_NE(compounds[static_cast<size_t>(methane)].damage.find("Vapor Pressure"), std::string::npos);
    EXPECT_TRUE(compounds[static_cast<size_t>(methane) + 1].damage.empty());

    globalUnits() = GlobalUnits{};
    PhysicalPropertiesModel tool(ui, compounds);
    tool.Form_Activate();
    tool.dbcComp_Click(water);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "Physical Properties");
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Stop);
    EXPECT_EQ(tool.view().frame.caption, "Physical Properties:  Water");
    EXPECT_EQ(tool.view().txtPhysProp[0].text, "");
    EXPECT_EQ(tool.view().txtUTL[0].text, "");
    EXPECT_EQ(tool.view().txtPhysProp[8].text, "77.00"); // the system temperature stays
    // Nothing of it is handed on: Select says so again and applies nothing.
    physProps() = PhysProps{};
    tool.GetPhysicalProperties(FluidKind::Liquid, 77, [&] { tool.cmdSelect_Click(); });
    EXPECT_EQ(ui.messages.size(), 2u);
    EXPECT_TRUE(propertiesCancelled());
    EXPECT_EQ(physProps().liquidName, "");
    // Another compound is sound again.
    tool.dbcComp_Click(positionOf(compounds, "Nitrogen"));
    EXPECT_EQ(ui.messages.size(), 2u);
    EXPECT_FALSE(tool.view().txtPhysProp[0].text.empty());
}

TEST_F(DamagedCompoundsTest, OnlyASoundCompoundTablePassesTheFileTest)
{
    EXPECT_TRUE(isCompoundDataBase(copy));
    // An empty file, a data base without the compound table (the pipe data
    // base), and a compound table short of columns all fail.
    QFile empty(dir.filePath("empty.sqlite"));
    ASSERT_TRUE(empty.open(QIODevice::WriteOnly));
    empty.close();
    EXPECT_FALSE(isCompoundDataBase(empty.fileName()));
    EXPECT_FALSE(isCompoundDataBase(QDir(KESTROVA_DATA_DIR).filePath("pipeastm.sqlite")));
    execute("CREATE TABLE Narrow AS SELECT ID, COMP FROM Compounds");
    execute("DROP TABLE Compounds");
    execute("ALTER TABLE Narrow RENAME TO Compounds");
    EXPECT_FALSE(isCompoundDataBase(copy));
    EXPECT_THROW(readCompounds(copy), std::runtime_error);
}

TEST_F(DamagedCompoundsTest, ATableThatCannotBeReadToItsEndIsRefusedNotShortened)
{
    // Overwrite a stretch in the middle of the file: the header is sound, but
    // the pages of the table are not.
    QFile file(copy);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const qint64 size = file.size();
    ASSERT_GT(size, 64 * 1024);
    file.seek(size / 2);
    file.write(QByteArray(16 * 1024, '\x5a'));
    file.close();
    EXPECT_FALSE(isCompoundDataBase(copy));
    bool refused = false;
    try {
        const std::vector<Compound> compounds = readCompounds(copy);
        ADD_FAILURE() << "read " << compounds.size() << " compounds from a damaged table";
    } catch (const std::runtime_error&) {
        refused = true;
    }
    EXPECT_TRUE(refused);
}

// The Properties button of both gas dialogs: without the data base the
// program's message under the dialog's title and nothing taken; closed
// without applying, nothing taken; applied, the gas's constants in the fields
// and the name on the frame.
TEST(GasDialogProperties, NoDataBaseACancelAndAnAppliedGas)
{
    using unit_field_dialog::txtData;
    globalUnits() = GlobalUnits{};
    physProps() = PhysProps{};
    physProps().criticalTemperature = -116.63f;
    physProps().criticalPressure = 667.8f;
    physProps().acentricFactor = 0.011f;
    physProps().heatCapacity = 35.7f;
    physProps().gasName = "Methane";

    ScriptedUserInterface ui;
    CompressFactorModel missing(ui, nullptr, false);
    const std::string before = missing.textOf(txtData(compress_factor::CriticalPressure))->text;
    missing.cmdPhysProps_Click();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages.back().title, "Compressibility Factor");
    EXPECT_NE(ui.messages.back().text.find("cannot be found"), std::string::npos);
    EXPECT_EQ(missing.textOf(txtData(compress_factor::CriticalPressure))->text, before);

    HeatCapRatioModel ratio(ui);
    ui.propertiesApplied = {false};
    ratio.cmdPhysProps_Click();
    EXPECT_TRUE(propertiesCancelled());
    EXPECT_EQ(ratio.textOf(txtData(heat_cap_ratio::CriticalPressure))->text, before);
    ui.propertiesApplied = {true};
    ratio.cmdPhysProps_Click();
    EXPECT_FALSE(propertiesCancelled());
    EXPECT_EQ(ratio.textOf(txtData(heat_cap_ratio::CriticalPressure))->text, "667.80");
    EXPECT_EQ(ratio.textOf(txtData(heat_cap_ratio::CriticalTemperature))->text, "-116.63");
    EXPECT_EQ(ui.messages.size(), 1u); // no more messages
    physProps() = PhysProps{};
}
