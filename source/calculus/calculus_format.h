// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A message with its "%s" arguments filled in.

#include <cstdio>
#include <string>

namespace quindar::calculus {

template <class... Texts>
std::string Format(const char *format, const Texts &...texts) {
    const int size = std::snprintf(nullptr, 0, format, std::string(texts).c_str()...);
    std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
    std::snprintf(text.data(), text.size() + 1, format, std::string(texts).c_str()...);
    return text;
}

}  // namespace quindar::calculus
