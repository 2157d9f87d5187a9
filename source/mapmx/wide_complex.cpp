// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "wide_complex.h"

#include "wide_functions.h"

namespace quindar::wide {

bool finite_operands(std::initializer_list<const MapmNumber *> operands, M_APM rr, M_APM ri) {
    for (const MapmNumber *part : operands) {
        if (m_apm_is_finite(part)) continue;
        m_apm_set_string(rr, "nan");
        if (ri != nullptr) m_apm_set_string(ri, "nan");
        return false;
    }
    return true;
}

Complex load(const MapmNumber *re, const MapmNumber *im) {
    return Complex{WideDecimal(re), WideDecimal(im)};
}

void store(const Complex &z, M_APM rr, M_APM ri) {
    z.re.store(rr);
    z.im.store(ri);
}

Complex operator+(const Complex &a, const Complex &b) {
    return {a.re + b.re, a.im + b.im};
}

Complex operator-(const Complex &a, const Complex &b) {
    return {a.re - b.re, a.im - b.im};
}

Complex operator*(const Complex &a, const Complex &b) {
    return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
}

Complex square(const Complex &z) {
    const WideDecimal product = z.re * z.im;
    return {z.re * z.re - z.im * z.im, product + product};
}

Complex times_i(const Complex &z) {
    return {z.im.negated(), z.re};
}

Complex negated(const Complex &z) {
    return {z.re.negated(), z.im.negated()};
}

WideDecimal modulus(const Complex &z, int places) {
    return WideDecimal::square_root(z.re * z.re + z.im * z.im, places);
}

std::optional<Complex> quotient(const Complex &a, const Complex &b, int places) {
    const WideDecimal denominator = b.re * b.re + b.im * b.im;
    if (denominator.is_zero()) return std::nullopt;
    return Complex{WideDecimal::quotient(a.re * b.re + a.im * b.im, denominator, places),
                   WideDecimal::quotient(b.re * a.im - b.im * a.re, denominator, places)};
}

Complex square_root(const Complex &z, int places) {
    const int wide_places = 2 * places;
    const WideDecimal two(2L);
    const WideDecimal m = modulus(z, wide_places);
    Complex root{
        WideDecimal::square_root(WideDecimal::quotient(m + z.re, two, wide_places), places),
        WideDecimal::square_root(WideDecimal::quotient(m - z.re, two, wide_places), places)};
    if (z.im.sign() < 0) root.im = root.im.negated();
    return root;
}

std::optional<Complex> logarithm(const Complex &z, int places) {
    const WideDecimal m = modulus(z, places + 10);
    if (m.is_zero()) return std::nullopt;
    return Complex{log(m, places + 3), arctan2(z.im, z.re, places + 15)};
}

}  // namespace quindar::wide
