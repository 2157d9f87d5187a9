// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The application as a graph build on the one thread sees it: waiting window messages run at
// most about every 20 ms, so the build stays responsive without the pump costing more than the
// points; progress and Cancel go to the build's own progress dialog.

#include <QElapsedTimer>
#include <QPointer>

#include "computation_hooks.h"
#include "graph_progress_dialog.h"

namespace quindar {

class GraphComputeHost final : public ComputeHost {
public:
    // owner: the window the build draws into; the build stops when it has gone.
    GraphComputeHost(GraphProgressDialog *dialog, QObject *owner, int pumpMilliseconds = 20);

    void pump_waiting_messages() override;
    void set_progress_caption(const char *caption) override;
    void set_progress_text(const char *text) override;
    void set_progress_percent(int percent) override;
    bool progress_cancelled() override;
    bool owner_gone() override { return owner.isNull(); }

    int pumps() const { return pumpCount; }

private:
    QPointer<GraphProgressDialog> dialog;
    QPointer<QObject> owner;
    QElapsedTimer sincePump;
    int interval;
    int pumpCount = 0;
};

}  // namespace quindar
