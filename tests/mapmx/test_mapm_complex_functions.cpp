// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Square root, modulus, exponential, logarithms, circular and hyperbolic functions of
// complex numbers: exact cases, branch cuts, poles, symmetries, and agreement with the
// C library's complex functions.
#include <gtest/gtest.h>

#include <complex>
#include <string>

#include "complex_cases.h"
#include "mapm_complex.h"
#include "mapm_test_values.h"

namespace quindar {
namespace {

using testing::ComplexL;
using testing::ExactCase;
using testing::kHalfPiText;
using testing::kPiText;
using testing::kZero;
using testing::ReferenceCase;
using testing::without_status;

constexpr auto sqrt_ = without_status<m_apmc_sqrt>;
constexpr auto exp_ = without_status<m_apmc_exp>;
constexpr auto sin_ = without_status<m_apmc_sin>;
constexpr auto cos_ = without_status<m_apmc_cos>;
constexpr auto sinh_ = without_status<m_apmc_sinh>;
constexpr auto cosh_ = without_status<m_apmc_cosh>;

// pi/2, pi/4 and 3 pi/2 to 34 digits: as close to a pole as decimal values come.
constexpr const char *kHalfPi = "1.570796326794896619231321691639751";
constexpr const char *kMinusHalfPi = "-1.570796326794896619231321691639751";
constexpr const char *kQuarterPi = "0.7853981633974483096156608458198757";
constexpr const char *kThreeHalvesPi = "4.712388980384689857693965074919254";
constexpr const char *kPi = "3.141592653589793238462643383279502";

constexpr const char *kOne = "1.00000000000000E+0";
constexpr const char *kMinusOne = "-1.00000000000000E+0";

TEST(MapmComplexFunctions, SquareRootAndItsBranchCut) {
    const ExactCase cases[] = {
        {"sqrt", sqrt_, "-4", "0", 0, kZero, "2.00000000000000E+0"},
        {"sqrt", sqrt_, "-4", "-1e-30", 0, kZero, "-2.00000000000000E+0"},
        {"sqrt", sqrt_, "0", "0", 0, kZero, kZero},
        {"sqrt", sqrt_, "3", "4", 0, "2.00000000000000E+0", kOne},
        {"sqrt", sqrt_, "3", "-4", 0, "2.00000000000000E+0", kMinusOne},
        {"sqrt", sqrt_, "-3", "4", 0, kOne, "2.00000000000000E+0"},
        {"sqrt", sqrt_, "-3", "-4", 0, kOne, "-2.00000000000000E+0"},
        {"sqrt", sqrt_, "0", "2", 0, kOne, kOne},
        {"sqrt", sqrt_, "2", "0", 0, "1.41421356237310E+0", kZero},
        // The modulus keeps 28 places: an imaginary part below them is lost.
        {"sqrt", sqrt_, "1e10", "1e-8", 0, "1.00000000000000E+5", kZero},
    };
    for (const auto &c : cases) testing::expect_exact(c);
}

TEST(MapmComplexFunctions, Modulus) {
    struct Case {
        const char *re, *im, *expected;
    };
    const Case cases[] = {
        {"3", "4", "5.00000000000000E+0"},
        {"-3", "-4", "5.00000000000000E+0"},
        {"0", "0", kZero},
        {"-1e-300", "0", "1.00000000000000E-300"},
        {"1e300", "1e300", "1.41421356237310E+300"},
        {"1", "1e-20", kOne},
    };
    for (const auto &c : cases) {
        const MapmNumber a = testing::from(c.re), b = testing::from(c.im);
        MapmNumber r;
        m_apmc_abs(&r, 14, &a, &b);
        EXPECT_EQ(testing::text_of(r), c.expected) << c.re << ", " << c.im;
    }
}

TEST(MapmComplexFunctions, ExponentialAndLogarithms) {
    const ExactCase cases[] = {
        {"exp", exp_, "0", "0", 0, kOne, kZero},
        {"exp", exp_, "1", "0", 0, "2.71828182845905E+0", kZero},
        {"exp", exp_, "0", kPi, 0, kMinusOne, "8.84197169399375E-34"},
        // pi cut to 14 digits, as the engine writes it: the imaginary part stays.
        {"exp", exp_, "0", "3.1415926535898", 0, kMinusOne, "-6.76153735661672E-15"},
        {"exp", exp_, "0.69314718055995", "0", 0, "2.00000000000001E+0", kZero},
        {"log", m_apmc_log, "-1", "0", 0, kZero, kPiText},
        {"log", m_apmc_log, "-1", "-1e-30", 0, kZero, "-3.14159265358979E+0"},
        {"log", m_apmc_log, "1", "0", 0, kZero, kZero},
        {"log", m_apmc_log, "0", "1", 0, kZero, kHalfPiText},
        {"log", m_apmc_log, "0", "-1", 0, kZero, "-1.57079632679490E+0"},
        {"log", m_apmc_log, "1e300", "1e300", 0, "6.91122101488494E+2", "7.85398163397448E-1"},
        {"log", m_apmc_log, "0", "0", -1, kZero, kZero},
        {"log10", m_apmc_log10, "100", "0", 0, "2.00000000000000E+0", kZero},
        {"log10", m_apmc_log10, "-100", "0", 0, "2.00000000000000E+0", "1.36437635384184E+0"},
        {"log10", m_apmc_log10, "0.001", "0", 0, "-3.00000000000000E+0", kZero},
        {"log10", m_apmc_log10, "0", "10", 0, kOne, "6.82188176920921E-1"},
        {"log10", m_apmc_log10, "0", "0", -1, kZero, kZero},
    };
    for (const auto &c : cases) testing::expect_exact(c);
}

TEST(MapmComplexFunctions, CircularAndHyperbolicFunctions) {
    const ExactCase cases[] = {
        {"sin", sin_, "0", "0", 0, kZero, kZero},
        {"sin", sin_, kHalfPi, "0", 0, kOne, kZero},
        {"sin", sin_, "1", "1", 0, "1.29845758141598E+0", "6.34963914784736E-1"},
        {"cos", cos_, "0", "0", 0, kOne, kZero},
        {"cos", cos_, kPi, "0", 0, kMinusOne, kZero},
        {"cos", cos_, "1", "1", 0, "8.33730025131149E-1", "-9.88897705762865E-1"},
        {"sinh", sinh_, "0", "0", 0, kZero, kZero},
        {"sinh", sinh_, "1", "1", 0, "6.34963914784736E-1", "1.29845758141598E+0"},
        {"cosh", cosh_, "0", "0", 0, kOne, kZero},
        {"cosh", cosh_, "1", "1", 0, "8.33730025131149E-1", "9.88897705762865E-1"},
        {"tan", m_apmc_tan, "0", "0", 0, kZero, kZero},
        {"tan", m_apmc_tan, kQuarterPi, "0", 0, kOne, kZero},
        {"tan", m_apmc_tan, "1", "1", 0, "2.71752585319512E-1", "1.08392332733869E+0"},
        {"tan", m_apmc_tan, "0", "1000", 0, kZero, kOne},
        {"tanh", m_apmc_tanh, "0", "0", 0, kZero, kZero},
        {"tanh", m_apmc_tanh, "1", "1", 0, "1.08392332733869E+0", "2.71752585319512E-1"},
        {"tanh", m_apmc_tanh, "1000", "0", 0, kOne, kZero},
        {"tanh", m_apmc_tanh, "-1000", "0", 0, kMinusOne, kZero},
    };
    for (const auto &c : cases) testing::expect_exact(c);
}

TEST(MapmComplexFunctions, PolesOfTanAndTanhFailAndLeaveTheResults) {
    const ExactCase cases[] = {
        {"tan", m_apmc_tan, kHalfPi, "0", -1, kZero, kZero},
        {"tan", m_apmc_tan, kMinusHalfPi, "0", -1, kZero, kZero},
        {"tan", m_apmc_tan, kThreeHalvesPi, "0", -1, kZero, kZero},
        {"tan", m_apmc_tan, kHalfPi, "1e-20", -1, kZero, kZero},
        {"tanh", m_apmc_tanh, "0", kHalfPi, -1, kZero, kZero},
        {"tanh", m_apmc_tanh, "0", kMinusHalfPi, -1, kZero, kZero},
        {"tanh", m_apmc_tanh, "1e-20", kHalfPi, -1, kZero, kZero},
        // Nearer than 14-digit arguments come, yet D = 1.2e-29 stands above 1e-30. For tanh
        // D = 1 - sin^2 cancels, and sin at 38 places leaves it 9 good digits.
        {"tan", m_apmc_tan, "1.5707963267949", "0", 0, "-2.95790719553274E+14", kZero},
        {"tanh", m_apmc_tanh, "0", "1.5707963267949", 0, kZero, "-2.95790719559248E+14"},
        // Beside the pole by more than the test's reach: a large value, no failure.
        {"tan", m_apmc_tan, kHalfPi, "1e-14", 0, "4.42098584699688E-6", "1.00000000000000E+14"},
    };
    for (const auto &c : cases) testing::expect_exact(c);
    for (const auto &c : cases) {
        if (c.status == 0) continue;
        const testing::ComplexResult r = testing::evaluate(c.function, c.re, c.im, "7.5");
        EXPECT_EQ(testing::text_of(r.re), "7.50000000000000E+0") << c.name << " " << c.re;
        EXPECT_EQ(testing::text_of(r.im), "7.50000000000000E+0") << c.name << " " << c.im;
    }
}

ComplexL reference_sqrt(const ComplexL &z) {
    return std::sqrt(z);
}
ComplexL reference_exp(const ComplexL &z) {
    return std::exp(z);
}
ComplexL reference_log(const ComplexL &z) {
    return std::log(z);
}
ComplexL reference_log10(const ComplexL &z) {
    return std::log10(z);
}
ComplexL reference_sin(const ComplexL &z) {
    return std::sin(z);
}
ComplexL reference_cos(const ComplexL &z) {
    return std::cos(z);
}
ComplexL reference_tan(const ComplexL &z) {
    return std::tan(z);
}
ComplexL reference_sinh(const ComplexL &z) {
    return std::sinh(z);
}
ComplexL reference_cosh(const ComplexL &z) {
    return std::cosh(z);
}
ComplexL reference_tanh(const ComplexL &z) {
    return std::tanh(z);
}

TEST(MapmComplexFunctions, AgreeWithTheLibraryOnRandomArguments) {
    const ReferenceCase cases[] = {
        {"sqrt", sqrt_, reference_sqrt},    {"exp", exp_, reference_exp},
        {"log", m_apmc_log, reference_log}, {"log10", m_apmc_log10, reference_log10},
        {"sin", sin_, reference_sin},       {"cos", cos_, reference_cos},
        {"tan", m_apmc_tan, reference_tan}, {"sinh", sinh_, reference_sinh},
        {"cosh", cosh_, reference_cosh},    {"tanh", m_apmc_tanh, reference_tanh},
    };
    unsigned seed = 40;
    for (const auto &c : cases) testing::expect_near_reference(c, seed++, 400, 1e-14L);
}

// f(i x) against g(x): the formulas give the same products, so the texts agree exactly.
struct RotationCase {
    const char *name;
    testing::ComplexFunction of_imaginary;  // f, taken at i x
    testing::ComplexFunction of_real;       // g, taken at x
    bool times_i;                           // f(i x) = i g(x), else f(i x) = g(x)
};

TEST(MapmComplexFunctions, ImaginaryArgumentsTurnCircularIntoHyperbolic) {
    const RotationCase cases[] = {
        {"sin(ix) = i sinh x", sin_, sinh_, true},
        {"cos(ix) = cosh x", cos_, cosh_, false},
        {"sinh(ix) = i sin x", sinh_, sin_, true},
        {"cosh(ix) = cos x", cosh_, cos_, false},
    };
    testing::Sampler sampler(5);
    for (const auto &c : cases) {
        for (int n = 0; n < 100; ++n) {
            const std::string x = sampler.magnitude(-3, 1, true);
            const testing::ComplexResult f = testing::evaluate(c.of_imaginary, "0", x);
            const testing::ComplexResult g = testing::evaluate(c.of_real, x, "0");
            const MapmNumber &expected_re = c.times_i ? g.im : g.re;
            const MapmNumber &expected_im = c.times_i ? g.re : g.im;
            EXPECT_EQ(testing::text_of(f.re, 33), testing::text_of(expected_re, 33))
                << c.name << " at " << x;
            EXPECT_EQ(testing::text_of(f.im, 33), testing::text_of(expected_im, 33))
                << c.name << " at " << x;
        }
    }
}

// f(conj z) = conj f(z) for all of them; f(-z) = -f(z) for the odd ones.
struct SymmetryCase {
    const char *name;
    testing::ComplexFunction function;
    bool odd;
};

TEST(MapmComplexFunctions, ConjugateAndOddSymmetriesHoldExactly) {
    const SymmetryCase cases[] = {
        {"sqrt", sqrt_, false},         {"exp", exp_, false},  {"log", m_apmc_log, false},
        {"log10", m_apmc_log10, false}, {"sin", sin_, true},   {"cos", cos_, false},
        {"tan", m_apmc_tan, true},      {"sinh", sinh_, true}, {"cosh", cosh_, false},
        {"tanh", m_apmc_tanh, true},
    };
    testing::Sampler sampler(9);
    const auto negated = [](const std::string &text) {
        return text[0] == '-' ? text.substr(1) : "-" + text;
    };
    for (const auto &c : cases) {
        for (int n = 0; n < 100; ++n) {
            std::string re, im;
            testing::random_argument(sampler, re, im);
            const testing::ComplexResult f = testing::evaluate(c.function, re, im);
            const testing::ComplexResult conjugate = testing::evaluate(c.function, re, negated(im));
            EXPECT_EQ(testing::text_of(conjugate.re, 33), testing::text_of(f.re, 33)) << c.name;
            EXPECT_EQ(testing::text_of(conjugate.im, 33), negated(testing::text_of(f.im, 33)))
                << c.name << "(" << re << ", " << im << ")";
            if (!c.odd) continue;
            const testing::ComplexResult opposite =
                testing::evaluate(c.function, negated(re), negated(im));
            EXPECT_EQ(testing::text_of(opposite.re, 33), negated(testing::text_of(f.re, 33)))
                << c.name;
            EXPECT_EQ(testing::text_of(opposite.im, 33), negated(testing::text_of(f.im, 33)))
                << c.name;
        }
    }
}

TEST(MapmComplexFunctions, OperandsWithoutDigitsGiveNan) {
    const testing::ComplexFunction functions[] = {
        sqrt_, exp_, m_apmc_log, m_apmc_log10, sin_, cos_, m_apmc_tan, sinh_, cosh_, m_apmc_tanh};
    for (const auto function : functions) {
        for (const char *bad : {"inf", "-inf", "nan"}) {
            const testing::ComplexResult r = testing::evaluate(function, bad, "1");
            EXPECT_EQ(testing::text_of(r.re), "nan") << bad;
            EXPECT_EQ(testing::text_of(r.im), "nan") << bad;
        }
    }
}

TEST(MapmComplexFunctions, ResultsMayBeTheOperands) {
    MapmNumber re = testing::from("-4"), im = testing::from("0");
    m_apmc_sqrt(&re, &im, 14, &re, &im);
    EXPECT_EQ(testing::text_of(re), kZero);
    EXPECT_EQ(testing::text_of(im), "2.00000000000000E+0");
    m_apmc_exp(&re, &im, 14, &re, &im);
    EXPECT_EQ(testing::text_of(re), "-4.16146836547142E-1");
    EXPECT_EQ(testing::text_of(im), "9.09297426825682E-1");
}

}  // namespace
}  // namespace quindar
