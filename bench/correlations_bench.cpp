// Time per call of the main correlations and of one kestrova-calc request.
// Beside a correlation, its bare cost: the same transcendental calls on the
// same inputs in plain doubles, with no checks, no singles and no messages;
// the table ends with each correlation's time over its bare cost.

#include "calc/calc_protocol.h"
#include "hydraulics/basTransportFunctions.h"
#include "numeric/display_mask.h"
#include "tools/orifice/calc/basOrificeFunctions.h"
#include "tools/properties/calc/property_correlation.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <map>
#include <string>
#include <string_view>
#include <vector>

using namespace kestrova;

namespace {

struct SilentFeedback : UserFeedback {
    void beep() override {}
    void showMessage(const std::string&, const std::string&, MessageIcon) override {}
};

void BM_FrictionFactorTurbulent(benchmark::State& state)
{
    Single re = 1e5;
    for (auto _ : state) {
        benchmark::DoNotOptimize(FrictionFactor(re, 0.0002, 1, 1, 1));
        re = re + 1;
    }
}
BENCHMARK(BM_FrictionFactorTurbulent);

void BM_FrictionFactorTurbulent_BareCalls(benchmark::State& state)
{
    Single re = 1e5;
    const volatile double roughness = 0.0002;
    for (auto _ : state) {
        const double e = roughness;
        const double A = std::pow(37530 / double(re), 16);
        const double B = std::pow(2.457 * std::log(1 / (std::pow(7 / double(re), 0.9) + 0.27 * e)), 16);
        const double C = 1 / std::pow(A + B, 1.5);
        benchmark::DoNotOptimize(8 * std::pow(std::pow(8 / double(re), 12) + C, 1.0 / 12.0));
        re = re + 1;
    }
}
BENCHMARK(BM_FrictionFactorTurbulent_BareCalls);

void BM_AdiabaticGasFlow(benchmark::State& state)
{
    GasLineInlet in{10000, 0.0884, 400, 150, 0.95, 18.015, 1.3, 20, 2};
    SilentFeedback user;
    for (auto _ : state) {
        GasLineOutlet out;
        AdiabaticGasFlow(in, out, user);
        benchmark::DoNotOptimize(out.outletPressure);
    }
}
BENCHMARK(BM_AdiabaticGasFlow);

// The adiabatic line's search in plain doubles: the inlet's root, then per
// round two squares of each Mach number and a logarithm, as many rounds as
// the step takes to halve below 1e-15, then the outlet's powers and roots.
void BM_AdiabaticGasFlow_BareCalls(benchmark::State& state)
{
    const volatile double massFlow = 10000, area = 0.0884, temperature = 400, pressure = 150, Z = 0.95, MW = 18.015,
                          heatRatio = 1.3, resistance = 22;
    for (auto _ : state) {
        const double k = heatRatio, T = temperature + 459.67, P = pressure * 144;
        const double rho = P * MW / (Z * 1545.3563 * T);
        const double c = std::sqrt(k * 32.174 * Z * 1545.3563 * T / MW);
        const double M1 = massFlow / area / 3600 / rho / c;
        double base = 1, step = M1 - 1, M2 = 1;
        for (int round = 1; round <= 200; ++round) {
            step *= 0.5;
            M2 = base + step;
            const double A = 1 + (k - 1) / 2 * std::pow(M2, 2);
            const double L = std::log(std::pow(M1, 2) * A / (std::pow(M2, 2) * A));
            const double F = resistance - 1 / (std::pow(M1, 2) * k) + 1 / (std::pow(M2, 2) * k) - (k + 1) / (2 * k) * L;
            if (F <= 0)
                base = M2;
            if (std::fabs(step) < 1e-15 || F == 0)
                break;
        }
        const double H = 1 + std::pow(M1, 2) * (k - 1) / 2;
        benchmark::DoNotOptimize(std::sqrt(2 * H / (k + 1)));
        const double R = std::sqrt((1 + std::pow(M2, 2) * (k - 1) / 2) / (1 + std::pow(M1, 2) * (k - 1) / 2));
        const double P2 = P * M1 / (M2 * R);
        benchmark::DoNotOptimize(std::pow(P2 * M2 / (P * M1), 2) * T - 459.67);
    }
}
BENCHMARK(BM_AdiabaticGasFlow_BareCalls);

void BM_TwoPhaseDrop(benchmark::State& state)
{
    const TwoPhaseLine line{"Horizontal", 4.026, 0.00015, 2000, 40000, 0.25, 62.3, 0.018, 0.9, 0.072, 200};
    for (auto _ : state) {
        TwoPhaseResult out;
        TwoPhaseDrop(line, out);
        benchmark::DoNotOptimize(out.pressureDrop);
    }
}
BENCHMARK(BM_TwoPhaseDrop);

// The same line by Friedel in plain doubles: the mixture's two powers, the
// phase Reynolds numbers and smooth-pipe friction factors, the multiplier's
// nine powers, the drop, then the regime map's root, powers and logarithms.
// No texts: the correlation's name, the regime and the map coordinates are
// what the drop adds beyond its calls.
void BM_TwoPhaseDrop_BareCalls(benchmark::State& state)
{
    const volatile double diameter = 4.026, Wg = 2000, Wl = 40000, rg = 0.25, rl = 62.3, mug = 0.018, mul = 0.9,
                          tension = 0.072, length = 200;
    const auto friction = [](double re) {
        return re < 1055 ? 64 / re : std::pow(0.86859 * std::log(re / (1.964 * std::log(re) - 3.8215)), -2);
    };
    for (auto _ : state) {
        const double sigma = tension * 1000, D = diameter / 12, A = std::pow(D, 2) * 3.1415926536 / 4;
        const double G = (Wg + Wl) / A / 3600, Gl = Wl / A / 3600, Gg = Wg / A / 3600;
        benchmark::DoNotOptimize(std::pow(3.2808, 2) * G / 2.20462);
        const double rh = (Wg + Wl) / (Wg / rg + Wl / rl), x = Wg / (Wg + Wl);
        const double Fr = std::pow(G, 2) / (std::pow(rh, 2) * 32.174 * D);
        const double We = std::pow(G, 2) * D / (rh * 32.174 * sigma * 2.248089e-6 * 2.54 * 12);
        const double reynoldsScale = 2.42 * 3.1415926536 * diameter / 12;
        const double fg = friction(Wg * 4 / (mug * reynoldsScale)), fl = friction(Wl * 4 / (mul * reynoldsScale));
        const double E = std::pow(1 - x, 2) + std::pow(x, 2) * (fg * rl) / (rg * fl);
        const double phi = E + 3.43 * std::pow(x, 0.685) * std::pow(1 - x, 0.24) * std::pow(rl / rg, 0.8) *
                                   std::pow(mug / mul, 0.22) * std::pow(1 - mug / mul, 0.89) * std::pow(Fr, -0.047) *
                                   std::pow(We, -0.0334);
        benchmark::DoNotOptimize(std::pow(G, 2) * (phi * length * fl) / 2 / 32.174 / rl / D / 144);
        const double lambda = std::sqrt((rl / 62.3) * (rg / 0.075));
        const double psi = 73 / sigma * std::pow(mul * std::pow(62.3 / rl, 2), 1.0 / 3.0);
        benchmark::DoNotOptimize(std::log(Gl * 3600 / (Gg * 3600) * lambda * psi) + std::log(Gg * 3600 / lambda));
    }
}
BENCHMARK(BM_TwoPhaseDrop_BareCalls);

void BM_OrificeDischargeCoefficient(benchmark::State& state)
{
    std::string message;
    for (auto _ : state)
        benchmark::DoNotOptimize(OrificeDischargeCoefficient(4.026, 0.6, 250000, 0, message));
}
BENCHMARK(BM_OrificeDischargeCoefficient);

// The discharge coefficient with flange taps: the power of the range check,
// then twelve powers and exponentials.
void BM_OrificeDischargeCoefficient_BareCalls(benchmark::State& state)
{
    const volatile double pipe = 4.026, ratio = 0.6, reynolds = 250000;
    for (auto _ : state) {
        const double b = ratio, Re = reynolds, Dm = pipe * 0.0254;
        benchmark::DoNotOptimize(std::pow(b, 2) * (Dm * 170000) > Re);
        const double L1 = 0.0254 / Dm;
        const double T1 = std::pow(b, 2) * 0.0261 + 0.5961 - std::pow(b, 8) * 0.216 +
                          std::pow(b * 1000000 / Re, 0.7) * 0.000521;
        const double A = std::pow(b * 19000 / Re, 0.8);
        const double T2 = std::pow(b, 3.5) * (std::pow(1000000 / Re, 0.3) * (A * 0.0063 + 0.0188));
        const double T3 = std::pow(b, 4) * ((1 - A * 0.11) * (std::exp(-10 * L1) * 0.08 + 0.043 - std::exp(-7 * L1) * 0.123)) /
                          (1 - std::pow(b, 4));
        const double M = 2 * L1 / (1 - b);
        const double T4 = std::pow(b, 1.3) * ((M - std::pow(M, 1.1) * 0.8) * -0.031);
        benchmark::DoNotOptimize(T1 + T2 + T3 + T4);
    }
}
BENCHMARK(BM_OrificeDischargeCoefficient_BareCalls);

void BM_PropertyCorrelation(benchmark::State& state)
{
    const CorrelationCoefficients vapourPressure{73.649, -7258.2, -7.3037, 4.1653e-06, 2};
    for (auto _ : state)
        benchmark::DoNotOptimize(PropertyCorrelation(298.15, 647.096, vapourPressure, 6));
}
BENCHMARK(BM_PropertyCorrelation);

// Equation 6 (vapour pressure): A + B/T + C ln T + D T^E, then its exponential.
void BM_PropertyCorrelation_BareCalls(benchmark::State& state)
{
    const volatile double temperature = 298.15, a = 73.649, b = -7258.2, c = -7.3037, d = 4.1653e-06, e = 2;
    for (auto _ : state) {
        const double T = temperature;
        benchmark::DoNotOptimize(std::exp(a + b / T + c * std::log(T) + d * std::pow(T, double(e))));
    }
}
BENCHMARK(BM_PropertyCorrelation_BareCalls);

void BM_CalcRequestLine(benchmark::State& state)
{
    const std::string line = R"({"id": 17, "call": "FrictionFactor", "args": {"reynolds": 100000, "relativeRoughness": 0.0002, "kind": 1, "aspectRatio": 1, "diameterRatio": 1}})";
    for (auto _ : state)
        benchmark::DoNotOptimize(calc::answerRequest(line));
}
BENCHMARK(BM_CalcRequestLine);

// One tool call of each document tool: the model built and loaded, the
// request's fields committed, one run, the report written.
const char* const kToolCallLines[] = {
    R"json({"id": 1, "call": "PressureDrop.CalculateResults", "args": {"tab": 0, "crossSection": 0, "record": {"LiquidFlow": 36000, "LiquidDensity": 62.4, "LiquidViscosity": 0.001, "Diameter": 6.065, "Roughness": 0.00015, "PipeLength": 100}, "texts": {"txtDisplay(12)": "0.5"}, "units": {"cboUnits(10)": 5}}})json",
    R"json({"id": 2, "call": "OrificePlates.ComputeOrifice", "args": {"tab": 0, "compute": 0, "tap": 0, "record": {"pipeID": 4.026, "orificeDiameter": 2.013, "liquidDensity": 62.4, "liquidViscosity": 0.001, "differentialPressure": 10, "temperature": 68}}})json",
    R"json({"id": 3, "call": "PumpNetwork.NetCalc", "args": {"NetFlow": [0, 0, 0, 50000], "NetPDest": [0, 0, 0, 100, 0, 200], "SegDensity": [0, 62.4, 62.4, 62.4, 62.4, 62.4, 62.4, 62.4, 62.4, 62.4, 62.4, 62.4], "SegID": [0, 4.026, 4.026, 4.026, 4.026, 4.026, 4.026, 4.026, 4.026, 4.026, 4.026, 4.026], "SegVisc": [0, 0.001, 0.001, 0.001, 0.001, 0.001, 0.001, 0.001, 0.001, 0.001, 0.001, 0.001], "MinValveDp": 0}})json"};

void BM_CalcToolCall(benchmark::State& state)
{
    const std::string line = kToolCallLines[state.range(0)];
    for (auto _ : state)
        benchmark::DoNotOptimize(calc::answerRequest(line));
}
BENCHMARK(BM_CalcToolCall)->ArgName("pressureDrop0_orifice1_network2")->DenseRange(0, 2);

// A field's text through its mask, as every refresh of a field makes it.
void BM_FormatMask(benchmark::State& state)
{
    const std::pair<double, const char*> cases[] = {
        {1234567.891, "##,##0.00"}, {0.0190032, "0.00000"}, {16.04f, "##0.0000"}, {3.2e-7, "0.000E+00"}, {0, "#,###,###"}};
    for (auto _ : state)
        for (const auto& [value, mask] : cases)
            benchmark::DoNotOptimize(formatMask(value, mask));
    state.SetItemsProcessed(state.iterations() * static_cast<long>(std::size(cases)));
}
BENCHMARK(BM_FormatMask);

// The console's table, then each correlation's least time per call over
// the least time of its bare calls.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            // Each repetition, or only the medians where the aggregates alone are reported.
            const bool counted = run.run_type == Run::RT_Iteration || run.aggregate_name == "median";
            if (!counted || run.error_occurred)
                continue;
            const auto [at, added] = least_.emplace(run.run_name.function_name, run.GetAdjustedCPUTime());
            if (!added)
                at->second = std::min(at->second, run.GetAdjustedCPUTime());
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        constexpr std::string_view kBare = "_BareCalls";
        for (const auto& [name, time] : least_) {
            if (name.size() <= kBare.size() || name.compare(name.size() - kBare.size(), kBare.size(), kBare) != 0)
                continue;
            const auto correlation = least_.find(name.substr(0, name.size() - kBare.size()));
            if (correlation != least_.end())
                GetOutputStream() << correlation->first << ": " << std::fixed << std::setprecision(2)
                                  << correlation->second / time << " x its bare calls\n";
        }
    }

private:
    std::map<std::string, double> least_;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
