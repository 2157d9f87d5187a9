// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Where the desktop program finds what comes with it and where it keeps what the user makes.
// What comes with it (Library, Examples, Tutorials, Sounds, help) stands beside the program
// when that folder holds "Library", as in a portable copy, else in the installed share folder
// "../share/quindar" next to the program's folder. What the user makes goes to the XDG
// folders: settings to $XDG_CONFIG_HOME/Quindar/Quindar.ini, unless a "Quindar.ini" stands
// beside the program, and the user library and reports to $XDG_DATA_HOME/Quindar.

#include <functional>
#include <string>
#include <string_view>

namespace quindar {

// Reads an environment variable; null when it is not set.
using EnvironmentReader = std::function<const char *(const char *name)>;
EnvironmentReader process_environment();

struct DesktopFolders {
    std::string programDir;  // the folder of the program's file
    std::string execDir;     // the folder of the files that come with the program
    std::string libraryDir;
    std::string examplesDir;
    std::string tutorialsDir;
    std::string soundsDir;
    std::string helpDir;
    std::string userDataDir;      // the user's own files
    std::string userLibraryDir;   // holds the user library "QuindarUser.lib"
    std::string settingsPath;     // "Quindar.ini": the portable one or the user's
    std::string recentFilesPath;  // the user's "Quindar.ini", which keeps the recent files
};

inline constexpr const char *kSettingsFileName = "Quindar.ini";

// programDir ends in "/". fallbackExecDir is used when neither the program's folder nor the
// share folder holds "Library" (a program run from its build tree). Every folder ends in "/".
DesktopFolders find_desktop_folders(const std::string &programDir,
                                    const std::string &fallbackExecDir,
                                    const EnvironmentReader &environment);

// Where the command-line program keeps the user library: beside the shipped library when the
// user may write there (a build tree, a portable copy), else in $XDG_DATA_HOME/Quindar/Library/
// as the desktop program does (an installation). Ends in "/".
std::string command_line_user_library_folder(const std::string &libraryDir,
                                             const EnvironmentReader &environment);

// Whether a file name is a temporary document file left by an earlier run: "qnd*.tmp",
// without regard to case.
bool is_stale_temporary_name(std::string_view name);

}  // namespace quindar
