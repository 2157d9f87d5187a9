// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function.h"

#include <cstring>

#include "mathematics.h"

namespace quindar {

namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

// An occurrence of a name counts when it stands at the start, behind a delimiter, or
// behind a number that itself stands at the start or behind a delimiter: `2x`, `(x`,
// `2.5x` count, `ax` and `a2x` do not.
bool starts_whole_name(const std::string &text, std::size_t at) {
    std::size_t before = at;
    while (before > 0 && (is_digit(text[before - 1]) || text[before - 1] == '.')) --before;
    if (before == 0) return true;
    return Mathematics::is_delim(text[before - 1]);
}

}  // namespace

Function::Function(const char *fullName, const char *value) {
    SetFuncName(fullName);
    SetFuncValue(value);
}

void Function::SetFuncName(const char *fullName) {
    full_name = fullName ? fullName : "";
    const auto bracket = full_name.find('[');
    short_name = full_name.substr(0, bracket);
    SetFuncVariables(bracket == std::string::npos ? "" : full_name.c_str() + bracket + 1);
}

void Function::SetFuncValue(const char *value) {
    func_value = value ? value : "";
    mod_value = func_value;
}

void Function::SetFuncVariables(const char *variables) {
    var_names.clear();
    var_cursor = 0;
    if (variables == nullptr) variables = "";
    std::string current;
    for (const char *p = variables;; ++p) {
        if (*p == ',' || *p == ']' || *p == '\0') {
            if (!current.empty()) var_names.push_back(current);
            current.clear();
            if (*p != ',') break;
        } else {
            current += *p;
        }
    }
    num_vars = static_cast<int>(var_names.size());
}

const char *Function::GetFuncVariable(bool first) {
    if (first) var_cursor = 0;
    if (var_cursor >= var_names.size()) return "";
    return var_names[var_cursor++].c_str();
}

const char *Function::GetFuncVariable(int k) {
    if (var_names.empty() || k < 0 || k > num_vars) return "";
    return var_names[k == 0 ? var_names.size() - 1 : static_cast<std::size_t>(k - 1)].c_str();
}

bool Function::IsFuncVariable(const char *name) const {
    if (name == nullptr) return false;
    for (const auto &variable : var_names)
        if (variable == name) return true;
    return false;
}

bool Function::ModFuncValue(int k, const char *text) {
    if (text == nullptr || k < 0) return false;
    const std::string name = GetFuncVariable(k);
    if (name.empty()) return false;
    if (name == text) return true;
    const std::size_t length = std::strlen(text);
    bool replaced = false;
    std::size_t at = 0;
    while ((at = mod_value.find(name, at)) != std::string::npos) {
        std::size_t end = at;
        while (end < mod_value.size() && !Mathematics::is_delim(mod_value[end])) ++end;
        if (end - at == name.size() && starts_whole_name(mod_value, at)) {
            mod_value.replace(at, name.size(), text);
            at += length;
            replaced = true;
        } else {
            at += 1;
        }
    }
    return replaced;
}

bool Function::UsesFuncVariable(int k) const {
    Function probe(*this);
    probe.ResetModFuncValue();
    return probe.ModFuncValue(k, "()");
}

void Function::SubstituteArguments(const std::vector<std::string> &arguments) {
    mod_value.clear();
    std::size_t i = 0;
    while (i < func_value.size()) {
        const char c = func_value[i];
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!letter || !starts_whole_name(func_value, i)) {
            mod_value += c;
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < func_value.size() && !Mathematics::is_delim(func_value[end])) ++end;
        const std::string word = func_value.substr(i, end - i);
        std::size_t k = 0;
        while (k < var_names.size() && var_names[k] != word) ++k;
        mod_value += k < var_names.size() && k < arguments.size() ? arguments[k] : word;
        i = end;
    }
}

const char *Function::GetFuncFullNameAndValue() {
    if (full_name.empty() || func_value.empty()) return nullptr;
    full_name_value = full_name + " = " + func_value;
    return full_name_value.c_str();
}

}  // namespace quindar
