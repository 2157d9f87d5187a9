// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_roster.h"

#include <algorithm>
#include <cctype>

namespace quindar {
namespace {

std::string Upper(std::string_view text) {
    std::string result(text);
    for (char &c : result) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return result;
}

}  // namespace

std::string untitled_caption(int number, std::string_view name) {
    return std::to_string(number) + " - " + Upper(name);
}

std::string file_caption(std::string_view name, std::string_view path) {
    return Upper(name) + " - " + Upper(path);
}

std::string combo_entry_text(std::string_view caption) {
    const std::size_t cut = caption.find_last_of(":\\/");
    return std::string(cut == std::string_view::npos ? caption : caption.substr(cut + 1));
}

bool same_document_path(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

int DocumentRoster::Add(int key, std::string path) {
    entries.push_back({key, std::move(path)});
    return Count() - 1;
}

std::optional<int> DocumentRoster::Remove(int key) {
    const int index = IndexOf(key);
    if (index < 0) return std::nullopt;
    const bool wasLast = index == Count() - 1;
    entries.erase(entries.begin() + index);
    if (entries.empty()) return std::nullopt;
    // The entries behind moved up one place, so "the next one" now stands at index.
    return wasLast ? index - 1 : index;
}

void DocumentRoster::SetPath(int key, std::string path) {
    const int index = IndexOf(key);
    if (index >= 0) entries[static_cast<std::size_t>(index)].path = std::move(path);
}

int DocumentRoster::IndexOf(int key) const {
    for (std::size_t at = 0; at < entries.size(); ++at)
        if (entries[at].key == key) return static_cast<int>(at);
    return -1;
}

int DocumentRoster::IndexOfPath(std::string_view path) const {
    for (std::size_t at = 0; at < entries.size(); ++at)
        if (!entries[at].path.empty() && same_document_path(entries[at].path, path))
            return static_cast<int>(at);
    return -1;
}

}  // namespace quindar
