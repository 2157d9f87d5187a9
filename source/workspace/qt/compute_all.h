// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Compute All: every line of a text pane computed from the top as F4 computes it, so that
// lines depending on an earlier definition follow an edit. The headless run of the
// command-line program does the work on the document's own engine; the pane only takes the
// changed lines back, all in one undo step.

#include <string>

#include "message_hook.h"

namespace quindar {

class MathEditorWidget;
class Parser;

struct ComputeAllResult {
    int changedLines = 0;
    int failedLines = 0;
    int firstFailedLine = 0;  // 1-based; 0 when none failed
    std::string firstMessage;
};

// Computes the pane's text on parser. The engine shows no box per line while it runs;
// messages is the hook it gets back afterwards.
ComputeAllResult ComputeAll(MathEditorWidget &pane, Parser &parser, const MessageHook &messages);

// The one report of a run with failed lines, in the words of a failed line's own message.
std::string ComputeAllReport(const ComputeAllResult &result);

}  // namespace quindar
