// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "calculator_messages.h"

namespace quindar {

std::string FormatCalculatorMessage(int id, std::string_view argument) {
    std::string text(CalculatorMessageText(id));
    const std::size_t at = text.find("%s");
    if (at != std::string::npos) text.replace(at, 2, argument);
    return text;
}

}  // namespace quindar
