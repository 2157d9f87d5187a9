// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "bid.h"

namespace quindar::bid {

namespace {
constexpr int kExponentBias = 6176;
constexpr std::uint64_t kSignBit = 0x8000000000000000ull;
constexpr std::uint64_t kSpecialMask = 0x7800000000000000ull;
constexpr std::uint64_t kNanMask = 0x7c00000000000000ull;
constexpr std::uint64_t kSteeringMask = 0x6000000000000000ull;
// The largest coefficient a canonical decimal128 can hold: 10^34 - 1.
constexpr unsigned __int128 kMaxCoefficient =
    static_cast<unsigned __int128>(999999999999999999ull) * 10000000000000000ull + 9999999999999999ull;
}  // namespace

// Reads the binary integer encoding directly: a decimal value is a sign, a biased
// exponent of 14 bits and a binary coefficient of at most 113 bits.
Parts decompose(const BID_UINT128 &x) {
    Parts parts;
    const std::uint64_t high = x.w[BID_HIGH_128W];
    const std::uint64_t low = x.w[BID_LOW_128W];
    parts.negative = (high & kSignBit) != 0;
    if ((high & kSpecialMask) == kSpecialMask) {
        parts.finite = false;
        parts.nan = (high & kNanMask) == kNanMask;
        return parts;
    }
    if ((high & kSteeringMask) == kSteeringMask) {
        // The long-exponent form only holds coefficients beyond 10^34: non-canonical zero.
        parts.exponent = static_cast<int>((high >> 47) & 0x3fff) - kExponentBias;
        return parts;
    }
    parts.exponent = static_cast<int>((high >> 49) & 0x3fff) - kExponentBias;
    parts.coefficient = (static_cast<unsigned __int128>(high & 0x0001ffffffffffffull) << 64) | low;
    if (parts.coefficient > kMaxCoefficient) parts.coefficient = 0;
    return parts;
}

BID_UINT128 round_to_places(const BID_UINT128 &x, int places) {
    _IDEC_flags flags = 0;
    if (!bid128_isFinite(x) || bid128_isZero(x)) return x;
    if (places < 0) places = 0;
    if (places > kMapmMaxPlaces) places = kMapmMaxPlaces;
    const int first_digit = bid128_ilogb(x, &flags);
    const BID_UINT128 quantum =
        bid128_scalbn(bid128_from_int32(1), first_digit - places, kCut, &flags);
    return bid128_quantize(x, quantum, kTiesAway, &flags);
}

}  // namespace quindar::bid
