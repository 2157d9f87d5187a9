// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "dynarray_exception.h"

#include "evaluation_abort.h"

namespace quindar {
namespace {

struct DynArrayMessage {
    int number;
    std::string_view text;
};

constexpr DynArrayMessage kMessages[] = {
    {kDynArrayIndexOutOfRange, "Index Out Of Range"},
};

}  // namespace

std::string_view dynarray_message(int number) {
    for (const DynArrayMessage &message : kMessages) {
        if (message.number == number) return message.text;
    }
    return {};
}

void raise_dynarray_error(const MessageHook *hook, int number, bool jump) {
    show_message(hook, dynarray_message(number), kDynArrayCaption, MessageStyle::Warning);
    if (jump) throw EvaluationAbort{};
}

}  // namespace quindar
