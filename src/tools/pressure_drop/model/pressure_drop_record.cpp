#include "tools/pressure_drop/model/pressure_drop_record.h"

#include "units/field_kinds.h"
#include "units/basConversions.h"

namespace kestrova {

std::array<Single*, PressureDropData::kFieldCount> PressureDropData::fields()
{
    return {&LiquidFlow,      &GasFlow,          &LiquidDensity,    &GasDensity,       &VaporDensity,
            &ExitDensity,     &VaporViscosity,   &LiquidViscosity,  &SurfaceTension,   &InletPressure,
            &ExitPressure,    &SonicVelocity,    &InletTemperature, &ExitTemperature,  &Roughness,
            &Diameter,        &PipeLength,       &ElevationChange,  &Velocity,         &ExitVelocity,
            &ConduitWidth,    &ConduitHeight,    &PressureDrop,     &Compressibility,  &MolecularWeight,
            &HeatCapacityRatio, &Unused26,       &Unused27,         &AverageDensity,   &AverageViscosity,
            &AverageVelocity};
}

namespace {

using namespace field_kinds;

// The pressure drop tool's own masks for a pressure drop.
const FieldKind kPressureDrop{"Pressure Drop", PressureToUnit, PressureFromUnit,
                              {"##,##0.00", "##,##0.00", "##,##0.000", "##,##0.000", "##,##0.000", "##,##0.00",
                               "##,##0.000", "##,##0.00"}};

using D = PressureDropData;

const std::array<FieldBinding, kPressureDropFields> kFields{{
    {&flow, &D::LiquidFlow},          // 0
    {&density, &D::LiquidDensity},    // 1
    {&viscosity, &D::LiquidViscosity}, // 2
    {&diameter, &D::ConduitWidth},    // 3
    {&diameter, &D::ConduitHeight},   // 4
    {&diameter, &D::Diameter},        // 5
    {&roughness, &D::Roughness},      // 6
    {&length, &D::ElevationChange},   // 7
    {&length, &D::PipeLength},        // 8
    {&velocity, &D::Velocity},        // 9
    {&kPressureDrop, &D::PressureDrop}, // 10
    {&flow, &D::GasFlow},             // 11
    {&pressure, &D::InletPressure},   // 12
    {&temperature, &D::InletTemperature}, // 13
    {&viscosity, &D::VaporViscosity}, // 14
    {&diameter, &D::Diameter},        // 15
    {&roughness, &D::Roughness},      // 16
    {&length, &D::PipeLength},        // 17
    {&velocity, &D::Velocity},        // 18
    {&velocity, &D::ExitVelocity},    // 19
    {&density, &D::GasDensity},       // 20
    {&density, &D::ExitDensity},      // 21
    {&velocity, &D::SonicVelocity},   // 22
    {&temperature, &D::ExitTemperature}, // 23
    {&kPressureDrop, &D::PressureDrop}, // 24
    {&pressure, &D::ExitPressure},    // 25
    {&viscosity, &D::LiquidViscosity}, // 26
    {&density, &D::LiquidDensity},    // 27
    {&flow, &D::LiquidFlow},          // 28
    {&surfaceTension, &D::SurfaceTension}, // 29
    {&flow, &D::GasFlow},             // 30
    {&density, &D::VaporDensity},     // 31
    {&viscosity, &D::VaporViscosity}, // 32
    {&length, &D::PipeLength},        // 33
    {&roughness, &D::Roughness},      // 34
    {&diameter, &D::Diameter},        // 35
    {&velocity, &D::Velocity},        // 36
    {&velocity, &D::ExitVelocity},    // 37
    {&density, &D::AverageDensity},   // 38
    {&viscosity, &D::AverageViscosity}, // 39
    {&velocity, &D::AverageVelocity}, // 40
    {&kPressureDrop, &D::PressureDrop}, // 41
    {&diameter, &D::ConduitHeight},   // 42
    {&diameter, &D::ConduitWidth},    // 43
    {&temperature, &D::InletTemperature}, // 44
    {&temperature, &D::InletTemperature}, // 45
}};

using Q = Quantity;
constexpr std::array<Quantity, kPressureDropFields> kUnitSetup{
    Q::Flow,     Q::Density,  Q::Viscosity,      Q::Length,   Q::Length,       Q::Diameter,     // 0-5
    Q::Roughness, Q::Length,  Q::Length,         Q::Velocity, Q::PressureDrop, Q::Flow,         // 6-11
    Q::Pressure, Q::Temperature, Q::Viscosity,   Q::Diameter, Q::Roughness,    Q::Length,       // 12-17
    Q::Velocity, Q::Velocity, Q::Density,        Q::Density,  Q::Velocity,     Q::Temperature,  // 18-23
    Q::PressureDrop, Q::Pressure, Q::Viscosity,  Q::Density,  Q::Flow,         Q::SurfaceTension, // 24-29
    Q::Flow,     Q::Density,  Q::Viscosity,      Q::Length,   Q::Roughness,    Q::Diameter,     // 30-35
    Q::Velocity, Q::Velocity, Q::Density,        Q::Viscosity, Q::Velocity,    Q::PressureDrop, // 36-41
    Q::Length,   Q::Length,   Q::Temperature,    Q::Temperature};                                 // 42-45

} // namespace

Quantity pressureDropUnitSetup(int index)
{
    return kUnitSetup.at(static_cast<size_t>(index));
}

const FieldBinding& pressureDropField(int index)
{
    return kFields.at(static_cast<size_t>(index));
}

} // namespace kestrova
