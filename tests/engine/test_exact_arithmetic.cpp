// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The four operators on integers against the decimal road they replace, bit for bit: the
// operands into the decimal layer, its complex operation, the results back. Operands are
// drawn seeded over mixed magnitudes (in and beyond the range the integers take), a quarter
// of them short decimals so that ties are common, and pairs built to land on or next to a
// rounding boundary of the 15th digit. QUINDAR_DIFFERENTIAL_PAIRS sets the number of pairs
// per operator (a long run by hand: 100000000).
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>
#include <sstream>
#include <string>

#include "exact_arithmetic.h"
#include "mapm.h"
#include "mapm_complex.h"
#include "mathematics.h"

namespace quindar {
namespace {

using Operation = std::function<void(M_APM, M_APM, M_APM, M_APM, M_APM, M_APM)>;

// Today's road: every part into the decimal layer, the layer's operation, the parts back.
complex decimal_road(const complex &a, const complex &b, const Operation &operation) {
    MapmNumber ar, ai, br, bi, rr, ri;
    Mathematics::SetMapmValue(a.real, &ar);
    Mathematics::SetMapmValue(a.imag, &ai);
    Mathematics::SetMapmValue(b.real, &br);
    Mathematics::SetMapmValue(b.imag, &bi);
    m_apm_set_zero(&rr);
    m_apm_set_zero(&ri);
    operation(&rr, &ri, &ar, &ai, &br, &bi);
    return complex{static_cast<double>(Mathematics::GetMapmValue(&rr)),
                   static_cast<double>(Mathematics::GetMapmValue(&ri))};
}

struct Operator {
    const char *name;
    bool (*fast)(const complex &, const complex &, complex &);
    Operation road;
};

const Operator kOperators[] = {
    {"+", exact::complex_add,
     [](M_APM rr, M_APM ri, M_APM ar, M_APM ai, M_APM br, M_APM bi) {
         m_apmc_add(rr, ri, ar, ai, br, bi);
     }},
    {"-", exact::complex_sub,
     [](M_APM rr, M_APM ri, M_APM ar, M_APM ai, M_APM br, M_APM bi) {
         m_apmc_sub(rr, ri, ar, ai, br, bi);
     }},
    {"*", exact::complex_mult,
     [](M_APM rr, M_APM ri, M_APM ar, M_APM ai, M_APM br, M_APM bi) {
         m_apmc_mul(rr, ri, ar, ai, br, bi);
     }},
    {"/", exact::complex_div,
     [](M_APM rr, M_APM ri, M_APM ar, M_APM ai, M_APM br, M_APM bi) {
         m_apmc_div(rr, ri, 14, ar, ai, br, bi);
     }},
};

bool same_bits(double x, double y) {
    return std::memcmp(&x, &y, sizeof x) == 0;
}

// Today's road for a function of one real: the operand into the decimal layer with a zero
// imaginary part, the layer's operation, the parts back.
template <class Operation>
complex unary_road(double x, Operation operation) {
    MapmNumber ar, ai, rr, ri;
    Mathematics::SetMapmValue(x, &ar);
    Mathematics::SetMapmValue(0.0, &ai);
    m_apm_set_zero(&rr);
    m_apm_set_zero(&ri);
    operation(&rr, &ri, &ar, &ai);
    return complex{static_cast<double>(Mathematics::GetMapmValue(&rr)),
                   static_cast<double>(Mathematics::GetMapmValue(&ri))};
}

// Counts a result that differs from the road's in any bit; the first ten are shown.
void note_mismatch(const complex &fast, const complex &road, const std::string &what,
                   long &mismatches) {
    if (same_bits(fast.real, road.real) && same_bits(fast.imag, road.imag)) return;
    if (++mismatches > 10) return;
    std::ostringstream text;
    text << std::hexfloat << what << ": fast (" << fast.real << ", " << fast.imag << "), decimal ("
         << road.real << ", " << road.imag << ")";
    ADD_FAILURE() << text.str();
}

std::string hex(double x) {
    std::ostringstream text;
    text << std::hexfloat << x;
    return text.str();
}

long pairs_to_draw(long fallback) {
    const char *text = std::getenv("QUINDAR_DIFFERENTIAL_PAIRS");
    return text != nullptr && std::atol(text) > 0 ? std::atol(text) : fallback;
}

class Operands {
public:
    explicit Operands(std::uint64_t seed) : random(seed) {}

    // One part: a random double over 10^-12 .. 10^16, a short decimal, a 14-digit decimal,
    // or zero.
    double part() {
        const double sign = pick(2) == 0 ? 1.0 : -1.0;
        switch (pick(8)) {
            case 0:
            case 1:
                return sign * static_cast<double>(1 + pick(9999)) / std::pow(10.0, pick(7));
            case 2:
                return sign * fourteen_digits();
            case 3:
                return pick(4) == 0 ? (pick(2) == 0 ? 0.0 : -0.0)
                                    : sign * static_cast<double>(pick(100));
            default:
                return sign * std::pow(10.0, uniform(random) * 28.0 - 12.0);
        }
    }

    // A decimal of 14 digits at a random decade within the range the integers take.
    double fourteen_digits() {
        const auto digits = static_cast<double>(10000000000000ull + random() % 90000000000000ull);
        return digits * std::pow(10.0, pick(23) - 22);
    }

    complex value() { return pick(4) == 0 ? complex{part(), part()} : complex{part(), 0.0}; }

    // b so that a + b, a * b or a / b lands on or within a few units of the 16th digit of a
    // tie: a tiny addend of 5 (or 4.9.., 5.0..1) at the 16th digit, factors 5 * 10^k, and
    // divisors 2, 4, 8 times powers of ten.
    complex near_boundary(const complex &a) {
        const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(a.real) + 1e-300)));
        const double nudges[] = {5.0, 4.9999, 5.0001, 4.5, 0.5};
        const double nudge = nudges[pick(5)];
        switch (pick(3)) {
            case 0:
                return complex{nudge * std::pow(10.0, exponent - 15 + pick(3) - 1), 0.0};
            case 1:
                return complex{5.0 * std::pow(10.0, pick(9) - 4), 0.0};
            default:
                return complex{static_cast<double>(1 << pick(4)) * std::pow(10.0, pick(7) - 3),
                               0.0};
        }
    }

    int pick(int n) { return static_cast<int>(random() % static_cast<std::uint64_t>(n)); }

private:
    std::mt19937_64 random;
    std::uniform_real_distribution<double> uniform{0.0, 1.0};
};

class ExactArithmetic : public ::testing::TestWithParam<int> {};

TEST_P(ExactArithmetic, AgreesWithTheDecimalRoadBitForBit) {
    const Operator &op = kOperators[GetParam()];
    const long pairs = pairs_to_draw(1000000);
    Operands draw(20261123u + static_cast<std::uint64_t>(GetParam()));
    long decided = 0, mismatches = 0;
    for (long k = 0; k < pairs; ++k) {
        const complex a = draw.value();
        const complex b = draw.pick(4) == 0 ? draw.near_boundary(a) : draw.value();
        complex fast;
        if (!op.fast(a, b, fast)) continue;
        ++decided;
        note_mismatch(fast, decimal_road(a, b, op.road),
                      "(" + hex(a.real) + ", " + hex(a.imag) + ") " + op.name + " (" + hex(b.real) +
                          ", " + hex(b.imag) + ")",
                      mismatches);
    }
    EXPECT_EQ(mismatches, 0);
    // Most pairs lie where the integers decide; the rest took the decimal road.
    EXPECT_GT(decided, pairs / 3);
    RecordProperty("decided", std::to_string(decided));
    std::printf("%s: %ld of %ld pairs decided by integers, %ld mismatches\n", op.name, decided,
                pairs, mismatches);
}

INSTANTIATE_TEST_SUITE_P(Operators, ExactArithmetic, ::testing::Range(0, 4));

// Square roots of reals: random parts, perfect squares, and squares of 16-digit values
// ending in 5, whose roots lie exactly on a tie of the 15th digit.
TEST(ExactSquareRoot, AgreesWithTheDecimalRoadBitForBit) {
    const long draws = pairs_to_draw(1000000);
    Operands draw(777u);
    long decided = 0, mismatches = 0;
    for (long k = 0; k < draws; ++k) {
        double x = draw.part();
        if (draw.pick(4) == 0) {
            const double root =
                static_cast<double>(1 + draw.pick(9999999)) / std::pow(10.0, draw.pick(8));
            x = root * root;
        } else if (draw.pick(8) == 0) {
            const double root = (static_cast<double>(draw.pick(99999999)) + 0.5) * 1e-8;
            x = root * root;
        }
        complex fast;
        if (!exact::complex_sqrt({x, 0.0}, fast)) continue;
        ++decided;
        const complex road = unary_road(
            x, [](M_APM rr, M_APM ri, M_APM ar, M_APM ai) { m_apmc_sqrt(rr, ri, 14, ar, ai); });
        note_mismatch(fast, road, "SQRT " + hex(x), mismatches);
    }
    EXPECT_EQ(mismatches, 0);
    EXPECT_GT(decided, draws / 2);
    std::printf("SQRT: %ld of %ld values decided by integers, %ld mismatches\n", decided, draws,
                mismatches);
    complex root;
    EXPECT_FALSE(exact::complex_sqrt({4, 1}, root));
    ASSERT_TRUE(exact::complex_sqrt({-4, 0}, root));
    EXPECT_TRUE(same_bits(root.real, 0.0) && same_bits(root.imag, 2.0));
    ASSERT_TRUE(exact::complex_sqrt({2, -0.0}, root));
    EXPECT_EQ(root.real, 1.41421356237310);
}

// Cases by hand: the edges the Parts name and the boundaries of each rounding.
TEST(ExactArithmetic, CasesAtTheEdges) {
    struct Case {
        complex a, b;
        int op;
        complex expected;
    } cases[] = {
        {{0.1, 0}, {0.2, 0}, 0, {0.3, 0}},
        {{1e6, 0}, {2e-9, 0}, 0, {1e6, 0}},
        {{1e6, 0}, {5e-9, 0}, 0, {1000000.00000001, 0}},
        {{1, 0}, {3, 0}, 3, {0.333333333333333, 0}},
        {{2, 0}, {3, 0}, 3, {0.666666666666667, 0}},
        {{-2, 0}, {3, 0}, 3, {-0.666666666666667, 0}},
        {{0.33333333333333, 0}, {3, 0}, 2, {0.99999999999999, 0}},
        {{99999999999999, 0}, {0.5, 0}, 0, {99999999999999.5, 0}},
        {{99999999999999, 0}, {0.95, 0}, 0, {100000000000000, 0}},
        {{1, 2}, {3, -4}, 2, {11, 2}},
        {{5, 0}, {-5, 0}, 0, {0, 0}},
        {{-0.0, 0}, {-0.0, 0}, 0, {0, 0}},
        {{1, 1}, {2, 0}, 3, {0.5, 0.5}},
    };
    for (const auto &c : cases) {
        complex fast;
        ASSERT_TRUE(kOperators[c.op].fast(c.a, c.b, fast)) << c.a.real << kOperators[c.op].name;
        EXPECT_TRUE(same_bits(fast.real, c.expected.real) && same_bits(fast.imag, c.expected.imag))
            << c.a.real << " " << kOperators[c.op].name << " " << c.b.real << " gives " << fast.real
            << ", " << fast.imag;
        const complex road = decimal_road(c.a, c.b, kOperators[c.op].road);
        EXPECT_TRUE(same_bits(fast.real, road.real) && same_bits(fast.imag, road.imag));
    }
}

TEST(ExactArithmetic, LeavesWhatItCannotDecideToTheDecimalRoad) {
    complex result;
    EXPECT_FALSE(exact::complex_div({1, 0}, {0, 0}, result));     // division by zero
    EXPECT_FALSE(exact::complex_div({1, 0}, {1, 1}, result));     // a complex divisor
    EXPECT_FALSE(exact::complex_add({1e20, 0}, {1, 0}, result));  // beyond the digits
    EXPECT_FALSE(exact::complex_add({1e-12, 0}, {1, 0}, result));
    EXPECT_FALSE(exact::complex_mult({NAN, 0}, {1, 0}, result));
    EXPECT_FALSE(exact::complex_add({INFINITY, 0}, {1, 0}, result));
    // 15 digits down at 1e-18 are beyond the exact powers of ten of reading.
    EXPECT_FALSE(exact::complex_mult({1.23456789e-9, 0}, {1.23456789e-9, 0}, result));
    EXPECT_TRUE(exact::complex_mult({2e-9, 0}, {3e-9, 0}, result));
    EXPECT_EQ(result.real, 6e-18);
}

}  // namespace
}  // namespace quindar
