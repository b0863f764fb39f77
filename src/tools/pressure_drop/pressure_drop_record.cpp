#include "tools/pressure_drop/pressure_drop_record.h"

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

const FieldKind kFlow{"Flow Rate", FlowToUnit, FlowFromUnit,
                      {"##,##0.00", "##,##0.0000", "##,##0.0000", "##,##0.00", "##,##0.000", "##,##0.0000"}};
const FieldKind kDensity{"Density", DensityToUnit, DensityFromUnit,
                         {"##,##0.0000", "##,##0.0000", "##,##0.0", "##,##0.000"}};
const FieldKind kViscosity{"Viscosity", ViscosityToUnit, ViscosityFromUnit,
                           {"0.0000E+00", "0.0000E+00", "0.0000E+00", "0.0000E+00"}};
const FieldKind kDiameter{"Diameter", DiameterToUnit, DiameterFromUnit,
                          {"##,##0.0000", "##,##0.0000", "##,##0.0000", "##,##0.00", "##,##0.00", "##,##0.00000"}};
const FieldKind kRoughness{"Roughness", RoughnessToUnit, RoughnessFromUnit,
                           {"0.00000", "0.000000", "0.0000", "0.00000"}};
const FieldKind kLength{"Length", LengthToUnit, LengthFromUnit,
                        {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00"}};
const FieldKind kVelocity{"Velocity", VelocityToUnit, VelocityFromUnit,
                          {"0.000", "0.000", "0.000", "0.000"}};
const FieldKind kPressureDrop{"Pressure Drop", PressureToUnit, PressureFromUnit,
                              {"##,##0.00", "##,##0.00", "##,##0.000", "##,##0.000", "##,##0.000", "##,##0.00",
                               "##,##0.000", "##,##0.00"}};
const FieldKind kPressure{"Pressure", PressureToUnit, PressureFromUnit,
                          {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00",
                           "##,##0.00"}};
const FieldKind kTemperature{"Temperature", TemperatureToUnit, TemperatureFromUnit,
                             {"##,##0.00", "##,##0.00", "##,##0.00", "##,##0.00"}};
const FieldKind kSurfaceTension{"Surface Tension", SurfaceTensionToUnit,
                                SurfaceTensionFromUnit, {"##0.00", "0.000000", "0.00000"}};

using D = PressureDropData;

const std::array<FieldBinding, kPressureDropFields> kFields{{
    {&kFlow, &D::LiquidFlow},          // 0
    {&kDensity, &D::LiquidDensity},    // 1
    {&kViscosity, &D::LiquidViscosity}, // 2
    {&kDiameter, &D::ConduitWidth},    // 3
    {&kDiameter, &D::ConduitHeight},   // 4
    {&kDiameter, &D::Diameter},        // 5
    {&kRoughness, &D::Roughness},      // 6
    {&kLength, &D::ElevationChange},   // 7
    {&kLength, &D::PipeLength},        // 8
    {&kVelocity, &D::Velocity},        // 9
    {&kPressureDrop, &D::PressureDrop}, // 10
    {&kFlow, &D::GasFlow},             // 11
    {&kPressure, &D::InletPressure},   // 12
    {&kTemperature, &D::InletTemperature}, // 13
    {&kViscosity, &D::VaporViscosity}, // 14
    {&kDiameter, &D::Diameter},        // 15
    {&kRoughness, &D::Roughness},      // 16
    {&kLength, &D::PipeLength},        // 17
    {&kVelocity, &D::Velocity},        // 18
    {&kVelocity, &D::ExitVelocity},    // 19
    {&kDensity, &D::GasDensity},       // 20
    {&kDensity, &D::ExitDensity},      // 21
    {&kVelocity, &D::SonicVelocity},   // 22
    {&kTemperature, &D::ExitTemperature}, // 23
    {&kPressureDrop, &D::PressureDrop}, // 24
    {&kPressure, &D::ExitPressure},    // 25
    {&kViscosity, &D::LiquidViscosity}, // 26
    {&kDensity, &D::LiquidDensity},    // 27
    {&kFlow, &D::LiquidFlow},          // 28
    {&kSurfaceTension, &D::SurfaceTension}, // 29
    {&kFlow, &D::GasFlow},             // 30
    {&kDensity, &D::VaporDensity},     // 31
    {&kViscosity, &D::VaporViscosity}, // 32
    {&kLength, &D::PipeLength},        // 33
    {&kRoughness, &D::Roughness},      // 34
    {&kDiameter, &D::Diameter},        // 35
    {&kVelocity, &D::Velocity},        // 36
    {&kVelocity, &D::ExitVelocity},    // 37
    {&kDensity, &D::AverageDensity},   // 38
    {&kViscosity, &D::AverageViscosity}, // 39
    {&kVelocity, &D::AverageVelocity}, // 40
    {&kPressureDrop, &D::PressureDrop}, // 41
    {&kDiameter, &D::ConduitHeight},   // 42
    {&kDiameter, &D::ConduitWidth},    // 43
    {&kTemperature, &D::InletTemperature}, // 44
    {&kTemperature, &D::InletTemperature}, // 45
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
