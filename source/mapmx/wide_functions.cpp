// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "wide_functions.h"

#include <algorithm>

#include "binary_bridge.h"

namespace quindar::wide {

namespace {

using BinaryFunction = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

WideDecimal unary(BinaryFunction function, Sensitivity sensitivity, const WideDecimal &x,
                  int places) {
    const mpfr_prec_t bits = result_bits(places);
    BinaryValue operand(operand_bits(x, bits, sensitivity)), value(bits);
    to_binary(operand.get(), x);
    function(value.get(), operand.get(), MPFR_RNDN);
    return from_binary(value.get(), places);
}

}  // namespace

WideDecimal exp(const WideDecimal &x, int places) {
    return unary(mpfr_exp, Sensitivity::absolute, x, places);
}

WideDecimal log(const WideDecimal &x, int places) {
    if (x.sign() <= 0) return WideDecimal();
    return unary(mpfr_log, Sensitivity::relative, x, places);
}

WideDecimal log10(const WideDecimal &x, int places) {
    if (x.sign() <= 0) return WideDecimal();
    return unary(mpfr_log10, Sensitivity::relative, x, places);
}

WideDecimal sin(const WideDecimal &x, int places) {
    return unary(mpfr_sin, Sensitivity::absolute, x, places);
}

WideDecimal cos(const WideDecimal &x, int places) {
    return unary(mpfr_cos, Sensitivity::absolute, x, places);
}

WideDecimal sinh(const WideDecimal &x, int places) {
    return unary(mpfr_sinh, Sensitivity::absolute, x, places);
}

WideDecimal cosh(const WideDecimal &x, int places) {
    return unary(mpfr_cosh, Sensitivity::absolute, x, places);
}

WideDecimal arcsinh(const WideDecimal &x, int places) {
    return unary(mpfr_asinh, Sensitivity::relative, x, places);
}

WideDecimal arctan2(const WideDecimal &y, const WideDecimal &x, int places) {
    if (y.is_zero() && x.is_zero()) return WideDecimal();
    const mpfr_prec_t bits = result_bits(places);
    BinaryValue by(operand_bits(y, bits, Sensitivity::relative)),
        bx(operand_bits(x, bits, Sensitivity::relative)), angle(bits);
    to_binary(by.get(), y);
    to_binary(bx.get(), x);
    mpfr_atan2(angle.get(), by.get(), bx.get(), MPFR_RNDN);
    return from_binary(angle.get(), places);
}

WideDecimal ln10(int places) {
    // Made once, like any constant; more places than this are worked out on demand.
    constexpr int kKeptPlaces = 60;
    static const WideDecimal kept = [] {
        BinaryValue value(result_bits(kKeptPlaces));
        mpfr_log_ui(value.get(), 10, MPFR_RNDN);
        return from_binary(value.get(), kKeptPlaces);
    }();
    if (places < kKeptPlaces) return kept.rounded(places);
    BinaryValue value(result_bits(places));
    mpfr_log_ui(value.get(), 10, MPFR_RNDN);
    return from_binary(value.get(), places);
}

long exponent_margin(const WideDecimal &x) {
    return std::max(0L, x.exponent());
}

}  // namespace quindar::wide
