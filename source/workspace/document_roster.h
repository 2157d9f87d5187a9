// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The open documents of the main window, apart from their windows: at most 50, in the order
// they were opened, which is also the order of the window combo box. New documents are
// numbered for the whole run and numbers are never reused.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quindar {

inline constexpr int kMaximumDocuments = 50;

// Message and title when the limit is reached.
inline constexpr int kMsgWindowLimit = 24401;
inline constexpr int kTitleClientWindowManager = 24400;
// "Math Editor", the name of an untitled document.
inline constexpr int kStrMathEditor = 32550;

// "1 - MATH EDITOR": an untitled document's caption, from its number and the name.
std::string untitled_caption(int number, std::string_view name);
// "MATH EDITOR - /HOME/A.QND": a saved document's caption, from the name and its path.
std::string file_caption(std::string_view name, std::string_view path);
// What the window combo box shows of a caption: the part behind the last ':', '\' or '/'.
std::string combo_entry_text(std::string_view caption);
// Whether two paths name the same file for the purpose of opening it twice: compared
// without regard to case.
bool same_document_path(std::string_view a, std::string_view b);

class DocumentRoster {
public:
    int Count() const { return static_cast<int>(entries.size()); }
    bool Full() const { return Count() >= kMaximumDocuments; }

    // The number of the next untitled document; counts up for the whole run.
    int TakeNewNumber() { return ++newDocumentCount; }
    int NewDocumentCount() const { return newDocumentCount; }

    // Adds a document by a key of the caller's; returns its index.
    int Add(int key, std::string path = {});
    // Removes the document and returns the index of the next current document: for the
    // first entry the second, for the last the one before it, otherwise the next one; none
    // when it was the only one. Indices are those after the removal.
    std::optional<int> Remove(int key);

    void SetPath(int key, std::string path);
    int IndexOf(int key) const;
    // The index of the document holding that file, without regard to case, or -1.
    int IndexOfPath(std::string_view path) const;
    int KeyAt(int index) const { return entries.at(static_cast<std::size_t>(index)).key; }
    const std::string &PathAt(int index) const {
        return entries.at(static_cast<std::size_t>(index)).path;
    }

private:
    struct Entry {
        int key;
        std::string path;
    };
    std::vector<Entry> entries;
    int newDocumentCount = 0;
};

}  // namespace quindar
