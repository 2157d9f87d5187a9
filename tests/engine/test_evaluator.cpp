// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Lines in, answer texts or error texts out.
#include <gtest/gtest.h>

#include <string>

#include "line_table.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::evaluate;
using testing::LineCase;

TEST(Literals, NumbersPointsAndScientificForms) {
    const LineCase table[] = {
        {"42", " = 42"},
        {".5", " = 0.5"},
        {"5.", " = 5"},
        {"007", " = 7"},
        {"1e+3", " = 1000"},
        {"1E-3", " = 0.001"},
        {"1.5e+3", " = 1500"},
        {"2.5E+0", " = 2.5"},
        {"123456789012345678e-3", " = 1.2345678901235e+14"},
        {"1.2.3", "Too many decimal points found in number!"},
        {".", "Improper use of decimal point"},
        {".x", "Improper use of decimal point"},
        {"1e", "No sign on scientific notation exponent!"},
        {"1e3", "' e3 ' can not be identified as a variable or a constant!"},
        {"1e+", "Number missing for scientific notation exponent!"},
        {"1e+x", "Number missing for scientific notation exponent!"},
        {"1e+2.5", "Scientific notation exponent must be an integer!"},
        {"1e+307", " = 1e+307"},
        {"2e+307", "Numbers greater than 1.0e+307 can not be computed!"},
        {"1e+400", "Numbers greater than 1.0e+307 can not be computed!"},
        {"1e-307", " = 0"},
        {"1e-308", "Numbers smaller than 1.0e-307 can not be computed!"},
        {"0e-400", " = 0"},
    };
    check_lines(table);
}

TEST(Literals, ImaginaryUnit) {
    const LineCase table[] = {
        {"i", " = i"},
        {"3i", " = 3i"},
        {"3 i", " = 3i"},
        {"i3", " = 3i"},
        {"i*3", " = 3i"},
        {"-i", " = -i"},
        {"2i3", "Syntax error!"},
        {"i = 2",
         "The character ' i ' is reserved for complex numbers, it can not be assigned a value!"},
        {"1-i", " = 1-i"},
        {"2+i", " = 2+i"},
        {"(1+i)i", " = -1+i"},
    };
    check_lines(table);
}

TEST(Operators, EachOperatorThroughDecimalArithmetic) {
    const LineCase table[] = {
        {"2+3", " = 5"},
        {"0.1+0.2", " = 0.3"},
        {"1+1e-15", " = 1"},
        {"10-0.3", " = 9.7"},
        {"6*7", " = 42"},
        {"1/3", " = 0.33333333333333"},
        {"1/3*3", " = 0.99999999999999"},
        {"2/3", " = 0.66666666666667"},
        {"7 % -3", " = 1"},
        {"-7 % 3", " = -1"},
        {"7.5 % 2", "Modulus Arguments Must Be Integers!"},
        {"i % 2", "Modulus Operator ' % ' Can Not Be Used With Complex Numbers!"},
        {"5 % 0", "Division By Zero Encountered!"},
        {"2^10", " = 1024"},
        {"2^0.5", " = 1.4142135623731"},
        {"2^-1", " = 0.5"},
        {"(-8)^(1/3)", " = 1+1.7320508075689i"},
        {"i^2", " = -1"},
        {"0^2", " = 0"},
        {"3!", " = 6"},
        {"0!", " = 1"},
        {"20!", " = 2.4329020081766e+18"},
        {"2.5!", "Factorial argument must be an integer greater than Or equal to zero!"},
        {"i!", "Factorial operator ' ! ' can not be used with complex numbers!"},
        {"1/0", "Division By Zero Encountered!"},
        {"(1+2i)*(3-i)", " = 5+5i"},
        {"(1+2i)/(3-i)", " = 0.1+0.7i"},
        {"1/i", " = -i"},
    };
    check_lines(table);
}

TEST(Operators, PrecedenceAndAssociativity) {
    const LineCase table[] = {
        {"2+3*4", " = 14"},
        {"(2+3)*4", " = 20"},
        {"10-4-3", " = 3"},
        {"64/4/2", " = 8"},
        {"-2^2", " = 4"},
        {"2*-3", " = -6"},
        {"2^3^2", "Syntax error!"},
        {"2^(3^2)", " = 512"},
        {"--2", "Syntax error!"},
        {"-3!", "Factorial argument must be an integer greater than Or equal to zero!"},
        {"3!!", "Syntax error!"},
        {"+5", " = 5"},
        {"2*3^2", " = 18"},
        {"-(2+3)", " = -5"},
    };
    check_lines(table);
}

TEST(Operators, ImplicitMultiplication) {
    const LineCase table[] = {
        {"2(3)", " = 6"},       {"(2)3", " = 6"},         {"(2)(3)", " = 6"},
        {"5!(2)", " = 240"},    {"5!2", "Syntax error!"}, {"2 3", "Syntax error!"},
        {"(2)(3)(4)", " = 24"}, {"2(3)(4)", " = 24"},     {"(1+i)(1-i)", " = 2"},
    };
    check_lines(table);
}

TEST(Operators, ComparisonChains) {
    const LineCase table[] = {
        {"1 < 2", " = 1"},
        {"2 < 1", " = 0"},
        {"1 < 2 < 3", " = 1"},
        {"1 < 3 < 2", " = 0"},
        {"2 <= 2", " = 1"},
        {"3 >= 4", " = 0"},
        {"3 > 2", " = 1"},
        {"3!=6", " = 1"},
        {"3 == 3", " = 1"},
        {"1 == 1.000000000000001", " = 1"},
        {"1 == 1.00000000000001", " = 1"},
        {"1 == 1.0000000000001", " = 0"},
        {"1+2i > 2+i", " = 0"},
        {"1+2i < 2+i", " = 0"},
        {"2+i > 1", " = 1"},
        {"(1 < 2) + 1", " = 2"},
        {"3 > 2 > 1 > 0", " = 1"},
        {"1 < = 2", "Syntax error!"},
        {"1 < 0 < 1/0", "Division By Zero Encountered!"},
    };
    check_lines(table);
}

TEST(Errors, EveryRaisedMessageOfTheGrammar) {
    const LineCase table[] = {
        {"", "No expression present!"},
        {"   ", "No expression present!"},
        {"=2", "Improper assignment!"},
        {"  = 2", "Improper assignment!"},
        {"(2", "Unbalanced parentheses in expression!"},
        {"2)", "Unbalanced parentheses in expression!"},
        {"(2))(", "Unbalanced parentheses in expression!"},
        {")(", "Syntax error!"},
        {"[2", "Unbalanced function brackets in expression!"},
        {"[1,2]", "Syntax error!"},
        {"2+", "Number or expression expected with operator!"},
        {"(2+)", "Number or expression expected with operator!"},
        {"2*", "Number or expression expected with operator!"},
        {"(*2)", "Number or expression expected with operator!"},
        {"()", "Syntax error!"},
        {"2;3", "' ; ' is not a legitimate mathematical character!"},
        {"2 # 3", "' # ' is not a legitimate mathematical character!"},
        {"2_3", "' _ ' is not a legitimate mathematical character!"},
        {"\x01", "' U+0001 ' is not a legitimate mathematical character!"},
        {"1, 2",
         "A comma ' , ' can only be used to separate function parameters or define an incremental "
         "variable!"},
        {"x = 1, 2",
         "A comma ' , ' can only be used to separate function parameters or define an incremental "
         "variable!"},
        {"x = a, b, 5",
         "A comma ' , ' can only be used to separate function parameters or define an incremental "
         "variable!"},
        {"x = -1, -10, 5",
         "A comma ' , ' can only be used to separate function parameters or define an incremental "
         "variable!"},
        {"x", "' x ' Could Not Be Identified As A Variable Or Function."},
        {"x y", "' x ' can not be identified as a variable or a constant!"},
        {"x + 1", "' x ' can not be identified as a variable or a constant!"},
        {"1 + x", "' x ' can not be identified as a variable or a constant!"},
        {"nofunc[1]", "' nofunc ' can not be identified as a function!"},
        {"f[2] = 3", "' f ' can not be identified as a function!"},
        {"POW[1", "Unbalanced function brackets in expression!"},
    };
    check_lines(table);
}

TEST(Errors, NumberOfTheLatestError) {
    Parser parser("", "");
    parser.eval_exp("2+", true, true);
    EXPECT_EQ(parser.GetLastErrorNumber(), 5);
    parser.eval_exp("x", true, true);
    EXPECT_EQ(parser.GetLastErrorNumber(), -1);
    parser.eval_exp("2", true, true);
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(parser.GetLastErrorNumber(), -1);
}

TEST(Errors, OverlongLineIsRefusedWholeWithBufferMessage) {
    Parser parser("", "");
    std::string line(1023, ' ');
    line[0] = '1';
    EXPECT_EQ(evaluate(parser, line.c_str()), " = 1");
    line.push_back(' ');
    EXPECT_EQ(evaluate(parser, line.c_str()),
              "Not enough memory available in buffer to process expression!");
}

}  // namespace
}  // namespace quindar
