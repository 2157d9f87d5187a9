// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "embedded_tables.h"

#include <strings.h>
#include <cctype>

#include <cstring>

namespace quindar::mathlib {

const EmbeddedFunctionRow kEmbeddedFunctions[kEmbeddedFunctionCount] = {
    {"SQRT", "SQRT[number]"},
    {"LN", "LN[number]"},
    {"LOG10", "LOG10[number]"},
    {"LOG", "LOG[number,base]"},
    {"EXP", "EXP[number]"},
    {"POW", "POW[base,exponent]"},
    {"ABS", "ABS[number]"},
    {"ROUND", "ROUND[number]"},
    {"TRUNC", "TRUNC[number]"},
    {"REM", "REM[number1,number2]"},
    {"FLOOR", "FLOOR[number]"},
    {"CEIL", "CEIL[number]"},
    {"GCD", "GCD[number1,number2]"},
    {"LCM", "LCM[number1,number2]"},
    {"RTOP", "RTOP[X,Y]"},
    {"PTOR", "PTOR[R,THETA]"},
    {"BASECON", "BASECON[decimalNumber,base]"},
    {"CUBERT", "CUBERT[number]"},
    {"REAL", "REAL[complexNumber]"},
    {"IMAG", "IMAG[complexNumber]"},
    {"NORM", "NORM[complexNumber]"},
    {"CMAG", "CMAG[complexNumber]"},
    {"CANGLE", "CANGLE[complexNumber]"},
    {"PTOC", "PTOC[mag,angle]"},
    {"CONJ", "CONJ[complexNumber]"},
    {"DEG", "DEG[radians]"},
    {"RAD", "RAD[degrees]"},
    {"SIN", "SIN[number]"},
    {"COS", "COS[number]"},
    {"TAN", "TAN[number]"},
    {"SINH", "SINH[number]"},
    {"COSH", "COSH[number]"},
    {"TANH", "TANH[number]"},
    {"ASIN", "ASIN[number]"},
    {"ACOS", "ACOS[number]"},
    {"ATAN", "ATAN[number]"},
    {"ASINH", "ASINH[number]"},
    {"ACOSH", "ACOSH[number]"},
    {"ATANH", "ATANH[number]"},
    {"HYPOT", "HYPOT[side1,side2]"},
    {"MEAN", "MEAN[{number1,number2,...numberN}]"},
    {"GMEAN", "GMEAN[{number1,number2,...numberN}]"},
    {"HMEAN", "HMEAN[{number1,number2,...numberN}]"},
    {"MEDIAN", "MEDIAN[{number1,number2,...numberN}]"},
    {"MODE", "MODE[{number1,number2,...numberN}]"},
    {"MIN", "MIN[{number1,number2,...numberN}]"},
    {"MAX", "MAX[{number1,number2,...numberN}]"},
    {"SUMX", "SUMX[{number1,number2,...numberN}]"},
    {"SUMXSQ", "SUMXSQ[{number1,number2,...numberN}]"},
    {"SUMDEV", "SUMDEV[{number1,number2,...numberN}]"},
    {"AVGDEV", "AVGDEV[{number1,number2,...numberN}]"},
    {"SUMDEVSQ", "SUMDEVSQ[{number1,number2,...numberN}]"},
    {"RANGE", "RANGE[{number1,number2,...numberN}]"},
    {"COUNT", "COUNT[{number1,number2,...numberN}]"},
    {"RANK", "RANK[{number1,number2,...numberN}, value]"},
    {"SVAR", "SVAR[{number1,number2,...numberN}]"},
    {"PVAR", "PVAR[{number1,number2,...numberN}]"},
    {"SSTDEV", "SSTDEV[{number1,number2,...numberN}]"},
    {"PSTDEV", "PSTDEV[{number1,number2,...numberN}]"},
    {"NORDIST", "NORDIST[mean,stdev,x]"},
    {"NORPROB", "NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]"},
    {"NORMX", "NORMX[mean,stdev,alpha] or [{num1,num2,...numN},alpha]"},
    {"ZSCORE", "ZSCORE[mean,stdev,x] or [{num1,num2,...numN},x]"},
    {"SKEW", "SKEW[{number1,number2,...numberN}]"},
    {"KURT", "KURT[{number1,number2,...numberN}]"},
    {"PRCTLE", "PRCTLE[{number1,number2,...NumberN},percentileValue]"},
    {"LQRTLE", "LQRTLE[{number1,number2,...numberN}]"},
    {"UQRTLE", "UQRTLE[{number1,number2,...numberN}]"},
    {"COMB", "COMB[N,R]"},
    {"PERM", "PERM[N,R]"},
    {"WSNORM", "WSNORM[{number1,number2,...numberN},alpha]"},
    {"RAND", "RAND[lowerLimit,upperLimit]"},
    {"NORDEV", "NORDEV[mean,stdev]"},
    {"EXPDEV", "EXPDEV[shapeParameter]"},
    {"RAYDEV", "RAYDEV[median,anchor]"},
    {"BERDEV", "BERDEV[probability]"},
    {"BETADEV", "BETADEV[alpha,beta]"},
    {"BNLDEV", "BNLDEV[trials,probability]"},
    {"CAUDEV", "CAUDEV[mean,s]"},
    {"CHIDEV", "CHIDEV[dof]"},
    {"DEXPDEV", "DEXPDEV[mean,s]"},
    {"FDEV", "FDEV[dfn,dfd]"},
    {"GAMDEV", "GAMDEV[alpha,beta]"},
    {"LOGDEV", "LOGDEV[mean,b]"},
    {"NCHIDEV", "NCHIDEV[dof,xnonc]"},
    {"AND", "AND[logicalExp1,logicalExp2,...logicalExpN]"},
    {"OR", "OR[logicalExp1,logicalExp2,...logicalExpN]"},
    {"NOT", "NOT[logicalExp]"},
    {"IF", "IF[logicalExp,valueIfTrue,valueIfFalse]"},
    {"SRESIST", "SRESIST[{number1,number2,...numberN}]"},
    {"PRESIST", "PRESIST[{number1,number2,...numberN}]"},
};

// Each value is the double nearest to the decimal, widened.
const ConstantRow kConstants[kConstantCount] = {
    {"PI", static_cast<double>(3.14159265358979323846L)},
    {"e", static_cast<double>(2.7182818284590452353L)},
    {"PLANK", 6.6262e-34},
    {"BOLTZMANN", 1.38062e-23},
    {"AVAGADRO", 6.02217e+23},
    {"FARADAY", 96486.7},
    {"GAS", 8.31434},
    {"GRAVCON", 6.6732e-11},
    {"GRAVITY", 9.80665},
    {"LIGHT", 299792458},
    {"SOUND", 331.45},
    {"ABSTEMP", -273.15},
    {"PERMITIVITY", 8.85419e-12},
    {"EULER", 0.577215664901532},
    {"TRUE", 1},
    {"FALSE", 0},
};

namespace {

const char *const kMessages[kMathlibMessageCount] = {
    "%s function call is incomplete, may require a closing bracket!",
    "Comma expected between expressions in %s function call!",
    "No parameters given in %s function call!",
    "Parameter required in %s function call !",
    "Two parameters required in %s function call!",
    "Three parameters required in %s function call!",
    "Four parameters required in %s function call!",
    "Too many parameters detected in %s function!",
    "Comma is out of place in %s function call!",
    "Two or more data points are expected in list for %s function call!",
    "Bracket of type [ or ] out of place or missing in %s function call!",
    "Brace/s of type { or } missing for data list or data file in %s function call!",
    "The parameters for %s function call must be real numbers!",
    "A data point in the %s function call in not a real number!",
    "Data file ' %s ' could not be located for %s function call!",
    "No data found in the ' %s ' data file for %s function call!",
    "Too many data points found in the ' %s ' data file for %s function call!",
    "Invalid data found in the ' %s ' data file for %s function call!",
    "The parameters for %s function call must be non negative integers!",
    "The %s function can not be used in a mathematical expression!",
    "Can not compute the %s of zero, calculation aborted!",
    "Non-logical expression in %s function call!",
    "A logical expression plus two parameters required in %s function call!",
    "The number to be converted must be a positive integer in %s function call!",
    "The base value must be an integer between 2 and 16 in %s function call!",
    "Base value must be greater than or equal to 2 in %s function call!",
    "N can not be less than R in %s function call!",
    "You can not calculate the %s of a complex number in 'DEGREES' mode.\nYou must change to "
    "'RADIANS' mode in the mathematical options dialog!",
    "To properly compute the %s of the specific argument, you must\nchange to 'RADIANS' mode in "
    "the mathematical options dialog!",
    "Sorry, the function \"%s\" is not currently available!",
    "%s is not a valid parameter for the function %s, the function can not be evaluated at this "
    "value!",
    "The value of alpha must be less than or equal to one in the %s function.",
    "%s : the error occured in %s function call!",
    "Evaluation of the ' %s ' function generated a floating point overflow!",
    "The parameters for the ' %s ' function must be between -1 and 1 !",
    "The imaginary value for the ' %s ' function can not be greater than 354!",
    "Only base 10 mathematics are currently supported. The %s function call is not using base 10",
    "The %s function can not be evaluated at the specified parameter value!",
    "Solution of the %s function can not be displayed within the number of significant digits "
    "allowed!",
    "The parameter to the %s must be a real number!",
    "The probability parameter in the %s must be between the values of 0 and 1!",
    "The value of alpha must be greater than 0 in the %s function.",
    "The value of beta must be greater than 0 in the %s function.",
    "The number of trials must be greater than 0 in the %s function.",
    "The degrees of freedom (dof) must be greater than 0 in the %s function.",
    "The degrees of freedom (dof) must be greater than 1 in the %s function.",
    "The non-centralized parameter must be greater than or equal to 0 in the %s function.",
    "An Exception Occured While Computing The ' %s ' Function!",
};

}  // namespace

int function_index(const char *name) {
    if (name == nullptr) return -1;
    // Every line asks this of each of its names: the first letter spares most comparisons.
    const int first = std::tolower(static_cast<unsigned char>(name[0]));
    for (int i = 0; i < kEmbeddedFunctionCount; ++i)
        if (std::tolower(static_cast<unsigned char>(kEmbeddedFunctions[i].name[0])) == first &&
            strcasecmp(kEmbeddedFunctions[i].name, name) == 0)
            return i;
    return -1;
}

int constant_index(const char *name) {
    if (name == nullptr) return -1;
    for (int i = 0; i < kConstantCount; ++i)
        if (std::strcmp(kConstants[i].name, name) == 0) return i;
    return -1;
}

const char *mathlib_message(int number) {
    return number >= 0 && number < kMathlibMessageCount ? kMessages[number] : "";
}

}  // namespace quindar::mathlib
