// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The power of a real to a real exponent, the logarithm and exponential of a real and the
// sine and cosine of a real, with the decimal layer's roundings but without its long
// decimals. There the power is M = exp(b L) with L = ln |a|, each rounded to 17 digits (ties
// away), and then the phase, which is exactly 0 for a positive real base, leaves (M, 0) (for a
// negative base and a whole exponent the phase is power_phase.h's); the
// logarithm, exponential, sine and cosine of a real are their values at 18 digits (the other
// factor of each part is exactly 1 or 0); the engine rounds all of them to 15. Here each
// value is computed in integer arithmetic with a proven bound on its error (binary_kernels.h),
// then, where that bound cannot decide a rounding, in 128-bit binary with a bound; a rounding
// neither decides (a value too close to a tie) is left to the decimal road, as is every
// operand that is not a real in the kernels' range, so the digits are always the decimal
// road's.

#include "complex.h"

namespace quindar::exact {

// Which road decided a value, for the tests and benchmarks that report how often the
// kernels leave a value to the others (false from a function is the decimal road).
enum class Road { kernel, binary };

// a^b for a real a > 0 and a real b, for a real a < 0 and a whole b (power_phase.h), and 0 to
// a positive power; false where the decimal road must decide.
bool real_power(const complex &a, const complex &b, complex &result, Road *road = nullptr);

// ln z of a real z > 0: ln z at 18 digits, then the engine's 15; the argument is 0.
bool real_log(const complex &z, complex &result, Road *road = nullptr);

// e^x of a real x: at 18 digits, then the engine's 15.
bool real_exp(const complex &z, complex &result, Road *road = nullptr);

// sin x or cos x of a real x: the value at 18 digits (its hyperbolic factor is exactly 1,
// the imaginary part exactly 0), then the engine's 15. In degrees the angle is first the
// product with pi / 180 at 34 digits, cut, as the decimal layer makes it (next to a whole
// number of quarter turns reduced exactly, degree_reduction.h).
bool real_sine(double x, bool cosine, bool degrees, complex &result, Road *road = nullptr);

}  // namespace quindar::exact
