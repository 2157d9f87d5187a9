// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A named complex value that may also carry a range: low limit, high limit and number of
// points, through which it can step itself (graph axes, integration, `x = 0, 10, 11`).

#include <climits>
#include <ostream>
#include <string>

#include "complex.h"

namespace quindar {

// A count of points from a value: the whole part, held within the range of long (a value
// such as 10^300 or an infinity would make the conversion undefined); NaN gives 0.
inline long points_from_value(double value) {
    if (!(value == value)) return 0;
    if (value >= 9.2e18) return LONG_MAX;
    if (value <= -9.2e18) return LONG_MIN;
    return static_cast<long>(value);
}

class Variable {
public:
    Variable() = default;
    Variable(const char *name, complex value, bool assigned);
    Variable(const char *name, complex low, complex high, long numPoints);
    explicit Variable(const Variable *other);
    Variable &operator=(const Variable &other);

    // One step through the range; false at the end, or when there is no range.
    bool Increment();
    void ResetIncrement();
    void SetVarNumPoints(long points);
    bool SetVarNumIncrmnts(long increments);
    bool SetVarHiLimit(complex limit);
    bool SetVarLowLimit(complex limit);

    // Texts: "?" when unassigned; the value; with the range as the flags ask.
    void GetVarValueStr(std::ostream &stream, int precision, bool showIncrement);
    void GetVarDefStr(std::ostream &stream, int precision, bool showIncrement);
    void GetVarIncValueStr(std::ostream &stream, int precision);
    const char *GetVarValueStr(int precision, bool showIncrement);
    const char *GetVarIncValueStr(int precision);

    // One number of a variable's text, written to read back to the same number.
    static void StreamVariable(complex value, std::ostream &stream, int precision);

    std::string name;
    std::string value_text;
    bool assigned = false;
    complex value;
    complex low_limit, high_limit;
    complex increment;
    long num_increments = 0;
    long num_points = 1;
    bool incremented = false;
    bool locked = false;
    Variable *next = nullptr;
    Variable *prev = nullptr;

private:
    void set_increment();
    bool set_limit(complex &field, complex limit);
    void write_range(std::ostream &stream, int precision);
};

}  // namespace quindar
