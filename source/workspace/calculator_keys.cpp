// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "calculator_keys.h"

#include <array>

#include "calculator_operations.h"

namespace quindar {

namespace {

using A = CalculatorAction;

// Row by row; the ids follow from the position and are checked by the tests.
constexpr std::array<CalculatorKey, 100> kKeys{{
    {24099, "?", A::Help, ""},
    {24100, "Opt", A::Options, ""},
    {24101, "Find", A::Find, ""},
    {24102, "Repl", A::Replace, ""},
    {24103, "Save", A::Save, ""},
    {24104, "VM", A::VariablesManager, ""},
    {24105, "FM", A::FunctionManager, ""},
    {24106, "F[x]", A::FunctionLibrary, ""},
    {24107, "\u222B", A::Integration, ""},
    {24108, "d/dx", A::Differentiation, ""},

    {24109, "x\u0304", A::FunctionList, "MEAN"},
    {24110, "Rad", A::AngleRadians, ""},
    {24111, "Deg", A::AngleDegrees, ""},
    {24112, "REAL", A::Function, "REAL"},
    {24113, "i", A::InsertText, "i"},
    {24114, "e", A::InsertText, "e"},
    {24115, "EXP", A::Function, "EXP"},
    {24116, "\u03C0", A::InsertText, "PI"},
    {24117, "x!", A::Factorial, ""},
    {24118, "%", A::FunctionTwo, "PERCENT"},

    {24119, "x\u0303", A::FunctionList, "MEDIAN"},
    {24120, "R\u2192D", A::Function, "DEG"},
    {24121, "D\u2192R", A::Function, "RAD"},
    {24122, "IMAG", A::Function, "IMAG"},
    {24123, "LN", A::Function, "LN"},
    {24124, "\u221Ax", A::Function, "SQRT"},
    {24125, "\u221Bx", A::Function, "CUBERT"},
    {24126, "\u02B8\u221Ax", A::Root, ""},
    {24127, "1/x", A::Reciprocal, ""},
    {24128, "\u0394%", A::FunctionTwo, "PCHANGE"},

    {24129, "s", A::FunctionList, "SSTDEV"},
    {24130, "ASIN", A::Function, "ASIN"},
    {24131, "SIN", A::Function, "SIN"},
    {24132, "LOG", A::FunctionTwo, "LOG"},
    {24133, "LOG10", A::Function, "LOG10"},
    {24134, "x\u00B2", A::Square, ""},
    {24135, "x\u00B3", A::Cube, ""},
    {24136, "POW", A::FunctionTwo, "POW"},
    {24137, "10\u02E3", A::PowerOfTen, ""},
    {24138, "ABS", A::Function, "ABS"},

    {24139, "s\u00B2", A::FunctionList, "SVAR"},
    {24140, "ASINH", A::Function, "ASINH"},
    {24141, "SINH", A::Function, "SINH"},
    {24142, "ML", A::LastAnswer, ""},
    {24143, "<=", A::InsertText, "<="},
    {24144, "|\u2190", A::LineStart, ""},
    {24145, "\u2190", A::CaretLeft, ""},
    {24146, "\u2192", A::CaretRight, ""},
    {24147, "\u2192|", A::LineEnd, ""},
    {24148, "\u2191", A::CaretUp, ""},

    {24149, "\u03C3", A::FunctionList, "PSTDEV"},
    {24150, "ACOS", A::Function, "ACOS"},
    {24151, "COS", A::Function, "COS"},
    {24152, "MC", A::MemoryClear, ""},
    {24153, ">=", A::InsertText, ">="},
    {24154, "(", A::InsertText, "("},
    {24155, ")", A::InsertText, ")"},
    {24156, "( )", A::Brackets, ""},
    {24157, "DEL", A::Delete, ""},
    {24158, "\u2193", A::CaretDown, ""},

    {24159, "\u03C3\u00B2", A::FunctionList, "PVAR"},
    {24160, "ACOSH", A::Function, "ACOSH"},
    {24161, "COSH", A::Function, "COSH"},
    {24162, "MR", A::MemoryRecall, ""},
    {24163, "<", A::InsertText, "<"},
    {24164, "7", A::InsertText, "7"},
    {24165, "8", A::InsertText, "8"},
    {24166, "9", A::InsertText, "9"},
    {24167, "BS", A::Back, ""},
    {24168, "C", A::DeleteLine, ""},

    {24169, "\u03A3x", A::FunctionList, "SUMX"},
    {24170, "ATAN", A::Function, "ATAN"},
    {24171, "TAN", A::Function, "TAN"},
    {24172, "MS", A::MemorySave, ""},
    {24173, ">", A::InsertText, ">"},
    {24174, "4", A::InsertText, "4"},
    {24175, "5", A::InsertText, "5"},
    {24176, "6", A::InsertText, "6"},
    {24177, "-", A::InsertText, "-"},
    {24178, "/", A::InsertText, "/"},

    {24179, "\u03A3x\u00B2", A::FunctionList, "SUMXSQ"},
    {24180, "ATANH", A::Function, "ATANH"},
    {24181, "TANH", A::Function, "TANH"},
    {24182, "M+", A::MemoryPlus, ""},
    {24183, "!=", A::InsertText, "!="},
    {24184, "1", A::InsertText, "1"},
    {24185, "2", A::InsertText, "2"},
    {24186, "3", A::InsertText, "3"},
    {24187, "+", A::InsertText, "+"},
    {24188, "*", A::InsertText, "*"},

    {24189, "COT", A::Function, "COT"},
    {24190, "CSC", A::Function, "CSC"},
    {24191, "SEC", A::Function, "SEC"},
    {24192, "M-", A::MemoryMinus, ""},
    {24193, "==", A::InsertText, "=="},
    {24194, "0", A::InsertText, "0"},
    {24195, ".", A::InsertText, "."},
    {24196, ",", A::InsertText, ","},
    {24197, "+/-", A::Sign, ""},
    {24198, "=", A::Enter, ""},
}};

}  // namespace

std::span<const CalculatorKey> CalculatorKeys() {
    return kKeys;
}

const CalculatorKey *FindCalculatorKey(int id) {
    const int index = id - kFirstCalculatorKeyId;
    if (index < 0 || index >= static_cast<int>(kKeys.size())) return nullptr;
    return &kKeys[static_cast<std::size_t>(index)];
}

namespace {

using Operations = CalculatorOperations;
using Run = void (*)(Operations &, std::string_view);

struct EditorAction {
    CalculatorAction action;
    Run run;
};

// What each key of the editor does with its argument.
constexpr EditorAction kEditorActions[] = {
    {A::InsertText, [](Operations &o, std::string_view a) { o.InsertText(a); }},
    {A::Function, [](Operations &o, std::string_view a) { o.ExecuteFunction(a, 1, false); }},
    {A::FunctionTwo, [](Operations &o, std::string_view a) { o.ExecuteFunction(a, 2, false); }},
    {A::FunctionList, [](Operations &o, std::string_view a) { o.ExecuteFunction(a, 2, true); }},
    {A::AngleRadians, [](Operations &o, std::string_view) { o.ExecuteRAD(); }},
    {A::AngleDegrees, [](Operations &o, std::string_view) { o.ExecuteDEG(); }},
    {A::Factorial, [](Operations &o, std::string_view) { o.ExecuteFACT(); }},
    {A::Square, [](Operations &o, std::string_view) { o.ExecuteSQR(); }},
    {A::Cube, [](Operations &o, std::string_view) { o.ExecuteCUBE(); }},
    {A::PowerOfTen, [](Operations &o, std::string_view) { o.Execute10X(); }},
    {A::Root, [](Operations &o, std::string_view) { o.ExecuteINVPOW(); }},
    {A::Reciprocal, [](Operations &o, std::string_view) { o.ExecuteRECIP(); }},
    {A::LastAnswer, [](Operations &o, std::string_view) { o.ExecuteMEMLAST(); }},
    {A::MemorySave, [](Operations &o, std::string_view) { o.ExecuteMEMSAVE(false); }},
    {A::MemoryPlus, [](Operations &o, std::string_view) { o.ExecuteMEMPLUS(); }},
    {A::MemoryMinus, [](Operations &o, std::string_view) { o.ExecuteMEMMINUS(); }},
    {A::MemoryRecall, [](Operations &o, std::string_view) { o.ExecuteMEMRECALL(); }},
    {A::MemoryClear, [](Operations &o, std::string_view) { o.ExecuteMEMCLEAR(); }},
    {A::LineStart, [](Operations &o, std::string_view) { o.ExecuteBEGIN(); }},
    {A::LineEnd, [](Operations &o, std::string_view) { o.ExecuteEND(); }},
    {A::CaretLeft, [](Operations &o, std::string_view) { o.ExecuteSPACELT(); }},
    {A::CaretRight, [](Operations &o, std::string_view) { o.ExecuteSPACERT(); }},
    {A::CaretUp, [](Operations &o, std::string_view) { o.ExecuteUP(); }},
    {A::CaretDown, [](Operations &o, std::string_view) { o.ExecuteDOWN(); }},
    {A::Brackets, [](Operations &o, std::string_view) { o.ExecutePAREN(); }},
    {A::Sign, [](Operations &o, std::string_view) { o.ExecuteSIGN(); }},
    {A::Back, [](Operations &o, std::string_view) { o.ExecuteBACK(); }},
    {A::Delete, [](Operations &o, std::string_view) { o.ExecuteDELETE(); }},
    {A::DeleteLine, [](Operations &o, std::string_view) { o.ExecuteDeleteLine(); }},
    {A::Enter, [](Operations &o, std::string_view) { o.ExecuteENTER(); }},
};

const EditorAction *FindEditorAction(CalculatorAction action) {
    for (const auto &entry : kEditorActions)
        if (entry.action == action) return &entry;
    return nullptr;
}

}  // namespace

bool IsEditorKey(const CalculatorKey &key) {
    return FindEditorAction(key.action) != nullptr;
}

bool RunCalculatorKey(const CalculatorKey &key, CalculatorOperations &operations) {
    const EditorAction *entry = FindEditorAction(key.action);
    if (entry == nullptr) return false;
    entry->run(operations, key.argument);
    return true;
}

}  // namespace quindar
