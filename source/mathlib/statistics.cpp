// SPDX-License-Identifier: GPL-3.0-or-later
// Statistics: construction, the error channel, sums, moments and counting functions.
#include "statistics.h"
#include "message_text.h"

#include <cmath>

namespace quindar {

namespace {

struct StatMessage {
    int index;
    const char *text;
};

const StatMessage kStatMessages[] = {
    {0,
     "The number of data points required to perform the Wilks Shiparo normality test must be "
     "between 3 and 100 inclusive!"},
    {1, "Alpha for the Wilks Shiparo test is invalid, alpha must be 1,2,5, or 10!"},
    {2, "Wilks Shiparo table has been moved or deleted, can not perform this test!"},
    {3, "A Wilks Shiparo table has been currupted, can not perform this test!"},
    {40, "No statistical Mode could be identified!"},
    {41,
     "The normal probability could not be integrated for these parameters, the standard "
     "deviation must be positive and the limits finite!"},
    {42,
     "No x value could be found for this area under the normal curve, the area must be "
     "between 0 and 1 and the standard deviation positive!"},
};

constexpr const char *kStatCaption = "Statistics Error";

}  // namespace

Statistics::Statistics(const char *folder) {
    if (folder == nullptr) return;
    table_a1_path = std::string(folder) + "wstableA1";
    table_a2_path = std::string(folder) + "wstableA2";
}

const char *Statistics::stat_message(int index) {
    for (const StatMessage &message : kStatMessages)
        if (message.index == index) return message.text;
    return "";
}

void Statistics::stat_exception(int index) {
    mathlib::raise_class_error({silent, solving_map, error, error_text}, link, stat_message(index),
                               kStatCaption);
}

void Statistics::SetLastError(const char *text) {
    error = true;
    if (text != nullptr) error_text = printable_message(text);
}

void Statistics::ClearLastError() {
    error = false;
    error_text.reset();
}

long double Statistics::sumx(DataList &list) {
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += *list[k];
    return sum;
}

long double Statistics::mean(DataList &list) {
    return list.count() == 0 ? 0 : sumx(list) / list.count();
}

long double Statistics::gmean(DataList &list) {
    double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += std::log(static_cast<double>(*list[k]));
    return std::exp(sum / list.count());
}

long double Statistics::hmean(DataList &list) {
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += 1 / *list[k];
    return list.count() * (1 / sum);
}

long double Statistics::minimum(DataList &list) {
    if (list.count() == 0) return 0;
    long double least = *list[0];
    for (int k = 1; k < list.count(); ++k)
        if (*list[k] < least) least = *list[k];
    return least;
}

long double Statistics::maximum(DataList &list) {
    if (list.count() == 0) return 0;
    long double most = *list[0];
    for (int k = 1; k < list.count(); ++k)
        if (*list[k] > most) most = *list[k];
    return most;
}

long double Statistics::range(DataList &list) {
    return maximum(list) - minimum(list);
}

long double Statistics::sumxsq(DataList &list) {
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += *list[k] * *list[k];
    return sum;
}

long double Statistics::sumdev(DataList &list) {
    const long double average = mean(list);
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += *list[k] - average;
    return sum;
}

long double Statistics::avgdev(DataList &list) {
    const long double average = mean(list);
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += std::fabs(*list[k] - average);
    return sum / list.count();
}

long double Statistics::sumdevsq(DataList &list) {
    const long double average = mean(list);
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += (*list[k] - average) * (*list[k] - average);
    return sum;
}

long double Statistics::svariance(DataList &list) {
    return sumdevsq(list) / (list.count() - 1);
}

long double Statistics::pvariance(DataList &list) {
    return sumdevsq(list) / list.count();
}

long double Statistics::distribution_sd(DataList &list) {
    const long double variance = list.count() < 31 ? svariance(list) : pvariance(list);
    return std::sqrt(static_cast<double>(variance));
}

long double Statistics::skew(DataList &list) {
    const long double average = mean(list), s = distribution_sd(list);
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += std::pow((*list[k] - average) / s, 3);
    return sum / list.count();
}

long double Statistics::kurt(DataList &list) {
    const long double average = mean(list), s = distribution_sd(list);
    long double sum = 0;
    for (int k = 0; k < list.count(); ++k) sum += std::pow((*list[k] - average) / s, 4);
    return sum / list.count() - 3;
}

long double Statistics::lnfactorial(long double x) {
    // Filled on demand, for every engine of the program.
    static long double table[20] = {};
    if (x == 0 || x == 1) return 0;
    if (x > 19) return lngamma(x + 1);
    const int index = static_cast<int>(Mathematics::trunc(x));
    if (index < 0) return lngamma(x + 1);
    if (table[index] == 0) table[index] = lngamma(x + 1);
    return table[index];
}

long double Statistics::binoco(long double n, long double r) {
    return Mathematics::round(std::exp(lnfactorial(n) - lnfactorial(r) - lnfactorial(n - r)));
}

long double Statistics::permutate(long double n, long double r) {
    return Mathematics::round(std::exp(lnfactorial(n) - lnfactorial(n - r)));
}

}  // namespace quindar
