// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The window side of a calculus run. The run stays on the one thread inside its button's
// handler; the window lives only where the run pumps, so the pump lets the waiting events in
// at most once every 20 ms (more often costs time and shows nothing more). Stop is a flag that
// a press of the button sets while the run waits in the pump.

#include <QElapsedTimer>
#include <QPointer>
#include <functional>

#include "run_host.h"

class QLabel;
class QProgressBar;
class QWidget;

namespace quindar {

class Workbench;

class CalculusRunHost : public calculus::RunHost {
public:
    static constexpr int kPumpIntervalMs = 20;

    CalculusRunHost(Workbench &workbench, QWidget *page);

    // A run begins: Stop is clear and the first pump comes one interval from now.
    void Begin();
    void RequestStop() { stopRequested = true; }

    void pump() override;
    bool stop_requested() override { return stopRequested; }
    void progress(int percent) override;
    void status(const std::string &text) override;
    void message(const calculus::RunMessage &message) override;
    void sound(calculus::Sound sound) override;
    void refresh_variable_list() override;

    QPointer<QProgressBar> gauge;
    QPointer<QLabel> statusText;
    // Called before each pump, so that the page shows what the run has done so far.
    std::function<void()> beforePump;
    // The field a message is about gets the focus with its text selected.
    std::function<void(calculus::Field field)> selectField;
    // The Variables List, once the document has one.
    std::function<void()> refreshVariables;

private:
    Workbench &workbench;
    QPointer<QWidget> page;
    QElapsedTimer sincePump;
    bool stopRequested = false;
};

// The text of a calculus message or title by its number.
QString CalculusText(int id);

}  // namespace quindar
