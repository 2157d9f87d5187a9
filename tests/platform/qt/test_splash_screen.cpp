// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <QImage>

#include "splash_screen.h"
#include "temp_folder.h"

namespace quindar {
namespace {

QString picture_file(const testing::TempFolder &folder) {
    const QString path = QString::fromStdString(folder.path()) + "/QuindarSplash.bmp";
    QImage image(100, 130, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    image.save(path, "BMP");
    return path;
}

TEST(SplashScreen, TheEnvironmentCanSwitchItOff) {
    const QByteArray saved = qgetenv("QUINDAR_NO_SPLASH");
    const struct {
        const char *value;
        bool off;
    } cases[] = {{"1", true}, {"0", false}, {"", false}, {"yes", false}};
    for (const auto &row : cases) {
        qputenv("QUINDAR_NO_SPLASH", row.value);
        EXPECT_EQ(SplashScreen::disabledByEnvironment(), row.off) << row.value;
    }
    qputenv("QUINDAR_NO_SPLASH", saved);
}

TEST(SplashScreen, AMissingOrBrokenPictureGivesNoSplash) {
    testing::TempFolder folder;
    EXPECT_EQ(SplashScreen::fromFile(QString::fromStdString(folder.path()) + "/none.bmp"), nullptr);
    const std::string broken = folder.write("QuindarSplash.bmp", "not a picture");
    EXPECT_EQ(SplashScreen::fromFile(QString::fromStdString(broken)), nullptr);
}

TEST(SplashScreen, ShowsThePictureAtItsSizeAndRunsTheGauge) {
    testing::TempFolder folder;
    auto splash = SplashScreen::fromFile(picture_file(folder));
    ASSERT_NE(splash, nullptr);
    EXPECT_EQ(splash->pixmap().size(), QSize(250, 325));
    EXPECT_EQ(splash->windowTitle(), "Loading Quindar");
    EXPECT_FALSE(splash->accessibleName().isEmpty());
    splash->show();
    splash->runGauge("Setting Up Client Window", 1);
    EXPECT_EQ(splash->gauge(), 100);
    EXPECT_EQ(splash->message(), "Setting Up Client Window");
    splash->setText("Please Wait...");
    EXPECT_EQ(splash->message(), "Please Wait...");
}

TEST(SplashScreen, AHiddenSplashStopsItsGauge) {
    testing::TempFolder folder;
    auto splash = SplashScreen::fromFile(picture_file(folder));
    ASSERT_NE(splash, nullptr);
    splash->setGauge(30);
    splash->hide();
    splash->runGauge("Setting Up Client Window", 1000);  // would take 11 s if it ran
    EXPECT_EQ(splash->gauge(), 30);
}

}  // namespace
}  // namespace quindar
