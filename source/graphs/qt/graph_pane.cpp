// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_pane.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStackedLayout>
#include <utility>

#include "chart_camera.h"
#include "chart_decisions.h"
#include "chart_runs.h"
#include "chart_view_2d.h"
#include "chart_view_3d.h"
#include "graph_compute_host.h"
#include "graph_layout.h"
#include "graph_messages.h"
#include "graph_progress_dialog.h"
#include "graph_view_commands.h"
#include "grid_smoothing.h"

namespace quindar {
namespace {

// The longest header or footer the editor takes.
constexpr int kTitleLimit = 512;

}  // namespace

GraphPane::GraphPane(QWidget *parent)
    : QWidget(parent), stack(new QStackedLayout(this)), chart2D(new ChartView2D(this)) {
    setAccessibleName(tr("Graph pane"));
    stack->addWidget(chart2D);
    connect(chart2D, &ChartView2D::clicked, this, &GraphPane::Click);
    connect(chart2D, &ChartView2D::doubleClicked, this, &GraphPane::DoubleClick);
    formatValue = [](double value) { return QString::number(value, 'g', 15); };
    // Smoothing is in no menu: its key is the way to it.
    auto *smooth = new QAction(tr("Smooth Graph"), this);
    smooth->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M));
    smooth->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(smooth, &QAction::triggered, this, &GraphPane::Smooth);
    addAction(smooth);
}

GraphPane::~GraphPane() = default;

bool GraphPane::Build(Parser &parser, const GraphData &graph, GraphList *list,
                      const GraphBuildOutput &output) {
    if (building) return false;
    labelBuilder.reset();
    labelGraph = std::make_unique<GraphData>(graph);
    GraphData &work = *labelGraph;
    if (work.GetGraphType() == kGraph2D) work.DataLayout = decide_data_layout(parser, work);

    GraphProgressDialog dialog(window());
    dialog.setWindowTitle(QString::fromStdString(work.Name));
    dialog.show();
    GraphComputeHost host(&dialog, this, pumpMilliseconds);
    ComputeHost *before = parser.get_compute_host();
    parser.set_computation_hooks(&host);
    progress = &dialog;
    building = true;
    labelBuilder = std::make_unique<GraphBuilder>(parser, work, output);
    GraphBuilder &builder = *labelBuilder;
    const bool complete = builder.Build(list);
    building = false;
    progress = nullptr;
    parser.set_computation_hooks(before);

    // A cancelled build still shows what it computed.
    file2D.reset();
    file3D.reset();
    data2D = builder.Data2D;
    data3D = builder.Data3D;
    shownGraph = work;
    chart2D->removeAllLabels();
    if (data2D) {
        chart2D->apply(chart_spec_2d(work, parser.angle_mode));
        chart2D->setData(*data2D);
        stack->setCurrentWidget(chart2D);
    } else if (data3D) {
        Show3D(chart_spec_3d(work), *data3D);
    } else if (builder.Kind == kGraph3D) {
        // Nothing computed at all (a function that cannot be mapped): an empty chart of the
        // graph rather than the last one.
        Show3D(chart_spec_3d(work), ChartGrid3D::regular(2, 2, kHoleValue, 1, 1, 0, 0));
    } else {
        chart2D->apply(chart_spec_2d(work, parser.angle_mode));
        chart2D->setData(ChartData2D(1, 1, 0));
        stack->setCurrentWidget(chart2D);
    }
    emit built();
    return complete;
}

void GraphPane::Redraw(int angleMode) {
    if (GraphData *graph = Shown2D()) chart2D->apply(chart_spec_2d(*graph, angleMode));
    if (file2D) chart2D->apply(chart_spec_2d(*file2D, angleMode));
    if (file3D && chart3D != nullptr) chart3D->apply(chart_spec_3d(*file3D));
    if (GraphData *graph = Shown3D(); graph != nullptr && chart3D != nullptr) {
        chart3D->apply(chart_spec_3d(*graph));
    }
}

View3DValues GraphPane::ShownView3D() const {
    if (chart3D == nullptr) return {};
    const ChartSpec3D &spec = chart3D->spec();
    const GraphView3D turned = view_from_camera(chart3D->camera());
    // The camera holds no perspective depth and no roll: those stay as last drawn.
    return {spec.perspectiveDepth, turned.xRotation,  spec.yRotation, turned.zRotation,
            turned.xTranslate,     turned.yTranslate, turned.scale};
}

void GraphPane::SaveOrientation() {
    if (file2D) {
        // What the chart shows is what a graph file keeps.
        const ChartSpec2D &shown = chart2D->spec();
        file2D->depth = shown.depth;
        file2D->inclination = shown.inclination;
        file2D->rotation = shown.rotation;
        file2D->margins = {shown_margin(shown.marginBottom), shown_margin(shown.marginTop),
                           shown_margin(shown.marginLeft), shown_margin(shown.marginRight)};
    }
    if (chart3D == nullptr) return;
    if (GraphData *graph = Shown3D()) set_view_3d(*graph, ShownView3D());
    if (file3D) file3D->view = ShownView3D();
}

void GraphPane::Perspective() {
    if (CurrentView() == chart2D) {
        ChartSpec2D spec = chart2D->spec();
        perspective_view(spec);
        chart2D->apply(spec);
    } else if (chart3D != nullptr && CurrentView() == chart3D) {
        ChartSpec3D spec = chart3D->spec();
        perspective_view(spec);
        chart3D->apply(spec);
    }
}

bool GraphPane::Smooth() {
    if (chart3D == nullptr || CurrentView() != chart3D || building) return false;
    ChartGrid3D *grid = data3D ? &*data3D : file3D ? &file3D->grid : nullptr;
    if (grid == nullptr) return false;
    smooth_grid(*grid);
    chart3D->setData(*grid);
    return true;
}

void GraphPane::Show3D(const ChartSpec3D &spec, const ChartGrid3D &grid) {
    if (chart3D == nullptr) {
        chart3D = new ChartView3D(this);
        stack->addWidget(chart3D);
        connect(chart3D, &ChartView3D::picked, this, &GraphPane::Toggle3DLabel);
        // The chart's window takes the right button itself: its pop-up is the pane's.
        connect(chart3D, &ChartView3D::popupRequested, this,
                [this](QPoint at) { emit customContextMenuRequested(chart3D->mapTo(this, at)); });
    }
    chart3D->removeAllLabels();
    chart3D->apply(spec);
    chart3D->setData(grid);
    stack->setCurrentWidget(chart3D);
}

QString GraphPane::Notice() const {
    const bool shows3D = chart3D != nullptr && stack->currentWidget() == chart3D;
    return shows3D && !chart3D->canDraw() ? ChartView3D::noOpenGlText() : QString();
}

bool GraphPane::OpenFile(const std::string &path, const GraphDefaults &defaults, int angleMode,
                         std::string &error) {
    std::string text;
    if (!load_graph_file_text(path, text, error)) return false;
    const int kind = graph_file_kind(path);
    if (kind == 1) {
        GraphFile2D file;
        if (!parse_graph_file(text, defaults, file, error)) return false;
        chart2D->removeAllLabels();
        chart2D->apply(chart_spec_2d(file, angleMode));
        chart2D->setData(file.data);
        stack->setCurrentWidget(chart2D);
        file2D = std::move(file);
        file3D.reset();
    } else if (kind == 2) {
        GraphFile3D file;
        if (!parse_graph_file(text, defaults, file, error)) return false;
        Show3D(chart_spec_3d(file), file.grid);
        file3D = std::move(file);
        file2D.reset();
    } else {
        error = graph_message(kMsgNotAGraphFile);
        return false;
    }
    shownGraph.reset();
    data2D.reset();
    data3D.reset();
    filePath = path;
    return true;
}

bool GraphPane::HasChart() const {
    return data2D || data3D || file2D || file3D;
}

std::string GraphPane::FileExtension() const {
    if (data2D || file2D) return ".g2d";
    if (data3D || file3D) return ".g3d";
    return {};
}

bool GraphPane::SaveFile(const std::string &path, std::string &error) const {
    // A 3-D file keeps the view as the user turned it.
    const bool turned = chart3D != nullptr && (data3D || file3D);
    std::string text;
    if (file2D) {
        text = graph_file_text(*file2D);
    } else if (file3D) {
        GraphFile3D file = *file3D;
        if (turned) file.view = ShownView3D();
        text = graph_file_text(file);
    } else if (shownGraph && data2D) {
        text = graph_file_text(make_graph_file_2d(*shownGraph, *data2D));
    } else if (shownGraph && data3D) {
        GraphData graph = *shownGraph;
        if (turned) set_view_3d(graph, ShownView3D());
        text = graph_file_text(make_graph_file_3d(graph, *data3D));
    } else {
        error = "no graph";
        return false;
    }
    return save_graph_file(path, text, error);
}

ChartView *GraphPane::CurrentView() const {
    if (stack->currentWidget() == chart2D) return data2D || file2D ? chart2D : nullptr;
    if (chart3D != nullptr && stack->currentWidget() == chart3D) return chart3D;
    return nullptr;
}

QImage GraphPane::Image(QSize size) const {
    if (ChartView *view = CurrentView()) return view->renderImage(size);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

void GraphPane::Print(QPainter &painter, const QRect &target) const {
    if (ChartView *view = CurrentView()) view->print(painter, target);
}

void GraphPane::keyPressEvent(QKeyEvent *event) {
    modifierDown = event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control;
    QWidget::keyPressEvent(event);
}

void GraphPane::Toggle3DLabel(int ix, int iz) {
    if (std::exchange(modifierDown, false)) return;
    if (!pointLabelsOn || chart3D == nullptr || CurrentView() != chart3D) return;
    if (chart3D->removeLabel(ix, iz)) return;
    // A graph read from a file has no definition to label from.
    if (!data3D || !labelBuilder || !data3D->in_range(ix, iz) ||
        data3D->value(ix, iz) == data3D->hole())
        return;
    // The values come from the definition, the function computed afresh, not from the grid.
    complex x, y, z;
    if (!labelBuilder->LabelValues3D(*data3D, ix, iz, x, y, z)) return;
    const QString text = QStringLiteral(" (%1 , %2 , %3) ")
                             .arg(formatValue(x.real), formatValue(y.real), formatValue(z.real));
    chart3D->addLabel(ix, iz, text);
}

void GraphPane::DoubleClick(QPoint position) {
    if (!HasChart()) {
        if (openSetup) openSetup(chart2D->mapToGlobal(position));
        return;
    }
    if (CurrentView() != chart2D) return;
    const int region = chart2D->pick(position).region;
    if (region != kRegionHeader && region != kRegionFooter) {
        if (openSetup) openSetup(chart2D->mapToGlobal(position));
        return;
    }
    if (titleEditor != nullptr) CommitTitle();
    titleKind = region == kRegionHeader ? 0 : 1;
    const QRect rect = titleKind == 0 ? chart2D->headerRect() : chart2D->footerRect();
    titleEditor = new QLineEdit(chart2D);
    titleEditor->setAccessibleName(titleKind == 0 ? tr("Header editor") : tr("Footer editor"));
    titleEditor->setMaxLength(kTitleLimit);
    const std::string &text = titleKind == 0 ? chart2D->spec().header : chart2D->spec().footer;
    titleEditor->setText(QString::fromStdString(text));
    titleEditor->setGeometry(rect);
    titleEditor->show();
    titleEditor->setFocus();
    titleEditor->selectAll();
    connect(titleEditor, &QLineEdit::returnPressed, this, &GraphPane::CommitTitle);
}

void GraphPane::CommitTitle() {
    if (titleEditor == nullptr) return;
    QLineEdit *editor = std::exchange(titleEditor, nullptr);
    const QString text = editor->text().left(kTitleLimit);
    editor->hide();
    editor->deleteLater();
    ChartSpec2D spec = chart2D->spec();
    (titleKind == 0 ? spec.header : spec.footer) = text.toStdString();
    chart2D->apply(spec);
    // A graph read from a file changes on the chart only.
    if (GraphData *graph = Shown2D()) {
        const QByteArray bytes = text.toUtf8();
        if (titleKind == 0)
            graph->SetHeader(bytes.constData());
        else
            graph->SetFooter(bytes.constData());
        emit titleEdited(titleKind, text);
    }
}

void GraphPane::Click(QPoint position) {
    if (titleEditor != nullptr) {
        // A click in the title being edited leaves the editor open.
        const int region = chart2D->pick(position).region;
        if (region == (titleKind == 0 ? kRegionHeader : kRegionFooter)) return;
        CommitTitle();
    }
    if (!HasChart()) {
        if (openSetup) openSetup(chart2D->mapToGlobal(position));
        return;
    }
    if (std::exchange(modifierDown, false)) return;
    if (!pointLabelsOn || CurrentView() != chart2D) return;
    const ChartPick hit = chart2D->pick(position);
    if (!pick_takes_label(hit.region, hit.distance)) return;
    if (chart2D->removeLabel(hit.set, hit.point)) return;
    // A graph read from a file has no definition to label from.
    if (!data2D) return;
    const QString text = QStringLiteral(" (%1 , %2) ")
                             .arg(formatValue(data2D->x(hit.set, hit.point)),
                                  formatValue(data2D->y(hit.set, hit.point)));
    chart2D->addLabel(hit.set, hit.point, text);
}

}  // namespace quindar
