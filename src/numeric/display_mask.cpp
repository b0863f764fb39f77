#include "numeric/display_mask.h"

#include "numeric/numeric_fault.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

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
    std::string_view mantissa = mask;
    const auto e = mask.find_first_of("Ee");
    if (e != std::string_view::npos && e + 1 < mask.size() && (mask[e + 1] == '+' || mask[e + 1] == '-')) {
        layout.scientific = true;
        layout.exponentSignAlways = mask[e + 1] == '+';
        for (char c : mask.substr(e + 2))
            if (c == '0' || c == '#')
                ++layout.exponentDigits;
        mantissa = mask.substr(0, e);
    }
    const auto point = mantissa.find('.');
    layout.hasPoint = point != std::string_view::npos;
    const std::string_view integerPart = mantissa.substr(0, point);
    bool zeroSeen = false;
    for (char c : integerPart) {
        if (c == ',') {
            layout.grouped = true;
        } else if (c == '#' || c == '0') {
            ++layout.integerPlaceholders;
            zeroSeen = zeroSeen || c == '0';
            if (zeroSeen)
                ++layout.integerMinimum;
        }
    }
    if (layout.hasPoint) {
        for (char c : mantissa.substr(point + 1)) {
            if (c == '0' || c == '#')
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
    std::string digits; // 15 digits, empty for zero
    int exponent = 0;
};

DecimalForm decimalForm(double magnitude)
{
    DecimalForm form;
    if (magnitude == 0.0)
        return form;
    char buffer[40];
    std::snprintf(buffer, sizeof buffer, "%.14e", magnitude);
    form.digits.push_back(buffer[0]);
    form.digits.append(buffer + 2, 14);
    form.exponent = std::atoi(buffer + 17);
    return form;
}

// Keeps the first `keep` digits, rounding half away from zero. A carry out of
// the first digit raises the exponent. Fewer than one digit kept leaves zero,
// or a single unit digit when the dropped part reaches a half.
void roundDigits(DecimalForm& form, int keep)
{
    if (form.digits.empty() || keep >= static_cast<int>(form.digits.size()))
        return;
    if (keep < 0) {
        form.digits.clear();
        return;
    }
    const bool up = form.digits[static_cast<size_t>(keep)] >= '5';
    form.digits.resize(static_cast<size_t>(keep));
    if (!up) {
        if (form.digits.find_first_not_of('0') == std::string::npos)
            form.digits.clear();
        return;
    }
    int i = keep - 1;
    while (i >= 0 && form.digits[static_cast<size_t>(i)] == '9')
        form.digits[static_cast<size_t>(i--)] = '0';
    if (i >= 0) {
        ++form.digits[static_cast<size_t>(i)];
    } else {
        form.digits.insert(form.digits.begin(), '1');
        ++form.exponent;
        if (keep >= 0 && form.digits.size() > static_cast<size_t>(keep) && keep > 0)
            form.digits.pop_back();
    }
}

std::string groupThousands(const std::string& integerDigits, char separator)
{
    std::string grouped;
    const size_t n = integerDigits.size();
    for (size_t i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0)
            grouped.push_back(separator);
        grouped.push_back(integerDigits[i]);
    }
    return grouped;
}

std::string trimFraction(std::string fraction, int minimum)
{
    while (static_cast<int>(fraction.size()) > minimum && fraction.back() == '0')
        fraction.pop_back();
    return fraction;
}

std::string fixedText(double magnitude, const MaskLayout& layout, NumberSymbols symbols, bool& isZero)
{
    DecimalForm form = decimalForm(magnitude);
    // Digits kept: those before the point plus the mask's decimals.
    roundDigits(form, form.exponent + 1 + layout.fractionMaximum);
    isZero = form.digits.empty();

    std::string integerDigits;
    std::string fraction;
    if (!isZero) {
        const int pointAt = form.exponent + 1; // digits before the point
        for (int i = 0; i < pointAt; ++i)
            integerDigits.push_back(i < static_cast<int>(form.digits.size()) ? form.digits[static_cast<size_t>(i)] : '0');
        for (int i = 0; i < layout.fractionMaximum; ++i) {
            const int at = pointAt + i;
            fraction.push_back(at >= 0 && at < static_cast<int>(form.digits.size()) ? form.digits[static_cast<size_t>(at)] : '0');
        }
    } else {
        fraction.assign(static_cast<size_t>(layout.fractionMaximum), '0');
    }
    if (static_cast<int>(integerDigits.size()) < layout.integerMinimum)
        integerDigits.insert(0, static_cast<size_t>(layout.integerMinimum) - integerDigits.size(), '0');

    std::string text = layout.grouped ? groupThousands(integerDigits, symbols.groupSeparator) : integerDigits;
    if (layout.hasPoint) {
        text.push_back(symbols.decimalPoint);
        text += trimFraction(fraction, layout.fractionMinimum);
    }
    return text;
}

std::string scientificText(double magnitude, const MaskLayout& layout, NumberSymbols symbols, bool& isZero)
{
    const int leading = layout.integerPlaceholders > 0 ? layout.integerPlaceholders : 1;
    DecimalForm form = decimalForm(magnitude);
    roundDigits(form, leading + layout.fractionMaximum);
    isZero = form.digits.empty();
    form.digits.resize(static_cast<size_t>(leading + layout.fractionMaximum), '0');

    std::string text = form.digits.substr(0, static_cast<size_t>(leading));
    if (layout.hasPoint) {
        text.push_back(symbols.decimalPoint);
        text += trimFraction(form.digits.substr(static_cast<size_t>(leading)), layout.fractionMinimum);
    }
    const int exponent = isZero ? 0 : form.exponent - (leading - 1);
    text.push_back('E');
    if (exponent < 0)
        text.push_back('-');
    else if (layout.exponentSignAlways)
        text.push_back('+');
    std::string exponentDigits = std::to_string(std::abs(exponent));
    if (static_cast<int>(exponentDigits.size()) < layout.exponentDigits)
        exponentDigits.insert(0, static_cast<size_t>(layout.exponentDigits) - exponentDigits.size(), '0');
    return text + exponentDigits;
}

} // namespace

std::string formatMask(double value, std::string_view mask, NumberSymbols symbols)
{
    if (!std::isfinite(value))
        raiseFault(FaultKind::Overflow, "a displayed value");
    const MaskLayout layout = readMask(mask);
    bool isZero = false;
    const std::string text = layout.scientific ? scientificText(std::fabs(value), layout, symbols, isZero)
                                               : fixedText(std::fabs(value), layout, symbols, isZero);
    return (value < 0.0 && !isZero) ? "-" + text : text;
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
    std::snprintf(buffer, sizeof buffer, "%.7g", value);
    std::string text = buffer;
    const auto e = text.find('e');
    if (e == std::string::npos)
        return text;
    // "1.5e-05" becomes "1.5E-05".
    std::string mantissa = text.substr(0, e);
    std::string exponent = text.substr(e + 1);
    return mantissa + "E" + exponent;
}

} // namespace kestrova
