// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Names: a line that declares a new name against one that reuses a name (both with the
// libraries installed), a line read among many declared variables, and the declaration of
// thousands of variables and functions, whose time must grow linearly.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "library_files.h"
#include "parser.h"

namespace {

using quindar::Parser;

std::vector<std::string> numbered_lines(const char *head, const char *tail, int n) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i) lines.push_back(head + std::to_string(i) + tail);
    return lines;
}

// Lines "<head>K<tail>" with libraries installed. With `fresh` each line names a new K (the
// engine is emptied every thousand names, so that it holds as many as the other case);
// otherwise K cycles through a thousand names, each declared once before, so that only
// the look-ups differ.
void declare_lines(benchmark::State &state, const char *head, const char *tail, bool fresh,
                   void (Parser::*empty)()) {
    Parser parser(QUINDAR_LIBRARY_DIR, QUINDAR_LIBRARY_DIR);
    quindar::install_function_libraries(parser);
    long k = 0;
    for (auto _ : state) {
        if (fresh && k % 1000 == 999) {
            state.PauseTiming();
            (parser.*empty)();
            state.ResumeTiming();
        }
        const std::string line = head + std::to_string(fresh ? k : k % 1000) + tail;
        ++k;
        benchmark::DoNotOptimize(parser.eval_exp(line.c_str(), true, false));
    }
}

void BM_line_new_variable(benchmark::State &state) {
    declare_lines(state, "v", " = 1+2", true, &Parser::delete_all_vars);
}
BENCHMARK(BM_line_new_variable);

void BM_line_reused_variable(benchmark::State &state) {
    declare_lines(state, "v", " = 1+2", false, &Parser::delete_all_vars);
}
BENCHMARK(BM_line_reused_variable);

void BM_line_new_function(benchmark::State &state) {
    declare_lines(state, "f", "[x] = x^2+1", true, &Parser::delete_all_funcs);
}
BENCHMARK(BM_line_new_function);

void BM_line_reused_function(benchmark::State &state) {
    declare_lines(state, "f", "[x] = x^2+1", false, &Parser::delete_all_funcs);
}
BENCHMARK(BM_line_reused_function);

// A line that reads two variables, with range(0) variables declared.
void BM_line_among_variables(benchmark::State &state) {
    Parser parser("", "");
    for (const auto &line : numbered_lines("v", " = 3", static_cast<int>(state.range(0))))
        parser.eval_exp(line.c_str(), true, false);
    // The last two declared, which a scan of the list meets last.
    const int n = static_cast<int>(state.range(0));
    const std::string line = "v" + std::to_string(n - 2) + "+v" + std::to_string(n - 1);
    for (auto _ : state) benchmark::DoNotOptimize(parser.eval_exp(line.c_str(), true, false));
}
BENCHMARK(BM_line_among_variables)->Arg(2)->Arg(8000);

// Declaring range(0) variables (or functions) in a fresh engine, as loading a document does.
void declare_all(benchmark::State &state, const char *head, const char *tail) {
    const auto lines = numbered_lines(head, tail, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Parser parser("", "");
        for (const auto &line : lines) parser.eval_exp(line.c_str(), true, false);
    }
    state.counters["per name"] = benchmark::Counter(
        static_cast<double>(state.range(0)),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void BM_declare_variables(benchmark::State &state) {
    declare_all(state, "v", " = 3");
}
BENCHMARK(BM_declare_variables)
    ->Arg(1000)
    ->Arg(2000)
    ->Arg(4000)
    ->Arg(8000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

void BM_declare_functions(benchmark::State &state) {
    declare_all(state, "f", "[x] = x^2+1");
}
BENCHMARK(BM_declare_functions)
    ->Arg(1000)
    ->Arg(2000)
    ->Arg(4000)
    ->Arg(8000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
