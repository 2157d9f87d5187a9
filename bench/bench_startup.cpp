// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The start of the desktop program, to a window with a document ready for typing (splash
// skipped): the whole process, and the part inside an already running Qt.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <spawn.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include "app_services.h"
#include "desktop_folders.h"
#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "workbench.h"

extern char **environ;

namespace {

using namespace quindar;

QApplication &Application() {
    static int argc = 1;
    static char name[] = "bench_startup";
    static char *argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(argc, argv);
    return application;
}

// Program start to the first turn of its event loop, with its window shown.
void BM_ProcessStartToEditableWindow(benchmark::State &state) {
    QTemporaryDir home;
    const std::string root = home.path().toStdString();
    std::vector<std::string> settings = {
        "XDG_CONFIG_HOME=" + root + "/config", "XDG_DATA_HOME=" + root + "/data",
        "QUINDAR_NO_SPLASH=1", "QUINDAR_QUIT_WHEN_READY=1", "QT_QPA_PLATFORM=offscreen",
        "LC_ALL=C", "HOME=" + root};
    std::vector<char *> environment;
    for (std::string &entry : settings) environment.push_back(entry.data());
    for (char **at = environ; *at != nullptr; ++at) {
        const std::string entry(*at);
        if (entry.rfind("PATH=", 0) == 0 || entry.rfind("LD_", 0) == 0) environment.push_back(*at);
    }
    environment.push_back(nullptr);
    char program[] = QUINDAR_PROGRAM;
    char *argv[] = {program, nullptr};
    for (auto _ : state) {
        pid_t pid = 0;
        if (posix_spawn(&pid, program, nullptr, nullptr, argv, environment.data()) != 0) {
            state.SkipWithError("cannot start the program");
            return;
        }
        int status = 0;
        waitpid(pid, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            state.SkipWithError("the program failed");
            return;
        }
    }
}
BENCHMARK(BM_ProcessStartToEditableWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

// Inside a running Qt: folders, settings, the main window, the first document's engine with its
// libraries, shown and focused.
void BM_WorkbenchStartToEditableWindow(benchmark::State &state) {
    Application();
    QTemporaryDir home;
    const std::string config = home.path().toStdString() + "/config";
    const std::string data = home.path().toStdString() + "/data";
    const EnvironmentReader environment = [&](const char *name) -> const char * {
        const std::string key(name);
        if (key == "XDG_CONFIG_HOME") return config.c_str();
        if (key == "XDG_DATA_HOME") return data.c_str();
        return nullptr;
    };
    const DesktopFolders folders = find_desktop_folders("/nowhere/", QUINDAR_SOURCE_DIR, environment);
    AppServices services;
    for (auto _ : state) {
        Workbench workbench(services, folders);
        workbench.Messages().SetPresenter([](const BoxRequest &) { return kIdNo; });
        MainFrame *frame = workbench.Start({});
        frame->show();
        QCoreApplication::processEvents();
        DocumentWindow *document = frame->Client()->Current();
        if (document == nullptr || !document->TextPane().isVisible()) {
            state.SkipWithError("no editable window");
            return;
        }
        benchmark::DoNotOptimize(document);
    }
}
BENCHMARK(BM_WorkbenchStartToEditableWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
