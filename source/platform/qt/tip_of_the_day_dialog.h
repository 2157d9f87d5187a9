// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Tip of the Day: one tip at a time, stepping forwards and backwards.

#include <QDialog>
#include <QStringList>

#include "tip_of_the_day.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace quindar {

class TipOfTheDayDialog : public QDialog {
    Q_OBJECT
public:
    // Tips in order, each "heading|text" or plain text shown under defaultHeading. Opens on the
    // tip after storedPosition; showAtStartup sets the check box.
    TipOfTheDayDialog(QStringList tips, QString defaultHeading, int storedPosition,
                      bool showAtStartup, QWidget *parent = nullptr);

    // The tip shown, to be stored as the position; and the check box.
    int position() const { return cycle_.current(); }
    bool showAtStartup() const;

    QString heading() const;
    QString text() const;

    void showNext();
    void showPrevious();

signals:
    // The first tip leads to the tutorials, the second to the examples.
    void tutorialsRequested();
    void examplesRequested();
    void showAtStartupChanged(bool on);

private:
    void showCurrent();

    QStringList tips_;
    QString defaultHeading_;
    TipCycle cycle_;
    QLabel *heading_;
    QLabel *text_;
    QCheckBox *startup_;
    QPushButton *tutorials_;
    QPushButton *examples_;
};

}  // namespace quindar
