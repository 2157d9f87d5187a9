// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The gauge's arithmetic.
#include "progress_gauge.h"

#include <cmath>

namespace quindar::calculus {

int ProgressGauge::advance(long n, double step, bool first) {
    if (first) {
        sum = 0.0;
        at = 0;
    }
    if (n <= 100) {
        if (rounding == GaugeRounding::SumUp) {
            sum += step;
            at = static_cast<int>(std::ceil(sum));
        } else {
            at = static_cast<int>(at + step);
        }
        return at;
    }
    sum += step;
    if (sum >= 1.0) {
        sum = 0.0;
        ++at;
    }
    return at;
}

}  // namespace quindar::calculus
