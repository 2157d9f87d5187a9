// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The decimal round trip of each operator: operands out as text with 14 significant
// digits, the operation in decimal, the result back from text with 15.
#include <charconv>
#include <cmath>
#include <cstring>

#include "decimal_passage.h"
#include "exact_arithmetic.h"
#include "mapm_complex.h"
#include "mathematics.h"

namespace quindar {

namespace {

// MAPM places: 14 places behind the first digit, 15 significant digits.
constexpr int kPlaces = 14;
// Operands are written in the general format with this many significant digits.
constexpr int kOperandDigits = 14;

}  // namespace

void Mathematics::SetMapmValue(const long double &value, M_APM target) {
    bool negative = false;
    std::uint64_t coefficient = 0;
    int exponent = 0;
    // Every operand of the language is a double; its digits come without text.
    const auto narrow = static_cast<double>(value);
    if (narrow == value &&
        decimal_passage::operand_digits(narrow, negative, coefficient, exponent)) {
        m_apm_set_decimal(target, negative, coefficient, exponent);
        return;
    }
    SetMapmValueByText(value, target);
}

void Mathematics::SetMapmValueByText(const long double &value, M_APM target) {
    char text[64];
    const auto written = std::to_chars(text, text + sizeof text - 1, value,
                                       std::chars_format::general, kOperandDigits);
    *written.ptr = '\0';
    m_apm_set_string(target, text);
}

void Mathematics::SetMapmValue(const double &value, M_APM target) {
    const long double wide = value;
    SetMapmValue(wide, target);
}

long double Mathematics::GetMapmValue(const MapmNumber *value) {
    bool negative = false;
    std::uint64_t coefficient = 0;
    int exponent = 0;
    long double result = 0;
    if (m_apm_rounded_parts(value, kPlaces, negative, coefficient, exponent) &&
        decimal_passage::read_digits(negative, coefficient, exponent, result))
        return result;
    return GetMapmValueByText(value);
}

long double Mathematics::GetMapmValueByText(const MapmNumber *value) {
    char text[kMapmTextSize];
    m_apm_to_string(text, kPlaces, value);
    return _atold(text);
}

long double Mathematics::_atold(const char *text) {
    while (*text == ' ') ++text;
    const bool negative = *text == '-';
    if (*text == '+' || *text == '-') ++text;
    long double result = 0.0L;
    const auto [end, status] =
        std::from_chars(text, text + std::char_traits<char>::length(text), result);
    if (status == std::errc::result_out_of_range) {
        const char *exponent = std::strpbrk(text, "eE");
        const bool large = exponent == nullptr || exponent[1] != '-';
        result = large ? HUGE_VALL : 0.0L;
    } else if (status != std::errc()) {
        result = 0.0L;
    }
    return negative ? -result : result;
}

template <class Operation>
complex Mathematics::complex_round_trip(const complex &a, const complex &b, Operation operation) {
    InitMapmValues();
    SetMapmValue(a.real, mapm_a);
    SetMapmValue(a.imag, mapm_b);
    SetMapmValue(b.real, mapm_c);
    SetMapmValue(b.imag, mapm_d);
    operation();
    complex result;
    result.real = static_cast<double>(GetMapmValue(mapm_r1));
    result.imag = static_cast<double>(GetMapmValue(mapm_r2));
    FreeMapmValues();
    return result;
}

complex Mathematics::complex_add(const complex &a, const complex &b) {
    // Integers give the decimal road's answer wherever they decide it.
    if (complex result; exact::complex_add(a, b, result)) return result;
    return complex_round_trip(
        a, b, [this] { m_apmc_add(mapm_r1, mapm_r2, mapm_a, mapm_b, mapm_c, mapm_d); });
}

complex Mathematics::complex_sub(const complex &a, const complex &b) {
    // Integers give the decimal road's answer wherever they decide it.
    if (complex result; exact::complex_sub(a, b, result)) return result;
    return complex_round_trip(
        a, b, [this] { m_apmc_sub(mapm_r1, mapm_r2, mapm_a, mapm_b, mapm_c, mapm_d); });
}

complex Mathematics::complex_mult(const complex &a, const complex &b) {
    // Integers give the decimal road's answer wherever they decide it.
    if (complex result; exact::complex_mult(a, b, result)) return result;
    return complex_round_trip(
        a, b, [this] { m_apmc_mul(mapm_r1, mapm_r2, mapm_a, mapm_b, mapm_c, mapm_d); });
}

complex Mathematics::complex_div(const complex &a, const complex &b) {
    // Integers give the decimal road's answer wherever they decide it.
    if (complex result; exact::complex_div(a, b, result)) return result;
    return complex_round_trip(a, b, [this] {
        // While a map is solved the report returns here; the results then stay 0.
        if (m_apmc_is0(mapm_c, mapm_d)) math_exception(0);
        m_apmc_div(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b, mapm_c, mapm_d);
    });
}

template <class Operation>
long double Mathematics::real_round_trip(const long double &a, const long double &b,
                                         Operation operation) {
    InitMapmValues();
    SetMapmValue(a, mapm_a);
    SetMapmValue(b, mapm_c);
    operation();
    const long double result = GetMapmValue(mapm_r1);
    FreeMapmValues();
    return result;
}

long double Mathematics::real_add(const long double &a, const long double &b) {
    return real_round_trip(a, b, [this] { m_apm_add(mapm_r1, mapm_a, mapm_c); });
}

long double Mathematics::real_sub(const long double &a, const long double &b) {
    return real_round_trip(a, b, [this] { m_apm_subtract(mapm_r1, mapm_a, mapm_c); });
}

long double Mathematics::real_mult(const long double &a, const long double &b) {
    return real_round_trip(a, b, [this] { m_apm_multiply(mapm_r1, mapm_a, mapm_c); });
}

long double Mathematics::real_div(const long double &a, const long double &b) {
    if (real_abs(b) < 1e-307L) math_exception(0);
    return real_round_trip(a, b, [this] {
        if (m_apm_sign(mapm_c) != 0) m_apm_divide(mapm_r1, kPlaces, mapm_a, mapm_c);
    });
}

long double Mathematics::real_abs(long double x) {
    InitMapmValues();
    SetMapmValue(x, mapm_a);
    m_apm_absolute_value(mapm_r1, mapm_a);
    const long double result = GetMapmValue(mapm_r1);
    FreeMapmValues();
    return result;
}

complex Mathematics::modulus(const complex &a, const complex &b) {
    if (a.imag != 0 || b.imag != 0) math_exception(1);
    if (!is_integer(a.real) || !is_integer(b.real)) math_exception(2);
    const int dividend = to_int32(a.real);
    const int divisor = to_int32(b.real);
    // A zero divisor has no remainder: reported like the division it is.
    if (divisor == 0) {
        math_exception(0);
        return complex{};
    }
    // INT_MIN % -1 overflows in the processor; its remainder is 0.
    const int remainder = divisor == -1 ? 0 : dividend % divisor;
    return complex{static_cast<double>(remainder), 0.0};
}

int Mathematics::precision(long double x) {
    const long double magnitude = real_abs(x);
    int digits = 0;
    long double power = 1.0L;
    while (std::floor(magnitude / power) != 0 && digits < 5000) {
        ++digits;
        power *= 10.0L;
    }
    long double fraction = static_cast<long double>(to_int32(x)) - x;
    if (fraction == 0) return digits;
    fraction = std::fabs(fraction);
    int k = 0;
    do {
        fraction *= 10.0L;
        if (std::ceil(fraction) > 1) fraction = std::fabs(trunc(fraction) - fraction);
        ++k;
    } while (std::ceil(fraction) == 1 && k < 20);
    return digits + k;
}

}  // namespace quindar
