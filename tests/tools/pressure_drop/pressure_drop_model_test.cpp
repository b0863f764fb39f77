#include "tools/pressure_drop/pressure_drop_fixture.h"

#include "hydraulics/basTransportFunctions.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"
#include "tools/properties/model/physical_properties_model.h"

#include <QDir>

#include <cmath>

using namespace kestrova;

TEST_F(PressureDropTest, AFreshToolShowsZeroDropAndNoMessage)
{
    EXPECT_EQ(data(10), "0.00");
    EXPECT_EQ(data(8), "100.00"); // the start length in ft
    EXPECT_EQ(data(44), "77.00");
    EXPECT_EQ(display(1), "");
    EXPECT_EQ(display(0), "0");
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_FALSE(tool.view().DirtyFlag);
    EXPECT_EQ(ui.statusText, "Single Line Pressure Drop Calculations");
    EXPECT_TRUE(ui.toolbar["Print"]);
    EXPECT_FALSE(ui.toolbar["Save"]);
}

TEST_F(PressureDropTest, LiquidLineFromTypedTextsToShownResults)
{
    enterWaterLine();
    // V = (36000 / 62.4 / 3600) / ((6.065 / 12)^2 pi / 4) = 0.79878 ft/s.
    EXPECT_NEAR(tool.view().record.Velocity, 0.79878, 0.00001);
    EXPECT_EQ(data(9), "0.799");
    EXPECT_EQ(data(0), "36,000.00");
    // Re = 62.4 * 6.065 / 12 * 0.79878 / 0.000672 = 37,489.
    const double re = 62.4 * 6.065 / 12 * static_cast<double>(tool.view().record.Velocity) / 0.000672;
    EXPECT_EQ(display(1), formatMask(re, "#,###,###"));
    EXPECT_EQ(display(2), "Turbulent");
    const double f = FrictionFactor(re, 0.00015 * 12 / 6.065, 1, 1, 1);
    EXPECT_EQ(display(3), formatMask(f, "0.00000"));
    // dP = f L / D V^2 / 2g * rho / 144.
    const double V = tool.view().record.Velocity;
    const double drop = f * 100 / (6.065 / 12) * V * V / 64.3484 * 62.4 / 144;
    EXPECT_NEAR(tool.view().record.PressureDrop, drop, 1e-6);
    EXPECT_EQ(data(10), formatMask(drop, "##,##0.00"));
    EXPECT_FALSE(tool.view().failed);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PressureDropTest, FittingsAndElevationAddToTheDrop)
{
    enterWaterLine();
    const double straight = tool.view().record.PressureDrop;
    typeDisplay(12, "1.5");                 // K2
    typeDisplay(0, "1,000");                // K1 with a grouping separator
    const double re = 62.4 * 6.065 / 12 * static_cast<double>(tool.view().record.Velocity) / 0.000672;
    const double K = 1000 / re + 1.5 * (1 + 1 / 6.065);
    const double V = tool.view().record.Velocity;
    EXPECT_NEAR(tool.view().record.PressureDrop - straight, K * V * V / 64.3484 * 62.4 / 144, 1e-5);
    const double withFittings = tool.view().record.PressureDrop;
    type(7, "10");                          // 10 ft rise
    EXPECT_NEAR(tool.view().record.PressureDrop - withFittings, 10 * 62.4 / 144, 1e-5);
    type(7, "-100");                        // a long fall makes the drop negative
    EXPECT_LT(tool.view().record.PressureDrop, 0);
}

TEST_F(PressureDropTest, AFailedRunZeroesTheDropAndLeavesTheRest)
{
    enterWaterLine();
    const std::string velocity = data(9), re = display(1), regime = display(2), f = display(3);
    type(1, "0"); // density 0
    EXPECT_TRUE(tool.view().failed);
    EXPECT_EQ(data(10), "0.00");
    EXPECT_EQ(data(9), velocity);
    EXPECT_EQ(display(1), re);
    EXPECT_EQ(display(2), regime);
    EXPECT_EQ(display(3), f);
    EXPECT_TRUE(ui.messages.empty());

    // Flow 0 with the rest complete: velocity 0, Re and regime empty, drop 0.
    type(1, "62.4");
    type(0, "0");
    EXPECT_EQ(data(9), "0.000");
    EXPECT_EQ(display(1), "");
    EXPECT_EQ(display(2), "");
    EXPECT_EQ(data(10), "0.00");
    EXPECT_TRUE(tool.view().failed);
}

// Without a density every cross section fails at its velocity: the pipe's
// diameter stays as typed, a duct's hydraulic diameter is formed before the
// velocity and stays formed (1 ft by 0.5 ft: 2 x 12 x 6 / (12 + 6) = 8 in).
TEST_F(PressureDropTest, ARunWithoutDensityFailsAtTheVelocity)
{
    enterWaterLine();
    type(1, "0");
    EXPECT_TRUE(tool.view().failed);
    EXPECT_EQ(tool.view().record.Diameter, Single(6.065));

    tool.optCrossSection_Click(1);
    type(3, "1");
    type(4, "0.5");
    EXPECT_TRUE(tool.view().failed);
    EXPECT_EQ(tool.view().record.Diameter, Single(8));
    EXPECT_EQ(data(10), "0.00");

    type(1, "62.4");
    EXPECT_FALSE(tool.view().failed);
}

TEST_F(PressureDropTest, RegimeWordsAroundTheBoundary)
{
    enterWaterLine();
    // A negative flow gives a negative Re: the regime text stays as it was.
    type(0, "-36000");
    EXPECT_EQ(display(2), "Turbulent");
    EXPECT_EQ(display(1).front(), '-');
    // A very viscous liquid is laminar.
    type(0, "36000");
    type(2, "100");
    EXPECT_EQ(display(2), "Laminar");
}

TEST_F(PressureDropTest, UnitChangesRewriteOneFieldAndNeverTheRecord)
{
    type(0, "100");
    EXPECT_EQ(data(0), "100.00");
    tool.setUnit(0, 2); // lbm/s
    EXPECT_EQ(data(0), "0.0278");
    EXPECT_EQ(tool.view().record.LiquidFlow, 100);
    tool.setUnit(0, 0);
    EXPECT_EQ(data(0), "100.00");
    EXPECT_EQ(data(28), "0.00");   // a shared field shows the value at the next tab change
    tool.SSTab1_Click(2);
    EXPECT_EQ(data(28), "100.00"); // in its own unit
    tool.SSTab1_Click(0);
    // Viscosity 0.001 kg/m-s is 1 cP.
    tool.setUnit(2, 2);
    type(2, "0.001");
    tool.setUnit(2, 0);
    EXPECT_EQ(data(2), "1.0000E+00");
    // Temperature to K and back shows the same digits.
    tool.setUnit(44, 3);
    EXPECT_EQ(data(44), "298.15");
    tool.setUnit(44, 0);
    EXPECT_EQ(data(44), "77.00");
}

TEST_F(PressureDropTest, ActivationTakesTheGlobalUnitsBack)
{
    tool.setUnit(8, 4); // the user picks m for the length
    EXPECT_EQ(data(8), "30.48");
    tool.Form_Activate();
    EXPECT_EQ(tool.view().cboUnits[8].listIndex, 1);
    EXPECT_EQ(data(8), "100.00");
    globalUnits()[Quantity::Length] = 4;
    tool.Form_Activate();
    EXPECT_EQ(data(8), "30.48");
    EXPECT_EQ(tool.view().cboUnits[3].listIndex, 4); // the conduit sides follow the length unit
}

TEST_F(PressureDropTest, MetricLengthStartsTheLineAt100Metres)
{
    globalUnits()[Quantity::Length] = 4;
    ScriptedUserInterface otherUi;
    PressureDropModel metric(otherUi);
    metric.Form_Load();
    EXPECT_EQ(metric.view().record.PipeLength, 328.083984375);
}

TEST_F(PressureDropTest, CrossSectionsChangeTheForm)
{
    tool.optCrossSection_Click(1);
    EXPECT_TRUE(tool.view().DirtyFlag);
    EXPECT_FALSE(tool.view().txtData[5].enabled);
    EXPECT_FALSE(tool.view().cboUnits[5].enabled);
    EXPECT_EQ(tool.view().txtData[5].shade, FieldShade::Disabled);
    EXPECT_TRUE(tool.view().txtData[3].enabled);
    EXPECT_TRUE(tool.view().txtData[4].enabled);
    EXPECT_TRUE(tool.view().Label1.at(3).grey);
    EXPECT_FALSE(tool.view().Label1.at(4).grey);
    EXPECT_EQ(tool.view().Label1.at(4).caption, "Width of Conduit:");
    EXPECT_EQ(tool.view().txtData[3].toolTip, "Width of Rectangular X-Section");
    EXPECT_FALSE(tool.view().txtDisplay[0].enabled);
    EXPECT_TRUE(tool.view().Label1.at(9).grey);
    EXPECT_FALSE(tool.view().cmdTable[0].enabled);
    EXPECT_TRUE(tool.view().cmdTable[1].enabled);
    EXPECT_FALSE(tool.view().cmdTable[2].enabled);
    EXPECT_FALSE(tool.view().cmdTable[3].enabled);

    tool.optCrossSection_Click(5); // annular on the gas tab
    EXPECT_EQ(tool.view().Label1.at(43).caption, "OD of Inner Pipe:");
    EXPECT_EQ(tool.view().Label1.at(52).caption, "ID of Outer Pipe:");
    EXPECT_EQ(tool.view().txtData[42].toolTip, "ID of Outer Pipe");
    EXPECT_TRUE(tool.view().cmdTable[14].enabled);
    EXPECT_TRUE(tool.view().cmdTable[10].enabled);
    EXPECT_EQ(tool.view().Label1.at(4).caption, "Width of Conduit:"); // the liquid tab is untouched

    tool.optCrossSection_Click(0);
    EXPECT_TRUE(tool.view().txtData[5].enabled);
    EXPECT_EQ(tool.view().txtDisplay[0].shade, FieldShade::Tinted);
    EXPECT_TRUE(tool.view().cmdTable[2].enabled);
}

TEST_F(PressureDropTest, ASquareDuctUsesItsSideAsDiameter)
{
    enterWaterLine();
    tool.optCrossSection_Click(1);
    // The conduit sides take the global length unit (ft) on the diameter list.
    EXPECT_EQ(tool.view().cboUnits[3].listIndex, 1);
    type(3, "0.5");
    tool.setUnit(4, 0);
    type(4, "6");
    EXPECT_EQ(tool.view().record.ConduitWidth, 6);
    EXPECT_EQ(tool.view().record.Diameter, 6);
    // V = W / rho / 3600 / a / b * 144.
    EXPECT_NEAR(tool.view().record.Velocity, 36000 / 62.4 / 3600 / 6 / 6 * 144, 1e-6);
    const double re = 62.4 * 6 / 12 * static_cast<double>(tool.view().record.Velocity) / 0.000672;
    EXPECT_NEAR(parseFieldNumber(display(1)), re, 1.0);
    // Back to circular: the hydraulic diameter stays in the record.
    tool.optCrossSection_Click(0);
    tool.SSTab1_Click(0);
    EXPECT_EQ(data(5), "6.0000");
}

TEST_F(PressureDropTest, TheDiameterFieldsShowWhatTheResultsUseAfterASectionChange)
{
    // Circular 6.065 in, then a 1 ft by 0.5 ft rectangle, then circular
    // again: the rectangle's hydraulic diameter, 2 x 12 x 6 / 18 = 8 in, is
    // the diameter used, and every tab's diameter field shows it at once.
    enterWaterLine();
    tool.optCrossSection_Click(1);
    type(3, "1");   // ft
    type(4, "0.5"); // ft
    tool.optCrossSection_Click(0);
    EXPECT_EQ(tool.view().record.Diameter, 8);
    for (int field : {5, 15, 35})
        EXPECT_EQ(data(field), "8.0000") << "txtData(" << field << ")";
    const std::string velocity = data(9);
    // The results are those of a circular 8 in line typed by hand.
    type(5, "8");
    EXPECT_EQ(data(9), velocity);

    // An annulus whose inner pipe is wider than the outer one leaves a
    // negative diameter; back on circular the field shows it.
    tool.optCrossSection_Click(2);
    type(3, "1");   // OD of the inner pipe, ft
    type(4, "0.5"); // ID of the outer pipe, ft
    tool.optCrossSection_Click(0);
    EXPECT_EQ(tool.view().record.Diameter, -6);
    EXPECT_EQ(data(5), "-6.0000");
}

TEST_F(PressureDropTest, GasLineAdiabaticAndIsothermal)
{
    tool.SSTab1_Click(1);
    EXPECT_EQ(tool.view().helpContext, 1200);
    EXPECT_EQ(tool.focusRequest(), std::optional<Control>(pressure_drop::txtProject(1)));
    type(11, "10000");
    type(12, "150");
    type(13, "400");
    tool.setUnit(14, 0);
    type(14, "0.015");
    type(15, "4.026");
    type(16, "0.00015");
    type(17, "200");
    typeDisplay(4, "18.015");
    typeDisplay(5, "0.95");
    typeDisplay(6, "1.3");
    EXPECT_FALSE(tool.view().failed);
    // Inlet density from the gas law: MW P / (T R Z).
    EXPECT_NEAR(tool.view().record.GasDensity, 18.015 * 150 / (859.67 * 0.95 * 10.73), 1e-5);
    EXPECT_EQ(tool.view().Frame1[5].caption, "Calculated Results, Flow Type = Subsonic");
    EXPECT_FALSE(tool.view().Frame1[5].red);
    EXPECT_LT(tool.view().record.ExitPressure, 150);
    EXPECT_NEAR(tool.view().record.PressureDrop, 150 - tool.view().record.ExitPressure, 1e-4);
    EXPECT_NE(tool.view().record.ExitTemperature, tool.view().record.InletTemperature);
    // The exit density takes the inlet temperature, in the adiabatic model too.
    EXPECT_NEAR(tool.view().record.ExitDensity, 18.015 * tool.view().record.ExitPressure / (859.67 * 0.95 * 10.73), 1e-5);

    tool.optCalcType_Click(1);
    EXPECT_EQ(tool.view().record.ExitTemperature, tool.view().record.InletTemperature);
    EXPECT_EQ(data(23), "400.00");
    EXPECT_TRUE(tool.view().DirtyFlag);

    // A long line chokes: bold red caption; a short one restores it.
    type(17, "100000");
    EXPECT_EQ(tool.view().Frame1[5].caption, "Calculated Results, Flow Type = Choked Flow at Outlet");
    EXPECT_TRUE(tool.view().Frame1[5].red);
    EXPECT_TRUE(tool.view().Frame1[5].bold);
    EXPECT_GE(ui.beeps, 1);
    type(17, "200");
    EXPECT_FALSE(tool.view().Frame1[5].red);

    // Z = 0: the inlet density shows zero and the run fails at the velocity.
    typeDisplay(5, "0");
    EXPECT_EQ(data(20), "0.0000");
    EXPECT_TRUE(tool.view().failed);
    EXPECT_EQ(data(24), "0.00");
    EXPECT_EQ(tool.view().Frame1[5].caption, "Calculated Results");
}

TEST_F(PressureDropTest, TwoPhaseLineCorrelationAndRegimes)
{
    tool.SSTab1_Click(2);
    type(28, "40000");
    type(27, "62.3");
    tool.setUnit(26, 0);
    type(26, "0.9");
    type(29, "0.072");
    type(30, "2000");
    type(31, "0.25");
    tool.setUnit(32, 0);
    type(32, "0.018");
    type(35, "4.026");
    type(34, "0.00015");
    type(33, "200");
    EXPECT_FALSE(tool.view().failed);
    EXPECT_EQ(tool.view().Frame1[8].caption, "Calculated Results:  Friedel Correlation");
    EXPECT_EQ(display(14), "Turbulent");
    EXPECT_EQ(display(15), "Turbulent");
    EXPECT_EQ(display(17), "Annular");
    EXPECT_GT(tool.view().record.PressureDrop, 0);
    EXPECT_NEAR(tool.view().record.AverageDensity, 42000 / (2000 / 0.25 + 40000 / 62.3), 1e-4);

    // Downflow with a viscous liquid: no method, red bold caption, no map button.
    tool.setUnit(26, 0);
    type(26, "50");
    tool.optOrientation_Click(2);
    EXPECT_EQ(tool.view().Frame1[8].caption, "Calculated Results:  Vertical Methods not Available for this System");
    EXPECT_TRUE(tool.view().Frame1[8].red);
    EXPECT_TRUE(tool.view().Frame1[8].bold);
    EXPECT_FALSE(tool.view().cmdTable[13].enabled);
    tool.optOrientation_Click(0);
    EXPECT_TRUE(tool.view().cmdTable[13].enabled);
    tool.cmdTable_Click(13);
    EXPECT_EQ(ui.regimeMapsShown, std::vector<std::string>{"Horizontal"});

    // One phase alone has no answer here.
    type(30, "0");
    EXPECT_TRUE(tool.view().failed);
    EXPECT_EQ(data(41), "0.00");
}

TEST_F(PressureDropTest, ResetAsksAndKeepsItsAsymmetries)
{
    enterWaterLine();
    tool.SSTab1_Click(1);
    typeDisplay(7, "500");
    ui.answers = {MessageAnswer::Cancel};
    tool.cmdReset_Click(1);
    EXPECT_EQ(ui.messages.back().text, "Reset all input fields?");
    EXPECT_EQ(ui.messages.back().title, "Pressure Drop");
    EXPECT_EQ(tool.view().record.LiquidFlow, 36000);

    tool.cmdReset_Click(1); // OK
    EXPECT_EQ(display(0), "7");
    EXPECT_EQ(display(12), "19");
    EXPECT_EQ(display(18), "20");
    EXPECT_EQ(display(7), "500"); // the gas tab's own K fields stay
    EXPECT_EQ(tool.view().record.Diameter, 0);
    EXPECT_EQ(tool.view().record.LiquidFlow, 36000); // a gas reset leaves the liquid flow
    EXPECT_TRUE(tool.view().DirtyFlag);
    EXPECT_EQ(tool.strFileName(), "");

    tool.cmdReset_Click(0);
    EXPECT_EQ(tool.view().record.LiquidFlow, 0);
    EXPECT_EQ(display(0), "0");
    EXPECT_EQ(display(1), "");
}

TEST_F(PressureDropTest, DataButtonsTakeWhatTheDialogsReturn)
{
    pipeToolRoughness() = 0.00015;
    ui.pipeAnswers = {6.065};
    tool.cmdTable_Click(0);
    EXPECT_EQ(ui.pipeSelectors.back(), "ID");
    EXPECT_EQ(tool.view().record.Diameter, Single(6.065));
    EXPECT_EQ(tool.view().record.Roughness, Single(0.00015));
    EXPECT_TRUE(tool.view().DirtyFlag);

    // A cancel keeps the diameter but takes the roughness the pipe tool left.
    pipeToolRoughness() = 0.0005;
    tool.cmdTable_Click(0);
    EXPECT_EQ(tool.view().record.Diameter, Single(6.065));
    EXPECT_EQ(tool.view().record.Roughness, Single(0.0005));

    ui.flowAnswers = {5000};
    tool.cmdTable_Click(15);
    EXPECT_EQ(ui.flowFluids.back(), 1);
    EXPECT_EQ(data(0), "5,000.00");
    EXPECT_EQ(data(28), "5,000.00");

    minorLossStore().SegK1[0] = 3100;
    minorLossStore().SegK2[0] = 2.3;
    minorLossStore().hasData[0] = true;
    tool.cmdTable_Click(2);
    EXPECT_EQ(display(0), "3,100");
    EXPECT_EQ(display(12), "2.30");
    EXPECT_EQ(display(7), "3,100");

    tool.SSTab1_Click(1);
    ui.zAnswers = {0.9};
    tool.cmdTable_Click(5);
    EXPECT_EQ(display(5), "0.9");
    EXPECT_EQ(tool.view().record.Compressibility, Single(0.9));
}

TEST_F(PressureDropTest, PropertiesChangeFieldsButNotResultsUntilTheNextCommit)
{
    enterWaterLine();
    const double drop = tool.view().record.PressureDrop;
    physProps().liquidName = "Benzene";
    physProps().liquidDensity = 54.6;
    physProps().liquidViscosity = 0.0006;
    ui.propertiesApplied = {true};
    tool.cmdProperties_Click(0);
    EXPECT_EQ(tool.view().Frame1[0].caption, "Fluid Data:  Benzene");
    EXPECT_EQ(tool.view().txtLiquid.text, "Benzene");
    EXPECT_EQ(data(1), "54.6000");
    EXPECT_EQ(tool.view().record.PressureDrop, drop);
    type(8, "100");
    EXPECT_NE(tool.view().record.PressureDrop, drop);

    ui.propertiesApplied = {false};
    physProps().liquidDensity = 1;
    tool.cmdProperties_Click(2);
    EXPECT_EQ(data(1), "54.6000"); // cancelled: nothing taken
}

TEST_F(PressureDropTest, ClosingAsksWhenThereAreUnsavedChanges)
{
    EXPECT_TRUE(tool.Form_QueryUnload()); // clean: no question
    EXPECT_TRUE(ui.messages.empty());
    enterWaterLine();
    tool.Form_KeyPress();
    ui.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(tool.Form_QueryUnload());
    EXPECT_EQ(ui.messages.back().text, "Save data before closing?");
    EXPECT_EQ(ui.messages.back().buttons, MessageButtons::YesNoCancel);
    // Yes without a file name goes to Save As; a cancelled Save As keeps the form.
    ui.answers = {MessageAnswer::Yes};
    ui.saveAsAnswers = {false};
    EXPECT_FALSE(tool.Form_QueryUnload());
    ui.answers = {MessageAnswer::No};
    EXPECT_TRUE(tool.Form_QueryUnload());
    EXPECT_FALSE(ui.toolbar["Save"]);
    EXPECT_FALSE(ui.toolbar["Print"]);
}

TEST_F(PressureDropTest, TabChangeMovesTheTabOrder)
{
    tool.SSTab1_Click(2);
    EXPECT_TRUE(tool.view().txtData[26].tabStop);
    EXPECT_TRUE(tool.view().txtData[45].tabStop);
    EXPECT_FALSE(tool.view().txtData[0].tabStop);
    EXPECT_FALSE(tool.view().txtDisplay[4].tabStop);
    EXPECT_TRUE(tool.view().txtProject[2].tabStop);
    EXPECT_FALSE(tool.view().txtProject[0].tabStop);
    EXPECT_EQ(tool.view().helpContext, 1210);
    tool.SSTab1_Click(1);
    EXPECT_TRUE(tool.view().txtDisplay[4].tabStop);
    EXPECT_TRUE(tool.view().txtData[43].tabStop);
    // No option is in the tab order, a clicked one neither; Tab walks the fields, not their unit lists.
    tool.optCalcType_Click(1);
    tool.optCrossSection_Click(4);
    for (const auto* options : {&tool.view().optCrossSection[0], &tool.view().optCalcType[0], &tool.view().optOrientation[0]})
        EXPECT_FALSE(options->tabStop);
    EXPECT_FALSE(tool.view().optCalcType[1].tabStop);
    EXPECT_FALSE(tool.view().optCrossSection[4].tabStop);
    EXPECT_FALSE(tool.view().cboUnits[11].tabStop);
}

TEST_F(PressureDropTest, WaterFromThePropertiesToolGivesTheSameTwoPhaseLineAsWaterTyped)
{
    // Water at 77 °F fetched from the compound data base for the two-phase
    // tab: the surface tension arrives in the record's N/m and shows 71.79
    // dyn/cm, as in the properties tool.
    globalUnits() = GlobalUnits{};
    PhysicalPropertiesModel properties(ui, readCompounds(QDir(KESTROVA_DATA_DIR).filePath("compounds.sqlite")));
    properties.Form_Activate();
    for (size_t i = 0; i < properties.compounds().size(); ++i)
        if (properties.compounds()[i].name == "Water")
            properties.dbcComp_Click(static_cast<int>(i));
    properties.GetPhysicalProperties(FluidKind::Liquid, 77, [&] { properties.cmdSelect_Click(); });
    ASSERT_EQ(physProps().liquidName, "Water");
    properties.setUnit(5, 0);
    EXPECT_EQ(properties.view().txtPhysProp[5].text, "71.7929"); // dyn/cm in the properties tool

    tool.SSTab1_Click(2);
    ui.propertiesApplied = {true};
    tool.cmdProperties_Click(2);
    tool.setUnit(29, 0);
    EXPECT_EQ(data(29), "71.79");
    EXPECT_NEAR(tool.view().record.SurfaceTension, 0.0717929, 1e-7);
    type(28, "40000");
    type(30, "2000");
    type(31, "0.25");
    tool.setUnit(32, 0);
    type(32, "0.018");
    type(35, "4.026");
    type(34, "0.00015");
    type(33, "200");
    const std::string fetchedRegime = display(17);
    const Single fetchedDrop = tool.view().record.PressureDrop;
    EXPECT_EQ(fetchedRegime, "Annular");

    // The same water typed by hand, as the fields show it.
    const std::string density = data(27), viscosity = data(26), tension = data(29);
    ScriptedUserInterface typedUi;
    PressureDropModel typed(typedUi);
    typed.Form_Load();
    typed.Form_Activate();
    typed.SSTab1_Click(2);
    typed.setUnit(29, 0);
    for (const auto& [field, text] : std::vector<std::pair<int, std::string>>{
             {27, density}, {26, viscosity}, {29, tension}}) {
        typed.commit(pressure_drop::txtData(field), text);
    }
    for (const auto& [field, text] : std::vector<std::pair<int, std::string>>{
             {28, "40000"}, {30, "2000"}, {31, "0.25"}, {35, "4.026"}, {34, "0.00015"}, {33, "200"}}) {
        typed.commit(pressure_drop::txtData(field), text);
    }
    typed.setUnit(32, 0);
    typed.commit(pressure_drop::txtData(32), "0.018");
    EXPECT_EQ(typed.view().txtDisplay[17].text, fetchedRegime);
    EXPECT_NEAR(typed.view().record.PressureDrop, fetchedDrop, 1e-4 * fetchedDrop);
}

TEST_F(PressureDropTest, HelpWithEquationsOpensTheTopicOfItsTab)
{
    // The three tabs' buttons ask for the program's own context numbers, and
    // F1 anywhere in the window follows the tab in front.
    for (int t = 0; t < 3; ++t) {
        tool.SSTab1_Click(t);
        tool.click(pressure_drop::cmdHelp(t));
        EXPECT_EQ(tool.helpTopic(), 1190 + 10 * t);
    }
    EXPECT_EQ(ui.helpShown, (std::vector<int>{1190, 1200, 1210}));
}
