#pragma once
// The pump network's calculation: one pass over the fixed network of a source
// vessel, one pump and eleven lines, from the six terminal flows back to the
// pump. Every flow is an input or a sum of inputs, so there is no iteration.
//
// Lines 3, 5, 6, 8, 10 and 11 end at a control valve; line 3 returns to the
// source vessel, so its destination pressure is the source pressure. Heights
// are measured from the pump; the height of line 1 is the fluid height in the
// source vessel. All values are in internal units: lb/h, psi, ft, inches for
// inside diameters, ft for roughness, ft/s, lb/ft3, kg/(m s).

#include "numeric/single.h"

#include <array>
#include <string>

namespace kestrova {

// Arrays indexed by line number 1 to 11; element 0 is not used.
using LineValues = std::array<Single, 12>;

// The pipe data of the lines, shared with the segment dialog.
struct SegmentData {
    LineValues SegLength, SegID, SegRough, SegDensity, SegVisc, SegDpAdd;
    LineValues SegK1, SegK2, SegK3;
};

// The state of the network tool that the pass reads and writes.
struct NetworkState {
    LineValues NetFlow{}, NetVel{}, NetRe{}, NetFd{}, NetDpLine{};
    LineValues NetDpCV{}; // element 1 holds the pump's pressure increase
    LineValues NetPDest{}, NetHeight{}, NetDpStatic{};
    Single PumpHead = 0, VaporPress = 0, MinValveDp = 10, NPSHa = 0, MotorSize = 0;
    Single LinePercentDp = 30, PumpEff = 100, PDischarge = 0, PSuction = 0;
};

// What the pass shows as it goes: the tool's field refresh by field index,
// and the grid cells of the Reynolds number (row 11) and friction factor
// (row 12) rows. The pass starts with beginPass and ends with endPass.
class NetworkDisplay {
public:
    virtual ~NetworkDisplay() = default;
    virtual void beginPass() {}
    virtual void refresh(int /*field*/) {}
    virtual void gridCell(int /*row*/, int /*column*/, const std::string& /*text*/) {}
    virtual void endPass() {}
};

// The six branches in the order the pass visits them, which is also the
// tie-break of the discharge pressure search: the terminal line and the
// lines of its friction path.
struct NetworkBranch {
    int terminal;
    std::array<int, 4> path; // 0 ends a shorter path
};
const std::array<NetworkBranch, 6>& networkBranches();

// One pass. A numeric fault abandons the one statement in which it arises,
// leaving that statement's target as it was; the pass always runs to its end.
void NetCalc(NetworkState& state, const SegmentData& segments, NetworkDisplay& display);

} // namespace kestrova
