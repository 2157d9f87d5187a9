// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A calculus page's run state.
#include "page_guard.h"

namespace quindar::calculus {

bool PageGuard::begin() {
    if (running) return false;
    running = true;
    close_warned = false;
    return true;
}

void PageGuard::end() {
    running = false;
    close_warned = false;
}

CloseDecision PageGuard::can_close(bool managerOpen) {
    if (running) {
        const int shown = close_warned ? 0 : running_message;
        close_warned = true;
        return {false, shown};
    }
    if (managerOpen) return {false, manager_message};
    return {true, 0};
}

}  // namespace quindar::calculus
