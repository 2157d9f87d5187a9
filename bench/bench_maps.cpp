// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Equation maps: recording a graph's expression once, solving it at 100,000 points, the
// same points through the line, and a double-precision expression library as a yardstick.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cmath>
#include <iterator>

#include "parser.h"

namespace {

using quindar::complex;

constexpr int kPoints = 100000;
// The maps of a graph, each with its double-precision twin for muparser and in plain C++.
struct MapLine {
    const char *line;
    const char *double_line;
    double (*plain)(double);
};
constexpr MapLine kMapLines[] = {
    {"SIN[x]*x^2 + 3*x - 1/x", "sin(x)*x^2 + 3*x - 1/x",
     [](double x) { return std::sin(x) * x * x + 3 * x - 1 / x; }},
    {"SQRT[x^2+1]/(x+2) + EXP[-x/10]", "sqrt(x^2+1)/(x+2) + exp(-x/10)",
     [](double x) { return std::sqrt(x * x + 1) / (x + 2) + std::exp(-x / 10); }},
    {"x*x - 2*x + 1", "x*x - 2*x + 1", [](double x) { return x * x - 2 * x + 1; }},
    // One operator or function each.
    {"x + 1.25", "x + 1.25", [](double x) { return x + 1.25; }},
    {"x * 1.25", "x * 1.25", [](double x) { return x * 1.25; }},
    {"x / 1.25", "x / 1.25", [](double x) { return x / 1.25; }},
    {"x^2", "x^2", [](double x) { return x * x; }},
    {"x^3", "x^3", [](double x) { return x * x * x; }},
    {"SIN[x]", "sin(x)", [](double x) { return std::sin(x); }},
    {"LN[x]", "ln(x)", [](double x) { return std::log(x); }},
    {"SQRT[x]", "sqrt(x)", [](double x) { return std::sqrt(x); }},
};
constexpr int kLastMap = static_cast<int>(std::size(kMapLines)) - 1;

double point(int k) {
    return 0.05 + 10.0 * k / kPoints;
}

// Points per second and the time of one point, so that a row reads beside its peers.
void count_points(benchmark::State &state, double points) {
    state.counters["points/s"] =
        benchmark::Counter(points, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["time/point"] = benchmark::Counter(
        points, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

int record(quindar::Parser &parser, const char *line) {
    parser.current_equation = parser.equations.add();
    parser.ClearLastError();
    parser.mapping = true;
    const int number = parser.equations.count();
    parser.eval_exp(line, true, true);
    return number;
}

void BM_record_map(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.eval_exp("x = 1", true, false);
    for (auto _ : state) parser.delete_equation(record(parser, kMapLines[state.range(0)].line));
}
BENCHMARK(BM_record_map)->DenseRange(0, 2);

// One iteration solves the map at every point, as a graph of 100,000 points does.
void BM_solve_map(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.eval_exp("x = 1", true, false);
    const int map = record(parser, kMapLines[state.range(0)].line);
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) {
            parser.set_var_value(complex{point(k), 0}, "x");
            sum += parser.solve_equation(map, false, true).real;
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state, kPoints);
}
BENCHMARK(BM_solve_map)->DenseRange(0, kLastMap)->Unit(benchmark::kMillisecond);

// The slow road: the line read again at each point (a thousandth of the points).
void BM_eval_line(benchmark::State &state) {
    quindar::Parser parser("", "");
    parser.eval_exp("x = 1", true, false);
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; k += 1000) {
            parser.set_var_value(complex{point(k), 0}, "x");
            complex value;
            parser.eval_exp(kMapLines[state.range(0)].line, value, true, false);
            sum += value.real;
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state, kPoints / 1000.0);
}
BENCHMARK(BM_eval_line)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void BM_muparser(benchmark::State &state) {
    mu::Parser parser;
    double x = 1;
    parser.DefineVar("x", &x);
    parser.SetExpr(kMapLines[state.range(0)].double_line);
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) {
            x = point(k);
            sum += parser.Eval();
        }
    }
    benchmark::DoNotOptimize(sum);
    count_points(state, kPoints);
}
BENCHMARK(BM_muparser)->DenseRange(0, kLastMap)->Unit(benchmark::kMillisecond);

// The same maps in plain double-precision C++: the floor of what a point can cost.
void BM_plain_double(benchmark::State &state) {
    const auto plain = kMapLines[state.range(0)].plain;
    double sum = 0;
    for (auto _ : state) {
        for (int k = 0; k < kPoints; ++k) sum += plain(point(k));
        benchmark::DoNotOptimize(sum);
    }
    count_points(state, kPoints);
}
BENCHMARK(BM_plain_double)->DenseRange(0, kLastMap)->Unit(benchmark::kMillisecond);

}  // namespace
