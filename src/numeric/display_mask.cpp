#include "numeric/display_mask.h"

#include "numeric/numeric_fault.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace kestrova {

namespace {

struct MaskLayout {
    int integerPlaceholders = 0; // '#' and '0' before the point
    int integerMinimum = 0;      // digits printed always: from the first '0' on
    bool grouped = false;
    bool hasPoint = false;
    int fractionMinimum = 0; // '0' after the point
    int fractionMaximum = 0; // '0' and '#' after the point
    bool scientific = false;
    bool exponentSignAlways = false;
    int exponentDigits = 0;
};

MaskLayout readMask(std::string_view mask)
{
    MaskLayout layout;
    size_t mantissaEnd = mask.size();
    for (size_t i = 0; i + 1 < mask.size(); ++i) {
        if ((mask[i] == 'E' || mask[i] == 'e') && (mask[i + 1] == '+' || mask[i + 1] == '-')) {
            layout.scientific = true;
            layout.exponentSignAlways = mask[i + 1] == '+';
            for (char c : mask.substr(i + 2))
                if (c == '0' || c == '#')
                    ++layout.exponentDigits;
            mantissaEnd = i;
            break;
        }
        if (mask[i] == 'E' || mask[i] == 'e')
            break; // only the first E of a mask can open its exponent
    }
    bool zeroSeen = false;
    for (char c : mask.substr(0, mantissaEnd)) {
        if (c == '.' && !layout.hasPoint) {
            layout.hasPoint = true;
        } else if (!layout.hasPoint) {
            if (c == ',') {
                layout.grouped = true;
            } else if (c == '#' || c == '0') {
                ++layout.integerPlaceholders;
                zeroSeen = zeroSeen || c == '0';
                if (zeroSeen)
                    ++layout.integerMinimum;
            }
        } else if (c == '0' || c == '#') {
            ++layout.fractionMaximum;
            if (c == '0')
                ++layout.fractionMinimum;
        }
    }
    return layout;
}

// The magnitude as fifteen significant decimal digits and the power of ten of
// the first one: value = 0.d1d2...d15 * 10^(exponent + 1).
struct DecimalForm {
    static constexpr int kDigits = 15;
    char digits[kDigits + 1] = {};
    int count = 0; // 15, fewer after rounding, 0 for zero
    int exponent = 0;
};

DecimalForm decimalForm(double magnitude)
{
    DecimalForm form;
    if (magnitude == 0.0)
        return form;
    // The text of printf's "%.14e": d.dddddddddddddde±xx.
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific, 14).ptr;
    form.digits[0] = buffer[0];
    std::memcpy(form.digits + 1, buffer + 2, DecimalForm::kDigits - 1);
    form.count = DecimalForm::kDigits;
    std::from_chars(buffer + 17 + (buffer[17] == '+'), end, form.exponent);
    return form;
}

// Keeps the first `keep` digits, rounding half away from zero. A carry out of
// the first digit raises the exponent. Fewer than one digit kept leaves zero,
// or a single unit digit when the dropped part reaches a half.
void roundDigits(DecimalForm& form, int keep)
{
    if (form.count == 0 || keep >= form.count)
        return;
    if (keep < 0) {
        form.count = 0;
        return;
    }
    const bool up = form.digits[keep] >= '5';
    form.count = keep;
    if (!up) {
        if (std::all_of(form.digits, form.digits + keep, [](char d) { return d == '0'; }))
            form.count = 0;
        return;
    }
    int i = keep - 1;
    while (i >= 0 && form.digits[i] == '9')
        form.digits[i--] = '0';
    if (i >= 0) {
        ++form.digits[i];
    } else {
        // All nines: 1 and the zeros, one place up, still `keep` digits long.
        std::memmove(form.digits + 1, form.digits, static_cast<size_t>(keep));
        form.digits[0] = '1';
        ++form.exponent;
        form.count = keep > 0 ? keep : 1;
    }
}

// The digit at a place of the decimal form, zero beyond its digits.
char digitAt(const DecimalForm& form, int at)
{
    return at >= 0 && at < form.count ? form.digits[at] : '0';
}

// The point and the fraction's digits up to the mask's count, without the
// trailing zeros beyond its '0' places.
template <typename Digit>
void appendFraction(std::string& text, const MaskLayout& layout, NumberSymbols symbols, Digit digit)
{
    text.push_back(symbols.decimalPoint);
    const size_t start = text.size();
    for (int i = 0; i < layout.fractionMaximum; ++i)
        text.push_back(digit(i));
    while (text.size() - start > static_cast<size_t>(layout.fractionMinimum) && text.back() == '0')
        text.pop_back();
}

// The text begins with the sign of a negative value that does not round to zero.
std::string signedStart(bool negative, bool isZero, size_t length)
{
    std::string text;
    text.reserve(length + 1);
    if (negative && !isZero)
        text.push_back('-');
    return text;
}

std::string fixedText(double value, const MaskLayout& layout, NumberSymbols symbols)
{
    DecimalForm form = decimalForm(std::fabs(value));
    // Digits kept: those before the point plus the mask's decimals.
    roundDigits(form, form.exponent + 1 + layout.fractionMaximum);
    const bool isZero = form.count == 0;

    const int pointAt = isZero ? 0 : form.exponent + 1; // digits before the point
    const int integerDigits = std::max(pointAt, layout.integerMinimum);
    std::string text = signedStart(value < 0.0, isZero,
                                   static_cast<size_t>(integerDigits + integerDigits / 3 + layout.fractionMaximum + 1));
    for (int i = 0; i < integerDigits; ++i) {
        if (layout.grouped && i > 0 && (integerDigits - i) % 3 == 0)
            text.push_back(symbols.groupSeparator);
        text.push_back(digitAt(form, i - (integerDigits - pointAt)));
    }
    if (layout.hasPoint)
        appendFraction(text, layout, symbols, [&](int i) { return digitAt(form, pointAt + i); });
    return text;
}

std::string scientificText(double value, const MaskLayout& layout, NumberSymbols symbols)
{
    const int leading = layout.integerPlaceholders > 0 ? layout.integerPlaceholders : 1;
    DecimalForm form = decimalForm(std::fabs(value));
    roundDigits(form, leading + layout.fractionMaximum);
    const bool isZero = form.count == 0;

    std::string text = signedStart(value < 0.0, isZero,
                                   static_cast<size_t>(leading + layout.fractionMaximum + layout.exponentDigits + 4));
    for (int i = 0; i < leading; ++i)
        text.push_back(digitAt(form, i));
    if (layout.hasPoint)
        appendFraction(text, layout, symbols, [&](int i) { return digitAt(form, leading + i); });
    const int exponent = isZero ? 0 : form.exponent - (leading - 1);
    text.push_back('E');
    if (exponent < 0)
        text.push_back('-');
    else if (layout.exponentSignAlways)
        text.push_back('+');
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, std::abs(exponent)).ptr;
    const auto written = static_cast<int>(end - digits);
    if (written < layout.exponentDigits)
        text.append(static_cast<size_t>(layout.exponentDigits - written), '0');
    return text.append(digits, end);
}

} // namespace

std::string formatMask(double value, std::string_view mask, NumberSymbols symbols)
{
    if (!std::isfinite(value))
        raiseFault(FaultKind::Overflow, "a displayed value");
    const MaskLayout layout = readMask(mask);
    return layout.scientific ? scientificText(value, layout, symbols) : fixedText(value, layout, symbols);
}

} // namespace kestrova

namespace kestrova {

std::string plainNumberText(double value)
{
    if (!std::isfinite(value))
        raiseFault(FaultKind::Overflow, "a displayed value");
    if (value == 0.0)
        return "0";
    char buffer[40];
    std::string text(buffer, std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 7).ptr);
    const auto e = text.find('e');
    if (e == std::string::npos)
        return text;
    // "1.5e-05" becomes "1.5E-05".
    std::string mantissa = text.substr(0, e);
    std::string exponent = text.substr(e + 1);
    return mantissa + "E" + exponent;
}

} // namespace kestrova
