#include "hydraulics/basTransportFunctions.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kestrova;

namespace {

// Colebrook-White, solved independently by fixed-point iteration: the
// equation behind the Moody chart.
double colebrook(double re, double e)
{
    double f = 0.02;
    for (int i = 0; i < 100; ++i)
        f = std::pow(-2 * std::log10(e / 3.7 + 2.51 / (re * std::sqrt(f))), -2);
    return f;
}

double friction(double re, double e, CrossSectionKind kind = 1, double a = 1, double k = 1)
{
    return FrictionFactor(re, e, kind, a, k);
}

} // namespace

TEST(FrictionFactor, TurbulentFormFollowsTheMoodyChart)
{
    EXPECT_NEAR(friction(100000, 0.0002), 0.0190, 0.00005);
    EXPECT_FLOAT_EQ(friction(100000, 0.0002), 0.0190032367f);
    for (double re : {4000.0, 1e4, 1e5, 1e6, 1e7}) {
        for (double e : {0.0, 1e-5, 1e-4, 1e-3, 1e-2}) {
            EXPECT_NEAR(friction(re, e), colebrook(re, e), 0.035 * colebrook(re, e)) << "Re " << re << " e " << e;
        }
    }
    // Fully rough pipes go to von Karman's limit, whatever the Reynolds number.
    EXPECT_NEAR(friction(1e8, 0.01), std::pow(2 * std::log10(3.7 / 0.01), -2), 0.0005);
}

TEST(FrictionFactor, LaminarFormByCrossSection)
{
    EXPECT_DOUBLE_EQ(friction(1000, 0.0002), static_cast<double>(Single(64.0 / 1000)));
    // Shah and London's fully developed laminar values: f Re = 56.91 for a
    // square duct, 96 for parallel plates, 95.25 for an annulus of ratio 0.5.
    EXPECT_NEAR(friction(1000, 0, 2, 1.0) * 1000, 56.91, 0.01);
    EXPECT_FLOAT_EQ(friction(1000, 0, 2, 1.0), 0.0569128469f);
    EXPECT_NEAR(friction(1000, 0, 2, 1e-6) * 1000, 95.96, 0.01);
    EXPECT_NEAR(friction(1000, 0, 3, 1, 0.5) * 1000, 95.25, 0.02);
    // A narrow annulus tends to the parallel plates.
    EXPECT_NEAR(friction(1000, 0, 3, 1, 0.99) * 1000, 96.0, 0.05);
}

TEST(FrictionFactor, TheStepAt2100HasNoTransitionBand)
{
    EXPECT_FLOAT_EQ(friction(2099.9, 0.0002), static_cast<float>(64 / static_cast<double>(2099.9f)));
    EXPECT_NEAR(friction(2099.9, 0.0002), 0.03048, 0.00001);
    EXPECT_NEAR(friction(2100, 0.0002), 0.03071, 0.00001);
    // The turbulent form takes every kind at 2100, without its shape.
    EXPECT_EQ(friction(2100, 0.0002, 2, 0.5), friction(2100, 0.0002, 1));
    EXPECT_EQ(friction(5000, 0.0002, 3, 1, 0.5), friction(5000, 0.0002, 1));
}

TEST(FrictionFactor, UnknownKindsGiveZeroAndBadInputsFault)
{
    EXPECT_EQ(friction(1000, 0.0002, 0), 0);
    EXPECT_EQ(friction(1e5, 0.0002, 4), 0);
    EXPECT_EQ(friction(0, 0.0002, 0), 0);
    EXPECT_LT(friction(-500, 0.0002), 0); // counts as laminar, without complaint
    EXPECT_GT(friction(1e5, 0), 0);       // a smooth pipe is no failure
    EXPECT_THROW(friction(0, 0.0002, 1), NumericFault);
    EXPECT_THROW(friction(0, 0.0002, 2, 0.5), NumericFault);
    EXPECT_THROW(friction(0, 0.0002, 3, 1, 0.5), NumericFault);
    EXPECT_THROW(friction(1000, 0, 3, 1, 1.0), NumericFault); // k = 1
    EXPECT_THROW(friction(1000, 0, 3, 1, 0.0), NumericFault); // ln 0
    EXPECT_NO_THROW(friction(1000, 0, 3, 1, 2.0));            // k above 1 is computed
}

TEST(ReynoldsNumber, PipeDuctAndAnnulusByHydraulicDiameter)
{
    // Water at 62.4 lb/ft3 and 1 cP, 1 ft/s in a 4.026 in bore: 62.4 * 0.3355 / 0.000672.
    const double pipe = ReynoldsNumber(62.4, 4.026, 1, 1, 1, 1, 1);
    EXPECT_NEAR(pipe, 31153.57, 0.01);
    // The same in SI: 999.5 kg/m3, 0.10226 m, 0.3048 m/s, 0.001 Pa s.
    EXPECT_NEAR(pipe, 999.5 * 0.1022604 * 0.3048 / 0.001, 0.001 * pipe);
    // A 4 x 4 in duct and a 6 in by 2 in annulus have a 4 in hydraulic diameter.
    const double circle = ReynoldsNumber(62.4, 4, 1, 1, 1, 1, 1);
    EXPECT_NEAR(ReynoldsNumber(62.4, 99, 1, 1, 2, 4, 4), circle, 1e-6 * circle);
    EXPECT_NEAR(ReynoldsNumber(62.4, 99, 1, 1, 3, 6, 2), circle, 1e-6 * circle);
    EXPECT_EQ(ReynoldsNumber(62.4, 4, 1, 1, 0, 1, 1), 0);
    EXPECT_EQ(ReynoldsNumber(62.4, 4, 1, 1, 4, 1, 1), 0);
    EXPECT_THROW(ReynoldsNumber(62.4, 4, 1, 0, 1, 1, 1), NumericFault);
}

TEST(ReynoldsNumber, TheMassFlowFormKeepsItsOwnConstant)
{
    // 10000 lb/h of a 1 cP liquid in a 4.026 in bore: 4 W / (pi D mu 2.42).
    const double byMass = ReynoldsFromMassFlow(4.026, 10000, 1);
    EXPECT_NEAR(byMass, 4 * 10000 / (3.1415926536 * (4.026 / 12) * 2.42), 1e-6 * byMass);
    const Single v = FlowVelocity(10000, 62.4, 4.026);
    const double byVelocity = ReynoldsNumber(62.4, 4.026, v, 1, 1, 1, 1);
    EXPECT_NEAR(byMass / byVelocity, 0.000672 * 3600 / 2.42, 1e-6);
    EXPECT_THROW(ReynoldsFromMassFlow(4.026, 10000, 0), NumericFault);
}

TEST(VelocityAndHeads, HandCalculations)
{
    // 10000 lb/h at 62.4 lb/ft3 is 0.044516 ft3/s through 0.088405 ft2.
    EXPECT_NEAR(FlowVelocity(10000, 62.4, 4.026), 0.503553, 1e-5);
    EXPECT_THROW(FlowVelocity(10000, 0, 4.026), NumericFault);
    EXPECT_THROW(FlowVelocity(10000, 62.4, 0), NumericFault);
    // f L / D V^2 / 2g: 0.02 * 100 ft / 1 ft * 100 / 64.3484.
    EXPECT_NEAR(StraightRunDrop(0.02, 100, 12, 10), 3.108080, 1e-5);
    // One velocity head at 8.0218 ft/s is very nearly one foot.
    EXPECT_NEAR(MinorLossDrop(1, 8.0218), 1.0, 2e-5);
    EXPECT_THROW(StraightRunDrop(0.02, 100, 0, 10), NumericFault);
}
