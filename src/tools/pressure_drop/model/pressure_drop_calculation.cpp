// CalculateResults: the liquid, gas and two-phase paths of the pressure drop
// tool, with the failure handler that they share. Every stored step rounds to
// single and checks its value; a numeric fault abandons the run.

#include "tools/pressure_drop/model/pressure_drop_model.h"

#include "forms/model/user_interface.h"
#include "hydraulics/basTransportFunctions.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

using namespace pressure_drop;
using checked::Div;
using checked::Pow;

namespace {

constexpr double kGasConstantPsia = 10.73; // psia ft3 / (lbmol °R)
constexpr double kRankine = 459.67;

// The Reynolds and friction arguments of a cross section: kind, the two
// dimensions handed to ReynoldsNumber, aspect ratio and diameter ratio.
struct SectionArguments {
    CrossSectionKind kind;
    Single p, q, aspectRatio, diameterRatio;
};

SectionArguments sectionArguments(int section, Single width, Single height)
{
    switch (section) {
    case 1: return {2, height, width, Single(Div(height, width)), 1.0};
    case 2: return {3, height, width, 1.0, Single(Div(width, height))};
    default: return {1, 1.0, 1.0, 1.0, 1.0};
    }
}

// Velocity through a cross section, and the diameter the section stands for.
// Circular keeps the diameter; the others overwrite it with their hydraulic
// diameter. The flow area in ft2 comes back for the gas line.
struct SectionFlow {
    Single velocity;
    Single area;
};

SectionFlow flowThroughSection(int section, Single flow, Single density, Single& diameter, Single a, Single b)
{
    switch (section) {
    case 1: {
        diameter = Div(2 * b * a, b + a);
        const Single velocity = Div(Div(Div(Div(flow, density), 3600), a), b) * 144;
        return {velocity, b * a / 144};
    }
    case 2: {
        diameter = (1 - Div(a, b)) * b;
        const double annulus = (Pow(b, 2) - Pow(a, 2)) * (kPi / 4);
        const Single velocity = Div(Div(flow, density) / 3600, annulus) * 144;
        return {velocity, annulus / 144};
    }
    default: {
        const Single velocity = FlowVelocity(flow, density, diameter);
        return {velocity, Pow(diameter / 12, 2) * (kPi / 4)};
    }
    }
}

// A circular section's velocity divides the flow by the density first:
// without a density (every fresh form) that division ends the run.
bool velocityDividesByZeroDensity(int section, Single density)
{
    return section != 1 && section != 2 && density == 0;
}

const char* regimeWord(Single re) { return re >= 2100 ? "Turbulent" : "Laminar"; }

} // namespace

void PressureDropModel::CalculateResults()
{
    failed = false;
    try {
        FaultScope scope("CalculateResults");
        switch (tab) {
        case LiquidTab: calculateLiquid(); break;
        case GasTab: calculateGas(); break;
        default: calculateTwoPhase(); break;
        }
    } catch (const NumericFault&) {
        failureHandler();
    }
}

void PressureDropModel::failureHandler()
{
    failed = true;
    for (int frame : {GasResultsFrame, TwoPhaseResultsFrame}) {
        Frame1[static_cast<size_t>(frame)].red = false;
        Frame1[static_cast<size_t>(frame)].caption = "Calculated Results";
    }
    record.PressureDrop = 0.0;
    for (int field : {TwoPhasePressureDrop, GasPressureDrop, LiquidPressureDrop})
        showField(field);
}

Single PressureDropModel::totalK(int k1Field, int k2Field, int k3Field, Single re, Single diameter) const
{
    const auto value = [this](int field) { return fieldSingle(txtDisplay[static_cast<size_t>(field)].text); };
    const Single laminarPart = Div(value(k1Field), re);
    const Single withTurbulent = laminarPart + value(k2Field) * (1 + Div(1, diameter));
    return withTurbulent + value(k3Field);
}

void PressureDropModel::calculateLiquid()
{
    PressureDropData& r = record;
    const int section = crossSectionLiquid;
    const Single rho = r.LiquidDensity;
    if (velocityDividesByZeroDensity(section, rho)) {
        failureHandler(); // as the fault would, without raising it
        return;
    }
    const SectionFlow flow = flowThroughSection(section, r.LiquidFlow, rho, r.Diameter, r.ConduitWidth, r.ConduitHeight);
    r.Velocity = flow.velocity;
    showField(LiquidVelocity);

    const SectionArguments s = sectionArguments(section, r.ConduitWidth, r.ConduitHeight);
    const Single viscosity = r.LiquidViscosity * 1000;
    const Single re = ReynoldsNumber(rho, r.Diameter, r.Velocity, viscosity, s.kind, s.p, s.q);
    txtDisplay[LiquidReynolds].text = formatMask(re, "#,###,###");
    if (re >= 2100 || re > 0)
        txtDisplay[LiquidRegime].text = regimeWord(re);
    else if (re == 0)
        txtDisplay[LiquidRegime].text.clear();

    const Single roughness = Div(r.Roughness * 12, r.Diameter);
    const Single f = FrictionFactor(re, roughness, s.kind, s.aspectRatio, s.diameterRatio);
    txtDisplay[LiquidFriction].text = formatMask(f, "0.00000");
    const Single straight = StraightRunDrop(f, r.PipeLength, r.Diameter, r.Velocity);
    const Single K = totalK(LiquidK1, LiquidK2, LiquidK3, re, r.Diameter);
    const Single fittings = MinorLossDrop(K, r.Velocity);
    r.PressureDrop = (fittings + straight) * rho / 144;
    r.PressureDrop = r.PressureDrop + r.ElevationChange * rho / 144;
    showField(LiquidPressureDrop);
}

void PressureDropModel::calculateGas()
{
    PressureDropData& r = record;
    const Single T1 = r.InletTemperature;
    const Single Z = r.Compressibility;
    const Single MW = r.MolecularWeight;
    r.GasDensity = Z != 0 ? Div(MW * r.InletPressure, (T1 + kRankine) * (Z * kGasConstantPsia)) : 0.0;
    showField(InletDensity);

    const int section = crossSectionGas - 3;
    if (velocityDividesByZeroDensity(section, r.GasDensity)) {
        failureHandler(); // as the fault would, without raising it
        return;
    }
    const SectionFlow flow = flowThroughSection(section, r.GasFlow, r.GasDensity, r.Diameter, r.ConduitWidth, r.ConduitHeight);
    r.Velocity = flow.velocity;
    const Single area = flow.area;
    showField(InletVelocity);

    const Single roughness = Div(r.Roughness * 12, r.Diameter);
    const SectionArguments s = sectionArguments(section, r.ConduitWidth, r.ConduitHeight);
    const Single re = ReynoldsNumber(r.GasDensity, r.Diameter, r.Velocity, r.VaporViscosity * 1000, s.kind, s.p, s.q);
    txtDisplay[GasReynolds].text = formatMask(re, "#,###,###");
    const Single f = FrictionFactor(re, roughness, s.kind, s.aspectRatio, s.diameterRatio);
    txtDisplay[GasFriction].text = formatMask(f, "0.00000");
    const Single K = totalK(GasK1, GasK2, GasK3, re, r.Diameter);
    const Single pipeResistance = Div(f * r.PipeLength, r.Diameter / 12);

    const GasLineInlet inlet{r.GasFlow, area, T1, r.InletPressure, Z, MW, r.HeatCapacityRatio, pipeResistance, K};
    GasLineOutlet outlet{r.SonicVelocity, r.ExitPressure, r.ExitTemperature, 0.0, 0.0, ""};
    // The solvers write their outputs in place: what a fault leaves behind stays.
    const auto keepOutlet = [&] {
        r.SonicVelocity = outlet.sonicVelocity;
        r.ExitPressure = outlet.outletPressure;
        r.ExitTemperature = outlet.outletTemperature;
    };
    try {
        if (calcType == 0) {
            AdiabaticGasFlow(inlet, outlet, ui_);
            keepOutlet();
        } else {
            IsothermalGasFlow(inlet, outlet, ui_);
            keepOutlet();
            r.ExitTemperature = r.InletTemperature;
        }
    } catch (const NumericFault&) {
        keepOutlet();
        throw;
    }
    showField(ExitTemperature);

    FrameControl& results = Frame1[GasResultsFrame];
    const bool subsonic = outlet.flowType == kFlowSubsonic;
    results.bold = !subsonic;
    results.red = !subsonic;
    results.caption = "Calculated Results, Flow Type = " + outlet.flowType;
    txtDisplay[InletMach].text = formatMask(outlet.inletMach, "#0.0000");
    txtDisplay[OutletMach].text = formatMask(outlet.outletMach, "#0.0000");

    r.ExitDensity = Div(MW * r.ExitPressure, (T1 + kRankine) * (Z * kGasConstantPsia));
    r.ExitVelocity = Div(r.GasFlow, r.ExitDensity * 3600 * area);
    for (int field : {ExitVelocity, ExitDensity, SonicVelocity, ExitPressure})
        showField(field);
    r.PressureDrop = r.InletPressure - r.ExitPressure;
    showField(GasPressureDrop);
}

void PressureDropModel::calculateTwoPhase()
{
    static constexpr const char* kOrientationTags[] = {"Horizontal", "Vertical Up", "Vertical Down"};
    PressureDropData& r = record;
    const TwoPhaseLine line{kOrientationTags[orientation], r.Diameter, r.Roughness, r.GasFlow, r.LiquidFlow,
                            r.VaporDensity, r.LiquidDensity, r.VaporViscosity * 1000, r.LiquidViscosity * 1000,
                            r.SurfaceTension, r.PipeLength};
    TwoPhaseResult out;
    TwoPhaseDrop(line, out);
    if (out.pressureDrop)
        r.PressureDrop = *out.pressureDrop;
    lastMapCoordinates = out.mapCoordinates;

    FrameControl& results = Frame1[TwoPhaseResultsFrame];
    results.bold = false;
    if (out.correlation == "Friedel" || out.correlation == "Chisholm-Baroczy" || out.correlation == "Lockhart-Martinelli") {
        results.red = false;
        results.caption = "Calculated Results:  " + out.correlation + " Correlation";
    } else {
        results.red = true;
        results.bold = true;
        results.caption = "Calculated Results:  Vertical Methods not Available for this System";
    }

    r.Velocity = FlowVelocity(r.LiquidFlow, r.LiquidDensity, r.Diameter);
    showField(TwoPhaseLiquidVelocity);
    const Single liquidRe = ReynoldsNumber(r.LiquidDensity, r.Diameter, r.Velocity, r.LiquidViscosity * 1000, 1, 1.0, 1.0);
    txtDisplay[TwoPhaseLiquidReynolds].text = formatMask(liquidRe, "###,###,###");
    r.ExitVelocity = FlowVelocity(r.GasFlow, r.VaporDensity, r.Diameter);
    showField(TwoPhaseVaporVelocity);
    const Single vapourRe = ReynoldsNumber(r.VaporDensity, r.Diameter, r.ExitVelocity, r.VaporViscosity * 1000, 1, 1.0, 1.0);
    txtDisplay[TwoPhaseVaporReynolds].text = formatMask(vapourRe, "###,###,###");
    // These two factors are shown nowhere, but a phase without flow ends the run here.
    const Single roughnessRatio = Div(r.Roughness, r.Diameter);
    FrictionFactor(liquidRe, roughnessRatio, 1, 1.0, 1.0);
    FrictionFactor(vapourRe, roughnessRatio, 1, 1.0, 1.0);

    txtDisplay[TwoPhaseLiquidRegime].text = liquidRe >= 2100 ? "Turbulent" : liquidRe > 0 ? "Laminar" : "";
    // Below 2100 the vapour's word follows the liquid's Reynolds number.
    txtDisplay[TwoPhaseVaporRegime].text = vapourRe >= 2100 ? "Turbulent" : liquidRe > 0 ? "Laminar" : "";

    r.AverageDensity = out.homogeneousDensity;
    showField(AverageDensity);
    r.AverageViscosity = out.homogeneousViscosity;
    showField(AverageViscosity);
    r.AverageVelocity = Div(Div(r.LiquidFlow + r.GasFlow, r.AverageDensity) / 3600, Pow(r.Diameter / 12, 2) * (kPi / 4));
    showField(AverageVelocity);
    txtDisplay[TwoPhaseRegime].text = out.regime;
    showField(TwoPhasePressureDrop);
}

} // namespace kestrova
