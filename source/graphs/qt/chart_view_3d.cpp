// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_view_3d.h"

#include <Q3DBars>
#include <Q3DSurface>
#include <QBar3DSeries>
#include <QCustom3DItem>
#include <QCustom3DLabel>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QStackedWidget>
#include <QSurface3DSeries>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>
#include <limits>

#include "chart_camera.h"
#include "chart_input_handler.h"
#include "chart_looks.h"
#include "surface_levels.h"
#include "surface_projection.h"

namespace quindar {
namespace {

// Colour properties of a 3-D chart.
constexpr int kBackground = 0x0200, kForeground = 0x0204, kDataAreaBackground = 0x0201,
              kFooterBackground = 0x0202, kFooterForeground = 0x0203, kGraphBackground = 0x0205,
              kGraphForeground = 0x0206, kHeaderBackground = 0x0207, kHeaderForeground = 0x0208,
              kLegendBackground = 0x0209, kLegendForeground = 0x020A, kMeshTop = 0x020C,
              kSurfaceBottom = 0x020D, kSurfaceTop = 0x020E;
// Room between two names of the legend.
const QString kLegendGap = QStringLiteral("     ");

// The size of a projection picture: fine enough for smooth level lines, coarse enough that a
// line one texel wide still shows on screen.
constexpr int kProjectionSize = 256;
constexpr float kLabelScale = 1.5f;
// Longer than the chart takes to answer a pick on a later frame, even on a slow display.
constexpr int kPickMilliseconds = 1000;
// The height of a label over its point, as a share of the vertical range.
constexpr float kLabelLift = 0.04f;

QImage projection_image(const ProjectionRaster &raster) {
    QImage image(raster.width, raster.height, QImage::Format_ARGB32);
    for (int y = 0; y < raster.height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < raster.width; ++x) line[x] = raster.at(x, y);
    }
    return image;
}

}  // namespace

ChartView3D::ChartView3D(QWidget *parent)
    : QWidget(parent),
      header_(new QLabel(this)),
      footer_(new QLabel(this)),
      notice_(new QLabel(noOpenGlText(), this)),
      legend_(new QLabel(this)),
      stack_(new QStackedWidget(this)) {
    setAccessibleName(tr("3-D graph"));
    header_->setAccessibleName(tr("Graph header"));
    footer_->setAccessibleName(tr("Graph footer"));
    notice_->setAccessibleName(tr("Graph notice"));
    legend_->setAccessibleName(tr("Graph legend"));
    legend_->setAlignment(Qt::AlignCenter);
    legend_->setAutoFillBackground(true);
    legend_->setContentsMargins(8, 4, 8, 4);
    header_->setAlignment(Qt::AlignCenter);
    footer_->setAlignment(Qt::AlignCenter);
    notice_->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header_);
    layout->addWidget(stack_, 1);
    layout->addWidget(legend_);
    layout->addWidget(footer_);
    stack_->addWidget(notice_);
    header_->hide();
    footer_->hide();
    legend_->hide();
    setAutoFillBackground(true);
    makeGraph(false);
}

ChartView3D::~ChartView3D() = default;

QString ChartView3D::noOpenGlText() {
    return tr(
        "3-D graphs need OpenGL, which this display does not offer. The graph was "
        "computed and can still be saved to a graph file.");
}

QAbstract3DGraph *ChartView3D::graph() const {
    return graphBars ? static_cast<QAbstract3DGraph *>(bars_) : surface_;
}

bool ChartView3D::makeGraph(bool bars) {
    if (container_ != nullptr && bars == graphBars) return glUsable;
    removeAllLabels();
    if (container_ != nullptr) {
        stack_->removeWidget(container_);
        delete container_;
        container_ = nullptr;
        surface_ = nullptr;
        bars_ = nullptr;
        surfaceSeries = nullptr;
        projections.clear();
        ceilingItem = nullptr;
    }
    graphBars = bars;
    QAbstract3DGraph *made = nullptr;
    if (bars)
        made = bars_ = new Q3DBars;
    else
        made = surface_ = new Q3DSurface;
    // Without a context every later call of the graph would crash: it is never shown.
    glUsable = made->hasContext();
    if (glUsable) {
        auto *handler = new ChartInputHandler(made);
        made->setActiveInputHandler(handler);
        connect(handler, &ChartInputHandler::popupRequested, this, [this](QPoint at) {
            emit popupRequested(container_ != nullptr ? container_->mapTo(this, at) : at);
        });
        // The ceiling would take the click from the surface under it: it steps aside while
        // the chart picks, and comes back with the answer, or after a while when none comes.
        connect(handler, &ChartInputHandler::pickRequested, this, [this] {
            if (ceilingItem == nullptr) return;
            ceilingItem->setVisible(false);
            QTimer::singleShot(kPickMilliseconds, this, [this] {
                if (ceilingItem != nullptr) ceilingItem->setVisible(true);
            });
        });
    }
    container_ = QWidget::createWindowContainer(made, this);
    container_->setAccessibleName(tr("3-D chart"));
    stack_->addWidget(container_);
    stack_->setCurrentWidget(glUsable ? container_ : static_cast<QWidget *>(notice_));
    return glUsable;
}

void ChartView3D::apply(const ChartSpec3D &spec) {
    spec_ = spec;
    rebuild();
}

void ChartView3D::setData(const ChartGrid3D &grid) {
    grid_ = grid;
    rebuild();
}

void ChartView3D::rebuild() {
    show_title(*header_, spec_.header, spec_.headerFont,
               chart_color(spec_.colors, kHeaderBackground, Qt::white),
               chart_color(spec_.colors, kHeaderForeground, Qt::black));
    show_title(*footer_, spec_.footer, spec_.footerFont,
               chart_color(spec_.colors, kFooterBackground, Qt::white),
               chart_color(spec_.colors, kFooterForeground, Qt::black));
    QStringList names;
    for (const std::string &name : spec_.dataLabels) names << QString::fromStdString(name);
    legend_->setText(names.join(kLegendGap));
    QPalette legendColours = legend_->palette();
    legendColours.setColor(QPalette::Window,
                           chart_color(spec_.colors, kLegendBackground, Qt::white));
    legendColours.setColor(QPalette::WindowText,
                           chart_color(spec_.colors, kLegendForeground, Qt::black));
    legend_->setPalette(legendColours);
    legend_->setVisible(!names.isEmpty());
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, chart_color(spec_.colors, kBackground, Qt::white));
    palette.setColor(QPalette::WindowText, chart_color(spec_.colors, kForeground, Qt::black));
    setPalette(palette);
    if (!makeGraph(spec_.bars)) return;
    if (graphBars)
        fillBars();
    else
        fillSurface();
    applyLooks();
}

void ChartView3D::fillSurface() {
    for (QSurface3DSeries *old : surface_->seriesList()) {
        surface_->removeSeries(old);
        delete old;
    }
    surfaceSeries = nullptr;
    projections.clear();
    if (!grid_) return;
    const ChartGrid3D &grid = *grid_;
    auto *array = new QSurfaceDataArray;
    array->reserve(grid.nz());
    low = std::numeric_limits<float>::max();
    high = std::numeric_limits<float>::lowest();
    for (int iz = 0; iz < grid.nz(); ++iz) {
        auto *row = new QSurfaceDataRow(grid.nx());
        for (int ix = 0; ix < grid.nx(); ++ix) {
            const double value = grid.value(ix, iz);
            // A hole is left empty on the surface.
            const float y = value == grid.hole() ? std::numeric_limits<float>::quiet_NaN()
                                                 : static_cast<float>(value);
            if (y == y) {
                low = std::min(low, y);
                high = std::max(high, y);
            }
            (*row)[ix].setPosition(QVector3D(float(grid.x_at(ix)), y, float(grid.z_at(iz))));
        }
        *array << row;
    }
    auto *series = new QSurface3DSeries;
    series->dataProxy()->resetArray(array);
    // The chart answers (row, column), that is (iz, ix); the selection is let go at once, so
    // a second click on the same point answers again.
    connect(series, &QSurface3DSeries::selectedPointChanged, this, [this, series](QPoint at) {
        // The pick has been answered: a ceiling that stepped aside comes back.
        if (ceilingItem != nullptr) ceilingItem->setVisible(true);
        if (at == QSurface3DSeries::invalidSelectionPosition()) return;
        series->setSelectedPoint(QSurface3DSeries::invalidSelectionPosition());
        emit picked(at.y(), at.x());
    });
    series->setItemLabelFormat(QStringLiteral("(@xLabel , @yLabel , @zLabel)"));
    surface_->addSeries(series);
    surfaceSeries = series;
    // Gradient stops spread over the axis range: it is the data's own.
    if (low > high) low = 0, high = 1;
    if (high <= low) high = low + 1;
    surface_->axisY()->setRange(low, high);
}

void ChartView3D::fillBars() {
    for (QBar3DSeries *old : bars_->seriesList()) {
        bars_->removeSeries(old);
        delete old;
    }
    if (!grid_) return;
    const ChartGrid3D &grid = *grid_;
    auto *array = new QBarDataArray;
    for (int iz = 0; iz < grid.nz(); ++iz) {
        auto *row = new QBarDataRow(grid.nx());
        for (int ix = 0; ix < grid.nx(); ++ix) {
            const double value = grid.value(ix, iz);
            (*row)[ix].setValue(value == grid.hole() ? 0.0f : static_cast<float>(value));
        }
        *array << row;
    }
    auto *series = new QBar3DSeries;
    series->dataProxy()->resetArray(array);
    connect(series, &QBar3DSeries::selectedBarChanged, this, [this, series](QPoint at) {
        if (at == QBar3DSeries::invalidSelectionPosition()) return;
        series->setSelectedBar(QBar3DSeries::invalidSelectionPosition());
        emit picked(at.y(), at.x());
    });
    bars_->addSeries(series);
}

void ChartView3D::applyLooks() {
    QAbstract3DGraph *g = graph();
    Q3DTheme *theme = g->activeTheme();
    theme->setType(Q3DTheme::ThemeUserDefined);
    theme->setWindowColor(chart_color(spec_.colors, kBackground, Qt::white));
    theme->setBackgroundColor(
        chart_color(spec_.colors, kDataAreaBackground, QColor(240, 240, 240)));
    theme->setLabelBackgroundColor(chart_color(spec_.colors, kGraphBackground, Qt::white));
    theme->setLabelTextColor(chart_color(spec_.colors, kGraphForeground, Qt::black));
    theme->setGridLineColor(chart_color(spec_.colors, kForeground, Qt::gray));
    theme->setGridEnabled(spec_.gridLines);
    theme->setBackgroundEnabled(true);
    // Enough ambient light that a face turned from the lamp still shows its colour.
    theme->setAmbientLightStrength(spec_.shade ? 0.55f : 1.0f);
    theme->setLightStrength(spec_.shade ? 4.0f : 0.0f);

    SurfaceLook look{spec_.shade,       spec_.zone,        spec_.contour,
                     TColor(0, 0, 255), TColor(255, 0, 0), TColor(192, 192, 192)};
    for (const ChartColor &c : spec_.colors) {
        if (c.property == kSurfaceBottom) look.bottom = c.color;
        if (c.property == kSurfaceTop) look.top = c.color;
        if (c.property == kDataAreaBackground) look.plain = c.color;
    }
    QLinearGradient gradient(0, 1, 0, 0);
    for (const GradientStop &stop : surface_gradient(look))
        gradient.setColorAt(stop.position, to_qcolor(stop.color));
    const QColor mesh = chart_color(spec_.colors, kMeshTop, Qt::black);

    if (surface_ != nullptr) {
        surface_->axisX()->setTitle(QString::fromStdString(spec_.xTitle));
        surface_->axisY()->setTitle(QString::fromStdString(spec_.zTitle));
        surface_->axisZ()->setTitle(QString::fromStdString(spec_.yTitle));
        for (QAbstract3DAxis *axis : {static_cast<QAbstract3DAxis *>(surface_->axisX()),
                                      static_cast<QAbstract3DAxis *>(surface_->axisY()),
                                      static_cast<QAbstract3DAxis *>(surface_->axisZ())})
            axis->setTitleVisible(true);
        const bool surfaceDrawn = spec_.shade || spec_.zone || spec_.contour || spec_.hidden;
        // With nothing else asked for, the mesh is drawn anyway: never an empty chart.
        const bool meshDrawn = spec_.mesh || !surfaceDrawn;
        QSurface3DSeries::DrawFlags flags;
        if (surfaceDrawn) flags |= QSurface3DSeries::DrawSurface;
        if (meshDrawn) flags |= QSurface3DSeries::DrawWireframe;
        if (QSurface3DSeries *series = surfaceSeries) {
            series->setDrawMode(flags);
            series->setWireframeColor(mesh);
            series->setFlatShadingEnabled(!spec_.shade);
            if (!spec_.shade && !spec_.zone && !spec_.contour && spec_.hidden) {
                series->setColorStyle(Q3DTheme::ColorStyleUniform);
                series->setBaseColor(to_qcolor(look.plain));
            } else {
                series->setBaseGradient(gradient);
                series->setColorStyle(Q3DTheme::ColorStyleRangeGradient);
            }
        }
        projectSurface(look);
    }
    if (bars_ != nullptr) {
        for (QBar3DSeries *series : bars_->seriesList()) {
            series->setBaseGradient(gradient);
            series->setColorStyle(Q3DTheme::ColorStyleRangeGradient);
        }
    }
    // The view: rotation about the vertical from ZRotation, elevation from XRotation, zoom.
    const CameraView view = camera_from_view(
        {spec_.xRotation, spec_.zRotation, spec_.scale, spec_.xTranslate, spec_.yTranslate});
    Q3DCamera *camera = g->scene()->activeCamera();
    camera->setXRotation(view.xRotation);
    camera->setYRotation(view.yRotation);
    camera->setZoomLevel(view.zoom);
    camera->setTarget(QVector3D(view.targetX, view.targetY, 0.0f));
}

void ChartView3D::projectSurface(const SurfaceLook &look) {
    for (QSurface3DSeries *old : projections) {
        surface_->removeSeries(old);
        delete old;
    }
    projections.clear();
    if (ceilingItem != nullptr) surface_->removeCustomItem(ceilingItem);
    ceilingItem = nullptr;
    const ProjectionPlanes planes = projection_planes(spec_);
    if (!grid_ || surfaceSeries == nullptr || grid_->nx() < 2 || grid_->nz() < 2) return;
    if (planes.floor) projectOnFloor(look);
    if (planes.ceiling) projectOnCeiling(look);
}

void ChartView3D::projectOnFloor(const SurfaceLook &look) {
    const ChartGrid3D &grid = *grid_;
    // A flat sheet of two by two points over the grid's extent carries the picture.
    auto *array = new QSurfaceDataArray;
    for (const int iz : {0, grid.nz() - 1}) {
        auto *row = new QSurfaceDataRow(2);
        (*row)[0].setPosition(QVector3D(float(grid.x_at(0)), low, float(grid.z_at(iz))));
        (*row)[1].setPosition(
            QVector3D(float(grid.x_at(grid.nx() - 1)), low, float(grid.z_at(iz))));
        *array << row;
    }
    auto *plane = new QSurface3DSeries;
    plane->dataProxy()->resetArray(array);
    plane->setDrawMode(QSurface3DSeries::DrawSurface);
    plane->setFlatShadingEnabled(true);
    // The picture's first row is the lowest Z; the sheet's texture runs the other way.
    plane->setTexture(projection_image(projection_raster(grid, look, low, high, kProjectionSize,
                                                         kProjectionSize, false))
                          .mirrored(false, true));
    surface_->addSeries(plane);
    projections.push_back(plane);
}

void ChartView3D::projectOnCeiling(const SurfaceLook &look) {
    const ChartGrid3D &grid = *grid_;
    // The level lines alone on a see-through sheet at the top of the box, so that the surface
    // stays in sight. The chart's plane mesh spans -1..1 upright: it is laid flat and
    // stretched over the data's extent (its scale counts in data units), its texture turned
    // as the floor's.
    auto *ceiling = new QCustom3DItem;
    ceiling->setMeshFile(QStringLiteral(":/defaultMeshes/plane"));
    ceiling->setTextureImage(
        projection_image(
            projection_raster(grid, look, low, high, kProjectionSize, kProjectionSize, true))
            .mirrored(false, true));
    ceiling->setPositionAbsolute(true);
    ceiling->setPosition(QVector3D(0.0f, 1.0f, 0.0f));
    ceiling->setScalingAbsolute(false);
    const float halfX = float(std::abs(grid.x_at(grid.nx() - 1) - grid.x_at(0)) / 2);
    const float halfZ = float(std::abs(grid.z_at(grid.nz() - 1) - grid.z_at(0)) / 2);
    ceiling->setScaling(QVector3D(halfX, halfZ, 1.0f));
    ceiling->setRotation(QQuaternion::fromAxisAndAngle(1.0f, 0.0f, 0.0f, -90.0f));
    ceiling->setShadowCasting(false);
    surface_->addCustomItem(ceiling);
    ceilingItem = ceiling;
}

CameraView ChartView3D::camera() const {
    if (!glUsable)
        return camera_from_view(
            {spec_.xRotation, spec_.zRotation, spec_.scale, spec_.xTranslate, spec_.yTranslate});
    const Q3DCamera *view = graph()->scene()->activeCamera();
    return CameraView{view->xRotation(), view->yRotation(), view->zoomLevel(), view->target().x(),
                      view->target().y()};
}

ChartPick ChartView3D::pick(QPoint position) const {
    ChartPick result;
    if (header_->isVisible() && header_->geometry().contains(position))
        result.region = -98;
    else if (footer_->isVisible() && footer_->geometry().contains(position))
        result.region = -97;
    else if (stack_->geometry().contains(position))
        result.region = -100;
    // The chart answers a point query a frame later; a label comes through addLabel then.
    return result;
}

bool ChartView3D::addLabel(int ix, int iz, const QString &text) {
    if (!glUsable || !grid_ || !grid_->in_range(ix, iz) || grid_->value(ix, iz) == grid_->hole())
        return false;
    removeLabel(ix, iz);
    auto *label = new QCustom3DLabel;
    label->setText(text);
    QFont font(QStringLiteral("Arial"));
    font.setPointSize(9);
    label->setFont(font);
    label->setBackgroundColor(QColor(255, 255, 128));
    label->setFacingCamera(true);
    label->setTextColor(Qt::black);
    // The chart shrinks labels to a tenth unless told: full size reads like a 2-D label.
    label->setScaling(QVector3D(kLabelScale, kLabelScale, kLabelScale));
    // A little above its point, so that the surface around does not bury it.
    const float lift = (high - low) * kLabelLift;
    label->setPosition(QVector3D(float(grid_->x_at(ix)), float(grid_->value(ix, iz)) + lift,
                                 float(grid_->z_at(iz))));
    graph()->addCustomItem(label);
    labels_[{ix, iz}] = label;
    return true;
}

bool ChartView3D::removeLabel(int ix, int iz) {
    const auto found = labels_.find({ix, iz});
    if (found == labels_.end()) return false;
    if (graph() != nullptr) graph()->removeCustomItem(found->second);
    labels_.erase(found);
    return true;
}

bool ChartView3D::hasLabel(int ix, int iz) const {
    return labels_.count({ix, iz}) > 0;
}

void ChartView3D::removeAllLabels() {
    if (graph() != nullptr)
        for (auto &[key, label] : labels_) graph()->removeCustomItem(label);
    labels_.clear();
}

QRect ChartView3D::headerRect() const {
    return header_->isVisible() ? header_->geometry() : QRect();
}
QRect ChartView3D::footerRect() const {
    return footer_->isVisible() ? footer_->geometry() : QRect();
}

QImage ChartView3D::renderImage(QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(palette().color(QPalette::Window));
    QPainter painter(&image);
    print(painter, QRect(QPoint(0, 0), size));
    return image;
}

void ChartView3D::print(QPainter &painter, const QRect &target) {
    paint_chart_frame(painter, target, *this, *header_, *footer_, [this](QPainter &p) {
        const QRect area = stack_->geometry();
        if (glUsable) {
            // A window container grabs black: the graph draws itself into an image.
            p.drawImage(area, graph()->renderToImage(4, area.size()));
        } else {
            p.setPen(palette().color(QPalette::WindowText));
            p.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, notice_->text());
        }
        paint_frame_label(p, *legend_);
    });
}

}  // namespace quindar
