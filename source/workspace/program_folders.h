// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Where the program finds the folders that come with it.

#include <string>

namespace quindar {

// The folder of the running program's file, ending in "/"; empty when it cannot be told.
std::string program_folder();

// The "Library" folder beside the program when there is one, else fallback (a build that
// runs from its build tree reads the source tree's folder). The result ends in "/" unless
// it is empty.
std::string library_folder(const std::string &fallback);

}  // namespace quindar
