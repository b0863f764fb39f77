// The flow regime maps of gas-liquid flow: the coordinates X and Y from the
// phase mass fluxes and properties, then the boundary lines of the horizontal
// or the upward vertical map in logarithmic coordinates.

#include "hydraulics/basTransportFunctions.h"

#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

#include <vector>

namespace kestrova {

using checked::Div;
using checked::Log;
using checked::Pow;
using checked::Sqr;

namespace {

// One row of a map: while X is at or below `upToX`, the tests run from left to
// right and the first boundary at or above ln Y names the regime.
struct Test {
    double constant, slope; // the boundary's ln Y at u = ln X: constant + slope u
    const char* regime;
    double boundary(double u) const { return constant + slope * u; }
};
struct Row {
    double upToX; // the last row holds every X
    std::vector<Test> tests;
    const char* otherwise;
};

Test line(double constant, double slope, const char* regime)
{
    return {constant, slope, regime};
}
// A level boundary: ln X is finite here, so 0 u adds nothing.
Test level(double value, const char* regime)
{
    return {value, 0.0, regime};
}

constexpr double kAnyX = 1e300;

const std::vector<Row>& horizontalMap()
{
    static const auto H1 = [](const char* r) { return line(8.515, -0.163, r); };
    static const auto H2 = [](const char* r) { return line(9.8113, -0.642, r); };
    static const auto H3 = [](const char* r) { return line(11.4185, -0.41, r); };
    static const auto H4 = [](const char* r) { return line(9.2541, -0.241, r); };
    static const auto H5 = [](const char* r) { return line(4.4555, 1.057, r); };
    static const auto H6 = [](const char* r) { return line(15.029, -1.072, r); };
    static const auto H7 = [](const char* r) { return line(7.6008, -0.197, r); };
    static const std::vector<Row> rows{
        {single(4.013), {H1("Stratified"), H2("Wave"), H3("Annular")}, "Dispersed"},
        {15, {H1("Stratified"), H4("Wave"), H3("Annular")}, "Dispersed"},
        {single(40.322), {H2("Stratified"), H4("Slug"), level(single(10.3087), "Annular")}, "Dispersed"},
        {single(143.51), {H2("Stratified"), H5("Slug"), level(single(10.3087), "Annular")}, "Dispersed"},
        {5000, {H2("Stratified"), H7("Plug"), H6("Slug"), level(single(9.705), "Bubble")}, "Froth"},
        {kAnyX, {H6("Plug"), level(single(9.705), "Bubble")}, "Froth"},
    };
    return rows;
}

const std::vector<Row>& verticalMap()
{
    static const auto V1 = [](const char* r) { return line(9.8523, -0.7465, r); };
    static const auto V2 = [](const char* r) { return line(9.852, -0.3438, r); };
    static const auto V3 = [](const char* r) { return line(3.3106, 1.5795, r); };
    static const auto V4 = [](const char* r) { return line(6.8254, 0.4243, r); };
    static const auto V5 = [](const char* r) { return line(5.5305, 0.7055, r); };
    static const auto V6 = [](const char* r) { return line(-7.8852, 3.2376, r); };
    static const auto V7 = [](const char* r) { return line(9.2435, -0.2866, r); };
    const double bubbleLevel = single(8.7796);
    static const std::vector<Row> rows{
        {1, {V7("Slug"), V1("Annular")}, "Dispersed"},
        {30, {V7("Slug"), V2("Annular")}, "Dispersed"},
        {100, {V7("Slug"), V4("Bubble"), V3("Annular")}, "Dispersed"},
        {180, {V7("Slug"), level(bubbleLevel, "Bubble"), V5("Froth"), V3("Annular")}, "Dispersed"},
        {200, {V7("Slug"), level(bubbleLevel, "Bubble"), V5("Froth")}, "Annular"},
        {400, {V7("Slug"), level(bubbleLevel, "Bubble"), V6("Froth")}, "Annular"},
        {kAnyX, {V7("Slug"), level(bubbleLevel, "Bubble")}, "Froth"},
    };
    return rows;
}

std::string readMap(const std::vector<Row>& rows, Single X, Single Y)
{
    const double u = Log(X);
    const double v = Log(Y);
    for (const Row& row : rows) {
        if (!(X <= row.upToX))
            continue;
        for (const Test& test : row.tests) {
            const Single boundary = test.boundary(u);
            if (boundary >= v)
                return test.regime;
        }
        return row.otherwise;
    }
    return "N/A";
}

} // namespace

std::string RegimeAt(const std::string& orientation, Single X, Single Y)
{
    if (X > 10000)
        return "X>10000";
    if (X < 0.1)
        return "X<0.1";
    if (Y > 100000)
        return "Y>100000";
    if (Y < 100)
        return "Y<100";
    if (orientation == "Horizontal")
        return readMap(horizontalMap(), X, Y);
    if (orientation == "Vertical Up")
        return readMap(verticalMap(), X, Y);
    return "N/A";
}

RegimeMapReading FlowRegimeMap(const std::string& orientation, Single& liquidFlux, Single& gasFlux,
                               Single liquidDensity, Single gasDensity, Single liquidViscosity,
                               Single surfaceTension)
{
    FaultScope scope("FlowRegimeMap");
    liquidFlux = liquidFlux * 3600;
    gasFlux = gasFlux * 3600;
    const Single lambda = Sqr((liquidDensity / 62.3) * Div(gasDensity, 0.075));
    const Single psi = Div(73, surfaceTension) * Pow(liquidViscosity * Pow(Div(62.3, liquidDensity), 2), 1.0 / 3.0);
    const Single X = Div(liquidFlux, gasFlux) * lambda * psi;
    const Single Y = Div(gasFlux, lambda);

    RegimeMapReading reading;
    reading.mapCoordinates.reserve(64);
    reading.mapCoordinates.append("Flow Regime Map:  X = ")
        .append(formatMask(X, "##,##0.0"))
        .append(" , Y = ")
        .append(formatMask(Y, "###,##0.0"));
    reading.regime = RegimeAt(orientation, X, Y);
    return reading;
}

} // namespace kestrova
