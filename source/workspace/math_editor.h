// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Math Editor's line processing: a key press on a line hands its statements to the
// engine and writes the answer behind the line. Nothing is kept per line; the text is the
// only record, and an answer already in it is recognised and replaced.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "editor_engine.h"
#include "editor_key.h"
#include "message_hook.h"
#include "text_buffer.h"

namespace quindar {

// The characters an answer is written with.
inline constexpr std::string_view kNumericAnswerSet = "0123456789 .+-eEi";
// Characters that make the left side of "=" more than a plain name.
inline constexpr std::string_view kOperatorSet = "!+-<>*/%^=()[]{},;:#$@&?~'|\\`\" ";
inline constexpr std::string_view kCommentMark = "//";

class MathEditor {
public:
    MathEditor(TextBuffer &text, EditorEngine &parser) : buffer(text), engine(parser) {}

    // Key handlers of the text control; for one key press the key-down comes first, then
    // its character.
    void EvKeyDown(EditorKey key);
    void EvChar(char character);

    // Computes the caret's line. True when no statement failed; an empty line or a comment
    // line computes nothing and counts as success.
    bool ProcessComLine(bool advanceLine, bool complainIfEmpty, bool keepCaret);
    // Computes one statement of the caret's line; true on error. The statement is cut at
    // its comment or its old answer.
    bool Calculate(std::string &statement);
    // Whether the statement is an expression that already carries an answer.
    bool IsRecalculating(std::string_view statement) const;

    // Sum over lines 0 to line of the line's length plus 2; minus 2 it is the end of line.
    int GetCharLength(int line) const;
    void SetCursorAtLineEnd(int line, int back = 0);
    void SetCursorAtLineStart(int line);
    // The calculator's back key.
    void ExecuteBACK();

    bool shiftPressed = false;
    bool ctrlPressed = false;
    // Only the answer of a line's last statement is shown.
    bool isLastStatement = true;
    // The value part of the latest answer shown, for the calculator's last-answer key.
    std::optional<std::string> lastAnswerText;
    // The application's option: Enter computes; when false Enter only breaks the line and
    // Shift+Enter computes. The application keeps this current.
    bool CalculationMethod = true;

    // What the rest of the application does about a computed line; empty until it is there.
    std::function<void()> UpdateVarListWindow;
    std::function<void()> UpdateFunListWindow;
    std::function<void()> UpdateCalculusUtility;
    std::function<void(std::string_view fileName)> PlayWaveFile;
    MessageHook DispMessageBox;
    std::function<void()> CmEditFind;
    std::function<void()> CmEditReplace;
    std::function<void()> CmEditFindNext;
    std::function<void()> CmEditClear;

private:
    TextBuffer &buffer;
    EditorEngine &engine;
    // Characters between the end of the statement being computed and the end of its line;
    // 0 for a line's last statement.
    int statementBack = 0;
};

}  // namespace quindar
