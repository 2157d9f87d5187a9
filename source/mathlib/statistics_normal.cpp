// SPDX-License-Identifier: GPL-3.0-or-later
// The normal distribution: density, area by adaptive Simpson halving, the x of an area, z-scores.
#include <cmath>

#include "statistics.h"

namespace quindar {

namespace {
constexpr double kE = 2.718281828459045;
constexpr double kTwoPi = 6.283185307179586;
constexpr long double kAreaTolerance = 0.001L;
// Halvings of the area's interval, in all, before the integration gives up: plenty for any
// finite interval and positive deviation, and a stop for a zero deviation or an infinite limit.
constexpr long kAreaBudget = 100000;
// Steps of the search for the x of an area before it gives up on an area it cannot reach.
constexpr int kSearchSteps = 20000;
constexpr int kAreaFailed = 41, kSearchFailed = 42;
}  // namespace

long double Statistics::normpdf(long double mean, long double sd, long double x) {
    const long double d = x - mean;
    return std::pow(static_cast<long double>(kE), -(d * d) / (2 * sd * sd)) /
           (sd * std::sqrt(static_cast<long double>(kTwoPi)));
}

long double Statistics::intnorm(long double mean, long double sd, long double a, long double b,
                                int panels) {
    const long double h = (b - a) / panels;
    long double sum = 0;
    for (int i = 1; i <= panels; ++i)
        sum += (1.0L / 6) * h *
               (normpdf(mean, sd, a + (i - 1) * h) + 4 * normpdf(mean, sd, a + i * h - h / 2) +
                normpdf(mean, sd, a + i * h));
    return sum;
}

long double Statistics::normprob_part(long double mean, long double sd, long double x1,
                                      long double x2, long &budget) {
    const long double fine = intnorm(mean, sd, x1, x2, 10), coarse = intnorm(mean, sd, x1, x2, 5);
    if (std::isnan(fine) || std::isnan(coarse) || --budget < 0) {
        budget = -1;
        return 0;
    }
    if (std::fabs(fine - coarse) <= kAreaTolerance) return std::fabs(fine);
    const long double middle = (x1 + x2) / 2;
    const long double left = normprob_part(mean, sd, x1, middle, budget);
    if (budget < 0) return 0;
    return left + normprob_part(mean, sd, middle, x2, budget);
}

long double Statistics::normprob1(long double mean, long double sd, long double x1,
                                  long double x2) {
    long budget = kAreaBudget;
    const long double area = normprob_part(mean, sd, x1, x2, budget);
    if (budget < 0) {
        stat_exception(kAreaFailed);
        return 0;
    }
    return area;
}

long double Statistics::normprob2(DataList &list, long double x1, long double x2) {
    return normprob1(mean(list), distribution_sd(list), x1, x2);
}

// A stepped walk from a start near the area's x, halving the step when it would overshoot.
// The area is counted from mean - 4 sd.
long double Statistics::normx1(long double mean, long double sd, long double p) {
    const long double lo = mean - 4 * sd;
    // The thresholds compare a fraction with 50 and 75: the first start point is never taken.
    long double x = p > 75 ? mean + 0.6L * sd : p > 50 ? mean : mean - 0.6L * sd;
    long double step = 0.05L * sd;
    const long double tol = kAreaTolerance;
    long double area = normprob1(mean, sd, lo, x);
    if (error) return 0;
    const bool down = area > p;
    int steps = 0;
    while (std::fabs(area - p) > tol) {
        if (++steps > kSearchSteps) {
            stat_exception(kSearchFailed);
            return 0;
        }
        const long double next = down ? x - step : x + step;
        const long double a = normprob1(mean, sd, x, next);
        if (error) return 0;
        const long double moved = down ? area - a : area + a;
        if ((down ? moved > p : moved < p) || std::fabs(moved - p) < tol) {
            area = moved;
            x = next;
        } else {
            step /= 2;
        }
    }
    return x;
}

long double Statistics::normx2(DataList &list, long double p) {
    return normx1(mean(list), distribution_sd(list), p);
}

long double Statistics::zscore1(long double mean, long double sd, long double x) {
    return (x - mean) / sd;
}

long double Statistics::zscore2(DataList &list, long double x) {
    return (x - mean(list)) / distribution_sd(list);
}

}  // namespace quindar
