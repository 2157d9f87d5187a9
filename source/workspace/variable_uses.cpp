// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "variable_uses.h"

#include <cctype>

#include "parser.h"

namespace quindar {
namespace {

bool IsNamePart(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool TakesParameter(Parser &parser, int function, const std::string &name) {
    for (const char *parameter = parser.get_func_variable(function, true);
         parameter != nullptr && *parameter != '\0';
         parameter = parser.get_func_variable(function, false))
        if (name == parameter) return true;
    return false;
}

}  // namespace

bool NamesWholeWord(std::string_view text, std::string_view name) {
    if (name.empty()) return false;
    for (std::size_t at = text.find(name); at != std::string_view::npos;
         at = text.find(name, at + 1)) {
        const std::size_t end = at + name.size();
        if ((at == 0 || !IsNamePart(text[at - 1])) &&
            (end == text.size() || !IsNamePart(text[end])))
            return true;
    }
    return false;
}

std::optional<std::string> FunctionUsingVariable(Parser &parser, const std::string &name) {
    for (int function = 0; function < parser.functions.count(); ++function) {
        const char *body = parser.get_func_value(function);
        if (TakesParameter(parser, function, name) ||
            (body != nullptr && NamesWholeWord(body, name)))
            return std::string(parser.get_func_name(function));
    }
    return std::nullopt;
}

}  // namespace quindar
