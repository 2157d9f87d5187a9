// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The four operators of the decimal passage on integers. Operands enter at 14 significant
// digits, so a sum, difference or product of two of them has at most 31 digits and fits a
// 128-bit integer once the operands are aligned; a quotient needs 17 digits and a remainder.
// Each result is rounded once, to 15 significant digits with ties away from zero, which is
// what the decimal layer's exact operation (cut to 34 digits) followed by its rounding at 14
// places gives: a cut towards zero never turns a value below a tie into a tie.
//
// Every function answers false where it does not decide, and the caller takes the decimal
// road instead: an operand or result beyond the digit forms of the passage, a divisor that is
// zero, complex products whose parts lie too far apart to align in 128 bits.

#include <cstdint>

#include "complex.h"

namespace quindar::exact {

// (-1)^negative * coefficient * 10^exponent; zero has coefficient 0.
struct Decimal {
    bool negative = false;
    std::uint64_t coefficient = 0;
    int exponent = 0;
};

// A double as the passage writes an operand: 14 significant digits.
bool operand(double value, Decimal &result);
// The double that reading the result's 15-digit text gives.
bool value_of(const Decimal &number, double &result);
// The operand the next operation takes from a result: what `operand` gives for the double
// that `value_of` reads from it, found on the digits alone. False at a tie of the 14th digit,
// where only that double decides the rounding, and outside the magnitudes `operand` writes
// from digits (1e-9 to 1e14).
bool operand_of_result(const Decimal &result, Decimal &operand);

// Results rounded to 15 significant digits, ties away from zero.
bool add(const Decimal &a, const Decimal &b, Decimal &result);
bool subtract(const Decimal &a, const Decimal &b, Decimal &result);
bool multiply(const Decimal &a, const Decimal &b, Decimal &result);
bool divide(const Decimal &a, const Decimal &b, Decimal &result);

// The square root rounded to 15 significant digits, ties away from zero, of a value that is
// not negative.
bool square_root(const Decimal &x, Decimal &result);

// The principal square root of a real z (imaginary part 0) as the decimal layer takes it:
// the modulus and the half sums are exact for a real, so the root of |z| stands in the
// real part for z >= 0 and in the imaginary part for z < 0. False for a complex z.
bool complex_sqrt(const complex &z, complex &result);

// The four operators of `complex` as the decimal layer composes them: sums by parts, the
// product (ar br - ai bi, ai br + ar bi) with each part rounded once, and the quotient by a
// real divisor, whose parts are ar / br and ai / br exactly.
bool complex_add(const complex &a, const complex &b, complex &result);
bool complex_sub(const complex &a, const complex &b, complex &result);
bool complex_mult(const complex &a, const complex &b, complex &result);
bool complex_div(const complex &a, const complex &b, complex &result);

}  // namespace quindar::exact
