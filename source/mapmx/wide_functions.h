// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Real elementary functions of exact decimal values at any number of places, each the
// true value rounded once, ties away from zero. The complex functions are built on these.
// Private to this folder.

#include "wide_decimal.h"

namespace quindar::wide {

WideDecimal exp(const WideDecimal &x, int places);
// x > 0 (anything else gives 0).
WideDecimal log(const WideDecimal &x, int places);
WideDecimal log10(const WideDecimal &x, int places);
WideDecimal sin(const WideDecimal &x, int places);
WideDecimal cos(const WideDecimal &x, int places);
WideDecimal sinh(const WideDecimal &x, int places);
WideDecimal cosh(const WideDecimal &x, int places);
WideDecimal arcsinh(const WideDecimal &x, int places);
// The angle of the point (x, y), in (-pi, pi]; 0 for the origin.
WideDecimal arctan2(const WideDecimal &y, const WideDecimal &x, int places);
// The natural logarithm of 10.
WideDecimal ln10(int places);

// The exponent margin of the complex algorithms: the exponent of the first digit when
// it is positive, else 0. It counts the integer digits a large intermediate uses up.
long exponent_margin(const WideDecimal &x);

}  // namespace quindar::wide
