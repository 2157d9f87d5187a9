// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Keys, the walk over a line's statements, and caret placement.
#include <string>

#include "editor_messages.h"
#include "math_editor.h"

namespace quindar {
namespace {

enum class Need : char { Any, Set, Clear };

constexpr bool Meets(Need need, bool flag) {
    return need == Need::Any || (need == Need::Set) == flag;
}

void Call(const std::function<void()> &hook) {
    if (hook) hook();
}

// Key-downs the editor takes for itself; the first rule that applies handles the key and
// keeps it from the control.
struct KeyRule {
    EditorKey key;
    Need calculationMethod;
    Need shift;
    Need ctrl;
    void (*action)(MathEditor &);
};

constexpr KeyRule kKeyRules[] = {
    {EditorKey::F4, Need::Any, Need::Any, Need::Any,
     [](MathEditor &editor) { editor.ProcessComLine(true, false, true); }},
    {EditorKey::Enter, Need::Set, Need::Any, Need::Any,
     [](MathEditor &editor) { editor.ProcessComLine(false, false, false); }},
    {EditorKey::Enter, Need::Clear, Need::Set, Need::Any,
     [](MathEditor &editor) { editor.ProcessComLine(false, false, false); }},
    {EditorKey::LetterF, Need::Any, Need::Any, Need::Set,
     [](MathEditor &editor) { Call(editor.CmEditFind); }},
    {EditorKey::LetterR, Need::Any, Need::Any, Need::Set,
     [](MathEditor &editor) { Call(editor.CmEditReplace); }},
    {EditorKey::Delete, Need::Any, Need::Any, Need::Set,
     [](MathEditor &editor) { Call(editor.CmEditClear); }},
    {EditorKey::F3, Need::Any, Need::Any, Need::Any,
     [](MathEditor &editor) { Call(editor.CmEditFindNext); }},
};

constexpr std::string_view kWhiteSpace = " \t\v\f";

}  // namespace

void MathEditor::EvKeyDown(EditorKey key) {
    if (key == EditorKey::Shift) shiftPressed = true;
    if (key == EditorKey::Ctrl) ctrlPressed = true;
    for (const KeyRule &rule : kKeyRules) {
        if (rule.key == key && Meets(rule.calculationMethod, CalculationMethod) &&
            Meets(rule.shift, shiftPressed) && Meets(rule.ctrl, ctrlPressed)) {
            rule.action(*this);
            return;
        }
    }
    if (key != EditorKey::Shift) shiftPressed = false;
    if (key != EditorKey::Ctrl) ctrlPressed = false;
    buffer.HandleKey(key);
}

void MathEditor::EvChar(char character) {
    // The carriage return of a Shift+Enter that computed must not break the line.
    if (character == '\r' && shiftPressed) {
        shiftPressed = false;
        return;
    }
    buffer.HandleChar(character);
}

bool MathEditor::ProcessComLine(bool advanceLine, bool complainIfEmpty, bool keepCaret) {
    const int line = buffer.CaretLine();
    const std::string text = buffer.LineText(line);

    if (text.find_first_not_of(kWhiteSpace) == std::string::npos) {
        if (complainIfEmpty && DispMessageBox)
            DispMessageBox(EditorMessageText(kNoExpressionToCompute),
                           EditorMessageText(kMathEditorErrorTitle), MessageStyle::Warning);
        return true;
    }
    if (text.starts_with(kCommentMark)) return true;

    SetCursorAtLineEnd(line);
    bool failed = false;
    std::size_t at = 0;
    for (;;) {
        at = text.find_first_not_of(kWhiteSpace, at);
        if (at == std::string::npos) at = text.size();
        const std::size_t semicolon = text.find(';', at);
        const std::size_t end = semicolon == std::string::npos ? text.size() : semicolon;
        std::string statement = text.substr(at, end - at);
        isLastStatement = semicolon == std::string::npos;
        // An earlier statement is computed in its own place: the old answer it carries is
        // removed there, and the caret comes back to the line's end for the next one.
        statementBack = static_cast<int>(text.size() - end);
        failed = Calculate(statement);
        statementBack = 0;
        if (failed || isLastStatement) break;
        SetCursorAtLineEnd(line);
        at = semicolon + 1;
        if (text.find_first_not_of(kWhiteSpace, at) == std::string::npos) break;
    }

    if (!keepCaret) {
        if (advanceLine) {
            if (!failed) {
                SetCursorAtLineEnd(buffer.CaretLine());
                buffer.ReplaceSelection("\r\n");
            } else if (buffer.CaretLine() == buffer.LineCount() - 1) {
                // A failed last line still gets a line after it; the caret stays on it.
                const int last = buffer.CaretLine();
                SetCursorAtLineEnd(last);
                buffer.ReplaceSelection("\r\n");
                SetCursorAtLineEnd(last);
            }
        } else if (CalculationMethod) {
            SetCursorAtLineEnd(buffer.CaretLine());
        }
    }
    return !failed;
}

int MathEditor::GetCharLength(int line) const {
    return buffer.LineStart(line) + static_cast<int>(buffer.LineText(line).size()) + 2;
}

void MathEditor::SetCursorAtLineEnd(int line, int back) {
    const int offset = GetCharLength(line) - 2 - back;
    buffer.SetSelection(offset, offset);
}

void MathEditor::SetCursorAtLineStart(int line) {
    const int offset = buffer.LineStart(line);
    buffer.SetSelection(offset, offset);
}

void MathEditor::ExecuteBACK() {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    if (start == 0) return;
    int point = start;
    for (; point > 0; --point) {
        const std::string before = buffer.TextRange(point - 1, point);
        if (before != "\r" && before != "\n") break;
    }
    buffer.SetSelection(point - 1, end);
    buffer.ReplaceSelection("");
}

}  // namespace quindar
