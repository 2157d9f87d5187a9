// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The engine's loops reach the window of a run through its host.
#include "run_host.h"

#include "parser.h"

namespace quindar::calculus {

const char *SoundFile(Sound sound) {
    switch (sound) {
        case Sound::Error:
            return "Error.wav";
        case Sound::Success:
            return "QClick.wav";
        case Sound::Stopped:
            return "Delete.wav";
    }
    return "";
}

ScopedRunHooks::ScopedRunHooks(Parser &engine, RunHost &runHost, bool engineStops)
    : parser(engine), host(runHost), engine_stops(engineStops) {
    parser.set_computation_hooks(this);
}

ScopedRunHooks::~ScopedRunHooks() {
    parser.set_computation_hooks(host.resting_hooks());
}

bool ScopedRunHooks::stop_requested() {
    return engine_stops && host.stop_requested();
}

void ScopedRunHooks::pump_waiting_messages() {
    host.pump();
}

void ScopedRunHooks::update_variable_list() {
    host.refresh_variable_list();
}

}  // namespace quindar::calculus
