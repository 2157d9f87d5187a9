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

namespace {

// Copies text with each conversion that put accepts replaced by what it appends; "%%" is a
// percent sign, a conversion put declines stays as it is.
template <class Put>
std::string Substitute(std::string_view text, Put put) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%' && at + 1 < text.size()) {
            const char kind = text[at + 1];
            if (kind == '%' || put(kind, result)) {
                if (kind == '%') result += '%';
                ++at;
                continue;
            }
        }
        result += text[at];
    }
    return result;
}

}  // namespace

std::optional<std::string> format_message(std::string_view text,
                                          std::span<const std::string_view> arguments) {
    if (CountSpecifiers(text).strings < static_cast<int>(arguments.size())) return std::nullopt;
    std::size_t next = 0;
    return Substitute(text, [&](char kind, std::string &out) {
        if (kind != 's' || next >= arguments.size()) return false;
        out += arguments[next++];
        return true;
    });
}

std::optional<std::string> format_message(std::string_view text, int value) {
    if (CountSpecifiers(text).numbers == 0) return std::nullopt;
    bool done = false;
    return Substitute(text, [&](char kind, std::string &out) {
        if (done || (kind != 'd' && kind != 'i' && kind != 'c')) return false;
        if (kind == 'c')
            out += static_cast<char>(value);
        else
            out += std::to_string(value);
        done = true;
        return true;
    });
}

std::string limit_box_text(std::string_view text, std::size_t limit) {
    return std::string(text.substr(0, limit));
}

}  // namespace quindar
