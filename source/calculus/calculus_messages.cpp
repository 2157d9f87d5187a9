// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The message table of the calculus utilities.
#include "calculus_messages.h"

#include <algorithm>
#include <iterator>

namespace quindar::calculus {
namespace {

struct MessageRecord {
    int id;
    const char *text;
};

constexpr MessageRecord kMessages[] = {
    {kIntegrationTitle, "Integration Utility"},
    {kEqualXLimits, "The upper and lower Dx limits can not be equal."},
    {kEqualYLimits, "The upper and lower Dy limits can not be equal."},
    {kEqualZLimits, "The upper and lower Dz limits can not be equal."},
    {kImaginaryLimit,
     "The integration limits CAN NOT be imaginary number, they must be real numbers."},
    {kVariableNotDefined, "Variable %s could not be defined!"},
    {kLimitMissing, "An Integration limit is missing."},
    {kLimitOfItsVariable, "The integration limit can not be a function of %s."},
    {kCloseDuringIntegration, "You must stop the integration process before closing this utility."},
    {kParameterMissing, "You are missing or have not selected an integration parameter."},
    {kBadParameter,
     "The integration parameter you entered is invalid. The parameter %s must be an arithmetic "
     "variable and can not contain any of the following characters "
     "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\."},
    {kAssignOrIntegrate,
     " You may either integrate with repsect to this variable, or you must assign this "
     "variable a value."},
    {kNoVariable,
     "You have not identified the variable with which you would like to integrate with respect "
     "to."},
    {kNotAFunctionOf, "%s is not a function of %s and can not be integrated with respect to it."},
    {kIntegrationManagerOpen,
     "You must first close the Function Manager dialog box before quiting."},
    {kVariableNotDeleted, "Variable \"%s\" could not be deleted."},
    {kDifferentiationTitle, "Differentiation Utility"},
    {kDifferentiationLimitMissing, "A differentiation limit is missing."},
    {kImaginaryDifferentiationLimit,
     "The differentiation limits CAN NOT be imaginary number, they must be real numbers."},
    {kEqualDifferentiationLimits, "The upper and lower differentiation limits can not be equal."},
    {kBadDifferentiationVariable,
     "The differentiation variable you entered is invalid. The parameter %s must be an "
     "arithmetic variable and can not contain any of the following characters "
     "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\."},
    {kNotDifferentiable,
     "%s is not a function of %s and can not be differentiated with respect to it."},
    {kJoined, "%s%s"},
    {kAssignOrDifferentiate,
     " You may either differentiate with repsect to this variable, or you must assign this "
     "variable a value."},
    {kNoDifferentiationVariable,
     "You have not identified the variable with which you would like to differentiate with "
     "respect to."},
    {kCloseDuringDifferentiation,
     "You must stop the differentiation process before closing this utility."},
    {kNoSteps, "The number of differentiation steps must be greater than zero."},
    {kImaginaryFunctionValue,
     "Computation of the specified function at %s = %s has resulted in an complex result "
     "containing an imaginary number which is not allowed in the Differentiation Utility "
     "results set."},
    {kDifferentiationManagerOpen,
     "You must first close the Function Manager dialog box before quiting."},
    {kDegreesTrigonometry,
     "You can not differentiate the trigonometric function %s while in degrees mode, you must "
     "change to radians in order differentiate this function.  Use the Mathematical Options "
     "dialog to change this setting."},
    {kFunctionValueFailed, "An error occured while computing the function at %s = %s : %s"},
    {kFirstDifferentialFailed,
     "An error occured while computing the first differential at %s = %s : %s"},
    {kFirstDifferentialFailed + 1,
     "An error occured while computing the second differential at %s = %s : %s"},
    {kFirstDifferentialFailed + 2,
     "An error occured while computing the third differential at %s = %s : %s"},
    {kVariableLocked,
     "Variable \"%s\" is temporarily locked by another process, use a different variable or "
     "wait until the other process has completed."},
    {kCopyWholeTable,
     "You have not selected a solution value to copy to the Math Editor, would you like to "
     "copy the entire solution set?"},
    {kSolverTitle, "Function Solver"},
    {kParameterMissingInSet,
     "A Required Parameter Is Missing.  The Function Can Not Be Evaluated Without An Entry For "
     "All The Parameters."},
    {kNoParameters,
     "There Are No Parameters Provided.  The Function Can Not Be Evaluated Without Any "
     "Parameters."},
    {kAppendData, "Would You Like To Add The New Data Values To The Current Data Values?"},
    {kImaginaryListValue,
     "Imaginary Numbers Or Expressions That Evaluate To Imaginary Numbers Are Not Allowed."},
    {kSaveListData,
     "You Have Modified Or Created A List Of Data Points In The Function Solver.\n\nWould You "
     "Like To Save Your Data?"},
    {kTooManyParameters,
     "Only Functions With A Maximim Of 6 Parameters Are Supported In The Functions Solver."},
    {kConstantsNotSolvable, "Constants Can Not Be Evaluated In The Function Solver."},
    {kTooManyToGraph, "Function \"%s\" Has Too Many Parameters To Be Graphed."},
    {kAnswerNotGraphable,
     "The Solution To Function \"%s\" Can Not Be Inserted As A Function To Graph, To Graph "
     "This Function Use The \"Insert F[X]\" Button."},
    {kGraphingTitle, "Graphing Utility"},
    {kGraphErrors,
     "Errors occured while calculating the data for the graph \"%s\", see the \"Graph "
     "Errors\" list for details."},
    {kUnequalXData,
     "The X data point values must be equal to use any graph type other than \"Plot\", "
     "\"Line\", \"Area\", \"Polar\" and \"Scatter\" types. Try using one of these 5 types."},
    {kNoSignChange, "%s does not change sign between %s and %s, so no root can be bracketed."},
    {kRootVariable, "%s is not a function of %s, so no root can be searched in it."},
};

}  // namespace

const char *message(int id) {
    const auto found = std::find_if(std::begin(kMessages), std::end(kMessages),
                                    [id](const MessageRecord &record) { return record.id == id; });
    return found == std::end(kMessages) ? nullptr : found->text;
}

}  // namespace quindar::calculus
