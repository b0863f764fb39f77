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
        const PipeTable& grid = tool.view().classes[static_cast<size_t>(pipeClass)].grid;
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
    const PipeClassState& astm = tool.view().classes[0];
    ASSERT_EQ(astm.materials.front(), "Carbon Steel");
    EXPECT_EQ(astm.grid.headings, (std::vector<std::string>{"NPS", "OD, in", "Schedule", "Wall, in", "ID, in", "Flow Area, in²"}));
    const int row = rowOf(0, {"6", "6.625", "40/STD"});
    ASSERT_GE(row, 0);
    EXPECT_EQ(astm.grid.rows[static_cast<size_t>(row)][4], "6.065");
    EXPECT_EQ(astm.txtRoughness.text, "0.000150"); // ft, the global roughness unit
    EXPECT_FALSE(tool.view().cmdSelect.enabled); // a viewer by itself
    tool.doubleClick(pipe_sizes::grdPipeSize(0)); // nothing to select for
    EXPECT_FALSE(tool.closeRequested);

    const Single id = tool.SelectPipeID("ID", [&] {
        tool.setCurrentCell(0, row, 1); // the OD column while an ID is asked for
        tool.cmdSelect_Click();
        EXPECT_EQ(ui.messages.back().text, "Please select a pipe/tube ID...");
        EXPECT_EQ(ui.messages.back().title, "Pipe and Tubing Sizes");
        EXPECT_FALSE(tool.closeRequested);
        tool.setCurrentCell(0, row, 4);
        tool.doubleClick(pipe_sizes::grdPipeSize(0)); // a double click on the grid selects
    });
    EXPECT_EQ(id, Single(6.065));
    EXPECT_EQ(pipeToolRoughness(), Single(0.00015));
}

TEST_F(PipeToolTest, TheIsoClassReturnsInchesAndUsedPipeIsThreeTimesRougher)
{
    tool.tabPipeClass_Click(1);
    const int row = rowOf(1, {"100", "114.3", "3.2"});
    ASSERT_GE(row, 0);
    EXPECT_EQ(tool.view().classes[1].grid.rows[static_cast<size_t>(row)][3], "107.9");
    tool.optCondition_Click(1, 1);
    EXPECT_EQ(tool.view().classes[1].roughness, Single(0.00015) * 3);
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
    EXPECT_EQ(tool.view().classes[0].materials, (std::vector<std::string>{"Copper (ASTM B88)", "Stainless Steel Tubing (BWG)"}));
    EXPECT_EQ(tool.view().classes[0].roughness, Single(0.000005));
    EXPECT_EQ(store.get("Settings", "ASTMPipe", ""), "2");
    tool.setUnit(0, 2);
    EXPECT_EQ(tool.view().classes[0].txtRoughness.text, "0.0015"); // mm
    EXPECT_TRUE(tool.view().classes[0].optMaterial[2].checked);
}

TEST(PipeToolMissingData, SaysSoAndDoesNotFail)
{
    ScriptedUserInterface ui;
    QTemporaryDir empty;
    PipeModel tool(ui, nullptr, empty.path());
    tool.Form_Load();
    ASSERT_FALSE(ui.messages.empty());
    EXPECT_NE(ui.messages.front().text.find("cannot be found"), std::string::npos);
    EXPECT_TRUE(tool.view().classes[0].materials.empty());
}

TEST(RoughnessPicker, MaterialsConditionsAndTypedValues)
{
    using namespace roughness;
    ScriptedUserInterface ui;
    RoughnessModel tool(ui, nullptr);
    tool.Form_Load();
    tool.Form_Activate();
    tool.click(optPipeRoughness(4));
    tool.click(optPipeCondition(1));
    EXPECT_EQ(tool.view().roughness, Single(0.0165)); // used concrete is new riveted steel
    tool.click(optPipeRoughness(8));
    tool.click(optPipeCondition(0));
    EXPECT_EQ(tool.view().txtData.text, "0.000001"); // glass in ft
    tool.commit(txtData, "0");
    tool.doubleClick(optPipeRoughness(8)); // a viewer by itself: nothing is selected
    EXPECT_FALSE(tool.closeRequested);
    const Single chosen = tool.SelectRoughness([&] {
        tool.click(cmdSelect);
        EXPECT_EQ(ui.messages.back().text, "Enter an absolute roughness to use.");
        EXPECT_FALSE(tool.closeRequested);
        tool.choose(cboUnits, 2); // mm
        tool.commit(txtData, "0.05");
        tool.click(cmdSelect);
    });
    EXPECT_NEAR(chosen, 0.05 / 304.8, 1e-9);
    EXPECT_EQ(tool.SelectRoughness([&] { tool.click(cmdExit); }), 0);
    // A double click on a material (its click first) selects it while a tool asks for one.
    const Single clicked = tool.SelectRoughness([&] {
        tool.click(optPipeRoughness(3));
        tool.doubleClick(optPipeRoughness(3));
    });
    EXPECT_EQ(clicked, Single(0.0005));
}

class MinorLossesTest : public testing::Test {
protected:
    MinorLossesTest() : tool(ui)
    {
        minorLossStore() = MinorLossStore{};
        CurrentLine() = 0;
    }
    // Typed key by key, then left.
    void type(const Control& field, const std::string& text)
    {
        tool.textEdited(field, text);
        tool.commit(field, text);
    }
    void clearQuantities()
    {
        for (int n = 0; n < minor_losses::kFittings; ++n)
            type(minor_losses::txtQuantity(n), "");
    }
    const MinorLossesState& form() const { return tool.view(); }
    ScriptedUserInterface ui;
    MinorLossesModel tool;
};

TEST_F(MinorLossesTest, SumsOfTheTwoKMethod)
{
    using minor_losses::txtQuantity;
    tool.Form_Load();
    EXPECT_TRUE(ui.messages.empty()); // an empty slot is reset without a question
    EXPECT_EQ(form().txtQuantity[4].keys, KeyRule::Digits); // a count: digits alone
    type(txtQuantity(4), "2");  // standard screwed 90° elbows
    type(txtQuantity(23), "1"); // swing check valve
    type(txtQuantity(0), "0");
    EXPECT_EQ(form().txtTotalK1.text, "3,100");
    EXPECT_EQ(form().txtTotalK2.text, "2.30");
    EXPECT_EQ(form().txtQuantity[0].text, ""); // a zero is emptied
    clearQuantities();
    tool.textEdited(txtQuantity(27), "1"); // pipe exit: the sums follow each keystroke
    EXPECT_EQ(form().txtTotalK2.text, "1.00");
    type(txtQuantity(30), "1"); // stub-in through flow
    EXPECT_EQ(form().txtTotalK1.text, "100");
    EXPECT_EQ(form().txtTotalK2.text, "1.00");
    // Three long radius 45° elbows: K2 0.15 each, a single, and each addition
    // is stored as a single: 0.450000018, not 0.449999988 (one rounding of 0.45).
    clearQuantities();
    type(txtQuantity(1), "3");
    EXPECT_EQ(form().K1Sum.value(), 1500.0f);
    EXPECT_EQ(form().K2Sum.value(), 0.15f + 0.15f + 0.15f);
    EXPECT_NE(form().K2Sum.value(), 0.45f);
    type(txtQuantity(1), "1");
    type(txtQuantity(3), "1");
    type(txtQuantity(6), "1");
    EXPECT_EQ(form().K2Sum.value(), (0.15f + 0.15f) + 0.2f);
}

TEST_F(MinorLossesTest, ApplyStoresTheSlotAndCloseKeepsTheOldSums)
{
    using namespace minor_losses;
    tool.Form_Load();
    tool.GetKValue([&] {
        type(txtQuantity(18), "1"); // globe valve
        type(txtKValue(OtherLosses), "0.5");
        EXPECT_EQ(form().txtKValue[OtherLosses].text, "0.500"); // reformatted as it is left
        tool.click(cmdApply);
    });
    EXPECT_EQ(minorLossStore().SegK1[0], 1500);
    EXPECT_EQ(minorLossStore().SegK2[0], 4);
    EXPECT_EQ(minorLossStore().SegK3[0], Single(0.5));
    EXPECT_TRUE(minorLossStore().hasData[0]);
    EXPECT_EQ(minorLossStore().quantities[0][18], 1);

    MinorLossesModel again(ui);
    again.Form_Load();
    EXPECT_EQ(again.view().txtQuantity[18].text, "1");
    again.GetKValue([&] {
        again.textEdited(txtQuantity(18), "5");
        again.click(cmdClose);
    });
    EXPECT_EQ(minorLossStore().SegK1[0], 1500);
}

TEST_F(MinorLossesTest, ReducerKValuesAndTheirCancelValue)
{
    using namespace minor_losses;
    tool.Form_Load();
    ui.contractionAnswers = {0.156, 1.0};
    tool.click(cmdContractionTable);
    EXPECT_EQ(form().txtKValue[Contractions].text, "0.156");
    EXPECT_EQ(minorLossStore().contractionK, Single(0.156));
    tool.click(cmdContractionTable); // a K of exactly 1 looks like a cancel
    EXPECT_EQ(form().txtKValue[Contractions].text, "0.156");
    ui.answers = {MessageAnswer::Cancel};
    tool.click(cmdReset);
    EXPECT_EQ(ui.messages.back().text, "Are you sure you want to reset all K values?");
    EXPECT_EQ(form().txtKValue[Contractions].text, "0.156");
}

namespace {

// A row typed as a user types it: the angle left, then the beta left.
void typeRow(ReducerModel& tool, int row, const char* angle, const char* beta)
{
    if (angle)
        tool.commit(reducer::txtAngle(row), angle);
    tool.commit(reducer::txtBeta(row), beta);
}

std::string kOf(const ReducerModel& tool, int row)
{
    return tool.view().txtKValue[static_cast<size_t>(row)].text;
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
    EXPECT_EQ(kOf(contraction, 0), "0.156");
    typeRow(contraction, 1, "45", "0.5");
    EXPECT_EQ(kOf(contraction, 1), "0.232");
    typeRow(contraction, 5, nullptr, "0.5");
    EXPECT_EQ(kOf(contraction, 5), "0.563");
    EXPECT_EQ(contraction.view().txtTotalK.text, "0.951");
    contraction.commit(reducer::txtAngle(2), "30"); // an angle with no beta has no K
    EXPECT_EQ(kOf(contraction, 2), "");

    contraction.click(reducer::cmdHelp); // each window asks for its own topic
    EXPECT_EQ(ui.helpShown, std::vector<int>{1630});

    ReducerModel enlargement(ReducerKind::Enlargement, ui);
    typeRow(enlargement, 0, "30", "0.5");
    EXPECT_EQ(kOf(enlargement, 0), "0.381");
    typeRow(enlargement, 1, "90", "0.5");
    EXPECT_EQ(kOf(enlargement, 1), "0.563");
    enlargement.click(reducer::cmdHelp);
    EXPECT_EQ(ui.helpShown, (std::vector<int>{1630, 1640}));
    typeRow(enlargement, 6, nullptr, "0.5");
    EXPECT_EQ(kOf(enlargement, 6), "0.563");
    EXPECT_TRUE(ui.messages.empty());
}

TEST(Reducers, ValidationMessagesAndTheEntryPoint)
{
    ScriptedUserInterface ui;
    CurrentLine() = 3;
    enlargementStore() = ReducerStore{};
    ReducerModel tool(ReducerKind::Enlargement, ui);
    tool.Form_Load();
    tool.commit(reducer::txtAngle(0), "180");
    EXPECT_EQ(ui.messages.back().title, "Englargements");
    EXPECT_EQ(ui.messages.back().text, "Invalid angle entered.\n \nThe angle entered must be between 0 and 180 degrees.");
    EXPECT_EQ(tool.takeFocusRequest(), std::optional<Control>(reducer::txtAngle(0)));
    tool.commit(reducer::txtBeta(6), "1");
    EXPECT_EQ(tool.takeFocusRequest(), std::optional<Control>(reducer::txtBeta(6)));
    EXPECT_EQ(ui.messages.back().text, "Invalid beta entered.\n \nBeta must be between 0 and 1.");

    const Single k = tool.GetK([&] {
        tool.commit(reducer::txtBeta(6), "0.5");
        EXPECT_FALSE(tool.focusRequest());
        tool.click(reducer::cmdApply);
    });
    EXPECT_EQ(k, Single(0.563));
    EXPECT_TRUE(enlargementStore().hasData[3]);
    EXPECT_EQ(enlargementStore().values[3][11], Single(0.5));
    EXPECT_EQ(tool.GetK([&] { tool.cmdClose_Click(); }), 1);
    CurrentLine() = 0;
}
