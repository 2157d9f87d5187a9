// SPDX-License-Identifier: GPL-3.0-or-later
// Hand-written documents load as the format says, every missing key giving its default.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "document_work.h"
#include "documents_test_support.h"

namespace quindar::testing {
namespace {

bool shown(const Work &work, const std::string &box) {
    return std::find(work.boxes.begin(), work.boxes.end(), box) != work.boxes.end();
}

TEST(DocumentLoad, DeclarationsComeBackThroughTheEngine) {
    Work work;
    ASSERT_TRUE(work.load(data_file("document_declarations.qnd")));
    EXPECT_EQ(work.content.text, "x + y\r\np[2]\r\n");
    EXPECT_EQ(work.variable_text("x"), "2");
    EXPECT_TRUE(work.parser.var_incremented("y"));
    EXPECT_EQ(work.parser.get_var_numpoints("y"), 3);
    EXPECT_EQ(work.parser.get_var_value("y").real, 0.5);
    EXPECT_TRUE(work.parser.is_variable("q"));
    EXPECT_FALSE(work.parser.var_assigned("q"));
    EXPECT_EQ(work.parser.get_var_value("big").real, 1.5e200);
    EXPECT_EQ(work.variable_text("cz"), "1-2i");
    // A value the engine refuses shows the engine's box; the load goes on.
    EXPECT_FALSE(work.parser.var_assigned("bad"));
    EXPECT_TRUE(work.parser.is_variable("cz"));

    EXPECT_STREQ(work.parser.get_func_value("p[t]"), "t^2+x");
    EXPECT_STREQ(work.parser.get_func_value("eq[a,b]"), "a==b");
    EXPECT_STREQ(work.parser.get_func_value("last[k]"), "k*k");
    EXPECT_FALSE(work.parser.is_function("empty[u]"));
    EXPECT_TRUE(shown(work, "Function Manager: Function 'empty[u]' Could Not Be Loaded!"));
    EXPECT_FALSE(work.parser.auto_declare);
}

TEST(DocumentLoad, MissingSectionsGiveTheirDefaults) {
    Work work;
    // A fresh engine prints with a threshold; a document without "[SETUP]" has none.
    ASSERT_NE(work.parser.answer_format->zero_precision, 0.0f);
    work.parser.angle_mode = 1;
    work.parser.answer_format->precision = 5;
    ASSERT_TRUE(work.load(data_file("document_declarations.qnd")));
    for (const PrecformType *format :
         {work.parser.answer_format.get(), work.parser.variable_format.get()}) {
        EXPECT_EQ(format->zero_precision, 0.0f);
        EXPECT_EQ(format->precision, 14);
        EXPECT_EQ(format->format, 0);
        EXPECT_FALSE(format->show_decimal_point);
        EXPECT_FALSE(format->show_lead_sign);
    }
    EXPECT_EQ(work.parser.angle_mode, 0);
    EXPECT_EQ(work.content.font, DocumentFont{});
    EXPECT_EQ(work.content.font.FaceName, "Arial");
    EXPECT_EQ(work.content.font.Weight, 700);
    EXPECT_EQ(work.content.font.PitchAndFamily, 34);
    EXPECT_EQ(work.content.integration, IntegrationParameters{});
    EXPECT_EQ(work.content.integration.IntAccuracy, 20);
    EXPECT_EQ(work.content.differentiation, DifferentiationParameters{});
    EXPECT_EQ(work.content.graphs.count(), 0);
    EXPECT_EQ(work.content.currentGraph, nullptr);
}

TEST(DocumentLoad, PlainTextIsAllText) {
    Work work;
    ASSERT_TRUE(work.load(data_file("document_plain.qnd")));
    EXPECT_EQ(work.content.text, "1+1\r\n[not a section\r\nx = 3");
    EXPECT_EQ(work.parser.variables.count(), 0);
    EXPECT_EQ(work.parser.functions.count(), 0);
    EXPECT_EQ(work.parser.answer_format->zero_precision, 0.0f);
    EXPECT_EQ(work.boxes, std::vector<std::string>{});
}

TEST(DocumentLoad, LineFeedsBecomeCrLf) {
    TempFolder folder;
    const std::string path = folder.file("lf.qnd");
    write_content(path, "a\nb\r\nc\n[SETUP]\nAnsPrecision=9\n");
    Work work;
    ASSERT_TRUE(work.load(path));
    EXPECT_EQ(work.content.text, "a\r\nb\r\nc\r\n");
    EXPECT_EQ(work.parser.answer_format->precision, 9);
}

TEST(DocumentLoad, SettingsFontAndCalculusKeys) {
    Work work;
    ASSERT_TRUE(work.load(data_file("document_settings.qnd")));
    const PrecformType &answer = *work.parser.answer_format;
    const PrecformType &variable = *work.parser.variable_format;
    EXPECT_FLOAT_EQ(answer.zero_precision, 1e-5f);
    EXPECT_EQ(variable.zero_precision, 0.0f);
    EXPECT_EQ(answer.precision, 8);
    EXPECT_EQ(variable.precision, 14);
    EXPECT_EQ(answer.format, 0);
    EXPECT_EQ(variable.format, 1);
    EXPECT_TRUE(answer.show_decimal_point);
    EXPECT_FALSE(variable.show_decimal_point);
    EXPECT_FALSE(answer.show_lead_sign);
    EXPECT_TRUE(variable.show_lead_sign);
    EXPECT_EQ(work.parser.angle_mode, 1);

    const DocumentFont &font = work.content.font;
    EXPECT_EQ(font.FaceName, "Times New Roman With A Name Far Too Long For The Record");
    EXPECT_EQ(font.Height, -20);
    EXPECT_EQ(font.Italic, 1);  // a byte keeps the low 8 bits of 257
    EXPECT_EQ(font.Weight, 700);
    EXPECT_EQ(font.Color, TColor::Black);  // two fields are no colour

    const IntegrationParameters &integration = work.content.integration;
    EXPECT_EQ(integration.IntType, 3);
    EXPECT_EQ(integration.IntPrecision, 14);
    EXPECT_EQ(integration.IntFunc, "sin[x] == y");
    EXPECT_EQ(integration.IntZHiLimit, "10");
    EXPECT_EQ(integration.IntXParam, "");
    const DifferentiationParameters &differentiation = work.content.differentiation;
    EXPECT_EQ(differentiation.DiffVar, "x");
    EXPECT_EQ(differentiation.DiffDispSecondDir, 0);
    EXPECT_EQ(differentiation.DiffDispThirdDir, 1);
    EXPECT_EQ(differentiation.DiffPrecision, 14);
}

TEST(DocumentLoad, GraphSections) {
    Work work;
    ASSERT_TRUE(work.load(data_file("document_graphs.qnd")));
    GraphList &graphs = work.content.graphs;
    ASSERT_EQ(graphs.count(), 4);
    EXPECT_EQ(work.content.currentGraph, graphs.gethead());

    // [Graph7] comes first: the order of "[GRAPHS]" counts, not the numbers.
    const GraphData &first = *graphs.gethead();
    EXPECT_EQ(first.Name, "Second In File");
    EXPECT_EQ(first.Header, "First Header");
    EXPECT_EQ(first.Footer, "") << "a missing footer is no footer";
    EXPECT_EQ(first.XAxisTitle, "time");
    ASSERT_EQ(first.GetNumFunctions(), 2) << "the list stops at the first missing number";
    EXPECT_EQ(first.GetFunction(0)->full_name, "f[t]");
    EXPECT_EQ(first.GetFunction(0)->func_value, "t^2");
    EXPECT_EQ(first.GetFunction(1)->label, "double");
    EXPECT_FALSE(work.parser.is_function("f[t]"));
    ASSERT_TRUE(first.XAxisVar);
    EXPECT_EQ(first.XAxisVar->name, "t");
    EXPECT_EQ(first.XAxisVar->num_points, 21);
    EXPECT_DOUBLE_EQ(first.XAxisVar->high_limit.real, 10);
    EXPECT_FALSE(first.ZAxisVar) << "its high limit does not evaluate";
    EXPECT_TRUE(shown(work,
                      "File Open: File data for the variables in graph \"Second In File\" "
                      "could not be completely loaded, your file may be corrupt!"));
    EXPECT_EQ(first.GetGraphType(), kGraph2D);
    EXPECT_EQ(first.GraphType2D, 14);
    EXPECT_EQ(first.Depth2D, 33);
    EXPECT_EQ(first.XAxisLogarithmic, 1);
    EXPECT_EQ(first.BackgroundColor, TColor(1, 2, 3));
    EXPECT_EQ(first.MeshTopColor, TColor(0, 0, 0)) << "a 3-D colour is not read for 2-D";
    EXPECT_EQ(first.ShowGridLines, 1);

    ASSERT_EQ(first.DataSets.count(), 3);
    const StrDataPnts *obs = first.DataSets.gethead();
    EXPECT_STREQ(obs->GetName(), "obs");
    EXPECT_STREQ(obs->GetLabel(), "observed");
    EXPECT_STREQ(obs->GetXDataPoint(0), "1");
    EXPECT_STREQ(obs->GetYDataPoint(0), "2");
    EXPECT_STREQ(obs->GetYDataPoint(1), "a+1 ");
    EXPECT_STREQ(obs->GetXDataPoint(2), "3");
    EXPECT_EQ(obs->GetYDataPoint(2), nullptr);
    EXPECT_STREQ(obs->GetYDataPoint(3), "5");
    EXPECT_EQ(obs->GetZDataPoint(), nullptr);
    EXPECT_TRUE(shown(work,
                      "File Open: File data for data set \"obs\" (Y Data Point #2) in graph "
                      "\"Second In File\" could not be completely loaded. Your file may be "
                      "corrupt!"));
    const StrDataPnts *unnamed = obs->next;
    EXPECT_STREQ(unnamed->GetName(), "");
    EXPECT_EQ(unnamed->GetMaxXYZPoint(), -1);
    EXPECT_TRUE(shown(work,
                      "File Open: File data for data set 2 of graph \"Second In File\" does "
                      "not have a name and could not be loaded. Your file may be corrupt!"));
    const StrDataPnts *other = unnamed->next;
    EXPECT_EQ(other->GetXDataPoint(0), nullptr);
    EXPECT_STREQ(other->GetYDataPoint(0), "9");

    // An empty name in "[GRAPHS]" takes the key's.
    const GraphData &second = *first.next;
    EXPECT_EQ(second.Name, "Graph2");
    EXPECT_EQ(second.Header, "");
    EXPECT_EQ(second.Footer, "My footer");
    EXPECT_EQ(second.GetGraphType(), kGraph3D);
    EXPECT_EQ(second.GraphType3D, 1000011);
    EXPECT_EQ(second.Get3DTypeBit(7), 1);
    EXPECT_FLOAT_EQ(second.YRotation, 0.34f) << "an empty float is the default";
    EXPECT_FLOAT_EQ(second.Scale, 3.5f);
    EXPECT_EQ(second.MeshTopColor, TColor(1, 2, 3));
    EXPECT_EQ(second.DataAreaForegroundColor, TColor(0, 0, 0)) << "a 2-D colour is not read";
    EXPECT_EQ(second.GetFunction(0)->label, "product");
    ASSERT_TRUE(second.ZAxisVar);
    EXPECT_EQ(second.ZAxisVar->num_points, 4);

    // No functions and no data sets: nothing of the kind's keys is read.
    const GraphData &nothing = *second.next;
    EXPECT_EQ(nothing.Name, "Nothing");
    EXPECT_EQ(nothing.GetGraphType(), kGraphNone);
    EXPECT_EQ(nothing.GraphType2D, 1);
    EXPECT_EQ(nothing.Depth2D, 20);
    EXPECT_EQ(nothing.ShowGridLines, 0);

    // Data sets only: the axis variable is not read; the last point's Z is the set's.
    const GraphData &points = *nothing.next;
    EXPECT_FALSE(points.XAxisVar);
    const StrDataPnts *cloud = points.DataSets.gethead();
    EXPECT_STREQ(cloud->GetZDataPoint(), "7");
    EXPECT_EQ(points.GetGraphType(), kGraph3D);
    EXPECT_TRUE(shown(work,
                      "File Open: File data for data set \"cloud\" (Z Data Point #0) in "
                      "graph \"Points Only\" could not be completely loaded. Your file may "
                      "be corrupt!"));
}

TEST(DocumentLoad, HeaderInTheTextIsTakenForOne) {
    TempFolder folder;
    const std::string path = folder.file("header.qnd");
    Work work;
    work.content.text = "before\r\n[SETUP]\r\nAnsPrecision=3\r\nafter\r\n";
    work.eval("v = 4");
    ASSERT_TRUE(work.save(path));
    // The profile writes find the section in the text and put the keys there.
    const std::string saved = file_content(path);
    EXPECT_EQ(saved.find("[SETUP]"), saved.rfind("[SETUP]"));
    Work loaded;
    ASSERT_TRUE(loaded.load(path));
    EXPECT_EQ(loaded.parser.answer_format->precision, 14);
    EXPECT_EQ(loaded.variable_text("v"), "4");
}

}  // namespace
}  // namespace quindar::testing
