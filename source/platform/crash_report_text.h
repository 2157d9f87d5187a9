// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A buffered writer to a file descriptor that only uses calls a signal handler may make.

#include <cstddef>
#include <cstdint>

namespace quindar {

class SignalSafeWriter {
public:
    explicit SignalSafeWriter(int fd) : fd_(fd) {}
    ~SignalSafeWriter() { flush(); }
    SignalSafeWriter(const SignalSafeWriter &) = delete;
    SignalSafeWriter &operator=(const SignalSafeWriter &) = delete;

    void text(const char *value);
    void text(const char *value, std::size_t length);
    // Upper-case hexadecimal, zero-padded to digits.
    void hex(std::uint64_t value, int digits);
    void decimal(std::uint64_t value);
    void flush();

private:
    int fd_;
    char buffer_[1024];
    std::size_t used_ = 0;
};

}  // namespace quindar
