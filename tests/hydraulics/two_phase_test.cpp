#include "hydraulics/basTransportFunctions.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kestrova;

namespace {

// Steam-water-like line in a 4.026 in bore, 100 ft long.
TwoPhaseLine line(double gasFlow, double liquidFlow, double gasViscosity = 0.012, double liquidViscosity = 1,
                  const char* orientation = "Horizontal")
{
    TwoPhaseLine in;
    in.orientation = orientation;
    in.diameter = 4.026;
    in.roughness = 0.00015;
    in.gasFlow = gasFlow;
    in.liquidFlow = liquidFlow;
    in.gasDensity = 0.5;
    in.liquidDensity = 62;
    in.gasViscosity = gasViscosity;
    in.liquidViscosity = liquidViscosity;
    in.surfaceTension = 0.07;
    in.length = 100;
    return in;
}

TwoPhaseResult run(const TwoPhaseLine& in)
{
    TwoPhaseResult out;
    TwoPhaseDrop(in, out);
    return out;
}

// Darcy-Weisbach for the liquid alone: f L / D rho V^2 / 2 gc, in psi.
double liquidOnlyDrop(const TwoPhaseLine& in, double f)
{
    const double D = 4.026 / 12;
    const double V = in.liquidFlow / 3600 / in.liquidDensity / (M_PI / 4 * D * D);
    return f * in.length / D * in.liquidDensity * V * V / (2 * 32.174) / 144;
}

} // namespace

TEST(TwoPhaseDrop, HomogeneousMixtureProperties)
{
    const TwoPhaseResult out = run(line(5000, 20000));
    // 25000 / (5000 / 0.5 + 20000 / 62) and the flow-weighted harmonic viscosity.
    EXPECT_NEAR(out.homogeneousDensity, 25000 / (10000 + 20000 / 62.0), 1e-5);
    EXPECT_NEAR(out.homogeneousViscosity, 25000 / (5000 / 0.012 + 20000 / 1.0) / 1000, 1e-10);
    EXPECT_FALSE(out.mapCoordinates.empty());
}

TEST(TwoPhaseDrop, CorrelationChoice)
{
    // mu_l / mu_g below 1000 takes Friedel in any orientation.
    EXPECT_EQ(run(line(5000, 20000, 0.002, 1)).correlation, "Friedel");
    EXPECT_EQ(run(line(5000, 20000, 0.002, 1, "Vertical Down")).correlation, "Friedel");
    // Exactly 1000 does not (both viscosities are exact singles here).
    const TwoPhaseResult vertical = run(line(5000, 20000, 0.0078125, 7.8125, "Vertical Up"));
    EXPECT_EQ(vertical.correlation, "N/A");
    EXPECT_FALSE(vertical.pressureDrop.has_value());
    EXPECT_FALSE(vertical.regime.empty()); // the map still runs
    EXPECT_EQ(run(line(5000, 20000, 0.0078125, 7.8125)).correlation, "Chisholm-Baroczy");
    // Horizontal and viscous: the mass flux decides, at 100 kg/(m2 s).
    // 25000 lb/h through 0.0884 ft2 is 383 kg/(m2 s); 5000 lb/h is 77.
    EXPECT_EQ(run(line(1000, 24000, 0.001, 5)).correlation, "Chisholm-Baroczy");
    EXPECT_EQ(run(line(1000, 4000, 0.001, 5)).correlation, "Lockhart-Martinelli");
}

TEST(TwoPhaseDrop, FriedelMultiplierFollowsTheOrientation)
{
    const TwoPhaseResult up = run(line(5000, 20000, 0.002, 1, "Vertical Up"));
    const TwoPhaseResult horizontal = run(line(5000, 20000, 0.002, 1, "Horizontal"));
    const TwoPhaseResult down = run(line(5000, 20000, 0.002, 1, "Vertical Down"));
    ASSERT_TRUE(up.pressureDrop && horizontal.pressureDrop && down.pressureDrop);
    EXPECT_EQ(*up.pressureDrop, *horizontal.pressureDrop);
    EXPECT_NE(*down.pressureDrop, *up.pressureDrop);
    // Friedel's friction factors are smooth-pipe ones: no roughness.
    TwoPhaseLine rough = line(5000, 20000, 0.002, 1);
    rough.roughness = 0.01;
    EXPECT_EQ(run(rough).pressureDrop, horizontal.pressureDrop);
    EXPECT_GT(*horizontal.pressureDrop, 0);
}

TEST(TwoPhaseDrop, AVanishingGasFlowGivesTheLiquidAloneDrop)
{
    // Friedel: E tends to 1 and the smooth-pipe factor of the liquid applies.
    const TwoPhaseLine friedelLine = line(0.001, 20000, 0.002, 1);
    const TwoPhaseResult friedel = run(friedelLine);
    ASSERT_TRUE(friedel.pressureDrop);
    const double smooth = std::pow(0.86859 * std::log(friedel.liquidReynolds / (1.964 * std::log(friedel.liquidReynolds) - 3.8215)), -2);
    EXPECT_NEAR(*friedel.pressureDrop, liquidOnlyDrop(friedelLine, smooth), 0.002 * *friedel.pressureDrop);
    // Smooth-pipe factor against Blasius at Re 3e4: 0.316 / Re^0.25 = 0.0237.
    EXPECT_NEAR(friedel.liquidFriction, 0.316 / std::pow(friedel.liquidReynolds, 0.25), 0.0005);

    // Chisholm-Baroczy: the multiplier tends to 1 and the pipe's own friction factor applies.
    const TwoPhaseLine chisholmLine = line(0.001, 40000, 0.001, 5);
    const TwoPhaseResult chisholm = run(chisholmLine);
    ASSERT_EQ(chisholm.correlation, "Chisholm-Baroczy");
    EXPECT_NEAR(*chisholm.pressureDrop, liquidOnlyDrop(chisholmLine, chisholm.liquidFriction), 0.01 * *chisholm.pressureDrop);
}

TEST(TwoPhaseDrop, LockhartMartinelliTakesTheLargerPhaseDrop)
{
    const TwoPhaseResult out = run(line(1000, 4000, 0.001, 5));
    ASSERT_EQ(out.correlation, "Lockhart-Martinelli");
    ASSERT_TRUE(out.pressureDrop);
    // Each phase alone: Reynolds numbers from each phase's own flow.
    EXPECT_NEAR(out.gasReynolds, ReynoldsFromMassFlow(4.026, 1000, 0.001), 1);
    EXPECT_NEAR(out.liquidReynolds, ReynoldsFromMassFlow(4.026, 4000, 5), 0.01);
    EXPECT_EQ(out.gasFriction, FrictionFactor(out.gasReynolds, 0.00015 / (4.026 / 12), 1, 1, 1));
    // The two-phase drop exceeds the liquid flowing alone.
    EXPECT_GT(*out.pressureDrop, liquidOnlyDrop(line(1000, 4000), out.liquidFriction));
}

TEST(TwoPhaseDrop, InvalidInputsFault)
{
    EXPECT_THROW(run(line(0, 0)), NumericFault);                  // no flow at all
    EXPECT_THROW(run(line(5000, 20000, 2, 1)), NumericFault);     // gas more viscous than liquid
    TwoPhaseLine noDensity = line(5000, 20000);
    noDensity.gasDensity = 0;
    EXPECT_THROW(run(noDensity), NumericFault);
    TwoPhaseLine noTension = line(5000, 20000);
    noTension.surfaceTension = 0;
    EXPECT_THROW(run(noTension), NumericFault);
}

// Hand-worked references: each correlation worked through in double
// precision from its published form, step by step, for one line at a finite
// quality. The program rounds its intermediates to singles, so the figures
// agree to a few parts in a hundred thousand.

TEST(TwoPhaseReference, FriedelAtAQualityOfOneFifth)
{
    // 5,000 lb/h of gas (0.5 lb/ft3, 0.012 cP) with 20,000 lb/h of water
    // (62 lb/ft3, 1 cP, 0.07 N/m) in 100 ft of 4.026 in, horizontal:
    // G = 78.553 lb/(ft2 s), Fr = 97.4595, We = 5539.04; Re_g = 653,418,
    // Re_l = 31,364.1; smooth-pipe f_g = 0.0125486, f_l = 0.0232572;
    // E = 3.3162, phi = 14.8568, so 1.10618 psi.
    const TwoPhaseResult out = run(line(5000, 20000));
    ASSERT_EQ(out.correlation, "Friedel");
    EXPECT_NEAR(out.gasReynolds, 653418, 2);
    EXPECT_NEAR(out.liquidReynolds, 31364.1, 0.1);
    EXPECT_NEAR(out.gasFriction, 0.0125486, 2e-7);
    EXPECT_NEAR(out.liquidFriction, 0.0232572, 2e-7);
    EXPECT_NEAR(out.pressureDrop.value(), 1.10618, 1e-4);
}

TEST(TwoPhaseReference, ChisholmBaroczyForAViscousLiquid)
{
    // The same flows with a liquid of 15 cP: mu_l / mu_g = 1250 and
    // Gsi = 383.52 kg/(m2 s) take Chisholm-Baroczy. All liquid: Re 2,613.67,
    // f_lo = 0.0378918, 0.121308 psi per 100 ft; all gas: Re 3,267,090,
    // f_go = 0.0165118, 6.5548 psi per 100 ft; Gamma = 7.35081, so
    // B = 55 / Gsi^0.5 = 2.80846 and phi = 34.1384: 4.14125 psi.
    const TwoPhaseResult out = run(line(5000, 20000, 0.012, 15));
    ASSERT_EQ(out.correlation, "Chisholm-Baroczy");
    EXPECT_NEAR(out.liquidFriction, 0.0378918, 2e-7);
    EXPECT_NEAR(out.gasFriction, 0.0165118, 2e-7);
    EXPECT_NEAR(out.pressureDrop.value(), 4.14125, 4e-4);
}

TEST(TwoPhaseReference, LockhartMartinelliForASmallViscousFlow)
{
    // 500 lb/h of gas with 3,000 lb/h of a 15 cP liquid: Gsi = 53.69 takes
    // Lockhart-Martinelli. Gas alone: Re 65,341.8, f = 0.0214799,
    // 0.00341081 psi per 100 ft; liquid alone: Re 313.641 (laminar),
    // f = 0.204055, 0.00940705 psi per 100 ft. X = 1.66073 on the
    // laminar-liquid, turbulent-gas rows: ln phi_l = 1.0128,
    // ln phi_g = 1.52006; both sides give 0.071312 psi per 100 ft.
    const TwoPhaseResult out = run(line(500, 3000, 0.012, 15));
    ASSERT_EQ(out.correlation, "Lockhart-Martinelli");
    EXPECT_NEAR(out.gasReynolds, 65341.8, 0.1);
    EXPECT_NEAR(out.liquidReynolds, 313.641, 1e-3);
    EXPECT_NEAR(out.liquidFriction, 0.204055, 2e-6);
    EXPECT_NEAR(out.pressureDrop.value(), 0.0713121, 1e-5);
}
