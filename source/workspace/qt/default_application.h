// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The desktop's default program for a kind of file, as the XDG MIME database names it: the
// first desktop entry that the mimeapps.list files (or failing them the mimeinfo.cache files)
// give for the type, found in the XDG data folders, and its Exec line without field codes.

#include <QString>
#include <QStringList>

namespace quindar {

struct DefaultApplication {
    QString program;        // empty when the desktop names none
    QStringList arguments;  // the Exec line's own arguments; the file goes behind them
};

// The default program for a MIME type such as "text/plain"; empty when none can be found.
DefaultApplication default_application_for(const QString &mimeType);

// Reads the Exec line of a desktop entry's text: the program and its arguments, with the
// field codes (%f, %U, ...) dropped and "%%" kept as "%".
DefaultApplication parse_desktop_exec(const QString &desktopEntryText);

// The first of the common text editors that is installed, for a desktop that names none.
QString installed_text_editor();

}  // namespace quindar
