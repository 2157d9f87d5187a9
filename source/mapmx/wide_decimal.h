// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Exact decimal values of any length, for the complex functions. Their algorithms ask
// for intermediates at more places than a decimal value holds (a modulus at twice the
// places of a square root, sines at 2d + 10, square roots at d + h + 4 for large
// arguments) and for exact sums and products of such intermediates. Sums, differences and
// products here are exact; every rounding is explicit, at a number of places, ties away
// from zero, so these values round exactly where the algorithms say they do.
// Private to this folder.

#include <gmp.h>

#include <string>

#include "mapm.h"

namespace quindar::wide {

class WideDecimal {
public:
    WideDecimal();
    explicit WideDecimal(long value);
    // A finite decimal value, exactly.
    explicit WideDecimal(const MapmNumber *value);
    // coefficient * 10^scale, the coefficient as decimal digits with an optional '-'.
    WideDecimal(const char *coefficient, long scale);
    WideDecimal(const WideDecimal &other);
    WideDecimal(WideDecimal &&other) noexcept;
    WideDecimal &operator=(const WideDecimal &other);
    WideDecimal &operator=(WideDecimal &&other) noexcept;
    ~WideDecimal();

    // The value cut towards zero to 34 digits, as the decimal layer's own operations
    // cut; that keeps any later rounding at up to 33 places exact. Beyond the range of
    // decimal values it becomes infinite, or 0.
    void store(M_APM result) const;

    int sign() const { return mpz_sgn(coefficient_); }
    bool is_zero() const { return sign() == 0; }
    // Significant digits of the coefficient (trailing zeros included); 1 for zero.
    long digits() const;
    // The decimal exponent of the first significant digit; 0 for zero.
    long exponent() const;
    // "-12345e-4": a text that binary conversion reads exactly as written.
    std::string text() const;

    // places + 1 significant digits, ties away from zero.
    WideDecimal rounded(int places) const;
    // The integer part, towards zero.
    WideDecimal truncated() const;
    WideDecimal negated() const;

    friend WideDecimal operator+(const WideDecimal &a, const WideDecimal &b);
    friend WideDecimal operator-(const WideDecimal &a, const WideDecimal &b);
    friend WideDecimal operator*(const WideDecimal &a, const WideDecimal &b);
    // -1, 0 or 1.
    friend int compare(const WideDecimal &a, const WideDecimal &b);

    // a / b at `places`, ties away from zero. b must not be 0.
    static WideDecimal quotient(const WideDecimal &a, const WideDecimal &b, int places);
    // The square root at `places`, ties away from zero. A negative value, which only a
    // rounding just below zero can bring here, gives 0.
    static WideDecimal square_root(const WideDecimal &value, int places);

private:
    WideDecimal(mpz_srcptr coefficient, long scale);
    // Both at the smaller scale; returns that scale.
    static long align(mpz_t a, mpz_t b, const WideDecimal &x, const WideDecimal &y);

    mpz_t coefficient_;
    long scale_ = 0;
};

}  // namespace quindar::wide
