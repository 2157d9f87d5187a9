// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "manager_checks.h"

#include <cctype>
#include <cstdlib>

#include "manager_messages.h"

namespace quindar {

namespace {

// Characters refused in a variable's name (tab included), in a function's name, and in
// any value.
constexpr std::string_view kVariableNameForbidden = "!+-<>/*%^=()[]{},;:#$@&?~`'\"|\\\t";
constexpr std::string_view kFunctionNameForbidden = "!+-<>/*%^={};:#$@&?~`'\"|\\";
constexpr std::string_view kValueForbidden = ";:#$@&?~`'\"|\\";

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}
bool IsWhite(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

ManagerCheck Refuse(int id, std::string text, char character = 0) {
    return ManagerCheck{id, character, std::move(text)};
}

std::string RemoveSpaces(std::string_view text) {
    std::string result;
    for (char c : text)
        if (c != ' ') result += c;
    return result;
}

// Offset of a character, or -1: a missing bracket counts as standing before all others.
long Where(const std::string &text, char c) {
    const std::size_t at = text.find(c);
    return at == std::string::npos ? -1 : static_cast<long>(at);
}

// Checks each character of a value: a blank left in it, then the forbidden ones.
ManagerCheck CheckValueCharacters(std::string text, int blankId, int characterId) {
    for (char c : text) {
        if (IsWhite(c)) return Refuse(blankId, text, c);
        if (kValueForbidden.find(c) != std::string_view::npos) return Refuse(characterId, text, c);
    }
    return ManagerCheck{0, 0, std::move(text)};
}

}  // namespace

std::string ManagerCheck::Message() const {
    if (Passed()) return {};
    return FormatManagerMessage(messageId, {}, {}, character);
}

std::string SkipLeadingBlanks(std::string_view name) {
    const std::size_t first = name.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(name.substr(first));
}

ManagerCheck CheckVariableName(std::string_view name) {
    std::string text = SkipLeadingBlanks(name);
    if (!text.empty() && IsDigit(text.front())) return Refuse(31521, text);
    for (char c : text) {
        if (c == ' ') return Refuse(31522, text, c);
        if (kVariableNameForbidden.find(c) != std::string_view::npos) return Refuse(31533, text, c);
    }
    return ManagerCheck{0, 0, std::move(text)};
}

ManagerCheck CheckVariableValue(std::string_view value) {
    return CheckValueCharacters(SkipLeadingBlanks(value), 31523, 31534);
}

ManagerCheck CheckFunctionName(std::string_view name) {
    std::string text = RemoveSpaces(name);
    if (!text.empty() && IsDigit(text.front())) return Refuse(30521, text);
    const long squareOpen = Where(text, '[');
    const long squareClose = Where(text, ']');
    const long roundOpen = Where(text, '(');
    const long roundClose = Where(text, ')');
    if (squareOpen < 0 && squareClose < 0 && roundOpen < 0 && roundClose < 0)
        return Refuse(30526, text);
    if ((squareOpen < 0 && roundOpen < 0) || (squareClose < 0 && roundClose < 0))
        return Refuse(30527, text);
    // A pair out of order must not be made good by the other kind standing in front of it;
    // a mixed pair such as F[x) passes.
    if ((squareClose < 0 || squareClose < squareOpen) && roundClose < squareOpen)
        return Refuse(30522, text);
    if ((roundClose < 0 || roundClose < roundOpen) && squareClose < roundOpen)
        return Refuse(30522, text);
    for (char c : text) {
        if (IsWhite(c)) return Refuse(30523, text, c);
        if (kFunctionNameForbidden.find(c) != std::string_view::npos) return Refuse(30543, text, c);
    }
    return ManagerCheck{0, 0, std::move(text)};
}

ManagerCheck CheckFunctionValue(std::string_view value) {
    return CheckValueCharacters(RemoveSpaces(value), 30524, 30544);
}

bool VariableValueUnchanged(std::string_view typed, double real, double imaginary) {
    const std::string text(typed);
    return std::atof(text.c_str()) == real && imaginary == 0.0;
}

}  // namespace quindar
