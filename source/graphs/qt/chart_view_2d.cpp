// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_view_2d.h"

#include <QAreaSeries>
#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCandlestickSeries>
#include <QCandlestickSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QGraphicsRectItem>
#include <QGraphicsSimpleTextItem>
#include <QLabel>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QMouseEvent>
#include <QPainter>
#include <QPieSeries>
#include <QPieSlice>
#include <QPolarChart>
#include <QStackedBarSeries>
#include <QVBoxLayout>
#include <QValueAxis>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "chart_looks.h"
#include "chart_markers.h"
#include "chart_runs.h"

namespace quindar {
namespace {

// Stored 2-D types.
enum StoredType {
    kTypePlot = 1,
    kTypeBar = 2,
    kTypePie = 3,
    kTypeStackingBar = 4,
    kTypeArea = 5,
    kTypeHiLo = 6,
    kTypeHiLoOpenClose = 7,
    kTypeCandle = 8,
    kTypePolar = 9,
    kTypeRadar = 10,
    kTypeRadarFilled = 11,
    kTypeScatter = 13,
    kTypeLine = 14,
};

// The library's margin when the program leaves it to the chart.
constexpr int kAutomaticMargin = 20;
const QColor kLabelBackground(255, 255, 128);

int margin(const ChartMargin &m) {
    return m.automatic ? kAutomaticMargin : m.value;
}

QAbstractAxis *value_axis(bool logarithmic) {
    if (logarithmic) {
        auto *axis = new QLogValueAxis;
        axis->setBase(10.0);
        axis->setLabelFormat(QStringLiteral("%g"));
        return axis;
    }
    return new QValueAxis;
}

// Categories of a bar axis must differ; a repeated X value gets invisible padding.
QStringList unique_categories(const ChartData2D &data) {
    QStringList categories;
    for (int point = 0; point < data.points(); ++point) {
        const double x = data.x(0, point);
        QString text = x == data.hole() ? QString::number(point + 1) : value_text(x);
        while (categories.contains(text)) text += QLatin1Char(' ');
        categories << text;
    }
    return categories;
}

// An axis spans every set, not only the first one attached; values get a little room.
void set_axis_range(QAbstractAxis *axis, double low, double high, bool room) {
    if (auto *log = qobject_cast<QLogValueAxis *>(axis)) {
        log->setRange(std::pow(10.0, std::floor(std::log10(low))),
                      std::pow(10.0, std::ceil(std::log10(high))));
        return;
    }
    auto *values = qobject_cast<QValueAxis *>(axis);
    if (values == nullptr) return;
    if (low == high) {
        values->setRange(low - 1, high + 1);
        return;
    }
    // A little room on the horizontal too, so markers at the ends are whole.
    const double pad = (high - low) * (room ? 0.05 : 0.02);
    values->setRange(low - pad, high + pad);
    if (room) {
        values->applyNiceNumbers();
        return;
    }
    // The data's own span, with ticks at round values inside it.
    const double rough = (high - low) / 8.0;
    const double magnitude = std::pow(10.0, std::floor(std::log10(rough)));
    double step = magnitude;
    for (double factor : {2.0, 5.0, 10.0})
        if (step < rough) step = magnitude * factor;
    values->setTickType(QValueAxis::TicksDynamic);
    values->setTickAnchor(0.0);
    values->setTickInterval(step);
    values->setLabelFormat(QStringLiteral("%g"));
}

}  // namespace

ChartView2D::ChartView2D(QWidget *parent)
    : QWidget(parent),
      header_(new QLabel(this)),
      footer_(new QLabel(this)),
      view_(new QChartView(this)) {
    setAccessibleName(tr("Graph"));
    header_->setAccessibleName(tr("Graph header"));
    footer_->setAccessibleName(tr("Graph footer"));
    view_->setAccessibleName(tr("Chart"));
    header_->setAlignment(Qt::AlignCenter);
    footer_->setAlignment(Qt::AlignCenter);
    view_->setRenderHint(QPainter::Antialiasing);
    view_->setFrameShape(QFrame::NoFrame);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header_);
    layout->addWidget(view_, 1);
    layout->addWidget(footer_);
    header_->hide();
    footer_->hide();
    for (QObject *watched : {static_cast<QObject *>(view_->viewport()),
                             static_cast<QObject *>(header_), static_cast<QObject *>(footer_)})
        watched->installEventFilter(this);
    setAutoFillBackground(true);
    rebuild();
}

ChartView2D::~ChartView2D() = default;

void ChartView2D::apply(const ChartSpec2D &spec) {
    spec_ = spec;
    rebuild();
}

void ChartView2D::setData(const ChartData2D &data) {
    data_ = data;
    rebuild();
}

QColor ChartView2D::setColor(int set) const {
    if (set >= 0 && set < kStyledSets)
        return to_qcolor(spec_.styles[static_cast<std::size_t>(set)].color);
    // Past the styled sets, the colours the library's light theme gives.
    static const QColor kThemeColors[] = {QColor(0x20, 0x9f, 0xdf), QColor(0x99, 0xca, 0x53),
                                          QColor(0xf6, 0xa6, 0x25), QColor(0x6d, 0x5f, 0xd5),
                                          QColor(0xbf, 0x59, 0x3e)};
    return kThemeColors[static_cast<std::size_t>(set) % std::size(kThemeColors)];
}

int ChartView2D::setOfSeries(const QAbstractSeries *series) const {
    for (const DrawnRun &run : runs_)
        if (run.series == series) return run.set;
    return -1;
}

void ChartView2D::rebuild() {
    // Labels hang on the chart's items: their texts survive a redraw, the items do not.
    std::vector<std::pair<std::pair<int, int>, QString>> kept;
    for (const auto &[key, label] : labels_) kept.emplace_back(key, label.text);
    labels_.clear();
    runs_.clear();
    pieCaptions_.clear();

    const int type = spec_.storedType;
    const bool polar = type == kTypePolar || type == kTypeRadar || type == kTypeRadarFilled;
    QChart *chart = polar ? new QPolarChart : new QChart;
    // The theme first: it would overwrite the program's colours otherwise.
    chart->setTheme(QChart::ChartThemeLight);
    chart->setBackgroundRoundness(0);
    chart->setMargins(QMargins(margin(spec_.marginLeft), margin(spec_.marginTop),
                               margin(spec_.marginRight), margin(spec_.marginBottom)));
    chart->legend()->setAlignment(Qt::AlignBottom);
    QChart *old = chart_;
    chart_ = chart;
    view_->setChart(chart);
    delete old;

    if (data_) {
        switch (type) {
            case kTypeArea:
                drawXY(true);
                break;
            case kTypeBar:
            case kTypeStackingBar:
                drawBars(type == kTypeStackingBar);
                break;
            case kTypePie:
                drawPie();
                break;
            case kTypeHiLo:
                drawCandles(2);
                break;
            case kTypeHiLoOpenClose:
            case kTypeCandle:
                drawCandles(4);
                break;
            case kTypePolar:
                drawPolar();
                break;
            case kTypeRadar:
            case kTypeRadarFilled:
                drawRadar(type == kTypeRadarFilled);
                break;
            default:
                drawXY(false);
                break;
        }
    }
    applyChartColors();
    applyFrameColors();
    connect(chart_, &QChart::plotAreaChanged, this, [this] { placeLabels(); });
    for (const auto &[key, text] : kept) addLabel(key.first, key.second, text);
}

DataStyle ChartView2D::styleOf(int set) const {
    if (set >= 0 && set < kStyledSets) return spec_.styles[static_cast<std::size_t>(set)];
    return DataStyle{2, 2, TColor{}, 1, 10, TColor{}, 7};
}

QString ChartView2D::setLabel(int set) const {
    if (set < 0 || set >= static_cast<int>(spec_.setLabels.size())) return {};
    return QString::fromStdString(spec_.setLabels[static_cast<std::size_t>(set)]);
}

QAbstractSeries *ChartView2D::styledRun(QLineSeries *line, int set, bool area, int alpha) const {
    const QColor color = setColor(set);
    const DataStyle style = styleOf(set);
    if (area) {
        auto *filled = new QAreaSeries(line);
        line->setParent(filled);
        QColor fill = color;
        fill.setAlpha(alpha);
        filled->setBrush(fill);
        filled->setPen(QPen(color, style.lineWidth));
        return filled;
    }
    line->setPen(style.linePattern == 1 ? QPen(Qt::NoPen) : QPen(color, style.lineWidth));
    const QImage marker = point_marker(style.pointStyle, color, style.pointSize);
    if (!marker.isNull()) {
        line->setLightMarker(marker);
        line->setMarkerSize(style.pointSize);
    }
    return line;
}

void ChartView2D::addRun(QAbstractSeries *series, int set, const PointRun &run,
                         QAbstractAxis *horizontal, QAbstractAxis *vertical, bool firstOfSet) {
    series->setName(setLabel(set));
    chart_->addSeries(series);
    series->attachAxis(horizontal);
    series->attachAxis(vertical);
    for (QLegendMarker *legend : chart_->legend()->markers(series)) {
        // Runs after a set's first share its legend entry.
        legend->setVisible(firstOfSet);
        legend->setBrush(setColor(set));
    }
    runs_.push_back({series, set, run.first, run.count});
}

void ChartView2D::drawXY(bool area) {
    const ChartData2D &data = *data_;
    QAbstractAxis *axisX = value_axis(spec_.logX);
    QAbstractAxis *axisY = value_axis(spec_.logY);
    axisX->setTitleText(QString::fromStdString(spec_.xTitle));
    axisY->setTitleText(QString::fromStdString(spec_.yTitle));
    chart_->addAxis(axisX, Qt::AlignBottom);
    chart_->addAxis(axisY, Qt::AlignLeft);
    double low = 0, high = 0, bottom = 0, top = 0;
    bool any = false;
    for (int set = 0; set < data.sets(); ++set) {
        bool first = true;
        for (const PointRun &run : drawable_runs(data, set, spec_.logX, spec_.logY)) {
            auto *line = new QLineSeries;
            for (int point = run.first; point < run.first + run.count; ++point) {
                const double x = data.x(set, point), y = data.y(set, point);
                line->append(x, y);
                if (!any) low = high = x, bottom = top = y;
                low = std::min(low, x);
                high = std::max(high, x);
                bottom = std::min(bottom, y);
                top = std::max(top, y);
                any = true;
            }
            addRun(styledRun(line, set, area, 120), set, run, axisX, axisY, first);
            first = false;
        }
    }
    if (any) {
        set_axis_range(axisX, low, high, false);
        set_axis_range(axisY, bottom, top, true);
    }
}

void ChartView2D::drawBars(bool stacked) {
    const ChartData2D &data = *data_;
    QAbstractBarSeries *bars =
        stacked ? static_cast<QAbstractBarSeries *>(new QStackedBarSeries) : new QBarSeries;
    for (int set = 0; set < data.sets(); ++set) {
        auto *barSet = new QBarSet(setLabel(set));
        // A bar set cannot leave a place empty: a point that is not there stands at 0.
        for (int point = 0; point < data.points(); ++point) {
            const double y = data.y(set, point);
            *barSet << (drawable_point(data, set, point, false, spec_.logY) ? y : 0.0);
        }
        barSet->setColor(setColor(set));
        barSet->setBorderColor(setColor(set).darker(130));
        bars->append(barSet);
    }
    chart_->addSeries(bars);
    auto *axisX = new QBarCategoryAxis;
    axisX->append(unique_categories(data));
    axisX->setTitleText(QString::fromStdString(spec_.xTitle));
    QAbstractAxis *axisY = value_axis(spec_.logY);
    axisY->setTitleText(QString::fromStdString(spec_.yTitle));
    chart_->addAxis(axisX, Qt::AlignBottom);
    chart_->addAxis(axisY, Qt::AlignLeft);
    bars->attachAxis(axisX);
    bars->attachAxis(axisY);
    double bottom = 0, top = 0;
    for (int set = 0; set < data.sets(); ++set)
        for (int point = 0; point < data.points(); ++point)
            if (drawable_point(data, set, point, false, spec_.logY)) {
                bottom = std::min(bottom, data.y(set, point));
                top = std::max(top, data.y(set, point));
            }
    if (spec_.logY) {
        double least = top;
        for (int set = 0; set < data.sets(); ++set)
            for (int point = 0; point < data.points(); ++point)
                if (drawable_point(data, set, point, false, true))
                    least = std::min(least, data.y(set, point));
        if (top > 0) set_axis_range(axisY, least, top, false);
    }
    for (int set = 0; set < data.sets(); ++set) runs_.push_back({bars, set, 0, data.points()});
}

void ChartView2D::drawPie() {
    const ChartData2D &data = *data_;
    const int pies = std::max(1, data.sets());
    for (int set = 0; set < data.sets(); ++set) {
        auto *pie = new QPieSeries;
        for (int point = 0; point < data.points(); ++point) {
            // Holes and values below zero have no slice.
            if (!drawable_point(data, set, point, false, false) || data.y(set, point) <= 0)
                continue;
            QPieSlice *slice = pie->append(value_text(data.x(set, point)), data.y(set, point));
            slice->setColor(setColor(point));
            slice->setBorderColor(Qt::white);
        }
        pie->setHorizontalPosition((set + 0.5) / pies);
        pie->setPieSize(std::min(0.9, 0.9 * 1.6 / pies));
        pie->setName(setLabel(set));
        chart_->addSeries(pie);
        auto *caption = new QGraphicsSimpleTextItem(setLabel(set), chart_);
        caption->setBrush(chart_color(spec_.colors, 0x0203, Qt::black));  // graph foreground
        pieCaptions_.push_back(caption);
        // The legend lists the slices once, those of the first pie.
        if (set > 0)
            for (QLegendMarker *legend : chart_->legend()->markers(pie)) legend->setVisible(false);
        runs_.push_back({pie, set, 0, data.points()});
    }
}

void ChartView2D::drawCandles(int group) {
    const ChartData2D &data = *data_;
    auto *axisX = new QValueAxis;
    auto *axisY = new QValueAxis;
    axisX->setTitleText(QString::fromStdString(spec_.xTitle));
    axisY->setTitleText(QString::fromStdString(spec_.yTitle));
    chart_->addAxis(axisX, Qt::AlignBottom);
    chart_->addAxis(axisY, Qt::AlignLeft);
    double low = 0, high = 0, bottom = 0, top = 0;
    bool any = false;
    for (int first = 0; first + group <= data.sets(); first += group) {
        auto *candles = new QCandlestickSeries;
        const QColor color = setColor(first);
        candles->setPen(QPen(color, 1));
        candles->setCapsVisible(false);
        if (group == 2) {
            // High and low only: a flat body at the high leaves the whisker alone.
            candles->setBodyWidth(0.01);
            candles->setIncreasingColor(color);
            candles->setDecreasingColor(color);
        } else if (spec_.storedType == kTypeHiLoOpenClose) {
            candles->setBodyWidth(0.15);
            candles->setIncreasingColor(Qt::transparent);
            candles->setDecreasingColor(Qt::transparent);
        } else {
            candles->setBodyWidth(0.5);
            candles->setIncreasingColor(setColor(first + 2));
            candles->setDecreasingColor(setColor(first + 3));
        }
        for (int point = 0; point < data.points(); ++point) {
            bool present = true;
            for (int s = first; s < first + group; ++s)
                present = present && drawable_point(data, s, point, false, false);
            if (!present) continue;
            const double x = data.x(first, point);
            const double hi = data.y(first, point);
            const double lo = data.y(first + 1, point);
            const double open = group == 4 ? data.y(first + 2, point) : hi;
            const double close = group == 4 ? data.y(first + 3, point) : hi;
            candles->append(
                new QCandlestickSet(open, std::max(hi, lo), std::min(hi, lo), close, x));
            if (!any) low = high = x, bottom = top = lo;
            low = std::min(low, x);
            high = std::max(high, x);
            bottom = std::min({bottom, hi, lo, open, close});
            top = std::max({top, hi, lo, open, close});
            any = true;
        }
        candles->setName(setLabel(first));
        chart_->addSeries(candles);
        candles->attachAxis(axisX);
        candles->attachAxis(axisY);
        for (int s = first; s < first + group; ++s) runs_.push_back({candles, s, 0, data.points()});
    }
    if (any) {
        // Half a step of room on either side, so the outer candles are whole.
        const double pad = data.points() > 1 ? (high - low) / (2.0 * (data.points() - 1)) : 1.0;
        axisX->setRange(low - pad, high + pad);
        const double room = top > bottom ? (top - bottom) * 0.05 : 1.0;
        axisY->setRange(bottom - room, top + room);
    }
}

void ChartView2D::drawPolar() {
    const ChartData2D &data = *data_;
    auto *polar = static_cast<QPolarChart *>(chart_);
    auto *angular = new QValueAxis;
    const bool radians = spec_.angleUnit == 2;
    angular->setRange(0, radians ? 2 * std::numbers::pi : 360);
    angular->setTickCount(9);
    angular->setLabelFormat(radians ? QStringLiteral("%.2f") : QStringLiteral("%d"));
    auto *radial = new QValueAxis;
    radial->setTitleText(QString::fromStdString(spec_.yTitle));
    polar->addAxis(angular, QPolarChart::PolarOrientationAngular);
    polar->addAxis(radial, QPolarChart::PolarOrientationRadial);
    double radius = 0;
    for (int set = 0; set < data.sets(); ++set) {
        bool first = true;
        for (const PointRun &run : drawable_runs(data, set, false, false)) {
            auto *line = new QLineSeries;
            for (int point = run.first; point < run.first + run.count; ++point) {
                line->append(data.x(set, point), data.y(set, point));
                radius = std::max(radius, data.y(set, point));
            }
            addRun(styledRun(line, set, false, 0), set, run, angular, radial, first);
            first = false;
        }
    }
    radial->setRange(0, radius > 0 ? radius * 1.05 : 1);
}

void ChartView2D::drawRadar(bool filled) {
    const ChartData2D &data = *data_;
    auto *polar = static_cast<QPolarChart *>(chart_);
    const int n = std::max(1, data.points());
    // Point i stands at angle i; the axis is labelled with the X values.
    auto *angular = new QCategoryAxis;
    angular->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    angular->setRange(0, n);
    for (int point = 0; point < data.points(); ++point) {
        const double x = data.x(0, point);
        QString text = x == data.hole() ? QString::number(point + 1) : value_text(x);
        while (angular->categoriesLabels().contains(text)) text += QLatin1Char(' ');
        angular->append(text, point);
    }
    auto *radial = new QValueAxis;
    polar->addAxis(angular, QPolarChart::PolarOrientationAngular);
    polar->addAxis(radial, QPolarChart::PolarOrientationRadial);
    double top = 0;
    for (int set = 0; set < data.sets(); ++set) {
        const std::vector<PointRun> runs = drawable_runs(data, set, false, false);
        // A whole set closes its shape back at the first point.
        const bool closed = runs.size() == 1 && runs.front().count == data.points();
        bool first = true;
        for (const PointRun &run : runs) {
            auto *line = new QLineSeries;
            for (int point = run.first; point < run.first + run.count; ++point) {
                line->append(point, data.y(set, point));
                top = std::max(top, data.y(set, point));
            }
            if (closed) line->append(n, data.y(set, 0));
            QAbstractSeries *series = styledRun(line, set, filled, 150);
            // Radar lines carry no markers: the spokes mark the points.
            if (!filled) line->setLightMarker(QImage());
            addRun(series, set, run, angular, radial, first);
            first = false;
        }
    }
    radial->setRange(0, top > 0 ? top * 1.05 : 1);
}

void ChartView2D::applyChartColors() {
    const auto &colors = spec_.colors;
    const QColor graphBack = chart_color(colors, 0x0202, Qt::white);
    const QColor graphFore = chart_color(colors, 0x0203, Qt::black);
    const QColor areaBack = chart_color(colors, 0x020A, Qt::white);
    const QColor areaFore = chart_color(colors, 0x020B, QColor(200, 200, 200));
    chart_->setBackgroundBrush(graphBack);
    chart_->setPlotAreaBackgroundBrush(areaBack);
    chart_->setPlotAreaBackgroundVisible(true);
    for (QAbstractAxis *axis : chart_->axes()) {
        axis->setLabelsColor(graphFore);
        axis->setTitleBrush(graphFore);
        axis->setLinePenColor(graphFore);
        QPen grid(areaFore);
        grid.setWidth(0);
        axis->setGridLinePen(grid);
        axis->setGridLineVisible(spec_.gridLines);
        axis->setMinorGridLineVisible(false);
    }
    QLegend *legend = chart_->legend();
    legend->setBrush(chart_color(colors, 0x0208, Qt::white));
    legend->setBackgroundVisible(true);
    legend->setLabelColor(chart_color(colors, 0x0209, Qt::black));
    legend->setPen(QPen(chart_color(colors, 0x0209, Qt::black)));
}

void ChartView2D::applyFrameColors() {
    const auto &colors = spec_.colors;
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, chart_color(colors, 0x0200, Qt::white));
    palette.setColor(QPalette::WindowText, chart_color(colors, 0x0201, Qt::black));
    setPalette(palette);
    view_->setBackgroundBrush(chart_color(colors, 0x0200, Qt::white));
    show_title(*header_, spec_.header, spec_.headerFont, chart_color(colors, 0x0204, Qt::white),
               chart_color(colors, 0x0205, Qt::black));
    show_title(*footer_, spec_.footer, spec_.footerFont, chart_color(colors, 0x0206, Qt::white),
               chart_color(colors, 0x0207, Qt::black));
}

std::optional<QPointF> ChartView2D::chartPoint(int set, int point) const {
    if (!data_ || !drawable_point(*data_, set, point, spec_.logX, spec_.logY)) return std::nullopt;
    const ChartData2D &data = *data_;
    switch (spec_.storedType) {
        case kTypePie:
            return std::nullopt;
        case kTypeBar:
            return QPointF(point, data.y(set, point));
        case kTypeStackingBar: {
            // A stacked bar's top: the sets below it on the same side of zero, and itself.
            double top = 0;
            for (int s = 0; s <= set; ++s)
                if (drawable_point(data, s, point, false, false) &&
                    (data.y(s, point) >= 0) == (data.y(set, point) >= 0))
                    top += data.y(s, point);
            return QPointF(point, top);
        }
        case kTypeRadar:
        case kTypeRadarFilled:
            return QPointF(point, data.y(set, point));
        default:
            return QPointF(data.x(set, point), data.y(set, point));
    }
}

QAbstractSeries *ChartView2D::seriesAt(int set, int point) const {
    for (const DrawnRun &run : runs_)
        if (run.set == set && point >= run.firstPoint && point < run.firstPoint + run.count)
            return run.series;
    return nullptr;
}

ChartPick ChartView2D::pick(QPoint position) const {
    ChartPick result;
    if (header_->isVisible() && header_->geometry().contains(position)) {
        result.region = kRegionHeader;
        return result;
    }
    if (footer_->isVisible() && footer_->geometry().contains(position)) {
        result.region = kRegionFooter;
        return result;
    }
    const QPointF scene = view_->mapToScene(view_->mapFrom(this, position));
    const QPointF inChart = chart_->mapFromScene(scene);
    if (chart_->plotArea().contains(inChart)) result.region = kRegionDataArea;
    if (!data_) return result;
    for (int set = 0; set < data_->sets(); ++set) {
        for (int point = 0; point < data_->points(); ++point) {
            const std::optional<QPointF> value = chartPoint(set, point);
            QAbstractSeries *series = value ? seriesAt(set, point) : nullptr;
            if (series == nullptr) continue;
            const QPointF at = chart_->mapToPosition(*value, series);
            const double distance = std::hypot(at.x() - inChart.x(), at.y() - inChart.y());
            if (result.distance < 0 || distance < result.distance) {
                result.set = set;
                result.point = point;
                result.distance = distance;
            }
        }
    }
    return result;
}

QGraphicsItem *ChartView2D::makeLabelItem(const QString &text) {
    auto *box = new QGraphicsRectItem(chart_);
    auto *words = new QGraphicsSimpleTextItem(text, box);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(12);
    words->setFont(font);
    words->setBrush(Qt::black);
    const QRectF bounds = words->boundingRect();
    box->setRect(bounds.adjusted(-2, -1, 2, 1));
    box->setBrush(kLabelBackground);
    box->setPen(QPen(Qt::black, 0));
    box->setZValue(20);
    return box;
}

bool ChartView2D::addLabel(int set, int point, const QString &text) {
    if (!chartPoint(set, point) || seriesAt(set, point) == nullptr) return false;
    removeLabel(set, point);
    labels_[{set, point}] = {makeLabelItem(text), text};
    placeLabels();
    return true;
}

bool ChartView2D::removeLabel(int set, int point) {
    const auto found = labels_.find({set, point});
    if (found == labels_.end()) return false;
    delete found->second.item;
    labels_.erase(found);
    return true;
}

bool ChartView2D::hasLabel(int set, int point) const {
    return labels_.count({set, point}) > 0;
}

void ChartView2D::removeAllLabels() {
    for (auto &[key, label] : labels_) delete label.item;
    labels_.clear();
}

void ChartView2D::placeLabels() {
    // Each pie's name centred under it; a pie's size is a share of the plot area's smaller side.
    const QRectF area = chart_->plotArea();
    const QList<QAbstractSeries *> all = chart_->series();
    for (std::size_t i = 0; i < pieCaptions_.size() && i < std::size_t(all.size()); ++i) {
        const auto *pie = qobject_cast<QPieSeries *>(all[qsizetype(i)]);
        if (pie == nullptr) continue;
        const QRectF box = pieCaptions_[i]->boundingRect();
        const double radius = pie->pieSize() * std::min(area.width(), area.height()) / 2;
        pieCaptions_[i]->setPos(
            area.left() + area.width() * pie->horizontalPosition() - box.width() / 2,
            area.top() + area.height() * pie->verticalPosition() + radius + 6);
    }
    for (auto &[key, label] : labels_) {
        const std::optional<QPointF> value = chartPoint(key.first, key.second);
        QAbstractSeries *series = seriesAt(key.first, key.second);
        if (!value || series == nullptr) continue;
        const QPointF at = chart_->mapToPosition(*value, series);
        // The label's lower left corner sits just above and right of the point.
        const QRectF box = label.item->boundingRect();
        label.item->setPos(at.x() + 4 - box.left(), at.y() - 4 - box.bottom());
    }
}

QRect ChartView2D::headerRect() const {
    return header_->isVisible() ? header_->geometry() : QRect();
}
QRect ChartView2D::footerRect() const {
    return footer_->isVisible() ? footer_->geometry() : QRect();
}

QImage ChartView2D::renderImage(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    print(painter, QRect(QPoint(0, 0), size));
    return image;
}

void ChartView2D::print(QPainter &painter, const QRect &target) {
    placeLabels();
    // The chart from its scene, so a printer page keeps it as vectors and words.
    paint_chart_frame(painter, target, *this, *header_, *footer_, [this](QPainter &p) {
        view_->render(&p, QRectF(view_->geometry()), view_->viewport()->rect());
    });
}

bool ChartView2D::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        auto *mouse = static_cast<QMouseEvent *>(event);
        auto *source = qobject_cast<QWidget *>(watched);
        if (mouse->button() == Qt::LeftButton && source != nullptr) {
            const QPoint at = source->mapTo(this, mouse->position().toPoint());
            if (event->type() == QEvent::MouseButtonPress)
                emit clicked(at);
            else
                emit doubleClicked(at);
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace quindar
