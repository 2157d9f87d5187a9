// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// When a document is dirty, and what closing it asks first.

#include <string>
#include <string_view>

namespace quindar {

// What makes a document dirty.
struct DocumentChanges {
    bool textModified = false;  // the text control reports a modification
    bool variablesSaved = true;
    bool functionsSaved = true;
    bool graphsChanged = false;
    bool settingsChanged = false;
    bool textChanged = false;  // the text changed while it was not showing
};

bool document_dirty(const DocumentChanges &changes);
// Dirty in another way than through the text control.
bool attributes_dirty(const DocumentChanges &changes);

// What the document is busy with; closing is refused while it computes.
struct DocumentActivity {
    bool buildingGraph = false;
    bool computingDerivative = false;
    bool computingIntegral = false;
};

enum class CloseStep {
    Close,              // nothing to ask
    AskSaveText,        // 32553, Yes / No / Cancel
    RefuseGraph,        // 25109
    RefuseDerivative,   // 13162
    RefuseIntegral,     // 13115
    AskSaveAttributes,  // 21806 with the path, 21807 without
};

// The first step of closing: the text's question comes first; only an unmodified text with
// other changes meets the computing refusals and then the attributes' question.
CloseStep close_step(const DocumentChanges &changes, const DocumentActivity &activity);

struct CloseMessage {
    int text;
    int title;  // 0: the program's name
};
// The message of a step (text 0 for Close).
CloseMessage close_message(CloseStep step, bool hasPath);

inline constexpr int kMsgTextChanged = 32553;
inline constexpr int kMsgAttributesChangedPath = 21806;
inline constexpr int kMsgAttributesChanged = 21807;
inline constexpr int kTitleQuindar = 24407;

// The name 32553 shows: the document's file name, or "Math Editor" for an untitled one.
std::string close_question_name(std::string_view path, std::string_view untitledName);

}  // namespace quindar
