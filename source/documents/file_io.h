// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Reading a file whole, and replacing one without risking its old content: through a
// temporary file beside it, under an advisory lock, keeping what the old file was.

#include <optional>
#include <string>
#include <string_view>

namespace quindar {

// The whole content of a regular file, byte for byte; nothing when the path is not a
// readable regular file (missing, a folder, no permission, a read error).
std::optional<std::string> read_whole_file(const std::string &path);

// An advisory lock on the file a path names (through symbolic links), held while the object
// lives, so that two programs that read, compute and replace one file run one after the
// other. A path that names nothing yet takes no lock: there is nothing to read.
class FileLock {
public:
    // The lock on path, waiting for any other holder; nothing, with the reason, when path is
    // not a regular file or cannot be opened.
    static std::optional<FileLock> Acquire(const std::string &path, std::string &reason);

    FileLock(FileLock &&other) noexcept;
    FileLock &operator=(FileLock &&other) noexcept;
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;
    ~FileLock();

    // The file the lock is for: the path with its links resolved.
    const std::string &Target() const { return target; }

private:
    FileLock(int descriptor, std::string file) : fd(descriptor), target(std::move(file)) {}
    int fd = -1;
    std::string target;
};

// What a replacement did: written, or the reason in the system's words; and what the new
// file could not keep of the old one (its owner and group), which the user should be told.
struct ReplaceOutcome {
    bool written = false;
    std::string reason;
    std::string warning;
};

// Replaces the file's content: the bytes go to a new file in the same folder, which then
// takes the file's place by a rename, so that a failure at any point leaves the old file as it
// was. Through a link, the file linked to is replaced and the link stays. Refused: a target
// that is not a regular file, and a read-only one (one the process may not write, or one
// without any write permission). The new file keeps the old one's mode, and its owner and
// group where the system allows. The lock is taken unless the caller holds it already.
// Temporary files of earlier runs that died beside the target are removed first.
ReplaceOutcome replace_file(const std::string &path, std::string_view content,
                            const FileLock *held = nullptr);

// True for an existing file (through links) that this process may not write, or that has no
// write permission at all, which a privileged process could otherwise overwrite.
bool is_read_only_file(const std::string &path);

// replace_file when only success matters.
bool replace_file_content(const std::string &path, std::string_view content);

// The temporary files this program leaves beside a file while it replaces it are named
// ".NAME.quindar-save-PID-XXXXXXXX.tmp". Removes those in folder whose process has ended
// (only those of NAME when name is given); the number removed.
int remove_stale_temporaries(const std::string &folder, const std::string &name = {});

}  // namespace quindar
