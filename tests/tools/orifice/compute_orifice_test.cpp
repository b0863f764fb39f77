// The orifice calculation: each unknown solved back from the others, the
// flow checked against the orifice equation by hand, and the rules of its
// warning texts and failures.

#include "hydraulics/basTransportFunctions.h"
#include "numeric/display_mask.h"
#include "numeric/field_text.h"
#include "tools/orifice/calc/compute_orifice.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

using namespace kestrova;

namespace {

struct RecordingDisplay : OrificeDisplay {
    void showDisplay(int index, const std::string& text) override
    {
        displays[index] = text;
        ++shows[index];
    }
    void refresh(int field) override { refreshed.push_back(field); }
    void showErrorLiquid(const std::string& text) override { errorLiquid = text; }
    void showErrorGas(const std::string& text) override { errorGas = text; }
    std::map<int, std::string> displays;
    std::map<int, int> shows; // how often each display was written
    std::vector<int> refreshed;
    std::string errorLiquid = "(untouched)", errorGas = "(untouched)";
};

// Water through a beta 0.5 plate in 4 in Sch 40 pipe, carbon steel, at its reference temperature.
OrificeData waterCase()
{
    OrificeData r{};
    r.pipeID = 4.026;
    r.orificeDiameter = 2.013;
    r.liquidDensity = 62.4;
    r.liquidViscosity = 0.001; // 1 cP
    r.differentialPressure = 10;
    r.temperature = 60;
    r.referenceTemperature = 60;
    r.elementExpansion = 6.7e-6;
    r.pipeExpansion = 6.7e-6;
    return r;
}

// Air at 100 psia through the same plate.
OrificeData airCase()
{
    OrificeData r = waterCase();
    r.gasDensity = 0.5;
    r.gasViscosity = 0.000018;
    r.inletPressure = 100;
    r.heatCapacityRatio = 1.4;
    r.differentialPressure = 5;
    return r;
}

} // namespace

TEST(ComputeOrifice, LiquidFlowAgreesWithTheOrificeEquation)
{
    OrificeData r = waterCase();
    RecordingDisplay display;
    ComputeOrifice(r, OrificeFluid::Liquid, OrificeUnknown::Flow, 0, display);
    EXPECT_EQ(display.displays[0], "0.5000");
    const double C = parseFieldNumber(display.displays[1]);
    EXPECT_GT(C, 0.60);
    EXPECT_LT(C, 0.61); // Reader-Harris/Gallagher for beta 0.5 at Re near 10^5 to 10^6
    // m = C A sqrt(2 rho dP g / (1 - beta^4)) in lb/s, times 3600.
    const double A = std::pow(2.013 / 12, 2) * 3.1415926536 / 4;
    const double m = C * A * std::sqrt(2 * 62.4 * 10 * 144 * 32.174 / (1 - std::pow(0.5, 4))) * 3600;
    EXPECT_NEAR(r.liquidFlow, m, m * 1e-4); // C is shown to 4 places
    EXPECT_EQ(display.errorLiquid, "");
    // Velocities, and the permanent loss below the differential pressure.
    EXPECT_NEAR(r.velocityPipe, static_cast<double>(FlowVelocity(r.liquidFlow, 62.4, 4.026)), 1e-6);
    EXPECT_NEAR(r.velocityOrifice / r.velocityPipe, 4, 1e-4);
    EXPECT_GT(r.permanentLoss, 0.6 * 10);
    EXPECT_LT(r.permanentLoss, 0.8 * 10); // about 1 - beta^1.9 of the differential for beta 0.5
    const std::vector<int> order{0, 11, 12, 13};
    EXPECT_EQ(display.refreshed, order);
}

TEST(ComputeOrifice, LiquidUnknownsSolveBackToEachOther)
{
    OrificeData r = waterCase();
    RecordingDisplay display;
    ComputeOrifice(r, OrificeFluid::Liquid, OrificeUnknown::Flow, 1, display);
    const Single flow = r.liquidFlow;

    r.differentialPressure = 0;
    ComputeOrifice(r, OrificeFluid::Liquid, OrificeUnknown::DifferentialPressure, 1, display);
    EXPECT_NEAR(r.differentialPressure, 10, 2e-3);
    // No warning was raised, so the text set before the division stands, as specified.
    EXPECT_EQ(display.errorLiquid, "Pipe ID cannot be zero");

    r.differentialPressure = 10;
    r.orificeDiameter = 0;
    ComputeOrifice(r, OrificeFluid::Liquid, OrificeUnknown::OrificeDiameter, 1, display);
    EXPECT_NEAR(parseFieldNumber(display.displays[0]), 0.5, 1e-4);
    EXPECT_NEAR(r.orificeDiameter, 2.013, 2e-3);
    EXPECT_EQ(r.liquidFlow, flow);
    EXPECT_EQ(display.errorLiquid, "");
}

TEST(ComputeOrifice, GasUnknownsSolveBackToEachOther)
{
    OrificeData r = airCase();
    RecordingDisplay display;
    ComputeOrifice(r, OrificeFluid::Gas, OrificeUnknown::Flow, 0, display);
    const double Y = 1 - (std::pow(0.5, 4) * 0.35 + 0.41) * 5 / (1.4 * 100);
    EXPECT_EQ(display.displays[10], formatMask(Y, "0.0000"));
    EXPECT_EQ(display.displays[11], "0.9500");
    EXPECT_EQ(display.errorGas, "");
    EXPECT_EQ(display.errorLiquid, "(untouched)");
    const Single flow = r.gasFlow;
    EXPECT_GT(flow, 0);

    display.errorGas = "kept";
    r.differentialPressure = 0;
    ComputeOrifice(r, OrificeFluid::Gas, OrificeUnknown::DifferentialPressure, 0, display);
    EXPECT_NEAR(r.differentialPressure, 5, 2e-3); // the Newton root from 500 lbf/ft2
    EXPECT_EQ(display.errorGas, "kept");         // this branch shows no gas warning

    r.differentialPressure = 5;
    ComputeOrifice(r, OrificeFluid::Gas, OrificeUnknown::OrificeDiameter, 0, display);
    EXPECT_NEAR(r.orificeDiameter, 2.013, 2e-3);
    EXPECT_EQ(display.displays[6], "0.5000");
    const std::vector<int> last{16, 26, 27, 28};
    EXPECT_EQ(std::vector<int>(display.refreshed.end() - 4, display.refreshed.end()), last);
}

TEST(ComputeOrifice, DiameterSearchesStopAtTheirRanges)
{
    // A flow far too large for beta 0.75: the gas bisection ends next to 0.75.
    OrificeData gas = airCase();
    gas.gasFlow = 1e7;
    RecordingDisplay display;
    ComputeOrifice(gas, OrificeFluid::Gas, OrificeUnknown::OrificeDiameter, 0, display);
    EXPECT_EQ(display.displays[6], "0.7500");
    // Far too small for 0.10: it ends next to 0.10 with the low-side warning.
    gas.gasFlow = 1;
    ComputeOrifice(gas, OrificeFluid::Gas, OrificeUnknown::OrificeDiameter, 0, display);
    EXPECT_EQ(display.displays[6], "0.1000");
    // The liquid fixed point converges on its algebraic beta, below 1, for a large flow.
    OrificeData liquid = waterCase();
    liquid.liquidFlow = 2e6;
    ComputeOrifice(liquid, OrificeFluid::Liquid, OrificeUnknown::OrificeDiameter, 0, display);
    const double beta = parseFieldNumber(display.displays[0]);
    EXPECT_GT(beta, 0.75);
    EXPECT_LT(beta, 1);
    EXPECT_EQ(display.errorLiquid, "Warning, Beta ratio outside the range:  0.1 <= Beta (d/D) <= 0.75");
}

TEST(ComputeOrifice, FailuresShowTheWarningsTheRunHadReached)
{
    RecordingDisplay display;
    OrificeData liquid = waterCase();
    liquid.pipeID = 0;
    ComputeOrifice(liquid, OrificeFluid::Liquid, OrificeUnknown::Flow, 0, display);
    EXPECT_EQ(display.errorLiquid, "Pipe ID cannot be zero");
    EXPECT_EQ(display.errorGas, ""); // a liquid run leaves the gas text empty

    RecordingDisplay gasDisplay;
    OrificeData gas = airCase();
    gas.pipeID = 0;
    ComputeOrifice(gas, OrificeFluid::Gas, OrificeUnknown::Flow, 0, gasDisplay);
    EXPECT_EQ(gasDisplay.errorGas, "");
    EXPECT_EQ(gasDisplay.errorLiquid, "Pipe ID cannot be zero"); // the message lands on the liquid tab

    // No differential pressure: m = 0, Re = 0, and the second pass fails after its warnings.
    RecordingDisplay zero;
    OrificeData still = waterCase();
    still.liquidFlow = 123;
    still.differentialPressure = 0;
    ComputeOrifice(still, OrificeFluid::Liquid, OrificeUnknown::Flow, 0, zero);
    EXPECT_EQ(zero.errorLiquid, "Warning:  The meter size/flow outside of ISO standard range.");
    EXPECT_EQ(still.liquidFlow, 0);
    EXPECT_EQ(zero.displays.count(1), 0u); // the common results were not reached

    // A gas differential above the inlet pressure gives results and no message.
    RecordingDisplay over;
    OrificeData high = airCase();
    high.differentialPressure = 150;
    ComputeOrifice(high, OrificeFluid::Gas, OrificeUnknown::Flow, 0, over);
    EXPECT_EQ(over.displays[11], "-0.5000");
    EXPECT_EQ(over.errorGas.find("Exceeds"), std::string::npos);
}

TEST(ComputeOrifice, TapStylesChangeTheCoefficientAsTheirSpacings)
{
    // The same plate on flange, D and D/2 and corner taps: the coefficient
    // each reports is the one the discharge coefficient function gives at
    // the converged pipe Reynolds number, and the flows follow it.
    std::array<double, 3> C{}, flow{};
    for (TapStyle tap = 0; tap < 3; ++tap) {
        OrificeData r = waterCase();
        RecordingDisplay display;
        ComputeOrifice(r, OrificeFluid::Liquid, OrificeUnknown::Flow, tap, display);
        C[static_cast<size_t>(tap)] = parseFieldNumber(display.displays[1]);
        flow[static_cast<size_t>(tap)] = r.liquidFlow;
        std::string message;
        const Single Re = parseFieldNumber(display.displays[2]);
        EXPECT_NEAR(OrificeDischargeCoefficient(4.026, 0.5, Re, tap, message), C[static_cast<size_t>(tap)], 6e-5);
    }
    for (size_t t = 1; t < 3; ++t)
        EXPECT_NEAR(flow[t] / flow[0], C[t] / C[0], 2e-4);
    EXPECT_NE(C[0], C[2]);
}

TEST(ComputeOrifice, ThermalAndDrainHoleFactorsScaleTheFlow)
{
    OrificeData cold = waterCase();
    RecordingDisplay display;
    ComputeOrifice(cold, OrificeFluid::Liquid, OrificeUnknown::Flow, 0, display);

    OrificeData hot = waterCase();
    hot.temperature = 500;
    hot.elementExpansion = 9.4e-6; // a stainless plate grows more than the carbon steel pipe
    ComputeOrifice(hot, OrificeFluid::Liquid, OrificeUnknown::Flow, 0, display);
    const double Fa = OrificeThermalFactor(0.5, 9.4e-6, 6.7e-6, 500, 68);
    EXPECT_GT(std::fabs(Fa - 1), 5e-4);
    EXPECT_NEAR(hot.liquidFlow / cold.liquidFlow, Fa, 2e-4);

    OrificeData drained = waterCase();
    drained.holeDiameter = 0.125;
    ComputeOrifice(drained, OrificeFluid::Liquid, OrificeUnknown::Flow, 0, display);
    const double Fd = OrificeDrainHoleFactor(0.5, 0.125, 4.026);
    EXPECT_GT(Fd, 1);
    EXPECT_NEAR(drained.liquidFlow / cold.liquidFlow, Fd, 2e-4);
}

TEST(ComputeOrifice, GasExpansionFactorIsLinearInTheDifferential)
{
    EXPECT_EQ(GasExpansionFactor(0.5, 0, 1.4, 100), 1);
    const double expected = 1 - (std::pow(0.5, 4) * 0.35 + 0.41) * 10 / (1.4 * 100);
    EXPECT_EQ(GasExpansionFactor(0.5, 10, 1.4, 100), Single(expected));
    // Twice the differential, twice the drop from one.
    const double once = 1 - static_cast<double>(GasExpansionFactor(0.6, 5, 1.3, 50));
    const double twice = 1 - static_cast<double>(GasExpansionFactor(0.6, 10, 1.3, 50));
    EXPECT_NEAR(twice, 2 * once, 1e-6);
}

TEST(ComputeOrifice, TheFlowSearchEndsWhenTwoPassesGiveTheSameReynoldsNumber)
{
    // The gas flow search shows the expansion factor once a pass: the search
    // stops after a handful of passes, as soon as the new Reynolds number is
    // the same single as the last, not after all 201 it may take.
    OrificeData air = airCase();
    RecordingDisplay display;
    ComputeOrifice(air, OrificeFluid::Gas, OrificeUnknown::Flow, 0, display); // flange taps
    EXPECT_GE(display.shows[10], 2);
    EXPECT_LE(display.shows[10], 10);
    // The flow found is the fixed point: a pass from its Reynolds number
    // gives the same Reynolds number again.
    const Single re = ReynoldsFromMassFlow(air.pipeID, air.gasFlow, air.gasViscosity * 1000);
    EXPECT_EQ(parseFieldNumber(display.displays[8]), std::round(static_cast<double>(re)));
}

TEST(ComputeOrifice, GasFlowAgreesWithAHandWorkedCase)
{
    // Air (0.5 lb/ft3, 0.018 cP, k 1.4) at 100 psia through a beta 0.5 plate
    // in 4.026 in on flange taps, 5 psi: worked by hand in double precision
    // with the Reader-Harris/Gallagher equation of ISO 5167-2 (L1 = L2' =
    // 25.4 / D mm) and the expansion factor 1 - (0.41 + 0.35 beta^4) dP / (k P1):
    // Y = 0.9845759; iterating C and the pipe Reynolds number to their fixed
    // point gives C = 0.6034861, Re = 647,435.9 and 7,431.339 lb/h.
    OrificeData air = airCase();
    RecordingDisplay display;
    ComputeOrifice(air, OrificeFluid::Gas, OrificeUnknown::Flow, 0, display);
    EXPECT_NEAR(air.gasFlow, 7431.339, 0.05);
    EXPECT_EQ(display.displays[10], "0.9846");
    EXPECT_EQ(display.displays[7], "0.6035");
    EXPECT_NEAR(parseFieldNumber(display.displays[8]), 647436, 5);
}
