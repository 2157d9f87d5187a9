// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What a long computation on a document asks of the application between two samples, and
// the gate that keeps two of them from running on one document at once.
//
// There is one thread: a graph build or a calculus run keeps the windows alive by pumping the
// waiting messages inside its loop, so a command can arrive in the middle of it. The host is
// that door to the application; the engine without a host runs alone (nothing is pumped, no
// stop ever comes, progress goes nowhere), which is how the command line and the tests run.

#include <string>

namespace quindar {

// The application as a long computation sees it. Every operation has a do-nothing default,
// so the base class itself is the null host, and a host overrides only what it has.
class ComputeHost {
public:
    virtual ~ComputeHost() = default;
    // The user's Stop of a calculus run (the application's flag).
    virtual bool stop_requested() { return false; }
    // Lets the waiting window messages run; a host may throttle it.
    virtual void pump_waiting_messages() {}
    // Shows the running variable's value in the Variables List.
    virtual void update_variable_list() {}
    // The progress of a graph build: its caption, its text, and a percentage that may pass 100
    // (several functions each add their share per step). Each report is also a pump.
    virtual void set_progress_caption(const char *caption) { (void)caption; }
    virtual void set_progress_text(const char *text) { (void)text; }
    virtual void set_progress_percent(int percent) { (void)percent; }
    // Cancel of the progress that a build reports to.
    virtual bool progress_cancelled() { return false; }
    // True when the windows the computation draws into have gone (closed through the pump):
    // a 3-D build asks before each grid point and stops.
    virtual bool owner_gone() { return false; }
};

// The earlier name of the host.
using ComputationHooks = ComputeHost;

// One long computation at a time per document. A graph build lends variables and flushes the
// whole equation list at its end, so a second build or a calculus run started through the
// pump inside a running one would lose its map or find its variable locked: it is refused.
class ComputeGate {
public:
    // True and held when nothing runs; false when `running()` is already at work.
    bool try_enter(const char *what) {
        if (busy) return false;
        busy = true;
        holder = what != nullptr ? what : "";
        return true;
    }
    void leave() {
        busy = false;
        holder.clear();
    }
    bool is_busy() const { return busy; }
    // What holds the gate ("graph", "integration", ...), empty when free.
    const std::string &running() const { return holder; }

private:
    bool busy = false;
    std::string holder;
};

// Holds a gate for its own lifetime when it could enter: every way out of a run lets go.
class ComputeGatePass {
public:
    ComputeGatePass(ComputeGate &gate, const char *what)
        : gate(gate), entered(gate.try_enter(what)) {}
    ~ComputeGatePass() {
        if (entered) gate.leave();
    }
    ComputeGatePass(const ComputeGatePass &) = delete;
    ComputeGatePass &operator=(const ComputeGatePass &) = delete;
    // False when another computation held the gate: the caller must not run.
    bool ok() const { return entered; }

private:
    ComputeGate &gate;
    bool entered;
};

}  // namespace quindar
