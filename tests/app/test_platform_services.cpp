// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The desktop program's service hooks reach the platform layer: help, sounds, Tip of the Day.
#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include "app_settings.h"
#include "help_window.h"
#include "platform_services.h"
#include "tip_of_the_day_dialog.h"

namespace quindar {

class PlatformServicesTest : public QObject {
    Q_OBJECT
private slots:
    void helpTopicsOpenTheirPages();
    void noHelpFolderShowsNothing();
    void soundsComeFromTheBuild();
    void tipOfTheDayKeepsItsPlaceAndChoice();

private:
    DesktopFolders Folders(const QString &settings = QString()) const {
        DesktopFolders folders;
        folders.programDir = QUINDAR_PROGRAM_DIR "/";
        folders.execDir = QUINDAR_SOURCE_DIR;
        folders.helpDir = QUINDAR_SOURCE_DIR "help/";
        folders.settingsPath = settings.toStdString();
        return folders;
    }
};

HelpWindow *shown_help() {
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *help = qobject_cast<HelpWindow *>(widget); help && help->isVisible()) return help;
    }
    return nullptr;
}

void PlatformServicesTest::helpTopicsOpenTheirPages() {
    PlatformServices services(Folders());
    QVERIFY(services.HelpAvailable());
    QVERIFY(services.ShowHelpTopic(19410));
    QVERIFY(shown_help() != nullptr);
    QCOMPARE(shown_help()->currentPage(), QStringLiteral("file-new.html"));
    QVERIFY(services.ShowHelpPage(HelpPage::UsingHelp));
    QCOMPARE(shown_help()->currentPage(), QStringLiteral("using-help.html"));
    QVERIFY(services.ShowHelpPage(HelpPage::MathFunctions));
    QCOMPARE(shown_help()->currentPage(), QStringLiteral("functions.html"));
}

void PlatformServicesTest::noHelpFolderShowsNothing() {
    DesktopFolders folders = Folders();
    folders.helpDir = "/nonexistent/help/";
    PlatformServices services(folders);
    QVERIFY(!services.HelpAvailable());
    QVERIFY(!services.ShowHelpTopic(19410));
    QVERIFY(!services.ShowHelpPage(HelpPage::Contents));
}

void PlatformServicesTest::soundsComeFromTheBuild() {
    PlatformServices services(Folders());
    QVERIFY(services.PlaySound("QClick.wav"));  // silent without an audio device
    QVERIFY(!services.PlaySound("Missing.wav"));
}

void PlatformServicesTest::tipOfTheDayKeepsItsPlaceAndChoice() {
    QTemporaryDir folder;
    const QString ini = folder.filePath("Quindar.ini");
    QFile file(ini);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[TipOfTheDay]\r\nPos=-1\r\nStartup=1\r\n");
    file.close();
    PlatformServices services(Folders(ini));
    QList<int> commands;
    services.runCommand = [&commands](int id) { commands << id; };
    QString firstHeading;
    QTimer::singleShot(0, [&] {
        auto *dialog = qobject_cast<TipOfTheDayDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        firstHeading = dialog->heading();
        for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
            if (button->accessibleName() == "Tutorials") button->click();
        }
        dialog->findChild<QCheckBox *>()->click();
        dialog->showNext();
        dialog->accept();
    });
    services.ShowTipOfTheDay(nullptr);
    QCOMPARE(firstHeading, QStringLiteral("Watch the tutorials"));
    QCOMPARE(commands, QList<int>({24395}));
    const AppSettings settings(ini.toStdString());
    QCOMPARE(settings.TipPos(), 1);
    QCOMPARE(settings.TipStartup(), 0);
}

}  // namespace quindar

QTEST_MAIN(quindar::PlatformServicesTest)
#include "test_platform_services.moc"
