// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A user or library function: a piece of text with named holes. `f[x,y] = x^2+y` keeps
// the body `x^2+y`; a call writes its arguments into a working copy of the body, which
// is spliced into the line.

#include <string>
#include <vector>

namespace quindar {

class Function {
public:
    Function() = default;
    Function(const char *fullName, const char *value);

    void SetFuncName(const char *fullName);
    void SetFuncValue(const char *value);
    void SetFuncVariables(const char *variables);
    // With first true the first name, else the name behind the cursor; "" at the end.
    const char *GetFuncVariable(bool first);
    // The k-th name from 1; 0 gives the last.
    const char *GetFuncVariable(int k);
    bool IsFuncVariable(const char *name) const;
    // Writes text for every whole-name occurrence of variable k in the working copy.
    bool ModFuncValue(int k, const char *text);
    // True if variable k stands in the body as a whole name.
    bool UsesFuncVariable(int k) const;
    void ResetModFuncValue() { mod_value = func_value; }
    // Writes all arguments into a fresh working copy at once, so that an argument that
    // holds the name of a later variable is left as it was written.
    void SubstituteArguments(const std::vector<std::string> &arguments);
    // "full name = value", or null when either is missing.
    const char *GetFuncFullNameAndValue();
    void SetFuncLabel(const char *text) { label = text ? text : ""; }

    std::string full_name;
    std::string short_name;
    std::size_t var_cursor = 0;
    std::vector<std::string> var_names;
    std::string func_value;
    std::string mod_value;
    std::string full_name_value;
    std::string label;
    int num_vars = 0;
    Function *next = nullptr;
    Function *prev = nullptr;
};

}  // namespace quindar
