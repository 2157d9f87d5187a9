// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Table runners for the complex functions: exact texts of chosen cases, agreement with
// the C library's complex functions on random arguments, and exact symmetries.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <string>

#include "mapm_complex.h"
#include "mapm_test_values.h"

namespace quindar::testing {

// Every complex function of one operand as one type: a status, 0 for the void ones.
using ComplexFunction = int (*)(M_APM, M_APM, int, const MapmNumber *, const MapmNumber *);
using VoidComplexFunction = void (*)(M_APM, M_APM, int, const MapmNumber *, const MapmNumber *);

template <VoidComplexFunction function>
int without_status(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai) {
    function(rr, ri, digits, ar, ai);
    return 0;
}

struct ComplexResult {
    int status;
    MapmNumber re;
    MapmNumber im;
};

// Results start at `initial`, as the engine's start at 0.
inline ComplexResult evaluate(ComplexFunction function, const std::string &re,
                              const std::string &im, const char *initial = "0") {
    const MapmNumber a = from(re), b = from(im);
    ComplexResult result{0, from(initial), from(initial)};
    result.status = function(&result.re, &result.im, 14, &a, &b);
    return result;
}

struct ExactCase {
    const char *name;
    ComplexFunction function;
    const char *re;
    const char *im;
    int status;
    const char *expected_re;  // at 14 places
    const char *expected_im;
};

inline void expect_exact(const ExactCase &c) {
    const ComplexResult r = evaluate(c.function, c.re, c.im);
    const std::string where = std::string(c.name) + "(" + c.re + ", " + c.im + ")";
    EXPECT_EQ(r.status, c.status) << where;
    EXPECT_EQ(text_of(r.re), c.expected_re) << where;
    EXPECT_EQ(text_of(r.im), c.expected_im) << where;
}

// An argument with parts of 14 digits, each between 0.01 and 100 in size, of either sign.
inline void random_argument(Sampler &s, std::string &re, std::string &im) {
    re = s.magnitude(-2, 1, true);
    im = s.magnitude(-2, 1, true);
}

using Reference = ComplexL (*)(const ComplexL &);

struct ReferenceCase {
    const char *name;
    ComplexFunction function;
    Reference reference;
    // Where an algorithm's error is absolute rather than relative, the size below which
    // the tolerance stops shrinking with the value; 0 for relative throughout.
    long double least_size = 0;
};

// The layer's value within `tolerance` of the reference, relative to the reference's
// size (or the case's least size); `samples` random arguments.
inline void expect_near_reference(const ReferenceCase &c, unsigned seed, int samples,
                                  long double tolerance) {
    Sampler sampler(seed);
    for (int n = 0; n < samples; ++n) {
        std::string re, im;
        random_argument(sampler, re, im);
        const ComplexResult r = evaluate(c.function, re, im);
        ASSERT_EQ(r.status, 0) << c.name << "(" << re << ", " << im << ")";
        const ComplexL z(std::strtold(re.c_str(), nullptr), std::strtold(im.c_str(), nullptr));
        const ComplexL expected = c.reference(z);
        const ComplexL actual = complex_of(r.re, r.im);
        ASSERT_LE(std::abs(actual - expected),
                  tolerance * std::max(std::abs(expected), c.least_size))
            << c.name << "(" << re << ", " << im << ") gives " << actual << ", expected "
            << expected;
    }
}

}  // namespace quindar::testing
