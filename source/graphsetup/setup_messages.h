// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The numbered messages of the Graphs and Functions pages and of the copy into the working
// copy; their texts are in resources/strings/graph_setup.tsv.

namespace quindar {

inline constexpr int kMsgEnterGraphName = 24608;
inline constexpr int kMsgChooseGraphName = 24609;
inline constexpr int kMsgGraphNameTaken = 24610;
inline constexpr int kMsgDeleteGraph = 24611;
inline constexpr int kMsgSaveGraphChanges = 24612;
inline constexpr int kMsgSelectFunctionToAdd = 24629;
inline constexpr int kMsgSelectFunctionToRemove = 24630;
inline constexpr int kMsgNothingToRemove = 24631;
inline constexpr int kMsgFunctionAlreadyAdded = 24632;
inline constexpr int kMsgNoFunctionsDefined = 24633;
inline constexpr int kMsgNoGraphsDefined = 24634;
inline constexpr int kMsgFunctionNoLongerDefined = 24635;
inline constexpr int kMsgFunctionValueChanged = 24636;
inline constexpr int kMsgFunctionRemoved = 24637;
inline constexpr int kMsgBuildErrors = 24638;
inline constexpr int kMsgNothingToGraphFunctions = 24639;
inline constexpr int kMsgNothingToGraph = 24640;
inline constexpr int kMsgGraphReady = 24803;
inline constexpr int kMsgFunctionsAndPoints3D = 24907;
inline constexpr int kMsgOneEquation3D = 24908;

// The name a graph gets when the user gave none.
inline constexpr const char *kDefaultGraphName = "DefaultGraphName";

// Control ids the rules hand the focus to.
inline constexpr int kControlGraphName = 20602;
inline constexpr int kControlGraphList = 20606;
inline constexpr int kControlGraphErrors = 20609;
inline constexpr int kControlDefinedFunctions = 1012;
inline constexpr int kControlFunctionsToGraph = 1013;

}  // namespace quindar
