// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// 128- and 256-bit unsigned integers for the binary kernels of the elementary functions, and
// the binary floating value they pass on. Every operation here is exact or truncates, so an
// error bound counts at most one unit of the last bit kept per step.

#include <cstdint>

namespace quindar::exact {

__extension__ typedef unsigned __int128 U128;
__extension__ typedef __int128 S128;

struct U256 {
    U128 high = 0;
    U128 low = 0;
};

// a * b exactly.
inline U256 multiply_wide(U128 a, U128 b) {
    const auto a0 = static_cast<std::uint64_t>(a), a1 = static_cast<std::uint64_t>(a >> 64);
    const auto b0 = static_cast<std::uint64_t>(b), b1 = static_cast<std::uint64_t>(b >> 64);
    const U128 p00 = static_cast<U128>(a0) * b0, p01 = static_cast<U128>(a0) * b1;
    const U128 p10 = static_cast<U128>(a1) * b0, p11 = static_cast<U128>(a1) * b1;
    // Below 3 * 2^64: no overflow.
    const U128 middle =
        (p00 >> 64) + static_cast<std::uint64_t>(p01) + static_cast<std::uint64_t>(p10);
    return U256{p11 + (p01 >> 64) + (p10 >> 64) + (middle >> 64),
                (middle << 64) | static_cast<std::uint64_t>(p00)};
}

// a * b for a product below 2^256.
inline U256 multiply_wide(const U256 &a, std::uint64_t b) {
    const U256 low = multiply_wide(a.low, b);
    return U256{low.high + a.high * b, low.low};
}

// floor(x / 2^shift) for 0 <= shift < 256, where the quotient fits 128 bits.
inline U128 shift_down(const U256 &x, int shift) {
    if (shift == 0) return x.low;
    if (shift < 128) return (x.high << (128 - shift)) | (x.low >> shift);
    return x.high >> (shift - 128);
}

// x * 2^shift for 0 <= shift < 256, where the product fits 256 bits.
inline U256 shift_up(U128 x, int shift) {
    if (shift == 0) return U256{0, x};
    if (shift < 128) return U256{x >> (128 - shift), x << shift};
    return U256{x << (shift - 128), 0};
}

inline bool less(const U256 &a, const U256 &b) {
    return a.high < b.high || (a.high == b.high && a.low < b.low);
}

// a - b for a >= b.
inline U256 subtract(const U256 &a, const U256 &b) {
    return U256{a.high - b.high - (a.low < b.low ? 1 : 0), a.low - b.low};
}

// Leading zero bits of a nonzero value.
inline int leading_zeros(U128 x) {
    const auto high = static_cast<std::uint64_t>(x >> 64);
    return high != 0 ? __builtin_clzll(high) : 64 + __builtin_clzll(static_cast<std::uint64_t>(x));
}

// (-1)^negative * mantissa * 2^exponent with the mantissa's top bit set (bit 127), or zero
// with a zero mantissa.
struct Binary {
    bool negative = false;
    U128 mantissa = 0;
    int exponent = 0;
};

// n * 2^exponent normalised, exactly.
inline Binary normalised(bool negative, U128 n, int exponent) {
    if (n == 0) return Binary{};
    const int shift = leading_zeros(n);
    return Binary{negative, n << shift, exponent - shift};
}

// The top 128 bits of a nonzero 256-bit value, cut: a relative error below 2^-127.
inline Binary normalised(bool negative, const U256 &n, int exponent) {
    if (n.high == 0) return normalised(negative, n.low, exponent);
    const int shift = leading_zeros(n.high);
    const U128 top = shift == 0 ? n.high : (n.high << shift) | (n.low >> (128 - shift));
    return Binary{negative, top, exponent + 128 - shift};
}

// a * b, cut to 128 bits: a relative error below 2^-127 beyond those of a and b.
inline Binary product(const Binary &a, const Binary &b) {
    if (a.mantissa == 0 || b.mantissa == 0) return Binary{};
    return normalised(a.negative != b.negative, multiply_wide(a.mantissa, b.mantissa),
                      a.exponent + b.exponent);
}

// 2^k as a double, for -1022 <= k <= 1023.
inline double power_of_two(int k) {
    const std::uint64_t bits = static_cast<std::uint64_t>(k + 1023) << 52;
    double result;
    __builtin_memcpy(&result, &bits, sizeof result);
    return result;
}

// |x| as a double, within 2^-52 (relative), for estimates; 0 beyond the range of doubles.
inline double approximate(const Binary &x) {
    const int k = x.exponent + 64;
    const auto top = static_cast<double>(static_cast<std::uint64_t>(x.mantissa >> 64));
    if (k < -1022 || k > 1023) return __builtin_ldexp(top, k);
    return top * power_of_two(k);
}

}  // namespace quindar::exact
