// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "tip_of_the_day_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quindar {

namespace {

constexpr int kTutorialsTip = 0;
constexpr int kExamplesTip = 1;
constexpr int kTextWidth = 360;
constexpr int kTextHeight = 110;

QPushButton *make_button(const QString &label, const QString &name, QWidget *parent) {
    auto *button = new QPushButton(label, parent);
    button->setAccessibleName(name);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

TipOfTheDayDialog::TipOfTheDayDialog(QStringList tips, QString defaultHeading, int storedPosition,
                                     bool showAtStartup, QWidget *parent)
    : QDialog(parent),
      tips_(std::move(tips)),
      defaultHeading_(std::move(defaultHeading)),
      cycle_(static_cast<std::size_t>(tips_.size()), storedPosition),
      heading_(new QLabel(this)),
      text_(new QLabel(this)),
      startup_(new QCheckBox(tr("&Show tips at startup"), this)),
      tutorials_(make_button(tr("&Tutorials..."), tr("Tutorials"), this)),
      examples_(make_button(tr("&Examples..."), tr("Examples"), this)) {
    setWindowTitle(tr("Tip Of The Day"));
    setAccessibleName(tr("Tip Of The Day"));
    heading_->setAccessibleName(tr("Tip heading"));
    text_->setAccessibleName(tr("Tip text"));
    startup_->setAccessibleName(tr("Show tips at startup"));
    QFont headingFont = heading_->font();
    headingFont.setBold(true);
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.2);
    heading_->setFont(headingFont);
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text_->setMinimumSize(kTextWidth, kTextHeight);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    startup_->setChecked(showAtStartup);

    auto *tipFrame = new QFrame(this);
    tipFrame->setFrameShape(QFrame::StyledPanel);
    tipFrame->setAccessibleName(tr("Tip"));
    auto *tipLayout = new QVBoxLayout(tipFrame);
    tipLayout->addWidget(heading_);
    tipLayout->addWidget(text_, 1);
    auto *links = new QHBoxLayout;
    links->addStretch(1);
    links->addWidget(tutorials_);
    links->addWidget(examples_);
    tipLayout->addLayout(links);

    auto *previous = make_button(tr("&Previous Tip"), tr("Previous Tip"), this);
    auto *next = make_button(tr("&Next Tip"), tr("Next Tip"), this);
    auto *close = make_button(tr("&Close"), tr("Close"), this);
    close->setDefault(true);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(previous, QDialogButtonBox::ActionRole);
    buttons->addButton(next, QDialogButtonBox::ActionRole);
    buttons->addButton(close, QDialogButtonBox::RejectRole);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tipFrame, 1);
    layout->addWidget(startup_);
    layout->addWidget(buttons);

    connect(previous, &QPushButton::clicked, this, &TipOfTheDayDialog::showPrevious);
    connect(next, &QPushButton::clicked, this, &TipOfTheDayDialog::showNext);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(tutorials_, &QPushButton::clicked, this, &TipOfTheDayDialog::tutorialsRequested);
    connect(examples_, &QPushButton::clicked, this, &TipOfTheDayDialog::examplesRequested);
    connect(startup_, &QCheckBox::toggled, this, &TipOfTheDayDialog::showAtStartupChanged);
    showNext();
}

bool TipOfTheDayDialog::showAtStartup() const {
    return startup_->isChecked();
}

QString TipOfTheDayDialog::heading() const {
    return heading_->text();
}

QString TipOfTheDayDialog::text() const {
    return text_->text();
}

void TipOfTheDayDialog::showNext() {
    cycle_.next();
    showCurrent();
}

void TipOfTheDayDialog::showPrevious() {
    cycle_.previous();
    showCurrent();
}

void TipOfTheDayDialog::showCurrent() {
    const int at = cycle_.current();
    const Tip tip = at < 0 ? Tip{defaultHeading_.toStdString(), std::string()}
                           : split_tip(tips_.at(at).toStdString(), defaultHeading_.toStdString());
    heading_->setText(QString::fromStdString(tip.heading));
    text_->setText(QString::fromStdString(tip.text));
    tutorials_->setVisible(at == kTutorialsTip);
    examples_->setVisible(at == kExamplesTip);
}

}  // namespace quindar
