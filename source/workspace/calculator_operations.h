// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the calculator keys do to the text of one Math Editor. Every operation works at the
// caret. The operand of a key is the selection or, with no selection, the text from the
// caret to the end of its line.

#include <functional>
#include <string>
#include <string_view>

#include "calculator_memory.h"
#include "calculator_messages.h"
#include "math_editor.h"
#include "text_buffer.h"

namespace quindar {

class CalculatorOperations {
public:
    CalculatorOperations(TextBuffer &text, MathEditor &lineEditor)
        : buffer(text), editor(lineEditor) {}

    // Puts text in front of the operand (prefix) or behind it, in round brackets when the
    // operand holds an operator; the caret goes to the line's end.
    void ExecuteFunctionEx(std::string_view text, bool prefix);
    // Wraps the operand in a call of the function: kind 1 closes the call, kind 2 leaves a
    // comma for a second argument; a list opens the operand as a data list. Round brackets
    // are never added: the square ones already hold the operand.
    void ExecuteFunction(std::string_view name, int kind, bool list);

    void ExecuteRECIP() { ExecuteFunctionEx("1/", true); }
    void Execute10X() { ExecuteFunctionEx("10^", true); }
    void ExecuteSQR() { ExecuteFunctionEx("^2", false); }
    void ExecuteCUBE() { ExecuteFunctionEx("^3", false); }
    void ExecuteFACT() { ExecuteFunctionEx("!", false); }
    void ExecuteINVPOW();
    void ExecuteSIGN();
    void ExecutePAREN();

    void ExecuteSPACELT();
    void ExecuteSPACERT();
    void ExecuteBACK() { editor.ExecuteBACK(); }
    void ExecuteDELETE();
    void ExecuteDeleteLine();
    void ExecuteUP();
    void ExecuteDOWN();
    void ExecuteBEGIN();
    void ExecuteEND();
    void ExecuteENTER() { editor.ProcessComLine(true, true, false); }

    void ExecuteRAD();
    void ExecuteDEG();

    void ExecuteMEMSAVE(bool append);
    void ExecuteMEMPLUS() { ExecuteMEMSAVE(true); }
    void ExecuteMEMMINUS();
    void ExecuteMEMRECALL();
    void ExecuteMEMLAST();
    void ExecuteMEMCLEAR();

    // Inserts a key's text at the caret, over the selection.
    void InsertText(std::string_view text) { buffer.ReplaceSelection(text); }

    const CalculatorMemory &Memory() const { return memory; }

    // Sets angle_mode of this editor's engine: 1 radians, 0 degrees.
    std::function<void(int mode)> SetAngleMode;
    CalculatorMessageHook ShowMessage;

private:
    int LineEnd(int line) const;
    int Caret() const;
    void PlaceCaret(int offset) { buffer.SetSelection(offset, offset); }
    void CaretToLineEnd() { PlaceCaret(LineEnd(buffer.CaretLine())); }
    void InsertAt(int offset, std::string_view text);
    // The offset one character left or right, a line break counting as one character.
    int StepLeft(int offset) const;
    int StepRight(int offset) const;
    void Tell(int messageId, MessageStyle style, std::string_view argument = {});

    TextBuffer &buffer;
    MathEditor &editor;
    CalculatorMemory memory;
};

// Whether an operand holds an operator, so that a key puts it in round brackets.
bool IsAnOperatorOnLine(std::string_view operand);

}  // namespace quindar
