// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A root of a mapped expression in a bracket: bisection steps, each followed by an inverse
// quadratic step when it promises to land inside. All in plain long double.
#include <algorithm>
#include <cmath>

#include "parser.h"

namespace quindar {

long double Parser::GetY(int map, const char *var, long double x, long double tolerance,
                         long double &yHighest, long double &yLowest, bool &isZero) {
    const long double y = sample(map, var, x);
    yHighest = std::max(yHighest, y);
    yLowest = std::min(yLowest, y);
    // Zero against the range of values this search has seen so far.
    isZero = tolerance * (yHighest - yLowest) > std::fabs(y);
    return y;
}

bool Parser::Root(int map, const char *var, long double x1, long double x2, long double tolerance,
                  int maxIterations, long double &root) {
    long double yHighest = -1.0e-307L;
    long double yLowest = 1.0e-307L;
    bool isZero = false;
    // The two ends are held as doubles, the inner points as long double.
    double y1 = static_cast<double>(GetY(map, var, x1, tolerance, yHighest, yLowest, isZero));
    if (y1 == 0.0) {
        root = x1;
        return true;
    }
    double y2 = static_cast<double>(GetY(map, var, x2, tolerance, yHighest, yLowest, isZero));
    if (y2 == 0.0) {
        root = x2;
        return true;
    }
    if (y1 * y2 > 0.0) return false;
    long double x3 = x1;
    for (int iteration = 0; iteration < maxIterations; ++iteration) {
        x3 = 0.5L * (x1 + x2);
        if (tolerance > std::fabs(x2 - x1)) {
            root = x3;
            return true;
        }
        long double y3 = GetY(map, var, x3, tolerance, yHighest, yLowest, isZero);
        if (isZero) {
            root = x3;
            return true;
        }
        if (y3 * y1 > 0.0L) {
            swap(x1, x2);
            std::swap(y1, y2);
        }
        const long double d = y3 - y1;
        const long double e = y2 - y3;
        if (e != 0.0L) {
            const long double g = y2 - y1;
            const long double p = (x3 - x1) / d;
            const long double q = (d - e) / (e * g);
            if (!(2.0L * y3 * d > g * y2)) {
                const long double x4 = x1 - p * y1 * (1.0L - q * y3);
                const long double y4 = GetY(map, var, x4, tolerance, yHighest, yLowest, isZero);
                if (isZero) {
                    root = x4;
                    return true;
                }
                if (y4 * y1 < 0.0L) {
                    x3 = x4;
                    y3 = y4;
                } else {
                    x1 = x4;
                    y1 = static_cast<double>(y4);
                }
            }
        }
        x2 = x3;
        y2 = static_cast<double>(y3);
    }
    root = x3;
    return true;
}

}  // namespace quindar
