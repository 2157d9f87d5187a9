// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "power_phase.h"

#include <cstring>

#include "binary_kernels.h"

namespace quindar::exact {

namespace {

// pi's first 400 decimals; theta at P places keeps the first P, delta comes from those after
// them (so P goes up to 364, past the places of any double's phase).
constexpr const char *kPiDecimals =
    "14159265358979323846264338327950288419716939937510582097494459230781640628620899862803482534"
    "21170679821480865132823066470938446095505822317253594081284811174502841027019385211055596446"
    "22948954930381964428810975665933446128475648233786783165271201909145648566923460348610454326"
    "64821339360726024914127372458700660631558817488152092096282925409171536436789259036001133053"
    "05488204665213841469519415116094";
// Decimals of delta read.
constexpr int kDeltaDigits = 36;
// The decimal layer's own sine is within this of the true one, relative.
const double kRoadError = power_of_two(-240);

U128 digits_at(int first, int count) {
    U128 n = 0;
    for (int k = 0; k < count; ++k)
        n = n * 10 + static_cast<unsigned>(kPiDecimals[first + k] - '0');
    return n;
}

}  // namespace

bool whole_exponent(const Decimal &b, bool &odd) {
    if (b.exponent < 0 || b.coefficient > kLargestWholeExponent) return false;
    if (b.exponent > 6) return false;
    std::uint64_t whole = b.coefficient;
    for (int k = 0; k < b.exponent; ++k) whole *= 10;
    if (whole > kLargestWholeExponent) return false;
    odd = whole % 2 == 1;
    return true;
}

bool whole_turn_sine(const Decimal &b, int places, Binary &result, double &error) {
    bool odd = false;
    if (!whole_exponent(b, odd) || places < 15 ||
        places + kDeltaDigits > static_cast<int>(std::strlen(kPiDecimals)))
        return false;
    if (b.coefficient == 0) {  // a phase of exactly 0
        result = Binary{};
        error = 0;
        return true;
    }
    // theta = pi rounded at `places` (ties cannot occur: pi has no such digits), so
    // delta = (round(f) - f) 10^-places with f = 0.(the decimals after the kept ones).
    const U128 fraction = digits_at(places, kDeltaDigits);
    U128 one = 1;
    for (int k = 0; k < kDeltaDigits; ++k) one *= 10;
    const bool rounded_up = fraction >= one / 2;
    const bool delta_negative = !rounded_up;
    const U128 distance = rounded_up ? one - fraction : fraction;
    // b delta, exact but for the decimals of pi left off: less than a unit of the last read.
    Binary angle, power;
    double power_error = 0;
    if (!decimal_to_binary(false, distance, -kDeltaDigits - places, power, power_error))
        return false;
    std::uint64_t whole = b.coefficient;
    for (int k = 0; k < b.exponent; ++k) whole *= 10;
    angle = product(normalised(b.negative != delta_negative, whole, 0), power);
    const double relative = 1 / static_cast<double>(distance);
    if (!sine_kernel(angle, power_error + relative + power_of_two(-126), false, result, error))
        return false;
    if (odd) result.negative = !result.negative;
    error = error * (1 + 1e-9) + kRoadError;
    return true;
}

}  // namespace quindar::exact
