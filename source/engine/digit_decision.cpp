// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "digit_decision.h"

#include <cmath>

#include "kernel_tables.h"

namespace quindar::exact {

namespace {

// Fraction bits of the scaled value: below 10^20 * 2^56 < 2^128 it fits, and a unit of
// 2^-56 lies far below any error bound worth deciding with.
constexpr int kFractionBits = 56;
constexpr int kResultDigits = 15;
constexpr U128 kOne = static_cast<U128>(1) << kFractionBits;

U128 power_of_ten_integer(int k) {
    U128 power = 1;
    for (int i = 0; i < k; ++i) power *= 10;
    return power;
}

int digit_count(U128 n) {
    int count = 1;
    for (U128 power = 10; n >= power && count < 38; power *= 10) ++count;
    return count;
}

struct Rounded {
    U128 coefficient;  // the decimal is coefficient * 10^place in units of the scaled value
    int place;
};

// x (a scaled value with kFractionBits fraction bits, between 10^(digits - 1) and
// 10^(digits + 2)) rounded to `digits` significant digits, ties up, and then to 15.
Rounded round_scaled(U128 x, int digits, bool then_fifteen) {
    int place = 0;
    U128 grid = 1;
    while (x >= power_of_ten_integer(digits + place) * kOne) {
        ++place;
        grid *= 10;
    }
    U128 n = ((x + grid * (kOne / 2)) >> kFractionBits) / grid;
    if (n == power_of_ten_integer(digits)) {  // a carry into one more digit
        n /= 10;
        ++place;
    }
    if (!then_fifteen) return Rounded{n, place};
    const int excess = digit_count(n) - kResultDigits;
    if (excess <= 0) return Rounded{n, place};
    const U128 divisor = power_of_ten_integer(excess);
    n = (n + divisor / 2) / divisor;
    place += excess;
    if (n == power_of_ten_integer(kResultDigits)) {
        n /= 10;
        ++place;
    }
    return Rounded{n, place};
}

}  // namespace

bool decide_digits(const Binary &v, double error, int digits, bool then_fifteen, Decimal &result) {
    if (v.mantissa == 0) {
        result = Decimal{};
        return true;
    }
    const double estimate = approximate(v);
    if (!(estimate > 1e-300 && estimate < 1e300)) return false;
    // The scaled value v * 10^q lies in [10^digits, 10^(digits + 1)): one digit more than
    // kept, so that neither end of the interval leaves the range round_scaled takes.
    int q = digits - static_cast<int>(std::floor(std::log10(estimate)));
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
        if (scaled >= power_of_ten_integer(digits + 1) * kOne) {
            --q;
        } else if (scaled < power_of_ten_integer(digits) * kOne) {
            ++q;
        } else {
            break;
        }
    }
    // The power of ten is within 2^-128 and the cut of the scaled value within one unit; the
    // bound is taken a little wider than its double product.
    const double spread =
        static_cast<double>(scaled) * (error + std::ldexp(1.0, -126)) * (1 + 1e-12) + 2;
    if (!(spread < 1e30)) return false;
    const auto margin = static_cast<U128>(spread) + 1;
    const Rounded low = round_scaled(scaled - margin, digits, then_fifteen);
    const Rounded high = round_scaled(scaled + margin, digits, then_fifteen);
    if (low.place != high.place || low.coefficient != high.coefficient) return false;
    result = Decimal{v.negative, static_cast<std::uint64_t>(low.coefficient), low.place - q};
    return true;
}

}  // namespace quindar::exact
