// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The digit forms of the decimal passage against its text forms, bit for bit: operands
// rounded to 14 digits, and results read back from 15.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>

#include "decimal_passage.h"
#include "mapm.h"
#include "mathematics.h"

namespace quindar {
namespace {

bool same_decimal(const MapmNumber &a, const MapmNumber &b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

bool same_long_double(long double a, long double b) {
    // The ten bytes that hold an x87 value; the rest is padding.
    return std::memcmp(&a, &b, 10) == 0;
}

void expect_operand_as_text(double value) {
    MapmNumber by_digits, by_text;
    Mathematics::SetMapmValue(value, &by_digits);
    Mathematics::SetMapmValueByText(static_cast<long double>(value), &by_text);
    char text[kMapmTextSize];
    m_apm_to_string(text, 20, &by_text);
    EXPECT_TRUE(same_decimal(by_digits, by_text)) << std::hexfloat << value << " " << text;
}

TEST(DecimalPassage, OperandsRandomOverTheRangeOfDigits) {
    std::mt19937_64 random(1234567u);
    std::uniform_real_distribution<double> decade(-12.0, 16.0);
    std::uniform_int_distribution<std::uint64_t> bits;
    for (int k = 0; k < 200000; ++k) {
        // A random magnitude, then a random low end of the mantissa.
        double value = std::pow(10.0, decade(random));
        std::uint64_t pattern;
        std::memcpy(&pattern, &value, sizeof pattern);
        pattern ^= bits(random) & 0xFFFFFull;
        std::memcpy(&value, &pattern, sizeof value);
        expect_operand_as_text(k % 2 ? value : -value);
    }
}

TEST(DecimalPassage, OperandsAtTiesCarriesAndBounds) {
    const double table[] = {
        12345678901234.5,
        12345678901235.5,
        1234567890123.25,
        1234567890123.75,
        99999999999999.5,
        99999999999999.9,
        9999999999999.95,
        0.5,
        0.1,
        1.0 / 3.0,
        2.0 / 3.0,
        100.0,
        1e13,
        1e14,
        99999999999999.0,
        1e-9,
        1.0000000000000e-9,
        9.99999999999999e-10,
        123.456,
        0.05,
        7.0,
        1e-5,
        2.5e-7,
        -0.0,
        5e-324,
        1.7976931348623157e308,
        4503599627370496.5,
        0.30000000000000004,
    };
    for (double value : table) {
        expect_operand_as_text(value);
        expect_operand_as_text(-value);
        expect_operand_as_text(std::nextafter(value, 0.0));
        expect_operand_as_text(std::nextafter(value, 1e300));
    }
    // Every tie of a 15th digit among short integers and halves.
    for (std::int64_t n = 10000000000000; n < 10000000000000 + 2000; ++n)
        expect_operand_as_text(static_cast<double>(n) + 0.5);
}

TEST(DecimalPassage, ResultsReadBackAsTheirText) {
    std::mt19937_64 random(7654321u);
    std::uniform_int_distribution<std::uint64_t> digits(0, 9999999999999999999ull);
    std::uniform_int_distribution<int> exponent(-45, 45);
    for (int k = 0; k < 200000; ++k) {
        const std::string text = (k % 3 == 0 ? "-" : "") +
                                 std::to_string(digits(random) >> (k % 40)) + "E" +
                                 std::to_string(exponent(random));
        MapmNumber value;
        m_apm_set_string(&value, text.c_str());
        const long double by_digits = Mathematics::GetMapmValue(&value);
        const long double by_text = Mathematics::GetMapmValueByText(&value);
        EXPECT_TRUE(same_long_double(by_digits, by_text)) << text;
    }
}

TEST(DecimalPassage, ResultsOfOperationsReadBackAsTheirText) {
    std::mt19937_64 random(99u);
    std::uniform_real_distribution<double> decade(-20.0, 20.0);
    for (int k = 0; k < 50000; ++k) {
        MapmNumber a, b, quotient, product;
        Mathematics::SetMapmValue(std::pow(10.0, decade(random)), &a);
        Mathematics::SetMapmValue(-std::pow(10.0, decade(random)), &b);
        m_apm_divide(&quotient, 30, &a, &b);
        m_apm_multiply(&product, &a, &b);
        for (const MapmNumber *value : {&quotient, &product})
            EXPECT_TRUE(same_long_double(Mathematics::GetMapmValue(value),
                                         Mathematics::GetMapmValueByText(value)));
    }
}

TEST(DecimalPassage, DigitFormsDeclineWhatTheyCannotDoExactly) {
    bool negative = false;
    std::uint64_t coefficient = 0;
    int exponent = 0;
    for (double value : {0.0, 1e-10, 1e14, 1e300, double(INFINITY), double(NAN)})
        EXPECT_FALSE(decimal_passage::operand_digits(value, negative, coefficient, exponent))
            << value;
    ASSERT_TRUE(decimal_passage::operand_digits(-0.05, negative, coefficient, exponent));
    EXPECT_TRUE(negative);
    EXPECT_EQ(coefficient, 5u);
    EXPECT_EQ(exponent, -2);
    ASSERT_TRUE(decimal_passage::operand_digits(100, negative, coefficient, exponent));
    EXPECT_EQ(coefficient, 100u);
    EXPECT_EQ(exponent, 0);
    long double result = 0;
    EXPECT_FALSE(decimal_passage::read_digits(false, 5, -28, result));
    EXPECT_FALSE(decimal_passage::read_digits(false, 5, 20, result));
    ASSERT_TRUE(decimal_passage::read_digits(true, 15, -1, result));
    EXPECT_EQ(result, -1.5L);
}

}  // namespace
}  // namespace quindar
