// SPDX-License-Identifier: GPL-3.0-or-later
// Data sets of expression texts and the point records.
#include <gtest/gtest.h>

#include <string>

#include "str_data_pnts.h"
#include "str_point.h"

namespace quindar {
namespace {

// The X slots as "a|b||d" (an empty slot empty), up to the last filled one.
std::string x_slots(const StrDataPnts &set) {
    std::string text;
    for (int i = 0; i <= set.XPoints.maxfullindex(); ++i) {
        if (i > 0) text += '|';
        if (const char *slot = set.GetXDataPoint(i)) text += slot;
    }
    return text;
}

TEST(StrDataPnts, PutGetAndEmptySlots) {
    StrDataPnts set;
    EXPECT_EQ(set.GetMaxXYZPoint(), -1);
    EXPECT_EQ(set.PutXDataPoint("1", 0), 1);
    EXPECT_EQ(set.PutXDataPoint("x^2", 3), 1);
    EXPECT_EQ(x_slots(set), "1|||x^2");
    EXPECT_EQ(set.GetXDataPoint(1), nullptr);
    EXPECT_EQ(set.GetXDataPoint(500), nullptr);
    EXPECT_EQ(set.GetXDataPoint(-1), nullptr);
    EXPECT_EQ(set.PutXDataPoint(nullptr, 3), 0);
    EXPECT_EQ(x_slots(set), "1");
    EXPECT_EQ(set.PutXDataPoint(nullptr, 999), 0);
    EXPECT_EQ(set.PutYDataPoint("2", 5), 1);
    EXPECT_EQ(set.GetMaxXYZPoint(), 5);
    EXPECT_EQ(set.GetNumXYZPoints(), 1);
}

TEST(StrDataPnts, InsertAndDeleteMoveLaterSlots) {
    StrDataPnts set;
    set.PutXDataPoint("a", 0);
    set.PutXDataPoint("b", 1);
    set.PutXDataPoint("d", 3);
    EXPECT_EQ(set.InsertXDataPoint("z", 1), 1);
    EXPECT_EQ(x_slots(set), "a|z|b||d");
    EXPECT_EQ(set.DeleteXDataPoint(0), 1);
    EXPECT_EQ(x_slots(set), "z|b||d");
    EXPECT_EQ(set.DeleteXDataPoint(2), 1);  // an empty slot closes up as well
    EXPECT_EQ(x_slots(set), "z|b|d");
    EXPECT_EQ(set.DeleteXDataPoint(40), 0);
}

TEST(StrDataPnts, ZStandsForTheWholeSet) {
    StrDataPnts set;
    EXPECT_FALSE(set.DeleteZDataPoint());
    set.PutZDataPoint("5");
    EXPECT_EQ(set.GetMaxXYZPoint(), 0);
    EXPECT_STREQ(set.GetZDataPoint(), "5");
    set.PutZDataPoint("6");
    EXPECT_STREQ(set.GetZDataPoint(), "6");
    EXPECT_TRUE(set.DeleteZDataPoint());
    EXPECT_EQ(set.GetZDataPoint(), nullptr);
    set.PutZDataPoint("1");
    set.PutZDataPoint(nullptr);
    EXPECT_EQ(set.GetZDataPoint(), nullptr);
}

TEST(StrDataPnts, CopyIsDeep) {
    StrDataPnts set;
    set.SetName("s");
    set.SetLabel("legend");
    set.PutXDataPoint("1", 2);
    set.PutZDataPoint("3");
    StrDataPnts copy(set);
    set.PutXDataPoint("9", 2);
    EXPECT_STREQ(copy.GetXDataPoint(2), "1");
    EXPECT_STREQ(copy.GetZDataPoint(), "3");
    EXPECT_STREQ(copy.GetLabel(), "legend");
    set.SetLabel(nullptr);
    EXPECT_STREQ(set.GetLabel(), "");
}

TEST(PointRecords, CoordinatesAreOwnedAndMayBeAbsent) {
    StrPoint point;
    point.SetXPoint("1+2");
    point.SetZPoint("z");
    StrPoint copy(point);
    point.SetXPoint(nullptr);
    EXPECT_STREQ(copy.GetXPoint(), "1+2");
    EXPECT_EQ(copy.GetYPoint(), nullptr);
    EXPECT_STREQ(copy.GetZPoint(), "z");
    EXPECT_EQ(point.GetXPoint(), nullptr);

    Point values;
    const complex three{3, 1};
    values.SetYPoint(&three);
    Point other = values;
    ASSERT_TRUE(other.Y);
    EXPECT_EQ(other.Y->imag, 1);
    EXPECT_FALSE(other.X);
}

}  // namespace
}  // namespace quindar
