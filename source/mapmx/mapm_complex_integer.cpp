// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Whole parts of complex values and the Gaussian remainder.
#include "mapm_complex.h"
#include "mapm_functions.h"

namespace quindar {

namespace {

MapmNumber one() {
    MapmNumber value;
    m_apm_set_long(&value, 1);
    return value;
}

// Halves go away from zero: the quotient by 1, moved by one when the remainder is half
// or more in either direction.
void round_half_away(M_APM result, const MapmNumber *x) {
    MapmNumber quotient, remainder, half, minus_half, unit = one(), step;
    m_apm_integer_div_rem(&quotient, &remainder, x, &unit);
    m_apm_set_string(&half, "0.5");
    m_apm_set_string(&minus_half, "-0.5");
    if (m_apm_compare(&remainder, &half) >= 0) {
        m_apm_add(&step, &quotient, &unit);
        *result = step;
    } else if (m_apm_compare(&remainder, &minus_half) <= 0) {
        m_apm_subtract(&step, &quotient, &unit);
        *result = step;
    } else {
        *result = quotient;
    }
}

void toward_zero(M_APM result, const MapmNumber *x) {
    MapmNumber remainder, unit = one();
    m_apm_integer_div_rem(result, &remainder, x, &unit);
}

}  // namespace

void m_apmc_floor(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    m_apm_floor(rr, ar);
    m_apm_floor(ri, ai);
}

void m_apmc_ceil(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    m_apm_ceil(rr, ar);
    m_apm_ceil(ri, ai);
}

void m_apmc_round(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    round_half_away(rr, ar);
    round_half_away(ri, ai);
}

void m_apmc_fix(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    toward_zero(rr, ar);
    toward_zero(ri, ai);
}

int m_apmc_mod(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi) {
    MapmNumber a_re, a_im, b_re, b_im;
    round_half_away(&a_re, ar);
    round_half_away(&a_im, ai);
    round_half_away(&b_re, br);
    round_half_away(&b_im, bi);
    MapmNumber first, second, denominator;
    m_apm_multiply(&first, &b_re, &b_re);
    m_apm_multiply(&second, &b_im, &b_im);
    m_apm_add(&denominator, &first, &second);
    if (m_apm_sign(&denominator) == 0) return -1;
    // Q = a times the conjugate of b, over |b|^2, cut to whole parts.
    MapmNumber q_re, q_im, numerator;
    m_apm_multiply(&first, &a_re, &b_re);
    m_apm_multiply(&second, &a_im, &b_im);
    m_apm_add(&numerator, &first, &second);
    m_apm_divide(&q_re, digits, &numerator, &denominator);
    m_apm_multiply(&first, &a_im, &b_re);
    m_apm_multiply(&second, &a_re, &b_im);
    m_apm_subtract(&numerator, &first, &second);
    m_apm_divide(&q_im, digits, &numerator, &denominator);
    toward_zero(&q_re, &q_re);
    toward_zero(&q_im, &q_im);
    // a - Q*b, each part rounded once more.
    MapmNumber product_re, product_im, rest;
    m_apmc_mul(&product_re, &product_im, &q_re, &q_im, &b_re, &b_im);
    m_apm_subtract(&rest, &a_re, &product_re);
    round_half_away(rr, &rest);
    m_apm_subtract(&rest, &a_im, &product_im);
    round_half_away(ri, &rest);
    return 0;
}

}  // namespace quindar
