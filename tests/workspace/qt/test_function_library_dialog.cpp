// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Function Library dialog on the desktop: opening from the command, the lists, Search and
// Back, the buttons a name offers, Insert into the Math Editor with the parameters selected,
// Edit F[x] through the desktop's default text editor, and a user library that cannot be read.
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>

#include "calculus_tools.h"
#include "client_tools.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_window.h"
#include "function_library_browser.h"
#include "function_library_dialog.h"
#include "library_editor_window.h"
#include "math_editor_widget.h"
#include "user_library.h"
#include "workbench.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

FunctionLibraryDialog &OpenLibrary(DesktopHarness &harness) {
    harness.Bench().Router().Execute(command::kFunctionLibrary);
    FunctionLibraryDialog *dialog = client_tools_of(harness.Bench())->FunctionLibrary();
    Q_ASSERT(dialog != nullptr);
    return *dialog;
}

template <typename Widget>
Widget *Named(QWidget &parent, const QString &name) {
    for (Widget *widget : parent.findChildren<Widget *>())
        if (widget->accessibleName() == name) return widget;
    return nullptr;
}

QPushButton *Button(QWidget &parent, const QString &name) {
    return Named<QPushButton>(parent, name);
}

QString LineText(MathEditorWidget &pane) {
    return pane.textCursor().block().text();
}

// Points the XDG folders at a temporary home, with one desktop entry for text files.
void UseDesktop(const QTemporaryDir &home, const QString &exec) {
    const QString applications = home.path() + QStringLiteral("/data/applications");
    QDir().mkpath(applications);
    QDir().mkpath(home.path() + QStringLiteral("/config"));
    QFile entry(applications + QStringLiteral("/test-editor.desktop"));
    QVERIFY(entry.open(QIODevice::WriteOnly));
    entry.write(QStringLiteral("[Desktop Entry]\nType=Application\nName=Test Editor\nExec=%1\n")
                    .arg(exec)
                    .toUtf8());
    entry.close();
    QFile list(home.path() + QStringLiteral("/config/mimeapps.list"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("[Default Applications]\ntext/plain=missing.desktop;test-editor.desktop;\n");
    list.close();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path() + QStringLiteral("/config")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(home.path() + QStringLiteral("/none")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path() + QStringLiteral("/data")));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(home.path() + QStringLiteral("/none")));
}

}  // namespace

class FunctionLibraryWindow : public QObject {
    Q_OBJECT
private slots:
    void init();
    void opensModelessWithCategoriesInOrder();
    void searchSwitchesToAllAndBackReturns();
    void buttonsFollowTheName_data();
    void buttonsFollowTheName();
    void insertSelectsTheParameters_data();
    void insertSelectsTheParameters();
    void graphSetupTakesOrRefuses_data();
    void graphSetupTakesOrRefuses();
    void noInsertIntoTheGraphView();
    void helpButtonsShowTheirTopics();
    void editStartsTheDesktopEditorWithoutWaiting();
    void editWithoutAnEditorOpensTheBuiltInWindow();
    void editWithoutUserLibraryTellsSo();
    void unreadableUserLibraryIsToldAndTheDialogWorks();

private:
    QTemporaryDir desktop;
};

void FunctionLibraryWindow::init() {
    UseDesktop(desktop, QStringLiteral("/bin/true --new-window %F"));
}

void FunctionLibraryWindow::opensModelessWithCategoriesInOrder() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QVERIFY(dialog.isVisible());
    QVERIFY(!dialog.isModal());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Mathematical Function Library"));
    // The same dialog comes to the front on a second command.
    harness.Bench().Router().Execute(command::kFunctionLibrary);
    QCOMPARE(client_tools_of(harness.Bench())->FunctionLibrary(), &dialog);

    auto *categories = Named<QListWidget>(dialog, QStringLiteral("Categories"));
    QVERIFY(categories != nullptr);
    QStringList shown;
    for (int row = 0; row < categories->count(); ++row) shown << categories->item(row)->text();
    const QStringList embedded = {"ALL",         "COMMON",   "GENERAL MATH", "TRIGONOMETRIC",
                                  "STATISTICAL", "COMPLEX",  "LOGICAL",      "ELECTRICAL",
                                  "TRUNC&ROUND", "CONSTANTS"};
    QCOMPARE(shown.mid(0, embedded.size()), embedded);
    QCOMPARE(shown.mid(embedded.size(), 2), (QStringList{"GEOMETRY", "ALGEBRA"}));
    QCOMPARE(categories->currentRow(), 0);
    auto *names = Named<QListWidget>(dialog, QStringLiteral("Functions"));
    QCOMPARE(names->currentItem()->text(), QStringLiteral("SQRT"));
    QCOMPARE(Named<QLabel>(dialog, QStringLiteral("Prototype"))->text(),
             QStringLiteral("SQRT[number]"));
    QVERIFY(Named<QLabel>(dialog, QStringLiteral("Description"))
                ->text()
                .startsWith("Returns the square root"));
    for (const char *group : {"Function Prototype", "Function Description"})
        QVERIFY(Named<QGroupBox>(dialog, QString::fromLatin1(group)) != nullptr);
    for (QWidget *child : dialog.findChildren<QWidget *>())
        if (child->isVisibleTo(&dialog) && !child->inherits("QScrollBar") &&
            child->parent() == &dialog)
            QVERIFY2(!child->accessibleName().isEmpty(), child->metaObject()->className());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::searchSwitchesToAllAndBackReturns() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    auto *categories = Named<QListWidget>(dialog, QStringLiteral("Categories"));
    auto *names = Named<QListWidget>(dialog, QStringLiteral("Functions"));
    auto *search = Named<QLineEdit>(dialog, QStringLiteral("Search"));
    QPushButton *back = Button(dialog, QStringLiteral("Back"));
    categories->setCurrentItem(
        categories->findItems(QStringLiteral("COMPLEX"), Qt::MatchExactly).front());
    QCOMPARE(names->currentItem()->text(), QStringLiteral("REAL"));
    QVERIFY(!back->isEnabled());
    QTest::keyClicks(search, QStringLiteral("circlea"));
    QCOMPARE(categories->currentItem()->text(), QStringLiteral("ALL"));
    QCOMPARE(names->currentItem()->text(), QStringLiteral("CIRCLEAREA"));
    QCOMPARE(Named<QLabel>(dialog, QStringLiteral("Prototype"))->text(),
             QStringLiteral("CIRCLEAREA[r]=PI*r^2"));
    QVERIFY(!back->isEnabled());
    // Moving away offers Back; Back returns to the found name and is disabled again.
    names->setCurrentRow(0);
    QVERIFY(back->isEnabled());
    QTest::mouseClick(back, Qt::LeftButton);
    QCOMPARE(names->currentItem()->text(), QStringLiteral("CIRCLEAREA"));
    QCOMPARE(categories->currentItem()->text(), QStringLiteral("ALL"));
    QVERIFY(!back->isEnabled());
    // Enter in the Search box presses no button: the dialog stays.
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::buttonsFollowTheName_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("helpShown");
    QTest::addColumn<bool>("solveEnabled");
    QTest::newRow("embedded") << "POW" << true << true;
    QTest::newRow("constant") << "PI" << false << false;
    QTest::newRow("library") << "QUADROOT1" << false << true;
}

void FunctionLibraryWindow::buttonsFollowTheName() {
    QFETCH(QString, name);
    QFETCH(bool, helpShown);
    QFETCH(bool, solveEnabled);
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QTest::keyClicks(Named<QLineEdit>(dialog, QStringLiteral("Search")), name);
    QCOMPARE(QString::fromStdString(dialog.Browser().CurrentName()), name);
    QCOMPARE(Button(dialog, QStringLiteral("Help F[x]"))->isVisibleTo(&dialog), helpShown);
    QCOMPARE(Button(dialog, QStringLiteral("Solve F[x]"))->isEnabled(), solveEnabled);
    // Solve F[x] opens the current document's Function Solver.
    QTest::mouseClick(Button(dialog, QStringLiteral("Solve F[x]")), Qt::LeftButton);
    QCOMPARE(FindFunctionSolver(*harness.Current()) != nullptr, solveEnabled);
    QString prototype;
    dialog.solve = [&](const QString &text, const QString &) { prototype = text; };
    QTest::mouseClick(Button(dialog, QStringLiteral("Solve F[x]")), Qt::LeftButton);
    QCOMPARE(prototype.isEmpty(), !solveEnabled);
}

void FunctionLibraryWindow::insertSelectsTheParameters_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("selected");
    QTest::newRow("embedded, one parameter") << "SQRT"
                                             << "y = SQRT[number]"
                                             << "number";
    QTest::newRow("embedded, two parameters") << "POW"
                                              << "y = POW[base,exponent]"
                                              << "base,exponent";
    QTest::newRow("library, cut before the body") << "CIRCLEAREA"
                                                  << "y = CIRCLEAREA[r]"
                                                  << "r";
    QTest::newRow("constant, nothing to select") << "PI"
                                                 << "y = PI"
                                                 << "";
}

void FunctionLibraryWindow::insertSelectsTheParameters() {
    QFETCH(QString, name);
    QFETCH(QString, line);
    QFETCH(QString, selected);
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("1+1\ny = "));
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QTest::keyClicks(Named<QLineEdit>(dialog, QStringLiteral("Search")), name);
    QTest::mouseClick(Button(dialog, QStringLiteral("Insert F[x]")), Qt::LeftButton);
    QCOMPARE(LineText(pane), line);
    QCOMPARE(pane.textCursor().selectedText(), selected);
    QVERIFY(pane.toPlainText().startsWith(QStringLiteral("1+1")));
    QVERIFY(dialog.isVisible());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::graphSetupTakesOrRefuses_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::newRow("one parameter") << "CIRCLEAREA"
                                   << "";
    QTest::newRow("two parameters") << "NTHROOT"
                                    << "";
    QTest::newRow("three parameters")
        << "QUADROOT1"
        << "Function \"QUADROOT1[a,b,c]\" Has Too Many Parameters To Be Graphed.";
    QTest::newRow("constant") << "PI"
                              << "The Constant \"PI\" Can Not Be Graphed, Please Choose A Function "
                                 "From The Function Library.";
}

void FunctionLibraryWindow::graphSetupTakesOrRefuses() {
    QFETCH(QString, name);
    QFETCH(QString, message);
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QStringList graphed;
    dialog.graphSetupOpen = [] { return true; };
    dialog.addToGraphSetup = [&](const QString &text) { graphed << text; };
    QTest::keyClicks(Named<QLineEdit>(dialog, QStringLiteral("Search")), name);
    if (!message.isEmpty()) harness.boxes.Expect(message, kIdOk);
    QTest::mouseClick(Button(dialog, QStringLiteral("Insert F[x]")), Qt::LeftButton);
    QCoreApplication::processEvents();
    // Graph Setup takes the function and the dialog closes; a refusal keeps it open.
    QCOMPARE(graphed.isEmpty(), !message.isEmpty());
    QCOMPARE(client_tools_of(harness.Bench())->FunctionLibrary() != nullptr &&
                 client_tools_of(harness.Bench())->FunctionLibrary()->isVisible(),
             !message.isEmpty());
    QCOMPARE(harness.Current()->TextPane().toPlainText(), QString());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::noInsertIntoTheGraphView() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    dialog.graphViewShowing = [] { return true; };
    harness.boxes.Expect(
        QStringLiteral("A Function Can Not Be Inserted Into The \"Graph Window\" Directly."),
        kIdOk);
    QTest::mouseClick(Button(dialog, QStringLiteral("Insert F[x]")), Qt::LeftButton);
    QCOMPARE(harness.Current()->TextPane().toPlainText(), QString());
    QVERIFY(dialog.isVisible());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::helpButtonsShowTheirTopics() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QTest::keyClicks(Named<QLineEdit>(dialog, QStringLiteral("Search")), QStringLiteral("LN"));
    QTest::mouseClick(Button(dialog, QStringLiteral("Help F[x]")), Qt::LeftButton);
    QTest::mouseClick(Button(dialog, QStringLiteral("Help")), Qt::LeftButton);
    // LN is the embedded function of index 1.
    QCOMPARE(harness.services.helpTopics, (QList<int>{20001, 19404}));
}

void FunctionLibraryWindow::editStartsTheDesktopEditorWithoutWaiting() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    const QString library =
        QString::fromStdString(harness.Bench().Folders().userLibraryDir + kUserLibraryName);
    QTest::mouseClick(Button(dialog, QStringLiteral("Edit F[x]")), Qt::LeftButton);
    QCOMPARE(harness.started, QStringList{QStringLiteral("/bin/true --new-window ") + library});
    QVERIFY(dialog.findChildren<LibraryEditorWindow *>().isEmpty());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::editWithoutAnEditorOpensTheBuiltInWindow() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QTemporaryDir nothing;
    const QByteArray path = qgetenv("PATH");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(nothing.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(nothing.path()));
    qputenv("PATH", QFile::encodeName(nothing.path()));
    QTest::mouseClick(Button(dialog, QStringLiteral("Edit F[x]")), Qt::LeftButton);
    qputenv("PATH", path);
    QVERIFY(harness.started.isEmpty());
    const auto windows = dialog.findChildren<LibraryEditorWindow *>();
    QCOMPARE(windows.size(), 1);
    LibraryEditorWindow &editor = *windows.front();
    QVERIFY(editor.isVisible());
    QVERIFY(editor.Text().toPlainText().contains(QLatin1Char(';')));
    // What the user saves lands in the user library, with CR LF line ends.
    editor.Text().appendPlainText(QStringLiteral("[MINE]\nTWICE[x]=2*x\nTWICE=Twice x."));
    QVERIFY(editor.Save());
    QFile saved(
        QString::fromStdString(harness.Bench().Folders().userLibraryDir + kUserLibraryName));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().endsWith("[MINE]\r\nTWICE[x]=2*x\r\nTWICE=Twice x."));
    editor.close();
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::editWithoutUserLibraryTellsSo() {
    DesktopHarness harness;
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    const QString library =
        QString::fromStdString(harness.Bench().Folders().userLibraryDir + kUserLibraryName);
    QVERIFY(QFile::remove(library));
    harness.boxes.Expect(QStringLiteral("The Quindar Function Library File \" ") + library +
                             QStringLiteral(" \" Could Not Be Opened! If The File Exist's, Check "
                                            "Your System Level Access Privilages."),
                         kIdOk);
    QTest::mouseClick(Button(dialog, QStringLiteral("Edit F[x]")), Qt::LeftButton);
    QVERIFY(harness.started.isEmpty());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void FunctionLibraryWindow::unreadableUserLibraryIsToldAndTheDialogWorks() {
    DesktopHarness harness;
    const QString library =
        QString::fromStdString(harness.Bench().Folders().userLibraryDir + kUserLibraryName);
    // A folder in the file's place cannot be read, whoever runs the test.
    QVERIFY(QFile::remove(library));
    QVERIFY(QDir().mkpath(library));
    harness.boxes.Expect(QStringLiteral("The Quindar Function Library File \" ") + library +
                             QStringLiteral(" \" Could Not Be Opened!"),
                         kIdOk);
    FunctionLibraryDialog &dialog = OpenLibrary(harness);
    QVERIFY(dialog.isVisible());
    auto *categories = Named<QListWidget>(dialog, QStringLiteral("Categories"));
    QVERIFY(!categories->findItems(QStringLiteral("GEOMETRY"), Qt::MatchExactly).isEmpty());
    QTest::keyClicks(Named<QLineEdit>(dialog, QStringLiteral("Search")),
                     QStringLiteral("QUADROOT2"));
    QCOMPARE(Named<QLabel>(dialog, QStringLiteral("Prototype"))->text(),
             QStringLiteral("QUADROOT2[a,b,c]=(-b-SQRT[b^2-4*a*c])/(2*a)"));
    QCOMPARE(harness.boxes.shown.size(), 1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

QTEST_MAIN(FunctionLibraryWindow)
#include "test_function_library_dialog.moc"
