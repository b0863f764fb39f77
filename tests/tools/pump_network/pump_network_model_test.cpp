// The pump network tool driven as a user would: fields typed in their units,
// the summary grid with its own unit lists, reset.

#include "forms/store/global_units.h"
#include "forms/model/scripted_user_interface.h"
#include "tools/piping/model/minor_loss_store.h"
#include "tools/pump_network/model/pump_network_model.h"

#include <gtest/gtest.h>

using namespace kestrova;

class PumpNetworkTest : public testing::Test {
protected:
    PumpNetworkTest() : tool(ui)
    {
        globalUnits() = GlobalUnits{};
        minorLossStore() = MinorLossStore{};
        tool.Form_Load();
        tool.Form_Activate();
        for (int line = 1; line <= 11; ++line) {
            tool.segments.SegID[line] = 4.026;
            tool.segments.SegDensity[line] = 62.4;
            tool.segments.SegVisc[line] = 0.001;
        }
    }
    void type(int field, const std::string& text)
    {
        tool.txtData[static_cast<size_t>(field)] = text;
        tool.txtData_LostFocus(field);
    }
    const std::string& cell(int row, int line) const
    {
        return tool.grid[static_cast<size_t>(row)][static_cast<size_t>(line + 1)];
    }

    ScriptedUserInterface ui;
    PumpNetworkModel tool;
};

TEST_F(PumpNetworkTest, LoadShowsTheStartValuesAndTheGridLayout)
{
    EXPECT_EQ(tool.txtHydraulicEff, "100");
    EXPECT_EQ(tool.txtMinValvePercentdP, "30");
    EXPECT_EQ(tool.txtData[33], "10"); // the minimum valve drop, in psi with its mask
    EXPECT_EQ(tool.grid[0][1], "Line:");
    EXPECT_EQ(tool.grid[0][12], "11");
    EXPECT_EQ(tool.grid[16][0], "P Dest:");
    EXPECT_EQ(ui.statusText, "Pump Network Design");
    EXPECT_TRUE(ui.toolbar["Save"]);
}

TEST_F(PumpNetworkTest, TheHandExampleThroughTheFields)
{
    type(15, "50,000"); // line 3, the recycle to the source
    type(16, "100");    // the source vessel at 100 psi
    type(1, "200");     // line 5's destination, without flow
    tool.txtData[33] = "0";
    tool.txtData_LostFocus(33);
    EXPECT_EQ(tool.txtData[31], "200.00");
    EXPECT_EQ(tool.txtData[32], "100.00");
    EXPECT_EQ(tool.txtData[27], "231.00");
    EXPECT_EQ(tool.txtData[30], "5.83");
    EXPECT_EQ(tool.txtData[24], "100.00"); // line 3's valve takes what is left
    EXPECT_EQ(cell(1, 3), "50,000");
    EXPECT_EQ(cell(1, 5), "");             // a zero shows empty
    EXPECT_EQ(cell(11, 1), "78,436");
}

TEST_F(PumpNetworkTest, EachFieldAndGridRowKeepsItsOwnUnit)
{
    tool.setUnit(0, 3); // line 5's flow in kg/hr
    type(0, "1,000");
    EXPECT_NEAR(tool.state.NetFlow[5], 1000 / 0.45359237, 0.01);
    EXPECT_EQ(tool.txtData[0], "1,000.00");
    EXPECT_EQ(cell(1, 5), "2,205"); // the grid's flow row is still in lbm/hr
    tool.setUnit(34, 3);
    EXPECT_EQ(cell(1, 5), "1,000.00");
    EXPECT_EQ(tool.txtData[0], "1,000.00");
}

TEST_F(PumpNetworkTest, ResetAsksAndReturnsEveryFieldToZero)
{
    type(15, "50,000");
    tool.txtHydraulicEff = "75";
    tool.txtHydraulicEff_LostFocus();
    ui.answers = {MessageAnswer::Cancel};
    tool.cmdReset_Click();
    EXPECT_EQ(tool.state.NetFlow[3], 50000);
    ui.answers = {MessageAnswer::Ok};
    tool.cmdReset_Click();
    EXPECT_EQ(ui.messages.back().text, "Reset all input data?");
    EXPECT_EQ(tool.state.NetFlow[3], 0);
    EXPECT_EQ(tool.txtData[15], "0");
    EXPECT_EQ(tool.txtData[16], "0.00");
    EXPECT_EQ(tool.txtHydraulicEff, "100");
    EXPECT_EQ(cell(1, 3), "");
    EXPECT_TRUE(tool.modified);
}

TEST_F(PumpNetworkTest, ValveAndDestinationRowsHaveCellsOnlyForValveLines)
{
    type(15, "50,000");
    type(16, "100");
    type(1, "200");
    // Lines 1, 2, 4, 7 and 9 end at no valve: their cells in rows 15 and 16 stay empty.
    for (int line : {1, 2, 4, 7, 9}) {
        EXPECT_EQ(cell(15, line), "") << line;
        EXPECT_EQ(cell(16, line), "") << line;
    }
    EXPECT_EQ(cell(16, 3), "100.00");
    EXPECT_EQ(cell(16, 5), "200.00");
    EXPECT_EQ(cell(15, 3), "100.00");
    // The destination row follows its own unit list.
    tool.setUnit(44, 1); // atm
    EXPECT_EQ(cell(16, 5), "13.61");
    EXPECT_EQ(tool.txtData[1], "200.00");
}

TEST_F(PumpNetworkTest, PercentFieldsShowTheirNumberPlainlyAndReadEmptyAsZero)
{
    tool.txtMinValvePercentdP = "25";
    tool.txtMinValvePercentdP_LostFocus();
    EXPECT_EQ(tool.state.LinePercentDp, 25);
    tool.txtMinValvePercentdP = "";
    tool.txtMinValvePercentdP_LostFocus();
    EXPECT_EQ(tool.txtMinValvePercentdP, "0"); // an empty text reads 0
    tool.txtHydraulicEff = "80.5";
    tool.txtHydraulicEff_LostFocus();
    EXPECT_EQ(tool.state.PumpEff, Single(80.5));
    EXPECT_EQ(tool.txtHydraulicEff, "80.5");
}

TEST_F(PumpNetworkTest, FittingConstantsShowFromTheMinorLossStore)
{
    minorLossStore().SegK1[4] = 1500;
    minorLossStore().SegK2[4] = 0.75;
    minorLossStore().SegK3[4] = 0.5;
    type(0, "10,000"); // any edit runs a pass that refreshes the grid
    EXPECT_EQ(cell(4, 4), "1,500.0");
    EXPECT_EQ(cell(5, 4), "0.750");
    EXPECT_EQ(cell(6, 4), "0.500");
    EXPECT_EQ(cell(4, 5), ""); // zero constants show empty
    EXPECT_EQ(tool.segments.SegK1[4], 1500); // and the pass uses them
}

TEST_F(PumpNetworkTest, AHeightFieldChangesTheStaticHeadOfItsLine)
{
    tool.segments.SegRough[6] = 0.00015;
    for (int line : {2, 4, 7})
        tool.segments.SegRough[line] = 0.00015;
    type(3, "20,000"); // line 6
    type(5, "50");      // 50 ft up
    EXPECT_EQ(tool.state.NetHeight[6], 50);
    EXPECT_NEAR(tool.state.NetDpStatic[6], 62.4 * 50 / 144, 1e-5);
    tool.setUnit(5, 4); // m
    EXPECT_EQ(tool.txtData[5], "15.24");
}
