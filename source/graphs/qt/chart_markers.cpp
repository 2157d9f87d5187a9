// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_markers.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <iterator>

namespace quindar {
namespace {

enum class Shape {
    Dot,
    Box,
    Triangle,
    Diamond,
    Star,
    VerticalBar,
    HorizontalBar,
    Cross,
    Circle,
    Square,
    OpenTriangle,
    OpenDiamond,
    Plus,
    InvertedTriangle,
    Ring
};

struct MarkerLook {
    int style;
    Shape shape;
};

constexpr MarkerLook kMarkers[] = {
    {2, Shape::Dot},           {3, Shape::Box},
    {4, Shape::Triangle},      {5, Shape::Diamond},
    {6, Shape::Star},          {7, Shape::VerticalBar},
    {8, Shape::HorizontalBar}, {9, Shape::Cross},
    {10, Shape::Circle},       {11, Shape::Square},
    {12, Shape::OpenTriangle}, {13, Shape::OpenDiamond},
    {14, Shape::Plus},         {15, Shape::InvertedTriangle},
    {16, Shape::Ring},
};

QPolygonF polygon(std::initializer_list<QPointF> points) {
    return QPolygonF(points);
}

void draw_shape(QPainter &p, Shape shape, double s) {
    const double m = s / 2.0;
    const double e = s - 0.5;
    switch (shape) {
        case Shape::Dot:
        case Shape::Circle:
        case Shape::Ring:
            p.drawEllipse(QRectF(0.5, 0.5, s - 1.0, s - 1.0));
            break;
        case Shape::Box:
        case Shape::Square:
            p.drawRect(QRectF(0.5, 0.5, s - 1.0, s - 1.0));
            break;
        case Shape::Triangle:
        case Shape::OpenTriangle:
            p.drawPolygon(polygon({{m, 0.5}, {e, e}, {0.5, e}}));
            break;
        case Shape::InvertedTriangle:
            p.drawPolygon(polygon({{0.5, 0.5}, {e, 0.5}, {m, e}}));
            break;
        case Shape::Diamond:
        case Shape::OpenDiamond:
            p.drawPolygon(polygon({{m, 0.5}, {e, m}, {m, e}, {0.5, m}}));
            break;
        case Shape::Star:
            p.drawLine(QPointF(m, 0), QPointF(m, s));
            p.drawLine(QPointF(0, m), QPointF(s, m));
            p.drawLine(QPointF(1, 1), QPointF(s - 1, s - 1));
            p.drawLine(QPointF(1, s - 1), QPointF(s - 1, 1));
            break;
        case Shape::VerticalBar:
            p.drawLine(QPointF(m, 0), QPointF(m, s));
            break;
        case Shape::HorizontalBar:
            p.drawLine(QPointF(0, m), QPointF(s, m));
            break;
        case Shape::Cross:
            p.drawLine(QPointF(1, 1), QPointF(s - 1, s - 1));
            p.drawLine(QPointF(1, s - 1), QPointF(s - 1, 1));
            break;
        case Shape::Plus:
            p.drawLine(QPointF(m, 0), QPointF(m, s));
            p.drawLine(QPointF(0, m), QPointF(s, m));
            break;
    }
}

bool filled(Shape shape) {
    return shape == Shape::Dot || shape == Shape::Box || shape == Shape::Triangle ||
           shape == Shape::Diamond || shape == Shape::InvertedTriangle;
}

}  // namespace

QImage point_marker(int pointStyle, const QColor &color, int size) {
    const MarkerLook *look = nullptr;
    for (const MarkerLook &candidate : kMarkers)
        if (candidate.style == pointStyle) look = &candidate;
    if (look == nullptr || size <= 0) return {};
    // Drawn at four times the size and scaled down, so small markers stay smooth.
    const int scale = 4;
    QImage image(size * scale, size * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(QPen(color, 1.2));
    painter.setBrush(filled(look->shape) ? QBrush(color) : Qt::NoBrush);
    draw_shape(painter, look->shape, size);
    painter.end();
    return image.scaled(size * 2, size * 2, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace quindar
