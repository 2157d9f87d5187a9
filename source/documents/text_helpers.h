// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <string_view>

// Byte-level text tests shared by the profile reader and the scanners. They are ASCII only
// and independent of the locale, so a file reads the same on every machine.
namespace quindar::text {

inline bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

inline bool is_white(char c) {
    return is_blank(c) || c == '\r' || c == '\n';
}

inline bool is_letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

inline bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

inline char lower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool equal_no_case(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lower(a[i]) != lower(b[i])) return false;
    }
    return true;
}

inline std::string_view trim_left(std::string_view s) {
    std::size_t i = 0;
    while (i < s.size() && is_white(s[i])) ++i;
    return s.substr(i);
}

inline std::string_view trim_right(std::string_view s) {
    std::size_t n = s.size();
    while (n > 0 && is_white(s[n - 1])) --n;
    return s.substr(0, n);
}

inline std::string_view trim(std::string_view s) {
    return trim_right(trim_left(s));
}

// The text a C string would hold: everything up to the first NUL.
inline std::string_view up_to_nul(std::string_view s) {
    std::size_t nul = s.find('\0');
    return nul == std::string_view::npos ? s : s.substr(0, nul);
}

}  // namespace quindar::text
