// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "string_table.h"

#include <charconv>

namespace quindar {

extern const char kStringTableText[];

namespace {

struct Escape {
    char letter;
    char meaning;
};

constexpr Escape kEscapes[] = {{'n', '\n'}, {'t', '\t'}, {'\\', '\\'}};

std::string Unescape(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && at + 1 < text.size()) {
            bool known = false;
            for (const Escape &escape : kEscapes) {
                if (text[at + 1] == escape.letter) {
                    result += escape.meaning;
                    known = true;
                    break;
                }
            }
            if (known) {
                ++at;
                continue;
            }
        }
        result += text[at];
    }
    return result;
}

void Note(std::vector<std::string> *problems, int lineNumber, const std::string &what) {
    if (problems != nullptr)
        problems->push_back("line " + std::to_string(lineNumber) + ": " + what);
}

}  // namespace

void StringTable::AddTsv(std::string_view text, std::vector<std::string> *problems) {
    int lineNumber = 0;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        std::string_view line = text.substr(start, end - start);
        start = end + 1;
        ++lineNumber;
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty() || line.front() == '#') continue;

        const std::size_t tab = line.find('\t');
        int id = 0;
        const char *idEnd = line.data() + (tab == std::string_view::npos ? line.size() : tab);
        const auto [stop, error] = std::from_chars(line.data(), idEnd, id);
        if (tab == std::string_view::npos || error != std::errc() || stop != idEnd || id <= 0) {
            Note(problems, lineNumber, "not \"id TAB text\": " + std::string(line));
            continue;
        }
        if (!texts.emplace(id, Unescape(line.substr(tab + 1))).second)
            Note(problems, lineNumber, "id " + std::to_string(id) + " given twice");
    }
}

std::string_view StringTable::Get(int id) const {
    const auto found = texts.find(id);
    return found == texts.end() ? std::string_view() : std::string_view(found->second);
}

std::vector<int> StringTable::IdsBetween(int first, int last) const {
    std::vector<int> ids;
    for (auto at = texts.lower_bound(first); at != texts.end() && at->first <= last; ++at)
        ids.push_back(at->first);
    return ids;
}

namespace {

struct CompiledStrings {
    StringTable table;
    std::vector<std::string> problems;
    CompiledStrings() { table.AddTsv(kStringTableText, &problems); }
};

const CompiledStrings &Compiled() {
    static const CompiledStrings strings;
    return strings;
}

}  // namespace

const StringTable &application_strings() {
    return Compiled().table;
}
const std::vector<std::string> &application_string_problems() {
    return Compiled().problems;
}

}  // namespace quindar
