// SPDX-License-Identifier: GPL-3.0-or-later
// The statistical functions of the language over a data list or a normal distribution.
#pragma once

#include <cstdio>
#include <optional>
#include <string>

#include "deviates.h"
#include "dynarray.h"
#include "frequency.h"
#include "mathematics.h"

namespace quindar {

using DataList = DynArray<long double, 10>;

// All work is in long double. Many operations sort the list they are given in place.
// Where a list stands for a distribution (normprob2, normx2, zscore2, skew, kurt) its
// standard deviation is the sample one below 31 points and the population one from 31.
class Statistics : public Deviates {
public:
    // `folder` ends in its own separator; null leaves the normality tables unknown.
    explicit Statistics(const char *folder);

    long double mean(DataList &list);
    long double gmean(DataList &list);
    long double hmean(DataList &list);
    long double median(DataList &list);
    long double mode(DataList &list);
    long double minimum(DataList &list);
    long double maximum(DataList &list);
    long double range(DataList &list);
    long double rank(DataList &list, long double v);
    long double sumx(DataList &list);
    long double sumxsq(DataList &list);
    long double sumdev(DataList &list);
    long double avgdev(DataList &list);
    long double sumdevsq(DataList &list);
    long double svariance(DataList &list);
    long double pvariance(DataList &list);
    long double skew(DataList &list);
    long double kurt(DataList &list);
    long double percentile(DataList &list, long double p);

    long double normpdf(long double mean, long double sd, long double x);
    long double intnorm(long double mean, long double sd, long double a, long double b, int panels);
    long double normprob1(long double mean, long double sd, long double x1, long double x2);
    long double normprob2(DataList &list, long double x1, long double x2);
    long double normx1(long double mean, long double sd, long double p);
    long double normx2(DataList &list, long double p);
    long double zscore1(long double mean, long double sd, long double x);
    long double zscore2(DataList &list, long double x);

    long double binoco(long double n, long double r);
    long double permutate(long double n, long double r);
    long double lnfactorial(long double x);

    // Shapiro-Wilk test at alpha percent (1, 2, 5 or 10): 1 when the data pass as normal.
    long double wsnormtest(DataList &list, int alpha);
    // The test's W with the coefficients of the table file; sorts the list.
    long double wsnorm_w(DataList &list);

    // Ascending, in place, between two indexes.
    void sort(DataList &list, int first, int last);

    // Steps of mode.
    int getMaxRedunNum(DataList &list, long double &value);
    bool isEqualIntvls(DataList &list);
    void buildFreqDist(DataList &list, DynArray<Frequency, 10> &dist);
    int getMaxFreqNum(DynArray<Frequency, 10> &dist);

    void stat_exception(int index);
    void SetLastError(const char *text);
    void ClearLastError();
    bool IsAnError() const { return error; }
    const char *GetLastError() const { return error_text ? error_text->c_str() : nullptr; }
    static const char *stat_message(int index);

    // Whether mode still warns about small samples; one answer of No stops it everywhere.
    static bool mode_warning();
    static void set_mode_warning(bool wanted);

    std::optional<std::string> table_a1_path, table_a2_path;
    bool silent = false;
    bool solving_map = false;
    bool error = false;
    std::optional<std::string> error_text;

protected:
    Mathematics stat_math;

private:
    // The standard deviation that stands for the list's distribution.
    long double distribution_sd(DataList &list);
    long double normprob_part(long double mean, long double sd, long double x1, long double x2,
                              long &budget);
    // Moves `table` to the line for n and checks its head; false after the message.
    bool find_table_line(std::FILE *table, int n);
    // Reads `count` comma-separated values from a table line into `values`.
    bool read_table_values(std::FILE *table, int count, long double *values);
};

}  // namespace quindar
