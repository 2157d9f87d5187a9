// SPDX-License-Identifier: GPL-3.0-or-later
// One class of a frequency distribution.
#include "frequency.h"

namespace quindar {

bool Frequency::addDataPoint(long double x) {
    if ((lower <= x && x < upper) || (upper_closed && x == upper)) {
        ++count;
        return true;
    }
    return false;
}

}  // namespace quindar
