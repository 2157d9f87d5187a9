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

std::string folded(std::string_view name) {
    name = text::trim(name);
    std::string result(name);
    for (char &c : result) c = text::lower(c);
    return result;
}

}  // namespace

ProfileSnapshot::ProfileSnapshot(std::string content) : text(std::move(content)) {
    const auto &sections = text.sections();
    const auto &lines = text.lines();
    keyIndex.resize(sections.size());
    for (std::size_t s = 0; s < sections.size(); ++s) {
        sectionIndex.emplace(folded(lines[sections[s].header].name), s);
        for (std::size_t i = sections[s].header + 1; i < sections[s].end; ++i)
            if (lines[i].kind == ProfileText::Kind::Key)
                keyIndex[s].emplace(folded(lines[i].name), i);
    }
}

const ProfileText::Section *ProfileSnapshot::FindSection(std::string_view name) const {
    const auto found = sectionIndex.find(folded(name));
    return found != sectionIndex.end() ? &text.sections()[found->second] : nullptr;
}

std::optional<std::string_view> ProfileSnapshot::Value(std::string_view section,
                                                       std::string_view key) const {
    const ProfileText::Section *found = FindSection(section);
    if (found == nullptr) return std::nullopt;
    const auto &keys = keyIndex[static_cast<std::size_t>(found - text.sections().data())];
    const auto line = keys.find(folded(key));
    if (line == keys.end()) return std::nullopt;
    return text.lines()[line->second].value;
}

std::string ProfileSnapshot::String(const char *section, const char *key, const char *deflt,
                                    std::size_t size) const {
    std::vector<char> buffer(size > 0 ? size : 1, '\0');
    const std::size_t n =
        copy_profile_value(Value(section, key), deflt, buffer.data(), buffer.size());
    return std::string(buffer.data(), n);
}

std::string ProfileSnapshot::Whole(const char *section, const char *key, const char *deflt) const {
    const auto value = Value(section, key);
    const std::size_t length = value ? value->size() : std::string_view(deflt ? deflt : "").size();
    return String(section, key, deflt, length + 1);
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

std::array<std::string, 3> ProfileSnapshot::PointFields(const char *section,
                                                        const char *key) const {
    std::array<std::string, 3> fields;
    point_fields(Whole(section, key, ""), fields);
    return fields;
}

std::vector<std::string> ProfileSnapshot::Keys(std::string_view section) const {
    const ProfileText::Section *found = FindSection(section);
    return found != nullptr ? text.key_names(*found) : std::vector<std::string>{};
}

std::vector<std::string> ProfileSnapshot::KeyList(std::string_view section,
                                                  std::size_t size) const {
    std::vector<char> buffer(size > 0 ? size : 1, '\0');
    pack_profile_list(Keys(section), buffer.data(), buffer.size());
    return split_multi_string(buffer.data(), buffer.size());
}

}  // namespace quindar
