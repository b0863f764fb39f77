#include "units/unit_field.h"

#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "units/basLoadUnits.h"

#include <cstring>

namespace kestrova {

std::string unitFieldText(const FieldKind& kind, Single value, UnitIndex unit)
{
    if (unit < 0 || static_cast<size_t>(unit) >= unitList(kind.tag).size())
        return {};
    try {
        return formatMask(kind.toUnit(value, unit), kind.masks[static_cast<size_t>(unit)]);
    } catch (const NumericFault&) {
        return {};
    }
}

Single unitFieldValue(const FieldKind& kind, std::string_view text, UnitIndex unit) noexcept
{
    try {
        return Single(kind.fromUnit(parseFieldNumber(text), unit));
    } catch (const NumericFault&) {
        return Single();
    }
}

std::string maskSample(const char* mask)
{
    std::string sample = "-";
    if (mask)
        sample += mask;
    for (char& c : sample)
        if (c == '#' || c == '0')
            c = '8';
    return sample;
}

// A mask's sample is one character longer than the mask: the longest mask
// gives the widest text, the first of equals as before.
std::string widestText(const FieldKind& kind)
{
    const char* longest = nullptr;
    for (const char* mask : kind.masks)
        if (mask && (!longest || std::strlen(mask) > std::strlen(longest)))
            longest = mask;
    return longest ? maskSample(longest) : std::string();
}

} // namespace kestrova
