// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "exact_arithmetic.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "decimal_passage.h"

namespace quindar::exact {

namespace {

__extension__ typedef unsigned __int128 Wide;

constexpr int kOperandDigits = 14;
constexpr int kResultDigits = 15;
// The decades of the magnitudes an operand is written from digits: 1e-9 up to below 1e14.
constexpr int kLowestOperandDecade = -9;
constexpr int kHighestOperandDecade = 13;
// 10^38 is the last power of ten below 2^128.
constexpr int kWidestPower = 38;

struct Powers {
    Wide value[kWidestPower + 1];
    constexpr Powers() : value() {
        Wide power = 1;
        for (int k = 0; k <= kWidestPower; ++k, power *= 10) value[k] = power;
    }
};
constexpr Powers kPowers;

Wide power_of_ten(int k) {
    return kPowers.value[k];
}

// 10^k for k = 0 .. 19, the powers of ten a machine word holds.
struct WordPowers {
    std::uint64_t value[20];
    constexpr WordPowers() : value() {
        std::uint64_t power = 1;
        for (int k = 0; k < 20; ++k, power *= 10) value[k] = power;
    }
};
constexpr WordPowers kWordPowers;

// Decimal digits of n, at least 1. From the bit length b, t = b * log10(2) (1233 / 4096 lies
// just below it): n has t digits or, from 10^t on, t + 1.
int digit_count(std::uint64_t n) {
    const int t = (64 - __builtin_clzll(n | 1)) * 1233 >> 12;
    return std::max(t + (n >= kWordPowers.value[t] ? 1 : 0), 1);
}

int digit_count(Wide n) {
    const auto high = static_cast<std::uint64_t>(n >> 64);
    if (high == 0) return digit_count(static_cast<std::uint64_t>(n));
    const int t = (128 - __builtin_clzll(high)) * 1233 >> 12;
    return n >= kPowers.value[t] ? t + 1 : t;
}

// Division of a 128-bit value by a power of ten that fits 64 bits, in two machine divisions.
Wide divide_by(Wide n, std::uint64_t divisor, std::uint64_t &remainder) {
    const auto high = static_cast<std::uint64_t>(n >> 64);
    const auto low = static_cast<std::uint64_t>(n);
    if (high == 0) {
        remainder = low % divisor;
        return low / divisor;
    }
    // With high < divisor the quotient fits 64 bits and one machine division gives it.
    const std::uint64_t high_quotient = high < divisor ? 0 : high / divisor;
    std::uint64_t rest = high < divisor ? high : high % divisor;
    std::uint64_t low_quotient;
    // rest < divisor, so the quotient of rest * 2^64 + low fits 64 bits.
    __asm__("divq %[d]" : "=a"(low_quotient), "=d"(rest) : [d] "r"(divisor), "a"(low), "d"(rest));
    remainder = rest;
    return (static_cast<Wide>(high_quotient) << 64) | low_quotient;
}

// (-1)^negative * n * 10^exponent rounded to 15 significant digits, ties away from zero.
bool round_to_result(bool negative, Wide n, int exponent, Decimal &result) {
    if (n == 0) {
        result = Decimal{};
        return true;
    }
    int excess = digit_count(n) - kResultDigits;
    if (excess <= 0) {
        result = Decimal{negative, static_cast<std::uint64_t>(n), exponent};
        return true;
    }
    // Beyond 19 dropped digits the divisor would not fit 64 bits; 31 digits drop 16 at most.
    if (excess > 19) return false;
    const auto divisor = static_cast<std::uint64_t>(power_of_ten(excess));
    std::uint64_t dropped = 0;
    Wide kept = divide_by(n, divisor, dropped);
    if (dropped >= divisor - dropped) ++kept;  // 2 * dropped >= divisor: a tie goes away
    if (kept == power_of_ten(kResultDigits)) {
        kept = power_of_ten(kResultDigits - 1);
        ++excess;
    }
    result = Decimal{negative, static_cast<std::uint64_t>(kept), exponent + excess};
    return true;
}

// The coefficient scaled to exactly 14 digits, and the exponent of its last digit.
void normalise(const Decimal &x, Wide &coefficient, int &exponent) {
    const int shift = kOperandDigits - digit_count(x.coefficient);
    coefficient = static_cast<Wide>(x.coefficient) * power_of_ten(shift);
    exponent = x.exponent - shift;
}

// A signed sum of two exact values n * 10^e that fit 128 bits once aligned; false when
// they do not.
bool sum_to_result(bool negative_a, Wide a, int exponent_a, bool negative_b, Wide b, int exponent_b,
                   Decimal &result) {
    if (a == 0) return round_to_result(negative_b, b, exponent_b, result);
    if (b == 0) return round_to_result(negative_a, a, exponent_a, result);
    if (exponent_a < exponent_b) {
        std::swap(negative_a, negative_b);
        std::swap(a, b);
        std::swap(exponent_a, exponent_b);
    }
    const int shift = exponent_a - exponent_b;
    if (shift + digit_count(a) > kWidestPower) return false;
    a *= power_of_ten(shift);
    if (negative_a == negative_b) return round_to_result(negative_a, a + b, exponent_b, result);
    if (a >= b) return round_to_result(negative_a, a - b, exponent_b, result);
    return round_to_result(negative_b, b - a, exponent_b, result);
}

}  // namespace

bool operand(double value, Decimal &result) {
    if (value == 0) {
        // Zero, either sign, is a decimal zero.
        result = Decimal{};
        return true;
    }
    // A whole number of up to 14 digits is its own 14-digit form.
    const double magnitude = std::fabs(value);
    if (magnitude < 1e14 && magnitude == std::floor(magnitude)) {
        result = Decimal{std::signbit(value), static_cast<std::uint64_t>(magnitude), 0};
        return true;
    }
    return decimal_passage::operand_significand(value, result.negative, result.coefficient,
                                                result.exponent);
}

bool value_of(const Decimal &number, double &result) {
    long double wide = 0;
    Decimal x = number;
    // Reading divides by an exact power of ten up to 10^27; trailing zeros dropped may bring
    // a smaller value within that. (Either way the one rounding is that of the same ratio.)
    while (x.exponent < -27 && x.coefficient != 0 && x.coefficient % 10 == 0) {
        x.coefficient /= 10;
        ++x.exponent;
    }
    if (!decimal_passage::read_digits(x.negative, x.coefficient, x.exponent, wide)) return false;
    result = static_cast<double>(wide);
    return true;
}

bool operand_of_result(const Decimal &result, Decimal &operand) {
    if (result.coefficient == 0) {
        operand = Decimal{};
        return true;
    }
    const int digits = digit_count(result.coefficient);
    const int decade = digits - 1 + result.exponent;
    if (digits > kResultDigits || decade < kLowestOperandDecade || decade > kHighestOperandDecade)
        return false;
    if (digits <= kOperandDigits) {
        operand = result;
        return true;
    }
    // The double read from a 15-digit result lies within 2^-53 of it relatively, the nearest
    // boundary of a 14-digit rounding other than a tie at least 10^-15 away: both round alike.
    const std::uint64_t kept = result.coefficient / 10;
    const std::uint64_t dropped = result.coefficient % 10;
    if (dropped == 5) return false;
    operand = Decimal{result.negative, dropped > 5 ? kept + 1 : kept, result.exponent + 1};
    // A carry out of the 14th digit: the operators take at most 14 digits.
    if (operand.coefficient == static_cast<std::uint64_t>(power_of_ten(kOperandDigits))) {
        operand.coefficient /= 10;
        ++operand.exponent;
    }
    return true;
}

namespace {

// a + b, or a - b with `negate_b`, rounded once.
bool signed_sum(const Decimal &a, const Decimal &b, bool negate_b, Decimal &result) {
    const bool negative_b = b.negative != negate_b;
    if (a.coefficient == 0) return round_to_result(negative_b, b.coefficient, b.exponent, result);
    if (b.coefficient == 0) return round_to_result(a.negative, a.coefficient, a.exponent, result);
    Wide x, y;
    int ex, ey;
    normalise(a, x, ex);
    normalise(b, y, ey);
    // Leading digits 17 or more places apart: the smaller operand lies below half a unit
    // of the 15th digit of the larger, even where the difference drops below a power of
    // ten, and the larger (14 digits) is the result.
    if (ex - ey >= 17) return round_to_result(a.negative, x, ex, result);
    if (ey - ex >= 17) return round_to_result(negative_b, y, ey, result);
    return sum_to_result(a.negative, x, ex, negative_b, y, ey, result);
}

}  // namespace

bool add(const Decimal &a, const Decimal &b, Decimal &result) {
    return signed_sum(a, b, false, result);
}

bool subtract(const Decimal &a, const Decimal &b, Decimal &result) {
    return signed_sum(a, b, true, result);
}

bool multiply(const Decimal &a, const Decimal &b, Decimal &result) {
    const Wide product = static_cast<Wide>(a.coefficient) * b.coefficient;
    return round_to_result(a.negative != b.negative, product, a.exponent + b.exponent, result);
}

bool divide(const Decimal &a, const Decimal &b, Decimal &result) {
    if (b.coefficient == 0) return false;
    if (a.coefficient == 0) {
        result = Decimal{};
        return true;
    }
    Wide x, y;
    int ex, ey;
    normalise(a, x, ex);
    normalise(b, y, ey);
    // x * 10^17 / y has 17 or 18 digits: two or three to decide the rounding at 15, and
    // a tie needs no remainder since ties go away from zero.
    constexpr int kScale = 17;
    const Wide quotient = x * power_of_ten(kScale) / y;
    return round_to_result(a.negative != b.negative, quotient, ex - ey - kScale, result);
}

bool square_root(const Decimal &x, Decimal &result) {
    if (x.negative && x.coefficient != 0) return false;
    if (x.coefficient == 0) {
        result = Decimal{};
        return true;
    }
    Wide c;
    int e;
    normalise(x, c, e);
    // 31 or 32 digits with an even exponent: a root of 16 or 17 digits, one or two beyond
    // the 15 kept. The root is cut (the integer root); the rounding then sees the cut digits
    // as a root rounded down, which decides a tie away from zero the same way.
    const int scale = (e - 17) % 2 == 0 ? 17 : 18;
    const Wide radicand = c * power_of_ten(scale);
    auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<long double>(radicand)));
    while (static_cast<Wide>(root) * root > radicand) --root;
    while (static_cast<Wide>(root + 1) * (root + 1) <= radicand) ++root;
    return round_to_result(false, root, (e - scale) / 2, result);
}

bool complex_sqrt(const complex &z, complex &result) {
    Decimal x, root;
    if (z.imag != 0 || !operand(z.real, x)) return false;
    const bool negative = x.negative;
    x.negative = false;
    if (!square_root(x, root)) return false;
    double magnitude = 0;
    if (!value_of(root, magnitude)) return false;
    result = negative ? complex{0.0, magnitude} : complex{magnitude, 0.0};
    return true;
}

namespace {

bool operands(const complex &a, const complex &b, Decimal (&parts)[4]) {
    return operand(a.real, parts[0]) && operand(a.imag, parts[1]) && operand(b.real, parts[2]) &&
           operand(b.imag, parts[3]);
}

bool values(const Decimal &real, const Decimal &imag, complex &result) {
    return value_of(real, result.real) && value_of(imag, result.imag);
}

// x * y + (negate ? -1 : 1) * u * v, exactly, rounded once.
bool product_sum(const Decimal &x, const Decimal &y, bool negate, const Decimal &u,
                 const Decimal &v, Decimal &result) {
    return sum_to_result(x.negative != y.negative, static_cast<Wide>(x.coefficient) * y.coefficient,
                         x.exponent + y.exponent, (u.negative != v.negative) != negate,
                         static_cast<Wide>(u.coefficient) * v.coefficient, u.exponent + v.exponent,
                         result);
}

}  // namespace

bool complex_add(const complex &a, const complex &b, complex &result) {
    Decimal p[4], real, imag;
    return operands(a, b, p) && add(p[0], p[2], real) && add(p[1], p[3], imag) &&
           values(real, imag, result);
}

bool complex_sub(const complex &a, const complex &b, complex &result) {
    Decimal p[4], real, imag;
    return operands(a, b, p) && subtract(p[0], p[2], real) && subtract(p[1], p[3], imag) &&
           values(real, imag, result);
}

bool complex_mult(const complex &a, const complex &b, complex &result) {
    Decimal p[4], real, imag;
    return operands(a, b, p) && product_sum(p[0], p[2], true, p[1], p[3], real) &&
           product_sum(p[1], p[2], false, p[0], p[3], imag) && values(real, imag, result);
}

bool complex_div(const complex &a, const complex &b, complex &result) {
    Decimal p[4], real, imag;
    // A complex divisor takes the decimal road; a real one divides each part.
    return operands(a, b, p) && p[3].coefficient == 0 && divide(p[0], p[2], real) &&
           divide(p[1], p[2], imag) && values(real, imag, result);
}

}  // namespace quindar::exact
