// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "graph_messages.h"
#include "points_check.h"
#include "points_fixture.h"
#include "points_messages.h"

namespace quindar::testing {
namespace {

using PointsCheck = PointsFixture;

TEST_F(PointsCheck, CountsOfXYAndZMustAgree) {
    const struct {
        std::vector<const char *> xs, ys;
        const char *z;
        int message;
    } cases[] = {
        {{}, {}, nullptr, kMsgNoPoints},
        {{"1"}, {}, nullptr, kMsgNoYOrZ},
        {{}, {"1"}, nullptr, kMsgNoXOrZ},
        {{}, {}, "1", kMsgNoXOrY},
        {{"1", "2"}, {"1"}, nullptr, kMsgXYCountsDiffer},
        {{"1"}, {}, "1", kMsgXZCountsDiffer},
        {{}, {"1"}, "1", kMsgYZCountsDiffer},
        {{"1", "2"}, {"1"}, "1", kMsgXYZCountsDiffer},
        {{"1", nullptr}, {nullptr, "1"}, nullptr, kMsgIncompleteCoordinates},
        {{"1", nullptr, "3"}, {"1", "2"}, "1", kMsgIncompleteCoordinates},
        {{"1", "2"}, {"1", "2"}, nullptr, 0},
        {{"1", nullptr, "3"}, {"1", nullptr, "9"}, "1", 0},
    };
    for (const auto &c : cases) {
        StrDataPnts set;
        FillSet(set, c.xs, c.ys, c.z);
        EXPECT_EQ(point_count_message(set), c.message)
            << c.xs.size() << " X, " << c.ys.size() << " Y, Z " << Text(c.z);
    }
}

TEST_F(PointsCheck, AFailureSelectsThePageAndNamesTheSet) {
    AddSet("Heights", {"1", "2"}, {"5"});
    ui.Expect(kMsgXYCountsDiffer);
    EXPECT_FALSE(page.CheckData(Temp()));
    EXPECT_EQ(ui.selected, std::vector<int>{kPagePoints});
    EXPECT_EQ(ui.LastText(),
              "The quantity of \"X\" and \"Y\" coordinate values must be equal in data set "
              "\"Heights\"! You have incomplete coordinates!");
    EXPECT_EQ(ui.boxes.back().flags, kBoxWarning);
}

TEST_F(PointsCheck, NothingToGraphWithoutSetsOrFunctions) {
    ui.Expect(kMsgNothingToGraph);
    EXPECT_FALSE(page.CheckData(Temp()));
    ASSERT_NE(Temp().AddFunction("f[x]", "x^2"), nullptr);
    EXPECT_TRUE(page.CheckData(Temp()));
}

TEST_F(PointsCheck, ImaginaryValuesStopTheCheck) {
    const struct {
        const char *x, *y, *z;
    } cases[] = {{"1", "2*i", nullptr}, {"SQRT(-1)", "2", nullptr}, {"1", "2", "3+i"}};
    for (const auto &c : cases) {
        Temp().DataSets.flush();
        Temp().CurDataSet = nullptr;
        AddSet("s", {c.x}, {c.y}, c.z);
        if (c.z) AddSet("t", {c.x}, {c.y}, "7");
        ui.Expect(kMsgImaginaryInSet);
        EXPECT_FALSE(page.CheckData(Temp())) << c.x << " " << c.y;
        EXPECT_EQ(ui.boxes.back().fields, std::vector<std::string>{"s"});
    }
}

TEST_F(PointsCheck, AnEvaluationErrorIsListedAndDoesNotStopTheCheck) {
    AddSet("s", {"1", "undefinedname"}, {"2", "3"});
    EXPECT_TRUE(page.CheckData(Temp()));
    ASSERT_EQ(ui.errors.size(), 1u);
    EXPECT_FALSE(ui.errors[0].empty());
    EXPECT_EQ(ui.sounds, std::vector<std::string>{"Error.wav"});
}

TEST_F(PointsCheck, ASurfaceNeedsIncreasingXInEverySet) {
    const struct {
        std::vector<const char *> xs;
        bool passes;
    } cases[] = {
        {{"1", "2", "3"}, true},     {{"1", "1", "3"}, false}, {{"3", "2", "1"}, false},
        {{"-1", "0", "1e-9"}, true}, {{"2*PI", "7"}, true},
    };
    for (const auto &c : cases) {
        Temp().DataSets.flush();
        Temp().CurDataSet = nullptr;
        std::vector<const char *> ys;
        for (const char *x : c.xs) ys.push_back(x ? "0" : nullptr);
        AddSet("a", c.xs, ys, "1");
        AddSet("b", c.xs, ys, "2");
        if (!c.passes) ui.Expect(kMsgXNotIncreasing);
        EXPECT_EQ(page.CheckData(Temp()), c.passes) << c.xs[0] << " " << c.xs[1];
    }
}

TEST_F(PointsCheck, OneSurfaceSetNeedsHiddenLines) {
    AddSet("only", {"1", "2"}, {"1", "4"}, "0");
    ui.Expect(kMsgOneSurfaceSet);
    EXPECT_FALSE(page.CheckData(Temp()));
    EXPECT_EQ(ui.LastText(),
              "You must have more than one data set to graph a 3-dimensional surface!");
    Temp().Set3DTypeBit(5, 1);
    EXPECT_TRUE(page.CheckData(Temp()));
}

TEST_F(PointsCheck, SurfaceRowsNeedTheirOwnZAndCommonX) {
    const struct {
        const char *za, *zb;
        std::vector<const char *> xb;
        int message;
        std::vector<std::string> names;
    } cases[] = {
        {"1", "2", {"1", "2"}, 0, {}},
        {"1", nullptr, {"1", "2"}, kMsgIncompleteCoordinates, {"b"}},
        {"1", "2/2", {"1", "2"}, kMsgEqualZ, {"a", "b"}},
        {"1", "2", {"1", "3"}, kMsgDifferentX, {"a", "b"}},
        {"1", "2", {"1"}, kMsgIncompleteCoordinates, {"b"}},
        {"1", "2", {"1", "4/2"}, 0, {}},
    };
    for (const auto &c : cases) {
        Temp().DataSets.flush();
        Temp().CurDataSet = nullptr;
        AddSet("a", {"1", "2"}, {"5", "6"}, c.za);
        std::vector<const char *> yb(c.xb.size(), "7");
        AddSet("b", c.xb, yb, c.zb);
        if (c.message) ui.Expect(c.message);
        EXPECT_EQ(page.CheckData(Temp()), c.message == 0) << Text(c.zb);
        if (c.message) {
            EXPECT_EQ(ui.boxes.back().fields, c.names);
        }
    }
}

TEST_F(PointsCheck, AFailingZIsListedOnce) {
    AddSet("a", {"1", "2"}, {"5", "6"}, "nosuchvariable");
    AddSet("b", {"1", "2"}, {"5", "6"}, "2");
    AddSet("c", {"1", "2"}, {"5", "6"}, "3");
    EXPECT_TRUE(page.CheckData(Temp()));
    EXPECT_EQ(ui.errors.size(), 1u);
}

TEST_F(PointsCheck, TheTextsOfTheSurfaceRules) {
    AddSet("a", {"1", "2"}, {"5", "6"}, "1");
    AddSet("b", {"1", "3"}, {"5", "6"}, "2");
    ui.Expect(kMsgDifferentX);
    EXPECT_FALSE(page.CheckData(Temp()));
    EXPECT_EQ(ui.LastText(),
              "The X data point values for data sets \"a\" and \"b\" are not equal. Each data set "
              "must have a common set of Z data point values for a 3-dimensional graph.");
}

TEST_F(PointsCheck, AnyZMakesTheGraphThreeDimensional) {
    AddSet("a", {"2", "1"}, {"5", "6"});
    EXPECT_TRUE(page.CheckData(Temp()));  // 2-D: X may fall
    Temp().DataSets.gethead()->PutZDataPoint("1");
    AddSet("b", {"2", "1"}, {"5", "6"}, "2");
    ui.Expect(kMsgXNotIncreasing);
    EXPECT_FALSE(page.CheckData(Temp()));
}

TEST_F(PointsCheck, DataLayoutIsSharedOnlyWhenEverySetHasTheSameX) {
    const struct {
        std::vector<const char *> xb;
        int type;
        int layout;
        bool passes;
    } cases[] = {
        {{"1", "2"}, 2, 1, true},  {{"1", "4/2"}, 2, 1, true},     {{"1", "3"}, 1, 2, true},
        {{"1", "3"}, 2, 2, false}, {{"1", "2", "3"}, 14, 2, true}, {{"1", "2", "3"}, 3, 2, false},
    };
    for (const auto &c : cases) {
        Temp().DataSets.flush();
        Temp().CurDataSet = nullptr;
        Temp().GraphType2D = c.type;
        Temp().DataLayout = 0;
        AddSet("a", {"1", "2"}, {"5", "6"});
        std::vector<const char *> yb(c.xb.size(), "7");
        AddSet("b", c.xb, yb);
        if (!c.passes) ui.Expect(kMsgSharedXOnly);
        EXPECT_EQ(page.CheckData(Temp()), c.passes) << c.type;
        EXPECT_EQ(Temp().DataLayout, c.layout) << c.type;
    }
}

TEST_F(PointsCheck, SetsThatFollowTheXVariableShareItsArray) {
    ASSERT_NE(Temp().AddFunction("f[x]", "x^2"), nullptr);
    const Variable x("x", complex{0, 0}, complex{2, 0}, 3);
    Temp().SetXAxisVar(&x);
    AddSet("a", {"0", "1", "2"}, {"5", "6", "7"});
    EXPECT_TRUE(page.CheckData(Temp()));
    EXPECT_EQ(Temp().DataLayout, 1);
    Temp().DataSets.gethead()->PutXDataPoint("1.5", 1);
    EXPECT_TRUE(page.CheckData(Temp()));
    EXPECT_EQ(Temp().DataLayout, 2);
}

}  // namespace
}  // namespace quindar::testing
