// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The engine's message texts: the numbered errors of the evaluator, the formats of its
// unnumbered ones and the captions of its boxes.

namespace quindar::messages {

// Text of numbered error n (0 to 26), or "" for any other number.
const char *parser_error(int number);
inline constexpr int kParserErrorCount = 27;

// Text of map solver error n (0 to 7), or "" for any other number.
const char *mapper_error(int number);
inline constexpr int kMapperErrorCount = 8;

inline constexpr const char *kEquationMapperCaption = "Equation Mapper";
inline constexpr const char *kMapNotDeleted = "Internally mapped equation could not be deleted.";

inline constexpr const char *kParserCaption = "Parser Error";
inline constexpr const char *kMathLibraryCaption = "MATH LIBRARY ERROR";
inline constexpr const char *kSolverCaption = "EXPRESSION SOLVER";
inline constexpr const char *kVariableCaption = "VARIABLE";
inline constexpr const char *kFileAccessCaption = "File Access";

inline constexpr const char *kNotLegitimate = "' %c ' is not a legitimate mathematical character!";
inline constexpr const char *kCommaMisused =
    "A comma ' , ' can only be used to separate function parameters or define an incremental "
    "variable!";
inline constexpr const char *kParameterIsFunction =
    "The variable ' %s ' is currently defined as an internal function, please use another "
    "variable name in your function definition!";
inline constexpr const char *kParameterIsConstant =
    "The variable ' %s ' is currently defined as an internal constant, please use another "
    "variable name in your function definition!";
inline constexpr const char *kFunctionNameTaken =
    "' %s ' Is Currently Defined As A Function, Use Another Name!";
inline constexpr const char *kEmbeddedRedefined =
    "' %s ' has already been defined as an embedded mathematical function\nYou can not redefine "
    "this function! please choose another name.";
inline constexpr const char *kLibraryRedefined =
    "' %s ' has already been defined as a mathematical library function\nYou can not redefine "
    "this function! Please choose another name!";
inline constexpr const char *kUnidentifiedAlone =
    "' %s ' Could Not Be Identified As A Variable Or Function.";
inline constexpr const char *kNotVariableOrConstant =
    "' %s ' can not be identified as a variable or a constant!";
inline constexpr const char *kNoValueYet = "' %s ' does not have a value yet";
inline constexpr const char *kConstantAssigned =
    "Internal constant '%s' can not be assigned a value";
inline constexpr const char *kMissingFunctionBracket =
    "The '%s' is missing a right function bracket ] or parenthesis!";
inline constexpr const char *kFunctionRedefined = "The '%s' function can not be redefined!";
inline constexpr const char *kNotAFunction = "' %s ' can not be identified as a function!";
inline constexpr const char *kVariableLocked =
    "Variable ' %s ' has been temporarily locked by another running process!";
inline constexpr const char *kNoValueFound = "No value for variable ' %s ' could be found!";
inline constexpr const char *kCommaExpected =
    "Comma expected after high limit in incremental variable declaration Of ' %s '";
inline constexpr const char *kEqualLimits =
    "The lower and higher incremental limits for ' %s ' can not be equal";
inline constexpr const char *kPointsNotInteger =
    "The number of increments must be an integer in variable declaration of ' %s '";
inline constexpr const char *kNotAFunctionOf =
    "Invalid function declaration,\n' %s ' is not a function of ' %s '!";
inline constexpr const char *kFunctionOfItself = "Function ' %s ' can not be a function of itself!";
inline constexpr const char *kLibraryBracketExpected =
    "Bracket of type ' [ ' expected for call to function ' %s ' !";
inline constexpr const char *kNotDefinedAsFunction =
    "' %s ' is not currently defined as a function!";
inline constexpr const char *kVariableNotDefined = "Variable ' %s ' Has Not Yet Been Defined!";
inline constexpr const char *kEvaluatedOnItself = "Function \"%s\" Can Not Be Evaluated On Itself!";
inline constexpr const char *kArgumentCountOne =
    "Function ' %s ' requires ' %d ' dependent variables, ' %d ' was used! Commas may only be "
    "used to separate function parameters or define an incremental variable!";
inline constexpr const char *kArgumentCountMany =
    "Function ' %s ' requires ' %d ' dependent variables, ' %d ' were used! Commas may only be "
    "used to separate function parameters or define an incremental variable!";
inline constexpr const char *kExpansionWithoutEnd =
    "Function ' %s ' is expanded without end: functions that call each other in a circle can "
    "not be evaluated!";
inline constexpr const char *kLibraryFunctionOfItself =
    "The library function ' %s ' can not be a function of itself!";
inline constexpr const char *kLibraryNotAFunctionOf =
    "Invalid library function,\n' %s ' is not a function of ' %s '!";
inline constexpr const char *kLibraryNotOpened =
    "The Quindar function library file \" %s \" could not be opened! If the file exist's, check "
    "your system level access privilages.";
inline constexpr const char *kTooManyDigits =
    "The specified operation on the number ' %s ' can not be performed because this number has "
    "more significant digits than the operation can support.";

}  // namespace quindar::messages
