// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The handlers of the embedded functions. Each fetches its own parameters from the
// evaluator, then computes through a worker that the map solver shares.

#include <ostream>

#include "complex.h"
#include "dynarray.h"
#include "statistics.h"

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
    // Statistics over a data list or a normal distribution.
    static complex call_mean(Parser &p, std::ostream &answer);
    static complex call_gmean(Parser &p, std::ostream &answer);
    static complex call_hmean(Parser &p, std::ostream &answer);
    static complex call_median(Parser &p, std::ostream &answer);
    static complex call_mode(Parser &p, std::ostream &answer);
    static complex call_min(Parser &p, std::ostream &answer);
    static complex call_max(Parser &p, std::ostream &answer);
    static complex call_sumx(Parser &p, std::ostream &answer);
    static complex call_sumxsq(Parser &p, std::ostream &answer);
    static complex call_sumdev(Parser &p, std::ostream &answer);
    static complex call_avgdev(Parser &p, std::ostream &answer);
    static complex call_sumdevsq(Parser &p, std::ostream &answer);
    static complex call_range(Parser &p, std::ostream &answer);
    static complex call_count(Parser &p, std::ostream &answer);
    static complex call_rank(Parser &p, std::ostream &answer);
    static complex call_svariance(Parser &p, std::ostream &answer);
    static complex call_pvariance(Parser &p, std::ostream &answer);
    static complex call_sstdev(Parser &p, std::ostream &answer);
    static complex call_pstdev(Parser &p, std::ostream &answer);
    static complex call_normdis(Parser &p, std::ostream &answer);
    static complex call_normprob(Parser &p, std::ostream &answer);
    static complex call_normx(Parser &p, std::ostream &answer);
    static complex call_zscore(Parser &p, std::ostream &answer);
    static complex call_skew(Parser &p, std::ostream &answer);
    static complex call_kurt(Parser &p, std::ostream &answer);
    static complex call_percentile(Parser &p, std::ostream &answer);
    static complex call_loquartile(Parser &p, std::ostream &answer);
    static complex call_upquartile(Parser &p, std::ostream &answer);
    static complex call_binoco(Parser &p, std::ostream &answer);
    static complex call_permutate(Parser &p, std::ostream &answer);
    static complex call_wsnorm(Parser &p, std::ostream &answer);
    // Random deviates.
    static complex call_unidev(Parser &p, std::ostream &answer);
    static complex call_nordev(Parser &p, std::ostream &answer);
    static complex call_expdev(Parser &p, std::ostream &answer);
    static complex call_raydev(Parser &p, std::ostream &answer);
    static complex call_berdev(Parser &p, std::ostream &answer);
    static complex call_betadev(Parser &p, std::ostream &answer);
    static complex call_bnldev(Parser &p, std::ostream &answer);
    static complex call_caudev(Parser &p, std::ostream &answer);
    static complex call_chidev(Parser &p, std::ostream &answer);
    static complex call_dexpdev(Parser &p, std::ostream &answer);
    static complex call_fdev(Parser &p, std::ostream &answer);
    static complex call_gamdev(Parser &p, std::ostream &answer);
    static complex call_logdev(Parser &p, std::ostream &answer);
    static complex call_nchidev(Parser &p, std::ostream &answer);
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
    // A statistic of the list alone, and of the list with one more real value after it.
    using ListStatistic = long double (*)(Statistics &s, DataList &list);
    static complex list_statistic(Parser &p, std::ostream &answer, const char *name,
                                  ListStatistic compute);
    using ListValueStatistic = long double (*)(Statistics &s, DataList &list, long double v);
    static complex list_value_statistic(Parser &p, std::ostream &answer, const char *name,
                                        ListValueStatistic compute);
    // The quartiles: the list without its closing bracket test, which the caller makes.
    static complex quartile(Parser &p, std::ostream &answer, const char *name, long double p100);
    // The list form's opening: the list, then the comma before the values that follow it.
    static bool fetch_list_and_comma(Parser &p, std::ostream &answer, DataList &list, int fn);
    // Deviates with a form without parameters: the defaults when the call is empty.
    static bool fetch_or_default(Parser &p, std::ostream &answer, complex &a, complex &b, int fn);
    static bool fetch_two_checked(Parser &p, std::ostream &answer, complex &a, complex &b, int fn);
    static bool fetch_one_checked(Parser &p, std::ostream &answer, complex &a, int fn);
};

}  // namespace quindar
