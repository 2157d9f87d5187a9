// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_library_browser.h"

#include <algorithm>

#include "function_texts.h"
#include "text_helpers.h"

namespace quindar {

int FindStringPrefix(const std::vector<std::string> &list, std::string_view text) {
    if (text.empty()) return -1;
    for (std::size_t i = 0; i < list.size(); ++i)
        if (text::equal_no_case(std::string_view(list[i]).substr(0, text.size()), text))
            return static_cast<int>(i);
    return -1;
}

FunctionLibraryBrowser::FunctionLibraryBrowser(FunctionLibraryCatalog &libraries)
    : catalog(libraries), categories(libraries.Categories()) {
    categoryIndex = categories.empty() ? -1 : 0;
    LoadNames();
}

std::string FunctionLibraryBrowser::CurrentCategory() const {
    return categoryIndex < 0 ? std::string() : categories[static_cast<std::size_t>(categoryIndex)];
}

std::string FunctionLibraryBrowser::CurrentName() const {
    return nameIndex < 0 ? std::string() : names[static_cast<std::size_t>(nameIndex)];
}

LibraryEntry FunctionLibraryBrowser::CurrentEntry() {
    return catalog.Describe(CurrentName(), CurrentCategory());
}

void FunctionLibraryBrowser::LoadNames() {
    names = catalog.Names(CurrentCategory());
    nameIndex = names.empty() ? -1 : 0;
}

void FunctionLibraryBrowser::SelectCategory(int index) {
    if (index < 0 || index >= static_cast<int>(categories.size())) return;
    categoryIndex = index;
    LoadNames();
    categoryMoved = true;
}

void FunctionLibraryBrowser::SelectName(int index) {
    if (index < 0 || index >= static_cast<int>(names.size())) return;
    nameIndex = index;
    nameMoved = true;
}

int FunctionLibraryBrowser::FindPrefix(std::string_view text) const {
    return FindStringPrefix(names, text);
}

bool FunctionLibraryBrowser::Search(std::string_view text) {
    searchText = std::string(text);
    if (CurrentCategory() != mathlib::kAllCategory) {
        const auto all = std::find(categories.begin(), categories.end(), mathlib::kAllCategory);
        if (all != categories.end()) {
            categoryIndex = static_cast<int>(all - categories.begin());
            LoadNames();
        }
    }
    const int found = FindPrefix(searchText);
    if (found >= 0) nameIndex = found;
    nameMoved = false;
    categoryMoved = false;
    return found >= 0;
}

bool FunctionLibraryBrowser::BackEnabled() const {
    if (searchText.empty() || !(nameMoved || categoryMoved)) return false;
    const bool atFound =
        CurrentCategory() == mathlib::kAllCategory && nameIndex == FindPrefix(searchText);
    return !atFound;
}

}  // namespace quindar
