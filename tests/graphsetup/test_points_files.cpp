// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "point_files.h"
#include "points_data_sets.h"
#include "points_fixture.h"

namespace quindar::testing {
namespace {

const std::string kData = QUINDAR_TEST_DATA_DIR "/";

GraphData GraphWithSets(std::initializer_list<const char *> names) {
    GraphData graph("g");
    for (const char *name : names) graph.DataSets.add()->SetName(name);
    return graph;
}

TEST(PointsDataSets, NewSetsAreNamedDataSetWithTheFirstFreeNumber) {
    const struct {
        std::initializer_list<const char *> names;
        const char *expected;
    } cases[] = {
        {{}, "DataSet1"},
        {{"DataSet1"}, "DataSet2"},
        {{"dataset1", "DataSet2"}, "DataSet3"},
        {{"DataSet10"}, "DataSet2"},  // "DataSet1" begins "DataSet10"
        {{"DataSet2"}, "DataSet1"},
    };
    for (const auto &c : cases) EXPECT_EQ(new_data_set_name(GraphWithSets(c.names)), c.expected);
}

TEST(PointsDataSets, PointFileSetsCountFromTheFirstDot) {
    const struct {
        std::initializer_list<const char *> names;
        const char *file;
        const char *expected;
    } cases[] = {
        {{}, "a.txt", "a.txt"},
        {{"a.txt"}, "a.txt", "a1.txt"},
        {{"a.txt", "a1.txt"}, "a.txt", "a2.txt"},
        {{"data"}, "data", "data1"},
        {{"v.1.dat"}, "v.1.dat", "v1.1.dat"},
        {{"A.TXT"}, "a.txt", "a1.txt"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(point_file_set_name(GraphWithSets(c.names), c.file), c.expected) << c.file;
}

TEST(PointsDataSets, SetsAreFoundByWholeNameAndTakenByPrefix) {
    const GraphData graph = GraphWithSets({"Temperature", "b"});
    EXPECT_NE(find_data_set(graph, "temperature"), nullptr);
    EXPECT_EQ(find_data_set(graph, "Temp"), nullptr);
    EXPECT_TRUE(data_set_name_taken(graph, "Temp"));
    EXPECT_FALSE(data_set_name_taken(graph, "Temperatures"));
    EXPECT_EQ(data_set_position(graph, graph.DataSets.gettail()), 1);
}

TEST(PointsDataSets, TheCountIsTheHighestIndexPlusOne) {
    StrDataPnts set;
    EXPECT_EQ(set_point_count(set), 0);
    set.PutZDataPoint("3");
    EXPECT_EQ(set_point_count(set), 1);
    EXPECT_TRUE(set_has_content(set));
    EXPECT_FALSE(set_has_points(set));
    set.PutYDataPoint("1", 6);
    EXPECT_EQ(set_point_count(set), 7);
    EXPECT_TRUE(set_has_points(set));
}

TEST(PointFiles, OneLinePerIndexWithTheSetsZ) {
    const struct {
        std::vector<const char *> xs, ys;
        const char *z;
        const char *text;
    } cases[] = {
        {{"1"}, {"2"}, "3", "1, 2, 3\n"},
        {{"1", "2"}, {"4", "8"}, nullptr, "1, 4\n2, 8\n"},
        {{"1", nullptr}, {nullptr, "5"}, nullptr, "1\n, 5\n"},
        {{"1"}, {nullptr}, "z0", "1, , z0\n"},
        {{"2*PI", "x+1"}, {"a", "b"}, nullptr, "2*PI, a\nx+1, b\n"},
        {{}, {}, "7", ", , 7\n"},
        {{}, {}, nullptr, ""},
    };
    for (const auto &c : cases) {
        StrDataPnts set;
        FillSet(set, c.xs, c.ys, c.z);
        EXPECT_EQ(point_file_text(set), c.text);
    }
}

std::string Row(const StrPoint &p) {
    return std::string(p.X ? *p.X : "-") + "|" + (p.Y ? *p.Y : "-") + "|" + (p.Z ? *p.Z : "-");
}

TEST(PointFiles, ReadsRowsOfUpToThreeCoordinates) {
    const PointFileRead read = read_point_file(kData + "squares.txt");
    ASSERT_TRUE(read.ok()) << read.error;
    ASSERT_EQ(read.points.size(), 3u);  // the blank line makes no point
    EXPECT_EQ(Row(read.points[0]), "1|2|-");
    EXPECT_EQ(Row(read.points[2]), "3|9|-");
    EXPECT_EQ(point_kind(read.points), PointKind::TwoD);
    EXPECT_EQ(point_kind(read_point_file(kData + "row_z5.txt").points), PointKind::ThreeD);
    EXPECT_EQ(point_kind({}), PointKind::None);
}

TEST(PointFiles, ABadFileGivesItsMessageAndNoPoints) {
    const struct {
        std::string file, message;
    } cases[] = {
        {"missing.txt", "Data File ' " + kData + "missing.txt ' Could Not Be Located!"},
        {"blank.txt", "No Data Found In The ' " + kData + "blank.txt ' Data File!"},
        {"labels_only.txt", ""},
        {"", "Data File ' " + kData + " ' Could Not Be Located!"},  // a folder
    };
    for (const auto &c : cases) {
        const PointFileRead read = read_point_file(kData + c.file);
        if (c.message.empty()) {
            // Labels take no place: the rows exist but hold no coordinate.
            EXPECT_TRUE(read.points.empty()) << c.file;
            continue;
        }
        EXPECT_EQ(read.error, c.message);
        EXPECT_TRUE(read.points.empty()) << c.file;
    }
}

TEST(PointFiles, TooManyEntriesLoadNothing) {
    const std::string path = ::testing::TempDir() + "points_too_many.txt";
    {
        std::ofstream out(path);
        for (int i = 0; i < 11000; ++i) out << i << ", " << i << ", 1\n";
    }
    const PointFileRead read = read_point_file(path);
    EXPECT_EQ(read.error, "Too Many Data Points Found In The ' " + path +
                              " ' Data File, Limit Is 32767 Points!");
    EXPECT_TRUE(read.points.empty());
    std::filesystem::remove(path);
}

TEST(PointFiles, ASavedSetReadsBackTheSame) {
    StrDataPnts set;
    set.PutXDataPoint("1", 0);
    set.PutYDataPoint("2", 0);
    set.PutXDataPoint("SQRT(4)", 1);
    set.PutYDataPoint("-3e2", 1);
    set.PutZDataPoint("3");
    const std::string path = ::testing::TempDir() + "points_round_trip.txt";
    ASSERT_EQ(write_point_file(path, set), "");
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(), "1, 2, 3\nSQRT(4), -3e2, 3\n");
    const PointFileRead read = read_point_file(path);
    ASSERT_EQ(read.points.size(), 2u);
    EXPECT_EQ(Row(read.points[1]), "SQRT(4)|-3e2|3");
    std::filesystem::remove(path);
    EXPECT_NE(write_point_file(::testing::TempDir() + "no/such/folder/p.txt", set), "");
}

TEST(PointFiles, TheFileNameKeepsItsExtension) {
    EXPECT_EQ(file_name_of("/home/u/data.txt"), "data.txt");
    EXPECT_EQ(file_name_of("data.txt"), "data.txt");
}

}  // namespace
}  // namespace quindar::testing
