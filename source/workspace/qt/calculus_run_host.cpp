// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The pump, the gauge, the status line, the messages and the sounds of a calculus run.

#include "calculus_run_host.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <algorithm>

#include "calculus_messages.h"
#include "workbench.h"

namespace quindar {

QString CalculusText(int id) {
    const char *text = calculus::message(id);
    return text == nullptr ? ui_string(id) : QString::fromUtf8(text);
}

CalculusRunHost::CalculusRunHost(Workbench &bench, QWidget *owner) : workbench(bench), page(owner) {
    sincePump.start();
}

void CalculusRunHost::Begin() {
    stopRequested = false;
    sincePump.restart();
}

void CalculusRunHost::pump() {
    if (sincePump.isValid() && sincePump.elapsed() < kPumpIntervalMs) return;
    if (beforePump) beforePump();
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    sincePump.restart();
}

void CalculusRunHost::progress(int percent) {
    if (gauge) gauge->setValue(std::clamp(percent, 0, 100));
}

void CalculusRunHost::status(const std::string &text) {
    if (statusText) statusText->setText(QString::fromStdString(text));
}

void CalculusRunHost::message(const calculus::RunMessage &message) {
    workbench.Messages().ShowPlain(page, QString::fromStdString(message.text),
                                   CalculusText(message.title), kBoxWarning);
    if (selectField && message.field != calculus::Field::None) selectField(message.field);
}

void CalculusRunHost::sound(calculus::Sound sound) {
    workbench.PlaySound(calculus::SoundFile(sound));
}

void CalculusRunHost::refresh_variable_list() {
    if (refreshVariables) refreshVariables();
}

}  // namespace quindar
