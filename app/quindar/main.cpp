// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The desktop program: one running instance, the main window, the first document.
#include <QApplication>
#include <QCoreApplication>
#include <QTimer>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "desktop_folders.h"
#include "document_graph_setup.h"
#include "document_graph_tools.h"
#include "main_frame.h"
#include "platform_services.h"
#include "program_folders.h"
#include "start_request.h"
#include "workbench.h"

int main(int argc, char **argv) {
    for (int at = 1; at < argc; ++at) {
        if (std::strcmp(argv[at], "--version") == 0) {
            std::printf("quindar %s\n", QUINDAR_VERSION);
            return 0;
        }
    }
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Quindar"));
    QCoreApplication::setOrganizationName(QStringLiteral("Quindar"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUINDAR_VERSION));

    // Qt has taken its own options out of argv; the rest are the program's words.
    std::vector<std::string> words;
    for (const QString &argument : QCoreApplication::arguments().mid(1))
        words.push_back(argument.toStdString());

    // Finding the folders only reads, so it may come before the hand-over.
    const quindar::DesktopFolders folders = quindar::find_desktop_folders(
        quindar::program_folder(), QUINDAR_SOURCE_DIR, quindar::process_environment());
    quindar::PlatformServices services(folders);
    const quindar::StartRequest request = quindar::read_start_request(words);
    if (services.HandOverToRunningInstance(QString::fromStdString(request.file))) return 0;
    services.InstallCrashReport(QString::fromStdString(folders.userDataDir));
    if (qEnvironmentVariableIntValue("QUINDAR_NO_SPLASH") != 1) services.SplashStart();

    quindar::Workbench workbench(services, folders);
    services.runCommand = [&workbench](int id) { workbench.Router().Execute(id); };
    quindar::install_graph_tools(workbench);
    quindar::install_graph_setup_tools(workbench);
    quindar::MainFrame *frame = workbench.Start(words);
    frame->showMaximized();
    workbench.AfterShow();
    // For measuring the start: leave as soon as the window is up and the loop runs.
    if (qEnvironmentVariableIsSet("QUINDAR_QUIT_WHEN_READY"))
        QTimer::singleShot(0, &application, &QCoreApplication::quit);
    return QApplication::exec();
}
