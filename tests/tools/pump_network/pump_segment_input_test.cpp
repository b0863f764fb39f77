// The segment dialog of the pump network as the user works it: a line's pipe
// data through the working copy, the move from line to line, the tables it
// calls, the copies down the network and its reset.

#include "pump_network_fixture.h"

#include "tools/piping/model/pipe_selection.h"
#include "tools/properties/model/phys_props.h"
#include "units/field_kinds.h"
#include "units/unit_field.h"

using namespace kestrova;
namespace seg = kestrova::pump_segment;
using pump_network::VaporPressure;

namespace {

const std::string& shown(const PumpSegmentInputModel& dialog, int field)
{
    return dialog.view().txtData[static_cast<size_t>(field)].text;
}

} // namespace

TEST_F(PumpNetworkTest, TheDialogOpensOnTheLineAndShowsItsData)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    inDialog([](PumpSegmentInputModel& dialog) {
        EXPECT_EQ(dialog.view().txtLineNumber.text, "5");
        EXPECT_EQ(dialog.view().scrollValue, -5);
        dialog.choose(seg::cboUnits(seg::Diameter), 0);
        EXPECT_EQ(shown(dialog, seg::Diameter), "3.0680");
        dialog.choose(seg::cboUnits(seg::Diameter), 3); // mm, by its own mask
        EXPECT_EQ(shown(dialog, seg::Diameter), "77.93");
        EXPECT_EQ(dialog.view().txtDisplay[0].text, "0"); // the constants as plain text
        EXPECT_EQ(dialog.view().txtData[seg::Diameter].toolTip, "Inside Diameter");
    });
    tool.grdSummary_DblClick(6);
    EXPECT_EQ(ui.segmentInputsShown, 2);
}

// Each move commits with the line number taken as a field number: leaving
// line 3 reads the density field again, leaving line 6 reads nothing.
TEST_F(PumpNetworkTest, AMoveReadsTheFieldWhoseIndexIsTheLine)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Density), 1); // gm/cm³: 62.4 lbm/ft³ shows as 0.9996
        EXPECT_EQ(shown(dialog, seg::Density), "0.9996");
        dialog.choose(seg::scrLineNumber, -6); // from line 3: the density is read from its text
        dialog.choose(seg::cboUnits(seg::Density), 1);
        dialog.choose(seg::scrLineNumber, -7); // from line 6: nothing is read
        dialog.click(seg::cmdOK);
    });
    tool.grdSummary_DblClick(4); // line 3
    EXPECT_EQ(segments().SegDensity[3], unitFieldValue(field_kinds::density, "0.9996", 1));
    EXPECT_NE(segments().SegDensity[3], Single(62.4));
    EXPECT_EQ(segments().SegDensity[6], Single(62.4));
}

TEST_F(PumpNetworkTest, EachMoveRunsThePassSoTheGridFollows)
{
    inDialog([this](PumpSegmentInputModel& dialog) {
        typePipe(dialog, coolingWaterPipes()[0]);
        EXPECT_EQ(cell(pump_network::DiameterRow, 1), ""); // nothing has run yet
        dialog.choose(seg::scrLineNumber, -2);
        EXPECT_EQ(cell(pump_network::DiameterRow, 1), "6.0650");
        EXPECT_EQ(CurrentLine(), 2);
        dialog.choose(seg::scrLineNumber, 0); // beyond the bar: no move
        dialog.choose(seg::scrLineNumber, -12);
        EXPECT_EQ(CurrentLine(), 2);
    });
    tool.grdSummary_DblClick(2);
}

TEST_F(PumpNetworkTest, ApplyAskedOnOneLineCopiesFromTheLineTheDialogClosesOn)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Roughness), 1); // ft
        dialog.commit(seg::txtData(seg::Roughness), "0.0005");
    });
    tool.grdSummary_DblClick(5); // line 4: 0.0005 ft
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Roughness), 1);
        dialog.commit(seg::txtData(seg::Roughness), "0.0003");
        dialog.doubleClick(seg::Label1(2));
        dialog.choose(seg::scrLineNumber, -8);
        dialog.click(seg::cmdOK);
    });
    ui.answers = {MessageAnswer::Yes};
    tool.grdSummary_DblClick(5);
    EXPECT_EQ(ui.messages.back().title, "Absolute Roughness");
    EXPECT_EQ(ui.messages.back().text, "Apply this roughness value to all remaining lines in the network?");
    EXPECT_EQ(segments().SegRough[4], Single(0.0003));
    for (size_t line : {5, 6, 7, 8, 9, 10, 11})
        EXPECT_EQ(segments().SegRough[line], Single(0.00015)) << line; // line 8's value, as it was
    EXPECT_EQ(segments().SegRough[3], Single(0.00015));

    // Asked on line 8 and closed there: 9 to 11 take line 8's viscosity.
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Viscosity), 2);
        dialog.commit(seg::txtData(seg::Viscosity), "0.002");
        dialog.doubleClick(seg::Label1(4));
    });
    ui.answers = {MessageAnswer::Yes};
    tool.grdSummary_DblClick(9);
    EXPECT_EQ(ui.messages.back().text, "Apply his viscosity value to all remaining lines in the network?");
    for (size_t line : {8, 9, 10, 11})
        EXPECT_EQ(segments().SegVisc[line], Single(0.002)) << line;
    EXPECT_EQ(segments().SegVisc[7], Single(0.001));
}

TEST_F(PumpNetworkTest, ApplyOnTheLastLineOrAnsweredNoCopiesNothing)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Density), 0); // lbm/ft³
        dialog.commit(seg::txtData(seg::Density), "50");
        dialog.doubleClick(seg::Label1(3));
    });
    ui.answers = {MessageAnswer::Yes};
    tool.grdSummary_DblClick(12); // line 11
    EXPECT_EQ(segments().SegDensity[11], 50);
    EXPECT_EQ(segments().SegDensity[10], Single(62.4));
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Density), 0);
        dialog.commit(seg::txtData(seg::Density), "55");
        dialog.doubleClick(seg::Label1(3));
        dialog.doubleClick(seg::Label1(1)); // the ID's label asks nothing
    });
    ui.answers = {MessageAnswer::No};
    const size_t asked = ui.messages.size();
    tool.grdSummary_DblClick(2);
    EXPECT_EQ(ui.messages.size(), asked + 1);
    EXPECT_EQ(segments().SegDensity[2], Single(62.4));
}

// A reset zeroes the working values and the constants; the line's pipe data
// take the zeros only at the next commit.
TEST_F(PumpNetworkTest, ResetThenOkKeepsTheLinesPipeData)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    minorLossStore().SegK1[5] = 800;
    minorLossStore().hasData[5] = true;
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.choose(seg::cboUnits(seg::Length), 1); // ft
        dialog.click(seg::cmdReset); // cancelled
        EXPECT_EQ(shown(dialog, seg::Length), "120.00");
        dialog.click(seg::cmdReset);
        EXPECT_EQ(shown(dialog, seg::Length), "0.00");
        EXPECT_EQ(dialog.view().txtDisplay[0].text, "0");
        dialog.click(seg::cmdOK);
    });
    ui.answers = {MessageAnswer::Cancel, MessageAnswer::Ok};
    tool.grdSummary_DblClick(6);
    EXPECT_EQ(ui.messages.back().text, "Reset all of this line's data?");
    EXPECT_EQ(ui.messages.back().title, "Pump Network Input");
    EXPECT_EQ(segments().SegLength[5], 120);
    EXPECT_EQ(segments().SegID[5], Single(3.068));
    EXPECT_EQ(minorLossStore().SegK1[5], 0);
    EXPECT_FALSE(minorLossStore().hasData[5]);

    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.click(seg::cmdReset);
        dialog.commit(seg::txtData(seg::Length), "0");
    });
    ui.answers = {MessageAnswer::Ok};
    tool.grdSummary_DblClick(6);
    EXPECT_EQ(segments().SegID[5], 0);
    EXPECT_EQ(segments().SegDpAdd[5], 0);
}

TEST_F(PumpNetworkTest, APickedPipeOverwritesTheRoughnessToo)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    pipeToolRoughness() = 0.0005;
    ui.pipeAnswers = {Single(4.026)};
    inDialog([](PumpSegmentInputModel& dialog) {
        dialog.click(seg::cmdTable(seg::PipeTable));
        dialog.commit(seg::txtData(seg::Diameter), shown(dialog, seg::Diameter)); // leaving the field
    });
    tool.grdSummary_DblClick(3);
    EXPECT_EQ(ui.pipeSelectors.back(), "ID");
    EXPECT_EQ(segments().SegID[2], Single(4.026));
    EXPECT_EQ(segments().SegRough[2], Single(0.0005));
    // Nothing chosen leaves both as they are.
    inDialog([](PumpSegmentInputModel& dialog) { dialog.click(seg::cmdTable(seg::PipeTable)); });
    tool.grdSummary_DblClick(3);
    EXPECT_EQ(segments().SegID[2], Single(4.026));
}

TEST_F(PumpNetworkTest, TheVapourPressureComesOverOnlyFromLineOneOfTheDrawing)
{
    physProps().liquidDensity = 61.9;
    physProps().liquidViscosity = 0.0008;
    physProps().vaporPressure = 0.5;
    const auto fetchProperties = [](PumpSegmentInputModel& dialog) {
        dialog.click(seg::cmdTable(seg::PhysicalProperties));
    };
    // Line 2 from the drawing: density and viscosity, no vapour pressure.
    ui.propertiesApplied = {true};
    inDialog(fetchProperties);
    const pump_network::PipeSegment& line2 = pump_network::pipeSegments()[2];
    tool.panNetwork_MouseDown({line2.from.x, (line2.from.y + line2.to.y) / 2});
    EXPECT_EQ(segments().SegDensity[2], Single(61.9));
    EXPECT_EQ(network().VaporPress, 0);
    // Line 1 from the grid: none either.
    ui.propertiesApplied = {true};
    inDialog(fetchProperties);
    tool.grdSummary_DblClick(2);
    EXPECT_EQ(network().VaporPress, 0);
    // Line 1 from the drawing: the vapour pressure lands in its field.
    ui.propertiesApplied = {true};
    inDialog(fetchProperties);
    const pump_network::PipeSegment& line1 = pump_network::pipeSegments()[1];
    tool.panNetwork_MouseDown({(line1.from.x + line1.to.x) / 2, line1.from.y});
    EXPECT_EQ(network().VaporPress, Single(0.5));
    EXPECT_EQ(data(VaporPressure), "0.500");
    EXPECT_EQ(segments().SegVisc[1], Single(0.0008));
}

TEST_F(PumpNetworkTest, CancelledPropertiesChangeNothing)
{
    enterPipesThroughTheDialog(coolingWaterPipes());
    physProps().liquidDensity = 40;
    ui.propertiesApplied = {false};
    inDialog([](PumpSegmentInputModel& dialog) { dialog.click(seg::cmdTable(seg::PhysicalProperties)); });
    tool.grdSummary_DblClick(3);
    EXPECT_TRUE(propertiesCancelled());
    EXPECT_EQ(segments().SegDensity[2], Single(62.4));
}

TEST_F(PumpNetworkTest, TheFittingConstantsShowMaskedAfterTheMinorLossTable)
{
    inDialog([](PumpSegmentInputModel& dialog) {
        minorLossStore().SegK1[4] = 1234.5;
        minorLossStore().SegK2[4] = 0.256;
        minorLossStore().SegK3[4] = 4;
        dialog.click(seg::cmdTable(seg::MinorLossTable)); // the line has no data yet: the texts stay
        EXPECT_EQ(dialog.view().txtDisplay[0].text, "0");
        minorLossStore().hasData[4] = true;
        dialog.click(seg::cmdTable(seg::MinorLossTable));
        EXPECT_EQ(dialog.view().txtDisplay[0].text, "1,235");
        EXPECT_EQ(dialog.view().txtDisplay[1].text, "0.26");
        EXPECT_EQ(dialog.view().txtDisplay[2].text, "4.00");
    });
    tool.grdSummary_DblClick(5);
    EXPECT_EQ(ui.kValueCalls, 2);
    EXPECT_EQ(CurrentLine(), 4);
}
