// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "profile_text.h"

#include "text_helpers.h"

namespace quindar {

namespace {

// Sorts one line into header, key or other. A NUL cuts the line's meaning where a C string
// would end, so that no name ever carries a NUL into a multi-string list.
void classify(std::string_view text, ProfileText::Line &line) {
    std::string_view meaning = text::trim_left(text::up_to_nul(text));
    if (meaning.empty()) return;
    if (meaning.front() == '[') {
        std::size_t close = meaning.find(']');
        if (close == std::string_view::npos) return;
        line.kind = ProfileText::Kind::Header;
        line.name = text::trim(meaning.substr(1, close - 1));
        return;
    }
    if (meaning.front() == ';') return;
    std::size_t equals = meaning.find('=');
    if (equals == std::string_view::npos) return;
    std::string_view name = text::trim(meaning.substr(0, equals));
    if (name.empty()) return;
    line.kind = ProfileText::Kind::Key;
    line.name = name;
    line.value = text::trim(meaning.substr(equals + 1));
}

}  // namespace

ProfileText::ProfileText(std::string content) : content_(std::move(content)) {
    const std::string_view all(content_);
    std::size_t at = 0;
    while (at < all.size()) {
        Line line;
        line.begin = at;
        std::size_t stop = all.find_first_of("\r\n", at);
        if (stop == std::string_view::npos) stop = all.size();
        line.text_end = stop;
        line.end = stop;
        if (stop < all.size()) {
            line.end = stop + 1;
            if (all[stop] == '\r' && stop + 1 < all.size() && all[stop + 1] == '\n') ++line.end;
        }
        classify(all.substr(line.begin, line.text_end - line.begin), line);
        if (line.kind == Kind::Header) {
            if (!sections_.empty()) sections_.back().end = lines_.size();
            sections_.push_back({lines_.size(), 0});
        }
        lines_.push_back(line);
        at = line.end;
    }
    if (!sections_.empty()) sections_.back().end = lines_.size();
}

const ProfileText::Section *ProfileText::find_section(std::string_view name) const {
    name = text::trim(name);
    for (const auto &section : sections_) {
        if (text::equal_no_case(lines_[section.header].name, name)) return &section;
    }
    return nullptr;
}

std::size_t ProfileText::find_key(const Section &section, std::string_view key) const {
    key = text::trim(key);
    for (std::size_t i = section.header + 1; i < section.end; ++i) {
        if (lines_[i].kind == Kind::Key && text::equal_no_case(lines_[i].name, key)) return i;
    }
    return npos;
}

std::vector<std::string> ProfileText::section_names() const {
    std::vector<std::string> names;
    for (const auto &section : sections_) {
        // An empty name would end a multi-string list early.
        if (!lines_[section.header].name.empty()) {
            names.emplace_back(lines_[section.header].name);
        }
    }
    return names;
}

std::vector<std::string> ProfileText::key_names(const Section &section) const {
    std::vector<std::string> names;
    for (std::size_t i = section.header + 1; i < section.end; ++i) {
        if (lines_[i].kind == Kind::Key) names.emplace_back(lines_[i].name);
    }
    return names;
}

}  // namespace quindar
