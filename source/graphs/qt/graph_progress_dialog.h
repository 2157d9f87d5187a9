// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The progress of a graph build: a caption, a line of text, a bar reading "%p% Done" and
// Cancel. Modeless and owned by the build; closing it or Escape only asks to cancel, so the
// build decides when the dialog goes, never the dialog itself.

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace quindar {

class GraphProgressDialog : public QDialog {
    Q_OBJECT
public:
    explicit GraphProgressDialog(QWidget *parent = nullptr);

    // The percentage may pass 100 (several functions add their share per step); the bar
    // shows it clamped.
    void setPercent(int percent);
    void setText(const QString &text);
    bool cancelled() const { return cancelled_; }
    QPushButton *cancelButton() const { return cancel_; }
    QProgressBar *bar() const { return bar_; }

public slots:
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QLabel *text_;
    QProgressBar *bar_;
    QPushButton *cancel_;
    bool cancelled_ = false;
};

}  // namespace quindar
