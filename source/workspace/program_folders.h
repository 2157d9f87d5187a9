// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Where the program finds the folders that come with it.

#include <string>

namespace quindar {

// The folder of the running program's file, ending in "/"; empty when it cannot be told.
std::string program_folder();

// The absolute folder of the file at `path`; empty when it cannot be told.
std::string folder_of_file(const std::string &path);

// The folder that holds what comes with the program ("Library", "Examples", "help", ...): the
// program's own folder when it has a "Library", else "../share/quindar/" beside it when that
// has one (an installation), else empty. `programDir` ends in "/" or is empty.
std::string shipped_folder(const std::string &programDir);

// The shipped "Library" folder of the running program, else fallback (a build that runs from
// its build tree reads the source tree's folder). The result ends in "/" unless it is empty.
std::string library_folder(const std::string &fallback);

}  // namespace quindar
