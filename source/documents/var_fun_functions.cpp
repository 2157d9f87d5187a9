// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The function side of VarFunIniFile: categories, name lists and look-ups.
#include <algorithm>
#include <unordered_map>

#include "line_scanner.h"
#include "multi_string.h"
#include "text_helpers.h"
#include "var_fun_ini_file.h"

namespace quindar {

namespace {

bool holds(std::string_view line, char c) {
    return line.find(c) != std::string_view::npos;
}

// A line's text as the scanners compare it: up to a NUL, as a C string ends.
std::string_view meaning(const LineScanner::Line &line) {
    return text::up_to_nul(line.text);
}

// Moves the scanner behind the first line that is exactly the header; false if there is none.
bool skip_to_header(LineScanner &scanner, std::string_view header) {
    LineScanner::Line line;
    while (scanner.Next(line)) {
        if (meaning(line) == header) return true;
    }
    return false;
}

// The part of an entry in front of its "[", or nothing for an entry without one.
std::optional<std::string_view> short_name(std::string_view entry) {
    std::size_t bracket = entry.find('[');
    if (bracket == std::string_view::npos) return std::nullopt;
    return entry.substr(0, bracket);
}

void clear(char *buffer, int size) {
    if (buffer != nullptr && size > 0) buffer[0] = '\0';
}

}  // namespace

bool VarFunIniFile::SelectCategory(const char *category) {
    if (category == nullptr) return true;
    if (!IsFunctionCatagory(category)) return false;
    SetFunctionFlagStr(category);
    return true;
}

std::optional<std::vector<std::string>> VarFunIniFile::ScanFunctionNames() {
    auto content = Load();
    if (!content) return std::nullopt;
    std::vector<std::string> names;
    LineScanner scanner(*content);
    if (!skip_to_header(scanner, "[" + functionFlag.text + "]")) return names;
    LineScanner::Line line;
    while (scanner.Next(line)) {
        std::string_view text = meaning(line);
        // Whatever does not start with a letter ends the section: the next header, a comment,
        // a digit or a blank.
        if (text.empty() || !text::is_letter(text.front())) break;
        if (holds(text, '[') && holds(text, ']') && holds(text, '=')) {
            names.emplace_back(text.substr(0, text.find('=')));
        }
    }
    return names;
}

std::optional<std::vector<std::string>> VarFunIniFile::ScanCategories() {
    auto content = Load();
    if (!content) return std::nullopt;
    std::vector<std::string> categories;
    LineScanner scanner(*content);
    LineScanner::Line line;
    while (scanner.Next(line)) {
        std::string_view text = text::trim_left(meaning(line));
        if (text.empty() || text.front() != '[' || !holds(text, ']') || holds(text, '=')) {
            continue;
        }
        std::string_view name = text.substr(1, text.find(']') - 1);
        // An empty name would end the multi-string list early.
        if (!name.empty()) categories.emplace_back(name);
    }
    return categories;
}

// The value of each name as GetFunctionValue finds it, in one pass over the file.
std::optional<std::vector<std::string>> VarFunIniFile::ScanFunctionValues(
    const std::vector<std::string> &names) {
    auto content = Load();
    if (!content) return std::nullopt;
    std::unordered_map<std::string_view, std::string_view> first;
    LineScanner scanner(*content);
    if (skip_to_header(scanner, "[" + functionFlag.text + "]")) {
        LineScanner::Line line;
        while (scanner.Next(line)) {
            std::string_view text = meaning(line);
            std::size_t equals = text.find('=');
            if (equals == std::string_view::npos) continue;
            first.try_emplace(text.substr(0, equals), text::trim_left(text.substr(equals + 1)));
        }
    }
    std::vector<std::string> values;
    for (const auto &name : names) {
        auto found = first.find(name);
        values.emplace_back(found != first.end() ? found->second : std::string_view());
    }
    return values;
}

// The section's names as they fit in a buffer of the section's measured size: the look-ups
// below serve libraries, whose function section measures to the end of the file. In a
// document the function section measures 0, so they find nothing there.
std::optional<std::vector<std::string>> VarFunIniFile::SectionList() {
    if (!PositionsKnown()) return std::nullopt;
    long size = SizeOfFunSection();
    if (size <= 0) return std::vector<std::string>();
    auto names = ScanFunctionNames();
    if (!names) return std::nullopt;
    std::size_t used = 0;
    std::size_t room = static_cast<std::size_t>(size) - 1;
    std::size_t fitting = 0;
    for (const auto &name : *names) {
        if (used + name.size() + 1 > room) break;
        used += name.size() + 1;
        ++fitting;
    }
    names->resize(fitting);
    return names;
}

int VarFunIniFile::GetNumFunctions() {
    auto names = ScanFunctionNames();
    return names ? static_cast<int>(names->size()) : 0;
}

bool VarFunIniFile::GetFunctionNames(char *buffer, int size, const char *category) {
    clear(buffer, size);
    if (!SelectCategory(category)) return false;
    auto names = ScanFunctionNames();
    if (!names) return false;
    return pack_while_they_fit(*names, buffer, size) > 0;
}

long VarFunIniFile::SizeOfFunctionNames(const char *category) {
    if (!SelectCategory(category)) return 0;
    auto names = ScanFunctionNames();
    if (!names || names->empty()) return 0;
    return static_cast<long>(multi_string_size(*names));
}

bool VarFunIniFile::IsFunctionCatagory(const char *name) {
    if (name == nullptr) return false;
    auto categories = ScanCategories();
    if (!categories) return false;
    return std::find(categories->begin(), categories->end(), name) != categories->end();
}

bool VarFunIniFile::GetFunctionCatagories(char *buffer, int size) {
    clear(buffer, size);
    auto categories = ScanCategories();
    if (!categories) return false;
    return pack_while_they_fit(*categories, buffer, size) > 0;
}

long VarFunIniFile::SizeOfFunctionCatagories() {
    auto categories = ScanCategories();
    if (!categories || categories->empty()) return 0;
    return static_cast<long>(multi_string_size(*categories));
}

bool VarFunIniFile::GetFunctionValue(const char *name, char *buffer, int size,
                                     const char *category) {
    clear(buffer, size);
    if (!SelectCategory(category) || name == nullptr) return false;
    auto values = ScanFunctionValues({name});
    if (!values || values->front().empty()) return false;
    if (buffer != nullptr && size > 0) {
        copy_cut(values->front(), buffer, static_cast<std::size_t>(size));
    }
    return true;
}

std::optional<std::vector<std::string>> VarFunIniFile::GetFunctionValues(
    const std::vector<std::string> &names, const char *category) {
    if (!SelectCategory(category)) return std::vector<std::string>(names.size());
    return ScanFunctionValues(names);
}

bool VarFunIniFile::IsFunction(const char *name, const char *category) {
    if (!SelectCategory(category) || name == nullptr) return false;
    auto list = SectionList();
    if (!list) return false;
    for (const auto &entry : *list) {
        if (text::equal_no_case(entry, name)) return true;
        auto part = short_name(entry);
        if (part && text::equal_no_case(*part, name)) return true;
    }
    return false;
}

bool VarFunIniFile::GetFuncFullName(const char *name, char *buffer, int size,
                                    const char *category) {
    clear(buffer, size);
    if (!IsFunction(name, category)) return false;
    auto list = SectionList();
    if (!list) return false;
    for (const auto &entry : *list) {
        auto part = short_name(entry);
        if (!part || !text::equal_no_case(*part, name)) continue;
        if (buffer != nullptr && size > 0) {
            copy_cut(entry, buffer, static_cast<std::size_t>(size));
        }
        return true;
    }
    return false;
}

// Longest name and longest value of the section's list, each plus 1 (0 for an empty list);
// false if the file could not be read.
bool VarFunIniFile::LongestNameAndValue(long &name, long &value) {
    name = value = 0;
    auto names = SectionList();
    if (!names) return false;
    if (names->empty()) return true;
    auto values = ScanFunctionValues(*names);
    if (!values) return false;
    std::size_t longest = 0;
    for (const auto &entry : *names) longest = std::max(longest, entry.size());
    name = static_cast<long>(longest) + 1;
    longest = 0;
    for (const auto &text : *values) longest = std::max(longest, text.size());
    value = static_cast<long>(longest) + 1;
    return true;
}

long VarFunIniFile::SizeOfLongestFuncName(const char *category) {
    if (!SelectCategory(category)) return 0;
    long name, value;
    LongestNameAndValue(name, value);
    return name;
}

long VarFunIniFile::SizeOfLongestFuncValue(const char *category) {
    if (!SelectCategory(category)) return 0;
    long name, value;
    LongestNameAndValue(name, value);
    return value;
}

long VarFunIniFile::SizeOfLongestFuncNameAndValue(const char *category) {
    if (!SelectCategory(category)) return 0;
    long name, value;
    if (!LongestNameAndValue(name, value)) return 0;
    return name + value + 3;
}

}  // namespace quindar
