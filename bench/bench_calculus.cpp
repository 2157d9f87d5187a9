// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The numeric methods on a mapped graph expression: one integral, one derivative of each
// order and one root, with the samples each takes per second; and the utilities' runs: a
// triple integral at two slider positions and a differentiation table.
#include <benchmark/benchmark.h>

#include <cmath>

#include "calculus_runs.h"
#include "differentiation_run.h"
#include "integration_run.h"
#include "parser.h"
#include "run_host.h"

namespace {

constexpr const char *kExpression = "SIN[x]*x^2 + 3*x - 1/x";

// Counts the samples: every one passes the application's check or pump once or less.
class SampleCounter final : public quindar::ComputationHooks {
public:
    bool stop_requested() override { return false; }
    void pump_waiting_messages() override { ++pumps; }
    void update_variable_list() override {}
    long pumps = 0;
};

void report(benchmark::State &state, long samples) {
    state.counters["samples/s"] =
        benchmark::Counter(static_cast<double>(samples), benchmark::Counter::kIsRate);
}

void BM_integral(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.angle_mode = 1;
    SampleCounter counter;
    parser.set_computation_hooks(&counter);
    const quindar::calculus::IntegralRequest request{kExpression, "x", "1", "3",
                                                     state.range(0) == 0 ? 1e-4L : 1e-10L};
    for (auto _ : state)
        benchmark::DoNotOptimize(quindar::calculus::Integrate(parser, request).value);
    report(state, counter.pumps);
}
BENCHMARK(BM_integral)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The quarter circle of the command line's example at 1e-10: with the power (Arg 0), and with
// the product in its place (Arg 1), which leaves the cost of everything but the power.
constexpr const char *kQuarterCircles[] = {"SQRT[1-x^2]", "SQRT[1-x*x]"};

void BM_integral_quarter_circle(benchmark::State &state) {
    quindar::Parser parser("", "");
    SampleCounter counter;
    parser.set_computation_hooks(&counter);
    const quindar::calculus::IntegralRequest request{kQuarterCircles[state.range(0)], "x", "0", "1",
                                                     1e-10L};
    for (auto _ : state)
        benchmark::DoNotOptimize(quindar::calculus::Integrate(parser, request).value);
    report(state, counter.pumps);
    state.counters["samples"] =
        static_cast<double>(counter.pumps) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_integral_quarter_circle)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The peer: the same trapezoid refinements in plain double precision, to as many samples as
// the integral above takes (2^16 + 1 for the power's road).
void BM_integral_quarter_circle_double(benchmark::State &state) {
    const int levels = static_cast<int>(state.range(0));
    long samples = 0;
    for (auto _ : state) {
        double estimate = 0.5 * (1.0 + 0.0);
        samples = 2;
        for (int level = 2; level <= levels; ++level) {
            const long points = 1L << (level - 2);
            const double step = 1.0 / static_cast<double>(points);
            double x = 0.5 * step, sum = 0;
            for (long j = 0; j < points; ++j, x += step) sum += std::sqrt(1.0 - x * x);
            estimate = 0.5 * (estimate + sum * step);
            samples += points;
        }
        benchmark::DoNotOptimize(estimate);
    }
    state.counters["samples/s"] = benchmark::Counter(static_cast<double>(samples),
                                                     benchmark::Counter::kIsIterationInvariantRate);
    state.counters["samples"] = static_cast<double>(samples);
}
BENCHMARK(BM_integral_quarter_circle_double)->Arg(17)->Unit(benchmark::kMillisecond);

void BM_derivative(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.angle_mode = 1;
    SampleCounter counter;
    parser.set_computation_hooks(&counter);
    quindar::calculus::DerivativeRequest request{kExpression, "x", "2"};
    request.order = static_cast<int>(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(quindar::calculus::Differentiate(parser, request).value);
    report(state, counter.pumps);
}
BENCHMARK(BM_derivative)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

void BM_root(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.angle_mode = 1;
    const quindar::calculus::RootRequest request{kExpression, "x", "0.1", "1"};
    for (auto _ : state)
        benchmark::DoNotOptimize(quindar::calculus::FindRoot(parser, request).value);
}
BENCHMARK(BM_root)->Unit(benchmark::kMicrosecond);

// A run's window that only counts its pumps.
class PumpCounter final : public quindar::calculus::NullRunHost {
public:
    void pump() override { ++pumps; }
    long pumps = 0;
};

// Every sample of an integral passes one pump except the two of the first trapezoid, which
// share one; the pump after each inner integral makes up for that, so pumps count samples.
void BM_triple_integral(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.angle_mode = 1;
    PumpCounter host;
    quindar::calculus::IntegrationSettings settings;
    settings.type = 3;
    settings.function = "x*y*EXP[-z] + SIN[x*z]";
    settings.low = {"0", "0", "0"};
    settings.high = {"y", "z", "1"};
    settings.slider = static_cast<int>(state.range(0));
    for (auto _ : state) {
        quindar::calculus::IntegrationRun run(parser, host);
        benchmark::DoNotOptimize(run.run(settings).value);
    }
    report(state, host.pumps);
    const long cells = quindar::calculus::SliderGridPoints(settings.slider) - 1;
    state.counters["inner integrals/s"] = benchmark::Counter(
        static_cast<double>(cells * cells * static_cast<long>(state.iterations())),
        benchmark::Counter::kIsRate);
}
BENCHMARK(BM_triple_integral)->Arg(20)->Arg(100)->Unit(benchmark::kMillisecond);

// 100 rows of the function and its three derivatives. The run pumps once per row of the
// variable, once per cell and at the end of each column; the rest are the derivatives'
// samples, and the function adds one solve per row.
void BM_differentiation_table(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.angle_mode = 1;
    PumpCounter host;
    const quindar::calculus::DifferentiationSettings settings{kExpression, "x", "1", "3", "100"};
    constexpr long kRows = 100;
    constexpr long kOwnPumps = kRows + 4 * kRows + 4 + 1;
    for (auto _ : state) {
        quindar::calculus::DifferentiationRun run(parser, host, 6);
        quindar::calculus::DifferentiationTable table;
        benchmark::DoNotOptimize(run.run(settings, table).solved);
    }
    const long runs = static_cast<long>(state.iterations());
    report(state, host.pumps - runs * (kOwnPumps - kRows));
    state.counters["rows/s"] =
        benchmark::Counter(static_cast<double>(kRows * runs), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_differentiation_table)->Unit(benchmark::kMillisecond);

}  // namespace
