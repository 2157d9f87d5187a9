// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The 3-D chart on Qt Data Visualization. Without OpenGL (the offscreen platform) the chart
// says so and never touches the graph; on a display with OpenGL (Xvfb with Mesa) holes stay
// empty, contours darken the surface, labels attach, and a picture of each look is written.

#include <Q3DCamera>
#include <Q3DScene>
#include <Q3DSurface>
#include <QCustom3DItem>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QSurface3DSeries>
#include <QtTest>
#include <cmath>

#include "chart_input_handler.h"
#include "chart_view_3d.h"

using namespace quindar;

namespace {

// A 21 x 21 saddle over -2..2 with a hole in the middle.
ChartGrid3D Saddle() {
    ChartGrid3D grid = ChartGrid3D::regular(21, 21, kHoleValue, 0.2, 0.2, -2.0, -2.0);
    for (int iz = 0; iz < 21; ++iz)
        for (int ix = 0; ix < 21; ++ix) {
            const double x = grid.x_at(ix), z = grid.z_at(iz);
            grid.set_value(ix, iz, std::sin(x) * std::cos(z) + 0.2 * x * z);
        }
    for (int iz = 8; iz <= 12; ++iz)
        for (int ix = 8; ix <= 12; ++ix) grid.set_value(ix, iz, kHoleValue);
    return grid;
}

ChartSpec3D Look(bool mesh, bool shade, bool contour, bool zone, bool hidden, bool bars = false,
                 bool projection = false) {
    ChartSpec3D spec;
    spec.header = "Surface header";
    spec.footer = "Surface footer";
    spec.headerFont = "Arial,14,Bold";
    spec.footerFont = "Arial,12,Bold";
    spec.xTitle = "x";
    spec.yTitle = "z";
    spec.zTitle = "y";
    spec.mesh = mesh;
    spec.shade = shade;
    spec.contour = contour;
    spec.zone = zone;
    spec.hidden = hidden;
    spec.bars = bars;
    spec.projectZMax = projection ? 1 : 0;
    spec.projectZMin = projection ? 2 : 0;
    spec.colors = {{0x0201, "DataAreaBackgroundColor", TColor(255, 255, 255)},
                   {0x020D, "SurfaceBottomColor", TColor(0, 0, 255)},
                   {0x020E, "SurfaceTopColor", TColor(255, 255, 0)}};
    return spec;
}

// The look a new graph has: mesh, shading, contours and zones in the program's own colours.
ChartSpec3D DefaultColours() {
    GraphData graph("Default");
    graph.SetHeader("Default colours");
    return chart_spec_3d(graph);
}

bool Offscreen() {
    return QGuiApplication::platformName() == QLatin1String("offscreen");
}

int DarkPixels(const QImage &image) {
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 40;
    return dark;
}

}  // namespace

class ChartView3DTest : public QObject {
    Q_OBJECT
private slots:
    void withoutOpenGlTheChartSaysSo();
    void theLegendNamesTheFunctionsAndSets();
    void holesStayEmptyOnTheSurface();
    void contoursDarkenTheSurface();
    void labelsAttachToGridPoints();
    void theProjectionLiesUnderTheSurface();
    void theCeilingLiesOverTheFloor();
    void aClickPicksThroughTheProjections();
    void screenshotsOfTheLooks();
    void theCameraFollowsTheViewAndReadsBack();
    void theRightButtonAsksForThePopUp();
};

void ChartView3DTest::withoutOpenGlTheChartSaysSo() {
    if (!Offscreen()) QSKIP("this display has OpenGL");
    ChartView3D view;
    view.resize(500, 400);
    view.apply(Look(true, true, false, false, false));
    view.setData(Saddle());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(!view.canDraw());
    QVERIFY(view.notice()->isVisible());
    QVERIFY(view.notice()->text().startsWith(QStringLiteral("3-D graphs need OpenGL")));
    QVERIFY(!view.addLabel(1, 1, QStringLiteral("x")));
    const QImage image = view.renderImage(QSize(500, 400));
    QVERIFY(!image.isNull());
    view.apply(Look(true, true, false, false, false, true));  // bars: the same
    QVERIFY(!view.canDraw());
}

void ChartView3DTest::theLegendNamesTheFunctionsAndSets() {
    // The legend needs no OpenGL: it stands beside the chart on every display.
    ChartView3D view;
    view.resize(500, 400);
    ChartSpec3D spec = Look(true, true, false, false, false);
    view.apply(spec);
    QVERIFY(view.legend()->isHidden());
    spec.dataLabels = {"s(x,z)", "Measured"};
    spec.colors.push_back({0x0209, "LegendBackgroundColor", TColor(10, 20, 30)});
    spec.colors.push_back({0x020A, "LegendForegroundColor", TColor(200, 210, 220)});
    view.apply(spec);
    view.setData(Saddle());
    QVERIFY(!view.legend()->isHidden());
    QCOMPARE(view.legend()->text(), QStringLiteral("s(x,z)     Measured"));
    QCOMPARE(view.legend()->palette().color(QPalette::Window), QColor(10, 20, 30));
    QCOMPARE(view.legend()->palette().color(QPalette::WindowText), QColor(200, 210, 220));
    // The picture of the chart carries the legend's colour near its foot.
    const QImage image = view.renderImage(QSize(500, 400));
    int legendPixels = 0;
    for (int y = 200; y < 400; ++y) legendPixels += image.pixelColor(250, y) == QColor(10, 20, 30);
    QVERIFY2(legendPixels > 5, qPrintable(QString::number(legendPixels)));
}

void ChartView3DTest::holesStayEmptyOnTheSurface() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    ChartView3D view;
    view.resize(600, 500);
    ChartSpec3D spec = Look(false, true, false, false, false);
    spec.xRotation = 90;  // from straight above
    spec.zRotation = 0;
    view.apply(spec);
    view.setData(Saddle());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(view.canDraw());
    auto *surface = static_cast<Q3DSurface *>(view.graph());
    const QSurfaceDataProxy *proxy = surface->seriesList().front()->dataProxy();
    QVERIFY(std::isnan(proxy->itemAt(10, 10)->y()));
    QVERIFY(!std::isnan(proxy->itemAt(0, 0)->y()));
    const QImage image = surface->renderToImage(0, QSize(400, 400));
    // The middle of the top view shows the white walls behind the hole.
    const QColor middle = image.pixelColor(200, 200);
    QVERIFY2(qGray(middle.rgb()) > 200, qPrintable(middle.name()));
}

void ChartView3DTest::contoursDarkenTheSurface() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    ChartView3D view;
    view.resize(600, 500);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.setData(Saddle());
    view.apply(Look(false, true, false, false, false));
    const int plain =
        DarkPixels(static_cast<Q3DSurface *>(view.graph())->renderToImage(0, QSize(400, 400)));
    view.apply(Look(false, true, true, false, false));
    const int rings =
        DarkPixels(static_cast<Q3DSurface *>(view.graph())->renderToImage(0, QSize(400, 400)));
    QVERIFY2(rings > plain + 200, qPrintable(QStringLiteral("%1 vs %2").arg(rings).arg(plain)));
}

void ChartView3DTest::labelsAttachToGridPoints() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    ChartView3D view;
    view.apply(Look(true, true, false, false, false));
    view.setData(Saddle());
    QVERIFY(view.addLabel(2, 3, QStringLiteral(" (1 , 2 , 3) ")));
    QVERIFY(!view.addLabel(10, 10, QStringLiteral("hole")));
    QCOMPARE(view.graph()->customItems().size(), 1);
    QVERIFY(view.removeLabel(2, 3));
    QCOMPARE(view.graph()->customItems().size(), 0);
    // A pick answers (ix, iz) from the chart's (row, column), and can come again.
    QSignalSpy picks(&view, &ChartView3D::picked);
    auto *series = static_cast<Q3DSurface *>(view.graph())->seriesList().front();
    series->setSelectedPoint(QPoint(3, 2));
    series->setSelectedPoint(QPoint(3, 2));
    QCOMPARE(picks.size(), 2);
    QCOMPARE(picks.front(), (QList<QVariant>{2, 3}));
}

void ChartView3DTest::theProjectionLiesUnderTheSurface() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    ChartView3D view;
    view.resize(600, 500);
    // Flat zones seen from straight above: the surface and its floor picture share colours.
    ChartSpec3D spec = Look(false, false, false, true, false, false, true);
    spec.xRotation = 90;
    spec.zRotation = 0;
    view.setData(Saddle());
    view.apply(spec);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    auto *surface = static_cast<Q3DSurface *>(view.graph());
    QCOMPARE(view.projectionSeries().size(), std::size_t(1));
    QSurface3DSeries *floor = view.projectionSeries().front();
    QCOMPARE(floor->dataProxy()->itemAt(0, 0)->y(), surface->axisY()->min());
    QSurface3DSeries *shape = surface->seriesList().front();
    // Without perspective the floor and the surface over it meet the same pixels.
    surface->setOrthoProjection(true);
    floor->setVisible(false);
    const QImage above = surface->renderToImage(0, QSize(400, 400));
    floor->setVisible(true);
    shape->setVisible(false);
    const QImage below = surface->renderToImage(0, QSize(400, 400));
    int same = 0, compared = 0;
    for (int y = 60; y < 340; y += 7)
        for (int x = 60; x < 340; x += 7) {
            const QColor a = above.pixelColor(x, y), b = below.pixelColor(x, y);
            // Only where the surface is drawn (no hole) and coloured (no grey wall).
            if (a.saturation() < 80) continue;
            ++compared;
            same += std::abs(a.hue() - b.hue()) < 12 && std::abs(a.value() - b.value()) < 40;
        }
    QVERIFY2(compared > 200, qPrintable(QString::number(compared)));
    QVERIFY2(same > compared * 8 / 10,
             qPrintable(QStringLiteral("%1 of %2").arg(same).arg(compared)));
    // Without the digit the floor goes.
    view.apply(Look(false, false, false, true, false));
    QVERIFY(view.projectionSeries().empty());
    QCOMPARE(surface->seriesList().size(), 1);
}

void ChartView3DTest::theCeilingLiesOverTheFloor() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    // A grid twice as wide as deep, so that a sheet turned or stretched the wrong way shows.
    ChartGrid3D grid = ChartGrid3D::regular(41, 11, kHoleValue, 0.1, 0.2, -2.0, -1.0);
    for (int iz = 0; iz < 11; ++iz)
        for (int ix = 0; ix < 41; ++ix) {
            const double x = grid.x_at(ix), z = grid.z_at(iz);
            grid.set_value(ix, iz, x * x + 3 * z + 0.5 * x);
        }
    // Flat zones, unlit: the sheets show their pictures' own colours.
    ChartSpec3D spec = Look(false, false, false, true, false, false, true);
    spec.colors = {{0x0201, "DataAreaBackgroundColor", TColor(255, 255, 255)},
                   {0x020D, "SurfaceBottomColor", TColor(220, 220, 255)},
                   {0x020E, "SurfaceTopColor", TColor(255, 255, 200)}};
    spec.xRotation = 90;
    spec.zRotation = 0;
    ChartView3D view;
    view.resize(600, 500);
    view.setData(grid);
    view.apply(spec);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    auto *surface = static_cast<Q3DSurface *>(view.graph());
    surface->setOrthoProjection(true);
    QVERIFY(view.ceiling() != nullptr);
    QCOMPARE(view.projectionSeries().size(), std::size_t(1));
    surface->seriesList().front()->setVisible(false);
    view.ceiling()->setVisible(false);
    const QImage floor = surface->renderToImage(0, QSize(400, 400));
    view.ceiling()->setVisible(true);
    view.projectionSeries().front()->setVisible(false);
    const QImage ceiling = surface->renderToImage(0, QSize(400, 400));
    // A line pixel is darker than the light colours either sheet shows elsewhere.
    const auto dark = [](const QImage &image, int x, int y) {
        return qGray(image.pixel(x, y)) < 150;
    };
    int lines = 0, matched = 0;
    for (int y = 2; y < 398; ++y)
        for (int x = 2; x < 398; ++x) {
            if (!dark(ceiling, x, y)) continue;
            ++lines;
            bool near = false;
            for (int dy = -2; dy <= 2 && !near; ++dy)
                for (int dx = -2; dx <= 2 && !near; ++dx) near = dark(floor, x + dx, y + dy);
            matched += near;
        }
    QVERIFY2(lines > 200, qPrintable(QString::number(lines)));
    // Aligned sheets share well over twice the lines that a sheet turned the wrong way does.
    QVERIFY2(matched > lines * 45 / 100,
             qPrintable(QStringLiteral("%1 of %2").arg(matched).arg(lines)));
}

void ChartView3DTest::aClickPicksThroughTheProjections() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    for (const bool projection : {false, true}) {
        ChartView3D view;
        view.resize(600, 500);
        ChartSpec3D spec = Look(true, true, false, false, false, false, projection);
        spec.xRotation = 60;
        view.setData(Saddle());
        view.apply(spec);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QSignalSpy picks(&view, &ChartView3D::picked);
        QWindow *chart = view.graph();
        // A real click of the mouse on the surface, off the hole in its middle.
        const QPoint at(chart->width() / 2 + 70, chart->height() / 2 + 40);
        QTest::mouseClick(chart, Qt::LeftButton, Qt::NoModifier, at);
        QVERIFY2(picks.wait(2000) || !picks.isEmpty(),
                 projection ? "through the ceiling" : "on the plain surface");
        QCOMPARE(picks.size(), 1);
        // The ceiling stepped aside for the pick and is back.
        if (projection) QTRY_VERIFY(view.ceiling()->isVisible());
    }
}

void ChartView3DTest::screenshotsOfTheLooks() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    struct Shot {
        const char *name;
        ChartSpec3D spec;
    };
    const Shot shots[] = {
        {"mesh", Look(true, false, false, false, false)},
        {"mesh_shade", Look(true, true, false, false, false)},
        {"shade_contour", Look(false, true, true, false, false)},
        {"zone_contour", Look(false, false, true, true, false)},
        {"hidden_lines", Look(true, false, false, false, true)},
        {"bars", Look(false, true, false, false, false, true)},
        {"projection", Look(true, true, false, true, false, false, true)},
        {"all_digits", Look(true, true, true, true, true, false, true)},
        {"default_colours", DefaultColours()},
    };
    QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens"));
    ChartView3D view;
    view.resize(800, 600);
    view.setData(Saddle());
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    for (const Shot &shot : shots) {
        view.apply(shot.spec);
        view.addLabel(3, 3, QStringLiteral(" (-1.4 , 0.4 , -1.4) "));
        QTest::qWait(50);
        QVERIFY(view.renderImage(QSize(800, 600))
                    .save(QStringLiteral(QUINDAR_BUILD_DIR "screens/graph3d_%1.png")
                              .arg(QLatin1String(shot.name))));
    }
}

void ChartView3DTest::theCameraFollowsTheViewAndReadsBack() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    ChartView3D view;
    ChartSpec3D spec = Look(true, true, false, false, false);
    spec.zRotation = 300;
    spec.xRotation = 40;
    spec.scale = 1.5f;
    view.apply(spec);
    view.setData(Saddle());
    const CameraView camera = view.camera();
    QCOMPARE(camera.xRotation, -60.0f);
    QCOMPARE(camera.yRotation, 40.0f);
    QCOMPARE(camera.zoom, camera_from_view({40, 300, 1.5f, 0, 0}).zoom);
    // The user turns the chart: the view read back is the turned one.
    view.graph()->scene()->activeCamera()->setXRotation(30.0f);
    const GraphView3D turned = view_from_camera(view.camera());
    QCOMPARE(turned.zRotation, 30.0f);
    QCOMPARE(turned.xRotation, 40.0f);
    QCOMPARE(turned.scale, 1.5f);
}

void ChartView3DTest::theRightButtonAsksForThePopUp() {
    if (Offscreen()) QSKIP("3-D needs OpenGL (run under Xvfb)");
    ChartView3D view;
    view.apply(Look(true, true, false, false, false));
    view.setData(Saddle());
    auto *handler = qobject_cast<ChartInputHandler *>(view.graph()->activeInputHandler());
    QVERIFY(handler != nullptr);
    QSignalSpy popups(&view, &ChartView3D::popupRequested);
    QMouseEvent right(QEvent::MouseButtonPress, QPointF(30, 40), QPointF(30, 40), QPointF(30, 40),
                      Qt::RightButton, Qt::RightButton, Qt::NoModifier);
    handler->mousePressEvent(&right, QPoint(30, 40));
    QCOMPARE(popups.size(), 1);
    QCOMPARE(handler->inputView(), QAbstract3DInputHandler::InputViewNone);
    QMouseEvent shiftLeft(QEvent::MouseButtonPress, QPointF(30, 40), QPointF(30, 40),
                          QPointF(30, 40), Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    handler->mousePressEvent(&shiftLeft, QPoint(30, 40));
    const float before = view.camera().xRotation;
    QMouseEvent move(QEvent::MouseMove, QPointF(130, 40), QPointF(130, 40), QPointF(130, 40),
                     Qt::NoButton, Qt::LeftButton, Qt::ShiftModifier);
    handler->mouseMoveEvent(&move, QPoint(130, 40));
    QVERIFY2(view.camera().xRotation != before, "Shift with the left button turns the view");
    QCOMPARE(popups.size(), 1);
}

QTEST_MAIN(ChartView3DTest)
#include "test_chart_view_3d.moc"
