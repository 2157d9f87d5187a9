// SPDX-License-Identifier: GPL-3.0-or-later
// The in-memory profile writer: keys collected per section, or the profile rules per write.
#include "profile_builder.h"

#include "profile.h"
#include "profile_text.h"
#include "text_helpers.h"

namespace quindar {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string lower_text(std::string_view text) {
    std::string lowered(text);
    for (char &c : lowered) c = text::lower(c);
    return lowered;
}

bool has_line_break(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

bool has_header_line(const std::string &text) {
    const ProfileText parsed(text);
    return !parsed.sections().empty();
}

}  // namespace

ProfileBuilder::ProfileBuilder(std::string freeText) : head(std::move(freeText)) {
    profileRules = has_header_line(head);
}

// A key line "key=value" is found again by a later write of the same key only when it parses
// as a key line of that name: not a header, not a comment, no "=" in the name.
bool ProfileBuilder::KeyReadsBack(std::string_view key) {
    if (key.find('=') != std::string_view::npos) return false;
    const char first = key.front();
    return first != '[' && first != ';';
}

void ProfileBuilder::UseProfileRules() {
    if (profileRules) return;
    head = Content();
    sections.clear();
    sectionByLowerName.clear();
    profileRules = true;
}

bool ProfileBuilder::WriteString(std::string_view section, std::string_view key,
                                 std::string_view value) {
    if (has_line_break(section) || has_line_break(key) || has_line_break(value)) return false;
    section = text::trim(section);
    key = text::trim(key);
    if (key.empty()) return false;
    if (!profileRules && !KeyReadsBack(key)) UseProfileRules();
    if (profileRules) {
        head = profile_with_key(std::move(head), section, key, value);
        return true;
    }

    const std::string sectionName = lower_text(section);
    auto found = sectionByLowerName.find(sectionName);
    if (found == sectionByLowerName.end()) {
        found = sectionByLowerName.emplace(sectionName, sections.size()).first;
        sections.push_back(Section{std::string(section), {}, {}});
    }
    Section &target = sections[found->second];
    const std::string keyName = lower_text(key);
    if (auto existing = target.byLowerName.find(keyName); existing != target.byLowerName.end()) {
        target.keys[existing->second].value = value;
    } else {
        target.byLowerName.emplace(keyName, target.keys.size());
        target.keys.push_back(Key{std::string(key), std::string(value)});
    }
    return true;
}

std::string ProfileBuilder::Content() const {
    std::string content = head;
    if (profileRules || sections.empty()) return content;
    const char last = content.empty() ? '\n' : content.back();
    if (last != '\n' && last != '\r') content += kLineEnd;
    for (const Section &section : sections) {
        content += '[';
        content += section.name;
        content += ']';
        content += kLineEnd;
        for (const Key &key : section.keys) {
            content += key.name;
            content += '=';
            content += key.value;
            content += kLineEnd;
        }
    }
    return content;
}

}  // namespace quindar
