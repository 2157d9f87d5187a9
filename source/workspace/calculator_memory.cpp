// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "calculator_memory.h"

namespace quindar {

void CalculatorMemory::Save(std::string_view item, bool append) {
    lastMemoryItem = std::string(item);
    if (append && memoryText)
        *memoryText += item;
    else
        memoryText = std::string(item);
}

std::optional<std::string> CalculatorMemory::Remove() {
    if (!memoryText || !lastMemoryItem) return std::nullopt;
    std::optional<std::string> item = std::move(lastMemoryItem);
    lastMemoryItem.reset();
    if (*memoryText == *item) {
        memoryText.reset();
    } else {
        // The item was added last, so it is cut where it occurs last.
        const std::size_t at = memoryText->rfind(*item);
        if (at != std::string::npos) memoryText->erase(at);
    }
    return item;
}

void CalculatorMemory::Clear() {
    memoryText.reset();
    lastMemoryItem.reset();
}

}  // namespace quindar
