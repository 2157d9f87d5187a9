// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "exact_decimal.h"

#include <cstdlib>
#include <stdexcept>

namespace quindar::testing {

namespace {

std::string digits_of(const mpz_t value) {
    std::string text(mpz_sizeinbase(value, 10) + 2, '\0');
    mpz_get_str(text.data(), 10, value);
    text.resize(std::char_traits<char>::length(text.c_str()));
    if (!text.empty() && text[0] == '-') text.erase(0, 1);
    return text;
}

// Rounds the non-negative integer `magnitude` (with a remainder fraction num/den
// behind it, den > 0) to `keep` digits, ties away. Returns the kept digits and adds
// the dropped digit count to `shift`.
std::string round_digits(const mpz_t magnitude, const mpz_t num, const mpz_t den, int keep,
                         long &shift) {
    std::string digits = digits_of(magnitude);
    const long drop = static_cast<long>(digits.size()) - keep;
    if (drop <= 0) return digits;
    mpz_t power, q, r, lhs, rhs;
    mpz_inits(power, q, r, lhs, rhs, nullptr);
    mpz_ui_pow_ui(power, 10, static_cast<unsigned long>(drop));
    mpz_tdiv_qr(q, r, magnitude, power);
    // Round up when (r + num/den) / 10^drop >= 1/2, that is 2 (r den + num) >= 10^drop den.
    mpz_mul(lhs, r, den);
    mpz_add(lhs, lhs, num);
    mpz_mul_ui(lhs, lhs, 2);
    mpz_mul(rhs, power, den);
    if (mpz_cmp(lhs, rhs) >= 0) mpz_add_ui(q, q, 1);
    std::string kept = digits_of(q);
    shift += drop;
    if (static_cast<long>(kept.size()) > keep) {  // a carry made 10...0
        kept.pop_back();
        shift += 1;
    }
    mpz_clears(power, q, r, lhs, rhs, nullptr);
    return kept;
}

}  // namespace

ExactDecimal ExactDecimal::parse(const std::string &text) {
    ExactDecimal value;
    std::string digits;
    long exponent = 0;
    bool negative = false;
    size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    bool after_point = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            digits += c;
            if (after_point) --exponent;
        } else if (c == '.') {
            after_point = true;
        } else if (c == 'e' || c == 'E') {
            exponent += std::strtol(text.c_str() + i + 1, nullptr, 10);
            break;
        } else {
            throw std::invalid_argument("not a decimal: " + text);
        }
    }
    if (digits.empty()) throw std::invalid_argument("not a decimal: " + text);
    mpz_set_str(value.coefficient_, digits.c_str(), 10);
    if (negative) mpz_neg(value.coefficient_, value.coefficient_);
    value.exponent_ = exponent;
    return value;
}

void ExactDecimal::align(ExactDecimal &a, ExactDecimal &b) {
    ExactDecimal &high = a.exponent_ > b.exponent_ ? a : b;
    const long low_exponent = a.exponent_ > b.exponent_ ? b.exponent_ : a.exponent_;
    mpz_t power;
    mpz_init(power);
    mpz_ui_pow_ui(power, 10, static_cast<unsigned long>(high.exponent_ - low_exponent));
    mpz_mul(high.coefficient_, high.coefficient_, power);
    high.exponent_ = low_exponent;
    mpz_clear(power);
}

ExactDecimal ExactDecimal::add(const ExactDecimal &a, const ExactDecimal &b) {
    ExactDecimal x = a, y = b, sum;
    align(x, y);
    mpz_add(sum.coefficient_, x.coefficient_, y.coefficient_);
    sum.exponent_ = x.exponent_;
    return sum;
}

ExactDecimal ExactDecimal::subtract(const ExactDecimal &a, const ExactDecimal &b) {
    ExactDecimal negated = b;
    mpz_neg(negated.coefficient_, negated.coefficient_);
    return add(a, negated);
}

ExactDecimal ExactDecimal::multiply(const ExactDecimal &a, const ExactDecimal &b) {
    ExactDecimal product;
    mpz_mul(product.coefficient_, a.coefficient_, b.coefficient_);
    product.exponent_ = a.exponent_ + b.exponent_;
    return product;
}

std::string ExactDecimal::format(bool negative, const std::string &digits, long exponent,
                                 int places) {
    // digits holds the significant digits, the last of which has weight 10^exponent.
    std::string text = negative ? "-" : "";
    text += digits[0];
    if (places > 0) {
        text += '.';
        for (int i = 1; i <= places; ++i)
            text += i < static_cast<int>(digits.size()) ? digits[i] : '0';
    }
    const long scientific = exponent + static_cast<long>(digits.size()) - 1;
    text += scientific < 0 ? "E-" : "E+";
    text += std::to_string(std::labs(scientific));
    return text;
}

std::string ExactDecimal::to_scientific(int places) const {
    if (is_zero()) return format(false, "0", 0, places);
    mpz_t magnitude, zero, one;
    mpz_inits(magnitude, zero, one, nullptr);
    mpz_abs(magnitude, coefficient_);
    mpz_set_ui(one, 1);
    long shift = exponent_;
    const std::string kept = round_digits(magnitude, zero, one, places + 1, shift);
    mpz_clears(magnitude, zero, one, nullptr);
    return format(mpz_sgn(coefficient_) < 0, kept, shift, places);
}

std::string ExactDecimal::divide_to_scientific(const ExactDecimal &a, const ExactDecimal &b,
                                               int places) {
    if (a.is_zero()) return format(false, "0", 0, places);
    mpz_t num, den, q, r;
    mpz_inits(num, den, q, r, nullptr);
    mpz_abs(num, a.coefficient_);
    mpz_abs(den, b.coefficient_);
    // Scale the dividend so the integer quotient has more digits than are kept.
    const long scale = static_cast<long>(mpz_sizeinbase(den, 10)) + places + 4;
    mpz_t power;
    mpz_init(power);
    mpz_ui_pow_ui(power, 10, static_cast<unsigned long>(scale));
    mpz_mul(num, num, power);
    mpz_tdiv_qr(q, r, num, den);
    long shift = a.exponent_ - b.exponent_ - scale;
    const std::string kept = round_digits(q, r, den, places + 1, shift);
    const bool negative = (mpz_sgn(a.coefficient_) < 0) != (mpz_sgn(b.coefficient_) < 0);
    mpz_clears(num, den, q, r, power, nullptr);
    return format(negative, kept, shift, places);
}

}  // namespace quindar::testing
