// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "default_application.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTextStream>

namespace quindar {
namespace {

// Splits an Exec value at blanks, keeping quoted words whole.
QStringList SplitExecLine(const QString &line) {
    QStringList words;
    QString word;
    bool quoted = false;
    bool any = false;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar c = line[at];
        if (c == QLatin1Char('"')) {
            quoted = !quoted;
            any = true;
        } else if (c == QLatin1Char('\\') && quoted && at + 1 < line.size()) {
            word += line[++at];
        } else if (c.isSpace() && !quoted) {
            if (any || !word.isEmpty()) words << word;
            word.clear();
            any = false;
        } else {
            word += c;
        }
    }
    if (any || !word.isEmpty()) words << word;
    return words;
}

QString FindDesktopEntry(const QString &name) {
    return QStandardPaths::locate(QStandardPaths::ApplicationsLocation, name);
}

// The desktop entries a MIME list file names for the type in one of its sections.
QStringList EntriesIn(const QString &path, const QString &section, const QString &mimeType) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    bool inSection = false;
    const QString key = mimeType + QLatin1Char('=');
    const QStringList lines = QTextStream(&file).readAll().split(QLatin1Char('\n'));
    for (const QString &raw : lines) {
        const QString line = raw.trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            inSection = line == section;
            continue;
        }
        if (inSection && line.startsWith(key))
            return line.mid(key.size()).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    }
    return {};
}

// The XDG MIME association files in their order of precedence: the user's and the system's
// mimeapps.list, then the installed programs' mimeinfo.cache.
QString AskMimeDatabase(const QString &mimeType) {
    QStringList lists;
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP")
                                     .toLower()
                                     .split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString &folder :
         QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)) {
        for (const QString &desktop : desktops)
            lists << folder + QLatin1Char('/') + desktop + QStringLiteral("-mimeapps.list");
        lists << folder + QStringLiteral("/mimeapps.list");
    }
    const QStringList applications =
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    for (const QString &folder : applications) lists << folder + QStringLiteral("/mimeapps.list");
    for (const QString &list : lists)
        for (const QString &entry :
             EntriesIn(list, QStringLiteral("[Default Applications]"), mimeType))
            if (!FindDesktopEntry(entry).isEmpty()) return entry;
    for (const QString &folder : applications)
        for (const QString &entry : EntriesIn(folder + QStringLiteral("/mimeinfo.cache"),
                                              QStringLiteral("[MIME Cache]"), mimeType))
            if (!FindDesktopEntry(entry).isEmpty()) return entry;
    return {};
}

}  // namespace

DefaultApplication parse_desktop_exec(const QString &desktopEntryText) {
    DefaultApplication application;
    bool inEntry = false;
    const QStringList lines = desktopEntryText.split(QLatin1Char('\n'));
    for (const QString &raw : lines) {
        const QString line = raw.trimmed();
        if (line.startsWith(QLatin1Char('['))) {
            inEntry = line == QStringLiteral("[Desktop Entry]");
            continue;
        }
        if (!inEntry || !line.startsWith(QStringLiteral("Exec="))) continue;
        QStringList words = SplitExecLine(line.mid(5));
        QStringList kept;
        for (QString word : words) {
            if (word.size() == 2 && word[0] == QLatin1Char('%') && word[1] != QLatin1Char('%'))
                continue;
            word.replace(QStringLiteral("%%"), QStringLiteral("%"));
            kept << word;
        }
        if (kept.isEmpty()) return application;
        application.program = kept.takeFirst();
        application.arguments = kept;
        return application;
    }
    return application;
}

DefaultApplication default_application_for(const QString &mimeType) {
    const QString entryName = AskMimeDatabase(mimeType);
    if (entryName.isEmpty()) return {};
    QFile entry(FindDesktopEntry(entryName));
    if (!entry.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    DefaultApplication application = parse_desktop_exec(QTextStream(&entry).readAll());
    if (!application.program.isEmpty() && !QDir::isAbsolutePath(application.program)) {
        const QString found = QStandardPaths::findExecutable(application.program);
        if (found.isEmpty()) return {};
        application.program = found;
    }
    return application;
}

QString installed_text_editor() {
    static constexpr const char *kEditors[] = {
        "gnome-text-editor", "gedit", "mousepad", "kate", "kwrite", "xed", "pluma", "featherpad"};
    for (const char *editor : kEditors) {
        const QString found = QStandardPaths::findExecutable(QString::fromLatin1(editor));
        if (!found.isEmpty()) return found;
    }
    return {};
}

}  // namespace quindar
