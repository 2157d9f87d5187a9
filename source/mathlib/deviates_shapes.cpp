// SPDX-License-Identifier: GPL-3.0-or-later
// Draws by rejection: gamma and its kin (chi-square, F, non-central chi-square), binomial.
#include <cmath>

#include "deviates.h"
#include "deviates_state.h"

namespace quindar {

namespace {
constexpr double kE = 2.718281828459045;
constexpr double kInverseE = 0.36787944117144233;
constexpr double kPi = 3.141592653589793;
constexpr double kSmallestRatio = 9.999999999998e-39;
}  // namespace

long double Deviates::gamdev(long double a, long double b) {
    if (a < 1) return gamdev_small_shape(a, b);
    long trials = 0;
    long double e;
    while (another_trial(trials)) {
        e = expdev(1);
        const long double w = std::pow(e / std::exp(e - 1), a - 1);
        if (w >= randomnum()) return a * b * e;
    }
    return 0;
}

// The threshold between the two ways is 0.1 here, which shapes what the draws follow.
long double Deviates::gamdev_small_shape(long double a, long double b) {
    const long double c = (a + kE) * kInverseE;
    long trials = 0;
    while (another_trial(trials)) {
        const long double p = c * randomnum();
        if (p > 0.1L) {
            const long double x = -std::log((c - p) / a);
            if ((x < 0 && !Mathematics::is_integer(a - 1)) || (x == 0 && a == 1)) continue;
            if (std::pow(x, a - 1) >= randomnum()) return b * x;
        } else {
            const long double x = std::pow(p, 1 / a);
            if (std::exp(-x) >= randomnum()) return b * x;
        }
    }
    return 0;
}

long double Deviates::chidev(long double dof) {
    return gamdev(dof / 2, 2);
}

long double Deviates::fdev(long double dfn, long double dfd) {
    const long double x = chidev(dfn) / dfn;
    long trials = 0;
    while (another_trial(trials)) {
        const long double y = chidev(dfd) / dfd;
        if (y > x * kSmallestRatio) return x / y;
    }
    return 0;
}

long double Deviates::nchidev(long double dof, long double xnonc) {
    const long double g = gasdev(std::sqrt(xnonc), 1);
    return chidev(dof - 1) + g * g;
}

long double Deviates::bnldev(int n, long double p) {
    const long double pp = p <= 0.5L ? p : 1 - p;
    const long double am = n * pp;
    long double value = 0;
    if (n < 25) {
        for (int j = 0; j < n; ++j) value += berdev(pp);
    } else if (am < 1) {
        const long double g = std::exp(-am);
        long double t = 1;
        int j = 0;
        for (; j <= n; ++j) {
            t *= randomnum();
            if (t < g) break;
        }
        value = j <= n ? j : n;
    } else {
        value = bnl_rejection(n, pp, am);
    }
    return pp != p ? n - value : value;
}

// A Lorentzian comparison function over the binomial's mode.
long double Deviates::bnl_rejection(int n, long double pp, long double am) {
    auto &memory = mathlib::shared_deviate_state();
    if (n != memory.bnl_n) {
        memory.bnl_n = n;
        memory.bnl_en = n;
        memory.bnl_lngamma = static_cast<double>(lngamma(memory.bnl_en + 1.0L));
    }
    if (static_cast<double>(pp) != memory.bnl_p) {
        memory.bnl_p = static_cast<double>(pp);
        memory.bnl_pc = 1.0 - memory.bnl_p;
        memory.bnl_ln_p = std::log(memory.bnl_p);
        memory.bnl_ln_pc = std::log(memory.bnl_pc);
    }
    const double en = memory.bnl_en;
    const long double sq = std::sqrt(2 * am * memory.bnl_pc);
    long trials = 0;
    while (another_trial(trials)) {
        long double y, v;
        do {
            y = std::tan(kPi * randomnum());
            v = am + y * sq;
        } while ((v < 0 || v >= en + 1) && another_trial(trials));
        v = std::floor(v);
        const long double t = 1.2L * sq * (1 + y * y) *
                              std::exp(memory.bnl_lngamma - lngamma(v + 1) - lngamma(en - v + 1) +
                                       v * memory.bnl_ln_p + (en - v) * memory.bnl_ln_pc);
        if (randomnum() <= t) return v;
    }
    return 0;
}

}  // namespace quindar
