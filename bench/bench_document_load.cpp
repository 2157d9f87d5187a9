// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Loading documents of 1,000, 10,000 and 100,000 declared variables, declared functions or
// graphs: loading must grow linearly with the document. The files are written as text, so
// making them costs nothing of the engine.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "document_file.h"

namespace {

using namespace quindar;

enum class Entries { Variables, Functions, Graphs };

std::string document_text(Entries kind, int n) {
    std::string text = "v1 + 1\r\n";
    const auto number = [](int i) { return std::to_string(i); };
    if (kind == Entries::Variables) {
        text += "[DECLARED VARIABLES]\r\n";
        for (int i = 0; i < n; ++i) text += "v" + number(i) + "=" + number(i) + ".25\r\n";
    }
    if (kind == Entries::Functions) {
        text += "[DECLARED FUNCTIONS]\r\n";
        for (int i = 0; i < n; ++i) text += "f" + number(i) + "[x]=x^2+" + number(i) + "\r\n";
    }
    text += "[SETUP]\r\nAnsPrecision=14\r\n";
    if (kind == Entries::Graphs) {
        text += "[GRAPHS]\r\n";
        for (int i = 1; i <= n; ++i) text += "Graph" + number(i) + "=Graph " + number(i) + "\r\n";
        for (int i = 1; i <= n; ++i)
            text += "[Graph" + number(i) + "]\r\nHeader=h\r\nType=1\r\nFunction1=g[x]=x*" +
                    number(i) + "\r\nXAxisVariable=x(0,10,25)\r\n";
    }
    return text;
}

std::string bench_path(const char *name) {
    return (std::filesystem::temp_directory_path() /
            (std::string("quindar-bench-") + std::to_string(::getpid()) + "-" + name))
        .string();
}

void load(benchmark::State &state, Entries kind) {
    const int n = static_cast<int>(state.range(0));
    const std::string path = bench_path("load-entries.qnd");
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out << document_text(kind, n);
    }
    for (auto _ : state) {
        Parser parser("", "");
        DocumentContent content;
        DocumentFile file(parser, content);
        benchmark::DoNotOptimize(file.Read(path.c_str()));
    }
    state.SetItemsProcessed(state.iterations() * n);
    std::filesystem::remove(path);
}

void BM_LoadVariables(benchmark::State &state) {
    load(state, Entries::Variables);
}
void BM_LoadFunctions(benchmark::State &state) {
    load(state, Entries::Functions);
}
void BM_LoadGraphs(benchmark::State &state) {
    load(state, Entries::Graphs);
}

// One load per size: the largest take long while loading is not linear.
BENCHMARK(BM_LoadVariables)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadFunctions)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoadGraphs)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
