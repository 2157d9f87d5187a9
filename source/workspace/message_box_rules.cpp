// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "message_box_rules.h"

namespace quindar {
namespace {

struct IconBits {
    unsigned bits;
    BoxIcon icon;
};

constexpr IconBits kIcons[] = {
    {0x10, BoxIcon::Error},
    {0x20, BoxIcon::Question},
    {0x30, BoxIcon::Warning},
    {0x40, BoxIcon::Information},
};

struct ButtonBits {
    unsigned bits;
    BoxButtons buttons;
    int escapeResult;
};

constexpr ButtonBits kButtons[] = {
    {0x0, BoxButtons::Ok, kIdOk},
    {0x1, BoxButtons::OkCancel, kIdCancel},
    {0x3, BoxButtons::YesNoCancel, kIdCancel},
    {0x4, BoxButtons::YesNo, kIdNo},
};

// Counts the conversions in a printf text; "%%" is a percent sign, not a conversion.
struct Specifiers {
    int strings = 0;
    int numbers = 0;
};

Specifiers CountSpecifiers(std::string_view text) {
    Specifiers count;
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        if (text[at] != '%') continue;
        const char kind = text[at + 1];
        if (kind == 's') ++count.strings;
        if (kind == 'd' || kind == 'c' || kind == 'i') ++count.numbers;
        ++at;
    }
    return count;
}

}  // namespace

BoxStyle box_style(unsigned flags) {
    BoxStyle style{BoxIcon::None, BoxButtons::Ok};
    for (const IconBits &icon : kIcons)
        if ((flags & 0xF0) == icon.bits) style.icon = icon.icon;
    for (const ButtonBits &buttons : kButtons)
        if ((flags & 0x0F) == buttons.bits) style.buttons = buttons.buttons;
    return style;
}

int box_escape_result(BoxButtons buttons) {
    for (const ButtonBits &entry : kButtons)
        if (entry.buttons == buttons) return entry.escapeResult;
    return kIdCancel;
}

std::optional<std::string> format_message(std::string_view text,
                                          std::span<const std::string_view> arguments) {
    if (CountSpecifiers(text).strings < static_cast<int>(arguments.size())) return std::nullopt;
    std::string result;
    std::size_t next = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%' && at + 1 < text.size()) {
            const char kind = text[at + 1];
            if (kind == '%') {
                result += '%';
                ++at;
                continue;
            }
            if (kind == 's' && next < arguments.size()) {
                result += arguments[next++];
                ++at;
                continue;
            }
        }
        result += text[at];
    }
    return result;
}

std::optional<std::string> format_message(std::string_view text, int value) {
    if (CountSpecifiers(text).numbers == 0) return std::nullopt;
    std::string result;
    bool done = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%' && at + 1 < text.size()) {
            const char kind = text[at + 1];
            if (kind == '%') {
                result += '%';
                ++at;
                continue;
            }
            if (!done && (kind == 'd' || kind == 'i')) {
                result += std::to_string(value);
                done = true;
                ++at;
                continue;
            }
            if (!done && kind == 'c') {
                result += static_cast<char>(value);
                done = true;
                ++at;
                continue;
            }
        }
        result += text[at];
    }
    return result;
}

std::string limit_box_text(std::string_view text, std::size_t limit) {
    return std::string(text.substr(0, limit));
}

}  // namespace quindar
