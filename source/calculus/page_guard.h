// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The guard of a calculus page while a run is in progress. The run pumps the window messages,
// so the page's own commands, a change of page and the closing of the sheet all arrive in the
// middle of it: the page ignores its commands, and refuses to be left or closed.

namespace quindar::calculus {

struct CloseDecision {
    bool allowed = true;
    int message = 0;  // the message to show first; 0 for none
};

class PageGuard {
public:
    // The messages of closing during a run and with the Function Manager open.
    PageGuard(int runningMessage, int managerMessage)
        : running_message(runningMessage), manager_message(managerMessage) {}

    // Starts a run; false while one is in progress, which the command then ignores.
    bool begin();
    void end();
    bool idle() const { return !running; }
    bool computing() const { return running; }

    // Closing the sheet: refused during a run, with the message once per run, and while
    // the Function Manager stands open.
    CloseDecision can_close(bool managerOpen);
    // Changing to the other page.
    bool can_leave(bool managerOpen) const { return !running && !managerOpen; }

private:
    int running_message;
    int manager_message;
    bool running = false;
    bool close_warned = false;
};

}  // namespace quindar::calculus
