// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The state of the Function Library dialog's lists: the selected category and name, the
// Search box that jumps to a name under "ALL", and Back, which returns to the name found
// after the user moved away from it.

#include <string>
#include <string_view>
#include <vector>

#include "function_library_catalog.h"

namespace quindar {

class FunctionLibraryBrowser {
public:
    // Loads the categories and selects the first, with its first name.
    explicit FunctionLibraryBrowser(FunctionLibraryCatalog &libraries);

    const std::vector<std::string> &Categories() const { return categories; }
    const std::vector<std::string> &Names() const { return names; }
    int CategoryIndex() const { return categoryIndex; }
    int NameIndex() const { return nameIndex; }
    std::string CurrentCategory() const;
    std::string CurrentName() const;
    // The texts of the selected name.
    LibraryEntry CurrentEntry();

    // The user picks a category: its names load and the first is selected.
    void SelectCategory(int index);
    // The user picks a name.
    void SelectName(int index);

    // The Search box's text changed: "ALL" is selected if it is not, and the first name that
    // begins with the text (without regard to case) is selected. True if one was found.
    bool Search(std::string_view text);
    // Returns to the name the search found.
    bool Back() { return Search(searchText); }
    bool BackEnabled() const;

private:
    void LoadNames();
    int FindPrefix(std::string_view text) const;

    FunctionLibraryCatalog &catalog;
    std::vector<std::string> categories;
    std::vector<std::string> names;
    int categoryIndex = -1;
    int nameIndex = -1;
    std::string searchText;
    bool nameMoved = false;
    bool categoryMoved = false;
};

// The first entry that begins with text, without regard to case; -1 for none or no text.
int FindStringPrefix(const std::vector<std::string> &list, std::string_view text);

}  // namespace quindar
