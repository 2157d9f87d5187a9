// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The power of a positive real to a real exponent, its logarithm and the sine and cosine of
// a real, with the decimal layer's
// roundings but without its long decimals. There the power is M = exp(b L) with L = ln a, each
// rounded to 17 digits (ties away), and then the phase, which is exactly 0 for a positive real
// base, leaves (M, 0); the engine rounds M to 15 digits. Here ln a and exp(b L) are computed in
// 128-bit binary with a known bound on their error; a 17-digit rounding that the bound
// cannot decide (a value too close to a tie) is left to the decimal road, as is every base
// that is not a positive real, so the digits are always the decimal road's.

#include "complex.h"

namespace quindar::exact {

// a^b for a real a > 0 and a real b; false where the decimal road must decide.
bool real_power(const complex &a, const complex &b, complex &result);

// ln z of a real z > 0: ln z at 18 digits, as the decimal layer rounds it before the engine
// rounds to 15; the argument is 0.
bool real_log(const complex &z, complex &result);

// sin x or cos x of a real x: the value at 18 digits (its hyperbolic factor is exactly 1,
// the imaginary part exactly 0), then the engine's 15. In degrees the angle is first the
// product with pi / 180 at 34 digits, cut, as the decimal layer makes it.
bool real_sine(double x, bool cosine, bool degrees, complex &result);

}  // namespace quindar::exact
