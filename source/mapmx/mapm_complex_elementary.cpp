// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Square, magnitude, square root, exponential and logarithms of complex values.
#include "mapm_complex.h"
#include "mapm_functions.h"

namespace quindar {

namespace {

// |a|^2, exactly as far as 34 digits hold it.
MapmNumber squared_magnitude(const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber first, second, sum;
    m_apm_multiply(&first, ar, ar);
    m_apm_multiply(&second, ai, ai);
    m_apm_add(&sum, &first, &second);
    return sum;
}

}  // namespace

void m_apmc_sqr(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber first, second, real, product, two;
    m_apm_multiply(&first, ar, ar);
    m_apm_multiply(&second, ai, ai);
    m_apm_subtract(&real, &first, &second);
    m_apm_multiply(&product, ar, ai);
    m_apm_set_long(&two, 2);
    m_apm_multiply(ri, &product, &two);
    *rr = real;
}

void m_apmc_abs(M_APM r, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    const MapmNumber sum = squared_magnitude(ar, ai);
    m_apm_sqrt(r, digits, &sum);
}

// The principal root: the real part is never negative, the imaginary part takes the
// sign of ai. A negated 0 is 0, so the root of a negative real is +sqrt|x| i.
void m_apmc_sqrt(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    const int wide = 2 * digits;
    const MapmNumber sum = squared_magnitude(ar, ai);
    MapmNumber magnitude, two, half_sum, half_difference, numerator, real, imag;
    m_apm_sqrt(&magnitude, wide, &sum);
    m_apm_set_long(&two, 2);
    m_apm_add(&numerator, &magnitude, ar);
    m_apm_divide(&half_sum, wide, &numerator, &two);
    m_apm_sqrt(&real, digits, &half_sum);
    m_apm_subtract(&numerator, &magnitude, ar);
    m_apm_divide(&half_difference, wide, &numerator, &two);
    m_apm_sqrt(&imag, digits, &half_difference);
    if (m_apm_sign(ai) < 0) m_apm_negate(&imag, &imag);
    *rr = real;
    *ri = imag;
}

void m_apmc_exp(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    const int places = digits + 3;
    MapmNumber scale, cosine, sine;
    m_apm_exp(&scale, places, ar);
    m_apm_cos(&cosine, places, ai);
    m_apm_sin(&sine, places, ai);
    m_apm_multiply(rr, &scale, &cosine);
    m_apm_multiply(ri, &scale, &sine);
}

int m_apmc_log(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber magnitude, real, imag;
    m_apmc_abs(&magnitude, digits + 10, ar, ai);
    if (m_apm_sign(&magnitude) == 0) return -1;
    m_apm_log(&real, digits + 3, &magnitude);
    m_apm_arctan2(&imag, digits + 15, ai, ar);
    *rr = real;
    *ri = imag;
    return 0;
}

int m_apmc_log10(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber magnitude, real, angle, ln10, imag;
    m_apmc_abs(&magnitude, digits + 10, ar, ai);
    if (m_apm_sign(&magnitude) == 0) return -1;
    m_apm_log10(&real, digits + 3, &magnitude);
    m_apm_arctan2(&angle, digits + 15, ai, ar);
    m_apm_log_10_base_e(&ln10, digits + 3);
    m_apm_divide(&imag, digits + 3, &angle, &ln10);
    *rr = real;
    *ri = imag;
    return 0;
}

}  // namespace quindar
