// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// One statement: its comment, its old answer, the engine's answer written into the text.
#include <optional>
#include <string>

#include "editor_messages.h"
#include "math_editor.h"

namespace quindar {
namespace {

bool Holds(std::string_view set, char c) {
    return set.find(c) != std::string_view::npos;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Where the statement's comment starts, blanks before the mark included. The leftmost
// mark wins; one at the very start is not seen.
std::optional<int> FindCommentStart(const std::string &statement) {
    std::optional<int> commentStart;
    const int length = static_cast<int>(statement.size());
    for (int i = length - 1; i >= 1; --i) {
        const auto at = static_cast<std::size_t>(i);
        if (statement[at] != '/' || i + 1 >= length || statement[at + 1] != '/') continue;
        int start = i;
        while (start > 0 && statement[static_cast<std::size_t>(start) - 1] == ' ') --start;
        commentStart = start;
    }
    return commentStart;
}

}  // namespace

bool MathEditor::IsRecalculating(std::string_view statement) const {
    std::optional<std::size_t> pos;
    bool foreign = false;
    for (std::size_t i = statement.size(); i-- > 0;) {
        const char c = statement[i];
        if (c == '=') {
            pos = i;
            break;
        }
        if (Holds(kNumericAnswerSet, c)) continue;
        foreign = true;
        // A comment mark forgives whatever stands right of it.
        if (c == '/' && i > 0 &&
            (statement[i - 1] == '/' || (i + 1 < statement.size() && statement[i + 1] == '/')))
            foreign = false;
    }
    if (!pos || foreign || *pos < 1) return false;
    if (Holds("=!<>", statement[*pos - 1])) return false;

    std::string_view left = statement.substr(0, *pos);
    while (!left.empty() && left.back() == ' ') left.remove_suffix(1);
    while (!left.empty() && left.front() == ' ') left.remove_prefix(1);
    if (engine.is_variable(std::string(left))) return false;
    // A plain name on the left makes the statement an assignment.
    const bool startsAsExpression =
        !left.empty() && (IsDigit(left[0]) || Holds(kOperatorSet, left[0]));
    if (!startsAsExpression && left.find_first_of(kOperatorSet) == std::string_view::npos)
        return false;
    return true;
}

bool MathEditor::Calculate(std::string &statement) {
    const int length = static_cast<int>(statement.size());
    const int line = buffer.CaretLine();
    // Offsets are measured back from the statement's end, which is the line's end for the
    // last statement of a line.
    const int end = GetCharLength(line) - 2 - statementBack;
    const std::optional<int> commentStart = FindCommentStart(statement);

    // An "=" inside the comment is no old answer: what stands left of the comment is judged
    // alone, so that a comment such as "// x = 7" is never taken for one and cut away.
    const std::string_view judged = std::string_view(statement).substr(
        0, static_cast<std::size_t>(commentStart.value_or(length)));
    if (IsRecalculating(judged)) {
        int p = static_cast<int>(judged.rfind('='));
        while (p > 0 && statement[static_cast<std::size_t>(p) - 1] == ' ') --p;
        SetCursorAtLineEnd(line, statementBack);
        const int removeTo = commentStart ? end - (length - *commentStart) : end;
        buffer.SetSelection(end - (length - p), removeTo);
        buffer.ReplaceSelection("");
        statement.resize(static_cast<std::size_t>(p));
    } else if (commentStart) {
        const int answerAt = end - (length - *commentStart);
        buffer.SetSelection(answerAt, answerAt);
        statement.resize(static_cast<std::size_t>(*commentStart));
    }

    const char *answerText = engine.eval_exp(statement.c_str(), false, true);
    const std::string answer = answerText != nullptr ? answerText : "";
    const bool failed = engine.IsAnError();

    if (isLastStatement && !answer.empty() && !failed) {
        // The carriage return of the same key press may have been handled while the engine
        // worked; take it back so the answer lands on the computed line.
        if (buffer.CaretLine() == line + 1) ExecuteBACK();
        buffer.ReplaceSelection(answer);
        const std::size_t equals = answer.find('=');
        if (equals != std::string::npos && equals + 1 < answer.size() && answer[equals + 1] == ' ')
            lastAnswerText = answer.substr(equals + 2);
    }

    if (failed) {
        // The engine has shown its message already.
        engine.ClearLastError();
        return true;
    }
    const bool assigned = engine.assignment_made();
    const bool declared = engine.function_declared();
    if (assigned && UpdateVarListWindow) UpdateVarListWindow();
    if (declared) {
        if (UpdateFunListWindow) UpdateFunListWindow();
        if (UpdateCalculusUtility) UpdateCalculusUtility();
    }
    if (PlayWaveFile) PlayWaveFile(assigned || declared ? kAddSound : kCommandSound);
    return false;
}

}  // namespace quindar
