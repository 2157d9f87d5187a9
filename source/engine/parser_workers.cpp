// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Workers of the general functions that compute through the complex decimal layer. The
// operators, the embedded functions and the map solver share them.
#include "embedded_tables.h"
#include "exact_arithmetic.h"
#include "exact_functions.h"
#include "mapm_complex.h"
#include "mapm_functions.h"
#include "parser.h"
#include "parser_complex_worker.h"

namespace quindar {

namespace {

constexpr int kPlaces = 14;
constexpr int kOfZero = 20, kTooManyDigitsToShow = 38;
// The largest part FLOOR and CEIL can show within the digits allowed.
constexpr double kLargestIntegerPart = 99999999999999.9;
// pi/180 to 100 decimals; the decimal layer keeps what it can hold of it.
constexpr const char *kRadiansPerDegree =
    "0.0174532925199432957692369076848861271344287188854172545609719144017100911460344944368224156"
    "963450948";

}  // namespace

complex Parser::_sqrt(const complex &z) {
    // The root of a real on integers, where they give the decimal layer's digits.
    if (complex root; exact::complex_sqrt(z, root)) return root;
    return complex_worker(z, [this] { m_apmc_sqrt(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b); });
}

complex Parser::_log(const complex &z) {
    if (z.real == 0 && z.imag == 0) {
        mathlib_exception(kOfZero, internal_function("LN"), nullptr);
        return complex{};
    }
    if (complex logarithm; exact::real_log(z, logarithm)) return logarithm;
    return complex_worker(z, [this] { m_apmc_log(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b); });
}

complex Parser::_log10(const complex &z) {
    if (z.real == 0 && z.imag == 0) {
        mathlib_exception(kOfZero, internal_function("LOG10"), nullptr);
        return complex{};
    }
    return complex_worker(z, [this] { m_apmc_log10(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b); });
}

complex Parser::_exp(const complex &z) {
    if (complex value; exact::real_exp(z, value)) return value;
    return complex_worker(z, [this] { m_apmc_exp(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b); });
}

complex Parser::_abs(const complex &z) {
    return complex_worker(z, [this] { m_apmc_abs(mapm_r1, kPlaces, mapm_a, mapm_b); });
}

complex Parser::_round(const complex &z) {
    return complex_worker(z, [this] { m_apmc_round(mapm_r1, mapm_r2, mapm_a, mapm_b); });
}

complex Parser::_trunc(const complex &z) {
    return complex_worker(z, [this] { m_apmc_fix(mapm_r1, mapm_r2, mapm_a, mapm_b); });
}

complex Parser::_floor(const complex &z) {
    if (z.real >= kLargestIntegerPart || z.imag >= kLargestIntegerPart) {
        mathlib_exception(kTooManyDigitsToShow, internal_function("FLOOR"), nullptr);
        return complex{};
    }
    return complex_worker(z, [this] { m_apmc_floor(mapm_r1, mapm_r2, mapm_a, mapm_b); });
}

complex Parser::_ceil(const complex &z) {
    if (z.real >= kLargestIntegerPart || z.imag >= kLargestIntegerPart) {
        mathlib_exception(kTooManyDigitsToShow, internal_function("CEIL"), nullptr);
        return complex{};
    }
    return complex_worker(z, [this] { m_apmc_ceil(mapm_r1, mapm_r2, mapm_a, mapm_b); });
}

// The Gaussian remainder on parts rounded to integers; a divisor that rounds to 0 gives 0.
complex Parser::_fmod(const complex &a, const complex &b) {
    if (b.real == 0 && b.imag == 0) {
        mathlib_exception(kOfZero, internal_function("REM"), nullptr);
        return complex{};
    }
    return complex_pair_worker(
        a, b, [this] { m_apmc_mod(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b, mapm_c, mapm_d); });
}

// Each part divided by pi/180; the angle mode plays no part.
complex Parser::_degree(const complex &z) {
    return complex_worker(z, [this] {
        MapmNumber factor;
        m_apm_set_string(&factor, kRadiansPerDegree);
        m_apm_divide(mapm_r1, kPlaces, mapm_a, &factor);
        m_apm_divide(mapm_r2, kPlaces, mapm_b, &factor);
    });
}

// Each part multiplied by pi/180.
complex Parser::_radian(const complex &z) {
    return complex_worker(z, [this] {
        MapmNumber factor;
        m_apm_set_string(&factor, kRadiansPerDegree);
        m_apm_multiply(mapm_r1, mapm_a, &factor);
        m_apm_multiply(mapm_r2, mapm_b, &factor);
    });
}

}  // namespace quindar
