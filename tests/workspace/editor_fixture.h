// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Helpers of the workspace tests: texts with the caret drawn in, an engine that answers
// from a script, and editors over the real engine or the scripted one.

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "editor_engine.h"
#include "math_editor.h"
#include "memory_text_buffer.h"
#include "parser.h"

namespace quindar::testing {

// The caret in a drawn text. No expression of these tests uses the character.
inline constexpr char kCaret = '|';

// A buffer from a drawn text: "\n" for a line break, kCaret where the caret stands (at the
// start when the text has none).
inline void Load(MemoryTextBuffer &buffer, std::string_view drawn) {
    const std::size_t caret = drawn.find(kCaret);
    std::string text(drawn);
    if (caret != std::string::npos) text.erase(caret, 1);
    const std::string before = ToCrLf(drawn.substr(0, caret == std::string::npos ? 0 : caret));
    buffer.SetText(text);
    const int at = static_cast<int>(before.size());
    buffer.SetSelection(at, at);
}

// The buffer drawn the same way; a selection shows as [ ].
inline std::string Draw(const MemoryTextBuffer &buffer) {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    std::string text = buffer.Text();
    if (start == end) {
        text.insert(static_cast<std::size_t>(start), 1, kCaret);
    } else {
        text.insert(static_cast<std::size_t>(end), 1, ']');
        text.insert(static_cast<std::size_t>(start), 1, '[');
    }
    std::string drawn;
    for (char c : text)
        if (c != '\r') drawn += c;
    return drawn;
}

// What the scripted engine answers to one statement.
struct Reply {
    std::string answer;
    bool error = false;
    bool assigned = false;
    bool declared = false;
};

// Answers statements from a table; a statement not in it fails. Records what it was asked.
class ScriptedEngine : public EditorEngine {
public:
    const char *eval_exp(const char *statement, bool silent, bool showEquals) override {
        asked.emplace_back(statement);
        askedSilent = askedSilent || silent;
        askedWithoutEquals = askedWithoutEquals || !showEquals;
        if (during) during();
        const auto found = replies.find(statement);
        current = found != replies.end() ? found->second : Reply{"", true, false, false};
        error = current.error;
        if (error) current.answer.clear();
        return current.answer.c_str();
    }
    bool IsAnError() const override { return error; }
    void ClearLastError() override {
        error = false;
        ++cleared;
    }
    bool is_variable(const std::string &name) const override { return variables.count(name) > 0; }
    bool assignment_made() const override { return current.assigned; }
    bool function_declared() const override { return current.declared; }

    std::map<std::string, Reply, std::less<>> replies;
    std::set<std::string, std::less<>> variables;
    // Runs inside eval_exp, as messages that are let through during a long computation.
    std::function<void()> during;

    std::vector<std::string> asked;
    bool askedSilent = false;
    bool askedWithoutEquals = false;
    int cleared = 0;

private:
    Reply current;
    bool error = false;
};

// An editor over a buffer and the real engine, recording what it asks of the application.
struct RealEditor {
    RealEditor() {
        editor.PlayWaveFile = [this](std::string_view name) { sounds.emplace_back(name); };
    }
    Parser parser{"", ""};
    ParserEngine engine{parser};
    MemoryTextBuffer buffer;
    MathEditor editor{buffer, engine};
    std::vector<std::string> sounds;
};

// The same over the scripted engine.
struct ScriptedEditor {
    ScriptedEditor() {
        editor.PlayWaveFile = [this](std::string_view name) { events.emplace_back(name); };
        editor.UpdateVarListWindow = [this] { events.emplace_back("variables"); };
        editor.UpdateFunListWindow = [this] { events.emplace_back("functions"); };
        editor.UpdateCalculusUtility = [this] { events.emplace_back("calculus"); };
    }
    ScriptedEngine engine;
    MemoryTextBuffer buffer;
    MathEditor editor{buffer, engine};
    std::vector<std::string> events;
};

}  // namespace quindar::testing
