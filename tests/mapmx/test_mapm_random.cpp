// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The decimal layer against exact integer arithmetic, on random operands of at most 14
// significant digits (what the engine feeds it) over a wide range of magnitudes.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "exact_decimal.h"
#include "mapm.h"
#include "mapm_complex.h"

namespace quindar {
namespace {

using testing::ExactDecimal;

constexpr int kPairs = 100000;
constexpr int kPlaces = 14;

class RandomOperands {
public:
    explicit RandomOperands(unsigned seed) : engine_(seed) {}

    // "d.ddddE±x" with 1 to 14 digits, or 0 now and then.
    std::string next() {
        if (pick(0, 60) == 0) return "0";
        const int digits = pick(1, 14);
        std::string text = pick(0, 1) ? "-" : "";
        text += static_cast<char>('0' + pick(1, 9));
        if (digits > 1) {
            text += '.';
            for (int i = 1; i < digits; ++i) text += static_cast<char>('0' + pick(0, 9));
        }
        // Mostly near each other, sometimes far apart, so sums need many digits.
        const int exponent = pick(0, 3) == 0 ? pick(-300, 300) : pick(-20, 20);
        text += "E" + std::to_string(exponent);
        return text;
    }

private:
    int pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
    std::mt19937_64 engine_;
};

std::string layer_text(const MapmNumber &value) {
    char text[kMapmTextSize];
    m_apm_to_string(text, kPlaces, &value);
    return text;
}

MapmNumber layer_value(const std::string &text) {
    MapmNumber value;
    m_apm_set_string(&value, text.c_str());
    return value;
}

TEST(MapmRandom, RealOperationsMatchExactArithmetic) {
    RandomOperands operands(20261123);
    int mismatches = 0;
    for (int n = 0; n < kPairs; ++n) {
        const std::string a_text = operands.next(), b_text = operands.next();
        const MapmNumber a = layer_value(a_text), b = layer_value(b_text);
        const ExactDecimal x = ExactDecimal::parse(a_text), y = ExactDecimal::parse(b_text);
        MapmNumber r;
        m_apm_add(&r, &a, &b);
        const std::string sum = ExactDecimal::add(x, y).to_scientific(kPlaces);
        mismatches += layer_text(r) != sum;
        EXPECT_EQ(layer_text(r), sum) << a_text << " + " << b_text;
        m_apm_subtract(&r, &a, &b);
        const std::string difference = ExactDecimal::subtract(x, y).to_scientific(kPlaces);
        EXPECT_EQ(layer_text(r), difference) << a_text << " - " << b_text;
        mismatches += layer_text(r) != difference;
        m_apm_multiply(&r, &a, &b);
        const std::string product = ExactDecimal::multiply(x, y).to_scientific(kPlaces);
        EXPECT_EQ(layer_text(r), product) << a_text << " * " << b_text;
        mismatches += layer_text(r) != product;
        if (!y.is_zero()) {
            m_apm_divide(&r, kPlaces, &a, &b);
            const std::string quotient = ExactDecimal::divide_to_scientific(x, y, kPlaces);
            EXPECT_EQ(layer_text(r), quotient) << a_text << " / " << b_text;
            mismatches += layer_text(r) != quotient;
        }
        if (mismatches > 20) FAIL() << "too many mismatches";
    }
}

TEST(MapmRandom, ComplexOperationsMatchExactArithmetic) {
    RandomOperands operands(7);
    for (int n = 0; n < kPairs / 4; ++n) {
        std::string t[4];
        MapmNumber v[4];
        ExactDecimal e[4];
        for (int k = 0; k < 4; ++k) {
            t[k] = operands.next();
            v[k] = layer_value(t[k]);
            e[k] = ExactDecimal::parse(t[k]);
        }
        const std::string operands_text =
            "(" + t[0] + "," + t[1] + ") op (" + t[2] + "," + t[3] + ")";
        MapmNumber rr, ri;
        m_apmc_mul(&rr, &ri, &v[0], &v[1], &v[2], &v[3]);
        const ExactDecimal real = ExactDecimal::subtract(ExactDecimal::multiply(e[0], e[2]),
                                                         ExactDecimal::multiply(e[1], e[3]));
        const ExactDecimal imag = ExactDecimal::add(ExactDecimal::multiply(e[1], e[2]),
                                                    ExactDecimal::multiply(e[0], e[3]));
        ASSERT_EQ(layer_text(rr), real.to_scientific(kPlaces)) << operands_text;
        ASSERT_EQ(layer_text(ri), imag.to_scientific(kPlaces)) << operands_text;

        const ExactDecimal denominator = ExactDecimal::add(ExactDecimal::multiply(e[2], e[2]),
                                                           ExactDecimal::multiply(e[3], e[3]));
        const int status = m_apmc_div(&rr, &ri, kPlaces, &v[0], &v[1], &v[2], &v[3]);
        if (denominator.is_zero()) {
            ASSERT_EQ(status, -1);
            continue;
        }
        ASSERT_EQ(status, 0);
        const ExactDecimal real_numerator = ExactDecimal::add(ExactDecimal::multiply(e[0], e[2]),
                                                              ExactDecimal::multiply(e[1], e[3]));
        const ExactDecimal imag_numerator = ExactDecimal::subtract(
            ExactDecimal::multiply(e[2], e[1]), ExactDecimal::multiply(e[3], e[0]));
        ASSERT_EQ(layer_text(rr),
                  ExactDecimal::divide_to_scientific(real_numerator, denominator, kPlaces))
            << operands_text;
        ASSERT_EQ(layer_text(ri),
                  ExactDecimal::divide_to_scientific(imag_numerator, denominator, kPlaces))
            << operands_text;
    }
}

}  // namespace
}  // namespace quindar
