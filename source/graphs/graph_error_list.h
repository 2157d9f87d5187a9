// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Graph Errors list of the Graph Setup: the lines a build adds, newest last. It keeps at
// most 101 rows: past 100, the oldest row goes before a new one comes in.

#include <deque>
#include <string>
#include <string_view>

namespace quindar {

class GraphErrorList {
public:
    static constexpr std::size_t kMostRows = 101;

    // A null text adds nothing.
    void AddError(const char *text) {
        if (text == nullptr) return;
        if (rows_.size() > kMostRows - 1) rows_.pop_front();
        rows_.emplace_back(text);
    }
    void AddError(std::string_view text) { AddError(std::string(text).c_str()); }
    void ClearErrors() { rows_.clear(); }
    const std::deque<std::string> &rows() const { return rows_; }

private:
    std::deque<std::string> rows_;
};

}  // namespace quindar
