// SPDX-License-Identifier: GPL-3.0-or-later
// Statistics that order the list: sort, median, rank, percentile and mode.
#include <cmath>

#include "statistics.h"

namespace quindar {

namespace {
constexpr const char *kModeWarningCaption = "Statistics Warning";
constexpr const char *kModeWarningText =
    "You are using a statistically insignificant number of data points to compute the mode "
    "with variable data, therefore the results may be inaccurate.\r\n\r\n If you do not want to "
    "see this message again, click the no button.";
constexpr int kModeWarningBelow = 23;

bool &mode_warning_flag() {
    static bool wanted = true;
    return wanted;
}
}  // namespace

bool Statistics::mode_warning() {
    return mode_warning_flag();
}

void Statistics::set_mode_warning(bool wanted) {
    mode_warning_flag() = wanted;
}

// Hoare's partition around the middle element. The smaller part recurses and the larger
// one loops, which orders exactly as recursing on both but keeps the stack shallow.
void Statistics::sort(DataList &list, int first, int last) {
    while (first < last) {
        const long double pivot = *list[(first + last) / 2];
        int i = first, j = last;
        while (i <= j) {
            while (i <= last && *list[i] < pivot) ++i;
            while (j >= first && *list[j] > pivot) --j;
            if (i <= j) {
                list.switcher(i, j);
                ++i;
                --j;
            }
        }
        if (j - first < last - i) {
            sort(list, first, j);
            first = i;
        } else {
            sort(list, i, last);
            last = j;
        }
    }
}

long double Statistics::median(DataList &list) {
    const int n = list.count();
    if (n == 0) return 0;
    sort(list, 0, n - 1);
    if (n % 2 == 1) return *list[(n - 1) / 2];
    return (*list[n / 2 - 1] + *list[n / 2]) / 2;
}

long double Statistics::rank(DataList &list, long double v) {
    const int n = list.count();
    sort(list, 0, n - 1);
    int k = 0;
    while (k < n && *list[k] != v) ++k;
    const int before = k;
    int ties = 0;
    while (k < n && *list[k] == v) {
        ++ties;
        ++k;
    }
    if (ties == 0) return 0;
    return before + (ties - 1) * 0.5L + 1;
}

// The position is held as a 32-bit float, and its rounding shows in the result.
long double Statistics::percentile(DataList &list, long double p) {
    const int n = list.count();
    if (n == 0) return 0;
    sort(list, 0, n - 1);
    const float r = static_cast<float>(p * 0.01L * (n + 1) - 1);
    if (r >= n - 1) return *list[n - 1];
    if (r <= 0) return *list[0];
    if (r == std::floor(r)) return *list[static_cast<int>(r)];
    const int f = static_cast<int>(std::floor(r)), c = static_cast<int>(std::ceil(r));
    const float fraction = r - static_cast<float>(f);
    return *list[f] + (*list[c] - *list[f]) * fraction;
}

int Statistics::getMaxRedunNum(DataList &list, long double &value) {
    const int n = list.count();
    sort(list, 0, n - 1);
    long double best = 0, challenger = 0;
    int best_count = 0, challenger_count = 0;
    for (int i = 0; i + 1 < n; ++i) {
        const long double v = *list[i];
        if (v != *list[i + 1]) continue;
        if (best_count == 0) {
            best = v;
            best_count = 1;
        } else if (v == best) {
            ++best_count;
        } else if (challenger_count > 0 && v == challenger) {
            ++challenger_count;
        } else {
            challenger = v;
            challenger_count = 1;
        }
        if (challenger_count > best_count) {
            best = challenger;
            best_count = challenger_count;
            challenger_count = 0;
        }
    }
    if (best_count > 0) value = best;
    return best_count;
}

bool Statistics::isEqualIntvls(DataList &list) {
    const int n = list.count();
    if (n < 3) return true;
    const long double gap = std::fabs(*list[0] - *list[1]);
    for (int i = 1; i + 1 < n; ++i)
        if (std::fabs(*list[i] - *list[i + 1]) != gap) return false;
    return true;
}

void Statistics::buildFreqDist(DataList &list, DynArray<Frequency, 10> &dist) {
    const int n = list.count();
    const int k = static_cast<int>(std::floor(std::sqrt(static_cast<double>(n))));
    if (k < 1) return;
    const long double width = range(list) / k, top = maximum(list);
    long double lower = minimum(list);
    for (int c = 0; c < k; ++c) {
        const bool last = c == k - 1;
        const long double upper = last && c > 0 ? top : lower + width;
        dist.add(new Frequency(lower, upper, last));
        lower = upper;
    }
    for (int i = 0; i < n; ++i)
        for (int c = 0; c < dist.count(); ++c)
            if (dist[c]->addDataPoint(*list[i])) break;
}

int Statistics::getMaxFreqNum(DynArray<Frequency, 10> &dist) {
    int most = 0;
    for (int c = 1; c < dist.count(); ++c)
        if (dist[c]->count > dist[most]->count) most = c;
    return most;
}

long double Statistics::mode(DataList &list) {
    long double value = 0;
    if (getMaxRedunNum(list, value) > 0) return value;
    if (isEqualIntvls(list)) {
        stat_exception(40);
        return 0;
    }
    if (list.count() < kModeWarningBelow && !silent && mode_warning() && link.hook != nullptr &&
        *link.hook) {
        const bool yes =
            show_message(link.hook, kModeWarningText, kModeWarningCaption, MessageStyle::Question);
        if (!yes) set_mode_warning(false);
    }
    DynArray<Frequency, 10> dist;
    buildFreqDist(list, dist);
    if (dist.count() == 0) return 0;
    const Frequency &top = *dist[getMaxFreqNum(dist)];
    return top.lower + (top.upper - top.lower) * 0.5L;
}

}  // namespace quindar
