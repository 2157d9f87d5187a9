// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "digit_decision.h"

#include <cmath>

#include "kernel_tables.h"

namespace quindar::exact {

namespace {

// Fraction bits of the scaled value: below 10^19 * 2^56 < 2^120 it fits, and a unit of
// 2^-56 lies far below any error bound worth deciding with.
constexpr int kFractionBits = 56;
constexpr int kResultDigits = 15;
constexpr int kMostDigits = 18;
constexpr U128 kOne = static_cast<U128>(1) << kFractionBits;
constexpr U128 kHalf = kOne / 2;

struct Powers {
    std::uint64_t value[kMostDigits + 2];
    constexpr Powers() : value() {
        std::uint64_t power = 1;
        for (auto &entry : value) {
            entry = power;
            power *= 10;
        }
    }
};
constexpr Powers kPowers;

struct Rounded {
    std::uint64_t coefficient;  // the decimal is coefficient * 10^place, in scaled units
    int place;
};

// x (a scaled value with kFractionBits fraction bits, in [10^(digits - 2), 10^(digits + 1)))
// rounded to `digits` significant digits, ties up, and with `then_fifteen` again to 15.
Rounded round_scaled(U128 x, int digits, bool then_fifteen) {
    std::uint64_t n;
    int place = 0;
    if (x < static_cast<U128>(kPowers.value[digits - 1]) << kFractionBits) {
        n = static_cast<std::uint64_t>((x * 10 + kHalf) >> kFractionBits);
        place = -1;
    } else if (x < static_cast<U128>(kPowers.value[digits]) << kFractionBits) {
        n = static_cast<std::uint64_t>((x + kHalf) >> kFractionBits);
    } else {
        // floor((x + 5) / 10), the integer part below 10^19 < 2^64.
        n = static_cast<std::uint64_t>((x + 10 * kHalf) >> kFractionBits) / 10;
        place = 1;
    }
    if (n == kPowers.value[digits]) {  // a carry into one more digit
        n /= 10;
        ++place;
    }
    if (!then_fifteen) return Rounded{n, place};
    // n has exactly `digits` digits.
    const int excess = digits - kResultDigits;
    const std::uint64_t divisor = kPowers.value[excess];
    n = (n + divisor / 2) / divisor;
    place += excess;
    if (n == kPowers.value[kResultDigits]) {
        n /= 10;
        ++place;
    }
    return Rounded{n, place};
}

// x as a double, from its two halves (each conversion is of 64 bits, which is quick).
double wide_double(U128 x) {
    return static_cast<double>(static_cast<std::uint64_t>(x >> 64)) * 0x1p64 +
           static_cast<double>(static_cast<std::uint64_t>(x));
}

}  // namespace

bool decide_digits(const Binary &v, double error, int digits, bool then_fifteen, Decimal &result) {
    if (v.mantissa == 0) {
        result = Decimal{};
        return true;
    }
    if (digits < kResultDigits || digits > kMostDigits || (then_fifteen && digits == kResultDigits))
        return false;
    // The scaled value v * 10^q lies in [10^(digits - 1), 10^digits); from the binary exponent
    // (1233 / 4096 just below log10 2) the first q is right or one off.
    const int binary = v.exponent + 127;
    int q = digits - 1 - ((binary * 1233) >> 12);
    U128 scaled = 0;
    for (int tries = 0;; ++tries) {
        if (tries == 3) return false;
        Binary power;
        if (!power_of_ten(q, power)) return false;
        const U256 product = multiply_wide(v.mantissa, power.mantissa);
        const int shift = -(v.exponent + power.exponent + kFractionBits);
        if (shift <= 0 || shift >= 256) return false;
        if (shift < 128 && (product.high >> shift) != 0) {
            --q;
            continue;
        }
        scaled = shift_down(product, shift);
        if (scaled >= static_cast<U128>(kPowers.value[digits]) << kFractionBits) {
            --q;
        } else if (scaled < static_cast<U128>(kPowers.value[digits - 1]) << kFractionBits) {
            ++q;
        } else {
            break;
        }
    }
    // The power of ten is within 2^-128 and the cut of the scaled value within one unit; the
    // bound is taken a little wider than its double product. A margin below a tenth of the
    // value keeps both ends in the range round_scaled takes.
    const double spread = wide_double(scaled) * (error + power_of_two(-126)) * (1 + 1e-12) + 2;
    if (!(spread < 0x1p62)) return false;
    const auto margin = static_cast<std::uint64_t>(spread) + 1;
    if (static_cast<U128>(margin) * 10 > scaled) return false;
    const Rounded low = round_scaled(scaled - margin, digits, then_fifteen);
    const Rounded high = round_scaled(scaled + margin, digits, then_fifteen);
    if (low.place != high.place || low.coefficient != high.coefficient) return false;
    result = Decimal{v.negative, low.coefficient, low.place - q};
    return true;
}

}  // namespace quindar::exact
