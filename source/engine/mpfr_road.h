// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The second road of the elementary functions: the value in 128-bit binary (MPFR), rounded
// where its bound decides the rounding. It runs where the integer kernels could not decide.
// Results are rounded to `digits` significant digits only (not yet to the engine's 15).

#include "exact_arithmetic.h"
#include "wide_integer.h"

namespace quindar::exact {

// ln x of a positive x.
bool mpfr_log_digits(const Decimal &x, int digits, Decimal &result);
// e^y for y = (-1)^negative * n * 10^exponent; false beyond |y| < 700.
bool mpfr_exp_digits(bool negative, U128 n, int exponent, int digits, Decimal &result);
// sin or cos of an angle at 18 digits; in degrees the angle is first the decimal layer's
// product with pi / 180.
bool mpfr_sine_digits(const Decimal &angle, bool cosine, bool degrees, Decimal &result);

}  // namespace quindar::exact
