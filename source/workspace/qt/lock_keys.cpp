// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "lock_keys.h"

#ifdef QUINDAR_HAVE_XKB
#include <QGuiApplication>
// The X headers define macros that clash with Qt's names; they come last.
#include <X11/XKBlib.h>
#endif

namespace quindar {

LockKeys read_lock_keys() {
    LockKeys keys;
#ifdef QUINDAR_HAVE_XKB
    auto *x11 = qGuiApp != nullptr ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>()
                                   : nullptr;
    unsigned state = 0;
    if (x11 == nullptr || x11->display() == nullptr ||
        XkbGetIndicatorState(x11->display(), XkbUseCoreKbd, &state) != 0)
        return keys;
    // The core keyboard's first three indicators: Caps, Num and Scroll Lock.
    keys.known = true;
    keys.capsLock = (state & 1U) != 0;
    keys.numLock = (state & 2U) != 0;
    keys.scrollLock = (state & 4U) != 0;
#endif
    return keys;
}

}  // namespace quindar
