// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "tip_of_the_day.h"

namespace quindar {

namespace {

constexpr std::size_t kHeadingSearch = 50;

}  // namespace

Tip split_tip(std::string_view tip, std::string_view defaultHeading) {
    const std::size_t bar = tip.substr(0, kHeadingSearch).find('|');
    if (bar == std::string_view::npos) return {std::string(defaultHeading), std::string(tip)};
    return {std::string(tip.substr(0, bar)), std::string(tip.substr(bar + 1))};
}

TipCycle::TipCycle(std::size_t count, int storedPosition)
    : count_(static_cast<int>(count)),
      position_(storedPosition >= 0 && storedPosition < count_ ? storedPosition : -1) {}

int TipCycle::next() {
    if (count_ == 0) return -1;
    position_ = (position_ + 1) % count_;
    return position_;
}

int TipCycle::previous() {
    if (count_ == 0) return -1;
    position_ = position_ <= 0 ? count_ - 1 : position_ - 1;
    return position_;
}

}  // namespace quindar
