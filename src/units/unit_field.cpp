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

} // namespace kestrova
