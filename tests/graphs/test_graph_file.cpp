// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "graph_file.h"
#include "temp_folder.h"

namespace quindar {
namespace {

GraphData Graph2D(int layout) {
    GraphData graph("Sales 2-D");
    graph.GraphType2D = 13;
    graph.DataLayout = layout;
    graph.SetXAxisTitle("month");
    graph.Rotation2D = 33;
    graph.MarginTop2D = 40;
    graph.DefaultMarginLeft2D = -5;
    graph.HeaderBackgroundColor = TColor(1, 2, 3);
    graph.AddFunction("f[x]", "x")->SetFuncLabel("the f");
    graph.AddFunction("g[x]", "x");
    return graph;
}

ChartData2D Data2D(int layout) {
    ChartData2D data(layout, 3, 4);
    for (int s = 0; s < 3; ++s)
        for (int p = 0; p < 3; ++p) {
            data.set_x(s, p, 0.1 * p + s);
            data.set_y(s, p, p == 1 && s == 1 ? kHoleValue : 1.0 / 3.0 * (s + 1) * p);
        }
    return data;
}

TEST(GraphFile2D, WrittenReadAndWrittenAgainIsTheSameByteForByte) {
    for (const int layout : {1, 2}) {
        SCOPED_TRACE(layout);
        const GraphData graph = Graph2D(layout);
        const std::string first = graph_file_text(make_graph_file_2d(graph, Data2D(layout)));
        GraphFile2D read;
        std::string error;
        ASSERT_TRUE(parse_graph_file(first, GraphDefaults{}, read, error)) << error;
        EXPECT_EQ(read.data, Data2D(layout)) << "every double comes back exactly";
        EXPECT_EQ(read.name, "Sales 2-D");
        EXPECT_EQ(read.type, 13);
        EXPECT_EQ(read.rotation, 33);
        EXPECT_EQ(read.margins[1], 40);
        EXPECT_EQ(read.margins[2], -5) << "the chart's margin is the resolved one";
        EXPECT_EQ(read.setLabels, (std::vector<std::string>{"g[x]", "the f", ""}));
        EXPECT_EQ(graph_file_text(read), first);
    }
}

TEST(GraphFile2D, KeysInTheirOrderAfterTheDataBlock) {
    const std::string text = graph_file_text(make_graph_file_2d(Graph2D(1), Data2D(1)));
    const std::size_t section = text.find("\r\n\r\n[Sales 2-D]\r\n");
    ASSERT_NE(section, std::string::npos);
    EXPECT_EQ(text.rfind("QUINDAR GRAPH DATA 1\r\nKIND 2D\r\nLAYOUT 1 SETS 3 POINTS 4\r\n", 0), 0u);
    EXPECT_EQ(text.substr(0, section).find('='), std::string::npos) << "no key in the block";
    EXPECT_EQ(text.substr(section + 4),
              "[Sales 2-D]\r\nHeader=Header\r\nFooter=Footer\r\nXAxisTitle=month\r\n"
              "YAxisTitle=\r\nType=13\r\nDefaultDepth=20\r\nDepth=20\r\n"
              "DefaultInclination=15\r\nInclination=15\r\nDefaultRotation=10\r\nRotation=33\r\n"
              "DefaultMarginBottom2D=0\r\nDefaultMarginTop2D=0\r\nDefaultMarginLeft2D=-5\r\n"
              "DefaultMarginRight2D=0\r\nMarginBottom2D=0\r\nMarginTop2D=40\r\n"
              "MarginLeft2D=-5\r\nMarginRight2D=0\r\nBackgroundColor=64,128,128\r\n"
              "ForegroundColor=0,0,0\r\nDataAreaBackgroundColor=128,255,255\r\n"
              "DataAreaForegroundColor=0,0,0\r\nFooterBackgroundColor=0,0,0\r\n"
              "FooterForegroundColor=0,0,0\r\nGraphBackgroundColor=0,0,0\r\n"
              "GraphForegroundColor=255,255,255\r\nHeaderBackgroundColor=1,2,3\r\n"
              "HeaderForegroundColor=255,255,255\r\nLegendBackgroundColor=255,255,255\r\n"
              "LegendForegroundColor=0,0,0\r\nNumDataSets=3\r\nSetLabel1=g[x]\r\n"
              "SetLabel2=the f\r\n");
}

TEST(GraphFile2D, MissingKeysTakeTheirDefaults) {
    GraphDefaults user;
    user.colors[0] = TColor(9, 9, 9);
    user.colors[7] = TColor(8, 8, 8);  // under the key the 2-D reader never finds
    const std::string text =
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 1 SETS 2 POINTS 1\nHOLE 1e+308\nX 5\nSET 0\n"
        "Y 1\nSET 1\nY 2\nEND GRAPH DATA\n[Only]\nnumdatasets=1\nSetLabel1=first\n"
        "SetLabel2=beyond the count\nXAxisLogarithmic=1\nShowGridLines=0\n";
    GraphFile2D read;
    std::string error;
    ASSERT_TRUE(parse_graph_file(text, user, read, error)) << error;
    EXPECT_EQ(read.name, "Only");
    EXPECT_EQ(read.type, 0);
    EXPECT_EQ(read.depth, 20);
    EXPECT_EQ(read.inclination, 15);
    EXPECT_EQ(read.setLabels, (std::vector<std::string>{"first", ""}));
    EXPECT_EQ(read.colors[0].color, TColor(9, 9, 9));
    EXPECT_EQ(read.colors[7].color, TColor(255, 255, 255));
    EXPECT_EQ(read.xLogarithmic, 1);
    EXPECT_EQ(read.showGridLines, 0);
    EXPECT_EQ(read.data.x(1, 0), 5.0) << "layout 1 shares the X array";
}

TEST(GraphFile2D, LongTextsComeBackCutTo127Characters) {
    GraphData graph = Graph2D(1);
    graph.SetHeader(std::string(200, 'h').c_str());
    const std::string text = graph_file_text(make_graph_file_2d(graph, Data2D(1)));
    EXPECT_NE(text.find(std::string(200, 'h')), std::string::npos) << "saved whole";
    GraphFile2D read;
    std::string error;
    ASSERT_TRUE(parse_graph_file(text, GraphDefaults{}, read, error));
    EXPECT_EQ(read.header, std::string(127, 'h'));
}

GraphData Graph3D() {
    GraphData graph("Surface");
    graph.GraphType3D = 1101011;
    graph.SetYAxisTitle("height");
    graph.SetZAxisTitle("depth");
    graph.XRotation = 12.5f;
    graph.DefaultYRotation = 0.5f;
    graph.MeshTopColor = TColor(4, 5, 6);
    return graph;
}

TEST(GraphFile3D, RegularAndIrregularGridsSurviveARoundTrip) {
    ChartGrid3D regular = ChartGrid3D::regular(3, 2, kHoleValue, 0.5, 0.25, -1, 2);
    regular.set_value(0, 0, 1.0 / 7.0);
    regular.set_value(2, 1, -3e-300);
    ChartGrid3D irregular = ChartGrid3D::irregular(2, 3, kHoleValue);
    irregular.x_values() = {1, 10};
    irregular.z_values() = {0.1, 0.2, 0.30000000000000004};
    irregular.set_value(1, 2, 42);
    for (const ChartGrid3D &grid : {regular, irregular}) {
        SCOPED_TRACE(grid.is_regular());
        const std::string first = graph_file_text(make_graph_file_3d(Graph3D(), grid));
        GraphFile3D read;
        std::string error;
        ASSERT_TRUE(parse_graph_file(first, GraphDefaults{}, read, error)) << error;
        EXPECT_EQ(read.grid, grid);
        EXPECT_EQ(read.yTitle, "depth") << "the chart's Y is the graph's Z";
        EXPECT_EQ(read.zTitle, "height");
        EXPECT_EQ(read.surface, 1) << "digit 7: bars";
        EXPECT_EQ(read.projectZMax, 1);
        EXPECT_EQ(read.projectZMin, 2);
        EXPECT_EQ(read.mesh, 1);
        EXPECT_EQ(read.shade, 1);
        EXPECT_EQ(read.contour, 0);
        EXPECT_FLOAT_EQ(read.view[1], 12.5f);
        EXPECT_FLOAT_EQ(read.defaultView[2], 0.5f);
        EXPECT_EQ(graph_file_text(read), first);
    }
}

TEST(GraphFile3D, KeysOfTheThreeDimensionalSection) {
    const std::string text = graph_file_text(
        make_graph_file_3d(Graph3D(), ChartGrid3D::regular(1, 1, kHoleValue, 1, 1, 0, 0)));
    for (const char *line :
         {"\r\n[Surface]\r\nHeader=Header\r\nFooter=Footer\r\nXAxisTitle=\r\n"
          "YAxisTitle=depth\r\nZAxisTitle=height\r\nMesh=1\r\nShade=1\r\nContour=0\r\nZone=1\r\n"
          "Hidden=0\r\nProjectZMin=2\r\nProjectZMax=1\r\nSurface=1\r\n"
          "PerspectiveDepth=20.000\r\nXRotation=12.500\r\nYRotation=0.340\r\n",
          "DefaultYRotation=0.500\r\n", "GraphForegrondColor=255,255,255\r\n",
          "MeshTopColor=4,5,6\r\nSurfaceBottomColor=0,0,0\r\nSurfaceTopColor=255,255,255\r\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
    EXPECT_EQ(text.find("DataAreaForegroundColor"), std::string::npos);
}

TEST(GraphFile3D, ProjectOneSwitchesProjectionOnAndEmptyViewKeysTakeDefaults) {
    const std::string text =
        "QUINDAR GRAPH DATA 1\nKIND 3D\nGRID IRREGULAR NX 1 NZ 1\nHOLE 1e+308\nXVALUES 0\n"
        "ZVALUES 0\nROW 0 1e+308\nEND GRAPH DATA\n\n[S]\nProject=1\nSurface=2\nXRotation=\n"
        "Scale=2.5\n";
    GraphFile3D read;
    std::string error;
    ASSERT_TRUE(parse_graph_file(text, GraphDefaults{}, read, error)) << error;
    EXPECT_EQ(read.projectZMax, 1);
    EXPECT_EQ(read.projectZMin, 2);
    EXPECT_EQ(read.surface, 0) << "only 1 means bars";
    EXPECT_FLOAT_EQ(read.view[1], 25.0f);
    EXPECT_FLOAT_EQ(read.view[6], 2.5f);
    EXPECT_FLOAT_EQ(read.defaultView[2], 0.34f);
    EXPECT_EQ(read.grid.value(0, 0), kHoleValue);
}

TEST(GraphFile, TruncatedAndForeignFilesAreRefusedWithAReason) {
    const std::string two = graph_file_text(make_graph_file_2d(Graph2D(2), Data2D(2)));
    const std::string three = graph_file_text(
        make_graph_file_3d(Graph3D(), ChartGrid3D::regular(4, 3, kHoleValue, 1, 1, 0, 0)));
    const std::size_t block2 = two.find("END GRAPH DATA");
    const std::size_t block3 = three.find("END GRAPH DATA");
    for (std::size_t cut = 0; cut < block2; cut += 7) {
        GraphFile2D read;
        std::string error;
        EXPECT_FALSE(parse_graph_file(two.substr(0, cut), GraphDefaults{}, read, error)) << cut;
        EXPECT_FALSE(error.empty());
    }
    for (std::size_t cut = 0; cut < block3; cut += 5) {
        GraphFile3D read;
        std::string error;
        EXPECT_FALSE(parse_graph_file(three.substr(0, cut), GraphDefaults{}, read, error)) << cut;
    }
    const char *foreign[] = {
        "",
        "[DECLARED VARIABLES]\r\nx=1\r\n",
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 3 SETS 1 POINTS 1\n",
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 1 SETS 99999999 POINTS 99999999\n",
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 1 SETS 1 POINTS 2\nHOLE 1e308\nX 1 two\n",
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 1 SETS 1 POINTS 2\nHOLE 1e308\nX 1 2 3\n",
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 1 SETS -1 POINTS 2\nHOLE 1e308\n",
        "QUINDAR GRAPH DATA 1\nKIND 2D\nLAYOUT 2 SETS 9000 POINTS 9000\nHOLE 1e308\nSET 0\n",
    };
    for (const char *text : foreign) {
        GraphFile2D read;
        std::string error;
        EXPECT_FALSE(parse_graph_file(text, GraphDefaults{}, read, error)) << text;
    }
    GraphFile3D huge;
    std::string reason;
    EXPECT_FALSE(parse_graph_file(
        "QUINDAR GRAPH DATA 1\nKIND 3D\nGRID REGULAR NX 9000 NZ 9000\nHOLE 1e308\n",
        GraphDefaults{}, huge, reason));
    EXPECT_EQ(reason, "the graph data is cut short");
    GraphFile2D wrongKind;
    std::string error;
    EXPECT_FALSE(parse_graph_file(three, GraphDefaults{}, wrongKind, error));
    EXPECT_EQ(error, "the graph data is not of this kind of graph");
}

TEST(GraphFile, DamagedBytesNeverCrashTheReader) {
    const std::string texts[] = {
        graph_file_text(make_graph_file_2d(Graph2D(2), Data2D(2))),
        graph_file_text(make_graph_file_3d(Graph3D(), ChartGrid3D::irregular(3, 2, kHoleValue)))};
    const char replacements[] = {'\n', '[', '=', '-', '9', ' ', 'e', '\0', 'X'};
    std::mt19937 random(20261123);
    int readable = 0;
    for (const std::string &original : texts) {
        for (int round = 0; round < 400; ++round) {
            std::string text = original;
            for (int k = 0; k < 3; ++k)
                text[random() % text.size()] = replacements[random() % sizeof replacements];
            GraphFile2D two;
            GraphFile3D three;
            std::string error;
            readable += parse_graph_file(text, GraphDefaults{}, two, error) ? 1 : 0;
            readable += parse_graph_file(text, GraphDefaults{}, three, error) ? 1 : 0;
        }
    }
    EXPECT_GT(readable, 0) << "damage in the section alone still reads";
    EXPECT_LT(readable, 800);
}

TEST(GraphFile, ChartDecisionsOfAnOpenedFileComeFromTheFile) {
    GraphData graph = Graph2D(1);
    graph.YAxisLogarithmic = 1;
    graph.ShowGridLines = 0;
    GraphFile2D file = make_graph_file_2d(graph, Data2D(1));
    file.xLogarithmic = 1;  // as a section may hold it
    const ChartSpec2D spec = chart_spec_2d(file, 0);
    EXPECT_EQ(spec.storedType, 13);
    EXPECT_EQ(spec.chartType, 1);
    EXPECT_EQ(spec.styles[0].linePattern, 1) << "Scatter keeps its markers without a line";
    EXPECT_EQ(spec.name, "Sales 2-D");
    EXPECT_EQ(spec.setLabels, (std::vector<std::string>{"g[x]", "the f", ""}));
    EXPECT_TRUE(spec.logX);
    EXPECT_TRUE(spec.logY);
    EXPECT_TRUE(spec.refusals.empty());
    EXPECT_FALSE(spec.gridLines);
    EXPECT_EQ(spec.marginBottom, (ChartMargin{0, false})) << "0 from a file is a value";
    EXPECT_EQ(spec.marginTop, (ChartMargin{40, false}));
    EXPECT_EQ(spec.colors[8].color, TColor(1, 2, 3));

    GraphData surface = Graph3D();
    surface.ShowGridLines = 0;
    const ChartSpec3D spec3 =
        chart_spec_3d(make_graph_file_3d(surface, ChartGrid3D::irregular(1, 1, kHoleValue)));
    const ChartSpec3D direct = chart_spec_3d(surface);
    EXPECT_EQ(describe(spec3), describe(direct)) << "the file keeps every 3-D decision";
}

TEST(GraphFile, KindFromThePathWhateverTheCase) {
    EXPECT_EQ(graph_file_kind("/a/b.g2d"), 1);
    EXPECT_EQ(graph_file_kind("/a/B.G3D"), 2);
    EXPECT_EQ(graph_file_kind("/a/x.G2D.backup"), 1) << "anywhere in the name";
    EXPECT_EQ(graph_file_kind("/a/graph.qnd"), 0);
}

TEST(GraphFile, SavedThroughATemporaryFileAndLoadedBack) {
    testing::TempFolder folder;
    const std::string path = (folder.path() + "/out.g2d");
    const std::string text = graph_file_text(make_graph_file_2d(Graph2D(1), Data2D(1)));
    std::string error;
    ASSERT_TRUE(save_graph_file(path, text, error)) << error;
    EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));
    std::string back;
    ASSERT_TRUE(load_graph_file_text(path, back, error));
    EXPECT_EQ(back, text);
    EXPECT_FALSE(save_graph_file((folder.path() + "/missing/out.g2d"), text, error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(load_graph_file_text((folder.path() + "/none.g2d"), back, error));
}

}  // namespace
}  // namespace quindar
