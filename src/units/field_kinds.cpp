#include "units/field_kinds.h"

#include "units/basConversions.h"

namespace kestrova::field_kinds {

const FieldKind flow{"Flow Rate", FlowToUnit, FlowFromUnit,
                     {"##,##0.00", "##,##0.0000", "##,##0.0000", "##,##0.00", "##,##0.000", "##,##0.0000"}};
const FieldKind density{"Density", DensityToUnit, DensityFromUnit, {"##,##0.0000", "##,##0.0000", "##,##0.0", "##,##0.000"}};
const FieldKind viscosity{"Viscosity", ViscosityToUnit, ViscosityFromUnit, sameMask("0.0000E+00")};
const FieldKind diameter{"Diameter", DiameterToUnit, DiameterFromUnit,
                         {"##,##0.0000", "##,##0.0000", "##,##0.0000", "##,##0.00", "##,##0.00", "##,##0.00000"}};
const FieldKind roughness{"Roughness", RoughnessToUnit, RoughnessFromUnit, {"0.00000", "0.000000", "0.0000", "0.00000"}};
const FieldKind length{"Length", LengthToUnit, LengthFromUnit, sameMask("##,##0.00")};
const FieldKind velocity{"Velocity", VelocityToUnit, VelocityFromUnit, sameMask("0.000")};
const FieldKind pressure{"Pressure", PressureToUnit, PressureFromUnit, sameMask("##,##0.00")};
const FieldKind temperature{"Temperature", TemperatureToUnit, TemperatureFromUnit, sameMask("##,##0.00")};
const FieldKind surfaceTension{"Surface Tension", SurfaceTensionToUnit, SurfaceTensionFromUnit,
                               {"##0.00", "0.000000", "0.00000"}};

} // namespace kestrova::field_kinds
