// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A 3-D chart on Qt Data Visualization: a surface (holes left empty) or bars, with header and
// footer labels around it. Without an OpenGL context the chart cannot draw at all; the widget
// then says so instead of touching the graph.

#include <QWidget>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "chart_camera.h"
#include "chart_data.h"
#include "chart_decisions.h"
#include "chart_view.h"
#include "surface_levels.h"

class Q3DSurface;
class Q3DBars;
class QAbstract3DGraph;
class QCustom3DItem;
class QCustom3DLabel;
class QLabel;
class QStackedWidget;
class QSurface3DSeries;

namespace quindar {

class ChartView3D : public QWidget, public ChartView {
    Q_OBJECT
public:
    explicit ChartView3D(QWidget *parent = nullptr);
    ~ChartView3D() override;

    void apply(const ChartSpec3D &spec);
    void setData(const ChartGrid3D &grid);
    const ChartSpec3D &spec() const { return spec_; }

    // The text shown when the machine cannot draw 3-D.
    static QString noOpenGlText();
    QLabel *notice() const { return notice_; }
    // The names of the graph's functions and data sets under the chart; hidden for none.
    QLabel *legend() const { return legend_; }
    QAbstract3DGraph *graph() const;
    // Where the user has turned the view (the decisions' view while nothing can draw).
    CameraView camera() const;
    // The projection planes shown (floor first), for tests.
    const std::vector<QSurface3DSeries *> &projectionSeries() const { return projections; }
    QCustom3DItem *ceiling() const { return ceilingItem; }

    QWidget *widget() override { return this; }
    bool canDraw() const override { return glUsable; }
    ChartPick pick(QPoint position) const override;
    bool addLabel(int ix, int iz, const QString &text) override;
    bool removeLabel(int ix, int iz) override;
    bool hasLabel(int ix, int iz) const override;
    int labelCount() const override { return static_cast<int>(labels_.size()); }
    void removeAllLabels() override;
    QImage renderImage(QSize size) override;
    void print(QPainter &painter, const QRect &target) override;
    QRect headerRect() const override;
    QRect footerRect() const override;

signals:
    // The chart picked grid point (ix, iz): a click on the surface or a bar, answered a frame
    // after the click.
    void picked(int ix, int iz);
    // The right button on the chart, at this position of the widget.
    void popupRequested(QPoint position);

private:
    void rebuild();
    bool makeGraph(bool bars);
    void fillSurface();
    void fillBars();
    void applyLooks();
    // The floor and ceiling pictures of the surface, made again for the current looks.
    void projectSurface(const SurfaceLook &look);
    void projectOnFloor(const SurfaceLook &look);
    void projectOnCeiling(const SurfaceLook &look);

    ChartSpec3D spec_;
    std::optional<ChartGrid3D> grid_;
    QLabel *header_;
    QLabel *footer_;
    QLabel *notice_;
    QLabel *legend_;
    QStackedWidget *stack_;
    Q3DSurface *surface_ = nullptr;
    Q3DBars *bars_ = nullptr;
    QWidget *container_ = nullptr;
    bool glUsable = false;
    bool graphBars = false;
    QSurface3DSeries *surfaceSeries = nullptr;
    std::vector<QSurface3DSeries *> projections;
    QCustom3DItem *ceilingItem = nullptr;
    // The vertical range of the surface's values.
    float low = 0, high = 1;
    std::map<std::pair<int, int>, QCustom3DLabel *> labels_;
};

}  // namespace quindar
