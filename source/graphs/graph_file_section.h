// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The settings section of a graph file: written key by key, read as the settings-file reader
// reads one (the first section of the file, keys in any case, blanks around them ignored).

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quindar {

class GraphFileSection {
public:
    // The first section of text; an empty name when there is none.
    explicit GraphFileSection(std::string_view text);
    const std::string &name() const { return name_; }
    // The value of key, cut to the text limit; nullopt when missing.
    std::optional<std::string> text(std::string_view key) const;
    int integer(std::string_view key, int deflt) const;

private:
    std::string name_;
    std::vector<std::pair<std::string, std::string>> keys_;
};

// Appends "[name]" and its "key=value" lines, CR LF ended.
void write_graph_file_section(std::string &out, const std::string &name,
                              const std::vector<std::pair<std::string, std::string>> &keys);

}  // namespace quindar
