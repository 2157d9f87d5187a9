// SPDX-License-Identifier: GPL-3.0-or-later
// How the statistics and deviate classes raise: record, show, leave for the engine's recovery
// point.
#pragma once

#include <optional>
#include <string>

#include "message_hook.h"

namespace quindar::mathlib {

// What a class of the library needs of the engine that owns it to raise an error: the
// message box, and whether an evaluation is running that can take the jump. Both stay
// null for a class used alone, which then only records its errors.
struct EngineLink {
    const MessageHook *hook = nullptr;
    const int *recovery_points = nullptr;
};

// The error state that each of these classes keeps for itself.
struct ClassErrorState {
    bool &silent;
    bool &solving_map;
    bool &error;
    std::optional<std::string> &error_text;
};

// Stores text, shows it unless silent, then leaves by EvaluationAbort unless a map is being
// solved or there is no evaluation to leave; solving mode stays set for the caller.
void raise_class_error(ClassErrorState state, const EngineLink &link, const std::string &text,
                       const char *caption);

}  // namespace quindar::mathlib
