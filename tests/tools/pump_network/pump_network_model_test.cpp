// The pump network window's model driven as a user would: destinations
// typed in their units, the pipe data through the segment dialog, the
// summary grid with its own unit lists, the drawing's pick, reset.

#include "pump_network_fixture.h"

#include "numeric/display_mask.h"
#include "numeric/field_text.h"

#include <cmath>

using namespace kestrova;
using namespace kestrova::pump_network;

namespace {

// Eleven lines of the same 4 in pipe of water, with no length or roughness.
SegmentData uniformPipes()
{
    SegmentData pipes{};
    for (size_t line = 1; line <= 11; ++line) {
        pipes.SegID[line] = 4.026;
        pipes.SegDensity[line] = 62.4;
        pipes.SegVisc[line] = 0.001;
    }
    return pipes;
}

bool showable(const std::string& text)
{
    for (const char* bad : {"nan", "inf", "NaN", "Inf"})
        if (text.find(bad) != std::string::npos)
            return false;
    return true;
}

} // namespace

TEST_F(PumpNetworkTest, LoadShowsTheStartValuesAndTheGridLayout)
{
    EXPECT_EQ(tool.view().txtHydraulicEff.text, "100");
    EXPECT_EQ(tool.view().txtMinValvePercentdP.text, "30");
    EXPECT_EQ(data(MinimumValveDrop), "10"); // psi, with its mask
    EXPECT_EQ(tool.view().grid[0][1], "Line:");
    EXPECT_EQ(tool.view().grid[0][12], "11");
    EXPECT_EQ(tool.view().grid[16][0], "P Dest:");
    EXPECT_EQ(ui.statusText, "Pump Network Design");
    EXPECT_TRUE(ui.toolbar["Save"]);
    // Results are tinted, locked and skipped by Tab; inputs are not.
    for (int field : {Valve5Drop, Valve3Drop, PumpFlow, PumpHead, NPSHa, DischargePressure, SuctionPressure}) {
        const TextControl& result = tool.view().txtData[static_cast<size_t>(field)];
        EXPECT_TRUE(result.locked && !result.tabStop && result.shade == FieldShade::Tinted) << field;
    }
    for (int field : {Line5Flow, Line3Pressure, SourceHeight, VaporPressure, MinimumValveDrop})
        EXPECT_FALSE(tool.view().txtData[static_cast<size_t>(field)].locked) << field;
    EXPECT_EQ(tool.view().txtHydraulicEff.keys, KeyRule::Number); // no minus sign
}

// The figures of a network typed through the window and the dialog are the
// figures of the calculation on the same arrays, to the last bit.
TEST_F(PumpNetworkTest, ANetworkEnteredThroughTheWindowGivesThePassOfTheCalculation)
{
    enterCoolingWaterNetwork();

    const CoolingWaterPass pass = coolingWaterPass();
    const SegmentData& pipes = pass.pipes;
    const NetworkState& expected = pass.network;

    for (const auto& [name, array] : {std::pair{"SegID", &SegmentData::SegID}, {"SegLength", &SegmentData::SegLength},
                                      {"SegRough", &SegmentData::SegRough}, {"SegDensity", &SegmentData::SegDensity},
                                      {"SegVisc", &SegmentData::SegVisc}, {"SegDpAdd", &SegmentData::SegDpAdd}})
        EXPECT_EQ(segments().*array, pipes.*array) << name;
    for (const auto& [name, array] :
         {std::pair{"NetFlow", &NetworkState::NetFlow}, {"NetVel", &NetworkState::NetVel}, {"NetRe", &NetworkState::NetRe},
          {"NetFd", &NetworkState::NetFd}, {"NetDpLine", &NetworkState::NetDpLine}, {"NetDpCV", &NetworkState::NetDpCV},
          {"NetPDest", &NetworkState::NetPDest}, {"NetDpStatic", &NetworkState::NetDpStatic}})
        EXPECT_EQ(network().*array, expected.*array) << name;
    EXPECT_EQ(network().PumpHead, expected.PumpHead);
    EXPECT_EQ(network().PDischarge, expected.PDischarge);
    EXPECT_EQ(network().PSuction, expected.PSuction);
    EXPECT_EQ(network().NPSHa, expected.NPSHa);
    EXPECT_EQ(network().MotorSize, expected.MotorSize);

    // And the window shows them through its masks.
    EXPECT_GT(expected.PumpHead, 0);
    EXPECT_EQ(data(PumpHead), formatMask(expected.PumpHead, "##,##0.00"));
    EXPECT_EQ(data(DischargePressure), formatMask(expected.PDischarge, "##,##0.00"));
    EXPECT_EQ(data(PumpFlow), formatMask(expected.NetFlow[1], "##,##0"));
    EXPECT_EQ(data(PumpFlow), "94,000"); // the six destinations
    EXPECT_EQ(data(Valve8Drop), formatMask(expected.NetDpCV[8], "##,##0.00"));
    EXPECT_EQ(cell(ReynoldsRow, 4), formatMask(expected.NetRe[4], "###,###,##0"));
    EXPECT_EQ(cell(DiameterRow, 10), "2.0670");
    EXPECT_EQ(cell(AddedDropRow, 2), "5.00");
}

TEST_F(PumpNetworkTest, TheHandExampleThroughTheFields)
{
    tool.useNetwork(NetworkState{}, uniformPipes());
    type(Line3Flow, "50,000"); // line 3, the recycle to the source
    type(Line3Pressure, "100"); // the source vessel at 100 psi
    type(Line5Pressure, "200"); // line 5's destination, without flow
    type(MinimumValveDrop, "0");
    EXPECT_EQ(data(DischargePressure), "200.00");
    EXPECT_EQ(data(SuctionPressure), "100.00");
    EXPECT_EQ(data(PumpHead), "231.00"); // (200 - 100) psi × 144 / 62.4 lbm/ft³
    EXPECT_EQ(data(MotorSize), "5.83");   // 50,000 lbm/hr lifted 231 ft: 5.83 hp
    EXPECT_EQ(data(Valve3Drop), "100.00"); // line 3's valve takes what is left
    EXPECT_EQ(cell(FlowRow, 3), "50,000");
    EXPECT_EQ(cell(FlowRow, 5), "");       // a zero shows empty
    EXPECT_EQ(cell(ReynoldsRow, 1), "78,436");
}

TEST_F(PumpNetworkTest, EachFieldAndGridRowKeepsItsOwnUnit)
{
    tool.useNetwork(NetworkState{}, uniformPipes());
    tool.setUnit(Line5Flow, 3); // kg/hr
    type(Line5Flow, "1,000");
    EXPECT_NEAR(network().NetFlow[5], 1000 / 0.45359237, 0.01);
    EXPECT_EQ(data(Line5Flow), "1,000.00");
    EXPECT_EQ(cell(FlowRow, 5), "2,205"); // the grid's flow row is still in lbm/hr
    tool.setUnit(kFields + 0, 3);
    EXPECT_EQ(cell(FlowRow, 5), "1,000.00");
    EXPECT_EQ(data(Line5Flow), "1,000.00");
    tool.setUnit(Line5Flow, 0);
    EXPECT_EQ(data(Line5Flow), "2,205");
    EXPECT_EQ(cell(FlowRow, 5), "1,000.00"); // and back: the row keeps kg/hr
}

TEST_F(PumpNetworkTest, ACellThatHoldsZeroShowsEmptyAfterEveryRefresh)
{
    enterCoolingWaterNetwork();
    const auto expectNoZeroCells = [this](const char* after) {
        for (int row = 1; row < kGridRows; ++row)
            for (int line = 1; line <= 11; ++line) {
                const std::string& text = cell(row, line);
                if (!text.empty()) {
                    EXPECT_NE(parseFieldNumber(text), 0.0) << after << ": row " << row << " line " << line;
                }
            }
    };
    expectNoZeroCells("a pass");
    EXPECT_EQ(cell(AddedDropRow, 1), ""); // line 1 has no added losses
    EXPECT_EQ(cell(K1Row, 4), "");
    tool.setUnit(kFields + 0, 5); // kg/s: a flow of 1 lbm/hr would read 0.000
    type(Line10Flow, "1");
    expectNoZeroCells("a flow in kg/s");
    EXPECT_EQ(cell(FlowRow, 10), "");
    tool.setUnit(kFields + 8, 0); // the line drop row again
    expectNoZeroCells("a row's unit");
    tool.Form_Activate();
    expectNoZeroCells("an activation");
}

TEST_F(PumpNetworkTest, ResetAsksAndReturnsEveryFieldToZero)
{
    type(Line3Flow, "50,000");
    tool.commit(txtHydraulicEff, "75");
    ui.answers = {MessageAnswer::Cancel};
    tool.click(cmdReset);
    EXPECT_EQ(network().NetFlow[3], 50000);
    ui.answers = {MessageAnswer::Ok};
    tool.click(cmdReset);
    EXPECT_EQ(ui.messages.back().text, "Reset all input data?");
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Warning);
    EXPECT_EQ(network().NetFlow[3], 0);
    EXPECT_EQ(data(Line3Flow), "0");
    EXPECT_EQ(data(Line3Pressure), "0.00");
    EXPECT_EQ(tool.view().txtHydraulicEff.text, "100");
    EXPECT_EQ(tool.view().txtMinValvePercentdP.text, "30");
    EXPECT_EQ(cell(FlowRow, 3), "");
    EXPECT_TRUE(tool.view().modified);
    EXPECT_TRUE(tool.strFileName().empty());
}

TEST_F(PumpNetworkTest, ValveAndDestinationRowsHaveCellsOnlyForValveLines)
{
    tool.useNetwork(NetworkState{}, uniformPipes());
    type(Line3Flow, "50,000");
    type(Line3Pressure, "100");
    type(Line5Pressure, "200");
    // Lines 1, 2, 4, 7 and 9 end at no valve: their cells in rows 15 and 16 stay empty.
    for (int line : {1, 2, 4, 7, 9}) {
        EXPECT_EQ(cell(ValveDropRow, line), "") << line;
        EXPECT_EQ(cell(DestinationRow, line), "") << line;
        EXPECT_FALSE(PumpNetworkModel::gridCellUsed(ValveDropRow, line + 1));
    }
    EXPECT_TRUE(PumpNetworkModel::gridCellUsed(ValveDropRow, 4));
    EXPECT_EQ(cell(DestinationRow, 3), "100.00");
    EXPECT_EQ(cell(DestinationRow, 5), "200.00");
    EXPECT_EQ(cell(ValveDropRow, 3), "100.00");
    // The destination row follows its own unit list.
    tool.setUnit(kUnitLists - 1, 1); // atm
    EXPECT_EQ(cell(DestinationRow, 5), "13.61");
    EXPECT_EQ(data(Line5Pressure), "200.00");
}

// A percent field reads its text as a single; a text that is no number
// keeps the value it had.
TEST_F(PumpNetworkTest, PercentFieldsReadASingleAndKeepTheirValueOnNoNumber)
{
    tool.commit(txtMinValvePercentdP, "25");
    EXPECT_EQ(network().LinePercentDp, 25);
    tool.commit(txtMinValvePercentdP, "");
    EXPECT_EQ(network().LinePercentDp, 25);
    EXPECT_EQ(tool.view().txtMinValvePercentdP.text, "25");
    tool.commit(txtMinValvePercentdP, "abc");
    EXPECT_EQ(tool.view().txtMinValvePercentdP.text, "25");
    tool.commit(txtHydraulicEff, "80.85");
    EXPECT_EQ(network().PumpEff, Single(80.85f));
    EXPECT_EQ(tool.view().txtHydraulicEff.text, "80.85"); // the single's own digits, not 80.8499985
}

// A text that is no number in a field reads as zero, as every unit field does.
TEST_F(PumpNetworkTest, TextThatIsNoNumberReadsAsZero)
{
    type(Line8Flow, "12,500");
    type(Line8Flow, "twelve");
    EXPECT_EQ(network().NetFlow[8], 0);
    EXPECT_EQ(data(Line8Flow), "0");
    type(Line8Pressure, "16.04");
    EXPECT_EQ(network().NetPDest[8], Single(16.04f));
    EXPECT_EQ(data(Line8Pressure), "16.04");
}

TEST_F(PumpNetworkTest, ExtremeValuesShowNoNanOrInfinity)
{
    SegmentData pipes = uniformPipes();
    pipes.SegID[4] = 0;        // a zero ID
    pipes.SegLength[5] = -100; // a negative length
    pipes.SegDensity[6] = 0;
    pipes.SegVisc[8] = 1e-38f;
    tool.useNetwork(NetworkState{}, pipes);
    type(Line5Flow, "1e38");
    type(Line6Flow, "-5,000");
    type(Line8Pressure, "-1e38");
    type(SourceHeight, "1e30");
    type(VaporPressure, "1e38");
    tool.commit(txtHydraulicEff, "0");
    for (int field = 0; field < kFields; ++field)
        EXPECT_TRUE(showable(data(field))) << field << " " << data(field);
    for (int row = 1; row < kGridRows; ++row)
        for (int line = 1; line <= 11; ++line)
            EXPECT_TRUE(showable(cell(row, line))) << row << " " << line << " " << cell(row, line);
}

TEST_F(PumpNetworkTest, FittingConstantsShowFromTheMinorLossStore)
{
    tool.useNetwork(NetworkState{}, uniformPipes());
    minorLossStore().SegK1[4] = 1500;
    minorLossStore().SegK2[4] = 0.75;
    minorLossStore().SegK3[4] = 0.5;
    type(Line5Flow, "10,000"); // any edit runs a pass that refreshes the grid
    EXPECT_EQ(cell(K1Row, 4), "1,500.0");
    EXPECT_EQ(cell(K2Row, 4), "0.750");
    EXPECT_EQ(cell(K3Row, 4), "0.500");
    EXPECT_EQ(cell(K1Row, 5), ""); // zero constants show empty
    EXPECT_EQ(segments().SegK1[4], 1500); // and the pass uses them
}

TEST_F(PumpNetworkTest, AHeightFieldChangesTheStaticHeadOfItsLine)
{
    SegmentData pipes = uniformPipes();
    for (size_t line : {2, 4, 6, 7})
        pipes.SegRough[line] = 0.00015;
    tool.useNetwork(NetworkState{}, pipes);
    type(Line6Flow, "20,000");
    tool.setUnit(Line6Height, 1); // ft
    type(Line6Height, "50");
    EXPECT_EQ(network().NetHeight[6], 50);
    EXPECT_NEAR(network().NetDpStatic[6], 62.4 * 50 / 144, 1e-5);
    tool.setUnit(Line6Height, 4); // m
    EXPECT_EQ(data(Line6Height), "15.24");
}

// The drawing's segments, picked in a rectangle widened by 75 twips in x
// and 150 in y, the first hit from segment 0.
TEST(PumpNetworkDrawing, ThePickRectangleAtBothOrientations)
{
    const auto& segments = pipeSegments();
    for (size_t i = 0; i < segments.size(); ++i) {
        const PipeSegment& s = segments[i];
        const CanvasPoint middle{(s.from.x + s.to.x) / 2, (s.from.y + s.to.y) / 2};
        EXPECT_EQ(pipeSegments()[static_cast<size_t>(segmentAt(middle))].line, s.line) << i;
    }
    // Line 10 runs across: 150 twips above it still hits, 151 does not.
    const PipeSegment& across = segments[14];
    ASSERT_EQ(across.from.y, across.to.y);
    const double x = (across.from.x + across.to.x) / 2;
    EXPECT_EQ(segmentAt({x, across.from.y - 150}), 14);
    EXPECT_EQ(segmentAt({x, across.from.y + 150}), 14);
    EXPECT_EQ(segmentAt({x, across.from.y - 151}), -1);
    // Line 1 falls out of the vessel: 75 twips beside it hits, 150 does not.
    const PipeSegment& down = segments[0];
    ASSERT_EQ(down.from.x, down.to.x);
    const double y = (down.from.y + down.to.y) / 2;
    EXPECT_EQ(segmentAt({down.from.x + 75, y}), 0);
    EXPECT_EQ(segmentAt({down.from.x - 75, y}), 0);
    EXPECT_EQ(segmentAt({down.from.x + 150, y}), -1);
    EXPECT_EQ(segmentAt({down.from.x - 150, y}), -1);
    // Where segments meet the lowest number wins: the pump's tee belongs to line 2.
    EXPECT_EQ(segmentAt(segments[3].from), 2);
    // Everything lies on the canvas.
    for (const PipeSegment& s : segments)
        for (const CanvasPoint& p : {s.from, s.to})
            EXPECT_TRUE(p.x >= 0 && p.x <= kCanvasWidth && p.y >= 0 && p.y <= kCanvasHeight);
}

TEST_F(PumpNetworkTest, APressOnTheDrawingOpensTheDialogOnTheLineHit)
{
    int shownOn = 0;
    const PipeSegment& line8 = pipeSegments()[12];
    inDialog([&shownOn](PumpSegmentInputModel&) { shownOn = CurrentLine(); });
    tool.panNetwork_MouseDown({(line8.from.x + line8.to.x) / 2, line8.from.y - 100});
    EXPECT_EQ(shownOn, 8);
    EXPECT_TRUE(tool.view().modified);
    EXPECT_TRUE(ui.toolbar["Save"]);
    tool.panNetwork_MouseDown({kCanvasWidth - 1, kCanvasHeight - 1}); // nothing there
    EXPECT_EQ(ui.segmentInputsShown, 1);
}

TEST_F(PumpNetworkTest, ADoubleClickOnTheGridOpensTheDialogFromColumnTwo)
{
    std::vector<int> shownOn;
    for (int i = 0; i < 2; ++i)
        inDialog([&shownOn](PumpSegmentInputModel&) { shownOn.push_back(CurrentLine()); });
    tool.grdSummary_DblClick(0);
    tool.grdSummary_DblClick(1);
    EXPECT_EQ(ui.segmentInputsShown, 0);
    tool.grdSummary_DblClick(2);
    tool.grdSummary_DblClick(12);
    EXPECT_EQ(shownOn, (std::vector<int>{1, 11}));
}

TEST_F(PumpNetworkTest, AnyKeySetsTheModifiedFlagAndClosingAsksToSave)
{
    EXPECT_FALSE(tool.view().modified);
    EXPECT_TRUE(tool.Form_QueryUnload()); // nothing to save: no question
    EXPECT_TRUE(ui.messages.empty());
    tool.Form_Load();
    tool.keyTyped(txtData(Line5Flow));
    EXPECT_TRUE(tool.view().modified);
    ui.answers = {MessageAnswer::Cancel};
    EXPECT_FALSE(tool.Form_QueryUnload());
    EXPECT_EQ(ui.messages.back().text, "Save data before closing?");
    ui.answers = {MessageAnswer::No};
    EXPECT_TRUE(tool.Form_QueryUnload());
    EXPECT_FALSE(ui.toolbar["Save"]);
    EXPECT_FALSE(ui.toolbar["Print"]);
}

TEST_F(PumpNetworkTest, TheSizeButtonTogglesTheGridOverTheWindow)
{
    EXPECT_FALSE(tool.view().gridFillsWindow);
    tool.click(cmdSizeGrid);
    EXPECT_TRUE(tool.view().gridFillsWindow);
    tool.click(cmdSizeGrid);
    EXPECT_FALSE(tool.view().gridFillsWindow);
    tool.HSplitter_Moved(0); // the drawing dragged away: the next click brings it back
    EXPECT_TRUE(tool.view().gridFillsWindow);
    tool.click(cmdSizeGrid);
    EXPECT_FALSE(tool.view().gridFillsWindow);
}

TEST(PumpNetworkGrid, ToolTipsNameTheRowAndTheLine)
{
    EXPECT_EQ(PumpNetworkModel::gridToolTip(0, 0), "Pipe Segment Data");
    EXPECT_EQ(PumpNetworkModel::gridToolTip(0, 5), "Pipe Segment 4");
    EXPECT_EQ(PumpNetworkModel::gridToolTip(1, 0), "Flow Rate in Pipe Segment");
    EXPECT_EQ(PumpNetworkModel::gridToolTip(1, 3), "Flow Rate in Pipe Segment 2");
    EXPECT_EQ(PumpNetworkModel::gridToolTip(16, 12), "Pipe Segment 11 Destination Pressure");
    EXPECT_EQ(PumpNetworkModel::gridToolTip(8, 1), "");
}
