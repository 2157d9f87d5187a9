// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The report of a fatal fault: when the program is killed by a fault signal, a report of the
// fault is appended to a log file before the signal takes its course.

#include <cstdint>
#include <ctime>
#include <string>

namespace quindar {

// Installs the report for SIGSEGV, SIGBUS, SIGFPE, SIGILL and SIGABRT on an alternate stack.
// The log's folders are made only when a report is written. False when a report is installed
// already or the path is too long. One per process: a signal handler can reach no object.
bool install_crash_report(const std::string &logPath, const std::string &version);

// Gives the signals back to the handlers that were there before; nothing if none is installed.
void remove_crash_report();

// The name a report gives a fault: "ACCESS_VIOLATION", "INT_DIVIDE_BY_ZERO" and so on, or
// "Unknown exception".
const char *fault_name(int signal, int code);

// Writes "YYYY-MM-DD hh:mm:ss UTC" for a time into text (at least 24 bytes), without the C
// library's time functions, which a signal handler may not call. Returns the length.
std::size_t format_utc_time(std::time_t time, char *text);

}  // namespace quindar
