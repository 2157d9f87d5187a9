// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The calculus windows of a document: the Calculus sheet's two pages computing, stopped by the
// user in the middle of a run, refusing to close during one and writing their answers into
// the text; the Function Solver's boxes, keys, list and data files.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include "app_settings.h"
#include "calculus_sheet.h"
#include "calculus_tools.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "differentiation_page.h"
#include "document_area.h"
#include "document_window.h"
#include "function_solver_dialog.h"
#include "integration_page.h"
#include "manager_dialog.h"
#include "math_editor_widget.h"
#include "parser.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

template <class Widget>
Widget *Named(QWidget *root, const QString &name) {
    for (Widget *widget : root->findChildren<Widget *>())
        if (widget->accessibleName() == name) return widget;
    return nullptr;
}

void SetText(QWidget *root, const QString &name, const QString &text) {
    if (auto *edit = Named<QLineEdit>(root, name)) {
        edit->setText(text);
        return;
    }
    auto *box = Named<QComboBox>(root, name);
    QVERIFY2(box != nullptr, qPrintable(name));
    box->setEditText(text);
}

CalculusSheet *OpenSheet(DesktopHarness &harness) {
    harness.Current()->CommandHandler(command::kCalculus);
    return FindCalculusSheet(*harness.Current());
}

// A triple integral at the accuracy end of the slider: long enough to be stopped.
void AskForLongTripleIntegral(IntegrationPage &page) {
    SetText(&page, QStringLiteral("Function"), QStringLiteral("x*y*z"));
    Named<QRadioButton>(&page, QStringLiteral("Triple"))->click();
    for (const QString &axis : {QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("Z")}) {
        SetText(&page, axis + QStringLiteral(" Parameter"), axis.toLower());
        SetText(&page, axis + QStringLiteral(" Low Limit"), QStringLiteral("0"));
        SetText(&page, axis + QStringLiteral(" High Limit"), QStringLiteral("1"));
    }
    Named<QSlider>(&page, QStringLiteral("Speed or Accuracy"))->setValue(100);
}

QString ValueOf(Parser &parser, const char *expression) {
    const char *text = parser.eval_exp(expression, true, false);
    return parser.IsAnError() ? QString() : QString::fromLatin1(text);
}

}  // namespace

class CalculusWindows : public QObject {
    Q_OBJECT
private slots:
    void calculusCommandOpensOneSheetPerDocument();
    void singleIntegralAnswersAndInsertsIntoTheText_data();
    void singleIntegralAnswersAndInsertsIntoTheText();
    void functionManagerInsertsIntoThePage();
    void refusedLimitSelectsItsField();
    void editButtonsOpenTheDocumentsManagers();
    void stopMidRunGivesNoAnswerAndRestoresTheVariables();
    void closingDuringARunAsksOnceAndIsRefused();
    void closingTheDocumentDuringARunIsRefusedBeforeItsQuestions();
    void differentiationTableFillsAndInsertsAllRows();
    void differentiationColumnsFollowTheCheckBoxes();
    void graphAnswerAddsATwoDimensionalGraphToTheDocument();
    void differentiationStopKeepsTheRowsDone();
    void solverTabulatesAListAndInsertsTheAnswer();
    void solverSavesAndLoadsItsList();
    void solverSwitchesBetweenTheTwoForms();
    void solverRefusesSevenParameters();
    void precisionsAreKeptInTheSettings();
    void insertGoesToGraphSetupWhileItsFunctionsShow();
    void equalsKeyIsTypedIntoLogicalExpressions();
    void screenshots();
};

void CalculusWindows::calculusCommandOpensOneSheetPerDocument() {
    DesktopHarness harness;
    CalculusSheet *sheet = OpenSheet(harness);
    QVERIFY(sheet != nullptr);
    QCOMPARE(sheet->windowTitle(), QStringLiteral("CALCULUS : 1 - MATH EDITOR"));
    QCOMPARE(sheet->CurrentPage(), 0);
    sheet->SelectPage(1);
    QCOMPARE(OpenSheet(harness), sheet);
    QCOMPARE(harness.Current()->findChildren<CalculusSheet *>().size(), 1);
    // Closing remembers the page in front for the next opening.
    QPointer<CalculusSheet> closed(sheet);
    sheet->close();
    QTRY_VERIFY(closed.isNull());
    QCOMPARE(OpenSheet(harness)->CurrentPage(), 1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::singleIntegralAnswersAndInsertsIntoTheText_data() {
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("low");
    QTest::addColumn<QString>("high");
    QTest::addColumn<QString>("answer");
    QTest::newRow("square") << "x^2"
                            << "0"
                            << "3"
                            << "9";
    QTest::newRow("empty box integrates one") << ""
                                              << "0"
                                              << "2"
                                              << "2";
    QTest::newRow("reversed limits swap") << "2*x"
                                          << "1"
                                          << "0"
                                          << "1";
    QTest::newRow("text behind the last equals") << "g = 3*x^2"
                                                 << "0"
                                                 << "1"
                                                 << "1";
}

void CalculusWindows::singleIntegralAnswersAndInsertsIntoTheText() {
    QFETCH(QString, function);
    QFETCH(QString, low);
    QFETCH(QString, high);
    QFETCH(QString, answer);
    DesktopHarness harness;
    IntegrationPage &page = OpenSheet(harness)->Integration();
    SetText(&page, QStringLiteral("Function"), function);
    SetText(&page, QStringLiteral("X Parameter"), QStringLiteral("x"));
    SetText(&page, QStringLiteral("X Low Limit"), low);
    SetText(&page, QStringLiteral("X High Limit"), high);
    QVERIFY(!page.InsertButton()->isEnabled());
    page.ComputeButton()->click();
    QCOMPARE(page.AnswerText(), answer);
    QVERIFY(page.ComputeButton()->isVisibleTo(&page));
    QVERIFY(!page.StopButton()->isVisibleTo(&page));
    QVERIFY(page.InsertButton()->isEnabled());
    // The undeclared variable lived for the run only.
    QCOMPARE(harness.Current()->Engine().find_variable("x"), -1);
    page.InsertButton()->click();
    QCOMPARE(harness.Current()->TextPane().toPlainText(), answer);
    // The document keeps what the page held.
    QCOMPARE(QString::fromStdString(harness.Current()->Content().integration.IntXHiLimit), high);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

// Edit Function and Edit Variable open the document's own managers.
void CalculusWindows::editButtonsOpenTheDocumentsManagers() {
    DesktopHarness harness;
    IntegrationPage &page = OpenSheet(harness)->Integration();
    QPushButton *editFunction = nullptr;
    QPushButton *editVariable = nullptr;
    for (QPushButton *button : page.findChildren<QPushButton *>()) {
        if (button->accessibleName() == QStringLiteral("Edit Function")) editFunction = button;
        if (button->accessibleName() == QStringLiteral("Edit Variable")) editVariable = button;
    }
    QVERIFY(editFunction != nullptr && editVariable != nullptr);
    harness.dialogsRun.clear();
    editVariable->click();
    editFunction->click();
    QCOMPARE(harness.dialogsRun, (QStringList{QStringLiteral("Variables Manager"),
                                              QStringLiteral("Functions Manager")}));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

// The Function Manager opened from a page inserts into the page's function box, not the text.
void CalculusWindows::functionManagerInsertsIntoThePage() {
    DesktopHarness harness;
    DocumentWindow &document = *harness.Current();
    TypeText(&document.TextPane(), QStringLiteral("g[x] = x+1\n"));
    const QString text = document.TextPane().toPlainText();
    IntegrationPage &page = OpenSheet(harness)->Integration();
    SetText(&page, QStringLiteral("Function"), QStringLiteral("2*"));
    harness.Bench().runDialog = [](QDialog &dialog) {
        auto *manager = qobject_cast<ManagerDialog *>(&dialog);
        QVERIFY(manager != nullptr);
        manager->NameBox().setEditText(QStringLiteral("g"));
        manager->Insert();
    };
    Named<QPushButton>(&page, QStringLiteral("Edit Function"))->click();
    QCOMPARE(Named<QComboBox>(&page, QStringLiteral("Function"))->currentText(),
             QStringLiteral("2*g"));
    QCOMPARE(document.TextPane().toPlainText(), text);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::refusedLimitSelectsItsField() {
    DesktopHarness harness;
    IntegrationPage &page = OpenSheet(harness)->Integration();
    QApplication::setActiveWindow(page.window());
    SetText(&page, QStringLiteral("Function"), QStringLiteral("x"));
    SetText(&page, QStringLiteral("X Parameter"), QStringLiteral("x"));
    SetText(&page, QStringLiteral("X Low Limit"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("X High Limit"), QStringLiteral("1"));
    page.ComputeButton()->click();
    QCOMPARE(page.AnswerText(), QStringLiteral("0.5"));
    // The failed run that follows leaves no answer of the one before.
    SetText(&page, QStringLiteral("X High Limit"), QStringLiteral("x+1"));
    harness.boxes.Expect(QStringLiteral("The integration limit can not be a function of x."),
                         kIdOk);
    page.ComputeButton()->click();
    QCOMPARE(page.AnswerText(), QString());
    QVERIFY(!page.InsertButton()->isEnabled());
    auto *high = Named<QLineEdit>(&page, QStringLiteral("X High Limit"));
    QCOMPARE(high->selectedText(), QStringLiteral("x+1"));
    QCOMPARE(harness.boxes.shown.last().section(QLatin1Char(':'), 0, 0),
             QStringLiteral("Integration Utility"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::stopMidRunGivesNoAnswerAndRestoresTheVariables() {
    DesktopHarness harness;
    harness.Bench().soundOn = true;
    Parser &parser = harness.Current()->Engine();
    TypeText(&harness.Current()->TextPane(), QStringLiteral("x = 5\n"));
    IntegrationPage &page = OpenSheet(harness)->Integration();
    AskForLongTripleIntegral(page);
    bool stopShownDuringRun = false;
    int gaugeAtStop = -1;
    QTimer::singleShot(300, &page, [&] {
        stopShownDuringRun =
            page.StopButton()->isVisibleTo(&page) && !page.ComputeButton()->isVisibleTo(&page);
        gaugeAtStop = Named<QProgressBar>(&page, QStringLiteral("Progress"))->value();
        QTest::mouseClick(page.StopButton(), Qt::LeftButton);
    });
    page.ComputeButton()->click();
    QVERIFY(stopShownDuringRun);
    QVERIFY2(gaugeAtStop >= 0 && gaugeAtStop < 100, qPrintable(QString::number(gaugeAtStop)));
    QCOMPARE(page.AnswerText(), QString());
    QVERIFY(!page.InsertButton()->isEnabled());
    QVERIFY(page.ComputeButton()->isVisibleTo(&page));
    QCOMPARE(ValueOf(parser, "x"), QStringLiteral("5"));
    QCOMPARE(parser.find_variable("y"), -1);
    QCOMPARE(parser.find_variable("z"), -1);
    QVERIFY2(harness.services.sounds.contains(QStringLiteral("Delete.wav")),
             qPrintable(harness.services.sounds.join(QLatin1Char(' '))));
    // The next run starts afresh and answers.
    Named<QSlider>(&page, QStringLiteral("Speed or Accuracy"))->setValue(0);
    page.ComputeButton()->click();
    QVERIFY(!page.AnswerText().isEmpty());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::closingDuringARunAsksOnceAndIsRefused() {
    DesktopHarness harness;
    QPointer<CalculusSheet> sheet(OpenSheet(harness));
    IntegrationPage &page = sheet->Integration();
    AskForLongTripleIntegral(page);
    harness.boxes.Expect(
        QStringLiteral("You must stop the integration process before closing this utility."),
        kIdOk);
    harness.boxes.Expect(QStringLiteral("You are currently computing an integral"), kIdOk);
    bool otherPageChoosable = true;
    bool documentClosable = true;
    QTimer::singleShot(200, sheet, [&] {
        sheet->close();
        sheet->close();  // the message comes once per run
        otherPageChoosable = sheet->Tabs().isTabEnabled(1);
        documentClosable = harness.Current()->CanClose();
        harness.Current()->ForgetCloseAnswer();
        page.Stop();
    });
    page.ComputeButton()->click();
    QVERIFY(!sheet.isNull());
    QVERIFY(sheet->isVisible());
    QVERIFY(!otherPageChoosable);
    QVERIFY(!documentClosable);
    QVERIFY(sheet->Tabs().isTabEnabled(1));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
    // Once the run is over the sheet closes without a word.
    sheet->close();
    QTRY_VERIFY(sheet.isNull());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::closingTheDocumentDuringARunIsRefusedBeforeItsQuestions() {
    DesktopHarness harness;
    QPointer<DocumentWindow> document(harness.Current());
    TypeText(&document->TextPane(), QStringLiteral("1+1"));
    DifferentiationPage &page = OpenSheet(harness)->Differentiation();
    SetText(&page, QStringLiteral("Function"), QStringLiteral("x^3"));
    SetText(&page, QStringLiteral("Variable"), QStringLiteral("x"));
    SetText(&page, QStringLiteral("Xo"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("Xn"), QStringLiteral("1"));
    SetText(&page, QStringLiteral("n"), QStringLiteral("100000"));
    harness.boxes.Expect(QStringLiteral("You are currently computing a derivative"), kIdOk);
    bool closed = true;
    QTimer::singleShot(200, &page, [&] {
        closed = harness.Client().CloseDocument(document);
        page.Stop();
    });
    page.ComputeButton()->click();
    QVERIFY(!closed);
    QVERIFY(!document.isNull());
    QCOMPARE(harness.boxes.shown.size(), 1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::differentiationTableFillsAndInsertsAllRows() {
    DesktopHarness harness;
    CalculusSheet *sheet = OpenSheet(harness);
    sheet->SelectPage(1);
    DifferentiationPage &page = sheet->Differentiation();
    SetText(&page, QStringLiteral("Function"), QStringLiteral("x^2"));
    SetText(&page, QStringLiteral("Variable"), QStringLiteral("x"));
    SetText(&page, QStringLiteral("Xo"), QStringLiteral("1"));
    SetText(&page, QStringLiteral("Xn"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("n"), QStringLiteral("3"));
    page.ComputeButton()->click();
    QTableWidget *list = page.List();
    QCOMPARE(list->rowCount(), 3);
    QStringList titles;
    for (int column = 0; column < list->columnCount(); ++column)
        titles << list->horizontalHeaderItem(column)->text();
    QCOMPARE(titles, QStringList({"x", "f (x)", "f '(x)", "f ''(x)", "f '''(x)"}));
    QCOMPARE(list->item(1, 0)->text(), QStringLiteral("0.5"));
    QCOMPARE(list->item(1, 1)->text(), QStringLiteral("0.25"));
    QCOMPARE(list->item(2, 2)->text(), QStringLiteral("2"));
    QVERIFY(page.InsertButton()->isEnabled());
    QVERIFY(page.GraphButton()->isEnabled());
    harness.boxes.Expect(QStringLiteral("would you like to copy the entire solution set?"), kIdYes);
    page.InsertButton()->click();
    QFile golden(QStringLiteral(QUINDAR_TEST_DATA_DIR "differentiation_insert.txt"));
    QVERIFY(golden.open(QIODevice::ReadOnly));
    QCOMPARE(harness.Current()->TextPane().toPlainText(), QString::fromLatin1(golden.readAll()));
    // One selected row goes alone.
    harness.Current()->TextPane().clear();
    list->selectRow(0);
    page.InsertButton()->click();
    QVERIFY(
        harness.Current()->TextPane().toPlainText().startsWith(QStringLiteral("x=0   f (x)=0")));
    QCOMPARE(harness.Current()->TextPane().toPlainText().count(QLatin1Char('\n')), 1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::differentiationColumnsFollowTheCheckBoxes() {
    DesktopHarness harness;
    DifferentiationPage &page = OpenSheet(harness)->Differentiation();
    SetText(&page, QStringLiteral("Function"), QStringLiteral("t^3"));
    SetText(&page, QStringLiteral("Variable"), QStringLiteral("t"));
    QVERIFY(Named<QCheckBox>(&page, QStringLiteral("f '(t)")) != nullptr);
    SetText(&page, QStringLiteral("Xo"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("Xn"), QStringLiteral("2"));
    SetText(&page, QStringLiteral("n"), QStringLiteral("2.9"));
    page.ComputeButton()->click();
    QCOMPARE(page.List()->rowCount(), 2);
    Named<QCheckBox>(&page, QStringLiteral("f (t)"))->setChecked(false);
    QCOMPARE(page.List()->columnCount(), 4);
    QCOMPARE(page.List()->horizontalHeaderItem(1)->text(), QStringLiteral("f '(t)"));
    QCOMPARE(page.List()->item(1, 1)->text(), QStringLiteral("12"));
    // Checking it again shows the kept values without computing.
    Named<QCheckBox>(&page, QStringLiteral("f (t)"))->setChecked(true);
    QCOMPARE(page.List()->item(1, 1)->text(), QStringLiteral("8"));
    // A change of precision rewrites the cells.
    SetText(&page, QStringLiteral("n"), QStringLiteral("4"));
    page.ComputeButton()->click();
    QCOMPARE(page.List()->item(1, 1)->text(), QStringLiteral("0.2962962962963"));
    Named<QSpinBox>(&page, QStringLiteral("Precision"))->setValue(3);
    QCOMPARE(page.List()->item(1, 1)->text(), QStringLiteral("0.296"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::graphAnswerAddsATwoDimensionalGraphToTheDocument() {
    DesktopHarness harness;
    DocumentWindow &document = *harness.Current();
    TypeText(&document.TextPane(), QStringLiteral("f[x] = x^2+1\n"));
    CalculusSheet *sheet = OpenSheet(harness);
    sheet->SelectPage(1);
    DifferentiationPage &page = sheet->Differentiation();
    // The function defined in the text is an entry of the function box.
    auto *functions = Named<QComboBox>(&page, QStringLiteral("Function"));
    QCOMPARE(functions->count(), 1);
    functions->setCurrentIndex(0);
    QCOMPARE(Named<QComboBox>(&page, QStringLiteral("Variable"))->currentText(),
             QStringLiteral("x"));
    SetText(&page, QStringLiteral("Xo"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("Xn"), QStringLiteral("2"));
    SetText(&page, QStringLiteral("n"), QStringLiteral("5"));
    page.ComputeButton()->click();
    QCOMPARE(page.List()->item(4, 1)->text(), QStringLiteral("5"));
    // The sheet's own hook shows the graph in the document's graph pane.
    QList<int> tools;
    harness.Bench().documentTools = [&tools](DocumentWindow &, int id) {
        tools << id;
        return true;
    };
    page.GraphButton()->click();
    QCOMPARE(tools, QList<int>{command::kShowGraphWindow});
    int drawn = 0;
    page.drawGraph = [&](DocumentWindow &) { ++drawn; };
    page.GraphButton()->click();
    QCOMPARE(drawn, 1);
    GraphData *graph = document.Content().currentGraph;
    QVERIFY(graph != nullptr);
    QCOMPARE(QString::fromStdString(std::string(graph->Name)),
             QStringLiteral("Differentials of f[x]"));
    QCOMPARE(graph->GetGraphType(), kGraph2D);
    // A second press finds the same graph.
    page.GraphButton()->click();
    QCOMPARE(document.Content().graphs.count(), 1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::differentiationStopKeepsTheRowsDone() {
    DesktopHarness harness;
    DifferentiationPage &page = OpenSheet(harness)->Differentiation();
    SetText(&page, QStringLiteral("Function"), QStringLiteral("x^3+x"));
    SetText(&page, QStringLiteral("Variable"), QStringLiteral("x"));
    SetText(&page, QStringLiteral("Xo"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("Xn"), QStringLiteral("1"));
    SetText(&page, QStringLiteral("n"), QStringLiteral("100000"));
    // A first short run, whose rows the long one must not show.
    SetText(&page, QStringLiteral("n"), QStringLiteral("3"));
    page.ComputeButton()->click();
    QCOMPARE(page.List()->item(2, 1)->text(), QStringLiteral("2"));
    SetText(&page, QStringLiteral("n"), QStringLiteral("100000"));
    int rowsShownDuringRun = 0;
    bool statusShown = false;
    QString secondRowDuringRun;
    // Stop is pressed once the function's column has begun, however busy the machine is.
    QTimer watch;
    watch.setInterval(20);
    connect(&watch, &QTimer::timeout, &page, [&] {
        if (page.Table().columns[quindar::calculus::kFunctionColumn].size() < 10) return;
        watch.stop();
        rowsShownDuringRun = page.List()->rowCount();
        secondRowDuringRun = page.List()->item(1, 0)->text();
        statusShown = Named<QLabel>(&page, QStringLiteral("Status"))->isVisibleTo(&page);
        page.StopButton()->click();
    });
    watch.start();
    page.ComputeButton()->click();
    QVERIFY(rowsShownDuringRun > 2);
    QCOMPARE(secondRowDuringRun, QStringLiteral("1.0000100001e-05"));
    QVERIFY(statusShown);
    const auto &table = page.Table();
    QVERIFY(table.rows() > 0);
    QVERIFY(table.columns[quindar::calculus::kThirdColumn].size() < 100000);
    QCOMPARE(page.List()->rowCount(), static_cast<int>(table.rows()));
    QVERIFY(page.InsertButton()->isEnabled());
    QCOMPARE(harness.Current()->Engine().find_variable("x"), -1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::solverTabulatesAListAndInsertsTheAnswer() {
    DesktopHarness harness;
    DocumentWindow &document = *harness.Current();
    FunctionSolverDialog *solver = OpenFunctionSolver(
        harness.Bench(), document, QStringLiteral("MEAN[{number1,number2,...numberN}]"),
        QStringLiteral("The mean of a list."));
    QVERIFY(solver != nullptr);
    QCOMPARE(solver->windowTitle(), QStringLiteral("Mathematical Function Solver"));
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("Number 1"));
    QCOMPARE(solver->BoxLabel(5)->text(), QStringLiteral("Number 6"));
    QApplication::setActiveWindow(solver);
    solver->Box(0)->setFocus();
    // Return alone types a list longer than the boxes: the rows move up beneath the last box.
    for (int value = 1; value <= 8; ++value) {
        QTest::keyClicks(QApplication::focusWidget(), QString::number(value * 2));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    QCOMPARE(solver->Box(5)->hasFocus(), true);
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("Number 4"));
    QCOMPARE(solver->Box(0)->text(), QStringLiteral("8"));
    QCOMPARE(solver->Form().entry_count(), 8);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Equal);
    QCOMPARE(solver->Solution(), QStringLiteral(" 9"));
    QCOMPARE(solver->Box(5)->text(), QString());  // "=" is not typed into the box
    solver->InsertAnswerButton()->click();
    QCOMPARE(document.TextPane().toPlainText(), QStringLiteral("9"));
    solver->InsertFunctionButton()->click();
    QCOMPARE(document.TextPane().toPlainText(), QStringLiteral("9MEAN({2,4,6,8,10,12,14,16})"));
    // Up moves back through the boxes; changing a box clears the solution.
    QTest::keyClick(solver->Box(5), Qt::Key_Up);
    QVERIFY(solver->Box(4)->hasFocus());
    QTest::keyClicks(solver->Box(4), QStringLiteral("0"));
    QCOMPARE(solver->Solution(), QString());
    // A bad entry keeps the focus and tells the engine's error.
    harness.boxes.Expect(QString(), kIdOk);
    solver->Box(4)->setText(QStringLiteral("2+"));
    QTest::keyClick(solver->Box(4), Qt::Key_Return);
    QVERIFY(solver->Box(4)->hasFocus());
    QCOMPARE(harness.boxes.shown.last().section(QLatin1Char(':'), 0, 0),
             QStringLiteral("Function Solver"));
    solver->Box(4)->setText(QStringLiteral("16"));
    QTest::keyClick(solver->Box(4), Qt::Key_Return);
    // Closing with a list that was never saved asks; No lets it go.
    harness.boxes.Expect(QStringLiteral("Would You Like To Save Your Data?"), kIdNo);
    QPointer<FunctionSolverDialog> closed(solver);
    solver->close();
    QTRY_VERIFY(closed.isNull());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::solverSavesAndLoadsItsList() {
    DesktopHarness harness;
    FunctionSolverDialog *solver =
        OpenFunctionSolver(harness.Bench(), *harness.Current(),
                           QStringLiteral("SUMX[{number1,number2,...numberN}]"), QString());
    QApplication::setActiveWindow(solver);
    solver->Box(0)->setFocus();
    for (const QString &value :
         {QStringLiteral("1.5"), QStringLiteral("PI"), QStringLiteral("3")}) {
        QTest::keyClicks(QApplication::focusWidget(), value);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    const QString file = harness.Folder() + QStringLiteral("/list.prn");
    harness.nextSaveFile = file;
    QVERIFY(solver->MustSave());
    QTest::mouseClick(Named<QPushButton>(solver, QStringLiteral("Save Data File")), Qt::LeftButton);
    QVERIFY(!solver->MustSave());
    QFile saved(file);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), QByteArray("      1.5\n      PI\n      3\n"));
    Named<QPushButton>(solver, QStringLiteral("Clear"))->click();
    QCOMPARE(solver->Form().entry_count(), 0);
    harness.nextOpenFiles = {file};
    Named<QPushButton>(solver, QStringLiteral("Load Data File"))->click();
    QCOMPARE(solver->Form().entry_count(), 3);
    QCOMPARE(solver->Box(1)->text(), QStringLiteral("PI"));
    // Loading onto a list asks whether to add; Yes appends behind the last entry.
    harness.nextOpenFiles = {file};
    harness.boxes.Expect(QStringLiteral("Would You Like To Add The New Data Values"), kIdYes);
    Named<QPushButton>(solver, QStringLiteral("Load Data File"))->click();
    QCOMPARE(solver->Form().entry_count(), 6);
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("Number 4"));
    QCOMPARE(harness.dialogTitles,
             QStringList({"Save Data File", "Load Data File", "Load Data File"}));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::solverSwitchesBetweenTheTwoForms() {
    DesktopHarness harness;
    FunctionSolverDialog *solver = OpenFunctionSolver(
        harness.Bench(), *harness.Current(),
        QStringLiteral("NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]"), QString());
    QApplication::setActiveWindow(solver);
    QVERIFY(solver->FormButton(0)->isVisibleTo(solver));
    QVERIFY(solver->FormButton(0)->isChecked());
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("mean"));
    QVERIFY(!solver->Box(4)->isVisibleTo(solver));
    solver->FormButton(1)->click();
    QStringList labels;
    for (int box = 0; box < 6; ++box) labels << solver->BoxLabel(box)->text();
    QCOMPARE(labels, QStringList({"Number 1", "Number 2", "Number 3", "Number 4", "x1", "x2"}));
    solver->FormButton(0)->click();
    QCOMPARE(solver->BoxLabel(3)->text(), QStringLiteral("x2"));
    // The set form wants every box.
    solver->Box(0)->setText(QStringLiteral("0"));
    solver->Box(0)->setFocus();
    harness.boxes.Expect(QStringLiteral("A Required Parameter Is Missing."), kIdOk);
    solver->Equals();
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::solverRefusesSevenParameters() {
    DesktopHarness harness;
    harness.boxes.Expect(QStringLiteral("Only Functions With A Maximim Of 6 Parameters"), kIdOk);
    FunctionSolverDialog *solver = OpenFunctionSolver(harness.Bench(), *harness.Current(),
                                                      QStringLiteral("F[a,b,c,d,e,f,g]"), {});
    QVERIFY(!solver->Box(0)->isVisibleTo(solver));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::precisionsAreKeptInTheSettings() {
    DesktopHarness harness;
    CalculusSheet *sheet = OpenSheet(harness);
    Named<QSpinBox>(&sheet->Integration(), QStringLiteral("Precision"))->setValue(9);
    Named<QSpinBox>(&sheet->Differentiation(), QStringLiteral("Precision"))->setValue(4);
    FunctionSolverDialog *solver =
        OpenFunctionSolver(harness.Bench(), *harness.Current(),
                           QStringLiteral("MEAN[{number1,number2,...numberN}]"), QString());
    Named<QSpinBox>(solver, QStringLiteral("Precision"))->setValue(11);
    const AppSettings settings = harness.Bench().Settings();
    QCOMPARE(settings.IntegrationPrecision(), 9);
    QCOMPARE(settings.DifferentiationPrecision(), 4);
    QCOMPARE(settings.SolverPrecision(), 11);
    // A shown answer follows the precision without computing again.
    IntegrationPage &page = sheet->Integration();
    SetText(&page, QStringLiteral("Function"), QStringLiteral("1/3"));
    SetText(&page, QStringLiteral("X Low Limit"), QStringLiteral("0"));
    SetText(&page, QStringLiteral("X High Limit"), QStringLiteral("1"));
    page.ComputeButton()->click();
    QCOMPARE(page.AnswerText(), QStringLiteral("0.333333333"));
    Named<QSpinBox>(&page, QStringLiteral("Precision"))->setValue(3);
    QCOMPARE(page.AnswerText(), QStringLiteral("0.333"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::equalsKeyIsTypedIntoLogicalExpressions() {
    DesktopHarness harness;
    FunctionSolverDialog *solver =
        OpenFunctionSolver(harness.Bench(), *harness.Current(),
                           QStringLiteral("AND[logicalExp1,logicalExp2,...logicalExpN]"), {});
    QApplication::setActiveWindow(solver);
    QCOMPARE(solver->BoxLabel(0)->text(), QStringLiteral("Logical Expression 1"));
    solver->Box(0)->setFocus();
    QTest::keyClicks(solver->Box(0), QStringLiteral("1==1"));
    QCOMPARE(solver->Box(0)->text(), QStringLiteral("1==1"));
    QCOMPARE(solver->Solution(), QString());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::insertGoesToGraphSetupWhileItsFunctionsShow() {
    DesktopHarness harness;
    DocumentWindow &document = *harness.Current();
    TypeText(&document.TextPane(), QStringLiteral("g[a,b] = a*b\n"));
    document.TextPane().clear();
    FunctionSolverDialog *solver =
        OpenFunctionSolver(harness.Bench(), document, QStringLiteral("g[a,b]"), {});
    QStringList added;
    solver->functionsPageShowing = [] { return true; };
    solver->addGraphFunction = [&](const QString &prototype) { added << prototype; };
    solver->InsertFunctionButton()->click();
    QCOMPARE(added, QStringList{"g[a,b]"});
    QApplication::setActiveWindow(solver);
    solver->Box(0)->setFocus();
    QTest::keyClicks(solver->Box(0), QStringLiteral("2"));
    QTest::keyClick(solver->Box(0), Qt::Key_Return);
    QTest::keyClicks(solver->Box(1), QStringLiteral("7"));
    QTest::keyClick(solver->Box(1), Qt::Key_Return);
    harness.boxes.Expect(QStringLiteral("The Solution To Function \"g[2,7]\" Can Not Be Inserted"),
                         kIdOk);
    solver->InsertAnswerButton()->click();
    QCOMPARE(solver->Solution(), QStringLiteral(" 14"));
    QCOMPARE(document.TextPane().toPlainText(), QString());
    solver->ConfigureDialog(QStringLiteral("IF[logicalExp,valueIfTrue,valueIfFalse]"), {});
    harness.boxes.Expect(QStringLiteral("Has Too Many Parameters To Be Graphed."), kIdOk);
    solver->InsertFunctionButton()->click();
    QCOMPARE(added.size(), 1);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void CalculusWindows::screenshots() {
    DesktopHarness harness;
    const QString folder = QStringLiteral(QUINDAR_BUILD_DIR "screens");
    QDir().mkpath(folder);
    CalculusSheet *sheet = OpenSheet(harness);
    IntegrationPage &integration = sheet->Integration();
    SetText(&integration, QStringLiteral("Function"), QStringLiteral("x^2*y"));
    Named<QRadioButton>(&integration, QStringLiteral("Double"))->click();
    SetText(&integration, QStringLiteral("X Low Limit"), QStringLiteral("0"));
    SetText(&integration, QStringLiteral("X High Limit"), QStringLiteral("y"));
    SetText(&integration, QStringLiteral("Y Low Limit"), QStringLiteral("0"));
    SetText(&integration, QStringLiteral("Y High Limit"), QStringLiteral("1"));
    Named<QSlider>(&integration, QStringLiteral("Speed or Accuracy"))->setValue(0);
    integration.ComputeButton()->click();
    QVERIFY(!integration.AnswerText().isEmpty());
    QApplication::processEvents();  // the sheet grows to what its pages now hold
    QVERIFY(sheet->grab().save(folder + QStringLiteral("/calculus_integration.png")));
    sheet->SelectPage(1);
    DifferentiationPage &differentiation = sheet->Differentiation();
    SetText(&differentiation, QStringLiteral("Function"), QStringLiteral("x^3-2*x"));
    SetText(&differentiation, QStringLiteral("Variable"), QStringLiteral("x"));
    SetText(&differentiation, QStringLiteral("Xo"), QStringLiteral("-1"));
    SetText(&differentiation, QStringLiteral("Xn"), QStringLiteral("1"));
    SetText(&differentiation, QStringLiteral("n"), QStringLiteral("9"));
    differentiation.ComputeButton()->click();
    // A long run, pictured while it goes on.
    SetText(&differentiation, QStringLiteral("n"), QStringLiteral("100000"));
    bool runningSaved = false;
    QTimer::singleShot(300, &differentiation, [&] {
        runningSaved =
            sheet->grab().save(folder + QStringLiteral("/calculus_differentiation_running.png"));
        differentiation.Stop();
    });
    differentiation.ComputeButton()->click();
    QVERIFY(runningSaved);
    SetText(&differentiation, QStringLiteral("n"), QStringLiteral("9"));
    differentiation.ComputeButton()->click();
    QApplication::processEvents();  // the sheet grows to what its pages now hold
    QVERIFY(sheet->grab().save(folder + QStringLiteral("/calculus_differentiation.png")));
    FunctionSolverDialog *solver = OpenFunctionSolver(
        harness.Bench(), *harness.Current(),
        QStringLiteral("NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]"),
        QStringLiteral("The probability of a value between x1 and x2 in a normal distribution."));
    QApplication::setActiveWindow(solver);
    const QString values[] = {QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("-1"),
                              QStringLiteral("1")};
    for (int box = 0; box < 4; ++box) {
        solver->Box(box)->setFocus();
        solver->Box(box)->setText(values[box]);
    }
    solver->Box(3)->setFocus();
    solver->Equals();
    QApplication::processEvents();
    QVERIFY(solver->grab().save(folder + QStringLiteral("/function_solver.png")));
    // The list form: rows of numbers and the trailing names in the last boxes.
    solver->FormButton(1)->click();
    const QString rows[] = {QStringLiteral("2.5"), QStringLiteral("3"), QStringLiteral("4.5"),
                            QStringLiteral("5"),   QStringLiteral("3"), QStringLiteral("5")};
    for (int box = 0; box < 6; ++box) {
        solver->Box(box)->setFocus();
        solver->Box(box)->setText(rows[box]);
    }
    solver->Box(5)->setFocus();
    solver->Equals();
    QVERIFY(!solver->Solution().isEmpty());
    QApplication::processEvents();
    QVERIFY(solver->grab().save(folder + QStringLiteral("/function_solver_list.png")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

QTEST_MAIN(CalculusWindows)
#include "test_calculus_windows.moc"
