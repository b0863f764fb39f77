#pragma once
// A numeric field with a unit list: the kind of quantity it holds (its list
// tag, its conversions and a display mask per unit), and the two ways between
// a stored base value and the text the user sees.

#include "numeric/single.h"
#include "units/basConversions.h"

#include <array>
#include <string>
#include <string_view>

namespace kestrova {

struct FieldKind {
    const char* tag;
    double (*toUnit)(double, UnitIndex);
    double (*fromUnit)(double, UnitIndex);
    std::array<const char*, 8> masks;
};

// The widest text a mask shows: its digits as eights, with a minus sign.
std::string maskSample(const char* mask);
// The widest of the kind's masks, which sets the least width of its field.
std::string widestText(const FieldKind& kind);

// One mask for every unit of a list.
constexpr std::array<const char*, 8> sameMask(const char* mask)
{
    return {mask, mask, mask, mask, mask, mask, mask, mask};
}

// The text of a base value in a unit; empty when the unit is not in the list
// or the value cannot be shown.
std::string unitFieldText(const FieldKind& kind, Single value, UnitIndex unit);

// The base value of a text typed in a unit, as a field is committed: a text
// that is no number, or whose value no single can hold, reads as 0, which the
// field then shows.
Single unitFieldValue(const FieldKind& kind, std::string_view text, UnitIndex unit) noexcept;

} // namespace kestrova
