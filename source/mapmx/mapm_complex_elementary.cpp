// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Square, square root, modulus, exponential and logarithms of complex numbers.
#include "mapm_complex.h"
#include "wide_complex.h"
#include "wide_functions.h"

namespace quindar {

using wide::Complex;
using wide::WideDecimal;

void m_apmc_sqr(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    wide::store(wide::square(wide::load(ar, ai)), rr, ri);
}

void m_apmc_sqrt(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    wide::store(wide::square_root(wide::load(ar, ai), digits), rr, ri);
}

void m_apmc_abs(M_APM r, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, r, nullptr)) return;
    wide::modulus(wide::load(ar, ai), digits).store(r);
}

void m_apmc_exp(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    const Complex a = wide::load(ar, ai);
    const int places = digits + 3;
    const WideDecimal magnitude = wide::exp(a.re, places);
    wide::store({magnitude * wide::cos(a.im, places), magnitude * wide::sin(a.im, places)}, rr, ri);
}

int m_apmc_log(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return 0;
    const auto logarithm = wide::logarithm(wide::load(ar, ai), digits);
    if (!logarithm) return -1;
    wide::store(*logarithm, rr, ri);
    return 0;
}

int m_apmc_log10(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return 0;
    const Complex a = wide::load(ar, ai);
    const WideDecimal m = wide::modulus(a, digits + 10);
    if (m.is_zero()) return -1;
    // ln 10 with digits to spare stands for the constant, which has more than any
    // division here keeps.
    constexpr int kSpareDigits = 20;
    const int places = digits + 3;
    const WideDecimal angle = wide::arctan2(a.im, a.re, digits + 15);
    wide::store({wide::log10(m, places),
                 WideDecimal::quotient(angle, wide::ln10(places + kSpareDigits), places)},
                rr, ri);
    return 0;
}

}  // namespace quindar
