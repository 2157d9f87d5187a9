// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The rules of the Tip of the Day: how a tip splits into heading and text, and how the
// dialog steps through the tips.

#include <cstddef>
#include <string>
#include <string_view>

namespace quindar {

inline constexpr int kFirstTipId = 18050;
inline constexpr int kDidYouKnowId = 18039;

struct Tip {
    std::string heading;
    std::string text;
};

// A tip is heading "|" text; without a "|" in its first 50 characters the whole of it is the
// text, under defaultHeading.
Tip split_tip(std::string_view tip, std::string_view defaultHeading);

// The number of the tip shown, stepping with wrap-around at both ends. The stored position is
// the tip last shown, -1 before the first; a position out of range counts as -1.
class TipCycle {
public:
    TipCycle(std::size_t count, int storedPosition);

    int current() const { return position_; }
    int next();
    int previous();

private:
    int count_;
    int position_;
};

}  // namespace quindar
