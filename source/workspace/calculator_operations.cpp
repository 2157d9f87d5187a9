// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "calculator_operations.h"

namespace quindar {

namespace {

constexpr std::string_view kLineBreak = "\r\n";

int Length(std::string_view text) {
    return static_cast<int>(text.size());
}

}  // namespace

bool IsAnOperatorOnLine(std::string_view operand) {
    return operand.find_first_of("+-*/") != std::string_view::npos;
}

int CalculatorOperations::LineEnd(int line) const {
    return buffer.LineStart(line) + Length(buffer.LineText(line));
}

int CalculatorOperations::Caret() const {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    return start;
}

void CalculatorOperations::InsertAt(int offset, std::string_view text) {
    PlaceCaret(offset);
    buffer.ReplaceSelection(text);
}

int CalculatorOperations::StepLeft(int offset) const {
    if (offset <= 0) return 0;
    return buffer.TextRange(offset - 2, offset) == kLineBreak ? offset - 2 : offset - 1;
}

int CalculatorOperations::StepRight(int offset) const {
    const std::string ahead = buffer.TextRange(offset, offset + 2);
    if (ahead.empty()) return offset;
    return ahead == kLineBreak ? offset + 2 : offset + 1;
}

void CalculatorOperations::Tell(int messageId, MessageStyle style, std::string_view argument) {
    if (ShowMessage)
        ShowMessage(messageId, FillMessage(CalculatorMessageText(messageId), argument),
                    CalculatorMessageText(kCalculatorTitle), style);
}

void CalculatorOperations::ExecuteFunctionEx(std::string_view text, bool prefix) {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    if (start != end) {
        const std::string operand = buffer.TextRange(start, end);
        std::string wrapped = IsAnOperatorOnLine(operand) ? "(" + operand + ")" : operand;
        buffer.ReplaceSelection(prefix ? std::string(text) + wrapped : wrapped + std::string(text));
    } else {
        // The operand stays where it is; the line's end is written first so that the caret's
        // offset still holds for the front.
        const int lineEnd = LineEnd(buffer.CaretLine());
        const bool brackets = IsAnOperatorOnLine(buffer.TextRange(start, lineEnd));
        const std::string close = brackets ? ")" : "";
        const std::string open = brackets ? "(" : "";
        if (prefix) {
            InsertAt(lineEnd, close);
            InsertAt(start, std::string(text) + open);
        } else {
            InsertAt(lineEnd, close + std::string(text));
            InsertAt(start, open);
        }
    }
    CaretToLineEnd();
}

void CalculatorOperations::ExecuteFunction(std::string_view name, int kind, bool list) {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    const bool selected = start != end;
    const int lineEnd = LineEnd(buffer.CaretLine());
    const bool atLineEnd = !selected && start == lineEnd;
    if (!selected) end = lineEnd;
    const std::string operand = buffer.TextRange(start, end);

    const std::string open = std::string(name) + (list ? "[{" : "[");
    const std::string close = std::string(kind == 2 ? "," : "") + (list ? "}]" : "]");
    buffer.SetSelection(start, end);
    buffer.ReplaceSelection(open + operand + close);

    const int closing = start + Length(open) + Length(operand);
    if (kind == 2)
        // Behind the comma for the second argument; with nothing to wrap, in front of it for
        // the first.
        PlaceCaret(atLineEnd ? closing : closing + 1);
    else if (atLineEnd)
        PlaceCaret(closing);
    else
        CaretToLineEnd();
}

void CalculatorOperations::ExecuteINVPOW() {
    ExecuteFunctionEx("^(1/)", false);
    PlaceCaret(LineEnd(buffer.CaretLine()) - 1);
}

void CalculatorOperations::ExecuteSIGN() {
    const int line = buffer.CaretLine();
    if (buffer.LineText(line).empty()) return;
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    const bool selected = start != end;
    const std::string operand = buffer.TextRange(start, selected ? end : LineEnd(line));
    if (!operand.empty() && operand.front() == '-') {
        buffer.SetSelection(start, start + 1);
        buffer.ReplaceSelection("");
        // A selection keeps covering its operand, so that the key toggles it back.
        buffer.SetSelection(start, selected ? end - 1 : start);
        return;
    }
    ExecuteFunctionEx("-", true);
    PlaceCaret(selected ? start + 1 : start);
}

void CalculatorOperations::ExecutePAREN() {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    if (start != end) {
        buffer.ReplaceSelection("(" + buffer.TextRange(start, end) + ")");
        CaretToLineEnd();
        return;
    }
    const int lineEnd = LineEnd(buffer.CaretLine());
    if (start == lineEnd) {
        buffer.ReplaceSelection("()");
        PlaceCaret(start + 1);
        return;
    }
    InsertAt(lineEnd, ")");
    InsertAt(start, "(");
    CaretToLineEnd();
}

void CalculatorOperations::ExecuteSPACELT() {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    if (start == 0) return;
    const int newStart = StepLeft(start);
    buffer.SetSelection(newStart, start == end ? newStart : StepLeft(end));
}

void CalculatorOperations::ExecuteSPACERT() {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    const int newEnd = StepRight(end);
    if (newEnd == end) return;
    buffer.SetSelection(start == end ? newEnd : StepRight(start), newEnd);
}

void CalculatorOperations::ExecuteDELETE() {
    if (buffer.LineText(buffer.CaretLine()).empty()) return;
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    if (start == end) end = StepRight(start);
    buffer.SetSelection(start, end);
    buffer.ReplaceSelection("");
}

void CalculatorOperations::ExecuteDeleteLine() {
    const int line = buffer.CaretLine();
    const int start = buffer.LineStart(line);
    // The line goes with its break; the last line has none, and keeps the one before it.
    const int end = line + 1 < buffer.LineCount() ? buffer.LineStart(line + 1) : LineEnd(line);
    buffer.SetSelection(start, end);
    buffer.ReplaceSelection("");
    PlaceCaret(start);
}

void CalculatorOperations::ExecuteUP() {
    const int line = buffer.CaretLine();
    if (line > 0) PlaceCaret(buffer.LineStart(line - 1));
}

void CalculatorOperations::ExecuteDOWN() {
    const int line = buffer.CaretLine();
    if (line + 1 >= buffer.LineCount()) InsertAt(LineEnd(line), kLineBreak);
    PlaceCaret(buffer.LineStart(line + 1));
}

void CalculatorOperations::ExecuteBEGIN() {
    PlaceCaret(buffer.LineStart(buffer.CaretLine()));
}

void CalculatorOperations::ExecuteEND() {
    CaretToLineEnd();
}

void CalculatorOperations::ExecuteRAD() {
    if (SetAngleMode) SetAngleMode(1);
    Tell(kAnglesInRadians, MessageStyle::Information);
}

void CalculatorOperations::ExecuteDEG() {
    if (SetAngleMode) SetAngleMode(0);
    Tell(kAnglesInDegrees, MessageStyle::Information);
}

void CalculatorOperations::ExecuteMEMSAVE(bool append) {
    const int line = buffer.CaretLine();
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    std::string item;
    if (start != end) {
        item = buffer.TextRange(start, end);
    } else {
        item = buffer.LineText(line);
        if (item.empty()) {
            Tell(kNothingToSave, MessageStyle::Warning);
            return;
        }
        CaretToLineEnd();
    }
    memory.Save(item, append);
    Tell(kSavedIntoMemory, MessageStyle::Information, *memory.Text());
}

void CalculatorOperations::ExecuteMEMMINUS() {
    if (const auto item = memory.Remove())
        Tell(kRemovedFromMemory, MessageStyle::Information, *item);
}

void CalculatorOperations::ExecuteMEMRECALL() {
    if (!memory.Text()) {
        Tell(kNothingToRecall, MessageStyle::Warning);
        return;
    }
    buffer.ReplaceSelection(*memory.Text());
    CaretToLineEnd();
}

void CalculatorOperations::ExecuteMEMLAST() {
    if (!editor.lastAnswerText) return;
    buffer.ReplaceSelection(*editor.lastAnswerText);
    CaretToLineEnd();
}

void CalculatorOperations::ExecuteMEMCLEAR() {
    memory.Clear();
    Tell(kMemoryCleared, MessageStyle::Information);
}

}  // namespace quindar
