#include "forms/model/scripted_user_interface.h"
#include "forms/store/settings_store.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/piping/model/minor_losses_model.h"
#include "tools/piping/model/pipe_model.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/piping/model/reducer_model.h"
#include "tools/piping/model/roughness_model.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kestrova;

namespace {
const QString kData = KESTROVA_DATA_DIR;
}

TEST(PipeData, TablesInTheirStoredOrderAndRoughnessFiles)
{
    const std::vector<std::string> astm = pipeTableNames(QDir(kData).filePath("pipeastm.sqlite"));
    ASSERT_EQ(astm.size(), 12u);
    EXPECT_EQ(astm.front(), "ECarbon Steel");
    EXPECT_EQ(astm[4], "NPVC (ASTM D1785)");
    EXPECT_EQ(astm.back(), "TStainless Steel Tubing (BWG)");
    EXPECT_EQ(pipeTableNames(QDir(kData).filePath("pipedin.sqlite")).front(), "ESteel (EN 10220)");
    for (const char* name : {"ASTMM", "ASTMNM", "ASTMT", "DINM", "DINNM", "DINT"})
        EXPECT_EQ(QFileInfo(QDir(kData).filePath(QString(name) + ".dat")).size(), 64) << name;
    const auto metal = readRoughnessFile(QDir(kData).filePath("ASTMM.dat"));
    EXPECT_EQ(metal[0], Single(0.00015));
    EXPECT_EQ(metal[2], Single(0.0005));
    EXPECT_EQ(metal[4], 0);
}

class PipeToolTest : public testing::Test {
protected:
    PipeToolTest() : store(dir.filePath("Kestrova.ini")), tool(ui, &store, kData)
    {
        tool.Form_Load();
        tool.Form_Activate();
    }
    // The row of a table whose first cells read as given.
    int rowOf(int pipeClass, const std::vector<std::string>& start)
    {
        const PipeTable& grid = tool.classes[static_cast<size_t>(pipeClass)].grid;
        for (size_t r = 0; r < grid.rows.size(); ++r)
            if (std::equal(start.begin(), start.end(), grid.rows[r].begin()))
                return static_cast<int>(r);
        return -1;
    }
    QTemporaryDir dir;
    SettingsStore store;
    ScriptedUserInterface ui;
    PipeModel tool;
};

TEST_F(PipeToolTest, SixInchScheduleFortyReadsItsDiameters)
{
    const PipeModel::ClassState& astm = tool.classes[0];
    ASSERT_EQ(astm.materials.front(), "Carbon Steel");
    EXPECT_EQ(astm.grid.headings, (std::vector<std::string>{"NPS", "OD, in", "Schedule", "Wall, in", "ID, in", "Flow Area, in²"}));
    const int row = rowOf(0, {"6", "6.625", "40/STD"});
    ASSERT_GE(row, 0);
    EXPECT_EQ(astm.grid.rows[static_cast<size_t>(row)][4], "6.065");
    EXPECT_EQ(astm.roughnessText, "0.000150"); // ft, the global roughness unit

    const Single id = tool.SelectPipeID("ID", [&] {
        tool.setCurrentCell(0, row, 1); // the OD column while an ID is asked for
        tool.cmdSelect_Click();
        EXPECT_EQ(ui.messages.back().text, "Please select a pipe/tube ID...");
        EXPECT_EQ(ui.messages.back().title, "Pipe and Tubing Sizes");
        EXPECT_FALSE(tool.closeRequested);
        tool.setCurrentCell(0, row, 4);
        tool.cmdSelect_Click();
    });
    EXPECT_EQ(id, Single(6.065));
    EXPECT_EQ(pipeToolRoughness(), Single(0.00015));
}

TEST_F(PipeToolTest, TheIsoClassReturnsInchesAndUsedPipeIsThreeTimesRougher)
{
    tool.tabPipeClass_Click(1);
    const int row = rowOf(1, {"100", "114.3", "3.2"});
    ASSERT_GE(row, 0);
    EXPECT_EQ(tool.classes[1].grid.rows[static_cast<size_t>(row)][3], "107.9");
    tool.optCondition_Click(1, 1);
    EXPECT_EQ(tool.classes[1].roughness, Single(0.00015) * 3);
    const Single od = tool.SelectPipeID("OD", [&] {
        tool.setCurrentCell(1, row, 1);
        tool.cmdSelect_Click();
    });
    EXPECT_NEAR(od, 114.3 / 25.4, 1e-6);
    EXPECT_EQ(store.get("Settings", "PipeClass", ""), "1");
    EXPECT_EQ(store.get("Settings", "DINCondition", ""), "1");

    // A cancel returns 0 and leaves the global roughness.
    pipeToolRoughness() = 0.123;
    EXPECT_EQ(tool.SelectPipeID("ID", [&] { tool.cmdClose_Click(); }), 0);
    EXPECT_EQ(pipeToolRoughness(), Single(0.123));
}

TEST_F(PipeToolTest, MaterialKindsListTheirOwnTables)
{
    tool.optMaterial_Click(0, 2);
    EXPECT_EQ(tool.classes[0].materials, (std::vector<std::string>{"Copper (ASTM B88)", "Stainless Steel Tubing (BWG)"}));
    EXPECT_EQ(tool.classes[0].roughness, Single(0.000005));
    EXPECT_EQ(store.get("Settings", "ASTMPipe", ""), "2");
    tool.setUnit(0, 2);
    EXPECT_EQ(tool.classes[0].roughnessText, "0.0015"); // mm
}

TEST(PipeToolMissingData, SaysSoAndDoesNotFail)
{
    ScriptedUserInterface ui;
    QTemporaryDir empty;
    PipeModel tool(ui, nullptr, empty.path());
    tool.Form_Load();
    ASSERT_FALSE(ui.messages.empty());
    EXPECT_NE(ui.messages.front().text.find("cannot be found"), std::string::npos);
    EXPECT_TRUE(tool.classes[0].materials.empty());
}

TEST(RoughnessPicker, MaterialsConditionsAndTypedValues)
{
    ScriptedUserInterface ui;
    RoughnessModel tool(ui, nullptr);
    tool.Form_Load();
    tool.Form_Activate();
    tool.optPipeRoughness_Click(4);
    tool.optPipeCondition_Click(1);
    EXPECT_EQ(tool.roughness, Single(0.0165)); // used concrete is new riveted steel
    tool.optPipeRoughness_Click(8);
    tool.optPipeCondition_Click(0);
    EXPECT_EQ(tool.txtData, "0.000001"); // glass in ft
    tool.txtData = "0";
    tool.txtData_LostFocus();
    const Single chosen = tool.SelectRoughness([&] {
        tool.cmdSelect_Click();
        EXPECT_EQ(ui.messages.back().text, "Enter an absolute roughness to use.");
        EXPECT_FALSE(tool.closeRequested);
        tool.setUnit(2);
        tool.txtData = "0.05";
        tool.txtData_LostFocus();
        tool.cmdSelect_Click();
    });
    EXPECT_NEAR(chosen, 0.05 / 304.8, 1e-9);
    EXPECT_EQ(tool.SelectRoughness([&] { tool.cmdExit_Click(); }), 0);
}

class MinorLossesTest : public testing::Test {
protected:
    MinorLossesTest() : tool(ui)
    {
        minorLossStore() = MinorLossStore{};
        CurrentLine() = 0;
    }
    ScriptedUserInterface ui;
    MinorLossesModel tool;
};

TEST_F(MinorLossesTest, SumsOfTheTwoKMethod)
{
    tool.Form_Load();
    EXPECT_TRUE(ui.messages.empty()); // an empty slot is reset without a question
    tool.txtQuantity[4] = "2";  // standard screwed 90° elbows
    tool.txtQuantity[23] = "1"; // swing check valve
    tool.txtQuantity[0] = "0";
    tool.Sum();
    EXPECT_EQ(tool.txtTotalK1, "3,100");
    EXPECT_EQ(tool.txtTotalK2, "2.30");
    EXPECT_EQ(tool.txtQuantity[0], ""); // a zero is emptied
    tool.txtQuantity = {};
    tool.txtQuantity[27] = "1"; // pipe exit
    tool.txtQuantity[30] = "1"; // stub-in through flow
    tool.Sum();
    EXPECT_EQ(tool.txtTotalK1, "100");
    EXPECT_EQ(tool.txtTotalK2, "1.00");
    // Three long radius 45° elbows: K2 0.15 each, a single, and each addition
    // is stored as a single: 0.450000018, not 0.449999988 (one rounding of 0.45).
    tool.txtQuantity = {};
    tool.txtQuantity[1] = "3";
    tool.Sum();
    EXPECT_EQ(tool.K1Sum.value(), 1500.0f);
    EXPECT_EQ(tool.K2Sum.value(), 0.15f + 0.15f + 0.15f);
    EXPECT_NE(tool.K2Sum.value(), 0.45f);
    tool.txtQuantity[1] = "1";
    tool.txtQuantity[3] = "1";
    tool.txtQuantity[6] = "1";
    tool.Sum();
    EXPECT_EQ(tool.K2Sum.value(), (0.15f + 0.15f) + 0.2f);
}

TEST_F(MinorLossesTest, ApplyStoresTheSlotAndCloseKeepsTheOldSums)
{
    tool.Form_Load();
    tool.GetKValue([&] {
        tool.txtQuantity[18] = "1"; // globe valve
        tool.txtKValue[2] = "0.5";
        tool.Sum();
        tool.cmdApply_Click();
    });
    EXPECT_EQ(minorLossStore().SegK1[0], 1500);
    EXPECT_EQ(minorLossStore().SegK2[0], 4);
    EXPECT_EQ(minorLossStore().SegK3[0], Single(0.5));
    EXPECT_TRUE(minorLossStore().hasData[0]);
    EXPECT_EQ(minorLossStore().quantities[0][18], 1);

    MinorLossesModel again(ui);
    again.Form_Load();
    EXPECT_EQ(again.txtQuantity[18], "1");
    again.GetKValue([&] {
        again.txtQuantity[18] = "5";
        again.Sum();
        again.cmdClose_Click();
    });
    EXPECT_EQ(minorLossStore().SegK1[0], 1500);
}

TEST_F(MinorLossesTest, ReducerKValuesAndTheirCancelValue)
{
    tool.Form_Load();
    ui.contractionAnswers = {0.156, 1.0};
    tool.cmdContractionTable_Click();
    EXPECT_EQ(tool.txtKValue[1], "0.156");
    EXPECT_EQ(minorLossStore().contractionK, Single(0.156));
    tool.cmdContractionTable_Click(); // a K of exactly 1 looks like a cancel
    EXPECT_EQ(tool.txtKValue[1], "0.156");
    ui.answers = {MessageAnswer::Cancel};
    tool.cmdReset_Click();
    EXPECT_EQ(ui.messages.back().text, "Are you sure you want to reset all K values?");
    EXPECT_EQ(tool.txtKValue[1], "0.156");
}

namespace {

// A row typed as a user types it: the angle left, then the beta left.
void typeRow(ReducerModel& tool, int row, const char* angle, const char* beta)
{
    if (angle) {
        tool.txtAngle[static_cast<size_t>(row)] = angle;
        tool.txtAngle_LostFocus(row);
    }
    tool.txtBeta[static_cast<size_t>(row)] = beta;
    tool.txtBeta_LostFocus(row);
}

} // namespace

TEST(Reducers, FormulasOfTheGradualAndSuddenRows)
{
    // The published figures: H = 0.2618 for 30°; contraction at 30° and beta
    // 0.5: 0.8 sin(0.19635) = 0.156; at 45°: 0.75 x 0.5 x sqrt(sin 22.5°) =
    // 0.232; sudden: (1 - 0.25)^2 = 0.5625; enlargement at 30°:
    // 2.6 sin(0.2618 x 0.5625) = 0.381.
    ScriptedUserInterface ui;
    ReducerModel contraction(ReducerKind::Contraction, ui);
    typeRow(contraction, 0, "30", "0.5");
    EXPECT_EQ(contraction.txtKValue[0], "0.156");
    typeRow(contraction, 1, "45", "0.5");
    EXPECT_EQ(contraction.txtKValue[1], "0.232");
    typeRow(contraction, 5, nullptr, "0.5");
    EXPECT_EQ(contraction.txtKValue[5], "0.563");
    EXPECT_EQ(contraction.txtTotalK, "0.951");
    contraction.txtAngle[2] = "30";
    contraction.txtAngle_LostFocus(2); // an angle with no beta has no K
    EXPECT_EQ(contraction.txtKValue[2], "");

    ReducerModel enlargement(ReducerKind::Enlargement, ui);
    typeRow(enlargement, 0, "30", "0.5");
    EXPECT_EQ(enlargement.txtKValue[0], "0.381");
    typeRow(enlargement, 1, "90", "0.5");
    EXPECT_EQ(enlargement.txtKValue[1], "0.563");
    typeRow(enlargement, 6, nullptr, "0.5");
    EXPECT_EQ(enlargement.txtKValue[6], "0.563");
    EXPECT_TRUE(ui.messages.empty());
}

TEST(Reducers, ValidationMessagesAndTheEntryPoint)
{
    ScriptedUserInterface ui;
    CurrentLine() = 3;
    enlargementStore() = ReducerStore{};
    ReducerModel tool(ReducerKind::Enlargement, ui);
    tool.Form_Load();
    tool.txtAngle[0] = "180";
    EXPECT_FALSE(tool.txtAngle_LostFocus(0));
    EXPECT_EQ(ui.messages.back().title, "Englargements");
    EXPECT_EQ(ui.messages.back().text, "Invalid angle entered.\n \nThe angle entered must be between 0 and 180 degrees.");
    EXPECT_EQ(tool.focusRequest, "txtAngle(0)");
    tool.txtBeta[6] = "1";
    EXPECT_FALSE(tool.txtBeta_LostFocus(6));
    EXPECT_EQ(ui.messages.back().text, "Invalid beta entered.\n \nBeta must be between 0 and 1.");

    const Single k = tool.GetK([&] {
        tool.txtBeta[6] = "0.5";
        EXPECT_TRUE(tool.txtBeta_LostFocus(6));
        tool.cmdApply_Click();
    });
    EXPECT_EQ(k, Single(0.563));
    EXPECT_TRUE(enlargementStore().hasData[3]);
    EXPECT_EQ(enlargementStore().values[3][11], Single(0.5));
    EXPECT_EQ(tool.GetK([&] { tool.cmdClose_Click(); }), 1);
    CurrentLine() = 0;
}
