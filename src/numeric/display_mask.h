#pragma once
// Numbers on screen go through display masks such as "##,##0.00" or
// "0.0000E+00": "#" a digit if any, "0" a digit always, "," groups the integer
// part by threes, "E+00" a signed exponent of at least two digits ("E-00" shows
// the sign only when negative). Rounding is half away from zero on the value's
// 15-significant-digit decimal form; an all-"#" integer part prints nothing for
// zero; a result that rounds to zero never carries a minus sign.

#include <string>
#include <string_view>

namespace kestrova {

struct NumberSymbols {
    char groupSeparator = ',';
    char decimalPoint = '.';
};

// Formats with the C locale's symbols unless others are given. A value that is
// not finite cannot be shown and raises a NumericFault (overflow).
std::string formatMask(double value, std::string_view mask, NumberSymbols symbols = {});

} // namespace kestrova

namespace kestrova {

// A number as plain text, the way a number without a mask is shown: up to
// seven significant digits, no trailing zeros, "1.5E-05" for small and large
// magnitudes.
std::string plainNumberText(double value);

} // namespace kestrova
