// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the graph window asks of a drawn chart, whichever library draws it: the chart takes the
// program's decisions and data as they are, answers where a click falls, carries the point
// labels, and paints itself into an image or onto a printer page.

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

class QPainter;
class QWidget;

namespace quindar {

// Where a click falls: the nearest point (set and point, or ix and iz of a 3-D grid; -1 for
// none) with its distance in pixels, and the region (data area, header, footer, 0 elsewhere).
struct ChartPick {
    int set = -1;
    int point = -1;
    double distance = -1.0;
    int region = 0;
};

class ChartView {
public:
    virtual ~ChartView() = default;
    // The widget that shows the chart with its header and footer.
    virtual QWidget *widget() = 0;
    // False when this machine cannot draw the chart (a 3-D chart without OpenGL); the widget
    // then shows why.
    virtual bool canDraw() const { return true; }
    virtual ChartPick pick(QPoint position) const = 0;
    // A label at (set, point) of the data with this text; false when the point has no place
    // on the chart (a hole).
    virtual bool addLabel(int set, int point, const QString &text) = 0;
    virtual bool removeLabel(int set, int point) = 0;
    virtual bool hasLabel(int set, int point) const = 0;
    virtual int labelCount() const = 0;
    virtual void removeAllLabels() = 0;
    // The chart with header, footer and labels, drawn at this size.
    virtual QImage renderImage(QSize size) = 0;
    // The same, scaled into target on any painter (a printer page keeps vector output).
    virtual void print(QPainter &painter, const QRect &target) = 0;
    // The header and footer rectangles, in widget coordinates, for the inline editor.
    virtual QRect headerRect() const = 0;
    virtual QRect footerRect() const = 0;
};

}  // namespace quindar
