// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What a run of the calculus utilities asks of the window around it. A run happens inside the
// handler of its button on the one thread, so the window lives only where the run pumps; Stop is
// a flag read between samples. Messages go out by number with their text already formatted;
// the window adds the title and selects the field the message is about.

#include <string>

#include "computation_hooks.h"

namespace quindar {
class Parser;
}

namespace quindar::calculus {

enum class Sound { Error, Success, Stopped };

// The wave file of each sound, as the program's Sounds folder holds them.
const char *SoundFile(Sound sound);

// The field of a page that a message is about; the window puts the focus there.
enum class Field {
    None,
    Function,
    XParameter,
    YParameter,
    ZParameter,
    XLow,
    XHigh,
    YLow,
    YHigh,
    ZLow,
    ZHigh,
    Variable,
    Start,
    End,
    Steps,
};

struct RunMessage {
    int title = 0;  // the utility's title message
    int id = 0;     // the message's number; 0 for an engine text shown alone
    std::string text;
    Field field = Field::None;
};

class RunHost {
public:
    virtual ~RunHost() = default;
    // The waiting window messages: where Stop and every other command arrive during a run.
    virtual void pump() = 0;
    virtual bool stop_requested() = 0;
    virtual void progress(int percent) = 0;
    virtual void status(const std::string &text) = 0;
    virtual void message(const RunMessage &message) = 0;
    virtual void sound(Sound sound) = 0;
    virtual void refresh_variable_list() = 0;
    // The hooks the document's engine carries between runs; a run puts them back at its end.
    virtual ComputationHooks *resting_hooks() { return nullptr; }
};

// A run without a window: nothing shown, nothing pumped, no stop.
class NullRunHost : public RunHost {
public:
    void pump() override {}
    bool stop_requested() override { return false; }
    void progress(int) override {}
    void status(const std::string &) override {}
    void message(const RunMessage &) override {}
    void sound(Sound) override {}
    void refresh_variable_list() override {}
};

// The engine's numeric loops see the host for the length of a run. An integration's Stop ends
// the integral in progress; a differentiation's Stop waits for the point in progress, so the
// engine is told of it only when `engineStops`.
class ScopedRunHooks final : public ComputationHooks {
public:
    ScopedRunHooks(Parser &parser, RunHost &host, bool engineStops);
    ~ScopedRunHooks() override;
    ScopedRunHooks(const ScopedRunHooks &) = delete;
    ScopedRunHooks &operator=(const ScopedRunHooks &) = delete;

    bool stop_requested() override;
    void pump_waiting_messages() override;
    void update_variable_list() override;

private:
    Parser &parser;
    RunHost &host;
    bool engine_stops;
};

}  // namespace quindar::calculus
