#include "forms/model/scripted_user_interface.h"
#include "forms/store/settings_store.h"
#include "tools/flow/model/flow_conversions_model.h"
#include "tools/flow/model/gas_density_model.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace kestrova;

namespace {

// A control's text as the window shows it.
std::string shown(const FormModel& tool, const Control& control)
{
    const TextControl* text = tool.textOf(control);
    return text ? text->text : "(no control)";
}

} // namespace

class FlowConversionsTest : public testing::Test {
protected:
    FlowConversionsTest() : store(dir.filePath("Kestrova.ini")), tool(&store) { tool.Form_Load(); }
    void type(int field, const std::string& text) { tool.commit(flow_conversions::txtData(field), text); }
    const FlowConversionsState& form() const { return tool.view(); }
    QTemporaryDir dir;
    SettingsStore store;
    FlowConversionsModel tool;
};

TEST_F(FlowConversionsTest, StandardGasVolumeToMassAndBack)
{
    tool.optConversion_Click(0);
    // The inputs take typing, the output is tinted and locked, the rest are off.
    EXPECT_FALSE(form().txtData[1].locked);
    EXPECT_TRUE(form().txtData[7].locked);
    EXPECT_EQ(form().txtData[7].shade, FieldShade::Tinted);
    EXPECT_TRUE(form().txtData[7].tabStop); // reached by Tab, though it takes no typing
    EXPECT_FALSE(form().txtData[6].enabled);
    EXPECT_FALSE(form().txtData[6].tabStop);
    type(7, "123"); // a locked field takes nothing
    EXPECT_EQ(form().txtData[7].text, "");
    type(1, "16.04");
    type(4, "1,000");
    // 1000 SCFM of methane: 1000 * 60 * 16.04 / 379.4 lb/h, with the molecular
    // weight read as the single 16.0400009 and the molar volume held as the
    // single 379.399994: 2536.63696 as a single, where doubles give 2536.63679.
    EXPECT_NEAR(form().values.FlowLBHR, 1000 * 60 * 16.04 / 379.4, 0.01);
    EXPECT_EQ(form().txtData[7].text, "2,536.6370");
    type(1, "16.043"); // 2537.11108 as a single; 2537.11123 in doubles
    EXPECT_EQ(form().txtData[7].text, "2,537.1111");
    // At NTP the molar volume is 359.0.
    tool.optSTP_Click(1);
    EXPECT_NEAR(form().values.FlowLBHR, 1000 * 60 * 16.043 / 359.0, 0.01);
    EXPECT_EQ(store.get("Settings", "FlowConversion", ""), "0");
}

TEST_F(FlowConversionsTest, TheSpecificGravityIsReadAsASingle)
{
    // 250.3 gpm of a liquid of SG 0.85: 0.85 as a single is 0.850000024, and
    // the product with 125,150 gives 106,377.508 as a single where doubles
    // give 106,377.500.
    tool.optConversion_Click(2);
    type(0, "0.85");
    type(6, "250.3");
    EXPECT_EQ(form().txtData[7].text, "106,377.5078");
}

TEST_F(FlowConversionsTest, ActualVolumeDirectionsUseTheirOwnOffsets)
{
    tool.optConversion_Click(4);
    type(2, "100");
    type(3, "50");
    type(4, "1000");
    const double acfm = form().values.FlowACFM;
    EXPECT_NEAR(acfm, 1000 / ((519.67 / 559.67) * (64.696 / 14.696)), 0.01);
    tool.optConversion_Click(5); // forgets the numbers
    EXPECT_EQ(form().txtData[2].text, "");
    type(2, "100");
    type(3, "50");
    type(5, std::to_string(acfm));
    EXPECT_NE(form().values.FlowSCFM, 1000); // 460 against 459.67
    EXPECT_NEAR(form().values.FlowSCFM, 1000, 1.0);
}

TEST_F(FlowConversionsTest, MetricUnitsShowMetricAndKeepAmerican)
{
    tool.optUnits_Click(1);
    EXPECT_EQ(form().optConversion[2].caption, "m3/hr -> kg/hr");
    EXPECT_EQ(tool.labelOf(Control{"lblUnitsFP"})->caption, "barg");
    tool.optConversion_Click(2);
    type(0, "1.0");
    type(6, "1"); // 1 m3/h of water is 1000 kg/h
    EXPECT_NEAR(form().values.FlowLBHR, 4.40286754 * 500, 1e-3);
    EXPECT_EQ(form().txtData[7].text, "998.5535"); // 500 lb/h per gpm is water at 998.5 kg/m3
}

TEST_F(FlowConversionsTest, AFailedConversionEmptiesEveryField)
{
    tool.optConversion_Click(0);
    type(4, "1000"); // no molecular weight
    for (const auto& field : form().txtData)
        EXPECT_EQ(field.text, "");
}

TEST_F(FlowConversionsTest, TheEntryPointReturnsTheMassFlowOnlyOnApply)
{
    const Single liquid = tool.GetFlowrateConversion(1, [this] {
        EXPECT_FALSE(form().optConversion[0].enabled);
        EXPECT_TRUE(form().optConversion[2].enabled);
        EXPECT_TRUE(form().optConversion[2].checked);
        EXPECT_FALSE(form().stpFrame.enabled);
        EXPECT_TRUE(form().cmdApply.enabled);
        type(0, "1");
        type(6, "10");
        tool.cmdApply_Click();
    });
    EXPECT_EQ(liquid, 5000);
    EXPECT_EQ(tool.GetFlowrateConversion(2, [this] { tool.cmdCancel_Click(); }), 0);
    EXPECT_EQ(tool.GetFlowrateConversion(3, [] { FAIL() << "shown for an unknown kind"; }), 0);
    tool.Form_Unload();
    EXPECT_EQ(store.get("Settings", "Flow Conv Conv", ""), "0");
}

TEST(GasDensity, RealGasLawWithItsOwnOffset)
{
    using namespace gas_density;
    using unit_field_dialog::txtData;
    ScriptedUserInterface ui;
    GasDensityModel tool(ui);
    tool.Form_Load();
    tool.Form_Activate();
    for (const auto& [field, text] : {std::pair{Temperature, "60"}, {Pressure, "14.696"}, {MolecularWeight, "28.97"},
                                      {Compressibility, "1"}})
        tool.commit(txtData(field), text);
    // Air at 60 °F and one atmosphere: 0.0763 lb/ft3.
    EXPECT_NEAR(tool.record().density, 14.696 * 28.97 / (10.73 * (60 + 459.69)), 1e-7);
    EXPECT_EQ(shown(tool, txtData(Density)), "0.0763");
    tool.setUnit(Density, 2);
    EXPECT_EQ(shown(tool, txtData(Density)), "1.2230"); // kg/m3
    tool.commit(txtData(Density), "5"); // the result takes no typing
    EXPECT_EQ(shown(tool, txtData(Density)), "1.2230");

    // Z of 0: the density reads zero, not empty, and Apply takes it.
    tool.commit(txtData(Compressibility), "0");
    EXPECT_EQ(tool.record().density, 0);
    EXPECT_EQ(shown(tool, txtData(Density)), "0.0000");
}

TEST(GasDensity, TheEntryPointAndItsRefusal)
{
    using namespace gas_density;
    using unit_field_dialog::txtData;
    ScriptedUserInterface ui;
    GasDensityModel tool(ui); // not loaded: no density is shown yet
    ui.zAnswers = {0.98};
    const FormModel& form = tool;
    EXPECT_FALSE(form.buttonOf(unit_field_dialog::cmdApply)->enabled); // by itself the tool applies nothing
    const Single density = tool.GetGasDensity(100, 50, [&] {
        EXPECT_EQ(shown(tool, txtData(Temperature)), "100.00");
        EXPECT_TRUE(form.buttonOf(unit_field_dialog::cmdApply)->enabled);
        tool.cmdApply_Click();
        EXPECT_EQ(ui.messages.back().text, "A gas density has not been computed.");
        EXPECT_EQ(ui.messages.back().title, "Gas Density");
        EXPECT_FALSE(tool.closeRequested);
        tool.commit(txtData(MolecularWeight), "18.015");
        tool.click(cmdTable); // Z from the compressibility tool
        EXPECT_EQ(shown(tool, txtData(Compressibility)), "0.98");
        tool.cmdApply_Click();
    });
    EXPECT_NEAR(density, 50 * 18.015 / (0.98 * 10.73 * 559.69), 1e-6);
    EXPECT_EQ(tool.GetGasDensity(100, 50, [&] { tool.cmdClose_Click(); }), 0);
}
