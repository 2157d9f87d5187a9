// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_compute_host.h"

#include <QCoreApplication>

namespace quindar {

GraphComputeHost::GraphComputeHost(GraphProgressDialog *progress, QObject *drawnInto,
                                   int pumpMilliseconds)
    : dialog(progress), owner(drawnInto), interval(pumpMilliseconds) {
    sincePump.start();
}

void GraphComputeHost::pump_waiting_messages() {
    if (sincePump.elapsed() < interval) return;
    ++pumpCount;
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    sincePump.restart();
}

void GraphComputeHost::set_progress_caption(const char *caption) {
    if (dialog) dialog->setWindowTitle(QString::fromUtf8(caption));
    pump_waiting_messages();
}

void GraphComputeHost::set_progress_text(const char *text) {
    if (dialog) dialog->setText(QString::fromUtf8(text));
    pump_waiting_messages();
}

void GraphComputeHost::set_progress_percent(int percent) {
    if (dialog) dialog->setPercent(percent);
    pump_waiting_messages();
}

bool GraphComputeHost::progress_cancelled() {
    return dialog && dialog->cancelled();
}

}  // namespace quindar
