// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "compute_all.h"

#include <QTextBlock>
#include <QTextCursor>
#include <set>

#include "math_editor_widget.h"
#include "parser.h"
#include "text_run.h"

namespace quindar {
namespace {

std::vector<std::string> LinesOf(const std::string &text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find("\r\n", start);
        if (end == std::string::npos) {
            lines.emplace_back(text, start);
            return lines;
        }
        lines.emplace_back(text, start, end - start);
        start = end + 2;
    }
}

}  // namespace

ComputeAllResult ComputeAll(MathEditorWidget &pane, Parser &parser, const MessageHook &messages) {
    ComputeAllResult result;
    const std::string before = pane.DocumentText();
    // One box at the end instead of one per failed line.
    parser.set_message_hook({});
    const TextRun run = RunText(before, RunKey::F4, parser);
    parser.set_message_hook(messages);

    std::set<int> failed;
    for (const LineFailure &failure : run.failures) {
        if (failed.insert(failure.line).second && result.firstFailedLine == 0) {
            result.firstFailedLine = failure.line;
            result.firstMessage = failure.message;
        }
    }
    result.failedLines = static_cast<int>(failed.size());

    const std::vector<std::string> oldLines = LinesOf(before);
    const std::vector<std::string> newLines = LinesOf(run.text);
    QTextDocument *document = pane.document();
    const int caret = pane.textCursor().position();
    QTextCursor cursor(document);
    bool opened = false;
    // F4 never adds or removes a line, so the lines pair up one to one.
    const std::size_t count = std::min(oldLines.size(), newLines.size());
    for (std::size_t line = 0; line < count; ++line) {
        if (oldLines[line] == newLines[line]) continue;
        if (!opened) {
            cursor.beginEditBlock();
            opened = true;
        }
        const QTextBlock block = document->findBlockByNumber(static_cast<int>(line));
        cursor.setPosition(block.position());
        cursor.setPosition(block.position() + block.length() - 1, QTextCursor::KeepAnchor);
        cursor.insertText(QString::fromUtf8(newLines[line].data(),
                                            static_cast<qsizetype>(newLines[line].size())));
        ++result.changedLines;
    }
    if (opened) {
        cursor.endEditBlock();
        QTextCursor restored(document);
        restored.setPosition(std::min(caret, document->characterCount() - 1));
        pane.setTextCursor(restored);
    }
    return result;
}

std::string ComputeAllReport(const ComputeAllResult &result) {
    if (result.failedLines == 0) return {};
    std::string text = result.failedLines == 1
                           ? "1 line could not be computed."
                           : std::to_string(result.failedLines) + " lines could not be computed.";
    text += "\n\nLine " + std::to_string(result.firstFailedLine) + ": " + result.firstMessage;
    return text;
}

}  // namespace quindar
