#include "frame/unit_field.h"

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

bool readUnitFieldText(const FieldKind& kind, const std::string& text, UnitIndex unit, Single& value)
{
    try {
        value = kind.fromUnit(parseFieldNumber(text), unit);
        return true;
    } catch (const NumericFault&) {
        return false;
    }
}

bool readPlainText(const std::string& text, Single& value)
{
    try {
        value = parseFieldNumber(text);
        return true;
    } catch (const NumericFault&) {
        return false;
    }
}

bool isNumericText(const std::string& text)
{
    return isFieldNumber(text);
}

} // namespace kestrova
