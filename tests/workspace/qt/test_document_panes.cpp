// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A document's panes at work: Compute All, the Variables and Functions lists with their
// Delete key and questions, the two managers, the calculator bar and the lists' placement.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFontDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QSplitter>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>

#include "calculator_bar.h"
#include "calculator_keys.h"
#include "calculus_tools.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_area.h"
#include "document_font_dialog.h"
#include "document_panes.h"
#include "document_window.h"
#include "engine_list_pane.h"
#include "find_replace_dialog.h"
#include "function_solver_dialog.h"
#include "main_frame.h"
#include "manager_dialog.h"
#include "math_editor_widget.h"
#include "message_boxes.h"
#include "parser.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

QStringList Rows(EngineListPane &list) {
    QStringList rows;
    for (int row = 0; row < list.topLevelItemCount(); ++row)
        rows << list.topLevelItem(row)->text(0);
    return rows;
}

void SelectRows(EngineListPane &list, std::initializer_list<int> rows) {
    list.clearSelection();
    for (const int row : rows) list.topLevelItem(row)->setSelected(true);
}

// Replaces the text of one line, as typing over it would.
void ReplaceLine(MathEditorWidget &pane, int line, const QString &text) {
    QTextCursor cursor(pane.document()->findBlockByNumber(line));
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

// Runs a manager with the script instead of a user; the dialog stays shown meanwhile.
void ScriptManagers(DesktopHarness &harness, std::function<void(ManagerDialog &)> script) {
    harness.Bench().runDialog = [script](QDialog &dialog) {
        auto *manager = qobject_cast<ManagerDialog *>(&dialog);
        QVERIFY(manager != nullptr);
        manager->show();
        script(*manager);
        manager->hide();
    };
}

CalculatorBar *Bar(DesktopHarness &harness) {
    return harness.Frame().findChild<CalculatorBar *>();
}

const CalculatorKey &KeyWithFace(std::string_view face) {
    for (const CalculatorKey &key : CalculatorKeys())
        if (key.face == face) return key;
    qFatal("no such key");
}

}  // namespace

class DocumentPanesTest : public QObject {
    Q_OBJECT
private slots:
    void computeAllFollowsAnEditedFirstLineInOneUndoStep();
    void computeAllReportsFailedLinesOnceAndKeepsThem();
    void variablesListShowsAComputedVariable();
    void anOpenedDocumentListsItsDeclarations();
    void aDocumentTakingTheFocusRefillsItsLists();
    void deleteKeyOnRowsTwoAndThreeDeletesThoseTwo();
    void variableUsedInAFunctionIsAskedAbout();
    void popupCommandsNeedOneSelectedLine();
    void popupMenusListTheirCommands();
    void headerClickAndDoubleClickOpenTheManager();
    void variablesManagerRefusesThenAccepts();
    void functionManagerRefusesThenAccepts();
    void managerTellsWhatTheClosedListCannotShow();
    void deleteAllAndInsertFromTheLists();
    void enterNeverClosesAManager();
    void typingAPrefixSelectsTheEntry();
    void calculatorKeyActsOnTheEditorWithoutFocus();
    void calculatorKeyKeepsTheFocusInTheEditor();
    void listsMoveToTheTopAndBackKeepingTheText();
    void aColouredFontIsToldAndStaysBlack();
    void showIncrementalsActsOnEveryDocument();
    void screenshotOfADocumentWithListsAndCalculator();
};

void DocumentPanesTest::computeAllFollowsAnEditedFirstLineInOneUndoStep() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("a = 1+1\nb = a*3\nb+a\nF[x] = x*a\nF[2]"));
    QTest::keyClick(&pane, Qt::Key_F4);
    const QString computed = pane.toPlainText();
    QCOMPARE(computed, QStringLiteral("a = 1+1 = 2\nb = a*3 = 6\nb+a = 8\nF[x] = x*a\nF[2] = 4"));

    ReplaceLine(pane, 0, QStringLiteral("a = 10"));
    const QString edited = pane.toPlainText();
    QVERIFY(harness.Bench().Router().Execute(command::kComputeAll));
    QCOMPARE(pane.toPlainText(),
             QStringLiteral("a = 10\nb = a*3 = 30\nb+a = 40\nF[x] = x*a\nF[2] = 20"));
    QCOMPARE(Rows(harness.Current()->Panes().VariablesList()), (QStringList{"a = 10", "b = 30"}));
    pane.undo();
    QCOMPARE(pane.toPlainText(), edited);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::computeAllReportsFailedLinesOnceAndKeepsThem() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    pane.setPlainText(QStringLiteral("2+2\n3*/4\n5+\n1+1"));
    harness.boxes.Expect(QStringLiteral("2 lines could not be computed."), kIdOk);
    QVERIFY(harness.Bench().Router().Execute(command::kComputeAll));
    QCOMPARE(pane.toPlainText(), QStringLiteral("2+2 = 4\n3*/4\n5+\n1+1 = 2"));
    QCOMPARE(harness.boxes.shown.size(), 1);
    QVERIFY(harness.boxes.shown.front().contains(QStringLiteral("Line 2: ")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::variablesListShowsAComputedVariable() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    EngineListPane &variables = harness.Current()->Panes().VariablesList();
    QCOMPARE(variables.topLevelItemCount(), 0);
    TypeText(&pane, QStringLiteral("x = 5"));
    QTest::keyClick(&pane, Qt::Key_F4);
    QCOMPARE(Rows(variables), QStringList{"x = 5"});
    QCOMPARE(variables.headerItem()->text(0), QStringLiteral("Variables"));
    QCOMPARE(harness.Current()->Panes().FunctionsList().headerItem()->text(0),
             QStringLiteral("Functions"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::anOpenedDocumentListsItsDeclarations() {
    DesktopHarness harness;
    DocumentWindow *opened =
        harness.Client().OpenFile(QStringLiteral(QUINDAR_TEST_DATA_DIR "sample.qnd"));
    QVERIFY(opened != nullptr);
    QCOMPARE(Rows(opened->Panes().VariablesList()), QStringList{"x = 5"});
    QCOMPARE(Rows(opened->Panes().FunctionsList()), QStringList{"f[t] = t^2+x"});
    // Each document has its own engine and lists.
    QCOMPARE(harness.Client().At(0)->Panes().VariablesList().topLevelItemCount(), 0);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::aDocumentTakingTheFocusRefillsItsLists() {
    DesktopHarness harness;
    DocumentWindow *first = harness.Current();
    harness.Client().NewDocument();
    QVERIFY(harness.Current() != first);
    // Declared behind the lists' back: only one of their events shows it.
    first->Engine().eval_exp("hidden = 3", true, false);
    QCOMPARE(first->Panes().VariablesList().topLevelItemCount(), 0);
    harness.Client().Activate(0);
    QCOMPARE(harness.Current(), first);
    QCOMPARE(Rows(first->Panes().VariablesList()), QStringList{"hidden = 3"});
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::deleteKeyOnRowsTwoAndThreeDeletesThoseTwo() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("a = 1\nb = 2\nc = 3\nd = 4\n"));
    EngineListPane &variables = harness.Current()->Panes().VariablesList();
    QCOMPARE(variables.topLevelItemCount(), 4);
    // The control may hand the selection over in any order.
    SelectRows(variables, {2, 1});
    QTest::keyClick(&variables, Qt::Key_Delete);
    QCOMPARE(Rows(variables), (QStringList{"a = 1", "d = 4"}));
    QCOMPARE(harness.Current()->Engine().variables.count(), 2);
    // One line is asked about.
    SelectRows(variables, {1});
    harness.boxes.Expect(QStringLiteral("Are you sure that you want to delete 'd'!"), kIdNo);
    QTest::keyClick(&variables, Qt::Key_Delete);
    QCOMPARE(Rows(variables), (QStringList{"a = 1", "d = 4"}));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::variableUsedInAFunctionIsAskedAbout() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("k = 2\nm = 3\nG[x] = x*k\n"));
    EngineListPane &variables = harness.Current()->Panes().VariablesList();
    QCOMPARE(Rows(harness.Current()->Panes().FunctionsList()), QStringList{"G[x] = x*k"});
    // Even in a bulk delete, which otherwise asks nothing.
    SelectRows(variables, {0, 1});
    harness.boxes.Expect(QStringLiteral("Variable ' k ' is used in the function body of ' G[x] '"),
                         kIdNo);
    QTest::keyClick(&variables, Qt::Key_Delete);
    QCOMPARE(Rows(variables), QStringList{"k = 2"});
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::popupCommandsNeedOneSelectedLine() {
    DesktopHarness harness;
    TypeText(&harness.Current()->TextPane(), QStringLiteral("a = 1\nb = 2\n"));
    EngineListPane &variables = harness.Current()->Panes().VariablesList();
    CommandState state;
    SelectRows(variables, {0, 1});
    QVERIFY(variables.CommandEnabler(31584, state));
    QVERIFY(!state.enabled);
    SelectRows(variables, {1});
    QVERIFY(variables.CommandEnabler(31579, state));
    QVERIFY(state.enabled);
    // Insert puts the name at the caret.
    QVERIFY(variables.CommandHandler(31579));
    QVERIFY(harness.Current()->TextPane().toPlainText().endsWith(QStringLiteral("\nb")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::headerClickAndDoubleClickOpenTheManager() {
    DesktopHarness harness;
    TypeText(&harness.Current()->TextPane(), QStringLiteral("a = 1\nb = 2\nQ[x] = x+b\n"));
    QStringList opened;
    ScriptManagers(harness, [&opened](ManagerDialog &manager) {
        opened << manager.windowTitle() + QStringLiteral(": ") + manager.NameBox().currentText() +
                      QStringLiteral(" = ") + manager.ValueBox().text();
    });
    DocumentPanes &panes = harness.Current()->Panes();
    EngineListPane &variables = panes.VariablesList();
    // No selection: the manager opens empty; one selected line: with its entry.
    emit variables.header()->sectionClicked(0);
    SelectRows(variables, {1});
    emit variables.header()->sectionClicked(0);
    const QRect row = variables.visualItemRect(variables.topLevelItem(0));
    QTest::mouseDClick(variables.viewport(), Qt::LeftButton, {}, row.center());
    QVERIFY(!variables.openedByDoubleClick);
    EngineListPane &functions = panes.FunctionsList();
    SelectRows(functions, {0});
    emit functions.header()->sectionClicked(0);
    QCOMPARE(opened, (QStringList{"Variables Manager:  = ", "Variables Manager: b = 2",
                                  "Variables Manager: a = 1", "Functions Manager: Q(x) = x+b"}));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::popupMenusListTheirCommands() {
    DesktopHarness harness;
    TypeText(&harness.Current()->TextPane(),
             QStringLiteral("a = 1\nb = 2\nW[x] = x\nV[t,u] = t*u\n"));
    DocumentPanes &panes = harness.Current()->Panes();
    const auto menuOf = [](EngineListPane &list) {
        QStringList items;
        QTimer::singleShot(0, [&items] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            for (QAction *action : menu->actions()) {
                if (action->isSeparator()) continue;
                QString text = action->text();
                if (!action->isEnabled()) text += QStringLiteral(" (off)");
                if (action->isChecked()) text += QStringLiteral(" (on)");
                items << text;
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5),
                                list.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(list.viewport(), &event);
        return items;
    };
    SelectRows(panes.VariablesList(), {0, 1});
    QCOMPARE(menuOf(panes.VariablesList()),
             (QStringList{"&Delete Variable... (off)", "Delete &All Variables...",
                          "&Insert Variable (off)", "&Variables Manager...",
                          "Precision/&Format... (off)", "&Show Incrementals (on)",
                          "&Print Variables... (off)"}));
    SelectRows(panes.FunctionsList(), {0});
    QCOMPARE(menuOf(panes.FunctionsList()),
             (QStringList{"&Delete Function...", "Delete &All Functions...", "&Insert Function",
                          "&Function Manager...", "Function &Solver...", "&Calculus Utility...",
                          "&Print Functions... (off)"}));
    // The Function Solver opens on the selected function, and while open follows a click.
    QVERIFY(panes.FunctionsList().CommandHandler(30590));
    FunctionSolverDialog *solver = FindFunctionSolver(*harness.Current());
    QVERIFY(solver != nullptr);
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("x"));
    EngineListPane &functions = panes.FunctionsList();
    QTest::mouseClick(functions.viewport(), Qt::LeftButton, {},
                      functions.visualItemRect(functions.topLevelItem(1)).center());
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("t"));
    QCOMPARE(solver->BoxLabel(1)->text(), QStringLiteral("u"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::variablesManagerRefusesThenAccepts() {
    DesktopHarness harness;
    ScriptManagers(harness, [&harness](ManagerDialog &manager) {
        manager.NameBox().setEditText(QStringLiteral("1abc"));
        manager.ValueBox().setText(QStringLiteral("2"));
        harness.boxes.Expect(
            QStringLiteral("The first character of a variable can not be a number!"), kIdOk);
        manager.AddEdit();
        QCOMPARE(manager.NameBox().lineEdit()->selectedText(), QStringLiteral("1abc"));

        manager.NameBox().setEditText(QStringLiteral("a b"));
        harness.boxes.Expect(QStringLiteral("No spaces are allowed in the variables name!"), kIdOk);
        manager.AddEdit();

        manager.NameBox().setEditText(QStringLiteral("y"));
        manager.ValueBox().setText(QStringLiteral("1 2"));
        harness.boxes.Expect(
            QStringLiteral("No spaces are allowed between digits in the variables value!"), kIdOk);
        manager.AddEdit();
        QCOMPARE(manager.ValueBox().selectedText(), QStringLiteral("1 2"));

        // Accepted: the open list shows it, so no message tells it.
        manager.ValueBox().setText(QStringLiteral("7"));
        manager.AddEdit();
        QCOMPARE(manager.NameBox().count(), 1);

        manager.ValueBox().setText(QStringLiteral("7"));
        harness.boxes.Expect(QStringLiteral("You have not changed the value of 'y'!"), kIdOk);
        manager.AddEdit();
    });
    QVERIFY(harness.Bench().Router().Execute(command::kVariablesManager));
    QCOMPARE(Rows(harness.Current()->Panes().VariablesList()), QStringList{"y = 7"});
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::functionManagerRefusesThenAccepts() {
    DesktopHarness harness;
    ScriptManagers(harness, [&harness](ManagerDialog &manager) {
        manager.NameBox().setEditText(QStringLiteral("F)x("));
        manager.ValueBox().setText(QStringLiteral("x"));
        harness.boxes.Expect(QStringLiteral("The function name is invalid!"), kIdOk);
        manager.AddEdit();
        manager.NameBox().setEditText(QStringLiteral("Fx"));
        harness.boxes.Expect(QStringLiteral("Brackets of type [ and ] or ( or ) are used"), kIdOk);
        manager.AddEdit();

        manager.NameBox().setEditText(QStringLiteral("H [ x ]"));
        manager.ValueBox().setText(QStringLiteral("x^2"));
        manager.AddEdit();
        // The list shows the brackets the options choose: round ones by default.
        QCOMPARE(manager.NameBox().currentText(), QStringLiteral("H(x)"));

        // Delete asks, then leaves nothing to select.
        harness.boxes.Expect(QStringLiteral("Are You Sure That You Want To Delete 'H[x]'?"),
                             kIdYes);
        manager.Delete();
        QCOMPARE(manager.NameBox().count(), 0);
    });
    QVERIFY(harness.Bench().Router().Execute(command::kFunctionManager));
    QCOMPARE(harness.Current()->Engine().functions.count(), 0);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::managerTellsWhatTheClosedListCannotShow() {
    DesktopHarness harness;
    QVERIFY(harness.Bench().Router().Execute(command::kVariablesList));
    QVERIFY(!harness.Current()->Panes().VariablesListOpen());
    ScriptManagers(harness, [&harness](ManagerDialog &manager) {
        manager.NameBox().setEditText(QStringLiteral("  z"));
        manager.ValueBox().setText(QStringLiteral("2*3"));
        harness.boxes.Expect(QStringLiteral("Variable \"z\" has been added."), kIdOk);
        manager.AddEdit();
        manager.ValueBox().setText(QStringLiteral("8"));
        harness.boxes.Expect(QStringLiteral("Variable \"z\" has been edited."), kIdOk);
        manager.AddEdit();
        // An empty value over an existing variable is refused twice over.
        manager.ValueBox().clear();
        harness.boxes.Expect(QStringLiteral("You have not entered a value for the variable!"),
                             kIdOk);
        harness.boxes.Expect(QStringLiteral("You have not entered a value for 'z'!"), kIdOk);
        manager.AddEdit();
        manager.NameBox().setEditText(QStringLiteral("nothing"));
        harness.boxes.Expect(
            QStringLiteral("'nothing' is not a defined variable and therefore can not be deleted!"),
            kIdOk);
        manager.Delete();
        harness.boxes.Expect(
            QStringLiteral("'nothing' is not a defined variable, do you still want"), kIdNo);
        manager.Insert();
    });
    QVERIFY(harness.Bench().Router().Execute(command::kVariablesManager));
    QCOMPARE(QString::fromUtf8(harness.Current()->Engine().get_var_value("z", -1)),
             QStringLiteral("8"));
    QCOMPARE(harness.Current()->TextPane().toPlainText(), QString());
    // Opened again, the list shows the change.
    QVERIFY(harness.Bench().Router().Execute(command::kVariablesList));
    QCOMPARE(Rows(harness.Current()->Panes().VariablesList()), QStringList{"z = 8"});
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::deleteAllAndInsertFromTheLists() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("a = 1\nb = 2\nS[x,y] = x*y\n"));
    DocumentPanes &panes = harness.Current()->Panes();
    SelectRows(panes.FunctionsList(), {0});
    // The brackets follow the option.
    QVERIFY(panes.FunctionsList().CommandHandler(30591));
    harness.Current()->Engine().use_square_brackets = true;
    QVERIFY(panes.FunctionsList().CommandHandler(30591));
    QVERIFY(pane.toPlainText().endsWith(QStringLiteral("\nS(x,y)S[x,y]")));
    harness.boxes.Expect(QStringLiteral("Are you sure that you want to delete all the variables?"),
                         kIdNo);
    QVERIFY(panes.VariablesList().CommandHandler(31588));
    QCOMPARE(panes.VariablesList().topLevelItemCount(), 2);
    harness.boxes.Expect(QStringLiteral("Are you sure that you want to delete all the variables?"),
                         kIdYes);
    QVERIFY(panes.VariablesList().CommandHandler(31588));
    QCOMPARE(panes.VariablesList().topLevelItemCount(), 0);
    CommandState state;
    QVERIFY(panes.VariablesList().CommandEnabler(31588, state));
    QVERIFY(!state.enabled);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::enterNeverClosesAManager() {
    DesktopHarness harness;
    bool stillOpen = false;
    ScriptManagers(harness, [&stillOpen](ManagerDialog &manager) {
        QTest::keyClick(&manager, Qt::Key_Return);
        QTest::keyClick(manager.NameBox().lineEdit(), Qt::Key_Return);
        QTest::keyClick(&manager.ValueBox(), Qt::Key_Enter);
        stillOpen = manager.isVisible() && manager.result() == QDialog::Rejected;
    });
    QVERIFY(harness.Bench().Router().Execute(command::kVariablesManager));
    QVERIFY(stillOpen);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::typingAPrefixSelectsTheEntry() {
    DesktopHarness harness;
    TypeText(&harness.Current()->TextPane(), QStringLiteral("alpha = 1\nbeta = 2\nbetter = 3\n"));
    ScriptManagers(harness, [](ManagerDialog &manager) {
        QTest::keyClicks(manager.NameBox().lineEdit(), QStringLiteral("bet"));
        QCOMPARE(manager.NameBox().currentIndex(), 1);
        QCOMPARE(manager.ValueBox().text(), QStringLiteral("2"));
        QTest::keyClicks(manager.NameBox().lineEdit(), QStringLiteral("t"));
        QCOMPARE(manager.NameBox().currentIndex(), 2);
        QCOMPARE(manager.ValueBox().text(), QStringLiteral("3"));
    });
    QVERIFY(harness.Bench().Router().Execute(command::kVariablesManager));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::calculatorKeyActsOnTheEditorWithoutFocus() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("x+1"));
    pane.moveCursor(QTextCursor::StartOfLine);
    // The first document brings the bar, as the options say by default.
    CalculatorBar *bar = Bar(harness);
    QVERIFY(bar != nullptr);
    QVERIFY(bar->isVisible());
    QVERIFY(harness.Bench().calculatorShowing);
    QVERIFY(bar->testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(bar->windowFlags().testFlag(Qt::Tool));
    QCOMPARE(bar->findChildren<QToolButton *>().size(), 100);
    for (const CalculatorKey &key : CalculatorKeys()) {
        QToolButton *button = bar->Button(key.id);
        QVERIFY(button != nullptr);
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(!button->accessibleName().isEmpty());
    }
    QTest::mouseClick(bar->Button(KeyWithFace("SIN").id), Qt::LeftButton);
    QCOMPARE(pane.toPlainText(), QStringLiteral("SIN[x+1]"));
    QTest::mouseClick(bar->Button(KeyWithFace("x²").id), Qt::LeftButton);
    QCOMPARE(pane.toPlainText(), QStringLiteral("SIN[x+1]^2"));

    // The command hides and shows it.
    QVERIFY(harness.Bench().Router().Execute(command::kCalculator));
    QVERIFY(!bar->isVisible());
    QVERIFY(!harness.Bench().Router().State(command::kCalculator).checked);
    QVERIFY(harness.Bench().Router().Execute(command::kCalculator));
    QVERIFY(bar->isVisible());
    QVERIFY(harness.Bench().Router().State(command::kCalculator).checked);
    // The last document takes it along.
    harness.boxes.Expect(QStringLiteral("Do you want to save the changes?"), kIdNo);
    QVERIFY(harness.Client().CloseAllDocuments());
    QVERIFY(!harness.Bench().calculatorShowing);
    QVERIFY(!bar->isVisible());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::calculatorKeyKeepsTheFocusInTheEditor() {
    if (QGuiApplication::platformName() != QStringLiteral("xcb"))
        QSKIP("activation and focus need a display; run under xvfb-run with QT_QPA_PLATFORM=xcb");
    DesktopHarness harness;
    MainFrame &frame = harness.Frame();
    frame.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frame));
    frame.activateWindow();
    MathEditorWidget &pane = harness.Current()->TextPane();
    pane.setFocus();
    QTRY_VERIFY(QApplication::activeWindow() == &frame);
    QTRY_COMPARE(QApplication::focusWidget(), static_cast<QWidget *>(&pane));
    CalculatorBar *bar = Bar(harness);
    QVERIFY(bar != nullptr);
    QVERIFY(QTest::qWaitForWindowExposed(bar));
    QTest::mouseClick(bar->Button(KeyWithFace("7").id), Qt::LeftButton);
    QTest::qWait(200);
    QCOMPARE(pane.toPlainText(), QStringLiteral("7"));
    QCOMPARE(QApplication::activeWindow(), static_cast<QWidget *>(&frame));
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(&pane));
    // Typing goes on in the text.
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("+1"));
    QCOMPARE(pane.toPlainText(), QStringLiteral("7+1"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::listsMoveToTheTopAndBackKeepingTheText() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("r = 4\n"));
    DocumentPanes &panes = harness.Current()->Panes();
    auto *outer = panes.findChild<QSplitter *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(outer != nullptr);
    QCOMPARE(outer->widget(0), static_cast<QWidget *>(&pane));
    QVERIFY(harness.Bench().Router().Execute(command::kListsTop));
    QCOMPARE(outer->orientation(), Qt::Vertical);
    QCOMPARE(outer->widget(1), static_cast<QWidget *>(&pane));
    QVERIFY(harness.Bench().Router().State(command::kListsTop).checked);
    QVERIFY(harness.Bench().Router().Execute(command::kListsRight));
    QCOMPARE(outer->orientation(), Qt::Horizontal);
    QCOMPARE(outer->widget(0), static_cast<QWidget *>(&pane));
    QCOMPARE(pane.toPlainText(), QStringLiteral("r = 4\n"));
    QCOMPARE(Rows(panes.VariablesList()), QStringList{"r = 4"});
    // A list closed and opened again is refilled.
    QVERIFY(harness.Bench().Router().Execute(command::kFunctionsList));
    QVERIFY(!panes.FunctionsListOpen());
    QVERIFY(harness.Bench().Router().Execute(command::kFunctionsList));
    QVERIFY(panes.FunctionsListOpen());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::aColouredFontIsToldAndStaysBlack() {
    DesktopHarness harness;
    harness.Bench().runDialog = [](QDialog &dialog) {
        auto *fonts = qobject_cast<DocumentFontDialog *>(&dialog);
        QVERIFY(fonts != nullptr);
        QFont chosen(QStringLiteral("Liberation Mono"));
        chosen.setPixelSize(17);
        chosen.setItalic(true);
        fonts->Chooser().setCurrentFont(chosen);
        fonts->ColorBox().setCurrentIndex(9);
        fonts->accept();
    };
    DocumentWindow *document = harness.Current();
    QVERIFY(!document->IsDirty());
    harness.boxes.Expect(QStringLiteral("Sorry, Colored Text Is Not Supported"), kIdOk);
    QVERIFY(harness.Bench().Router().Execute(command::kChooseFont));
    const DocumentFont &font = document->Content().font;
    QCOMPARE(font.FaceName, std::string("Liberation Mono"));
    QCOMPARE(font.Height, -17);
    QCOMPARE(font.Italic, 1);
    QVERIFY(font.Color == TColor::Black);
    QVERIFY(document->IsDirty());
    QCOMPARE(document->Panes().VariablesList().font().family(), QStringLiteral("Liberation Mono"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::showIncrementalsActsOnEveryDocument() {
    DesktopHarness harness;
    harness.Client().NewDocument();
    QCOMPARE(harness.Client().Count(), 2);
    const bool before = harness.Bench().showIncrementals;
    EngineListPane &variables = harness.Current()->Panes().VariablesList();
    variables.setFocus();
    QVERIFY(variables.CommandHandler(24375));
    QCOMPARE(harness.Bench().showIncrementals, !before);
    for (int index = 0; index < harness.Client().Count(); ++index)
        QCOMPARE(harness.Client().At(index)->Engine().show_incrementals, !before);
    QCOMPARE(harness.Bench().Settings().IncrementalVariables(), !before);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentPanesTest::screenshotOfADocumentWithListsAndCalculator() {
    DesktopHarness harness;
    MainFrame &frame = harness.Frame();
    frame.resize(1000, 700);
    frame.show();
    MathEditorWidget &pane = harness.Current()->TextPane();
    TypeText(&pane, QStringLiteral("r = 2\narea = PI*r^2\nF[x] = x^2+r\nF[3]\n"));
    harness.Client().activeSubWindow()->showMaximized();
    QCoreApplication::processEvents();
    // The text keeps three quarters of the width, the lists share the rest half and half.
    DocumentPanes &panes = harness.Current()->Panes();
    auto *outer = panes.findChild<QSplitter *>(QString(), Qt::FindDirectChildrenOnly);
    const QList<int> widths = outer->sizes();
    QVERIFY(std::abs(widths[0] * 1.0 / (widths[0] + widths[1]) - 0.75) < 0.02);
    const int variablesHeight = panes.VariablesList().height();
    QVERIFY(std::abs(variablesHeight - panes.FunctionsList().height()) <= 2);
    const QString folder = QStringLiteral(QUINDAR_BUILD_DIR "screens");
    QDir().mkpath(folder);
    QVERIFY(frame.grab().save(folder + QStringLiteral("/document_with_lists.png")));
    QVERIFY(Bar(harness)->grab().save(folder + QStringLiteral("/calculator_bar.png")));
    ScriptManagers(harness, [&folder](ManagerDialog &manager) {
        manager.adjustSize();
        QVERIFY(manager.grab().save(folder + QStringLiteral("/manager_") +
                                    manager.windowTitle().section(QLatin1Char(' '), 0, 0) +
                                    QStringLiteral(".png")));
    });
    SelectRows(harness.Current()->Panes().VariablesList(), {1});
    harness.Current()->Panes().VariablesList().openedByDoubleClick = true;
    harness.Current()->Panes().OpenVariableManager({});
    harness.Current()->Panes().OpenFunctionManager("F[x]");
    QVERIFY(harness.Bench().Router().Execute(command::kEditReplace));
    QVERIFY(harness.Current()->TextPane().FindDialog().grab().save(folder +
                                                                   QStringLiteral("/replace.png")));
    QVERIFY(harness.Bench().Router().Execute(command::kListsTop));
    QCoreApplication::processEvents();
    QVERIFY(frame.grab().save(folder + QStringLiteral("/lists_on_top.png")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

QTEST_MAIN(DocumentPanesTest)
#include "test_document_panes.moc"
