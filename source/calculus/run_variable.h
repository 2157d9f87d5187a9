// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A variable lent to a run. One the document doesn't have is declared for the length of the
// run; one it has is given back its value, its range and its lock state on every way out.

#include <string>

#include "parser.h"

namespace quindar::calculus {

class RunVariable {
public:
    RunVariable(Parser &parser, std::string name);
    ~RunVariable() { restore(); }
    RunVariable(const RunVariable &) = delete;
    RunVariable &operator=(const RunVariable &) = delete;

    // Declares the variable when it doesn't exist, or notes what it holds. False when the
    // engine's array refused the new variable.
    bool take();
    bool taken() const { return held; }
    const std::string &name() const { return variable_name; }
    // Null while the variable doesn't exist.
    Variable *get() const;
    void set(long double value);
    void lock();
    // Gives the variable back; false when a declared one could not be removed. Once only.
    bool restore();

private:
    Parser &parser;
    std::string variable_name;
    bool held = false;
    bool declared = false;
    bool locked = false;
    complex saved_value;
    bool saved_incremented = false;
    complex saved_low, saved_high;
    long saved_points = 0;
};

}  // namespace quindar::calculus
