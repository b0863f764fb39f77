#include "numeric/numeric_fault.h"
#include "tools/properties/calc/property_correlation.h"

#include <gtest/gtest.h>

using namespace kestrova;

// Coefficients of the compound data base, checked against published values of
// the property at the temperature given.
namespace {
constexpr double kRoom = 298.15;
constexpr double kWaterTc = 647.096;
constexpr double kWaterMW = 18.01528;
constexpr double kMethaneTc = 190.564;
} // namespace

TEST(PropertyCorrelation, WaterAt25CelsiusAgainstIapws)
{
    const double density = PropertyCorrelation(kRoom, kWaterTc,
        {7.683054102, 0.4780143048, -0.001687846367, 2.539521863e-06, -1.536244777e-09}, 7);
    EXPECT_NEAR(density * kWaterMW, 997.05, 0.3); // kg/m3
    const double viscosity = PropertyCorrelation(kRoom, kWaterTc, {4.7131816, -288.359751, -2.156796297, 2893585240, -3.75}, 6);
    EXPECT_NEAR(viscosity, 0.0008900, 0.000005); // Pa s
    const double vapourPressure = PropertyCorrelation(kRoom, kWaterTc, {73.649, -7258.2, -7.3037, 4.1653e-06, 2}, 6);
    EXPECT_NEAR(vapourPressure, 3169.9, 5); // Pa
    const double tension = PropertyCorrelation(kRoom, kWaterTc, {0.2463681475, 5.31780578, -11.81871928, 11.92374333, -4.161500035}, 3);
    EXPECT_NEAR(tension, 0.07197, 0.0003); // N/m; the fit is 0.25 % low here
    const double vapourViscosity = PropertyCorrelation(373.15, kWaterTc, {1.7096e-08, 1.1146, 0, 0, 0}, 5);
    EXPECT_NEAR(vapourViscosity, 1.227e-5, 0.04e-5); // steam at 100 °C, Pa s; the fit is 2.5 % high
}

TEST(PropertyCorrelation, MethaneAgainstPublishedValues)
{
    // Ideal-gas Cp at 298.15 K: 35.69 kJ/(kmol K) (JANAF).
    const double cp = PropertyCorrelation(kRoom, kMethaneTc,
        {37980.46524, -74.622302, 0.3018981377, -0.0002832737414, 9.071078716e-08}, 7);
    EXPECT_NEAR(cp / 1000, 35.69, 0.1);
    // Saturated liquid at the normal boiling point 111.67 K: 422.6 kg/m3.
    const double density = PropertyCorrelation(111.67, kMethaneTc, {2.9214, 0.28976, 190.56, 0.28881, 0}, 4);
    EXPECT_NEAR(density * 16.04246, 422.6, 1.0);
    // Vapour pressure at the normal boiling point is one atmosphere.
    const double pressure = PropertyCorrelation(111.67, kMethaneTc, {39.205, -1324.4, -3.4366, 3.1019e-05, 2}, 6);
    EXPECT_NEAR(pressure, 101325, 800);
    // Gas viscosity at 300 K: 11.2 microPa s.
    const double viscosity = PropertyCorrelation(300, kMethaneTc, {5.2546e-07, 0.59006, 105.67, 0, 0}, 5);
    EXPECT_NEAR(viscosity, 11.2e-6, 0.2e-6);
}

TEST(PropertyCorrelation, HyperbolicFormOfIdealGasHeatCapacity)
{
    // Water vapour, the Aly-Lee form: 33.6 kJ/(kmol K) at 300 K.
    const double cp = PropertyCorrelation(300, kWaterTc, {33363, 26790, 2610.5, 8896, 1169}, 2);
    EXPECT_NEAR(cp / 1000, 33.6, 0.1);
}

TEST(PropertyCorrelation, UnknownEquationsAndInvalidArguments)
{
    EXPECT_EQ(PropertyCorrelation(kRoom, kWaterTc, {1, 2, 3, 4, 5}, 0), 0);
    EXPECT_EQ(PropertyCorrelation(kRoom, kWaterTc, {1, 2, 3, 4, 5}, 1), 0);
    EXPECT_EQ(PropertyCorrelation(kRoom, kWaterTc, {1, 2, 3, 4, 5}, 8), 0);
    // Above Tc equation 3 takes a fractional power of a negative number.
    EXPECT_THROW(PropertyCorrelation(700, kWaterTc, {0.246, 5.3, -11.8, 11.9, -4.16}, 3), NumericFault);
    EXPECT_THROW(PropertyCorrelation(0, kWaterTc, {73.649, -7258.2, -7.3037, 4.1653e-06, 2}, 6), NumericFault);
    EXPECT_THROW(PropertyCorrelation(kRoom, 0, {0.246, 5.3, -11.8, 11.9, -4.16}, 3), NumericFault);
}
