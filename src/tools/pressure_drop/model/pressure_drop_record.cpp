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
using namespace pressure_drop;
using D = PressureDropData;
using Q = Quantity;

// The pressure drop tool's own masks for a pressure drop.
const FieldKind kPressureDrop{"Pressure Drop", PressureToUnit, PressureFromUnit,
                              {"##,##0.00", "##,##0.00", "##,##0.000", "##,##0.000", "##,##0.000", "##,##0.00",
                               "##,##0.000", "##,##0.00"}};

std::pair<int, FieldBinding<D>> bind(int field, const FieldKind* kind, Quantity setup, Single D::*member)
{
    return {field, {kind, setup, member}};
}

std::array<FieldBinding<D>, kPressureDropFields> makeTable()
{
    const std::pair<int, FieldBinding<D>> rows[] = {
        bind(LiquidFlow, &flow, Q::Flow, &D::LiquidFlow),
        bind(LiquidDensity, &density, Q::Density, &D::LiquidDensity),
        bind(LiquidViscosity, &viscosity, Q::Viscosity, &D::LiquidViscosity),
        bind(LiquidConduitWidth, &diameter, Q::Length, &D::ConduitWidth),
        bind(LiquidConduitHeight, &diameter, Q::Length, &D::ConduitHeight),
        bind(LiquidDiameter, &diameter, Q::Diameter, &D::Diameter),
        bind(LiquidRoughness, &roughness, Q::Roughness, &D::Roughness),
        bind(ElevationChange, &length, Q::Length, &D::ElevationChange),
        bind(LiquidLength, &length, Q::Length, &D::PipeLength),
        bind(LiquidVelocity, &velocity, Q::Velocity, &D::Velocity),
        bind(LiquidPressureDrop, &kPressureDrop, Q::PressureDrop, &D::PressureDrop),
        bind(GasFlow, &flow, Q::Flow, &D::GasFlow),
        bind(InletPressure, &pressure, Q::Pressure, &D::InletPressure),
        bind(InletTemperature, &temperature, Q::Temperature, &D::InletTemperature),
        bind(GasViscosity, &viscosity, Q::Viscosity, &D::VaporViscosity),
        bind(GasDiameter, &diameter, Q::Diameter, &D::Diameter),
        bind(GasRoughness, &roughness, Q::Roughness, &D::Roughness),
        bind(GasLength, &length, Q::Length, &D::PipeLength),
        bind(InletVelocity, &velocity, Q::Velocity, &D::Velocity),
        bind(ExitVelocity, &velocity, Q::Velocity, &D::ExitVelocity),
        bind(InletDensity, &density, Q::Density, &D::GasDensity),
        bind(ExitDensity, &density, Q::Density, &D::ExitDensity),
        bind(SonicVelocity, &velocity, Q::Velocity, &D::SonicVelocity),
        bind(ExitTemperature, &temperature, Q::Temperature, &D::ExitTemperature),
        bind(GasPressureDrop, &kPressureDrop, Q::PressureDrop, &D::PressureDrop),
        bind(ExitPressure, &pressure, Q::Pressure, &D::ExitPressure),
        bind(TwoPhaseLiquidViscosity, &viscosity, Q::Viscosity, &D::LiquidViscosity),
        bind(TwoPhaseLiquidDensity, &density, Q::Density, &D::LiquidDensity),
        bind(TwoPhaseLiquidFlow, &flow, Q::Flow, &D::LiquidFlow),
        bind(SurfaceTension, &surfaceTension, Q::SurfaceTension, &D::SurfaceTension),
        bind(TwoPhaseVaporFlow, &flow, Q::Flow, &D::GasFlow),
        bind(TwoPhaseVaporDensity, &density, Q::Density, &D::VaporDensity),
        bind(TwoPhaseVaporViscosity, &viscosity, Q::Viscosity, &D::VaporViscosity),
        bind(TwoPhaseLength, &length, Q::Length, &D::PipeLength),
        bind(TwoPhaseRoughness, &roughness, Q::Roughness, &D::Roughness),
        bind(TwoPhaseDiameter, &diameter, Q::Diameter, &D::Diameter),
        bind(TwoPhaseLiquidVelocity, &velocity, Q::Velocity, &D::Velocity),
        bind(TwoPhaseVaporVelocity, &velocity, Q::Velocity, &D::ExitVelocity),
        bind(AverageDensity, &density, Q::Density, &D::AverageDensity),
        bind(AverageViscosity, &viscosity, Q::Viscosity, &D::AverageViscosity),
        bind(AverageVelocity, &velocity, Q::Velocity, &D::AverageVelocity),
        bind(TwoPhasePressureDrop, &kPressureDrop, Q::PressureDrop, &D::PressureDrop),
        bind(GasConduitHeight, &diameter, Q::Length, &D::ConduitHeight),
        bind(GasConduitWidth, &diameter, Q::Length, &D::ConduitWidth),
        bind(LiquidTemperature, &temperature, Q::Temperature, &D::InletTemperature),
        bind(TwoPhaseTemperature, &temperature, Q::Temperature, &D::InletTemperature),
    };
    std::array<FieldBinding<D>, kPressureDropFields> table{};
    for (const auto& [field, binding] : rows)
        table[static_cast<size_t>(field)] = binding;
    return table;
}

const std::array<FieldBinding<D>, kPressureDropFields> kBindings = makeTable();

} // namespace

const FieldBinding<PressureDropData>& pressureDropField(int index)
{
    return kBindings.at(static_cast<size_t>(index));
}

} // namespace kestrova
