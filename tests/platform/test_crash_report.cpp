// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "crash_report.h"
#include "file_io.h"
#include "temp_folder.h"

namespace quindar {
namespace {

volatile int g_zero = 0;
volatile int g_seven = 7;  // a numerator of 1 lets the compiler avoid the division
volatile int *volatile g_null = nullptr;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSanitizerTakesFaults = true;
#else
constexpr bool kSanitizerTakesFaults = false;
#endif

// The faults are meant: the undefined-behaviour checks of a sanitizer build must let them happen.
#define QUINDAR_REAL_FAULT __attribute__((no_sanitize("undefined")))

QUINDAR_REAL_FAULT void crash_by_null_write() {
    *g_null = 1;
}
QUINDAR_REAL_FAULT void crash_by_division() {
    g_zero = g_seven / g_zero;
}
void crash_by_abort() {
    std::abort();
}
void crash_by_trap() {
    __builtin_trap();
}
void crash_by_bus_signal() {
    ::raise(SIGBUS);
}

// Runs crash in a child that has installed the report; returns the child's wait status.
int crash_in_child(const std::string &log, void (*crash)(), void (*before)() = nullptr) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (before != nullptr) before();
        if (!install_crash_report(log, "1.2.0.1")) ::_exit(90);
        crash();
        ::_exit(91);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

std::size_t count(const std::string &text, const std::string &part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++found;
    }
    return found;
}

struct CrashCase {
    void (*crash)();
    int signal;
    const char *codeLine;
};

const CrashCase kCrashes[] = {
    {crash_by_null_write, SIGSEGV, "Exception code: 0000000B ACCESS_VIOLATION\r\n"},
    {crash_by_division, SIGFPE, "Exception code: 00000008 INT_DIVIDE_BY_ZERO\r\n"},
    {crash_by_abort, SIGABRT, "Exception code: 00000006 Unknown exception\r\n"},
    {crash_by_trap, SIGILL, "Exception code: 00000004 ILLEGAL_INSTRUCTION\r\n"},
    {crash_by_bus_signal, SIGBUS, "Exception code: 00000007 IN_PAGE_ERROR\r\n"},
};

TEST(CrashReport, AFaultWritesItsReportAndStillKillsTheProgram) {
    for (const CrashCase &row : kCrashes) {
        testing::TempFolder folder;
        const std::string log = folder.path() + "/data/Quindar/QuindarExceptions.txt";
        const int status = crash_in_child(log, row.crash);
        if (kSanitizerTakesFaults && WIFEXITED(status)) {
            // The sanitizer's own handler was there first and ends the program its way.
            EXPECT_NE(WEXITSTATUS(status), 0) << row.codeLine;
        } else {
            ASSERT_TRUE(WIFSIGNALED(status)) << row.codeLine << " status " << status;
            EXPECT_EQ(WTERMSIG(status), row.signal) << row.codeLine;
        }
        const std::string report = read_whole_file(log).value_or("");
        const std::string rule = "//" + std::string(53, '=') + "\r\n";
        EXPECT_EQ(report.rfind(rule + "Program version: 1.2.0.1\r\n", 0), 0u) << report;
        EXPECT_NE(report.find(" UTC\r\n\r\nException code: "), std::string::npos) << report;
        EXPECT_NE(report.find(row.codeLine), std::string::npos) << report;
        EXPECT_NE(report.find("\r\nFault address:  "), std::string::npos) << report;
        EXPECT_NE(report.find("\r\n\r\nRegisters:\r\nRAX:"), std::string::npos) << report;
        EXPECT_NE(report.find("\r\nCall stack:   (Using Image Help Stack Walk)\r\n"
                              "Address   Frame     Function\r\n"),
                  std::string::npos)
            << report;
        EXPECT_NE(report.find("test_platform"), std::string::npos) << "no frame of ours";
        const std::string end = "\r\nEnd of report.\r\n\r\n";
        ASSERT_GE(report.size(), end.size());
        EXPECT_EQ(report.substr(report.size() - end.size()), end);
    }
}

TEST(CrashReport, ReportsAreAppended) {
    testing::TempFolder folder;
    const std::string log = folder.path() + "/QuindarExceptions.txt";
    crash_in_child(log, crash_by_null_write);
    crash_in_child(log, crash_by_division);
    const std::string report = read_whole_file(log).value_or("");
    EXPECT_EQ(count(report, "End of report."), 2u);
    EXPECT_LT(report.find("ACCESS_VIOLATION"), report.find("INT_DIVIDE_BY_ZERO"));
}

void exit_42(int) {
    ::_exit(42);
}
void install_previous_handler() {
    ::signal(SIGSEGV, exit_42);
}

TEST(CrashReport, TheHandlerBeforeGetsTheFaultAfterTheReport) {
    testing::TempFolder folder;
    const std::string log = folder.path() + "/QuindarExceptions.txt";
    const int status = crash_in_child(log, crash_by_null_write, install_previous_handler);
    ASSERT_TRUE(WIFEXITED(status)) << status;
    EXPECT_EQ(WEXITSTATUS(status), 42);
    EXPECT_NE(read_whole_file(log).value_or("").find("End of report."), std::string::npos);
}

TEST(CrashReport, FaultNames) {
    const struct {
        int signal;
        int code;
        const char *name;
    } cases[] = {
        {SIGSEGV, SEGV_MAPERR, "ACCESS_VIOLATION"}, {SIGSEGV, SEGV_ACCERR, "ACCESS_VIOLATION"},
        {SIGFPE, FPE_INTDIV, "INT_DIVIDE_BY_ZERO"}, {SIGFPE, FPE_FLTDIV, "FLT_DIVIDE_BY_ZERO"},
        {SIGFPE, FPE_FLTOVF, "FLT_OVERFLOW"},       {SIGFPE, FPE_FLTINV, "FLT_INVALID_OPERATION"},
        {SIGFPE, SI_USER, "Unknown exception"},     {SIGILL, ILL_ILLOPC, "ILLEGAL_INSTRUCTION"},
        {SIGILL, ILL_PRVOPC, "PRIV_INSTRUCTION"},   {SIGBUS, BUS_ADRALN, "DATATYPE_MISALIGNMENT"},
        {SIGBUS, BUS_ADRERR, "IN_PAGE_ERROR"},      {SIGABRT, SI_TKILL, "Unknown exception"},
        {SIGTERM, 0, "Unknown exception"},
    };
    for (const auto &row : cases) {
        EXPECT_STREQ(fault_name(row.signal, row.code), row.name) << row.signal << "/" << row.code;
    }
}

TEST(CrashReport, TimeStampsWithoutTheLibrary) {
    const struct {
        std::time_t time;
        const char *text;
    } cases[] = {
        {0, "1970-01-01 00:00:00 UTC"},          {951782400, "2000-02-29 00:00:00 UTC"},
        {1795469816, "2026-11-23 21:36:56 UTC"}, {4102444799, "2099-12-31 23:59:59 UTC"},
        {-1, "1969-12-31 23:59:59 UTC"},
    };
    for (const auto &row : cases) {
        char text[32] = {};
        EXPECT_EQ(std::string(text, format_utc_time(row.time, text)), row.text) << row.time;
    }
}

TEST(CrashReport, InstallsOnceAndRefusesOverlongPaths) {
    const pid_t child = ::fork();
    if (child == 0) {
        const bool tooLong = install_crash_report(std::string(5000, 'a'), "1");
        const bool first = install_crash_report("/tmp/x", "1");
        const bool second = install_crash_report("/tmp/y", "1");
        remove_crash_report();
        const bool afterRemoval = install_crash_report("/tmp/z", "1");
        ::_exit(!tooLong && first && !second && afterRemoval ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
}

}  // namespace
}  // namespace quindar
