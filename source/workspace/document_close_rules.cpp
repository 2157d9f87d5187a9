// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_close_rules.h"

namespace quindar {
namespace {

struct StepMessage {
    CloseStep step;
    int text;
    int title;
};

constexpr StepMessage kStepMessages[] = {
    {CloseStep::AskSaveText, kMsgTextChanged, kTitleQuindar},
    {CloseStep::RefuseGraph, 25109, 25101},
    {CloseStep::RefuseDerivative, 13162, 13150},
    {CloseStep::RefuseIntegral, 13115, 13100},
};

}  // namespace

bool attributes_dirty(const DocumentChanges &changes) {
    return !changes.variablesSaved || !changes.functionsSaved || changes.graphsChanged ||
           changes.settingsChanged || changes.textChanged;
}

bool document_dirty(const DocumentChanges &changes) {
    return changes.textModified || attributes_dirty(changes);
}

CloseStep close_step(const DocumentChanges &changes, const DocumentActivity &activity) {
    if (changes.textModified) return CloseStep::AskSaveText;
    if (!attributes_dirty(changes)) return CloseStep::Close;
    if (activity.buildingGraph) return CloseStep::RefuseGraph;
    if (activity.computingDerivative) return CloseStep::RefuseDerivative;
    if (activity.computingIntegral) return CloseStep::RefuseIntegral;
    return CloseStep::AskSaveAttributes;
}

CloseMessage close_message(CloseStep step, bool hasPath) {
    if (step == CloseStep::AskSaveAttributes)
        return {hasPath ? kMsgAttributesChangedPath : kMsgAttributesChanged, kTitleQuindar};
    for (const StepMessage &message : kStepMessages)
        if (message.step == step) return {message.text, message.title};
    return {0, 0};
}

std::string close_question_name(std::string_view path, std::string_view untitledName) {
    if (path.empty()) return std::string(untitledName);
    const std::size_t slash = path.find_last_of('/');
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

}  // namespace quindar
