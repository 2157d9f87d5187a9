// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Real functions at their exact values, domain edges and non-finite operands; whole
// powers that land on a rounding tie; whole parts; the constants.
#include <gtest/gtest.h>

#include <string>

#include "mapm_constants.h"
#include "mapm_functions.h"
#include "mapm_test_values.h"

namespace quindar {
namespace {

using testing::from;
using testing::text_of;

using Unary = void (*)(M_APM, int, const MapmNumber *);

struct UnaryCase {
    const char *name;
    Unary function;
    const char *argument;
    const char *expected;  // at 14 places
};

TEST(MapmFunctions, ExactValuesEdgesAndNonFiniteOperands) {
    const UnaryCase cases[] = {
        {"exp", m_apm_exp, "0", "1.00000000000000E+0"},
        {"exp", m_apm_exp, "1", "2.71828182845905E+0"},
        {"exp", m_apm_exp, "-inf", "0.00000000000000E+0"},
        {"exp", m_apm_exp, "20000", "inf"},
        {"exp", m_apm_exp, "-20000", "0.00000000000000E+0"},
        {"log", m_apm_log, "1", "0.00000000000000E+0"},
        {"log", m_apm_log, "0", "-inf"},
        {"log", m_apm_log, "-1", "nan"},
        {"log10", m_apm_log10, "100", "2.00000000000000E+0"},
        {"log10", m_apm_log10, "0.001", "-3.00000000000000E+0"},
        {"log10", m_apm_log10, "1e-300", "-3.00000000000000E+2"},
        {"log10", m_apm_log10, "2", "3.01029995663981E-1"},
        {"sin", m_apm_sin, "0", "0.00000000000000E+0"},
        {"sin", m_apm_sin, "3.1415926535898", "-6.76153735661672E-15"},
        {"sin", m_apm_sin, "inf", "nan"},
        {"cos", m_apm_cos, "0", "1.00000000000000E+0"},
        {"tan", m_apm_tan, "0", "0.00000000000000E+0"},
        {"tan", m_apm_tan, "0.78539816339745", "1.00000000000000E+0"},
        {"tan", m_apm_tan, "1.5707963267949", "-2.95790719553274E+14"},
        {"arcsin", m_apm_arcsin, "1", "1.57079632679490E+0"},
        {"arcsin", m_apm_arcsin, "-0.5", "-5.23598775598299E-1"},
        {"arcsin", m_apm_arcsin, "1.0000000000001", "nan"},
        {"arccos", m_apm_arccos, "-1", "3.14159265358979E+0"},
        {"arccos", m_apm_arccos, "1", "0.00000000000000E+0"},
        {"arctan", m_apm_arctan, "1", "7.85398163397448E-1"},
        {"arctan", m_apm_arctan, "inf", "1.57079632679490E+0"},
        {"arctan", m_apm_arctan, "-1e300", "-1.57079632679490E+0"},
        {"sinh", m_apm_sinh, "0", "0.00000000000000E+0"},
        {"sinh", m_apm_sinh, "-1", "-1.17520119364380E+0"},
        {"cosh", m_apm_cosh, "0", "1.00000000000000E+0"},
        {"tanh", m_apm_tanh, "40", "1.00000000000000E+0"},
        {"tanh", m_apm_tanh, "-inf", "-1.00000000000000E+0"},
        {"arcsinh", m_apm_arcsinh, "0", "0.00000000000000E+0"},
        {"arcsinh", m_apm_arcsinh, "1", "8.81373587019543E-1"},
        {"arccosh", m_apm_arccosh, "1", "0.00000000000000E+0"},
        {"arccosh", m_apm_arccosh, "0.5", "nan"},
        {"arctanh", m_apm_arctanh, "0.5", "5.49306144334055E-1"},
        {"arctanh", m_apm_arctanh, "1", "inf"},
        {"arctanh", m_apm_arctanh, "-1", "-inf"},
        {"sqrt", m_apm_sqrt, "2", "1.41421356237310E+0"},
        {"sqrt", m_apm_sqrt, "0", "0.00000000000000E+0"},
    };
    for (const auto &c : cases) {
        const MapmNumber x = from(c.argument);
        MapmNumber r;
        c.function(&r, 14, &x);
        EXPECT_EQ(text_of(r), c.expected) << c.name << "(" << c.argument << ")";
    }
}

TEST(MapmFunctions, PlacesDecideTheOneRounding) {
    const MapmNumber one = from("1");
    struct Case {
        int places;
        const char *expected;
    };
    const Case cases[] = {
        {0, "3E+0"},
        {5, "2.71828E+0"},
        {20, "2.71828182845904523536E+0"},
        {33, "2.718281828459045235360287471352662E+0"},
    };
    for (const auto &c : cases) {
        MapmNumber r;
        m_apm_exp(&r, c.places, &one);
        EXPECT_EQ(text_of(r, c.places), c.expected) << c.places;
    }
}

struct PowerCase {
    const char *x;
    const char *y;
    const char *expected;
};

TEST(MapmFunctions, PowersAndExactTies) {
    const PowerCase cases[] = {
        {"2", "10", "1.02400000000000E+3"},
        {"2", "-1", "5.00000000000000E-1"},
        {"-2", "3", "-8.00000000000000E+0"},
        {"-2", "-2", "2.50000000000000E-1"},
        {"2", "0.5", "1.41421356237310E+0"},
        {"10", "-300", "1.00000000000000E-300"},
        {"0", "2", "0.00000000000000E+0"},
        {"0", "0", "1.00000000000000E+0"},
        {"0", "-1", "inf"},
        {"-8", "0.33333333333333", "nan"},
        // 3.1622795^2 = 10.00001163612025, 3.1622825^2 = 10.00003060980625 and
        // 1.00005^3 = 1.000150007500125 exactly:
        // ties at 15 digits, which go away from zero (a binary power alone misses them).
        {"3.1622795", "2", "1.00000116361203E+1"},
        {"-3.1622825", "2", "1.00000306098063E+1"},
        {"1.00005", "3", "1.00015000750013E+0"},
        {"-1.00005", "3", "-1.00015000750013E+0"},
    };
    for (const auto &c : cases) {
        const MapmNumber x = from(c.x), y = from(c.y);
        MapmNumber r;
        m_apm_pow(&r, 14, &x, &y);
        EXPECT_EQ(text_of(r), c.expected) << c.x << " ^ " << c.y;
    }
}

struct WholeCase {
    const char *value;
    const char *floor;
    const char *ceil;
};

TEST(MapmFunctions, FloorAndCeilingHaveNoNegativeZero) {
    const WholeCase cases[] = {
        {"2.5", "2.0E+0", "3.0E+0"},       {"-2.5", "-3.0E+0", "-2.0E+0"},
        {"-0.5", "-1.0E+0", "0.0E+0"},     {"0.5", "0.0E+0", "1.0E+0"},
        {"7", "7.0E+0", "7.0E+0"},         {"99999999999999.9", "9.9999999999999E+13", "1.0E+14"},
        {"-1e20", "-1.0E+20", "-1.0E+20"},
    };
    for (const auto &c : cases) {
        const MapmNumber x = from(c.value);
        MapmNumber low, high;
        m_apm_floor(&low, &x);
        m_apm_ceil(&high, &x);
        const int places = c.floor[0] == '9' ? 13 : 1;
        EXPECT_EQ(text_of(low, places), c.floor) << c.value;
        EXPECT_EQ(text_of(high, 1), c.ceil) << c.value;
        EXPECT_GE(m_apm_sign(&high) * (c.ceil[0] == '-' ? -1 : 1), 0) << c.value;
    }
}

struct ConstantCase {
    const char *name;
    const MapmNumber *(*constant)();
    const char *expected;  // at 33 places
};

TEST(MapmConstants, CarryAllThirtyFourDigits) {
    const ConstantCase cases[] = {
        {"MM_Zero", MM_Zero, "0.000000000000000000000000000000000E+0"},
        {"MM_One", MM_One, "1.000000000000000000000000000000000E+0"},
        {"MM_Two", MM_Two, "2.000000000000000000000000000000000E+0"},
        {"MM_0_5", MM_0_5, "5.000000000000000000000000000000000E-1"},
        {"MM_M0_5", MM_M0_5, "-5.000000000000000000000000000000000E-1"},
        {"MM_PI", MM_PI, "3.141592653589793238462643383279502E+0"},
        {"MM_HALF_PI", MM_HALF_PI, "1.570796326794896619231321691639751E+0"},
        {"MM_2_PI", MM_2_PI, "6.283185307179586476925286766559005E+0"},
        {"MM_E", MM_E, "2.718281828459045235360287471352662E+0"},
        {"MM_LOG_10_BASE_E", MM_LOG_10_BASE_E, "2.302585092994045684017991454684364E+0"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(text_of(*c.constant(), kMapmMaxPlaces), c.expected) << c.name;
        EXPECT_EQ(c.constant(), c.constant()) << c.name << " is made once";
    }
}

TEST(MapmConstants, AgreeWithTheFunctions) {
    MapmNumber r;
    m_apm_arccos(&r, kMapmMaxPlaces, MM_Zero());
    EXPECT_EQ(text_of(r, 32), text_of(*MM_HALF_PI(), 32));
    m_apm_log(&r, kMapmMaxPlaces, MM_E());
    EXPECT_EQ(text_of(r, 30), text_of(*MM_One(), 30));
    const MapmNumber ten = from("10");
    m_apm_log(&r, kMapmMaxPlaces, &ten);
    EXPECT_EQ(text_of(r, 32), text_of(*MM_LOG_10_BASE_E(), 32));
}

}  // namespace
}  // namespace quindar
