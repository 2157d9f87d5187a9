// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The constant decimal values the complex layer works with. Each is made once, on first
// use, and never changes; the irrational ones carry all 34 digits, cut towards zero.

#include "mapm.h"

namespace quindar {

const MapmNumber *MM_Zero();
const MapmNumber *MM_One();
const MapmNumber *MM_Two();
// 0.5 and -0.5, the thresholds of rounding to a whole number.
const MapmNumber *MM_0_5();
const MapmNumber *MM_M0_5();
const MapmNumber *MM_PI();
const MapmNumber *MM_HALF_PI();
const MapmNumber *MM_2_PI();
const MapmNumber *MM_E();
// The natural logarithm of 10.
const MapmNumber *MM_LOG_10_BASE_E();

}  // namespace quindar
