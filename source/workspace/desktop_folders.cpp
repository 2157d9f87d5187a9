// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "desktop_folders.h"

#include <cctype>
#include <cstdlib>
#include <filesystem>

#include <unistd.h>

#include "program_folders.h"

namespace quindar {
namespace {

std::string WithSeparator(std::string folder) {
    if (!folder.empty() && folder.back() != '/') folder += '/';
    return folder;
}

bool IsFile(const std::string &path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

// $name when it is set to an absolute path, else $HOME followed by homeTail.
std::string XdgFolder(const EnvironmentReader &environment, const char *name,
                      const char *homeTail) {
    const char *value = environment(name);
    if (value != nullptr && value[0] == '/') return WithSeparator(value);
    const char *home = environment("HOME");
    if (home != nullptr && home[0] != '\0') return WithSeparator(home) + homeTail;
    return {};
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t at = 0; at < a.size(); ++at)
        if (std::tolower(static_cast<unsigned char>(a[at])) != b[at]) return false;
    return true;
}

}  // namespace

EnvironmentReader process_environment() {
    return [](const char *name) -> const char * { return std::getenv(name); };
}

DesktopFolders find_desktop_folders(const std::string &programDir,
                                    const std::string &fallbackExecDir,
                                    const EnvironmentReader &environment) {
    DesktopFolders folders;
    folders.programDir = WithSeparator(programDir);
    folders.execDir = shipped_folder(folders.programDir);
    if (folders.execDir.empty()) folders.execDir = WithSeparator(fallbackExecDir);

    folders.libraryDir = folders.execDir + "Library/";
    folders.examplesDir = folders.execDir + "Examples/";
    folders.tutorialsDir = folders.execDir + "Tutorials/";
    folders.soundsDir = folders.execDir + "Sounds/";
    folders.helpDir = folders.execDir + "help/";

    const std::string data = XdgFolder(environment, "XDG_DATA_HOME", ".local/share/");
    folders.userDataDir = data.empty() ? std::string() : data + "Quindar/";
    folders.userLibraryDir = folders.userDataDir + "Library/";

    const std::string config = XdgFolder(environment, "XDG_CONFIG_HOME", ".config/");
    folders.recentFilesPath =
        config.empty() ? std::string(kSettingsFileName) : config + "Quindar/" + kSettingsFileName;
    const std::string portable = folders.programDir + kSettingsFileName;
    folders.settingsPath =
        !folders.programDir.empty() && IsFile(portable) ? portable : folders.recentFilesPath;
    return folders;
}

std::string command_line_user_library_folder(const std::string &libraryDir,
                                             const EnvironmentReader &environment) {
    const std::string shipped = WithSeparator(libraryDir);
    if (!shipped.empty() && ::access(shipped.c_str(), W_OK) == 0) return shipped;
    const std::string data = XdgFolder(environment, "XDG_DATA_HOME", ".local/share/");
    return data.empty() ? shipped : data + "Quindar/Library/";
}

bool is_stale_temporary_name(std::string_view name) {
    return name.size() >= 7 && EqualIgnoringCase(name.substr(0, 3), "qnd") &&
           EqualIgnoringCase(name.substr(name.size() - 4), ".tmp");
}

}  // namespace quindar
