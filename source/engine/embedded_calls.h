// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The handlers of the embedded functions. Each fetches its own parameters from the
// evaluator, then computes through a worker that the map solver shares.

#include <ostream>

#include "complex.h"
#include "dynarray.h"

namespace quindar {

class Parser;

class EmbeddedCalls {
public:
    using Handler = complex (*)(Parser &, std::ostream &);
    // The handler of function `index` of the table; null while its computation has not
    // arrived.
    static Handler handler(int index);

    // Functions through the complex decimal layer.
    static complex call_sqrt(Parser &p, std::ostream &answer);
    static complex call_log(Parser &p, std::ostream &answer);
    static complex call_log10(Parser &p, std::ostream &answer);
    static complex call_exp(Parser &p, std::ostream &answer);
    static complex call_abs(Parser &p, std::ostream &answer);
    static complex call_round(Parser &p, std::ostream &answer);
    static complex call_trunc(Parser &p, std::ostream &answer);
    static complex call_fmod(Parser &p, std::ostream &answer);
    static complex call_floor(Parser &p, std::ostream &answer);
    static complex call_ceil(Parser &p, std::ostream &answer);
    static complex call_degree(Parser &p, std::ostream &answer);
    static complex call_radian(Parser &p, std::ostream &answer);
    static complex call_sin(Parser &p, std::ostream &answer);
    static complex call_cos(Parser &p, std::ostream &answer);
    static complex call_tan(Parser &p, std::ostream &answer);
    static complex call_sinh(Parser &p, std::ostream &answer);
    static complex call_cosh(Parser &p, std::ostream &answer);
    static complex call_tanh(Parser &p, std::ostream &answer);
    static complex call_asin(Parser &p, std::ostream &answer);
    static complex call_acos(Parser &p, std::ostream &answer);
    static complex call_atan(Parser &p, std::ostream &answer);
    static complex call_asinh(Parser &p, std::ostream &answer);
    static complex call_acosh(Parser &p, std::ostream &answer);
    static complex call_atanh(Parser &p, std::ostream &answer);
    // General and complex functions.
    static complex call_pow(Parser &p, std::ostream &answer);
    static complex call_cubert(Parser &p, std::ostream &answer);
    static complex call_logarithm(Parser &p, std::ostream &answer);
    static complex call_gcd(Parser &p, std::ostream &answer);
    static complex call_lcm(Parser &p, std::ostream &answer);
    static complex call_rtop(Parser &p, std::ostream &answer);
    static complex call_ptor(Parser &p, std::ostream &answer);
    static complex call_basecon(Parser &p, std::ostream &answer);
    static complex call_real(Parser &p, std::ostream &answer);
    static complex call_imag(Parser &p, std::ostream &answer);
    static complex call_norm(Parser &p, std::ostream &answer);
    static complex call_mag(Parser &p, std::ostream &answer);
    static complex call_angle(Parser &p, std::ostream &answer);
    static complex call_polar(Parser &p, std::ostream &answer);
    static complex call_conj(Parser &p, std::ostream &answer);
    static complex call_hypot(Parser &p, std::ostream &answer);
    // Electrical functions over a data list.
    static complex call_sresist(Parser &p, std::ostream &answer);
    static complex call_presist(Parser &p, std::ostream &answer);
    // Logical functions.
    static complex call_and(Parser &p, std::ostream &answer);
    static complex call_or(Parser &p, std::ostream &answer);
    static complex call_not(Parser &p, std::ostream &answer);
    static complex call_if(Parser &p, std::ostream &answer);

    // Workers that the handlers and the map solver share. Each repeats the tests of its
    // handler's fetch that a map cannot have made.
    static complex _logarithm(Parser &p, const complex &z, const complex &base);
    static complex _gcd(Parser &p, const complex &a, const complex &b);
    static complex _lcm(Parser &p, const complex &a, const complex &b);
    static complex _rtop(Parser &p, const complex &x, const complex &y);
    static complex _ptor(Parser &p, const complex &r, const complex &angle);
    // With a null text, the form a map uses: base 10 only, the digits read as a number.
    static complex _basecon(Parser &p, const complex &number, const complex &base, char *text);
    static complex _angle(Parser &p, const complex &z);
    static complex _polar(Parser &p, const complex &magnitude, const complex &angle);
    static complex _hypot(Parser &p, const complex &a, const complex &b);
    static complex _cubert(Parser &p, const complex &z);
    static complex real_part(const complex &z) { return complex{z.real, 0}; }
    static complex imaginary_part(const complex &z) { return complex{z.imag, 0}; }
    static complex norm(const complex &z);
    static complex magnitude(const complex &z);
    static complex conjugate(const complex &z) { return complex{z.real, -z.imag}; }
    // True for a logical value (real part exactly 0 or 1, no imaginary part); otherwise
    // raises message 21 for function fn and gives false.
    static bool is_logical_or_raise(Parser &p, int fn, const complex &value);
    // One binary step of AND or OR, as a map chains them.
    static complex _logical(Parser &p, int fn, const complex &a, const complex &b, bool isAnd);
    static complex _not(Parser &p, int fn, const complex &value);
    static complex _if(Parser &p, int fn, const complex &test, const complex &a, const complex &b);
    // SRESIST and PRESIST of a list.
    static complex series_resistance(const DynArray<long double, 10> &list);
    static complex parallel_resistance(Parser &p, const DynArray<long double, 10> &list);

private:
    static int index_of(const char *name);
    static complex logical_chain(Parser &p, std::ostream &answer, const char *name, bool isAnd);
    // RTOP, PTOR and BASECON must be the whole line: its start, and nothing after the call.
    static void check_line_start(Parser &p, int fn);
    static void check_line_end(Parser &p, int fn);
    // The brace argument of a list function, closed by its bracket.
    static bool fetch_list(Parser &p, std::ostream &answer, DynArray<long double, 10> &list,
                           int fn);
};

}  // namespace quindar
