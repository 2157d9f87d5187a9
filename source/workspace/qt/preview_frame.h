// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The print preview: a frame that takes the main window's place while it shows, with the
// pages of a printout scaled into its area, one up or two up, and its tool bar (Previous,
// Next, One Up, Two Up, the "Page" text, Print for a list, Done). Paging and layout are the
// models' (PreviewNavigation, PreviewPageRects).

#include <QMainWindow>
#include <functional>

#include "preview_navigation.h"

class QAction;
class QEventLoop;
class QLabel;
class QPrinter;

namespace quindar {

class Printout;

// The pages of the printout, drawn as the paper they will come out on.
class PreviewPages : public QWidget {
    Q_OBJECT
public:
    PreviewPages(Printout &printout, QPrinter &printer, printing::PreviewNavigation &navigation,
                 QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Printout &printout;
    QPrinter &printer;
    printing::PreviewNavigation &navigation;
};

class PreviewFrame : public QMainWindow {
    Q_OBJECT
public:
    // The printout must be prepared for the printer. withPrint: the tool bar has Print (the
    // list preview); the text preview has it only as its Ctrl+P command.
    PreviewFrame(Printout &printout, QPrinter &printer, const QString &caption, bool withPrint);
    ~PreviewFrame() override;

    // Prints from the preview; the owner's print command.
    std::function<void()> print;

    // Shows the preview in place of the window, hides it, and runs until Done; the window
    // then takes the preview's place and size. Returns 2, as a dialog closed with Done.
    int Run(QWidget &window);

    const printing::PreviewNavigation &Navigation() const { return navigation; }
    QLabel &PageLabel() { return *pageLabel; }
    QAction &PreviousAction() { return *previous; }
    QAction &NextAction() { return *next; }
    QAction &OneUpAction() { return *oneUp; }
    QAction &TwoUpAction() { return *twoUp; }
    QAction &DoneAction() { return *done; }
    PreviewPages &Pages() { return *pages; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void Refresh();
    void Finish();

    printing::PreviewNavigation navigation;
    PreviewPages *pages = nullptr;
    QLabel *pageLabel = nullptr;
    QAction *previous = nullptr;
    QAction *next = nullptr;
    QAction *oneUp = nullptr;
    QAction *twoUp = nullptr;
    QAction *done = nullptr;
    QEventLoop *loop = nullptr;
};

}  // namespace quindar
