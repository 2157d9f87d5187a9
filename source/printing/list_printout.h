// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// How a Variables or Functions list falls into printed pages: rows one under the other from
// the top, as many as fit.

#include <algorithm>

namespace quindar::printing {

// The page count of a list: rows over rows per page, plus one (so a list that fills its
// pages exactly gets a blank last page, as the print dialog has always offered), at least 1.
// With no room for a row nothing is printed: 0.
constexpr int ListPageCount(int rows, int rowsPerPage) {
    if (rowsPerPage <= 0) return 0;
    return std::max(1, rows / rowsPerPage + 1);
}

// The first row of a page, counted from 1.
constexpr int ListPageFirstRow(int page, int rowsPerPage) {
    return (page - 1) * rowsPerPage;
}

}  // namespace quindar::printing
