// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "profile.h"

#include <climits>
#include <cstring>
#include <filesystem>

#include "file_io.h"
#include "multi_string.h"
#include "profile_text.h"
#include "text_helpers.h"

namespace quindar {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string content_or_empty(const char *path) {
    if (path == nullptr) return {};
    auto content = read_whole_file(path);
    return content ? std::move(*content) : std::string();
}

bool has_line_break(const char *text) {
    return text != nullptr && std::strpbrk(text, "\r\n") != nullptr;
}

// Where a new key goes: behind the section's last line that holds anything, so that blank
// lines which part it from the next section stay behind the new key.
std::size_t last_filled_line(const ProfileText &text, const ProfileText::Section &section) {
    std::size_t last = section.header;
    for (std::size_t i = section.header + 1; i < section.end; ++i) {
        const auto &line = text.lines()[i];
        std::string_view body(text.content().data() + line.begin, line.text_end - line.begin);
        if (!text::trim(body).empty()) last = i;
    }
    return last;
}

std::string key_line(std::string_view key, std::string_view value) {
    std::string line(key);
    line += '=';
    line += value;
    line += kLineEnd;
    return line;
}

std::string set_key(const ProfileText &text, std::string_view section, std::string_view key,
                    std::string_view value) {
    std::string updated = text.content();
    const ProfileText::Section *found = text.find_section(section);
    if (found == nullptr) {
        if (!text.lines().empty() && !text.lines().back().has_line_end()) updated += kLineEnd;
        updated += '[';
        updated += section;
        updated += ']';
        updated += kLineEnd;
        updated += key_line(key, value);
        return updated;
    }
    std::size_t existing = text.find_key(*found, key);
    if (existing != ProfileText::npos) {
        // The key keeps the spelling it has in the file.
        const auto &line = text.lines()[existing];
        updated.replace(line.begin, line.end - line.begin, key_line(line.name, value));
        return updated;
    }
    const auto &after = text.lines()[last_filled_line(text, *found)];
    std::string insert;
    if (!after.has_line_end()) insert += kLineEnd;
    insert += key_line(key, value);
    updated.insert(after.end, insert);
    return updated;
}

// Every section of the name goes, from the last to the first so that offsets stay valid.
bool delete_section(const ProfileText &text, std::string_view section, std::string &updated) {
    updated = text.content();
    bool any = false;
    const auto &sections = text.sections();
    for (auto it = sections.rbegin(); it != sections.rend(); ++it) {
        const auto &header = text.lines()[it->header];
        if (!text::equal_no_case(header.name, text::trim(section))) continue;
        std::size_t from = header.begin;
        std::size_t to = text.lines()[it->end - 1].end;
        updated.erase(from, to - from);
        any = true;
    }
    return any;
}

bool delete_key(const ProfileText &text, std::string_view section, std::string_view key,
                std::string &updated) {
    const ProfileText::Section *found = text.find_section(section);
    if (found == nullptr) return false;
    std::size_t existing = text.find_key(*found, key);
    if (existing == ProfileText::npos) return false;
    const auto &line = text.lines()[existing];
    updated = text.content();
    updated.erase(line.begin, line.end - line.begin);
    return true;
}

}  // namespace

std::optional<std::string> profile_value(const std::string &path, std::string_view section,
                                         std::string_view key) {
    ProfileText text(content_or_empty(path.c_str()));
    const ProfileText::Section *found = text.find_section(section);
    if (found == nullptr) return std::nullopt;
    std::size_t line = text.find_key(*found, key);
    if (line == ProfileText::npos) return std::nullopt;
    return std::string(text.lines()[line].value);
}

std::vector<std::string> profile_keys(const std::string &path, std::string_view section) {
    ProfileText text(content_or_empty(path.c_str()));
    const ProfileText::Section *found = text.find_section(section);
    if (found == nullptr) return {};
    return text.key_names(*found);
}

std::vector<std::string> profile_sections(const std::string &path) {
    ProfileText text(content_or_empty(path.c_str()));
    return text.section_names();
}

std::string profile_with_key(std::string content, std::string_view section, std::string_view key,
                             std::string_view value) {
    ProfileText text(std::move(content));
    return set_key(text, text::trim(section), text::trim(key), value);
}

int profile_int(std::string_view value, int deflt) {
    value = text::trim(value);
    std::size_t at = 0;
    bool negative = false;
    if (at < value.size() && (value[at] == '+' || value[at] == '-')) {
        negative = value[at] == '-';
        ++at;
    }
    if (at >= value.size() || !text::is_digit(value[at])) return deflt;
    // Counting stops growing past the int range, so a long run of digits cannot overflow.
    const long long limit = static_cast<long long>(INT_MAX) + 1;
    long long magnitude = 0;
    for (; at < value.size() && text::is_digit(value[at]); ++at) {
        magnitude = magnitude * 10 + (value[at] - '0');
        if (magnitude > limit) magnitude = limit;
    }
    long long result = negative ? -magnitude : magnitude;
    if (result > INT_MAX) return INT_MAX;
    if (result < INT_MIN) return INT_MIN;
    return static_cast<int>(result);
}

std::size_t GetPrivateProfileString(const char *section, const char *key, const char *deflt,
                                    char *buffer, std::size_t size, const char *path) {
    if (buffer == nullptr || size == 0) return 0;
    std::string file = path != nullptr ? path : "";
    if (section == nullptr) return pack_profile_list(profile_sections(file), buffer, size);
    if (key == nullptr) return pack_profile_list(profile_keys(file, section), buffer, size);
    const auto value = profile_value(file, section, key);
    return copy_profile_value(value ? std::optional<std::string_view>(*value) : std::nullopt, deflt,
                              buffer, size);
}

std::size_t copy_profile_value(std::optional<std::string_view> value, const char *deflt,
                               char *buffer, std::size_t size) {
    if (buffer == nullptr || size == 0) return 0;
    if (value) return copy_cut(*value, buffer, size);
    std::string_view fallback = deflt != nullptr ? deflt : "";
    std::size_t n = fallback.size();
    while (n > 0 && text::is_blank(fallback[n - 1])) --n;
    return copy_cut(fallback.substr(0, n), buffer, size);
}

int GetPrivateProfileInt(const char *section, const char *key, int deflt, const char *path) {
    if (section == nullptr || key == nullptr || path == nullptr) return deflt;
    auto value = profile_value(path, section, key);
    return value ? profile_int(*value, deflt) : deflt;
}

bool WritePrivateProfileString(const char *section, const char *key, const char *value,
                               const char *path) {
    if (section == nullptr || path == nullptr || *path == '\0') return false;
    if (has_line_break(section) || has_line_break(key) || has_line_break(value)) return false;
    if (key != nullptr && text::trim(key).empty()) return false;

    // Held from the read to the replacement, so that two programs writing keys of one file
    // do not lose each other's key.
    std::string reason;
    const auto lock = FileLock::Acquire(path, reason);
    if (!lock) return false;
    std::string content;
    if (auto existing = read_whole_file(path)) {
        content = std::move(*existing);
    } else {
        // Only a file that is not there may start empty; one that cannot be read stays.
        std::error_code error;
        if (std::filesystem::symlink_status(path, error).type() !=
            std::filesystem::file_type::not_found) {
            return false;
        }
    }
    ProfileText text(std::move(content));
    std::string_view name = text::trim(section);

    std::string updated;
    if (key == nullptr) {
        if (!delete_section(text, name, updated)) return true;  // nothing to delete
    } else if (value == nullptr) {
        if (!delete_key(text, name, key, updated)) return true;
    } else {
        updated = set_key(text, name, text::trim(key), value);
    }
    return replace_file(path, updated, &*lock).written;
}

}  // namespace quindar
