// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Helpers the decimal layer's tests share: decimal values from text and back, long
// double views of them, random operands of 14 significant digits as the engine writes
// them, and an independent rounding of binary reference values to decimal text.

#include <mpfr.h>

#include <algorithm>
#include <complex>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "mapm.h"

namespace quindar::testing {

// Answer texts that many cases expect: 15 significant digits in scientific form.
inline constexpr const char *kZero = "0.00000000000000E+0";
inline constexpr const char *kPiText = "3.14159265358979E+0";
inline constexpr const char *kHalfPiText = "1.57079632679490E+0";

inline MapmNumber from(const char *text) {
    MapmNumber value;
    m_apm_set_string(&value, text);
    return value;
}

inline MapmNumber from(const std::string &text) {
    return from(text.c_str());
}

inline std::string text_of(const MapmNumber &value, int places = 14) {
    char text[kMapmTextSize];
    m_apm_to_string(text, places, &value);
    return text;
}

// All 34 digits, read back by the C library.
inline long double long_double_of(const MapmNumber &value) {
    return std::strtold(text_of(value, kMapmMaxPlaces).c_str(), nullptr);
}

using ComplexL = std::complex<long double>;

inline ComplexL complex_of(const MapmNumber &re, const MapmNumber &im) {
    return {long_double_of(re), long_double_of(im)};
}

// Decimal text of 14 significant digits for a long double, the form of the engine's
// operands ("%.14Lg" keeps trailing digits out).
inline std::string engine_text(long double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.14Lg", value);
    return text;
}

// Random 14-digit operands.
class Sampler {
public:
    explicit Sampler(unsigned seed) : engine_(seed) {}

    int integer(int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(engine_);
    }
    long double uniform(long double low, long double high) {
        return std::uniform_real_distribution<long double>(low, high)(engine_);
    }

    // "d.dddddddddddddE±k", k in [low, high]; negative half of the time when `signed_`.
    std::string magnitude(int low, int high, bool signed_) {
        std::string text = signed_ && integer(0, 1) ? "-" : "";
        text += static_cast<char>('0' + integer(1, 9));
        text += '.';
        for (int i = 1; i < 14; ++i) text += static_cast<char>('0' + integer(0, 9));
        return text + "E" + std::to_string(integer(low, high));
    }

    // A value in [low, high] cut to 14 significant digits.
    std::string interval(long double low, long double high) {
        return engine_text(uniform(low, high));
    }

private:
    std::mt19937_64 engine_;
};

// The binary value rounded to places + 1 significant digits, ties away from zero, by
// decimal string arithmetic alone: "1.23450000000000E+2". Cut far below the last kept
// digit first, so a binary value on either side of a tie keeps its side.
inline std::string rounded_text(mpfr_srcptr value, int places) {
    if (mpfr_nan_p(value)) return "nan";
    if (mpfr_inf_p(value)) return mpfr_sgn(value) < 0 ? "-inf" : "inf";
    if (mpfr_zero_p(value)) return "0." + std::string(places, '0') + "E+0";
    mpfr_exp_t exponent = 0;
    char *raw = mpfr_get_str(nullptr, &exponent, 10, places + 25, value, MPFR_RNDZ);
    std::string digits = raw;
    mpfr_free_str(raw);
    const bool negative = digits[0] == '-';
    if (negative) digits.erase(0, 1);
    const bool up = digits[places + 1] >= '5';
    digits.resize(places + 1);
    if (up) {
        int i = places;
        while (i >= 0 && digits[i] == '9') digits[i--] = '0';
        if (i < 0) {
            digits.insert(digits.begin(), '1');
            digits.pop_back();
            ++exponent;
        } else {
            ++digits[i];
        }
    }
    const long first = static_cast<long>(exponent) - 1;
    std::string text = negative ? "-" : "";
    text += digits[0];
    if (places > 0) text += "." + digits.substr(1);
    return text + "E" + (first < 0 ? "-" : "+") + std::to_string(std::labs(first));
}

}  // namespace quindar::testing
