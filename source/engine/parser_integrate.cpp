// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Romberg integration of a mapped expression: the refined trapezoid rule, extrapolated to
// step zero through Neville's tableau.
#include <cmath>

#include "parser.h"

namespace quindar {

namespace {
constexpr int kMaxLevels = 20;
constexpr int kExtrapolationPoints = 5;
constexpr long double kStepRatio = 0.25L;
}  // namespace

long double Parser::Trapazoid(int map, const char *var, long double low, long double high,
                              int level) {
    if (level == 1) {
        const long double y1 = sample(map, var, low);
        if (IsAnError()) return 0.0L;
        set_var_value(complex{static_cast<double>(high), 0.0}, var);
        if (application_check_stops()) return 0.0L;
        const long double y2 = solve_equation(map, false, true).real;
        if (IsAnError()) return 0.0L;
        trapezoid_estimate = real_mult(0.5L, real_mult(real_sub(high, low), real_add(y1, y2)));
        return trapezoid_estimate;
    }
    const long it = 1L << (level - 2);
    const long double tnm = static_cast<long double>(it);
    const long double del = real_div(real_sub(high, low), tnm);
    long double x = real_add(low, real_mult(0.5L, del));
    long double sum = 0.0L;
    for (long j = 1; j <= it; ++j) {
        set_var_value(complex{static_cast<double>(x), 0.0}, var);
        if (application_check_stops()) return 0.0L;
        sum += solve_equation(map, false, true).real;
        if (IsAnError()) return 0.0L;
        x += del;
    }
    trapezoid_estimate = real_mult(
        0.5L, real_add(trapezoid_estimate, real_div(real_mult(real_sub(high, low), sum), tnm)));
    return trapezoid_estimate;
}

long double Parser::RombIntegrate(int map, const char *var, long double low, long double high,
                                  long double accuracy, bool silent) {
    long double s[kMaxLevels + 1] = {};
    long double h[kMaxLevels + 2] = {};
    long double ss = 0.0L;
    long double dss = 0.0L;
    long double prev = 0.0L;
    h[1] = 1.0L;
    for (int j = 1; j <= kMaxLevels; ++j) {
        s[j] = Trapazoid(map, var, low, high, j);
        if (IsAnError() || stop_requested()) return 0.0L;
        if (j >= kExtrapolationPoints) {
            const int first = j - kExtrapolationPoints;
            PolyInterpolate(&h[first], &s[first], kExtrapolationPoints, 0.0L, &ss, &dss);
            if (IsAnError() || stop_requested()) return 0.0L;
            if (j == kExtrapolationPoints) prev = dss;
            if (holds_at_or_below(real_abs(dss), real_mult(accuracy, real_abs(ss)))) return ss;
            const long double size = real_abs(dss) + real_abs(ss);
            if (holds_at_or_below(size, answer_format->zero_precision)) return 0.0L;
            if (holds_below(real_abs(prev), real_abs(dss))) return ss;
            prev = dss;
        }
        h[j + 1] = real_mult(kStepRatio, h[j]);
    }
    mapper_exception(3, silent);
    return ss;
}

// xa and ya are read from 1 to n, so callers pass the element before their first point.
void Parser::PolyInterpolate(long double *xa, long double *ya, int n, long double x, long double *y,
                             long double *dy) {
    long double *c = vector(1, n);
    long double *d = vector(1, n);
    if (c == nullptr || d == nullptr) {
        if (c != nullptr) free_vector(c, 1, n);
        if (d != nullptr) free_vector(d, 1, n);
        return;
    }
    int ns = 1;
    long double dif = real_abs(real_sub(x, xa[1]));
    for (int i = 1; i <= n; ++i) {
        const long double dift = real_abs(real_sub(x, xa[i]));
        if (dift < dif) {
            ns = i;
            dif = dift;
        }
        c[i] = ya[i];
        d[i] = ya[i];
    }
    *y = ya[ns--];
    bool failed = false;
    for (int m = 1; m < n && !failed; ++m) {
        for (int i = 1; i <= n - m; ++i) {
            const long double ho = real_sub(xa[i], x);
            const long double hp = real_sub(xa[i + m], x);
            const long double w = real_sub(c[i + 1], d[i]);
            long double den = real_sub(ho, hp);
            if (den == 0.0L) {
                mapper_exception(7, true);
                failed = true;
                break;
            }
            den = real_div(w, den);
            d[i] = real_mult(hp, den);
            c[i] = real_mult(ho, den);
        }
        if (failed) break;
        *dy = (2 * ns < n - m) ? c[ns + 1] : d[ns--];
        *y += *dy;
    }
    free_vector(d, 1, n);
    free_vector(c, 1, n);
}

}  // namespace quindar
