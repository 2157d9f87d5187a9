// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Function Library dialog's smaller rules: which buttons a selected name offers, its help
// topic, what Graph Setup refuses, and the dialog's messages.

#include <string_view>

#include "function_library_catalog.h"
#include "message_table.h"

namespace quindar {

inline constexpr int kFunctionLibraryTitle = 13000;
inline constexpr int kUserLibraryNotOpened = 13001;
inline constexpr int kConstantNotGraphed = 13003;
inline constexpr int kTooManyParametersToGraph = 13004;
inline constexpr int kNoInsertIntoGraphWindow = 13006;
inline constexpr int kFunctionLibraryHelpTopic = 19404;
inline constexpr int kFunctionHelpTopicBase = 20000;

inline constexpr NumberedText kFunctionLibraryMessages[] = {
    {kFunctionLibraryTitle, "Function Library"},
    {kUserLibraryNotOpened,
     "The Quindar Function Library File \" %s \" Could Not Be Opened! If The File Exist's, "
     "Check Your System Level Access Privilages."},
    {kConstantNotGraphed,
     "The Constant \"%s\" Can Not Be Graphed, Please Choose A Function From The Function "
     "Library."},
    {kTooManyParametersToGraph, "Function \"%s\" Has Too Many Parameters To Be Graphed."},
    {kNoInsertIntoGraphWindow,
     "A Function Can Not Be Inserted Into The \"Graph Window\" Directly. However, It Can Be "
     "Graphed By Going To The \"Functions\" Tab In The \"Graph Setup\" Dialog Box And Selecting "
     "A Function From The Function Library. You Can Also Switch From The \"Graph Window\" Back "
     "To The Math Editor And Insert The Function Into The Math Editor."},
};

constexpr std::string_view FunctionLibraryMessageText(int id) {
    return FindNumberedText(kFunctionLibraryMessages, id);
}

struct LibraryButtons {
    bool helpShown;     // " Help F[x]": embedded functions have help pages
    bool solveEnabled;  // " Solve F[x]": anything but a constant
};

// The buttons for the selected entry, under the selected category.
LibraryButtons ButtonsFor(const LibraryEntry &entry, std::string_view category);

// The help topic of an embedded function, or 0.
int FunctionHelpTopic(const LibraryEntry &entry);

// What Graph Setup says to an inserted text: 0 when it takes it, kConstantNotGraphed for a
// constant, kTooManyParametersToGraph for three or more parameters (the commas decide).
int GraphInsertRefusal(const LibraryEntry &entry, std::string_view insertedText);

}  // namespace quindar
