// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "exact_division.h"

#include <gmp.h>

#include <string>

namespace quindar::bid {

namespace {

constexpr int kDigits = 34;

// An exact decimal: coefficient * 10^exponent.
struct Exact {
    Exact() { mpz_init(coefficient); }
    ~Exact() { mpz_clear(coefficient); }
    Exact(const Exact &) = delete;
    Exact &operator=(const Exact &) = delete;
    mpz_t coefficient;
    long exponent = 0;
};

void load(Exact &out, const BID_UINT128 &x) {
    const Parts parts = decompose(x);
    const auto high = static_cast<unsigned long>(parts.coefficient >> 64);
    const auto low = static_cast<unsigned long>(parts.coefficient & 0xffffffffffffffffull);
    mpz_set_ui(out.coefficient, high);
    mpz_mul_2exp(out.coefficient, out.coefficient, 64);
    mpz_add_ui(out.coefficient, out.coefficient, low);
    if (parts.negative) mpz_neg(out.coefficient, out.coefficient);
    out.exponent = parts.exponent;
}

void scale_up(mpz_t value, long digits) {
    mpz_t power;
    mpz_init(power);
    mpz_ui_pow_ui(power, 10, static_cast<unsigned long>(digits));
    mpz_mul(value, value, power);
    mpz_clear(power);
}

// out = x*y + z*w, exactly.
void sum_of_products(Exact &out, const BID_UINT128 &x, const BID_UINT128 &y,
                     const BID_UINT128 &z, const BID_UINT128 &w) {
    Exact a, b, c, d;
    load(a, x);
    load(b, y);
    load(c, z);
    load(d, w);
    Exact second;
    mpz_mul(out.coefficient, a.coefficient, b.coefficient);
    out.exponent = a.exponent + b.exponent;
    mpz_mul(second.coefficient, c.coefficient, d.coefficient);
    second.exponent = c.exponent + d.exponent;
    if (mpz_sgn(second.coefficient) == 0) return;
    if (mpz_sgn(out.coefficient) == 0) {
        mpz_set(out.coefficient, second.coefficient);
        out.exponent = second.exponent;
        return;
    }
    if (out.exponent > second.exponent) {
        scale_up(out.coefficient, out.exponent - second.exponent);
        out.exponent = second.exponent;
    } else {
        scale_up(second.coefficient, second.exponent - out.exponent);
    }
    mpz_add(out.coefficient, out.coefficient, second.coefficient);
}

}  // namespace

BID_UINT128 exact_quotient_of_sums(const BID_UINT128 &a, const BID_UINT128 &b,
                                   const BID_UINT128 &c, const BID_UINT128 &d,
                                   const BID_UINT128 &e, const BID_UINT128 &f,
                                   const BID_UINT128 &g, const BID_UINT128 &h) {
    Exact numerator, denominator;
    sum_of_products(numerator, a, b, c, d);
    sum_of_products(denominator, e, f, g, h);
    if (mpz_sgn(numerator.coefficient) == 0) return bid128_from_int32(0);
    const bool negative = mpz_sgn(numerator.coefficient) != mpz_sgn(denominator.coefficient);
    mpz_abs(numerator.coefficient, numerator.coefficient);
    mpz_abs(denominator.coefficient, denominator.coefficient);

    // Scale the numerator so the integer quotient has more than 34 digits.
    const long scale = static_cast<long>(mpz_sizeinbase(denominator.coefficient, 10)) -
                       static_cast<long>(mpz_sizeinbase(numerator.coefficient, 10)) + kDigits + 2;
    long exponent = numerator.exponent - denominator.exponent;
    if (scale > 0) {
        scale_up(numerator.coefficient, scale);
        exponent -= scale;
    }
    mpz_t quotient;
    mpz_init(quotient);
    mpz_tdiv_q(quotient, numerator.coefficient, denominator.coefficient);
    std::string digits(mpz_sizeinbase(quotient, 10) + 2, '\0');
    mpz_get_str(digits.data(), 10, quotient);
    mpz_clear(quotient);
    digits.resize(std::char_traits<char>::length(digits.c_str()));
    // Cut, not round: the caller rounds once at its own places.
    if (static_cast<int>(digits.size()) > kDigits) {
        exponent += static_cast<long>(digits.size()) - kDigits;
        digits.resize(kDigits);
    }
    std::string text = (negative ? "-" : "") + digits + "E" + std::to_string(exponent);
    _IDEC_flags flags = 0;
    return bid128_from_string(text.data(), kCut, &flags);
}

}  // namespace quindar::bid
