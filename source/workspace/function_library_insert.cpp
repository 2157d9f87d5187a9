// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_library_insert.h"

#include <string>

#include "function_library_catalog.h"

namespace quindar {

bool InsertLibraryPrototype(TextBuffer &buffer, std::string_view prototype) {
    const std::string text = CutPrototypeForInsert(prototype);
    if (text.empty()) return false;
    buffer.ReplaceSelection(text);
    std::size_t begin = 0;
    std::size_t end = 0;
    if (!ParameterRange(text, begin, end)) return true;
    const int line = buffer.CaretLine();
    const std::size_t at = buffer.LineText(line).find(text.substr(0, end + 1));
    if (at == std::string::npos) return true;
    const int start = buffer.LineStart(line) + static_cast<int>(at);
    buffer.SetSelection(start + static_cast<int>(begin), start + static_cast<int>(end));
    return true;
}

}  // namespace quindar
