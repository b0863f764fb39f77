#include "tools/piping/model/minor_loss_store.h"

namespace kestrova {

void MinorLossStore::clearSlot(int slot)
{
    SegK1[slot] = SegK2[slot] = SegK3[slot] = otherK[slot] = 0.0;
    hasData[slot] = false;
    quantities[slot].fill(0);
}

MinorLossStore& minorLossStore()
{
    static MinorLossStore store;
    return store;
}

ReducerStore& contractionStore()
{
    static ReducerStore store;
    return store;
}

ReducerStore& enlargementStore()
{
    static ReducerStore store;
    return store;
}

std::int16_t& CurrentLine()
{
    static std::int16_t line = 0;
    return line;
}

} // namespace kestrova

#include "tools/piping/model/pipe_selection.h"

namespace kestrova {

Single& pipeToolRoughness()
{
    static Single roughness;
    return roughness;
}

} // namespace kestrova
