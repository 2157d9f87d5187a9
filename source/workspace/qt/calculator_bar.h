// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The calculator bar: a floating tool window of ten by ten keys, drawn from the key table,
// acting on the current document's text. It never takes the focus from the editor: the
// window is not activated when shown and its keys take no focus.

#include <QWidget>

class QToolButton;

namespace quindar {

struct CalculatorKey;
class Workbench;

class CalculatorBar : public QWidget {
    Q_OBJECT
public:
    CalculatorBar(Workbench &workbench, QWidget *parent);

    // The key's button, for tests.
    QToolButton *Button(int id) const;
    // Carries out a key on the current document, as a click does.
    void Press(const CalculatorKey &key);

signals:
    // The close box was used: the bar stays closed until the command shows it.
    void closedByUser();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Workbench &workbench;
    bool placed = false;
    void showEvent(QShowEvent *event) override;
};

// Makes the Calculator command show and hide the bar; the bar belongs to the main window.
void InstallCalculatorBar(Workbench &workbench);
// A document was made: the first one brings the bar, as the options say.
void CalculatorBarDocumentOpened(Workbench &workbench);

}  // namespace quindar
