// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "file_io.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
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

constexpr std::string_view kTemporaryMark = ".quindar-save-";
constexpr std::string_view kTemporaryEnd = ".tmp";
// Links are followed at most this often, as the system does.
constexpr int kLinkHops = 40;

std::string system_reason(int error) {
    return std::strerror(error);
}

// The file a path names: links followed, also a link to a file that does not exist yet.
std::string resolve_target(const std::string &path) {
    namespace fs = std::filesystem;
    fs::path target(path);
    for (int hop = 0; hop < kLinkHops; ++hop) {
        std::error_code error;
        if (!fs::is_symlink(fs::symlink_status(target, error)) || error) break;
        const fs::path link = fs::read_symlink(target, error);
        if (error) break;
        target = link.is_absolute() ? link : target.parent_path() / link;
    }
    return target.lexically_normal().string();
}

// The reason a target cannot be replaced, or nothing; exists tells whether it is there.
std::optional<std::string> refusal(const std::string &target, struct stat &status, bool &exists) {
    exists = ::stat(target.c_str(), &status) == 0;
    if (!exists) {
        if (errno == ENOENT) return std::nullopt;
        return system_reason(errno);
    }
    if (S_ISDIR(status.st_mode)) return std::string("it is a folder");
    if (!S_ISREG(status.st_mode)) return std::string("it is not a regular file");
    if (is_read_only_file(target)) return std::string("it is read-only");
    return std::nullopt;
}

// ".NAME.quindar-save-PID-" and 8 hexadecimal digits and ".tmp"; the process that made it.
std::optional<long> temporary_owner(std::string_view entry, std::string_view name) {
    if (entry.size() < 2 || entry[0] != '.') return std::nullopt;
    entry.remove_prefix(1);
    if (!name.empty()) {
        if (entry.substr(0, name.size()) != name) return std::nullopt;
        entry.remove_prefix(name.size());
        if (entry.substr(0, kTemporaryMark.size()) != kTemporaryMark) return std::nullopt;
    } else {
        const auto mark = entry.rfind(kTemporaryMark);
        if (mark == std::string_view::npos || mark == 0) return std::nullopt;
        entry.remove_prefix(mark);
    }
    entry.remove_prefix(kTemporaryMark.size());
    if (entry.size() < kTemporaryEnd.size() ||
        entry.substr(entry.size() - kTemporaryEnd.size()) != kTemporaryEnd)
        return std::nullopt;
    entry.remove_suffix(kTemporaryEnd.size());
    const auto dash = entry.find('-');
    if (dash == std::string_view::npos || dash == 0 || entry.size() - dash - 1 != 8)
        return std::nullopt;
    long pid = 0;
    for (const char c : entry.substr(0, dash)) {
        if (c < '0' || c > '9' || pid > 100000000) return std::nullopt;
        pid = pid * 10 + (c - '0');
    }
    for (const char c : entry.substr(dash + 1))
        if (!std::isxdigit(static_cast<unsigned char>(c))) return std::nullopt;
    return pid;
}

bool process_has_ended(long pid) {
    return pid > 0 && ::kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH;
}

// A name in the file's folder that nothing else uses, recognisable as ours and as belonging to
// this process. O_EXCL makes sure that a name already taken is not reused.
int create_temporary_beside(const std::filesystem::path &target, mode_t mode,
                            std::string &temporary) {
    std::filesystem::path folder = target.parent_path();
    std::random_device entropy;
    const std::string stem = "." + target.filename().string() + std::string(kTemporaryMark) +
                             std::to_string(static_cast<long>(::getpid())) + "-";
    for (int attempt = 0; attempt < 100; ++attempt) {
        char tail[16];
        std::snprintf(tail, sizeof tail, "%08x", static_cast<unsigned>(entropy()));
        std::filesystem::path candidate = folder / (stem + tail + std::string(kTemporaryEnd));
        int fd = ::open(candidate.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (fd >= 0) {
            temporary = candidate.string();
            return fd;
        }
        if (errno != EEXIST) return -1;
    }
    errno = EEXIST;
    return -1;
}

// Makes the rename itself durable; a folder that cannot be synchronised changes nothing.
void sync_folder(const std::filesystem::path &folder) {
    FileDescriptor fd(
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.get() >= 0) ::fsync(fd.get());
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

std::optional<FileLock> FileLock::Acquire(const std::string &path, std::string &reason) {
    const std::string target = resolve_target(path);
    for (int attempt = 0; attempt < 100; ++attempt) {
        struct stat before {};
        if (::stat(target.c_str(), &before) != 0) {
            if (errno == ENOENT) return FileLock(-1, target);
            reason = system_reason(errno);
            return std::nullopt;
        }
        if (!S_ISREG(before.st_mode)) {
            reason = S_ISDIR(before.st_mode) ? "it is a folder" : "it is not a regular file";
            return std::nullopt;
        }
        int fd = ::open(target.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        // A file this process may not read cannot be locked, nor read by it.
        if (fd < 0) {
            if (errno == ENOENT) continue;
            if (errno == EACCES) return FileLock(-1, target);
            reason = system_reason(errno);
            return std::nullopt;
        }
        struct stat locked {};
        int result;
        do result = ::flock(fd, LOCK_EX);
        while (result != 0 && errno == EINTR);
        struct stat now {};
        if (result == 0 && ::fstat(fd, &locked) == 0 && S_ISREG(locked.st_mode) &&
            ::stat(target.c_str(), &now) == 0 && now.st_dev == locked.st_dev &&
            now.st_ino == locked.st_ino)
            return FileLock(fd, target);
        const int error = errno;
        ::close(fd);
        // Replaced while this process waited: the lock belongs on the new file.
        if (result == 0) continue;
        reason = system_reason(error);
        return std::nullopt;
    }
    reason = "the file keeps being replaced";
    return std::nullopt;
}

FileLock::FileLock(FileLock &&other) noexcept : fd(other.fd), target(std::move(other.target)) {
    other.fd = -1;
}

FileLock &FileLock::operator=(FileLock &&other) noexcept {
    if (this != &other) {
        if (fd >= 0) ::close(fd);
        fd = other.fd;
        target = std::move(other.target);
        other.fd = -1;
    }
    return *this;
}

FileLock::~FileLock() {
    if (fd >= 0) ::close(fd);
}

int remove_stale_temporaries(const std::string &folder, const std::string &name) {
    namespace fs = std::filesystem;
    std::error_code error;
    int removed = 0;
    for (fs::directory_iterator entry(folder.empty() ? "." : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        const std::string entryName = entry->path().filename().string();
        const auto owner = temporary_owner(entryName, name);
        std::error_code typeError;
        if (!owner || !process_has_ended(*owner) || !entry->is_regular_file(typeError)) continue;
        if (::unlink(entry->path().c_str()) == 0) ++removed;
    }
    return removed;
}

ReplaceOutcome replace_file(const std::string &path, std::string_view content,
                            const FileLock *held) {
    ReplaceOutcome outcome;
    if (path.empty()) {
        outcome.reason = "no file name";
        return outcome;
    }
    std::optional<FileLock> own;
    if (held == nullptr) {
        own = FileLock::Acquire(path, outcome.reason);
        if (!own) return outcome;
        held = &*own;
    }
    const std::filesystem::path target(held->Target());
    struct stat status {};
    bool exists = false;
    if (auto refused = refusal(target.string(), status, exists)) {
        outcome.reason = *refused;
        return outcome;
    }
    remove_stale_temporaries(target.parent_path().string(), target.filename().string());

    std::string temporary;
    // The process's umask applies to a new file; an existing one keeps exactly its mode.
    FileDescriptor fd(create_temporary_beside(target, exists ? 0600 : 0666, temporary));
    if (fd.get() < 0) {
        outcome.reason = system_reason(errno);
        return outcome;
    }
    int error = 0;
    if (!write_all(fd.get(), content)) error = errno;
    if (error == 0 && exists) {
        struct stat made {};
        // Only the superuser may give a file away; the owner may still set a group of theirs.
        if (::fstat(fd.get(), &made) == 0 &&
            (made.st_uid != status.st_uid || made.st_gid != status.st_gid) &&
            ::fchown(fd.get(), status.st_uid, status.st_gid) != 0 &&
            (made.st_uid != status.st_uid ||
             ::fchown(fd.get(), static_cast<uid_t>(-1), status.st_gid) != 0))
            outcome.warning =
                "the owner and group of the file could not be kept (" + system_reason(errno) + ")";
        if (::fchmod(fd.get(), status.st_mode & 07777) != 0) error = errno;
    }
    if (error == 0 && ::fsync(fd.get()) != 0) error = errno;
    if (!fd.close() && error == 0) error = errno;
    if (error == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) error = errno;
    if (error != 0) {
        ::unlink(temporary.c_str());
        outcome.reason = system_reason(error);
        outcome.warning.clear();
        return outcome;
    }
    sync_folder(target.parent_path());
    outcome.written = true;
    return outcome;
}

bool is_read_only_file(const std::string &path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return false;
    // A file that nobody may write is read-only, for the superuser too.
    return (status.st_mode & 0222) == 0 || ::access(path.c_str(), W_OK) != 0;
}

bool replace_file_content(const std::string &path, std::string_view content) {
    return replace_file(path, content).written;
}

}  // namespace quindar
