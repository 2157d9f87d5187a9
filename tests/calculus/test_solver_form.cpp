// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Function Solver's form: prototypes read into boxes, the list's rows, the texts kept,
// the call built and solved, and the data file texts.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calculus_messages.h"
#include "function_texts.h"
#include "parser.h"
#include "solver_form.h"

namespace quindar::calculus {
namespace {

// The prototypes of the embedded functions, as the Function Library shows them.
const char *const kEmbeddedPrototypes[] = {
    "SQRT[number]",
    "LN[number]",
    "LOG10[number]",
    "LOG[number,base]",
    "EXP[number]",
    "POW[base,exponent]",
    "ABS[number]",
    "ROUND[number]",
    "TRUNC[number]",
    "REM[number1,number2]",
    "FLOOR[number]",
    "CEIL[number]",
    "GCD[number1,number2]",
    "LCM[number1,number2]",
    "RTOP[X,Y]",
    "PTOR[R,THETA]",
    "BASECON[decimalNumber,base]",
    "CUBERT[number]",
    "REAL[complexNumber]",
    "IMAG[complexNumber]",
    "NORM[complexNumber]",
    "CMAG[complexNumber]",
    "CANGLE[complexNumber]",
    "PTOC[mag,angle]",
    "CONJ[complexNumber]",
    "DEG[radians]",
    "RAD[degrees]",
    "SIN[number]",
    "COS[number]",
    "TAN[number]",
    "SINH[number]",
    "COSH[number]",
    "TANH[number]",
    "ASIN[number]",
    "ACOS[number]",
    "ATAN[number]",
    "ASINH[number]",
    "ACOSH[number]",
    "ATANH[number]",
    "HYPOT[side1,side2]",
    "MEAN[{number1,number2,...numberN}]",
    "GMEAN[{number1,number2,...numberN}]",
    "HMEAN[{number1,number2,...numberN}]",
    "MEDIAN[{number1,number2,...numberN}]",
    "MODE[{number1,number2,...numberN}]",
    "MIN[{number1,number2,...numberN}]",
    "MAX[{number1,number2,...numberN}]",
    "SUMX[{number1,number2,...numberN}]",
    "SUMXSQ[{number1,number2,...numberN}]",
    "SUMDEV[{number1,number2,...numberN}]",
    "AVGDEV[{number1,number2,...numberN}]",
    "SUMDEVSQ[{number1,number2,...numberN}]",
    "RANGE[{number1,number2,...numberN}]",
    "COUNT[{number1,number2,...numberN}]",
    "RANK[{number1,number2,...numberN}, value]",
    "SVAR[{number1,number2,...numberN}]",
    "PVAR[{number1,number2,...numberN}]",
    "SSTDEV[{number1,number2,...numberN}]",
    "PSTDEV[{number1,number2,...numberN}]",
    "NORDIST[mean,stdev,x]",
    "NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]",
    "NORMX[mean,stdev,alpha] or [{num1,num2,...numN},alpha]",
    "ZSCORE[mean,stdev,x] or [{num1,num2,...numN},x]",
    "SKEW[{number1,number2,...numberN}]",
    "KURT[{number1,number2,...numberN}]",
    "PRCTLE[{number1,number2,...NumberN},percentileValue]",
    "LQRTLE[{number1,number2,...numberN}]",
    "UQRTLE[{number1,number2,...numberN}]",
    "COMB[N,R]",
    "PERM[N,R]",
    "WSNORM[{number1,number2,...numberN},alpha]",
    "RAND[lowerLimit,upperLimit]",
    "NORDEV[mean,stdev]",
    "EXPDEV[shapeParameter]",
    "RAYDEV[median,anchor]",
    "BERDEV[probability]",
    "BETADEV[alpha,beta]",
    "BNLDEV[trials,probability]",
    "CAUDEV[mean,s]",
    "CHIDEV[dof]",
    "DEXPDEV[mean,s]",
    "FDEV[dfn,dfd]",
    "GAMDEV[alpha,beta]",
    "LOGDEV[mean,b]",
    "NCHIDEV[dof,xnonc]",
    "AND[logicalExp1,logicalExp2,...logicalExpN]",
    "OR[logicalExp1,logicalExp2,...logicalExpN]",
    "NOT[logicalExp]",
    "IF[logicalExp,valueIfTrue,valueIfFalse]",
    "SRESIST[{number1,number2,...numberN}]",
    "PRESIST[{number1,number2,...numberN}]",
};

struct Shape {
    const char *prototype;
    ParameterType type;
    std::vector<std::string> labels;  // of the six boxes, "" for a hidden one
    bool twoForms;
};

const Shape kShapes[] = {
    {"SQRT[number]", ParameterType::Set, {"number", "", "", "", "", ""}, false},
    {"LOG[number,base]", ParameterType::Set, {"number", "base", "", "", "", ""}, false},
    {"IF[logicalExp,valueIfTrue,valueIfFalse]",
     ParameterType::Set,
     {"logicalExp", "valueIfTrue", "valueIfFalse", "", "", ""},
     false},
    {"NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]",
     ParameterType::Set,
     {"mean", "stdev", "x1", "x2", "", ""},
     true},
    {"MEAN[{number1,number2,...numberN}]",
     ParameterType::List,
     {"Number 1", "Number 2", "Number 3", "Number 4", "Number 5", "Number 6"},
     false},
    {"RANK[{number1,number2,...numberN}, value]",
     ParameterType::List,
     {"Number 1", "Number 2", "Number 3", "Number 4", "Number 5", "Number 6"},
     false},
    {"AND[logicalExp1,logicalExp2,...logicalExpN]",
     ParameterType::List,
     {"Logical Expression 1", "Logical Expression 2", "Logical Expression 3",
      "Logical Expression 4", "Logical Expression 5", "Logical Expression 6"},
     false},
    {"f[ a , b ]", ParameterType::Set, {"a", "b", "", "", "", ""}, false},
    {"six[a,b,c,d,e,f]", ParameterType::Set, {"a", "b", "c", "d", "e", "f"}, false},
    {"none[]", ParameterType::Set, {"", "", "", "", "", ""}, false},
    {"PI", ParameterType::Set, {"", "", "", "", "", ""}, false},
};

std::vector<std::string> Labels(const SolverForm &form) {
    std::vector<std::string> labels;
    for (int box = 0; box < kSolverBoxes; ++box)
        labels.push_back(form.box_shown(box) ? form.label(box) : "");
    return labels;
}

TEST(SolverPrototypes, ShapesOfEveryKind) {
    for (const Shape &shape : kShapes) {
        SCOPED_TRACE(shape.prototype);
        SolverForm form;
        ASSERT_TRUE(form.configure(shape.prototype));
        EXPECT_EQ(form.type(), shape.type);
        EXPECT_EQ(Labels(form), shape.labels);
        EXPECT_EQ(form.has_two_forms(), shape.twoForms);
    }
}

TEST(SolverPrototypes, SevenNamesAreTooMany) {
    SolverForm form;
    EXPECT_FALSE(form.configure("seven[a,b,c,d,e,f,g]"));
    for (int box = 0; box < kSolverBoxes; ++box) EXPECT_FALSE(form.box_shown(box));
    EXPECT_EQ(std::string(message(kTooManyParameters)),
              "Only Functions With A Maximim Of 6 Parameters Are Supported In The Functions "
              "Solver.");
}

TEST(SolverPrototypes, TheSecondFormPutsTheTrailingNamesInTheLastBoxes) {
    SolverForm form;
    ASSERT_TRUE(form.configure("NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]"));
    form.select_form(1);
    EXPECT_EQ(form.type(), ParameterType::List);
    EXPECT_EQ(form.num_parameters(), 4);
    EXPECT_EQ(Labels(form), (std::vector<std::string>{"Number 1", "Number 2", "Number 3",
                                                      "Number 4", "x1", "x2"}));
    form.select_form(0);
    EXPECT_EQ(Labels(form), (std::vector<std::string>{"mean", "stdev", "x1", "x2", "", ""}));
    SolverForm normx;
    ASSERT_TRUE(normx.configure("NORMX[mean,stdev,alpha] or [{num1,num2,...numN},alpha]"));
    normx.select_form(1);
    EXPECT_EQ(Labels(normx), (std::vector<std::string>{"Number 1", "Number 2", "Number 3",
                                                       "Number 4", "Number 5", "alpha"}));
}

// A prototype reads without refusal into as many boxes as it names, and a call built from
// a 1 in each box has the function's name and those arguments.
void ExpectReadsIntoItsBoxes(const std::string &prototype) {
    SCOPED_TRACE(prototype);
    SolverForm form;
    ASSERT_TRUE(form.configure(prototype));
    const std::string name = prototype.substr(0, prototype.find('['));
    EXPECT_EQ(form.function_name(), name);
    EXPECT_EQ(form.has_two_forms(), prototype.find(" or [") != std::string::npos);
    const std::string inside =
        prototype.substr(prototype.find('[') + 1, prototype.find(']') - prototype.find('[') - 1);
    const bool list = inside[0] == '{' || inside.rfind("logicalExp1", 0) == 0;
    ASSERT_EQ(form.type(), list ? ParameterType::List : ParameterType::Set);
    Parser parser{"", ""};
    SolverFailure failure;
    std::string expected = name + "[" + (list && inside[0] == '{' ? "{" : "");
    const int boxes = list ? kSolverBoxes : PrototypeParameterCount(inside);
    ASSERT_EQ(form.num_parameters(), boxes);
    for (int box = 0; box < boxes; ++box) {
        ASSERT_TRUE(form.store(parser, box, " 1 ", failure)) << failure.text;
        expected += box ? ",1" : "1";
    }
    expected += (list && inside[0] == '{' ? "}]" : "]");
    EXPECT_EQ(form.build_expression(), expected);
}

TEST(SolverPrototypes, EveryEmbeddedPrototype) {
    ASSERT_EQ(std::size(kEmbeddedPrototypes), 91u);
    for (const std::string prototype : kEmbeddedPrototypes) ExpectReadsIntoItsBoxes(prototype);
}

// The Function Library's own table of the same prototypes, and its constants, which have no
// parameters.
TEST(SolverPrototypes, EveryPrototypeOfTheLibraryTexts) {
    const auto functions = mathlib::embedded_function_texts();
    ASSERT_EQ(functions.size(), std::size(kEmbeddedPrototypes));
    for (std::size_t i = 0; i < functions.size(); ++i) {
        EXPECT_EQ(functions[i].prototype, kEmbeddedPrototypes[i]);
        ExpectReadsIntoItsBoxes(std::string(functions[i].prototype));
    }
    for (const mathlib::FunctionText &constant : mathlib::constant_texts()) {
        SolverForm form;
        ASSERT_TRUE(form.configure(std::string(constant.prototype)));
        EXPECT_FALSE(form.has_parameters()) << constant.prototype;
        EXPECT_EQ(form.num_parameters(), 0);
        EXPECT_EQ(form.build_expression(), "");
    }
}

TEST(SolverCalls, SetFormSolvesWithEveryBoxFilled) {
    Parser parser{"", ""};
    SolverForm form;
    ASSERT_TRUE(form.configure("LOG[number,base]"));
    SolverFailure failure;
    std::string answer;
    EXPECT_FALSE(form.solve(parser, 6, answer, failure));
    EXPECT_EQ(failure.id, kNoParameters);
    ASSERT_TRUE(form.store(parser, 0, "8", failure));
    EXPECT_FALSE(form.solve(parser, 6, answer, failure));
    EXPECT_EQ(failure.id, kParameterMissingInSet);
    EXPECT_EQ(failure.text,
              "A Required Parameter Is Missing.  The Function Can Not Be Evaluated Without An "
              "Entry For All The Parameters.");
    ASSERT_TRUE(form.store(parser, 1, "1+1", failure));
    EXPECT_EQ(form.build_expression(), "LOG[8,1+1]");
    EXPECT_EQ(form.box_text(1), "1+1");
    ASSERT_TRUE(form.solve(parser, 6, answer, failure)) << failure.text;
    EXPECT_EQ(answer, "3");
    // The solver's own precision, and the document's kept.
    const long documentPrecision = parser.answer_format->precision;
    ASSERT_TRUE(form.store(parser, 0, "2", failure));
    ASSERT_TRUE(form.store(parser, 1, "10", failure));
    ASSERT_TRUE(form.solve(parser, 4, answer, failure)) << failure.text;
    EXPECT_EQ(answer, "0.301");
    EXPECT_EQ(parser.answer_format->precision, documentPrecision);
    // An empty box removes its entry.
    ASSERT_TRUE(form.store(parser, 0, "  ", failure));
    EXPECT_EQ(form.build_expression(), "LOG[10]");
}

TEST(SolverCalls, ABadEntryIsRefusedWithTheEnginesText) {
    Parser parser{"", ""};
    SolverForm form;
    ASSERT_TRUE(form.configure("SQRT[number]"));
    SolverFailure failure;
    EXPECT_FALSE(form.store(parser, 0, "2+*3", failure));
    EXPECT_EQ(failure.id, 0);
    EXPECT_FALSE(failure.text.empty());
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(form.entry_count(), 0);
    // A variable's name is a valid parameter and stays text.
    parser.eval_exp("a = 9", true, false);
    ASSERT_TRUE(form.store(parser, 0, "a", failure));
    EXPECT_EQ(form.build_expression(), "SQRT[a]");
}

TEST(SolverCalls, ListsScrollGrowAndBuildWithTrailingValues) {
    Parser parser{"", ""};
    SolverForm form;
    ASSERT_TRUE(form.configure("NORMX[mean,stdev,alpha] or [{num1,num2,...numN},alpha]"));
    form.select_form(1);
    SolverFailure failure;
    EXPECT_FALSE(form.store(parser, 0, "2i", failure));
    EXPECT_EQ(failure.id, kImaginaryListValue);
    for (int i = 0; i < 7; ++i) {
        ASSERT_TRUE(form.store(parser, 4, std::to_string(i + 1), failure));
        form.move(1);  // Return in the last row moves the list on
    }
    EXPECT_EQ(form.first_row(), 7);
    EXPECT_EQ(form.label(0), "Number 8");
    ASSERT_TRUE(form.store(parser, 5, "0.05", failure));
    EXPECT_EQ(form.build_expression(), "NORMX[{1,2,3,4,5,6,7},0.05]");
    form.move(-100);
    EXPECT_EQ(form.first_row(), 0);
    EXPECT_EQ(form.box_text(4), "1");
    form.move(40);
    EXPECT_EQ(form.first_row(), 40);
    EXPECT_EQ(form.box_text(0), "");
}

TEST(SolverCalls, LogicalListsHaveNoBraces) {
    Parser parser{"", ""};
    SolverForm form;
    ASSERT_TRUE(form.configure("AND[logicalExp1,logicalExp2,...logicalExpN]"));
    SolverFailure failure;
    for (int box : {0, 1, 2}) ASSERT_TRUE(form.store(parser, box, "1<2", failure));
    EXPECT_EQ(form.build_expression(), "AND[1<2,1<2,1<2]");
}

TEST(SolverData, LoadingAppendsBehindTheLastEntryOrReplaces) {
    Parser parser{"", ""};
    SolverForm form;
    ASSERT_TRUE(form.configure("MEAN[{number1,number2,...numberN}]"));
    SolverFailure failure;
    ASSERT_TRUE(form.store(parser, 0, "1", failure));
    ASSERT_TRUE(form.store(parser, 2, "3", failure));
    form.load({"7", "8"}, false);
    EXPECT_EQ(form.first_row(), 3);
    EXPECT_EQ(form.box_text(0), "7");
    EXPECT_EQ(form.entries(), (std::vector<std::string>{"1", "3", "7", "8"}));
    form.load({"5"}, true);
    EXPECT_EQ(form.first_row(), 0);
    EXPECT_EQ(form.entries(), (std::vector<std::string>{"5"}));
}

TEST(SolverData, FileKindsAndTexts) {
    const struct {
        const char *name;
        const char *kind;
    } kinds[] = {{"a.txt", ".txt"},     {"a.csv", ".csv"},     {"a.prn", ".prn"},
                 {"a.txt.csv", ".txt"}, {"a.prn.csv", ".csv"}, {"data", ""}};
    for (const auto &k : kinds) EXPECT_EQ(DataFileKind(k.name), k.kind) << k.name;
    EXPECT_EQ(DataFileText({"1", "a+2"}, ".txt"), "1\na+2\n");
    EXPECT_EQ(DataFileText({"1", "a+2"}, ".prn"), "      1\n      a+2\n");
}

TEST(SolverTexts, PrototypeDisplayAndKeys) {
    EXPECT_EQ(InsertFunctionPrototype("NORPROB[mean, stdev] or [x]", 50),
              "NORPROB[mean,stdev]or[x]");
    EXPECT_EQ(InsertFunctionPrototype("abcdefghij", 4), "abcd efgh ij");
    EXPECT_EQ(InsertFunctionPrototype("abcdefgh", 4), "abcd efgh");
    EXPECT_FALSE(CanExecuteEquals("AND[logicalExp1,logicalExp2,...logicalExpN]"));
    EXPECT_FALSE(CanExecuteEquals("IF[logicalExp,valueIfTrue,valueIfFalse]"));
    EXPECT_FALSE(CanExecuteEquals("NOT[logicalExp]"));
    EXPECT_FALSE(CanExecuteEquals("OR[logicalExp1,logicalExp2,...logicalExpN]"));
    EXPECT_TRUE(CanExecuteEquals("SQRT[number]"));
    EXPECT_EQ(PrototypeParameterCount("f[x]"), 1);
    EXPECT_EQ(PrototypeParameterCount("f[x,y,z]"), 3);
}

}  // namespace
}  // namespace quindar::calculus
