// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The start-up picture with its gauge and a line of text.

#include <QSplashScreen>
#include <memory>

class QProgressBar;

namespace quindar {

class SplashScreen : public QSplashScreen {
    Q_OBJECT
public:
    static constexpr int kWidth = 250;
    static constexpr int kHeight = 325;
    static constexpr int kTimeoutMs = 3000;

    // True when QUINDAR_NO_SPLASH=1: tests and scripts start without the picture and its wait.
    static bool disabledByEnvironment();

    // The splash of a picture file, or null when the file is missing or not a picture.
    static std::unique_ptr<SplashScreen> fromFile(const QString &path);

    explicit SplashScreen(const QPixmap &picture);

    void setGauge(int percent);
    int gauge() const;
    void setText(const QString &text);

    // Shows text and runs the gauge from 0 to 100 in steps of 10, waiting stepMs at each while
    // the program stays responsive. A click that hid the splash ends it early.
    void runGauge(const QString &text, int stepMs);

    // Closes the splash by itself after kTimeoutMs.
    void closeLater();

private:
    QProgressBar *gauge_;
};

}  // namespace quindar
