#include "numeric/numeric_fault.h"
#include "tools/orifice/calc/basOrificeFunctions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

using namespace kestrova;

namespace {

// The Reader-Harris/Gallagher equation as ISO 5167-2 (5.3.2.1) writes it, in
// double precision with D in millimetres, for comparison.
double isoDischargeCoefficient(double Dmm, double beta, double Re, double L1, double L2)
{
    const double A = std::pow(19000 * beta / Re, 0.8);
    const double M2 = 2 * L2 / (1 - beta);
    double C = 0.5961 + 0.0261 * beta * beta - 0.216 * std::pow(beta, 8)
        + 0.000521 * std::pow(1e6 * beta / Re, 0.7)
        + (0.0188 + 0.0063 * A) * std::pow(beta, 3.5) * std::pow(1e6 / Re, 0.3)
        + (0.043 + 0.080 * std::exp(-10 * L1) - 0.123 * std::exp(-7 * L1)) * (1 - 0.11 * A) * std::pow(beta, 4)
            / (1 - std::pow(beta, 4))
        - 0.031 * (M2 - 0.8 * std::pow(M2, 1.1)) * std::pow(beta, 1.3);
    if (Dmm < 71.12)
        C += 0.011 * (0.75 - beta) * (2.8 - Dmm / 25.4);
    return C;
}

double coefficient(double D, double beta, double Re, TapStyle tap)
{
    std::string message;
    return OrificeDischargeCoefficient(D, beta, Re, tap, message);
}

std::string warning(double D, double beta, double Re, TapStyle tap)
{
    std::string message;
    OrificeDischargeCoefficient(D, beta, Re, tap, message);
    return message;
}

const std::string kBetaLow = "Warning, Beta ratio is outside the range:  0.1 <= Beta (d/D) <= 0.75";
const std::string kBetaHigh = "Warning, Beta ratio outside the range:  0.1 <= Beta (d/D) <= 0.75";
const std::string kReynolds = "The Reynold's Number based on ID < 4000";
const std::string kSizeFlow = "Warning:  The meter size/flow outside of ISO standard range.";

} // namespace

TEST(OrificeDischargeCoefficient, AgreesWithTheStandardForEveryTapStyle)
{
    for (double D : {2.0, 4.026, 7.981, 23.25}) {
        for (double beta : {0.2, 0.4, 0.5, 0.6, 0.75}) {
            for (double Re : {5e3, 1e4, 1e5, 1e6, 1e8}) {
                const double Dm = D * 0.0254;
                const double Dmm = D * 25.4;
                EXPECT_NEAR(coefficient(D, beta, Re, 0), isoDischargeCoefficient(Dmm, beta, Re, 0.0254 / Dm, 0.0254 / Dm), 3e-6)
                    << "flange D " << D << " beta " << beta << " Re " << Re;
                EXPECT_NEAR(coefficient(D, beta, Re, 1), isoDischargeCoefficient(Dmm, beta, Re, 1, 0.47), 3e-6)
                    << "D-D/2 D " << D << " beta " << beta << " Re " << Re;
                EXPECT_NEAR(coefficient(D, beta, Re, 2), isoDischargeCoefficient(Dmm, beta, Re, 0, 0), 3e-6)
                    << "corner D " << D << " beta " << beta << " Re " << Re;
            }
        }
    }
}

TEST(OrificeDischargeCoefficient, TypicalValuesOfACommonPlate)
{
    // A 4 in Schedule 40 line, beta 0.5, Re 1e5: C about 0.606 for every tap style.
    EXPECT_NEAR(coefficient(4.026, 0.5, 1e5, 0), 0.6062, 0.0005);
    EXPECT_NEAR(coefficient(4.026, 0.5, 1e5, 1), 0.6058, 0.0005);
    EXPECT_NEAR(coefficient(4.026, 0.5, 1e5, 2), 0.6069, 0.0005);
    // Corner taps: T3 and T4 vanish, so the tap terms add nothing.
    EXPECT_NEAR(coefficient(4.026, 0.5, 1e5, 2), isoDischargeCoefficient(102.26, 0.5, 1e5, 0, 0), 2e-6);
    // An unknown tap style takes the corner spacings and raises no tap warning.
    EXPECT_EQ(coefficient(4.026, 0.5, 1e5, 7), coefficient(4.026, 0.5, 1e5, 2));
    EXPECT_EQ(warning(4.026, 0.5, 100, 7), "");
}

TEST(OrificeDischargeCoefficient, ValidityWarningsLastOneStays)
{
    EXPECT_EQ(warning(4.026, 0.5, 1e5, 0), "");
    EXPECT_EQ(warning(10, 0.8, 1e6, 0), kBetaHigh);
    EXPECT_EQ(warning(10, 0.05, 1e6, 0), kBetaLow);
    EXPECT_EQ(warning(1.5, 0.5, 3000, 0), kReynolds); // never the pipe diameter text
    EXPECT_EQ(warning(1.5, 0.5, 1e6, 0), "Warning:  Pipe diameter < 5 cm (2 in)");
    EXPECT_EQ(warning(48, 0.5, 1e7, 0), "Warning:  Pipe diameter > 1 m (39 in)");
    EXPECT_EQ(warning(4.026, 0.12, 1e6, 0), "Warning:  The orifice diameter < 1.25 cm (0.5 in)");
    // 170000 beta^2 D(m): 0.25 * 0.10226 * 170000 = 4346 > 4200.
    EXPECT_EQ(warning(4.026, 0.5, 4200, 0), kSizeFlow);
    EXPECT_EQ(warning(4.026, 0.7, 2000, 1), "Warning:  The meter size/flow outside of ISO standard range (Re < 4000, Beta > 0.5).");
    EXPECT_EQ(warning(40, 0.05, 2000, 2), "Warning:  The meter size/flow outside of ISO standard range (Re < 4000, Beta < 0.1).");
    EXPECT_EQ(warning(4.026, 0.4, 2000, 2), "Warning:  The meter size/flow outside of ISO standard range (Re < (16000*Beta^2).");
    EXPECT_EQ(warning(4.026, 0.45, 3000, 1), "Warning:  The meter size/flow outside of ISO standard range (Re < (16000*Beta^2).");
    // The message is assigned only by a warning: an earlier text survives a clean call.
    std::string message = "earlier";
    OrificeDischargeCoefficient(4.026, 0.5, 1e5, 0, message);
    EXPECT_EQ(message, "earlier");
}

TEST(OrificeDischargeCoefficient, LimitsAreStrict)
{
    EXPECT_EQ(warning(10, 0.1, 1e6, 0), "");
    EXPECT_EQ(warning(10, 0.75, 1e6, 0), "");
    EXPECT_EQ(warning(4.026, 0.5, 4000, 1), "");
    EXPECT_EQ(warning(4.026, 0.5, 4000, 2), "");
    EXPECT_EQ(warning(1.25 / 2.54 / 0.25, 0.25, 1e6, 2), ""); // a bore of 1.25 cm
    EXPECT_EQ(warning(4.026, 0.5, 3999, 2), "");              // beta 0.5 is not above 0.5
}

TEST(OrificeDischargeCoefficient, SmallPipeTermFromTheRoundedDiameter)
{
    // Below 2.8 in the small-pipe term adds 0.011 (0.75 - beta)(2.8 - D).
    const double withTerm = coefficient(2.0, 0.5, 1e5, 2);
    EXPECT_NEAR(withTerm, isoDischargeCoefficient(50.8, 0.5, 1e5, 0, 0), 3e-6);
    EXPECT_NEAR(withTerm - isoDischargeCoefficient(80, 0.5, 1e5, 0, 0), 0.011 * 0.25 * 0.8, 0.0002);
    // At 2.8 in the single D * 0.0254 and the single 0.07112 decide: they are
    // the same single, so the term (for D below 0.07112 m) stays out.
    const float Dm = static_cast<float>(static_cast<double>(2.8f) * 0.0254);
    ASSERT_EQ(Dm, 0.07112f);
    const double atLimit = coefficient(2.8, 0.5, 1e5, 2);
    const double withoutTerm = isoDischargeCoefficient(80, 0.5, 1e5, 0, 0);
    EXPECT_NEAR(atLimit, withoutTerm, 1e-6);
    // A hair below, the term is in.
    EXPECT_NEAR(coefficient(2.79, 0.5, 1e5, 2) - withoutTerm, 0.011 * (0.75 - 0.5) * (2.8 - 2.79), 1e-6);
}

TEST(OrificeDischargeCoefficient, FaultsOfImpossibleInputs)
{
    EXPECT_THROW(coefficient(4.026, 0.5, 0, 0), NumericFault);
    EXPECT_THROW(coefficient(4.026, 1.0, 1e5, 0), NumericFault);
    EXPECT_THROW(coefficient(0, 0.5, 1e5, 0), NumericFault);
    EXPECT_THROW(coefficient(4.026, 0.5, -1e5, 0), NumericFault); // negative base under 0.7
}

TEST(OrificeCorrectionFactors, ThermalExpansionAndDrainHole)
{
    // A stainless plate (9.6e-6 /°F) in carbon steel pipe (6.2e-6 /°F), 400 °F against 68 °F.
    const double thermal = OrificeThermalFactor(0.5, 9.6e-6, 6.2e-6, 400, 68);
    EXPECT_NEAR(thermal, 1 + 2 / (1 - 0.0625) * (9.6e-6 - 0.0625 * 6.2e-6) * 332, 1e-7);
    // For a small bore the factor is the bore's own area growth, 1 + 2 a dT.
    EXPECT_NEAR(OrificeThermalFactor(0.01, 9.6e-6, 6.2e-6, 400, 68), 1 + 2 * 9.6e-6 * 332, 1e-7);
    EXPECT_EQ(OrificeThermalFactor(0.5, 9.6e-6, 6.2e-6, 68, 68), 1);

    EXPECT_EQ(OrificeDrainHoleFactor(0.5, 0, 4), 1);
    // A 0.1 in hole in a 2 in bore: 1 + 0.05^2 sqrt(1 - 0.5^4).
    EXPECT_NEAR(OrificeDrainHoleFactor(0.5, 0.1, 4), 1 + 0.0025 * std::sqrt(0.9375), 1e-7);
    EXPECT_THROW(OrificeThermalFactor(1, 9.6e-6, 6.2e-6, 400, 68), NumericFault);
    EXPECT_THROW(OrificeDrainHoleFactor(0, 0.1, 4), NumericFault);
}
