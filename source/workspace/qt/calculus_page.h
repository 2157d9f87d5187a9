// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the two pages of the Calculus sheet have in common: a document, a run host, the guard
// that keeps a run from being left or closed, and Compute and Stop in one place.

#include <QWidget>

#include "calculus_run_host.h"
#include "page_guard.h"

class QPushButton;

namespace quindar {

class DocumentWindow;
class Workbench;

class CalculusPage : public QWidget {
    Q_OBJECT
public:
    bool Computing() const { return guard.computing(); }
    // Closing the sheet: refused during a run, with the page's message once per run.
    bool CanClose();
    // The page's boxes into the document's settings.
    virtual void StoreSettings() = 0;
    virtual void ReloadFunctionList() = 0;
    // The Function Library and the Function Manager add text behind the function box's.
    virtual void AppendToFunction(const QString &text) = 0;

    QPushButton *ComputeButton() const { return computeButton; }
    QPushButton *StopButton() const { return stopButton; }
    QPushButton *InsertButton() const { return insertButton; }

public slots:
    virtual void Compute() = 0;
    void Stop() { host.RequestStop(); }

signals:
    void runStarted();
    void runFinished();

protected:
    // `title` heads the page's messages; the two others are those of closing during a run
    // and with the Function Manager open.
    CalculusPage(Workbench &workbench, DocumentWindow &document, int title, int runningMessage,
                 int managerMessage, QWidget *parent);

    Workbench &workbench;
    DocumentWindow &document;
    CalculusRunHost host;
    calculus::PageGuard guard;
    int title;
    QPushButton *computeButton = nullptr;
    QPushButton *stopButton = nullptr;
    QPushButton *insertButton = nullptr;
};

}  // namespace quindar
