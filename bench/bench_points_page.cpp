// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Points page of Graph Setup on long sets: a point file of 10,000 rows read and loaded,
// and the data check of a surface of two rows of 5,000 points, each value evaluated.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "document_parts.h"
#include "parser.h"
#include "point_files.h"
#include "points_page_model.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {
namespace {

// Answers every box with its first button; a benchmark shows none.
class QuietUi final : public SetupUi {
public:
    int Message(int, std::initializer_list<std::string_view>, unsigned) override { return 6; }
    void Sound(std::string_view) override {}
    void SelectPage(int) override {}
    int ShowingPage() const override { return kPagePoints; }
    void FocusControl(int, int) override {}
    void PageChanged() override {}
    void PageUnchanged(int) override {}
    void FocusEditor() override {}
    bool AddEditFunction(const std::string &, const std::string &) override { return false; }
    bool EditVariable(const std::string &) override { return false; }
    void ShowText(std::string_view, std::string_view) override {}
    void AddError(std::string_view) override {}
};

std::string PointFile(int rows) {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("bench_points_" + std::to_string(rows) + ".txt"))
            .string();
    std::ofstream out(path);
    for (int i = 0; i < rows; ++i) out << i << ", " << i * 0.5 << "*PI, 3\n";
    return path;
}

void BM_ReadPointFile(benchmark::State &state) {
    const std::string path = PointFile(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(read_point_file(path).points.size());
    std::filesystem::remove(path);
}
BENCHMARK(BM_ReadPointFile)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_LoadPointFileIntoTheGraph(benchmark::State &state) {
    const std::string path = PointFile(static_cast<int>(state.range(0)));
    Parser parser("", "");
    int loaded = 0;
    for (auto _ : state) {
        DocumentContent content;
        content.currentGraph = content.graphs.add();
        GraphSetupSession session(parser, content);
        QuietUi ui;
        PointsPageModel page(session, ui);
        page.LoadFile(path);
        loaded = page.PointCount();
    }
    state.counters["points"] = loaded;
    std::filesystem::remove(path);
}
BENCHMARK(BM_LoadPointFileIntoTheGraph)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_CheckASurfaceOfTwoRows(benchmark::State &state) {
    Parser parser("", "");
    DocumentContent content;
    content.currentGraph = content.graphs.add();
    GraphSetupSession session(parser, content);
    QuietUi ui;
    PointsPageModel page(session, ui);
    for (int row = 0; row < 2; ++row) {
        StrDataPnts *set = session.temp.DataSets.add();
        set->SetName(row == 0 ? "a" : "b");
        set->PutZDataPoint(row == 0 ? "1" : "2");
        for (int i = 0; i < state.range(0); ++i) {
            set->PutXDataPoint(std::to_string(i).c_str(), i);
            set->PutYDataPoint((std::to_string(i) + "/7").c_str(), i);
        }
    }
    for (auto _ : state) benchmark::DoNotOptimize(page.CheckData(session.temp));
}
BENCHMARK(BM_CheckASurfaceOfTwoRows)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quindar
