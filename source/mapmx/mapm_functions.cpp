// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm_functions.h"

#include <mpfr.h>

#include <cstdlib>
#include <string>

#include "bid.h"

namespace quindar {

namespace {

using bid::kCut;

// Enough binary digits to hold any decimal128 value and to keep 34 correct digits
// through one elementary function with room to spare.
constexpr mpfr_prec_t kWorkingBits = 256;
constexpr int kDecimalDigits = 34;

class BinaryValue {
public:
    BinaryValue() { mpfr_init2(value_, kWorkingBits); }
    ~BinaryValue() { mpfr_clear(value_); }
    BinaryValue(const BinaryValue &) = delete;
    BinaryValue &operator=(const BinaryValue &) = delete;
    mpfr_ptr get() { return value_; }

private:
    mpfr_t value_;
};

void to_binary(mpfr_ptr out, const MapmNumber *value) {
    char text[kMapmTextSize];
    m_apm_to_string(text, kMapmMaxPlaces, value);
    mpfr_set_str(out, text, 10, MPFR_RNDN);
}

// The binary value cut to 34 decimal digits, then rounded at `places`.
void from_binary(M_APM result, int places, mpfr_srcptr value) {
    if (mpfr_zero_p(value)) {
        m_apm_set_zero(result);
        return;
    }
    if (!mpfr_number_p(value)) {
        m_apm_set_string(result,
                         mpfr_nan_p(value) ? "nan" : (mpfr_sgn(value) < 0 ? "-inf" : "inf"));
        return;
    }
    mpfr_exp_t exponent = 0;
    char *digits = mpfr_get_str(nullptr, &exponent, 10, kDecimalDigits, value, MPFR_RNDZ);
    // mpfr_get_str gives 0.DIGITS times 10^exponent.
    std::string text = digits;
    mpfr_free_str(digits);
    text += "E" + std::to_string(static_cast<long>(exponent) - kDecimalDigits);
    _IDEC_flags flags = 0;
    bid::store(result, bid::round_to_places(bid128_from_string(text.data(), kCut, &flags), places));
}

template <int (*function)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t)>
void unary(M_APM result, int places, const MapmNumber *value) {
    BinaryValue x, y;
    to_binary(x.get(), value);
    function(y.get(), x.get(), MPFR_RNDN);
    from_binary(result, places, y.get());
}

}  // namespace

void m_apm_sqrt(M_APM result, int places, const MapmNumber *value) {
    // A negative value has no real root: 0, as for a difference that rounding pushed
    // just below zero. The decimal library's root is exact to its last digit.
    if (m_apm_sign(value) < 0) {
        m_apm_set_zero(result);
        return;
    }
    _IDEC_flags flags = 0;
    const BID_UINT128 root = bid128_sqrt(bid::load(value), kCut, &flags);
    bid::store(result, bid::round_to_places(root, places));
}

void m_apm_log(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_log>(result, places, value);
}

void m_apm_exp(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_exp>(result, places, value);
}

void m_apm_sin(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_sin>(result, places, value);
}

void m_apm_cos(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_cos>(result, places, value);
}

void m_apm_log10(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_log10>(result, places, value);
}

void m_apm_sinh(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_sinh>(result, places, value);
}

void m_apm_cosh(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_cosh>(result, places, value);
}

void m_apm_arcsinh(M_APM result, int places, const MapmNumber *value) {
    unary<mpfr_asinh>(result, places, value);
}

void m_apm_log_10_base_e(M_APM result, int places) {
    BinaryValue ten, logarithm;
    mpfr_set_ui(ten.get(), 10, MPFR_RNDN);
    mpfr_log(logarithm.get(), ten.get(), MPFR_RNDN);
    from_binary(result, places, logarithm.get());
}

void m_apm_floor(M_APM result, const MapmNumber *value) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = bid128_round_integral_negative(bid::load(value), &flags);
    if (bid128_isZero(x))
        m_apm_set_zero(result);
    else
        bid::store(result, x);
}

void m_apm_ceil(M_APM result, const MapmNumber *value) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = bid128_round_integral_positive(bid::load(value), &flags);
    if (bid128_isZero(x))
        m_apm_set_zero(result);
    else
        bid::store(result, x);
}

void m_apm_arctan2(M_APM result, int places, const MapmNumber *y, const MapmNumber *x) {
    BinaryValue by, bx, angle;
    to_binary(by.get(), y);
    to_binary(bx.get(), x);
    if (mpfr_zero_p(by.get()) && mpfr_zero_p(bx.get())) {
        m_apm_set_zero(result);
        return;
    }
    mpfr_atan2(angle.get(), by.get(), bx.get(), MPFR_RNDN);
    from_binary(result, places, angle.get());
}

}  // namespace quindar
