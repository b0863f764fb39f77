#pragma once
// Reading a field's text as a number: grouping separators are ignored, and a
// text that is not a number reads as 0. A number beyond the double range is an
// overflow and raises a NumericFault.

#include "numeric/single.h"

#include <cstdint>
#include <string_view>

namespace kestrova {

double parseFieldNumber(std::string_view text, char groupSeparator = ',', char decimalPoint = '.');

// Whether a text reads as a number at all (an empty text does not).
bool isFieldNumber(std::string_view text, char groupSeparator = ',', char decimalPoint = '.');

// A field's text read as the single that the program stores: the one way in
// which every tool takes a number from a text. In three strengths, by what
// the tool's rule makes of a text that holds no storable number:
//
// fieldSingle: a text that is no number reads as 0; a number that no single
// can hold is an overflow (NumericFault), which the tool's failure rule takes.
Single fieldSingle(std::string_view text);
// fieldSingleOr0: a text that is no number, or whose number no single can
// hold, reads as 0. The rule of a field committed as it is left: the user
// sees the 0 that is used when the field is shown again.
Single fieldSingleOr0(std::string_view text) noexcept;
// requiredFieldSingle: a text that is no number (an empty one included) is a
// fault too (invalid operation), for the tools that empty their form on it.
Single requiredFieldSingle(std::string_view text);
// Whether fieldSingle reads a text as 0 without a fault (a text that no
// single can hold does not read as 0). Quick for the text of a shown number.
bool fieldReadsAsZero(std::string_view text) noexcept;
// The same reading kept in double, for a text that is converted before it is stored.
double requiredFieldNumber(std::string_view text);

// A count field's text as a 16-bit integer, rounded as an integer is stored
// (halves to even); a text that is no number, or whose number is beyond
// -32768..32767, reads as 0.
std::int16_t fieldInteger16Or0(std::string_view text) noexcept;

} // namespace kestrova
