// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "delete_questions.h"

#include "manager_messages.h"

namespace quindar {

std::optional<DeleteQuestion> VariableDeleteQuestion(
    std::string_view name, const std::optional<std::string> &usingFunction, bool ask) {
    if (usingFunction)
        return DeleteQuestion{31537, FormatManagerMessage(31537, name, *usingFunction)};
    if (ask) return DeleteQuestion{31535, FormatManagerMessage(31535, name)};
    return std::nullopt;
}

std::optional<DeleteQuestion> FunctionDeleteQuestion(std::string_view name, bool usedInGraph,
                                                     bool ask) {
    if (usedInGraph) return DeleteQuestion{30548, FormatManagerMessage(30548, name)};
    if (ask) return DeleteQuestion{30545, FormatManagerMessage(30545, name)};
    return std::nullopt;
}

}  // namespace quindar
