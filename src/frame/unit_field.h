#pragma once
// A numeric field with a unit list: the kind of quantity it holds (its list
// tag, its conversions and a display mask per unit), and the two ways between
// a stored base value and the text the user sees.

#include "numeric/single.h"
#include "units/basConversions.h"

#include <array>
#include <string>

namespace kestrova {

struct FieldKind {
    const char* tag;
    double (*toUnit)(double, UnitIndex);
    double (*fromUnit)(double, UnitIndex);
    std::array<const char*, 8> masks;
};

// One mask for every unit of a list.
constexpr std::array<const char*, 8> sameMask(const char* mask)
{
    return {mask, mask, mask, mask, mask, mask, mask, mask};
}

// The text of a base value in a unit; empty when the unit is not in the list
// or the value cannot be shown.
std::string unitFieldText(const FieldKind& kind, Single value, UnitIndex unit);

// Reads a typed text in a unit into a base value; false (value kept) when no
// single can hold the number.
bool readUnitFieldText(const FieldKind& kind, const std::string& text, UnitIndex unit, Single& value);

// Reads a plain number text; false (value kept) when no single can hold it.
bool readPlainText(const std::string& text, Single& value);

// A text that holds a number in the program's sense: not empty and readable.
bool isNumericText(const std::string& text);

} // namespace kestrova
