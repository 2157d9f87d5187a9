// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tip_of_the_day.h"

namespace quindar {
namespace {

TEST(TipOfTheDay, SplitsHeadingFromText) {
    const struct {
        std::string tip;
        const char *heading;
        const char *text;
    } cases[] = {
        {"Saving|Press Ctrl+S.", "Saving", "Press Ctrl+S."},
        {"No heading here.", "Did you know...", "No heading here."},
        {"|Empty heading", "", "Empty heading"},
        {"Two|bars|here", "Two", "bars|here"},
        {std::string(49, 'h') + "|text", nullptr, "text"},             // bar at 50th character
        {std::string(50, 'h') + "|text", "Did you know...", nullptr},  // bar too far
    };
    for (const auto &row : cases) {
        const Tip tip = split_tip(row.tip, "Did you know...");
        if (row.heading != nullptr) {
            EXPECT_EQ(tip.heading, row.heading) << row.tip;
        }
        if (row.text != nullptr) {
            EXPECT_EQ(tip.text, row.text) << row.tip;
        } else {
            EXPECT_EQ(tip.text, row.tip);
        }
    }
}

TEST(TipOfTheDay, StepsAndWrapsBothWays) {
    const struct {
        int stored;
        const char *moves;  // n next, p previous
        std::vector<int> shown;
    } cases[] = {
        {-1, "n", {0}},
        {0, "n", {1}},
        {2, "n", {0}},
        {2, "p", {1}},
        {0, "p", {2}},
        {-1, "p", {2}},
        {1, "nnnn", {2, 0, 1, 2}},
        {1, "pppp", {0, 2, 1, 0}},
        {7, "n", {0}},  // a stored position out of range starts over
        {-5, "n", {0}},
    };
    for (const auto &row : cases) {
        TipCycle cycle(3, row.stored);
        std::vector<int> shown;
        for (const char *m = row.moves; *m != '\0'; ++m) {
            shown.push_back(*m == 'n' ? cycle.next() : cycle.previous());
        }
        EXPECT_EQ(shown, row.shown) << row.stored << " " << row.moves;
        EXPECT_EQ(cycle.current(), row.shown.back());
    }
    TipCycle none(0, -1);
    EXPECT_EQ(none.next(), -1);
    EXPECT_EQ(none.previous(), -1);
}

// The shipped tips: numbered from the first tip id without gaps, each "heading|text".
TEST(TipOfTheDay, ShippedTipsAreNumberedAndHeaded) {
    std::ifstream file(QUINDAR_SOURCE_DIR "/resources/strings/tips.tsv");
    ASSERT_TRUE(file) << "tips.tsv missing";
    std::string line;
    int expected = kFirstTipId;
    std::set<std::string> headings;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == '#') continue;
        const std::size_t tab = line.find('\t');
        ASSERT_NE(tab, std::string::npos) << line;
        if (std::stoi(line.substr(0, tab)) == kDidYouKnowId) {
            EXPECT_EQ(line.substr(tab + 1), "Did you know...");
            continue;
        }
        EXPECT_EQ(std::stoi(line.substr(0, tab)), expected) << line;
        ++expected;
        const std::string tip = line.substr(tab + 1);
        const Tip split = split_tip(tip, "");
        EXPECT_FALSE(split.heading.empty()) << line;
        EXPECT_GT(split.text.size(), 20u) << line;
        EXPECT_TRUE(headings.insert(split.heading).second) << "repeated heading: " << line;
    }
    const int count = expected - kFirstTipId;
    EXPECT_GE(count, 30);
    EXPECT_LE(count, 40);
}

}  // namespace
}  // namespace quindar
