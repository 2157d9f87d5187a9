// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "text_run.h"

#include <utility>

#include "editor_engine.h"
#include "library_files.h"
#include "math_editor.h"
#include "memory_text_buffer.h"
#include "parser.h"

namespace quindar {
namespace {

// Takes the engine's error text at the moment the editor clears it, which is how a failed
// statement shows in a run without message boxes.
class RecordingEngine final : public ParserEngine {
public:
    explicit RecordingEngine(Parser &engine) : ParserEngine(engine), parser(engine) {}

    void ClearLastError() override {
        if (parser.IsAnError()) {
            const char *text = parser.GetLastError();
            errors.emplace_back(text != nullptr ? text : "");
        }
        ParserEngine::ClearLastError();
    }

    std::vector<std::string> errors;

private:
    Parser &parser;
};

// The lines of a text; a break at the very end closes the last line and opens none.
std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    const std::string normal = ToCrLf(text);
    std::size_t start = 0;
    while (start < normal.size()) {
        std::size_t end = normal.find("\r\n", start);
        if (end == std::string::npos) end = normal.size();
        lines.emplace_back(normal, start, end - start);
        start = end + 2;
    }
    return lines;
}

bool FirstBreakIsCrLf(std::string_view text) {
    const std::size_t at = text.find_first_of("\r\n");
    return at != std::string_view::npos && text.substr(at, 2) == "\r\n";
}

std::string WithLineFeeds(const std::string &text) {
    std::string result;
    result.reserve(text.size());
    for (char c : text)
        if (c != '\r') result += c;
    return result;
}

}  // namespace

std::vector<std::string> OpenLibraries(Parser &parser, const std::string &libraryFolder) {
    std::vector<std::string> warnings;
    if (libraryFolder.empty()) return warnings;
    parser.set_message_hook([&warnings](std::string_view text, std::string_view, MessageStyle) {
        warnings.emplace_back(text);
        return true;
    });
    install_function_libraries(parser);
    // Lines report through their failures, not through boxes.
    parser.set_message_hook({});
    return warnings;
}

TextRun RunText(std::string_view input, RunKey key, const std::string &libraryFolder) {
    Parser parser(libraryFolder.c_str(), libraryFolder.c_str());
    std::vector<std::string> warnings = OpenLibraries(parser, libraryFolder);
    TextRun run = RunText(input, key, parser);
    run.warnings = std::move(warnings);
    return run;
}

TextRun RunText(std::string_view input, RunKey key, Parser &parser) {
    TextRun run;
    RecordingEngine engine(parser);
    MemoryTextBuffer buffer;
    MathEditor editor(buffer, engine);

    const auto noteFailures = [&](int line) {
        for (std::string &message : engine.errors) run.failures.push_back({line + 1, message});
        engine.errors.clear();
    };

    if (key == RunKey::F4) {
        buffer.SetText(input);
        for (int line = 0; line < buffer.LineCount(); ++line) {
            editor.SetCursorAtLineStart(line);
            editor.EvKeyDown(EditorKey::F4);
            noteFailures(line);
        }
    } else {
        const std::vector<std::string> lines = SplitLines(input);
        for (std::size_t line = 0; line < lines.size(); ++line) {
            buffer.ReplaceSelection(lines[line]);
            editor.EvKeyDown(EditorKey::Enter);
            editor.EvChar('\r');
            noteFailures(static_cast<int>(line));
        }
    }

    run.text = FirstBreakIsCrLf(input) ? buffer.Text() : WithLineFeeds(buffer.Text());
    return run;
}

}  // namespace quindar
