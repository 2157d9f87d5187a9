// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Graph builds on a document's engine: a 2,000-point 2-D graph and a 100 x 100 3-D graph,
// each whole (axis variables lent and given back, the map recorded, every point solved), and
// beside them the bare map solver at the same points, to show what the build adds.
#include <benchmark/benchmark.h>

#include "graph_builder.h"
#include "parser.h"

namespace {

using quindar::complex;

constexpr const char *kFunction2D = "SIN[x]*x^2+3*x-1/x";
constexpr const char *kFunction3D = "SIN[x]*z^2+3*x-1/x";

quindar::GraphData make_graph(long nx, long nz) {
    quindar::GraphData graph("Bench");
    const quindar::Variable x("x", complex{0.5, 0}, complex{10, 0}, nx);
    graph.SetXAxisVar(&x);
    if (nz > 0) {
        const quindar::Variable z("z", complex{-5, 0}, complex{5, 0}, nz);
        graph.SetZAxisVar(&z);
        graph.AddFunction("q[x,z]", kFunction3D);
    } else {
        graph.AddFunction("p[x]", kFunction2D);
    }
    return graph;
}

void BM_graph_2d(benchmark::State &state) {
    const long points = state.range(0);
    quindar::Parser parser("", "");
    parser.eval_exp((std::string("p[x] = ") + kFunction2D).c_str(), true, false);
    quindar::GraphData graph = make_graph(points, 0);
    for (auto _ : state) {
        quindar::GraphBuilder builder(parser, graph);
        if (!builder.Build()) state.SkipWithError("the build failed");
        benchmark::DoNotOptimize(builder.Data2D->y(0, 1));
    }
    state.counters["points"] = static_cast<double>(points);
    state.counters["s/point"] = benchmark::Counter(
        static_cast<double>(points),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_graph_2d)->Arg(2000)->Unit(benchmark::kMillisecond);

void BM_graph_3d(benchmark::State &state) {
    const long side = state.range(0);
    quindar::Parser parser("", "");
    parser.eval_exp((std::string("q[x,z] = ") + kFunction3D).c_str(), true, false);
    quindar::GraphData graph = make_graph(side, side);
    for (auto _ : state) {
        quindar::GraphBuilder builder(parser, graph);
        if (!builder.Build()) state.SkipWithError("the build failed");
        benchmark::DoNotOptimize(builder.Data3D->value(1, 1));
    }
    state.counters["points"] = static_cast<double>(side * side);
    state.counters["s/point"] = benchmark::Counter(
        static_cast<double>(side * side),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_graph_3d)->Arg(100)->Unit(benchmark::kMillisecond);

// The map solver alone at the 2-D graph's points.
void BM_map_solver_2d(benchmark::State &state) {
    const long points = state.range(0);
    quindar::Parser parser("", "");
    parser.eval_exp("x = 1", true, false);
    parser.current_equation = parser.equations.add();
    parser.mapping = true;
    parser.eval_exp(kFunction2D, true, true);
    const int map = parser.equations.count();
    double sum = 0;
    for (auto _ : state) {
        for (long k = 0; k < points; ++k) {
            parser.set_var_value(complex{0.5 + 9.5 * static_cast<double>(k) / (points - 1), 0},
                                 "x");
            sum += parser.solve_equation(map, false, true).real;
        }
    }
    benchmark::DoNotOptimize(sum);
    state.counters["s/point"] = benchmark::Counter(
        static_cast<double>(points),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_map_solver_2d)->Arg(2000)->Unit(benchmark::kMillisecond);

// The map solver alone at the 3-D graph's grid points.
void BM_map_solver_3d(benchmark::State &state) {
    const long side = state.range(0);
    quindar::Parser parser("", "");
    parser.eval_exp("x = 1", true, false);
    parser.eval_exp("z = 1", true, false);
    parser.current_equation = parser.equations.add();
    parser.mapping = true;
    parser.eval_exp(kFunction3D, true, true);
    const int map = parser.equations.count();
    double sum = 0;
    for (auto _ : state) {
        for (long i = 0; i < side; ++i) {
            parser.set_var_value(complex{0.5 + 9.5 * static_cast<double>(i) / (side - 1), 0}, "x");
            for (long k = 0; k < side; ++k) {
                parser.set_var_value(complex{-5 + 10.0 * static_cast<double>(k) / (side - 1), 0},
                                     "z");
                sum += parser.solve_equation(map, false, true).real;
            }
        }
    }
    benchmark::DoNotOptimize(sum);
    state.counters["s/point"] = benchmark::Counter(
        static_cast<double>(side * side),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_map_solver_3d)->Arg(100)->Unit(benchmark::kMillisecond);

}  // namespace
