// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QThread>

#include "desktop_caches.h"
#include "temp_folder.h"

namespace quindar {
namespace {

// Stand-ins for the cache tools on the search path record the folder they were given.
TEST(DesktopCaches, StartsEachToolThatIsThereOnItsFolder) {
    testing::TempFolder bin;
    testing::TempFolder data;
    const QString binPath = QString::fromStdString(bin.path());
    const QString dataPath = QString::fromStdString(data.path());
    const QString script = "#!/bin/sh\necho \"$1\" > \"" + binPath + "/ran-mime\"\n";
    const std::string tool = bin.write("update-mime-database", script.toStdString());
    QFile::setPermissions(QString::fromStdString(tool), QFile::ReadOwner | QFile::ExeOwner);
    QDir(dataPath).mkpath("mime");
    QDir(dataPath).mkpath("applications");
    const QByteArray savedPath = qgetenv("PATH");
    qputenv("PATH", binPath.toUtf8());
    const int started = refreshDesktopCaches(dataPath);
    qputenv("PATH", savedPath);
    EXPECT_EQ(started, 1);  // update-desktop-database is not on this search path
    QFile record(binPath + "/ran-mime");
    for (int wait = 0; wait < 100 && !record.exists(); ++wait) QThread::msleep(20);
    ASSERT_TRUE(record.open(QIODevice::ReadOnly));
    EXPECT_EQ(record.readAll().trimmed(), (dataPath + "/mime").toUtf8());
}

TEST(DesktopCaches, NothingStartsForAMissingFolder) {
    EXPECT_EQ(refreshDesktopCaches("/nonexistent/data"), 0);
}

}  // namespace
}  // namespace quindar
