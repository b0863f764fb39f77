// The pump network tool driven as a user would: fields typed in their units,
// the summary grid with its own unit lists, reset.

#include "frame/global_units.h"
#include "frame/scripted_user_interface.h"
#include "tools/piping/minor_loss_store.h"
#include "tools/pump_network/pump_network_model.h"

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
