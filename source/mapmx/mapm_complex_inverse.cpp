// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Inverse circular and hyperbolic functions of complex values, by logarithms and
// quotients.
#include "mapm_complex.h"
#include "mapm_functions.h"

namespace quindar {

namespace {

struct Complex {
    MapmNumber re, im;
};

Complex make(const MapmNumber *re, const MapmNumber *im) {
    return Complex{*re, *im};
}

Complex real_value(long value) {
    Complex z;
    m_apm_set_long(&z.re, value);
    m_apm_set_zero(&z.im);
    return z;
}

Complex add(const Complex &a, const Complex &b) {
    Complex r;
    m_apmc_add(&r.re, &r.im, &a.re, &a.im, &b.re, &b.im);
    return r;
}

Complex subtract(const Complex &a, const Complex &b) {
    Complex r;
    m_apmc_sub(&r.re, &r.im, &a.re, &a.im, &b.re, &b.im);
    return r;
}

// i * z = (-im, re).
Complex times_i(const Complex &z) {
    Complex r;
    m_apm_negate(&r.re, &z.im);
    r.im = z.re;
    return r;
}

Complex square(const Complex &z) {
    Complex r;
    m_apmc_sqr(&r.re, &r.im, &z.re, &z.im);
    return r;
}

Complex root(const Complex &z, int places) {
    Complex r;
    m_apmc_sqrt(&r.re, &r.im, places, &z.re, &z.im);
    return r;
}

// Integer digits that a large argument uses up, halved: E(|z|^2) / 2.
int half_margin(const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber first, second, sum;
    m_apm_multiply(&first, ar, ar);
    m_apm_multiply(&second, ai, ai);
    m_apm_add(&sum, &first, &second);
    const int exponent = m_apm_exponent(&sum);
    return (exponent > 0 ? exponent : 0) / 2;
}

// Where the sum nearly cancels for large arguments, the difference is taken instead.
bool cancels(const Complex &t, int margin, int places) {
    if (margin <= 3) return false;
    MapmNumber magnitude;
    m_apmc_abs(&magnitude, places, &t.re, &t.im);
    return m_apm_sign(&magnitude) == 0 || m_apm_exponent(&magnitude) < -3;
}

// p + q, or p - q where the sum nearly cancels for a large argument z. The root inside
// is taken at digits + E(|z|^2)/2 + 4 places.
struct LogArgument {
    LogArgument(const MapmNumber *ar, const MapmNumber *ai, int digits)
        : margin(half_margin(ar, ai)), wide(digits + margin + 4) {}
    Complex sum_or_difference(const Complex &p, const Complex &q) const {
        const Complex t = add(p, q);
        return cancels(t, margin, wide) ? subtract(p, q) : t;
    }
    int margin, wide;
};

// -(i * ln t) = (arg t, -ln|t|).
void minus_i_log(M_APM rr, M_APM ri, int digits, const Complex &t) {
    MapmNumber l_re, l_im;
    m_apm_set_zero(&l_re);
    m_apm_set_zero(&l_im);
    m_apmc_log(&l_re, &l_im, digits, &t.re, &t.im);
    m_apm_negate(ri, &l_re);
    *rr = l_im;
}

void logarithm(M_APM rr, M_APM ri, int digits, const Complex &t) {
    MapmNumber l_re, l_im;
    m_apm_set_zero(&l_re);
    m_apm_set_zero(&l_im);
    m_apmc_log(&l_re, &l_im, digits, &t.re, &t.im);
    *rr = l_re;
    *ri = l_im;
}

}  // namespace

void m_apmc_arcsin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    const LogArgument argument(ar, ai, digits);
    const Complex z = make(ar, ai);
    const Complex u = root(subtract(real_value(1), square(z)), argument.wide);
    minus_i_log(rr, ri, digits, argument.sum_or_difference(times_i(z), u));
}

void m_apmc_arccos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    const LogArgument argument(ar, ai, digits);
    const Complex z = make(ar, ai);
    const Complex u = root(subtract(real_value(1), square(z)), argument.wide);
    minus_i_log(rr, ri, digits, argument.sum_or_difference(z, times_i(u)));
}

void m_apmc_arcsinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (m_apm_sign(ai) == 0) {
        m_apm_arcsinh(rr, digits, ar);
        m_apm_set_zero(ri);
        return;
    }
    const LogArgument argument(ar, ai, digits);
    const Complex z = make(ar, ai);
    const Complex u = root(add(real_value(1), square(z)), argument.wide);
    logarithm(rr, ri, digits, argument.sum_or_difference(z, u));
}

void m_apmc_arccosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    const LogArgument argument(ar, ai, digits);
    const Complex z = make(ar, ai);
    const Complex u = root(subtract(square(z), real_value(1)), argument.wide);
    logarithm(rr, ri, digits, argument.sum_or_difference(z, u));
}

namespace {

// s = sqrt((1 + w) / (1 - w)) at `digits`; false where 1 - w or s is 0.
bool root_of_ratio(Complex &s, const Complex &w, int digits) {
    const Complex numerator = add(real_value(1), w), denominator = subtract(real_value(1), w);
    Complex q;
    if (m_apmc_div(&q.re, &q.im, digits, &numerator.re, &numerator.im, &denominator.re,
                   &denominator.im) != 0)
        return false;
    s = root(q, digits);
    return !m_apmc_is0(&s.re, &s.im);
}

}  // namespace

// -(i * ln sqrt((1 + iz) / (1 - iz))).
int m_apmc_arctan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    Complex s;
    if (!root_of_ratio(s, times_i(make(ar, ai)), digits)) return -1;
    minus_i_log(rr, ri, digits, s);
    return 0;
}

// ln sqrt((1 + z) / (1 - z)).
int m_apmc_arctanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    Complex s;
    if (!root_of_ratio(s, make(ar, ai), digits)) return -1;
    logarithm(rr, ri, digits, s);
    return 0;
}

}  // namespace quindar
