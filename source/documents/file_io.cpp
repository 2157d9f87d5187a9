// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "file_io.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>

namespace quindar {

namespace {

// Closes the descriptor on every way out.
class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    int get() const { return fd_; }
    // Closes now and reports whether the close succeeded: a delayed write error shows here.
    bool close() {
        int fd = fd_;
        fd_ = -1;
        return ::close(fd) == 0;
    }

private:
    int fd_;
};

bool write_all(int fd, std::string_view content) {
    while (!content.empty()) {
        ssize_t written = ::write(fd, content.data(), content.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// A name in the file's folder that nothing else uses: the file's own name behind a dot,
// with a random tail. O_EXCL makes sure that a name already taken is not reused.
int create_temporary_beside(const std::filesystem::path &target, mode_t mode,
                            std::string &temporary) {
    std::filesystem::path folder = target.parent_path();
    std::random_device entropy;
    for (int attempt = 0; attempt < 100; ++attempt) {
        char tail[20];
        std::snprintf(tail, sizeof tail, ".~%08x", static_cast<unsigned>(entropy()));
        std::filesystem::path candidate = folder / ("." + target.filename().string() + tail);
        int fd = ::open(candidate.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (fd >= 0) {
            temporary = candidate.string();
            return fd;
        }
        if (errno != EEXIST) return -1;
    }
    return -1;
}

}  // namespace

std::optional<std::string> read_whole_file(const std::string &path) {
    if (path.empty()) return std::nullopt;
    FileDescriptor fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (fd.get() < 0) return std::nullopt;
    struct stat status {};
    if (::fstat(fd.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    std::string content;
    if (status.st_size > 0) content.reserve(static_cast<std::size_t>(status.st_size));
    char chunk[65536];
    for (;;) {
        ssize_t got = ::read(fd.get(), chunk, sizeof chunk);
        if (got < 0) {
            if (errno == EINTR) continue;
            return std::nullopt;
        }
        if (got == 0) break;
        content.append(chunk, static_cast<std::size_t>(got));
    }
    return content;
}

bool replace_file_content(const std::string &path, std::string_view content) {
    if (path.empty()) return false;
    mode_t mode = 0666;  // the process's umask applies to a new file
    bool exists = false;
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode)) return false;
        // A file that nobody may write is read-only, for the superuser too.
        if ((status.st_mode & 0222) == 0 || ::access(path.c_str(), W_OK) != 0) return false;
        mode = status.st_mode & 07777;
        exists = true;
    } else if (errno != ENOENT) {
        return false;
    }

    std::string temporary;
    FileDescriptor fd(create_temporary_beside(std::filesystem::path(path), mode, temporary));
    if (fd.get() < 0) return false;
    bool ok = write_all(fd.get(), content);
    // open() filtered the mode through the umask; an existing file keeps exactly its own.
    if (ok && exists) ok = ::fchmod(fd.get(), mode) == 0;
    ok = fd.close() && ok;
    if (ok) ok = ::rename(temporary.c_str(), path.c_str()) == 0;
    if (!ok) ::unlink(temporary.c_str());
    return ok;
}

}  // namespace quindar
