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
    {kEqualXLimits, "The upper and lower Dx limits can not be equal."},
    {kImaginaryLimit,
     "The integration limits CAN NOT be imaginary number, they must be real numbers."},
    {kVariableNotDefined, "Variable %s could not be defined!"},
    {kLimitMissing, "An Integration limit is missing."},
    {kLimitOfItsVariable, "The integration limit can not be a function of %s."},
    {kAssignOrIntegrate,
     " You may either integrate with repsect to this variable, or you must assign this "
     "variable a value."},
    {kNoVariable,
     "You have not identified the variable with which you would like to integrate with respect "
     "to."},
    {kNotAFunctionOf, "%s is not a function of %s and can not be integrated with respect to it."},
    {kImaginaryDifferentiationLimit,
     "The differentiation limits CAN NOT be imaginary number, they must be real numbers."},
    {kNotDifferentiable,
     "%s is not a function of %s and can not be differentiated with respect to it."},
    {kJoined, "%s%s"},
    {kAssignOrDifferentiate,
     " You may either differentiate with repsect to this variable, or you must assign this "
     "variable a value."},
    {kNoDifferentiationVariable,
     "You have not identified the variable with which you would like to differentiate with "
     "respect to."},
    {kDegreesTrigonometry,
     "You can not differentiate the trigonometric function %s while in degrees mode, you must "
     "change to radians in order differentiate this function.  Use the Mathematical Options "
     "dialog to change this setting."},
    {kFirstDifferentialFailed,
     "An error occured while computing the first differential at %s = %s : %s"},
    {kFirstDifferentialFailed + 1,
     "An error occured while computing the second differential at %s = %s : %s"},
    {kFirstDifferentialFailed + 2,
     "An error occured while computing the third differential at %s = %s : %s"},
    {kVariableLocked,
     "Variable \"%s\" is temporarily locked by another process, use a different variable or "
     "wait until the other process has completed."},
    {kNoSignChange, "%s does not change sign between %s and %s, so no root can be bracketed."},
    {kRootVariable, "%s is not a function of %s, so no root can be searched in it."},
    {kNotFinite, "The result of %s is not a finite number (%s)."},
};

}  // namespace

const char *message(int id) {
    const auto found = std::find_if(std::begin(kMessages), std::end(kMessages),
                                    [id](const MessageRecord &record) { return record.id == id; });
    return found == std::end(kMessages) ? nullptr : found->text;
}

}  // namespace quindar::calculus
