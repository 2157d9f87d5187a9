// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The numbered texts of graph building and graph files, and their formatting.

#include <initializer_list>
#include <string>
#include <string_view>

namespace quindar {

inline constexpr int kMsgErrorAtPoint = 24811;
inline constexpr int kMsgErrorAtGridPoint = 24812;
inline constexpr int kMsgCouldNotMap = 24950;
inline constexpr int kMsgCouldNotFind = 24951;
inline constexpr int kMsgPieNegatives = 24800;
inline constexpr int kMsgGraphingUtility = 24628;
inline constexpr int kMsgNotAGraphFile = 25104;
inline constexpr int kMsgOpenGraphFileError = 25105;
inline constexpr int kMsgIncompatibleFileType = 24910;
inline constexpr int kMsgSharedXOnly = 24906;
inline constexpr int kMsgGraphWindow = 25101;
inline constexpr int kMsgOrientationSaved = 25102;
inline constexpr int kMsgRotationSaved = 25103;
inline constexpr int kMsgMarginsSaved = 25108;
inline constexpr int kMsgNoLogX = 25106;
inline constexpr int kMsgNoLogY = 25107;

// The text of message id, empty for an unknown id.
std::string_view graph_message(int id);

// The text of id with its "%s" fields filled in order.
std::string format_graph_message(int id, std::initializer_list<std::string_view> fields);

}  // namespace quindar
