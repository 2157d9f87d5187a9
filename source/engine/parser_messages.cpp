// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "parser_messages.h"

namespace quindar::messages {

namespace {

// Numbers 6, 12, 14, 20, 21, 22 and 25 keep their texts although nothing raises them.
const char *const kParserErrors[kParserErrorCount] = {
    "Not enough memory available in buffer to process expression!",
    "Syntax error!",
    "Unbalanced parentheses in expression!",
    "Brackets of type [ or ] expected for function call!",
    "No expression present!",
    "Number or expression expected with operator!",
    "Exponent must be an integer, use pow function!",
    "There is an assigment or expression expected!",
    "Scientific notation exponent must be an integer!",
    "No sign on scientific notation exponent!",
    "Number missing for scientific notation exponent!",
    "Improper assignment!",
    "Invalid spaces in the expression!",
    "The character ' i ' is reserved for complex numbers, it can not be assigned a value!",
    "Relational operators ' <, >, <=, >= ' can not be used for complex numbers!",
    "Factorial operator ' ! ' can not be used with complex numbers!",
    "Factorial argument must be an integer greater than Or equal to zero!",
    "Too many decimal points found in number!",
    "Improper use of decimal point",
    "Equation is invalid!",
    "Division by zero encountered!",
    "Division by zero encountered, data point lost!",
    "Division by zero encountered, calculation aborted!",
    "Numbers greater than 1.0e+307 can not be computed!",
    "Numbers smaller than 1.0e-307 can not be computed!",
    "A floating point overflow has occured!",
    "Unbalanced function brackets in expression!",
};

const char *const kMapperErrors[kMapperErrorCount] = {
    "Complex data point encountered, data must be real!",
    "Equation mapper is trying to solve an expression that has not been mapped!",
    "Some algorithms do not support more than 5 recursive calls to functions with data list "
    "arguments, you are implimenting one of them!",
    "Then integration algorithm could not converge within the specified accuracy to obtain a "
    "solution!",
    "Step size is zero in derivative algorithm!",
    "Unrecognized or missing command in expression mapping algorithm!",
    "Complex numbers have been encountered in the slope computation of the differential "
    "algorithm!",
    "An error occurred while interpolating between two point values!",
};

}  // namespace

const char *mapper_error(int number) {
    return number >= 0 && number < kMapperErrorCount ? kMapperErrors[number] : "";
}

const char *parser_error(int number) {
    return number >= 0 && number < kParserErrorCount ? kParserErrors[number] : "";
}

}  // namespace quindar::messages
