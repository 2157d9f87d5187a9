// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <functional>
#include <string_view>

#include "message_text.h"

namespace quindar {

// The kinds of box the engine asks for; the application maps them to its dialogs.
enum class MessageStyle {
    Warning,      // exclamation icon, OK
    Information,  // information icon, OK
    Question,     // question icon, Yes and No
};

// The engine's one way to show a message box. The application installs it on each
// engine object it creates; with none installed a box is simply not shown and the
// text stays readable through the owner's GetLastError().
// The result is the button pressed: true for OK or Yes.
using MessageHook =
    std::function<bool(std::string_view text, std::string_view caption, MessageStyle style)>;

// Shows a box through an optional hook. Returns false when no hook is installed.
inline bool show_message(const MessageHook *hook, std::string_view text, std::string_view caption,
                         MessageStyle style = MessageStyle::Warning) {
    if (hook == nullptr || !*hook) return false;
    return (*hook)(printable_message(text), printable_message(caption), style);
}

}  // namespace quindar
