// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Graph Setup sheet inside the desktop program: its tabs and button row, a new graph
// walked from the Graphs page to Finish and built in the graph pane, a page that refuses to
// be left, Cancel, the document saved and opened again, and the ways into the sheet.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

#include "chart_view_2d.h"
#include "command_router.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_area.h"
#include "document_graph_setup.h"
#include "document_graph_tools.h"
#include "document_panes.h"
#include "document_window.h"
#include "function_drag_list.h"
#include "function_library_dialog.h"
#include "function_solver_dialog.h"
#include "functions_page.h"
#include "graph_pane.h"
#include "graph_setup_sheet.h"
#include "graphs_page.h"
#include "graphs_page_model.h"
#include "main_frame.h"
#include "manager_dialog.h"
#include "math_editor_widget.h"
#include "message_box_rules.h"
#include "parser.h"
#include "setup_page_model.h"
#include "setup_page_widget.h"
#include "setup_session.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

void Declare(DocumentWindow &document, const char *line) {
    document.Engine().eval_exp(line, true, false);
    QVERIFY(!document.Engine().IsAnError());
}

GraphsPage &GraphsOf(GraphSetupSheet &sheet) {
    return static_cast<GraphsPage &>(*sheet.PageWidget(kPageGraphs));
}

FunctionsPage &FunctionsOf(GraphSetupSheet &sheet) {
    return static_cast<FunctionsPage &>(*sheet.PageWidget(kPageFunctions));
}

QStringList Rows(const QListWidget &list) {
    QStringList rows;
    for (int row = 0; row < list.count(); ++row) rows << list.item(row)->text();
    return rows;
}

// A document graph "G" of f[x] = x^2 over x from -2 to 2, current.
GraphData &AddParabola(DocumentWindow &document) {
    document.Engine().eval_exp("f[x]=x^2", true, false);
    DocumentContent &content = document.Content();
    GraphData *graph = add_new_graph(content.graphs, "G", nullptr);
    graph->AddFunction("f[x]", "x^2");
    const Variable x("x", complex{-2, 0}, complex{2, 0}, 5);
    graph->SetXAxisVar(&x);
    content.currentGraph = graph;
    return *graph;
}

// The desktop program with the graph and Graph Setup tools, its first document in front,
// with the parabola graph when asked; boxes the script left over fail the test at the end.
struct SetupDesk {
    explicit SetupDesk(bool parabola = false) : document(*harness.Current()) {
        install_graph_tools(harness.Bench());
        install_graph_setup_tools(harness.Bench());
        if (parabola) AddParabola(document);
    }
    ~SetupDesk() { QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers())); }

    DesktopHarness harness;
    DocumentWindow &document;
};

// A page that refuses to be left while `refuse` holds, with a message and the focus kept on
// its box, as a page with a wrong field does.
bool refuse = true;
class RefusingPage : public SetupPageWidget {
public:
    RefusingPage(SetupPageModel &model, SetupUi &ui, QWidget *parent)
        : SetupPageWidget(model, parent), ui(ui) {
        auto *layout = new QVBoxLayout(this);
        box = new QLineEdit(this);
        box->setProperty("controlId", 4242);
        layout->addWidget(box);
    }
    void UpdatePage() override {}
    bool KillActive() override {
        if (!refuse) return true;
        ui.Message(24609, {}, kBoxWarning);
        ui.FocusControl(kPagePoints, 4242);
        return false;
    }
    SetupUi &ui;
    QLineEdit *box = nullptr;
};

class PlainModel : public SetupPageModel {
public:
    using SetupPageModel::SetupPageModel;
    int Index() const override { return kPagePoints; }
};

MadeSetupPage MakeRefusingPage(SetupPageContext &context, QWidget *parent) {
    MadeSetupPage made;
    made.model = std::make_unique<PlainModel>(context.session, context.ui);
    made.widget = new RefusingPage(*made.model, context.ui, parent);
    return made;
}

}  // namespace

class GraphSetupSheetTest : public QObject {
    Q_OBJECT
private slots:
    void sevenTabsWithTheButtonRowOfEachPage();
    void aNewGraphIsWalkedToFinishBuiltSavedAndOpenedAgain();
    void aPageWithAnErrorRefusesToBeLeftAndKeepsTheFocus();
    void cancelLeavesTheDocumentsGraphUnchanged();
    void aBuildWithErrorsListsThemAndKeepsTheSheet();
    void messagesComeTitledGraphingUtility();
    void theGraphPaneOpensTheSheetAndTheButtonShowsIt();
    void oneSheetInTheWholeProgram();
    void theSolversInsertGoesToTheFunctionsPage();
    void theFunctionManagersInsertGoesToTheFunctionsPage();
    void draggingARowBackTakesItOffTheGraph();
    void aFunctionDeletedInTheManagerLeavesTheGraph();
    void deletingAFunctionAGraphPlotsAsksFirst();
    void closingTheDocumentTakesItsSheetAlong();
    void theFunctionLibraryInsertsIntoTheFunctionsPage();
    void screenshotsOfTheGraphsAndFunctionsPages();
};

void GraphSetupSheetTest::sevenTabsWithTheButtonRowOfEachPage() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(sheet != nullptr);
    QVERIFY(sheet->isVisible());
    QVERIFY(!sheet->isModal());
    QCOMPARE(sheet->windowTitle(), QStringLiteral("Graph Setup"));
    QStringList tabs;
    for (int index = 0; index < sheet->Tabs().count(); ++index)
        tabs << sheet->Tabs().tabText(index);
    QCOMPARE(tabs, (QStringList{"Graphs", "Functions", "Points", "Variables", "Labels", "Types",
                                "Colors"}));
    QCOMPARE(sheet->ShowingPage(), kPageGraphs);
    QCOMPARE(sheet->PrevButton().text(), QStringLiteral("Graph Data Points"));
    QCOMPARE(sheet->HelpButton().text(), QStringLiteral("Help"));
    QCOMPARE(sheet->NextButton().text(), QStringLiteral("Graph Functions"));
    QCOMPARE(GraphsOf(*sheet).NameBox().text(), QStringLiteral("DefaultGraphName"));
    QVERIFY(!GraphsOf(*sheet).BuildButton().isEnabled());
    QVERIFY(sheet->RequestPage(kPageColors));
    QCOMPARE(sheet->Tabs().currentIndex(), kPageColors);
    QCOMPARE(sheet->PrevButton().text(), QStringLiteral("Prev"));
    QCOMPARE(sheet->NextButton().text(), QStringLiteral("Finish"));
    QTest::mouseClick(&sheet->PrevButton(), Qt::LeftButton);
    QCOMPARE(sheet->ShowingPage(), kPageTypes);
    QCOMPARE(sheet->NextButton().text(), QStringLiteral("Next"));
    QTest::mouseClick(&sheet->HelpButton(), Qt::LeftButton);
    QCOMPARE(harness.services.helpTopics, (QList<int>{19461}));
    // Leaving the Graphs page a second time without a graph makes the default one.
    QVERIFY(sheet->RequestPage(kPageGraphs));
    QVERIFY(sheet->RequestPage(kPageFunctions));
    QCOMPARE(document.Content().graphs.count(), 1);
    QCOMPARE(QString::fromStdString(document.Content().currentGraph->Name),
             QStringLiteral("DefaultGraphName"));
    // The sheet opens again where it was closed.
    sheet->reject();
    sheet = open_graph_setup(harness.Bench(), document);
    QCOMPARE(sheet->ShowingPage(), kPageFunctions);
}

void GraphSetupSheetTest::aNewGraphIsWalkedToFinishBuiltSavedAndOpenedAgain() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    Declare(document, "f[x]=x^2");
    QPointer<GraphSetupSheet> sheet = open_graph_setup(harness.Bench(), document);
    GraphsPage &graphs = GraphsOf(*sheet);
    graphs.NameBox().clear();
    QTest::keyClicks(&graphs.NameBox(), QStringLiteral("Parabola"));
    QTest::mouseClick(&graphs.AddButton(), Qt::LeftButton);
    QCOMPARE(Rows(graphs.GraphList()), QStringList{"Parabola"});
    QCOMPARE(sheet->windowTitle(), QStringLiteral("Graph Setup For : Parabola"));
    QTest::mouseClick(&sheet->NextButton(), Qt::LeftButton);  // "Graph Functions"
    QCOMPARE(sheet->ShowingPage(), kPageFunctions);

    FunctionsPage &functions = FunctionsOf(*sheet);
    QCOMPARE(Rows(functions.DefinedList()), QStringList{"f[x] = x^2"});
    QVERIFY(functions.ToGraphList().count() == 0);
    // Next without a function stays, with its message.
    harness.boxes.Expect(QStringLiteral("You must graph either a function or data points"), kIdOk);
    QTest::mouseClick(&sheet->NextButton(), Qt::LeftButton);
    QCOMPARE(sheet->ShowingPage(), kPageFunctions);
    functions.DefinedList().setCurrentRow(0);
    QTest::mouseClick(&functions.AddButton(), Qt::LeftButton);
    QCOMPARE(Rows(functions.ToGraphList()), QStringList{"f[x] = x^2"});
    QVERIFY(sheet->ApplyButton().isEnabled());

    // The Variables page chooses the axis; the test stands in for it.
    GraphSetupSession &session = document_setup_session(harness.Bench(), document);
    const Variable x("x", complex{-2, 0}, complex{2, 0}, 5);
    session.temp.SetXAxisVar(&x);
    const int walk[] = {kPageVariables, kPageTypes, kPageLabels, kPageColors};
    for (int page : walk) {
        QTest::mouseClick(&sheet->NextButton(), Qt::LeftButton);
        QCOMPARE(sheet->ShowingPage(), page);
    }
    QTest::mouseClick(&sheet->NextButton(), Qt::LeftButton);  // Finish
    QTRY_VERIFY(sheet.isNull());

    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    QVERIFY(!pane.isHidden());
    QVERIFY(pane.Shown() != nullptr);
    QCOMPARE(QString::fromStdString(pane.Shown()->Name), QStringLiteral("Parabola"));
    QVERIFY(pane.Chart2D().data().has_value());
    QCOMPARE(pane.Chart2D().data()->points(), 5);
    QCOMPARE(document.Caption(), QStringLiteral("1 - MATH EDITOR : PARABOLA"));
    GraphData &stored = *document.Content().currentGraph;
    QCOMPARE(QString::fromStdString(stored.Name), QStringLiteral("Parabola"));
    QCOMPARE(stored.GetNumFunctions(), 1);
    QCOMPARE(QString::fromStdString(stored.GetFunction(0)->full_name), QStringLiteral("f[x]"));
    QVERIFY(document.Changes().graphsChanged);
    QVERIFY(!harness.Bench().Router().State(command::kGraphSetup).checked);

    const QString path = harness.Folder() + QStringLiteral("/parabola.qnd");
    harness.nextSaveFile = path;
    QVERIFY(document.SaveAs());
    QVERIFY(!document.Changes().graphsChanged);
    harness.Bench().CloseDocument(&document);
    harness.Bench().OpenFiles({path});
    DocumentWindow *again = harness.Current();
    QVERIFY(again != nullptr);
    QCOMPARE(again->Content().graphs.count(), 1);
    const GraphData &read = *again->Content().graphs.gethead();
    QCOMPARE(QString::fromStdString(read.Name), QStringLiteral("Parabola"));
    QCOMPARE(QString::fromStdString(read.Header), QStringLiteral("Parabola"));
    QCOMPARE(read.GetNumFunctions(), 1);
    QCOMPARE(QString::fromStdString(read.GetFunction(0)->full_name), QStringLiteral("f[x]"));
    QCOMPARE(QString::fromStdString(read.GetFunction(0)->func_value), QStringLiteral("x^2"));
}

void GraphSetupSheetTest::aPageWithAnErrorRefusesToBeLeftAndKeepsTheFocus() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    SetupPageMakers makers = kSetupPageMakers;
    makers[kPagePoints] = MakeRefusingPage;
    GraphSetupSession &session = document_setup_session(harness.Bench(), document);
    auto *sheet = new GraphSetupSheet(harness.Bench(), document, session, std::nullopt, makers);
    sheet->show();
    refuse = true;
    QVERIFY(sheet->RequestPage(kPagePoints));
    QTabBar *bar = sheet->Tabs().tabBar();
    harness.boxes.Expect(QStringLiteral("You must first choose a graph name!"), kIdOk);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(kPageTypes).center());
    QCOMPARE(sheet->ShowingPage(), kPagePoints);
    QCOMPARE(sheet->Tabs().currentIndex(), kPagePoints);
    auto *page = static_cast<RefusingPage *>(sheet->PageWidget(kPagePoints));
    QTRY_COMPARE(sheet->focusWidget(), static_cast<QWidget *>(page->box));
    harness.boxes.Expect(QStringLiteral("You must first choose a graph name!"), kIdOk);
    QTest::keyClick(&sheet->Tabs(), Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(sheet->ShowingPage(), kPagePoints);
    QCOMPARE(harness.boxes.shown.size(), 2);
    harness.boxes.Expect(QStringLiteral("You must first choose a graph name!"), kIdOk);
    QTest::mouseClick(&sheet->NextButton(), Qt::LeftButton);  // Next checks, then leaves
    QCOMPARE(sheet->ShowingPage(), kPagePoints);
    refuse = false;
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(kPageTypes).center());
    QCOMPARE(sheet->ShowingPage(), kPageTypes);
    QCOMPARE(sheet->Tabs().currentIndex(), kPageTypes);
    QCOMPARE(session.curPageId, 1008);
    // While a build runs only the Colors page can be chosen.
    sheet->EnableGraphSetup(false);
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(kPageLabels).center());
    QCOMPARE(sheet->ShowingPage(), kPageTypes);
    QVERIFY(!GraphsOf(*sheet).isEnabled());
    QVERIFY(sheet->PageWidget(kPageColors)->isEnabled());
    sheet->EnableGraphSetup(true);
    QVERIFY(GraphsOf(*sheet).isEnabled());
    sheet->reject();
}

void GraphSetupSheetTest::cancelLeavesTheDocumentsGraphUnchanged() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    GraphData &stored = AddParabola(document);
    QPointer<GraphSetupSheet> sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(sheet->RequestPage(kPageFunctions));
    FunctionsPage &functions = FunctionsOf(*sheet);
    QCOMPARE(Rows(functions.ToGraphList()), QStringList{"f[x] = x^2"});
    functions.ToGraphList().setCurrentRow(0);
    QTest::mouseClick(&functions.RemoveButton(), Qt::LeftButton);
    QCOMPARE(functions.ToGraphList().count(), 0);
    QVERIFY(!functions.RemoveButton().isEnabled());
    QCOMPARE(document_setup_session(harness.Bench(), document).temp.GetNumFunctions(), 0);
    sheet->reject();
    QTRY_VERIFY(sheet.isNull());
    QCOMPARE(stored.GetNumFunctions(), 1);
    QVERIFY(!document.Changes().graphsChanged);
    sheet = open_graph_setup(harness.Bench(), document);
    QCOMPARE(sheet->ShowingPage(), kPageFunctions);
    QCOMPARE(Rows(FunctionsOf(*sheet).ToGraphList()), QStringList{"f[x] = x^2"});
}

void GraphSetupSheetTest::aBuildWithErrorsListsThemAndKeepsTheSheet() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    Declare(document, "h[x]=1/(x-2)");
    GraphData *graph = add_new_graph(document.Content().graphs, "Pole", nullptr);
    graph->AddFunction("h[x]", "1/(x-2)");
    const Variable x("x", complex{0, 0}, complex{4, 0}, 5);
    graph->SetXAxisVar(&x);
    QPointer<GraphSetupSheet> sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(sheet->RequestPage(kPageFunctions));
    harness.boxes.Expect(QStringLiteral("Errors occured while calculating the data for the graph "
                                        "\"Pole\""),
                         kIdOk);
    sheet->RequestPage(kPageColors);
    QTest::mouseClick(&sheet->NextButton(), Qt::LeftButton);  // Finish
    QVERIFY(!sheet.isNull());
    QCOMPARE(sheet->ShowingPage(), kPageGraphs);
    QListWidget &errors = GraphsOf(*sheet).ErrorList();
    QCOMPARE(errors.count(), 1);
    QVERIFY(errors.item(0)->text().startsWith(QStringLiteral("An error occured at x = 2")));
    QTRY_COMPARE(errors.currentRow(), 0);
    QCOMPARE(sheet->focusWidget(), static_cast<QWidget *>(&errors));
    QVERIFY(sheet->PagesEnabled());
    QVERIFY(!document_graph_pane(harness.Bench(), document).isHidden());
}

void GraphSetupSheetTest::messagesComeTitledGraphingUtility() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    GraphsPage &graphs = GraphsOf(*sheet);
    graphs.NameBox().clear();
    QTest::keyClicks(&graphs.NameBox(), QStringLiteral("g"));
    harness.boxes.Expect(QStringLiteral("This graph name has been defined already"), kIdOk);
    QTest::mouseClick(&graphs.AddButton(), Qt::LeftButton);
    harness.boxes.Expect(QStringLiteral("Are you sure that you want to delete \"G\"?"), kIdYes);
    QTest::mouseClick(&graphs.DeleteButton(), Qt::LeftButton);
    QCOMPARE(harness.boxes.shown,
             (QStringList{"Graphing Utility: This graph name has been defined already, use a "
                          "unique graph name!",
                          "Graphing Utility: Are you sure that you want to delete \"G\"?"}));
    QCOMPARE(document.Content().graphs.count(), 0);
    QCOMPARE(graphs.NameBox().text(), QStringLiteral("DefaultGraphName"));
    QVERIFY(!graphs.EditButton().isEnabled());
    QVERIFY(document.Changes().graphsChanged);
}

void GraphSetupSheetTest::theGraphPaneOpensTheSheetAndTheButtonShowsIt() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(!router.State(command::kGraphSetup).enabled);
    // The graph window with nothing to draw opens Graph Setup beside it.
    QVERIFY(router.Execute(command::kShowGraphWindow));
    GraphSetupSheet *sheet = find_graph_setup(document);
    QVERIFY(sheet != nullptr);
    QVERIFY(router.State(command::kGraphSetup).enabled);
    QVERIFY(router.State(command::kGraphSetup).checked);
    QVERIFY(close_graph_setup(harness.Bench(), document));
    QTRY_VERIFY(find_graph_setup(document) == nullptr);
    QVERIFY(!router.State(command::kGraphSetup).checked);
    QVERIFY(!close_graph_setup(harness.Bench(), document));

    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    pane.resize(400, 300);
    const QPoint at(40, 30);
    pane.Click(at);
    sheet = find_graph_setup(document);
    QVERIFY(sheet != nullptr);
    QCOMPARE(sheet->pos(), pane.Chart2D().mapToGlobal(at));
    sheet->reject();
    QTRY_VERIFY(find_graph_setup(document) == nullptr);
    QVERIFY(router.Execute(command::kGraphSetup));
    QVERIFY(find_graph_setup(document) != nullptr);
}

void GraphSetupSheetTest::oneSheetInTheWholeProgram() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow &first = desk.document;
    QPointer<GraphSetupSheet> sheet = open_graph_setup(harness.Bench(), first);
    QVERIFY(harness.Bench().Router().Execute(command::kFileNew));
    DocumentWindow &second = *harness.Current();
    QVERIFY(&second != &first);
    // Another document in front closes the sheet of the first.
    QTRY_VERIFY(sheet.isNull());
    QVERIFY(open_graph_setup(harness.Bench(), second) != nullptr);
    harness.Client().Activate(0);
    QCOMPARE(harness.Current(), &first);
    sheet = open_graph_setup(harness.Bench(), first);
    QTRY_VERIFY(find_graph_setup(second) == nullptr);
    QVERIFY(!sheet.isNull());
}

void GraphSetupSheetTest::theSolversInsertGoesToTheFunctionsPage() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(!functions_page_showing(document));
    QVERIFY(sheet->RequestPage(kPageFunctions));
    QVERIFY(functions_page_showing(document));
    auto *solver =
        new FunctionSolverDialog(harness.Bench(), document, QStringLiteral("SIN[x]"), QString());
    solver->show();
    QVERIFY(solver->functionsPageShowing);
    QTest::mouseClick(solver->InsertFunctionButton(), Qt::LeftButton);
    QCOMPARE(Rows(FunctionsOf(*sheet).ToGraphList()), (QStringList{"f[x] = x^2", "SIN[x]"}));
    solver->close();
}

// The Function Manager's Insert hands a declared function whole to the Functions page that
// shows, and leaves the text alone.
void GraphSetupSheetTest::theFunctionManagersInsertGoesToTheFunctionsPage() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    Declare(document, "g[x]=2*x");
    const QString text = document.TextPane().toPlainText();
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(sheet->RequestPage(kPageFunctions));
    ManagerDialog manager(ManagerKind::Functions, document.Panes(), "g");
    manager.NameBox().setEditText(QStringLiteral("g"));
    manager.Insert();
    QCOMPARE(Rows(FunctionsOf(*sheet).ToGraphList()), (QStringList{"f[x] = x^2", "g[x] = 2*x"}));
    QCOMPARE(document.TextPane().toPlainText(), text);
}

void GraphSetupSheetTest::draggingARowBackTakesItOffTheGraph() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    Declare(document, "g[x]=2*x");
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    sheet->resize(700, 450);
    QVERIFY(sheet->RequestPage(kPageFunctions));
    FunctionsPage &functions = FunctionsOf(*sheet);
    FunctionDragList &defined = functions.DefinedList();
    FunctionDragList &toGraph = functions.ToGraphList();
    const auto drag = [](FunctionDragList &from, int row, FunctionDragList &to) {
        const QPoint start = from.visualItemRect(from.item(row)).center();
        QTest::mousePress(from.viewport(), Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, start + QPoint(0, 30),
                         from.viewport()->mapToGlobal(start + QPoint(0, 30)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(from.viewport(), &move);
        const QPoint over = from.viewport()->mapFromGlobal(
            to.viewport()->mapToGlobal(to.viewport()->rect().center()));
        QTest::mouseRelease(from.viewport(), Qt::LeftButton, {}, over);
    };
    drag(defined, 1, toGraph);
    QCOMPARE(Rows(toGraph), (QStringList{"f[x] = x^2", "g[x] = 2*x"}));
    QCOMPARE(Rows(defined).size(), 2);
    drag(toGraph, 0, defined);
    QCOMPARE(Rows(toGraph), QStringList{"g[x] = 2*x"});
    // A function declared meanwhile shows when the sheet comes forward again.
    Declare(document, "h[x]=x+1");
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(sheet, &activate);
    QCOMPARE(Rows(defined), (QStringList{"f[x] = x^2", "g[x] = 2*x", "h[x] = x+1"}));
    QCOMPARE(document_setup_session(harness.Bench(), document).temp.GetNumFunctions(), 1);
    toGraph.setCurrentRow(0);
    QTest::keyClick(&toGraph, Qt::Key_Delete);
    QCOMPARE(toGraph.count(), 0);
}

void GraphSetupSheetTest::closingTheDocumentTakesItsSheetAlong() {
    SetupDesk desk;
    DesktopHarness &harness = desk.harness;
    DocumentWindow *document = &desk.document;
    QPointer<GraphSetupSheet> sheet = open_graph_setup(harness.Bench(), *document);
    QVERIFY(sheet->RequestPage(kPageFunctions));
    harness.Bench().CloseDocument(document);
    QTRY_VERIFY(sheet.isNull());
    QVERIFY(harness.Current() == nullptr);
}

void GraphSetupSheetTest::deletingAFunctionAGraphPlotsAsksFirst() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    Declare(document, "g[x]=2*x");
    Parser &parser = document.Engine();
    harness.boxes.Expect(QStringLiteral("Is Required For One Or More Defined Graphs"), kIdNo);
    QVERIFY(!document.Panes().DeleteFunction(parser.find_function("f[x]"), true, false));
    QVERIFY(parser.find_function("f[x]") >= 0);
    // A function no graph plots goes without a question when none is asked for.
    QVERIFY(document.Panes().DeleteFunction(parser.find_function("g[x]"), true, false));
    QVERIFY(parser.find_function("g[x]") < 0);
}

void GraphSetupSheetTest::theFunctionLibraryInsertsIntoTheFunctionsPage() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(harness.Bench().RunClientTool(command::kFunctionLibrary));
    auto *library = harness.Frame().findChild<FunctionLibraryDialog *>();
    QVERIFY(library != nullptr);
    QTRY_VERIFY(bool(library->graphSetupOpen));
    QVERIFY(!library->graphSetupOpen());
    QVERIFY(sheet->RequestPage(kPageFunctions));
    QVERIFY(library->graphSetupOpen());
    library->addToGraphSetup(QStringLiteral("COS[x]"));
    QCOMPARE(Rows(FunctionsOf(*sheet).ToGraphList()), (QStringList{"f[x] = x^2", "COS[x]"}));
    library->close();
}

void GraphSetupSheetTest::aFunctionDeletedInTheManagerLeavesTheGraph() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    QVERIFY(sheet->RequestPage(kPageFunctions));
    FunctionsPage &functions = FunctionsOf(*sheet);
    functions.ToGraphList().setCurrentRow(0);
    QString managerShown;
    harness.Bench().runDialog = [&](QDialog &dialog) {
        if (auto *name = dialog.findChild<QComboBox *>()) managerShown = name->currentText();
        Parser &parser = document.Engine();
        parser.delete_function(parser.find_function("f[x]"));
    };
    harness.boxes.Expect(QStringLiteral("The function \"f[x] = x^2\" is no longer defined and "
                                        "will be removed from \"G\"!"),
                         kIdOk);
    QTest::mouseClick(&functions.EditButton(), Qt::LeftButton);
    QCOMPARE(managerShown, QStringLiteral("f(x)"));  // the manager shows the document's brackets
    QCOMPARE(functions.ToGraphList().count(), 0);
    QCOMPARE(functions.DefinedList().count(), 0);
    QVERIFY(sheet->ApplyButton().isEnabled());
}

void GraphSetupSheetTest::screenshotsOfTheGraphsAndFunctionsPages() {
    SetupDesk desk(true);
    DesktopHarness &harness = desk.harness;
    DocumentWindow &document = desk.document;
    Declare(document, "g[x]=2*x");
    GraphSetupSheet *sheet = open_graph_setup(harness.Bench(), document);
    GraphsOf(*sheet).ErrorList().addItem(QStringLiteral("An error occured at x = 2 : example"));
    const QImage graphsShot = sheet->grab().toImage();
    QVERIFY(!graphsShot.isNull());
    QVERIFY(graphsShot.save(QStringLiteral(QUINDAR_BUILD_DIR "graph_setup_graphs.png")));
    QVERIFY(sheet->RequestPage(kPageFunctions));
    const QImage functionsShot = sheet->grab().toImage();
    QVERIFY(functionsShot.save(QStringLiteral(QUINDAR_BUILD_DIR "graph_setup_functions.png")));
}

QTEST_MAIN(GraphSetupSheetTest)
#include "test_graph_setup_sheet.moc"
