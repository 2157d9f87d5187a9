// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Whole parts of complex numbers and the Gaussian remainder.
#include "mapm_complex.h"
#include "mapm_constants.h"
#include "wide_complex.h"

namespace quindar {

namespace {

using wide::Complex;
using wide::WideDecimal;

// The nearest whole value, halves away from zero: the quotient by 1 (towards zero),
// moved one further when the remainder reaches a half.
void round_to_whole(M_APM result, const MapmNumber *value) {
    MapmNumber quotient, remainder;
    m_apm_integer_div_rem(&quotient, &remainder, value, MM_One());
    if (m_apm_compare(&remainder, MM_0_5()) >= 0) {
        m_apm_add(result, &quotient, MM_One());
    } else if (m_apm_compare(&remainder, MM_M0_5()) <= 0) {
        m_apm_subtract(result, &quotient, MM_One());
    } else {
        *result = quotient;
    }
}

WideDecimal round_to_whole(const WideDecimal &value) {
    const WideDecimal quotient = value.truncated();
    const WideDecimal remainder = value - quotient;
    const WideDecimal half("5", -1);
    if (compare(remainder, half) >= 0) return quotient + WideDecimal(1L);
    if (compare(remainder, half.negated()) <= 0) return quotient - WideDecimal(1L);
    return quotient;
}

Complex round_to_whole(const Complex &z) {
    return {round_to_whole(z.re), round_to_whole(z.im)};
}

}  // namespace

int m_apmc_mod(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi) {
    if (!wide::finite_operands({ar, ai, br, bi}, rr, ri)) return 0;
    const Complex a = round_to_whole(wide::load(ar, ai));
    const Complex b = round_to_whole(wide::load(br, bi));
    const auto q = wide::quotient(a, b, digits);
    if (!q) return -1;
    const Complex whole_q{q->re.truncated(), q->im.truncated()};
    wide::store(round_to_whole(a - whole_q * b), rr, ri);
    return 0;
}

void m_apmc_floor(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    m_apm_floor(rr, ar);
    m_apm_floor(ri, ai);
}

void m_apmc_ceil(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    m_apm_ceil(rr, ar);
    m_apm_ceil(ri, ai);
}

void m_apmc_round(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    round_to_whole(rr, ar);
    round_to_whole(ri, ai);
}

void m_apmc_fix(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai) {
    MapmNumber remainder;
    m_apm_integer_div_rem(rr, &remainder, ar, MM_One());
    m_apm_integer_div_rem(ri, &remainder, ai, MM_One());
}

}  // namespace quindar
