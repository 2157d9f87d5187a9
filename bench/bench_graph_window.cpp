// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The graph window's share of a graph: a 2,000-point plot and a 100 x 100 surface built on the
// one thread with no pump, with the throttled pump (one per 20 ms) and with a pump at every
// report; and both drawn on their charts and rendered into an image (the surface only on a
// display with OpenGL: run under xvfb-run with QT_QPA_PLATFORM=xcb).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <memory>
#include <string>

#include "chart_view_2d.h"
#include "chart_view_3d.h"
#include "graph_builder.h"
#include "graph_compute_host.h"
#include "graph_progress_dialog.h"
#include "parser.h"

namespace {

using quindar::complex;

// One application for every benchmark, on a display that needs no server.
QApplication &application() {
    static int argc = 1;
    static char name[] = "bench_graph_window";
    static char *argv[] = {name, nullptr};
    static std::unique_ptr<QApplication> app = [] {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        return std::make_unique<QApplication>(argc, argv);
    }();
    return *app;
}

quindar::GraphData make_graph(quindar::Parser &parser, long nx, long nz) {
    quindar::GraphData graph("Bench");
    const quindar::Variable x("x", complex{0.5, 0}, complex{10, 0}, nx);
    graph.SetXAxisVar(&x);
    if (nz > 0) {
        parser.eval_exp("q[x,z] = SIN[x]*z^2+3*x-1/x", true, false);
        const quindar::Variable z("z", complex{-5, 0}, complex{5, 0}, nz);
        graph.SetZAxisVar(&z);
        graph.AddFunction("q[x,z]", "");
    } else {
        parser.eval_exp("p[x] = SIN[x]*x^2+3*x-1/x", true, false);
        graph.AddFunction("p[x]", "");
    }
    return graph;
}

// range(0): -1 no host, else the least milliseconds between two pumps.
void build(benchmark::State &state, long nx, long nz) {
    application();
    quindar::Parser parser("", "");
    quindar::GraphData graph = make_graph(parser, nx, nz);
    quindar::GraphProgressDialog dialog;
    QObject owner;
    const int interval = static_cast<int>(state.range(0));
    quindar::GraphComputeHost host(&dialog, &owner, interval < 0 ? 0 : interval);
    if (interval >= 0) parser.set_computation_hooks(&host);
    for (auto _ : state) {
        quindar::GraphBuilder builder(parser, graph);
        if (!builder.Build()) state.SkipWithError("the build failed");
    }
    state.counters["pumps"] = host.pumps();
}

void BM_plot_2000_build(benchmark::State &state) {
    build(state, 2000, 0);
}
BENCHMARK(BM_plot_2000_build)->Arg(-1)->Arg(20)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_surface_100x100_build(benchmark::State &state) {
    build(state, 100, 100);
}
BENCHMARK(BM_surface_100x100_build)->Arg(-1)->Arg(20)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_plot_2000_draw(benchmark::State &state) {
    application();
    quindar::Parser parser("", "");
    quindar::GraphData graph = make_graph(parser, 2000, 0);
    quindar::GraphBuilder builder(parser, graph);
    builder.Build();
    quindar::ChartView2D view;
    view.resize(800, 600);
    for (auto _ : state) {
        view.apply(quindar::chart_spec_2d(graph, 0));
        view.setData(*builder.Data2D);
        benchmark::DoNotOptimize(view.renderImage(QSize(800, 600)).width());
    }
}
BENCHMARK(BM_plot_2000_draw)->Unit(benchmark::kMillisecond);

// The surface with shading, zones, contours and its floor projection.
void BM_surface_100x100_draw(benchmark::State &state) {
    application();
    quindar::Parser parser("", "");
    quindar::GraphData graph = make_graph(parser, 100, 100);
    graph.GraphType3D = 101111;  // projection, zones, contours, shading, mesh
    quindar::GraphBuilder builder(parser, graph);
    builder.Build();
    quindar::ChartView3D view;
    view.resize(800, 600);
    if (!view.canDraw()) {
        state.SkipWithError("no OpenGL on this display");
        return;
    }
    for (auto _ : state) {
        view.apply(quindar::chart_spec_3d(graph));
        view.setData(*builder.Data3D);
        benchmark::DoNotOptimize(view.renderImage(QSize(800, 600)).width());
    }
}
BENCHMARK(BM_surface_100x100_draw)->Unit(benchmark::kMillisecond);

}  // namespace
