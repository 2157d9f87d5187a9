// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The question before a variable or a function is deleted. A use that the delete would
// break is always asked about, even in a bulk delete that otherwise asks nothing.

#include <optional>
#include <string>
#include <string_view>

namespace quindar {

struct DeleteQuestion {
    int id;
    std::string text;
};

// usingFunction: a function whose body uses the variable, if any.
std::optional<DeleteQuestion> VariableDeleteQuestion(
    std::string_view name, const std::optional<std::string> &usingFunction, bool ask);
std::optional<DeleteQuestion> FunctionDeleteQuestion(std::string_view name, bool usedInGraph,
                                                     bool ask);

}  // namespace quindar
