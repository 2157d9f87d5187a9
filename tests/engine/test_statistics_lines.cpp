// SPDX-License-Identifier: GPL-3.0-or-later
// The statistical functions and random deviates through whole lines: answers and messages.
#include <gtest/gtest.h>

#include <string>

#include "line_table.h"
#include "parser.h"
#include "temp_folder.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::evaluate;
using testing::LineCase;

TEST(StatisticsLines, ListFunctions) {
    const LineCase table[] = {
        {"MEAN[{1,2,3}]", " = 2"},
        {"GMEAN[{1,4,16}]", " = 4"},
        {"HMEAN[{1,2,4}]", " = 1.7142857142857"},
        {"MEDIAN[{3,1,2}]", " = 2"},
        {"MEDIAN[{4,1,2,3}]", " = 2.5"},
        {"MODE[{1,2,2,3,3}]", " = 2"},
        {"MODE[{1,2,4,8,9}]", " = 3"},
        {"MIN[{4,-1,2}]", " = -1"},
        {"MAX[{4,-1,2}]", " = 4"},
        {"SUMX[{1,2,3}]", " = 6"},
        {"SUMXSQ[{1,2,3}]", " = 14"},
        {"SUMDEV[{1,2,3}]", " = 0"},
        {"AVGDEV[{1,2,3,6}]", " = 1.5"},
        {"SUMDEVSQ[{1,2,3,4}]", " = 5"},
        {"RANGE[{7,1,4}]", " = 6"},
        {"COUNT[{7,1,4}]", " = 3"},
        {"RANK[{10,20,20,30},20]", " = 2.5"},
        {"RANK[{10,20},15]", " = 0"},
        {"SVAR[{1,2,3,4}]", " = 1.6666666666667"},
        {"PVAR[{1,2,3,4}]", " = 1.25"},
        {"SSTDEV[{2,4,4,4,5,5,7,9}]", " = 2.1380899352994"},
        {"PSTDEV[{2,4,4,4,5,5,7,9}]", " = 2"},
        {"SKEW[{1,2,3}]", " = 0"},
        {"PRCTLE[{1,2,3,4},50]", " = 2.5"},
        {"LQRTLE[{1,2,3,4,5,6,7}]", " = 2"},
        {"UQRTLE[{1,2,3,4,5,6,7}]", " = 6"},
        {"2*MEAN[{1,2,3}]+1", " = 5"},
        {"mean({1, 2, 3})", " = 2"},
    };
    check_lines(table);
}

TEST(StatisticsLines, NormalAndCountingFunctions) {
    const LineCase table[] = {
        {"NORDIST[0,1,0]", " = 0.39894228040143"},
        {"ROUND[NORPROB[0,1,-1,1]*10000]", " = 6827"},
        {"ROUND[NORPROB[0,1,1,-1]*10000]", " = 6827"},
        {"ZSCORE[10,2,13]", " = 1.5"},
        {"ZSCORE[{1,2,3},3]", " = 1"},
        {"ROUND[NORPROB[{1,2,3},1,3]*1000]", " = 683"},
        {"COMB[5,2]", " = 10"},
        {"COMB[5,0]", " = 1"},
        {"PERM[5,2]", " = 20"},
        {"COMB[2,3]", "N can not be less than R in COMB function call!"},
        {"COMB[2.5,1]", "The parameters for COMB function call must be non negative integers!"},
        {"NORMX[0,1,1.5]",
         "The value of alpha must be less than or equal to one in the NORMX function."},
        {"NORMX[{1,2,3},2]",
         "The value of alpha must be less than or equal to one in the NORMX function."},
        {"NORMX[0,1,-0.5]",
         "No x value could be found for this area under the normal curve, the area must be "
         "between 0 and 1 and the standard deviation positive!"},
        {"NORPROB[0,0,-1,1]",
         "The normal probability could not be integrated for these parameters, the standard "
         "deviation must be positive and the limits finite!"},
        {"NORDIST[1,2]", "Three parameters required in NORDIST function call!"},
        {"NORPROB[1,2,3]", "Four parameters required in NORPROB function call!"},
        {"NORPROB[1,2,3,4,5]", "Too many parameters detected in NORPROB function!"},
        {"ZSCORE[1,2,3,4]", "Too many parameters detected in ZSCORE function!"},
        {"NORDIST[1,2i,3]", "The parameters for NORDIST function call must be real numbers!"},
    };
    check_lines(table);
}

TEST(StatisticsLines, ListFormErrors) {
    const LineCase table[] = {
        {"MEAN[{5}]", "Two or more data points are expected in list for MEAN function call!"},
        {"MEAN[]", "No parameters given in MEAN function call!"},
        {"MEAN[{1,2}", "Unbalanced function brackets in expression!"},
        {"RANK[{1,2}]", "Parameter required in RANK function call !"},
        {"RANK[{1,2} 3]", "Bracket of type [ or ] out of place or missing in RANK function call!"},
        {"PRCTLE[{1,2},i]", "The parameters for PRCTLE function call must be real numbers!"},
        {"MODE[{1,2,3,4}]", "No statistical Mode could be identified!"},
        {"MEAN[{1,2},3]", "MEAN function call is incomplete, may require a closing bracket!"},
    };
    check_lines(table);
}

TEST(StatisticsLines, ShapiroWilkThroughTheLibraryFolder) {
    Parser parser(QUINDAR_LIBRARY_DIR, QUINDAR_LIBRARY_DIR);
    const LineCase table[] = {
        {"WSNORM[{2.1,3.4,1.9,2.8,3.0,2.5,2.2,3.1,2.7,2.4},5]", " = 1"},
        {"WSNORM[{1,1,1,1,1,1,1,2,30,100},5]", " = 0"},
        {"WSNORM[{1,2},5]",
         "The number of data points required to perform the Wilks Shiparo normality test must "
         "be between 3 and 100 inclusive!"},
        {"WSNORM[{1,2,4},3]",
         "Alpha for the Wilks Shiparo test is invalid, alpha must be 1,2,5, or 10!"},
        {"WSNORM[{1,2,4},5.9]", " = 1"},
    };
    check_lines(parser, table);
    std::string hundred = "WSNORM[{1";
    for (int k = 2; k <= 100; ++k) hundred += "," + std::to_string(k % 7);
    EXPECT_EQ(evaluate(parser, (hundred + "},5]").c_str()),
              "The number of data points required to perform the Wilks Shiparo normality test "
              "must be between 3 and 100 inclusive!");
}

TEST(StatisticsLines, ShapiroWilkTablesMissingOrCorrupt) {
    const char *missing =
        "Wilks Shiparo table has been moved or deleted, can not perform this test!";
    const char *corrupt = "A Wilks Shiparo table has been currupted, can not perform this test!";
    Parser nowhere("", "");
    EXPECT_EQ(evaluate(nowhere, "WSNORM[{1,2,4},5]"), missing);
    testing::TempFolder folder;
    folder.write("wstableA1", "3) 0.7071\n4) 0.6872, 0.1677\n");
    Parser only_a1((folder.path() + "/").c_str(), "");
    EXPECT_EQ(evaluate(only_a1, "WSNORM[{1,2,4},5]"), missing);
    EXPECT_EQ(evaluate(only_a1, "WSNORM[{1,2,4,5,6},5]"), corrupt);  // ends before 5 points
    folder.write("wstableA2", "3) 0.753, 0.756, 0.767, 0.789\n4) 0.687; 0.707\n");
    EXPECT_EQ(evaluate(only_a1, "WSNORM[{1,2,4},10]"), " = 1");
    EXPECT_EQ(evaluate(only_a1, "WSNORM[{1,2,4,8},2]"), corrupt);  // a semicolon for a comma
    folder.write("wstableA1", "4) 0.7071\n");
    EXPECT_EQ(evaluate(only_a1, "WSNORM[{1,2,4},5]"), corrupt);  // the wrong head
}

TEST(DeviateLines, FormsChecksAndMessages) {
    const LineCase table[] = {
        {"RAND[3,3]", " = 3"},
        {"RAND[5]", "Two parameters required in RAND function call!"},
        {"RAND[1,2,3]", "Too many parameters detected in RAND function!"},
        {"BERDEV[0]", " = 0"},
        {"BERDEV[1]", " = 1"},
        {"BERDEV[]", "No parameters given in BERDEV function call!"},
        {"BERDEV[1.5]",
         "The probability parameter in the BERDEV must be between the values of 0 and 1!"},
        {"BETADEV[-1,1]", "The value of alpha must be greater than 0 in the BETADEV function."},
        {"BETADEV[1,-1]", "The value of beta must be greater than 0 in the BETADEV function."},
        {"BETADEV[0,1]",
         "The shape parameter Alpha must be greater than 0 in the betadev "
         "function."},
        {"GAMDEV[-1,1]", "The value of alpha must be greater than 0 in the GAMDEV function."},
        {"BNLDEV[0,0.5]", "The number of trials must be greater than 0 in the BNLDEV function."},
        {"BNLDEV[10,2]",
         "The probability parameter in the BNLDEV must be between the values of 0 and 1!"},
        {"BNLDEV[10,0.5,1]", "Too many parameters detected in BNLDEV function!"},
        {"CHIDEV[0]",
         "The degrees of freedom (dof) must be greater than 0 in the CHIDEV function."},
        {"FDEV[1,0]", "The degrees of freedom (dof) must be greater than 0 in the FDEV function."},
        {"NCHIDEV[1,0]",
         "The degrees of freedom (dof) must be greater than 1 in the NCHIDEV function."},
        {"NCHIDEV[2,-1]",
         "The non-centralized parameter must be greater than or equal to 0 in "
         "the NCHIDEV function."},
        {"EXPDEV[0]", "Shape Parameter In Exponential Deviate Function Can Not Be Zero."},
        {"RAYDEV[2,2]", "Median Is Equal To The Anchor In Rayleigh Deviate Function."},
        {"CAUDEV[1,2i]", "The parameters for CAUDEV function call must be real numbers!"},
        {"BNLDEV[10,0]", " = 0"},
        {"BNLDEV[10,1]", " = 10"},
    };
    check_lines(table);
}

// Each engine restarts the shared generator from 5, so two runs draw alike.
TEST(DeviateLines, AFreshEngineDrawsTheSameSequence) {
    const char *lines[] = {"RAND[]",        "NORDEV[]",        "EXPDEV[]",    "RAYDEV[]",
                           "GAMDEV[0.5,2]", "BNLDEV[100,0.5]", "LOGDEV[0,1]", "DEXPDEV[0,1]"};
    std::string first, second;
    {
        Deviates::clear_saved_normals();
        Parser parser("", "");
        for (const char *line : lines) first += evaluate(parser, line);
    }
    Deviates::clear_saved_normals();
    Parser parser("", "");
    for (const char *line : lines) second += evaluate(parser, line);
    EXPECT_EQ(first, second);
    EXPECT_EQ(first.substr(0, 19), " = 0.53131169414217");
}

}  // namespace
}  // namespace quindar
