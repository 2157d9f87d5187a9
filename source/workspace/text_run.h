// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A whole text through a Math Editor of its own, one line after the other, the way a user
// computes it with the keys: the headless road of the command-line program.

#include <string>
#include <string_view>
#include <vector>

namespace quindar {

enum class RunKey {
    // The text is loaded; on each line in turn the caret goes to its start and F4 is
    // pressed. No line is added or removed.
    F4,
    // The text is typed line by line into an empty editor, each line followed by Enter
    // (which computes); every line therefore ends in a line break.
    Enter,
};

struct LineFailure {
    int line;  // 1-based
    std::string message;
};

struct TextRun {
    // The resulting text, with the line breaks of the input (CR LF when its first break is
    // CR LF, LF otherwise).
    std::string text;
    std::vector<LineFailure> failures;
    // What the engine told outside any line: a library file that could not be opened.
    std::vector<std::string> warnings;
};

// libraryFolder (ending in its separator) holds the function libraries; empty: none.
TextRun RunText(std::string_view input, RunKey key, const std::string &libraryFolder = {});
// The same on the caller's engine, which keeps the text's variables and functions.
class Parser;
TextRun RunText(std::string_view input, RunKey key, Parser &parser);
// Opens the engine's function libraries (in the folder it was made with); what could not be
// opened comes back as warnings.
std::vector<std::string> OpenLibraries(Parser &parser, const std::string &libraryFolder);

class Parser;
// The same with an engine that already holds declarations, such as a loaded document's.
TextRun RunText(std::string_view input, RunKey key, Parser &parser);

}  // namespace quindar
