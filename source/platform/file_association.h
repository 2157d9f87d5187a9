// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The association of ".qnd" documents with the program, as the freedesktop desktop entry and
// shared MIME-info files of one user.

#include <string>
#include <string_view>

namespace quindar {

inline constexpr const char *kDocumentMimeType = "application/x-quindar";

// The MIME package that names the document type and its "*.qnd" pattern.
std::string mime_package_xml();

// A desktop entry that starts the program with the opened file; icon is a theme name or an
// absolute file.
std::string desktop_entry(std::string_view program, std::string_view icon);

// A program path as one argument of a desktop entry's Exec key.
std::string desktop_exec_argument(std::string_view program);

// The two files under a data folder ($XDG_DATA_HOME for one user).
std::string mime_package_path(const std::string &dataHome);
std::string desktop_entry_path(const std::string &dataHome);

struct AssociationResult {
    bool ok = true;        // every file could be written or removed
    bool changed = false;  // a file was written or removed: the desktop's caches are stale
};

// Writes both files, each only when its content differs from what is there.
AssociationResult register_file_association(const std::string &dataHome, std::string_view program,
                                            std::string_view icon);

// Removes both files; a missing file is no failure.
AssociationResult unregister_file_association(const std::string &dataHome);

}  // namespace quindar
