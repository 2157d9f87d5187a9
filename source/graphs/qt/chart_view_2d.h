// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A 2-D chart on Qt Charts: a header label, the chart, a footer label. It draws every 2-D type
// from the program's decisions and data and keeps its own copy of both, so a change of the
// decisions redraws from the same numbers. Sets are split into runs at holes, so no line is
// ever drawn across a point that is not there.

#include <QWidget>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "chart_data.h"
#include "chart_decisions.h"
#include "chart_runs.h"
#include "chart_view.h"

class QChart;
class QChartView;
class QAbstractSeries;
class QAbstractAxis;
class QLineSeries;
class QGraphicsItem;
class QLabel;

class QGraphicsSimpleTextItem;

namespace quindar {

class ChartView2D : public QWidget, public ChartView {
    Q_OBJECT
public:
    explicit ChartView2D(QWidget *parent = nullptr);
    ~ChartView2D() override;

    // The decisions, then the data; either redraws the chart.
    void apply(const ChartSpec2D &spec);
    void setData(const ChartData2D &data);
    const ChartSpec2D &spec() const { return spec_; }
    const std::optional<ChartData2D> &data() const { return data_; }

    QChart *chart() const { return chart_; }
    QChartView *chartView() const { return view_; }
    QLabel *header() const { return header_; }
    QLabel *footer() const { return footer_; }
    // The chart set a drawn series belongs to; -1 for one that is not a set's.
    int setOfSeries(const QAbstractSeries *series) const;

    QWidget *widget() override { return this; }
    ChartPick pick(QPoint position) const override;
    bool addLabel(int set, int point, const QString &text) override;
    bool removeLabel(int set, int point) override;
    bool hasLabel(int set, int point) const override;
    int labelCount() const override { return static_cast<int>(labels_.size()); }
    // The captions under the pies of a Pie chart, set by set; empty for other types.
    const std::vector<QGraphicsSimpleTextItem *> &pieCaptions() const { return pieCaptions_; }
    void removeAllLabels() override;
    QImage renderImage(QSize size) override;
    void print(QPainter &painter, const QRect &target) override;
    QRect headerRect() const override;
    QRect footerRect() const override;

signals:
    // A click and a double click on the chart, its header or its footer (widget coordinates).
    void clicked(QPoint position);
    void doubleClicked(QPoint position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct DrawnRun {
        QAbstractSeries *series;
        int set;
        int firstPoint;
        int count;
    };
    struct PointLabel {
        QGraphicsItem *item;
        QString text;
    };

    void rebuild();
    DataStyle styleOf(int set) const;
    QString setLabel(int set) const;
    // A run's line in its set's style, or the area under it with this opacity.
    QAbstractSeries *styledRun(QLineSeries *line, int set, bool area, int alpha) const;
    void addRun(QAbstractSeries *series, int set, const PointRun &run, QAbstractAxis *horizontal,
                QAbstractAxis *vertical, bool firstOfSet);
    void applyFrameColors();
    void applyChartColors();
    void drawXY(bool area);
    void drawBars(bool stacked);
    void drawPie();
    void drawCandles(int group);
    void drawPolar();
    void drawRadar(bool filled);
    std::optional<QPointF> chartPoint(int set, int point) const;
    QAbstractSeries *seriesAt(int set, int point) const;
    QGraphicsItem *makeLabelItem(const QString &text);
    void placeLabels();
    QColor setColor(int set) const;

    ChartSpec2D spec_;
    std::optional<ChartData2D> data_;
    QLabel *header_;
    QLabel *footer_;
    QChartView *view_;
    QChart *chart_ = nullptr;
    std::vector<DrawnRun> runs_;
    std::map<std::pair<int, int>, PointLabel> labels_;
    // The name of each pie, under it (a pie chart's legend lists the slices).
    std::vector<QGraphicsSimpleTextItem *> pieCaptions_;
};

}  // namespace quindar
