// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Functions computed through the complex decimal layer: general functions and the
// circular and hyperbolic families in both angle modes.
#include <gtest/gtest.h>

#include "line_table.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::LineCase;

TEST(DecimalFunctions, GeneralFunctions) {
    const LineCase table[] = {
        {"SQRT[4]", " = 2"},
        {"sqrt[4] + Sqrt(4) + SQRT[ 4 ]", " = 6"},
        {"SQRT[-4]", " = 2i"},
        {"SQRT[0]", " = 0"},
        {"SQRT[-2i]", " = 1-i"},
        {"SQRT[]", "Parameter required in SQRT function call !"},
        {"SQRT[1,2]", "Too many parameters detected in SQRT function!"},
        {"LN[0]", "Can not compute the LN of zero, calculation aborted!"},
        {"LN[-1]", " = 3.1415926535898i"},
        {"LN[2+3i]", " = 1.2824746787308+0.98279372324733i"},
        {"LOG10[100]", " = 2"},
        {"LOG10[0]", "Can not compute the LOG10 of zero, calculation aborted!"},
        {"EXP[1]", " = 2.718281828459"},
        {"EXP[i*PI]", " = -1"},
        {"POW[2,0.5] == SQRT[2]", " = 1"},
        {"ABS[3+4i]", " = 5"},
        {"ABS[-2.5]", " = 2.5"},
        {"ROUND[2.5]", " = 3"},
        {"ROUND[-2.5]", " = -3"},
        {"ROUND[2.5-1.5i]", " = 3-2i"},
        {"TRUNC[-2.7]", " = -2"},
        {"FLOOR[-2.5]", " = -3"},
        {"CEIL[2.1]", " = 3"},
        {"FLOOR[-1e+20]", " = -1e+20"},
        {"FLOOR[99999999999999.9]",
         "Solution of the FLOOR function can not be displayed within the number of significant "
         "digits allowed!"},
        {"CEIL[99999999999999.9]",
         "Solution of the CEIL function can not be displayed within the number of significant "
         "digits allowed!"},
        {"REM[7.5,2]", " = 0"},
        {"REM[-7,3]", " = -1"},
        {"REM[5,0.4]", " = 0"},
        {"REM[5,0]", "Can not compute the REM of zero, calculation aborted!"},
        {"REM[7+2i,2]", " = 1"},  // Gaussian: Q = (3.5+i) cut to 3+i
        {"REM[1.23456789012345,2]",
         "The specified operation on the number ' 1.23456789012345 ' can not be performed because "
         "this number has more significant digits than the operation can support."},
        {"DEG[PI]", " = 180"},
        {"RAD[180]", " = 3.1415926535898"},
        {"DEG[PI+PI*i]", " = 180+180i"},
        {"CUBERT[-27]", " = 1.5+2.5980762113533i"},
    };
    check_lines(table);
}

TEST(DecimalFunctions, CircularFunctionsInDegrees) {
    const LineCase table[] = {
        {"SIN[30]", " = 0.5"},
        {"COS[60]", " = 0.5"},
        {"TAN[45]", " = 1"},
        {"SIN[180]", " = 0"},
        {"TAN[90]",
         "90 is not a valid parameter for the function TAN, the function can not be evaluated at "
         "this value!"},
        {"TAN[270]",
         "270 is not a valid parameter for the function TAN, the function can not be evaluated at "
         "this value!"},
        {"TAN[-90]",
         "-90 is not a valid parameter for the function TAN, the function can not be evaluated at "
         "this value!"},
        {"TAN[450]",
         "450 is not a valid parameter for the function TAN, the function can not be evaluated at "
         "this value!"},
        {"TAN[89.99999]", " = 5729577.9513082"},
        {"SIN[1+i]", " = 0.01745506465827+0.017451520273649i"},
        {"ASIN[1+i]",
         "You can not calculate the ASIN of a complex number in 'DEGREES' mode.\nYou must change "
         "to 'RADIANS' mode in the mathematical options dialog!"},
        {"ASIN[1]", " = 90"},
        {"ACOS[-1]", " = 180"},
        {"ATAN[1]", " = 45"},
        {"ASIN[1.5]", "The parameters for the ' ASIN ' function must be between -1 and 1 !"},
        {"SIN[1.23456789012345]",
         "The specified operation on the number ' 1.23456789012345 ' can not be performed because "
         "this number has more significant digits than the operation can support."},
        {"SIN[1.2345678901234]", " = 0.021545607214559"},
        {"SIN[1.2345678901234000]",
         "The specified operation on the number ' 1.2345678901234000 ' can not be performed "
         "because this number has more significant digits than the operation can support."},
        {"SIN[0.00012345678901234]", " = 2.1547274522036e-06"},  // leading zeros do not count
        {"SIN[1e+81+1e+81i]",
         "The SIN function can not be evaluated at the specified parameter value!"},
    };
    check_lines(table);
}

TEST(DecimalFunctions, CircularFunctionsInRadians) {
    Parser parser("", "");
    parser.angle_mode = 1;
    const LineCase table[] = {
        {"sin[PI]", " = 0"},
        {"COS[PI]", " = -1"},
        {"TAN[PI/2]",
         "1.5707963267949 is not a valid parameter for the function TAN, the function can not be "
         "evaluated at this value!"},
        {"TAN[7]", " = 0.87144798272432"},
        {"ASIN[2+i]", "The parameters for the ' ASIN ' function must be between -1 and 1 !"},
        {"ASIN[1+i]", " = 0.66623943249252+1.061275061905i"},
        {"ASIN[0.5+2i]", " = 0.22101863562288+1.4657153519473i"},
        {"ATAN[i]", " = 0"},
        {"ATAN[-i]", " = 0"},
        {"ATAN[1e+20]", " = 1.5707963267949"},
        {"SIN[1e+200]", " = 0.96917148107026"},  // every digit of a huge argument counts
        {"SIN[1.2345678901234e+250]", " = 0.8571118262789"},
    };
    check_lines(parser, table);
    complex result;
    parser.eval_exp("sin[PI]", result, true, true);
    EXPECT_EQ(result.real, 0.0) << "the answer's threshold rounds the returned value too";
}

TEST(DecimalFunctions, HyperbolicFunctionsInEitherMode) {
    for (int mode : {0, 1}) {
        Parser parser("", "");
        parser.angle_mode = mode;
        const LineCase table[] = {
            {"SINH[0]", " = 0"},
            {"COSH[0]", " = 1"},
            {"TANH[1+i]", " = 1.0839233273387+0.27175258531951i"},
            {"COSH[1+2i]", " = -0.64214812471552+1.0686074213828i"},
            {"ATANH[1]", "The parameters for the ' ATANH ' function must be between -1 and 1 !"},
            {"ATANH[-1]", "The parameters for the ' ATANH ' function must be between -1 and 1 !"},
            {"ATANH[0.5]", " = 0.54930614433406"},
            {"ACOSH[0.5]", " = 1.0471975511966i"},
            {"ASINH[1]", " = 0.88137358701954"},
            {"HYPOT[3,4]", " = 5"},
            {"HYPOT[3,4i]", "The parameters for HYPOT function call must be real numbers!"},
        };
        check_lines(parser, table);
    }
}

TEST(DecimalFunctions, DigitLimitEndsWithTheFetch) {
    Parser parser("", "");
    parser.eval_exp("SIN[1.23456789012345]", true, true);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_STREQ(parser.eval_exp("1.23456789012345 + 0", true, true), " = 1.2345678901235");
}

}  // namespace
}  // namespace quindar
