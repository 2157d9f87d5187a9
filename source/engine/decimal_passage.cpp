// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "decimal_passage.h"

#include <cmath>
#include <cstring>

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

// 5^22 lies below 2^52: the powers of five fit one machine word.
struct PowersOfFive {
    std::uint64_t value[kLargestScale + 1];
    constexpr PowersOfFive() : value() {
        for (int k = 0; k <= kLargestScale; ++k)
            value[k] = static_cast<std::uint64_t>(power_of(5, k));
    }
};
constexpr PowersOfFive kPowersOfFive;

// 10^(k - 9) as doubles, k = 0 .. 23: the decades of the operand range, to place a value
// in its decade before any digit is made (the ones below 1 are near, not exact; the digits
// put a wrong guess right).
struct Decades {
    double value[24];
    constexpr Decades() : value() {
        for (int k = 0; k < 24; ++k) {
            double power = 1;
            for (int j = 0; j < (k > 9 ? k - 9 : 9 - k); ++j) power *= 10;
            value[k] = k >= 9 ? power : 1 / power;
        }
    }
};
constexpr Decades kDecades;

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

bool operand_significand(double value, bool &negative, std::uint64_t &significand, int &exponent) {
    const double magnitude = std::fabs(value);
    // Also false for NaN, which compares false.
    if (!(magnitude >= 1e-9 && magnitude < 1e14)) return false;
    negative = std::signbit(value);
    std::uint64_t bits;
    std::memcpy(&bits, &magnitude, sizeof bits);
    // A normal double: the hidden bit above 52 stored ones, the exponent biased by 1075 for
    // a mantissa read as an integer.
    const std::uint64_t mantissa =
        (bits & ((std::uint64_t{1} << 52) - 1)) | (std::uint64_t{1} << 52);
    const int binary = static_cast<int>(bits >> 52) - 1075;
    // The decade from the binary exponent (off by one at most: 1233 / 4096 lies just below
    // log10(2)), then put right by the table; the digits it gives settle what is left.
    int decade = ((binary + 52) * 1233) >> 12;
    if (decade + 10 < 24 && magnitude >= kDecades.value[decade + 10]) ++decade;
    int scale = 13 - decade;
    for (int tries = 0; tries < 3; ++tries) {
        if (scale < 0 || scale > kLargestScale) return false;
        const Wide digits = scaled(mantissa, binary, scale);
        if (digits >= kBeyond14) {
            --scale;  // also a rounding that carried into a fifteenth digit
        } else if (digits < kLowest14) {
            ++scale;
        } else {
            significand = static_cast<std::uint64_t>(digits);
            exponent = -scale;
            return true;
        }
    }
    return false;
}

bool operand_digits(double value, bool &negative, std::uint64_t &coefficient, int &exponent) {
    if (!operand_significand(value, negative, coefficient, exponent)) return false;
    while (exponent < 0 && coefficient % 10 == 0) {
        coefficient /= 10;
        ++exponent;
    }
    return true;
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
