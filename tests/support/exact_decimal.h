// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// An exact decimal reference for tests: values are GMP integers times a power of ten,
// results are rounded to a number of significant digits, ties away from zero, and
// written in the scientific text the decimal layer produces ("1.50000000000000E+3").

#include <gmp.h>

#include <string>

namespace quindar::testing {

class ExactDecimal {
public:
    ExactDecimal() { mpz_init(coefficient_); }
    ExactDecimal(const ExactDecimal &other) : exponent_(other.exponent_) {
        mpz_init_set(coefficient_, other.coefficient_);
    }
    ExactDecimal &operator=(const ExactDecimal &other) {
        mpz_set(coefficient_, other.coefficient_);
        exponent_ = other.exponent_;
        return *this;
    }
    ~ExactDecimal() { mpz_clear(coefficient_); }

    // Reads "-1.25", "3e-5", "1.2345678901234E+20" exactly.
    static ExactDecimal parse(const std::string &text);

    static ExactDecimal add(const ExactDecimal &a, const ExactDecimal &b);
    static ExactDecimal subtract(const ExactDecimal &a, const ExactDecimal &b);
    static ExactDecimal multiply(const ExactDecimal &a, const ExactDecimal &b);

    bool is_zero() const { return mpz_sgn(coefficient_) == 0; }

    // The value rounded to places + 1 significant digits, as scientific text.
    std::string to_scientific(int places) const;

    // a / b rounded to places + 1 significant digits, as scientific text. b != 0.
    static std::string divide_to_scientific(const ExactDecimal &a, const ExactDecimal &b,
                                            int places);

private:
    // Brings both to the smaller exponent.
    static void align(ExactDecimal &a, ExactDecimal &b);
    static std::string format(bool negative, const std::string &digits, long exponent, int places);

    mpz_t coefficient_;
    long exponent_ = 0;
};

}  // namespace quindar::testing
