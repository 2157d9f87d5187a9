// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The calculus utilities' own messages, by number.

namespace quindar::calculus {

inline constexpr int kEqualXLimits = 13101;
inline constexpr int kImaginaryLimit = 13104;
inline constexpr int kVariableNotDefined = 13106;
inline constexpr int kLimitMissing = 13107;
inline constexpr int kLimitOfItsVariable = 13108;
inline constexpr int kAssignOrIntegrate = 13112;
inline constexpr int kNoVariable = 13113;
inline constexpr int kNotAFunctionOf = 13114;
inline constexpr int kImaginaryDifferentiationLimit = 13152;
inline constexpr int kNotDifferentiable = 13156;
inline constexpr int kJoined = 13157;
inline constexpr int kAssignOrDifferentiate = 13158;
inline constexpr int kNoDifferentiationVariable = 13159;
inline constexpr int kDegreesTrigonometry = 13166;
inline constexpr int kFirstDifferentialFailed = 13168;
inline constexpr int kVariableLocked = 13171;
// The root search has no page of its own; these are the command line's.
inline constexpr int kNoSignChange = 13190;
inline constexpr int kRootVariable = 13191;
// A result beyond the range of numbers, or no number at all.
inline constexpr int kNotFinite = 13192;

// The text of message `id`, or null for a number without one.
const char *message(int id);

}  // namespace quindar::calculus
