// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "data_file.h"

#include <fstream>
#include <iterator>

namespace quindar::mathlib {

namespace {

bool is_separator(char c) {
    return c == ' ' || c == ',' || c == '\t' || c == '\r' || c == '\n';
}

// `12)` is a label: it holds a closing parenthesis, no opening one, and ends in it.
bool is_label(const std::string &entry) {
    return !entry.empty() && entry.back() == ')' && entry.find('(') == std::string::npos;
}

// Calls on_entry(text) for each entry and on_row_end() at each line end and at the end.
template <class OnEntry, class OnRowEnd>
DataFileStatus scan(const std::string &path, OnEntry on_entry, OnRowEnd on_row_end) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return DataFileStatus::CannotOpen;
    const std::string text((std::istreambuf_iterator<char>(file)),
                           std::istreambuf_iterator<char>());
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\r' || text[i] == '\n')) ++i;
    if (i == text.size()) return DataFileStatus::NoData;
    int count = 0;
    while (i < text.size()) {
        if (text[i] == '\n' || text[i] == '\r') {
            on_row_end();
            ++i;
            continue;
        }
        if (is_separator(text[i])) {
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < text.size() && !is_separator(text[end])) ++end;
        const std::string entry = text.substr(i, end - i);
        i = end;
        if (is_label(entry)) continue;
        if (++count >= kDataEntryLimit) return DataFileStatus::TooMany;
        on_entry(entry);
    }
    on_row_end();
    return DataFileStatus::Read;
}

}  // namespace

DataFileStatus read_data_entries(const std::string &path, std::vector<std::string> &entries) {
    entries.clear();
    return scan(
        path, [&](const std::string &entry) { entries.push_back(entry); }, [] {});
}

DataFileStatus read_data_points(const std::string &path, std::vector<PointRow> &rows) {
    rows.clear();
    PointRow open;
    auto close_row = [&] {
        if (open.count > 0) rows.push_back(open);
        open = PointRow{};
    };
    auto add_entry = [&](const std::string &entry) {
        if (open.count < 3) open.coordinates[static_cast<std::size_t>(open.count)] = entry;
        ++open.count;
    };
    return scan(path, add_entry, close_row);
}

std::string data_file_message(DataFileStatus status, const std::string &path) {
    switch (status) {
        case DataFileStatus::CannotOpen:
            return "Data File ' " + path + " ' Could Not Be Located!";
        case DataFileStatus::NoData:
            return "No Data Found In The ' " + path + " ' Data File!";
        case DataFileStatus::TooMany:
            return "Too Many Data Points Found In The ' " + path +
                   " ' Data File, Limit Is 32767 Points!";
        case DataFileStatus::Read:
            break;
    }
    return {};
}

}  // namespace quindar::mathlib
