// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Complex numbers of exact decimal parts, and the complex steps that several of the
// layer's functions share: exact sums and products, the quotient, square root and
// logarithm at a number of places. Private to this folder.

#include <initializer_list>
#include <optional>

#include "mapm.h"
#include "wide_decimal.h"

namespace quindar::wide {

struct Complex {
    WideDecimal re;
    WideDecimal im;
};

// True when every operand part is finite. Otherwise the results given (ri may be null)
// become nan: an operand with no decimal digits gives a result with none.
bool finite_operands(std::initializer_list<const MapmNumber *> operands, M_APM rr, M_APM ri);

// Both parts must be finite.
Complex load(const MapmNumber *re, const MapmNumber *im);
// Each part cut to 34 digits (see WideDecimal::store).
void store(const Complex &z, M_APM rr, M_APM ri);

// Exact.
Complex operator+(const Complex &a, const Complex &b);
Complex operator-(const Complex &a, const Complex &b);
Complex operator*(const Complex &a, const Complex &b);
// (re^2 - im^2, 2 re im).
Complex square(const Complex &z);
// i z.
Complex times_i(const Complex &z);
// -z; a negated 0 is 0.
Complex negated(const Complex &z);

// |z| at `places`.
WideDecimal modulus(const Complex &z, int places);
// a / b, each part at `places`; none when b is 0.
std::optional<Complex> quotient(const Complex &a, const Complex &b, int places);
// The principal square root: with m = |z| at 2 places, the real part is the root of
// (m + re) / 2, the imaginary one that of (m - re) / 2, the halves at 2 places and the
// roots at `places`; the imaginary part takes the sign of im, so a negative real has
// the root +sqrt|x| i.
Complex square_root(const Complex &z, int places);
// ln z: ln |z| at places + 3 of |z| at places + 10, and the angle at places + 15, in
// (-pi, pi]. None for 0.
std::optional<Complex> logarithm(const Complex &z, int places);

}  // namespace quindar::wide
