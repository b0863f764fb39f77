#pragma once
// The hydraulic correlations: single-phase friction, compressible gas flow,
// two-phase pressure drop and the flow regime maps. Stateless functions in
// the fixed internal units (lb/h, lb/ft3, inches for diameters, feet for
// lengths, ft/s, psi, °F, centipoise). A numeric fault leaves a function at
// once as a NumericFault, with no partial result.

#include "hydraulics/user_feedback.h"
#include "numeric/single.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kestrova {

// Cross-section kind: 1 circular pipe, 2 rectangular duct, 3 annulus.
using CrossSectionKind = std::int16_t;

inline constexpr double kPi = 3.1415926536;

// --- Single-phase friction ---------------------------------------------------

Single ReynoldsNumber(Single density, Single diameter, Single velocity, Single viscosity,
                      CrossSectionKind kind, Single dimension1, Single dimension2);
double ReynoldsFromMassFlow(Single diameter, Single massFlow, Single viscosity);
// Darcy friction factor.
Single FrictionFactor(Single reynolds, Single relativeRoughness, CrossSectionKind kind,
                      Single aspectRatio, Single diameterRatio);
Single FlowVelocity(Single massFlow, Single density, Single diameter);
// Head losses in feet of the flowing fluid.
Single StraightRunDrop(Single frictionFactor, Single length, Single diameter, Single velocity);
Single MinorLossDrop(Single resistanceCoefficient, Single velocity);

// --- Compressible flow -------------------------------------------------------

struct GasLineInlet {
    Single massFlow;          // lb/h
    Single flowArea;          // ft2
    Single temperature;       // °F
    Single pressure;          // psia
    Single compressibility;   // Z
    Single molecularWeight;   // lb/lbmol
    Single heatCapacityRatio; // k
    Single pipeResistance;    // f L / D
    Single fittingResistance; // sum of K
};

// Outputs are written in place, as the solvers do: what a run does not reach
// keeps the value it had.
struct GasLineOutlet {
    Single sonicVelocity;     // ft/s
    Single outletPressure;    // psia
    Single outletTemperature; // °F (adiabatic only)
    Single inletMach;
    Single outletMach;
    std::string flowType;
};

inline constexpr const char* kFlowSubsonic = "Subsonic";
inline constexpr const char* kFlowChokedAtInlet = "Choked Flow at Inlet";
inline constexpr const char* kFlowChokedAtOutlet = "Choked Flow at Outlet";

void AdiabaticGasFlow(const GasLineInlet& in, GasLineOutlet& out, UserFeedback& user);
void IsothermalGasFlow(const GasLineInlet& in, GasLineOutlet& out, UserFeedback& user);

// --- Two-phase flow ----------------------------------------------------------

struct TwoPhaseLine {
    std::string orientation; // "Horizontal", "Vertical Up" or "Vertical Down"
    Single diameter;         // in
    Single roughness;        // ft
    Single gasFlow;          // lb/h
    Single liquidFlow;       // lb/h
    Single gasDensity;       // lb/ft3
    Single liquidDensity;    // lb/ft3
    Single gasViscosity;     // cP
    Single liquidViscosity;  // cP
    Single surfaceTension;   // N/m
    Single length;           // ft
};

struct TwoPhaseResult {
    Single liquidReynolds;
    Single gasReynolds;
    Single homogeneousDensity;   // lb/ft3
    Single homogeneousViscosity; // Pa s
    Single liquidFriction;
    Single gasFriction;
    std::string correlation;
    std::string regime;
    std::optional<Single> pressureDrop; // psi; not written when no correlation applies
    std::string mapCoordinates;         // the map coordinates line of FlowRegimeMap
};

void TwoPhaseDrop(const TwoPhaseLine& line, TwoPhaseResult& result);

struct RegimeMapReading {
    std::string regime;
    std::string mapCoordinates; // "Flow Regime Map:  X = ... , Y = ..."
};

// The regime at map coordinates X and Y, or a range text ("X>10000", "X<0.1",
// "Y>100000", "Y<100"), or "N/A" for an orientation without a map.
std::string RegimeAt(const std::string& orientation, Single X, Single Y);

// liquidFlux and gasFlux (lb/(ft2 s)) are multiplied in place by 3600.
RegimeMapReading FlowRegimeMap(const std::string& orientation, Single& liquidFlux, Single& gasFlux,
                               Single liquidDensity, Single gasDensity, Single liquidViscosity,
                               Single surfaceTension);

} // namespace kestrova
