#pragma once
// The one binding of a document tool's fields with a unit list: field i is a
// value of the tool's record (a field of it, or an element of one of its
// arrays), of a kind that gives its unit list and masks, whose list takes
// the unit of a global quantity at each activation. The tool keeps the
// texts and lists; these helpers show a value, take a typed text, and apply
// the global units, the same way in every tool.

#include "forms/model/controls.h"
#include "forms/store/global_units.h"
#include "units/unit_field.h"

#include <array>
#include <cstddef>

namespace kestrova {

template <typename Record>
struct FieldBinding {
    const FieldKind* kind;
    Quantity setup;                         // the global quantity whose unit the list takes
    Single Record::*member = nullptr;       // the record's field...
    Single& (*element)(Record&) = nullptr;  // ...or an element of one of its arrays

    Single& of(Record& record) const { return member ? record.*member : element(record); }
    Single of(const Record& record) const { return of(const_cast<Record&>(record)); }
};

// Shows the value in its list's unit; a value that cannot be shown keeps the text.
template <typename Record>
void showUnitField(const FieldBinding<Record>& binding, const Record& record, const ListControl& unit, TextControl& field)
{
    const std::string text = unitFieldText(*binding.kind, binding.of(record), static_cast<UnitIndex>(unit.listIndex));
    if (!text.empty())
        field.text = text;
}

// Takes the typed text in its list's unit: a text that holds no storable
// number is 0, which the field then shows.
template <typename Record>
void commitUnitField(const FieldBinding<Record>& binding, Record& record, const ListControl& unit, TextControl& field)
{
    binding.of(record) = unitFieldValue(*binding.kind, field.text, static_cast<UnitIndex>(unit.listIndex));
    showUnitField(binding, record, unit, field);
}

// Every list takes the unit of its global quantity.
template <typename Record, std::size_t N>
void takeGlobalUnits(const std::array<FieldBinding<Record>, N>& bindings, std::array<ListControl, N>& lists)
{
    for (std::size_t i = 0; i < N; ++i)
        lists[i].listIndex = globalUnits()[bindings[i].setup];
}

} // namespace kestrova
