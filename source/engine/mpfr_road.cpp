// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mpfr_road.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

#include <gmp.h>
#include <mpfr.h>

#include "mpfr_value.h"

namespace quindar::exact {

namespace {

using Wide = U128;

constexpr mpfr_prec_t kBits = 128;
// Powers of ten up to 10^55 are exact in 128 bits (5^55 needs 128).
constexpr int kExactPower = 55;
// The decimal layer's own binary values (256 bits and more) lie within this relative
// distance of the true ones; a decision must hold for them too.
const double kRoadError = std::ldexp(1.0, -240);
const double kUnit = std::ldexp(1.0, -kBits + 1);  // a relative rounding error of kBits bits
// Beyond this exp(y) leaves the double range the result must reach anyway.
constexpr double kLargestExponent = 700;

// A value of the road's width.
class Wide128 : public MpfrValue {
public:
    Wide128() : MpfrValue(kBits) {}
};

// n * 10^exponent with one rounding (relative error at most kUnit / 2).
bool set_decimal(mpfr_ptr out, Wide n, int exponent) {
    if (exponent > kExactPower || exponent < -kExactPower) return false;
    static_assert(sizeof(unsigned long) == 8, "a machine word of 64 bits");
    mpfr_set_ui(out, static_cast<unsigned long>(n >> 64), MPFR_RNDN);
    mpfr_mul_2ui(out, out, 64, MPFR_RNDN);
    mpfr_add_ui(out, out, static_cast<unsigned long>(n), MPFR_RNDN);  // exact: n < 2^128
    if (exponent == 0) return true;
    Wide128 power;
    mpfr_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(std::abs(exponent)), MPFR_RNDN);
    if (exponent > 0)
        mpfr_mul(out, out, power.get(), MPFR_RNDN);
    else
        mpfr_div(out, out, power.get(), MPFR_RNDN);
    return true;
}

// |v| rounded to `digits` (17 or 18) significant digits, ties away from zero, where v lies
// within `error` (relative) of the value meant; false when that bound does not decide it.
bool round_to_digits(mpfr_ptr v, double error, int digits, Decimal &result) {
    const double kLow = std::pow(10.0, digits - 1), kHigh = 10 * kLow;
    const double approximate = std::fabs(mpfr_get_d(v, MPFR_RNDN));
    if (!(approximate > 1e-300 && approximate < 1e300)) return false;
    int scale = digits - 1 - static_cast<int>(std::floor(std::log10(approximate)));
    Wide128 scaled, power;
    for (int tries = 0; tries < 2; ++tries) {
        if (scale > kExactPower || scale < -kExactPower) return false;
        mpfr_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(std::abs(scale)), MPFR_RNDN);
        if (scale >= 0)
            mpfr_mul(scaled.get(), v, power.get(), MPFR_RNDN);
        else
            mpfr_div(scaled.get(), v, power.get(), MPFR_RNDN);
        mpfr_abs(scaled.get(), scaled.get(), MPFR_RNDN);
        if (mpfr_cmp_d(scaled.get(), kHigh) >= 0) {
            --scale;
        } else if (mpfr_cmp_d(scaled.get(), kLow) < 0) {
            ++scale;
        } else {
            break;
        }
    }
    // With the scaling's own rounding, the scaled value lies within `slack` of the scaled
    // value meant (it is below 10^17).
    const double slack = kHigh * (error + kUnit) + 1e-9;
    if (mpfr_cmp_d(scaled.get(), kLow + slack) < 0 || mpfr_cmp_d(scaled.get(), kHigh - slack) > 0)
        return false;  // too near a change of decade to know the digits' places
    const unsigned long whole = mpfr_get_ui(scaled.get(), MPFR_RNDZ);
    mpfr_sub_ui(scaled.get(), scaled.get(), whole, MPFR_RNDN);  // exact: the fraction
    const double fraction = mpfr_get_d(scaled.get(), MPFR_RNDN);
    if (std::fabs(fraction - 0.5) <= slack) return false;
    result = Decimal{false, static_cast<std::uint64_t>(whole + (fraction > 0.5 ? 1 : 0)), -scale};
    return true;
}

// ln x of a positive x with its sign, at `digits`; 0 for x = 1.
bool logarithm_of(mpfr_ptr x, int digits, Decimal &result) {
    Wide128 value;
    mpfr_log(value.get(), x, MPFR_RNDN);
    result = Decimal{};
    if (mpfr_zero_p(value.get())) return true;
    // x is within kUnit / 2 of the operand, so the logarithm within kUnit / 2 (absolute),
    // and the logarithm's own rounding adds kUnit / 2 of it (relative).
    const double magnitude = std::fabs(mpfr_get_d(value.get(), MPFR_RNDN));
    const double error = kUnit / magnitude + kUnit + kRoadError;
    if (!round_to_digits(value.get(), error, digits, result)) return false;
    result.negative = mpfr_sgn(value.get()) < 0;
    return true;
}

}  // namespace

namespace {

// pi / 180 as the decimal layer holds it: its first 34 digits, cut, times 10^-35.
constexpr const char *kDegreeDigits = "1745329251994329576923690768488612";
constexpr int kDegreeExponent = -35;
constexpr std::size_t kStoredDigits = 34;

// The angle in radians of x degrees as the decimal layer makes it, the product of the
// operand and its pi / 180 cut to 34 digits, into binary with one rounding.
bool degrees_to_binary(const Decimal &angle, mpfr_ptr out) {
    mpz_t product, power;
    mpz_init_set_str(product, kDegreeDigits, 10);
    mpz_init(power);
    mpz_mul_ui(product, product, static_cast<unsigned long>(angle.coefficient));
    int exponent = angle.exponent + kDegreeExponent;
    std::size_t digits = mpz_sizeinbase(product, 10);
    mpz_ui_pow_ui(power, 10, static_cast<unsigned long>(digits - 1));
    if (mpz_cmp(product, power) < 0) --digits;  // the size may count one digit too many
    if (digits > kStoredDigits) {
        mpz_ui_pow_ui(power, 10, static_cast<unsigned long>(digits - kStoredDigits));
        mpz_tdiv_q(product, product, power);
        exponent += static_cast<int>(digits - kStoredDigits);
    }
    const bool exact = exponent <= kExactPower && exponent >= -kExactPower;
    if (exact) {
        mpfr_set_z(out, product, MPFR_RNDN);  // exact: below 10^34 < 2^113
        Wide128 scale;
        mpfr_ui_pow_ui(scale.get(), 10, static_cast<unsigned long>(std::abs(exponent)), MPFR_RNDN);
        if (exponent >= 0)
            mpfr_mul(out, out, scale.get(), MPFR_RNDN);
        else
            mpfr_div(out, out, scale.get(), MPFR_RNDN);
    }
    mpz_clear(product);
    mpz_clear(power);
    return exact;
}

}  // namespace

bool mpfr_log_digits(const Decimal &x, int digits, Decimal &result) {
    Wide128 value;
    return !x.negative && x.coefficient != 0 &&
           set_decimal(value.get(), x.coefficient, x.exponent) &&
           logarithm_of(value.get(), digits, result);
}

bool mpfr_exp_digits(bool negative, Wide n, int exponent, int digits, Decimal &result) {
    if (n == 0) {
        result = Decimal{false, 1, 0};
        return true;
    }
    const double approximate = static_cast<double>(n) * std::pow(10.0, exponent);
    if (!(approximate < kLargestExponent)) return false;
    Wide128 x, value;
    if (!set_decimal(x.get(), n, exponent)) return false;
    if (negative) mpfr_neg(x.get(), x.get(), MPFR_RNDN);
    mpfr_exp(value.get(), x.get(), MPFR_RNDN);
    // y within kUnit / 2 (relative): exp(y) within |y| kUnit / 2, and its rounding.
    const double error = (approximate + 1) * (kUnit + kRoadError);
    return round_to_digits(value.get(), error, digits, result);
}

bool mpfr_sine_digits(const Decimal &angle, bool cosine, bool degrees, Decimal &result) {
    Wide128 binary, function;
    if (angle.coefficient == 0) {
        mpfr_set_zero(binary.get(), 1);
    } else if (degrees) {
        if (!degrees_to_binary(angle, binary.get())) return false;
    } else if (!set_decimal(binary.get(), angle.coefficient, angle.exponent)) {
        return false;
    }
    if (angle.negative) mpfr_neg(binary.get(), binary.get(), MPFR_RNDN);
    // The angle as the decimal layer has it, in radians, for the error bound.
    const double radians = std::fabs(mpfr_get_d(binary.get(), MPFR_RNDN));
    if (cosine)
        mpfr_cos(function.get(), binary.get(), MPFR_RNDN);
    else
        mpfr_sin(function.get(), binary.get(), MPFR_RNDN);
    result = Decimal{};
    if (mpfr_zero_p(function.get())) return true;
    // The angle within |x| kUnit / 2 (absolute) moves the value as much; its own
    // rounding adds kUnit / 2 of it. The decimal layer's binary angle carries more bits
    // for a larger angle, so its error stays below kRoadError relative to the angle.
    const double magnitude = std::fabs(mpfr_get_d(function.get(), MPFR_RNDN));
    const double reach = radians + 1;
    const double error = (kUnit + kRoadError) * reach / magnitude + kUnit;
    if (!round_to_digits(function.get(), error, 18, result)) return false;
    result.negative = mpfr_sgn(function.get()) < 0;
    return true;
}

}  // namespace quindar::exact
