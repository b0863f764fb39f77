#pragma once
// What the minor loss tool remembers per slot (a line of a network, or the
// pressure drop tool's slot 0), and the two K values of the last enlargement
// and contraction computed. The document tools save and restore all of it.

#include "numeric/single.h"

#include <array>
#include <cstdint>

namespace kestrova {

inline constexpr int kMinorLossSlots = 12;
inline constexpr int kFittingKinds = 35;
inline constexpr int kReservedColumns = 15;

struct MinorLossStore {
    std::array<Single, kMinorLossSlots> SegK1{}, SegK2{}, SegK3{};
    std::array<Single, kMinorLossSlots> otherK{};
    std::array<bool, kMinorLossSlots> hasData{};
    std::array<std::array<std::int16_t, kFittingKinds>, kMinorLossSlots> quantities{};
    // Further per-slot tables that the project files carry and give back as they stand.
    std::array<std::array<Single, kReservedColumns>, kMinorLossSlots> reservedTable2{}, reservedTable4{};
    std::array<std::int16_t, kMinorLossSlots> reservedTable3{}, reservedTable5{};
    Single enlargementK;
    Single contractionK;

    void clearSlot(int slot);
};

MinorLossStore& minorLossStore();

// What the contraction and the enlargement tools remember per slot: the five
// angles of the gradual rows, then the ten betas, and whether it was applied.
struct ReducerStore {
    std::array<std::array<Single, 15>, kMinorLossSlots> values{};
    std::array<bool, kMinorLossSlots> hasData{};
};
ReducerStore& contractionStore();
ReducerStore& enlargementStore();

// The slot that the minor loss tool works on (0 to 11).
std::int16_t& CurrentLine();

} // namespace kestrova
