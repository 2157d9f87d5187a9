// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Brace arguments: lists of expressions and data files, through a list function.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "line_table.h"
#include "parser.h"
#include "temp_folder.h"

namespace quindar {
namespace {

using testing::evaluate;

class DataLists : public ::testing::Test {
protected:
    std::string file(const std::string &name, const std::string &content) {
        return folder.write(name, content);
    }
    testing::TempFolder folder;
    Parser parser{"", ""};
};

TEST_F(DataLists, ListsOfExpressions) {
    const testing::LineCase table[] = {
        {"SRESIST[{1,2,3}]", " = 6"},
        {"x = 3", ""},
        {"SRESIST[{x, x*2, POW[2,2]}]", " = 13"},
        {"2*SRESIST[{1,2}]", " = 6"},
        {"SRESIST[{5}]", "Two or more data points are expected in list for SRESIST function call!"},
        {"SRESIST[{1.5}]",
         "Two or more data points are expected in list for SRESIST function call!"},
        {"SRESIST[{}]",
         "Brace/s of type { or } missing for data list or data file in SRESIST function call!"},
        {"SRESIST[1,2]",
         "Brace/s of type { or } missing for data list or data file in SRESIST function call!"},
        {"SRESIST[{1,2+i}]", "A data point in the SRESIST function call in not a real number!"},
        {"SRESIST[{1,,2}]", "Comma is out of place in SRESIST function call!"},
        {"SRESIST[{1,2}x]",
         "Bracket of type [ or ] out of place or missing in SRESIST function call!"},
        {"SRESIST[{1,2}, 3]",
         "SRESIST function call is incomplete, may require a closing bracket!"},
        {"PRESIST[{2,2}]", " = 1"},
        {"PRESIST[{3,6}]", " = 2"},
        {"PRESIST[{2,0}]", "Division By Zero Encountered!"},
    };
    testing::check_lines(parser, table);
}

TEST_F(DataLists, DataFilesAreReadByASecondEngine) {
    struct Case {
        const char *content;
        const char *expected;
    };
    const Case table[] = {
        {"1, 2 3", " = 6"},
        {"1) 10 2) 20", " = 30"},
        {"CUBERT(27), 4", " = 7"},
        {"POW(2,3)",
         "The Following Error Occured While Loading Data Point 0 In File %s : Unbalanced function "
         "brackets in expression!"},  // a comma separates entries
        {"PI PI", " = 6.2831853071796"},
        {"1+i", "An Imaginary Number Was Found In Data Point 0 In File %s"},
        {"1 y",
         "The Following Error Occured While Loading Data Point 1 In File %s : ' y ' Could Not Be "
         "Identified As A Variable Or Function."},
        {" \r\n", "No Data Found In The ' %s ' Data File!"},
    };
    parser.eval_exp("y = 2", true, true);
    int n = 0;
    for (const auto &c : table) {
        const std::string path = file("data" + std::to_string(n++) + ".txt", c.content);
        std::string expected = c.expected;
        if (const auto at = expected.find("%s"); at != std::string::npos)
            expected.replace(at, 2, path);
        EXPECT_EQ(evaluate(parser, ("SRESIST[{" + path + "}]").c_str()), expected) << c.content;
    }
}

TEST_F(DataLists, FileNamesAreToldFromLists) {
    file("c.dat", "4 5");
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    EXPECT_EQ(evaluate(parser, "SRESIST[{c.dat}]"), " = 9");
    EXPECT_EQ(evaluate(parser, "SRESIST[{x.y}]"), "Data File ' x.y ' Could Not Be Located!");
    EXPECT_EQ(evaluate(parser, "SRESIST[{C:\\dir\\noext}]"),
              "Data File ' C:\\dir\\noext ' Could Not Be Located!");
    EXPECT_EQ(evaluate(parser, ("SRESIST[{" + folder.path() + "/none}]").c_str()),
              "Data File ' " + folder.path() + "/none ' Could Not Be Located!");
    EXPECT_EQ(evaluate(parser, "SRESIST[{c.dat}] + 1"), " = 10");
    std::filesystem::current_path(previous);
}

// A document's data files are found beside it, whatever the working folder; a name with a
// folder, or one not beside the document, is taken as it stands.
TEST_F(DataLists, DataFilesBesideTheDocumentComeFirst) {
    file("near.txt", "1 2 3");
    file("nested.txt", "SRESIST[{near.txt}] 4");
    testing::TempFolder elsewhere;
    elsewhere.write("only-here.txt", "7 8");
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(elsewhere.path());
    EXPECT_EQ(evaluate(parser, "SRESIST[{near.txt}]"),
              "Data File ' near.txt ' Could Not Be Located!");
    parser.data_folder = folder.path();
    const testing::LineCase table[] = {
        {"SRESIST[{near.txt}]", " = 6"},
        {"SRESIST[{nested.txt}]", " = 10"},
        {"SRESIST[{only-here.txt}]", " = 15"},
        {"SRESIST[{gone.txt}]", "Data File ' gone.txt ' Could Not Be Located!"},
    };
    for (const testing::LineCase &c : table)
        EXPECT_EQ(evaluate(parser, c.line), c.expected) << c.line;
    std::filesystem::current_path(previous);
}

// A data file may name data files in its entries; a file that reads itself, a chain that is
// too deep, and nested files that together hold too much end with a message, not a crash.
TEST_F(DataLists, NestedDataFilesAreBounded) {
    const std::string self = folder.path() + "/self.txt";
    file("self.txt", "SRESIST[{" + self + "}] 1");
    const std::string inside =
        "The Following Error Occured While Loading Data Point 0 In File " + self + " : ";
    EXPECT_EQ(evaluate(parser, ("SRESIST[{" + self + "}]").c_str()),
              inside + "Data File ' " + self + " ' Is Read By One Of Its Own Entries!");

    // n0 reads n1 ... n8 reads n9: n8 is the ninth file in the chain, one more than the limit.
    for (int k = 0; k < 10; ++k) {
        const std::string next = folder.path() + "/n" + std::to_string(k + 1) + ".txt";
        file("n" + std::to_string(k) + ".txt", k < 9 ? "SRESIST[{" + next + "}] 1" : "2 3");
    }
    EXPECT_EQ(evaluate(parser, ("SRESIST[{" + folder.path() + "/n2.txt}]").c_str()), " = 12");
    const std::string deep = evaluate(parser, ("SRESIST[{" + folder.path() + "/n0.txt}]").c_str());
    EXPECT_NE(deep.find("Data File ' " + folder.path() +
                        "/n8.txt ' Is Nested Too Deeply In Other Data Files, Limit Is 8 Files!"),
              std::string::npos)
        << deep;

    // A thousand entries that each read a file of a thousand: far beyond what nesting may cost.
    std::string numbers, readers;
    for (int k = 0; k < 1000; ++k) numbers += "1 ";
    for (int k = 0; k < 1000; ++k) readers += "SRESIST[{" + folder.path() + "/numbers.txt}] ";
    file("numbers.txt", numbers);
    const std::string many = file("readers.txt", readers);
    const std::string costly = evaluate(parser, ("SRESIST[{" + many + "}]").c_str());
    EXPECT_NE(costly.find("The Data Files Read Inside ' " + many +
                          " ' Hold Too Many Data Points, Limit Is 262136!"),
              std::string::npos)
        << costly;
}

}  // namespace
}  // namespace quindar
