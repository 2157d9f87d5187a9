// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "binary_kernels.h"

#include <cmath>

#include "kernel_tables.h"

namespace quindar::exact {

namespace {

constexpr U128 kBit = 1;
// The cut of that product to 34 digits takes off less than 10^-33 of it.
constexpr double kDegreeCut = 1e-33;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kLn2 = 0.6931471805599453;
// The exponential covers |y| < 700 (in 116 fraction bits and 10 integer bits), the angles
// |x| < 2^47 (x and pi / 2 times 2^47 fit 256 bits at kHalfPiBits), which holds every
// angle of 14 digits below 10^14 degrees or radians.
constexpr double kLargestExponent = 700;
constexpr double kLargestAngle = 140737488355328.0;  // 2^47
constexpr int kArgumentBits = 116;

// floor(a * b / 2^shift) of two fixed-point values.
U128 multiply_fixed(U128 a, U128 b, int shift) {
    return shift_down(multiply_wide(a, b), shift);
}

}  // namespace

// A relative error of 2^-128 for the power of ten (none from 10^0 to 10^38) and 2^-127 for
// the cut product.
bool decimal_to_binary(bool negative, U128 n, int exponent, Binary &result, double &error) {
    Binary power;
    if (n == 0 || !power_of_ten(exponent, power)) return false;
    result = product(normalised(negative, n, 0), power);
    error = power_of_two(-126);
    return true;
}

// Two cut products and the power of ten, 2.5 * 2^-127, and the decimal layer's own cut.
bool degrees_to_radians(bool negative, std::uint64_t n, int exponent, Binary &result,
                        double &error) {
    Binary power;
    if (n == 0 || !power_of_ten(exponent + kDegreeExponent, power)) return false;
    result =
        product(product(normalised(negative, n, 0), normalised(false, kDegreeDigits, 0)), power);
    error = power_of_two(-125) + kDegreeCut;
    return true;
}

// ln(n 10^e) = k ln 2 + ln(2^16 / R_j) + ln(2^16 / S_i) + ln(1 + t) + e ln 10, with n = 2^k m,
// m in [1, 2), and 1 + t = m R_j S_i / 2^32 computed exactly (m has at most 64 bits, R_j and
// S_i 17 each), t < 2^-14.99. ln(1 + t) = t H_1 with H_k = 1/k - t H_(k+1), Horner from
// H_8 = 1/8 at 127 bits: each step adds at most 2^-127 (the constant) and 2^-127 (the cut
// product), and carries the error before it times t, so the sum stays below 2^-125.9; the
// series left off after t^8 / 8 is below 2^-130. The five terms are brought to 118 bits, each
// within 2^-119 (the two tables of multiples are rounded there, the others rounded to it), so
// the logarithm is within 5 * 2^-119 + 2^-125 < 2^-116.6 absolute.
const double kLogError = std::ldexp(1.0, -116);

bool log_kernel(std::uint64_t n, int exponent, Binary &result) {
    if (n == 0 || exponent < -kLn10Range || exponent > kLn10Range) return false;
    const KernelTables &t = kernel_tables();
    const int k = 63 - __builtin_clzll(n);
    const std::uint64_t m = n << (63 - k);  // 63 fraction bits
    const int j = static_cast<int>(m >> 55) & 0xFF;
    // 79 fraction bits, in [2^79, 2^79 (1 + 2^-7.99)).
    const U128 coarse = static_cast<U128>(m) * t.reciprocal[j];
    const int i = static_cast<int>((coarse - (kBit << 79)) >> 63);
    // 95 fraction bits, in [2^95, 2^95 (1 + 2^-14.99)).
    const U128 fine = coarse * t.fine_reciprocal[i];
    const U128 small = (fine - (kBit << 95)) << 33;  // t at 128 bits
    U128 h = t.inverse[kLogTerms];
    for (int step = kLogTerms - 1; step >= 1; --step)
        h = t.inverse[step] - multiply_wide(small, h).high;
    const U128 series = multiply_wide(small, h).high;  // 127 bits
    constexpr int kDrop = kUnitBits - kLogSumBits;
    constexpr U128 kHalf = kBit << (kDrop - 1);
    const S128 sum = t.ln2_multiple[k] + t.ln10_multiple[exponent + kLn10Range] +
                     static_cast<S128>((t.log_of_reciprocal[j] + kHalf) >> kDrop) +
                     static_cast<S128>((t.log_of_fine_reciprocal[i] + kHalf) >> kDrop) +
                     static_cast<S128>((series + kHalf) >> kDrop);
    result = normalised(sum < 0, static_cast<U128>(sum < 0 ? -sum : sum), -kLogSumBits);
    return true;
}

// e^y = 2^(N / 256) e^r with N the integer nearest y 256 / ln 2 and r = y - N ln2 / 256,
// |r| < 2^-8.5 (checked). y is cut to 116 bits (2^-116), N ln 2 / 256 is formed from ln 2 / 256 at
// 135 bits (|N| < 2^18, so within 2^-118) and rounded to 116 bits (2^-117): r lies within y_error +
// 2^-115.2 of its value, which moves e^r by that much relatively. The series sum 1 / k! r^k to k =
// 11 by Horner at 126 bits: each step adds 2^-127 (its constant) and 2^-126 (the cut product),
// carried on times |r|, below 2^-125.4 in all; the terms left off are below 2^-130. 2^(j / 256) is
// rounded at 127 bits (2^-128) and the last product cut (2^-127), so the relative error is below
// (y_error + 2^-115.2)(1 + 2^-100) + 2^-123.
bool exp_kernel(const Binary &y, double y_error, Binary &result, double &error) {
    const KernelTables &t = kernel_tables();
    const double estimate = y.mantissa == 0 ? 0.0 : (y.negative ? -1 : 1) * approximate(y);
    if (!(std::fabs(estimate) < kLargestExponent)) return false;
    S128 fixed = 0;
    if (y.mantissa != 0) {
        // |y| < 2^10, so the shift is down, by more than 1.
        const int shift = -(y.exponent + kArgumentBits);
        const U128 magnitude = shift >= 128 ? 0 : y.mantissa >> shift;
        fixed = y.negative ? -static_cast<S128>(magnitude) : static_cast<S128>(magnitude);
    }
    const long long steps = std::llround(estimate * 256 / kLn2);
    const U128 count = static_cast<U128>(steps < 0 ? -steps : steps);
    const U128 multiple =
        (shift_down(multiply_wide(t.ln2_step, count), kLn2StepBits - kArgumentBits - 1) + 1) >> 1;
    const S128 r =
        steps < 0 ? fixed + static_cast<S128>(multiple) : fixed - static_cast<S128>(multiple);
    // ln 2 / 512 at 116 bits is below 2^107; the estimate's N can be off only next to a half.
    const U128 reach = (t.ln2_step >> (kLn2StepBits - kArgumentBits));
    const U128 magnitude = static_cast<U128>(r < 0 ? -r : r);
    if (magnitude > reach) return false;
    const U128 reduced = magnitude << (kSeriesBits - kArgumentBits);
    U128 p = t.exp_coefficient[kExpTerms - 1];
    for (int k = kExpTerms - 2; k >= 0; --k) {
        const U128 term = multiply_fixed(reduced, p, kSeriesBits);
        p = r < 0 ? t.exp_coefficient[k] - term : t.exp_coefficient[k] + term;
    }
    const int whole = static_cast<int>(steps >> 8);  // floor(N / 256)
    const int j = static_cast<int>(steps & 0xFF);
    result = normalised(false, multiply_wide(t.exp2_step[j], p), whole - kUnitBits - kSeriesBits);
    error = (y_error + power_of_two(-115) * 0.87) * (1 + power_of_two(-100)) + power_of_two(-123);
    return true;
}

// With u = r^2 (r cut to 128 bits, u within 3 * 2^-128), sin r = r P(u) and cos r = Q(u),
// P(u) = sum (-u)^i / (2i + 1)!, Q(u) = sum (-u)^i / (2i)!, by Horner at 127 bits, every
// partial sum positive since u < 0.64: each step adds 2^-128 (its constant), 2^-127 (the cut
// product) and 3 * 2^-128 times the next coefficient, carried on times u < 0.64, below
// 2^-124.6; the terms left off are below 2^-123, and P, Q >= 0.7, so both are within 2^-122
// relative, 2^-121 with the last product's cut. The error of r moves sin r by delta / |r|
// relative (cot r < 1 / r) and cos r by delta tan|r| <= delta.
bool quadrant_sine(const Binary &r, double delta, long long k, bool cosine, Binary &result,
                   double &error) {
    const KernelTables &t = kernel_tables();
    const double reduced = approximate(r);
    if (r.mantissa == 0 || !(reduced < 0.8)) return false;
    delta += reduced * power_of_two(-127);
    // r at 128 bits (|r| < 1, so the shift is down).
    const int shift = -(r.exponent + 128);
    const U128 fixed_r = shift >= 128 ? 0 : r.mantissa >> shift;
    const U128 u = multiply_wide(fixed_r, fixed_r).high;
    // The quadrant decides which of sin r, cos r and with which sign: sin(k pi/2 + r) is
    // sin r, cos r, -sin r, -cos r for k = 0, 1, 2, 3 (mod 4); cos(k pi/2 + r) = sin(r + (k + 1)
    // pi/2).
    const int quadrant = static_cast<int>((k + (cosine ? 1 : 0)) & 3);
    const bool use_cosine = quadrant % 2 == 1;
    const U128 *coefficient = use_cosine ? t.cosine_coefficient : t.sine_coefficient;
    const int terms = use_cosine ? kCosineTerms : kSineTerms;
    U128 h = coefficient[terms - 1];
    for (int i = terms - 2; i >= 0; --i) h = coefficient[i] - multiply_wide(u, h).high;
    const Binary series = normalised(false, h, -kUnitBits);
    bool negative = quadrant >= 2;
    if (use_cosine) {
        result = series;
        error = power_of_two(-121) + delta * 1.01;
    } else {
        result = product(r, series);
        negative = negative != r.negative;
        error = power_of_two(-121) + delta / reduced * 1.01;
    }
    result.negative = negative;
    return true;
}

// x = k pi/2 + r, |r| <= pi/4 (+ a little), from x and pi/2 at 200 bits in 256-bit integers:
// x is exact there, pi/2 within 2^-201 per multiple, and r is cut to 128 bits (2^-127
// relative): r lies within delta = |x| x_error + (|k| + 1) 2^-201 + 2^-127 |r| of its value.
bool sine_kernel(const Binary &x, double x_error, bool cosine, Binary &result, double &error) {
    const KernelTables &t = kernel_tables();
    const double angle = approximate(x);
    if (x.mantissa == 0 || !(angle < kLargestAngle)) return false;
    long long k = 0;
    Binary r{false, x.mantissa, x.exponent};
    double delta = angle * x_error;
    if (angle > 0.78) {
        k = std::llround(angle / kHalfPi);
        const U256 fixed = shift_up(x.mantissa, x.exponent + kHalfPiBits);
        const U256 multiple = multiply_wide(t.half_pi, static_cast<std::uint64_t>(k));
        const bool below = less(fixed, multiple);
        const U256 rest = below ? subtract(multiple, fixed) : subtract(fixed, multiple);
        if (rest.high == 0 && rest.low == 0) return false;
        r = normalised(below, rest, -kHalfPiBits);
        delta += static_cast<double>(k + 1) * power_of_two(-201);
    }
    if (!quadrant_sine(r, delta, k, cosine, result, error)) return false;
    // sin is odd, cos even.
    if (x.negative && !cosine) result.negative = !result.negative;
    return true;
}

}  // namespace quindar::exact
