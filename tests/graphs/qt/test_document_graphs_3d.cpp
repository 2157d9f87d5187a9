// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A 3-D graph inside a document, on a display with OpenGL (Xvfb with Mesa): a pick labels the
// point with values from the definition, the view commands turn and zoom the chart and reach
// the document, smoothing changes the drawn data only, and a turned view survives a graph
// file. On the offscreen platform every case is skipped: it has no OpenGL.

#include <Q3DCamera>
#include <Q3DScene>
#include <Q3DSurface>
#include <QCustom3DLabel>
#include <QDir>
#include <QGuiApplication>
#include <QSurface3DSeries>
#include <QtTest>

#include "chart_camera.h"
#include "chart_view_3d.h"
#include "command_router.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_graph_tools.h"
#include "document_window.h"
#include "graph_pane.h"
#include "main_frame.h"
#include "message_box_rules.h"
#include "parser.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

// s(x,z) = x*z + x on x = 0..2 (5 points) and z = 0..3 (4 points).
GraphData &AddSurface(DocumentWindow &document) {
    document.Engine().eval_exp("s(x,z)=x*z+x", true, false);
    DocumentContent &content = document.Content();
    GraphData *graph = add_new_graph(content.graphs, "S", nullptr);
    graph->AddFunction("s(x,z)", "");
    const Variable x("x", complex{0, 0}, complex{2, 0}, 5);
    const Variable z("z", complex{0, 0}, complex{3, 0}, 4);
    graph->SetXAxisVar(&x);
    graph->SetZAxisVar(&z);
    content.currentGraph = graph;
    return *graph;
}

// The graph tools installed, and the surface built into the graph pane of the harness's
// document.
GraphPane &ShowSurface(DesktopHarness &harness) {
    install_graph_tools(harness.Bench());
    DocumentWindow &document = *harness.Current();
    AddSurface(document);
    harness.Bench().Router().Execute(command::kShowGraphWindow);
    return document_graph_pane(harness.Bench(), document);
}

bool Offscreen() {
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

Q3DSurface *SurfaceOf(GraphPane &pane) {
    return static_cast<Q3DSurface *>(pane.Chart3D()->graph());
}

QCustom3DLabel *OnlyLabel(GraphPane &pane) {
    const QList<QCustom3DItem *> items = pane.Chart3D()->graph()->customItems();
    return items.size() == 1 ? qobject_cast<QCustom3DLabel *>(items.front()) : nullptr;
}

}  // namespace

class DocumentGraphs3DTest : public QObject {
    Q_OBJECT
private slots:
    void aPickLabelsThePointFromTheDefinition();
    void viewCommandsTurnAndZoomTheChart();
    void aTurnedViewSurvivesAGraphFile();
    void aTurnedViewGoesIntoTheDocumentsGraph();
};

void DocumentGraphs3DTest::aPickLabelsThePointFromTheDefinition() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    DesktopHarness harness;
    harness.Frame().resize(1000, 760);
    harness.Frame().show();
    GraphPane &pane = ShowSurface(harness);
    QVERIFY(pane.Chart3D() != nullptr && pane.Chart3D()->canDraw());
    QVERIFY(QTest::qWaitForWindowExposed(&harness.Frame()));
    // Smoothing changes the drawn grid, never what a label says: it computes the function.
    QVERIFY(pane.Smooth());
    QSurface3DSeries *series = SurfaceOf(pane)->seriesList().front();
    const float drawn = series->dataProxy()->itemAt(2, 3)->y();  // row iz = 2, column ix = 3
    QVERIFY(std::abs(drawn - 7.5f) > 0.1f);
    // The chart answers a click with (row, column), that is (iz, ix).
    series->setSelectedPoint(QPoint(2, 3));
    QVERIFY(pane.Chart3D()->hasLabel(3, 2));
    QCustom3DLabel *label = OnlyLabel(pane);
    QVERIFY(label != nullptr);
    // x = 0 + 3 * 0.5, z = 0 + 2 * 1, y = s(1.5, 2) = 4.5.
    QCOMPARE(label->text(), QStringLiteral(" (1.5 , 4.5 , 2) "));
    // At the picked point as drawn, lifted a little over the surface.
    QCOMPARE(label->position().x(), 1.5f);
    QCOMPARE(label->position().z(), 2.0f);
    const float range = SurfaceOf(pane)->axisY()->max() - SurfaceOf(pane)->axisY()->min();
    QVERIFY(label->position().y() > drawn);
    QVERIFY(label->position().y() < drawn + 0.1f * range);
    QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens"));
    QVERIFY(pane.Image(pane.size())
                .save(QStringLiteral(QUINDAR_BUILD_DIR "screens/document_graph3d_label.png")));
    // The same point again takes the label away.
    series->setSelectedPoint(QPoint(2, 3));
    QCOMPARE(pane.Chart3D()->labelCount(), 0);
    // With point labels off a pick adds nothing.
    QVERIFY(harness.Bench().Router().Execute(command::kPointLabels));
    series->setSelectedPoint(QPoint(1, 1));
    QCOMPARE(pane.Chart3D()->labelCount(), 0);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphs3DTest::viewCommandsTurnAndZoomTheChart() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    DesktopHarness harness;
    GraphPane &pane = ShowSurface(harness);
    DocumentWindow &document = *harness.Current();
    GraphData &stored = *document.Content().currentGraph;
    CommandRouter &router = harness.Bench().Router();
    const float zoomAtOne = pane.Chart3D()->camera().zoom;
    CommandState state;
    QVERIFY(document.CommandEnabler(command::kIncreaseMargins, state));
    QVERIFY(state.enabled);
    QVERIFY(document.CommandEnabler(command::kLogarithmicX, state));
    QVERIFY2(!state.enabled, "a 3-D graph has no logarithmic axes");

    QVERIFY(router.Execute(command::kIncreaseMargins));
    QCOMPARE(stored.Scale, 1.1f);
    QCOMPARE(pane.Chart3D()->camera().zoom, zoomAtOne * 1.1f);
    QVERIFY(document.Changes().graphsChanged);
    QVERIFY(router.Execute(command::kDecreaseMargins));
    QVERIFY(router.Execute(command::kDecreaseMargins));
    QCOMPARE(stored.Scale, 0.9f);

    // The user turns the chart; Save As Default keeps what the chart shows.
    pane.Chart3D()->graph()->scene()->activeCamera()->setXRotation(30.0f);
    harness.boxes.Expect(
        QStringLiteral("The current x,y,z rotation has been saved as the default orientation."),
        kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultOrientation));
    QCOMPARE(stored.DefaultZRotation, 30.0f);
    QCOMPARE(stored.DefaultXRotation, 25.0f);
    QCOMPARE(stored.DefaultScale, 0.9f);
    QVERIFY(router.Execute(command::kIncreaseMargins));
    harness.boxes.Expect(QStringLiteral("The current margins have been saved as the default"),
                         kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultMargins));
    QCOMPARE(stored.DefaultScale, 1.0f);
    QCOMPARE(stored.DefaultZRotation, 30.0f);

    // Set 2D Perspective faces the chart to the viewer; the graph learns of it later.
    QVERIFY(router.Execute(command::kSet2DPerspective));
    QCOMPARE(pane.Chart3D()->camera().xRotation, 0.0f);
    QCOMPARE(pane.Chart3D()->camera().yRotation, 0.0f);
    QCOMPARE(stored.ZRotation, 30.0f);
    // Saving the margins as default leaves the turned chart as it is.
    harness.boxes.Expect(QStringLiteral("The current margins have been saved as the default"),
                         kIdOk);
    QVERIFY(router.Execute(command::kSaveAsDefaultMargins));
    QCOMPARE(pane.Chart3D()->camera().yRotation, 0.0f);
    // Set Default brings the saved default back onto the chart.
    QVERIFY(router.Execute(command::kSetDefaultOrientation));
    QCOMPARE(pane.Chart3D()->camera().xRotation, 30.0f);
    QCOMPARE(pane.Chart3D()->camera().yRotation, 25.0f);
    QCOMPARE(stored.XRotation, 25.0f);

    QVERIFY(router.Execute(command::kGridLines));
    QCOMPARE(stored.ShowGridLines, 0);
    QVERIFY(!pane.Chart3D()->graph()->activeTheme()->isGridEnabled());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphs3DTest::aTurnedViewSurvivesAGraphFile() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    DesktopHarness harness;
    GraphPane &pane = ShowSurface(harness);
    Q3DCamera *camera = pane.Chart3D()->graph()->scene()->activeCamera();
    camera->setXRotation(-120.0f);
    camera->setYRotation(40.0f);
    camera->setZoomLevel(120.0f);
    const CameraView turned = pane.Chart3D()->camera();
    const QString path = harness.Folder() + QStringLiteral("/turned");
    harness.nextSaveFile = path;
    QVERIFY(harness.Bench().Router().Execute(command::kSaveGraphFile));
    // Another view first, so that the file's view is the one that comes back.
    camera->setXRotation(10.0f);
    harness.nextOpenFiles = {path + QStringLiteral(".g3d")};
    QVERIFY(harness.Bench().Router().Execute(command::kOpenGraphFile));
    const CameraView back = pane.Chart3D()->camera();
    QCOMPARE(back.xRotation, turned.xRotation);
    QCOMPARE(back.yRotation, turned.yRotation);
    QCOMPARE(back.zoom, turned.zoom);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void DocumentGraphs3DTest::aTurnedViewGoesIntoTheDocumentsGraph() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    DesktopHarness harness;
    GraphPane &pane = ShowSurface(harness);
    DocumentWindow &document = *harness.Current();
    GraphData &stored = *document.Content().currentGraph;
    CommandRouter &router = harness.Bench().Router();
    Q3DCamera *camera = pane.Chart3D()->graph()->scene()->activeCamera();
    camera->setXRotation(60.0f);
    camera->setYRotation(35.0f);
    QVERIFY(!document.Changes().graphsChanged);
    QVERIFY(router.Execute(command::kShowMathWindow));
    QCOMPARE(stored.ZRotation, 60.0f);
    QCOMPARE(stored.XRotation, 35.0f);
    QVERIFY(document.Changes().graphsChanged);
    // The next build starts from the turned view.
    stored.NeedsData = true;
    QVERIFY(router.Execute(command::kShowGraphWindow));
    QCOMPARE(pane.Chart3D()->camera().xRotation, 60.0f);
    QCOMPARE(pane.Chart3D()->camera().yRotation, 35.0f);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

QTEST_MAIN(DocumentGraphs3DTest)
#include "test_document_graphs_3d.moc"
