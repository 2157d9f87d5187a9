// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Circular and hyperbolic functions of complex numbers, from the real ones of each part.
#include "mapm_complex.h"
#include "wide_complex.h"
#include "wide_functions.h"

namespace quindar {

namespace {

using wide::Complex;
using wide::WideDecimal;

using RealFunction = WideDecimal (*)(const WideDecimal &, int);

// (f(re) g(im), h(re) k(im)), the four factors at digits + 3; `negate_imaginary` for
// the cosine, whose imaginary part is -sin re sinh im.
struct ProductForm {
    RealFunction real_first, real_second, imag_first, imag_second;
    bool negate_imaginary;
};

void product_form(const ProductForm &form, M_APM rr, M_APM ri, int digits, const MapmNumber *ar,
                  const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    const Complex a = wide::load(ar, ai);
    const int places = digits + 3;
    const WideDecimal real = form.real_first(a.re, places) * form.real_second(a.im, places);
    const WideDecimal imag = form.imag_first(a.re, places) * form.imag_second(a.im, places);
    wide::store({real, form.negate_imaginary ? imag.negated() : imag}, rr, ri);
}

constexpr ProductForm kSin{wide::sin, wide::cosh, wide::cos, wide::sinh, false};
constexpr ProductForm kCos{wide::cos, wide::cosh, wide::sin, wide::sinh, true};
constexpr ProductForm kSinh{wide::sinh, wide::cos, wide::cosh, wide::sin, false};
constexpr ProductForm kCosh{wide::cosh, wide::cos, wide::sinh, wide::sin, false};

// tan and tanh share one form: with p, q the pair of values of the real part and r, s
// those of the imaginary part, all at 2 digits + 10, D = q^2 + sign r^2 and the result
// is (p q / D, r s / D), the quotients at digits. The four values carry more digits than a
// decimal value holds (38 for 14 places); exact values keep them, so that the pole test
// on D sees what those places give. D below 1e(-2 digits - 2) is a pole.
int quotient_form(M_APM rr, M_APM ri, int digits, const WideDecimal &p, const WideDecimal &q,
                  const WideDecimal &r, const WideDecimal &s, int sign) {
    const WideDecimal d = sign > 0 ? q * q + r * r : q * q - r * r;
    if (d.is_zero() || d.exponent() < -2L * digits - 2) return -1;
    wide::store({WideDecimal::quotient(p * q, d, digits), WideDecimal::quotient(r * s, d, digits)},
                rr, ri);
    return 0;
}

}  // namespace

void m_apmc_sin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(kSin, rr, ri, digits, ar, ai);
}

void m_apmc_cos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(kCos, rr, ri, digits, ar, ai);
}

void m_apmc_sinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(kSinh, rr, ri, digits, ar, ai);
}

void m_apmc_cosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(kCosh, rr, ri, digits, ar, ai);
}

int m_apmc_tan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return 0;
    const Complex a = wide::load(ar, ai);
    const int places = 2 * digits + 10;
    // D = cos^2 ar + sinh^2 ai; rr = sin ar cos ar / D, ri = sinh ai cosh ai / D.
    return quotient_form(rr, ri, digits, wide::sin(a.re, places), wide::cos(a.re, places),
                         wide::sinh(a.im, places), wide::cosh(a.im, places), 1);
}

int m_apmc_tanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return 0;
    const Complex a = wide::load(ar, ai);
    const int places = 2 * digits + 10;
    // D = cosh^2 ar - sin^2 ai; rr = sinh ar cosh ar / D, ri = sin ai cos ai / D.
    return quotient_form(rr, ri, digits, wide::sinh(a.re, places), wide::cosh(a.re, places),
                         wide::sin(a.im, places), wide::cos(a.im, places), -1);
}

}  // namespace quindar
