// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "xdg_folders.h"

#include <cstdlib>

namespace quindar {

namespace {

// An absolute path from the environment; the base directory rules ignore relative ones.
std::string absolute_variable(const char *name) {
    const char *value = std::getenv(name);
    if (value == nullptr || value[0] != '/') return {};
    std::string path = value;
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

}  // namespace

std::string xdg_data_home() {
    if (std::string path = absolute_variable("XDG_DATA_HOME"); !path.empty()) return path;
    const std::string home = absolute_variable("HOME");
    return home.empty() ? std::string() : home + "/.local/share";
}

std::string xdg_runtime_dir() {
    if (std::string path = absolute_variable("XDG_RUNTIME_DIR"); !path.empty()) return path;
    return temporary_folder();
}

std::string temporary_folder() {
    if (std::string path = absolute_variable("TMPDIR"); !path.empty()) return path;
    return "/tmp";
}

std::string user_data_folder() {
    const std::string data = xdg_data_home();
    return data.empty() ? std::string() : data + "/Quindar";
}

}  // namespace quindar
