// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Embedded functions through the language: the calling path, the parameter checks and
// the general, complex and logical functions.
#include <gtest/gtest.h>

#include "line_table.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::LineCase;

TEST(EmbeddedCalls, NamesBracketsAndConstants) {
    const LineCase table[] = {
        {"POW[2,10]", " = 1024"},
        {"pow(2,10)", " = 1024"},
        {"Pow[ 2 , 10 ]", " = 1024"},
        {"PI", " = 3.1415926535898"},
        {"pi", "' pi ' Could Not Be Identified As A Variable Or Function."},
        {"1 e", " = 2.718281828459"},
        {"TRUE + FALSE", " = 1"},
        {"LIGHT", " = 299792458"},
        {"PLANK", " = 0"},  // below the zero threshold of the answer format
        {"PI = 3", "Internal constant 'PI' can not be assigned a value"},
        {"sin = 5", ""},
        {"f[PI] = 2",
         "The variable ' PI ' is currently defined as an internal constant, please use another "
         "variable name in your function definition!"},
        {"f[pow] = 2",
         "The variable ' pow ' is currently defined as an internal function, please use another "
         "variable name in your function definition!"},
        {"x = 1", ""},
        {"POW[x,2] = 2", "Syntax error!"},  // a call, then an = left over
    };
    check_lines(table);
}

TEST(EmbeddedCalls, ParameterChecks) {
    const LineCase table[] = {
        {"POW[]", "No parameters given in POW function call!"},
        {"POW[2]", "Two parameters required in POW function call!"},
        {"POW[2,]", "Two parameters required in POW function call!"},
        {"POW[2,,3]", "Comma is out of place in POW function call!"},
        {"POW[2 3]", "Comma expected between expressions in POW function call!"},
        {"POW[1,2,3]", "Too many parameters detected in POW function!"},
        {"REAL[]", "Parameter required in REAL function call !"},
        {"REAL[1,2]", "Too many parameters detected in REAL function!"},
        {"GCD[2.5,5]", "The parameters for GCD function call must be non negative integers!"},
        {"GCD[-2,5]", "The parameters for GCD function call must be non negative integers!"},
        {"GCD[2i,5]", "The parameters for GCD function call must be real numbers!"},
        {"REAL[2 3]", "Brackets of type [ or ] expected for function call!"},
        {"POW[2,3 4]", "Brackets of type [ or ] expected for function call!"},
        {"NORDIST[1,2]", "Three parameters required in NORDIST function call!"},
        {"NORPROB[1,2,3]", "Four parameters required in NORPROB function call!"},
    };
    check_lines(table);
}

TEST(EmbeddedCalls, GeneralAndComplexFunctions) {
    const LineCase table[] = {
        {"POW[2,0.5]", " = 1.4142135623731"},
        {"POW[-8,1/3]", " = 1+1.7320508075689i"},
        {"POW[0,0]", " = 0"},
        {"POW[0,-1]", " = 0"},
        {"CUBERT[27]", " = 3"},
        {"CUBERT[-8]", " = 1+1.7320508075689i"},
        {"LOG[8,2]", " = 3"},
        {"LOG[100,10]", " = 2"},
        {"LOG[8,1.5]", "Base value must be greater than or equal to 2 in LOG function call!"},
        {"LOG[8,2+i]", "Base value must be greater than or equal to 2 in LOG function call!"},
        {"LOG[0,2]", "Can not compute the LOG of zero, calculation aborted!"},
        {"GCD[12,18]", " = 6"},
        {"GCD[0,7]", " = 7"},
        {"LCM[4,6]", " = 12"},
        {"REAL[3+4i]", " = 3"},
        {"IMAG[3+4i]", " = 4"},
        {"NORM[3+4i]", " = 25"},
        {"CMAG[3+4i]", " = 5"},
        {"CONJ[1+i]", " = 1-i"},
        {"CANGLE[-1]", " = 180"},
        {"CANGLE[i]", " = 90"},
        {"PTOC[2,0]", " = 2"},
        {"PTOC[2,i]", "The parameters for PTOC function call must be real numbers!"},
    };
    check_lines(table);
}

TEST(EmbeddedCalls, WholeLineFunctions) {
    const LineCase table[] = {
        {"RTOP[1,1]", " = (1.4142135623731, 45)"},
        {"RTOP[0,0]", " = (0, 0)"},
        {"2*RTOP[1,1]", "The RTOP function can not be used in a mathematical expression!"},
        {"RTOP[1,1]+1", "The RTOP function can not be used in a mathematical expression!"},
        {"PTOR[2,0]", " = (2, 0)"},
        {"BASECON[255,16]", " = FF"},
        {"BASECON[5,2]", " = 101"},
        {"BASECON[0,2]",
         "The number to be converted must be a positive integer in BASECON function call!"},
        {"BASECON[5,17]",
         "The base value must be an integer between 2 and 16 in BASECON function call!"},
    };
    check_lines(table);
}

TEST(EmbeddedCalls, AnglesFollowTheMode) {
    Parser parser("", "");
    parser.angle_mode = 1;
    const LineCase table[] = {
        {"CANGLE[-1]", " = 3.1415926535898"},
        {"RTOP[0,1]", " = (1, 1.5707963267949)"},
        {"PTOR[1,0]", " = (1, 0)"},
    };
    check_lines(parser, table);
}

TEST(EmbeddedCalls, LogicalFunctions) {
    const LineCase table[] = {
        {"AND[1,2]", "Non-logical expression in AND function call!"},
        {"AND[0,1]", " = 0"},
        {"AND[1,1,1<2]", " = 1"},
        {"OR[1]", " = 1"},
        {"OR[0,0]", " = 0"},
        {"OR[0,1/0]", "Division By Zero Encountered!"},
        {"NOT[0]", " = 1"},
        {"NOT[2]", "Non-logical expression in NOT function call!"},
        {"IF[1<2,3,4]", " = 3"},
        {"IF[2<1,3,4]", " = 4"},
        {"IF[1<2,3,1/0]", "Division By Zero Encountered!"},
        {"IF[1<2,3]", "A logical expression plus two parameters required in IF function call!"},
        {"IF[5,3,4]", "Non-logical expression in IF function call!"},
    };
    check_lines(table);
}

}  // namespace
}  // namespace quindar
