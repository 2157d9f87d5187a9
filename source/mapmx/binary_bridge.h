// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The passage between decimal values and the binary values of MPFR, under which the
// transcendental functions are computed. A function is evaluated in binary with far more
// digits than the result keeps, and its value is rounded once, on the decimal digits.
// Private to this folder.

#include <mpfr.h>

#include "mapm.h"
#include "wide_decimal.h"

namespace quindar::wide {

// One MPFR value for the length of one computation.
class BinaryValue {
public:
    explicit BinaryValue(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
    ~BinaryValue() { mpfr_clear(value_); }
    BinaryValue(const BinaryValue &) = delete;
    BinaryValue &operator=(const BinaryValue &) = delete;
    mpfr_ptr get() { return value_; }

private:
    mpfr_t value_;
};

// Binary digits for a function value that is to be rounded at `places`: enough that
// only a value within about 1e-(places + 20) of a rounding tie could round wrongly.
mpfr_prec_t result_bits(int places);

// How a function's value answers a small error of its operand: in proportion to the
// operand's relative error (logarithms, roots, inverse functions), or to its absolute
// error (exponentials and periodic functions, where a large operand's last digits decide
// the value).
enum class Sensitivity { relative, absolute };

// Binary digits for an operand of a function evaluated at `bits`. A decimal operand
// rarely has a binary form, so it is read at more digits than the result: its own
// digits come on top (a logarithm near 1 or a sine near a multiple of pi turns them into
// leading digits of the result), and for an absolute sensitivity its integer digits too.
mpfr_prec_t operand_bits(const WideDecimal &value, mpfr_prec_t bits, Sensitivity sensitivity);
mpfr_prec_t operand_bits(const MapmNumber *value, mpfr_prec_t bits, Sensitivity sensitivity);

// The value rounded to the precision of `out` (nearest). Infinities and NaN of decimal
// values pass as such.
void to_binary(mpfr_ptr out, const WideDecimal &value);
void to_binary(mpfr_ptr out, const MapmNumber *value);

// A finite binary value rounded at `places`, ties away from zero. Magnitudes far beyond
// the range of decimal values are held at 1e20000 (or 0), which every later step keeps
// out of range; NaN gives 0.
WideDecimal from_binary(mpfr_srcptr value, int places);
// The same into a decimal value, where infinities and NaN stay what they are.
void from_binary(M_APM result, int places, mpfr_srcptr value);

}  // namespace quindar::wide
