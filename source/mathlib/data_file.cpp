// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "data_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>

namespace quindar::mathlib {

namespace {

bool is_separator(char c) {
    return c == ' ' || c == ',' || c == '\t' || c == '\r' || c == '\n';
}

// `12)` is a label: it holds a closing parenthesis, no opening one, and ends in it.
bool is_label(const std::string &entry) {
    return !entry.empty() && entry.back() == ')' && entry.find('(') == std::string::npos;
}

// Reads a regular file in chunks, so that neither a device that never ends nor a huge file is
// taken whole: a folder, a device, a pipe or an unreadable file cannot be opened as data.
class DataSource {
public:
    explicit DataSource(const std::string &path) {
        fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        struct stat status {};
        if (fd >= 0 && (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode))) {
            ::close(fd);
            fd = -1;
        }
    }
    ~DataSource() {
        if (fd >= 0) ::close(fd);
    }
    DataSource(const DataSource &) = delete;
    DataSource &operator=(const DataSource &) = delete;

    bool is_open() const { return fd >= 0; }
    // The next byte, or -1 at the end, at a read error or past the byte limit.
    int next() {
        if (at == got && !fill()) return -1;
        return static_cast<unsigned char>(chunk[at++]);
    }
    bool past_limit() const { return total > kDataFileByteLimit; }

private:
    bool fill() {
        if (past_limit()) return false;
        for (;;) {
            const ssize_t n = ::read(fd, chunk, sizeof chunk);
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) return false;
            at = 0;
            got = static_cast<std::size_t>(n);
            total += got;
            return !past_limit();
        }
    }

    int fd = -1;
    char chunk[65536];
    std::size_t at = 0, got = 0, total = 0;
};

// Calls on_entry(text) for each entry and on_row_end() at each line end and at the end.
// Reading stops at the entry limit and at the byte limit, not after the whole file.
template <class OnEntry, class OnRowEnd>
DataFileStatus scan(const std::string &path, OnEntry on_entry, OnRowEnd on_row_end) {
    auto source = std::make_unique<DataSource>(path);
    if (!source->is_open()) return DataFileStatus::CannotOpen;
    int c = source->next();
    while (c == ' ' || c == '\r' || c == '\n') c = source->next();
    if (c < 0) return source->past_limit() ? DataFileStatus::TooMany : DataFileStatus::NoData;
    int count = 0;
    std::string entry;
    while (c >= 0) {
        if (c == '\n' || c == '\r') {
            on_row_end();
            c = source->next();
            continue;
        }
        if (is_separator(static_cast<char>(c))) {
            c = source->next();
            continue;
        }
        entry.clear();
        while (c >= 0 && !is_separator(static_cast<char>(c))) {
            entry += static_cast<char>(c);
            c = source->next();
        }
        if (is_label(entry)) continue;
        if (++count >= kDataEntryLimit || source->past_limit()) return DataFileStatus::TooMany;
        on_entry(entry);
    }
    if (source->past_limit()) return DataFileStatus::TooMany;
    on_row_end();
    return DataFileStatus::Read;
}

}  // namespace

DataFileStatus read_data_entries(const std::string &path, std::vector<std::string> &entries) {
    entries.clear();
    return scan(
        path, [&](const std::string &entry) { entries.push_back(entry); }, [] {});
}

DataFileStatus read_data_points(const std::string &path, std::vector<PointRow> &rows) {
    rows.clear();
    PointRow open;
    auto close_row = [&] {
        if (open.count > 0) rows.push_back(open);
        open = PointRow{};
    };
    auto add_entry = [&](const std::string &entry) {
        if (open.count < 3) open.coordinates[static_cast<std::size_t>(open.count)] = entry;
        ++open.count;
    };
    return scan(path, add_entry, close_row);
}

std::string data_file_message(DataFileStatus status, const std::string &path) {
    switch (status) {
        case DataFileStatus::CannotOpen:
            return "Data File ' " + path + " ' Could Not Be Located!";
        case DataFileStatus::NoData:
            return "No Data Found In The ' " + path + " ' Data File!";
        case DataFileStatus::TooMany:
            return "Too Many Data Points Found In The ' " + path +
                   " ' Data File, Limit Is 32767 Points!";
        case DataFileStatus::Read:
            break;
    }
    return {};
}

}  // namespace quindar::mathlib
