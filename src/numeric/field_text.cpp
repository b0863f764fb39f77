#include "numeric/field_text.h"

#include "numeric/numeric_fault.h"

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

bool fieldReadsAsZero(std::string_view text) noexcept
{
    // A shown number's usual text (a sign first, digits, separators, one
    // point, no exponent, at most 20 characters) is zero exactly when it has
    // no digit but zeros: its other values are all well inside a single's
    // range and above its least magnitude. A text without a digit is no
    // number and reads as 0.
    if (text.size() <= 20) {
        bool usual = true, point = false, nonzero = false;
        for (size_t i = 0; i < text.size() && usual; ++i) {
            const char c = text[i];
            if (c >= '0' && c <= '9')
                nonzero = nonzero || c != '0';
            else if (c == '.' && !point)
                point = true;
            else if (c != ',' && !((c == '-' || c == '+') && i == 0))
                usual = false;
        }
        if (usual)
            return !nonzero;
    }
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
