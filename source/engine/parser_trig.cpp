// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The circular and hyperbolic functions and their inverses, one worker per group of
// three. Circular functions read the angle mode: 0 degrees, anything else radians.
#include <cmath>
#include <sstream>

#include "exact_functions.h"
#include "mapm_complex.h"
#include "mapm_functions.h"
#include "number_text.h"
#include "parser.h"
#include "parser_complex_worker.h"

namespace quindar {

namespace {

constexpr int kPlaces = 14;
constexpr int kComplexInDegrees = 27, kPole = 30, kOutsideUnit = 34, kTooLarge = 37;
constexpr const char *kRadiansPerDegree =
    "0.0174532925199432957692369076848861271344287188854172545609719144017100911460344944368224156"
    "963450948";
constexpr const char *kTwoPi =
    "6.2831853071795864769252867665590057683943387987502116419498891846156328125724179972560696506"
    "842341360";
constexpr const char *kFullTurn = "360.0";

}  // namespace

// The remainder of x by a full turn (sign of x): the decimal value, and as a number.
long double Parser::reduce_angle(long double x, const char *turn, MapmNumber &remainder) {
    MapmNumber value, period, quotient;
    SetMapmValue(x, &value);
    m_apm_set_string(&period, turn);
    m_apm_integer_div_rem(&quotient, &remainder, &value, &period);
    return GetMapmValue(&remainder);
}

std::string Parser::value_text(const complex &z) {
    std::ostringstream stream;
    init_number_stream(stream, *variable_format);
    complex copy = z;
    quindar::stream_variable(*this, copy, stream, static_cast<int>(variable_format->precision),
                             *variable_format);
    return stream.str();
}

complex Parser::_trig_func(const complex &z, int fn) {
    // The sine and cosine of a real: decided in binary where a bound decides them.
    if (z.imag == 0) {
        const bool sine = fn == internal_function("SIN");
        if (complex value; (sine || fn == internal_function("COS")) &&
                           exact::real_sine(z.real, !sine, angle_mode == 0, value))
            return value;
    }
    long double re = z.real, im = z.imag;
    if (re > 1e80L && im > 1e80L) {
        mathlib_exception(kTooLarge, fn, nullptr);
        return complex{};
    }
    const bool tangent = fn == internal_function("TAN");
    InitMapmValues();
    SetMapmValue(im, mapm_b);
    if (angle_mode == 0) {
        if (tangent) {
            MapmNumber remainder;
            if (real_abs(re) > 360) re = reduce_angle(re, kFullTurn, remainder);
            if (real_abs(im) > 360) im = reduce_angle(im, kFullTurn, remainder);
            const long double magnitude = real_abs(re);
            if (real_abs(im) < 1e-307L &&
                (std::fabs(magnitude - 90) < 1e-14L || std::fabs(magnitude - 270) < 1e-14L)) {
                FreeMapmValues();
                mathlib_exception(kPole, fn, value_text(z).c_str());
                return complex{};
            }
        }
        MapmNumber factor, part;
        m_apm_set_string(&factor, kRadiansPerDegree);
        SetMapmValue(re, &part);
        m_apm_multiply(mapm_a, &part, &factor);
        SetMapmValue(im, &part);
        m_apm_multiply(mapm_b, &part, &factor);
    } else {
        SetMapmValue(re, mapm_a);
        if (tangent) {
            // In radians the reduced value itself is the operand.
            if (real_abs(re) > 6.283185307179586L) re = reduce_angle(re, kTwoPi, *mapm_a);
            if (real_abs(im) > 6.283185307179586L) im = reduce_angle(im, kTwoPi, *mapm_b);
            const long double magnitude = real_abs(re);
            if (im == 0 && (std::fabs(magnitude - 1.5707963267948966L) < 1e-14L ||
                            std::fabs(magnitude - 4.71238898038469L) < 1e-14L)) {
                FreeMapmValues();
                mathlib_exception(kPole, fn, value_text(z).c_str());
                return complex{};
            }
        }
    }
    if (fn == internal_function("SIN"))
        m_apmc_sin(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
    else if (fn == internal_function("COS"))
        m_apmc_cos(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
    else
        m_apmc_tan(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
    const complex result{static_cast<double>(GetMapmValue(mapm_r1)),
                         static_cast<double>(GetMapmValue(mapm_r2))};
    FreeMapmValues();
    return result;
}

complex Parser::_hyp_trig_func(const complex &z, int fn) {
    return complex_worker(z, [this, fn] {
        if (fn == internal_function("SINH"))
            m_apmc_sinh(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        else if (fn == internal_function("COSH"))
            m_apmc_cosh(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        else
            m_apmc_tanh(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
    });
}

complex Parser::_arc_trig_func(const complex &z, int fn) {
    if (angle_mode == 0 && z.imag != 0) {
        mathlib_exception(kComplexInDegrees, fn, nullptr);
        return complex{};
    }
    const bool sine = fn == internal_function("ASIN"), cosine = fn == internal_function("ACOS");
    if ((sine || cosine) && (z.real > 1 || z.real < -1)) {
        mathlib_exception(kOutsideUnit, fn, nullptr);
        return complex{};
    }
    return complex_worker(z, [this, sine, cosine] {
        if (sine)
            m_apmc_arcsin(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        else if (cosine)
            m_apmc_arccos(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        else
            m_apmc_arctan(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        if (angle_mode == 0) {
            MapmNumber factor, radians = *mapm_r1;
            m_apm_set_string(&factor, kRadiansPerDegree);
            m_apm_divide(mapm_r1, kPlaces, &radians, &factor);
        }
    });
}

complex Parser::_arc_hyp_trig_func(const complex &z, int fn) {
    const bool tangent = fn == internal_function("ATANH");
    if (tangent && !(z.real > -1 && z.real < 1)) {
        mathlib_exception(kOutsideUnit, fn, nullptr);
        return complex{};
    }
    return complex_worker(z, [this, fn, tangent] {
        if (fn == internal_function("ASINH"))
            m_apmc_arcsinh(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        else if (tangent)
            m_apmc_arctanh(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
        else
            m_apmc_arccosh(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b);
    });
}

}  // namespace quindar
