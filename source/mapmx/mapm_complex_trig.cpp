// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Circular and hyperbolic functions of complex values, by their real parts.
#include "mapm_complex.h"
#include "mapm_functions.h"

namespace quindar {

namespace {

using RealFunction = void (*)(M_APM, int, const MapmNumber *);

// (f(ar) * g(ai), sign * h(ar) * k(ai)), every factor at digits + 3 places.
void product_form(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
                  RealFunction f, RealFunction g, RealFunction h, RealFunction k, bool negate) {
    const int places = digits + 3;
    MapmNumber f_value, g_value, h_value, k_value, imag;
    f(&f_value, places, ar);
    g(&g_value, places, ai);
    h(&h_value, places, ar);
    k(&k_value, places, ai);
    m_apm_multiply(&imag, &h_value, &k_value);
    if (negate) m_apm_negate(&imag, &imag);
    m_apm_multiply(rr, &f_value, &g_value);
    *ri = imag;
}

// tan and tanh share one shape: (p*q / D, r*s / D) with D = q^2 +- r^2, where a D below
// 10^(-2d-2) is a pole. The factors are wanted at 2d + 10 places; decimal values hold
// 33, which still places every pole reachable from 14-digit operands.
int quotient_form(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
                  RealFunction p, RealFunction q, RealFunction r, RealFunction s, bool sum) {
    const int places = 2 * digits + 10;
    MapmNumber p_value, q_value, r_value, s_value;
    p(&p_value, places, ar);
    q(&q_value, places, ar);
    r(&r_value, places, ai);
    s(&s_value, places, ai);
    MapmNumber first, second, denominator;
    m_apm_multiply(&first, &q_value, &q_value);
    m_apm_multiply(&second, &r_value, &r_value);
    if (sum)
        m_apm_add(&denominator, &first, &second);
    else
        m_apm_subtract(&denominator, &first, &second);
    if (m_apm_sign(&denominator) == 0 || m_apm_exponent(&denominator) < -2 * digits - 2) return -1;
    MapmNumber numerator, real;
    m_apm_multiply(&numerator, &p_value, &q_value);
    m_apm_divide(&real, digits, &numerator, &denominator);
    m_apm_multiply(&numerator, &r_value, &s_value);
    m_apm_divide(ri, digits, &numerator, &denominator);
    *rr = real;
    return 0;
}

}  // namespace

void m_apmc_sin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(rr, ri, digits, ar, ai, m_apm_sin, m_apm_cosh, m_apm_cos, m_apm_sinh, false);
}

void m_apmc_cos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(rr, ri, digits, ar, ai, m_apm_cos, m_apm_cosh, m_apm_sin, m_apm_sinh, true);
}

void m_apmc_sinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(rr, ri, digits, ar, ai, m_apm_sinh, m_apm_cos, m_apm_cosh, m_apm_sin, false);
}

void m_apmc_cosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    product_form(rr, ri, digits, ar, ai, m_apm_cosh, m_apm_cos, m_apm_sinh, m_apm_sin, false);
}

// D = cos^2 ar + sinh^2 ai.
int m_apmc_tan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    return quotient_form(rr, ri, digits, ar, ai, m_apm_sin, m_apm_cos, m_apm_sinh, m_apm_cosh,
                         true);
}

// D = cosh^2 ar - sin^2 ai.
int m_apmc_tanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    return quotient_form(rr, ri, digits, ar, ai, m_apm_sinh, m_apm_cosh, m_apm_sin, m_apm_cos,
                         false);
}

}  // namespace quindar
