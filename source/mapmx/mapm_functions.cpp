// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm_functions.h"

#include <algorithm>
#include <cstdlib>

#include "bid.h"
#include "binary_bridge.h"
#include "wide_decimal.h"

namespace quindar {

namespace {

using wide::BinaryValue;
using wide::Sensitivity;
using wide::WideDecimal;

using BinaryFunction = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

void unary(BinaryFunction function, Sensitivity sensitivity, M_APM result, int places,
           const MapmNumber *value) {
    const mpfr_prec_t bits = wide::result_bits(places);
    BinaryValue x(wide::operand_bits(value, bits, sensitivity)), y(bits);
    wide::to_binary(x.get(), value);
    function(y.get(), x.get(), MPFR_RNDN);
    wide::from_binary(result, places, y.get());
}

// Beyond these a whole power goes through the binary path: the exact product would
// grow long, and a result of that many digits cannot be a rounding tie anyway.
constexpr long kLargestExactExponent = 10000;
constexpr long kLargestExactDigits = 4000;

// x^n for a whole n, exactly, then rounded once. False when it would be too long.
bool exact_power(M_APM result, int places, const MapmNumber *x, const MapmNumber *y) {
    if (!m_apm_is_finite(x) || !m_apm_is_integer(y)) return false;
    char text[kMapmTextSize];
    m_apm_to_string(text, kMapmMaxPlaces, y);
    const double exponent = std::strtod(text, nullptr);
    if (exponent > kLargestExactExponent || exponent < -kLargestExactExponent) return false;
    long count = static_cast<long>(exponent < 0 ? -exponent : exponent);
    WideDecimal base(x);
    if (base.is_zero() && exponent <= 0) return false;  // 1, or a pole: the binary path
    if (base.digits() * count > kLargestExactDigits) return false;
    WideDecimal power(1L);
    while (count > 0) {
        if (count % 2 != 0) power = power * base;
        count /= 2;
        if (count > 0) base = base * base;
    }
    places = std::min(places, kMapmMaxPlaces);
    if (exponent < 0) {
        WideDecimal::quotient(WideDecimal(1L), power, places).store(result);
    } else {
        power.rounded(places).store(result);
    }
    return true;
}

}  // namespace

void m_apm_sqrt(M_APM result, int places, const MapmNumber *value) {
    // The decimal library's square root is exact to its last digit.
    _IDEC_flags flags = 0;
    const BID_UINT128 root = bid128_sqrt(bid::load(value), bid::kCut, &flags);
    bid::store(result, bid::round_to_places(root, places));
}

void m_apm_exp(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_exp, Sensitivity::absolute, result, places, value);
}

void m_apm_log(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_log, Sensitivity::relative, result, places, value);
}

void m_apm_log10(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_log10, Sensitivity::relative, result, places, value);
}

void m_apm_pow(M_APM result, int places, const MapmNumber *x, const MapmNumber *y) {
    if (exact_power(result, places, x, y)) return;
    // The result moves by y times the relative error of x and by y ln x times that of y:
    // each operand takes the other's integer digits on top of its own.
    const mpfr_prec_t bits = wide::result_bits(places);
    constexpr mpfr_prec_t kLogarithmBits = 32;
    BinaryValue bx(wide::operand_bits(x, bits, Sensitivity::relative) +
                   4 * std::max(0, m_apm_exponent(y))),
        by(wide::operand_bits(y, bits, Sensitivity::absolute) + kLogarithmBits), power(bits);
    wide::to_binary(bx.get(), x);
    wide::to_binary(by.get(), y);
    mpfr_pow(power.get(), bx.get(), by.get(), MPFR_RNDN);
    wide::from_binary(result, places, power.get());
}

void m_apm_sin(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_sin, Sensitivity::absolute, result, places, value);
}

void m_apm_cos(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_cos, Sensitivity::absolute, result, places, value);
}

void m_apm_tan(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_tan, Sensitivity::absolute, result, places, value);
}

void m_apm_arcsin(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_asin, Sensitivity::relative, result, places, value);
}

void m_apm_arccos(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_acos, Sensitivity::relative, result, places, value);
}

void m_apm_arctan(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_atan, Sensitivity::relative, result, places, value);
}

void m_apm_arctan2(M_APM result, int places, const MapmNumber *y, const MapmNumber *x) {
    if (m_apm_sign(y) == 0 && m_apm_sign(x) == 0 && m_apm_is_finite(y) && m_apm_is_finite(x)) {
        m_apm_set_zero(result);
        return;
    }
    const mpfr_prec_t bits = wide::result_bits(places);
    BinaryValue by(wide::operand_bits(y, bits, Sensitivity::relative)),
        bx(wide::operand_bits(x, bits, Sensitivity::relative)), angle(bits);
    wide::to_binary(by.get(), y);
    wide::to_binary(bx.get(), x);
    mpfr_atan2(angle.get(), by.get(), bx.get(), MPFR_RNDN);
    wide::from_binary(result, places, angle.get());
}

void m_apm_sinh(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_sinh, Sensitivity::absolute, result, places, value);
}

void m_apm_cosh(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_cosh, Sensitivity::absolute, result, places, value);
}

void m_apm_tanh(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_tanh, Sensitivity::relative, result, places, value);
}

void m_apm_arcsinh(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_asinh, Sensitivity::relative, result, places, value);
}

void m_apm_arccosh(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_acosh, Sensitivity::relative, result, places, value);
}

void m_apm_arctanh(M_APM result, int places, const MapmNumber *value) {
    unary(mpfr_atanh, Sensitivity::relative, result, places, value);
}

}  // namespace quindar
