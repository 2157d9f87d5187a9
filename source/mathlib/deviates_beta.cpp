// SPDX-License-Identifier: GPL-3.0-or-later
// The beta draw and the incomplete beta function it inverts for small shapes.
#include <algorithm>
#include <cmath>

#include "deviates.h"

namespace quindar {

namespace {
constexpr double kTiny = 2.2250738585072014e-308;
constexpr double kTolerance = 5e-9;
constexpr int kMaxRounds = 100;

// In the continued fraction a quantity this close to 0 counts as 0.
double away_from_zero(double v) {
    return Mathematics::are_equal(v, 0, kTolerance) ? kTiny : v;
}
}  // namespace

double Deviates::betacf(double a, double b, double x) {
    double c = 1;
    double d = 1 / away_from_zero(1 - (a + b) * x / (a + 1));
    double h = d;
    int m = 1;
    for (; m <= kMaxRounds; ++m) {
        const int m2 = 2 * m;
        double t = m * (b - m) * x / ((a - 1 + m2) * (a + m2));
        d = 1 / away_from_zero(1 + t * d);
        c = away_from_zero(1 + t / c);
        h *= d * c;
        t = -(a + m) * (a + b + m) * x / ((a + m2) * (a + 1 + m2));
        d = 1 / away_from_zero(1 + t * d);
        c = away_from_zero(1 + t / c);
        const double e = d * c;
        h *= e;
        if (Mathematics::are_equal(e, 1, kTolerance)) break;
    }
    if (m > kMaxRounds) exception(10);
    return h;
}

long double Deviates::betai(long double a, long double b, long double x) {
    if (x < 0 || x > 1) {
        exception(9);
        return 0;
    }
    const long double bt = x == 0 || x == 1 ? 0
                                            : std::exp(lngamma(a + b) - lngamma(a) - lngamma(b) +
                                                       a * std::log(x) + b * std::log(1 - x));
    const auto da = static_cast<double>(a), db = static_cast<double>(b),
               dx = static_cast<double>(x);
    if (x < (a + 1) / (a + b + 2)) return bt * betacf(da, db, dx) / a;
    return 1 - bt * betacf(db, da, 1 - dx) / b;
}

long double Deviates::betap(long double x, long double a, long double b) {
    if (a <= 0) {
        exception(7);
        return 0;
    }
    if (b <= 0) {
        exception(8);
        return 0;
    }
    if (x <= 0) return 0;
    if (x >= 1) return 1;
    return betai(a, b, x);
}

// Bisection on the regularised incomplete beta function.
long double Deviates::betav(long double p, long double a, long double b) {
    if (p < 0 || p > 1) {
        exception(2);
        return -1;
    }
    if (a <= 0) {
        exception(3);
        return -1;
    }
    if (b <= 0) {
        exception(4);
        return -1;
    }
    long double lo = 0.5L, hi = 0.5L;
    while (betap(lo, a, b) > p && lo > 0) lo -= 0.1L;
    // For p = 1 no point below 1 lies above p: the bracket ends at 1.
    while (betap(hi, a, b) <= p && hi < 1) hi += 0.1L;
    lo = std::max(lo, 0.0L);
    hi = std::min(hi, 1.0L);
    long double mid = lo;
    for (int round = 0; round < kMaxRounds; ++round) {
        mid = lo + (hi - lo) * 0.5L;
        if (betap(mid, a, b) > p)
            hi = mid;
        else
            lo = mid;
        if (Mathematics::are_equal(lo, hi, kTolerance)) return static_cast<double>(mid);
    }
    exception(5);
    return -1;
}

long double Deviates::betadev(long double a, long double b) {
    if (a <= 0) {
        exception(11);
        return 0;
    }
    if (b <= 0) {
        exception(12);
        return 0;
    }
    if (a <= 1 || b <= 1) return betav(randomnum(), a, b);
    return beta_rejection(a, b);
}

long double Deviates::beta_rejection(long double a, long double b) {
    const long double p = a - 1, q = b - 1, s = p + q, ln_s = std::log(s), m = p / s,
                      d = 0.5L / std::sqrt(s);
    long trials = 0;
    while (another_trial(trials)) {
        long double g, x;
        do {
            g = gasdev(0, 1);
            x = m + g * d;
        } while ((x < 0 || x > 1) && another_trial(trials));
        const long double test =
            g * g * 0.5L + s * ln_s + p * std::log(x / p) + q * std::log((1 - x) / q);
        if (test >= std::log(randomnum())) return x;
    }
    return 0;
}

}  // namespace quindar
