// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The rules of the program's numbered message boxes, apart from any window system: what a
// box's flags mean, what it returns, and how a message's arguments are put into its text.

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quindar {

// The flags the program shows its boxes with; every box is modal to the whole program.
inline constexpr unsigned kBoxWarning = 0x2030;              // warning icon, OK
inline constexpr unsigned kBoxInformation = 0x2040;          // information icon, OK
inline constexpr unsigned kBoxWarningYesNo = 0x2034;         // warning icon, Yes and No
inline constexpr unsigned kBoxQuestionYesNo = 0x2024;        // question icon, Yes and No
inline constexpr unsigned kBoxQuestionYesNoCancel = 0x2023;  // question icon, Yes, No, Cancel

// What a box returns: the button pressed, or kBoxNotShown.
inline constexpr int kBoxNotShown = 0;
inline constexpr int kIdOk = 1;
inline constexpr int kIdCancel = 2;
inline constexpr int kIdYes = 6;
inline constexpr int kIdNo = 7;

enum class BoxIcon { None, Error, Question, Warning, Information };
enum class BoxButtons { Ok, OkCancel, YesNoCancel, YesNo };

struct BoxStyle {
    BoxIcon icon;
    BoxButtons buttons;
};

// The icon and buttons that flags ask for (the low four bits choose the buttons, the next
// four the icon).
BoxStyle box_style(unsigned flags);
// The result of the button pressed on the buttons of style: Escape or the close box.
int box_escape_result(BoxButtons buttons);

// Longest text and title a box shows; longer ones are cut.
inline constexpr std::size_t kBoxTextLimit = 1023;
inline constexpr std::size_t kBoxTitleLimit = 254;

// The message with its text arguments put in, one "%s" each, when it holds exactly that
// many "%s" (or more); none when a specifier is missing, and then no box shows.
std::optional<std::string> format_message(std::string_view text,
                                          std::span<const std::string_view> arguments);
// The message with a number put in through its "%d" or "%c"; none when it has neither.
std::optional<std::string> format_message(std::string_view text, int value);

// The message that reports a text whose number argument found no specifier.
inline constexpr int kMsgFormatSpecifierMissing = 31600;

// Cuts text to at most limit bytes.
std::string limit_box_text(std::string_view text, std::size_t limit);

}  // namespace quindar
