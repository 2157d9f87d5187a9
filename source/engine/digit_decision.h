// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The decimal roundings of a value known only within a bound. The decimal layer rounds a
// function's value once at 17 or 18 significant digits (ties away from zero) and the engine
// rounds that again at 15. Both roundings only ever move upwards with the value, so when the
// two ends of the interval the bound allows round to the same decimal, every value inside
// does, and that decimal is the one the exact road gives.

#include "exact_arithmetic.h"
#include "wide_integer.h"

namespace quindar::exact {

// The value v stands for, within `error` relative to it, rounded to `digits` (up to 18)
// significant digits (15 to 18) and, with `then_fifteen`, rounded again to 15. False where the ends
// of the interval round differently (or v lies beyond the powers of ten held).
bool decide_digits(const Binary &v, double error, int digits, bool then_fifteen, Decimal &result);

}  // namespace quindar::exact
