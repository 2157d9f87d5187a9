// SPDX-License-Identifier: GPL-3.0-or-later
// Damaged documents: missing, binary, truncated, with huge lines or wrong sections, mutated.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "document_work.h"
#include "documents_test_support.h"

namespace quindar::testing {
namespace {

TEST(DocumentDamage, MissingFileOrFolderIsRefused) {
    TempFolder folder;
    for (const std::string &path : {folder.file("none.qnd"), folder.path().string()}) {
        Work work;
        work.content.text = "kept";
        EXPECT_FALSE(work.load(path));
        EXPECT_EQ(work.content.text, "kept");
        EXPECT_EQ(work.boxes, (std::vector<std::string>{
                                  "File Access: File \" " + path + " \" Could Not Be Opened!",
                                  "File Open: Unable to read file " + path + "."}));
    }
}

TEST(DocumentDamage, BinaryFileDeclaresNothing) {
    Work work;
    const std::string path = data_file("garbage.bin");
    EXPECT_FALSE(work.load(path));
    EXPECT_EQ(work.parser.variables.count(), 0);
    EXPECT_EQ(work.content.text, "");
    EXPECT_EQ(work.boxes,
              (std::vector<std::string>{
                  "File Open: The file " + path + " holds binary data and is not a document.",
                  "File Open: Unable to read file " + path + "."}));
}

TEST(DocumentDamage, CancelStopsTheLoadAndKeepsTheText) {
    TempFolder folder;
    Work original;
    fill_full_work(original);
    ASSERT_TRUE(original.save(folder.file("work.qnd")));
    Work work;
    work.content.text = "kept";
    auto file = work.file();
    std::vector<std::string> steps;
    file->SetProgressHook([&steps](std::string_view text, int) {
        if (!text.empty()) steps.emplace_back(text);
        return text != "Reading And Defining Graphs";
    });
    EXPECT_FALSE(file->Read(folder.file("work.qnd").c_str()));
    EXPECT_EQ(steps, (std::vector<std::string>{"Opening File...", "Reading And Declaring Variables",
                                               "Reading And Declaring Functions",
                                               "Reading And Setting Up Predefined Configuration",
                                               "Reading The Integration Parameters",
                                               "Reading And Defining Graphs"}));
    EXPECT_EQ(work.content.text, "kept");
    EXPECT_TRUE(work.parser.is_variable("a")) << "what was declared stays";
    EXPECT_EQ(work.boxes.back(), "File Open: Unable to read file " + folder.file("work.qnd") + ".");
}

TEST(DocumentDamage, EveryTruncationLoads) {
    const std::string whole = file_content(data_file("saved_full.qnd"));
    ASSERT_GT(whole.size(), 1000u);
    TempFolder folder;
    const std::string path = folder.file("cut.qnd");
    for (std::size_t size = 0; size <= whole.size(); size += 37) {
        write_content(path, whole.substr(0, size));
        Work work;
        ASSERT_TRUE(work.load(path)) << size;
        // The text is the part in front of the first whole header, nothing of the sections.
        EXPECT_EQ(whole.rfind(work.content.text, 0), 0u) << size;
        EXPECT_TRUE(work.save(folder.file("again.qnd"))) << size;
    }
}

TEST(DocumentDamage, HugeLinesAreRefusedByTheEngineNotByACrash) {
    TempFolder folder;
    const std::string path = folder.file("huge.qnd");
    const std::string longValue(200000, '7');
    const std::string longText(100000, 'x');
    write_content(path,
                  longText + "\r\n[DECLARED VARIABLES]\r\nv=" + longValue +
                      "\r\nw=2\r\n[DECLARED FUNCTIONS]\r\nf[x]=" + longValue +
                      "\r\n[SETUP]\r\nAnsPrecision=" + longValue +
                      "\r\n[GRAPHS]\r\nGraph1=" + longText + "\r\n[Graph1]\r\nHeader=" + longText +
                      "\r\nFunction1=g[x]=" + longValue + "\r\nXAxisVariable=x(" + longValue +
                      ",1,2)\r\nNumDataSets=1\r\nDataSet1=s\r\nsNumPts=1\r\nsPt0=" + longValue +
                      ",1,\r\n");
    Work work;
    ASSERT_TRUE(work.load(path));
    EXPECT_EQ(work.content.text, longText + "\r\n");
    EXPECT_FALSE(work.parser.var_assigned("v"));
    EXPECT_EQ(work.variable_text("w"), "2");
    EXPECT_EQ(work.parser.answer_format->precision, 14) << "held at the highest precision";
    ASSERT_EQ(work.content.graphs.count(), 1);
    const GraphData &graph = *work.content.graphs.gethead();
    EXPECT_EQ(graph.Header, longText) << "a text key is read whole";
    EXPECT_FALSE(graph.XAxisVar);
    EXPECT_FALSE(work.boxes.empty());
}

TEST(DocumentDamage, WrongSectionsAndCountsStayBounded) {
    TempFolder folder;
    const std::string path = folder.file("wrong.qnd");
    write_content(path,
                  "[GRAPHS]\r\nGraph1=Missing section\r\nGraph2=Counts\r\n"
                  "[Graph2]\r\nFunction1=f[x]=x\r\nNumDataSets=2000000000\r\nDataSet1=s\r\n"
                  "sNumPts=2000000000\r\nsPt3=1,2,\r\n[DECLARED FUNCTIONS]\r\n[SETUP]\r\n"
                  "AnsZeroPrecision=abc\r\nAngleType=-5\r\n");
    Work work;
    ASSERT_TRUE(work.load(path));
    ASSERT_EQ(work.content.graphs.count(), 2);
    const GraphData &missing = *work.content.graphs.gethead();
    EXPECT_EQ(missing.Name, "Missing section");
    EXPECT_EQ(missing.GetGraphType(), kGraphNone);
    EXPECT_EQ(missing.BackgroundColor, TColor(64, 128, 128));
    const GraphData &counts = *missing.next;
    EXPECT_LE(counts.DataSets.count(), 10);
    EXPECT_STREQ(counts.DataSets.gethead()->GetXDataPoint(3), "1");
    EXPECT_EQ(work.parser.answer_format->zero_precision, 0.0f);
}

// Seeded mutations of a full document: every one loads or is refused with a message, and
// whatever loads saves and loads again.
TEST(DocumentDamage, MutatedDocumentsNeverCrash) {
    const std::string whole = file_content(data_file("saved_full.qnd"));
    TempFolder folder;
    const std::string path = folder.file("mutant.qnd");
    std::mt19937 random(7);
    const std::string alphabet = "[]=,()\r\n\t ;?0123456789.eE+-iabxyzGraphNumPts\x80\xff";
    for (int round = 0; round < 100; ++round) {
        std::string mutant = whole;
        const int edits = 1 + static_cast<int>(random() % 8);
        for (int e = 0; e < edits && !mutant.empty(); ++e) {
            const std::size_t at = random() % mutant.size();
            switch (random() % 5) {
                case 0:
                    mutant[at] = alphabet[random() % alphabet.size()];
                    break;
                case 1:
                    mutant.insert(at, 1 + random() % 40, alphabet[random() % alphabet.size()]);
                    break;
                case 2:
                    mutant.erase(at, random() % 200);
                    break;
                case 3:
                    mutant.insert(at, mutant.substr(random() % mutant.size(), random() % 300));
                    break;
                case 4:
                    mutant[at] = static_cast<char>(random() % 256);
                    break;
            }
        }
        write_content(path, mutant);
        Work work;
        const bool loaded = work.load(path);
        if (!loaded) {
            EXPECT_FALSE(work.boxes.empty()) << "round " << round;
            continue;
        }
        ASSERT_TRUE(work.save(folder.file("resaved.qnd"))) << "round " << round;
        Work again;
        EXPECT_TRUE(again.load(folder.file("resaved.qnd"))) << "round " << round;
    }
}

}  // namespace
}  // namespace quindar::testing
