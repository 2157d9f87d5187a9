// SPDX-License-Identifier: GPL-3.0-or-later
// ProfileSnapshot: the profile rules over a file taken apart once.
#include "profile_snapshot.h"

#include "ini_file.h"
#include "multi_string.h"
#include "profile.h"
#include "text_helpers.h"

namespace quindar {

namespace {

// The buffers GetColor and GetPoint read their values into.
constexpr std::size_t kColorBuffer = 28;
constexpr std::size_t kPointBuffer = 128;

// Key names compare without regard to case, as ProfileText::find_key compares them.
std::string lower_case(std::string_view name) {
    std::string result(name);
    for (char &c : result) c = text::lower(c);
    return result;
}

}  // namespace

std::optional<std::string_view> ProfileSnapshot::Value(std::string_view section,
                                                       std::string_view key) const {
    const ProfileText::Section *found = text.find_section(section);
    if (found == nullptr) return std::nullopt;
    const KeyLines &lines = key_lines(*found);
    const auto line = lines.find(lower_case(text::trim(key)));
    if (line == lines.end()) return std::nullopt;
    return text.lines()[line->second].value;
}

const ProfileSnapshot::KeyLines &ProfileSnapshot::key_lines(
    const ProfileText::Section &section) const {
    const auto [where, added] = keyLines.try_emplace(section.header);
    if (added) {
        for (std::size_t i = section.header + 1; i < section.end; ++i) {
            const ProfileText::Line &line = text.lines()[i];
            if (line.kind == ProfileText::Kind::Key)
                where->second.try_emplace(lower_case(line.name), i);
        }
    }
    return where->second;
}

std::string ProfileSnapshot::String(const char *section, const char *key, const char *deflt,
                                    std::size_t size) const {
    std::vector<char> buffer(size > 0 ? size : 1, '\0');
    const std::size_t n =
        copy_profile_value(Value(section, key), deflt, buffer.data(), buffer.size());
    return std::string(buffer.data(), n);
}

int ProfileSnapshot::Int(const char *section, const char *key, int deflt) const {
    const auto value = Value(section, key);
    return value ? profile_int(*value, deflt) : deflt;
}

bool ProfileSnapshot::Color(const char *section, const char *key, TColor deflt,
                            TColor &value) const {
    return color_from_text(String(section, key, "", kColorBuffer), deflt, value);
}

bool ProfileSnapshot::Point(const char *section, const char *key, char *x, char *y, char *z,
                            int size) const {
    return point_from_text(String(section, key, "", kPointBuffer), x, y, z, size);
}

std::vector<std::string> ProfileSnapshot::Keys(std::string_view section) const {
    const ProfileText::Section *found = text.find_section(section);
    return found != nullptr ? text.key_names(*found) : std::vector<std::string>{};
}

std::vector<std::string> ProfileSnapshot::KeyList(std::string_view section,
                                                  std::size_t size) const {
    std::vector<char> buffer(size > 0 ? size : 1, '\0');
    pack_profile_list(Keys(section), buffer.data(), buffer.size());
    return split_multi_string(buffer.data(), buffer.size());
}

}  // namespace quindar
