// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <algorithm>

#include "mapm_complex.h"
#include "wide_complex.h"
#include "wide_functions.h"

namespace quindar {

namespace {

using wide::Complex;
using wide::WideDecimal;

// A magnitude with more integer digits than this is beyond every decimal value, whatever
// the phase does to it; more places for its phase would only cost time.
constexpr long kLargestMargin = 6145;

struct Polar {
    WideDecimal log_radius;
    WideDecimal angle;
};

// ln |a| and arg a at `places`, the radius itself at `radius_places`.
Polar polar(const Complex &a, int radius_places, int places) {
    return {wide::log(wide::modulus(a, radius_places), places), wide::arctan2(a.im, a.re, places)};
}

}  // namespace

int m_apmc_pow(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi) {
    if (!wide::finite_operands({ar, ai, br, bi}, rr, ri)) return 0;
    const Complex a = wide::load(ar, ai), b = wide::load(br, bi);
    if (wide::modulus(a, digits + 10).is_zero()) {
        if (b.re.sign() <= 0) return -1;
        m_apm_set_zero(rr);
        m_apm_set_zero(ri);
        return 0;
    }
    Polar p = polar(a, digits + 10, digits + 2);
    const WideDecimal magnitude = wide::exp(b.re * p.log_radius - b.im * p.angle, digits + 2);

    // A large magnitude spends digits on its integer part: redo the angle with more.
    const int places =
        digits + static_cast<int>(std::min(wide::exponent_margin(magnitude), kLargestMargin)) + 1;
    p = polar(a, places, places);
    const WideDecimal phase = b.re * p.angle + b.im * p.log_radius;
    wide::store({magnitude * wide::cos(phase, places), magnitude * wide::sin(phase, places)}, rr,
                ri);
    return 0;
}

}  // namespace quindar
