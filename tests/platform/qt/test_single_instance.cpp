// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "single_instance.h"
#include "temp_folder.h"

namespace quindar {
namespace {

QString probe() {
    return QStringLiteral(QUINDAR_PROBE);
}

// Starts the first instance and waits until it listens.
bool start_first(QProcess &first, const QString &name, const QString &out, int requests) {
    first.start(probe(), {"first", name, out, QString::number(requests)});
    return first.waitForStarted() && first.waitForReadyRead(5000) &&
           first.readAll().startsWith("ready");
}

int run_later(const QStringList &args) {
    QProcess later;
    later.start(probe(), args);
    if (!later.waitForFinished(10000)) return -1;
    return later.exitStatus() == QProcess::NormalExit ? later.exitCode() : -2;
}

TEST(SingleInstance, ALaterStartHandsItsFileToTheFirstAndEnds) {
    testing::TempFolder folder;
    const QString name = QString::fromStdString(folder.path()) + "/quindar-test";
    const QString out = QString::fromStdString(folder.path()) + "/requests.txt";
    QProcess first;
    ASSERT_TRUE(start_first(first, name, out, 2));
    EXPECT_EQ(run_later({"later", name, "/home/me/My Work/a b.qnd"}), 0);
    EXPECT_EQ(run_later({"later", name}), 0);
    ASSERT_TRUE(first.waitForFinished(10000));
    EXPECT_EQ(first.exitCode(), 0);
    QFile requests(out);
    ASSERT_TRUE(requests.open(QIODevice::ReadOnly));
    EXPECT_EQ(requests.readAll().toStdString(), "/home/me/My Work/a b.qnd\n\n");
    // Nothing but the socket and the probe's record appeared in the folder.
    const QStringList entries = QDir(QString::fromStdString(folder.path()))
                                    .entryList(QDir::NoDotAndDotDot | QDir::AllEntries);
    EXPECT_EQ(entries, QStringList({"requests.txt"})) << entries.join(",").toStdString();
}

TEST(SingleInstance, ASocketLeftByAKilledProgramIsTakenOver) {
    testing::TempFolder folder;
    const QString name = QString::fromStdString(folder.path()) + "/quindar-test";
    QProcess first;
    ASSERT_TRUE(start_first(first, name, QString::fromStdString(folder.path()) + "/r.txt", 1));
    first.kill();
    first.waitForFinished();
    ASSERT_TRUE(QFileInfo::exists(name)) << "the killed program left no socket";
    EXPECT_EQ(run_later({"later", name, "x.qnd"}), 3);
}

TEST(SingleInstance, TheFirstStartClaimsAndListensInThisProcess) {
    testing::TempFolder folder;
    SingleInstance instance(QString::fromStdString(folder.path()) + "/quindar-own");
    EXPECT_TRUE(instance.claim("ignored.qnd"));
    EXPECT_TRUE(QFileInfo::exists(instance.serverName()));
}

TEST(SingleInstance, DefaultNameIsPerUserInTheRuntimeFolder) {
    qputenv("XDG_RUNTIME_DIR", "/run/user/test");
    EXPECT_EQ(SingleInstance::defaultServerName(),
              QString("/run/user/test/quindar-%1").arg(::getuid()));
    qunsetenv("XDG_RUNTIME_DIR");
}

}  // namespace
}  // namespace quindar
