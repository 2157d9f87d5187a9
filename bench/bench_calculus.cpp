// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The numeric methods on a mapped graph expression: one integral, one derivative of each
// order and one root, with the samples each takes per second.
#include <benchmark/benchmark.h>

#include "calculus_runs.h"
#include "parser.h"

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

}  // namespace
