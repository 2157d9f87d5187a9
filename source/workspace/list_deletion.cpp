// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "list_deletion.h"

#include <algorithm>

namespace quindar {

std::vector<ListDeletion> PlanListDeletion(std::span<const int> selectedRows) {
    std::vector<int> rows(selectedRows.begin(), selectedRows.end());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::vector<ListDeletion> plan;
    plan.reserve(rows.size());
    const bool ask = rows.size() == 1;
    for (std::size_t i = 0; i < rows.size(); ++i)
        plan.push_back({rows[i] - static_cast<int>(i), i + 1 == rows.size(), ask});
    return plan;
}

int SingleSelection(std::span<const int> selectedRows) {
    return selectedRows.size() == 1 ? selectedRows.front() : -1;
}

}  // namespace quindar
