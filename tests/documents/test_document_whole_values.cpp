// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A document keeps what it holds, however long: every graph of a long list, whole texts and whole
// point values come back after a load and a save.
#include <gtest/gtest.h>

#include <string>

#include "document_work.h"
#include "documents_test_support.h"

namespace quindar::testing {
namespace {

std::string graph_name(int n) {
    std::string name = "Graph number " + std::to_string(n) + " with a long name";
    name.resize(32, '_');
    return name;
}

constexpr int kGraphs = 100;

// A hundred graphs of 32-character names: a key list of close to 800 bytes.
std::string many_graphs_document(const std::string &longText, const std::string &longPoint) {
    std::string text = "x + 1\r\n[SETUP]\r\nAnsPrecision=14\r\n[FONT]\r\nFaceName=" + longText +
                       "\r\n[GRAPHS]\r\n";
    for (int n = 1; n <= kGraphs; ++n)
        text += "Graph" + std::to_string(n) + "=" + graph_name(n) + "\r\n";
    for (int n = 1; n <= kGraphs; ++n) {
        text += "[Graph" + std::to_string(n) + "]\r\nHeader=" + (n == kGraphs ? longText : "h") +
                "\r\n";
        text += "Function1=f[x]=x+" + std::to_string(n) + "\r\n";
        text += "NumDataSets=1\r\nDataSet1=s\r\nsNumPts=1\r\nsPt0=" + longPoint + ",2,\r\n";
    }
    return text;
}

TEST(DocumentWholeValues, EveryGraphAndEveryLongValueIsWrittenBack) {
    TempFolder folder;
    const std::string longText(5000, 't');
    const std::string longPoint = "1+" + std::string(400, '0') + "1";
    write_content(folder.file("many.qnd"), many_graphs_document(longText, longPoint));

    Work work;
    ASSERT_TRUE(work.load(folder.file("many.qnd")));
    ASSERT_EQ(work.content.graphs.count(), kGraphs);
    int n = 1;
    for (GraphData *graph = work.content.graphs.gethead(); graph != nullptr;
         graph = graph->next, ++n) {
        EXPECT_EQ(graph->Name, graph_name(n));
        EXPECT_EQ(graph->GetNumFunctions(), 1) << graph->Name;
    }
    EXPECT_EQ(work.content.graphs.gettail()->Header, longText);
    EXPECT_EQ(work.content.font.FaceName, longText);
    const StrDataPnts *set = work.content.graphs.gettail()->DataSets.gethead();
    ASSERT_NE(set, nullptr);
    EXPECT_STREQ(set->GetXDataPoint(0), longPoint.c_str());

    ASSERT_TRUE(work.save(folder.file("saved.qnd")));
    Work again;
    ASSERT_TRUE(again.load(folder.file("saved.qnd")));
    EXPECT_EQ(again.content.graphs.count(), kGraphs);
    ASSERT_TRUE(again.save(folder.file("again.qnd")));
    EXPECT_EQ(file_content(folder.file("saved.qnd")), file_content(folder.file("again.qnd")));
    const std::string saved = file_content(folder.file("saved.qnd"));
    EXPECT_NE(saved.find("Header=" + longText + "\r\n"), std::string::npos);
    EXPECT_NE(saved.find(longPoint), std::string::npos);
    EXPECT_NE(saved.find("Graph100=" + graph_name(kGraphs)), std::string::npos);
}

}  // namespace
}  // namespace quindar::testing
