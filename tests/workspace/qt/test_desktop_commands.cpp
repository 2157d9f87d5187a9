// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The frame: menus and tool bar in both forms, every command's label, hint and handler, the
// route that disables what nothing answers, the settings the toggles write, context help,
// recent files and dropped files.
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <QUrl>
#include <set>

#include "app_services.h"
#include "app_settings.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "parser.h"
#include "string_table.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

QStringList VisibleMenus(MainFrame &frame) {
    QStringList titles;
    for (QAction *action : frame.menuBar()->actions())
        if (action->isVisible()) titles << action->text();
    return titles;
}

// The tool bar's visible items: command ids, 0 for a separator, 24410 for the combo box.
QList<int> VisibleToolBar(MainFrame &frame) {
    QList<int> items;
    for (QAction *action : frame.ToolBar()->actions()) {
        if (!action->isVisible()) continue;
        if (action->isSeparator())
            items << command::kSeparator;
        else if (frame.ToolBar()->widgetForAction(action) == frame.WindowCombo())
            items << command::kWindowCombo;
        else
            items << action->data().toInt();
    }
    return items;
}

QList<int> LongToolBar() {
    QList<int> items;
    for (const int item : tool_bar_layout()) items << item;
    return items;
}

QString Sample() {
    return QStringLiteral(QUINDAR_TEST_DATA_DIR "sample.qnd");
}

QString IniText(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Commands that have no hint of their own.
const std::set<int> kWithoutHint = {24391, 20632, 20634, 20635, 20636, 20637, 20638, 20639, 20640};

}  // namespace

class DesktopCommands : public QObject {
    Q_OBJECT
private slots:
    void menusAndToolBarFollowTheDocuments();
    void everyCommandHasLabelHintAndHandler();
    void menuLabelsAndMnemonics_data();
    void menuLabelsAndMnemonics();
    void editCommandsNeedTheTextPane();
    void hintsShowInTheStatusBar();
    void togglesWriteTheSettingsFile();
    void contextHelpShowsTheTopicInsteadOfActing();
    void recentFilesAndDroppedFiles();
    void examplesOpenFromTheExamplesFolder();
    void everyWindowHasAnAccessibleName();
    void tutorialsWithoutFolderOrFiles();
    void tutorialsPlayInThePlayerFound();
    void functionKeysForHelp();
    void exitAsksEveryDocumentBeforeClosingAny();
    void anUnexpectedBoxFailsTheTest();
    void toolsOfLaterWindowsArriveThroughTheirHooks();
};

void DesktopCommands::menusAndToolBarFollowTheDocuments() {
    DesktopHarness harness;
    MainFrame &frame = harness.Frame();
    const QStringList allMenus = {"&File",      "&Edit",  "&Search", "Se&tup",
                                  "&Utilities", "&Graph", "&Window", "&Help"};
    QCOMPARE(VisibleMenus(frame), allMenus);
    QCOMPARE(VisibleToolBar(frame), LongToolBar());
    QCOMPARE(VisibleToolBar(frame).count(command::kSeparator) > 0, true);
    QVERIFY(frame.WindowCombo()->isEnabled());

    QVERIFY(harness.Client().CloseDocument(harness.Current()));
    QCOMPARE(VisibleMenus(frame), (QStringList{"&File", "&Help"}));
    const QList<int> shortBar = {command::kFileNew,   command::kFileOpen,
                                 command::kSeparator, command::kContextHelp,
                                 command::kTutorials, command::kHelpContents};
    QCOMPARE(VisibleToolBar(frame), shortBar);
    QVERIFY(!frame.WindowCombo()->isEnabled());
    // The tool bar hides a widget of a hidden action when it next lays itself out.
    QTRY_VERIFY(!frame.WindowCombo()->isVisibleTo(&frame));

    harness.Bench().Router().Execute(command::kFileNew);
    QCOMPARE(VisibleMenus(frame), allMenus);
    QCOMPARE(harness.Current()->Caption(), QStringLiteral("2 - MATH EDITOR"));
}

void DesktopCommands::everyCommandHasLabelHintAndHandler() {
    DesktopHarness harness;
    harness.Current()->TextPane().setFocus();
    QCOMPARE(QApplication::focusWidget(), &harness.Current()->TextPane());
    QVERIFY2(
        application_string_problems().empty(),
        application_string_problems().empty() ? "" : application_string_problems().front().c_str());
    for (const CommandInfo &command : command_table()) {
        const QByteArray name = QByteArray::number(command.id);
        QVERIFY2(command.label != nullptr && command.label[0] != '\0', name);
        QAction *action = harness.Bench().Router().Action(command.id);
        QVERIFY2(action != nullptr, name);
        QCOMPARE(action->text(), QString::fromUtf8(command.label));
        QCOMPARE(action->statusTip().isEmpty(), kWithoutHint.contains(command.id));
        QCOMPARE(action->statusTip(), ui_string(command.id));
        CommandState state;
        QVERIFY2(harness.Bench().Router().Resolve(command.id, state) != nullptr, name);
    }
}

void DesktopCommands::menuLabelsAndMnemonics_data() {
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("id");
    QTest::newRow("Alt+F, S") << 0 << "S" << command::kFileSave;
    QTest::newRow("Alt+F, N") << 0 << "N" << command::kFileNew;
    QTest::newRow("Alt+F, A") << 0 << "A" << command::kFileSaveAs;
    QTest::newRow("Alt+F, X") << 0 << "X" << command::kExit;
    QTest::newRow("Alt+E, T") << 1 << "T" << command::kEditCut;
    QTest::newRow("Alt+S, N") << 2 << "N" << command::kEditFindNext;
    QTest::newRow("Alt+T, H") << 3 << "H" << command::kShowHints;
    QTest::newRow("Alt+U, L") << 4 << "L" << command::kFunctionLibrary;
    QTest::newRow("Alt+G, 2") << 5 << "2" << command::kSet2DPerspective;
    QTest::newRow("Alt+W, L") << 6 << "L" << command::kCloseAll;
    QTest::newRow("Alt+H, A") << 7 << "A" << command::kHelpAbout;
}

void DesktopCommands::menuLabelsAndMnemonics() {
    QFETCH(int, menu);
    QFETCH(QString, key);
    QFETCH(int, id);
    DesktopHarness harness;
    QList<int> matches;
    for (QAction *action : harness.Frame().Menu(menu)->actions())
        if (QKeySequence::mnemonic(action->text()) == QKeySequence(QStringLiteral("Alt+") + key))
            matches << action->data().toInt();
    QCOMPARE(matches, QList<int>{id});
}

void DesktopCommands::editCommandsNeedTheTextPane() {
    DesktopHarness harness;
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(router.State(command::kEditCut).enabled);
    // With the focus in a widget of another kind nothing on the route answers Cut.
    auto *other = new QLineEdit(harness.Frame().statusBar());
    other->setAccessibleName(QStringLiteral("other"));
    harness.Frame().statusBar()->addWidget(other);
    other->show();
    other->setFocus();
    QCOMPARE(QApplication::focusWidget(), other);
    QVERIFY(!router.State(command::kEditCut).enabled);
    QVERIFY(!router.State(command::kEditFind).enabled);
    // The document's own commands still reach it.
    QVERIFY(router.State(command::kFileSaveAs).enabled);
    harness.Frame().IdleAction();
    QVERIFY(!router.Action(command::kEditCut)->isEnabled());
    // The text pane's pop-up takes the same states, and its actions run the commands.
    harness.Current()->TextPane().setFocus();
    QObject owner;
    QAction *cut = router.PopupAction(command::kEditCut, &owner);
    QCOMPARE(cut->text(), QStringLiteral("Cu&t\tCtrl+X"));
    QVERIFY(cut->isEnabled());
    QAction *newDocument = router.PopupAction(command::kFileNew, &owner);
    newDocument->trigger();
    QCOMPARE(harness.Client().Count(), 2);
}

void DesktopCommands::hintsShowInTheStatusBar() {
    DesktopHarness harness;
    QAction *save = harness.Bench().Router().Action(command::kFileSave);
    save->showStatusText(harness.Frame().menuBar());
    QCOMPARE(harness.Frame().HintLabel()->text(),
             QStringLiteral("Save the active Quindar document to a file"));
    harness.Frame().IdleAction();
    QCOMPARE(harness.Frame().LineGadget()->text(), QStringLiteral("Line: 1"));
}

void DesktopCommands::togglesWriteTheSettingsFile() {
    DesktopHarness harness;
    CommandRouter &router = harness.Bench().Router();
    const QString ini = harness.Folder() + QStringLiteral("/config/Quindar/Quindar.ini");
    QVERIFY(router.State(command::kShowToolBar).checked);
    QVERIFY(router.Execute(command::kShowToolBar));
    QVERIFY(!router.State(command::kShowToolBar).checked);
    QVERIFY(IniText(ini).contains(QStringLiteral("ToolBar=0")));
    QVERIFY(router.State(command::kShowHints).checked);
    QVERIFY(router.Execute(command::kShowHints));
    QCOMPARE(harness.Frame().hintMode, 1);
    QVERIFY(IniText(ini).contains(QStringLiteral("Hints=1")));
    QVERIFY(!router.State(command::kSound).checked);
    QVERIFY(router.Execute(command::kSound));
    QVERIFY(router.State(command::kSound).checked);
    QVERIFY(IniText(ini).contains(QStringLiteral("Sound=1")));
    // Switching sound on is silent; the next command clicks.
    QVERIFY(harness.services.sounds.isEmpty());
    QVERIFY(router.Execute(command::kShowStatusBar));
    QCOMPARE(harness.services.sounds, QStringList{QStringLiteral("QClick.wav")});
    QVERIFY(!harness.Frame().statusBar()->isVisibleTo(&harness.Frame()));
}

void DesktopCommands::contextHelpShowsTheTopicInsteadOfActing() {
    DesktopHarness harness;
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(router.Execute(command::kContextHelp));
    QVERIFY(harness.Bench().contextHelpMode);
    QVERIFY(router.Execute(command::kFileNew));
    QCOMPARE(harness.services.helpTopics, QList<int>{19410});
    QCOMPARE(harness.Client().Count(), 1);
    QVERIFY(!harness.Bench().contextHelpMode);
    QVERIFY(router.Execute(command::kFileNew));
    QCOMPARE(harness.Client().Count(), 2);

    // A click on the text in the mode shows the text pane's topic, and types nothing.
    QVERIFY(router.Execute(command::kContextHelp));
    MathEditorWidget &pane = harness.Current()->TextPane();
    QTest::mouseClick(pane.viewport(), Qt::LeftButton);
    QCOMPARE(harness.services.helpTopics, (QList<int>{19410, 19400}));
    QVERIFY(!harness.Bench().contextHelpMode);
    // The window combo box has its own.
    QVERIFY(router.Execute(command::kContextHelp));
    emit harness.Frame().WindowCombo()->activated(0);
    QCOMPARE(harness.services.helpTopics.back(), 19469);
    QCOMPARE(harness.Current()->Number(), 2);
}

void DesktopCommands::recentFilesAndDroppedFiles() {
    DesktopHarness harness;
    QTemporaryDir folder;
    const QString copy = folder.path() + QStringLiteral("/dropped.qnd");
    QVERIFY(QFile::copy(Sample(), copy));

    // A drop on the documents' background opens the file.
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(copy)});
    QWidget *viewport = harness.Client().viewport();
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    QVERIFY(enter.isAccepted());
    QApplication::sendEvent(viewport, &drop);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
    QCOMPARE(harness.Client().Count(), 2);
    QCOMPARE(harness.Current()->Path(), copy.toStdString());
    // Its data files are looked for beside it.
    QCOMPARE(QString::fromStdString(harness.Current()->Engine().data_folder),
             QFileInfo(copy).absolutePath());

    // A file dropped on the text opens as well, and the text stays as it was.
    const QString second = folder.path() + QStringLiteral("/second.qnd");
    QVERIFY(QFile::copy(Sample(), second));
    QMimeData onText;
    onText.setUrls({QUrl::fromLocalFile(second)});
    MathEditorWidget &pane = harness.Current()->TextPane();
    const QString before = pane.toPlainText();
    QDragEnterEvent enterText(QPoint(5, 5), Qt::CopyAction, &onText, Qt::LeftButton,
                              Qt::NoModifier);
    QApplication::sendEvent(pane.viewport(), &enterText);
    QDropEvent dropText(QPointF(5, 5), Qt::CopyAction, &onText, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pane.viewport(), &dropText);
    QCOMPARE(pane.toPlainText(), before);
    QCOMPARE(harness.Client().Count(), 3);
    QCOMPARE(harness.Current()->Path(), second.toStdString());

    const AppSettings recent(
        (harness.Folder() + QStringLiteral("/config/Quindar/Quindar.ini")).toStdString());
    QCOMPARE(recent.RecentFiles(),
             (std::vector<std::string>{second.toStdString(), copy.toStdString()}));
    QMenu *file = harness.Frame().Menu(0);
    emit file->aboutToShow();
    bool listed = false;
    for (QAction *action : file->actions())
        if (action->text() == QStringLiteral("&2 ") + copy) listed = true;
    QVERIFY(listed);
    // Choosing it again is refused: it is open.
    harness.boxes.Expect(QStringLiteral("This File Is Already Open."), kIdOk);
    harness.Bench().OpenFiles({copy});
    QCOMPARE(harness.Client().Count(), 3);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopCommands::examplesOpenFromTheExamplesFolder() {
    DesktopHarness harness;
    harness.nextOpenFiles = {Sample()};
    QVERIFY(harness.Bench().Router().Execute(command::kExamples));
    QCOMPARE(harness.dialogTitles, QStringList{QStringLiteral("Open Quindar Example File")});
    QCOMPARE(harness.Client().Count(), 2);
    // File > Open takes any number of files.
    QTemporaryDir folder;
    const QString a = folder.path() + QStringLiteral("/a.qnd");
    const QString b = folder.path() + QStringLiteral("/b.qnd");
    QVERIFY(QFile::copy(Sample(), a));
    QVERIFY(QFile::copy(Sample(), b));
    harness.nextOpenFiles = {a, b};
    QVERIFY(harness.Bench().Router().Execute(command::kFileOpen));
    QCOMPARE(harness.dialogTitles.back(), QStringLiteral("Open Quindar File"));
    QCOMPARE(harness.Client().Count(), 4);
}

void DesktopCommands::everyWindowHasAnAccessibleName() {
    DesktopHarness harness;
    MainFrame &frame = harness.Frame();
    QList<QWidget *> widgets = {&frame,
                                frame.ToolBar(),
                                frame.WindowCombo(),
                                frame.statusBar(),
                                &harness.Client(),
                                harness.Current(),
                                &harness.Current()->TextPane()};
    for (QMenu *menu : frame.findChildren<QMenu *>()) widgets << menu;
    for (QLabel *label : frame.statusBar()->findChildren<QLabel *>()) widgets << label;
    for (QMdiSubWindow *window : harness.Client().subWindowList()) widgets << window;
    for (QAction *action : frame.ToolBar()->actions())
        if (!action->isSeparator()) widgets << frame.ToolBar()->widgetForAction(action);
    QStringList unnamed;
    for (QWidget *widget : widgets)
        if (widget->accessibleName().isEmpty())
            unnamed << QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                           widget->objectName() + QLatin1Char('/') +
                           (widget->parentWidget() != nullptr
                                ? widget->parentWidget()->metaObject()->className()
                                : "");
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral(", "))));
    QCOMPARE(harness.Current()->TextPane().accessibleName(), QStringLiteral("Math Editor"));
    QCOMPARE(frame.accessibleName(), QStringLiteral("Quindar"));
    QCOMPARE(harness.Current()->accessibleName(), QStringLiteral("1 - MATH EDITOR"));
}

void DesktopCommands::tutorialsWithoutFolderOrFiles() {
    QTemporaryDir folder;
    const std::string tutorials = folder.path().toStdString() + "/Tutorials/";
    DesktopHarness harness({}, [&](DesktopFolders &folders) { folders.tutorialsDir = tutorials; });
    harness.boxes.Expect(QStringLiteral("The tutorials directory could not be found"), kIdOk);
    QVERIFY(harness.Bench().Router().Execute(command::kTutorials));
    QCOMPARE(harness.dialogsRun, QStringList{QStringLiteral("Download Tutorial File Installer")});
    QVERIFY(harness.dialogTitles.isEmpty());

    QVERIFY(QDir().mkpath(QString::fromStdString(tutorials)));
    harness.boxes.Expect(QStringLiteral("There where no tutorial files found"), kIdOk);
    QVERIFY(harness.Bench().Router().Execute(command::kTutorials));
    QCOMPARE(harness.dialogsRun.size(), 2);
    QVERIFY(harness.started.isEmpty());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopCommands::tutorialsPlayInThePlayerFound() {
    QTemporaryDir folder;
    const QString tutorials = folder.path() + QStringLiteral("/Tutorials/");
    QVERIFY(QDir().mkpath(tutorials));
    for (int n = 0; n < 8; ++n) {
        QFile file(tutorials + QStringLiteral("t%1.wmv").arg(n));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    DesktopHarness harness(
        {}, [&](DesktopFolders &folders) { folders.tutorialsDir = tutorials.toStdString(); });
    const QString ini = harness.Folder() + QStringLiteral("/config/Quindar/Quindar.ini");
    AppSettings(ini.toStdString()).Write(settings::kMediaPlayerPath, "/opt/player");
    harness.nextOpenFiles = {tutorials + QStringLiteral("t1.wmv")};
    QVERIFY(harness.Bench().Router().Execute(command::kTutorials));
    QVERIFY(harness.dialogsRun.isEmpty());
    QCOMPARE(harness.dialogTitles, QStringList{QStringLiteral("Open Quindar Tutorial File")});
    QCOMPARE(harness.started,
             QStringList{QStringLiteral("/opt/player ") + tutorials + QStringLiteral("t1.wmv")});

    // A player that cannot start: 24404, then the search, which the user refuses.
    harness.startSucceeds = false;
    harness.nextOpenFiles = {tutorials + QStringLiteral("t2.wmv")};
    harness.boxes.Expect(
        QStringLiteral("The media player you selected could not open the tutorial"), kIdOk);
    harness.boxes.Expect(QStringLiteral("Would you like to find a compatible Media Player"), kIdNo);
    QVERIFY(harness.Bench().Router().Execute(command::kTutorials));
    QCOMPARE(harness.started.size(), 2);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopCommands::functionKeysForHelp() {
    DesktopHarness harness;
    QWidget *pane = &harness.Current()->TextPane();
    QTest::keyClick(pane, Qt::Key_F1);
    QCOMPARE(harness.services.helpPages, QList<int>{static_cast<int>(HelpPage::Contents)});
    QTest::keyClick(pane, Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(harness.Bench().contextHelpMode);
    QTest::keyClick(pane, Qt::Key_Escape);
    QVERIFY(!harness.Bench().contextHelpMode);
    QVERIFY(harness.services.helpTopics.isEmpty());
}

void DesktopCommands::exitAsksEveryDocumentBeforeClosingAny() {
    DesktopHarness harness;
    TypeText(&harness.Current()->TextPane(), QStringLiteral("1+1"));
    harness.Client().NewDocument();
    TypeText(&harness.Current()->TextPane(), QStringLiteral("2+2"));
    harness.boxes.Expect(QStringLiteral("has changed"), kIdNo);
    harness.boxes.Expect(QStringLiteral("has changed"), kIdCancel);
    QVERIFY(!harness.Frame().close());
    QCOMPARE(harness.Client().Count(), 2);
    // Both are asked again the next time.
    harness.boxes.Expect(QStringLiteral("has changed"), kIdNo);
    harness.boxes.Expect(QStringLiteral("has changed"), kIdNo);
    QVERIFY(harness.Frame().close());
    QCOMPARE(harness.Client().Count(), 0);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopCommands::anUnexpectedBoxFailsTheTest() {
    DesktopHarness harness;
    for (int count = 1; count < 50; ++count) harness.Client().NewDocument();
    // The limit's box was not scripted: the recorder fails the test, and answers at once.
    QEXPECT_FAIL("", "the box of the limit was not scripted", Continue);
    QVERIFY(harness.Client().NewDocument() == nullptr);
    QCOMPARE(harness.boxes.unexpected.size(), 1);
}

void DesktopCommands::toolsOfLaterWindowsArriveThroughTheirHooks() {
    DesktopHarness harness;
    CommandRouter &router = harness.Bench().Router();
    QList<int> documentIds;
    QList<int> clientIds;
    harness.Bench().documentTools = [&documentIds](DocumentWindow &, int id) {
        documentIds << id;
        return true;
    };
    harness.Bench().clientTools = [&clientIds](int id) {
        clientIds << id;
        return true;
    };
    // The list panes belong to the document itself; its tools come through the hook.
    QVERIFY(router.Execute(command::kListsTop));
    QVERIFY(router.State(command::kListsTop).checked);
    QVERIFY(router.Execute(command::kCalculus));
    QVERIFY(router.Execute(command::kOptions));
    QVERIFY(router.Execute(command::kFilePrint));
    // A graph command stays disabled while no graph shows.
    QVERIFY(!router.Execute(command::kPrintGraph));
    QCOMPARE(documentIds, (QList<int>{command::kCalculus}));
    QCOMPARE(clientIds, (QList<int>{command::kOptions, command::kFilePrint}));
}

QTEST_MAIN(DesktopCommands)
#include "test_desktop_commands.moc"
