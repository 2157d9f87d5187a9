// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The real decimal numbers under the engine's arithmetic: the operations the engine
// asks of an arbitrary-precision decimal library, on IEEE 754 decimal128 values
// (34 significant digits). The engine's operands carry 14 significant digits, so
// sums, differences and products of two operands are exact, and every rounding the
// engine sees is done here to a given number of places, ties away from zero.

#include <cstdint>

namespace quindar {

// One decimal value. The words are the decimal128 encoding; only this layer reads
// them, so that no caller depends on the decimal library's headers. A value can live
// anywhere (a member, the stack): no operation allocates.
struct MapmNumber {
    std::uint64_t w[2];
};
using M_APM = MapmNumber *;

// Places are digits behind the first significant digit: 14 places are 15 digits.
inline constexpr int kMapmMaxPlaces = 33;

// Room for m_apm_to_string with any places up to kMapmMaxPlaces.
inline constexpr int kMapmTextSize = 64;

M_APM m_apm_init();
void m_apm_free(M_APM value);

// Sets a value from text such as "12", "-1.5", "1.2345678901234e-05", "3E+7".
// Text that is no number gives 0; "inf" and "nan" give those values.
void m_apm_set_string(M_APM result, const char *text);
void m_apm_set_long(M_APM result, long value);
void m_apm_set_zero(M_APM result);
void m_apm_copy(M_APM result, const MapmNumber *value);

// The value (-1)^negative * coefficient * 10^exponent, encoded as reading its text gives it
// (coefficient below 10^19, exponent within the format's range).
void m_apm_set_decimal(M_APM result, bool negative, std::uint64_t coefficient, int exponent);
// The value rounded as m_apm_to_string rounds it, as sign, coefficient and exponent: the
// digits of that text without the text. False for infinities and NaN.
bool m_apm_rounded_parts(const MapmNumber *value, int places, bool &negative,
                         std::uint64_t &coefficient, int &exponent);

// Scientific text with `places` decimals behind the point, rounded ties away from
// zero: "3.00000000000000E-1", "-1.00000000000000E+2", "0.00000000000000E+0".
void m_apm_to_string(char *text, int places, const MapmNumber *value);

// Exact as long as the result fits 34 digits; beyond that the value is cut towards
// zero, which keeps a later rounding at fewer places exact.
void m_apm_add(M_APM result, const MapmNumber *a, const MapmNumber *b);
void m_apm_subtract(M_APM result, const MapmNumber *a, const MapmNumber *b);
void m_apm_multiply(M_APM result, const MapmNumber *a, const MapmNumber *b);

// a / b rounded to `places` places, ties away from zero. b must not be 0.
void m_apm_divide(M_APM result, int places, const MapmNumber *a, const MapmNumber *b);

// Rounds to `places` places, ties away from zero.
void m_apm_round(M_APM result, int places, const MapmNumber *value);

void m_apm_absolute_value(M_APM result, const MapmNumber *value);
void m_apm_negate(M_APM result, const MapmNumber *value);

// -1, 0 or 1.
int m_apm_compare(const MapmNumber *a, const MapmNumber *b);
int m_apm_sign(const MapmNumber *value);
bool m_apm_is_integer(const MapmNumber *value);
bool m_apm_is_finite(const MapmNumber *value);

// The decimal exponent of the first significant digit: 1.5 gives 0, 120 gives 2,
// 0.05 gives -2. Zero gives 0.
int m_apm_exponent(const MapmNumber *value);

// quotient = a / b truncated towards zero, remainder = a - quotient * b (sign of a).
// b must not be 0.
void m_apm_integer_div_rem(M_APM quotient, M_APM remainder, const MapmNumber *a,
                           const MapmNumber *b);

// The whole value at or below (floor), at or above (ceil). A zero result is 0, never
// -0: the ceiling of -0.5 is 0.
void m_apm_floor(M_APM result, const MapmNumber *value);
void m_apm_ceil(M_APM result, const MapmNumber *value);

// n! of a whole value 0 <= n; the exact product rounded to 34 digits.
void m_apm_factorial(M_APM result, const MapmNumber *n);

}  // namespace quindar
