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

bool WriteAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
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

bool ReplaceFile(const std::string &path, std::string_view content, std::string &error) {
    // Through a link, the file it points to is the one replaced.
    std::error_code code;
    const std::filesystem::path target = std::filesystem::canonical(path, code);
    const std::string real = code ? path : target.string();
    struct stat original {};
    if (::stat(real.c_str(), &original) != 0) {
        error = "cannot write " + Quoted(path) + ": " + Reason();
        return false;
    }
    std::vector<char> name(real.begin(), real.end());
    for (char c : std::string_view(".XXXXXX")) name.push_back(c);
    name.push_back('\0');
    const int descriptor = ::mkstemp(name.data());
    if (descriptor < 0) {
        error = "cannot create a temporary file beside " + Quoted(path) + ": " + Reason();
        return false;
    }
    const std::string temporary(name.data());
    std::string failure;
    if (!WriteAll(descriptor, content) || ::fchmod(descriptor, original.st_mode & 07777) != 0 ||
        ::fsync(descriptor) != 0)
        failure = Reason();
    if (::close(descriptor) != 0 && failure.empty()) failure = Reason();
    if (failure.empty() && std::rename(temporary.c_str(), real.c_str()) != 0) failure = Reason();
    if (!failure.empty()) {
        std::remove(temporary.c_str());
        error = "cannot write " + Quoted(path) + ": " + failure + "; the file is unchanged";
        return false;
    }
    return true;
}

}  // namespace quindar::cli
