// Time per call of the main correlations and of one kestrova-calc request.

#include "calc/calc_protocol.h"
#include "hydraulics/basTransportFunctions.h"
#include "tools/orifice/calc/basOrificeFunctions.h"
#include "tools/properties/calc/property_correlation.h"

#include <benchmark/benchmark.h>

#include <string>

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

void BM_PropertyCorrelation(benchmark::State& state)
{
    const CorrelationCoefficients vapourPressure{73.649, -7258.2, -7.3037, 4.1653e-06, 2};
    for (auto _ : state)
        benchmark::DoNotOptimize(PropertyCorrelation(298.15, 647.096, vapourPressure, 6));
}
BENCHMARK(BM_PropertyCorrelation);

void BM_CalcRequestLine(benchmark::State& state)
{
    const std::string line = R"({"id": 17, "call": "FrictionFactor", "args": {"reynolds": 100000, "relativeRoughness": 0.0002, "kind": 1, "aspectRatio": 1, "diameterRatio": 1}})";
    for (auto _ : state)
        benchmark::DoNotOptimize(calc::answerRequest(line));
}
BENCHMARK(BM_CalcRequestLine);

} // namespace
