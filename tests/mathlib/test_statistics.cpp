// SPDX-License-Identifier: GPL-3.0-or-later
// Statistics against exact and scipy reference values, the language's edge cases and failures.
#include "statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "reference_data.h"

namespace quindar {
namespace {

using testing::fill;
using testing::number;
using testing::reference_lines;

DataList &list_of(DataList &list, std::initializer_list<long double> values) {
    fill(list, values);
    return list;
}

class StatisticsTest : public ::testing::Test {
protected:
    Statistics stats{QUINDAR_LIBRARY_DIR};
    DataList list;
};

using Compute = std::function<long double(Statistics &, DataList &, long double)>;

const std::map<std::string, Compute> &computations() {
    static const std::map<std::string, Compute> table = {
        {"MEAN", [](Statistics &s, DataList &l, long double) { return s.mean(l); }},
        {"SUMX", [](Statistics &s, DataList &l, long double) { return s.sumx(l); }},
        {"SUMXSQ", [](Statistics &s, DataList &l, long double) { return s.sumxsq(l); }},
        {"SUMDEV", [](Statistics &s, DataList &l, long double) { return s.sumdev(l); }},
        {"AVGDEV", [](Statistics &s, DataList &l, long double) { return s.avgdev(l); }},
        {"SUMDEVSQ", [](Statistics &s, DataList &l, long double) { return s.sumdevsq(l); }},
        {"SVAR", [](Statistics &s, DataList &l, long double) { return s.svariance(l); }},
        {"PVAR", [](Statistics &s, DataList &l, long double) { return s.pvariance(l); }},
        {"MEDIAN", [](Statistics &s, DataList &l, long double) { return s.median(l); }},
        {"MIN", [](Statistics &s, DataList &l, long double) { return s.minimum(l); }},
        {"MAX", [](Statistics &s, DataList &l, long double) { return s.maximum(l); }},
        {"RANGE", [](Statistics &s, DataList &l, long double) { return s.range(l); }},
        {"SKEW", [](Statistics &s, DataList &l, long double) { return s.skew(l); }},
        {"KURT", [](Statistics &s, DataList &l, long double) { return s.kurt(l); }},
        {"GMEAN", [](Statistics &s, DataList &l, long double) { return s.gmean(l); }},
        {"HMEAN", [](Statistics &s, DataList &l, long double) { return s.hmean(l); }},
        {"PRCTLE", [](Statistics &s, DataList &l, long double p) { return s.percentile(l, p); }},
        {"RANK", [](Statistics &s, DataList &l, long double v) { return s.rank(l, v); }},
        {"ZSCORE", [](Statistics &s, DataList &l, long double x) { return s.zscore2(l, x); }},
    };
    return table;
}

// Each statistic of each data set, the list given in its original order every time. The
// sums of deviations are near 0 and compared against the data's own scale. Deviations from
// the mean keep only the digits that the values' size leaves to their spread: with values
// near 1 that differ by 1e-9, long double holds ten of them, and the tolerance follows that
// ratio.
TEST_F(StatisticsTest, MatchReferenceValues) {
    std::map<std::string, std::vector<long double>> sets;
    int checked = 0;
    for (const auto &row : reference_lines("statistics_reference.txt")) {
        if (row[0] == "set") {
            for (std::size_t k = 2; k < row.size(); ++k) sets[row[1]].push_back(number(row[k]));
            continue;
        }
        const auto &values = sets.at(row[1]);
        fill(list, values);
        const long double got = computations().at(row[0])(stats, list, number(row[2]));
        const long double expected = number(row[3]);
        long double scale = std::fabs(expected);
        if (row[0] == "SUMDEV") scale = std::fabs(values[0]) * values.size();
        const auto [least, most] = std::minmax_element(values.begin(), values.end());
        const long double ill_conditioning =
            std::max(std::fabs(*least), std::fabs(*most)) / (*most - *least);
        const long double tolerance = std::max(1e-12L, ill_conditioning * 1e-17L);
        EXPECT_LE(std::fabs(got - expected), tolerance * std::max(scale, 1e-300L))
            << row[0] << " of " << row[1] << " at " << row[2];
        ++checked;
    }
    EXPECT_GT(checked, 150);
}

TEST_F(StatisticsTest, NormalDensityAndAreaMatchReference) {
    for (const auto &row : reference_lines("normal_reference.txt")) {
        if (row[0] == "NORDIST") {
            const long double expected = number(row[4]);
            EXPECT_NEAR(stats.normpdf(number(row[1]), number(row[2]), number(row[3])), expected,
                        1e-13 * expected)
                << row[1] << " " << row[2] << " " << row[3];
        } else {
            // The halving stops at an absolute difference of 0.001 between 10 and 5 panels.
            EXPECT_NEAR(
                stats.normprob1(number(row[1]), number(row[2]), number(row[3]), number(row[4])),
                number(row[5]), 1e-3)
                << row[1] << " " << row[2] << " " << row[3] << " " << row[4];
        }
    }
}

// The x of an area is searched from mean - 4 sd; the area up to it is within 0.001 of p.
TEST_F(StatisticsTest, NormalXReachesTheAreaWithinItsTolerance) {
    const long double below_start = 0.5L * std::erfc(4 / std::sqrt(2.0L));
    for (long double mean : {0.0L, 10.0L, -3.0L})
        for (long double sd : {1.0L, 0.25L, 40.0L})
            for (long double p : {0.001L, 0.05L, 0.3L, 0.5L, 0.77L, 0.95L, 0.999L}) {
                const long double x = stats.normx1(mean, sd, p);
                const long double area =
                    0.5L * std::erfc(-(x - mean) / (sd * std::sqrt(2.0L))) - below_start;
                EXPECT_NEAR(area, p, 0.0011L) << mean << " " << sd << " " << p;
            }
    EXPECT_FALSE(stats.IsAnError());
}

struct ListCase {
    std::vector<long double> values;
    long double argument;
    long double expected;
};

TEST_F(StatisticsTest, OrderStatisticsEdgeCases) {
    EXPECT_EQ(stats.median(list_of(list, {3, 1, 2})), 2);
    EXPECT_EQ(stats.median(list_of(list, {4, 1, 2, 3})), 2.5);
    const ListCase ranks[] = {
        {{10, 20, 20, 30}, 20, 2.5}, {{10, 20}, 15, 0}, {{10, 20}, 10, 1}, {{5, 5, 5}, 5, 2}};
    for (const auto &c : ranks) {
        fill(list, c.values);
        EXPECT_EQ(stats.rank(list, c.argument), c.expected) << c.argument;
    }
    const ListCase percentiles[] = {
        {{1, 2, 3, 4}, 50, 2.5},  {{1, 2, 3, 4}, 0, 1},           {{1, 2, 3, 4}, 100, 4},
        {{4, 3, 2, 1}, 25, 1.25}, {{1, 2, 3, 4, 5, 6, 7}, 25, 2}, {{1, 2, 3, 4, 5, 6, 7}, 75, 6},
    };
    for (const auto &c : percentiles) {
        fill(list, c.values);
        EXPECT_EQ(stats.percentile(list, c.argument), c.expected) << c.argument;
    }
    // The 32-bit position: 0.3 * 11 - 1 = 2.3 is 2.29999995 as a float.
    fill(list, {0, 10, 20, 30, 40, 50, 60, 70, 80, 90});
    EXPECT_EQ(stats.percentile(list, 30), 20 + 10 * static_cast<long double>(2.3f - 2.0f));
}

TEST_F(StatisticsTest, ModeByRepeatsThenByFrequencyClasses) {
    EXPECT_EQ(stats.mode(list_of(list, {1, 2, 2, 3, 3})), 2);
    EXPECT_EQ(stats.mode(list_of(list, {7, 3, 3, 3, 7, 7, 7})), 7);
    EXPECT_EQ(stats.mode(list_of(list, {1, 2, 4, 8, 9})), 3);
    long double value = 0;
    EXPECT_EQ(stats.getMaxRedunNum(list_of(list, {4, 4, 4, 1, 1}), value), 2);
    EXPECT_EQ(value, 4);
    EXPECT_TRUE(stats.isEqualIntvls(list_of(list, {1, 3, 5, 7})));
    EXPECT_FALSE(stats.isEqualIntvls(list_of(list, {1, 3, 5, 8})));
    DynArray<Frequency, 10> dist;
    stats.buildFreqDist(list_of(list, {1, 2, 4, 8, 9}), dist);
    ASSERT_EQ(dist.count(), 2);
    EXPECT_EQ(dist[0]->count, 3);
    EXPECT_EQ(dist[1]->count, 2);
    EXPECT_TRUE(dist[1]->upper_closed);
    EXPECT_EQ(stats.getMaxFreqNum(dist), 0);

    stats.mode(list_of(list, {1, 2, 3, 4}));
    ASSERT_TRUE(stats.IsAnError());
    EXPECT_STREQ(stats.GetLastError(), "No statistical Mode could be identified!");
}

// Few points without repeats warn before the frequency classes; a No stops the warning for
// every engine, and a silent engine never shows it.
TEST_F(StatisticsTest, ModeWarnsAboutFewPointsUntilTheAnswerIsNo) {
    struct Shown {
        std::string text, caption;
        MessageStyle style;
    };
    std::vector<Shown> shown;
    MessageHook hook = [&shown](std::string_view text, std::string_view caption,
                                MessageStyle style) {
        shown.push_back({std::string(text), std::string(caption), style});
        return false;
    };
    stats.link_engine({&hook, nullptr});
    Statistics::set_mode_warning(true);

    stats.silent = true;
    EXPECT_EQ(stats.mode(list_of(list, {1, 2, 4, 8, 9})), 3);
    EXPECT_TRUE(shown.empty());
    stats.silent = false;
    EXPECT_EQ(stats.mode(list_of(list, {1, 2, 2, 9})), 2);  // a repeat needs no warning
    EXPECT_TRUE(shown.empty());
    std::vector<long double> squares;
    for (int k = 0; k < 23; ++k) squares.push_back(k * k);
    fill(list, squares);
    stats.mode(list);  // 23 points are enough
    EXPECT_TRUE(shown.empty());

    EXPECT_EQ(stats.mode(list_of(list, {1, 2, 4, 8, 9})), 3);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0].caption, "Statistics Warning");
    EXPECT_EQ(shown[0].text,
              "You are using a statistically insignificant number of data points to compute the "
              "mode with variable data, therefore the results may be inaccurate.\r\n\r\n If you "
              "do not want to see this message again, click the no button.");
    EXPECT_EQ(shown[0].style, MessageStyle::Question);
    EXPECT_FALSE(Statistics::mode_warning());

    EXPECT_EQ(stats.mode(list_of(list, {1, 2, 4, 8, 9})), 3);
    EXPECT_EQ(shown.size(), 1u);
    Statistics::set_mode_warning(true);
}

TEST(FrequencyTest, ClassBounds) {
    Frequency open(1, 5, false), closed(5, 9, true);
    EXPECT_TRUE(open.addDataPoint(1));
    EXPECT_FALSE(open.addDataPoint(5));
    EXPECT_TRUE(closed.addDataPoint(5));
    EXPECT_TRUE(closed.addDataPoint(9));
    EXPECT_FALSE(closed.addDataPoint(9.5));
    EXPECT_EQ(open.count, 1);
    EXPECT_EQ(closed.count, 2);
}

// Standard deviations switch from sample to population between 30 and 31 points.
TEST_F(StatisticsTest, SkewAndKurtChooseTheDeviationBySize) {
    for (int n : {30, 31}) {
        std::vector<long double> values;
        for (int k = 0; k < n; ++k) values.push_back(k * k % 17);
        fill(list, values);
        const long double m = stats.mean(list);
        const long double variance = n < 31 ? stats.svariance(list) : stats.pvariance(list);
        const long double s = std::sqrt(static_cast<double>(variance));
        long double third = 0, fourth = 0;
        for (long double v : values) {
            third += std::pow((v - m) / s, 3);
            fourth += std::pow((v - m) / s, 4);
        }
        EXPECT_NEAR(stats.skew(list), third / n, 1e-15) << n;
        EXPECT_NEAR(stats.kurt(list), fourth / n - 3, 1e-15) << n;
    }
}

// Through log-factorials: exact while the rounding covers the series' error, and within
// 1e-9 of the exact count beyond.
TEST_F(StatisticsTest, CombinationsAndPermutations) {
    const long double exact[][3] = {{5, 2, 10}, {5, 0, 1}, {5, 1, 5},          {20, 10, 184756},
                                    {1, 1, 1},  {0, 0, 1}, {30, 15, 155117520}};
    for (const auto &c : exact) EXPECT_EQ(stats.binoco(c[0], c[1]), c[2]) << c[0] << " " << c[1];
    EXPECT_EQ(stats.permutate(5, 2), 20);
    EXPECT_EQ(stats.permutate(10, 10), 3628800);
    const long double big = stats.binoco(60, 30);
    EXPECT_NEAR(big, 118264581564861424.0L, 1e-9L * 118264581564861424.0L);
    EXPECT_NEAR(stats.lnfactorial(25), std::lgamma(26.0L), 1e-9L);
    EXPECT_EQ(stats.lnfactorial(0), 0);
    EXPECT_EQ(stats.lnfactorial(1), 0);
}

struct ShapiroSample {
    int n;
    long double w, p;
    std::vector<long double> values;
};

std::vector<ShapiroSample> shapiro_samples() {
    std::vector<ShapiroSample> samples;
    for (const auto &row : reference_lines("shapiro_reference.txt")) {
        ShapiroSample s{std::stoi(row[0]), number(row[1]), number(row[2]), {}};
        for (std::size_t k = 3; k < row.size(); ++k) s.values.push_back(number(row[k]));
        samples.push_back(s);
    }
    return samples;
}

// W from the table's coefficients agrees with scipy to the table's eight places; the
// decision at each alpha is scipy's p-value above alpha, away from the boundary.
TEST_F(StatisticsTest, ShapiroWilkMatchesReference) {
    int decisions = 0;
    for (const auto &s : shapiro_samples()) {
        fill(list, s.values);
        EXPECT_NEAR(stats.wsnorm_w(list), s.w, 2e-6L) << s.n;
        for (int alpha : {1, 2, 5, 10}) {
            if (std::fabs(s.p - alpha / 100.0L) < 0.003L) continue;
            fill(list, s.values);
            EXPECT_EQ(stats.wsnormtest(list, alpha), s.p > alpha / 100.0L ? 1 : 0)
                << s.n << " at " << alpha << " p " << static_cast<double>(s.p);
            ++decisions;
        }
    }
    EXPECT_FALSE(stats.IsAnError()) << stats.GetLastError();
    EXPECT_GT(decisions, 100);
}

}  // namespace
}  // namespace quindar
