// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Every real function against MPFR at 200 bits: the argument cut to 14 significant
// digits as every operand is, the reference rounded once to 15 digits ties away from
// zero, then read back as the engine reads its results.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

#include "exact_decimal.h"
#include "parser.h"

namespace quindar {
namespace {

using Reference = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

struct FunctionCase {
    const char *name;
    Reference reference;
    double low, high;
    bool logarithmic;      // sample the magnitude evenly in its logarithm
    int allowed;           // last-digit differences that the function's own formula explains
    const char *why;       // the rule behind them
    double bound = 2e-14;  // largest difference relative to max(|value|, floor)
    double floor = 0;      // an absolute bound where the rule loses digits near 0
};

double reference_value(Reference f, double x) {
    char operand[64];
    std::snprintf(operand, sizeof operand, "%.14Lg", static_cast<long double>(x));
    mpfr_t a, r;
    mpfr_inits2(200, a, r, static_cast<mpfr_ptr>(nullptr));
    mpfr_set_str(a, operand, 10, MPFR_RNDN);
    f(r, a, MPFR_RNDN);
    mpfr_exp_t exponent = 0;
    char *digits = mpfr_get_str(nullptr, &exponent, 10, 45, r, MPFR_RNDN);
    std::string text = digits;
    mpfr_free_str(digits);
    mpfr_clears(a, r, static_cast<mpfr_ptr>(nullptr));
    const bool negative = text[0] == '-';
    if (negative) text.erase(0, 1);
    const std::string decimal = (negative ? "-0." : "0.") + text + "E" + std::to_string(exponent);
    const std::string rounded = testing::ExactDecimal::parse(decimal).to_scientific(14);
    return static_cast<double>(std::strtold(rounded.c_str(), nullptr));
}

class Accuracy : public ::testing::TestWithParam<FunctionCase> {};

TEST_P(Accuracy, MatchesTheReferenceToTheLastDigit) {
    const FunctionCase &c = GetParam();
    Parser parser("", "");
    parser.angle_mode = 1;
    parser.answer_format->zero_precision = 0;  // tiny results stay as they are
    std::mt19937_64 engine(std::hash<std::string>{}(c.name));
    int mismatches = 0;
    std::string first;
    for (int n = 0; n < 1000; ++n) {
        double x;
        if (c.logarithmic) {
            x = std::exp(
                std::uniform_real_distribution<double>(std::log(c.low), std::log(c.high))(engine));
        } else {
            x = std::uniform_real_distribution<double>(c.low, c.high)(engine);
        }
        char line[96];
        // The literal carries the 14 digits the operand is cut to anyway.
        std::snprintf(line, sizeof line, "%s[%.14g]", c.name, x);
        x = std::strtod(line + std::strlen(c.name) + 1, nullptr);
        complex result;
        parser.eval_exp(line, result, true, false);
        ASSERT_FALSE(parser.IsAnError()) << line << ": " << parser.GetLastError();
        const double expected = reference_value(c.reference, x);
        // Any difference is in the last of the 15 digits, never beyond.
        EXPECT_LE(std::fabs(result.real - expected),
                  c.bound * std::max(std::fabs(expected), c.floor))
            << line;
        if (result.real != expected) {
            if (first.empty()) {
                char text[160];
                std::snprintf(text, sizeof text, "%s gives %.17g, reference %.17g", line,
                              result.real, expected);
                first = text;
            }
            ++mismatches;
        }
    }
    EXPECT_LE(mismatches, c.allowed) << c.name << ", first: " << first << "; " << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    RealFunctions, Accuracy,
    ::testing::Values(
        FunctionCase{"SQRT", mpfr_sqrt, 1e-10, 1e10, true, 0, ""},
        FunctionCase{"LN", mpfr_log, 1e-10, 1e10, true, 5,
                     "the logarithm is rounded at 17 digits before the answer's 15"},
        FunctionCase{"LOG10", mpfr_log10, 1e-10, 1e10, true, 5,
                     "the logarithm is rounded at 17 digits before the answer's 15"},
        FunctionCase{"EXP", mpfr_exp, -50, 50, false, 5,
                     "the exponential is rounded at 17 digits before the answer's 15"},
        FunctionCase{"SIN", mpfr_sin, -100, 100, false, 5,
                     "the sine is rounded at 17 digits before the answer's 15"},
        FunctionCase{"COS", mpfr_cos, -100, 100, false, 5,
                     "the cosine is rounded at 17 digits before the answer's 15"},
        FunctionCase{"TAN", mpfr_tan, -1.5, 1.5, false, 0, ""},
        FunctionCase{"SINH", mpfr_sinh, -20, 20, false, 5,
                     "the sinh is rounded at 17 digits before the answer's 15"},
        FunctionCase{"COSH", mpfr_cosh, -20, 20, false, 5,
                     "the cosh is rounded at 17 digits before the answer's 15"},
        FunctionCase{"TANH", mpfr_tanh, -5, 5, false, 0, ""},
        FunctionCase{"ASIN", mpfr_asin, -1, 1, false, 5,
                     "the angle of 1 - z^2's root plus iz is rounded at 29 digits first"},
        FunctionCase{"ACOS", mpfr_acos, -1, 1, false, 5,
                     "the angle of 1 - z^2's root plus iz is rounded at 29 digits first"},
        FunctionCase{"ATAN", mpfr_atan, -100, 100, false, 40,
                     "the quotient (1+iz)/(1-iz) and its root are rounded to 15 digits before "
                     "the logarithm"},
        FunctionCase{"ASINH", mpfr_asinh, -1e5, 1e5, false, 5,
                     "the real function is rounded at 15 digits once"},
        FunctionCase{"ACOSH", mpfr_acosh, 1, 1e5, false, 10,
                     "the root of z^2 - 1 is rounded at 18 digits and the logarithm at 17"},
        FunctionCase{
            "ATANH", mpfr_atanh, -0.99, 0.99, false, 700,
            "the quotient (1+z)/(1-z) and its root are rounded to 15 digits before "
            "the logarithm, which then carries their error into the last digit; near 0 the "
            "answer is small and the error stays absolute, below 1e-14",
            1e-14, 1.0}),
    [](const ::testing::TestParamInfo<FunctionCase> &param) {
        return std::string(param.param.name);
    });

}  // namespace
}  // namespace quindar
