// SPDX-License-Identifier: GPL-3.0-or-later
// One class of a frequency distribution.
#pragma once

namespace quindar {

class Frequency {
public:
    Frequency(long double lowerBound, long double upperBound, bool upperClosed)
        : lower(lowerBound), upper(upperBound), upper_closed(upperClosed) {}

    // Counts x when it lies in [lower, upper), or equals upper of a class closed there.
    bool addDataPoint(long double x);

    int count = 0;
    long double lower;
    long double upper;
    bool upper_closed;
};

}  // namespace quindar
