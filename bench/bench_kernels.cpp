// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The power and the elementary functions of a real: through an equation map, alone on the
// fast road, alone on the 128-bit binary road and the decimal road it stands in for, beside
// plain double precision and muparser in the same run.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <iterator>

#include "exact_functions.h"
#include "mapm.h"
#include "mapm_complex.h"
#include "mathematics.h"
#include "mpfr_road.h"
#include "parser.h"

namespace {

using quindar::complex;

constexpr int kPoints = 10000;

// One function each, as a map line, a muparser line and plain C++.
struct Kernel {
    const char *line;
    const char *double_line;
    double (*plain)(double);
};
constexpr Kernel kKernels[] = {
    {"x^2", "x^2", [](double x) { return std::pow(x, 2.0); }},
    {"x^3", "x^3", [](double x) { return std::pow(x, 3.0); }},
    {"SIN[x]", "sin(x)", [](double x) { return std::sin(x); }},
    {"COS[x]", "cos(x)", [](double x) { return std::cos(x); }},
    {"LN[x]", "ln(x)", [](double x) { return std::log(x); }},
    {"EXP[x]", "exp(x)", [](double x) { return std::exp(x); }},
    {"SQRT[x]", "sqrt(x)", [](double x) { return std::sqrt(x); }},
};
constexpr int kLast = static_cast<int>(std::size(kKernels)) - 1;
enum { kSquare, kCube, kSine, kCosine, kLog, kExp, kRoot };

// The points of a graph over (0, 10].
double point(int k) {
    return 0.05 + 10.0 * k / kPoints;
}

void count_points(benchmark::State &state) {
    state.counters["points/s"] = benchmark::Counter(static_cast<double>(kPoints),
                                                    benchmark::Counter::kIsIterationInvariantRate);
}

// One iteration solves the map at every point, shifted by `shift`.
void solve_map(benchmark::State &state, double shift) {
    quindar::Parser parser("", "");
    parser.eval_exp("x = 1", true, false);
    parser.current_equation = parser.equations.add();
    parser.mapping = true;
    const int map = parser.equations.count();
    parser.eval_exp(kKernels[state.range(0)].line, true, true);
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) {
            parser.set_var_value(complex{point(k) + shift, 0}, "x");
            sum += parser.solve_equation(map, false, true).real;
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state);
}

void BM_map(benchmark::State &state) {
    solve_map(state, 0);
}
BENCHMARK(BM_map)->DenseRange(0, kLast)->Unit(benchmark::kMillisecond);

// Squares and cubes of a graph across zero, from -5 to 5: negative bases have a phase.
void BM_map_across_zero(benchmark::State &state) {
    solve_map(state, -5);
}
BENCHMARK(BM_map_across_zero)->Arg(kSquare)->Arg(kCube)->Unit(benchmark::kMillisecond);

// The fast road alone, with its fallbacks (the square root is the integer one).
complex fast_road(int kernel, double x) {
    complex result;
    switch (kernel) {
        case kSquare:
            quindar::exact::real_power({x, 0}, {2, 0}, result);
            break;
        case kCube:
            quindar::exact::real_power({x, 0}, {3, 0}, result);
            break;
        case kSine:
        case kCosine:
            quindar::exact::real_sine(x, kernel == kCosine, false, result);
            break;
        case kLog:
            quindar::exact::real_log({x, 0}, result);
            break;
        case kExp:
            quindar::exact::real_exp({x, 0}, result);
            break;
        default:
            quindar::exact::complex_sqrt({x, 0}, result);
            break;
    }
    return result;
}

void BM_fast_road(benchmark::State &state) {
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k)
            sum += fast_road(static_cast<int>(state.range(0)), point(k)).real;
    }
    benchmark::DoNotOptimize(sum);
    count_points(state);
}
BENCHMARK(BM_fast_road)->DenseRange(0, kLast)->Unit(benchmark::kMillisecond);

// The 128-bit binary road the kernels replaced (the logarithm, exponential and sine; the
// power is a logarithm and an exponential of this road).
void BM_binary_road(benchmark::State &state) {
    using namespace quindar::exact;
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) {
            Decimal x, value;
            operand(point(k), x);
            switch (state.range(0)) {
                case kSine:
                    mpfr_sine_digits(x, false, false, value);
                    break;
                case kLog:
                    mpfr_log_digits(x, 18, value);
                    break;
                default:
                    mpfr_exp_digits(false, x.coefficient, x.exponent, 18, value);
                    break;
            }
            sum += static_cast<double>(value.coefficient);
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state);
}
BENCHMARK(BM_binary_road)->Arg(kSine)->Arg(kLog)->Arg(kExp)->Unit(benchmark::kMillisecond);

// The decimal road: operand in by text, the decimal layer's function, result out by text.
void BM_decimal_road(benchmark::State &state) {
    using quindar::Mathematics;
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) {
            quindar::MapmNumber ar, ai, br, bi, rr, ri;
            Mathematics::SetMapmValueByText(point(k), &ar);
            Mathematics::SetMapmValueByText(0.0, &ai);
            Mathematics::SetMapmValueByText(state.range(0) == kCube ? 3.0 : 2.0, &br);
            Mathematics::SetMapmValueByText(0.0, &bi);
            switch (state.range(0)) {
                case kSquare:
                case kCube:
                    quindar::m_apmc_pow(&rr, &ri, 14, &ar, &ai, &br, &bi);
                    break;
                case kSine:
                    quindar::m_apmc_sin(&rr, &ri, 14, &ar, &ai);
                    break;
                case kCosine:
                    quindar::m_apmc_cos(&rr, &ri, 14, &ar, &ai);
                    break;
                case kLog:
                    quindar::m_apmc_log(&rr, &ri, 14, &ar, &ai);
                    break;
                case kExp:
                    quindar::m_apmc_exp(&rr, &ri, 14, &ar, &ai);
                    break;
                default:
                    quindar::m_apmc_sqrt(&rr, &ri, 14, &ar, &ai);
                    break;
            }
            sum += static_cast<double>(Mathematics::GetMapmValueByText(&rr));
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state);
}
BENCHMARK(BM_decimal_road)->DenseRange(0, kLast)->Unit(benchmark::kMillisecond);

void BM_plain_double(benchmark::State &state) {
    const auto plain = kKernels[state.range(0)].plain;
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) sum += plain(point(k));
        benchmark::DoNotOptimize(sum);
    }
    count_points(state);
}
BENCHMARK(BM_plain_double)->DenseRange(0, kLast)->Unit(benchmark::kMicrosecond);

void BM_muparser(benchmark::State &state) {
    mu::Parser parser;
    double x = 1;
    parser.DefineVar("x", &x);
    parser.SetExpr(kKernels[state.range(0)].double_line);
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) {
            x = point(k);
            sum += parser.Eval();
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state);
}
BENCHMARK(BM_muparser)->DenseRange(0, kLast)->Unit(benchmark::kMicrosecond);

}  // namespace
