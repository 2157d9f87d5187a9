// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Gaussian remainder, whole parts, order relations and powers of complex numbers.
#include <gtest/gtest.h>

#include <string>

#include "mapm_complex.h"
#include "mapm_test_values.h"

namespace quindar {
namespace {

using testing::from;
using testing::kZero;
using testing::text_of;

using BinaryComplex = int (*)(M_APM, M_APM, int, const MapmNumber *, const MapmNumber *,
                              const MapmNumber *, const MapmNumber *);

struct BinaryCase {
    const char *ar, *ai, *br, *bi;
    int status;
    const char *rr, *ri;  // at 14 places
};

void expect_binary(BinaryComplex function, const char *name, const BinaryCase &c,
                   const char *initial = "0") {
    const MapmNumber ar = from(c.ar), ai = from(c.ai), br = from(c.br), bi = from(c.bi);
    MapmNumber rr = from(initial), ri = from(initial);
    const std::string where =
        std::string(name) + " (" + c.ar + ", " + c.ai + ") (" + c.br + ", " + c.bi + ")";
    EXPECT_EQ(function(&rr, &ri, 14, &ar, &ai, &br, &bi), c.status) << where;
    EXPECT_EQ(text_of(rr), c.rr) << where;
    EXPECT_EQ(text_of(ri), c.ri) << where;
}

TEST(MapmComplexRemainder, RoundsThePartsThenTakesTheGaussianRemainder) {
    const BinaryCase cases[] = {
        {"7.5", "0", "2", "0", 0, kZero, kZero},  // 8 and 2
        {"7.5", "0", "0.4", "0", -1, kZero, kZero},
        {"7.5", "0", "0.4", "0.4", -1, kZero, kZero},
        {"1", "1", "0", "0", -1, kZero, kZero},
        {"-7", "0", "3", "0", 0, "-1.00000000000000E+0", kZero},
        {"7", "0", "-3", "0", 0, "1.00000000000000E+0", kZero},
        {"2.5", "0", "2", "0", 0, "1.00000000000000E+0", kZero},    // 3 and 2
        {"-2.5", "0", "2", "0", 0, "-1.00000000000000E+0", kZero},  // -3 and 2
        {"-0.4", "0", "2", "0", 0, kZero, kZero},
        {"5", "3", "2", "1", 0, "1.00000000000000E+0", "1.00000000000000E+0"},
        {"7", "0", "0", "2", 0, "1.00000000000000E+0", kZero},
        {"4.6", "-2.5", "2", "1", 0, "1.00000000000000E+0", kZero},  // 5 - 3i by 2 + i
        // The quotient keeps 15 digits: beyond them it is no longer whole.
        {"1e20", "0", "3", "0", 0, "1.00000000000000E+5", kZero},
    };
    for (const auto &c : cases) expect_binary(m_apmc_mod, "mod", c);
    for (const auto &c : cases) {
        if (c.status == 0) continue;
        expect_binary(m_apmc_mod, "mod",
                      {c.ar, c.ai, c.br, c.bi, -1, "7.50000000000000E+0", "7.50000000000000E+0"},
                      "7.5");
    }
}

TEST(MapmComplexPower, ZeroBasesAndOrdinaryPowers) {
    const BinaryCase cases[] = {
        {"0", "0", "0", "0", -1, kZero, kZero},
        {"0", "0", "-1", "0", -1, kZero, kZero},
        {"0", "0", "0", "5", -1, kZero, kZero},
        {"0", "0", "2", "5", 0, kZero, kZero},
        {"2", "0", "0.5", "0", 0, "1.41421356237310E+0", kZero},
        {"-8", "0", "0.33333333333333", "0", 0, "1.00000000000001E+0", "1.73205080756885E+0"},
        {"3", "4", "2", "0", 0, "-7.00000000000000E+0", "2.40000000000000E+1"},
        {"10", "0", "400", "0", 0, "1.00000000000001E+400", kZero},
        {"inf", "0", "2", "0", 0, "nan", "nan"},
    };
    for (const auto &c : cases) expect_binary(m_apmc_pow, "pow", c);
    const MapmNumber zero = from("0"), two = from("2"), five = from("5");
    MapmNumber rr = from("7.5"), ri = from("7.5");
    m_apmc_pow(&rr, &ri, 14, &zero, &zero, &two, &five);
    EXPECT_EQ(text_of(rr, kMapmMaxPlaces), text_of(zero, kMapmMaxPlaces));
    EXPECT_EQ(text_of(ri, kMapmMaxPlaces), text_of(zero, kMapmMaxPlaces));
}

struct WholeCase {
    const char *value;
    const char *floor, *ceil, *round, *fix;  // at 14 places
};

using WholeFunction = void (*)(M_APM, M_APM, const MapmNumber *, const MapmNumber *);

TEST(MapmComplexWholeParts, EachPartForItself) {
    const WholeCase cases[] = {
        {"2.5", "2.00000000000000E+0", "3.00000000000000E+0", "3.00000000000000E+0",
         "2.00000000000000E+0"},
        {"-2.5", "-3.00000000000000E+0", "-2.00000000000000E+0", "-3.00000000000000E+0",
         "-2.00000000000000E+0"},
        {"-0.4", "-1.00000000000000E+0", kZero, kZero, kZero},
        {"0.5", kZero, "1.00000000000000E+0", "1.00000000000000E+0", kZero},
        {"-0.5", "-1.00000000000000E+0", kZero, "-1.00000000000000E+0", kZero},
        {"7", "7.00000000000000E+0", "7.00000000000000E+0", "7.00000000000000E+0",
         "7.00000000000000E+0"},
        {"99999999999999.5", "9.99999999999990E+13", "1.00000000000000E+14", "1.00000000000000E+14",
         "9.99999999999990E+13"},
        {"-1e20", "-1.00000000000000E+20", "-1.00000000000000E+20", "-1.00000000000000E+20",
         "-1.00000000000000E+20"},
        {"inf", "inf", "inf", "inf", "inf"},
    };
    struct Part {
        const char *name;
        WholeFunction function;
        const char *WholeCase::*expected;
    };
    const Part parts[] = {
        {"floor", m_apmc_floor, &WholeCase::floor},
        {"ceil", m_apmc_ceil, &WholeCase::ceil},
        {"round", m_apmc_round, &WholeCase::round},
        {"fix", m_apmc_fix, &WholeCase::fix},
    };
    constexpr int kCount = sizeof cases / sizeof cases[0];
    for (const auto &part : parts) {
        for (int n = 0; n < kCount; ++n) {
            // The imaginary part takes the next case's value, so the two parts differ.
            const WholeCase &real = cases[n], &imag = cases[(n + 1) % kCount];
            const MapmNumber ar = from(real.value), ai = from(imag.value);
            MapmNumber rr, ri;
            part.function(&rr, &ri, &ar, &ai);
            EXPECT_EQ(text_of(rr), real.*part.expected) << part.name << " " << real.value;
            EXPECT_EQ(text_of(ri), imag.*part.expected) << part.name << " " << imag.value;
            EXPECT_GE(m_apm_sign(&rr) * (text_of(rr)[0] == '-' ? -1 : 1), 0)
                << part.name << " " << real.value << " gives no negative zero";
        }
    }
}

struct OrderCase {
    const char *ar, *ai, *br, *bi;
    int eq, neq, gt, ge, lt, le;
};

TEST(MapmComplexOrder, PartByPart) {
    const OrderCase cases[] = {
        {"2", "0", "1", "0", 0, 1, 1, 1, 0, 0},      {"2", "0", "1", "1", 0, 1, 0, 0, 0, 0},
        {"1", "2", "2", "1", 0, 1, 0, 0, 0, 0},      {"1", "2", "1", "2", 1, 0, 0, 1, 0, 1},
        {"1", "1", "1", "2", 0, 1, 0, 0, 1, 1},      {"-1", "0", "0", "0", 0, 1, 0, 0, 1, 1},
        {"0.1", "0", "1e-1", "0", 1, 0, 0, 1, 0, 1},
    };
    using Relation =
        int (*)(const MapmNumber *, const MapmNumber *, const MapmNumber *, const MapmNumber *);
    struct Named {
        const char *name;
        Relation relation;
        int OrderCase::*expected;
    };
    const Named relations[] = {
        {"eq", m_apmc_eq, &OrderCase::eq}, {"neq", m_apmc_neq, &OrderCase::neq},
        {"gt", m_apmc_gt, &OrderCase::gt}, {"ge", m_apmc_ge, &OrderCase::ge},
        {"lt", m_apmc_lt, &OrderCase::lt}, {"le", m_apmc_le, &OrderCase::le},
    };
    for (const auto &c : cases) {
        const MapmNumber ar = from(c.ar), ai = from(c.ai), br = from(c.br), bi = from(c.bi);
        for (const auto &r : relations) {
            EXPECT_EQ(r.relation(&ar, &ai, &br, &bi), c.*r.expected)
                << r.name << " (" << c.ar << ", " << c.ai << ") (" << c.br << ", " << c.bi << ")";
        }
    }
}

TEST(MapmComplexSquare, IsExactWhereItFits) {
    struct Case {
        const char *re, *im, *rr, *ri;  // at 33 places
    };
    const Case cases[] = {
        {"3", "4", "-7.000000000000000000000000000000000E+0",
         "2.400000000000000000000000000000000E+1"},
        {"1.2345678901234", "0", "1.524157875323743455267227560000000E+0",
         "0.000000000000000000000000000000000E+0"},
        {"0", "-2", "-4.000000000000000000000000000000000E+0",
         "0.000000000000000000000000000000000E+0"},
    };
    for (const auto &c : cases) {
        const MapmNumber re = from(c.re), im = from(c.im);
        MapmNumber rr, ri;
        m_apmc_sqr(&rr, &ri, &re, &im);
        EXPECT_EQ(text_of(rr, kMapmMaxPlaces), c.rr) << c.re << ", " << c.im;
        EXPECT_EQ(text_of(ri, kMapmMaxPlaces), c.ri) << c.re << ", " << c.im;
    }
}

}  // namespace
}  // namespace quindar
