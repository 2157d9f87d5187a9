// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "graph_fixture.h"
#include "graph_layout.h"

namespace quindar::testing {
namespace {

using DataLayout = GraphFixture;

TEST_F(DataLayout, SharedXOnlyWhenEverySetAgreesWithTheOthersAndTheAxis) {
    struct Case {
        const char *name;
        std::vector<std::vector<const char *>> xs;  // one X list per set
        bool withFunction;                          // f[x] over x from 0 to 2 in 3 points
        int layout;
    };
    const Case cases[] = {
        {"no data sets", {}, true, 1},
        {"one set alone", {{"5", "7"}}, false, 1},
        {"equal sets", {{"0", "1"}, {"0", "2-1"}}, false, 1},
        {"a set of other length", {{"0", "1"}, {"0", "1", "2"}}, false, 2},
        {"a set with other values", {{"0", "1"}, {"0", "1.5"}}, false, 2},
        {"sets on the axis steps", {{"0", "1", "2"}, {"0", "1", "4/2"}}, true, 1},
        {"a set off the axis steps", {{"0", "1.5", "2"}}, true, 2},
        {"a set of other length than the axis", {{"0", "1"}}, true, 2},
        {"a set that does not compute", {{"0", "oops+"}, {"0", "1"}}, false, 2},
    };
    Run("f[x] = x");
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        GraphData g("L");
        if (c.withFunction) {
            g.AddFunction("f[x]", "x");
            const Variable axis("x", complex{0, 0}, complex{2, 0}, 3);
            g.SetXAxisVar(&axis);
        }
        for (const auto &xs : c.xs) {
            StrDataPnts *set = g.DataSets.add();
            for (std::size_t i = 0; i < xs.size(); ++i)
                set->PutXDataPoint(xs[i], static_cast<int>(i));
        }
        EXPECT_EQ(decide_data_layout(parser, g), c.layout);
        EXPECT_FALSE(parser.IsAnError());
    }
}

TEST(DataLayoutTypes, OwnXPerSetOnlyForTheTypesThatDrawIt) {
    for (const int type : {1, 5, 9, 13, 14}) {
        GraphData g("T");
        g.GraphType2D = type;
        EXPECT_TRUE(layout_allowed(g, 2)) << type;
    }
    for (const int type : {2, 3, 4, 6, 7, 8, 10, 11, 12}) {
        GraphData g("T");
        g.GraphType2D = type;
        EXPECT_FALSE(layout_allowed(g, 2)) << type;
        EXPECT_TRUE(layout_allowed(g, 1)) << type;
    }
}

}  // namespace
}  // namespace quindar::testing
