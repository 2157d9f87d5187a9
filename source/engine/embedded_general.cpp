// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Handlers and workers of the general, complex and logical functions that compute in
// floating point or through the power worker.
#include <strings.h>
#include <cmath>
#include <cstring>

#include "embedded_calls.h"
#include "parser.h"

namespace quindar {

namespace {

// Messages of the function library used here.
constexpr int kTooMany = 7, kCommaExpected = 1, kCommaOutOfPlace = 8, kNoParameters = 2,
              kOneRequired = 3, kIncomplete = 0, kMustBeReal = 12, kNotInExpression = 19,
              kOfZero = 20, kNonLogical = 21, kLogicalPlusTwo = 22, kPositiveInteger = 23,
              kBaseRange = 24, kBaseAtLeastTwo = 25, kOnlyBaseTen = 36;

constexpr long double kOneOverPi = 0.3183098861837907L;
constexpr long double kPi = 3.141592653589793L;
constexpr long double kOneOver180 = 0.005555555555555556L;
// The double nearest 0.333333333333333, not 1/3: the cube root is this power.
constexpr double kCubeRootExponent = 0.333333333333333;

bool is_logical(const complex &value) {
    return value.imag == 0 && (value.real == 1 || value.real == 0);
}

}  // namespace

complex EmbeddedCalls::call_pow(Parser &p, std::ostream &answer) {
    const int fn = index_of("POW");
    complex base, exponent;
    p.get_two_pars(answer, base, exponent, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return p._pow(base, exponent);
}

complex EmbeddedCalls::_cubert(Parser &p, const complex &z) {
    return p._pow(z, complex{kCubeRootExponent, 0});
}

complex EmbeddedCalls::call_cubert(Parser &p, std::ostream &answer) {
    complex value;
    p.get_one_par(answer, value, index_of("CUBERT"));
    return _cubert(p, value);
}

complex EmbeddedCalls::_logarithm(Parser &p, const complex &z, const complex &base) {
    const int fn = index_of("LOG");
    if (z.real == 0 && z.imag == 0) {
        p.mathlib_exception(kOfZero, fn, nullptr);
        return complex{};
    }
    if (base.real < 2 || base.imag != 0) {
        p.mathlib_exception(kBaseAtLeastTwo, fn, nullptr);
        return complex{};
    }
    return Mathematics::logarithm(z, base.real);
}

complex EmbeddedCalls::call_logarithm(Parser &p, std::ostream &answer) {
    const int fn = index_of("LOG");
    complex z, base;
    p.get_two_pars(answer, z, base, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return _logarithm(p, z, base);
}

complex EmbeddedCalls::_gcd(Parser &p, const complex &a, const complex &b) {
    const int fn = index_of("GCD");
    if (p.check_no_imag_compnts(kMustBeReal, fn, a, b) || p.check_pos_integers(fn, a, b))
        return complex{};
    return complex{static_cast<double>(Mathematics::gcd(a.real, b.real)), 0};
}

complex EmbeddedCalls::call_gcd(Parser &p, std::ostream &answer) {
    const int fn = index_of("GCD");
    complex a, b;
    p.get_two_real_pos_pars(answer, a, b, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return _gcd(p, a, b);
}

complex EmbeddedCalls::_lcm(Parser &p, const complex &a, const complex &b) {
    const int fn = index_of("LCM");
    if (p.check_no_imag_compnts(kMustBeReal, fn, a, b) || p.check_pos_integers(fn, a, b))
        return complex{};
    return complex{static_cast<double>(Mathematics::lcm(a.real, b.real)), 0};
}

complex EmbeddedCalls::call_lcm(Parser &p, std::ostream &answer) {
    const int fn = index_of("LCM");
    complex a, b;
    p.get_two_real_pos_pars(answer, a, b, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return _lcm(p, a, b);
}

// RTOP, PTOR and BASECON print an answer of their own and can only stand alone.
void EmbeddedCalls::check_line_start(Parser &p, int fn) {
    const char *name = p.get_function_name(fn);
    const char *start = p.expr_start;
    while (*start == ' ' || *start == '\t') ++start;
    if (strncasecmp(start, name, std::strlen(name)) != 0)
        p.mathlib_exception(kNotInExpression, fn, nullptr);
}

void EmbeddedCalls::check_line_end(Parser &p, int fn) {
    const char *rest = p.prog;
    while (*rest == ' ' || *rest == '\t') ++rest;
    if (*rest != '\0') p.mathlib_exception(kNotInExpression, fn, nullptr);
}

// The pair travels as one complex value: r + i theta.
complex EmbeddedCalls::_rtop(Parser &p, const complex &x, const complex &y) {
    if (p.check_no_imag_compnts(kMustBeReal, index_of("RTOP"), x, y)) return complex{};
    long double r = std::sqrt(static_cast<long double>(x.real) * x.real +
                              static_cast<long double>(y.real) * y.real);
    long double theta = (x.real == 0 && y.real == 0) ? 0.0L
                                                     : std::atan2(static_cast<long double>(y.real),
                                                                  static_cast<long double>(x.real));
    Mathematics::round_zero(r, 1e-307L);
    Mathematics::round_zero(theta, 1e-307L);
    if (p.angle_mode == 0) theta = theta * kOneOverPi * 180;
    return complex{static_cast<double>(r), static_cast<double>(theta)};
}

complex EmbeddedCalls::call_rtop(Parser &p, std::ostream &answer) {
    const int fn = index_of("RTOP");
    check_line_start(p, fn);
    complex x, y;
    p.get_two_real_pars(answer, x, y, fn);
    p.check_no_other_parameter(kTooMany, fn);
    check_line_end(p, fn);
    const complex pair = _rtop(p, x, y);
    answer << " = (" << pair.real << ", " << pair.imag << ")";
    return pair;
}

complex EmbeddedCalls::_ptor(Parser &p, const complex &r, const complex &angle) {
    if (p.check_no_imag_compnts(kMustBeReal, index_of("PTOR"), r, angle)) return complex{};
    long double theta = angle.real;
    if (p.angle_mode == 0) theta = theta * kPi * kOneOver180;
    long double x = r.real * std::cos(theta);
    long double y = r.real * std::sin(theta);
    Mathematics::round_zero(x, 1e-307L);
    Mathematics::round_zero(y, 1e-307L);
    return complex{static_cast<double>(x), static_cast<double>(y)};
}

complex EmbeddedCalls::call_ptor(Parser &p, std::ostream &answer) {
    const int fn = index_of("PTOR");
    check_line_start(p, fn);
    complex r, angle;
    p.get_two_real_pars(answer, r, angle, fn);
    p.check_no_other_parameter(kTooMany, fn);
    check_line_end(p, fn);
    const complex pair = _ptor(p, r, angle);
    answer << " = (" << pair.real << ", " << pair.imag << ")";
    return pair;
}

complex EmbeddedCalls::_basecon(Parser &p, const complex &number, const complex &base, char *text) {
    const int fn = index_of("BASECON");
    if (!Mathematics::is_integer(number.real) || number.real < 1) {
        p.mathlib_exception(kPositiveInteger, fn, nullptr);
        return complex{};
    }
    if (!Mathematics::is_integer(base.real) || base.real < 2 || base.real > 16) {
        p.mathlib_exception(kBaseRange, fn, nullptr);
        return complex{};
    }
    char own[65];
    char *digits = text != nullptr ? text : own;
    Mathematics::basecon(number.real, base.real, digits);
    if (text != nullptr) return number;
    // A map has no answer text to write digits of another base into.
    if (base.real != 10) {
        p.mathlib_exception(kOnlyBaseTen, fn, nullptr);
        return complex{};
    }
    return complex{static_cast<double>(Mathematics::_atold(digits)), 0};
}

complex EmbeddedCalls::call_basecon(Parser &p, std::ostream &answer) {
    const int fn = index_of("BASECON");
    check_line_start(p, fn);
    complex number, base;
    p.get_two_real_pars(answer, number, base, fn);
    p.check_no_other_parameter(kTooMany, fn);
    check_line_end(p, fn);
    char digits[65];
    const complex value = _basecon(p, number, base, digits);
    if (p.IsAnError()) return value;
    if (p.show_equals) answer << " = ";
    answer << digits;
    return value;
}

complex EmbeddedCalls::call_real(Parser &p, std::ostream &answer) {
    complex z;
    p.get_one_par(answer, z, index_of("REAL"));
    return real_part(z);
}

complex EmbeddedCalls::call_imag(Parser &p, std::ostream &answer) {
    complex z;
    p.get_one_par(answer, z, index_of("IMAG"));
    return imaginary_part(z);
}

complex EmbeddedCalls::norm(const complex &z) {
    return complex{z.real * z.real + z.imag * z.imag, 0};
}

complex EmbeddedCalls::call_norm(Parser &p, std::ostream &answer) {
    complex z;
    p.get_one_par(answer, z, index_of("NORM"));
    return norm(z);
}

complex EmbeddedCalls::magnitude(const complex &z) {
    return complex{std::sqrt(z.real * z.real + z.imag * z.imag), 0};
}

complex EmbeddedCalls::call_mag(Parser &p, std::ostream &answer) {
    complex z;
    p.get_one_par(answer, z, index_of("CMAG"));
    return magnitude(z);
}

// The negative real axis has the angle +pi.
complex EmbeddedCalls::_angle(Parser &p, const complex &z) {
    double theta = std::atan2(z.imag, z.real);
    if (z.real < 0 && z.imag == 0 && theta < 0) theta = -theta;
    if (p.angle_mode == 0) theta = static_cast<double>(theta * kOneOverPi * 180);
    return complex{theta, 0};
}

complex EmbeddedCalls::call_angle(Parser &p, std::ostream &answer) {
    complex z;
    p.get_one_par(answer, z, index_of("CANGLE"));
    return _angle(p, z);
}

// The angle is in radians whatever the angle mode.
complex EmbeddedCalls::_polar(Parser &p, const complex &magnitude, const complex &angle) {
    if (p.check_no_imag_compnts(kMustBeReal, index_of("PTOC"), magnitude, angle)) return complex{};
    return complex{magnitude.real * std::cos(angle.real), magnitude.real * std::sin(angle.real)};
}

complex EmbeddedCalls::call_polar(Parser &p, std::ostream &answer) {
    const int fn = index_of("PTOC");
    complex magnitude, angle;
    p.get_two_pars(answer, magnitude, angle, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return _polar(p, magnitude, angle);
}

complex EmbeddedCalls::call_conj(Parser &p, std::ostream &answer) {
    complex z;
    p.get_one_par(answer, z, index_of("CONJ"));
    return conjugate(z);
}

bool EmbeddedCalls::is_logical_or_raise(Parser &p, int fn, const complex &value) {
    if (is_logical(value)) return true;
    p.mathlib_exception(kNonLogical, fn, nullptr);
    return false;
}

complex EmbeddedCalls::_logical(Parser &p, int fn, const complex &a, const complex &b, bool isAnd) {
    if (!is_logical_or_raise(p, fn, a) || !is_logical_or_raise(p, fn, b)) return complex{};
    const bool result = isAnd ? a.real == 1 && b.real == 1 : a.real == 1 || b.real == 1;
    return complex{result ? 1.0 : 0.0, 0};
}

// Every parameter is evaluated: there is no short cut. A map chains binary steps, one
// behind each parameter from the second on.
complex EmbeddedCalls::logical_chain(Parser &p, std::ostream &answer, const char *name,
                                     bool isAnd) {
    const int fn = index_of(name);
    p.check_no_right_bracket(kNoParameters, fn);
    bool result = isAnd;
    bool first = true;
    for (;;) {
        complex value;
        p.eval_exp1(value, answer);
        if (!is_logical_or_raise(p, fn, value)) return complex{};
        if (isAnd && value.real == 0) result = false;
        if (!isAnd && value.real == 1) result = true;
        if (!first) p.record(isAnd ? Instruction::And : Instruction::Or);
        first = false;
        if (p.token_is(']')) break;
        p.check_more(kIncomplete, fn);
        p.check_comma(kCommaExpected, fn);
        p.get_token();
        p.check_no_comma(kCommaOutOfPlace, fn);
        p.check_no_right_bracket(kCommaOutOfPlace, fn);
    }
    return complex{result ? 1.0 : 0.0, 0};
}

complex EmbeddedCalls::call_and(Parser &p, std::ostream &answer) {
    return logical_chain(p, answer, "AND", true);
}

complex EmbeddedCalls::call_or(Parser &p, std::ostream &answer) {
    return logical_chain(p, answer, "OR", false);
}

complex EmbeddedCalls::_not(Parser &p, int fn, const complex &value) {
    if (!is_logical_or_raise(p, fn, value)) return complex{};
    return complex{1 - value.real, 0};
}

complex EmbeddedCalls::call_not(Parser &p, std::ostream &answer) {
    const int fn = index_of("NOT");
    p.check_no_right_bracket(kOneRequired, fn);
    complex value;
    p.eval_exp1(value, answer);
    if (!is_logical_or_raise(p, fn, value)) return complex{};
    p.check_no_other_parameter(kTooMany, fn);
    return _not(p, fn, value);
}

complex EmbeddedCalls::_if(Parser &p, int fn, const complex &test, const complex &a,
                           const complex &b) {
    if (!is_logical_or_raise(p, fn, test)) return complex{};
    return test.real == 1 ? a : b;
}

// Both branches are evaluated, so an error in the one not taken still stops the line.
complex EmbeddedCalls::call_if(Parser &p, std::ostream &answer) {
    const int fn = index_of("IF");
    complex test, a, b;
    p.check_no_right_bracket(kLogicalPlusTwo, fn);
    p.eval_exp1(test, answer);
    if (!is_logical_or_raise(p, fn, test)) return complex{};
    p.check_no_right_bracket(kLogicalPlusTwo, fn);
    p.check_comma(kCommaExpected, fn);
    p.get_token();
    p.check_no_comma(kCommaOutOfPlace, fn);
    p.check_more(kCommaOutOfPlace, fn);
    p.eval_exp1(a, answer);
    p.check_no_right_bracket(kLogicalPlusTwo, fn);
    p.check_comma(kCommaExpected, fn);
    p.get_token();
    p.check_no_comma(kCommaOutOfPlace, fn);
    p.check_no_right_bracket(kLogicalPlusTwo, fn);
    p.eval_exp1(b, answer);
    p.check_no_other_parameter(kTooMany, fn);
    return _if(p, fn, test, a, b);
}

}  // namespace quindar
