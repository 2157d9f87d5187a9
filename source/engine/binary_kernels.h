// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The logarithm, the exponential and the sine and cosine in 128-bit (and, for the reduction
// of an angle, 256-bit) integer arithmetic, each with a proven bound on its error, which the
// comments of binary_kernels.cpp derive. A kernel answers false outside the range it covers.

#include <cstdint>

#include "wide_integer.h"

namespace quindar::exact {

// n * 10^exponent as a binary value; `error` receives the bound on its relative error.
bool decimal_to_binary(bool negative, U128 n, int exponent, Binary &result, double &error);

// The angle in radians of n * 10^exponent degrees as the decimal layer makes it: the product
// with pi / 180 held to 34 digits, cut to 34 digits; `error` bounds the relative distance.
bool degrees_to_radians(bool negative, std::uint64_t n, int exponent, Binary &result,
                        double &error);

// ln(n * 10^exponent) for n > 0, with an absolute error below kLogError.
extern const double kLogError;
bool log_kernel(std::uint64_t n, int exponent, Binary &result);

// e^y for a y known within `y_error` (absolute); `error` receives the relative bound.
bool exp_kernel(const Binary &y, double y_error, Binary &result, double &error);

// sin x or cos x for x = k pi/2 + r, from r (|r| < 0.8) known within `delta` (absolute);
// `error` receives the relative bound.
bool quadrant_sine(const Binary &r, double delta, long long k, bool cosine, Binary &result,
                   double &error);

// sin x or cos x for an angle x known within `x_error` (relative); `error` receives the
// relative bound. False for an angle of 2^47 or more, or one that reduces to 0.
bool sine_kernel(const Binary &x, double x_error, bool cosine, Binary &result, double &error);

}  // namespace quindar::exact
