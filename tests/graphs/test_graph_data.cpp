// SPDX-License-Identifier: GPL-3.0-or-later
// GraphData: defaults, kinds, 3-D digits, titles, axis variables, common variables, copies.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "graph_colors.h"
#include "graph_data.h"
#include "graph_types.h"

namespace quindar {
namespace {

TEST(GraphData, ConstructorDefaults) {
    GraphData graph("Mine");
    EXPECT_EQ(graph.Name, "Mine");
    EXPECT_EQ(graph.Header, "Header");
    EXPECT_EQ(graph.Footer, "Footer");
    EXPECT_TRUE(graph.FooterSet);
    EXPECT_FALSE(graph.XTitleSet || graph.YTitleSet || graph.ZTitleSet);
    EXPECT_EQ(graph.GraphType2D, 1);
    EXPECT_EQ(graph.GraphType3D, 1111);
    EXPECT_EQ(graph.Depth2D, 20);
    EXPECT_EQ(graph.Inclination2D, 15);
    EXPECT_EQ(graph.Rotation2D, 10);
    EXPECT_EQ(graph.ShowGridLines, 1);
    EXPECT_FLOAT_EQ(graph.YRotation, 0.34f);
    EXPECT_FLOAT_EQ(graph.ZRotation, 310.0f);
    EXPECT_FLOAT_EQ(graph.Scale, 1.0f);
    EXPECT_TRUE(graph.NeedsData);
    EXPECT_TRUE(graph.NeedsAttributes);
    EXPECT_EQ(graph.PieParam2, 1);
    EXPECT_EQ(graph.PieParam3, 5);
    EXPECT_EQ(graph.GetGraphType(), kGraphNone);
    EXPECT_EQ(GraphData(nullptr).Name, "");
}

TEST(GraphData, ColoursStartAtTheirTableDefaults) {
    GraphData graph;
    for (const GraphColorInfo &color : graph_colors())
        EXPECT_EQ(graph.*color.field, color.deflt) << color.documentKey;
    EXPECT_EQ(graph.BackgroundColor, TColor(64, 128, 128));
    EXPECT_EQ(graph.GraphForegroundColor, TColor(255, 255, 255));
    EXPECT_EQ(graph_colors().size(), 16u);
}

TEST(GraphTypes, TablesHoldEveryRow) {
    EXPECT_EQ(graph_types_2d().size(), 13u);
    EXPECT_EQ(find_graph_type_2d(12), nullptr);
    const GraphType2DInfo *scatter = find_graph_type_2d(13);
    ASSERT_NE(scatter, nullptr);
    EXPECT_STREQ(scatter->name, "Scatter");
    EXPECT_EQ(scatter->chart, 1);
    EXPECT_EQ(find_graph_type_2d(7)->minimumSets, 4);
    EXPECT_FALSE(find_graph_type_2d(2)->logX);
    EXPECT_EQ(graph_attributes_3d().size(), 7u);
}

struct DigitCase {
    int type3d;
    int digit;
    int expected;
};

TEST(GraphData, Get3DTypeBit) {
    const DigitCase cases[] = {
        {1111, 1, 1},    {1111, 4, 1},    {1111, 5, 0}, {1111, 7, 0},
        {1001111, 7, 1}, {1001111, 6, 0}, {10, 1, 0},   {10, 2, 1},
    };
    for (const DigitCase &c : cases) {
        GraphData graph;
        graph.GraphType3D = c.type3d;
        EXPECT_EQ(graph.Get3DTypeBit(c.digit), c.expected) << c.type3d << " digit " << c.digit;
    }
}

TEST(GraphData, Set3DTypeBit) {
    const DigitCase cases[] = {
        // {start, digit, result} with the value 1 set, then 0 cleared.
        {1111, 7, 1001111},
        {1111, 5, 11111},
        {1111, 1, 1111},
        {0, 3, 100},
    };
    for (const DigitCase &c : cases) {
        GraphData graph;
        graph.GraphType3D = c.type3d;
        graph.Set3DTypeBit(c.digit, 1);
        EXPECT_EQ(graph.GraphType3D, c.expected);
        graph.Set3DTypeBit(c.digit, 0);
        EXPECT_EQ(graph.Get3DTypeBit(c.digit), 0);
    }
    GraphData graph;
    graph.GraphType3D = 1110011;
    graph.SetDefault3DAttributes();
    EXPECT_EQ(graph.GraphType3D, 1111);
}

TEST(GraphData, KindFollowsFunctionsSetsAndAxes) {
    GraphData graph;
    EXPECT_EQ(graph.GetGraphType(), kGraphNone);
    graph.AddFunction("f[x]", "x^2");
    EXPECT_EQ(graph.GetGraphType(), kGraph2D);
    const Variable x("x", complex{0, 0}, complex{1, 0}, 5);
    const Variable z("z", complex{0, 0}, complex{1, 0}, 5);
    graph.SetXAxisVar(&x);
    EXPECT_EQ(graph.GetGraphType(), kGraph2D);
    graph.SetZAxisVar(&z);
    EXPECT_EQ(graph.GetGraphType(), kGraph3D);
    graph.SetZAxisVar(nullptr);
    StrDataPnts *set = graph.DataSets.add();
    set->PutXDataPoint("1", 0);
    EXPECT_EQ(graph.GetGraphType(), kGraph2D);
    set->PutZDataPoint("2");
    EXPECT_EQ(graph.GetGraphType(), kGraph3D);

    GraphData onlySets;
    onlySets.DataSets.add();
    EXPECT_EQ(onlySets.GetGraphType(), kGraph2D);
}

TEST(GraphData, AxisVariableIsACopyWithPoints) {
    GraphData graph;
    Variable source("x", complex{1, 0}, complex{2, 0}, 5);
    source.num_points = 0;
    graph.SetXAxisVar(&source);
    ASSERT_TRUE(graph.XAxisVar);
    EXPECT_EQ(graph.XAxisVar->num_points, 25);
    EXPECT_EQ(source.num_points, 0);
    EXPECT_EQ(graph.GetNumXAxisPoints(), 25);
    EXPECT_EQ(graph.GetNumZAxisPoints(), 0);
    EXPECT_EQ(graph.XAxisTitle, "x");
    EXPECT_FALSE(graph.XTitleSet);
    EXPECT_TRUE(graph.DataCheck());
    graph.SetXAxisVar(nullptr);
    EXPECT_FALSE(graph.XAxisVar);
    EXPECT_FALSE(graph.DataCheck());
}

TEST(GraphData, UserTitlesStayAgainstAutomaticOnes) {
    GraphData graph;
    graph.SetXAxisTitle("Time");
    const Variable t("t", complex{0, 0}, complex{9, 0}, 10);
    graph.SetXAxisVar(&t);
    EXPECT_EQ(graph.XAxisTitle, "Time");
    graph.SetDefaultXAxisTitle(true);
    EXPECT_EQ(graph.XAxisTitle, "t");

    graph.SetDefaultFooter(false);
    EXPECT_EQ(graph.Footer, "Footer");  // the constructor's footer counts as the user's
    graph.AddFunction("f[t]", "t+1");
    graph.AddFunction("g[t,u]", "t*u");
    graph.SetDefaultFooter(false);
    EXPECT_EQ(graph.Footer, "Footer");
    graph.SetDefaultFooter(true);
    EXPECT_EQ(graph.Footer, "f[t],g[t,u]");
    graph.SetDefaultYAxisTitle(false);
    EXPECT_EQ(graph.YAxisTitle, "f,g");

    graph.SetHeader(nullptr);
    EXPECT_EQ(graph.Header, "Header");
    graph.ClearTitles();
    EXPECT_EQ(graph.Footer, "Footer");
    EXPECT_EQ(graph.XAxisTitle, "");
    EXPECT_FALSE(graph.FooterSet);
}

std::string common_names(GraphData &graph) {
    graph.SetComVarList();
    std::string names;
    for (const Variable *v = graph.CommonVars.gethead(); v != nullptr; v = v->next)
        names += v->name + ";";
    return names;
}

TEST(GraphData, CommonVariables) {
    GraphData one;
    one.AddFunction("f[x]", "x");
    EXPECT_EQ(common_names(one), "x;");
    const Variable *x = one.CommonVars.gethead();
    EXPECT_EQ(x->num_points, 25);
    EXPECT_DOUBLE_EQ(x->low_limit.real, 1.0);
    EXPECT_DOUBLE_EQ(x->high_limit.real, 10.0);

    GraphData three;
    three.AddFunction("f[a,b,c]", "a+b+c");
    EXPECT_EQ(common_names(three), "c;a;b;");

    GraphData apart;
    apart.AddFunction("f[x]", "x");
    apart.AddFunction("g[y]", "y");
    EXPECT_EQ(common_names(apart), "");

    GraphData shared;
    shared.AddFunction("f[x,z]", "x+z");
    shared.AddFunction("g[z,x,w]", "x");
    EXPECT_EQ(common_names(shared), "z;x;");

    GraphData none;
    EXPECT_EQ(common_names(none), "");
}

TEST(GraphData, DelUncommonVarsDropsAxesNoLongerShared) {
    GraphData graph;
    graph.AddFunction("f[x]", "x");
    const Variable x("x", complex{0, 0}, complex{1, 0}, 3);
    const Variable z("z", complex{0, 0}, complex{1, 0}, 3);
    graph.SetXAxisVar(&x);
    graph.SetZAxisVar(&z);
    graph.SetComVarList();
    graph.DelUncommonVars();
    EXPECT_TRUE(graph.XAxisVar);
    EXPECT_FALSE(graph.ZAxisVar);
}

TEST(GraphData, CopyIsDeepAndKeepsLinks) {
    GraphList list;
    GraphData *first = list.add();
    GraphData *second = list.add();
    first->SetName("First");
    first->AddFunction("f[x]", "x^2")->SetFuncLabel("square");
    const Variable x("x", complex{-1, 0}, complex{1, 0}, 9);
    first->SetXAxisVar(&x);
    StrDataPnts *set = first->DataSets.add();
    set->SetName("pts");
    set->PutXDataPoint("1", 0);
    set->PutYDataPoint("2", 3);
    first->CurDataSet = set;
    first->BackgroundColor = TColor(1, 2, 3);
    first->YRotation = 7.5f;
    first->SetComVarList();

    GraphData temp(kTemporaryGraphName);
    temp = *first;
    EXPECT_EQ(temp.next, nullptr);
    EXPECT_EQ(temp.Name, "First");
    EXPECT_EQ(temp.BackgroundColor, TColor(1, 2, 3));
    EXPECT_FLOAT_EQ(temp.YRotation, 7.5f);
    ASSERT_EQ(temp.GetNumFunctions(), 1);
    EXPECT_NE(temp.GetFunction(0), first->GetFunction(0));
    EXPECT_EQ(temp.GetFunction(0)->label, "square");
    ASSERT_TRUE(temp.XAxisVar);
    EXPECT_NE(temp.XAxisVar.get(), first->XAxisVar.get());
    EXPECT_EQ(temp.XAxisVar->num_points, 9);
    ASSERT_EQ(temp.DataSets.count(), 1);
    EXPECT_EQ(temp.CurDataSet, temp.DataSets.gethead());
    EXPECT_STREQ(temp.DataSets.gethead()->GetYDataPoint(3), "2");
    EXPECT_EQ(temp.CommonVars.count(), 1);

    *second = temp;
    EXPECT_EQ(first->next, second);
    EXPECT_EQ(second->prev, first);
    EXPECT_EQ(second->next, nullptr);

    GraphList copy;
    GraphData *current = copy_graph_list(list, second, copy);
    EXPECT_EQ(copy.count(), 2);
    EXPECT_EQ(current, copy.gettail());
}

TEST(GraphData, DefaultsFromTheUsersRecord) {
    GraphDefaults defaults;
    defaults.Rotation2D = 33;
    defaults.YRotation = 4;
    defaults.colors[7] = TColor(9, 8, 7);  // the graph foreground
    GraphData graph;
    graph.SetDefaultOrientation(defaults);
    graph.SetDefaultColors(defaults);
    EXPECT_EQ(graph.Rotation2D, 33);
    EXPECT_EQ(graph.DefaultRotation2D, 10);
    EXPECT_FLOAT_EQ(graph.YRotation, 4.0f);
    EXPECT_FLOAT_EQ(graph.ZRotation, 310.0f);
    EXPECT_EQ(graph.GraphForegroundColor, TColor(9, 8, 7));
    EXPECT_EQ(graph.BackgroundColor, TColor(64, 128, 128));

    graph.BackgroundColor = TColor(1, 2, 3);
    GraphDefaults saved;
    graph.GetDefaultColors(saved);
    EXPECT_EQ(saved.colors[0], TColor(1, 2, 3));
    EXPECT_EQ(saved.colors[7], TColor(9, 8, 7));
    EXPECT_EQ(saved.Rotation2D, 10) << "only the colours are saved";

    // The built-in record: the colour table's defaults and the orientation of a new graph,
    // except the 3-D Y rotation, which the settings hold as a whole number.
    const GraphDefaults builtIn;
    GraphData plain;
    plain.BackgroundColor = TColor(5, 5, 5);
    plain.SetDefaultColors(builtIn);
    plain.SetDefaultOrientation(builtIn);
    EXPECT_EQ(plain.BackgroundColor, TColor(64, 128, 128));
    EXPECT_EQ(plain.SurfaceTopColor, TColor(255, 255, 255));
    EXPECT_FLOAT_EQ(plain.YRotation, 0.0f);
    EXPECT_EQ(plain.Depth2D, 20);
}

TEST(GraphData, NewGraphTakesItsNameSettingsAndHeader) {
    GraphDefaults settings;
    settings.Depth2D = 44;
    settings.colors[0] = TColor(3, 3, 3);
    GraphList list;
    list.add();
    GraphData *graph = add_new_graph(list, "Sales", &settings);
    ASSERT_EQ(list.gettail(), graph);
    EXPECT_EQ(graph->Name, "Sales");
    EXPECT_EQ(graph->Header, "Sales");
    EXPECT_EQ(graph->Depth2D, 44);
    EXPECT_EQ(graph->BackgroundColor, TColor(3, 3, 3));
    EXPECT_EQ(graph->GraphType3D, 1111);
    EXPECT_EQ(add_new_graph(list, "Plain", nullptr)->Depth2D, 20);
}

}  // namespace
}  // namespace quindar
