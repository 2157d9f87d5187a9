// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_library_rules.h"

#include <algorithm>

#include "function_texts.h"

namespace quindar {

LibraryButtons ButtonsFor(const LibraryEntry &entry, std::string_view category) {
    const bool constant = entry.kind == LibraryEntryKind::Constant;
    return {entry.kind == LibraryEntryKind::Embedded,
            !constant && category != mathlib::kConstantsCategory};
}

int FunctionHelpTopic(const LibraryEntry &entry) {
    return entry.kind == LibraryEntryKind::Embedded ? kFunctionHelpTopicBase + entry.index : 0;
}

int GraphInsertRefusal(const LibraryEntry &entry, std::string_view insertedText) {
    if (entry.kind == LibraryEntryKind::Constant) return kConstantNotGraphed;
    const auto parameters = std::count(insertedText.begin(), insertedText.end(), ',') + 1;
    return parameters >= 3 ? kTooManyParametersToGraph : 0;
}

}  // namespace quindar
