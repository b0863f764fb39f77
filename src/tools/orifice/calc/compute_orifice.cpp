#include "tools/orifice/calc/compute_orifice.h"

#include "hydraulics/basTransportFunctions.h"
#include "numeric/checked_math.h"
#include "numeric/display_mask.h"
#include "numeric/numeric_fault.h"

#include <cmath>

namespace kestrova {

namespace {

using checked::Div;
using checked::Pow;
using checked::Sqr;

constexpr double kGravity = 32.174;
constexpr double kPi = 3.1415926536;
constexpr const char* kPipeIdZero = "Pipe ID cannot be zero";

// Field numbers of the two tabs: liquid first, gas second.
struct TabFields {
    int beta, coefficient, reynolds, orificeReynolds, resistance; // txtDisplay
    int flow, differentialPressure, orificeDiameter, velocityPipe, velocityOrifice, permanentLoss; // txtData
};
constexpr TabFields kLiquidFields{0, 1, 2, 3, 4, 0, 1, 2, 11, 12, 13};
constexpr TabFields kGasFields{6, 7, 8, 9, 12, 14, 15, 16, 26, 27, 28};
constexpr int kExpansionDisplay = 10, kPressureRatioDisplay = 11;

class OrificeRun {
public:
    OrificeRun(OrificeData& record, OrificeFluid fluid, TapStyle tap, OrificeDisplay& display)
        : r_(record), display_(display), gas_(fluid == OrificeFluid::Gas), tap_(tap),
          fields_(gas_ ? kGasFields : kLiquidFields), m_(gas_ ? r_.gasFlow : r_.liquidFlow),
          rho_(gas_ ? r_.gasDensity : r_.liquidDensity), mu_(gas_ ? r_.gasViscosity : r_.liquidViscosity)
    {
    }

    void run(OrificeUnknown unknown)
    {
        // The flow and the differential pressure start by dividing the bore by
        // the pipe ID. Without a pipe ID (every fresh form) that division ends
        // the run: it ends here the same way, without raising the fault.
        if (unknown != OrificeUnknown::OrificeDiameter && r_.pipeID == 0) {
            warnLiquid_ = kPipeIdZero;
            showBothWarnings();
            return;
        }
        try {
            switch (unknown) {
            case OrificeUnknown::Flow: solveFlow(); break;
            case OrificeUnknown::DifferentialPressure:
                gas_ ? solveGasDifferentialPressure() : solveLiquidDifferentialPressure();
                break;
            case OrificeUnknown::OrificeDiameter: gas_ ? solveGasDiameter() : solveLiquidDiameter(); break;
            }
            commonResults(unknown == OrificeUnknown::OrificeDiameter);
        } catch (const NumericFault&) {
            showBothWarnings();
        }
    }

private:
    std::string& warning() { return gas_ ? warnGas_ : warnLiquid_; }
    void showBothWarnings()
    {
        display_.showErrorGas(warnGas_);
        display_.showErrorLiquid(warnLiquid_);
    }
    void showWarning() { gas_ ? display_.showErrorGas(warnGas_) : display_.showErrorLiquid(warnLiquid_); }
    void show(int index, double value, const char* mask) { display_.showDisplay(index, formatMask(value, mask)); }
    double viscosityCentipoise() const { return mu_ * 1000; }

    // β from the bore, shown; the thermal and drain hole factors and the bore area.
    void betaFromBore()
    {
        warnLiquid_ = kPipeIdZero; // stands until a warning or a clearing replaces it
        beta_ = Div(r_.orificeDiameter, r_.pipeID);
        show(fields_.beta, beta_, "0.0000");
        factorsFor(beta_);
        area_ = Pow(r_.orificeDiameter / 12, 2) * (kPi / 4);
    }
    void factorsFor(Single beta)
    {
        Fa_ = OrificeThermalFactor(beta, r_.elementExpansion, r_.pipeExpansion, r_.temperature, r_.referenceTemperature);
        Fd_ = OrificeDrainHoleFactor(beta, r_.holeDiameter, r_.pipeID);
    }
    Single coefficient(Single beta) { return OrificeDischargeCoefficient(r_.pipeID, beta, Re_, tap_, warning()); }
    Single expansion(Single beta) const
    {
        return GasExpansionFactor(beta, r_.differentialPressure, r_.heatCapacityRatio, r_.inletPressure);
    }

    void solveFlow()
    {
        betaFromBore();
        Re_ = 4000;
        for (int pass = 0; pass <= 200; ++pass) {
            warning().clear();
            C_ = coefficient(beta_);
            if (gas_) {
                Y_ = expansion(beta_);
                show(kExpansionDisplay, Y_, "0.0000");
            }
            const double root =
                Sqr(Div((rho_ + rho_) * r_.differentialPressure * 144 * kGravity, 1 - Pow(beta_, 4)));
            m_ = gas_ ? Fd_ * Y_ * Fa_ * C_ * area_ * 3600 * root : Fd_ * Fa_ * C_ * area_ * 3600 * root;
            // The new Reynolds number is a single like the old one: two passes
            // that give the same single end the search.
            const Single newRe = ReynoldsFromMassFlow(r_.pipeID, m_, viscosityCentipoise());
            if (single(0.000001) > std::fabs(newRe - Re_))
                break;
            Re_ = newRe;
        }
        showWarning();
        display_.refresh(fields_.flow);
    }

    void solveLiquidDifferentialPressure()
    {
        betaFromBore();
        Re_ = ReynoldsFromMassFlow(r_.pipeID, m_, viscosityCentipoise());
        C_ = coefficient(beta_);
        const double q = Pow(Div(Div(Div(Div(m_ / 3600, Fa_), Fd_), C_), area_), 2);
        r_.differentialPressure = Div(Div((1 - Pow(beta_, 4)) * q, (rho_ + rho_) * kGravity), 144);
        showWarning();
        display_.refresh(fields_.differentialPressure);
    }

    // The differential pressure sits inside the expansion factor, so the flow
    // equation is a cubic in x, the differential pressure in lbf/ft2.
    void solveGasDifferentialPressure()
    {
        betaFromBore();
        Re_ = ReynoldsFromMassFlow(r_.pipeID, m_, viscosityCentipoise());
        C_ = coefficient(beta_);
        const double c1 = Pow(beta_, 4) * 0.35 + 0.41;
        const Single P = r_.inletPressure * 144;
        const double k = r_.heatCapacityRatio;
        const double a = Div(k * -2 * P, c1);
        const double b = Div(k * k * P * P, c1 * c1);
        const double e = Div(P * P * (k * k * ((1 - Pow(beta_, 4)) * -Pow(m_ / 3600, 2))),
                             c1 * c1 * (area_ * area_ * Pow(Fd_ * C_ * Fa_, 2) * 2 * kGravity * rho_));
        const auto newton = [&](double x) {
            for (int pass = 0; pass <= 50; ++pass) {
                const double step = Div(x * x * x + a * x * x + b * x + e, 3 * x * x + 2 * a * x + b);
                if (!(std::fabs(Div(step, x)) > 0.0000001))
                    break;
                x -= step;
            }
            return x;
        };
        const double root1 = newton(500);
        const double root2 = newton(1.0); // its failures count, its value does not
        static_cast<void>(checked::Finite(-a - root1 - root2));
        r_.differentialPressure = root1 / 144;
        display_.refresh(fields_.differentialPressure);
        Y_ = expansion(beta_);
        show(kExpansionDisplay, Y_, "0.0000");
        // The gas warning is not shown in this branch: txtErrorGas keeps its text.
    }

    // A fixed-point iteration on β.
    void solveLiquidDiameter()
    {
        Re_ = ReynoldsFromMassFlow(r_.pipeID, m_, viscosityCentipoise());
        beta_ = 0.75;
        for (int pass = 0; pass <= 200; ++pass) {
            r_.orificeDiameter = beta_ * r_.pipeID;
            warnLiquid_.clear();
            C_ = coefficient(beta_);
            factorsFor(beta_);
            const Single N = Pow(r_.pipeID, 4) * Pow(m_ / 3600, 2);
            const double G = Pow(Fd_ * Fa_ * C_ * kPi / 576, 2) * ((rho_ + rho_) * r_.differentialPressure * 144 * kGravity);
            const Single E = Pow(m_ / 3600, 2) + Pow(r_.pipeID, 4) * G;
            const Single newBeta = Div(Pow(Div(N, E), 0.25), r_.pipeID);
            const bool settled = single(0.00000001) > std::fabs(newBeta - beta_);
            beta_ = newBeta;
            if (settled)
                break;
        }
        showWarning();
        display_.refresh(fields_.orificeDiameter);
        show(fields_.beta, beta_, "0.0000");
    }

    // A bisection on β by halving a signed step, over 0.10 to 0.75.
    void solveGasDiameter()
    {
        Re_ = ReynoldsFromMassFlow(r_.pipeID, m_, viscosityCentipoise());
        Single base = 0.75, step = -0.65;
        const Single tolerance = single(0.0000000001);
        for (int pass = 0; pass <= 200; ++pass) {
            step = step * 0.5;
            const Single betaM = base + step;
            r_.orificeDiameter = betaM * r_.pipeID;
            area_ = Pow(r_.orificeDiameter / 12, 2) * (kPi / 4);
            warnGas_.clear();
            C_ = coefficient(betaM);
            factorsFor(betaM);
            const double X = 1 - Pow(betaM, 4);
            const double Y2 = Pow(1 - Div((Pow(betaM, 4) * 0.35 + 0.41) * r_.differentialPressure,
                                          r_.heatCapacityRatio * r_.inletPressure),
                                  2);
            const double W = Pow(Fd_ * Fa_ * C_ * area_, 2) * Y2 * 2 * rho_ * r_.differentialPressure * 144 * kGravity;
            const Single F = X - Div(W, Pow(m_ / 3600, 2));
            if (F <= 0)
                base = betaM;
            if (std::fabs(step) < tolerance || F == 0) {
                beta_ = betaM;
                break;
            }
            beta_ = betaM;
        }
        showWarning();
        display_.refresh(fields_.orificeDiameter);
        show(fields_.beta, beta_, "0.0000");
        Y_ = expansion(beta_);
        show(kExpansionDisplay, Y_, "0.0000");
    }

    void commonResults(bool diameterMode)
    {
        show(fields_.coefficient, C_, "0.0000");
        show(fields_.reynolds, Re_, "#,###,###,###");
        r_.velocityPipe = FlowVelocity(m_, rho_, r_.pipeID);
        display_.refresh(fields_.velocityPipe);
        r_.velocityOrifice = FlowVelocity(m_, rho_, r_.orificeDiameter);
        display_.refresh(fields_.velocityOrifice);
        const Single orificeRe = ReynoldsNumber(rho_, r_.orificeDiameter, r_.velocityOrifice, viscosityCentipoise(), 1, 1, 1);
        show(fields_.orificeReynolds, orificeRe, "#,###,###,###");
        const double dp = r_.differentialPressure, p1 = r_.inletPressure;
        if (gas_)
            show(kPressureRatioDisplay, diameterMode ? Div(p1 - dp, p1) : 1 - Div(dp, p1), "0.0000");
        // Permanent loss and the resistance coefficient on the pipe velocity.
        const double s = Sqr(1 - Pow(beta_, 4));
        const double b2C = Pow(beta_, 2) * C_;
        const Single Lp = Div(s - b2C, b2C + s) * dp * 144;
        const double V = r_.velocityPipe;
        const Single K = Div(Div((Lp + Lp) * kGravity, rho_), V * V);
        show(fields_.resistance, K, "#0.000");
        r_.permanentLoss = MinorLossDrop(K, r_.velocityPipe) * rho_ / 144;
        display_.refresh(fields_.permanentLoss);
        if (gas_ && r_.differentialPressure > r_.inletPressure)
            warnGas_ = "Differential Pressure Drop Exceeds Inlet Pressure"; // shown nowhere
    }

    OrificeData& r_;
    OrificeDisplay& display_;
    bool gas_;
    TapStyle tap_;
    TabFields fields_;
    Single& m_;
    Single& rho_;
    Single& mu_;
    std::string warnLiquid_, warnGas_;
    Single beta_, Re_, C_, Fa_, Fd_, Y_, area_;
};

} // namespace

std::array<Single*, OrificeData::kFieldCount> OrificeData::fields()
{
    return {&liquidFlow,      &gasFlow,         &pipeID,           &orificeDiameter,      &holeDiameter,
            &liquidDensity,   &gasDensity,      &gasViscosity,     &liquidViscosity,      &velocityPipe,
            &velocityOrifice, &referenceTemperature, &elementExpansion, &pipeExpansion, &differentialPressure,
            &permanentLoss,   &temperature,     &inletPressure,    &heatCapacityRatio};
}

const std::array<const char*, OrificeData::kFieldCount>& OrificeData::names()
{
    static const std::array<const char*, kFieldCount> table{
        "liquidFlow",      "gasFlow",         "pipeID",           "orificeDiameter",      "holeDiameter",
        "liquidDensity",   "gasDensity",      "gasViscosity",     "liquidViscosity",      "velocityPipe",
        "velocityOrifice", "referenceTemperature", "elementExpansion", "pipeExpansion", "differentialPressure",
        "permanentLoss",   "temperature",     "inletPressure",    "heatCapacityRatio"};
    return table;
}

Single GasExpansionFactor(Single beta, Single differentialPressure, Single heatCapacityRatio, Single inletPressure)
{
    const double kP1 = heatCapacityRatio * inletPressure; // formed first
    return 1 - Div((Pow(beta, 4) * 0.35 + 0.41) * differentialPressure, kP1);
}

void ComputeOrifice(OrificeData& record, OrificeFluid fluid, OrificeUnknown unknown, TapStyle tap,
                    OrificeDisplay& display)
{
    const FaultScope scope("ComputeOrifice");
    OrificeRun(record, fluid, tap, display).run(unknown);
}

} // namespace kestrova
