// SPDX-License-Identifier: GPL-3.0-or-later
// Random deviates: the generator against an independent integer reference, goodness of fit of
// every draw on 100000 seeded values, pinned first values, and the failures.
#include "deviates.h"

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

using testing::number;
using testing::reference_lines;

constexpr int kDraws = 100000;
// Kolmogorov-Smirnov at the 0.001 level for 100000 values: 1.94947 / sqrt(n).
constexpr double kKolmogorovLimit = 1.94947 / 316.2277660168379;
constexpr double kPi = 3.141592653589793;

// A fresh generator, as at the start of the program.
struct FreshDeviates : Deviates {
    FreshDeviates() { clear_saved_normals(); }
};

TEST(DeviatesGenerator, FollowsTheIntegerReference) {
    EXPECT_EQ(Deviates::step_first(1), 40014);
    const auto rows = reference_lines("uniform_reference.txt");
    ASSERT_EQ(rows.size(), 1u);
    FreshDeviates d;
    for (std::size_t k = 1; k < rows[0].size(); ++k) {
        const long double expected =
            std::stold(rows[0][k]) * static_cast<long double>(4.656613057391769e-10);
        EXPECT_EQ(d.randomnum(), expected) << k;
    }
}

TEST(DeviatesGenerator, EveryNewObjectRestartsTheSameSequence) {
    std::vector<long double> first, second;
    {
        FreshDeviates d;
        for (int k = 0; k < 50; ++k) first.push_back(d.uniformdev(0, 1));
    }
    FreshDeviates d;
    for (int k = 0; k < 50; ++k) second.push_back(d.uniformdev(0, 1));
    EXPECT_EQ(first, second);
    // The shuffle and the second generator are shared and give the output; an object's own
    // seed only refills the table. So a new object restarts the sequence of the old one too.
    FreshDeviates other;
    EXPECT_EQ(d.randomnum(), second[0]);
}

TEST(DeviatesGenerator, StaysInsideItsInterval) {
    FreshDeviates d;
    for (int k = 0; k < kDraws; ++k) {
        const long double u = d.randomnum();
        ASSERT_GT(u, 0);
        ASSERT_LE(u, 0.99999988L);
    }
}

using Draw = std::function<long double(Deviates &)>;
using Cdf = std::function<long double(long double)>;

struct KolmogorovCase {
    const char *name;
    Draw draw;
    Cdf cdf;
};

double kolmogorov_distance(std::vector<long double> values, const Cdf &cdf) {
    std::sort(values.begin(), values.end());
    double distance = 0;
    const double n = static_cast<double>(values.size());
    for (std::size_t k = 0; k < values.size(); ++k) {
        const double f = static_cast<double>(cdf(values[k]));
        distance = std::max({distance, std::fabs(f - k / n), std::fabs((k + 1) / n - f)});
    }
    return distance;
}

TEST(DeviatesFit, ClosedFormDistributions) {
    constexpr long double kRayleigh = 1.201119966536221L;
    const KolmogorovCase cases[] = {
        {"RAND", [](Deviates &d) { return d.uniformdev(5, 2); },
         [](long double x) { return (x - 2) / 3; }},
        {"NORDEV", [](Deviates &d) { return d.normaldev(1, 2); },
         [](long double x) { return 0.5L * std::erfc(-(x - 1) / (2 * std::sqrt(2.0L))); }},
        {"gasdev", [](Deviates &d) { return d.gasdev(-1, 4); },
         [](long double x) { return 0.5L * std::erfc(-(x + 1) / (2 * std::sqrt(2.0L))); }},
        {"EXPDEV", [](Deviates &d) { return d.exponentialdev(1.5); },
         [](long double x) { return 1 - std::exp(-1.5L * x); }},
        {"RAYDEV", [](Deviates &d) { return d.rayleighdev(3, 1); },
         [=](long double x) {
             const long double r = (x - 1) / (kRayleigh * 2);
             return 1 - std::exp(-r * r);
         }},
        {"RAYDEV below the anchor", [](Deviates &d) { return d.rayleighdev(0, 1); },
         [=](long double x) {
             const long double r = (1 - x) / kRayleigh;
             return std::exp(-r * r);
         }},
        {"CAUDEV", [](Deviates &d) { return d.caudev(1, 2); },
         [](long double x) { return 0.5L + std::atan((x - 1) / 2) / kPi; }},
        {"DEXPDEV", [](Deviates &d) { return d.dexpdev(1, 2); },
         [](long double x) {
             return x < 1 ? 0.5L * std::exp((x - 1) / 2) : 1 - 0.5L * std::exp(-(x - 1) / 2);
         }},
        {"LOGDEV", [](Deviates &d) { return d.logdev(1, 2); },
         [](long double x) { return 1 / (1 + std::exp(-(x - 1) / 2)); }},
    };
    for (const auto &c : cases) {
        FreshDeviates d;
        std::vector<long double> values(kDraws);
        for (auto &v : values) v = c.draw(d);
        EXPECT_LT(kolmogorov_distance(values, c.cdf), kKolmogorovLimit) << c.name;
    }
}

const std::map<std::string, std::function<long double(Deviates &, long double, long double)>>
    &draws_by_name() {
    static const std::map<std::string,
                          std::function<long double(Deviates &, long double, long double)>>
        table = {
            {"GAMDEV", [](Deviates &d, long double a, long double b) { return d.gamdev(a, b); }},
            {"CHIDEV", [](Deviates &d, long double a, long double) { return d.chidev(a); }},
            {"FDEV", [](Deviates &d, long double a, long double b) { return d.fdev(a, b); }},
            {"NCHIDEV", [](Deviates &d, long double a, long double b) { return d.nchidev(a, b); }},
            {"BETADEV", [](Deviates &d, long double a, long double b) { return d.betadev(a, b); }},
            {"BNLDEV", [](Deviates &d, long double n,
                          long double p) { return d.bnldev(static_cast<int>(n), p); }},
        };
    return table;
}

// Chi-square over bins whose probabilities the reference script computed: the textbook
// distributions from scipy, and for the gamma draw below shape 1 and the beta draw by normal
// proposals the densities that the language's own rejection steps produce.
TEST(DeviatesFit, BinnedDistributions) {
    const auto rows = reference_lines("deviate_bins.txt");
    ASSERT_EQ(rows.size() % 3, 0u);
    for (std::size_t r = 0; r < rows.size(); r += 3) {
        const auto &head = rows[r];
        const std::string label = head[1];
        const long double first = number(head[3]);
        const long double second = head.size() > 5 ? number(head[4]) : 0;
        const long double critical = number(head.back());
        std::vector<long double> edges, probabilities;
        for (std::size_t k = 1; k < rows[r + 1].size(); ++k)
            edges.push_back(number(rows[r + 1][k]));
        for (std::size_t k = 1; k < rows[r + 2].size(); ++k)
            probabilities.push_back(number(rows[r + 2][k]));
        ASSERT_EQ(probabilities.size(), edges.size() + 1) << label;
        const auto &draw = draws_by_name().at(head[2]);
        FreshDeviates d;
        std::vector<long> counts(probabilities.size());
        for (int k = 0; k < kDraws; ++k) {
            const long double x = draw(d, first, second);
            ++counts[std::upper_bound(edges.begin(), edges.end(), x) - edges.begin()];
        }
        long double chi = 0;
        for (std::size_t b = 0; b < counts.size(); ++b) {
            const long double expected = probabilities[b] * kDraws;
            chi += (counts[b] - expected) * (counts[b] - expected) / expected;
        }
        EXPECT_LT(chi, critical) << label;
        EXPECT_FALSE(d.IsAnError()) << label;
    }
}

TEST(DeviatesFit, BernoulliProportion) {
    FreshDeviates d;
    long ones = 0;
    for (int k = 0; k < kDraws; ++k) ones += static_cast<long>(d.berdev(0.3L));
    const long double expected = 0.3L * kDraws, spread = std::sqrt(0.21L * kDraws);
    // Chi-square with one degree of freedom at 0.001: 10.828.
    EXPECT_LT((ones - expected) * (ones - expected) / (spread * spread), 10.828L);
    for (int k = 0; k < 1000; ++k) {
        EXPECT_EQ(d.berdev(0), 0);
        EXPECT_EQ(d.berdev(1), 1);
    }
}

// The first values of a fresh generator, for each draw in turn; a change in any step of a
// draw, or in what it consumes of the uniform stream, shows here.
TEST(DeviatesSequence, FirstValuesArePinned) {
    struct Pinned {
        const char *name;
        Draw draw;
        long double first[3];
    };
    const Pinned pinned[] = {
#include "data/pinned_deviates.inc"
    };
    for (const auto &p : pinned) {
        FreshDeviates d;
        for (long double expected : p.first)
            EXPECT_NEAR(p.draw(d), expected, 1e-15L * std::max(1.0L, std::fabs(expected)))
                << p.name;
    }
}

TEST(DeviatesValues, SimpleForms) {
    FreshDeviates d;
    EXPECT_EQ(d.uniformdev(3, 3), 3);
    for (int k = 0; k < 100; ++k) {
        const long double v = d.uniformdev(5, 1);
        EXPECT_GE(v, 1);
        EXPECT_LT(v, 5);
    }
    EXPECT_NEAR(d.lngamma(1), 0, 1e-9L);
    EXPECT_NEAR(d.lngamma(10), std::lgamma(10.0L), 1e-9L);
    EXPECT_NEAR(d.betai(2, 3, 0.4L), 0.5248L, 1e-8L);
    EXPECT_NEAR(d.betav(0.5248L, 2, 3), 0.4L, 1e-8L);
    EXPECT_EQ(d.betap(-1, 2, 3), 0);
    EXPECT_EQ(d.betap(2, 2, 3), 1);
    // p = 1 has no point below 1 above it; the search ends at 1 instead of walking forever.
    EXPECT_NEAR(d.betav(1, 2, 3), 1, 1e-8L);
    EXPECT_FALSE(d.IsAnError());
}

TEST(DeviatesFailures, MessagesOfEachCheck) {
    struct Case {
        std::function<long double(Deviates &)> call;
        const char *text;
    };
    const Case cases[] = {
        {[](Deviates &d) { return d.exponentialdev(0); },
         "Shape Parameter In Exponential Deviate Function Can Not Be Zero."},
        {[](Deviates &d) { return d.rayleighdev(2, 2); },
         "Median Is Equal To The Anchor In Rayleigh Deviate Function."},
        {[](Deviates &d) { return d.betav(1.5, 1, 1); },
         "The cummulative probability parameter P must be between 0 and 1 in the betav "
         "function."},
        {[](Deviates &d) { return d.betav(0.5, 0, 1); },
         "The shape parameter Alpha must be greater than 0 in the betav function."},
        {[](Deviates &d) { return d.betav(0.5, 1, 0); },
         "The shape parameter Beta must be greater than 0 in the betav function."},
        {[](Deviates &d) { return d.lngamma(0); },
         "The the natural logarithm of the gamma function can not be evaluated with a negative "
         "number."},
        {[](Deviates &d) { return d.betap(0.5, 0, 1); },
         "The shape parameter Alpha must be greater than 0 in the betap function."},
        {[](Deviates &d) { return d.betap(0.5, 1, -1); },
         "The shape parameter Beta must be greater than 0 in the betap function."},
        {[](Deviates &d) { return d.betai(1, 1, 2); },
         "The upper bound of integration x value can not be between 0 and 1 in the betai "
         "function."},
        {[](Deviates &d) { return d.betadev(0, 1); },
         "The shape parameter Alpha must be greater than 0 in the betadev function."},
        {[](Deviates &d) { return d.betadev(1, 0); },
         "The shape parameter Beta must be greater than 0 in the betadev function."},
    };
    for (const auto &c : cases) {
        FreshDeviates d;
        EXPECT_EQ(
            c.call(d),
            c.text[0] == 'T' && std::string(c.text).find("betav") != std::string::npos ? -1 : 0)
            << c.text;
        ASSERT_TRUE(d.IsAnError()) << c.text;
        EXPECT_STREQ(d.GetLastError(), c.text);
        d.ClearLastError();
        EXPECT_FALSE(d.IsAnError());
    }
}

// A shape so large that acceptance never comes stops with a message instead of hanging.
TEST(DeviatesFailures, RejectionLoopsGiveUp) {
    FreshDeviates d;
    d.max_trials = 1000;
    const char *text =
        "The Random Deviate Could Not Be Drawn, Its Parameters Make Acceptance Too Rare.";
    EXPECT_EQ(d.gamdev(1e30L, 1), 0);
    EXPECT_STREQ(d.GetLastError(), text);
}

}  // namespace
}  // namespace quindar
