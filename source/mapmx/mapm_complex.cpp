// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm_complex.h"

#include "bid.h"
#include "wide_decimal.h"

namespace quindar {

// Scratch lives on each operation's stack, so there is nothing to set up or release.
void m_apmc_init() {}
void m_apmc_done() {}

void m_apmc_add(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai,
                const MapmNumber *br, const MapmNumber *bi) {
    m_apm_add(rr, ar, br);
    m_apm_add(ri, ai, bi);
}

void m_apmc_sub(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai,
                const MapmNumber *br, const MapmNumber *bi) {
    m_apm_subtract(rr, ar, br);
    m_apm_subtract(ri, ai, bi);
}

void m_apmc_mul(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai,
                const MapmNumber *br, const MapmNumber *bi) {
    MapmNumber first, second, real;
    m_apm_multiply(&first, ar, br);
    m_apm_multiply(&second, ai, bi);
    m_apm_subtract(&real, &first, &second);
    m_apm_multiply(&first, ai, br);
    m_apm_multiply(&second, ar, bi);
    // Results may be operands: write them only when both parts are known.
    m_apm_add(ri, &first, &second);
    *rr = real;
}

int m_apmc_div(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi) {
    using namespace bid;
    const BID_UINT128 a = load(ar), b = load(ai), c = load(br), d = load(bi);
    if (bid128_isZero(c) && bid128_isZero(d)) return -1;
    _IDEC_flags flags = 0;
    const BID_UINT128 denominator =
        bid128_add(bid128_mul(c, c, kCut, &flags), bid128_mul(d, d, kCut, &flags), kCut, &flags);
    const BID_UINT128 minus_a = bid128_negate(a);
    BID_UINT128 real =
        bid128_add(bid128_mul(a, c, kCut, &flags), bid128_mul(b, d, kCut, &flags), kCut, &flags);
    BID_UINT128 imag = bid128_add(bid128_mul(c, b, kCut, &flags),
                                  bid128_mul(d, minus_a, kCut, &flags), kCut, &flags);
    const bool finite =
        bid128_isFinite(a) && bid128_isFinite(b) && bid128_isFinite(c) && bid128_isFinite(d);
    if ((flags & BID_INEXACT_EXCEPTION) && finite) {
        // A sum did not fit 34 digits: divide the exact sums instead.
        const wide::WideDecimal wa(ar), wb(ai), wc(br), wd(bi);
        const wide::WideDecimal exact_denominator = wc * wc + wd * wd;
        MapmNumber real_part, imag_part;
        wide::WideDecimal::quotient(wa * wc + wb * wd, exact_denominator, digits).store(&real_part);
        wide::WideDecimal::quotient(wc * wb - wd * wa, exact_denominator, digits).store(&imag_part);
        *rr = real_part;
        *ri = imag_part;
        return 0;
    }
    real = bid128_div(real, denominator, kCut, &flags);
    imag = bid128_div(imag, denominator, kCut, &flags);
    store(rr, round_to_places(real, digits));
    store(ri, round_to_places(imag, digits));
    return 0;
}

int m_apmc_is0(const MapmNumber *ar, const MapmNumber *ai) {
    return m_apm_sign(ar) == 0 && m_apm_sign(ai) == 0 ? 1 : 0;
}

}  // namespace quindar
