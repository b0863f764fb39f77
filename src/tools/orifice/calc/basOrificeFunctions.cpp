#include "tools/orifice/calc/basOrificeFunctions.h"

#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"

namespace kestrova {

using checked::Div;
using checked::Exp;
using checked::Pow;
using checked::Sqr;

namespace {

constexpr TapStyle kFlangeTaps = 0;
constexpr TapStyle kDAndHalfDTaps = 1;
constexpr TapStyle kCornerTaps = 2;

// The validity warnings, in the order of their tests; the last one raised is
// the one that stays.
void checkValidity(Single dcm, Single Dm, Single beta, Single Re, TapStyle tap, std::string& message)
{
    if (1.25 > dcm)
        message = "Warning:  The orifice diameter < 1.25 cm (0.5 in)";
    if (single(0.05) > Dm)
        message = "Warning:  Pipe diameter < 5 cm (2 in)";
    if (Dm > 1.0)
        message = "Warning:  Pipe diameter > 1 m (39 in)";
    if (single(0.1) > beta)
        message = "Warning, Beta ratio is outside the range:  0.1 <= Beta (d/D) <= 0.75";
    if (beta > 0.75)
        message = "Warning, Beta ratio outside the range:  0.1 <= Beta (d/D) <= 0.75";

    if (tap == kFlangeTaps) {
        if (Re < 4000)
            message = "The Reynold's Number based on ID < 4000";
        const Single R = Pow(beta, 2) * (Dm * 170000);
        if (R > Re)
            message = "Warning:  The meter size/flow outside of ISO standard range.";
    } else if (tap == kDAndHalfDTaps || tap == kCornerTaps) {
        if (Re < 4000) {
            if (beta > 0.5)
                message = "Warning:  The meter size/flow outside of ISO standard range (Re < 4000, Beta > 0.5).";
            else if (single(0.1) > beta)
                message = "Warning:  The meter size/flow outside of ISO standard range (Re < 4000, Beta < 0.1).";
        }
        const Single R = Pow(beta, 2) * 16000;
        if (R > Re && 0.5 > beta)
            message = "Warning:  The meter size/flow outside of ISO standard range (Re < (16000*Beta^2).";
    }
}

struct TapSpacing {
    Single L1;
    Single L2;
};

TapSpacing tapSpacing(TapStyle tap, Single Dm)
{
    switch (tap) {
    case kFlangeTaps: {
        const Single spacing = Div(0.0254, Dm);
        return {spacing, spacing};
    }
    case kDAndHalfDTaps:
        return {1.0, single(0.47)};
    default:
        return {0.0, 0.0};
    }
}

} // namespace

Single OrificeDischargeCoefficient(Single D, Single beta, Single Re, TapStyle tap, std::string& message)
{
    FaultScope scope("OrificeDischargeCoefficient");
    const Single dcm = D * beta * 2.54;
    const Single Dm = D * 0.0254;
    checkValidity(dcm, Dm, beta, Re, tap, message);
    const TapSpacing taps = tapSpacing(tap, Dm);

    const double b = beta;
    const Single T1 = ((Pow(b, 2) * 0.0261) + 0.5961) - (Pow(b, 8) * 0.216) + (Pow(Div(b * 1000000, Re), 0.7) * 0.000521);
    const double A = Pow(Div(b * 19000, Re), 0.8);
    const Single T2 = Pow(b, 3.5) * (Pow(Div(1000000, Re), 0.3) * (A * 0.0063 + 0.0188));
    const Single T3 = Div(Pow(b, 4) * ((1 - A * 0.11) * (Exp(-10 * taps.L1) * 0.08 + 0.043 - Exp(-7 * taps.L1) * 0.123)),
                          1 - Pow(b, 4));
    const double M = Div(2 * taps.L2, 1 - b);
    const Single T4 = Pow(b, 1.3) * ((M - Pow(M, 1.1) * 0.8) * -0.031);
    Single T5 = 0.0;
    if (single(0.07112) > Dm)
        T5 = (2.8 - Dm / 0.0254) * ((0.75 - b) * 0.011);
    return T2 + T1 + T3 + T4 + T5;
}

Single OrificeThermalFactor(Single beta, Single alphaElement, Single alphaPipe, Single temperature,
                            Single referenceTemperature)
{
    FaultScope scope("OrificeThermalFactor");
    const double beta4 = Pow(beta, 4);
    return 1 + Div(2, 1 - beta4) * (alphaElement - beta4 * alphaPipe) * (temperature - referenceTemperature);
}

Single OrificeDrainHoleFactor(Single beta, Single holeDiameter, Single D)
{
    FaultScope scope("OrificeDrainHoleFactor");
    return 1 + Pow(Div(holeDiameter, beta * D), 2) * Sqr(1 - Pow(beta, 4));
}

} // namespace kestrova
