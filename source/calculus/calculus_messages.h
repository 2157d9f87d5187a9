// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The calculus utilities' own messages, by number.

namespace quindar::calculus {

inline constexpr int kIntegrationTitle = 13100;
inline constexpr int kEqualXLimits = 13101;
inline constexpr int kEqualYLimits = 13102;
inline constexpr int kEqualZLimits = 13103;
inline constexpr int kImaginaryLimit = 13104;
inline constexpr int kVariableNotDefined = 13106;
inline constexpr int kLimitMissing = 13107;
inline constexpr int kLimitOfItsVariable = 13108;
inline constexpr int kCloseDuringIntegration = 13109;
inline constexpr int kParameterMissing = 13110;
inline constexpr int kBadParameter = 13111;
inline constexpr int kAssignOrIntegrate = 13112;
inline constexpr int kNoVariable = 13113;
inline constexpr int kNotAFunctionOf = 13114;
inline constexpr int kIntegrationManagerOpen = 13116;
inline constexpr int kVariableNotDeleted = 13118;
inline constexpr int kDifferentiationTitle = 13150;
inline constexpr int kDifferentiationLimitMissing = 13151;
inline constexpr int kImaginaryDifferentiationLimit = 13152;
inline constexpr int kEqualDifferentiationLimits = 13153;
inline constexpr int kBadDifferentiationVariable = 13154;
inline constexpr int kNotDifferentiable = 13156;
inline constexpr int kJoined = 13157;
inline constexpr int kAssignOrDifferentiate = 13158;
inline constexpr int kNoDifferentiationVariable = 13159;
inline constexpr int kCloseDuringDifferentiation = 13160;
inline constexpr int kNoSteps = 13163;
inline constexpr int kImaginaryFunctionValue = 13164;
inline constexpr int kDifferentiationManagerOpen = 13165;
inline constexpr int kDegreesTrigonometry = 13166;
inline constexpr int kFunctionValueFailed = 13167;
inline constexpr int kFirstDifferentialFailed = 13168;
inline constexpr int kVariableLocked = 13171;
inline constexpr int kCopyWholeTable = 13008;
// The Function Solver's.
inline constexpr int kSolverTitle = 13050;
inline constexpr int kParameterMissingInSet = 13051;
inline constexpr int kNoParameters = 13052;
inline constexpr int kAppendData = 13053;
inline constexpr int kImaginaryListValue = 13054;
inline constexpr int kSaveListData = 13055;
inline constexpr int kTooManyParameters = 13056;
inline constexpr int kConstantsNotSolvable = 13007;
inline constexpr int kTooManyToGraph = 13004;
inline constexpr int kAnswerNotGraphable = 13005;
inline constexpr int kNoMathEditor = 13006;
// Graph Ans.
inline constexpr int kGraphingTitle = 24628;
inline constexpr int kGraphErrors = 24638;
inline constexpr int kUnequalXData = 24906;
// The root search has no page of its own; these are the command line's.
inline constexpr int kNoSignChange = 13190;
inline constexpr int kRootVariable = 13191;

// The text of message `id`, or null for a number without one.
const char *message(int id);

}  // namespace quindar::calculus
