// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The graph pane inside a document of the desktop program: the build with its progress and
// Cancel, the refusal to close while building, the swap back to the text, point labels,
// Copy, Save Graph To File and Open Graph From File.

#include <QAbstractAxis>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QLineSeries>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QtTest>
#include <memory>
#include <string>
#include <vector>

#include "chart_data.h"
#include "chart_view_2d.h"
#include "chart_view_3d.h"
#include "command_router.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_graph_tools.h"
#include "document_panes.h"
#include "document_window.h"
#include "graph_pane.h"
#include "graph_progress_dialog.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "message_box_rules.h"
#include "parser.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

// f(x) = 1/(x-2) on 0..4: point (x = 2) of the points fails and is a hole.
GraphData &AddGraph(DocumentWindow &document, long points) {
    document.Engine().eval_exp("f(x)=1/(x-2)", true, false);
    DocumentContent &content = document.Content();
    GraphData *graph = add_new_graph(content.graphs, "G", nullptr);
    graph->AddFunction("f(x)", "");
    const Variable x("x", complex{0, 0}, complex{4, 0}, points);
    graph->SetXAxisVar(&x);
    content.currentGraph = graph;
    return *graph;
}

int Holes(const ChartData2D &data) {
    int holes = 0;
    for (int point = 0; point < data.points(); ++point) holes += data.y(0, point) == data.hole();
    return holes;
}

// The value of one key in a graph file's section.
QString FileKey(const QString &path, const QString &key) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return QStringLiteral("(unreadable)");
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith(key.toUtf8() + "="))
            return QString::fromUtf8(line.mid(key.size() + 1)).trimmed();
    return QStringLiteral("(missing)");
}

}  // namespace

class DocumentGraphsTest : public QObject {
    Q_OBJECT
private slots:
    void graphCommandBuildsAndSwapsBackKeepingTheText();
    void closingIsRefusedDuringABuildAndCancelKeepsWhatWasComputed();
    void aClickTogglesAPointLabel();
    void savedGraphOpensAgain();
    void openingAFileOfAnotherKindIsRefused();
    void viewCommandsChangeTheGraphAndTheDocument();
    void doubleClickOnTheHeaderEditsItInPlace();
    void aSurfaceWithoutOpenGlShowsANoticeAndStillSaves();
    void thePopUpRepeatsTheGraphMenu();
    void aGraphWhoseEveryPointFailsDrawsAnEmptyChart();
    void closingTheProgramDuringABuildIsRefused();
    void viewCommandsOnAGraphFileWriteItsKeys();
};

void DocumentGraphsTest::graphCommandBuildsAndSwapsBackKeepingTheText() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    document.TextPane().setPlainText(QStringLiteral("a=1\nkept text"));
    AddGraph(document, 41);
    if (!document.Panes().FunctionsListOpen())
        document.Panes().CommandHandler(command::kFunctionsList);
    QVERIFY(document.Panes().FunctionsListOpen());
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    QVERIFY(!pane.isHidden());
    QVERIFY(document.TextPane().isHidden());
    // The lists close while the graph shows the document, and stay closed after.
    QVERIFY(!document.Panes().VariablesListOpen());
    QVERIFY(!document.Panes().FunctionsListOpen());
    QCOMPARE(document.Caption(), QStringLiteral("1 - MATH EDITOR : G"));
    const ChartView2D &chart = pane.Chart2D();
    QVERIFY(chart.data().has_value());
    QCOMPARE(chart.data()->points(), 41);
    QCOMPARE(Holes(*chart.data()), 1);
    // The hole at x = 2 splits the curve in two.
    QCOMPARE(chart.chart()->series().size(), 2);
    CommandState state;
    QVERIFY(document.CommandEnabler(command::kCopyGraph, state));
    QVERIFY(state.enabled);
    QVERIFY(document.CommandEnabler(command::kShowGraphWindow, state));
    QVERIFY(state.checked);

    // The whole program with the graph in its document, for a look.
    harness.Frame().resize(1000, 700);
    harness.Frame().show();
    QVERIFY(QTest::qWaitForWindowExposed(&harness.Frame()));
    QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens"));
    QVERIFY(harness.Frame().grab().save(
        QStringLiteral(QUINDAR_BUILD_DIR "screens/document_graph2d.png")));

    QGuiApplication::clipboard()->clear();
    QVERIFY(harness.Bench().Router().Execute(command::kCopyGraph));
    QVERIFY(!QGuiApplication::clipboard()->image().isNull());

    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    QVERIFY(pane.isHidden());
    QVERIFY(!document.TextPane().isHidden());
    QVERIFY(document.TextPane().isVisible());
    QVERIFY(!document.Panes().VariablesListOpen());
    QCOMPARE(document.TextPane().toPlainText(), QStringLiteral("a=1\nkept text"));
    QCOMPARE(document.Caption(), QStringLiteral("1 - MATH EDITOR"));
    QVERIFY(document.CommandEnabler(command::kCopyGraph, state));
    QVERIFY(!state.enabled);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::closingIsRefusedDuringABuildAndCancelKeepsWhatWasComputed() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddGraph(document, 4001);
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    pane.pumpMilliseconds = 0;  // every report pumps, so the timer runs inside the build
    harness.boxes.Expect(QStringLiteral("You are currently building a graph"), kIdOk);
    harness.boxes.Expect(QStringLiteral("You are currently building a graph"), kIdOk);
    bool refused = false, textRefused = false;
    QTimer::singleShot(0, &pane, [&] {
        QVERIFY(pane.Building());
        refused = !document.CanClose();
        document.ForgetCloseAnswer();
        harness.Bench().Router().Execute(command::kShowMathWindow);
        textRefused = !pane.isHidden();
        QVERIFY(pane.Progress() != nullptr);
        pane.Progress()->cancelButton()->click();
    });
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    QVERIFY(refused);
    QVERIFY(textRefused);
    QVERIFY(!pane.Building());
    // The points computed before the Cancel are drawn; the rest stay holes.
    const ChartView2D &chart = pane.Chart2D();
    QVERIFY(chart.data().has_value());
    const int holes = Holes(*chart.data());
    QVERIFY2(holes > 1 && holes < 4001, qPrintable(QString::number(holes)));
    QVERIFY(!chart.chart()->series().isEmpty());
    QVERIFY(!document.activity().buildingGraph);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::aClickTogglesAPointLabel() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddGraph(document, 5);  // x = 0, 1, 2 (hole), 3, 4
    harness.Frame().resize(900, 700);
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    ChartView2D &chart = pane.Chart2D();
    chart.resize(600, 400);
    chart.layout()->activate();
    QAbstractSeries *second = chart.chart()->series().at(1);  // the run after the hole
    const QPointF inChart = chart.chart()->mapToPosition(QPointF(3, 1), second);
    const QPoint at = chart.chartView()->mapTo(
        &chart, chart.chartView()->mapFromScene(chart.chart()->mapToScene(inChart)));
    QCOMPARE(chart.pick(at).point, 3);
    pane.Click(at);
    QVERIFY(chart.hasLabel(0, 3));
    pane.Click(at + QPoint(3, 3));
    QCOMPARE(chart.labelCount(), 0);
    pane.Click(at + QPoint(0, 12));  // too far: nothing
    QCOMPARE(chart.labelCount(), 0);
    // Labels show the digits the text's answers show.
    document.Engine().answer_format->precision = 3;
    QCOMPARE(pane.formatValue(2.0 / 3), QStringLiteral("0.667"));
    document.Engine().answer_format->precision = 14;
    QCOMPARE(pane.formatValue(2.0 / 3), QStringLiteral("0.66666666666667"));
    // Shift as the last key: that click adds nothing, the next one does.
    QTest::keyPress(&pane, Qt::Key_Shift);
    pane.Click(at);
    QCOMPARE(chart.labelCount(), 0);
    pane.Click(at);
    QVERIFY(chart.hasLabel(0, 3));
    // Any other key clears it again.
    pane.Click(at);
    QTest::keyPress(&pane, Qt::Key_Control);
    QTest::keyPress(&pane, Qt::Key_A);
    pane.Click(at);
    QVERIFY(chart.hasLabel(0, 3));
}

void DocumentGraphsTest::savedGraphOpensAgain() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddGraph(document, 9);
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    const ChartData2D built = *pane.Chart2D().data();
    const QString path = harness.Folder() + QStringLiteral("/saved");
    harness.nextSaveFile = path;
    QVERIFY(harness.Bench().Router().Execute(command::kSaveGraphFile));
    QVERIFY(QFile::exists(path + QStringLiteral(".g2d")));

    harness.nextOpenFiles = {path + QStringLiteral(".g2d")};
    QVERIFY(harness.Bench().Router().Execute(command::kOpenGraphFile));
    QVERIFY(pane.Chart2D().data().has_value());
    QVERIFY(*pane.Chart2D().data() == built);
    QCOMPARE(harness.dialogTitles, (QStringList{"Save Graph As", "Open Graph File"}));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::openingAFileOfAnotherKindIsRefused() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    harness.nextOpenFiles = {harness.Folder() + QStringLiteral("/notes.txt")};
    harness.boxes.Expect(QStringLiteral("You must select a valid Quindar graph file"), kIdOk);
    QVERIFY(harness.Bench().Router().Execute(command::kOpenGraphFile));
    QVERIFY(harness.boxes.shown.front().startsWith(QStringLiteral("Open Graph File Error: ")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::viewCommandsChangeTheGraphAndTheDocument() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    GraphData &stored = AddGraph(document, 9);
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(router.Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    QChart *before = pane.Chart2D().chart();
    QCOMPARE(before->margins(), QMargins(20, 20, 20, 20));
    QVERIFY(router.Execute(command::kIncreaseMargins));
    QCOMPARE(pane.Chart2D().chart()->margins(), QMargins(45, 45, 45, 45));
    QCOMPARE(stored.MarginLeft2D, 45);
    QVERIFY(document.Changes().graphsChanged);
    QVERIFY(router.Execute(command::kDecreaseMargins));
    QVERIFY(router.Execute(command::kDecreaseMargins));
    QCOMPARE(pane.Chart2D().chart()->margins(), QMargins(-5, -5, -5, -5));
    harness.boxes.Expect(QStringLiteral("The current margins have been saved as the default"),
                         kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultMargins));
    QCOMPARE(stored.DefaultMarginTop2D, -5);
    QVERIFY(router.Execute(command::kIncreaseMargins));
    QVERIFY(router.Execute(command::kSetDefaultMargins));
    QCOMPARE(pane.Chart2D().chart()->margins(), QMargins(-5, -5, -5, -5));

    QVERIFY(router.Execute(command::kLogarithmicY));
    QCOMPARE(stored.YAxisLogarithmic, 1);
    QCOMPARE(pane.Chart2D().chart()->axes(Qt::Vertical).front()->type(),
             QAbstractAxis::AxisTypeLogValue);
    QVERIFY(router.Execute(command::kGridLines));
    QCOMPARE(stored.ShowGridLines, 0);
    QVERIFY(!pane.Chart2D().chart()->axes(Qt::Horizontal).front()->isGridLineVisible());

    // A Bar graph has no logarithmic X axis: the message, and nothing changes.
    pane.Shown2D()->GraphType2D = 2;
    harness.boxes.Expect(QStringLiteral("Logrithmic X-Axis is only supported"), kIdOk);
    QVERIFY(router.Execute(command::kLogarithmicX));
    QCOMPARE(stored.XAxisLogarithmic, 0);
    QVERIFY(harness.boxes.shown.back().startsWith(QStringLiteral("Graph Window: ")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::doubleClickOnTheHeaderEditsItInPlace() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    GraphData &stored = AddGraph(document, 9);
    stored.SetHeader("Old header");
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    ChartView2D &chart = pane.Chart2D();
    chart.resize(600, 400);
    chart.layout()->activate();
    const QPoint header = chart.headerRect().center();
    QVERIFY(!header.isNull());
    pane.DoubleClick(header);
    QLineEdit *editor = pane.TitleEditor();
    QVERIFY(editor != nullptr);
    QCOMPARE(editor->text(), QStringLiteral("Old header"));
    QCOMPARE(editor->maxLength(), 512);
    editor->setText(QStringLiteral("New header"));
    pane.Click(header);  // in the header being edited: still open
    QVERIFY(pane.TitleEditor() != nullptr);
    pane.Click(chart.rect().center());  // elsewhere: taken
    QVERIFY(pane.TitleEditor() == nullptr);
    QCOMPARE(chart.header()->text(), QStringLiteral("New header"));
    QCOMPARE(stored.Header, std::string("New header"));
    QVERIFY(document.Changes().graphsChanged);
}

void DocumentGraphsTest::aSurfaceWithoutOpenGlShowsANoticeAndStillSaves() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    document.Engine().eval_exp("s(x,z)=x*z", true, false);
    DocumentContent &content = document.Content();
    GraphData *graph = add_new_graph(content.graphs, "S", nullptr);
    graph->AddFunction("s(x,z)", "");
    const Variable x("x", complex{0, 0}, complex{1, 0}, 6);
    const Variable z("z", complex{0, 0}, complex{1, 0}, 4);
    graph->SetXAxisVar(&x);
    graph->SetZAxisVar(&z);
    content.currentGraph = graph;
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    QVERIFY(pane.Chart3D() != nullptr);
    QVERIFY(!pane.Chart3D()->canDraw());  // the offscreen display has no OpenGL
    QVERIFY(pane.Notice().startsWith(QStringLiteral("3-D graphs need OpenGL")));
    QVERIFY(!pane.Image(QSize(300, 200)).isNull());
    harness.nextSaveFile = harness.Folder() + QStringLiteral("/surface.g3d");
    QVERIFY(harness.Bench().Router().Execute(command::kSaveGraphFile));
    QFile saved(harness.nextSaveFile.isEmpty() ? harness.Folder() + QStringLiteral("/surface.g3d")
                                               : QString());
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QVERIFY(saved.readAll().startsWith("QUINDAR GRAPH DATA"));
    saved.close();

    // Opened again, its view commands work without a chart that draws: scale steps by a tenth,
    // and the default scale is kept whole.
    const QString path = harness.Folder() + QStringLiteral("/surface.g3d");
    harness.nextOpenFiles = {path};
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(router.Execute(command::kOpenGraphFile));
    QVERIFY(pane.File3D() != nullptr);
    QVERIFY(router.Execute(command::kIncreaseMargins));
    QVERIFY(router.Execute(command::kIncreaseMargins));
    QCOMPARE(pane.File3D()->view[6], 1.2f);
    harness.boxes.Expect(QStringLiteral("The current margins have been saved as the default"),
                         kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultMargins));
    QCOMPARE(FileKey(path, QStringLiteral("DefaultScale")), QStringLiteral("1.000"));
    QCOMPARE(FileKey(path, QStringLiteral("Scale")), QStringLiteral("1.200"));
    harness.boxes.Expect(
        QStringLiteral("The current x,y,z rotation has been saved as the default orientation."),
        kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultOrientation));
    QCOMPARE(FileKey(path, QStringLiteral("DefaultScale")), QStringLiteral("1.200"));
    QVERIFY(router.Execute(command::kSetDefaultMargins));
    QCOMPARE(pane.File3D()->view[6], 1.0f);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::thePopUpRepeatsTheGraphMenu() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddGraph(document, 9);
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    std::unique_ptr<QMenu> menu(make_graph_popup(harness.Bench(), &document));
    QStringList texts;
    for (QAction *action : menu->actions())
        texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    QCOMPARE(texts.first(), QStringLiteral("&Graph Setup..."));
    QVERIFY(texts.contains(QStringLiteral("&Margins")));
    QCOMPARE(texts.last(), QStringLiteral("Show &Math Window"));
    for (QAction *action : menu->actions())
        if (action->text() == QStringLiteral("&Copy Graph To Clip Board"))
            QVERIFY(action->isEnabled());
}

void DocumentGraphsTest::aGraphWhoseEveryPointFailsDrawsAnEmptyChart() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    // A data set whose every Y fails, then a function that cannot even be mapped.
    GraphData *points = add_new_graph(document.Content().graphs, "Points", nullptr);
    StrDataPnts *set = points->DataSets.add();
    set->SetName("d");
    const char *xs[] = {"1", "2", "3", "4"};
    for (int i = 0; i < 4; ++i) {
        set->PutXDataPoint(xs[i], i);
        set->PutYDataPoint("1/0", i);
    }
    points->SetHeader("Nothing computes");
    document.Engine().eval_exp("f(x)=1/(x-x)", true, false);
    GraphData *broken = add_new_graph(document.Content().graphs, "Broken", nullptr);
    broken->AddFunction("f(x)", "");
    const Variable x("x", complex{0, 0}, complex{1, 0}, 6);
    broken->SetXAxisVar(&x);
    broken->SetHeader("Not even mapped");
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    struct Case {
        GraphData *graph;
        std::size_t errors;
        const char *error;
        bool data;
        const char *header;
    };
    const Case cases[] = {
        {points, 4, "Division By Zero", true, "Nothing computes"},
        {broken, 2, "could not be mapped", false, "Not even mapped"},
    };
    for (const Case &c : cases) {
        // The build reports what failed to the error list.
        std::vector<std::string> errors;
        GraphBuildOutput output;
        output.add_error = [&errors](std::string_view line) { errors.emplace_back(line); };
        pane.Build(document.Engine(), *c.graph, &document.Content().graphs, output);
        QCOMPARE(errors.size(), c.errors);
        QVERIFY2(errors.back().find(c.error) != std::string::npos, errors.back().c_str());
        // An empty chart of this graph, never the one before, and no crash.
        ChartView2D &chart = pane.Chart2D();
        QCOMPARE(pane.CurrentView() != nullptr, c.data);
        QVERIFY(chart.chart()->series().isEmpty());
        QCOMPARE(chart.header()->text(), QString::fromUtf8(c.header));
        if (c.data) QCOMPARE(Holes(*chart.data()), 4);
        QVERIFY(!chart.renderImage(QSize(400, 300)).isNull());
        // A click anywhere on it finds no point to label.
        pane.Click(QPoint(200, 150));
        QCOMPARE(chart.labelCount(), 0);
    }
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::closingTheProgramDuringABuildIsRefused() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddGraph(document, 4001);
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    pane.pumpMilliseconds = 0;
    harness.boxes.Expect(QStringLiteral("You are currently building a graph, you must first stop "
                                        "the computation process before closing the window?"),
                         kIdOk);
    bool frameClosed = true;
    QTimer::singleShot(0, &pane, [&] {
        QVERIFY(pane.Building());
        frameClosed = harness.Frame().close();
        pane.Progress()->cancelButton()->click();
    });
    QVERIFY(harness.Bench().Router().Execute(command::kShowGraphWindow));
    QVERIFY(!frameClosed);
    QVERIFY(!harness.Bench().closing);
    QVERIFY(harness.Current() == &document);
    QVERIFY(harness.boxes.shown.front().startsWith(QStringLiteral("Graph Window: ")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphsTest::viewCommandsOnAGraphFileWriteItsKeys() {
    DesktopHarness harness;
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddGraph(document, 9);
    CommandRouter &router = harness.Bench().Router();
    QVERIFY(router.Execute(command::kShowGraphWindow));
    GraphPane &pane = document_graph_pane(harness.Bench(), document);
    const QString path = harness.Folder() + QStringLiteral("/margins.g2d");
    harness.nextSaveFile = path;
    QVERIFY(router.Execute(command::kSaveGraphFile));
    harness.nextOpenFiles = {path};
    QVERIFY(router.Execute(command::kOpenGraphFile));
    QVERIFY(pane.File2D() != nullptr);
    CommandState state;
    QVERIFY(document.CommandEnabler(command::kIncreaseMargins, state));
    QVERIFY(state.enabled);
    QVERIFY(document.CommandEnabler(command::kGridLines, state));
    QVERIFY2(!state.enabled, "the grid needs a graph's definition");
    QVERIFY(document.CommandEnabler(command::kLogarithmicY, state));
    QVERIFY(!state.enabled);

    const QMargins before = pane.Chart2D().chart()->margins();
    QVERIFY(router.Execute(command::kIncreaseMargins));
    QCOMPARE(pane.Chart2D().chart()->margins(), before + QMargins(25, 25, 25, 25));
    harness.boxes.Expect(QStringLiteral("The current margins have been saved as the default"),
                         kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultMargins));
    QCOMPARE(FileKey(path, QStringLiteral("DefaultMarginTop2D")),
             QString::number(before.top() + 25));
    QCOMPARE(FileKey(path, QStringLiteral("MarginTop2D")), QString::number(before.top() + 25));
    QVERIFY(router.Execute(command::kDecreaseMargins));
    QVERIFY(router.Execute(command::kSetDefaultMargins));
    QCOMPARE(pane.Chart2D().chart()->margins(), before + QMargins(25, 25, 25, 25));

    // Set 2D Perspective turns the chart; Save As Default writes what it shows.
    QVERIFY(router.Execute(command::kSet2DPerspective));
    harness.boxes.Expect(QStringLiteral("The current rotation, inclination and margins have been "
                                        "saved as the default orientation."),
                         kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultOrientation));
    QCOMPARE(FileKey(path, QStringLiteral("DefaultInclination")), QStringLiteral("0"));
    QCOMPARE(FileKey(path, QStringLiteral("Inclination")), QStringLiteral("0"));
    QCOMPARE(FileKey(path, QStringLiteral("DefaultDepth")), QStringLiteral("20"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

QTEST_MAIN(DocumentGraphsTest)
#include "test_document_graphs.moc"
