// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Documents in the desktop program: computing in the text pane, saving and reopening, the
// window limit, numbering, the close questions, damaged files.
#include <QComboBox>
#include <QFile>
#include <QFontDialog>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>

#include "command_table.h"
#include "desktop_harness.h"
#include "document_area.h"
#include "document_font_dialog.h"
#include "document_window.h"
#include "find_replace_dialog.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "parser.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

QString PaneText(DocumentWindow *document) {
    return document->TextPane().toPlainText();
}

QString Sample() {
    return QStringLiteral(QUINDAR_TEST_DATA_DIR "sample.qnd");
}

}  // namespace

class DesktopDocuments : public QObject {
    Q_OBJECT
private slots:
    void startsWithOneUntitledDocument();
    void f4WritesTheAnswerBehindTheLine_data();
    void f4WritesTheAnswerBehindTheLine();
    void enterComputesAndBreaksTheLine();
    void saveIsEnabledAfterTyping();
    void savedDocumentReopensWithTextAndDeclarations();
    void aFailedSaveKeepsTheTextAndTheChanges();
    void aNewFontIsSavedWithTheDocument();
    void findAndReplace();
    void fiftyFirstDocumentIsRefused();
    void numbersAreNeverReused();
    void closingTheCurrentDocumentChoosesTheNext();
    void closingAModifiedTextAsksAndCancelKeepsIt();
    void closingWithOnlyANewVariableAsksAboutAttributes();
    void openingTheSameFileTwiceIsRefused();
    void missingAndDamagedDocumentsAreToldAndTheProgramGoesOn();
    void missingCommandLineFileGivesAnEmptyDocument();
    void comboBoxListsDocumentsAndActivatesThem();
};

void DesktopDocuments::startsWithOneUntitledDocument() {
    DesktopHarness harness;
    QCOMPARE(harness.Client().Count(), 1);
    QCOMPARE(harness.Current()->Caption(), QStringLiteral("1 - MATH EDITOR"));
    QCOMPARE(harness.Client().subWindowList().front()->windowTitle(),
             QStringLiteral("1 - MATH EDITOR"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::f4WritesTheAnswerBehindTheLine_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("sum") << "2+3"
                         << "2+3 = 5";
    QTest::newRow("decimal") << "0.1+0.2"
                             << "0.1+0.2 = 0.3";
    QTest::newRow("old answer replaced") << "2*4 = 7"
                                         << "2*4 = 8";
    QTest::newRow("comment stays") << "1+1 // two"
                                   << "1+1 = 2 // two";
    QTest::newRow("library function") << "CIRCLEAREA[1]"
                                      << "CIRCLEAREA[1] = 3.1415926535898";
}

void DesktopDocuments::f4WritesTheAnswerBehindTheLine() {
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, typed);
    QTest::keyClick(&pane, Qt::Key_F4);
    QCOMPARE(pane.toPlainText(), expected);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::enterComputesAndBreaksTheLine() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("x = 2+3\nx*2\n"));
    QCOMPARE(pane.toPlainText(), QStringLiteral("x = 2+3 = 5\nx*2 = 10\n"));
    QCOMPARE(pane.CaretLineNumber(), 3);
    harness.Frame().IdleAction();
    QCOMPARE(harness.Frame().LineGadget()->text(), QStringLiteral("Line: 3"));
}

void DesktopDocuments::saveIsEnabledAfterTyping() {
    DesktopHarness harness;
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(!router.State(command::kFileSave).enabled);
    TypeText(&harness.Current()->TextPane(), QStringLiteral("1"));
    QVERIFY(router.State(command::kFileSave).enabled);
    harness.Frame().IdleAction();
    QVERIFY(router.Action(command::kFileSave)->isEnabled());
}

void DesktopDocuments::savedDocumentReopensWithTextAndDeclarations() {
    DesktopHarness harness;
    DocumentWindow *opened = harness.Client().OpenFile(Sample());
    QVERIFY(opened != nullptr);
    QCOMPARE(PaneText(opened), QStringLiteral("x = 5\nf[t] = t^2 + x\nf[2] = 9\n"));
    QVERIFY(opened->Engine().is_variable("x"));
    QVERIFY(opened->Engine().is_function("f"));
    QCOMPARE(opened->Caption(), QStringLiteral("MATH EDITOR - ") + Sample().toUpper());

    // Edit: a new variable and a new line, then Save As into the test's folder.
    MathEditorWidget &pane = opened->TextPane();
    pane.moveCursor(QTextCursor::End);
    TypeText(&pane, QStringLiteral("y = f[3]"));
    QTest::keyClick(&pane, Qt::Key_F4);
    const QString target = harness.Folder() + QStringLiteral("/copy.qnd");
    harness.nextSaveFile = target;
    QVERIFY(harness.Bench().Router().Execute(command::kFileSaveAs));
    QVERIFY(!opened->IsDirty());
    QCOMPARE(opened->Caption(), QStringLiteral("MATH EDITOR - ") + target.toUpper());
    const QString text = PaneText(opened);
    QCOMPARE(text, QStringLiteral("x = 5\nf[t] = t^2 + x\nf[2] = 9\ny = f[3] = 14"));

    // Reopened in a second program, the text and the declarations are the same.
    DesktopHarness second;
    DocumentWindow *again = second.Client().OpenFile(target);
    QVERIFY(again != nullptr);
    // The sections start on a line of their own, so a text without a final line break comes
    // back with one.
    QCOMPARE(PaneText(again), text + QLatin1Char('\n'));
    QVERIFY(again->Engine().is_variable("y"));
    QCOMPARE(again->Engine().get_var_value("y").real, 14.0);
    QCOMPARE(QString::fromUtf8(again->Engine().get_func_value("f")), QStringLiteral("t^2+x"));
    QVERIFY(!again->IsDirty());
    QFile saved(target);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().startsWith("x = 5\r\nf[t] = t^2 + x\r\n"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::aFailedSaveKeepsTheTextAndTheChanges() {
    DesktopHarness harness;
    DocumentWindow *document = harness.Current();
    TypeText(&document->TextPane(), QStringLiteral("7*6"));
    QTest::keyClick(&document->TextPane(), Qt::Key_F4);
    // A folder that does not exist stands for any place that cannot be written.
    const QString target = harness.Folder() + QStringLiteral("/missing/folder/work.qnd");
    harness.nextSaveFile = target;
    harness.boxes.Expect(QStringLiteral("File was not saved!"), kIdOk);
    QVERIFY(harness.Bench().Router().Execute(command::kFileSave));
    QVERIFY(document->IsDirty());
    QCOMPARE(document->Caption(), QStringLiteral("1 - MATH EDITOR"));
    QCOMPARE(document->TextPane().toPlainText(), QStringLiteral("7*6 = 42"));
    QVERIFY(harness.Bench().Router().State(command::kFileSave).enabled);
    // The box names the file and the system's reason.
    QCOMPARE(harness.boxes.shown,
             QStringList{QStringLiteral("Save File: File was not saved! (") + target +
                         QStringLiteral(": No such file or directory)")});
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::aNewFontIsSavedWithTheDocument() {
    DesktopHarness harness;
    DocumentWindow *document = harness.Current();
    QCOMPARE(document->TextPane().font().family(), QStringLiteral("Arial"));
    QCOMPARE(document->TextPane().font().pixelSize(), 13);
    QCOMPARE(document->TextPane().font().weight(), QFont::Bold);
    // Cancelled (the harness runs no dialog): nothing changes.
    QVERIFY(harness.Bench().Router().Execute(command::kChooseFont));
    QVERIFY(!document->IsDirty());
    harness.Bench().runDialog = [](QDialog &dialog) {
        auto *fonts = qobject_cast<DocumentFontDialog *>(&dialog);
        QVERIFY(fonts != nullptr);
        QFont chosen(QStringLiteral("Liberation Mono"));
        chosen.setPixelSize(16);
        chosen.setItalic(true);
        fonts->Chooser().setCurrentFont(chosen);
        fonts->accept();
    };
    QVERIFY(harness.Bench().Router().Execute(command::kChooseFont));
    QVERIFY(document->IsDirty());
    QCOMPARE(document->TextPane().font().family(), QStringLiteral("Liberation Mono"));
    QCOMPARE(document->Content().font.Height, -16);
    QCOMPARE(document->Content().font.Weight, 400);
    QCOMPARE(document->Content().font.Italic, 1);

    const QString target = harness.Folder() + QStringLiteral("/font.qnd");
    harness.nextSaveFile = target;
    QVERIFY(harness.Bench().Router().Execute(command::kFileSave));
    QVERIFY(!document->IsDirty());
    DesktopHarness second;
    DocumentWindow *again = second.Client().OpenFile(target);
    QVERIFY(again != nullptr);
    QCOMPARE(again->Content().font.FaceName, std::string("Liberation Mono"));
    QCOMPARE(again->TextPane().font().pixelSize(), 16);
    QVERIFY(again->TextPane().font().italic());
}

void DesktopDocuments::findAndReplace() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    pane.SetDocumentText("x = 1\r\ny = x + X\r\nz = x*2");
    QVERIFY(harness.Bench().Router().Execute(command::kEditFind));
    FindReplaceDialog &dialog = pane.FindDialog();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Find"));
    dialog.SetSearch(QStringLiteral("x"), QStringLiteral("t"), true, true);
    QVERIFY(dialog.FindNext());
    QCOMPARE(pane.textCursor().blockNumber(), 0);
    // F3 in the text goes on to the next match.
    pane.setFocus();
    QTest::keyClick(&pane, Qt::Key_F3);
    QCOMPARE(pane.textCursor().blockNumber(), 1);
    QCOMPARE(pane.textCursor().selectedText(), QStringLiteral("x"));
    QCOMPARE(dialog.ReplaceAll(), 3);
    QCOMPARE(pane.toPlainText(), QStringLiteral("t = 1\ny = t + X\nz = t*2"));
    harness.boxes.Expect(QStringLiteral("Cannot find \"x\"."), kIdOk);
    QVERIFY(!dialog.FindNext());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::fiftyFirstDocumentIsRefused() {
    DesktopHarness harness;
    for (int count = 1; count < kMaximumDocuments; ++count)
        QVERIFY(harness.Client().NewDocument() != nullptr);
    QCOMPARE(harness.Client().Count(), 50);
    harness.boxes.Expect(QStringLiteral("You Have Reached The Math Editor Window Limit!"), kIdOk);
    QVERIFY(harness.Client().NewDocument() == nullptr);
    QCOMPARE(harness.boxes.shown.back(),
             QStringLiteral(
                 "Quindar Client Window Manager: You Have Reached The Math Editor Window Limit!"));
    // Opening a file is refused the same way.
    harness.boxes.Expect(QStringLiteral("You Have Reached The Math Editor Window Limit!"), kIdOk);
    QVERIFY(harness.Client().OpenFile(Sample()) == nullptr);
    QCOMPARE(harness.Client().Count(), 50);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::numbersAreNeverReused() {
    DesktopHarness harness;
    int firsts = 0;
    int lasts = 0;
    harness.Bench().firstDocumentOpened = [&firsts] { ++firsts; };
    harness.Bench().lastDocumentClosed = [&lasts] { ++lasts; };
    DocumentWindow *second = harness.Client().NewDocument();
    QCOMPARE(second->Caption(), QStringLiteral("2 - MATH EDITOR"));
    QVERIFY(harness.Client().CloseDocument(second));
    QCOMPARE(harness.Client().Count(), 1);
    QCOMPARE(harness.Client().NewDocument()->Caption(), QStringLiteral("3 - MATH EDITOR"));
    QCOMPARE(firsts, 0);
    // Closing all and opening again: the last and the first of a set are told.
    QVERIFY(harness.Client().CloseAllDocuments());
    QCOMPARE(lasts, 1);
    QCOMPARE(harness.Client().NewDocument()->Caption(), QStringLiteral("4 - MATH EDITOR"));
    QCOMPARE(firsts, 1);
}

void DesktopDocuments::closingTheCurrentDocumentChoosesTheNext() {
    DesktopHarness harness;
    DocumentArea &client = harness.Client();
    client.NewDocument();
    client.NewDocument();
    // Of 1, 2, 3 the middle one closes: the next one, 3, becomes current.
    client.Activate(1);
    QCOMPARE(client.Current()->Number(), 2);
    QVERIFY(client.CloseDocument(client.Current()));
    QTest::qWait(1);
    QCOMPARE(client.Current()->Number(), 3);
    // The last one closes: the one before it becomes current.
    QVERIFY(client.CloseDocument(client.Current()));
    QTest::qWait(1);
    QCOMPARE(client.Current()->Number(), 1);
}

void DesktopDocuments::closingAModifiedTextAsksAndCancelKeepsIt() {
    DesktopHarness harness;
    DocumentWindow *document = harness.Current();
    TypeText(&document->TextPane(), QStringLiteral("2+2"));
    harness.boxes.Expect(QStringLiteral("The text in the Math Editor file has changed."),
                         kIdCancel);
    QVERIFY(!harness.Client().CloseDocument(document));
    QCOMPARE(harness.Client().Count(), 1);
    harness.boxes.Expect(QStringLiteral("Do you want to save the changes?"), kIdNo);
    QVERIFY(harness.Client().CloseDocument(document));
    QCOMPARE(harness.Client().Count(), 0);
    QCOMPARE(harness.boxes.shown.front(),
             QStringLiteral("Quindar: The text in the Math Editor file has changed.\n\nDo you want "
                            "to save the changes?"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::closingWithOnlyANewVariableAsksAboutAttributes() {
    DesktopHarness harness;
    DocumentWindow *document = harness.Client().OpenFile(Sample());
    QVERIFY(document != nullptr);
    // A variable declared without touching the text: the engine's declarations changed.
    document->Engine().eval_exp("z = 4", false, true);
    QVERIFY(!document->TextPane().document()->isModified());
    harness.boxes.Expect(
        QStringLiteral("Attributes in the ' ") + Sample() + QStringLiteral(" ' file have changed!"),
        kIdCancel);
    QVERIFY(!harness.Client().CloseDocument(document));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::openingTheSameFileTwiceIsRefused() {
    DesktopHarness harness;
    QVERIFY(harness.Client().OpenFile(Sample()) != nullptr);
    harness.boxes.Expect(QStringLiteral("This File Is Already Open."), kIdOk);
    // The same file in other capitals: refused before its existence is looked at.
    const QString otherCase = Sample().left(Sample().size() - 10) + QStringLiteral("SAMPLE.QND");
    QVERIFY(harness.Client().OpenFile(otherCase) == nullptr);
    QCOMPARE(harness.Client().Count(), 2);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::missingAndDamagedDocumentsAreToldAndTheProgramGoesOn() {
    DesktopHarness harness;
    const QString missing = harness.Folder() + QStringLiteral("/none.qnd");
    harness.boxes.Expect(QStringLiteral("This File Can Not Be Found."), kIdOk);
    QVERIFY(harness.Client().OpenFile(missing) == nullptr);

    const QString damaged = QStringLiteral(QUINDAR_TEST_DATA_DIR "damaged.qnd");
    harness.boxes.Expect(QStringLiteral("damaged.qnd"), kIdOk);
    harness.boxes.Expect(QStringLiteral("Unable to read file"), kIdOk);
    QVERIFY(harness.Client().OpenFile(damaged) == nullptr);
    QCOMPARE(harness.Client().Count(), 1);

    // The program goes on: the first document still computes.
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("6*7"));
    QTest::keyClick(&pane, Qt::Key_F4);
    QCOMPARE(pane.toPlainText(), QStringLiteral("6*7 = 42"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DesktopDocuments::missingCommandLineFileGivesAnEmptyDocument() {
    QTemporaryDir folder;
    const std::string missing = folder.path().toStdString() + "/gone file.qnd";
    DesktopHarness harness({missing}, {}, {{QStringLiteral("Could Not Be Found!"), kIdOk}});
    QCOMPARE(
        harness.boxes.shown,
        QStringList{QStringLiteral("Find File: The Command Line File \"%1\" Could Not Be Found!")
                        .arg(QString::fromStdString(missing))});
    QCOMPARE(harness.Client().Count(), 1);
    QCOMPARE(harness.Current()->Caption(), QStringLiteral("1 - MATH EDITOR"));
}

void DesktopDocuments::comboBoxListsDocumentsAndActivatesThem() {
    DesktopHarness harness;
    harness.Client().OpenFile(Sample());
    QComboBox *combo = harness.Frame().WindowCombo();
    QVERIFY(combo->isEnabled());
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(0), QStringLiteral("1 - MATH EDITOR"));
    QCOMPARE(combo->itemText(1), QStringLiteral("SAMPLE.QND"));
    QCOMPARE(combo->currentIndex(), 1);
    harness.Client().Activate(0);
    QCOMPARE(harness.Current()->Number(), 1);
    QVERIFY(harness.Client().subWindowList().back()->isMinimized());

    // The Window menu lists them too, the current one checked.
    QMenu *windowMenu = harness.Frame().Menu(6);
    emit windowMenu->aboutToShow();
    QStringList listed;
    for (QAction *action : windowMenu->actions())
        if (action->text().startsWith(QLatin1Char('&')) && action->text().at(1).isDigit())
            listed << action->text() + (action->isChecked() ? QStringLiteral(" *") : QString());
    QCOMPARE(listed, (QStringList{QStringLiteral("&1 1 - MATH EDITOR *"),
                                  QStringLiteral("&2 MATH EDITOR - ") + Sample().toUpper()}));
    windowMenu->actions().back()->trigger();
    QCOMPARE(harness.Current()->Number(), 0);
}

QTEST_MAIN(DesktopDocuments)
#include "test_desktop_documents.moc"
