// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What a long numeric loop asks of the application between two samples: the user's stop,
// the waiting window messages, and a refresh of the Variables List so the running variable
// shows. An engine without hooks runs alone: nothing is pumped and no stop ever comes.

namespace quindar {

class ComputationHooks {
public:
    virtual ~ComputationHooks() = default;
    virtual bool stop_requested() = 0;
    virtual void pump_waiting_messages() = 0;
    virtual void update_variable_list() = 0;
};

}  // namespace quindar
