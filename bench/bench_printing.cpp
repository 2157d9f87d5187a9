// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Paging a long Math Editor text for printing. Target: a 10,000-line document (60 characters
// a line, every tenth line 300 characters that wrap on a page 2400 units wide) is paged in under 50
// ms, with a measure callback that sums character widths as a font's metrics would.
#include <benchmark/benchmark.h>

#include <string>

#include "text_paginator.h"

namespace {

using quindar::printing::TextPaginator;

std::string LongText(int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i) {
        const int width = i % 10 == 9 ? 300 : 60;
        text += "x" + std::to_string(i) + " = " + std::string(static_cast<std::size_t>(width), '7');
        text += "\r\n";
    }
    return text;
}

int Measure(std::string_view text) {
    int width = 0;
    for (char c : text) width += c == '7' ? 11 : 9;
    return width;
}

void BM_PageTenThousandLines(benchmark::State &state) {
    const std::string text = LongText(10000);
    std::size_t pages = 0;
    for (auto _ : state) {
        TextPaginator paginator(text, "/home/user/long.qnd", {2400, 6600, 100}, Measure);
        pages = paginator.AllPages().size();
        benchmark::DoNotOptimize(pages);
    }
    state.counters["pages"] = static_cast<double>(pages);
}
BENCHMARK(BM_PageTenThousandLines)->Unit(benchmark::kMillisecond);

}  // namespace
