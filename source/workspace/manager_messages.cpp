// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "manager_messages.h"

namespace quindar {

std::string FormatManagerMessage(int id, std::string_view first, std::string_view second,
                                 char character) {
    const std::string_view pattern = ManagerMessageText(id);
    std::string text;
    int names = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == '%' && i + 1 < pattern.size()) {
            if (pattern[i + 1] == 's') {
                text += names++ == 0 ? first : second;
                ++i;
                continue;
            }
            if (pattern[i + 1] == 'c') {
                text += character;
                ++i;
                continue;
            }
        }
        text += pattern[i];
    }
    return text;
}

}  // namespace quindar
