// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <vector>

namespace quindar::cli {
namespace {

std::string Quoted(const std::string &path) {
    return "\"" + path + "\"";
}

std::string Reason() {
    return std::strerror(errno);
}

}  // namespace

std::optional<std::string> ReadInput(const std::string &path, std::string &error) {
    if (path == "-") {
        std::ostringstream content;
        content << std::cin.rdbuf();
        if (std::cin.bad()) {
            error = "cannot read standard input";
            return std::nullopt;
        }
        return content.str();
    }
    std::error_code code;
    if (std::filesystem::is_directory(path, code)) {
        error = "cannot read " + Quoted(path) + ": it is a folder";
        return std::nullopt;
    }
    // A device such as /dev/zero never ends; a pipe does, when its writer is done.
    const auto type = std::filesystem::status(path, code).type();
    if (type == std::filesystem::file_type::character ||
        type == std::filesystem::file_type::block) {
        error = "cannot read " + Quoted(path) + ": it is a device";
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = "cannot open " + Quoted(path) + ": " + Reason();
        return std::nullopt;
    }
    std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) {
        error = "cannot read " + Quoted(path) + ": " + Reason();
        return std::nullopt;
    }
    return content;
}

bool ReplaceFile(const std::string &path, std::string_view content, std::string &error,
                 std::string &warning, const FileLock *lock) {
    const ReplaceOutcome outcome = replace_file(path, content, lock);
    if (!outcome.written) {
        error = "cannot write " + Quoted(path) + ": " + outcome.reason + "; the file is unchanged";
        return false;
    }
    if (!outcome.warning.empty()) warning = Quoted(path) + ": " + outcome.warning;
    return true;
}

}  // namespace quindar::cli
