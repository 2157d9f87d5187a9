// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The numbered messages and the control ids of the Variables, Labels, Types and Colors pages;
// the texts are in resources/strings/graph_pages.tsv.

namespace quindar {

// Variables page.
inline constexpr int kMsgUndeclaredVariable = 24613;
inline constexpr int kMsgNoAxisVariables = 24615;
inline constexpr int kMsgNoXAxisPoints = 24616;
inline constexpr int kMsgNoZAxisPoints = 24617;
inline constexpr int kMsgPieTooManyPoints = 24618;
inline constexpr int kMsgLimitsEqual = 24662;
inline constexpr int kMsgPointsNotInteger = 24663;
inline constexpr int kMsgLimitsNotReal = 24667;
inline constexpr int kMsgPointsNotAboveZero = 24668;
inline constexpr int kMsgRangeIncomplete = 24669;
inline constexpr int kMsgNoCommonVariables = 24690;
inline constexpr int kMsgXTooFewPoints = 24804;
inline constexpr int kMsgZTooFewPoints = 24805;
inline constexpr int kMsgXLimitsEqual = 24806;
inline constexpr int kMsgZLimitsEqual = 24807;
inline constexpr int kMsgXPointsBelowTwo = 24808;
inline constexpr int kMsgZPointsBelowTwo = 24809;
inline constexpr int kMsgTooManyPoints = 24911;

// Labels, Types and Colors pages.
inline constexpr int kMsgAxisNeedsTitle = 24642;
inline constexpr int kMsgHiLoNeedsTwo = 24801;
inline constexpr int kMsgHiLoOpenCloseNeedsFour = 24802;
inline constexpr int kMsgCandleNeedsFour = 24810;
inline constexpr int kMsgSaveDefaultColors = 24970;
inline constexpr int kMsgLoadDefaultColors = 24971;

// The most points a Pie graph takes, and the grid above which a 3-D graph warns.
inline constexpr long kPieMaximumPoints = 20;
inline constexpr long kLargeGridPoints = 10000;

// Variables page controls.
inline constexpr int kControlFunctionsToGraphList = 24651;
inline constexpr int kControlCommonVariables = 24652;
inline constexpr int kControlXAxisVar = 24643;
inline constexpr int kControlZAxisVar = 24644;
inline constexpr int kControlXLowLimit = 24645;
inline constexpr int kControlZLowLimit = 24646;
inline constexpr int kControlXHighLimit = 24647;
inline constexpr int kControlZHighLimit = 24648;
inline constexpr int kControlXPoints = 24649;
inline constexpr int kControlZPoints = 24650;
inline constexpr int kControlEditVariables = 24653;
inline constexpr int kControlClearZAxis = 24654;

// Labels page controls.
inline constexpr int kControlHeader = 24681;
inline constexpr int kControlFooter = 24682;
inline constexpr int kControlXAxisTitle = 24687;
inline constexpr int kControlYAxisTitle = 24686;
inline constexpr int kControlZAxisTitle = 24685;
inline constexpr int kControlSetDefaultTitles = 24693;
inline constexpr int kControlLabelRows = 24688;
inline constexpr int kControlLabel = 24683;

// Types page group boxes; the buttons inside carry the ids of the type tables.
inline constexpr int kControl2DTypes = 24725;
inline constexpr int kControl3DAttributes = 24737;

// Colors page buttons besides the sixteen colours.
inline constexpr int kControlSaveAsDefault = 24960;
inline constexpr int kControlSetDefault = 24961;

}  // namespace quindar
