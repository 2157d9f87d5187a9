// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Whole texts through the Math Editor: a text of mixed lines at growing sizes, whose time must
// grow linearly, and a document-sized text of variables, functions and expressions. Each
// line is computed with F4, as the command-line program does.
#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "text_run.h"

namespace {

// Declarations, calls and plain arithmetic, cycling through the kinds a document holds; for
// bc (`bc`) with its own form of a function and plain line ends.
std::string mixed_text(int lines, bool bc = false) {
    std::string text;
    for (int i = 0; i < lines; ++i) {
        const std::string n = std::to_string(i);
        switch (i % 5) {
            case 0:
                text += "v" + n + " = " + n + "/7";
                break;
            case 1:
                text += bc ? "define f" + n + "(x) { return (x^2+" + n + "); }"
                           : "f" + n + "[x] = x^2+" + n;
                break;
            case 2:
                text += "f" + std::to_string(i - 1) + (bc ? "(v" : "[v") + std::to_string(i - 2) +
                        (bc ? ")" : "]");
                break;
            case 3:
                text += "(1.5+" + n + ")*3-2/7";
                break;
            default:
                text += "v" + std::to_string(i - 4) + "*2+1";
                break;
        }
        text += bc ? "\n" : "\r\n";
    }
    return text;
}

void BM_text_lines(benchmark::State &state) {
    const int lines = static_cast<int>(state.range(0));
    const std::string text = mixed_text(lines);
    for (auto _ : state) benchmark::DoNotOptimize(quindar::RunText(text, quindar::RunKey::F4));
    state.counters["per line"] = benchmark::Counter(
        lines, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_text_lines)->Arg(500)->Arg(2000)->Arg(10000)->Unit(benchmark::kMillisecond);

double child_seconds() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
           1e-6 * static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec);
}

// bc's own processor time for the whole text, start-up included (a few hundred microseconds).
void BM_bc_lines(benchmark::State &state) {
    const int lines = static_cast<int>(state.range(0));
    const std::string path = (std::filesystem::temp_directory_path() /
                              ("quindar-bench-bc-" + std::to_string(::getpid()) + ".bc"))
                                 .string();
    std::ofstream(path) << mixed_text(lines, true);
    const std::string command = "bc -l < " + path + " > /dev/null 2>&1";
    for (auto _ : state) {
        const double before = child_seconds();
        if (std::system(command.c_str()) != 0) state.SkipWithError("bc did not run");
        state.SetIterationTime(child_seconds() - before);
    }
    std::filesystem::remove(path);
    state.counters["per line"] = benchmark::Counter(
        lines, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_bc_lines)->Arg(2000)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
