// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <string_view>

#include "message_hook.h"

namespace quindar {

// Caption of every box the containers show.
inline constexpr std::string_view kDynArrayCaption = "DYNAMIC ARRAY ERROR";

// Numbers of the containers' messages.
inline constexpr int kDynArrayIndexOutOfRange = 0;

// The text of a container message; an empty text for a number the table does not hold.
std::string_view dynarray_message(int number);

// The error path of DynArray: shows message `number` as a warning through `hook` (the
// containers have no silent mode, so the box shows whenever a hook is installed), then, when
// `jump` is set, throws EvaluationAbort to leave for the evaluator's recovery point.
// Returns only when `jump` is clear.
void raise_dynarray_error(const MessageHook *hook, int number, bool jump);

}  // namespace quindar
