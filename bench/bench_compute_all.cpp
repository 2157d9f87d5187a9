// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Compute All: a whole document recomputed from the top as F4 computes each line, on the
// document's engine. The desktop takes only the changed lines back into its text pane.
#include <benchmark/benchmark.h>

#include <string>

#include "parser.h"
#include "text_run.h"

namespace {

using namespace quindar;

// A worksheet of n lines: definitions, lines using them, functions and their calls, and a
// comment now and then; every line after the first depends on what stands above it.
std::string Worksheet(int n) {
    std::string text;
    for (int i = 0; i < n; ++i) {
        const std::string k = std::to_string(i);
        switch (i % 5) {
            case 0:
                text += "v" + k + " = " +
                        (i == 0 ? std::string("1.5") : "v" + std::to_string(i - 5) + "*1.01+" + k);
                break;
            case 1:
                text +=
                    "SIN[v" + std::to_string(i - 1) + "]^2+COS[v" + std::to_string(i - 1) + "]^2";
                break;
            case 2:
                text += "f" + k + "[x] = x^2+v" + std::to_string(i - 2) + "/3";
                break;
            case 3:
                text += "f" + std::to_string(i - 1) + "[2]*v" + std::to_string(i - 3) + " = 0";
                break;
            default:
                text += "(v" + std::to_string(i - 4) + "+1)/7 // a note";
                break;
        }
        text += "\r\n";
    }
    return text;
}

void BM_ComputeAll(benchmark::State &state) {
    const std::string text = Worksheet(static_cast<int>(state.range(0)));
    Parser parser("", "");
    // The first run writes the answers; later runs replace them, as a user's Compute All does.
    std::string current = RunText(text, RunKey::F4, parser).text;
    for (auto _ : state) {
        TextRun run = RunText(current, RunKey::F4, parser);
        benchmark::DoNotOptimize(run.text.data());
        if (!run.failures.empty()) state.SkipWithError("a line failed");
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ComputeAll)->Arg(100)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace
