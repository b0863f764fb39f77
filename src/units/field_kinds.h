#pragma once
// The field kinds that the document tools share: a unit list, its
// conversions and the masks by unit index. A tool with masks of its own for
// a quantity defines that kind itself.

#include "units/unit_field.h"

namespace kestrova::field_kinds {

extern const FieldKind flow;
extern const FieldKind density; // liquid densities
extern const FieldKind viscosity;
extern const FieldKind diameter;
extern const FieldKind roughness;
extern const FieldKind length;
extern const FieldKind velocity;
extern const FieldKind pressure;
extern const FieldKind temperature;
extern const FieldKind surfaceTension;

} // namespace kestrova::field_kinds
