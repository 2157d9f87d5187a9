// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The constants of the binary kernels (binary_kernels.h): logarithms, powers of two and ten,
// series coefficients and pi / 2, each the true value rounded once to its fixed-point form
// (an error of at most half a unit of its last bit). They are worked out once, on first use,
// at 320 bits, and never change after.

#include <cstdint>

#include "wide_integer.h"

namespace quindar::exact {

// Fraction bits of the fixed-point forms.
constexpr int kLogSumBits = 118;   // signed sums of logarithms, |value| < 512
constexpr int kUnitBits = 127;     // values in [0, 2)
constexpr int kSeriesBits = 126;   // the exponential's series, values in [0, 2)
constexpr int kHalfPiBits = 200;   // pi / 2 and the reduced angle, in 256 bits
constexpr int kLn2StepBits = 135;  // ln 2 / 256

// Decimal exponents of the powers of ten held, and of the multiples of ln 10.
constexpr int kPowerRange = 400;
constexpr int kLn10Range = 64;
// Terms of the series.
constexpr int kLogTerms = 8;
// Steps of the logarithm's second reduction (t of the first below 2^-7.99 < 258 / 2^16).
constexpr int kFineSteps = 258;
constexpr int kExpTerms = 12;
constexpr int kSineTerms = 16;
constexpr int kCosineTerms = 17;

// The degree factor as the decimal layer holds it: the first 34 digits of pi / 180, times
// 10^-35 (below 10^34 < 2^113, so exact here).
constexpr U128 kDegreeDigits =
    static_cast<U128>(17453292519943295ull) * 100000000000000000ull + 76923690768488612ull;
constexpr int kDegreeExponent = -35;

struct KernelTables {
    // The logarithm's steps j = 0 .. 255: R_j = ceil(2^24 / (256 + j)), so that a mantissa
    // m in [1 + j / 256, 1 + (j + 1) / 256) has m R_j / 2^16 in [1, 1 + 2^-7.99); and
    // ln(2^16 / R_j) at kUnitBits.
    std::uint32_t reciprocal[256];
    U128 log_of_reciprocal[256];
    // The second step i = 0 .. kFineSteps - 1: S_i = ceil(2^32 / (2^16 + i)), so that 1 + t in
    // [1 + i / 2^16, 1 + (i + 1) / 2^16) has (1 + t) S_i / 2^16 in [1, 1 + 2^-14.99); and
    // ln(2^16 / S_i) at kUnitBits.
    std::uint32_t fine_reciprocal[kFineSteps];
    U128 log_of_fine_reciprocal[kFineSteps];
    // k ln 2 (k = 0 .. 63) and e ln 10 (e = -kLn10Range .. kLn10Range) at kLogSumBits.
    S128 ln2_multiple[64];
    S128 ln10_multiple[2 * kLn10Range + 1];
    // 1 / k at kUnitBits (index 0 unused).
    U128 inverse[kLogTerms + 1];
    // 1 / k! at kSeriesBits.
    U128 exp_coefficient[kExpTerms];
    // 2^(j / 256) at kUnitBits, and ln 2 / 256 at kLn2StepBits.
    U128 exp2_step[256];
    U128 ln2_step;
    // 1 / (2i + 1)! and 1 / (2i)! at kUnitBits.
    U128 sine_coefficient[kSineTerms];
    U128 cosine_coefficient[kCosineTerms];
    // pi / 2 at kHalfPiBits.
    U256 half_pi;
    // 10^q for q = -kPowerRange .. kPowerRange, the mantissa rounded (exact for 0 <= q <= 38).
    Binary power_of_ten[2 * kPowerRange + 1];
};

const KernelTables &kernel_tables();

// 10^q, or false beyond the powers held.
bool power_of_ten(int q, Binary &result);

}  // namespace quindar::exact
