// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "message_table.h"

namespace quindar {

std::string FillMessage(std::string_view pattern, std::string_view first, std::string_view second,
                        char character) {
    std::string text;
    int names = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char next = i + 1 < pattern.size() ? pattern[i + 1] : '\0';
        if (pattern[i] == '%' && next == 's') {
            text += names++ == 0 ? first : second;
            ++i;
        } else if (pattern[i] == '%' && next == 'c') {
            text += character;
            ++i;
        } else {
            text += pattern[i];
        }
    }
    return text;
}

}  // namespace quindar
