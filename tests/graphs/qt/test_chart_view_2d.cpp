// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The 2-D chart on Qt Charts: what each type draws, holes, legends, axes, colours, labels,
// the clipboard image, printing, and a picture of every type for review.

#include <QAreaSeries>
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCandlestickSeries>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QDir>
#include <QGraphicsSimpleTextItem>
#include <QGuiApplication>
#include <QLabel>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPainter>
#include <QPieSeries>
#include <QPolarChart>
#include <QPrinter>
#include <QProcess>
#include <QStackedBarSeries>
#include <QTemporaryDir>
#include <QValueAxis>
#include <QtTest>
#include <cmath>

#include "chart_runs.h"
#include "chart_view_2d.h"

using namespace quindar;

namespace {

struct TypeCase {
    int stored;
    const char *name;
    bool polar;
    QAbstractSeries::SeriesType series;
    int seriesCount;  // with the data below: set 0 has a hole at point 5
};

// Four sets of twelve points; set 0 has a hole at point 5, the candle sets keep high >= low.
constexpr TypeCase kTypes[] = {
    {1, "plot", false, QAbstractSeries::SeriesTypeLine, 5},
    {14, "line", false, QAbstractSeries::SeriesTypeLine, 5},
    {13, "scatter", false, QAbstractSeries::SeriesTypeLine, 5},
    {5, "area", false, QAbstractSeries::SeriesTypeArea, 5},
    {2, "bar", false, QAbstractSeries::SeriesTypeBar, 1},
    {4, "stacking_bar", false, QAbstractSeries::SeriesTypeStackedBar, 1},
    {3, "pie", false, QAbstractSeries::SeriesTypePie, 4},
    {6, "hilo", false, QAbstractSeries::SeriesTypeCandlestick, 2},
    {7, "hilo_open_close", false, QAbstractSeries::SeriesTypeCandlestick, 1},
    {8, "candle", false, QAbstractSeries::SeriesTypeCandlestick, 1},
    {9, "polar", true, QAbstractSeries::SeriesTypeLine, 5},
    {10, "radar", true, QAbstractSeries::SeriesTypeLine, 5},
    {11, "radar_filled", true, QAbstractSeries::SeriesTypeArea, 5},
};

ChartData2D SampleData(int stored) {
    ChartData2D data(1, 4, 12);
    for (int point = 0; point < 12; ++point) {
        const double x = stored == 9 ? point * 30.0 : point + 1.0;
        data.set_x(0, point, x);
        const double base = 10 + 4 * std::sin(point / 2.0);
        // high, low, open, close for the candle types; four curves otherwise.
        data.set_y(0, point, base + 3);
        data.set_y(1, point, base - 3);
        data.set_y(2, point, base + (point % 2 ? 1.5 : -1.5));
        data.set_y(3, point, base + (point % 2 ? -1.5 : 1.5));
    }
    data.set_y(0, 5, kHoleValue);
    return data;
}

ChartSpec2D SampleSpec(int stored) {
    ChartSpec2D spec;
    set_type_decisions(spec, stored, 0);
    spec.name = "Sample";
    spec.header = "Header of the sample";
    spec.footer = "Footer of the sample";
    spec.xTitle = "x";
    spec.yTitle = "y";
    spec.setLabels = {"h(x)", "g(x)", "f(x)", "data1"};
    spec.colors = {{0x020A, "DataAreaBackgroundColor", TColor(250, 250, 210)},
                   {0x0204, "HeaderBackgroundColor", TColor(200, 220, 255)},
                   {0x0205, "HeaderForegroundColor", TColor(0, 0, 128)}};
    return spec;
}

QStringList VisibleLegend(QChart *chart) {
    QStringList names;
    QTest::qWait(20);  // a new chart lays out its legend when the events run
    for (QLegendMarker *marker : chart->legend()->markers())
        if (marker->isVisible()) names << marker->label();
    return names;
}

}  // namespace

class ChartView2DTest : public QObject {
    Q_OBJECT
private slots:
    void eachTypeDrawsItsSeriesOnItsChart();
    void eachPieIsNamedUnderIt();
    void holesSplitLinesAndLegendKeepsSetOrder();
    void axisKindsFollowTheLogDecisions();
    void stylesAndColoursAreApplied();
    void clickNearAPointTogglesItsLabel();
    void headerAndFooterArePickRegions();
    void clipboardImageIsNotNull();
    void printToPdfHoldsHeaderAndFooter();
    void anEmptyChartDrawsWithoutData();
    void screenshotsOfEveryType();
};

void ChartView2DTest::eachTypeDrawsItsSeriesOnItsChart() {
    for (const TypeCase &type : kTypes) {
        ChartView2D view;
        view.apply(SampleSpec(type.stored));
        view.setData(SampleData(type.stored));
        QChart *chart = view.chart();
        QCOMPARE(chart->chartType() == QChart::ChartTypePolar, type.polar);
        QVERIFY2(
            chart->series().size() == type.seriesCount,
            qPrintable(QStringLiteral("%1: %2 series").arg(type.name).arg(chart->series().size())));
        for (QAbstractSeries *series : chart->series())
            QVERIFY2(series->type() == type.series, type.name);
        QCOMPARE(view.pieCaptions().empty(), type.stored != 3);
    }
}

void ChartView2DTest::eachPieIsNamedUnderIt() {
    ChartView2D view;
    view.resize(800, 500);
    view.apply(SampleSpec(3));
    view.setData(SampleData(3));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QStringList names;
    double left = -1;
    for (QGraphicsSimpleTextItem *caption : view.pieCaptions()) {
        names << caption->text();
        // Left to right in set order, under the middle of the plot area.
        const QPointF centre = caption->mapToScene(caption->boundingRect().center());
        QVERIFY(centre.x() > left);
        left = centre.x();
        QVERIFY(centre.y() > view.chart()->plotArea().center().y());
        QVERIFY(view.chart()->plotArea().contains(centre));
    }
    QCOMPARE(names, (QStringList{"h(x)", "g(x)", "f(x)", "data1"}));
}

void ChartView2DTest::holesSplitLinesAndLegendKeepsSetOrder() {
    ChartView2D view;
    view.apply(SampleSpec(1));
    view.setData(SampleData(1));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    // Set 0 (hole at point 5) is two runs: points 0-4 and 6-11; no run crosses the hole.
    QList<QLineSeries *> first;
    for (QAbstractSeries *series : view.chart()->series())
        if (view.setOfSeries(series) == 0) first << qobject_cast<QLineSeries *>(series);
    QCOMPARE(first.size(), 2);
    QCOMPARE(first[0]->count(), 5);
    QCOMPARE(first[0]->at(4).x(), 5.0);
    QCOMPARE(first[1]->count(), 6);
    QCOMPARE(first[1]->at(0).x(), 7.0);
    QCOMPARE(VisibleLegend(view.chart()), (QStringList{"h(x)", "g(x)", "f(x)", "data1"}));

    for (int stored : {3, 2, 11}) {
        view.apply(SampleSpec(stored));
        if (stored == 3) QCOMPARE(VisibleLegend(view.chart()).size(), 11);  // slices of pie 0
        if (stored == 2)
            QCOMPARE(VisibleLegend(view.chart()), (QStringList{"h(x)", "g(x)", "f(x)", "data1"}));
        if (stored == 11)
            QCOMPARE(VisibleLegend(view.chart()), (QStringList{"h(x)", "g(x)", "f(x)", "data1"}));
    }
}

void ChartView2DTest::axisKindsFollowTheLogDecisions() {
    struct AxisCase {
        int stored;
        bool logX, logY;
        QAbstractAxis::AxisType x, y;
    };
    const AxisCase cases[] = {
        {1, false, false, QAbstractAxis::AxisTypeValue, QAbstractAxis::AxisTypeValue},
        {1, true, false, QAbstractAxis::AxisTypeLogValue, QAbstractAxis::AxisTypeValue},
        {13, false, true, QAbstractAxis::AxisTypeValue, QAbstractAxis::AxisTypeLogValue},
        {5, true, true, QAbstractAxis::AxisTypeLogValue, QAbstractAxis::AxisTypeLogValue},
        {2, false, true, QAbstractAxis::AxisTypeBarCategory, QAbstractAxis::AxisTypeLogValue},
        {8, false, false, QAbstractAxis::AxisTypeValue, QAbstractAxis::AxisTypeValue},
        {10, false, false, QAbstractAxis::AxisTypeCategory, QAbstractAxis::AxisTypeValue},
    };
    for (const AxisCase &c : cases) {
        ChartSpec2D spec = SampleSpec(c.stored);
        spec.logX = c.logX;
        spec.logY = c.logY;
        ChartData2D data = SampleData(c.stored);
        data.set_y(1, 2, -1.0);  // a value a log axis cannot show
        ChartView2D view;
        view.apply(spec);
        view.setData(data);
        if (c.stored == 10) {
            auto *polar = static_cast<QPolarChart *>(view.chart());
            QCOMPARE(polar->axes(QPolarChart::PolarOrientationAngular).front()->type(), c.x);
            QCOMPARE(polar->axes(QPolarChart::PolarOrientationRadial).front()->type(), c.y);
            continue;
        }
        QCOMPARE(view.chart()->axes(Qt::Horizontal).front()->type(), c.x);
        QCOMPARE(view.chart()->axes(Qt::Vertical).front()->type(), c.y);
        if (c.stored == 1 || c.stored == 13) {
            int runsOfSet1 = 0;
            for (QAbstractSeries *series : view.chart()->series())
                runsOfSet1 += view.setOfSeries(series) == 1;
            QCOMPARE(runsOfSet1, c.logY ? 2 : 1);
        }
    }
}

void ChartView2DTest::stylesAndColoursAreApplied() {
    ChartView2D view;
    view.apply(SampleSpec(13));
    view.setData(SampleData(13));
    auto *scatter = qobject_cast<QLineSeries *>(view.chart()->series().front());
    QCOMPARE(scatter->pen().style(), Qt::NoPen);
    QVERIFY(!scatter->lightMarker().isNull());
    QCOMPARE(view.chart()->plotAreaBackgroundBrush().color(), QColor(250, 250, 210));
    QCOMPARE(view.header()->palette().color(QPalette::Window), QColor(200, 220, 255));
    QCOMPARE(view.header()->palette().color(QPalette::WindowText), QColor(0, 0, 128));
    QCOMPARE(view.header()->font().pointSize(), 14);
    QVERIFY(view.header()->font().bold());
    QCOMPARE(view.footer()->font().pointSize(), 12);

    view.apply(SampleSpec(1));
    auto *plot = qobject_cast<QLineSeries *>(view.chart()->series().front());
    QCOMPARE(plot->pen().color(), QColor(255, 0, 0));  // set 0's colour
    QVERIFY(!plot->lightMarker().isNull());
    view.apply(SampleSpec(14));
    QVERIFY(qobject_cast<QLineSeries *>(view.chart()->series().front())->lightMarker().isNull());
    view.apply(SampleSpec(2));
    auto *bars = qobject_cast<QBarSeries *>(view.chart()->series().front());
    QCOMPARE(bars->barSets().at(1)->color(), QColor(0, 0, 255));
    QCOMPARE(bars->barSets().at(0)->at(5), 0.0);  // the hole stands at 0
}

void ChartView2DTest::clickNearAPointTogglesItsLabel() {
    ChartView2D view;
    view.resize(700, 450);
    view.apply(SampleSpec(1));
    view.setData(SampleData(1));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QChart *chart = view.chart();
    QAbstractSeries *series = chart->series().at(2);  // set 1
    QCOMPARE(view.setOfSeries(series), 1);
    const QPointF inChart = chart->mapToPosition(QPointF(4.0, SampleData(1).y(1, 3)), series);
    const QPoint at =
        view.chartView()->mapTo(&view, view.chartView()->mapFromScene(chart->mapToScene(inChart)));
    const ChartPick hit = view.pick(at);
    QCOMPARE(hit.region, kRegionDataArea);
    QCOMPARE(hit.set, 1);
    QCOMPARE(hit.point, 3);
    QVERIFY(hit.distance < 1.5);
    QVERIFY(pick_takes_label(hit.region, hit.distance));
    QVERIFY(view.addLabel(hit.set, hit.point, QStringLiteral(" (4 , 7) ")));
    QVERIFY(view.hasLabel(1, 3));
    QCOMPARE(view.labelCount(), 1);
    // The label survives a redraw, and a second click removes it.
    view.apply(SampleSpec(1));
    QVERIFY(view.hasLabel(1, 3));
    QVERIFY(view.removeLabel(1, 3));
    QCOMPARE(view.labelCount(), 0);
    // Ten pixels off is too far (well away from any other point: straight up, above the curves).
    const ChartPick far = view.pick(at + QPoint(0, -40));
    QVERIFY(!pick_takes_label(far.region, far.distance) || far.set != 1 || far.point != 3);
    QVERIFY(!view.addLabel(0, 5, QStringLiteral("hole")));
}

void ChartView2DTest::headerAndFooterArePickRegions() {
    ChartView2D view;
    view.resize(600, 400);
    view.apply(SampleSpec(1));
    view.setData(SampleData(1));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(view.pick(view.headerRect().center()).region, kRegionHeader);
    QCOMPARE(view.pick(view.footerRect().center()).region, kRegionFooter);
    QSignalSpy doubles(&view, &ChartView2D::doubleClicked);
    QTest::mouseDClick(view.header(), Qt::LeftButton, {}, QPoint(20, 5));
    QCOMPARE(doubles.size(), 1);
    QCOMPARE(view.pick(doubles.front().front().toPoint()).region, kRegionHeader);
}

void ChartView2DTest::clipboardImageIsNotNull() {
    ChartView2D view;
    view.resize(500, 350);
    view.apply(SampleSpec(5));
    view.setData(SampleData(5));
    const QImage image = view.renderImage(QSize(500, 350));
    QVERIFY(!image.isNull());
    QGuiApplication::clipboard()->setImage(image);
    QVERIFY(!QGuiApplication::clipboard()->image().isNull());
}

void ChartView2DTest::printToPdfHoldsHeaderAndFooter() {
    QTemporaryDir folder;
    const QString pdf = folder.filePath(QStringLiteral("graph.pdf"));
    ChartView2D view;
    view.resize(640, 420);
    view.apply(SampleSpec(1));
    view.setData(SampleData(1));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        QPainter painter(&printer);
        view.print(
            painter,
            printer.pageLayout()
                .paintRectPixels(printer.resolution())
                .translated(-printer.pageLayout().paintRectPixels(printer.resolution()).topLeft()));
    }
    QProcess text;
    text.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdf, QStringLiteral("-")});
    QVERIFY(text.waitForFinished(30000));
    const QString words = QString::fromUtf8(text.readAllStandardOutput()).simplified();
    QVERIFY2(words.contains(QStringLiteral("Header of the sample")), qPrintable(words));
    QVERIFY(words.contains(QStringLiteral("Footer of the sample")));
}

void ChartView2DTest::anEmptyChartDrawsWithoutData() {
    ChartView2D view;
    ChartData2D holes(1, 2, 5);  // every point failed
    view.apply(SampleSpec(1));
    view.setData(holes);
    QCOMPARE(view.chart()->series().size(), 0);
    QCOMPARE(view.pick(QPoint(10, 10)).set, -1);
    QVERIFY(!view.renderImage(QSize(300, 200)).isNull());
}

void ChartView2DTest::screenshotsOfEveryType() {
    QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens"));
    for (const TypeCase &type : kTypes) {
        ChartView2D view;
        view.resize(800, 500);
        view.apply(SampleSpec(type.stored));
        view.setData(SampleData(type.stored));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        if (type.stored == 1) view.addLabel(1, 3, QStringLiteral(" (4 , 7.6) "));
        const QImage image = view.renderImage(QSize(800, 500));
        QVERIFY(image.save(QStringLiteral(QUINDAR_BUILD_DIR "screens/graph2d_%1.png")
                               .arg(QLatin1String(type.name))));
    }
}

QTEST_MAIN(ChartView2DTest)
#include "test_chart_view_2d.moc"
