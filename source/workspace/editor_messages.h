// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Math Editor's texts, by the number the application's message boxes know them by,
// and the sounds of its line processing.

#include <string_view>

namespace quindar {

struct EditorMessage {
    int id;
    std::string_view text;
};

inline constexpr int kMathEditorErrorTitle = 21800;
inline constexpr int kNoExpressionToCompute = 21802;

inline constexpr EditorMessage kEditorMessages[] = {
    {kMathEditorErrorTitle, "Math Editor Error"},
    {kNoExpressionToCompute, "No expression is pressent to Compute!"},
};

// The text of a message number; empty for a number the editor does not own.
constexpr std::string_view EditorMessageText(int id) {
    for (const auto &message : kEditorMessages)
        if (message.id == id) return message.text;
    return {};
}

// Played after a computed statement: a plain one, or one that changed the lists.
inline constexpr std::string_view kCommandSound = "Command.wav";
inline constexpr std::string_view kAddSound = "Add.wav";

}  // namespace quindar
