#pragma once
// The pressure drop tool's record of 31 singles in internal units, and the
// table that ties each txtData field to a record field, a unit list and masks.

#include "forms/store/global_units.h"
#include "units/unit_field.h"
#include "numeric/single.h"

#include <array>
#include <string>

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

struct FieldBinding {
    const FieldKind* kind;
    Single PressureDropData::*member;
};

inline constexpr int kPressureDropFields = 46; // txtData(0) to txtData(45)

// The binding of txtData(i) and cboUnits(i).
const FieldBinding& pressureDropField(int index);

// The global quantity whose unit cboUnits(i) takes at each activation. The
// conduit width and height take the length unit, though their list is the
// diameter list: only the index passes.
Quantity pressureDropUnitSetup(int index);

} // namespace kestrova
