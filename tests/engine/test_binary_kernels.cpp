// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The integer kernels against 320-bit MPFR: every value must lie within the bound the kernel
// states for it (a bound too tight would let a rounding be decided wrongly), and the bound
// must stay near the 2^-110 the comments derive (one too wide would leave most values to the
// slow roads). Operands are seeded decimals of 14 digits over the kernels' ranges.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>
#include <cstdint>
#include <random>

#include "binary_kernels.h"
#include "degree_reduction.h"
#include "mpfr_value.h"

namespace quindar::exact {
namespace {

constexpr mpfr_prec_t kReferenceBits = 320;
constexpr int kDraws = 100000;

class Real : public MpfrValue {
public:
    Real() : MpfrValue(kReferenceBits) {}
};

// The binary value exactly, in MPFR.
void load(const Binary &x, mpfr_ptr out) {
    mpfr_set_ui(out, static_cast<unsigned long>(x.mantissa >> 64), MPFR_RNDN);
    mpfr_mul_2ui(out, out, 64, MPFR_RNDN);
    mpfr_add_ui(out, out, static_cast<unsigned long>(x.mantissa), MPFR_RNDN);
    mpfr_mul_2si(out, out, x.exponent, MPFR_RNDN);
    if (x.negative) mpfr_neg(out, out, MPFR_RNDN);
}

// n * 10^exponent exactly enough (320 bits).
void load_decimal(std::uint64_t n, int exponent, mpfr_ptr out) {
    Real power;
    mpfr_set_ui(power.get(), 10, MPFR_RNDN);
    mpfr_pow_si(power.get(), power.get(), exponent, MPFR_RNDN);
    mpfr_set_ui(out, static_cast<unsigned long>(n), MPFR_RNDN);
    mpfr_mul(out, out, power.get(), MPFR_RNDN);
}

// |computed - exact| / |exact|, as a double.
double relative_error(const Binary &computed, mpfr_ptr exact) {
    Real value, difference;
    load(computed, value.get());
    mpfr_sub(difference.get(), value.get(), exact, MPFR_RNDN);
    mpfr_div(difference.get(), difference.get(), exact, MPFR_RNDN);
    return std::fabs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

struct Decimal14 {
    std::uint64_t n;
    int exponent;
};

class Draws {
public:
    explicit Draws(std::uint64_t seed) : random(seed) {}
    // 14 digits (or a short decimal) at a decade from 10^low to 10^high.
    Decimal14 decimal(int low, int high) {
        const bool short_one = random() % 4 == 0;
        const std::uint64_t n =
            short_one ? 1 + random() % 9999 : 10000000000000ull + random() % 90000000000000ull;
        const int digits = short_one ? 4 : 14;
        const int decade = low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
        return Decimal14{n, decade - digits + 1};
    }
    bool coin() { return random() % 2 == 0; }

private:
    std::mt19937_64 random;
};

TEST(BinaryKernels, LogarithmIsWithinItsBound) {
    Draws draw(101u);
    double worst = 0;
    for (int k = 0; k < kDraws; ++k) {
        // Near 1 as well: 1 + a small decimal, where the logarithm cancels.
        Decimal14 x = draw.decimal(-9, 13);
        if (k % 5 == 0) x = Decimal14{100000000000000ull - 1 - (x.n % 1000000), -14};
        Binary value;
        ASSERT_TRUE(log_kernel(x.n, x.exponent, value));
        Real exact;
        load_decimal(x.n, x.exponent, exact.get());
        mpfr_log(exact.get(), exact.get(), MPFR_RNDN);
        const double absolute =
            relative_error(value, exact.get()) * std::fabs(mpfr_get_d(exact.get(), MPFR_RNDN));
        ASSERT_LE(absolute, kLogError) << x.n << "e" << x.exponent;
        worst = std::max(worst, absolute);
    }
    // The bound is not far above what the kernel reaches.
    EXPECT_GT(worst, kLogError / 64);
}

TEST(BinaryKernels, ExponentialIsWithinItsBound) {
    Draws draw(202u);
    for (int k = 0; k < kDraws; ++k) {
        const Decimal14 y = draw.decimal(-9, 2);
        const bool negative = draw.coin();
        Binary argument, value;
        double argument_error = 0, error = 0;
        ASSERT_TRUE(decimal_to_binary(negative, y.n, y.exponent, argument, argument_error));
        Real exact;
        load_decimal(y.n, y.exponent, exact.get());
        if (negative) mpfr_neg(exact.get(), exact.get(), MPFR_RNDN);
        if (!(mpfr_get_d(exact.get(), MPFR_RNDN) < 690 &&
              mpfr_get_d(exact.get(), MPFR_RNDN) > -690))
            continue;
        ASSERT_LE(relative_error(argument, exact.get()), argument_error);
        const double argument_bound = approximate(argument) * argument_error;
        ASSERT_TRUE(exp_kernel(argument, argument_bound, value, error));
        mpfr_exp(exact.get(), exact.get(), MPFR_RNDN);
        ASSERT_LE(relative_error(value, exact.get()), error) << y.n << "e" << y.exponent;
        ASSERT_LT(error, std::ldexp(1.0, -105));
    }
}

// The decimal layer's angle of x degrees: the product with pi / 180's 34 digits, cut to 34.
void load_degrees(std::uint64_t n, int exponent, mpfr_ptr out) {
    Real factor;
    mpfr_set_str(factor.get(), "0.01745329251994329576923690768488612", 10, MPFR_RNDN);
    load_decimal(n, exponent, out);
    mpfr_mul(out, out, factor.get(), MPFR_RNDN);
    char text[64];
    mpfr_snprintf(text, sizeof text, "%.33RZe", out);  // 34 digits, cut
    mpfr_set_str(out, text, 10, MPFR_RNDN);
}

TEST(BinaryKernels, SineAndCosineAreWithinTheirBounds) {
    Draws draw(303u);
    for (int k = 0; k < kDraws; ++k) {
        const Decimal14 x = draw.decimal(-9, 13);
        const bool cosine = draw.coin(), negative = draw.coin(), degrees = k % 3 == 0;
        Binary angle, value;
        double angle_error = 0, error = 0;
        Real exact;
        if (degrees) {
            ASSERT_TRUE(degrees_to_radians(negative, x.n, x.exponent, angle, angle_error));
            load_degrees(x.n, x.exponent, exact.get());
        } else {
            ASSERT_TRUE(decimal_to_binary(negative, x.n, x.exponent, angle, angle_error));
            load_decimal(x.n, x.exponent, exact.get());
        }
        if (negative) mpfr_neg(exact.get(), exact.get(), MPFR_RNDN);
        ASSERT_LE(relative_error(angle, exact.get()), angle_error * 1.001);
        if (!sine_kernel(angle, angle_error, cosine, value, error)) continue;
        if (cosine)
            mpfr_cos(exact.get(), exact.get(), MPFR_RNDN);
        else
            mpfr_sin(exact.get(), exact.get(), MPFR_RNDN);
        ASSERT_LE(relative_error(value, exact.get()), error)
            << (cosine ? "cos " : "sin ") << x.n << "e" << x.exponent << (degrees ? " deg" : "");
    }
}

// Whole quarter turns and their neighbours in degrees, reduced exactly: the rest is tiny (about
// 10^-33 for a multiple of 90) and still within the bound, which stays useful.
TEST(BinaryKernels, QuarterTurnsInDegreesAreWithinTheirBounds) {
    for (std::uint64_t quarter = 1; quarter <= 4000; ++quarter) {
        for (const std::uint64_t n : {quarter * 90, quarter * 90 * 100 + 1}) {
            const int exponent = n % 10 == 1 ? -2 : 0;
            ReducedAngle reduced;
            ASSERT_TRUE(reduce_degrees(n, exponent, reduced)) << n;
            Real exact, rest, multiple;
            load_degrees(n, exponent, exact.get());
            mpfr_const_pi(multiple.get(), MPFR_RNDN);
            mpfr_mul_si(multiple.get(), multiple.get(), reduced.quarters, MPFR_RNDN);
            mpfr_div_2ui(multiple.get(), multiple.get(), 1, MPFR_RNDN);
            mpfr_sub(rest.get(), exact.get(), multiple.get(), MPFR_RNDN);
            ASSERT_LE(relative_error(reduced.rest, rest.get()) *
                          std::fabs(mpfr_get_d(rest.get(), MPFR_RNDN)),
                      reduced.delta)
                << n;
            for (const bool cosine : {false, true}) {
                Binary value;
                double error = 0;
                ASSERT_TRUE(quadrant_sine(reduced.rest, reduced.delta, reduced.quarters, cosine,
                                          value, error));
                Real function;
                if (cosine)
                    mpfr_cos(function.get(), exact.get(), MPFR_RNDN);
                else
                    mpfr_sin(function.get(), exact.get(), MPFR_RNDN);
                ASSERT_LE(relative_error(value, function.get()), error) << n;
                EXPECT_LT(error, std::ldexp(1.0, -90)) << n;
            }
        }
    }
}

}  // namespace
}  // namespace quindar::exact
