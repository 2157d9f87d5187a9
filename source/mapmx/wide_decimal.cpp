// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "wide_decimal.h"

#include <algorithm>
#include <utility>

#include "bid.h"

namespace quindar::wide {

namespace {

constexpr long kStoredDigits = 34;
// Decimal values end near 1e6145 and below 1e-6176 (with their subnormals).
constexpr long kLargestExponent = 6144;
constexpr long kSmallestExponent = -6176 - kStoredDigits;

// A GMP integer for the length of one computation.
class Integer {
public:
    Integer() { mpz_init(value_); }
    ~Integer() { mpz_clear(value_); }
    Integer(const Integer &) = delete;
    Integer &operator=(const Integer &) = delete;
    mpz_ptr get() { return value_; }

private:
    mpz_t value_;
};

void multiply_by_power_of_ten(mpz_ptr value, long count) {
    if (count <= 0) return;
    Integer power;
    mpz_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(count));
    mpz_mul(value, value, power.get());
}

// Decimal digits of |value|, exactly (GMP's own count may be one too many).
long digit_count(mpz_srcptr value) {
    if (mpz_sgn(value) == 0) return 1;
    auto count = static_cast<long>(mpz_sizeinbase(value, 10));
    if (count > 1) {
        Integer power;
        mpz_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(count - 1));
        if (mpz_cmpabs(value, power.get()) < 0) --count;
    }
    return count;
}

}  // namespace

WideDecimal::WideDecimal() {
    mpz_init(coefficient_);
}

WideDecimal::WideDecimal(long value) {
    mpz_init_set_si(coefficient_, value);
}

WideDecimal::WideDecimal(const MapmNumber *value) {
    const bid::Parts parts = bid::decompose(bid::load(value));
    mpz_init(coefficient_);
    if (!parts.finite || parts.coefficient == 0) return;
    mpz_set_ui(coefficient_, static_cast<unsigned long>(parts.coefficient >> 64));
    mpz_mul_2exp(coefficient_, coefficient_, 64);
    mpz_add_ui(coefficient_, coefficient_,
               static_cast<unsigned long>(parts.coefficient & 0xffffffffffffffffull));
    if (parts.negative) mpz_neg(coefficient_, coefficient_);
    scale_ = parts.exponent;
}

WideDecimal::WideDecimal(const char *coefficient, long scale) : scale_(scale) {
    if (mpz_init_set_str(coefficient_, coefficient, 10) != 0) mpz_set_ui(coefficient_, 0);
}

WideDecimal::WideDecimal(mpz_srcptr coefficient, long scale) : scale_(scale) {
    mpz_init_set(coefficient_, coefficient);
}

WideDecimal::WideDecimal(const WideDecimal &other) : scale_(other.scale_) {
    mpz_init_set(coefficient_, other.coefficient_);
}

WideDecimal::WideDecimal(WideDecimal &&other) noexcept : scale_(other.scale_) {
    mpz_init(coefficient_);
    mpz_swap(coefficient_, other.coefficient_);
}

WideDecimal &WideDecimal::operator=(const WideDecimal &other) {
    mpz_set(coefficient_, other.coefficient_);
    scale_ = other.scale_;
    return *this;
}

WideDecimal &WideDecimal::operator=(WideDecimal &&other) noexcept {
    mpz_swap(coefficient_, other.coefficient_);
    std::swap(scale_, other.scale_);
    return *this;
}

WideDecimal::~WideDecimal() {
    mpz_clear(coefficient_);
}

long WideDecimal::digits() const {
    return digit_count(coefficient_);
}

long WideDecimal::exponent() const {
    return is_zero() ? 0 : digits() - 1 + scale_;
}

std::string WideDecimal::text() const {
    std::string digits(mpz_sizeinbase(coefficient_, 10) + 2, '\0');
    mpz_get_str(digits.data(), 10, coefficient_);
    digits.resize(std::char_traits<char>::length(digits.c_str()));
    return digits + "e" + std::to_string(scale_);
}

void WideDecimal::store(M_APM result) const {
    if (is_zero() || exponent() < kSmallestExponent) {
        m_apm_set_zero(result);
        return;
    }
    if (exponent() > kLargestExponent) {
        m_apm_set_string(result, sign() < 0 ? "-inf" : "inf");
        return;
    }
    Integer cut;
    mpz_set(cut.get(), coefficient_);
    long scale = scale_;
    const long excess = digits() - kStoredDigits;
    if (excess > 0) {
        Integer power;
        mpz_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(excess));
        mpz_tdiv_q(cut.get(), cut.get(), power.get());
        scale += excess;
    }
    const WideDecimal stored(cut.get(), scale);
    std::string text = stored.text();
    _IDEC_flags flags = 0;
    bid::store(result, bid128_from_string(text.data(), bid::kCut, &flags));
}

WideDecimal WideDecimal::rounded(int places) const {
    const long keep = std::max(places, 0) + 1;
    const long excess = digits() - keep;
    if (excess <= 0) return *this;
    Integer power, quotient, remainder;
    mpz_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(excess));
    mpz_tdiv_qr(quotient.get(), remainder.get(), coefficient_, power.get());
    // Ties away from zero: a remainder of at least half the dropped unit rounds up.
    mpz_abs(remainder.get(), remainder.get());
    mpz_mul_2exp(remainder.get(), remainder.get(), 1);
    if (mpz_cmp(remainder.get(), power.get()) >= 0) {
        if (sign() < 0) {
            mpz_sub_ui(quotient.get(), quotient.get(), 1);
        } else {
            mpz_add_ui(quotient.get(), quotient.get(), 1);
        }
    }
    return WideDecimal(quotient.get(), scale_ + excess);
}

WideDecimal WideDecimal::truncated() const {
    if (scale_ >= 0) return *this;
    Integer power, quotient;
    mpz_ui_pow_ui(power.get(), 10, static_cast<unsigned long>(-scale_));
    mpz_tdiv_q(quotient.get(), coefficient_, power.get());
    return WideDecimal(quotient.get(), 0);
}

WideDecimal WideDecimal::negated() const {
    WideDecimal result(*this);
    mpz_neg(result.coefficient_, result.coefficient_);
    return result;
}

long WideDecimal::align(mpz_t a, mpz_t b, const WideDecimal &x, const WideDecimal &y) {
    const long scale = std::min(x.scale_, y.scale_);
    mpz_set(a, x.coefficient_);
    mpz_set(b, y.coefficient_);
    multiply_by_power_of_ten(a, x.scale_ - scale);
    multiply_by_power_of_ten(b, y.scale_ - scale);
    return scale;
}

WideDecimal operator+(const WideDecimal &a, const WideDecimal &b) {
    // Zero carries no meaningful scale; aligning to it could only make digits.
    if (a.is_zero()) return b;
    if (b.is_zero()) return a;
    Integer x, y;
    const long scale = WideDecimal::align(x.get(), y.get(), a, b);
    mpz_add(x.get(), x.get(), y.get());
    return WideDecimal(x.get(), scale);
}

WideDecimal operator-(const WideDecimal &a, const WideDecimal &b) {
    return a + b.negated();
}

WideDecimal operator*(const WideDecimal &a, const WideDecimal &b) {
    Integer product;
    mpz_mul(product.get(), a.coefficient_, b.coefficient_);
    return WideDecimal(product.get(), a.scale_ + b.scale_);
}

int compare(const WideDecimal &a, const WideDecimal &b) {
    return (a - b).sign();
}

WideDecimal WideDecimal::quotient(const WideDecimal &a, const WideDecimal &b, int places) {
    if (a.is_zero() || b.is_zero()) return WideDecimal();
    places = std::max(places, 0);
    // Scale so that the integer quotient has at least places + 2 digits: cut there, the
    // rounding at places + 1 digits is the rounding of the exact quotient.
    const long shift = b.digits() - a.digits() + places + 2;
    Integer numerator, denominator;
    mpz_abs(numerator.get(), a.coefficient_);
    mpz_abs(denominator.get(), b.coefficient_);
    multiply_by_power_of_ten(numerator.get(), shift);
    multiply_by_power_of_ten(denominator.get(), -shift);
    mpz_tdiv_q(numerator.get(), numerator.get(), denominator.get());
    if (a.sign() != b.sign()) mpz_neg(numerator.get(), numerator.get());
    return WideDecimal(numerator.get(), a.scale_ - b.scale_ - shift).rounded(places);
}

WideDecimal WideDecimal::square_root(const WideDecimal &value, int places) {
    if (value.sign() <= 0) return WideDecimal();
    places = std::max(places, 0);
    // An integer of 2 * places + 3 digits has a root of places + 2 digits; the scale must
    // be even to halve it.
    long shift = std::max(0L, 2L * places + 3 - value.digits());
    if ((value.scale_ - shift) % 2 != 0) ++shift;
    Integer radicand;
    mpz_set(radicand.get(), value.coefficient_);
    multiply_by_power_of_ten(radicand.get(), shift);
    mpz_sqrt(radicand.get(), radicand.get());
    return WideDecimal(radicand.get(), (value.scale_ - shift) / 2).rounded(places);
}

}  // namespace quindar::wide
