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

}  // namespace
}  // namespace quindar
