// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Inverse circular and hyperbolic functions of complex numbers, through logarithms.
#include "mapm_complex.h"
#include "mapm_functions.h"
#include "wide_complex.h"
#include "wide_functions.h"

namespace quindar {

namespace {

using wide::Complex;
using wide::WideDecimal;

Complex one() {
    return {WideDecimal(1L), WideDecimal()};
}

// The places of the square roots: digits + h + 4, h half the integer digits of |z|^2, so
// that a large argument keeps digits + 4 decimals behind its point.
struct RootPlaces {
    long half_margin;
    int places;
};

RootPlaces root_places(const Complex &z, int digits) {
    const long h = wide::exponent_margin(z.re * z.re + z.im * z.im) / 2;
    return {h, digits + static_cast<int>(h) + 4};
}

// For a large argument (h > 3) a sum whose modulus at the root places is 0 or below 1e-3
// has lost its digits to cancellation: the caller then takes the difference instead.
bool cancelled(const Complex &sum, const RootPlaces &root) {
    if (root.half_margin <= 3) return false;
    const WideDecimal size = wide::modulus(sum, root.places);
    return size.is_zero() || size.exponent() < -3;
}

// ln t at digits, stored as such or as -i ln t. False (results untouched) for t = 0.
bool store_logarithm(const Complex &t, int digits, bool times_minus_i, M_APM rr, M_APM ri) {
    const auto logarithm = wide::logarithm(t, digits);
    if (!logarithm) return false;
    wide::store(times_minus_i ? wide::negated(wide::times_i(*logarithm)) : *logarithm, rr, ri);
    return true;
}

}  // namespace

void m_apmc_arcsin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    const Complex z = wide::load(ar, ai);
    const RootPlaces root = root_places(z, digits);
    const Complex u = wide::square_root(one() - wide::square(z), root.places);
    const Complex v = wide::times_i(z);
    Complex t = u + v;
    if (cancelled(t, root)) t = v - u;
    store_logarithm(t, digits, true, rr, ri);
}

void m_apmc_arccos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    const Complex z = wide::load(ar, ai);
    const RootPlaces root = root_places(z, digits);
    const Complex u = wide::square_root(one() - wide::square(z), root.places);
    const Complex v = wide::times_i(u);
    Complex t = v + z;
    if (cancelled(t, root)) t = z - v;
    store_logarithm(t, digits, true, rr, ri);
}

void m_apmc_arcsinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (m_apm_is_finite(ai) && m_apm_sign(ai) == 0) {
        m_apm_arcsinh(rr, digits, ar);
        m_apm_set_zero(ri);
        return;
    }
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    const Complex z = wide::load(ar, ai);
    const RootPlaces root = root_places(z, digits);
    const Complex u = wide::square_root(wide::square(z) + one(), root.places);
    Complex t = z + u;
    if (cancelled(t, root)) t = z - u;
    store_logarithm(t, digits, false, rr, ri);
}

void m_apmc_arccosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return;
    const Complex z = wide::load(ar, ai);
    const RootPlaces root = root_places(z, digits);
    const Complex u = wide::square_root(wide::square(z) - one(), root.places);
    Complex t = z + u;
    if (cancelled(t, root)) t = z - u;
    store_logarithm(t, digits, false, rr, ri);
}

int m_apmc_arctan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return 0;
    const Complex v = wide::times_i(wide::load(ar, ai));
    const auto q = wide::quotient(one() + v, one() - v, digits);
    if (!q) return -1;
    const Complex s = wide::square_root(*q, digits);
    return store_logarithm(s, digits, true, rr, ri) ? 0 : -1;
}

int m_apmc_arctanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    if (!wide::finite_operands({ar, ai}, rr, ri)) return 0;
    const Complex z = wide::load(ar, ai);
    const auto q = wide::quotient(one() + z, one() - z, digits);
    if (!q) return -1;
    const Complex s = wide::square_root(*q, digits);
    return store_logarithm(s, digits, false, rr, ri) ? 0 : -1;
}

}  // namespace quindar
