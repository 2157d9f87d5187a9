// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The phase of the power of a negative real to a whole exponent b, as the decimal layer
// composes it: the angle of the base is theta = pi rounded at P places, the phase b theta,
// and the result (M cos(b theta), M sin(b theta)) with both at P places. With
// delta = theta - pi, b theta = b pi + b delta, so the cosine is (-1)^b cos(b delta), which
// rounds to (-1)^b exactly at P places for |b| up to 10^6, and the sine is
// (-1)^b sin(b delta), a small value whose digits decide the imaginary part.

#include "exact_arithmetic.h"
#include "wide_integer.h"

namespace quindar::exact {

// The largest whole exponent taken.
constexpr std::uint64_t kLargestWholeExponent = 1000000;

// True for a whole b with |b| <= kLargestWholeExponent; `odd` tells its parity.
bool whole_exponent(const Decimal &b, bool &odd);

// sin(b theta) for a whole b, where theta is pi rounded at `places` places (15 to 364), in
// binary with `error` bounding it (relative); zero for b = 0.
bool whole_turn_sine(const Decimal &b, int places, Binary &result, double &error);

}  // namespace quindar::exact
