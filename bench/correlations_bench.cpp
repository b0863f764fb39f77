// Time per call of the main correlations and of one kestrova-calc request.
// Beside a correlation, its bare cost: the same transcendental calls on the
// same inputs in plain doubles, with no checks, no singles and no messages;
// the table ends with each correlation's time over its bare cost.

#include "calc/calc_protocol.h"
#include "hydraulics/basTransportFunctions.h"
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
