// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The character rules the Variables Manager and the Function Manager apply to a name or a
// value before the engine sees it. Each check stops at the first fault, in a fixed order,
// with a message of its own.

#include <string>
#include <string_view>

namespace quindar {

struct ManagerCheck {
    int messageId = 0;   // 0: the text passes
    char character = 0;  // the refused character, for the messages that name one
    std::string text;    // the text as the manager goes on with it
    bool Passed() const { return messageId == 0; }
    // The message to show; empty when the text passes.
    std::string Message() const;
};

// The name with its leading blanks dropped, as both managers take it.
std::string SkipLeadingBlanks(std::string_view name);

ManagerCheck CheckVariableName(std::string_view name);
ManagerCheck CheckVariableValue(std::string_view value);
// Blanks inside a function's name are dropped rather than refused.
ManagerCheck CheckFunctionName(std::string_view name);
ManagerCheck CheckFunctionValue(std::string_view value);

// Whether a new value typed over a variable leaves it as it is: the text's leading number
// against the real part, with no imaginary part ("2+1" over 2 counts as unchanged).
bool VariableValueUnchanged(std::string_view typed, double real, double imaginary);

}  // namespace quindar
