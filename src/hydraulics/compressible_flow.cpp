// Compressible gas lines: the adiabatic (Fanno) and isothermal solvers. Each
// finds the outlet state by halving a step from a base value, and says
// whether the line runs subsonic or choked.

#include "hydraulics/basTransportFunctions.h"

#include "numeric/checked_math.h"
#include "numeric/numeric_fault.h"

#include <cmath>

namespace kestrova {

using checked::Div;
using checked::Log;
using checked::Pow;
using checked::Sqr;

namespace {

// The gas constant (ft lbf / lbmol °R) and gc, each held as a single.
constexpr double kGasConstant = single(1545.3563);
constexpr double kGc = single(32.174);
constexpr double kRankineOffset = 459.67;
constexpr int kMaximumRounds = 200;
constexpr double kTolerance = 1e-15;

constexpr const char* kNoConvergenceTitle = "Isothermal Vapor Flow";
constexpr const char* kNoConvergenceText =
    "The compressible flow calculation did not converge after 200 interations.\n"
    "Check the input conditions and try again.";

struct InletState {
    Single T;  // °R
    Single P;  // lbf/ft2
    Single G;  // lb/(ft2 s)
    Single M1; // inlet Mach number
};

InletState commonStart(const GasLineInlet& in, GasLineOutlet& out)
{
    InletState s;
    s.T = in.temperature + kRankineOffset;
    s.P = in.pressure * 144;
    const Single rho = Div(s.P * in.molecularWeight, in.compressibility * kGasConstant * s.T);
    const Single c = Sqr(Div(in.heatCapacityRatio * kGc * in.compressibility * kGasConstant * s.T, in.molecularWeight));
    out.sonicVelocity = c;
    s.G = Div(Div(in.massFlow, in.flowArea), 3600);
    s.M1 = Div(Div(s.G, rho), c);
    out.inletMach = s.M1;
    return s;
}

void reportNoConvergence(UserFeedback& user)
{
    user.showMessage(kNoConvergenceTitle, kNoConvergenceText, MessageIcon::Warning);
}

} // namespace

void AdiabaticGasFlow(const GasLineInlet& in, GasLineOutlet& out, UserFeedback& user)
{
    FaultScope scope("AdiabaticGasFlow");
    const InletState s = commonStart(in, out);
    const double k = in.heatCapacityRatio;
    const double M1 = s.M1;
    const double resistance = in.pipeResistance + in.fittingResistance;

    if (M1 > 1) {
        out.flowType = kFlowChokedAtInlet;
        out.outletMach = 1.0;
        out.outletPressure = 0.0;
        user.beep();
    }

    double base = 1;
    double step = M1 - 1;
    bool ended = false;
    Single M2;
    // The inlet's terms of F are the same in every round: the first round
    // forms them where F forms them (so that a fault arises at the same
    // step), the later rounds reuse them.
    const double M1squared = Pow(M1, 2);
    double inletTerm = 0, logFactor = 0;
    for (int round = 1; round <= kMaximumRounds && !ended; ++round) {
        step *= 0.5;
        M2 = base + step;
        out.outletMach = M2;
        const double A = 1 + (k - 1) / 2 * Pow(M2, 2);
        const double L = Log(Div(M1squared * A, Pow(M2, 2) * A));
        if (round == 1) {
            inletTerm = Div(1, M1squared * k);
            logFactor = Div(k + 1, 2 * k);
        }
        const double F = resistance - inletTerm + Div(1, Pow(M2, 2) * k) - logFactor * L;
        if (F <= 0)
            base = M2;
        ended = std::fabs(step) < kTolerance || F == 0;
    }
    if (!ended) {
        reportNoConvergence(user);
        return;
    }

    out.flowType = kFlowSubsonic;
    const Single H = 1 + Pow(M1, 2) * (k - 1) / 2;
    const double S = Sqr(Div(2 * H, k + 1));
    const Single sonicPressure = s.P * M1 * S / 144;
    if (M2 >= 1) {
        out.flowType = kFlowChokedAtOutlet;
        user.beep();
        out.outletPressure = sonicPressure;
        out.outletTemperature = Div(2 * H, k + 1) * s.T - kRankineOffset;
    }
    const double C1 = 1 + Pow(M1, 2) * (k - 1) / 2;
    const double C2 = 1 + Pow(M2, 2) * (k - 1) / 2;
    const double R = Sqr(Div(C2, C1));
    const Single P2 = Div(s.P * M1, M2 * R);
    out.outletTemperature = Pow(Div(P2 * M2, s.P * M1), 2) * s.T - kRankineOffset;
    out.outletPressure = P2 / 144;
}

void IsothermalGasFlow(const GasLineInlet& in, GasLineOutlet& out, UserFeedback& user)
{
    FaultScope scope("IsothermalGasFlow");
    const InletState s = commonStart(in, out);
    const double k = in.heatCapacityRatio;
    const double P = s.P;
    const Single limitMach = Div(1, Sqr(k));

    if (s.M1 > limitMach) {
        out.flowType = kFlowChokedAtInlet;
        out.outletPressure = 0.0;
        user.beep();
    }

    const double X = Div(Div(Pow(s.G, 2) * in.compressibility * kGasConstant * s.T, kGc), in.molecularWeight);
    const double resistance = in.pipeResistance + in.fittingResistance;
    double base = P;
    double step = -P;
    bool ended = false;
    for (int round = 1; round <= kMaximumRounds && !ended; ++round) {
        step *= 0.5;
        const Single P2 = base + step;
        out.outletPressure = P2;
        const double L = Log(Div(P, P2));
        const double F = (Pow(P, 2) - Pow(P2, 2)) - X * (2 * L + resistance);
        if (F <= 0)
            base = P2;
        ended = std::fabs(step) < kTolerance || F == 0;
    }
    if (!ended) {
        reportNoConvergence(user);
        return;
    }

    out.outletMach = Div(P * s.M1, out.outletPressure);
    out.flowType = kFlowSubsonic;
    const Single criticalPressure = P * s.M1 * Sqr(k) / 144;
    if (out.outletMach >= limitMach) {
        out.flowType = kFlowChokedAtOutlet;
        user.beep();
        out.outletPressure = criticalPressure;
    }
    out.outletPressure = out.outletPressure / 144;
}

} // namespace kestrova
