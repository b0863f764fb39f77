// The orifice tool driven as a user would: texts typed in chosen units, the
// Compute and material choices, and the fields both tabs share.

#include "frame/global_units.h"
#include "frame/scripted_user_interface.h"
#include "tools/orifice/orifice_model.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kestrova;

class OrificeToolTest : public testing::Test {
protected:
    OrificeToolTest() : tool(ui)
    {
        globalUnits() = GlobalUnits{};
        tool.Form_Load();
        tool.Form_Activate();
    }
    void type(int field, const std::string& text)
    {
        tool.txtData[static_cast<size_t>(field)] = text;
        tool.txtData_LostFocus(field);
    }
    const std::string& data(int field) const { return tool.txtData[static_cast<size_t>(field)]; }

    ScriptedUserInterface ui;
    OrificeModel tool;
};

TEST_F(OrificeToolTest, LoadStartsWithItsMaterialsAndReferenceTemperature)
{
    EXPECT_EQ(tool.record.referenceTemperature, 68);
    EXPECT_EQ(tool.record.elementExpansion, Single(9.4e-6)); // stainless steel plate
    EXPECT_EQ(tool.record.pipeExpansion, Single(6.7e-6));    // carbon steel pipe
    EXPECT_EQ(data(6), "68.00");
    EXPECT_EQ(data(8), "9.40E-06");
    EXPECT_EQ(data(25), "6.70E-06");
    EXPECT_FALSE(tool.dirty);
    EXPECT_TRUE(ui.toolbar["Save"]);
    EXPECT_TRUE(tool.fieldLocked(0)); // flow is solved
    EXPECT_FALSE(tool.fieldLocked(1));
}

TEST_F(OrificeToolTest, ALiquidCaseTypedInMetricUnits)
{
    type(3, "68");      // at the reference temperature: no thermal correction
    tool.setUnit(9, 3); // pipe ID in mm
    type(9, "102.2604");
    EXPECT_NEAR(tool.record.pipeID, 4.026, 1e-5);
    tool.setUnit(2, 3);
    type(2, "51.1302");
    tool.setUnit(4, 2); // kg/m3
    type(4, "999.5527");
    type(5, "1");       // cP
    tool.setUnit(1, 5); // kPa
    type(1, "68.9476");
    EXPECT_EQ(tool.txtDisplay[0], "0.5000");
    EXPECT_EQ(tool.txtErrorLiquid, "");
    // The same case as 10 psi of water at 62.4 lb/ft3 through 2.013 in in 4.026 in: 119,542 lb/h.
    EXPECT_NEAR(tool.record.liquidFlow, 119542, 119542 * 2e-5);
    EXPECT_EQ(data(0).substr(0, 5), "119,5");
    EXPECT_EQ(data(0).size(), std::string("119,542.23").size()); // lb/h with two decimals
    // The other tab shows the shared pipe diameter once it is refreshed.
    tool.SSTab1_Click(1);
    tool.showField(24);
    EXPECT_EQ(data(24), "4.0260");
    EXPECT_EQ(tool.record.gasFlow, 0); // flows stay per tab
}

TEST_F(OrificeToolTest, ComputeChoicesSolveForTheirQuantityAndCarryOverTabs)
{
    tool.optCompute_Click(1); // solve for the differential pressure: the flow is an input now
    EXPECT_TRUE(tool.dirty);
    type(3, "68");
    type(9, "4.026");
    type(2, "2.013");
    type(4, "62.4");
    type(5, "1");
    type(0, "100,000");
    EXPECT_TRUE(tool.fieldLocked(1));
    EXPECT_FALSE(tool.fieldLocked(0));
    EXPECT_NEAR(tool.record.differentialPressure, 10 * std::pow(100000 / 119542.2, 2), 0.02);
    tool.SSTab1_Click(1);
    EXPECT_TRUE(tool.fieldLocked(15)); // the same position on the gas tab
}

TEST_F(OrificeToolTest, OtherMaterialZeroesItsCoefficientAndAsksForIt)
{
    tool.cboPipeMaterial_Click(1, OrificeModel::kMaterials - 1);
    EXPECT_EQ(tool.record.pipeExpansion, 0);
    EXPECT_EQ(data(25), "0.00E+00");
    EXPECT_EQ(tool.focusRequest, "txtData(25)");
    tool.cboElementMaterial_Click(0, 7); // yellow brass
    EXPECT_EQ(tool.record.elementExpansion, Single(1.05e-5));
    EXPECT_EQ(data(8), "1.05E-05");
}
