// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The operators' decimal round trip against an independent exact computation: operands
// written by printf at 14 significant digits, the operation on exact integers, the
// result rounded to 15 digits ties away from zero, read by strtold and narrowed.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "exact_decimal.h"
#include "mathematics.h"

namespace quindar {
namespace {

using testing::ExactDecimal;

constexpr int kPairs = 100000;

std::string operand_text(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.14Lg", static_cast<long double>(value));
    return text;
}

double read_back(const std::string &text) {
    return static_cast<double>(std::strtold(text.c_str(), nullptr));
}

// Doubles over a wide range of magnitudes, both signs, with full binary mantissas.
class RandomDoubles {
public:
    explicit RandomDoubles(unsigned seed) : engine_(seed) {}
    double next() {
        const int exponent = std::uniform_int_distribution<int>(-120, 120)(engine_);
        const double mantissa = std::uniform_real_distribution<double>(1.0, 10.0)(engine_);
        const double sign = std::uniform_int_distribution<int>(0, 1)(engine_) ? -1.0 : 1.0;
        if (std::uniform_int_distribution<int>(0, 50)(engine_) == 0) return 0.0;
        // Now and then a short decimal, where ties and exact results are common.
        if (std::uniform_int_distribution<int>(0, 3)(engine_) == 0)
            return sign * std::uniform_int_distribution<int>(1, 9999)(engine_) *
                   std::pow(10.0, std::uniform_int_distribution<int>(-6, 6)(engine_));
        return sign * mantissa * std::pow(10.0, exponent);
    }

private:
    std::mt19937_64 engine_;
};

TEST(RoundTripRandom, EveryOperatorMatchesExactDecimalArithmetic) {
    std::setlocale(LC_NUMERIC, "C");
    RandomDoubles random(20261123);
    Mathematics math;
    int mismatches = 0;
    for (int n = 0; n < kPairs && mismatches < 10; ++n) {
        const double a = random.next(), b = random.next();
        const ExactDecimal x = ExactDecimal::parse(operand_text(a));
        const ExactDecimal y = ExactDecimal::parse(operand_text(b));
        const double sum = read_back(ExactDecimal::add(x, y).to_scientific(14));
        const double difference = read_back(ExactDecimal::subtract(x, y).to_scientific(14));
        const double product = read_back(ExactDecimal::multiply(x, y).to_scientific(14));
        const std::string where = operand_text(a) + " and " + operand_text(b);
        const double engine_sum = math.complex_add({a, 0}, {b, 0}).real;
        mismatches += engine_sum != sum;
        EXPECT_EQ(engine_sum, sum) << where;
        EXPECT_EQ(math.complex_sub({a, 0}, {b, 0}).real, difference) << where;
        EXPECT_EQ(math.complex_mult({a, 0}, {b, 0}).real, product) << where;
        EXPECT_EQ(static_cast<double>(math.real_add(a, b)), sum) << where;
        if (!y.is_zero()) {
            const double quotient = read_back(ExactDecimal::divide_to_scientific(x, y, 14));
            EXPECT_EQ(math.complex_div({a, 0}, {b, 0}).real, quotient) << where;
            EXPECT_EQ(static_cast<double>(math.real_div(a, b)), quotient) << where;
        }
    }
}

TEST(RoundTripRandom, ComplexProductsAndQuotientsMatchExactArithmetic) {
    RandomDoubles random(99);
    Mathematics math;
    for (int n = 0; n < kPairs / 10; ++n) {
        const complex a{random.next(), random.next()}, b{random.next(), random.next()};
        const ExactDecimal ar = ExactDecimal::parse(operand_text(a.real)),
                           ai = ExactDecimal::parse(operand_text(a.imag)),
                           br = ExactDecimal::parse(operand_text(b.real)),
                           bi = ExactDecimal::parse(operand_text(b.imag));
        const complex product = math.complex_mult(a, b);
        ASSERT_EQ(product.real, read_back(ExactDecimal::subtract(ExactDecimal::multiply(ar, br),
                                                                 ExactDecimal::multiply(ai, bi))
                                              .to_scientific(14)));
        ASSERT_EQ(product.imag, read_back(ExactDecimal::add(ExactDecimal::multiply(ai, br),
                                                            ExactDecimal::multiply(ar, bi))
                                              .to_scientific(14)));
        const ExactDecimal denominator =
            ExactDecimal::add(ExactDecimal::multiply(br, br), ExactDecimal::multiply(bi, bi));
        if (denominator.is_zero()) continue;
        const complex quotient = math.complex_div(a, b);
        const ExactDecimal real_part =
            ExactDecimal::add(ExactDecimal::multiply(ar, br), ExactDecimal::multiply(ai, bi));
        const ExactDecimal imag_part =
            ExactDecimal::subtract(ExactDecimal::multiply(br, ai), ExactDecimal::multiply(bi, ar));
        ASSERT_EQ(quotient.real,
                  read_back(ExactDecimal::divide_to_scientific(real_part, denominator, 14)));
        ASSERT_EQ(quotient.imag,
                  read_back(ExactDecimal::divide_to_scientific(imag_part, denominator, 14)));
    }
}

}  // namespace
}  // namespace quindar
