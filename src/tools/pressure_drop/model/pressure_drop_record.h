#pragma once
// The pressure drop tool's record of 31 singles in internal units, and the
// table that binds each txtData field to a record field, its unit list and
// masks, and the global quantity its list takes.

#include "forms/model/unit_fields.h"
#include "numeric/single.h"
#include "tools/pressure_drop/model/pressure_drop_controls.h"

#include <array>

namespace kestrova {

struct PressureDropData {
    Single LiquidFlow, GasFlow, LiquidDensity, GasDensity, VaporDensity, ExitDensity;
    Single VaporViscosity, LiquidViscosity, SurfaceTension, InletPressure, ExitPressure;
    Single SonicVelocity, InletTemperature, ExitTemperature, Roughness, Diameter, PipeLength;
    Single ElevationChange, Velocity, ExitVelocity, ConduitWidth, ConduitHeight, PressureDrop;
    Single Compressibility, MolecularWeight, HeatCapacityRatio;
    Single Unused26, Unused27; // carried in the file as they stand
    Single AverageDensity, AverageViscosity, AverageVelocity;

    static constexpr int kFieldCount = 31;
    // The fields in file order.
    std::array<Single*, kFieldCount> fields();
};

inline constexpr int kPressureDropFields = pressure_drop::kFields; // txtData(0) to txtData(45)

// The binding of txtData(i) and cboUnits(i). The conduit width and height
// take the length unit, though their list is the diameter list: only the
// index passes.
const FieldBinding<PressureDropData>& pressureDropField(int index);

} // namespace kestrova
