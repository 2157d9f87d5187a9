// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "splash_screen.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProgressBar>
#include <QTimer>

namespace quindar {

namespace {

constexpr int kGaugeStep = 10;
constexpr int kGaugeHeight = 14;
constexpr int kGaugeMargin = 16;
constexpr int kGaugeBottom = 40;  // room below the gauge for the text line

}  // namespace

bool SplashScreen::disabledByEnvironment() {
    return qEnvironmentVariable("QUINDAR_NO_SPLASH") == QLatin1String("1");
}

std::unique_ptr<SplashScreen> SplashScreen::fromFile(const QString &path) {
    if (!QFileInfo(path).isFile()) return nullptr;
    const QPixmap picture(path);
    if (picture.isNull()) return nullptr;
    return std::make_unique<SplashScreen>(picture);
}

SplashScreen::SplashScreen(const QPixmap &picture)
    : QSplashScreen(
          picture.scaled(kWidth, kHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)),
      gauge_(new QProgressBar(this)) {
    setWindowTitle(tr("Loading Quindar"));
    setAccessibleName(tr("Loading Quindar"));
    gauge_->setAccessibleName(tr("Loading progress"));
    gauge_->setRange(0, 100);
    gauge_->setValue(0);
    gauge_->setTextVisible(false);
    gauge_->setGeometry(kGaugeMargin, kHeight - kGaugeBottom, kWidth - 2 * kGaugeMargin,
                        kGaugeHeight);
}

void SplashScreen::setGauge(int percent) {
    gauge_->setValue(qBound(0, percent, 100));
}

int SplashScreen::gauge() const {
    return gauge_->value();
}

void SplashScreen::setText(const QString &text) {
    showMessage(text, Qt::AlignHCenter | Qt::AlignBottom, Qt::white);
    QCoreApplication::processEvents();
}

void SplashScreen::runGauge(const QString &text, int stepMs) {
    setText(text);
    for (int percent = 0; percent <= 100; percent += kGaugeStep) {
        if (!isVisible()) return;
        setGauge(percent);
        QElapsedTimer waited;
        waited.start();
        do {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        } while (waited.elapsed() < stepMs && isVisible());
    }
}

void SplashScreen::closeLater() {
    QTimer::singleShot(kTimeoutMs, this, &QWidget::close);
}

}  // namespace quindar
