// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// How the Variables and Functions lists delete their selected lines with the Del key. A
// list position is the engine's index, and the engine's list closes up after each delete,
// so each later index is lowered by the number already deleted.

#include <span>
#include <vector>

namespace quindar {

struct ListDeletion {
    int index;    // the engine's index at the time of this delete
    bool update;  // refill the list: only after the last
    bool ask;     // ask before deleting: only when exactly one line was selected
};

// The deletes for the selected rows, in any order the control gives them.
std::vector<ListDeletion> PlanListDeletion(std::span<const int> selectedRows);

// The selected index when exactly one line is selected, else -1.
int SingleSelection(std::span<const int> selectedRows);

// The entry the Function Manager selects after deleting the one at deletedIndex: the one now
// at the same index, or the last when the deleted one was last; -1 when none is left.
constexpr int SelectionAfterDelete(int deletedIndex, int remainingCount) {
    if (remainingCount <= 0) return -1;
    return deletedIndex < remainingCount ? deletedIndex : remainingCount - 1;
}

// Runs the plan: deleteOne(index, update, ask) is DeleteVariable or DeleteFunction and
// says whether it deleted. A refused delete leaves the engine's list as it was, so the
// indexes after it are lowered only by what was really deleted. Returns the number deleted.
template <typename DeleteOne>
int DeleteSelectedRows(std::span<const int> selectedRows, DeleteOne &&deleteOne) {
    int deleted = 0;
    int planned = 0;
    for (const ListDeletion &step : PlanListDeletion(selectedRows)) {
        const int index = step.index + planned - deleted;
        if (deleteOne(index, step.update, step.ask)) ++deleted;
        ++planned;
    }
    return deleted;
}

}  // namespace quindar
