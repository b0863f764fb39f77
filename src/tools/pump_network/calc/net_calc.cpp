#include "tools/pump_network/calc/net_calc.h"

#include "hydraulics/basTransportFunctions.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

namespace {

using checked::Div;

// Runs one statement; a numeric fault abandons it alone.
template <typename Statement>
void resumeNext(Statement&& statement)
{
    try {
        statement();
    } catch (const NumericFault&) {
    }
}

// Field indices that the pass refreshes.
constexpr int kFlowsField = 34, kLineResultsField = 38, kDischargeField = 31, kSuctionField = 32;
constexpr int kFirstValveField = 19, kPumpFlowField = 26, kHeadField = 27, kIncreaseField = 28;
constexpr int kNpshField = 29, kMotorField = 30;
constexpr int kReynoldsRow = 11, kFrictionRow = 12;

constexpr double kFeetPerPsi = 2.31; // a double, as is the water density below
constexpr double kWaterDensity = 62.4;

void sumFlows(NetworkState& s)
{
    LineValues& f = s.NetFlow;
    resumeNext([&] { f[7] = f[5] + f[6]; });
    resumeNext([&] { f[9] = f[10] + f[11]; });
    resumeNext([&] { f[4] = f[7] + f[9] + f[8]; });
    resumeNext([&] { f[2] = f[3] + f[4]; });
    resumeNext([&] { f[1] = f[2]; });
}

void lineResults(NetworkState& s, const SegmentData& g, NetworkDisplay& display)
{
    for (int i = 1; i <= 11; ++i)
        resumeNext([&] {
            s.NetVel[i] = s.NetFlow[i] != 0 && g.SegDensity[i] != 0 && g.SegID[i] != 0
                              ? FlowVelocity(s.NetFlow[i], g.SegDensity[i], g.SegID[i])
                              : Single(0);
        });
    display.refresh(kLineResultsField);
    for (int i = 1; i <= 11; ++i) {
        resumeNext([&] {
            s.NetRe[i] = s.NetVel[i] != 0 && g.SegVisc[i] != 0
                             ? ReynoldsNumber(g.SegDensity[i], g.SegID[i], s.NetVel[i], g.SegVisc[i] * 1000, 1, 1, 1)
                             : Single(0);
        });
        display.gridCell(kReynoldsRow, i + 1, formatMask(s.NetRe[i], "###,###,##0"));
    }
    for (int i = 1; i <= 11; ++i) {
        resumeNext([&] {
            if (g.SegRough[i] != 0 && s.NetRe[i] != 0) {
                const Single relative = Div(g.SegRough[i] * 12, g.SegID[i]);
                s.NetFd[i] = FrictionFactor(s.NetRe[i], relative, 1, 1, 1);
            } else {
                s.NetFd[i] = 0;
            }
        });
        display.gridCell(kFrictionRow, i + 1, formatMask(s.NetFd[i], "#0.00000"));
    }
    // Working values of the whole pass: a statement that fails leaves the
    // value of the line before.
    Single K, straight, minor;
    for (int i = 1; i <= 11; ++i) {
        if (s.NetFd[i] != 0 && g.SegID[i] != 0 && s.NetVel[i] != 0) {
            resumeNext([&] { K = Div(g.SegK1[i], s.NetRe[i]) + g.SegK2[i] * (1 + Div(1, g.SegID[i])) + g.SegK3[i]; });
            resumeNext([&] { straight = StraightRunDrop(s.NetFd[i], g.SegLength[i], g.SegID[i], s.NetVel[i]); });
            resumeNext([&] { minor = MinorLossDrop(K, s.NetVel[i]); });
            resumeNext([&] { s.NetDpLine[i] = (straight + minor) * g.SegDensity[i] / 144 + g.SegDpAdd[i]; });
            resumeNext([&] { s.NetDpStatic[i] = g.SegDensity[i] * s.NetHeight[i] / 144; });
        } else {
            s.NetDpLine[i] = 0; // NetDpStatic keeps the value of an earlier pass
        }
    }
    display.refresh(kLineResultsField);
}

} // namespace

const std::array<NetworkBranch, 6>& networkBranches()
{
    static const std::array<NetworkBranch, 6> branches{{
        {5, {5, 7, 4, 2}},
        {6, {6, 7, 4, 2}},
        {8, {8, 4, 2, 0}},
        {10, {10, 9, 4, 2}},
        {11, {11, 9, 4, 2}},
        {3, {3, 2, 0, 0}},
    }};
    return branches;
}

void NetCalc(NetworkState& s, const SegmentData& g, NetworkDisplay& display)
{
    const FaultScope scope("NetCalc");
    display.beginPass();
    sumFlows(s);
    display.refresh(kFlowsField);
    lineResults(s, g, display);

    const auto& branches = networkBranches();
    std::array<Single, 6> pathDrop{}, valveDrop{};
    const auto flowing = [&](size_t b) { return s.NetFlow[branches[b].terminal] != 0; };
    for (size_t b = 0; b < 6; ++b)
        if (flowing(b))
            resumeNext([&] {
                double sum = 0;
                for (int line : branches[b].path)
                    if (line != 0)
                        sum += s.NetDpLine[line];
                pathDrop[b] = sum;
            });
    Single share;
    resumeNext([&] { share = s.LinePercentDp / 100; });
    for (size_t b = 0; b < 6; ++b) {
        if (pathDrop[b] == 0)
            continue;
        resumeNext([&] {
            const Single designShare = share * pathDrop[b];
            valveDrop[b] = designShare <= s.MinValveDp ? s.MinValveDp : designShare;
        });
    }
    for (size_t b = 0; b < 6; ++b)
        if (flowing(b))
            resumeNext([&] { pathDrop[b] = pathDrop[b] + s.NetDpStatic[branches[b].terminal]; });

    // The controlling branch needs the highest pressure at the pump; an
    // earlier branch keeps a tie.
    const auto required = [&](size_t b) { return s.NetPDest[branches[b].terminal] + pathDrop[b] + valveDrop[b]; };
    size_t controlling = 0;
    resumeNext([&] { s.PDischarge = required(0); });
    for (size_t b = 1; b < 6; ++b)
        resumeNext([&] {
            if (required(b) > s.PDischarge) {
                controlling = b;
                s.PDischarge = required(b);
            }
        });
    resumeNext([&] { s.PDischarge = required(controlling); });
    display.refresh(kDischargeField);

    for (size_t b = 0; b < 6; ++b) {
        const int t = branches[b].terminal;
        resumeNext([&] {
            if (b == controlling)
                s.NetDpCV[t] = valveDrop[b];
            else if (!flowing(b))
                s.NetDpCV[t] = 0;
            else
                s.NetDpCV[t] = s.PDischarge - s.NetPDest[t] - pathDrop[b];
        });
        display.refresh(kFirstValveField + static_cast<int>(b));
    }

    if (s.NetFlow[1] != 0) {
        resumeNext([&] { s.PSuction = g.SegDensity[1] * s.NetHeight[1] / 144 + s.NetPDest[3] - s.NetDpLine[1]; });
        display.refresh(kSuctionField);
    }

    if (s.PDischarge != 0 && s.PSuction != 0) {
        display.refresh(kPumpFlowField);
        if (g.SegDensity[1] != 0) {
            resumeNext([&] { s.PumpHead = Div((s.PDischarge - s.PSuction) * kFeetPerPsi, g.SegDensity[1] / kWaterDensity); });
            display.refresh(kHeadField);
        }
        resumeNext([&] { s.NetDpCV[1] = s.PDischarge - s.PSuction; });
        display.refresh(kIncreaseField);
        if (g.SegDensity[1] != 0 && s.NetDpLine[1] != 0) {
            // The suction line's drop is taken from the head as psi, as the figure is defined.
            resumeNext([&] {
                s.NPSHa = Div((s.NetPDest[3] - s.VaporPress) * kFeetPerPsi, g.SegDensity[1] / kWaterDensity) -
                          s.NetDpLine[1] + s.NetHeight[1];
            });
            display.refresh(kNpshField);
        }
        if (s.NetFlow[1] != 0 && s.PumpHead != 0) {
            resumeNext([&] {
                const Single efficiency = s.PumpEff / 100;
                const double gpm = Div(s.NetFlow[1], 500 * g.SegDensity[1] / kWaterDensity);
                s.MotorSize = Div(gpm * s.PumpHead, 3960 * efficiency);
            });
            display.refresh(kMotorField);
        }
    }
    display.endPass();
}

} // namespace kestrova
