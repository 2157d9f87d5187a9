// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The numbered messages of the Points page (texts in resources/strings/graph_points.tsv).

namespace quindar {

inline constexpr int kMsgNoGraphDefined = 24634;  // the Graphs page's, shared by every page
inline constexpr int kMsgNothingToGraph = 24641;
inline constexpr int kMsgEnterSetName = 24893;
inline constexpr int kMsgSetNotDefined = 24894;
inline constexpr int kMsgDeleteSet = 24895;
inline constexpr int kMsgNoSetsToDelete = 24896;
inline constexpr int kMsgNoPoints = 24897;
inline constexpr int kMsgNoYOrZ = 24898;
inline constexpr int kMsgNoXOrZ = 24899;
inline constexpr int kMsgNoXOrY = 24900;
inline constexpr int kMsgXYCountsDiffer = 24901;
inline constexpr int kMsgYZCountsDiffer = 24902;
inline constexpr int kMsgXZCountsDiffer = 24903;
inline constexpr int kMsgXYZCountsDiffer = 24904;
inline constexpr int kMsgIncompleteCoordinates = 24905;
inline constexpr int kMsgOneSurfaceSet = 24909;
inline constexpr int kMsgEqualZ = 24913;
inline constexpr int kMsgDifferentX = 24914;
inline constexpr int kMsgNotReal = 24915;
inline constexpr int kMsgNoDataSet = 24916;
inline constexpr int kMsgNoInsertionPoint = 24917;
inline constexpr int kMsg2DInto3D = 24920;
inline constexpr int kMsg3DInto2D = 24921;
inline constexpr int kMsgFunctionWith3DPoints = 24922;
inline constexpr int kMsgNoDataInFile = 24923;
inline constexpr int kMsgNothingToSave = 24924;
inline constexpr int kMsgImaginaryInSet = 24925;
inline constexpr int kMsgZOfCurrentSetKept = 24926;
inline constexpr int kMsgZForcedToFirst = 24927;
inline constexpr int kMsgXAddedToOtherSets = 24928;
inline constexpr int kMsgClearSet = 24929;
inline constexpr int kMsgPointFileNotSaved = 24944;
inline constexpr int kMsgXNotIncreasing = 25200;
inline constexpr int kMsgPointsWith3DFunction = 25201;
inline constexpr int kMsgSetNameUsed = 25202;
inline constexpr int kMsgAddToCurrentSet = 25203;
inline constexpr int kMsgInconsistentZ = 25204;

}  // namespace quindar
