// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// User functions: declarations, calls in both bracket kinds, splicing and the table.
#include <gtest/gtest.h>

#include <string>

#include "function.h"
#include "line_table.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::evaluate;
using testing::LineCase;

TEST(FunctionLines, DeclareAndCallWithBothBrackets) {
    const LineCase table[] = {
        {"f[x] = x^2", ""},
        {"f[1+2]", " = 9"},  // the argument stands in parentheses
        {"2f[3]", " = 18"},  // and so does the body
        {"f(3)", " = 9"},
        {"f (3)",  // a blank keeps the parenthesis from becoming a call bracket
         "Function ' f[x] ' requires ' 1 ' dependent variables, ' 0 ' were used! Commas may only "
         "be used to separate function parameters or define an incremental variable!"},
        {"f[f(2)+1]", "Function \"f\" Can Not Be Evaluated On Itself!"},
        {"g(x,y) = x*y + 1", ""},
        {"g[2, 3]", " = 7"},
        {"g(f(2), 1)", " = 5"},
        {"h[a] = g[a, a] - f[a]", ""},
        {"h[4]", " = 1"},
        {"F[x] = 2x", ""},  // a second function: names are exact
        {"F[3] + f[3]", " = 15"},
        {"f[x] = x^3", ""},  // redefinition in place
        {"f[2]", " = 8"},
        {"k[x] = x < 3", ""},
        {"k[2]", " = 1"},
    };
    check_lines(table);
}

TEST(FunctionLines, DeclarationErrors) {
    Parser parser("", "");
    const LineCase setup[] = {{"f[x] = x^2", ""}, {"a = 2", ""}};
    check_lines(parser, setup);
    const LineCase table[] = {
        {"g[x,y] = x", "Invalid function declaration,\n' g[x,y] ' is not a function of ' y '!"},
        {"h[x] = h[x]+1", "Function ' h ' can not be a function of itself!"},
        {"k[x] = x + zz", "Variable ' zz ' Has Not Yet Been Defined!"},
        {"k[x] = q[x]", "' q ' is not currently defined as a function!"},
        {"f[y] = y", "' f ' Is Currently Defined As A Function, Use Another Name!"},
        {"f[x]=", "Invalid function declaration,\n' f[x] ' is not a function of ' x '!"},
        {"m[x] = x*a", ""},
        {"f[2] = 3", "Syntax error!"},  // the call is spliced before the grammar sees the =
    };
    check_lines(parser, table);
}

TEST(FunctionLines, CallErrors) {
    Parser parser("", "");
    const LineCase table[] = {
        {"f[x] = x^2", ""},
        {"f[1,2]",
         "Function ' f[x] ' requires ' 1 ' dependent variables, ' 2 ' were used! Commas may only "
         "be used to separate function parameters or define an incremental variable!"},
        {"g[x,y] = x+y", ""},
        {"g[1]",
         "Function ' g[x,y] ' requires ' 2 ' dependent variables, ' 1 ' was used! Commas may only "
         "be used to separate function parameters or define an incremental variable!"},
        {"f+1",
         "Function ' f[x] ' requires ' 1 ' dependent variables, ' 0 ' were used! Commas may only "
         "be used to separate function parameters or define an incremental variable!"},
        {"f[2", "Unbalanced function brackets in expression!"},
    };
    check_lines(parser, table);
}

TEST(FunctionLines, ArgumentsAreWrittenInAtOnce) {
    // An argument that names a later parameter is not substituted again.
    const LineCase table[] = {
        {"g[x,y] = 10x + y", ""},
        {"y = 5", ""},
        {"g[y, 2]", " = 52"},
    };
    check_lines(table);
}

TEST(FunctionLines, GlobalsAreReadWhenCalled) {
    const LineCase table[] = {
        {"a = 5", ""}, {"m[x] = x*a", ""}, {"m[2]", " = 10"}, {"a = 6", ""}, {"m[2]", " = 12"},
    };
    check_lines(table);
}

TEST(FunctionLines, FunctionsCallingEachOtherInACircleAreStopped) {
    Parser parser("", "");
    const LineCase table[] = {
        {"u[x] = 2x", ""},
        {"v[x] = u[x]", ""},
        {"u[x] = v[x]", ""},
    };
    check_lines(parser, table);
    const std::string message = evaluate(parser, "u[1]");
    EXPECT_TRUE(message == "Not enough memory available in buffer to process expression!" ||
                message.find("is expanded without end") != std::string::npos)
        << message;
}

TEST(FunctionLines, SplicingBeyondTheLineBufferIsRefused) {
    Parser parser("", "");
    const LineCase table[] = {
        {"f[x] = x+x+x+x+x+x+x+x+x+x", ""},
        {"g[x] = f[x]+f[x]+f[x]+f[x]", ""},
        {"h[x] = g[x]+g[x]+g[x]+g[x]", ""},
        {"g[1]", " = 40"},
    };
    check_lines(parser, table);
    EXPECT_EQ(evaluate(parser, "h[1]"),
              "Not enough memory available in buffer to process expression!");
    EXPECT_EQ(evaluate(parser, "f[1]"), " = 10");
}

TEST(FunctionLines, DeclarationFlags) {
    Parser parser("", "");
    EXPECT_STREQ(parser.eval_exp("f[x] = x^2", true, true), "");
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_TRUE(parser.function_declared);
    EXPECT_FALSE(parser.funcs_saved);
    parser.eval_exp("f[2]", true, true);
    EXPECT_FALSE(parser.function_declared);
    parser.eval_exp("(", true, true);
    EXPECT_TRUE(parser.IsAnError()) << "an early failure does not inherit the declaration flag";
}

TEST(FunctionTable, TextsAndLookUps) {
    Parser parser("", "");
    parser.eval_exp("f(x, y) = x^2 +  y", true, true);
    ASSERT_EQ(parser.functions.count(), 1);
    EXPECT_STREQ(parser.get_func_str(0), "f[x,y] = x^2+y");
    EXPECT_STREQ(parser.get_func_str_ex(0), "f(x,y) = x^2+y");
    EXPECT_STREQ(parser.get_func_name_ex(0), "f(x,y)");
    EXPECT_STREQ(parser.get_func_short_name(0), "f");
    EXPECT_EQ(parser.find_function("f"), 0);
    EXPECT_EQ(parser.find_function("f(x,y)"), 0);
    EXPECT_EQ(parser.find_function("f[x]"), -1);
    EXPECT_EQ(parser.find_function("F"), -1);
    EXPECT_TRUE(parser.is_func_variable("f", "y"));
    EXPECT_FALSE(parser.is_func_variable("f", "z"));
    EXPECT_EQ(parser.get_num_func_vars(0), 2);
    EXPECT_EQ(parser.get_func_value_len(0), 6);
    EXPECT_EQ(parser.max_func_length(), 6);
    EXPECT_STREQ(parser.get_func_variable(0, true), "x");
    EXPECT_STREQ(parser.get_func_variable(0, false), "y");
    EXPECT_STREQ(parser.get_func_variable(0, false), "");
    parser.eval_exp("g[a] = a a", true, true);
    EXPECT_STREQ(parser.get_func_value(1), "a a") << "two names must not run into one";
    parser.eval_exp("c[a] = a<=2", true, true);
    EXPECT_STREQ(parser.get_func_value("c"), "a<=2");
    EXPECT_TRUE(parser.delete_function(0));
    EXPECT_EQ(parser.find_function("f"), -1);
    parser.delete_all_funcs();
    EXPECT_EQ(parser.functions.count(), 0);
}

TEST(FunctionRecord, SubstitutionTouchesWholeNamesOnly) {
    struct Case {
        const char *body, *argument, *expected;
    };
    const Case table[] = {
        {"x+xa+a2x+x2", "(7)", "(7)+xa+a2x+x2"},
        {"2x", "(7)", "2(7)"},
        {"(x)", "(7)", "((7))"},
        {"2.5x", "(7)", "2.5(7)"},
        {"x^x", "(y)", "(y)^(y)"},
        {"sin[x]", "(1)", "sin[(1)]"},
    };
    for (const auto &c : table) {
        Function f("f[x]", c.body);
        EXPECT_TRUE(f.ModFuncValue(1, c.argument)) << c.body;
        EXPECT_EQ(f.mod_value, c.expected) << c.body;
        f.SubstituteArguments({c.argument});
        EXPECT_EQ(f.mod_value, c.expected) << c.body;
    }
    Function f("f[x]", "xa");
    EXPECT_FALSE(f.ModFuncValue(1, "(7)"));
    EXPECT_TRUE(f.ModFuncValue(1, "x")) << "the name itself changes nothing";
    EXPECT_FALSE(f.ModFuncValue(-1, "(7)"));
    EXPECT_FALSE(f.ModFuncValue(1, nullptr));
}

TEST(FunctionRecord, NamesVariablesAndTexts) {
    Function f("area[w,h]", "w*h");
    EXPECT_EQ(f.short_name, "area");
    EXPECT_EQ(f.num_vars, 2);
    EXPECT_STREQ(f.GetFuncVariable(1), "w");
    EXPECT_STREQ(f.GetFuncVariable(0), "h");
    EXPECT_TRUE(f.IsFuncVariable("h"));
    EXPECT_STREQ(f.GetFuncFullNameAndValue(), "area[w,h] = w*h");
    Function empty("e[x]", nullptr);
    EXPECT_EQ(empty.GetFuncFullNameAndValue(), nullptr);
}

TEST(CallBrackets, ParenthesesOfCallsOnlyBecomeBrackets) {
    Parser parser("", "");
    parser.eval_exp("f[x] = x", true, true);
    struct Case {
        const char *text, *expected;
    };
    const Case table[] = {
        {"f(2)", "f[2]"},
        {"f((1+2)*3)", "f[(1+2)*3]"},
        {"2*(f(f(1)))", "2*(f[f[1]])"},
        {"g(x) = x", "g[x] = x"},
        {"a(2)", "a(2)"},
        {"f (2)", "f (2)"},
    };
    for (const auto &c : table) {
        std::string text = c.text;
        parser.insert_brackets(text.data(), 1);
        EXPECT_EQ(text, c.expected) << c.text;
    }
    std::string back = "f[[1]]";
    parser.insert_brackets(back.data(), 0);
    EXPECT_EQ(back, "f([1])");
}

}  // namespace
}  // namespace quindar
