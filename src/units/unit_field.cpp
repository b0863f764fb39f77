#include "units/unit_field.h"

#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"
#include "units/basLoadUnits.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace kestrova {

namespace {

std::string makeUnitFieldText(const FieldKind& kind, Single value, UnitIndex unit)
{
    if (unit < 0 || static_cast<size_t>(unit) >= unitList(kind.tag).size())
        return {};
    try {
        return formatMask(kind.toUnit(value, unit), kind.masks[static_cast<size_t>(unit)]);
    } catch (const NumericFault&) {
        return {};
    }
}

// The texts lately made, by what makes them: the list (its tag), the
// conversion, the mask, the unit and the single's bits. A window shows the
// same values again at every refresh; a text found here is not made again.
struct ShownText {
    const char* tag = nullptr;
    double (*toUnit)(double, UnitIndex) = nullptr;
    const char* mask = nullptr;
    UnitIndex unit = 0;
    std::uint32_t bits = 0;
    std::string text;
};
constexpr size_t kShownTexts = 256;

} // namespace

std::string unitFieldText(const FieldKind& kind, Single value, UnitIndex unit)
{
    const char* mask = unit >= 0 && static_cast<size_t>(unit) < kind.masks.size() ? kind.masks[static_cast<size_t>(unit)]
                                                                                 : nullptr;
    const auto bits = std::bit_cast<std::uint32_t>(value.value());
    const std::uintptr_t source = reinterpret_cast<std::uintptr_t>(mask) ^ reinterpret_cast<std::uintptr_t>(kind.tag) * 31 ^
                                  reinterpret_cast<std::uintptr_t>(kind.toUnit) * 131;
    const size_t slot = ((bits ^ static_cast<std::uint32_t>(unit) << 24) * 2654435761u ^ source * 0x9E3779B97F4A7C15u >> 40) %
                        kShownTexts;
    thread_local std::array<ShownText, kShownTexts> shown;
    ShownText& entry = shown[slot];
    if (entry.tag != kind.tag || entry.toUnit != kind.toUnit || entry.mask != mask || entry.unit != unit ||
        entry.bits != bits || !entry.toUnit)
        entry = {kind.tag, kind.toUnit, mask, unit, bits, makeUnitFieldText(kind, value, unit)};
    return entry.text;
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
// gives the widest text (the first of equally long ones).
std::string widestText(const FieldKind& kind)
{
    const char* longest = nullptr;
    for (const char* mask : kind.masks)
        if (mask && (!longest || std::strlen(mask) > std::strlen(longest)))
            longest = mask;
    return longest ? maskSample(longest) : std::string();
}

} // namespace kestrova
