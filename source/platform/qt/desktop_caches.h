// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// After the file association changed, the desktop's caches of MIME types and applications
// are rebuilt in the background by the tools that make them, where the machine has them.

#include <QString>

namespace quindar {

// Starts update-mime-database and update-desktop-database on a data folder ($XDG_DATA_HOME)
// without waiting for them; returns how many could be started.
int refreshDesktopCaches(const QString &dataHome);

}  // namespace quindar
