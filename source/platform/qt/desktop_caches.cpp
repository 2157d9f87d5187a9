// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "desktop_caches.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace quindar {

namespace {

struct CacheTool {
    const char *program;
    const char *folder;  // under the data folder
};

const CacheTool kTools[] = {
    {"update-mime-database", "mime"},
    {"update-desktop-database", "applications"},
};

}  // namespace

int refreshDesktopCaches(const QString &dataHome) {
    int started = 0;
    for (const CacheTool &tool : kTools) {
        const QString program = QStandardPaths::findExecutable(QLatin1String(tool.program));
        const QString folder = QDir(dataHome).filePath(QLatin1String(tool.folder));
        if (program.isEmpty() || !QDir(folder).exists()) continue;
        if (QProcess::startDetached(program, {folder})) ++started;
    }
    return started;
}

}  // namespace quindar
