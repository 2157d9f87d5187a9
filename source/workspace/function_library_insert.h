// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Insert F[x] of the Function Library into the Math Editor: the prototype, cut before its
// body, replaces the selection, and its parameters are selected, ready to be typed over.

#include <string_view>

#include "text_buffer.h"

namespace quindar {

// False when there is nothing to insert. The parameters are looked for on the caret's line,
// at the first place that line holds the inserted call.
bool InsertLibraryPrototype(TextBuffer &buffer, std::string_view prototype);

}  // namespace quindar
