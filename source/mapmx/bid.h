// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The decimal library's declarations and the conversions between its value type and
// MapmNumber. Private to this folder: nothing outside the decimal layer includes it.

#include <cstring>

extern "C" {
#include <bid_conf.h>
#include <bid_functions.h>
}

#include "mapm.h"

namespace quindar::bid {

static_assert(sizeof(BID_UINT128) == sizeof(MapmNumber));

inline BID_UINT128 load(const MapmNumber *value) {
    BID_UINT128 x;
    std::memcpy(&x, value, sizeof x);
    return x;
}

inline void store(MapmNumber *result, const BID_UINT128 &x) {
    std::memcpy(result, &x, sizeof x);
}

// A finite value taken apart: value = (negative ? -1 : 1) * coefficient * 10^exponent.
struct Parts {
    bool negative = false;
    bool finite = true;
    bool nan = false;
    unsigned __int128 coefficient = 0;
    int exponent = 0;
};

Parts decompose(const BID_UINT128 &x);

// Intermediate results are cut towards zero: a value cut at 34 digits and then
// rounded ties-away at fewer places gives the same digits as the exact value would.
inline constexpr _IDEC_round kCut = BID_ROUNDING_TO_ZERO;
inline constexpr _IDEC_round kTiesAway = BID_ROUNDING_TIES_AWAY;

// x rounded to places + 1 significant digits, ties away from zero.
BID_UINT128 round_to_places(const BID_UINT128 &x, int places);

}  // namespace quindar::bid
