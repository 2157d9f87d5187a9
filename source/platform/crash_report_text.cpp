// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "crash_report_text.h"

#include <unistd.h>

namespace quindar {

void SignalSafeWriter::text(const char *value) {
    std::size_t length = 0;
    while (value[length] != '\0') ++length;
    text(value, length);
}

void SignalSafeWriter::text(const char *value, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i) {
        if (used_ == sizeof buffer_) flush();
        buffer_[used_++] = value[i];
    }
}

void SignalSafeWriter::hex(std::uint64_t value, int digits) {
    char digitsText[16];
    for (int i = digits - 1; i >= 0; --i) {
        digitsText[i] = "0123456789ABCDEF"[value & 0xf];
        value >>= 4;
    }
    text(digitsText, static_cast<std::size_t>(digits));
}

void SignalSafeWriter::decimal(std::uint64_t value) {
    char reversed[20];
    int count = 0;
    do {
        reversed[count++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value != 0);
    while (count > 0) text(&reversed[--count], 1);
}

void SignalSafeWriter::flush() {
    std::size_t done = 0;
    while (done < used_) {
        const ssize_t written = ::write(fd_, buffer_ + done, used_ - done);
        if (written <= 0) break;
        done += static_cast<std::size_t>(written);
    }
    used_ = 0;
}

}  // namespace quindar
