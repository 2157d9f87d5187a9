// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm.h"

#include <gmp.h>

#include <cctype>
#include <cstdio>
#include <cstring>
#include <string>

#include "bid.h"

namespace quindar {

namespace {

using bid::load;
using bid::store;

using bid::kCut;
using bid::round_to_places;

BID_UINT128 zero() {
    return bid128_from_int32(0);
}

bool is_special(const BID_UINT128 &x) {
    return !bid128_isFinite(x);
}

// Writes the decimal digits of a coefficient, most significant first.
int coefficient_digits(unsigned __int128 coefficient, char *out) {
    char reversed[40];
    int n = 0;
    do {
        reversed[n++] = static_cast<char>('0' + static_cast<int>(coefficient % 10));
        coefficient /= 10;
    } while (coefficient != 0);
    for (int i = 0; i < n; ++i) out[i] = reversed[n - 1 - i];
    return n;
}

bool text_names_nan(const char *text) {
    while (std::isspace(static_cast<unsigned char>(*text))) ++text;
    if (*text == '+' || *text == '-') ++text;
    return std::strncmp(text, "nan", 3) == 0 || std::strncmp(text, "NaN", 3) == 0 ||
           std::strncmp(text, "NAN", 3) == 0;
}

}  // namespace

M_APM m_apm_init() {
    M_APM value = new MapmNumber;
    m_apm_set_zero(value);
    return value;
}

void m_apm_free(M_APM value) {
    delete value;
}

void m_apm_set_zero(M_APM result) {
    store(result, zero());
}

void m_apm_set_long(M_APM result, long value) {
    store(result, bid128_from_int64(static_cast<BID_SINT64>(value)));
}

void m_apm_set_decimal(M_APM result, bool negative, std::uint64_t coefficient, int exponent) {
    // The canonical encoding with the coefficient in the low 113 bits, as parsing makes it.
    constexpr int kExponentBias = 6176;
    BID_UINT128 x;
    x.w[0] = coefficient;
    x.w[1] = (negative ? 0x8000000000000000ull : 0) |
             (static_cast<std::uint64_t>(exponent + kExponentBias) << 49);
    store(result, x);
}

bool m_apm_rounded_parts(const MapmNumber *value, int places, bool &negative,
                         std::uint64_t &coefficient, int &exponent) {
    if (places < 0) places = 0;
    if (places > kMapmMaxPlaces) places = kMapmMaxPlaces;
    const bid::Parts parts = bid::decompose(round_to_places(load(value), places));
    if (!parts.finite || parts.coefficient > UINT64_MAX) return false;
    negative = parts.negative && parts.coefficient != 0;
    coefficient = static_cast<std::uint64_t>(parts.coefficient);
    exponent = parts.coefficient == 0 ? 0 : parts.exponent;
    return true;
}

void m_apm_copy(M_APM result, const MapmNumber *value) {
    if (result != value) *result = *value;
}

void m_apm_set_string(M_APM result, const char *text) {
    _IDEC_flags flags = 0;
    BID_UINT128 x = bid128_from_string(const_cast<char *>(text), kCut, &flags);
    if (bid128_isNaN(x) && !text_names_nan(text)) x = zero();
    store(result, x);
}

void m_apm_to_string(char *text, int places, const MapmNumber *value) {
    if (places < 0) places = 0;
    if (places > kMapmMaxPlaces) places = kMapmMaxPlaces;
    const bid::Parts parts = bid::decompose(round_to_places(load(value), places));
    if (!parts.finite) {
        std::strcpy(text, parts.nan ? "nan" : (parts.negative ? "-inf" : "inf"));
        return;
    }
    char digits[40];
    int count = 0;
    int exponent = 0;
    if (parts.coefficient == 0) {
        digits[0] = '0';
        count = 1;
    } else {
        count = coefficient_digits(parts.coefficient, digits);
        exponent = parts.exponent + count - 1;
    }
    char *out = text;
    if (parts.negative && parts.coefficient != 0) *out++ = '-';
    *out++ = digits[0];
    if (places > 0) {
        *out++ = '.';
        // Rounding leaves places + 1 digits, or places + 2 when a carry made 10...0.
        for (int i = 1; i <= places; ++i) *out++ = i < count ? digits[i] : '0';
    }
    std::snprintf(out, 16, "E%+d", exponent);
}

void m_apm_add(M_APM result, const MapmNumber *a, const MapmNumber *b) {
    _IDEC_flags flags = 0;
    store(result, bid128_add(load(a), load(b), kCut, &flags));
}

void m_apm_subtract(M_APM result, const MapmNumber *a, const MapmNumber *b) {
    _IDEC_flags flags = 0;
    store(result, bid128_sub(load(a), load(b), kCut, &flags));
}

void m_apm_multiply(M_APM result, const MapmNumber *a, const MapmNumber *b) {
    _IDEC_flags flags = 0;
    store(result, bid128_mul(load(a), load(b), kCut, &flags));
}

void m_apm_divide(M_APM result, int places, const MapmNumber *a, const MapmNumber *b) {
    _IDEC_flags flags = 0;
    store(result, round_to_places(bid128_div(load(a), load(b), kCut, &flags), places));
}

void m_apm_round(M_APM result, int places, const MapmNumber *value) {
    store(result, round_to_places(load(value), places));
}

void m_apm_absolute_value(M_APM result, const MapmNumber *value) {
    store(result, bid128_abs(load(value)));
}

void m_apm_negate(M_APM result, const MapmNumber *value) {
    const BID_UINT128 x = load(value);
    // Decimal values have no negative zero for the engine: -0 stays 0.
    store(result, bid128_isZero(x) ? zero() : bid128_negate(x));
}

int m_apm_compare(const MapmNumber *a, const MapmNumber *b) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = load(a);
    const BID_UINT128 y = load(b);
    if (bid128_quiet_less(x, y, &flags)) return -1;
    if (bid128_quiet_greater(x, y, &flags)) return 1;
    return 0;
}

int m_apm_sign(const MapmNumber *value) {
    const BID_UINT128 x = load(value);
    if (bid128_isZero(x) || bid128_isNaN(x)) return 0;
    return bid128_isSigned(x) ? -1 : 1;
}

bool m_apm_is_finite(const MapmNumber *value) {
    return bid128_isFinite(load(value)) != 0;
}

bool m_apm_is_integer(const MapmNumber *value) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = load(value);
    if (is_special(x)) return false;
    return bid128_quiet_equal(bid128_round_integral_zero(x, &flags), x, &flags) != 0;
}

int m_apm_exponent(const MapmNumber *value) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = load(value);
    if (is_special(x) || bid128_isZero(x)) return 0;
    return bid128_ilogb(x, &flags);
}

void m_apm_integer_div_rem(M_APM quotient, M_APM remainder, const MapmNumber *a,
                           const MapmNumber *b) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = load(a);
    const BID_UINT128 y = load(b);
    const BID_UINT128 q = bid128_round_integral_zero(bid128_div(x, y, kCut, &flags), &flags);
    const BID_UINT128 r = bid128_fma(bid128_negate(q), y, x, kCut, &flags);
    store(quotient, bid128_isZero(q) ? zero() : q);
    store(remainder, bid128_isZero(r) ? zero() : r);
}

void m_apm_floor(M_APM result, const MapmNumber *value) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = bid128_round_integral_negative(load(value), &flags);
    store(result, bid128_isZero(x) ? zero() : x);
}

void m_apm_ceil(M_APM result, const MapmNumber *value) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = bid128_round_integral_positive(load(value), &flags);
    store(result, bid128_isZero(x) ? zero() : x);
}

void m_apm_factorial(M_APM result, const MapmNumber *n) {
    _IDEC_flags flags = 0;
    const BID_UINT128 x = load(n);
    // Beyond this n! exceeds the largest decimal128 value.
    constexpr long kLargestFactorial = 2100;
    if (is_special(x) || bid128_isSigned(x)) {
        store(result, bid128_from_int32(1));
        return;
    }
    if (bid128_quiet_greater(x, bid128_from_int32(kLargestFactorial), &flags)) {
        store(result, bid128_inf());
        return;
    }
    const long count = static_cast<long>(bid128_to_int64_int(x, &flags));
    mpz_t product;
    mpz_init(product);
    mpz_fac_ui(product, static_cast<unsigned long>(count));
    std::string text(mpz_sizeinbase(product, 10) + 2, '\0');
    mpz_get_str(text.data(), 10, product);
    mpz_clear(product);
    store(result, bid128_from_string(text.data(), kCut, &flags));
}

}  // namespace quindar
