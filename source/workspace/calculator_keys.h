// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The 100 keys of the calculator bar: ten rows of ten, from which the bar draws itself.
// A key's command id is 24099 + 10 * row + column.

#include <span>
#include <string_view>

namespace quindar {

class CalculatorOperations;

enum class CalculatorAction {
    // Commands of the application; the bar routes them, the editor has no part in them.
    Help,
    Options,
    Find,
    Replace,
    Save,
    VariablesManager,
    FunctionManager,
    FunctionLibrary,
    Integration,
    Differentiation,
    // Acting on the text of the current editor.
    InsertText,    // argument: the text
    Function,      // argument: the name; kind 1
    FunctionTwo,   // the name; kind 2, a second argument follows
    FunctionList,  // the name; kind 2 over a data list
    AngleRadians,
    AngleDegrees,
    Factorial,
    Square,
    Cube,
    PowerOfTen,
    Root,
    Reciprocal,
    LastAnswer,
    MemorySave,
    MemoryPlus,
    MemoryMinus,
    MemoryRecall,
    MemoryClear,
    LineStart,
    LineEnd,
    CaretLeft,
    CaretRight,
    CaretUp,
    CaretDown,
    Brackets,
    Sign,
    Back,
    Delete,
    DeleteLine,
    Enter,
};

struct CalculatorKey {
    int id;
    std::string_view face;  // UTF-8, drawn on the key
    CalculatorAction action;
    std::string_view argument;
};

inline constexpr int kFirstCalculatorKeyId = 24099;
inline constexpr int kCalculatorColumns = 10;
inline constexpr int kCalculatorHelpTopic = 19490;

// The keys in order of their ids, row by row.
std::span<const CalculatorKey> CalculatorKeys();
// The key of a command id, or null.
const CalculatorKey *FindCalculatorKey(int id);
// Whether the key acts on the editor's text (and so RunCalculatorKey handles it).
bool IsEditorKey(const CalculatorKey &key);
// Carries out an editor key on the operations; false for a command of the application,
// which the caller routes.
bool RunCalculatorKey(const CalculatorKey &key, CalculatorOperations &operations);

}  // namespace quindar
