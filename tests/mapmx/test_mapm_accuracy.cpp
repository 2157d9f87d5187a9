// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Every real function against a binary reference at 200 bits, rounded to 15 significant
// digits by decimal string arithmetic: on 14-digit arguments, as the engine feeds them,
// over each function's domain, near its awkward points included. The functions round
// once, so not one result may differ.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "mapm_functions.h"
#include "mapm_test_values.h"

namespace quindar {
namespace {

using testing::Sampler;

constexpr int kSamples = 1500;
constexpr int kPlaces = 14;
constexpr mpfr_prec_t kReferenceBits = 200;

class Binary {
public:
    explicit Binary(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
    ~Binary() { mpfr_clear(value_); }
    Binary(const Binary &) = delete;
    Binary &operator=(const Binary &) = delete;
    mpfr_ptr get() { return value_; }

private:
    mpfr_t value_;
};

// The argument in binary with room for its integer digits, so that a periodic function
// of a large argument sees the argument and not its rounding.
void set_argument(Binary &out, const std::string &text) {
    Binary probe(64);
    mpfr_set_str(probe.get(), text.c_str(), 10, MPFR_RNDN);
    const mpfr_exp_t exponent = mpfr_zero_p(probe.get()) ? 0 : mpfr_get_exp(probe.get());
    mpfr_set_prec(out.get(), kReferenceBits + 128 + std::max<mpfr_prec_t>(0, exponent));
    mpfr_set_str(out.get(), text.c_str(), 10, MPFR_RNDN);
}

// A little, between 1e-13 and 0.1.
long double little(Sampler &s) {
    return s.uniform(1, 10) * std::pow(10.0L, -s.integer(2, 14));
}

std::string near_one(Sampler &s) {
    return testing::engine_text(s.integer(0, 1) ? 1 + little(s) : 1 - little(s));
}

// Near a multiple of pi/2, up to a million of them, cut to 14 digits.
std::string near_half_pi_multiple(Sampler &s) {
    Binary multiple(kReferenceBits);
    mpfr_const_pi(multiple.get(), MPFR_RNDN);
    mpfr_mul_si(multiple.get(), multiple.get(), s.integer(-2000000, 2000000), MPFR_RNDN);
    mpfr_div_2ui(multiple.get(), multiple.get(), 1, MPFR_RNDN);
    if (mpfr_zero_p(multiple.get())) return "1.5707963267949";
    return testing::rounded_text(multiple.get(), 13);
}

// The ways of drawing an argument; a function's domain takes them in turn.
using Draw = std::string (*)(Sampler &);

std::string positive_any(Sampler &s) {
    return s.magnitude(-300, 300, false);
}
std::string signed_any(Sampler &s) {
    return s.magnitude(-300, 300, true);
}
std::string signed_small(Sampler &s) {
    return s.magnitude(-20, 0, true);
}
std::string signed_moderate(Sampler &s) {
    return s.magnitude(-30, 30, true);
}
std::string signed_periodic(Sampler &s) {
    return s.magnitude(-20, 300, true);
}
std::string signed_tanh(Sampler &s) {
    return s.magnitude(-20, 2, true);
}
std::string fraction(Sampler &s) {
    return s.magnitude(-20, -1, true);
}
std::string to_700(Sampler &s) {
    return s.interval(-700, 700);
}
std::string to_14000(Sampler &s) {
    return s.interval(-14000, 14000);
}
std::string to_10(Sampler &s) {
    return s.interval(-10, 10);
}
std::string to_5(Sampler &s) {
    return s.interval(-5, 5);
}
std::string to_1(Sampler &s) {
    return s.interval(-1, 1);
}
std::string just_inside_one(Sampler &s) {
    return testing::engine_text((s.integer(0, 1) ? 1 : -1) * (1 - little(s)));
}
std::string just_above_one(Sampler &s) {
    return testing::engine_text(1 + little(s));
}
std::string above_one(Sampler &s) {
    return s.magnitude(0, 300, false);
}

using LayerFunction = void (*)(M_APM, int, const MapmNumber *);
using ReferenceFunction = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

struct UnaryCase {
    const char *name;
    LayerFunction layer;
    ReferenceFunction reference;
    std::vector<Draw> domain;
};

const UnaryCase kUnaryCases[] = {
    {"sqrt", m_apm_sqrt, mpfr_sqrt, {positive_any, near_one}},
    {"exp", m_apm_exp, mpfr_exp, {to_700, signed_small, to_14000}},
    {"log", m_apm_log, mpfr_log, {positive_any, near_one}},
    {"log10", m_apm_log10, mpfr_log10, {positive_any, near_one}},
    {"sin", m_apm_sin, mpfr_sin, {signed_periodic, to_10, near_half_pi_multiple}},
    {"cos", m_apm_cos, mpfr_cos, {signed_periodic, to_10, near_half_pi_multiple}},
    {"tan", m_apm_tan, mpfr_tan, {signed_periodic, to_10, near_half_pi_multiple}},
    {"arcsin", m_apm_arcsin, mpfr_asin, {to_1, just_inside_one, fraction}},
    {"arccos", m_apm_arccos, mpfr_acos, {to_1, just_inside_one, fraction}},
    {"arctan", m_apm_arctan, mpfr_atan, {signed_moderate, to_5}},
    {"sinh", m_apm_sinh, mpfr_sinh, {to_700, signed_small, to_14000}},
    {"cosh", m_apm_cosh, mpfr_cosh, {to_700, signed_small, to_14000}},
    {"tanh", m_apm_tanh, mpfr_tanh, {signed_tanh}},
    {"arcsinh", m_apm_arcsinh, mpfr_asinh, {signed_any}},
    {"arccosh", m_apm_arccosh, mpfr_acosh, {above_one, just_above_one}},
    {"arctanh", m_apm_arctanh, mpfr_atanh, {to_1, just_inside_one, fraction}},
};

std::string reference_text(ReferenceFunction function, const std::string &argument) {
    Binary x(kReferenceBits), y(kReferenceBits);
    set_argument(x, argument);
    function(y.get(), x.get(), MPFR_RNDN);
    return testing::rounded_text(y.get(), kPlaces);
}

TEST(MapmAccuracy, UnaryFunctionsRoundTheTrueValueOnce) {
    unsigned seed = 1;
    for (const UnaryCase &c : kUnaryCases) {
        Sampler sampler(seed++);
        int mismatches = 0;
        for (int n = 0; n < kSamples; ++n) {
            const std::string argument = c.domain[n % c.domain.size()](sampler);
            const MapmNumber x = testing::from(argument);
            MapmNumber result;
            c.layer(&result, kPlaces, &x);
            const std::string expected = reference_text(c.reference, argument);
            if (testing::text_of(result) == expected) continue;
            if (++mismatches <= 5) {
                ADD_FAILURE() << c.name << "(" << argument << ") gives " << testing::text_of(result)
                              << ", expected " << expected;
            }
        }
        EXPECT_EQ(mismatches, 0) << c.name << " over " << kSamples << " arguments";
    }
}

// Pairs whose power stays within the range of doubles, a negative base with a whole
// exponent every fifth time.
void power_operands(Sampler &s, int n, std::string &x, std::string &y) {
    if (n % 5 == 0) {
        x = s.interval(-10, -0.1L);
        y = std::to_string(s.integer(-20, 20));
        return;
    }
    do {
        x = s.magnitude(-10, 10, false);
        y = s.interval(-30, 30);
    } while (std::fabs(std::strtold(y.c_str(), nullptr) *
                       std::log10(std::strtold(x.c_str(), nullptr))) > 300);
}

void angle_operands(Sampler &s, int n, std::string &y, std::string &x) {
    y = n % 50 == 0 ? "0" : s.magnitude(-20, 20, true);
    x = n % 50 == 1 ? "0" : s.magnitude(-20, 20, true);
}

using LayerBinary = void (*)(M_APM, int, const MapmNumber *, const MapmNumber *);
using ReferenceBinary = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);
using PairDomain = void (*)(Sampler &, int, std::string &, std::string &);

struct BinaryCase {
    const char *name;
    LayerBinary layer;
    ReferenceBinary reference;
    PairDomain domain;
};

const BinaryCase kBinaryCases[] = {
    {"pow", m_apm_pow, mpfr_pow, power_operands},
    {"arctan2", m_apm_arctan2, mpfr_atan2, angle_operands},
};

TEST(MapmAccuracy, FunctionsOfTwoArgumentsRoundTheTrueValueOnce) {
    unsigned seed = 100;
    for (const BinaryCase &c : kBinaryCases) {
        Sampler sampler(seed++);
        int mismatches = 0;
        for (int n = 0; n < kSamples; ++n) {
            std::string first, second;
            c.domain(sampler, n, first, second);
            const MapmNumber a = testing::from(first), b = testing::from(second);
            MapmNumber result;
            c.layer(&result, kPlaces, &a, &b);
            Binary x(kReferenceBits), y(kReferenceBits), value(kReferenceBits);
            set_argument(x, first);
            set_argument(y, second);
            c.reference(value.get(), x.get(), y.get(), MPFR_RNDN);
            const std::string expected = testing::rounded_text(value.get(), kPlaces);
            if (testing::text_of(result) == expected) continue;
            if (++mismatches <= 5) {
                ADD_FAILURE() << c.name << "(" << first << ", " << second << ") gives "
                              << testing::text_of(result) << ", expected " << expected;
            }
        }
        EXPECT_EQ(mismatches, 0) << c.name << " over " << kSamples << " argument pairs";
    }
}

}  // namespace
}  // namespace quindar
