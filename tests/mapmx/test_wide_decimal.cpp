// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Exact decimals of any length, which carry the complex functions' intermediates: exact
// sums and products, and roundings at any places, ties away from zero, checked against
// exact integer arithmetic and a high-precision binary reference.
#include "wide_decimal.h"

#include <gtest/gtest.h>

#include <string>

#include "exact_decimal.h"
#include "mapm_test_values.h"

namespace quindar {
namespace {

using testing::ExactDecimal;
using testing::Sampler;
using testing::text_of;
using wide::WideDecimal;

std::string stored(const WideDecimal &value, int places) {
    MapmNumber result;
    value.store(&result);
    return text_of(result, places);
}

struct RoundingCase {
    const char *coefficient;
    long scale;
    int places;
    const char *expected;  // stored and written at `places`
};

TEST(WideDecimal, RoundsTiesAwayFromZero) {
    const RoundingCase cases[] = {
        {"125", -2, 1, "1.3E+0"},
        {"-125", -2, 1, "-1.3E+0"},
        {"124999", -5, 1, "1.2E+0"},
        {"-124999", -5, 1, "-1.2E+0"},
        {"999", 0, 1, "1.0E+3"},
        {"15", -1, 0, "2E+0"},
        {"25", -1, 0, "3E+0"},
        {"5", 0, 0, "5E+0"},
        {"100000000000000050000000000000000000000001", -41, 15, "1.000000000000001E+0"},
        {"100000000000000049999999999999999999999999", -41, 15, "1.000000000000000E+0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(stored(WideDecimal(c.coefficient, c.scale).rounded(c.places), c.places),
                  c.expected)
            << c.coefficient << "e" << c.scale << " at " << c.places;
    }
}

struct ExponentCase {
    const char *coefficient;
    long scale;
    long digits;
    long exponent;
};

TEST(WideDecimal, CountsDigitsAndTheExponentOfTheFirstOne) {
    const ExponentCase cases[] = {
        {"1", 0, 1, 0},
        {"999", -5, 3, -3},
        {"1000", 0, 4, 3},
        {"-10", 2, 2, 3},
        {"0", 7, 1, 0},
        {"99999999999999999999", 0, 20, 19},
        {"100000000000000000000", -20, 21, 0},
    };
    for (const auto &c : cases) {
        const WideDecimal value(c.coefficient, c.scale);
        EXPECT_EQ(value.digits(), c.digits) << c.coefficient;
        EXPECT_EQ(value.exponent(), c.exponent) << c.coefficient;
    }
}

struct StoreCase {
    const char *coefficient;
    long scale;
    const char *expected;  // at 33 places
};

TEST(WideDecimal, StoresCutTowardsZeroAndSaturates) {
    const StoreCase cases[] = {
        {"12345678901234567890123456789012345", 0, "1.234567890123456789012345678901234E+34"},
        {"-12345678901234567890123456789012349", -40, "-1.234567890123456789012345678901234E-6"},
        {"1", 7000, "inf"},
        {"-1", 7000, "-inf"},
        {"1", -7000, "0.000000000000000000000000000000000E+0"},
        {"0", 0, "0.000000000000000000000000000000000E+0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(stored(WideDecimal(c.coefficient, c.scale), kMapmMaxPlaces), c.expected)
            << c.coefficient << "e" << c.scale;
    }
}

TEST(WideDecimal, SumsAndProductsAreExactAtAnyLength) {
    const WideDecimal big("1", 30), small("1", -30), third("3333333333333333333333", -22);
    const WideDecimal sum = big + small;
    EXPECT_EQ(sum.digits(), 61);
    EXPECT_EQ(compare(sum - big, small), 0);
    EXPECT_EQ(compare((sum * sum) - big * big - small * small, big * small + big * small), 0);
    EXPECT_EQ(compare(third * WideDecimal(3L), WideDecimal("9999999999999999999999", -22)), 0);
    EXPECT_EQ(compare(big, small), 1);
    EXPECT_EQ(compare(small.negated(), small), -1);
    EXPECT_EQ((big - big).sign(), 0);
}

struct TruncationCase {
    const char *coefficient;
    long scale;
    const char *expected;
};

TEST(WideDecimal, TruncatesTowardsZero) {
    const TruncationCase cases[] = {
        {"79", -1, "7.0E+0"}, {"-79", -1, "-7.0E+0"}, {"5", -1, "0.0E+0"},
        {"1", 40, "1.0E+40"}, {"-12", 0, "-1.2E+1"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(stored(WideDecimal(c.coefficient, c.scale).truncated(), 1), c.expected)
            << c.coefficient << "e" << c.scale;
    }
}

TEST(WideDecimal, QuotientsMatchExactDivision) {
    Sampler sampler(17);
    for (int n = 0; n < 3000; ++n) {
        const std::string a = sampler.magnitude(-40, 40, true);
        const std::string b = sampler.magnitude(-40, 40, true);
        const int places = n % 2 == 0 ? 14 : 30;
        const MapmNumber x = testing::from(a), y = testing::from(b);
        const WideDecimal q = WideDecimal::quotient(WideDecimal(&x), WideDecimal(&y), places);
        ASSERT_EQ(stored(q, places), ExactDecimal::divide_to_scientific(
                                         ExactDecimal::parse(a), ExactDecimal::parse(b), places))
            << a << " / " << b << " at " << places;
    }
}

struct RootCase {
    const char *coefficient;
    long scale;
    int places;
    const char *expected;
};

TEST(WideDecimal, SquareRootsRoundExactTiesAwayFromZero) {
    // 1.0000000000000005^2 = 1.00000000000000100000000000000025 exactly.
    const RootCase cases[] = {
        {"100000000000000100000000000000025", -32, 15, "1.000000000000001E+0"},
        {"100000000000000100000000000000024", -32, 15, "1.000000000000000E+0"},
        {"100000000000000100000000000000025", -32, 16, "1.0000000000000005E+0"},
        {"4", 0, 14, "2.00000000000000E+0"},
        {"2", 0, 14, "1.41421356237310E+0"},
        {"1", -60, 3, "1.000E-30"},
        {"-4", 0, 14, "0.00000000000000E+0"},
        {"0", 0, 14, "0.00000000000000E+0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(stored(WideDecimal::square_root(WideDecimal(c.coefficient, c.scale), c.places),
                         c.places),
                  c.expected)
            << c.coefficient << "e" << c.scale << " at " << c.places;
    }
}

TEST(WideDecimal, SquareRootsMatchABinaryReference) {
    Sampler sampler(23);
    mpfr_t value;
    mpfr_init2(value, 400);
    for (int n = 0; n < 3000; ++n) {
        const std::string a = sampler.magnitude(-300, 300, false);
        const MapmNumber x = testing::from(a);
        mpfr_set_str(value, a.c_str(), 10, MPFR_RNDN);
        mpfr_sqrt(value, value, MPFR_RNDN);
        ASSERT_EQ(stored(WideDecimal::square_root(WideDecimal(&x), 30), 30),
                  testing::rounded_text(value, 30))
            << "sqrt " << a;
    }
    mpfr_clear(value);
}

}  // namespace
}  // namespace quindar
