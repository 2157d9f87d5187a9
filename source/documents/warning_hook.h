// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <functional>
#include <string_view>

#include "message_text.h"

namespace quindar {

// How the file layer asks for a warning box: the text and the caption. The application
// installs one that shows a task-modal box with a warning icon over the active window;
// with none installed nothing is shown and the operation still fails cleanly.
using WarningHook = std::function<void(std::string_view text, std::string_view caption)>;

inline void show_warning(const WarningHook &hook, std::string_view text, std::string_view caption) {
    if (hook) hook(printable_message(text), printable_message(caption));
}

}  // namespace quindar
