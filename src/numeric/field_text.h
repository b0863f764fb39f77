#pragma once
// Reading a field's text as a number: grouping separators are ignored, and a
// text that is not a number reads as 0. A number beyond the double range is an
// overflow and raises a NumericFault.

#include <string_view>

namespace kestrova {

double parseFieldNumber(std::string_view text, char groupSeparator = ',', char decimalPoint = '.');

// Whether a text reads as a number at all (an empty text does not).
bool isFieldNumber(std::string_view text, char groupSeparator = ',', char decimalPoint = '.');

} // namespace kestrova
