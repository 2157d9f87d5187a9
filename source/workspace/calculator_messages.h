// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The texts the calculator keys show, by the number the application's message boxes know
// them by, and the one way the keys show them.

#include <functional>
#include <string>
#include <string_view>

#include "message_hook.h"
#include "message_table.h"

namespace quindar {

inline constexpr int kCalculatorTitle = 21825;
inline constexpr int kAnglesInRadians = 21818;
inline constexpr int kAnglesInDegrees = 21819;
inline constexpr int kNothingToSave = 21820;
inline constexpr int kNothingToRecall = 21821;
inline constexpr int kSavedIntoMemory = 21822;
inline constexpr int kRemovedFromMemory = 21823;
inline constexpr int kMemoryCleared = 21824;

inline constexpr NumberedText kCalculatorMessages[] = {
    {kCalculatorTitle, "Calculator"},
    {kAnglesInRadians,
     "All trignometric angle computations will now be made using angles measured in radians."},
    {kAnglesInDegrees,
     "All trignometric angle computations will now be made using angles measured in degrees."},
    {kNothingToSave,
     "You must select the text or place the cursor on the line that you would like to save in "
     "the Math Editor."},
    {kNothingToRecall,
     "You must first save the text you would like to recall using the memory save button MS."},
    {kSavedIntoMemory, "The mathematical text string \"%s\" has been saved into memory."},
    {kRemovedFromMemory,
     "The mathematical text string \"%s\" has been removed from the currently saved string."},
    {kMemoryCleared, "The memory has been cleared."},
};

// The text of a message number; empty for a number the calculator does not own.
constexpr std::string_view CalculatorMessageText(int id) {
    return FindNumberedText(kCalculatorMessages, id);
}

// Shows a message of the calculator: its number, its finished text and the box's caption.
using CalculatorMessageHook = std::function<void(int messageId, std::string_view text,
                                                 std::string_view caption, MessageStyle style)>;

}  // namespace quindar
