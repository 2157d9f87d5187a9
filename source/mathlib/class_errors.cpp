// SPDX-License-Identifier: GPL-3.0-or-later
// The raising step shared by the statistics and deviate classes.
#include "class_errors.h"

#include "evaluation_abort.h"

namespace quindar::mathlib {

void raise_class_error(ClassErrorState state, const EngineLink &link, const std::string &text,
                       const char *caption) {
    state.error = true;
    state.error_text = text;
    if (!state.silent) show_message(link.hook, text, caption);
    if (state.solving_map) return;
    if (link.recovery_points != nullptr && *link.recovery_points > 0) throw EvaluationAbort{};
}

}  // namespace quindar::mathlib
