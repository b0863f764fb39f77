// The orifice tool driven as a user would: texts typed in chosen units, the
// Compute and material choices, and the fields both tabs share.

#include "datasheets/model/data_sheet.h"
#include "forms/store/global_units.h"
#include "forms/store/project_file.h"
#include "frame/reopen.h"
#include "forms/store/settings_store.h"
#include "forms/model/scripted_user_interface.h"
#include "numeric/display_mask.h"
#include "tools/orifice/model/orifice_model.h"
#include "tools/properties/model/phys_props.h"

#include <gtest/gtest.h>

#include <cmath>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace kestrova;

class OrificeToolTest : public testing::Test {
protected:
    OrificeToolTest() : tool(ui)
    {
        globalUnits() = GlobalUnits{};
        tool.Form_Load();
        tool.Form_Activate();
    }
    void type(int field, const std::string& text) { tool.commit(orifice::txtData(field), text); }
    const std::string& data(int field) const { return tool.view().txtData[static_cast<size_t>(field)].text; }

    ScriptedUserInterface ui;
    OrificeModel tool;
};

TEST_F(OrificeToolTest, LoadStartsWithItsMaterialsAndReferenceTemperature)
{
    EXPECT_EQ(tool.view().record.referenceTemperature, 68);
    EXPECT_EQ(tool.view().record.elementExpansion, Single(9.4e-6)); // stainless steel plate
    EXPECT_EQ(tool.view().record.pipeExpansion, Single(6.7e-6));    // carbon steel pipe
    EXPECT_EQ(data(6), "68.00");
    EXPECT_EQ(data(8), "9.40E-06");
    EXPECT_EQ(data(25), "6.70E-06");
    EXPECT_FALSE(tool.view().dirty);
    EXPECT_TRUE(ui.toolbar["Save"]);
    EXPECT_TRUE(tool.fieldLocked(0)); // flow is solved
    EXPECT_FALSE(tool.fieldLocked(1));
    // Setting the options and materials at load ran the calculation on the
    // empty record with the liquid tab in front: its message stands.
    EXPECT_EQ(tool.view().txtErrorLiquid.text, "Pipe ID cannot be zero");
    EXPECT_EQ(tool.view().txtErrorGas.text, "");
}

TEST_F(OrificeToolTest, ExpansionListsFollowTheTemperatureGlobal)
{
    // "1/°F" with °F or °R, "1/°C" with °C or K; the permanent loss takes the
    // pressure global, the differential pressure its own.
    for (const auto& [temperature, expansion] : {std::pair{0, 0}, {1, 1}, {2, 0}, {3, 1}}) {
        globalUnits()[Quantity::Temperature] = static_cast<UnitIndex>(temperature);
        globalUnits()[Quantity::Pressure] = 5;
        globalUnits()[Quantity::PressureDrop] = 2;
        tool.Form_Activate();
        for (int field : {8, 10, 23, 25})
            EXPECT_EQ(tool.view().cboUnits[static_cast<size_t>(field)].listIndex, expansion) << temperature;
        EXPECT_EQ(tool.view().cboUnits[13].listIndex, 5);
        EXPECT_EQ(tool.view().cboUnits[28].listIndex, 5);
        EXPECT_EQ(tool.view().cboUnits[1].listIndex, 2);
    }
    globalUnits()[Quantity::Temperature] = 1;
    tool.Form_Activate();
    EXPECT_EQ(data(8), "1.69E-05"); // stainless steel, 9.4e-6 per °F
}

TEST_F(OrificeToolTest, ALiquidCaseTypedInMetricUnits)
{
    type(3, "68");      // at the reference temperature: no thermal correction
    tool.setUnit(9, 3); // pipe ID in mm
    type(9, "102.2604");
    EXPECT_NEAR(tool.view().record.pipeID, 4.026, 1e-5);
    tool.setUnit(2, 3);
    type(2, "51.1302");
    tool.setUnit(4, 2); // kg/m3
    type(4, "999.5527");
    type(5, "1");       // cP
    tool.setUnit(1, 5); // kPa
    type(1, "68.9476");
    EXPECT_EQ(tool.view().txtDisplay[0].text, "0.5000");
    EXPECT_EQ(tool.view().txtErrorLiquid.text, "");
    // The same case as 10 psi of water at 62.4 lb/ft3 through 2.013 in in 4.026 in: 119,542 lb/h.
    EXPECT_NEAR(tool.view().record.liquidFlow, 119542, 119542 * 2e-5);
    EXPECT_EQ(data(0).substr(0, 5), "119,5");
    EXPECT_EQ(data(0).size(), std::string("119,542.23").size()); // lb/h with two decimals
    // The other tab shows the shared pipe diameter once it is refreshed.
    tool.SSTab1_Click(1);
    tool.setUnit(24, tool.view().cboUnits[24].listIndex);
    EXPECT_EQ(data(24), "4.0260");
    EXPECT_EQ(tool.view().record.gasFlow, 0); // flows stay per tab
}

TEST_F(OrificeToolTest, ComputeChoicesSolveForTheirQuantityAndCarryOverTabs)
{
    tool.optCompute_Click(1); // solve for the differential pressure: the flow is an input now
    EXPECT_TRUE(tool.view().dirty);
    type(3, "68");
    type(9, "4.026");
    type(2, "2.013");
    type(4, "62.4");
    type(5, "1");
    type(0, "100,000");
    EXPECT_TRUE(tool.fieldLocked(1));
    EXPECT_FALSE(tool.fieldLocked(0));
    EXPECT_NEAR(tool.view().record.differentialPressure, 10 * std::pow(100000 / 119542.2, 2), 0.02);
    tool.SSTab1_Click(1);
    EXPECT_TRUE(tool.fieldLocked(15)); // the same position on the gas tab
    // Each tab has its own group: a choice on the gas tab leaves the liquid
    // tab's as it was until the next tab switch carries it over.
    tool.optCompute_Click(5);
    tool.optMeterTap_Click(4);
    EXPECT_TRUE(tool.fieldLocked(16));
    EXPECT_TRUE(tool.fieldLocked(1));
    EXPECT_EQ(tool.view().meterTap[0], 0);
    tool.SSTab1_Click(0);
    EXPECT_TRUE(tool.fieldLocked(2));
    EXPECT_EQ(tool.view().meterTap[0], 1);
}

TEST_F(OrificeToolTest, OnlyTheTabInFrontIsInTheTabOrder)
{
    // Liquid in front: its inputs, lists and options are tab stops; the
    // solved flow is not; nothing of the gas tab is.
    const OrificeState& form = tool.view();
    EXPECT_TRUE(form.txtData[orifice::LiquidDifferentialPressure].tabStop);
    EXPECT_FALSE(form.txtData[orifice::LiquidFlow].tabStop);
    EXPECT_FALSE(form.txtData[orifice::LiquidPipeVelocity].tabStop); // a result
    EXPECT_TRUE(form.cboUnits[orifice::LiquidFlow].tabStop);         // the solved quantity's list stays usable
    EXPECT_FALSE(form.txtData[orifice::GasDifferentialPressure].tabStop);
    EXPECT_FALSE(form.cboUnits[orifice::GasDensity].tabStop);
    EXPECT_FALSE(form.optCompute[3].tabStop);
    EXPECT_FALSE(form.txtDisplay[orifice::HeatCapacityRatio].tabStop);
    tool.SSTab1_Click(orifice::GasTab);
    EXPECT_FALSE(form.txtData[orifice::LiquidDifferentialPressure].tabStop);
    EXPECT_FALSE(form.cboPipeMaterial[0].tabStop);
    EXPECT_TRUE(form.txtData[orifice::InletPressure].tabStop);
    EXPECT_TRUE(form.cboPipeMaterial[1].tabStop);
    EXPECT_TRUE(form.optMeterTap[4].tabStop);
    EXPECT_TRUE(form.txtDisplay[orifice::HeatCapacityRatio].tabStop);
    EXPECT_TRUE(form.txtProject[1].tabStop);
    EXPECT_FALSE(form.txtProject[0].tabStop);
}

TEST_F(OrificeToolTest, FailuresReachTheMessageBoxesAsTheRulesSay)
{
    // A gas case in flow mode with no pipe ID yet: the gas box is emptied and
    // the pipe ID message stands in the liquid tab's box.
    tool.SSTab1_Click(1);
    for (const auto& [field, text] : std::vector<std::pair<int, std::string>>{
             {15, "5"}, {16, "2.013"}, {17, "60"}, {18, "100"}, {19, "0.5"}, {20, "0.000018"}})
        type(field, text);
    tool.commit(orifice::txtDisplay(5), "1.4");
    EXPECT_EQ(tool.view().txtErrorGas.text, "");
    EXPECT_EQ(tool.view().txtErrorLiquid.text, "Pipe ID cannot be zero");
    type(24, "4.026");
    EXPECT_NE(tool.view().txtData[14].text, "0.00"); // now a flow
    EXPECT_EQ(tool.view().txtErrorGas.text, "");

    // Water in flow mode with a differential pressure of 0: the second pass
    // fails in the coefficient at Re = 0, and the box shows the last warning
    // that pass raised on flange taps.
    tool.SSTab1_Click(0);
    for (const auto& [field, text] : std::vector<std::pair<int, std::string>>{
             {1, "0"}, {2, "2.013"}, {3, "68"}, {4, "62.4"}, {5, "1"}, {9, "4.026"}})
        type(field, text);
    EXPECT_EQ(tool.view().txtErrorLiquid.text, "Warning:  The meter size/flow outside of ISO standard range.");
    EXPECT_EQ(tool.view().txtErrorGas.text, "");
}

TEST_F(OrificeToolTest, ThePermanentLossHasTwoDecimalsInEveryUnit)
{
    // Water through a half-beta plate in 4.026 in at 10 psi: a loss of about
    // 7.3 psi, shown in each unit of its list with the one mask "##,##0.00",
    // where the differential pressure keeps masks of its own.
    for (const auto& [field, text] : std::vector<std::pair<int, std::string>>{
             {1, "10"}, {2, "2.013"}, {3, "68"}, {4, "62.4"}, {5, "1"}, {9, "4.026"}})
        type(field, text);
    const QRegularExpression twoDecimals("^\\d{1,3}(,\\d{3})*\\.\\d\\d$");
    for (UnitIndex unit = 0; unit < 8; ++unit) {
        tool.setUnit(13, unit);
        tool.setUnit(28, unit);
        EXPECT_TRUE(twoDecimals.match(QString::fromStdString(data(13))).hasMatch()) << unit << " " << data(13);
        EXPECT_EQ(data(28), data(13));
        EXPECT_EQ(tool.view().txtData[13].text, formatMask(PressureToUnit(tool.view().record.permanentLoss, unit), "##,##0.00"));
    }
    tool.setUnit(13, 6); // Pa: the differential pressure's mask has one decimal there
    tool.setUnit(1, 6);
    EXPECT_EQ(data(1).substr(data(1).find('.')).size(), 2u);
    EXPECT_EQ(data(13).substr(data(13).find('.')).size(), 3u);
}

TEST_F(OrificeToolTest, OtherMaterialZeroesItsCoefficientAndAsksForIt)
{
    tool.cboPipeMaterial_Click(1, OrificeModel::kMaterials - 1);
    EXPECT_EQ(tool.view().record.pipeExpansion, 0);
    EXPECT_EQ(data(25), "0.00E+00");
    EXPECT_EQ(tool.focusRequest(), std::optional<Control>(orifice::txtData(25)));
    tool.cboElementMaterial_Click(0, 7); // yellow brass
    EXPECT_EQ(tool.view().record.elementExpansion, Single(1.05e-5));
    EXPECT_EQ(data(8), "1.05E-05");
}

class OrificeFileTest : public OrificeToolTest {
protected:
    std::string path(const char* name) const { return dir.filePath(name).toStdString(); }
    void enterWater()
    {
        for (const auto& [field, text] : std::vector<std::pair<int, std::string>>{
                 {1, "10"}, {2, "2.013"}, {3, "68"}, {4, "62.4"}, {5, "1"}, {9, "4.026"}})
            type(field, text);
    }
    QTemporaryDir dir;
};

TEST_F(OrificeFileTest, TheRecordIsLaidOutByteForByte)
{
    enterWater();
    tool.commit(orifice::txtProject(0), "Meter");
    tool.setStrFileName(path("case.ksv"));
    ASSERT_TRUE(tool.OpenSaveData("Save"));
    QByteArray bytes;
    ASSERT_TRUE(readWholeFile(QString::fromStdString(path("case.ksv")), bytes));
    // kind, tab, options, four materials, 19 singles, Tc and Pc, four texts, two names,
    // the compound position and five singles.
    ASSERT_EQ(bytes.size(), 2 + 2 + 2 + 2 + 8 + 76 + 8 + (4 + 5) + 3 * 4 + 2 * 4 + 4 + 20);
    RecordReader in(bytes);
    EXPECT_EQ(in.integer16(), 1);
    EXPECT_EQ(in.integer16(), 0);
    EXPECT_EQ(in.integer16(), 0); // flow solved
    EXPECT_EQ(in.integer16(), 0); // flange taps
    EXPECT_EQ(in.integer16(), 1); // stainless steel plate, both tabs
    EXPECT_EQ(in.integer16(), 1);
    EXPECT_EQ(in.integer16(), 0); // carbon steel pipe, both tabs
    EXPECT_EQ(in.integer16(), 0);
    EXPECT_NEAR(in.single(), tool.view().record.liquidFlow, 0);
    EXPECT_FALSE(tool.view().dirty);
    EXPECT_FALSE(ui.toolbar["Save"]);
    EXPECT_EQ(tool.view().caption, "Orifice Plates: case.ksv");
}

TEST_F(OrificeFileTest, ReopeningGivesTheSameFiguresAndKeepsTypedCoefficients)
{
    enterWater();
    tool.SSTab1_Click(1);
    tool.optCompute_Click(4);          // the gas tab's differential pressure option
    tool.cboPipeMaterial_Click(1, 19); // "Other!", then a typed coefficient
    type(25, "5.5E-06");
    tool.setStrFileName(path("gas.ksv"));
    ASSERT_TRUE(tool.OpenSaveData("Save"));
    QByteArray bytes;
    ASSERT_TRUE(readWholeFile(QString::fromStdString(path("gas.ksv")), bytes));
    RecordReader in(bytes);
    in.integer16();
    EXPECT_EQ(in.integer16(), 1);
    EXPECT_EQ(in.integer16(), 4); // stored as the control array numbers it

    ScriptedUserInterface other;
    OrificeModel again(other);
    ASSERT_TRUE(reopenIn(again, path("gas.ksv")));
    EXPECT_EQ(again.view().tab, 1);
    EXPECT_EQ(again.view().compute[1], 1);
    EXPECT_EQ(again.view().pipeMaterial[1], 19);
    EXPECT_EQ(again.view().record.pipeExpansion, Single(5.5e-6)); // the record wins over the list's table
    EXPECT_EQ(again.view().txtData[25].text, "5.50E-06");
    EXPECT_EQ(again.view().record.pipeID, tool.view().record.pipeID);
    EXPECT_FALSE(again.view().dirty);
}

TEST_F(OrificeFileTest, AFileSetsTheOptionOfItsOwnTabAndTheOtherTabKeepsItsOwn)
{
    // A gas case solved for the orifice diameter on corner taps.
    enterWater();
    tool.SSTab1_Click(1);
    tool.optCompute_Click(5);
    tool.optMeterTap_Click(5);
    tool.setStrFileName(path("bore.ksv"));
    ASSERT_TRUE(tool.OpenSaveData("Save"));

    // Opened into a tool whose liquid tab solves the differential pressure on D and D/2 taps.
    ScriptedUserInterface other;
    OrificeModel again(other);
    again.Form_Load();
    again.Form_Activate();
    again.optCompute_Click(1);
    again.optMeterTap_Click(1);
    again.setStrFileName(path("bore.ksv"));
    ASSERT_TRUE(again.OpenSaveData("Open"));
    EXPECT_EQ(again.view().tab, 1);
    EXPECT_EQ(again.view().compute[1], 2);
    EXPECT_EQ(again.view().meterTap[1], 2);
    EXPECT_EQ(again.view().compute[0], 1);
    EXPECT_EQ(again.view().meterTap[0], 1);
    EXPECT_TRUE(again.fieldLocked(16));
    EXPECT_TRUE(again.fieldLocked(1));
}

TEST_F(OrificeFileTest, AnotherToolsFileIsRefusedAndChangesNothing)
{
    enterWater();
    const Single flow = tool.view().record.liquidFlow;
    QFile file(dir.filePath("drop.ksv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("\x02\x00rest", 6));
    file.close();
    tool.setStrFileName(path("drop.ksv"));
    EXPECT_FALSE(tool.OpenSaveData("Open"));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, "Orifice Plates");
    EXPECT_EQ(ui.messages[0].text, "This is not an Orifice Plate data file.");
    EXPECT_EQ(tool.view().record.liquidFlow, flow);
}

TEST_F(OrificeFileTest, ResetAndTheCloseQuestion)
{
    enterWater();
    ui.answers = {MessageAnswer::Cancel};
    tool.cmdReset_Click();
    EXPECT_EQ(tool.view().record.pipeID, Single(4.026)); // Cancel keeps everything
    ui.answers = {MessageAnswer::Ok};
    tool.cmdReset_Click();
    EXPECT_EQ(tool.view().record.pipeID, 0);
    EXPECT_EQ(tool.view().record.differentialPressure, 10); // kept from case to case
    EXPECT_EQ(tool.view().record.temperature, 68);
    EXPECT_EQ(tool.view().txtDisplay[0].text, "");
    EXPECT_TRUE(tool.view().dirty);
    // The options and materials were set by their click routines: the run on
    // the emptied record left its message.
    EXPECT_EQ(tool.view().txtErrorLiquid.text, "Pipe ID cannot be zero");
    EXPECT_EQ(tool.view().record.elementExpansion, Single(9.4e-6));

    ui.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(tool.Form_QueryUnload());
    EXPECT_EQ(ui.messages.back().text, "Save data before closing?");
    ui.answers = {MessageAnswer::No};
    EXPECT_TRUE(tool.Form_QueryUnload());
    EXPECT_FALSE(ui.toolbar["Save"]);
}

TEST_F(OrificeFileTest, DataSheetRowsFollowTheirTables)
{
    enterWater();
    // The water of the properties tool, at the density and viscosity typed.
    physProps() = PhysProps{};
    physProps().liquidName = "Water";
    physProps().liquidDensity = 62.4f;
    physProps().liquidViscosity = 0.001f;
    ui.propertiesApplied = {true};
    tool.cmdProperties_Click(0);
    SettingsStore store(dir.filePath("Kestrova.ini"));
    DataSheetPrinter printer(ui, store, dir.path(), dir.filePath("data"));
    tool.PrintDataSheet(printer);
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].title, "Orifice Plate - Liquid Flow");
    const DataSheetColumns row = ui.reports[0].row.value();
    const auto column = [&](const std::string& name) {
        for (const auto& c : row)
            if (c.first == name)
                return c.second;
        return std::string("(missing)");
    };
    EXPECT_EQ(column("Computation"), "Flow Rate");
    EXPECT_EQ(column("TapType"), "Flange Taps");
    EXPECT_EQ(column("ElementMat"), "Stainless Steel");
    EXPECT_EQ(column("Flowrate"), tool.view().txtData[0].text);
    EXPECT_EQ(column("PipeDiameter"), "4.0260");
    EXPECT_EQ(column("PipeDiameterU"), "in");
    EXPECT_EQ(column("BetaRatio"), "0.5000");
    const auto layout = readReportTemplate(QDir(KESTROVA_DATA_DIR).filePath("orpliquid.rpt"));
    ASSERT_TRUE(layout.has_value());
    EXPECT_TRUE(dataSheetHtml(*layout, row).has_value());

    tool.SSTab1_Click(1);
    tool.PrintDataSheet(printer);
    EXPECT_EQ(ui.reports[1].table, "ORPGas");
    const auto gasLayout = readReportTemplate(QDir(KESTROVA_DATA_DIR).filePath("orpgas.rpt"));
    ASSERT_TRUE(gasLayout.has_value());
    EXPECT_TRUE(dataSheetHtml(*gasLayout, ui.reports[1].row.value()).has_value());
    EXPECT_EQ(stagedRowCount(printer.stagingPath(), "ORPGas"), 0);
}

TEST_F(OrificeToolTest, DataButtonsTakeWhatTheDialogToolsReturn)
{
    ui.pipeAnswers = {4.026, 0}; // a size, then a cancel
    tool.cmdTable_Click(0);
    EXPECT_EQ(ui.pipeSelectors.back(), "ID");
    EXPECT_EQ(data(9), "4.0260");
    EXPECT_EQ(data(24), "4.0260"); // both tabs show the shared diameter
    tool.cmdTable_Click(1);
    EXPECT_EQ(tool.view().record.pipeID, Single(4.026)); // a cancel changes nothing

    ui.ratioAnswers = {1.31};
    tool.cmdTable_Click(2);
    EXPECT_EQ(tool.view().txtDisplay[5].text, "1.31");
    EXPECT_EQ(tool.view().record.heatCapacityRatio, Single(1.31));
    ui.densityAnswers = {0.0763};
    tool.cmdTable_Click(3);
    EXPECT_EQ(data(19), "0.0763");
    EXPECT_TRUE(tool.view().dirty);

    physProps() = PhysProps{};
    physProps().liquidName = "Water";
    physProps().liquidDensity = 62.2292;
    physProps().liquidViscosity = 0.000893;
    ui.propertiesApplied = {true, false};
    tool.cmdProperties_Click(0);
    EXPECT_EQ(data(4), "62.2292");
    EXPECT_EQ(data(5), "8.9300E-01");
    EXPECT_EQ(tool.view().Frame1[0].caption, "Properties:  Water");
    physProps().vaporViscosity = 0.00002;
    tool.cmdProperties_Click(1); // cancelled
    EXPECT_EQ(tool.view().record.gasViscosity, 0);
    EXPECT_EQ(tool.view().Frame1[10].caption, "Properties");
}
