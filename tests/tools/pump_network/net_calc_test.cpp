// The pump network pass against hand calculations and the rules of its
// branches, valves and pump figures.

#include "hydraulics/basTransportFunctions.h"
#include "numeric/display_mask.h"
#include "tools/pump_network/calc/net_calc.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

using namespace kestrova;

namespace {

struct RecordingDisplay : NetworkDisplay {
    void refresh(int field) override { refreshed.push_back(field); }
    void gridCell(int row, int column, const std::string& text) override { cells[{row, column}] = text; }
    std::vector<int> refreshed;
    std::map<std::pair<int, int>, std::string> cells;
};

// Water in 4 in (4.026 in ID) steel pipe, 100 ft per line, no fittings.
SegmentData waterLines()
{
    SegmentData g;
    for (int i = 1; i <= 11; ++i) {
        g.SegLength[i] = 100;
        g.SegID[i] = 4.026;
        g.SegRough[i] = 0.00015;
        g.SegDensity[i] = 62.4;
        g.SegVisc[i] = 0.001; // 1 cP
    }
    return g;
}

double lineDrop(const NetworkState& s, const SegmentData& g, int i)
{
    const Single f = s.NetFd[i];
    return static_cast<double>(StraightRunDrop(f, g.SegLength[i], g.SegID[i], s.NetVel[i])) * 62.4 / 144;
}

} // namespace

TEST(NetCalc, AllFlowsZeroGiveTheLargestDestinationPressureFirstInOrder)
{
    NetworkState s;
    const SegmentData g = waterLines();
    s.NetPDest[6] = 50;
    s.NetPDest[10] = 50; // a tie: line 6 comes first
    s.NetPDest[3] = 20;
    RecordingDisplay display;
    NetCalc(s, g, display);
    for (int i = 1; i <= 11; ++i) {
        EXPECT_EQ(s.NetVel[i], 0);
        EXPECT_EQ(s.NetRe[i], 0);
        EXPECT_EQ(s.NetFd[i], 0);
        EXPECT_EQ(s.NetDpLine[i], 0);
    }
    EXPECT_EQ(s.PDischarge, 50);
    for (int t : {3, 5, 6, 8, 10, 11})
        EXPECT_EQ(s.NetDpCV[t], 0) << t; // the controlling line 6 has no path drop, so no valve drop
    EXPECT_EQ(display.cells.at({11, 2}), "0");
    EXPECT_EQ(display.cells.at({12, 12}), "0.00000");
    EXPECT_EQ(s.PumpHead, 0); // no suction pressure, so no pump figures
}

TEST(NetCalc, FlowsSumBackToThePumpAndTheWorstBranchControls)
{
    NetworkState s;
    const SegmentData g = waterLines();
    s.NetFlow[5] = 50000;
    s.NetFlow[6] = 30000;
    s.NetFlow[8] = 20000;
    s.NetFlow[10] = 10000;
    s.NetFlow[11] = 10000;
    s.NetFlow[3] = 5000;
    for (int t : {5, 6, 8, 10, 11})
        s.NetPDest[t] = 30;
    s.NetPDest[3] = 15; // the source vessel
    s.NetHeight[1] = 10;
    s.NetHeight[8] = 40; // line 8 climbs 40 ft
    RecordingDisplay display;
    NetCalc(s, g, display);

    EXPECT_EQ(s.NetFlow[7], 80000);
    EXPECT_EQ(s.NetFlow[9], 20000);
    EXPECT_EQ(s.NetFlow[4], 120000);
    EXPECT_EQ(s.NetFlow[2], 125000);
    EXPECT_EQ(s.NetFlow[1], 125000);
    // V = m / rho / 3600 / (pi d^2 / 4) on line 5.
    EXPECT_NEAR(s.NetVel[5], 50000 / 62.4 / 3600 / (3.14159265 * (4.026 / 12) * (4.026 / 12) / 4), 1e-4);
    EXPECT_NEAR(s.NetDpLine[5], lineDrop(s, g, 5), 1e-5);
    EXPECT_NEAR(s.NetDpStatic[8], 62.4 * 40 / 144, 1e-5);

    // Path drops and the valve rule: 30 % of the friction path, at least 10 psi.
    const double path5 = s.NetDpLine[5] + s.NetDpLine[7] + s.NetDpLine[4] + s.NetDpLine[2];
    const double path8 = s.NetDpLine[8] + s.NetDpLine[4] + s.NetDpLine[2];
    const double valve5 = std::max(0.3 * path5, 10.0), valve8 = std::max(0.3 * path8, 10.0);
    const double need5 = 30 + path5 + valve5, need8 = 30 + path8 + s.NetDpStatic[8] + valve8;
    ASSERT_GT(need8, need5); // the climb makes line 8 the controlling branch
    EXPECT_NEAR(s.PDischarge, need8, 1e-4);
    EXPECT_NEAR(s.NetDpCV[8], valve8, 1e-5);
    EXPECT_NEAR(s.NetDpCV[5], s.PDischarge - 30 - path5, 1e-4); // takes what is left
    EXPECT_GT(s.NetDpCV[5], valve5);

    // Suction, head, increase, NPSHa and motor size.
    const double suction = 62.4 * 10 / 144 + 15 - s.NetDpLine[1];
    EXPECT_NEAR(s.PSuction, suction, 1e-5);
    EXPECT_NEAR(s.PumpHead, (s.PDischarge - s.PSuction) * 2.31, 1e-3);
    EXPECT_NEAR(s.NetDpCV[1], s.PDischarge - s.PSuction, 1e-5);
    EXPECT_NEAR(s.NPSHa, 15 * 2.31 - s.NetDpLine[1] + 10, 1e-4); // psi taken from feet, as defined
    EXPECT_NEAR(s.MotorSize, 125000 / 500.0 * s.PumpHead / 3960, 1e-4);

    const std::vector<int> order{34, 38, 38, 31, 19, 20, 21, 22, 23, 24, 32, 26, 27, 28, 29, 30};
    EXPECT_EQ(display.refreshed, order);
}

TEST(NetCalc, ValveDropHasItsFloorAndTheShareAbove)
{
    NetworkDisplay none;
    // One branch, line 3 alone; its additional loss sets the path drop, the
    // friction of 1000 lb/h adds next to nothing.
    for (const auto& [pathDrop, expected] : std::vector<std::pair<double, double>>{{10, 10}, {100, 30}}) {
        NetworkState s;
        SegmentData g = waterLines();
        s.NetFlow[3] = 1000;
        g.SegDpAdd[3] = pathDrop;
        g.SegDpAdd[2] = 0;
        NetCalc(s, g, none);
        const double friction = s.NetDpLine[3] - pathDrop + s.NetDpLine[2];
        const double share = 0.3 * (pathDrop + friction);
        EXPECT_NEAR(s.NetDpCV[3], std::max(share, 10.0), 1e-4) << pathDrop;
        EXPECT_NEAR(s.NetDpCV[3], expected, 0.05) << pathDrop;
    }
}

TEST(NetCalc, ALineWithoutRoughnessLosesNothingAndAnIdleBranchStillCounts)
{
    NetworkDisplay none;
    NetworkState s;
    SegmentData g = waterLines();
    g.SegRough = LineValues{}; // no friction factor, so the additional loss does not count either
    g.SegDpAdd[3] = 50;
    s.NetFlow[3] = 1000;
    s.NetPDest[5] = 70; // line 5 has no flow and takes part with its destination alone
    s.NetDpStatic[3] = 5; // left by an earlier pass, and not renewed without a friction factor
    NetCalc(s, g, none);
    EXPECT_EQ(s.NetFd[3], 0);
    EXPECT_EQ(s.NetDpLine[3], 0);
    EXPECT_EQ(s.NetDpStatic[3], 5);
    EXPECT_EQ(s.PDischarge, 70);
    EXPECT_EQ(s.NetDpCV[5], 0);
    EXPECT_EQ(s.NetDpCV[3], 65); // all that is left after the static head of the pass before

}

TEST(NetCalc, ThePumpFiguresOfTheHandExample)
{
    NetworkDisplay none;
    // Density 62.4 and an increase of 100 psi: 231 ft; 50,000 lb/h is 100 gpm; 5.83 hp.
    NetworkState s;
    SegmentData g = waterLines();
    g.SegRough = LineValues{}; // no line drops, so the figures are exact
    s.NetFlow[3] = 50000;
    s.NetPDest[3] = 100;      // vessel at 100 psi: it is the suction pressure
    g.SegDpAdd = LineValues{};
    s.MinValveDp = 0;
    s.NetPDest[5] = 200;      // line 5 without flow sets the discharge pressure
    NetCalc(s, g, none);
    EXPECT_EQ(s.PSuction, 100);
    EXPECT_EQ(s.PDischarge, 200);
    EXPECT_NEAR(s.PumpHead, 231, 1e-4);
    EXPECT_NEAR(s.MotorSize, 100 * 231 / 3960.0, 1e-5);
    EXPECT_NEAR(s.MotorSize, 5.83, 0.005);
    EXPECT_EQ(s.NPSHa, 0); // the suction line has no drop: NPSHa is not computed
}

TEST(NetCalc, AFailingStatementLeavesItsTargetAndTheRestRuns)
{
    NetworkDisplay none;
    NetworkState s;
    SegmentData g = waterLines();
    g.SegRough = LineValues{};
    s.NetFlow[3] = 50000;
    s.NetPDest[3] = 100;
    s.NetPDest[5] = 200;
    s.MotorSize = 7;
    s.PumpEff = 0; // the motor size divides by zero
    NetCalc(s, g, none);
    EXPECT_EQ(s.MotorSize, 7);
    EXPECT_NEAR(s.PumpHead, 231, 1e-4);

    // A zero suction pressure keeps every pump figure of the pass before.
    NetworkState quiet;
    quiet.PumpHead = 99;
    quiet.NPSHa = 12;
    quiet.NetFlow[3] = 1000;
    NetCalc(quiet, g, none);
    EXPECT_EQ(quiet.PSuction, 0);
    EXPECT_EQ(quiet.PumpHead, 99);
    EXPECT_EQ(quiet.NPSHa, 12);
}

TEST(NetCalc, FittingsOnALineAddTheThreeConstantForm)
{
    NetworkDisplay none;
    SegmentData g = waterLines();
    NetworkState plain;
    plain.NetFlow[8] = 20000;
    NetCalc(plain, g, none);
    // K = K1 / Re + K2 (1 + 1 / ID) + K3 on line 8, with the diameter in inches.
    g.SegK1[8] = 800;
    g.SegK2[8] = 0.25;
    g.SegK3[8] = 0.5;
    NetworkState fitted;
    fitted.NetFlow[8] = 20000;
    NetCalc(fitted, g, none);
    const double V = fitted.NetVel[8];
    const double K = 800 / static_cast<double>(fitted.NetRe[8]) + 0.25 * (1 + 1 / 4.026) + 0.5;
    const double minor = static_cast<double>(MinorLossDrop(K, V)) * 62.4 / 144;
    EXPECT_NEAR(fitted.NetDpLine[8] - plain.NetDpLine[8], minor, 1e-5);
    // Lines without the flow of line 8 are untouched by its fittings.
    EXPECT_EQ(fitted.NetDpLine[5], plain.NetDpLine[5]);
    EXPECT_EQ(fitted.NetDpLine[4], plain.NetDpLine[4]);
}

TEST(NetCalc, TheStaticHeadComesFromTheTerminalLineAlone)
{
    NetworkDisplay none;
    SegmentData g = waterLines();
    g.SegDensity[10] = 50; // a lighter liquid at the end of line 10 only
    NetworkState s;
    s.NetFlow[10] = 10000;
    s.NetHeight[10] = 100;
    s.MinValveDp = 0;
    s.LinePercentDp = 0;
    NetCalc(s, g, none);
    const double path = s.NetDpLine[10] + s.NetDpLine[9] + s.NetDpLine[4] + s.NetDpLine[2];
    EXPECT_NEAR(s.NetDpStatic[10], 50 * 100 / 144.0, 1e-5);
    EXPECT_NEAR(s.PDischarge, path + 50 * 100 / 144.0, 1e-4);
    EXPECT_EQ(s.NetDpCV[10], 0); // the controlling branch gets its design drop, here none
}

TEST(NetCalc, AFlowingBranchThatDoesNotControlTakesTheRest)
{
    NetworkDisplay none;
    const SegmentData g = waterLines();
    NetworkState s;
    s.NetFlow[5] = 10000;
    s.NetFlow[11] = 10000;
    s.NetPDest[5] = 20;
    s.NetPDest[11] = 60; // line 11 controls
    NetCalc(s, g, none);
    const double path5 = s.NetDpLine[5] + s.NetDpLine[7] + s.NetDpLine[4] + s.NetDpLine[2];
    EXPECT_NEAR(s.NetDpCV[11], 10, 1e-6); // its design drop: the floor of 10 psi
    EXPECT_NEAR(s.NetDpCV[5], s.PDischarge - 20 - path5, 1e-4);
    EXPECT_EQ(s.NetDpCV[6], 0); // no flow, no valve drop
    EXPECT_EQ(s.NetFlow[7], 10000);
    EXPECT_EQ(s.NetFlow[9], 10000);
    EXPECT_EQ(s.NetFlow[2], 20000);
}

TEST(NetCalc, TheGridRowsOfReynoldsNumberAndFrictionFactor)
{
    struct Cells : NetworkDisplay {
        void gridCell(int row, int column, const std::string& text) override { cells[{row, column}] = text; }
        std::map<std::pair<int, int>, std::string> cells;
    } display;
    NetworkState s;
    s.NetFlow[3] = 50000;
    NetCalc(s, waterLines(), display);
    EXPECT_EQ(display.cells.size(), 22u); // 11 lines in each of the two rows
    EXPECT_EQ(display.cells.at({11, 4}), "78,436");
    EXPECT_EQ(display.cells.at({12, 4}), formatMask(s.NetFd[3], "#0.00000"));
    EXPECT_EQ(display.cells.at({12, 5}), "0.00000");
}
