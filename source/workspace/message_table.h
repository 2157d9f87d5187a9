// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Tables of numbered message texts, as the application's message boxes know them, and the
// filling of their "%s" and "%c" places.

#include <span>
#include <string>
#include <string_view>

namespace quindar {

struct NumberedText {
    int id;
    std::string_view text;
};

// The text of a number in the table; empty for a number it does not hold.
constexpr std::string_view FindNumberedText(std::span<const NumberedText> table, int id) {
    for (const auto &entry : table)
        if (entry.id == id) return entry.text;
    return {};
}

// The pattern with its "%s" places filled by first and second in order, and "%c" by the
// character.
std::string FillMessage(std::string_view pattern, std::string_view first = {},
                        std::string_view second = {}, char character = 0);

}  // namespace quindar
