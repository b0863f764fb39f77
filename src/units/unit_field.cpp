#include "units/unit_field.h"

#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "units/basLoadUnits.h"

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
    for (const char* c = mask; c && *c; ++c)
        sample += (*c == '#' || *c == '0') ? '8' : *c;
    return sample;
}

std::string widestText(const FieldKind& kind)
{
    std::string widest;
    for (const char* mask : kind.masks) {
        const std::string sample = mask ? maskSample(mask) : std::string();
        if (sample.size() > widest.size())
            widest = sample;
    }
    return widest;
}

} // namespace kestrova
