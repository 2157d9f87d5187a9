// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The power, logarithm, exponential, sine and cosine of reals against the decimal road they
// replace, bit for bit: the operand into the decimal layer by text, its complex function, the
// parts back by text. Operands are drawn seeded over mixed magnitudes, a quarter of them short
// decimals (so that results are often short and ties common), and others built so the result
// lies on or next to a rounding boundary: squares of 8-digit values ending in 5 (16 digits
// ending in 5, a tie of the 15th), logarithms near 1, angles next to multiples of pi / 2 and
// of 30 degrees. QUINDAR_DIFFERENTIAL_DRAWS sets the number of operands per test (a long run
// by hand: 100000000); the share each road decided is printed.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <sstream>
#include <string>

#include "exact_functions.h"
#include "mapm.h"
#include "mapm_complex.h"
#include "mathematics.h"

namespace quindar {
namespace {

using exact::Road;

constexpr int kPlaces = 14;
// pi / 180 as the engine gives it to the decimal layer for an angle in degrees.
constexpr const char *kRadiansPerDegree =
    "0.0174532925199432957692369076848861271344287188854172545609719144017100911460344944368224156"
    "963450948";

long draws_to_make(long fallback) {
    const char *text = std::getenv("QUINDAR_DIFFERENTIAL_DRAWS");
    return text != nullptr && std::atol(text) > 0 ? std::atol(text) : fallback;
}

// A part into the decimal layer and back, as the engine's text passage does it.
void load(double x, M_APM target) {
    Mathematics::SetMapmValueByText(x, target);
}

double unload(const MapmNumber *value) {
    return static_cast<double>(Mathematics::GetMapmValueByText(value));
}

enum class Function { log, exp, sin, cos, sin_degrees, cos_degrees, power };

// Today's road for a real operand (and exponent): the decimal layer's complex function.
complex decimal_road(Function function, double x, double b = 0) {
    MapmNumber ar, ai, br, bi, rr, ri;
    load(x, &ar);
    load(0.0, &ai);
    load(b, &br);
    load(0.0, &bi);
    m_apm_set_zero(&rr);
    m_apm_set_zero(&ri);
    if (function == Function::sin_degrees || function == Function::cos_degrees) {
        MapmNumber factor, part = ar;
        m_apm_set_string(&factor, kRadiansPerDegree);
        m_apm_multiply(&ar, &part, &factor);
    }
    switch (function) {
        case Function::log:
            m_apmc_log(&rr, &ri, kPlaces, &ar, &ai);
            break;
        case Function::exp:
            m_apmc_exp(&rr, &ri, kPlaces, &ar, &ai);
            break;
        case Function::sin:
        case Function::sin_degrees:
            m_apmc_sin(&rr, &ri, kPlaces, &ar, &ai);
            break;
        case Function::cos:
        case Function::cos_degrees:
            m_apmc_cos(&rr, &ri, kPlaces, &ar, &ai);
            break;
        case Function::power:
            m_apmc_pow(&rr, &ri, kPlaces, &ar, &ai, &br, &bi);
            break;
    }
    return complex{unload(&rr), unload(&ri)};
}

// The fast road; false where it leaves the value to the decimal road.
bool fast_road(Function function, double x, double b, complex &result, Road &road) {
    switch (function) {
        case Function::log:
            return exact::real_log({x, 0.0}, result, &road);
        case Function::exp:
            return exact::real_exp({x, 0.0}, result, &road);
        case Function::sin:
        case Function::cos:
            return exact::real_sine(x, function == Function::cos, false, result, &road);
        case Function::sin_degrees:
        case Function::cos_degrees:
            return exact::real_sine(x, function == Function::cos_degrees, true, result, &road);
        case Function::power:
            return exact::real_power({x, 0.0}, {b, 0.0}, result, &road);
    }
    return false;
}

std::string hex(double x) {
    std::ostringstream text;
    text << std::hexfloat << x;
    return text.str();
}

bool same_bits(double x, double y) {
    return std::memcmp(&x, &y, sizeof x) == 0;
}

class Draws {
public:
    explicit Draws(std::uint64_t seed) : random(seed) {}

    int pick(int n) { return static_cast<int>(random() % static_cast<std::uint64_t>(n)); }
    double uniform() { return unit(random); }
    double sign() { return pick(2) == 0 ? 1.0 : -1.0; }

    // A short decimal (up to 4 digits at a small scale), a 14-digit decimal, or a random
    // double over 10^-9 .. 10^14.
    double magnitude() {
        switch (pick(4)) {
            case 0:
                return static_cast<double>(1 + pick(9999)) / std::pow(10.0, pick(7));
            case 1: {
                const auto digits =
                    static_cast<double>(10000000000000ull + random() % 90000000000000ull);
                return digits * std::pow(10.0, pick(22) - 21);
            }
            default:
                return std::pow(10.0, uniform() * 23.0 - 9.0);
        }
    }

    // An 8-digit value ending in 5 at a random scale: its square has 16 digits ending in 5.
    double tie_root() {
        const double digits = static_cast<double>(1000000 + pick(9000000)) * 10 + 5;
        return digits * std::pow(10.0, pick(9) - 10);
    }

private:
    std::mt19937_64 random;
    std::uniform_real_distribution<double> unit{0.0, 1.0};
};

bool in_passage(double x) {
    return x == 0 || (std::fabs(x) >= 1e-9 && std::fabs(x) < 1e14);
}

// A real result a double holds in full (a normal double, neither infinite nor NaN, or the
// zero of a zero operand), from operands of the passage's range (10^-9 to 10^14). The power
// of a negative base to a whole exponent counts as real: its imaginary part is a trace of
// the rounding of pi.
bool ordinary(double x, double b, const complex &result) {
    const double magnitude = std::fabs(result.real);
    const bool real = result.imag == 0 || std::fabs(result.imag) < 1e-9 * magnitude;
    return in_passage(x) && in_passage(b) && real &&
           ((magnitude > 1e-300 && magnitude < 1e300) || (magnitude == 0 && x == 0));
}

struct Tally {
    long drawn = 0, kernel = 0, binary = 0, decimal = 0, mismatches = 0;
    // Operands with an ordinary result, and those of them the decimal road took.
    long in_range = 0, in_range_left = 0;

    void check(Function function, double x, double b, const char *name) {
        ++drawn;
        complex fast;
        Road road = Road::kernel;
        if (!fast_road(function, x, b, fast, road)) {
            ++decimal;
            if (ordinary(x, b, decimal_road(function, x, b))) {
                ++in_range;
                ++in_range_left;
            }
            return;
        }
        in_range += ordinary(x, b, fast);
        ++(road == Road::kernel ? kernel : binary);
        const complex reference = decimal_road(function, x, b);
        if (same_bits(fast.real, reference.real) && same_bits(fast.imag, reference.imag)) return;
        if (++mismatches > 10) return;
        ADD_FAILURE() << name << " " << hex(x)
                      << (function == Function::power ? " ^ " + hex(b) : "") << ": fast ("
                      << hex(fast.real) << ", " << hex(fast.imag) << "), decimal ("
                      << hex(reference.real) << ", " << hex(reference.imag) << ")";
    }

    void report(const char *name) const {
        std::printf(
            "%s: %ld operands, %ld by the kernels, %ld in 128-bit binary, %ld to the "
            "decimal road; of %ld with an ordinary result %ld left by the kernels (%.2e), "
            "%ld to the decimal road; %ld mismatches\n",
            name, drawn, kernel, binary, decimal, in_range, in_range_left + binary,
            static_cast<double>(in_range_left + binary) / static_cast<double>(in_range),
            in_range_left, mismatches);
        EXPECT_EQ(mismatches, 0) << name;
    }
};

TEST(ExactFunctions, LogarithmAgreesWithTheDecimalRoad) {
    Draws draw(31415u);
    Tally tally;
    const long draws = draws_to_make(1000000);
    for (long k = 0; k < draws; ++k) {
        // Near 1 as well, where the logarithm is small, and next to powers of e with short
        // exponents, where it lies next to a short decimal (and a tie of its 15th digit).
        double x = draw.magnitude();
        if (draw.pick(6) == 0) x = 1 + draw.sign() * draw.magnitude() * 1e-9;
        if (draw.pick(6) == 0) x = std::exp(draw.sign() * (1 + draw.pick(999)) / 100.0);
        tally.check(Function::log, x, 0, "LN");
    }
    tally.report("LN");
    // The kernels decide nearly all of them.
    EXPECT_GT(tally.kernel, draws * 9 / 10);
}

TEST(ExactFunctions, ExponentialAgreesWithTheDecimalRoad) {
    Draws draw(27182u);
    Tally tally;
    const long draws = draws_to_make(1000000);
    for (long k = 0; k < draws; ++k) {
        // Mostly where the result is a double the engine reads back (below 10^19), and at
        // logarithms of short decimals, where it lies next to one.
        double x = draw.sign() * draw.magnitude();
        if (draw.pick(4) != 0) x = std::fmod(x, 45.0);
        if (draw.pick(6) == 0) x = std::log((1 + draw.pick(9999)) / 100.0);
        tally.check(Function::exp, x, 0, "EXP");
    }
    tally.report("EXP");
    EXPECT_GT(tally.kernel, draws * 3 / 4);
}

void check_angles(Function function, std::uint64_t seed, const char *name, double quarter) {
    Draws draw(seed);
    Tally tally;
    const long draws = draws_to_make(1000000);
    for (long k = 0; k < draws; ++k) {
        double x = draw.sign() * draw.magnitude();
        switch (draw.pick(6)) {
            case 0:  // next to a multiple of a quarter turn
                x = draw.pick(400) * quarter + draw.sign() * draw.magnitude() * 1e-6;
                break;
            case 1:  // within a few turns
                x = std::fmod(x, 30 * quarter);
                break;
            case 2:  // a multiple of a third of a quarter turn, exact in degrees
                x = draw.sign() * draw.pick(1000) * quarter / 3;
                break;
            default:
                break;
        }
        tally.check(function, x, 0, name);
    }
    tally.report(name);
    EXPECT_GT(tally.kernel, draws * 3 / 4);
}

TEST(ExactFunctions, SineInRadiansAgreesWithTheDecimalRoad) {
    check_angles(Function::sin, 2718u, "SIN", 1.5707963267948966);
}

TEST(ExactFunctions, CosineInRadiansAgreesWithTheDecimalRoad) {
    check_angles(Function::cos, 1414u, "COS", 1.5707963267948966);
}

TEST(ExactFunctions, SineInDegreesAgreesWithTheDecimalRoad) {
    check_angles(Function::sin_degrees, 1732u, "SIN degrees", 90);
}

TEST(ExactFunctions, CosineInDegreesAgreesWithTheDecimalRoad) {
    check_angles(Function::cos_degrees, 2236u, "COS degrees", 90);
}

// Squares and cubes (most of what a document raises to a power), of negative bases as well
// (a graph of x^2 crosses zero), ties among them.
TEST(ExactFunctions, SquaresAndCubesAgreeWithTheDecimalRoad) {
    Draws draw(4242u);
    Tally tally;
    const long draws = draws_to_make(1000000);
    for (long k = 0; k < draws; ++k) {
        double base = draw.pick(4) == 0 ? draw.tie_root() : draw.magnitude();
        // Negative ones where a graph has them: within a few tens of zero.
        if (draw.pick(4) == 0) base = -std::fmod(base, 30.0);
        tally.check(Function::power, base, draw.pick(3) == 0 ? 3 : 2, "POW");
    }
    tally.report("x^2, x^3");
    EXPECT_GT(tally.kernel, draws * 9 / 10);
}

// Other exponents: small integers, negative ones, the cube root's, random reals, whole
// exponents up to the largest taken for negative bases; other powers of negative bases are
// the decimal road's.
TEST(ExactFunctions, PowersAgreeWithTheDecimalRoad) {
    Draws draw(4343u);
    Tally tally;
    const long draws = draws_to_make(1000000);
    const double exponents[] = {4, 5, 10, -1, -2, 0.5, 0.333333333333333, 0, 1, 1.5};
    for (long k = 0; k < draws; ++k) {
        double base = draw.magnitude();
        double exponent =
            draw.pick(3) == 0 ? draw.sign() * draw.magnitude() / 1e4 : exponents[draw.pick(10)];
        if (draw.pick(8) == 0) {
            // Large whole exponents (beyond the largest taken too), of bases near 1.
            const double whole = 1 + std::floor(draw.uniform() * 1.2e6);
            exponent = draw.sign() * whole;
            base = std::exp((draw.uniform() - 0.5) * 80 / whole);
        }
        // Results within the doubles: beyond them the decimal road works at thousands of
        // places, for no digit a double keeps.
        const double reach = 650 / std::fabs(std::log(base));
        if (std::fabs(exponent) > reach) exponent = std::fmod(exponent, reach);
        if (draw.pick(4) == 0) base = -base;
        tally.check(Function::power, base, exponent, "POW");
    }
    tally.report("x^b");
    EXPECT_GT(tally.kernel, draws / 2);
}

// Whole quarter turns in degrees: the decimal layer's angle misses k pi / 2 by about 10^-33,
// so the sine of 180 degrees is a tiny number, not 0; the kernels give those digits too.
TEST(ExactFunctions, WholeQuarterTurnsInDegrees) {
    for (int k = -8; k <= 8; ++k) {
        for (const Function function : {Function::sin_degrees, Function::cos_degrees}) {
            const double x = 90.0 * k;
            complex fast;
            Road road = Road::binary;
            ASSERT_TRUE(fast_road(function, x, 0, fast, road)) << x;
            EXPECT_EQ(road, Road::kernel) << x;
            const complex reference = decimal_road(function, x);
            EXPECT_TRUE(same_bits(fast.real, reference.real))
                << x << ": " << hex(fast.real) << ", decimal " << hex(reference.real);
            // Zeros of the function are tiny values, its extremes exactly 1 or -1.
            const bool zero = (k % 2 == 0) == (function == Function::sin_degrees);
            if (!zero) {
                EXPECT_EQ(std::fabs(fast.real), 1.0) << x;
            } else if (k != 0) {
                EXPECT_LT(std::fabs(fast.real), 1e-30) << x;
            }
        }
    }
}

// Cases by hand: what each function gives at its edges, against the decimal road too.
TEST(ExactFunctions, CasesAtTheEdges) {
    struct Case {
        Function function;
        double x, b;
        double expected;
    } cases[] = {
        {Function::log, 1, 0, 0},
        {Function::log, 10, 0, 2.30258509299405},
        {Function::exp, 0, 0, 1},
        {Function::exp, 1, 0, 2.71828182845905},
        {Function::sin, 0, 0, 0},
        {Function::cos, 0, 0, 1},
        {Function::sin_degrees, 30, 0, 0.5},
        {Function::cos_degrees, 60, 0, 0.5},
        {Function::power, 3, 2, 9},
        {Function::power, 2, 10, 1024},
        {Function::power, 1.5, 2, 2.25},
        {Function::power, 7, 0, 1},
        {Function::power, -3, 2, 9},
        {Function::power, -2, 3, -8},
        {Function::power, -1, 1000000, 1},
        {Function::power, 0, 2, 0},
    };
    for (const auto &c : cases) {
        complex fast;
        Road road;
        ASSERT_TRUE(fast_road(c.function, c.x, c.b, fast, road)) << c.x;
        EXPECT_EQ(fast.real, c.expected) << c.x;
        // A negative base leaves a tiny imaginary part: pi is rounded in its angle.
        if (c.function != Function::power || c.x >= 0) {
            EXPECT_TRUE(same_bits(fast.imag, 0.0));
        } else {
            EXPECT_TRUE(fast.imag != 0 && std::fabs(fast.imag) < 1e-9) << fast.imag;
        }
        const complex reference = decimal_road(c.function, c.x, c.b);
        EXPECT_TRUE(same_bits(fast.real, reference.real)) << c.x << " " << hex(reference.real);
        EXPECT_TRUE(same_bits(fast.imag, reference.imag)) << c.x << " " << hex(reference.imag);
    }
    // What only the decimal road takes: zero and negative bases but to whole powers, complex
    // operands.
    complex result;
    EXPECT_FALSE(exact::real_power({-2, 0}, {0.5, 0}, result));
    EXPECT_FALSE(exact::real_power({-2, 0}, {2000000, 0}, result));
    EXPECT_FALSE(exact::real_power({0, 0}, {-2, 0}, result));
    EXPECT_FALSE(exact::real_power({0, 0}, {0, 0}, result));
    EXPECT_FALSE(exact::real_power({2, 1}, {2, 0}, result));
    EXPECT_FALSE(exact::real_power({2, 0}, {2, 1}, result));
    EXPECT_FALSE(exact::real_log({-1, 0}, result));
    EXPECT_FALSE(exact::real_log({1, 1}, result));
    EXPECT_FALSE(exact::real_exp({1, 1}, result));
    EXPECT_FALSE(exact::real_exp({1000, 0}, result));  // beyond the doubles
}

}  // namespace
}  // namespace quindar
