// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <functional>

#include "graph_error_list.h"
#include "graph_fixture.h"

namespace quindar::testing {
namespace {

using GraphBuild = GraphFixture;

TEST_F(GraphBuild, ThreeFunctionsLandInReverseOrderWithOneHole) {
    Run("f[x] = x + 1");
    Run("g[x] = 1/(x-2)");
    Run("h[x] = x^2");
    AddFunction("f[x]");
    AddFunction("g[x]");
    AddFunction("h[x]");
    SetX("x", 0, 4, 5);
    EXPECT_TRUE(Build()) << "a failed point is a hole, not a failed build";
    EXPECT_FALSE(builder->Cancelled);
    EXPECT_TRUE(builder->BuildErrors);
    ASSERT_TRUE(builder->Data2D);
    const ChartData2D &data = *builder->Data2D;
    ASSERT_EQ(data.sets(), 3);
    ASSERT_EQ(data.points(), 5);
    for (int p = 0; p < 5; ++p) {
        EXPECT_EQ(data.x(0, p), p);
        EXPECT_EQ(data.y(0, p), p * p) << "set 0 is h";
        EXPECT_EQ(data.y(2, p), p + 1) << "set 2 is f";
    }
    EXPECT_EQ(data.y(1, 2), kHoleValue) << "g fails at x = 2";
    EXPECT_DOUBLE_EQ(data.y(1, 3), 1.0);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0], "An error occured at x = 2 : Division By Zero Encountered!");
}

TEST_F(GraphBuild, OneOverXIsMappedAtTheSecondPointAndHolesPointZero) {
    AddFunction("r[x]");
    Run("r[x] = 1/x");
    SetX("x", 0, 1, 11);
    Build();
    ASSERT_TRUE(builder->Data2D);
    const ChartData2D &data = *builder->Data2D;
    EXPECT_EQ(data.y(0, 0), kHoleValue);
    EXPECT_EQ(data.x(0, 0), 0.0);
    EXPECT_DOUBLE_EQ(data.y(0, 1), 10.0);
    EXPECT_DOUBLE_EQ(data.y(0, 10), 1.0);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0], "An error occured at x = 0 : Division By Zero Encountered!");
}

// How the axis variable stands after a build that ends in each way.
struct LendCase {
    const char *name;
    const char *function;  // body of f[x]
    int cancelAt;          // report at which Cancel is pressed; 0 never
    bool unknown;          // the graph names a function nobody defines
};

class AxisVariableLending : public GraphFixture, public ::testing::WithParamInterface<LendCase> {};

TEST_P(AxisVariableLending, DeclaredComesBackUndeclaredGoes) {
    const LendCase &c = GetParam();
    for (const bool declared : {true, false}) {
        SCOPED_TRACE(declared ? "declared x = 3" : "undeclared x");
        Parser fresh{"", ""};
        FakeHost fake;
        fake.cancelAt = c.cancelAt;
        fresh.set_computation_hooks(&fake);
        fresh.eval_exp((std::string("f[x] = ") + c.function).c_str(), true, false);
        if (declared) fresh.eval_exp("x = 3", true, false);
        GraphData g("G");
        g.AddFunction(c.unknown ? "nothere[x]" : "f[x]", "");
        const Variable axis("x", complex{0, 0}, complex{1, 0}, 21);
        g.SetXAxisVar(&axis);
        GraphBuilder b(fresh, g);
        b.Build();
        EXPECT_EQ(fresh.equations.count(), 0) << "every map is dropped";
        EXPECT_FALSE(fresh.compute_gate.is_busy());
        if (!declared) {
            EXPECT_LT(fresh.find_variable("x"), 0);
            continue;
        }
        ASSERT_GE(fresh.find_variable("x"), 0);
        EXPECT_EQ(fresh.get_var_value("x").real, 3.0);
        EXPECT_FALSE(fresh.var_incremented("x")) << "the graph's range is not kept";
        EXPECT_FALSE(fresh.is_var_locked("x"));
    }
}

INSTANTIATE_TEST_SUITE_P(EveryWayOut, AxisVariableLending,
                         ::testing::Values(LendCase{"success", "x^2", 0, false},
                                           LendCase{"point errors", "1/(x-0.5)", 0, false},
                                           LendCase{"cancel at report 7", "x^2", 7, false},
                                           LendCase{"unknown function", "x", 0, true},
                                           LendCase{"unmappable", "SQRT[", 0, false}),
                         [](const auto &info) {
                             std::string name = info.param.name;
                             for (char &ch : name)
                                 if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
                             return name;
                         });

TEST_F(GraphBuild, BothAxesOnOneVariableGiveItBackAsItWas) {
    Run("x = 7");
    Run("f[x] = x");
    AddFunction("f[x]");
    SetX("x", 0, 1, 3);
    SetZ("x", 5, 6, 2);
    Build();
    ASSERT_GE(parser.find_variable("x"), 0);
    EXPECT_EQ(parser.get_var_value("x").real, 7.0);
    EXPECT_FALSE(parser.var_incremented("x"));
}

TEST_F(GraphBuild, CancelStopsAtTheReportAndKeepsThePartialData) {
    Run("f[x] = x");
    Run("g[x] = 2*x");
    AddFunction("f[x]");
    AddFunction("g[x]");
    SetX("x", 0, 9, 10);
    host.cancelAt = 6;  // the report of 0 %, then point 2 with its first set stored
    EXPECT_FALSE(Build());
    EXPECT_TRUE(builder->Cancelled);
    EXPECT_TRUE(graph.NeedsData);
    const ChartData2D &data = *builder->Data2D;
    EXPECT_EQ(data.y(0, 2), 4.0) << "set 0 is g";
    EXPECT_EQ(data.y(1, 2), kHoleValue);
    EXPECT_EQ(data.y(0, 3), kHoleValue);
    EXPECT_EQ(host.reports, 6);
}

TEST_F(GraphBuild, ProgressPassesOneHundredWithSeveralFunctions) {
    Run("f[x] = x");
    AddFunction("f[x]");
    AddFunction("f[x]");
    AddFunction("f[x]");
    SetX("x", 0, 1, 10);
    EXPECT_TRUE(Build());
    EXPECT_GE(host.highest, 299);
    EXPECT_EQ(host.reports, 10 * 3 + 2) << "one per solved point, then 0 and 100";
}

TEST_F(GraphBuild, UnknownAndUnmappableFunctionsFailWithTheirLines) {
    Run("bad[x] = x +* 2");
    AddFunction("nothere[x]");
    AddFunction("SQRT[x]");
    SetX("x", 1, 2, 3);
    EXPECT_FALSE(Build());
    EXPECT_TRUE(builder->BuildErrors);
    EXPECT_FALSE(builder->Data2D) << "no chart is made";
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0], "\"nothere[x]\" could not be found. The graph could not be created!");
}

TEST_F(GraphBuild, AFunctionFailingAtBothFirstPointsCannotBeMapped) {
    Run("w[x] = 1/(x-x)");
    AddFunction("w[x]");
    SetX("x", 0, 1, 5);
    EXPECT_FALSE(Build());
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_EQ(errors[0], "Division By Zero Encountered!");
    EXPECT_EQ(errors[1], "\"w[x]\" could not be mapped. Graph could not be created!");
}

TEST_F(GraphBuild, AFunctionFailingAtTheHighLimitHolesThatPoint) {
    Run("u[x] = 1/(x-1)");
    AddFunction("u[x]");
    SetX("x", 0, 1, 2);
    EXPECT_TRUE(Build());
    EXPECT_EQ(builder->Data2D->y(0, 0), -1.0);
    EXPECT_EQ(builder->Data2D->y(0, 1), kHoleValue);
}

TEST_F(GraphBuild, ComplexValuesPlotTheirRealPartSilently) {
    AddFunction("SQRT[x]");
    SetX("x", -4, 4, 3);
    EXPECT_TRUE(Build());
    EXPECT_TRUE(errors.empty());
    EXPECT_EQ(builder->Data2D->y(0, 0), 0.0);
    EXPECT_EQ(builder->Data2D->y(0, 2), 2.0);
}

TEST_F(GraphBuild, DataSetXValuesCloseUpWhileYKeepsItsIndices) {
    AddDataSet("d", {"1", nullptr, "3", "4"}, {"10", "20", "30", "40"});
    AddDataSet("e", {"5", "bogus+", "7"}, {"1/0", "2"});
    graph.DataLayout = 2;
    EXPECT_TRUE(Build());
    const ChartData2D &data = *builder->Data2D;
    ASSERT_EQ(data.sets(), 2);
    ASSERT_EQ(data.points(), 4);
    EXPECT_EQ(data.x(0, 0), 1.0);
    EXPECT_EQ(data.x(0, 1), 3.0) << "slot 1 was empty: X closes up";
    EXPECT_EQ(data.x(0, 2), 4.0);
    EXPECT_EQ(data.x(0, 3), kHoleValue);
    EXPECT_EQ(data.y(0, 1), 20.0) << "Y keeps its own index";
    EXPECT_EQ(data.y(0, 3), 40.0);
    EXPECT_EQ(data.x(1, 1), 7.0) << "a failing text closes up as well";
    EXPECT_EQ(data.y(1, 0), 2.0) << "and so on Y";
    EXPECT_EQ(data.y(1, 1), kHoleValue);
    ASSERT_EQ(errors.size(), 2u) << "each failing text adds the engine's line";
    EXPECT_EQ(errors[1], "Division By Zero Encountered!");
}

TEST_F(GraphBuild, DataSetsFollowTheFunctions) {
    Run("f[x] = x");
    AddFunction("f[x]");
    SetX("x", 0, 2, 3);
    AddDataSet("d", {"0", "1"}, {"5", "6"});
    EXPECT_TRUE(Build());
    const ChartData2D &data = *builder->Data2D;
    ASSERT_EQ(data.sets(), 2);
    EXPECT_EQ(data.y(1, 0), 5.0);
    EXPECT_EQ(data.y(1, 2), kHoleValue);
    EXPECT_EQ(data.y(0, 2), 2.0);
}

TEST_F(GraphBuild, PieWarnsOnceOfNegativeFunctionValuesOnly) {
    struct Case {
        const char *function;
        const char *dataY;
        bool warned;
    };
    const Case cases[] = {{"x-1", "1", true}, {"x", "-1", false}, {"x", "1", false}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.function);
        Parser fresh{"", ""};
        fresh.eval_exp((std::string("p[x] = ") + c.function).c_str(), true, false);
        GraphData g("Pie");
        g.GraphType2D = 3;
        g.AddFunction("p[x]", "");
        const Variable axis("x", complex{0, 0}, complex{2, 0}, 3);
        g.SetXAxisVar(&axis);
        StrDataPnts *set = g.DataSets.add();
        set->PutXDataPoint("0", 0);
        set->PutYDataPoint(c.dataY, 0);
        std::vector<std::string> shown;
        GraphBuildOutput out;
        out.show_message = [&](std::string_view text, std::string_view caption) {
            shown.push_back(std::string(caption) + "|" + std::string(text));
        };
        GraphBuilder b(fresh, g, out);
        EXPECT_TRUE(b.Build());
        ASSERT_EQ(shown.size(), c.warned ? 1u : 0u);
        if (c.warned)
            EXPECT_EQ(shown[0],
                      "Graphing Utility|Warning, there were negative values encountered which "
                      "can not be graphed in s Pie Chart, these values were ignored!");
    }
}

TEST_F(GraphBuild, RegularGridOfAFunctionOfXAndZ) {
    Run("s[x,z] = x*10 + z");
    Run("t[x,z] = 1/(x-z)");
    AddFunction("s[x,z]");
    SetX("x", 0, 2, 3);
    SetZ("z", 0, 1, 2);
    ASSERT_EQ(graph.GetGraphType(), kGraph3D);
    EXPECT_TRUE(Build());
    ASSERT_TRUE(builder->Data3D);
    const ChartGrid3D &grid = *builder->Data3D;
    EXPECT_TRUE(grid.is_regular());
    ASSERT_EQ(grid.nx(), 3);
    ASSERT_EQ(grid.nz(), 2);
    EXPECT_EQ(grid.x_at(2), 2.0);
    EXPECT_EQ(grid.z_at(1), 1.0);
    EXPECT_EQ(grid.value(2, 1), 21.0);
    EXPECT_EQ(grid.value(1, 0), 10.0);
    EXPECT_EQ(builder->Function3D, "s[x,z]");
    EXPECT_EQ(builder->GetEqnDataSetValueY(complex{1.5, 0}, complex{0.25, 0}).real, 15.25);
}

TEST_F(GraphBuild, GridPointErrorsNameBothVariables) {
    Run("t[x,z] = 1/(x-z)");
    AddFunction("t[x,z]");
    SetX("x", 0, 1, 2);
    SetZ("z", 0, 1, 2);
    EXPECT_TRUE(Build());
    const ChartGrid3D &grid = *builder->Data3D;
    EXPECT_EQ(grid.value(1, 1), kHoleValue);
    EXPECT_EQ(grid.value(1, 0), 1.0);
    EXPECT_EQ(grid.value(0, 0), kHoleValue) << "mapped at the second point, then solved at 0";
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_EQ(errors[0], "An error occured at x = 0 and z = 0 : Division By Zero Encountered!");
    EXPECT_EQ(errors[1], "An error occured at x = 1 and z = 1 : Division By Zero Encountered!");
}

TEST_F(GraphBuild, IrregularGridOfDataSetsWithZ) {
    AddDataSet("row0", {"0", "1", "5"}, {"1", "2", "3"}, "10");
    AddDataSet("row1", {"9", "9"}, {"4", nullptr, "6", "7"}, "20");
    AddDataSet("row2", {}, {"bad+"}, "nonsense+");
    ASSERT_EQ(graph.GetGraphType(), kGraph3D);
    EXPECT_TRUE(Build());
    const ChartGrid3D &grid = *builder->Data3D;
    EXPECT_FALSE(grid.is_regular());
    ASSERT_EQ(grid.nx(), 3) << "from the first set's X";
    ASSERT_EQ(grid.nz(), 3) << "one row per set";
    EXPECT_EQ(grid.x_values(), (std::vector<double>{0, 1, 5}));
    EXPECT_EQ(grid.z_values(), (std::vector<double>{10, 20, 0}));
    EXPECT_EQ(grid.value(2, 0), 3.0);
    EXPECT_EQ(grid.value(0, 1), 4.0);
    EXPECT_EQ(grid.value(1, 1), kHoleValue) << "an empty slot stays a hole";
    EXPECT_EQ(grid.value(2, 1), 6.0) << "the fourth value is past the grid";
    EXPECT_EQ(grid.value(0, 2), kHoleValue);
}

TEST_F(GraphBuild, ASecondBuildWhileOneRunsIsRefused) {
    Run("f[x] = x");
    AddFunction("f[x]");
    SetX("x", 0, 1, 2);
    ComputeGatePass running(parser.compute_gate, "integration");
    EXPECT_FALSE(Build());
    EXPECT_TRUE(builder->Refused);
    EXPECT_FALSE(builder->Data2D);
    EXPECT_LT(parser.find_variable("x"), 0) << "nothing was lent";
}

// A host whose pump runs a command in the middle of the build, as the desktop's does.
class ReentrantHost final : public ComputeHost {
public:
    explicit ReentrantHost(std::function<void()> command) : command(std::move(command)) {}
    void set_progress_percent(int) override {
        if (++reports == 3) command();
    }
    bool owner_gone() override { return gone; }
    std::function<void()> command;
    int reports = 0;
    bool gone = false;
};

TEST_F(GraphBuild, WhatThePumpLetsInFindsTheBuildGuarded) {
    Run("x = 3");
    Run("f[x] = x");
    AddFunction("f[x]");
    SetX("x", 0, 1, 11);
    GraphData second("Second");
    second.AddFunction("f[x]", "x");
    const Variable axis("x", complex{5, 0}, complex{6, 0}, 2);
    second.SetXAxisVar(&axis);
    bool secondRefused = false;
    std::string reading;
    ReentrantHost pumping([&] {
        GraphBuilder nested(parser, second);
        secondRefused = !nested.Build() && nested.Refused;
        parser.eval_exp("x + 1", true, false);
        reading = parser.IsAnError() ? parser.GetLastError() : "";
        parser.ClearLastError();
    });
    parser.set_computation_hooks(&pumping);
    EXPECT_TRUE(Build());
    EXPECT_TRUE(secondRefused) << "a second build on the same document";
    EXPECT_EQ(reading, "Variable ' x ' has been temporarily locked by another running process!");
    EXPECT_DOUBLE_EQ(builder->Data2D->y(0, 10), 1.0) << "the running build is undisturbed";
    EXPECT_EQ(parser.get_var_value("x").real, 3.0);
}

TEST_F(GraphBuild, AThreeDimensionalBuildStopsWhenItsWindowsHaveGone) {
    Run("q[x,z] = x*z");
    AddFunction("q[x,z]");
    SetX("x", 0, 1, 5);
    SetZ("z", 0, 1, 5);
    ReentrantHost closing([] {});
    closing.gone = true;
    parser.set_computation_hooks(&closing);
    EXPECT_FALSE(Build());
    EXPECT_TRUE(builder->Cancelled);
    EXPECT_EQ(builder->Data3D->value(0, 0), kHoleValue);
    EXPECT_LT(parser.find_variable("z"), 0);
}

TEST_F(GraphBuild, ASuccessfulBuildMarksTheListsGraphs) {
    GraphList list;
    GraphData *same = list.add();
    same->SetName("G");
    GraphData *other = list.add();
    other->SetName("Other");
    other->NeedsData = other->NeedsAttributes = false;
    AddDataSet("d", {"1"}, {"2"});
    GraphBuilder b(parser, graph);
    EXPECT_TRUE(b.Build(&list));
    EXPECT_FALSE(graph.NeedsData);
    EXPECT_FALSE(same->NeedsData);
    EXPECT_FALSE(same->NeedsAttributes);
    EXPECT_TRUE(other->NeedsData);
    EXPECT_TRUE(other->NeedsAttributes);
}

TEST_F(GraphBuild, AMillionPointRequestIsCancelled) {
    Run("f[x] = x");
    AddFunction("f[x]");
    SetX("x", 0, 1, 1000000);
    host.cancelAt = 1000;  // after 999 points
    EXPECT_FALSE(Build());
    EXPECT_TRUE(builder->Cancelled);
    EXPECT_EQ(builder->Data2D->points(), 1000000);
    EXPECT_NEAR(builder->Data2D->y(0, 998), 998 / 999999.0, 1e-15);
    EXPECT_EQ(builder->Data2D->y(0, 999), kHoleValue);
    EXPECT_LT(parser.find_variable("x"), 0);
}

TEST_F(GraphBuild, ThreeDimensionalBuildIsCancelledInsideItsGrid) {
    Run("q[x,z] = x + z");
    AddFunction("q[x,z]");
    SetX("x", 0, 1, 1000);
    SetZ("z", 0, 1, 1000);
    host.cancelAt = 2500;  // the report of 0 %, then 2,499 grid points
    EXPECT_FALSE(Build());
    EXPECT_TRUE(builder->Cancelled);
    const ChartGrid3D &grid = *builder->Data3D;
    EXPECT_NE(grid.value(2, 498), kHoleValue);
    EXPECT_EQ(grid.value(2, 499), kHoleValue);
    EXPECT_EQ(grid.value(3, 0), kHoleValue);
    EXPECT_LT(parser.find_variable("x"), 0);
    EXPECT_LT(parser.find_variable("z"), 0);
}

TEST_F(GraphBuild, PointValuesForLabelsComeFromTheDefinition) {
    Run("q[x,z] = x*z");
    AddFunction("q[x,z]");
    SetX("x", 0, 1, 2);
    SetZ("z", 0, 1, 2);
    AddDataSet("d", {"1", "2"}, {"10", "2*3"});
    ASSERT_TRUE(Build());
    EXPECT_EQ(builder->GetEqnDataSetValueY(complex{3, 0}, complex{0.5, 0}).real, 1.5);
    complex value;
    EXPECT_TRUE(builder->GetPntDataSetValueY(0, 1, value));
    EXPECT_EQ(value.real, 6.0);
    EXPECT_FALSE(builder->GetPntDataSetValueY(0, 2, value)) << "past the set's last Y";
    EXPECT_FALSE(builder->GetPntDataSetValueY(1, 0, value)) << "no second set";
}

TEST_F(GraphBuild, ThreeDimensionalLabelsComputeTheFunctionAtTheGridPoint) {
    // Round brackets as well as square ones; the grid may have been smoothed since.
    Run("r(x,z) = x*z + x");
    AddFunction("r(x,z)");
    SetX("x", 0, 2, 5);
    SetZ("z", 0, 3, 4);
    ASSERT_TRUE(Build());
    ChartGrid3D grid = *builder->Data3D;
    grid.set_value(3, 2, -99.0);
    struct Point {
        int ix, iz;
        double x, y, z;
    };
    const Point points[] = {{3, 2, 1.5, 4.5, 2.0}, {0, 0, 0.0, 0.0, 0.0}, {4, 3, 2.0, 8.0, 3.0}};
    for (const Point &p : points) {
        complex x, y, z;
        ASSERT_TRUE(builder->LabelValues3D(grid, p.ix, p.iz, x, y, z));
        EXPECT_EQ(x.real, p.x) << p.ix << "," << p.iz;
        EXPECT_EQ(y.real, p.y) << p.ix << "," << p.iz;
        EXPECT_EQ(z.real, p.z) << p.ix << "," << p.iz;
    }
}

TEST_F(GraphBuild, ThreeDimensionalLabelsOfDataSetsReadTheirYTexts) {
    // Each set is one row of the grid at its Z; a label computes the set's Y text afresh.
    AddDataSet("a", {"1", "2", "3"}, {"10", "20", "30"}, "5");
    AddDataSet("b", {"1", "2", "3"}, {"1+1", "2*2", "6"}, "7");
    ASSERT_EQ(graph.GetGraphType(), kGraph3D);
    Build();
    ASSERT_TRUE(builder->Data3D);
    const ChartGrid3D &grid = *builder->Data3D;
    struct Point {
        int ix, iz;
        double y;
    };
    const Point points[] = {{0, 0, 10.0}, {2, 0, 30.0}, {1, 1, 4.0}, {0, 1, 2.0}};
    for (const Point &p : points) {
        complex x, y, z;
        ASSERT_TRUE(builder->LabelValues3D(grid, p.ix, p.iz, x, y, z));
        EXPECT_EQ(x.real, grid.x_at(p.ix)) << p.ix << "," << p.iz;
        EXPECT_EQ(z.real, grid.z_at(p.iz)) << p.ix << "," << p.iz;
        EXPECT_EQ(y.real, p.y) << p.ix << "," << p.iz;
    }
}

TEST(GraphWindowCaption, EditorAndGraphInUpperCase) {
    EXPECT_EQ(graph_window_caption("notes.qnd", "Sales 2"), "NOTES.QND : SALES 2");
    EXPECT_EQ(graph_window_caption("", "Sales"), "Graph");
}

TEST(GraphErrorList, KeepsTheNewest101Rows) {
    GraphErrorList list;
    list.AddError(static_cast<const char *>(nullptr));
    EXPECT_TRUE(list.rows().empty());
    for (int i = 0; i < 150; ++i) list.AddError(std::to_string(i));
    ASSERT_EQ(list.rows().size(), 101u);
    EXPECT_EQ(list.rows().front(), "49");
    EXPECT_EQ(list.rows().back(), "149");
    list.ClearErrors();
    EXPECT_TRUE(list.rows().empty());
}

TEST_F(GraphBuild, AFunctionFailingAtEveryPointButOneFillsTheListToItsSize) {
    Run("u[x] = 1/((x>0)-1)");  // defined at x = 0 only, where it is mapped
    AddFunction("u[x]");
    SetX("x", 0, 1, 300);
    GraphErrorList list;
    GraphBuildOutput output;
    output.add_error = [&list](std::string_view line) { list.AddError(line); };
    builder = std::make_unique<GraphBuilder>(parser, graph, output);
    builder->Build();
    ASSERT_TRUE(builder->Data2D);
    EXPECT_EQ(builder->Data2D->y(0, 0), -1.0);
    for (int p = 1; p < 300; ++p) EXPECT_EQ(builder->Data2D->y(0, p), kHoleValue) << p;
    ASSERT_EQ(list.rows().size(), 101u);
    EXPECT_EQ(list.rows().back().rfind("An error occured at x = 1 : ", 0), 0u);
}

}  // namespace
}  // namespace quindar::testing
