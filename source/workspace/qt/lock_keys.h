// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The keyboard's lock states, which Qt does not report: read from the X server's keyboard
// indicators when the program runs on X11, unknown elsewhere.

namespace quindar {

struct LockKeys {
    bool known = false;
    bool capsLock = false;
    bool numLock = false;
    bool scrollLock = false;
};

LockKeys read_lock_keys();

}  // namespace quindar
