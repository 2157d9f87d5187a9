// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Compute All in the desktop text pane: the engine's run plus putting the changed lines back
// into the control, after the first line of a 500-line worksheet was edited.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <memory>
#include <string>

#include "compute_all.h"
#include "math_editor_widget.h"
#include "parser.h"
#include "text_run.h"

namespace {

using namespace quindar;

// A chain: every line depends on the one above, so an edit of the first changes them all.
std::string Chain(int n) {
    std::string text = "v0 = 1\r\n";
    for (int i = 1; i < n; ++i)
        text += "v" + std::to_string(i) + " = v" + std::to_string(i - 1) + "*1.001+SIN[" +
                std::to_string(i) + "]\r\n";
    return text;
}

void BM_ComputeAllInTheTextPane(benchmark::State &state) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "bench";
    static char *argv[] = {name, nullptr};
    static QApplication application(argc, argv);
    Parser parser("", "");
    MathEditorWidget pane(parser);
    pane.SetDocumentText(RunText(Chain(static_cast<int>(state.range(0))), RunKey::F4, parser).text);
    bool odd = false;
    for (auto _ : state) {
        state.PauseTiming();
        odd = !odd;
        QTextCursor first(pane.document()->firstBlock());
        first.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        first.insertText(odd ? QStringLiteral("v0 = 2") : QStringLiteral("v0 = 1"));
        state.ResumeTiming();
        const ComputeAllResult result = ComputeAll(pane, parser, {});
        if (result.failedLines != 0) state.SkipWithError("a line failed");
        benchmark::DoNotOptimize(result.changedLines);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ComputeAllInTheTextPane)->Arg(500)->Unit(benchmark::kMillisecond);

}  // namespace
