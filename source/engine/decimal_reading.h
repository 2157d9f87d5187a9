// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The double the engine reads from a result's 15-digit text: the decimal rounded to the
// nearest 64-bit long double, then to the nearest double, each tie to even.

#include "exact_arithmetic.h"

namespace quindar::exact {

// False where the value lies too near a tie of the long double (or beyond the normal
// doubles) for 128 bits to tell, and beyond the exact reading of the decimal passage.
bool read_decimal(const Decimal &x, double &result);

}  // namespace quindar::exact
