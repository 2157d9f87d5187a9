// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_texts.h"

#include <algorithm>
#include <array>
#include <string>

#include "embedded_tables.h"

namespace quindar::mathlib {

namespace {

constexpr std::array<FunctionText, kEmbeddedFunctionCount> kFunctionTexts{{
    {"SQRT", "SQRT[number]",
     "Returns the square root of the number. The root of a negative or complex number is the "
     "complex principal root."},
    {"LN", "LN[number]",
     "Returns the natural logarithm (base e) of the number. The number can not be zero; a "
     "negative or complex number gives a complex logarithm."},
    {"LOG10", "LOG10[number]",
     "Returns the common logarithm (base 10) of the number. The number can not be zero."},
    {"LOG", "LOG[number,base]",
     "Returns the logarithm of the number to the given base. For example, LOG[8,2] returns 3."},
    {"EXP", "EXP[number]",
     "Returns e raised to the power of the number, where e = 2.71828182845905 is the base of "
     "the natural logarithm."},
    {"POW", "POW[base,exponent]",
     "Returns the base raised to the power of the exponent, the same as base^exponent."},
    {"ABS", "ABS[number]",
     "Returns the absolute value of the number. For a complex number it returns the magnitude, "
     "so ABS[3+4i] returns 5."},
    {"ROUND", "ROUND[number]", "Returns the number rounded to the nearest whole number."},
    {"TRUNC", "TRUNC[number]",
     "Returns the whole number part of the number; the fractional part is dropped, so "
     "TRUNC[-2.7] returns -2."},
    {"REM", "REM[number1,number2]",
     "Returns the remainder of number1 divided by number2. number2 can not be zero."},
    {"FLOOR", "FLOOR[number]",
     "Returns the largest whole number that is less than or equal to the number, so "
     "FLOOR[-2.5] returns -3."},
    {"CEIL", "CEIL[number]",
     "Returns the smallest whole number that is greater than or equal to the number, so "
     "CEIL[2.1] returns 3."},
    {"GCD", "GCD[number1,number2]",
     "Returns the greatest common divisor of the two numbers. The numbers must be non negative "
     "integers."},
    {"LCM", "LCM[number1,number2]",
     "Returns the least common multiple of the two numbers. The numbers must be non negative "
     "integers."},
    {"RTOP", "RTOP[X,Y]",
     "Converts the rectangular coordinates (X, Y) to polar coordinates and shows them as "
     "(R, THETA), with the angle in the current angle mode. The function must stand alone on "
     "its line."},
    {"PTOR", "PTOR[R,THETA]",
     "Converts the polar coordinates (R, THETA) to rectangular coordinates and shows them as "
     "(X, Y), with the angle in the current angle mode. The function must stand alone on its "
     "line."},
    {"BASECON", "BASECON[decimalNumber,base]",
     "Converts a positive whole decimal number into the given base, from 2 to 16, and shows "
     "its digits. For example, BASECON[255,16] shows FF. The function must stand alone on its "
     "line."},
    {"CUBERT", "CUBERT[number]",
     "Returns the cube root of the number, computed as the number raised to the power 1/3."},
    {"REAL", "REAL[complexNumber]", "Returns the real part of the complex number."},
    {"IMAG", "IMAG[complexNumber]",
     "Returns the imaginary part of the complex number, as a real number."},
    {"NORM", "NORM[complexNumber]",
     "Returns the norm of the complex number: the square of its real part plus the square of "
     "its imaginary part, so NORM[3+4i] returns 25."},
    {"CMAG", "CMAG[complexNumber]",
     "Returns the magnitude of the complex number, the square root of its norm, so CMAG[3+4i] "
     "returns 5."},
    {"CANGLE", "CANGLE[complexNumber]",
     "Returns the angle of the complex number measured from the positive real axis, in the "
     "current angle mode. The negative real axis has the angle 180 degrees (PI radians)."},
    {"PTOC", "PTOC[mag,angle]",
     "Returns the complex number of the given magnitude and angle. The angle is always taken "
     "in radians."},
    {"CONJ", "CONJ[complexNumber]",
     "Returns the complex conjugate of the number: the same real part and the imaginary part "
     "with its sign changed."},
    {"DEG", "DEG[radians]", "Converts an angle measured in radians into degrees."},
    {"RAD", "RAD[degrees]", "Converts an angle measured in degrees into radians."},
    {"SIN", "SIN[number]",
     "Returns the sine of the angle, measured in the current angle mode (degrees or radians)."},
    {"COS", "COS[number]",
     "Returns the cosine of the angle, measured in the current angle mode (degrees or "
     "radians)."},
    {"TAN", "TAN[number]",
     "Returns the tangent of the angle, measured in the current angle mode (degrees or "
     "radians)."},
    {"SINH", "SINH[number]", "Returns the hyperbolic sine of the number."},
    {"COSH", "COSH[number]", "Returns the hyperbolic cosine of the number."},
    {"TANH", "TANH[number]", "Returns the hyperbolic tangent of the number."},
    {"ASIN", "ASIN[number]",
     "Returns the angle whose sine is the number, in the current angle mode. For real results "
     "the number must be between -1 and 1."},
    {"ACOS", "ACOS[number]",
     "Returns the angle whose cosine is the number, in the current angle mode. For real "
     "results the number must be between -1 and 1."},
    {"ATAN", "ATAN[number]",
     "Returns the angle whose tangent is the number, in the current angle mode."},
    {"ASINH", "ASINH[number]",
     "Returns the inverse hyperbolic sine of the number: the value whose hyperbolic sine is the "
     "number."},
    {"ACOSH", "ACOSH[number]",
     "Returns the inverse hyperbolic cosine of the number: the value whose hyperbolic cosine is "
     "the number."},
    {"ATANH", "ATANH[number]",
     "Returns the inverse hyperbolic tangent of the number: the value whose hyperbolic tangent "
     "is the number."},
    {"HYPOT", "HYPOT[side1,side2]",
     "Returns the length of the hypotenuse of a right triangle with the two sides given: the "
     "square root of side1^2 + side2^2."},
    {"MEAN", "MEAN[{number1,number2,...numberN}]",
     "Returns the arithmetic mean (average) of the list of numbers."},
    {"GMEAN", "GMEAN[{number1,number2,...numberN}]",
     "Returns the geometric mean of the list of numbers: the Nth root of their product."},
    {"HMEAN", "HMEAN[{number1,number2,...numberN}]",
     "Returns the harmonic mean of the list of numbers: N divided by the sum of their "
     "reciprocals."},
    {"MEDIAN", "MEDIAN[{number1,number2,...numberN}]",
     "Returns the median, the middle value of the sorted list of numbers; with an even count "
     "the average of the two middle values."},
    {"MODE", "MODE[{number1,number2,...numberN}]",
     "Returns the value that occurs most often in the list of numbers; a tie goes to the "
     "smaller number."},
    {"MIN", "MIN[{number1,number2,...numberN}]", "Returns the smallest number in the list."},
    {"MAX", "MAX[{number1,number2,...numberN}]", "Returns the largest number in the list."},
    {"SUMX", "SUMX[{number1,number2,...numberN}]", "Returns the sum of the numbers in the list."},
    {"SUMXSQ", "SUMXSQ[{number1,number2,...numberN}]",
     "Returns the sum of the squares of the numbers in the list."},
    {"SUMDEV", "SUMDEV[{number1,number2,...numberN}]",
     "Returns the sum of the deviations of the numbers from their mean."},
    {"AVGDEV", "AVGDEV[{number1,number2,...numberN}]",
     "Returns the average of the absolute deviations of the numbers from their mean."},
    {"SUMDEVSQ", "SUMDEVSQ[{number1,number2,...numberN}]",
     "Returns the sum of the squares of the deviations of the numbers from their mean."},
    {"RANGE", "RANGE[{number1,number2,...numberN}]",
     "Returns the range of the list: the largest number minus the smallest."},
    {"COUNT", "COUNT[{number1,number2,...numberN}]", "Returns the number of values in the list."},
    {"RANK", "RANK[{number1,number2,...numberN}, value]",
     "Returns the rank of the value within the sorted list, counted from 1; values that tie "
     "share their average rank. A value that is not in the list returns 0."},
    {"SVAR", "SVAR[{number1,number2,...numberN}]",
     "Returns the sample variance of the list of numbers, dividing by N - 1."},
    {"PVAR", "PVAR[{number1,number2,...numberN}]",
     "Returns the population variance of the list of numbers, dividing by N."},
    {"SSTDEV", "SSTDEV[{number1,number2,...numberN}]",
     "Returns the sample standard deviation of the list of numbers, the square root of the "
     "sample variance."},
    {"PSTDEV", "PSTDEV[{number1,number2,...numberN}]",
     "Returns the population standard deviation of the list of numbers, the square root of the "
     "population variance."},
    {"NORDIST", "NORDIST[mean,stdev,x]",
     "Returns the height of the normal distribution curve of the given mean and standard "
     "deviation at x."},
    {"NORPROB", "NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]",
     "Returns the probability that a normally distributed value falls between x1 and x2: the "
     "area under the normal curve. The mean and standard deviation are given, or taken from "
     "the list."},
    {"NORMX", "NORMX[mean,stdev,alpha] or [{num1,num2,...numN},alpha]",
     "Returns the value x below which the area under the normal curve equals alpha. The mean "
     "and standard deviation are given, or taken from the list."},
    {"ZSCORE", "ZSCORE[mean,stdev,x] or [{num1,num2,...numN},x]",
     "Returns the standard score of x: (x - mean) / stdev. The mean and standard deviation are "
     "given, or taken from the list."},
    {"SKEW", "SKEW[{number1,number2,...numberN}]",
     "Returns the skewness of the list of numbers, a measure of the asymmetry of the data "
     "about its mean."},
    {"KURT", "KURT[{number1,number2,...numberN}]",
     "Returns the kurtosis of the list of numbers, a measure of how peaked or flat the data is "
     "compared with a normal distribution."},
    {"PRCTLE", "PRCTLE[{number1,number2,...NumberN},percentileValue]",
     "Returns the Pth (percentile value) from the list of numbers. For example, if percentile "
     "value = 60, then 60% of the data falls below the value returned by this function."},
    {"LQRTLE", "LQRTLE[{number1,number2,...numberN}]",
     "Returns the lower quartile of the list of numbers: the value below which a quarter of "
     "the data falls."},
    {"UQRTLE", "UQRTLE[{number1,number2,...numberN}]",
     "Returns the upper quartile of the list of numbers: the value below which three quarters "
     "of the data falls."},
    {"COMB", "COMB[N,R]",
     "Returns the number of combinations of N items taken R at a time, where order does not "
     "matter. N and R must be non negative integers and N can not be less than R."},
    {"PERM", "PERM[N,R]",
     "Returns the number of permutations of N items taken R at a time, where order matters. N "
     "and R must be non negative integers and N can not be less than R."},
    {"WSNORM", "WSNORM[{number1,number2,...numberN},alpha]",
     "Tests the list of numbers for normality with the Shapiro-Wilk test at the significance "
     "level alpha percent (1, 2, 5 or 10). Returns true (1) when the data may be taken as "
     "normal, false (0) otherwise; the list must hold 3 to 99 numbers."},
    {"RAND", "RAND[lowerLimit,upperLimit]",
     "Returns a random number uniformly distributed between the lower and upper limits. "
     "Without parameters, RAND[] returns a random number between 0 and 1."},
    {"NORDEV", "NORDEV[mean,stdev]",
     "Returns a random number from the normal distribution of the given mean and standard "
     "deviation. Without parameters the mean is 0 and the standard deviation 1."},
    {"EXPDEV", "EXPDEV[shapeParameter]",
     "Returns a random number from the exponential distribution with the given shape "
     "parameter (rate). Without a parameter the shape is 1."},
    {"RAYDEV", "RAYDEV[median,anchor]",
     "Returns a random number from the Rayleigh distribution with the given median, shifted "
     "by the anchor. Without parameters the median is 1 and the anchor 0."},
    {"BERDEV", "BERDEV[probability]",
     "Returns a random Bernoulli trial: 1 with the given probability, 0 otherwise. The "
     "probability must be between 0 and 1."},
    {"BETADEV", "BETADEV[alpha,beta]",
     "Returns a random number from the beta distribution with the shape parameters alpha and "
     "beta, which must be greater than 0."},
    {"BNLDEV", "BNLDEV[trials,probability]",
     "Returns a random number from the binomial distribution: the number of successes in the "
     "given number of trials, each with the given probability of success."},
    {"CAUDEV", "CAUDEV[mean,s]",
     "Returns a random number from the Cauchy distribution with the given location (mean) and "
     "scale s."},
    {"CHIDEV", "CHIDEV[dof]",
     "Returns a random number from the chi-square distribution with dof degrees of freedom, "
     "which must be greater than 0."},
    {"DEXPDEV", "DEXPDEV[mean,s]",
     "Returns a random number from the double exponential (Laplace) distribution with the "
     "given mean and scale s."},
    {"FDEV", "FDEV[dfn,dfd]",
     "Returns a random number from the F distribution with dfn degrees of freedom in the "
     "numerator and dfd in the denominator, both greater than 0."},
    {"GAMDEV", "GAMDEV[alpha,beta]",
     "Returns a random number from the gamma distribution with the shape alpha and the scale "
     "beta, which must be greater than 0."},
    {"LOGDEV", "LOGDEV[mean,b]",
     "Returns a random number from the logistic distribution with the given mean and scale "
     "b."},
    {"NCHIDEV", "NCHIDEV[dof,xnonc]",
     "Returns a random number from the non-central chi-square distribution with dof degrees "
     "of freedom (greater than 1) and the non-centrality parameter xnonc (0 or greater)."},
    {"AND", "AND[logicalExp1,logicalExp2,...logicalExpN]",
     "Returns true (true has a numerical equivalent of the number 1) if all of its logical "
     "arguments are true.  The arguments are logical expressions such as 2<4 or 5!=6."},
    {"OR", "OR[logicalExp1,logicalExp2,...logicalExpN]",
     "Returns true (true has a numerical equivalent of the number 1) if any of its logical "
     "arguments is true, and false (0) if all of them are false.  The arguments are logical "
     "expressions such as 2<4 or 5!=6."},
    {"NOT", "NOT[logicalExp]",
     "Returns the opposite of its logical argument: true (1) if the argument is false, and "
     "false (0) if it is true."},
    {"IF", "IF[logicalExp,valueIfTrue,valueIfFalse]",
     "Returns valueIfTrue if the logical expression is true, and valueIfFalse if it is false. "
     "For example, IF[x>0,1,-1] returns the sign of x."},
    {"SRESIST", "SRESIST[{number1,number2,...numberN}]",
     "Returns the total resistance of the resistors in the list connected in series: the sum "
     "of the resistances."},
    {"PRESIST", "PRESIST[{number1,number2,...numberN}]",
     "Returns the total resistance of the resistors in the list connected in parallel: one "
     "over the sum of the reciprocals of the resistances."},
}};

constexpr std::array<FunctionText, kConstantCount> kConstantTexts{{
    {"PI", "PI",
     "Pi, The Ratio Of The Circumference Of A Circle To Its Diameter = 3.14159265358979."},
    {"e", "e", "The Base Of The Natural Logarithm = 2.71828182845905."},
    {"PLANK", "PLANK", "Planck's Constant = 6.6262e-34 Joule Seconds."},
    {"BOLTZMANN", "BOLTZMANN", "Boltzmann's Constant = 1.38062e-23 Joules/Kelvin."},
    {"AVAGADRO", "AVAGADRO", "Avogadro's Number = 6.02217e+23 Particles/Mole."},
    {"FARADAY", "FARADAY", "Faraday's Constant = 96486.7 Coulombs/Mole."},
    {"GAS", "GAS", "The Universal Gas Constant = 8.31434 Joules/(Mole Kelvin)."},
    {"GRAVCON", "GRAVCON",
     "The Gravitational Constant = 6.6732e-11 Newton Square Meters/Square Kilogram."},
    {"GRAVITY", "GRAVITY",
     "The Standard Acceleration Of Gravity At The Earth's Surface = 9.80665 Meters/Second "
     "Squared."},
    {"LIGHT", "LIGHT", "Speed Of Light In A Vacuum = 299792458 Meters/Second."},
    {"SOUND", "SOUND", "Speed Of Sound In Dry Air = 331.45 Meters/Second."},
    {"ABSTEMP", "ABSTEMP", "Absolute Zero Temperature = -273.15 Degrees Celsius."},
    {"PERMITIVITY", "PERMITIVITY", "The Permittivity Of A Vacuum = 8.85419e-12 Farads/Meter."},
    {"EULER", "EULER", "Euler's Constant = 0.577215664901532."},
    {"TRUE", "TRUE", "The Logical Value True = 1."},
    {"FALSE", "FALSE", "The Logical Value False = 0."},
}};

constexpr std::string_view kCommon[] = {"SQRT",  "LN",    "LOG10", "EXP", "POW",   "ABS",
                                        "ROUND", "TRUNC", "MEAN",  "REM", "CUBERT"};
constexpr std::string_view kGeneralMath[] = {
    "SQRT", "LN",    "LOG10", "LOG", "EXP", "POW",  "ABS",  "ROUND",   "TRUNC", "MEAN",
    "REM",  "FLOOR", "CEIL",  "GCD", "LCM", "RTOP", "PTOR", "BASECON", "CUBERT"};
constexpr std::string_view kTrigonometric[] = {"DEG",  "RAD",   "SIN",   "COS",   "TAN",
                                               "SINH", "COSH",  "TANH",  "ASIN",  "ACOS",
                                               "ATAN", "ASINH", "ACOSH", "ATANH", "HYPOT"};
constexpr std::string_view kStatistical[] = {
    "MEAN",    "GMEAN",   "HMEAN",    "MEDIAN", "MODE",    "MIN",    "MAX",    "SUMX",   "SUMXSQ",
    "SUMDEV",  "AVGDEV",  "SUMDEVSQ", "RANGE",  "COUNT",   "RANK",   "SVAR",   "PVAR",   "SSTDEV",
    "PSTDEV",  "NORDIST", "NORPROB",  "NORMX",  "ZSCORE",  "SKEW",   "KURT",   "PRCTLE", "LQRTLE",
    "UQRTLE",  "COMB",    "PERM",     "WSNORM", "RAND",    "NORDEV", "EXPDEV", "RAYDEV", "BERDEV",
    "BETADEV", "BNLDEV",  "CAUDEV",   "CHIDEV", "DEXPDEV", "FDEV",   "GAMDEV", "LOGDEV", "NCHIDEV"};
constexpr std::string_view kComplex[] = {"REAL", "IMAG", "NORM", "CMAG", "CANGLE", "PTOC", "CONJ"};
constexpr std::string_view kLogical[] = {"AND", "OR", "NOT", "IF"};
constexpr std::string_view kElectrical[] = {"SRESIST", "PRESIST"};
constexpr std::string_view kTruncRound[] = {"CEIL", "FLOOR", "ROUND", "TRUNC"};
constexpr std::string_view kConstantNames[] = {
    "PI",      "e",     "PLANK", "BOLTZMANN", "AVAGADRO",    "FARADAY", "GAS",  "GRAVCON",
    "GRAVITY", "LIGHT", "SOUND", "ABSTEMP",   "PERMITIVITY", "EULER",   "TRUE", "FALSE"};

constexpr EmbeddedCategory kCategories[] = {
    {kAllCategory, {}},
    {"COMMON", kCommon},
    {"GENERAL MATH", kGeneralMath},
    {"TRIGONOMETRIC", kTrigonometric},
    {"STATISTICAL", kStatistical},
    {"COMPLEX", kComplex},
    {"LOGICAL", kLogical},
    {"ELECTRICAL", kElectrical},
    {"TRUNC&ROUND", kTruncRound},
    {kConstantsCategory, kConstantNames},
};

}  // namespace

std::span<const FunctionText> embedded_function_texts() {
    return kFunctionTexts;
}

std::span<const FunctionText> constant_texts() {
    return kConstantTexts;
}

std::span<const EmbeddedCategory> embedded_categories() {
    return kCategories;
}

const EmbeddedCategory *find_embedded_category(std::string_view name) {
    for (const auto &category : kCategories)
        if (category.name == name) return &category;
    return nullptr;
}

std::vector<std::string_view> embedded_category_names(std::string_view category) {
    std::vector<std::string_view> names;
    if (category == kAllCategory) {
        for (const auto &text : kFunctionTexts) names.push_back(text.name);
        for (const auto &text : kConstantTexts) names.push_back(text.name);
    } else if (const EmbeddedCategory *found = find_embedded_category(category)) {
        names.assign(found->members.begin(), found->members.end());
    }
    return names;
}

const FunctionText *find_function_text(std::string_view name) {
    // The tables' own look-ups: functions without regard to case, constants exactly.
    const std::string wanted(name);
    if (const int index = function_index(wanted.c_str()); index >= 0)
        return &kFunctionTexts[static_cast<std::size_t>(index)];
    if (const int index = constant_index(wanted.c_str()); index >= 0)
        return &kConstantTexts[static_cast<std::size_t>(index)];
    return nullptr;
}

bool is_constant_text(const FunctionText *text) {
    return text != nullptr && text >= kConstantTexts.data() &&
           text < kConstantTexts.data() + kConstantTexts.size();
}

}  // namespace quindar::mathlib
