// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm_complex.h"
#include "mapm_functions.h"

namespace quindar {

namespace {

// Integer digits a large intermediate uses up; added to the places so the decimals of
// a result keep their accuracy.
int exponent_margin(const MapmNumber *value) {
    const int exponent = m_apm_exponent(value);
    return exponent > 0 ? exponent : 0;
}

// The logarithm of the radius and the angle of a at `places`, the radius itself at
// `radius_places`.
void polar(MapmNumber &log_radius, MapmNumber &angle, int radius_places, int places,
           const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber square_r, square_i, sum, radius;
    m_apm_multiply(&square_r, ar, ar);
    m_apm_multiply(&square_i, ai, ai);
    m_apm_add(&sum, &square_r, &square_i);
    m_apm_sqrt(&radius, radius_places, &sum);
    m_apm_log(&log_radius, places, &radius);
    m_apm_arctan2(&angle, places, ai, ar);
}

}  // namespace

int m_apmc_pow(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi) {
    if (m_apmc_is0(ar, ai)) {
        if (m_apm_sign(br) <= 0) return -1;
        m_apm_set_zero(rr);
        m_apm_set_zero(ri);
        return 0;
    }
    MapmNumber log_radius, angle, first, second, exponent, magnitude;
    polar(log_radius, angle, digits + 10, digits + 2, ar, ai);
    m_apm_multiply(&first, br, &log_radius);
    m_apm_multiply(&second, bi, &angle);
    m_apm_subtract(&exponent, &first, &second);
    m_apm_exp(&magnitude, digits + 2, &exponent);

    // A large magnitude spends digits on its integer part: redo the angle with more.
    int places = digits + exponent_margin(&magnitude) + 1;
    if (places > kMapmMaxPlaces) places = kMapmMaxPlaces;
    polar(log_radius, angle, places, places, ar, ai);
    MapmNumber phase, cosine, sine;
    m_apm_multiply(&first, br, &angle);
    m_apm_multiply(&second, bi, &log_radius);
    m_apm_add(&phase, &first, &second);
    m_apm_cos(&cosine, places, &phase);
    m_apm_sin(&sine, places, &phase);
    m_apm_multiply(rr, &magnitude, &cosine);
    m_apm_multiply(ri, &magnitude, &sine);
    return 0;
}

}  // namespace quindar
