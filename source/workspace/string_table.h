// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The program's numbered texts: messages, box titles, command hints and tips. They live in
// tab-separated files, one "id TAB text" a line, compiled into the program; "\n" and "\t"
// in a text stand for a line break and a tab, "\\" for a backslash. Empty lines and lines
// starting with "#" are comments.

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quindar {

class StringTable {
public:
    // Adds the lines of one file. A malformed line or an id already present is skipped and
    // described in problems (with its line number), so a broken file never stops the program.
    void AddTsv(std::string_view text, std::vector<std::string> *problems = nullptr);

    // The text of id, or empty when the table has none.
    std::string_view Get(int id) const;
    bool Has(int id) const { return texts.contains(id); }
    std::size_t Size() const { return texts.size(); }
    // The ids from first to last, inclusive, that have a text, in ascending order.
    std::vector<int> IdsBetween(int first, int last) const;

private:
    std::map<int, std::string> texts;
};

// The table compiled into the program from resources/strings/*.tsv; problems of those
// files are collected in application_string_problems().
const StringTable &application_strings();
const std::vector<std::string> &application_string_problems();

}  // namespace quindar
