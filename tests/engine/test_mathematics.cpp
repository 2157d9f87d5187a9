// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The real helpers and the operators' decimal round trip.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "evaluation_abort.h"
#include "mathematics.h"

namespace quindar {
namespace {

TEST(Helpers, RoundingAndTruncation) {
    EXPECT_EQ(Mathematics::round(2.5L), 3.0L);
    EXPECT_EQ(Mathematics::round(-2.5L), -3.0L);
    EXPECT_EQ(Mathematics::round(-0.4L), 0.0L);
    EXPECT_EQ(Mathematics::round(7.0L), 7.0L);
    EXPECT_EQ(Mathematics::trunc(-2.7L), -2.0L);
    EXPECT_EQ(Mathematics::sign(-3.0L), -1.0L);
    EXPECT_EQ(Mathematics::sign(0.0L), 0.0L);
    EXPECT_TRUE(Mathematics::is_integer(4.0L));
    EXPECT_FALSE(Mathematics::is_integer(4.5L));
    EXPECT_TRUE(Mathematics::is_even(4.0L));
    EXPECT_FALSE(Mathematics::is_even(3.0L));
    EXPECT_TRUE(Mathematics::are_equal(1.0L, 1.05L, 0.1L));
    EXPECT_FALSE(Mathematics::are_equal(1.0L, 1.2L, 0.1L));
}

TEST(Helpers, FmodCountsNearDivisorAsZero) {
    EXPECT_EQ(Mathematics::Fmod(7.0L, 3.0L), 1.0L);
    EXPECT_EQ(Mathematics::Fmod(-7.0L, 3.0L), -1.0L);
    // A remainder within 1e-307 of the divisor is 0.
    EXPECT_EQ(Mathematics::Fmod(2e-310L, 3e-310L), 0.0L);
}

TEST(Helpers, RoundZeroByParts) {
    complex z{1e-9, 5};
    Mathematics::round_zero(z, 1e-8L);
    EXPECT_EQ(z.real, 0.0);
    EXPECT_EQ(z.imag, 5.0);
    long double x = -1e-20L;
    EXPECT_EQ(Mathematics::round_zero(x, 1e-14L), 0.0L);
}

TEST(Helpers, PlainNumberTexts) {
    const struct {
        const char *text;
        bool number;
    } table[] = {
        {"12", true},   {"-1.5", true}, {"2i", true},   {"1-2i", true}, {" +3 ", true},
        {"3+4i", true}, {"1-2", false}, {"x", false},   {"i2", false},  {"1e5", false},
        {"2*3", false}, {"(2)", false}, {"--5", false}, {"5 i", true},
    };
    for (const auto &c : table) EXPECT_EQ(Mathematics::is_number(c.text), c.number) << c.text;
}

TEST(Helpers, BaseConversionGcdLcm) {
    char text[65];
    Mathematics::basecon(255, 16, text);
    EXPECT_STREQ(text, "FF");
    Mathematics::basecon(5, 2, text);
    EXPECT_STREQ(text, "101");
    Mathematics::basecon(0, 8, text);
    EXPECT_STREQ(text, "0");
    Mathematics::basecon(2147483647.0L, 2, text);
    EXPECT_STREQ(text, "1111111111111111111111111111111");
    EXPECT_EQ(Mathematics::gcd(12, 18), 6.0L);
    EXPECT_EQ(Mathematics::gcd(7, 0), 7.0L);
    EXPECT_EQ(Mathematics::lcm(4, 6), 12.0L);
    EXPECT_EQ(Mathematics::lcm(0, 0), 0.0L);
}

TEST(Helpers, PrintingPrecision) {
    Mathematics math;
    EXPECT_EQ(math.precision(0.0L), 0);
    EXPECT_EQ(math.precision(5.0L), 1);
    EXPECT_EQ(math.precision(1234.0L), 4);
    EXPECT_EQ(math.precision(0.5L), 1);
    EXPECT_EQ(math.precision(0.25L), 2);
    EXPECT_EQ(math.precision(12.125L), 5);
}

TEST(Helpers, VectorsAndMatricesIndexedByTheirBounds) {
    Mathematics math;
    long double *v = math.vector(1, 5);
    ASSERT_NE(v, nullptr);
    for (long k = 1; k <= 5; ++k) v[k] = static_cast<long double>(k * k);
    EXPECT_EQ(v[5], 25.0L);
    Mathematics::free_vector(v, 1, 5);
    long double **m = math.matrix(1, 3, 1, 4);
    ASSERT_NE(m, nullptr);
    for (long r = 1; r <= 3; ++r)
        for (long c = 1; c <= 4; ++c) m[r][c] = static_cast<long double>(10 * r + c);
    EXPECT_EQ(m[3][4], 34.0L);
    EXPECT_EQ(m[1][1], 11.0L);
    Mathematics::free_matrix(m, 1, 3, 1, 4);
    EXPECT_EQ(math.vector(5, 1), nullptr);
    EXPECT_STREQ(math.GetLastError(), "Vector Memory Allocation Failure!");
    EXPECT_EQ(math.matrix(2, 1, 1, 1), nullptr);
    EXPECT_STREQ(math.GetLastError(), "Matrix Memory Allocation Failure!");
}

TEST(RoundTrip, ResultsCarryFifteenDigits) {
    Mathematics math;
    EXPECT_EQ(math.complex_add({0.1, 0}, {0.2, 0}).real, 0.3);
    EXPECT_EQ(math.complex_add({1, 0}, {1e-15, 0}).real, 1.0);
    EXPECT_EQ(math.complex_mult({1.0 / 3.0, 0}, {3, 0}).real, 0.99999999999999);
    EXPECT_EQ(math.complex_div({1, 0}, {3, 0}).real, 0.333333333333333);
    EXPECT_EQ(math.real_add(0.1L, 0.2L), 0.3L);
    EXPECT_EQ(math.real_sub(1.0L, 0.9L), 0.1L);
    EXPECT_EQ(math.real_mult(1.1L, 1.1L), 1.21L);
    EXPECT_EQ(math.real_div(1.0L, 8.0L), 0.125L);
    EXPECT_EQ(math.real_abs(-2.5L), 2.5L);
    const complex product = math.complex_mult({1, 2}, {3, -1});
    EXPECT_EQ(product.real, 5.0);
    EXPECT_EQ(product.imag, 5.0);
}

TEST(RoundTrip, ModulusFollowsTheDividendsSign) {
    Mathematics math;
    EXPECT_EQ(math.modulus({7, 0}, {-3, 0}).real, 1.0);
    EXPECT_EQ(math.modulus({-7, 0}, {3, 0}).real, -1.0);
}

TEST(RoundTrip, DivisionByZeroOutsideAnEvaluationIsRecordedOnly) {
    Mathematics math;
    const complex q = math.complex_div({1, 0}, {0, 0});
    EXPECT_TRUE(math.IsAnError());
    EXPECT_STREQ(math.GetLastError(), "Division By Zero Encountered!");
    EXPECT_EQ(q.real, 0.0);
    math.ClearLastError();
    math.real_div(1.0L, 1e-308L);  // tiny but not zero: still a division by zero
    EXPECT_TRUE(math.IsAnError());
    EXPECT_TRUE(math.mapm_free);
}

TEST(RoundTrip, DivisionByZeroWhileSolvingReturnsZero) {
    Mathematics math;
    math.solving_map = true;
    const complex q = math.complex_div({5, 1}, {0, 0});
    EXPECT_TRUE(math.IsAnError());
    EXPECT_EQ(q.real, 0.0);
    EXPECT_EQ(q.imag, 0.0);
}

}  // namespace
}  // namespace quindar
