// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A run host for tests: it records what a run shows and plays, and presses Stop at the k-th
// pump, as a user would between two samples.

#include <string>
#include <vector>

#include "run_host.h"

namespace quindar::calculus {

class RecordingHost : public RunHost {
public:
    void pump() override {
        ++pumps;
        if (stop_at_pump > 0 && pumps >= stop_at_pump) stopped = true;
    }
    bool stop_requested() override { return stopped; }
    void progress(int percent) override { percents.push_back(percent); }
    void status(const std::string &text) override { statuses.push_back(text); }
    void message(const RunMessage &shown) override { messages.push_back(shown); }
    void sound(Sound played) override { sounds.push_back(played); }
    void refresh_variable_list() override { ++refreshes; }

    long pumps = 0;
    long stop_at_pump = 0;  // 0: never
    bool stopped = false;
    int refreshes = 0;
    std::vector<int> percents;
    std::vector<std::string> statuses;
    std::vector<RunMessage> messages;
    std::vector<Sound> sounds;
};

}  // namespace quindar::calculus
