#include "numeric/field_text.h"

#include "numeric/numeric_fault.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <locale.h>
#include <string>

namespace kestrova {

namespace {

// The plain decimal form, in C notation: sign, digits with at most one point
// (at least one digit), then an optional exponent.
bool isPlainNumber(const std::string& s)
{
    size_t i = 0;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        ++i;
    size_t digits = 0;
    while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) {
        ++i;
        ++digits;
    }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) {
            ++i;
            ++digits;
        }
    }
    if (digits == 0)
        return false;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        if (i < s.size() && (s[i] == '+' || s[i] == '-'))
            ++i;
        size_t exponentDigits = 0;
        while (i < s.size() && std::isdigit(static_cast<unsigned char>(s[i]))) {
            ++i;
            ++exponentDigits;
        }
        if (exponentDigits == 0)
            return false;
    }
    return i == s.size();
}

locale_t cLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return locale;
}

} // namespace

namespace {

std::string plainForm(std::string_view text, char groupSeparator, char decimalPoint)
{
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    std::string plain;
    plain.reserve(text.size());
    for (char c : text) {
        if (c != groupSeparator)
            plain.push_back(c == decimalPoint ? '.' : c);
    }
    return plain;
}

} // namespace

bool isFieldNumber(std::string_view text, char groupSeparator, char decimalPoint)
{
    return isPlainNumber(plainForm(text, groupSeparator, decimalPoint));
}

double parseFieldNumber(std::string_view text, char groupSeparator, char decimalPoint)
{
    const std::string plain = plainForm(text, groupSeparator, decimalPoint);
    if (!isPlainNumber(plain))
        return 0.0;
    // The correctly rounded double, as strtod gives it; strtod itself for
    // the magnitudes beyond a double's range, whose overflow is a fault and
    // whose underflow reads as the nearest tiny value or zero.
    double value = 0.0;
    const char* first = plain.data() + (plain.front() == '+');
    if (std::from_chars(first, plain.data() + plain.size(), value).ec == std::errc())
        return value;
    errno = 0;
    value = strtod_l(plain.c_str(), nullptr, cLocale());
    if (errno == ERANGE && std::isinf(value))
        raiseFault(FaultKind::Overflow, "a field's number");
    return value;
}

Single fieldSingle(std::string_view text)
{
    return Single(parseFieldNumber(text));
}

Single fieldSingleOr0(std::string_view text) noexcept
{
    try {
        return fieldSingle(text);
    } catch (const NumericFault&) {
        return Single();
    }
}

namespace {

// A shown number's usual text: a sign first, digits, separators, one point,
// then perhaps an exponent of one or two digits up to 15; 20 characters at
// most. Its value is well inside a single's range and above its least
// magnitude, so that it reads as 0 exactly when its digits are all zeros.
// `exponentAt` is where the text's first E is, or its length.
bool isUsualNumberText(std::string_view text, size_t exponentAt)
{
    if (text.size() > 20)
        return false;
    bool point = false, digit = false;
    for (size_t i = 0; i < exponentAt; ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9')
            digit = true;
        else if (c == '.' && !point)
            point = true;
        else if (c != ',' && !((c == '-' || c == '+') && i == 0))
            return false;
    }
    if (!digit)
        return false;
    if (exponentAt == text.size())
        return true;
    std::string_view exponent = text.substr(exponentAt + 1);
    if (!exponent.empty() && (exponent.front() == '+' || exponent.front() == '-'))
        exponent.remove_prefix(1);
    int power = 0;
    const auto [end, error] = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
    return error == std::errc() && end == exponent.data() + exponent.size() && exponent.size() <= 2 && power <= 15;
}

} // namespace

bool fieldReadsAsZero(std::string_view text) noexcept
{
    // Without a digit other than 0 before its exponent, a text is either a
    // number that is zero or no number at all, which reads as 0.
    size_t exponentAt = 0;
    bool nonzero = false;
    for (; exponentAt < text.size() && text[exponentAt] != 'E' && text[exponentAt] != 'e'; ++exponentAt)
        nonzero = nonzero || (text[exponentAt] >= '1' && text[exponentAt] <= '9');
    if (!nonzero)
        return true;
    if (isUsualNumberText(text, exponentAt))
        return false;
    try {
        return fieldSingle(text) == 0;
    } catch (const NumericFault&) {
        return false;
    }
}

double requiredFieldNumber(std::string_view text)
{
    if (!isFieldNumber(text))
        raiseFault(FaultKind::InvalidOperation, "a field that holds no number");
    return parseFieldNumber(text);
}

Single requiredFieldSingle(std::string_view text)
{
    return Single(requiredFieldNumber(text));
}

std::int16_t fieldInteger16Or0(std::string_view text) noexcept
{
    try {
        return roundToInteger16(parseFieldNumber(text));
    } catch (const NumericFault&) {
        return 0;
    }
}

} // namespace kestrova
