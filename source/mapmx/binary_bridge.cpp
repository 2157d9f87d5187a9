// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "binary_bridge.h"

#include <algorithm>
#include <string>

namespace quindar::wide {

namespace {

// Never fewer than the 256 bits (77 digits) the real functions have always used.
constexpr mpfr_prec_t kLeastBits = 256;
// Bits per decimal digit, rounded up, so every estimate errs on the generous side.
constexpr mpfr_prec_t kBitsPerDigit = 4;
// Digits read beyond the last kept one before the decimal rounding; one would do.
constexpr int kGuardDigits = 2;
// A decimal exponent far beyond decimal values (1e6145), yet small enough that sums of
// such magnitudes stay cheap as exact integers.
constexpr long kSaturationExponent = 20000;
// The same as a binary exponent: 20000 / log10(2).
constexpr mpfr_exp_t kSaturationBinaryExponent = 66439;

}  // namespace

mpfr_prec_t result_bits(int places) {
    return std::max(kLeastBits, kBitsPerDigit * (std::max(places, 0) + 1) + 128);
}

mpfr_prec_t operand_bits(const WideDecimal &value, mpfr_prec_t bits, Sensitivity sensitivity) {
    const long integer_digits =
        sensitivity == Sensitivity::absolute ? std::max(0L, value.exponent()) : 0;
    return bits + kBitsPerDigit * (value.digits() + integer_digits);
}

mpfr_prec_t operand_bits(const MapmNumber *value, mpfr_prec_t bits, Sensitivity sensitivity) {
    constexpr long kDecimalDigits = 34;
    const long integer_digits =
        sensitivity == Sensitivity::absolute ? std::max(0, m_apm_exponent(value)) : 0;
    return bits + kBitsPerDigit * (kDecimalDigits + integer_digits);
}

void to_binary(mpfr_ptr out, const WideDecimal &value) {
    mpfr_set_str(out, value.text().c_str(), 10, MPFR_RNDN);
}

void to_binary(mpfr_ptr out, const MapmNumber *value) {
    // The scientific text of all 34 digits is the value exactly.
    char text[kMapmTextSize];
    m_apm_to_string(text, kMapmMaxPlaces, value);
    if (!m_apm_is_finite(value)) {
        if (text[0] == 'n') {
            mpfr_set_nan(out);
        } else {
            mpfr_set_inf(out, text[0] == '-' ? -1 : 1);
        }
        return;
    }
    mpfr_set_str(out, text, 10, MPFR_RNDN);
}

WideDecimal from_binary(mpfr_srcptr value, int places) {
    if (mpfr_zero_p(value) || mpfr_nan_p(value)) return WideDecimal();
    if (mpfr_inf_p(value) || mpfr_get_exp(value) > kSaturationBinaryExponent) {
        return WideDecimal(mpfr_sgn(value) < 0 ? "-1" : "1", kSaturationExponent);
    }
    if (mpfr_get_exp(value) < -kSaturationBinaryExponent) return WideDecimal();
    places = std::max(places, 0);
    const int count = places + 1 + kGuardDigits;
    mpfr_exp_t exponent = 0;
    // Cut towards zero: the rounding at fewer digits then sees the binary value's side
    // of every tie.
    char *digits = mpfr_get_str(nullptr, &exponent, 10, count, value, MPFR_RNDZ);
    // mpfr_get_str gives 0.DIGITS times 10^exponent.
    const WideDecimal cut(digits, static_cast<long>(exponent) - count);
    mpfr_free_str(digits);
    return cut.rounded(places);
}

void from_binary(M_APM result, int places, mpfr_srcptr value) {
    if (mpfr_nan_p(value)) {
        m_apm_set_string(result, "nan");
        return;
    }
    if (mpfr_inf_p(value)) {
        m_apm_set_string(result, mpfr_sgn(value) < 0 ? "-inf" : "inf");
        return;
    }
    from_binary(value, std::min(places, kMapmMaxPlaces)).store(result);
}

}  // namespace quindar::wide
