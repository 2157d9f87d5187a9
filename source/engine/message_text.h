// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Messages echo what the user or a file gave: a name, a character, a path. Such text may hold
// control bytes that a terminal obeys, or bytes that are no whole UTF-8 character. A message
// shows every whole character as it is and anything else as its code point, "U+001B".

#include <cstdio>
#include <string>
#include <string_view>

namespace quindar {

namespace message_text_detail {

// The length of the well-formed UTF-8 sequence at text[at], 0 when there is none.
inline std::size_t utf8_length(std::string_view text, std::size_t at, char32_t &code) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(at);
    std::size_t length = 0;
    char32_t lowest = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        code = lead & 0x1F;
        lowest = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        code = lead & 0x0F;
        lowest = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        code = lead & 0x07;
        lowest = 0x10000;
    } else {
        return 0;
    }
    if (at + length > text.size()) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80) return 0;
        code = (code << 6) | (byte(at + i) & 0x3F);
    }
    if (code < lowest || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) return 0;
    return length;
}

inline void append_code_point(std::string &out, char32_t code) {
    char text[16];
    std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(code));
    out += text;
}

}  // namespace message_text_detail

// The character that starts at text: a whole UTF-8 sequence when one is there, else one byte.
inline std::string character_at(std::string_view text) {
    if (text.empty()) return {};
    char32_t code = 0;
    const std::size_t length = static_cast<unsigned char>(text[0]) >= 0x80
                                   ? message_text_detail::utf8_length(text, 0, code)
                                   : 0;
    return std::string(text.substr(0, length > 0 ? length : 1));
}

// The text with control characters, C1 controls and bytes that are no whole UTF-8 character
// replaced by their code points (a stray byte counts as the Latin-1 character of its value).
// Line breaks stay unless one_line is set; then each CR LF, LF or CR becomes one blank.
inline std::string printable_message(std::string_view text, bool one_line = false) {
    using namespace message_text_detail;
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const unsigned char c = static_cast<unsigned char>(text[at]);
        if (c == '\r' || c == '\n') {
            const std::size_t length =
                c == '\r' && at + 1 < text.size() && text[at + 1] == '\n' ? 2 : 1;
            if (one_line)
                out += ' ';
            else
                out.append(text.substr(at, length));
            at += length;
            continue;
        }
        if (c >= 0x20 && c < 0x7F) {
            out += static_cast<char>(c);
            ++at;
            continue;
        }
        char32_t code = c;
        const std::size_t length = c >= 0x80 ? utf8_length(text, at, code) : 0;
        if (length > 0 && !(code >= 0x80 && code < 0xA0)) {
            out.append(text.substr(at, length));
            at += length;
            continue;
        }
        append_code_point(out, length > 0 ? code : c);
        at += length > 0 ? length : 1;
    }
    return out;
}

}  // namespace quindar
