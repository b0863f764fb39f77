#include "hydraulics/basTransportFunctions.h"
#include "numeric/numeric_fault.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace kestrova;

namespace {

// With water-like reference properties (62.3 lb/ft3, gas 0.075 lb/ft3,
// 73 dyn/cm, 1 cP) lambda and psi are 1, so the map reads X = Gl / Gg and
// Y = Gg (per hour): a point can be placed on the map directly.
RegimeMapReading at(const char* orientation, double X, double Y)
{
    Single gasFlux = Y / 3600;
    Single liquidFlux = X * Y / 3600;
    return FlowRegimeMap(orientation, liquidFlux, gasFlux, 62.3, 0.075, 1, 73);
}

std::string horizontal(double X, double lnY) { return at("Horizontal", X, std::exp(lnY)).regime; }
std::string vertical(double X, double lnY) { return at("Vertical Up", X, std::exp(lnY)).regime; }

} // namespace

TEST(FlowRegimeMap, CoordinatesLineAndFluxesScaledInPlace)
{
    Single gasFlux = 1;
    Single liquidFlux = 2;
    const RegimeMapReading reading = FlowRegimeMap("Horizontal", liquidFlux, gasFlux, 62.3, 0.075, 1, 73);
    EXPECT_EQ(gasFlux, 3600);
    EXPECT_EQ(liquidFlux, 7200);
    EXPECT_EQ(reading.mapCoordinates, "Flow Regime Map:  X = 2.0 , Y = 3,600.0");
    // Baker's parameters for another fluid: lambda = sqrt(rho_l/62.3 * rho_g/0.075),
    // psi = (73 / sigma) (mu_l (62.3 / rho_l)^2)^(1/3).
    gasFlux = 10;
    liquidFlux = 20;
    const RegimeMapReading oil = FlowRegimeMap("Horizontal", liquidFlux, gasFlux, 50, 0.3, 5, 25);
    // lambda = 1.79172, psi = 5.78165: X = 2 lambda psi = 20.72, Y = 36000 / lambda = 20092.4.
    EXPECT_EQ(oil.mapCoordinates, "Flow Regime Map:  X = 20.7 , Y = 20,092.4");
}

TEST(FlowRegimeMap, RangeTextsComeFirstAndAreStrict)
{
    EXPECT_EQ(at("Horizontal", 10001, 1000).regime, "X>10000");
    EXPECT_EQ(at("Horizontal", 0.09, 1000).regime, "X<0.1");
    EXPECT_EQ(at("Horizontal", 1, 100001).regime, "Y>100000");
    EXPECT_EQ(at("Horizontal", 1, 99).regime, "Y<100");
    EXPECT_NE(at("Horizontal", 10000, 1000).regime, "X>10000");
    Single tenthFlux = 0.1, unitFlux = 1; // X is the single 0.1 exactly
    EXPECT_NE(FlowRegimeMap("Horizontal", tenthFlux, unitFlux, 62.3, 0.075, 1, 73).regime, "X<0.1");
    EXPECT_NE(at("Horizontal", 1, 100000).regime, "Y>100000");
    EXPECT_NE(at("Horizontal", 1, 100).regime, "Y<100");
    // Vertical down has no map: N/A once the range tests pass.
    EXPECT_EQ(at("Vertical Down", 1, 1000).regime, "N/A");
    EXPECT_EQ(at("Vertical Down", 1, 50).regime, "Y<100");
    EXPECT_EQ(at("Sideways", 1, 1000).regime, "N/A");
}

TEST(FlowRegimeMap, HorizontalMapRegions)
{
    // X = 1: H1 8.515, H2 9.8113, H3 11.4185.
    EXPECT_EQ(horizontal(1, 8.0), "Stratified");
    EXPECT_EQ(horizontal(1, 9.0), "Wave");
    EXPECT_EQ(horizontal(1, 11.0), "Annular");
    EXPECT_EQ(horizontal(1, 11.5), "Dispersed");
    // X = 10: H1 8.140, H4 8.699, H3 10.474.
    EXPECT_EQ(horizontal(10, 8.0), "Stratified");
    EXPECT_EQ(horizontal(10, 8.5), "Wave");
    EXPECT_EQ(horizontal(10, 10.0), "Annular");
    EXPECT_EQ(horizontal(10, 11.0), "Dispersed");
    // X = 30 and 100: the annular level 10.3087.
    EXPECT_EQ(horizontal(30, 7.5), "Stratified");
    EXPECT_EQ(horizontal(30, 8.2), "Slug");
    EXPECT_EQ(horizontal(30, 10.3), "Annular");
    EXPECT_EQ(horizontal(30, 10.32), "Dispersed");
    EXPECT_EQ(horizontal(100, 6.8), "Stratified");
    EXPECT_EQ(horizontal(100, 9.0), "Slug");
    EXPECT_EQ(horizontal(100, 10.0), "Annular");
    // X = 1000: H2 5.377, H7 6.240, H6 7.624, bubble level 9.705.
    EXPECT_EQ(horizontal(1000, 5.0), "Stratified");
    EXPECT_EQ(horizontal(1000, 6.0), "Plug");
    EXPECT_EQ(horizontal(1000, 7.0), "Slug");
    EXPECT_EQ(horizontal(1000, 9.0), "Bubble");
    EXPECT_EQ(horizontal(1000, 10.0), "Froth");
    // X = 8000: H6 5.395.
    EXPECT_EQ(horizontal(8000, 5.0), "Plug");
    EXPECT_EQ(horizontal(8000, 8.0), "Bubble");
    EXPECT_EQ(horizontal(8000, 10.0), "Froth");
}

TEST(FlowRegimeMap, VerticalMapRegionsAndRowLimits)
{
    // X = 1 is still the first row (V1 9.8523); just above it the second (V2 9.852).
    EXPECT_EQ(vertical(1, 9.0), "Slug");
    EXPECT_EQ(vertical(1, 9.5), "Annular");
    EXPECT_EQ(vertical(1, 9.86), "Dispersed");
    EXPECT_EQ(vertical(1.0001, 9.8519), "Annular");
    EXPECT_EQ(vertical(1, 9.8519), "Annular");
    EXPECT_EQ(vertical(1.5, 9.7), "Annular"); // V1 9.550 would say dispersed, V2 9.713 annular
    EXPECT_EQ(vertical(1.01, 9.8521), "Dispersed");
    EXPECT_EQ(vertical(1, 9.8521), "Annular");      // V1 9.8523
    EXPECT_EQ(vertical(1.0001, 9.8521), "Dispersed"); // V2 9.85197
    // X = 50: V7 8.122, V4 8.485, V3 9.490.
    EXPECT_EQ(vertical(50, 8.0), "Slug");
    EXPECT_EQ(vertical(50, 8.3), "Bubble");
    EXPECT_EQ(vertical(50, 9.0), "Annular");
    EXPECT_EQ(vertical(50, 9.6), "Dispersed");
    // X = 150: V7 7.807, bubble 8.7796, V5 9.065, V3 11.225.
    EXPECT_EQ(vertical(150, 8.5), "Bubble");
    EXPECT_EQ(vertical(150, 9.0), "Froth");
    EXPECT_EQ(vertical(150, 10.0), "Annular");
    EXPECT_EQ(vertical(150, 11.3), "Dispersed");
    // X = 300: V6 10.581; beyond it annular.
    EXPECT_EQ(vertical(300, 10.0), "Froth");
    EXPECT_EQ(vertical(300, 11.0), "Annular");
    // X = 1000: slug, bubble, otherwise froth.
    EXPECT_EQ(vertical(1000, 7.0), "Slug");
    EXPECT_EQ(vertical(1000, 8.5), "Bubble");
    EXPECT_EQ(vertical(1000, 9.0), "Froth");
}

TEST(FlowRegimeMap, ZeroGasFluxOrDensityFaults)
{
    Single gas = 0, liquid = 1;
    EXPECT_THROW(FlowRegimeMap("Horizontal", liquid, gas, 62.3, 0.075, 1, 73), NumericFault);
    gas = 1;
    EXPECT_THROW(FlowRegimeMap("Horizontal", liquid, gas, 62.3, 0, 1, 73), NumericFault);
}
