// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Saving and loading documents: declarations and data sets of growing size.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <string>

#include "document_file.h"

namespace {

using namespace quindar;

// A work of n variables, n / 10 functions and one graph with a data set of n points.
void fill(Parser &parser, DocumentContent &content, int n) {
    for (int i = 0; i < n; ++i) {
        const std::string line = "v" + std::to_string(i) + " = " + std::to_string(i) + "/7";
        parser.eval_exp(line.c_str(), true, false);
    }
    for (int i = 0; i < n / 10; ++i) {
        const std::string line = "f" + std::to_string(i) + "[x] = x^2+" + std::to_string(i);
        parser.eval_exp(line.c_str(), true, false);
    }
    content.text = "v1 + v2\r\n";
    GraphData *graph = content.graphs.add();
    graph->SetName("Data");
    StrDataPnts *set = graph->DataSets.add();
    set->SetName("s");
    for (int i = 0; i < n; ++i) {
        set->PutXDataPoint(std::to_string(i).c_str(), i);
        set->PutYDataPoint(("v" + std::to_string(i)).c_str(), i);
    }
}

std::string bench_path(const char *name) {
    return (std::filesystem::temp_directory_path() /
            (std::string("quindar-bench-") + std::to_string(::getpid()) + "-" + name))
        .string();
}

void BM_SaveDocument(benchmark::State &state) {
    Parser parser("", "");
    DocumentContent content;
    fill(parser, content, static_cast<int>(state.range(0)));
    const std::string path = bench_path("save.qnd");
    DocumentFile file(parser, content);
    for (auto _ : state) benchmark::DoNotOptimize(file.Write(path.c_str()));
    std::filesystem::remove(path);
}
BENCHMARK(BM_SaveDocument)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

// Writes the document that `make` fills in, loads it in each iteration into a fresh engine,
// and removes it.
template <class Make>
void load_repeatedly(benchmark::State &state, const char *name, Make make) {
    const std::string path = bench_path(name);
    {
        Parser parser("", "");
        DocumentContent content;
        make(parser, content);
        DocumentFile(parser, content).Write(path.c_str());
    }
    for (auto _ : state) {
        Parser parser("", "");
        DocumentContent content;
        DocumentFile file(parser, content);
        benchmark::DoNotOptimize(file.Read(path.c_str()));
    }
    std::filesystem::remove(path);
}

void BM_LoadDocument(benchmark::State &state) {
    load_repeatedly(state, "load.qnd", [&](Parser &parser, DocumentContent &content) {
        fill(parser, content, static_cast<int>(state.range(0)));
    });
}
BENCHMARK(BM_LoadDocument)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

// A document of range(0) variables and as many functions and nothing else: its load time
// must grow linearly with the number of declarations.
void BM_LoadDeclarations(benchmark::State &state) {
    const int n = static_cast<int>(state.range(0));
    load_repeatedly(state, "declarations.qnd", [n](Parser &parser, DocumentContent &) {
        for (int i = 0; i < n; ++i) {
            const std::string number = std::to_string(i);
            parser.eval_exp(("v" + number + " = " + number + "/7").c_str(), true, false);
            parser.eval_exp(("f" + number + "[x] = x^2+" + number).c_str(), true, false);
        }
    });
    state.counters["per name"] = benchmark::Counter(
        2.0 * n, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_LoadDeclarations)
    ->Arg(1000)
    ->Arg(2000)
    ->Arg(4000)
    ->Arg(8000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
