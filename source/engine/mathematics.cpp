// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mathematics.h"
#include "message_text.h"

#include <climits>
#include <cmath>
#include <complex>
#include <cstring>
#include <new>

#include "evaluation_abort.h"

namespace quindar {

namespace {

const char *const kMathMessages[] = {
    "Division By Zero Encountered!",
    "Modulus Operator ' % ' Can Not Be Used With Complex Numbers!",
    "Modulus Arguments Must Be Integers!",
    "Vector Memory Allocation Failure!",
    "Matrix Memory Allocation Failure!",
    "A Floating Point Overflow Has Occured!",
};

constexpr const char *kMathCaption = "Mathematics Error";
constexpr const char *kDelimiters = "!+-<>/*%^=()[]{},;:#$@&?~`'\"|\\\t\r ";

}  // namespace

Mathematics::Mathematics() = default;

const char *Mathematics::math_message(int index) {
    constexpr int count = sizeof kMathMessages / sizeof kMathMessages[0];
    return index >= 0 && index < count ? kMathMessages[index] : "";
}

bool Mathematics::are_equal(long double a, long double b, long double tolerance) {
    return !(a < b - tolerance || a > b + tolerance);
}

long double Mathematics::sign(long double x) {
    return x < 0 ? -1.0L : (x > 0 ? 1.0L : 0.0L);
}

long double Mathematics::trunc(long double x) {
    return std::trunc(x);
}

long double Mathematics::round(long double x) {
    if (x == trunc(x)) return x;
    return x > 0 ? trunc(x + 0.5L) : trunc(x - 0.5L);
}

bool Mathematics::is_integer(long double x) {
    return x == round(x);
}

bool Mathematics::is_even(long double x) {
    return is_integer(x) && Fmod(x, 2) == 0;
}

long double Mathematics::Fmod(long double a, long double b) {
    const long double r = std::fmod(a, b);
    return std::fabs(r - b) < 1e-307L ? 0.0L : r;
}

complex &Mathematics::round_zero(complex &z, long double eps) {
    if (std::fabs(static_cast<long double>(z.real)) < eps) z.real = 0.0;
    if (std::fabs(static_cast<long double>(z.imag)) < eps) z.imag = 0.0;
    return z;
}

long double &Mathematics::round_zero(long double &x, long double eps) {
    if (std::fabs(x) < eps) x = 0.0L;
    return x;
}

bool Mathematics::is_delim(char c) {
    return c == '\0' || std::strchr(kDelimiters, c) != nullptr;
}

bool Mathematics::is_number(const char *text) {
    if (text == nullptr) return false;
    const char *p = text;
    while (*p == ' ') ++p;
    if (*p == '+' || *p == '-') ++p;
    bool inner_sign = false;
    bool imaginary = false;
    for (; *p != '\0'; ++p) {
        const char c = *p;
        if (c == ' ') continue;
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!letter && !is_delim(c)) {
            if (imaginary) return false;  // the i must stand last
            continue;
        }
        if (c == '+' || c == '-') {
            if (imaginary) return false;
            inner_sign = true;
        } else if (c == 'i') {
            if (imaginary) return false;
            imaginary = true;
        } else {
            return false;
        }
    }
    // The i must be the last character that is not blank.
    return !inner_sign || imaginary;
}

int Mathematics::to_int32(long double x) {
    if (!(x > static_cast<long double>(INT_MIN) - 1.0L &&
          x < static_cast<long double>(INT_MAX) + 1.0L))
        return INT_MIN;
    return static_cast<int>(x);
}

void Mathematics::basecon(long double number, long double base, char *text) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    long long value = to_int32(number);
    int radix = to_int32(base);
    if (radix < 2 || radix > 16) radix = 10;
    const bool negative = value < 0;
    if (negative) value = -value;
    char reversed[65];
    int n = 0;
    do {
        reversed[n++] = kDigits[value % radix];
        value /= radix;
    } while (value != 0 && n < 64);
    int out = 0;
    if (negative) text[out++] = '-';
    while (n > 0) text[out++] = reversed[--n];
    text[out] = '\0';
}

complex Mathematics::logarithm(complex z, long double base) {
    const std::complex<double> log10_z = std::log10(std::complex<double>(z.real, z.imag));
    const double scale = static_cast<double>(std::log10(base));
    return complex{log10_z.real() / scale, log10_z.imag() / scale};
}

long double Mathematics::gcd(long double a, long double b) {
    long long x = to_int32(a), y = to_int32(b);
    while (y != 0) {
        const long long r = x % y;
        x = y;
        y = r;
    }
    return static_cast<long double>(x);
}

long double Mathematics::lcm(long double a, long double b) {
    const int x = to_int32(a), y = to_int32(b);
    const long double divisor = gcd(x, y);
    // The product is taken in 32 bits, as the quotient's numerator always was.
    const auto product = static_cast<int>(static_cast<unsigned>(x) * static_cast<unsigned>(y));
    if (divisor == 0) return 0.0L;
    return trunc(static_cast<long double>(product) / divisor);
}

void Mathematics::swap(long double &a, long double &b) {
    const long double t = a;
    a = b;
    b = t;
}

// The arrays keep the slots below the low index unused instead of offsetting a pointer
// out of its block, so every index from 0 to the high one is valid memory.
long double *Mathematics::vector(long nl, long nh) {
    if (nl < 0 || nh < nl) {
        math_exception(3);
        return nullptr;
    }
    auto *v = new (std::nothrow) long double[static_cast<std::size_t>(nh) + 1]();
    if (v == nullptr) math_exception(3);
    return v;
}

void Mathematics::free_vector(long double *v, long, long) {
    delete[] v;
}

long double **Mathematics::matrix(long nrl, long nrh, long ncl, long nch) {
    if (nrl < 0 || ncl < 0 || nrh < nrl || nch < ncl) {
        math_exception(4);
        return nullptr;
    }
    const auto rows = static_cast<std::size_t>(nrh) + 1,
               columns = static_cast<std::size_t>(nch) + 1;
    auto **m = new (std::nothrow) long double *[rows];
    auto *block = m ? new (std::nothrow) long double[rows * columns]() : nullptr;
    if (block == nullptr) {
        delete[] m;
        math_exception(4);
        return nullptr;
    }
    for (std::size_t r = 0; r < rows; ++r) m[r] = block + r * columns;
    return m;
}

void Mathematics::free_matrix(long double **m, long, long, long, long) {
    if (m == nullptr) return;
    delete[] m[0];
    delete[] m;
}

void Mathematics::SetLastError(const char *text) {
    error = true;
    if (text != nullptr) error_text = printable_message(text);
}

void Mathematics::ClearLastError() {
    error = false;
    error_text.reset();
}

void Mathematics::math_exception(int index) {
    if (drops_error()) return;
    SetLastError(math_message(index));
    if (!silent) show_message(message_hook, math_message(index), kMathCaption);
    if (!solving_map && recovery_points > 0) {
        FreeMapmValues();
        throw EvaluationAbort{};
    }
}

void Mathematics::InitMapmValues() {
    // One thread: the values can only be busy here through re-entry from a message pump
    // in the middle of an operation, which nests harmlessly since each use reloads them.
    mapm_free = false;
    for (auto &value : mapm_values) m_apm_set_zero(&value);
}

void Mathematics::FreeMapmValues() {
    mapm_free = true;
}

}  // namespace quindar
