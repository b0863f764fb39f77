#pragma once
// A cooling water network as a user types it: each line's pipe data in the
// segment dialog and the destinations in the window, in texts that survive
// their masks unchanged; and the pass of the calculation on the same numbers,
// which the window must give back to the last bit.

#include "numeric/field_text.h"
#include "tools/pump_network/calc/net_calc.h"

#include <vector>

// One line's pipe data as typed in the segment dialog: ID in inches, length
// in feet, roughness in feet, density in lbm/ft³, viscosity in kg/m-s,
// additional losses in psi. Each text survives its mask unchanged.
struct TypedPipe {
    const char *id, *length, *roughness, *density, *viscosity, *added;
};

// A cooling water loop: a 6 in header and suction, 3 in and 2 in branches
// of schedule 40 steel, a strainer on the discharge.
inline const std::vector<TypedPipe>& coolingWaterPipes()
{
    static const std::vector<TypedPipe> pipes{
        {"6.065", "20", "0.00015", "62.4", "0.001", "0"},    // 1 suction
        {"6.065", "50", "0.00015", "62.4", "0.001", "5"},    // 2 discharge, strainer
        {"2.067", "150", "0.00015", "62.4", "0.001", "0"},   // 3 recycle
        {"6.065", "200", "0.00015", "62.4", "0.001", "0"},   // 4 header
        {"3.068", "120", "0.00015", "62.4", "0.001", "2.5"}, // 5 exchanger
        {"3.068", "90", "0.00015", "62.4", "0.001", "0"},    // 6
        {"4.026", "60", "0.00015", "62.4", "0.001", "0"},    // 7
        {"3.068", "110", "0.00015", "62.4", "0.001", "4"},   // 8 exchanger
        {"4.026", "40", "0.00015", "62.4", "0.001", "0"},    // 9
        {"2.067", "80", "0.00015", "62.4", "0.001", "0"},    // 10
        {"2.067", "70", "0.00015", "62.4", "0.001", "1.5"},  // 11
    };
    return pipes;
}

// The destinations of lines 5, 6, 8, 10, 11 and 3: flow in lbm/hr, pressure
// in psia, height in feet; then the fluid height of the source in feet.
struct TypedDestination {
    int line;
    const char *flow, *pressure, *height;
};
inline const std::vector<TypedDestination>& coolingWaterDestinations()
{
    static const std::vector<TypedDestination> ends{
        {5, "30,000", "45", "40"}, {6, "20,000", "30", "25"}, {8, "25,000", "60", "60"},
        {10, "8,000", "25", "15"}, {11, "6,000", "20", "10"},  {3, "5,000", "14.7", "12"},
    };
    return ends;
}
inline constexpr const char* kCoolingWaterSourceHeight = "8";

// The network as the calculation takes it from the typed texts, after one pass.
struct CoolingWaterPass {
    kestrova::SegmentData pipes{};
    kestrova::NetworkState network{};
};
inline CoolingWaterPass coolingWaterPass()
{
    using kestrova::parseFieldNumber;
    CoolingWaterPass pass;
    const auto& typed = coolingWaterPipes();
    for (size_t line = 1; line <= 11; ++line) {
        const TypedPipe& p = typed[line - 1];
        pass.pipes.SegID[line] = parseFieldNumber(p.id);
        pass.pipes.SegLength[line] = parseFieldNumber(p.length);
        pass.pipes.SegRough[line] = parseFieldNumber(p.roughness);
        pass.pipes.SegDensity[line] = parseFieldNumber(p.density);
        pass.pipes.SegVisc[line] = parseFieldNumber(p.viscosity);
        pass.pipes.SegDpAdd[line] = parseFieldNumber(p.added);
    }
    for (const TypedDestination& end : coolingWaterDestinations()) {
        const auto line = static_cast<size_t>(end.line);
        pass.network.NetFlow[line] = parseFieldNumber(end.flow);
        pass.network.NetPDest[line] = parseFieldNumber(end.pressure);
        pass.network.NetHeight[line] = parseFieldNumber(end.height);
    }
    pass.network.NetHeight[1] = parseFieldNumber(kCoolingWaterSourceHeight);
    kestrova::NetworkDisplay none;
    kestrova::NetCalc(pass.network, pass.pipes, none);
    return pass;
}
