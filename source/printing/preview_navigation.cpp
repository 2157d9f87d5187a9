// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "preview_navigation.h"

namespace quindar::printing {

void PreviewNavigation::Previous() {
    if (!CanGoPrevious()) return;
    --first;
    second = twoUp ? first + 1 : first;
}

void PreviewNavigation::Next() {
    if (!CanGoNext()) return;
    ++first;
    second = twoUp ? first + 1 : first;
}

void PreviewNavigation::OneUp() {
    twoUp = false;
    second = first;
}

void PreviewNavigation::ShowTwoUp() {
    twoUp = true;
    if (first < highest) {
        second = first + 1;
    } else if (first == 1) {
        second = 0;  // a one-page printout: the right page stays blank
    } else {
        // At the last page the view steps back one, to show the last two.
        first = highest - 1;
        second = highest;
    }
}

std::string PreviewNavigation::PageText() const {
    std::string text = "Page " + std::to_string(first);
    if (twoUp && second != 0) text += " - " + std::to_string(second);
    return text;
}

}  // namespace quindar::printing
