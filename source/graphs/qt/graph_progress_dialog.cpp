// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_progress_dialog.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace quindar {

GraphProgressDialog::GraphProgressDialog(QWidget *parent)
    : QDialog(parent),
      text_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      cancel_(new QPushButton(tr("Cancel"), this)) {
    setModal(false);
    setAccessibleName(tr("Graph progress"));
    text_->setAccessibleName(tr("Progress text"));
    bar_->setAccessibleName(tr("Progress"));
    cancel_->setAccessibleName(tr("Cancel"));
    bar_->setRange(0, 100);
    bar_->setValue(0);
    bar_->setFormat(QStringLiteral("%p% Done"));
    bar_->setMinimumWidth(280);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cancel_);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text_);
    layout->addWidget(bar_);
    layout->addLayout(buttons);
    connect(cancel_, &QPushButton::clicked, this, &GraphProgressDialog::reject);
}

void GraphProgressDialog::setPercent(int percent) {
    bar_->setValue(std::clamp(percent, 0, 100));
}

void GraphProgressDialog::setText(const QString &text) {
    text_->setText(text);
}

void GraphProgressDialog::reject() {
    cancelled_ = true;
    cancel_->setEnabled(false);
}

void GraphProgressDialog::closeEvent(QCloseEvent *event) {
    reject();
    event->ignore();
}

}  // namespace quindar
