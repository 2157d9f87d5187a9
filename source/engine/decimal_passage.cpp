// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "decimal_passage.h"

#include <cmath>

namespace quindar::decimal_passage {

namespace {

__extension__ typedef unsigned __int128 Wide;

constexpr std::uint64_t kLowest14 = 10000000000000ull;   // 10^13
constexpr std::uint64_t kBeyond14 = 100000000000000ull;  // 10^14
// Scales whose power of five times a 53-bit mantissa stays within 128 bits.
constexpr int kLargestScale = 22;
// Powers of ten that a long double holds exactly: 5^27 is below 2^64.
constexpr int kExactPowers = 27;

constexpr Wide power_of(unsigned base, int n) {
    Wide result = 1;
    for (int k = 0; k < n; ++k) result *= base;
    return result;
}

struct PowersOfFive {
    Wide value[kLargestScale + 1];
    constexpr PowersOfFive() : value() {
        for (int k = 0; k <= kLargestScale; ++k) value[k] = power_of(5, k);
    }
};
constexpr PowersOfFive kPowersOfFive;

// mantissa * 2^binary * 10^scale rounded to an integer, ties to even; the exact product
// mantissa * 5^scale needs at most 105 bits.
Wide scaled(std::uint64_t mantissa, int binary, int scale) {
    const Wide product = static_cast<Wide>(mantissa) * kPowersOfFive.value[scale];
    const int shift = binary + scale;
    if (shift >= 0) return shift > 20 ? ~Wide{0} : product << shift;
    const int right = -shift;
    if (right >= 127) return 0;
    const Wide quotient = product >> right;
    const Wide remainder = product - (quotient << right);
    const Wide half = Wide{1} << (right - 1);
    if (remainder > half || (remainder == half && (quotient & 1) != 0)) return quotient + 1;
    return quotient;
}

}  // namespace

bool operand_digits(double value, bool &negative, std::uint64_t &coefficient, int &exponent) {
    if (!std::isfinite(value) || value == 0) return false;
    negative = std::signbit(value);
    const double magnitude = std::fabs(value);
    if (magnitude < 1e-9 || magnitude >= 1e14) return false;
    int binary = 0;
    const double fraction = std::frexp(magnitude, &binary);
    const auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
    binary -= 53;
    // A first guess of the decimal exponent from the binary one (off by one at most), put
    // right by the digits it gives. 0.30103 is log10(2), 1233 / 4096 just above it.
    int scale = 13 - (((binary + 52) * 1233) >> 12);
    for (int tries = 0; tries < 3; ++tries) {
        if (scale < 0 || scale > kLargestScale) return false;
        const Wide digits = scaled(mantissa, binary, scale);
        if (digits >= kBeyond14) {
            --scale;  // also a rounding that carried into a fifteenth digit
        } else if (digits < kLowest14) {
            ++scale;
        } else {
            auto result = static_cast<std::uint64_t>(digits);
            int power = -scale;
            while (power < 0 && result % 10 == 0) {
                result /= 10;
                ++power;
            }
            coefficient = result;
            exponent = power;
            return true;
        }
    }
    return false;
}

bool read_digits(bool negative, std::uint64_t coefficient, int exponent, long double &result) {
    static const auto powers = [] {
        struct Table {
            long double value[kExactPowers + 1];
        } table{};
        long double power = 1;
        for (int k = 0; k <= kExactPowers; ++k, power *= 10) table.value[k] = power;
        return table;
    }();
    if (coefficient == 0) {
        // The text of zero carries no sign.
        result = 0.0L;
        return true;
    }
    if (exponent >= 0) {
        if (exponent > 19) return false;
        const Wide whole =
            static_cast<Wide>(coefficient) * static_cast<Wide>(power_of(10, exponent));
        if (whole >> 64 != 0) return false;
        result = static_cast<long double>(static_cast<std::uint64_t>(whole));
    } else {
        if (-exponent > kExactPowers) return false;
        // Both operands are exact, so the one rounding is the division's, as in reading.
        result = static_cast<long double>(coefficient) / powers.value[-exponent];
    }
    if (negative) result = -result;
    return true;
}

}  // namespace quindar::decimal_passage
