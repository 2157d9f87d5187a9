// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

namespace quindar {

// The keys the Math Editor tells apart on key-down; every other key is Other and goes
// to the text control untouched.
enum class EditorKey {
    Shift,
    Ctrl,
    Enter,
    F3,
    F4,
    Delete,
    LetterF,
    LetterR,
    Other,
};

}  // namespace quindar
