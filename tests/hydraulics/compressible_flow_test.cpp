#include "hydraulics/basTransportFunctions.h"
#include "hydraulics/recording_feedback.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kestrova;

namespace {

// Air at 100 °F and 100 psia in a 4.026 in bore.
GasLineInlet airLine(double massFlow, double pipeResistance, double fittingResistance = 0)
{
    GasLineInlet in;
    in.massFlow = massFlow;
    in.flowArea = 3.1415926536 / 4 * std::pow(4.026 / 12, 2);
    in.temperature = 100;
    in.pressure = 100;
    in.compressibility = 1;
    in.molecularWeight = 28.97;
    in.heatCapacityRatio = 1.4;
    in.pipeResistance = pipeResistance;
    in.fittingResistance = fittingResistance;
    return in;
}

// A line whose inlet Mach number is exactly 1. The inlet Mach number is the
// rounded quotient of the stored mass flux by rho c; stepping the pressure
// through neighbouring singles moves rho until some mass flux hits 1 exactly.
GasLineInlet sonicInlet(GasLineInlet in)
{
    GasLineOutlet out;
    RecordingFeedback user;
    float pressure = 100.0f;
    for (int p = 0; p < 64; ++p, pressure = std::nextafter(pressure, 1e30f)) {
        in.pressure = pressure;
        const double rho = pressure * 144.0 * 28.97 / (1545.3563 * 559.67);
        const double c = std::sqrt(1.4 * 32.174 * 1545.3563 * 559.67 / 28.97);
        float flow = static_cast<float>(rho * c * in.flowArea * 3600 * (1 - 2e-6));
        for (int i = 0; i < 256; ++i, flow = std::nextafter(flow, 1e30f)) {
            in.massFlow = flow;
            AdiabaticGasFlow(in, out, user);
            if (out.inletMach == 1.0)
                return in;
            if (out.inletMach > 1.0)
                break;
        }
    }
    ADD_FAILURE() << "no line of single values gives Mach 1 exactly";
    return in;
}

} // namespace

TEST(GasFlowCommonStart, SonicVelocityAndInletMachOfAir)
{
    GasLineOutlet out;
    RecordingFeedback user;
    AdiabaticGasFlow(airLine(10000, 1), out, user);
    // Speed of sound in air at 310.93 K: sqrt(1.4 * 287.05 J/(kg K) * T) = 353.5 m/s.
    EXPECT_NEAR(out.sonicVelocity, std::sqrt(1.4 * 287.05 * 310.928) / 0.3048, 0.5);
    // Inlet density 0.4823 lb/ft3 at 100 psia: M1 = W / (A rho c 3600).
    const double rho = 100 * 144 * 28.97 / (1545.3563 * 559.67);
    EXPECT_NEAR(out.inletMach, 10000 / (airLine(0, 0).flowArea * rho * out.sonicVelocity * 3600), 1e-6);
    EXPECT_EQ(user.beeps, 0);
    EXPECT_TRUE(user.messages.empty());
}

TEST(AdiabaticGasFlow, AShortLineIsSubsonicAndLosesPressure)
{
    GasLineOutlet adiabatic, isothermal;
    RecordingFeedback user;
    AdiabaticGasFlow(airLine(10000, 10, 1), adiabatic, user);
    IsothermalGasFlow(airLine(10000, 10, 1), isothermal, user);
    EXPECT_EQ(adiabatic.flowType, "Subsonic");
    EXPECT_EQ(isothermal.flowType, "Subsonic");
    EXPECT_EQ(user.beeps, 0);
    EXPECT_LT(adiabatic.outletPressure, 100);
    EXPECT_GT(adiabatic.outletMach, adiabatic.inletMach);
    EXPECT_GT(isothermal.outletMach, isothermal.inletMach);
    EXPECT_LE(isothermal.outletPressure, adiabatic.outletPressure + 0.01);
    // At low Mach numbers both are the incompressible drop, rho V^2 / 2 * (fL/D + K).
    const double rho = 100 * 144 * 28.97 / (1545.3563 * 559.67);
    const double V = adiabatic.inletMach * adiabatic.sonicVelocity;
    const double incompressible = rho * V * V / (2 * 32.174) * 11 / 144;
    EXPECT_NEAR(100 - isothermal.outletPressure, incompressible, 0.05 * incompressible);
    EXPECT_LT(adiabatic.outletTemperature, 100);
}

TEST(AdiabaticGasFlow, ZeroResistanceKeepsTheInletState)
{
    GasLineOutlet out;
    RecordingFeedback user;
    AdiabaticGasFlow(airLine(10000, 0), out, user);
    EXPECT_FLOAT_EQ(out.outletMach, out.inletMach);
    EXPECT_FLOAT_EQ(out.outletPressure, 100);
    EXPECT_EQ(out.flowType, "Subsonic");
}

TEST(AdiabaticGasFlow, ALongLineChokesAtTheOutletAtTheFannoSonicPressure)
{
    GasLineOutlet out;
    RecordingFeedback user;
    AdiabaticGasFlow(airLine(30000, 500), out, user);
    EXPECT_EQ(out.flowType, "Choked Flow at Outlet");
    EXPECT_EQ(user.beeps, 1);
    EXPECT_EQ(out.outletMach, 1.0);
    // Fanno: P* = P1 M1 sqrt((2 + (k - 1) M1^2) / (k + 1)); T* = T1 (2 + (k - 1) M1^2) / (k + 1).
    const double M1 = out.inletMach;
    EXPECT_NEAR(out.outletPressure, 100 * M1 * std::sqrt((2 + 0.4 * M1 * M1) / 2.4), 1e-3);
    EXPECT_NEAR(out.outletTemperature + 459.67, 559.67 * (2 + 0.4 * M1 * M1) / 2.4, 1e-2);
    EXPECT_TRUE(user.messages.empty());
}

TEST(AdiabaticGasFlow, SonicAndSupersonicInlets)
{
    GasLineInlet in = sonicInlet(airLine(0, 5));
    GasLineOutlet out;
    RecordingFeedback user;
    AdiabaticGasFlow(in, out, user);
    ASSERT_EQ(out.inletMach, 1.0);
    EXPECT_EQ(out.outletMach, 1.0); // the first round ends the search
    EXPECT_EQ(out.flowType, "Choked Flow at Outlet");
    EXPECT_EQ(user.beeps, 1);

    // Above Mach 1 the inlet text is overwritten when the search ends.
    in.massFlow = in.massFlow * 1.2;
    RecordingFeedback second;
    AdiabaticGasFlow(in, out, second);
    EXPECT_NEAR(out.inletMach, 1.2, 1e-6);
    EXPECT_EQ(out.flowType, "Choked Flow at Outlet");
    EXPECT_EQ(second.beeps, 2);
}

TEST(IsothermalGasFlow, ChokingShowsTheSonicPressure144TimesTooLow)
{
    GasLineOutlet out;
    RecordingFeedback user;
    IsothermalGasFlow(airLine(30000, 500), out, user);
    EXPECT_EQ(out.flowType, "Choked Flow at Outlet");
    EXPECT_EQ(user.beeps, 1);
    // The isothermal limit is P* = P1 M1 sqrt(k), in psia; it is divided once more.
    const double sonicPressure = 100 * out.inletMach * std::sqrt(1.4);
    EXPECT_NEAR(out.outletPressure, sonicPressure / 144, 1e-5);
    EXPECT_GE(out.outletMach, 1 / std::sqrt(1.4) - 1e-6);
}

TEST(IsothermalGasFlow, AnInletBeyondTheLimitBeepsTwice)
{
    GasLineOutlet out;
    RecordingFeedback user;
    IsothermalGasFlow(airLine(160000, 5), out, user); // M1 about 0.9 > 1/sqrt(1.4)
    ASSERT_GT(out.inletMach, 1 / std::sqrt(1.4));
    EXPECT_EQ(out.flowType, "Choked Flow at Outlet");
    EXPECT_EQ(user.beeps, 2);
}

TEST(GasFlowFaults, ZeroFlowAreaWeightOrCompressibility)
{
    GasLineOutlet out;
    RecordingFeedback user;
    GasLineInlet in = airLine(0, 5);
    EXPECT_THROW(AdiabaticGasFlow(in, out, user), NumericFault); // ln(M1^2 A / (M2^2 A)) with M1 = 0
    in = airLine(10000, 5);
    in.flowArea = 0;
    EXPECT_THROW(IsothermalGasFlow(in, out, user), NumericFault);
    in = airLine(10000, 5);
    in.molecularWeight = 0;
    EXPECT_THROW(AdiabaticGasFlow(in, out, user), NumericFault);
    in = airLine(10000, 5);
    in.compressibility = 0;
    EXPECT_THROW(IsothermalGasFlow(in, out, user), NumericFault);
    in = airLine(10000, 5);
    in.heatCapacityRatio = -1;
    EXPECT_THROW(AdiabaticGasFlow(in, out, user), NumericFault);
    EXPECT_TRUE(user.messages.empty());
}

// Hand-worked references: 20,000 lb/h of air at 100 psia and 100 °F in a
// 4.026 in bore, f L/D = 10 and K = 2. The inlet: rho = 0.4823367 lb/ft3,
// c = 1159.639 ft/s, G = 62.84237 lb/(ft2 s), M1 = 0.1123517. Each outlet
// state below was found by an independent solver in double precision (a
// Newton iteration for the isothermal line, a bisection for the adiabatic
// one) on the line equations as published and as the program states them.

TEST(IsothermalGasFlow, AgreesWithTheClassicalIsothermalLineEquation)
{
    // P1^2 - P2^2 = G^2 Z R T / (gc M) (2 ln(P1 / P2) + f L/D + K):
    // P2 = 88.52267 psia, M2 = P1 M1 / P2 = 0.1269185.
    GasLineOutlet out;
    RecordingFeedback user;
    IsothermalGasFlow(airLine(20000, 10, 2), out, user);
    EXPECT_EQ(out.flowType, "Subsonic");
    EXPECT_NEAR(out.inletMach, 0.1123517, 2e-7);
    EXPECT_NEAR(out.outletPressure, 88.52267, 2e-4);
    EXPECT_NEAR(out.outletMach, 0.1269185, 2e-7);
}

TEST(AdiabaticGasFlow, AgreesWithItsLineEquationSolvedIndependently)
{
    // f L/D + K = 1/(M1^2 k) - 1/(M2^2 k) + (k + 1)/(2 k) ln(M1^2 / M2^2):
    // M2 = 0.1268677, P2 = P1 M1 / (M2 sqrt(C2 / C1)) = 88.52746 psia,
    // T2 = (P2 M2 / (P1 M1))^2 T1 = 99.61255 °F.
    GasLineOutlet out;
    RecordingFeedback user;
    AdiabaticGasFlow(airLine(20000, 10, 2), out, user);
    EXPECT_EQ(out.flowType, "Subsonic");
    EXPECT_NEAR(out.outletMach, 0.1268677, 2e-7);
    EXPECT_NEAR(out.outletPressure, 88.52746, 2e-4);
    EXPECT_NEAR(out.outletTemperature, 99.61255, 2e-4);
}
