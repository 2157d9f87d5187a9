// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

namespace quindar {

// Thrown by a raising operation to leave the evaluator for the recovery point of
// Parser::eval_exp. The message has already been stored in the raiser's error state,
// so the object carries nothing. Every eval_exp catches it for itself, which keeps an
// evaluation that runs inside another one (a data file's entries) from disturbing it.
struct EvaluationAbort {};

}  // namespace quindar
