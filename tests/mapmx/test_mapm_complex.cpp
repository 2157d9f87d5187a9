// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The complex layer's own rules: order relations, whole parts, the Gaussian remainder,
// roots, powers, failures by -1 with untouched results.
#include <gtest/gtest.h>

#include <string>

#include "mapm_complex.h"

namespace quindar {
namespace {

struct Pair {
    MapmNumber re, im;
};

Pair pair(const char *re, const char *im) {
    Pair p;
    m_apm_set_string(&p.re, re);
    m_apm_set_string(&p.im, im);
    return p;
}

std::string text(const MapmNumber &value, int places = 14) {
    char out[kMapmTextSize];
    m_apm_to_string(out, places, &value);
    return out;
}

TEST(ComplexLayer, OrderRelationsPartByPart) {
    const Pair two = pair("2", "0"), one = pair("1", "0"), one_i = pair("1", "1");
    EXPECT_EQ(m_apmc_gt(&two.re, &two.im, &one.re, &one.im), 1);
    EXPECT_EQ(m_apmc_gt(&two.re, &two.im, &one_i.re, &one_i.im), 0);
    EXPECT_EQ(m_apmc_lt(&one_i.re, &one_i.im, &two.re, &two.im), 0);
    EXPECT_EQ(m_apmc_ge(&two.re, &two.im, &two.re, &two.im), 1);
    EXPECT_EQ(m_apmc_le(&one.re, &one.im, &one_i.re, &one_i.im), 1);
    EXPECT_EQ(m_apmc_eq(&one.re, &one.im, &one.re, &one.im), 1);
    EXPECT_EQ(m_apmc_neq(&one.re, &one.im, &one_i.re, &one_i.im), 1);
}

TEST(ComplexLayer, GaussianRemainder) {
    struct Case {
        Pair a, b;
        const char *re, *im;
    };
    const Case table[] = {
        {pair("7.5", "0"), pair("2", "0"), "0.0E+0", "0.0E+0"},
        {pair("-7", "0"), pair("3", "0"), "-1.0E+0", "0.0E+0"},
        {pair("7", "0"), pair("-3", "0"), "1.0E+0", "0.0E+0"},
        {pair("7", "2"), pair("2", "0"), "1.0E+0", "0.0E+0"},
        {pair("5", "3"), pair("2", "1"), "1.0E+0", "1.0E+0"},  // Q = (2.6+0.2i) cut to 2
    };
    for (const auto &c : table) {
        MapmNumber rr, ri;
        ASSERT_EQ(m_apmc_mod(&rr, &ri, 14, &c.a.re, &c.a.im, &c.b.re, &c.b.im), 0);
        EXPECT_EQ(text(rr, 1), c.re) << text(c.a.re) << " % " << text(c.b.re);
        EXPECT_EQ(text(ri, 1), c.im);
    }
    const Pair a = pair("5", "0"), small = pair("0.4", "0");
    MapmNumber rr, ri;
    m_apm_set_zero(&rr);
    m_apm_set_zero(&ri);
    EXPECT_EQ(m_apmc_mod(&rr, &ri, 14, &a.re, &a.im, &small.re, &small.im), -1);
    EXPECT_EQ(m_apm_sign(&rr), 0);
}

TEST(ComplexLayer, WholeParts) {
    const Pair z = pair("2.5", "-2.5");
    MapmNumber rr, ri;
    m_apmc_round(&rr, &ri, &z.re, &z.im);
    EXPECT_EQ(text(rr, 1) + " " + text(ri, 1), "3.0E+0 -3.0E+0");
    m_apmc_fix(&rr, &ri, &z.re, &z.im);
    EXPECT_EQ(text(rr, 1) + " " + text(ri, 1), "2.0E+0 -2.0E+0");
    m_apmc_floor(&rr, &ri, &z.re, &z.im);
    EXPECT_EQ(text(rr, 1) + " " + text(ri, 1), "2.0E+0 -3.0E+0");
    m_apmc_ceil(&rr, &ri, &z.re, &z.im);
    EXPECT_EQ(text(rr, 1) + " " + text(ri, 1), "3.0E+0 -2.0E+0");
}

TEST(ComplexLayer, RootsAndPowers) {
    const Pair minus_four = pair("-4", "0");
    MapmNumber rr, ri;
    m_apmc_sqrt(&rr, &ri, 14, &minus_four.re, &minus_four.im);
    EXPECT_EQ(text(rr), "0.00000000000000E+0");
    EXPECT_EQ(text(ri), "2.00000000000000E+0") << "no negative zero: the root is +2i";
    const Pair zero = pair("0", "0"), power = pair("2", "5");
    m_apm_set_zero(&rr);
    m_apm_set_zero(&ri);
    EXPECT_EQ(m_apmc_pow(&rr, &ri, 14, &zero.re, &zero.im, &zero.re, &zero.im), -1);
    EXPECT_EQ(m_apm_sign(&rr), 0);
    EXPECT_EQ(m_apmc_pow(&rr, &ri, 14, &zero.re, &zero.im, &power.re, &power.im), 0);
    EXPECT_EQ(m_apm_sign(&rr), 0);
    EXPECT_EQ(m_apm_sign(&ri), 0);
    MapmNumber magnitude;
    const Pair three_four = pair("3", "4");
    m_apmc_abs(&magnitude, 14, &three_four.re, &three_four.im);
    EXPECT_EQ(text(magnitude), "5.00000000000000E+0");
}

TEST(ComplexLayer, LogarithmsAndTheirFailures) {
    const Pair zero = pair("0", "0"), minus_one = pair("-1", "0");
    MapmNumber rr, ri;
    EXPECT_EQ(m_apmc_log(&rr, &ri, 14, &zero.re, &zero.im), -1);
    EXPECT_EQ(m_apmc_log10(&rr, &ri, 14, &zero.re, &zero.im), -1);
    ASSERT_EQ(m_apmc_log(&rr, &ri, 14, &minus_one.re, &minus_one.im), 0);
    EXPECT_EQ(text(ri), "3.14159265358979E+0");
    const Pair i = pair("0", "1");
    m_apm_set_zero(&rr);
    EXPECT_EQ(m_apmc_arctan(&rr, &ri, 14, &i.re, &i.im), -1);
    const Pair one = pair("1", "0");
    EXPECT_EQ(m_apmc_arctanh(&rr, &ri, 14, &one.re, &one.im), -1);
}

TEST(ComplexLayer, ArcsinhOfARealStaysReal) {
    const Pair x = pair("1", "0");
    MapmNumber rr, ri;
    m_apmc_arcsinh(&rr, &ri, 14, &x.re, &x.im);
    EXPECT_EQ(text(rr), "8.81373587019543E-1");
    EXPECT_EQ(m_apm_sign(&ri), 0);
}

TEST(ComplexLayer, TangentPoles) {
    // cos of this argument is below 1e-31: a pole within the layer's own test.
    const Pair near_pole = pair("1.570796326794896619231321691639751", "0");
    MapmNumber rr, ri;
    EXPECT_EQ(m_apmc_tan(&rr, &ri, 14, &near_pole.re, &near_pole.im), -1);
    const Pair fine = pair("1", "0");
    ASSERT_EQ(m_apmc_tan(&rr, &ri, 14, &fine.re, &fine.im), 0);
    EXPECT_EQ(text(rr), "1.55740772465490E+0");
    const Pair hyperbolic_pole = pair("0", "1.570796326794896619231321691639751");
    EXPECT_EQ(m_apmc_tanh(&rr, &ri, 14, &hyperbolic_pole.re, &hyperbolic_pole.im), -1);
}

}  // namespace
}  // namespace quindar
