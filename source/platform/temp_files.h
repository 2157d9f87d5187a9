// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The editors' temporary files that a run which did not end cleanly left behind.

#include <string>
#include <string_view>

namespace quindar {

// True for a file name of the form "qnd*.tmp", in any case.
bool is_editor_temporary_name(std::string_view name);

// Deletes every regular file of folder whose name is an editor's temporary name; returns how
// many went. A folder that cannot be read removes nothing.
int remove_stale_temporary_files(const std::string &folder);

}  // namespace quindar
