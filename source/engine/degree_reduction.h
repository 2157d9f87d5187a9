// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The angle in radians of a degree operand exactly as the decimal layer forms it (the operand
// times pi / 180 held to 34 digits, the product cut to 34 digits), reduced by its nearest
// multiple k of pi / 2 in decimal integers. A whole number of quarter turns lands within
// about 10^-33 of k pi / 2 there: only an exact angle tells how near, and on which side.

#include <cstdint>

#include "wide_integer.h"

namespace quindar::exact {

struct ReducedAngle {
    Binary rest;             // the angle less k pi / 2
    double delta = 0;        // a bound on the error of rest (absolute)
    long long quarters = 0;  // k
};

// For the operand n * 10^exponent degrees (n > 0); false for an angle of a million radians
// or more, or one within a quarter turn of 0.
bool reduce_degrees(std::uint64_t n, int exponent, ReducedAngle &result);

}  // namespace quindar::exact
