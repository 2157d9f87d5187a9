// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Cost of one operator's decimal round trip and of evaluating a typical line.
#include <benchmark/benchmark.h>

#include "mathematics.h"
#include "parser.h"

namespace {

using quindar::complex;

void BM_complex_add(benchmark::State &state) {
    quindar::Mathematics math;
    complex a{1.234567890123, 0}, b{9.87654321, 0};
    for (auto _ : state) benchmark::DoNotOptimize(a = math.complex_add(a, b));
}
BENCHMARK(BM_complex_add);

void BM_complex_mult(benchmark::State &state) {
    quindar::Mathematics math;
    const complex a{1.234567890123, -2.5}, b{0.999999, 0.5};
    for (auto _ : state) benchmark::DoNotOptimize(math.complex_mult(a, b));
}
BENCHMARK(BM_complex_mult);

void BM_complex_div(benchmark::State &state) {
    quindar::Mathematics math;
    const complex a{1.234567890123, -2.5}, b{3.7, 0.25};
    for (auto _ : state) benchmark::DoNotOptimize(math.complex_div(a, b));
}
BENCHMARK(BM_complex_div);

void BM_complex_div_real(benchmark::State &state) {
    quindar::Mathematics math;
    const complex a{1.0, 0}, b{3.0, 0};
    for (auto _ : state) benchmark::DoNotOptimize(math.complex_div(a, b));
}
BENCHMARK(BM_complex_div_real);

// The same operators on reals, as the maps of graphs mostly meet them: + x / by argument.
struct RealOperator {
    const char *label;
    complex (quindar::Mathematics::*operation)(const complex &, const complex &);
    complex a, b;
};
const RealOperator kRealOperators[] = {
    {"+", &quindar::Mathematics::complex_add, {1.234567890123, 0}, {9.87654321, 0}},
    {"*", &quindar::Mathematics::complex_mult, {1.234567890123, 0}, {0.999999, 0}},
    {"/", &quindar::Mathematics::complex_div, {1.234567890123, 0}, {3.7, 0}},
};

void BM_real_operator(benchmark::State &state) {
    quindar::Mathematics math;
    const RealOperator &row = kRealOperators[state.range(0)];
    state.SetLabel(row.label);
    for (auto _ : state) benchmark::DoNotOptimize((math.*row.operation)(row.a, row.b));
}
BENCHMARK(BM_real_operator)->DenseRange(0, 2);

// Ten operators: sums, products, a quotient, a power, a comparison-free line.
void BM_eval_exp_ten_operators(benchmark::State &state) {
    quindar::Parser parser("", "");
    const char *line = "1.5*2.25 + 3/7 - 4.125*(2+0.5) + 6^2 - 7.75/2 + 8";
    for (auto _ : state) benchmark::DoNotOptimize(parser.eval_exp(line, true, true));
}
BENCHMARK(BM_eval_exp_ten_operators);

// Embedded functions through the decimal layer and MPFR.
void BM_eval_exp_functions(benchmark::State &state) {
    quindar::Parser parser("", "");
    const char *line = "SIN[30] + SQRT[2] * LN[10] - EXP[0.5]";
    for (auto _ : state) benchmark::DoNotOptimize(parser.eval_exp(line, true, true));
}
BENCHMARK(BM_eval_exp_functions);

// A user function spliced into the line, then evaluated.
void BM_eval_exp_user_function(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.eval_exp("f[x] = x^2 + 3*x - 1/x", true, true);
    for (auto _ : state) benchmark::DoNotOptimize(parser.eval_exp("f[2.5] + f[1.5]", true, true));
}
BENCHMARK(BM_eval_exp_user_function);

}  // namespace
