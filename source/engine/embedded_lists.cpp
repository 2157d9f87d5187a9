// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Handlers of the functions over a data list that are not statistics, and HYPOT.
#include <cmath>

#include "embedded_calls.h"
#include "parser.h"

namespace quindar {

namespace {
constexpr int kIncomplete = 0, kNoParameters = 2, kMustBeReal = 12, kTooMany = 7;
}  // namespace

bool EmbeddedCalls::fetch_list(Parser &p, std::ostream &answer, DynArray<long double, 10> &list,
                               int fn) {
    p.check_no_right_bracket(kNoParameters, fn);
    p.get_data(answer, list, fn);
    if (p.IsAnError()) return false;
    p.check_right_bracket(kIncomplete, fn);
    return !p.IsAnError();
}

complex EmbeddedCalls::series_resistance(const DynArray<long double, 10> &list) {
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += *list[k];
    return complex{static_cast<double>(sum), 0};
}

complex EmbeddedCalls::call_sresist(Parser &p, std::ostream &answer) {
    DynArray<long double, 10> list;
    if (!fetch_list(p, answer, list, index_of("SRESIST"))) return complex{};
    return series_resistance(list);
}

// 1 / (sum of 1/R), each quotient through the decimal division, the sum in double.
complex EmbeddedCalls::parallel_resistance(Parser &p, const DynArray<long double, 10> &list) {
    const complex one{1, 0};
    double sum = 0;
    for (int k = 0; k < list.count(); ++k)
        sum += p.complex_div(one, complex{static_cast<double>(*list[k]), 0}).real;
    return p.complex_div(one, complex{sum, 0});
}

complex EmbeddedCalls::call_presist(Parser &p, std::ostream &answer) {
    DynArray<long double, 10> list;
    if (!fetch_list(p, answer, list, index_of("PRESIST"))) return complex{};
    return parallel_resistance(p, list);
}

complex EmbeddedCalls::_hypot(Parser &p, const complex &a, const complex &b) {
    if (p.check_no_imag_compnts(kMustBeReal, index_of("HYPOT"), a, b)) return complex{};
    return complex{std::hypot(a.real, b.real), 0};
}

complex EmbeddedCalls::call_hypot(Parser &p, std::ostream &answer) {
    const int fn = index_of("HYPOT");
    complex a, b;
    p.get_two_pars(answer, a, b, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return _hypot(p, a, b);
}

}  // namespace quindar
