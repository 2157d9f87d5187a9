// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Numerical derivatives of a mapped expression: central differences of shrinking steps,
// extrapolated to step zero; higher orders difference fully extrapolated lower ones.
#include <algorithm>
#include <cmath>

#include "parser.h"

namespace quindar {

namespace {
constexpr int kMaxSteps = 10;
constexpr long double kStepDivisor = 10.0L;
constexpr long double kFactorGrowth = 100.0L;
constexpr long double kStartingError = 1.0e+307L;
constexpr double kImaginaryLimit = 1e-14;
}  // namespace

bool Parser::Slope(int map, const char *var, const long double &x, const long double &step,
                   const long double &h, int order, long double &tolerance, long double &slope,
                   bool silent) {
    const complex noted = get_var_value(var);
    slope = 0.0L;
    // The values at x + step and x - step.
    const long double points[2] = {real_add(x, step), real_sub(x, step)};
    long double values[2] = {0.0L, 0.0L};
    for (int k = 0; k < 2; ++k) {
        if (order == 1) {
            set_var_value(complex{static_cast<double>(points[k]), 0.0}, var);
            if (pump_then_stop_requested()) return false;
            const complex y = solve_equation(map, false, true);
            if (IsAnError()) return true;
            // A negative imaginary part passes: the test keeps the part's sign.
            if (y.imag > kImaginaryLimit && y.imag > answer_format->zero_precision) {
                mapper_exception(6, true);
                return true;
            }
            values[k] = y.real;
        } else {
            values[k] = Derivative(map, var, points[k], h, order - 1, tolerance, silent);
            if (IsAnError()) return true;
        }
    }
    slope = real_div(real_sub(values[0], values[1]), real_mult(2.0L, step));
    set_var_value(noted, var);
    if (stop_requested()) return false;
    return IsAnError();
}

long double Parser::Derivative(int map, const char *var, const long double &x, const long double &h,
                               int order, long double &tolerance, bool silent) {
    long double err = kStartingError;
    // The zero step is refused before any difference divides by it; the error must reach
    // the caller, so no later solve may run to clear it.
    if (h == 0.0L) {
        mapper_exception(4, silent);
        return 0.0L;
    }
    long double **a = matrix(1, kMaxSteps, 1, kMaxSteps);
    if (a == nullptr) return 0.0L;
    long double answer = 0.0L;
    long double step = h;
    // A failed step ends the table with its error standing: the next solve would clear it,
    // and a cell of 0 would bend every extrapolation behind it.
    bool failed = Slope(map, var, x, step, h, order, tolerance, a[1][1], true);
    for (int i = 2; i <= kMaxSteps && !failed; ++i) {
        step = real_div(step, kStepDivisor);
        if ((failed = Slope(map, var, x, step, h, order, tolerance, a[1][i], true))) break;
        long double fac = kFactorGrowth;
        for (int j = 2; j <= i; ++j) {
            a[j][i] = real_div(real_sub(real_mult(a[j - 1][i], fac), a[j - 1][i - 1]),
                               real_sub(fac, 1.0L));
            fac = real_mult(kFactorGrowth, fac);
            const long double errt = std::max(real_abs(real_sub(a[j][i], a[j - 1][i])),
                                              real_abs(real_sub(a[j][i], a[j - 1][i - 1])));
            if (stop_requested()) break;
            if (holds_at_or_below(errt, err)) {
                err = errt;
                answer = a[j][i];
            }
        }
        const long double t = real_abs(real_sub(a[i][i], a[i - 1][i - 1]));
        if (holds_at_or_below(real_abs(err), real_mult(tolerance, t))) break;
        const long double size = real_abs(err) + real_abs(t);
        if (holds_at_or_below(size, answer_format->zero_precision)) break;
        if (stop_requested()) break;
    }
    free_matrix(a, 1, kMaxSteps, 1, kMaxSteps);
    return answer;
}

}  // namespace quindar
