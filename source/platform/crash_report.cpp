// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "crash_report.h"

#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <ucontext.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "crash_report_text.h"

namespace quindar {

namespace {

constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr std::size_t kSignalCount = sizeof kSignals / sizeof kSignals[0];
constexpr int kAnyCode = -1;
constexpr int kMaxFrames = 48;

struct FaultName {
    int signal;
    int code;  // kAnyCode matches every code of the signal
    const char *name;
};

// The first matching row names a fault.
const FaultName kFaultNames[] = {
    {SIGSEGV, kAnyCode, "ACCESS_VIOLATION"},       {SIGBUS, BUS_ADRALN, "DATATYPE_MISALIGNMENT"},
    {SIGBUS, kAnyCode, "IN_PAGE_ERROR"},           {SIGFPE, FPE_INTDIV, "INT_DIVIDE_BY_ZERO"},
    {SIGFPE, FPE_INTOVF, "INT_OVERFLOW"},          {SIGFPE, FPE_FLTDIV, "FLT_DIVIDE_BY_ZERO"},
    {SIGFPE, FPE_FLTOVF, "FLT_OVERFLOW"},          {SIGFPE, FPE_FLTUND, "FLT_UNDERFLOW"},
    {SIGFPE, FPE_FLTRES, "FLT_INEXACT_RESULT"},    {SIGFPE, FPE_FLTINV, "FLT_INVALID_OPERATION"},
    {SIGFPE, FPE_FLTSUB, "ARRAY_BOUNDS_EXCEEDED"}, {SIGILL, ILL_PRVOPC, "PRIV_INSTRUCTION"},
    {SIGILL, kAnyCode, "ILLEGAL_INSTRUCTION"},
};

// What the handler needs, prepared before any fault: a handler may not allocate.
struct CrashReportState {
    bool installed = false;
    char logPath[4096];
    char version[64];
    struct sigaction previous[kSignalCount];
    stack_t previousStack;
    char alternateStack[64 * 1024];
};
CrashReportState g_state;

struct Register {
    const char *label;
    int index;
};

#if defined(__x86_64__)
// Three lines, as a report has always shown them.
const Register kRegisterLines[3][6] = {
    {{"RAX:", REG_RAX},
     {" RBX:", REG_RBX},
     {" RCX:", REG_RCX},
     {" RDX:", REG_RDX},
     {" RSI:", REG_RSI},
     {" RDI:", REG_RDI}},
    {{"RIP:", REG_RIP},
     {" RSP:", REG_RSP},
     {" RBP:", REG_RBP},
     {" R8:", REG_R8},
     {" R9:", REG_R9},
     {" R10:", REG_R10}},
    {{"R11:", REG_R11},
     {" R12:", REG_R12},
     {" R13:", REG_R13},
     {" R14:", REG_R14},
     {" R15:", REG_R15},
     {" Flags:", REG_EFL}},
};
#endif

std::uint64_t fault_address(const siginfo_t *info, const void *context) {
#if defined(__x86_64__)
    if (context != nullptr) {
        return static_cast<std::uint64_t>(
            static_cast<const ucontext_t *>(context)->uc_mcontext.gregs[REG_RIP]);
    }
#else
    (void)context;
#endif
    return reinterpret_cast<std::uintptr_t>(info->si_addr);
}

// Makes the folders above the log, one level at a time: mkdir is safe in a handler.
void make_log_folders(char *path) {
    for (char *slash = std::strchr(path + 1, '/'); slash != nullptr;
         slash = std::strchr(slash + 1, '/')) {
        *slash = '\0';
        ::mkdir(path, 0700);
        *slash = '/';
    }
}

void write_location(SignalSafeWriter &out, std::uint64_t address) {
    Dl_info where{};
    const bool known = ::dladdr(reinterpret_cast<void *>(address), &where) != 0;
    const auto base = known ? reinterpret_cast<std::uintptr_t>(where.dli_fbase) : 0;
    out.hex(address, 16);
    out.text(" ");
    out.hex(known ? 1 : 0, 2);
    out.text(":");
    out.hex(address - base, 16);
    out.text(" ");
    out.text(known && where.dli_fname != nullptr ? where.dli_fname : "?");
    out.text("\r\n");
}

void write_registers(SignalSafeWriter &out, const void *context) {
    out.text("\r\nRegisters:\r\n");
#if defined(__x86_64__)
    const auto &registers = static_cast<const ucontext_t *>(context)->uc_mcontext.gregs;
    for (const auto &line : kRegisterLines) {
        for (const Register &reg : line) {
            out.text(reg.label);
            out.hex(static_cast<std::uint64_t>(registers[reg.index]), 16);
        }
        out.text("\r\n");
    }
#else
    (void)context;
    out.text("(not available on this processor)\r\n\r\n\r\n");
#endif
}

// The frames from the faulting one on; the handler's own frames above it tell nothing.
void write_call_stack(SignalSafeWriter &out, std::uint64_t faultAddress) {
    out.text("\r\nCall stack:   (Using Image Help Stack Walk)\r\n");
    out.text("Address   Frame     Function\r\n");
    void *frames[kMaxFrames];
    const int count = ::backtrace(frames, kMaxFrames);
    int first = 0;
    while (first < count && reinterpret_cast<std::uintptr_t>(frames[first]) != faultAddress) {
        ++first;
    }
    if (first == count) first = 0;
    for (int i = first; i < count; ++i) {
        const auto address = reinterpret_cast<std::uintptr_t>(frames[i]);
        out.hex(address, 16);
        out.text("  ");
        out.hex(static_cast<std::uint64_t>(i - first), 4);
        out.text("  ");
        Dl_info where{};
        if (::dladdr(frames[i], &where) != 0 && where.dli_sname != nullptr) {
            out.text(where.dli_sname);
            out.text("+0x");
            out.hex(address - reinterpret_cast<std::uintptr_t>(where.dli_saddr), 4);
        } else {
            out.text("?");
        }
        if (where.dli_fname != nullptr) {
            out.text(" (");
            out.text(where.dli_fname);
            out.text(")");
        }
        out.text("\r\n");
    }
}

void write_report(int fd, int signal, const siginfo_t *info, const void *context) {
    SignalSafeWriter out(fd);
    out.text("//");
    for (int i = 0; i < 53; ++i) out.text("=");
    out.text("\r\nProgram version: ");
    out.text(g_state.version);
    out.text("\r\n");
    char stamp[32];
    out.text(stamp, format_utc_time(::time(nullptr), stamp));
    out.text("\r\n\r\nException code: ");
    out.hex(static_cast<std::uint64_t>(signal), 8);
    out.text(" ");
    out.text(fault_name(signal, info != nullptr ? info->si_code : 0));
    out.text("\r\nFault address:  ");
    const std::uint64_t address = info != nullptr ? fault_address(info, context) : 0;
    write_location(out, address);
    if (context != nullptr) write_registers(out, context);
    write_call_stack(out, address);
    out.text("\r\nEnd of report.\r\n\r\n");
}

int signal_slot(int signal) {
    for (std::size_t i = 0; i < kSignalCount; ++i) {
        if (kSignals[i] == signal) return static_cast<int>(i);
    }
    return -1;
}

void on_fault(int signal, siginfo_t *info, void *context) {
    const int savedErrno = errno;
    make_log_folders(g_state.logPath);
    const int fd = ::open(g_state.logPath, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (fd >= 0) {
        write_report(fd, signal, info, context);
        ::close(fd);
    }
    // The handler that was there before takes the signal as if this one had never been.
    const int slot = signal_slot(signal);
    if (slot >= 0) ::sigaction(signal, &g_state.previous[slot], nullptr);
    errno = savedErrno;
    ::raise(signal);
}

}  // namespace

const char *fault_name(int signal, int code) {
    for (const FaultName &row : kFaultNames) {
        if (row.signal == signal && (row.code == kAnyCode || row.code == code)) return row.name;
    }
    return "Unknown exception";
}

std::size_t format_utc_time(std::time_t time, char *text) {
    // Days to a civil date after Howard Hinnant's algorithm, valid for every 64-bit time.
    const std::int64_t seconds = static_cast<std::int64_t>(time);
    std::int64_t days = seconds / 86400;
    std::int64_t rest = seconds % 86400;
    if (rest < 0) {
        rest += 86400;
        --days;
    }
    days += 719468;
    const std::int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const std::int64_t dayOfEra = days - era * 146097;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t shiftedMonth = (5 * dayOfYear + 2) / 153;
    const std::int64_t day = dayOfYear - (153 * shiftedMonth + 2) / 5 + 1;
    const std::int64_t month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    const std::int64_t fields[] = {year, month, day, rest / 3600, rest / 60 % 60, rest % 60};
    const int widths[] = {4, 2, 2, 2, 2, 2};
    const char separators[] = {'-', '-', ' ', ':', ':', ' '};
    std::size_t length = 0;
    for (int f = 0; f < 6; ++f) {
        std::int64_t value = fields[f] < 0 ? 0 : fields[f];
        for (int d = widths[f] - 1; d >= 0; --d) {
            text[length + static_cast<std::size_t>(d)] = static_cast<char>('0' + value % 10);
            value /= 10;
        }
        length += static_cast<std::size_t>(widths[f]);
        text[length++] = separators[f];
    }
    std::memcpy(text + length, "UTC", 4);
    return length + 3;
}

bool install_crash_report(const std::string &logPath, const std::string &version) {
    if (g_state.installed || logPath.empty() || logPath.size() >= sizeof g_state.logPath ||
        version.size() >= sizeof g_state.version) {
        return false;
    }
    std::memcpy(g_state.logPath, logPath.c_str(), logPath.size() + 1);
    std::memcpy(g_state.version, version.c_str(), version.size() + 1);
    // backtrace() loads its unwinder on first use, which allocates: do it now, not in a fault.
    void *warmUp[1];
    ::backtrace(warmUp, 1);
    stack_t stack{};
    stack.ss_sp = g_state.alternateStack;
    stack.ss_size = sizeof g_state.alternateStack;
    ::sigaltstack(&stack, &g_state.previousStack);
    struct sigaction action {};
    action.sa_sigaction = on_fault;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignalCount; ++i) {
        ::sigaction(kSignals[i], &action, &g_state.previous[i]);
    }
    g_state.installed = true;
    return true;
}

void remove_crash_report() {
    if (!g_state.installed) return;
    for (std::size_t i = 0; i < kSignalCount; ++i) {
        ::sigaction(kSignals[i], &g_state.previous[i], nullptr);
    }
    ::sigaltstack(&g_state.previousStack, nullptr);
    g_state.installed = false;
}

}  // namespace quindar
