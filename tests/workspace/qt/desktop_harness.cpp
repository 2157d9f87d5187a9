// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "desktop_harness.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QTest>

#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"

namespace quindar::testing {

int ScriptedBoxes::Present(const BoxRequest &request) {
    const QString entry = request.title + QStringLiteral(": ") + request.text;
    shown << entry;
    if (!expected.empty() && request.text.contains(expected.front().textPart)) {
        const int answer = expected.front().answer;
        expected.pop_front();
        return answer;
    }
    unexpected << entry;
    // The test fails here and now; the box is answered as Escape would, so nothing waits.
    QTest::qFail(qPrintable(QStringLiteral("unexpected message box: ") + entry), __FILE__,
                 __LINE__);
    return box_escape_result(box_style(request.flags).buttons);
}

DesktopHarness::DesktopHarness(const std::vector<std::string> &words,
                               const std::function<void(DesktopFolders &)> &adjust,
                               const std::vector<ExpectedBox> &atStart) {
    for (const ExpectedBox &box : atStart) boxes.expected.push_back(box);
    const std::string root = home.path().toStdString() + "/";
    QDir().mkpath(home.path() + QStringLiteral("/config/Quindar"));
    QFile ini(home.path() + QStringLiteral("/config/Quindar/Quindar.ini"));
    if (ini.open(QIODevice::WriteOnly))
        ini.write("[OPTIONS]\r\nSound=0\r\n[TipOfTheDay]\r\nPos=-1\r\nStartup=0\r\n");
    ini.close();
    const std::string config = root + "config";
    const std::string data = root + "data";
    const EnvironmentReader environment = [config, data](const char *name) -> const char * {
        const std::string key(name);
        if (key == "XDG_CONFIG_HOME") return config.c_str();
        if (key == "XDG_DATA_HOME") return data.c_str();
        return nullptr;
    };
    DesktopFolders folders =
        find_desktop_folders(root + "program/", QUINDAR_SOURCE_DIR, environment);
    if (adjust) adjust(folders);
    workbench = std::make_unique<Workbench>(services, folders);
    workbench->Messages().SetPresenter(
        [this](const BoxRequest &request) { return boxes.Present(request); });
    workbench->chooseOpenFiles = [this](QWidget *, const QString &title, const QString &,
                                        const QString &) {
        dialogTitles << title;
        return std::exchange(nextOpenFiles, {});
    };
    workbench->chooseSaveFile = [this](QWidget *, const QString &title, const QString &,
                                       const QString &) {
        dialogTitles << title;
        return std::exchange(nextSaveFile, {});
    };
    workbench->startProcess = [this](const QString &program, const QStringList &arguments) {
        started << (QStringList{program} + arguments).join(QLatin1Char(' '));
        return startSucceeds;
    };
    workbench->runDialog = [this](QDialog &dialog) { dialogsRun << dialog.windowTitle(); };
    frame = workbench->Start(words);
    frame->resize(1280, 800);
    frame->show();
    QApplication::setActiveWindow(frame);
    if (Current() != nullptr) Current()->TextPane().setFocus();
    QCoreApplication::processEvents();
}

DesktopHarness::~DesktopHarness() {
    // A scripted box that never came fails the test as well.
    for (const ExpectedBox &box : boxes.expected)
        QTest::qFail(qPrintable(QStringLiteral("message box never shown: ") + box.textPart),
                     __FILE__, __LINE__);
    // Closing documents asks nothing more of the test.
    workbench->Messages().SetPresenter([](const BoxRequest &) { return kIdNo; });
    workbench.reset();
}

DocumentArea &DesktopHarness::Client() {
    return *frame->Client();
}

DocumentWindow *DesktopHarness::Current() {
    return frame->Client()->Current();
}

QString DesktopHarness::Leftovers() const {
    QStringList problems;
    for (const QString &box : boxes.unexpected) problems << QStringLiteral("unexpected box ") + box;
    for (const ExpectedBox &box : boxes.expected)
        problems << QStringLiteral("box never shown: ") + box.textPart;
    return problems.join(QLatin1Char('\n'));
}

void TypeText(QWidget *widget, const QString &text) {
    for (const QChar c : text) {
        if (c == QLatin1Char('\n'))
            QTest::keyClick(widget, Qt::Key_Return);
        else
            QTest::keyClicks(widget, QString(c));
    }
}

}  // namespace quindar::testing
