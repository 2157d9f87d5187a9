// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Inverse circular and hyperbolic functions of complex numbers: exact cases, the sides
// their branch cuts take, failures, the other solution that large arguments get, and
// agreement with the C library's principal values.
#include <gtest/gtest.h>

#include <complex>
#include <numbers>
#include <string>

#include "complex_cases.h"
#include "mapm_complex.h"
#include "mapm_functions.h"
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

constexpr auto arcsin_ = without_status<m_apmc_arcsin>;
constexpr auto arccos_ = without_status<m_apmc_arccos>;
constexpr auto arcsinh_ = without_status<m_apmc_arcsinh>;
constexpr auto arccosh_ = without_status<m_apmc_arccosh>;

constexpr const char *kMinusHalfPiText = "-1.57079632679490E+0";
// arccosh 2 = ln(2 + sqrt 3).
constexpr const char *kAcosh2 = "1.31695789692482E+0";
constexpr const char *kMinusAcosh2 = "-1.31695789692482E+0";
// arcsinh 1 = ln(1 + sqrt 2).
constexpr const char *kAsinh1 = "8.81373587019543E-1";

TEST(MapmComplexInverse, ExactCasesAndTheSidesOfTheCuts) {
    const ExactCase cases[] = {
        {"arcsin", arcsin_, "0", "0", 0, kZero, kZero},
        {"arcsin", arcsin_, "1", "0", 0, kHalfPiText, kZero},
        {"arcsin", arcsin_, "-1", "0", 0, kMinusHalfPiText, kZero},
        {"arcsin", arcsin_, "0", "1", 0, kZero, kAsinh1},
        // Real arguments beyond 1 take the root of a negative real, +sqrt|x| i.
        {"arcsin", arcsin_, "2", "0", 0, kHalfPiText, kMinusAcosh2},
        {"arcsin", arcsin_, "-2", "0", 0, kMinusHalfPiText, kAcosh2},
        {"arccos", arccos_, "1", "0", 0, kZero, kZero},
        {"arccos", arccos_, "-1", "0", 0, kPiText, kZero},
        {"arccos", arccos_, "0", "0", 0, kHalfPiText, kZero},
        {"arccos", arccos_, "2", "0", 0, kZero, kAcosh2},
        {"arctan", m_apmc_arctan, "0", "0", 0, kZero, kZero},
        {"arctan", m_apmc_arctan, "0", "1", -1, kZero, kZero},
        {"arctan", m_apmc_arctan, "0", "-1", -1, kZero, kZero},
        {"arcsinh", arcsinh_, "0", "1", 0, kZero, kHalfPiText},
        {"arcsinh", arcsinh_, "0", "2", 0, kAcosh2, kHalfPiText},
        {"arcsinh", arcsinh_, "0", "-2", 0, kMinusAcosh2, kMinusHalfPiText},
        {"arcsinh", arcsinh_, "-1", "0", 0, "-8.81373587019543E-1", kZero},
        {"arccosh", arccosh_, "1", "0", 0, kZero, kZero},
        {"arccosh", arccosh_, "-1", "0", 0, kZero, kPiText},
        {"arccosh", arccosh_, "0", "0", 0, kZero, kHalfPiText},
        {"arctanh", m_apmc_arctanh, "0", "0", 0, kZero, kZero},
        {"arctanh", m_apmc_arctanh, "1", "0", -1, kZero, kZero},
        {"arctanh", m_apmc_arctanh, "-1", "0", -1, kZero, kZero},
        // s = sqrt 3 is rounded to 15 digits before its logarithm is taken, which moves
        // the last digit: arctanh 0.5 itself is 0.549306144334054846.
        {"arctanh", m_apmc_arctanh, "0.5", "0", 0, "5.49306144334056E-1", kZero},
        {"arctanh", m_apmc_arctanh, "2", "0", 0, "5.49306144334056E-1", kHalfPiText},
    };
    for (const auto &c : cases) testing::expect_exact(c);
}

TEST(MapmComplexInverse, FailuresLeaveTheResults) {
    const ExactCase cases[] = {
        {"arctan", m_apmc_arctan, "0", "1", -1, "", ""},
        {"arctan", m_apmc_arctan, "0", "-1", -1, "", ""},
        {"arctanh", m_apmc_arctanh, "1", "0", -1, "", ""},
        {"arctanh", m_apmc_arctanh, "-1", "0", -1, "", ""},
    };
    for (const auto &c : cases) {
        const testing::ComplexResult r = testing::evaluate(c.function, c.re, c.im, "7.5");
        EXPECT_EQ(r.status, -1) << c.name << "(" << c.re << ", " << c.im << ")";
        EXPECT_EQ(testing::text_of(r.re), "7.50000000000000E+0") << c.name;
        EXPECT_EQ(testing::text_of(r.im), "7.50000000000000E+0") << c.name;
    }
}

TEST(MapmComplexInverse, ArcsinhOfARealIsTheRealFunction) {
    for (const char *x : {"1", "-5", "0.001", "1e300", "-1.2345678901234e-200"}) {
        const testing::ComplexResult r = testing::evaluate(arcsinh_, x, "0", "7.5");
        const MapmNumber value = testing::from(x);
        MapmNumber real;
        m_apm_arcsinh(&real, 14, &value);
        EXPECT_EQ(testing::text_of(r.re, 33), testing::text_of(real, 33)) << x;
        EXPECT_EQ(m_apm_sign(&r.im), 0) << x;
        EXPECT_TRUE(m_apm_is_finite(&r.im)) << x;
    }
}

ComplexL reference_arcsin(const ComplexL &z) {
    return std::asin(z);
}
ComplexL reference_arccos(const ComplexL &z) {
    return std::acos(z);
}
ComplexL reference_arctan(const ComplexL &z) {
    return std::atan(z);
}
ComplexL reference_arcsinh(const ComplexL &z) {
    return std::asinh(z);
}
ComplexL reference_arccosh(const ComplexL &z) {
    return std::acosh(z);
}
ComplexL reference_arctanh(const ComplexL &z) {
    return std::atanh(z);
}

constexpr auto arctan_ = m_apmc_arctan;
constexpr auto arctanh_ = m_apmc_arctanh;

// arctan and arctanh keep their quotient at 14 places, whose error near 1 becomes an
// absolute error of the result: small arguments lose relative accuracy.
TEST(MapmComplexInverse, PrincipalValuesOffTheCutsForModerateArguments) {
    const ReferenceCase cases[] = {
        {"arcsin", arcsin_, reference_arcsin},       {"arccos", arccos_, reference_arccos},
        {"arctan", arctan_, reference_arctan, 1},    {"arcsinh", arcsinh_, reference_arcsinh},
        {"arctanh", arctanh_, reference_arctanh, 1},
    };
    unsigned seed = 70;
    for (const auto &c : cases) testing::expect_near_reference(c, seed++, 400, 1e-13L);
}

// arccosh takes ln(z + sqrt(z^2 - 1)): the principal value in the right half-plane, and a
// value whose cosh is z everywhere.
TEST(MapmComplexInverse, ArccoshInvertsCoshEverywhere) {
    testing::Sampler sampler(80);
    for (int n = 0; n < 400; ++n) {
        std::string re, im;
        testing::random_argument(sampler, re, im);
        const testing::ComplexResult r = testing::evaluate(arccosh_, re, im);
        const ComplexL z(std::strtold(re.c_str(), nullptr), std::strtold(im.c_str(), nullptr));
        const ComplexL w = testing::complex_of(r.re, r.im);
        EXPECT_LE(std::abs(std::cosh(w) - z), 1e-13L * std::abs(z)) << re << ", " << im;
        if (z.real() > 0) {
            EXPECT_LE(std::abs(w - std::acosh(z)), 1e-13L * std::abs(w)) << re << ", " << im;
        }
    }
}

constexpr long double kPi = std::numbers::pi_v<long double>;

// A large argument's result is offset + sign * p, p the principal value.
struct LargeCase {
    const char *name;
    testing::ComplexFunction function;
    testing::Reference principal;
    testing::Reference forward;  // the function this one inverts
    const char *re;
    const char *im;
    ComplexL offset;
    int sign;
};

ComplexL forward_sin(const ComplexL &w) {
    return std::sin(w);
}
ComplexL forward_cos(const ComplexL &w) {
    return std::cos(w);
}
ComplexL forward_sinh(const ComplexL &w) {
    return std::sinh(w);
}
ComplexL forward_cosh(const ComplexL &w) {
    return std::cosh(w);
}

// From |z| = 1e4 on (h > 3), a sum that cancels below 1e-3 is replaced by the difference:
// the result is then another solution, still one the function maps back to z.
TEST(MapmComplexInverse, LargeArgumentsThatCancelTakeTheOtherSolution) {
    const LargeCase cases[] = {
        {"arcsin", arcsin_, reference_arcsin, forward_sin, "0.5", "1e5", kPi, -1},
        {"arcsin", arcsin_, reference_arcsin, forward_sin, "-3", "2e6", -kPi, -1},
        {"arcsin", arcsin_, reference_arcsin, forward_sin, "0.5", "-1e5", 0, 1},
        {"arcsin", arcsin_, reference_arcsin, forward_sin, "0.5", "9e3", 0, 1},
        {"arccos", arccos_, reference_arccos, forward_cos, "0.5", "-1e5", 0, -1},
        {"arccos", arccos_, reference_arccos, forward_cos, "0.5", "1e5", 0, 1},
        {"arcsinh", arcsinh_, reference_arcsinh, forward_sinh, "-1e5", "1", {0, kPi}, -1},
        {"arcsinh", arcsinh_, reference_arcsinh, forward_sinh, "1e5", "1", 0, 1},
        {"arccosh", arccosh_, reference_arccosh, forward_cosh, "-1e5", "1", 0, 1},
        {"arccosh", arccosh_, reference_arccosh, forward_cosh, "1e5", "1", 0, 1},
    };
    for (const auto &c : cases) {
        const testing::ComplexResult r = testing::evaluate(c.function, c.re, c.im);
        const ComplexL z(std::strtold(c.re, nullptr), std::strtold(c.im, nullptr));
        const ComplexL w = testing::complex_of(r.re, r.im);
        const ComplexL expected = c.offset + static_cast<long double>(c.sign) * c.principal(z);
        const std::string where = std::string(c.name) + "(" + c.re + ", " + c.im + ")";
        EXPECT_LE(std::abs(w - expected), 1e-13L * std::abs(expected)) << where << " gives " << w;
        EXPECT_LE(std::abs(c.forward(w) - z), 1e-9L * std::abs(z)) << where;
    }
    // Far out the cancellation is total: the real part of arcsin is pi, not about 5e-21.
    const testing::ComplexResult far = testing::evaluate(arcsin_, "0.5", "1e20");
    EXPECT_EQ(testing::text_of(far.re), kPiText);
    EXPECT_EQ(testing::text_of(far.im), "-4.67448490404409E+1");
}

TEST(MapmComplexInverse, OperandsWithoutDigitsGiveNan) {
    const testing::ComplexFunction functions[] = {arcsin_,  arccos_,  arctan_,
                                                  arcsinh_, arccosh_, arctanh_};
    for (const auto function : functions) {
        for (const char *bad : {"inf", "nan"}) {
            const testing::ComplexResult r = testing::evaluate(function, "0.5", bad);
            EXPECT_EQ(testing::text_of(r.re), "nan") << bad;
            EXPECT_EQ(testing::text_of(r.im), "nan") << bad;
        }
    }
}

}  // namespace
}  // namespace quindar
