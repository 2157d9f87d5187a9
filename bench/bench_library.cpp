// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Cost of lines that call library functions: each call reads the library file once per
// category, since nothing is cached, against the same line with the body typed in.
#include <benchmark/benchmark.h>

#include "library_files.h"
#include "parser.h"

namespace {

void evaluate_line(benchmark::State &state, const char *line) {
    quindar::Parser parser(QUINDAR_LIBRARY_DIR, QUINDAR_LIBRARY_DIR);
    quindar::install_function_libraries(parser);
    for (auto _ : state) benchmark::DoNotOptimize(parser.eval_exp(line, true, false));
}

void BM_body_typed_in(benchmark::State &state) {
    evaluate_line(state, "PI*(2)^2");
}
BENCHMARK(BM_body_typed_in);

void BM_first_category_call(benchmark::State &state) {
    evaluate_line(state, "CIRCLEAREA[2]");
}
BENCHMARK(BM_first_category_call);

void BM_last_category_call(benchmark::State &state) {
    evaluate_line(state, "HYPOT3[2,3,6]");
}
BENCHMARK(BM_last_category_call);

void BM_nested_calls(benchmark::State &state) {
    evaluate_line(state, "CELSIUSTOF[KTOCELSIUS[373.15]]");
}
BENCHMARK(BM_nested_calls);

// A name that is in neither library is looked for in every category of both.
void BM_unknown_name(benchmark::State &state) {
    evaluate_line(state, "NOSUCHNAME[2]");
}
BENCHMARK(BM_unknown_name);

}  // namespace
