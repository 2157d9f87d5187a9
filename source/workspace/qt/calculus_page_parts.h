// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The controls both calculus pages and the Function Solver share: buttons that keep a press
// of Return in their edits, the function box listing the document's functions, the gauge, and
// the buttons that open the managers, the Function Library and the help.

#include <QString>
#include <functional>
#include <string>

class QComboBox;
class QProgressBar;
class QPushButton;
class QWidget;

namespace quindar {

class CalculusPage;
class DocumentWindow;
class Parser;
class Workbench;

namespace calculus {
class PageGuard;
}

inline QString FromStd(const std::string &text) {
    return QString::fromStdString(text);
}

// A button named after its text, blanks and mnemonic left out.
QPushButton *PageButton(const QString &text, QWidget *parent);
// An editable box that offers the document's functions.
QComboBox *FunctionBox(QWidget *parent);
// Lists the engine's functions as "name[vars] = body", keeping the box's text.
void FillFunctionBox(QComboBox *box, Parser &parser);
// Selects the entry with that text, or shows the text as typed.
void ShowFunctionText(QComboBox *box, const QString &text);
// The "%d%% Done" gauge of a run, hidden until one starts.
QProgressBar *RunGauge(QWidget *parent);

// The page's buttons that open other windows; they do nothing while the page runs.
// `afterFunctionManager` refills the page once the Function Manager is closed; that
// manager's Insert adds to `page`'s function box.
struct PageToolButtons {
    QPushButton *editFunction = nullptr;
    QPushButton *editVariable = nullptr;
    QPushButton *library = nullptr;
    QPushButton *help = nullptr;
};
void ConnectPageTools(const PageToolButtons &buttons, Workbench &workbench,
                      DocumentWindow &document, CalculusPage &page,
                      const calculus::PageGuard &guard,
                      const std::function<void()> &afterFunctionManager);

}  // namespace quindar
