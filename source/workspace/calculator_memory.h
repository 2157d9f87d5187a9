// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The memory of the calculator keys of one Math Editor. It holds text, not numbers: what is
// saved is inserted again as it was, never computed.

#include <optional>
#include <string>
#include <string_view>

namespace quindar {

class CalculatorMemory {
public:
    // MS and M+: the item becomes the memory, or with append and an old memory is added
    // behind it. The item is remembered for M-.
    void Save(std::string_view item, bool append);
    // M-: takes the last added item off the memory. Returns the item taken, or nothing when
    // there is no memory or no item (a second M- after one does nothing).
    std::optional<std::string> Remove();
    // MC.
    void Clear();

    const std::optional<std::string> &Text() const { return memoryText; }
    const std::optional<std::string> &LastItem() const { return lastMemoryItem; }

private:
    std::optional<std::string> memoryText;
    std::optional<std::string> lastMemoryItem;
};

}  // namespace quindar
