// Frictional pressure drop of a gas-liquid line: Friedel, Chisholm-Baroczy or
// Lockhart-Martinelli, chosen from the viscosity ratio, the orientation and
// the mass flux. Named intermediates are singles; every power is the general
// power operation, also for squares.

#include "hydraulics/basTransportFunctions.h"

#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"

#include <utility>

namespace kestrova {

using checked::Div;
using checked::Exp;
using checked::Log;
using checked::Pow;

namespace {

constexpr double kGc = 32.174;

struct Mixture {
    Single sigma; // dyn/cm
    Single D;     // ft
    Single A;     // ft2
    Single G;     // lb/(ft2 s)
    Single Gsi;   // kg/(m2 s)
    Single Gl;
    Single Gg;
    Single x; // quality
    Single e; // relative roughness
};

// A frictional drop in psi: G^2 (factor) / 2 / gc / density / D / 144, where
// the factor is a friction factor times a length (and a multiplier).
double frictionDrop(double massFlux, double factor, double density, double D)
{
    return Div(Div(Pow(massFlux, 2) * factor / 2 / kGc, density), D) / 144;
}

// Friedel's smooth-pipe friction factor.
Single friedelFriction(Single re)
{
    if (re < 1055)
        return Div(64, re);
    return Pow(0.86859 * Log(Div(re, 1.964 * Log(re) - 3.8215)), -2);
}

void friedel(const TwoPhaseLine& in, const Mixture& m, TwoPhaseResult& out)
{
    const double rhoH = out.homogeneousDensity;
    const Single Fr = Div(Pow(m.G, 2), Pow(rhoH, 2) * kGc * m.D);
    const Single We = Div(Pow(m.G, 2) * m.D, rhoH * kGc * m.sigma * 2.248089e-6 * 2.54 * 12);
    out.gasReynolds = ReynoldsFromMassFlow(in.diameter, in.gasFlow, in.gasViscosity);
    out.liquidReynolds = ReynoldsFromMassFlow(in.diameter, in.liquidFlow, in.liquidViscosity);
    const Single fg = friedelFriction(out.gasReynolds);
    const Single fl = friedelFriction(out.liquidReynolds);
    out.gasFriction = fg;
    out.liquidFriction = fl;

    const double x = m.x;
    const double densityRatio = Div(in.liquidDensity, in.gasDensity);
    const double viscosityRatio = Div(in.gasViscosity, in.liquidViscosity);
    const Single E = Pow(1 - x, 2) + Div(Pow(x, 2) * (fg * in.liquidDensity), in.gasDensity * fl);
    Single phi = 0.0;
    if (in.orientation == "Horizontal" || in.orientation == "Vertical Up") {
        phi = E + 3.43 * Pow(x, 0.685) * Pow(1 - x, 0.24) * Pow(densityRatio, 0.8) * Pow(viscosityRatio, 0.22)
                * Pow(1 - viscosityRatio, 0.89) * Pow(Fr, -0.047) * Pow(We, -0.0334);
    } else if (in.orientation == "Vertical Down") {
        phi = E + 38.5 * Pow(x, 0.75) * Pow(1 - x, 0.314) * Pow(densityRatio, 0.86) * Pow(viscosityRatio, 0.73)
                * Pow(1 - viscosityRatio, 6.84) * Pow(Fr, -0.0001) * Pow(We, -0.037);
    }
    out.pressureDrop = frictionDrop(m.G, phi * in.length * fl, in.liquidDensity, m.D);
}

void chisholmBaroczy(const TwoPhaseLine& in, const Mixture& m, TwoPhaseResult& out)
{
    const Single totalFlow = in.gasFlow + in.liquidFlow;
    out.liquidReynolds = ReynoldsFromMassFlow(in.diameter, totalFlow, in.liquidViscosity);
    const Single flo = FrictionFactor(out.liquidReynolds, m.e, 1, 1, 1);
    const Single dPlo = frictionDrop(m.G, flo * 100, in.liquidDensity, m.D);
    out.gasReynolds = ReynoldsFromMassFlow(in.diameter, totalFlow, in.gasViscosity);
    const Single fgo = FrictionFactor(out.gasReynolds, m.e, 1, 1, 1);
    const Single dPgo = frictionDrop(m.G, fgo * 100, in.gasDensity, m.D);
    out.liquidFriction = flo;
    out.gasFriction = fgo;

    const Single gamma = Pow(Div(dPgo, dPlo), 0.5);
    Single B;
    if (gamma > 0 && gamma < 9.5)
        B = Div(55, Pow(m.Gsi, 0.5));
    else if (gamma < 28)
        B = Div(520, gamma * Pow(m.Gsi, 0.5));
    else
        B = Div(15000, Pow(gamma, 2) * Pow(m.Gsi, 0.5));
    const Single n = 1.75;
    const Single Q = Pow(m.x, n) + B * Pow(m.x, n / 2) * Pow(1 - m.x, n / 2);
    const Single phi = (Pow(gamma, 2) - 1) * Q + 1;
    out.pressureDrop = frictionDrop(m.G, phi * in.length * flo, in.liquidDensity, m.D);
}

// Coefficients of ln phi = a + b u + c u^2 - d u^3 - e u^4.
struct MartinelliCurve {
    double a, b, c, d, e;
    double lnPhi(double u) const { return a + b * u + c * Pow(u, 2) - d * Pow(u, 3) - e * Pow(u, 4); }
};
struct MartinelliPair {
    MartinelliCurve liquid, gas;
};

const MartinelliPair& martinelliCurves(bool liquidTurbulent, bool gasTurbulent)
{
    static const MartinelliPair tt{{1.44, -0.508, 0.0579, 0.000376, 0.000444}, {1.44, 0.492, 0.0577, 0.000352, 0.000432}};
    static const MartinelliPair tv{{1.25, -0.458, 0.067, 0.00213, 0.000585}, {1.25, 0.542, 0.067, 0.00212, 0.000583}};
    static const MartinelliPair vt{{1.24, -0.484, 0.072, 0.00127, 0.00071}, {1.24, 0.516, 0.072, 0.00126, 0.000706}};
    static const MartinelliPair vv{{0.979, -0.444, 0.096, 0.00245, 0.00144}, {0.979, 0.555, 0.096, 0.00244, 0.00144}};
    if (liquidTurbulent)
        return gasTurbulent ? tt : tv;
    return gasTurbulent ? vt : vv;
}

void lockhartMartinelli(const TwoPhaseLine& in, const Mixture& m, TwoPhaseResult& out)
{
    out.gasReynolds = ReynoldsFromMassFlow(in.diameter, in.gasFlow, in.gasViscosity);
    const Single fg = FrictionFactor(out.gasReynolds, m.e, 1, 1, 1);
    const Single dPg = frictionDrop(m.Gg, fg * 100, in.gasDensity, m.D);
    out.liquidReynolds = ReynoldsFromMassFlow(in.diameter, in.liquidFlow, in.liquidViscosity);
    const Single fl = FrictionFactor(out.liquidReynolds, m.e, 1, 1, 1);
    const Single dPl = frictionDrop(m.Gl, fl * 100, in.liquidDensity, m.D);
    out.liquidFriction = fl;
    out.gasFriction = fg;

    const Single u = Log(Pow(Div(dPl, dPg), 0.5));
    const MartinelliPair& curves = martinelliCurves(out.liquidReynolds > 2000, out.gasReynolds > 2000);
    const Single lnPhiL = curves.liquid.lnPhi(u);
    const Single lnPhiG = curves.gas.lnPhi(u);
    const Single Pl = Pow(Exp(lnPhiL), 2) * dPl;
    const Single Pg = Pow(Exp(lnPhiG), 2) * dPg;
    const Single larger = Pl > Pg ? Pl : Pg;
    out.pressureDrop = larger / 100 * in.length;
}

Mixture commonStart(const TwoPhaseLine& in, TwoPhaseResult& out)
{
    Mixture m;
    const double Wg = in.gasFlow;
    const double Wl = in.liquidFlow;
    m.sigma = in.surfaceTension * 1000;
    m.D = in.diameter / 12;
    m.A = Pow(m.D, 2) * kPi / 4;
    m.G = Div(Div(Wg + Wl, m.A), 3600);
    m.Gsi = Pow(3.2808, 2) * m.G / 2.20462;
    m.Gl = Div(Div(Wl, m.A), 3600);
    m.Gg = Div(Div(Wg, m.A), 3600);
    out.homogeneousDensity = Div(Wg + Wl, Div(Wg, in.gasDensity) + Div(Wl, in.liquidDensity));
    const double viscositySum = Div(Wg, in.gasViscosity) + Div(Wl, in.liquidViscosity);
    out.homogeneousViscosity = (Div(Wg, viscositySum) + Div(Wl, viscositySum)) / 1000;
    m.x = Div(Wg, Wg + Wl);
    m.e = Div(in.roughness, m.D);
    return m;
}

} // namespace

void TwoPhaseDrop(const TwoPhaseLine& in, TwoPhaseResult& out)
{
    FaultScope scope("TwoPhaseDrop");
    Mixture m = commonStart(in, out);

    if (Div(in.liquidViscosity, in.gasViscosity) < 1000) {
        out.correlation = "Friedel";
        friedel(in, m, out);
    } else if (in.orientation != "Horizontal") {
        out.correlation = "N/A";
    } else if (m.Gsi >= 100) {
        out.correlation = "Chisholm-Baroczy";
        chisholmBaroczy(in, m, out);
    } else {
        out.correlation = "Lockhart-Martinelli";
        lockhartMartinelli(in, m, out);
    }

    RegimeMapReading reading = FlowRegimeMap(in.orientation, m.Gl, m.Gg, in.liquidDensity, in.gasDensity,
                                             in.liquidViscosity, m.sigma);
    out.regime = std::move(reading.regime);
    out.mapCoordinates = std::move(reading.mapCoordinates);
}

} // namespace kestrova
