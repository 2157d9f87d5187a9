// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm.h"

#include <gtest/gtest.h>

#include <string>

namespace quindar {
namespace {

std::string text_of(const MapmNumber &value, int places = 14) {
    char text[kMapmTextSize];
    m_apm_to_string(text, places, &value);
    return text;
}

MapmNumber from(const char *text) {
    MapmNumber value;
    m_apm_set_string(&value, text);
    return value;
}

struct TextCase {
    const char *input;
    int places;
    const char *expected;
};

TEST(MapmText, WritesScientificWithPlacesRoundedTiesAway) {
    const TextCase cases[] = {
        {"0.3", 14, "3.00000000000000E-1"},
        {"0", 14, "0.00000000000000E+0"},
        {"-0", 14, "0.00000000000000E+0"},
        {"-100", 14, "-1.00000000000000E+2"},
        {"1.000000000000005", 14, "1.00000000000001E+0"},
        {"-1.000000000000005", 14, "-1.00000000000001E+0"},
        {"1.0000000000000049999", 14, "1.00000000000000E+0"},
        {"9.999999999999995", 14, "1.00000000000000E+1"},
        {"2.5", 0, "3E+0"},
        {"1.2345678901234e-05", 14, "1.23456789012340E-5"},
        {"123456", 2, "1.23E+5"},
        {"1e-307", 14, "1.00000000000000E-307"},
        {"inf", 14, "inf"},
        {"-inf", 14, "-inf"},
        {"nan", 14, "nan"},
        {"garbage", 14, "0.00000000000000E+0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(text_of(from(c.input), c.places), c.expected) << c.input;
    }
}

TEST(MapmArithmetic, AddSubtractMultiplyAreExactForShortOperands) {
    MapmNumber a = from("0.1"), b = from("0.2"), r;
    m_apm_add(&r, &a, &b);
    EXPECT_EQ(text_of(r, 20), "3.00000000000000000000E-1");
    a = from("1"), b = from("1e-15");
    m_apm_add(&r, &a, &b);
    EXPECT_EQ(text_of(r, 15), "1.000000000000001E+0");
    EXPECT_EQ(text_of(r, 14), "1.00000000000000E+0");
    a = from("12345678901234"), b = from("98765432109876");
    m_apm_multiply(&r, &a, &b);
    EXPECT_EQ(text_of(r, 27), "1.219326311370155158039986984E+27");
    m_apm_subtract(&r, &a, &a);
    EXPECT_EQ(m_apm_sign(&r), 0);
}

TEST(MapmArithmetic, DivideRoundsToPlaces) {
    MapmNumber one = from("1"), three = from("3"), two = from("-2"), r;
    m_apm_divide(&r, 14, &one, &three);
    EXPECT_EQ(text_of(r, 20), "3.33333333333333000000E-1");
    m_apm_divide(&r, 14, &two, &three);
    EXPECT_EQ(text_of(r, 20), "-6.66666666666667000000E-1");
    MapmNumber eight = from("8");
    m_apm_divide(&r, 1, &one, &eight);  // 0.125 is a tie at two digits
    EXPECT_EQ(text_of(r, 5), "1.30000E-1");
}

TEST(MapmArithmetic, CompareSignExponentAndIntegers) {
    MapmNumber a = from("2"), b = from("10"), c = from("-0.05"), z = from("0");
    EXPECT_EQ(m_apm_compare(&a, &b), -1);
    EXPECT_EQ(m_apm_compare(&b, &a), 1);
    EXPECT_EQ(m_apm_compare(&a, &a), 0);
    EXPECT_EQ(m_apm_sign(&c), -1);
    EXPECT_EQ(m_apm_sign(&z), 0);
    EXPECT_EQ(m_apm_exponent(&b), 1);
    EXPECT_EQ(m_apm_exponent(&c), -2);
    EXPECT_TRUE(m_apm_is_integer(&b));
    EXPECT_FALSE(m_apm_is_integer(&c));
    MapmNumber abs;
    m_apm_absolute_value(&abs, &c);
    EXPECT_EQ(text_of(abs, 2), "5.00E-2");
    m_apm_negate(&abs, &z);
    EXPECT_EQ(m_apm_sign(&abs), 0);
}

TEST(MapmArithmetic, IntegerDivisionTruncatesTowardsZero) {
    struct Case {
        const char *a, *b, *quotient, *remainder;
    };
    const Case cases[] = {
        {"7", "-3", "-2.0E+0", "1.0E+0"},
        {"-7", "3", "-2.0E+0", "-1.0E+0"},
        {"7.5", "1", "7.0E+0", "5.0E-1"},
        {"-0.5", "1", "0.0E+0", "-5.0E-1"},
    };
    for (const auto &c : cases) {
        MapmNumber a = from(c.a), b = from(c.b), q, r;
        m_apm_integer_div_rem(&q, &r, &a, &b);
        EXPECT_EQ(text_of(q, 1), c.quotient) << c.a << " / " << c.b;
        EXPECT_EQ(text_of(r, 1), c.remainder) << c.a << " / " << c.b;
    }
}

TEST(MapmArithmetic, FactorialIsExactThenCut) {
    MapmNumber n = from("20"), r;
    m_apm_factorial(&r, &n);
    EXPECT_EQ(text_of(r, 18), "2.432902008176640000E+18");
    n = from("0");
    m_apm_factorial(&r, &n);
    EXPECT_EQ(text_of(r, 0), "1E+0");
    n = from("170");
    m_apm_factorial(&r, &n);
    EXPECT_EQ(text_of(r, 14), "7.25741561530800E+306");
    for (const char *huge : {"5000", "1e20", "1e300"}) {
        n = from(huge);
        m_apm_factorial(&r, &n);
        EXPECT_EQ(text_of(r, 14), "inf") << huge;
    }
}

TEST(MapmValues, InitGivesZeroAndCopyKeepsValue) {
    M_APM value = m_apm_init();
    EXPECT_EQ(text_of(*value, 3), "0.000E+0");
    MapmNumber source = from("-12.5");
    m_apm_copy(value, &source);
    EXPECT_EQ(text_of(*value, 2), "-1.25E+1");
    m_apm_set_long(value, -42);
    EXPECT_EQ(text_of(*value, 1), "-4.2E+1");
    m_apm_free(value);
}

}  // namespace
}  // namespace quindar
