// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "degree_reduction.h"

#include <cmath>
#include <cstring>

#include "kernel_tables.h"

namespace quindar::exact {

namespace {

// pi / 2 to 150 digits, the point after the first.
constexpr const char *kHalfPiDigits =
    "15707963267948966192313216916397514420985846996875529104874722961539082031431044993140174126"
    "7105853399107404325664115332354692230477529111586267970406";
// Decimal places the difference keeps below the angle's last digit.
constexpr int kExtraPlaces = 40;
constexpr int kAngleDigits = 34;
constexpr double kLargestAngle = 1e6;

U256 times_ten_plus(const U256 &x, unsigned digit) {
    U256 y = multiply_wide(x, 10);
    y.low += digit;
    if (y.low < digit) ++y.high;
    return y;
}

int digit_count(const U256 &x) {
    int count = 1;
    for (U256 power{0, 10}; !less(x, power) && count < 77; power = multiply_wide(power, 10))
        ++count;
    return count;
}

// x / d, cut, in four 64-bit steps.
U256 divide(const U256 &x, std::uint64_t d) {
    const std::uint64_t limbs[4] = {
        static_cast<std::uint64_t>(x.high >> 64), static_cast<std::uint64_t>(x.high),
        static_cast<std::uint64_t>(x.low >> 64), static_cast<std::uint64_t>(x.low)};
    std::uint64_t quotient[4];
    U128 rest = 0;
    for (int k = 0; k < 4; ++k) {
        const U128 current = (rest << 64) | limbs[k];
        quotient[k] = static_cast<std::uint64_t>(current / d);
        rest = current % d;
    }
    return U256{(static_cast<U128>(quotient[0]) << 64) | quotient[1],
                (static_cast<U128>(quotient[2]) << 64) | quotient[3]};
}

double estimate(const U256 &x) {
    return static_cast<double>(x.high) * 0x1p128 + static_cast<double>(x.low);
}

}  // namespace

bool reduce_degrees(std::uint64_t n, int exponent, ReducedAngle &result) {
    // The product with the 34 digits of pi / 180, exact below 10^48, cut to 34 digits.
    U256 angle = multiply_wide(static_cast<U128>(n), kDegreeDigits);
    int scale = exponent + kDegreeExponent;
    const int digits = digit_count(angle);
    if (digits > kAngleDigits) {
        std::uint64_t divisor = 1;
        for (int k = kAngleDigits; k < digits; ++k) divisor *= 10;
        angle = divide(angle, divisor);
        scale += digits - kAngleDigits;
    }
    const double radians = estimate(angle) * std::pow(10.0, scale);
    if (!(radians < kLargestAngle)) return false;
    const long long quarters = std::llround(radians / 1.5707963267948966);
    const int places = kExtraPlaces - scale;  // decimals of pi / 2 to take
    if (quarters == 0 || places < 0 || places + 1 > static_cast<int>(std::strlen(kHalfPiDigits)))
        return false;
    // In units of 10^(scale - kExtraPlaces): the angle exactly, and k pi / 2 with pi / 2 cut,
    // less than k units below its value.
    U256 half_pi{0, 0};
    for (int k = 0; k <= places; ++k)
        half_pi = times_ten_plus(half_pi, static_cast<unsigned>(kHalfPiDigits[k] - '0'));
    for (int k = 0; k < kExtraPlaces; ++k) angle = multiply_wide(angle, 10);
    const U256 multiple = multiply_wide(half_pi, static_cast<std::uint64_t>(quarters));
    const bool below = less(angle, multiple);
    const U256 rest = below ? subtract(multiple, angle) : subtract(angle, multiple);
    if (rest.high == 0 && rest.low == 0) return false;
    Binary unit;
    if (!power_of_ten(scale - kExtraPlaces, unit)) return false;
    result.rest = product(normalised(below, rest, 0), unit);
    result.quarters = quarters;
    // The cut of pi / 2, then the cut of the difference and the power of ten (2^-126).
    const double magnitude = approximate(result.rest);
    result.delta = static_cast<double>(quarters) * std::pow(10.0, scale - kExtraPlaces) +
                   magnitude * power_of_two(-126);
    return true;
}

}  // namespace quindar::exact
