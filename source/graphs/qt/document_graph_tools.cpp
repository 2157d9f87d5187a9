// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_graph_tools.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLayout>
#include <QMenu>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <span>
#include <sstream>
#include <utility>

#include "chart_view.h"
#include "chart_view_2d.h"
#include "command_table.h"
#include "document_panes.h"
#include "document_window.h"
#include "graph_builder.h"
#include "graph_file_view_commands.h"
#include "graph_messages.h"
#include "graph_pane.h"
#include "graph_view_commands.h"
#include "graph_view_commands_3d.h"
#include "ini_graph_settings.h"
#include "math_editor_widget.h"
#include "message_box_rules.h"
#include "parser.h"
#include "workbench.h"

namespace quindar {
namespace {

// The size of the clipboard picture when the pane has not been laid out.
constexpr QSize kDefaultImageSize(800, 600);

// "You are currently building a graph, ..." under "Graph Window": the build has to stop first.
constexpr int kRefusalText = 25109;
void RefuseWhileBuilding(Workbench &workbench, QWidget *parent) {
    workbench.Messages().Show(parent, kRefusalText, kMsgGraphWindow, kBoxWarning);
}

const QString kObjectName = QStringLiteral("documentGraphs");

class DocumentGraphs : public QObject {
public:
    DocumentGraphs(Workbench &owner, DocumentWindow &doc)
        : QObject(&doc), workbench(owner), document(doc), pane(new GraphPane(&doc)) {
        setObjectName(kObjectName);
        pane->setObjectName(QStringLiteral("graphPane"));
        pane->hide();
        doc.layout()->addWidget(pane);
        pane->formatValue = [this](double value) {
            std::ostringstream text;
            complex number{value, 0};
            // A label shows as many digits as the answers of the text do.
            const PrecformType *format = document.Engine().answer_format.get();
            document.Engine().stream_variable(number, text,
                                              static_cast<int>(format ? format->precision : 14));
            return QString::fromStdString(text.str());
        };
        // The document's close asks whether anything computes.
        auto before = doc.activity;
        doc.activity = [this, before] {
            DocumentActivity activity = before ? before() : DocumentActivity{};
            activity.buildingGraph = activity.buildingGraph || pane->Building();
            return activity;
        };
        // Other tools of the document may answer states of their own.
        auto beforeState = doc.toolState;
        doc.toolState = [this, beforeState](int id, CommandState &state) {
            return State(id, state) || (beforeState && beforeState(id, state));
        };
        doc.paneCaption = [this] { return GraphShowing() ? caption : QString(); };
        pane->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(pane, &QWidget::customContextMenuRequested, this, [this](QPoint at) {
            QMenu *menu = make_graph_popup(workbench, pane);
            menu->exec(pane->mapToGlobal(at));
            delete menu;
        });
        connect(pane, &GraphPane::titleEdited, this, [this](int kind, const QString &text) {
            const GraphData *shown = pane->Shown2D();
            const QByteArray bytes = text.toUtf8();
            for (GraphData *stored = document.Content().graphs.gethead(); shown && stored;
                 stored = stored->next) {
                if (stored->Name != shown->Name) continue;
                if (kind == 0)
                    stored->SetHeader(bytes.constData());
                else
                    stored->SetFooter(bytes.constData());
            }
            document.MarkGraphsChanged();
        });
    }

    GraphPane &Pane() { return *pane; }
    bool GraphShowing() const { return !pane->isHidden(); }

    bool State(int id, CommandState &state) {
        switch (id) {
            case command::kShowGraphWindow:
                state.checked = GraphShowing();
                return true;
            case command::kShowMathWindow:
                state.checked = !GraphShowing();
                return true;
            case command::kCopyGraph:
            case command::kPrintGraph:
            case command::kSaveGraphFile:
                state.enabled = GraphShowing() && pane->HasChart() && !pane->Building();
                return true;
            case command::kPointLabels:
                state.enabled = GraphShowing();
                state.checked = pane->pointLabelsOn;
                return true;
            case command::kRemoveAllPointLabels:
                state.enabled = GraphShowing() && pane->CurrentView() != nullptr &&
                                pane->CurrentView()->labelCount() > 0;
                return true;
            case command::kSet2DPerspective:
                state.enabled = GraphShowing() && pane->CurrentView() != nullptr;
                return true;
            case command::kLogarithmicX:
            case command::kLogarithmicY:
            case command::kGridLines:
            case command::kIncreaseMargins:
            case command::kDecreaseMargins:
            case command::kSetDefaultMargins:
            case command::kSaveAsDefaultMargins:
            case command::kSetDefaultOrientation:
            case command::kSaveAsDefaultOrientation: {
                const bool logAxis = id == command::kLogarithmicX || id == command::kLogarithmicY;
                // The logarithmic axes belong to 2-D graphs; the rest serve 3-D ones too.
                const GraphData *graph = !GraphShowing()   ? nullptr
                                         : pane->Shown2D() ? pane->Shown2D()
                                         : logAxis         ? nullptr
                                                           : pane->Shown3D();
                // A graph read from a file takes the orientation and margin commands too.
                const bool file = GraphShowing() && !logAxis && id != command::kGridLines &&
                                  (pane->File2D() != nullptr || pane->File3D() != nullptr);
                state.enabled = (graph != nullptr || file) && !pane->Building();
                if (graph != nullptr && id == command::kLogarithmicX)
                    state.checked = graph->XAxisLogarithmic != 0;
                if (graph != nullptr && id == command::kLogarithmicY)
                    state.checked = graph->YAxisLogarithmic != 0;
                if (graph != nullptr && id == command::kGridLines)
                    state.checked = graph->ShowGridLines != 0;
                return true;
            }
            default:
                return false;
        }
    }

    // A view command on the shown graph: the working copy changes, the document's graph of
    // the same name takes the change, and the chart is drawn again.
    void ChangeView(int id) {
        if (pane->Building()) return;
        int saved = 0;
        if (GraphData *graph = pane->Shown2D()) {
            saved = ChangeView2D(id, *graph);
            if (saved < 0) return;
        } else if (GraphData *graph3D = pane->Shown3D()) {
            pane->SaveOrientation();
            saved = ChangeView3D(id, *graph3D);
            if (saved < 0) return;
        } else {
            ChangeFileView(id);
            return;
        }
        const GraphData &graph = *(pane->Shown2D() ? pane->Shown2D() : pane->Shown3D());
        for (GraphData *stored = document.Content().graphs.gethead(); stored != nullptr;
             stored = stored->next)
            if (stored->Name == graph.Name) {
                copy_view_fields(graph, *stored);
                copy_view_fields_3d(graph, *stored);
            }
        document.MarkGraphsChanged();
        // Saving a default leaves the chart as the user sees it.
        if (saved == 0) pane->Redraw(document.Engine().angle_mode);
        if (saved != 0) Tell(graph_message(saved), kBoxInformation);
    }

    // The same commands on a graph read from a file: the chart and the file's keys change,
    // and what is saved as default is written into the file.
    void ChangeFileView(int id) {
        pane->SaveOrientation();
        int saved = 0;
        if (GraphFile2D *file = pane->File2D()) {
            const ChartSpec2D &shown = pane->Chart2D().spec();
            switch (id) {
                case command::kIncreaseMargins:
                case command::kDecreaseMargins:
                    step_file_margins(*file, shown,
                                      id == command::kIncreaseMargins ? kMarginStep : -kMarginStep);
                    break;
                case command::kSetDefaultMargins:
                    set_file_default_margins(*file);
                    break;
                case command::kSaveAsDefaultMargins:
                    save_file_default_margins(*file, shown);
                    saved = kMsgMarginsSaved;
                    break;
                case command::kSetDefaultOrientation:
                    set_file_default_orientation(*file);
                    break;
                case command::kSaveAsDefaultOrientation:
                    save_file_default_orientation(*file, shown);
                    saved = kMsgOrientationSaved;
                    break;
                default:
                    return;
            }
        } else if (GraphFile3D *file3D = pane->File3D()) {
            const float scale = file3D->view[6];
            switch (id) {
                case command::kIncreaseMargins:
                case command::kDecreaseMargins:
                    step_file_scale(*file3D, scale,
                                    id == command::kIncreaseMargins ? kScaleStep : -kScaleStep);
                    break;
                case command::kSetDefaultMargins:
                    set_file_default_scale(*file3D);
                    break;
                case command::kSaveAsDefaultMargins:
                    save_file_default_scale(*file3D, scale);
                    saved = kMsgMarginsSaved;
                    break;
                case command::kSetDefaultOrientation:
                    set_file_default_orientation(*file3D);
                    break;
                case command::kSaveAsDefaultOrientation:
                    save_file_default_orientation(*file3D, file3D->view);
                    saved = kMsgRotationSaved;
                    break;
                default:
                    return;
            }
        } else {
            return;
        }
        if (saved == 0) {
            pane->Redraw(document.Engine().angle_mode);
            return;
        }
        std::string error;
        if (!pane->RewriteFile(error)) {
            workbench.Messages().ShowPlain(pane, QString::fromStdString(error),
                                           QStringLiteral("Save Graph As"), kBoxWarning);
            return;
        }
        Tell(graph_message(saved), kBoxInformation);
    }

    void Tell(std::string_view text, int kind) {
        workbench.Messages().Show(
            pane, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
            kMsgGraphWindow, kind);
    }

    // The message to show after a 2-D view command, 0 for none, -1 when it was refused.
    int ChangeView2D(int id, GraphData &graph) {
        switch (id) {
            case command::kLogarithmicX:
            case command::kLogarithmicY:
                if (const int refusal = toggle_log_axis(graph, id == command::kLogarithmicX)) {
                    Tell(graph_message(refusal), kBoxWarning);
                    return -1;
                }
                return 0;
            case command::kGridLines:
                toggle_grid_lines(graph);
                return 0;
            case command::kSetDefaultMargins:
                set_default_margins(graph);
                return 0;
            case command::kSetDefaultOrientation:
                set_default_orientation(graph);
                return 0;
            case command::kSaveAsDefaultMargins:
                save_default_margins(graph, pane->Chart2D().spec());
                return kMsgMarginsSaved;
            case command::kSaveAsDefaultOrientation:
                save_default_orientation(graph, pane->Chart2D().spec());
                return kMsgOrientationSaved;
            default:
                step_margins(graph, pane->Chart2D().spec(),
                             id == command::kIncreaseMargins ? kMarginStep : -kMarginStep);
                return 0;
        }
    }

    // The same for a 3-D graph, whose margins are its scale.
    int ChangeView3D(int id, GraphData &graph) {
        switch (id) {
            case command::kGridLines:
                toggle_grid_lines(graph);
                return 0;
            case command::kSetDefaultMargins:
                set_default_scale(graph);
                return 0;
            case command::kSetDefaultOrientation:
                set_default_orientation_3d(graph);
                return 0;
            case command::kSaveAsDefaultMargins:
                save_default_scale(graph, graph.Scale);
                return kMsgMarginsSaved;
            case command::kSaveAsDefaultOrientation:
                save_default_orientation_3d(graph, view_3d(graph));
                return kMsgRotationSaved;
            case command::kIncreaseMargins:
            case command::kDecreaseMargins:
                step_scale(graph, graph.Scale,
                           id == command::kIncreaseMargins ? kScaleStep : -kScaleStep);
                return 0;
            default:  // a 3-D graph has no logarithmic axes
                return -1;
        }
    }

    bool Run(int id) {
        switch (id) {
            case command::kShowGraphWindow:
                if (GraphShowing()) return ToText();
                ToGraph();
                return true;
            case command::kShowMathWindow:
                return ToText();
            case command::kCopyGraph:
                Copy();
                return true;
            case command::kPrintGraph:
                Print();
                return true;
            case command::kSaveGraphFile:
                Save();
                return true;
            case command::kOpenGraphFile:
                Open();
                return true;
            case command::kPointLabels:
                pane->pointLabelsOn = !pane->pointLabelsOn;
                return true;
            case command::kRemoveAllPointLabels:
                if (ChartView *view = pane->CurrentView()) view->removeAllLabels();
                return true;
            case command::kSet2DPerspective:
                pane->Perspective();
                return true;
            case command::kLogarithmicX:
            case command::kLogarithmicY:
            case command::kGridLines:
            case command::kIncreaseMargins:
            case command::kDecreaseMargins:
            case command::kSetDefaultMargins:
            case command::kSaveAsDefaultMargins:
            case command::kSetDefaultOrientation:
            case command::kSaveAsDefaultOrientation:
                ChangeView(id);
                return true;
            default:
                return false;
        }
    }

    void ShowPane() {
        if (GraphShowing()) return;
        workbench.PlaySound("Click.wav");
        // The graph takes the whole document: the lists that are open close, the text hides.
        DocumentPanes &panes = document.Panes();
        if (panes.VariablesListOpen()) panes.CommandHandler(command::kVariablesList);
        if (panes.FunctionsListOpen()) panes.CommandHandler(command::kFunctionsList);
        document.TextPane().hide();
        panes.hide();
        pane->show();
        pane->setFocus();
        CaptionChanged();
    }

    // The document's own caption, whatever pane shows.
    QString TextCaption() const {
        const auto saved = std::exchange(document.paneCaption, {});
        const QString text = document.Caption();
        document.paneCaption = saved;
        return text;
    }

    void CaptionChanged() {
        document.setWindowTitle(document.Caption());
        document.setAccessibleName(document.Caption());
        emit document.captionChanged();
    }

    // To the graph: the current graph is built unless the pane already shows it.
    void ToGraph() {
        ShowPane();
        DocumentContent &content = document.Content();
        if (content.currentGraph == nullptr || pane->Building()) return;
        if (pane->HasChart() && !content.currentGraph->NeedsData) return;
        KeepTurnedView();
        BuildShown(*content.currentGraph, {});
    }

    // Shows the pane and builds graph there; messages and sounds go to the program's own
    // when output leaves them out.
    bool BuildShown(const GraphData &graph, GraphBuildOutput output) {
        ShowPane();
        if (pane->Building()) return false;
        if (!output.show_message)
            output.show_message = [this](std::string_view text, std::string_view caption) {
                workbench.Messages().ShowPlain(
                    pane, QString::fromUtf8(text.data(), int(text.size())),
                    QString::fromUtf8(caption.data(), int(caption.size())), kBoxWarning);
            };
        if (!output.play_sound)
            output.play_sound = [this](std::string_view wave) { workbench.PlaySound(wave); };
        caption =
            QString::fromStdString(graph_window_caption(TextCaption().toStdString(), graph.Name));
        CaptionChanged();
        return pane->Build(document.Engine(), graph, &document.Content().graphs, output);
    }

    // A 3-D view the user turned on the chart goes into the document's graph, so that the next
    // build and the saved document keep it.
    void KeepTurnedView() {
        GraphData *shown = pane->Shown3D();
        if (shown == nullptr) return;
        pane->SaveOrientation();
        for (GraphData *stored = document.Content().graphs.gethead(); stored != nullptr;
             stored = stored->next) {
            if (stored->Name != shown->Name || view_3d(*stored) == view_3d(*shown)) continue;
            set_view_3d(*stored, view_3d(*shown));
            document.MarkGraphsChanged();
        }
    }

    bool ToText() {
        if (!GraphShowing()) return true;
        if (pane->Building()) {
            RefuseWhileBuilding(workbench, pane);
            return true;
        }
        KeepTurnedView();
        workbench.PlaySound("Click.wav");
        pane->hide();
        document.Panes().show();
        document.TextPane().show();
        document.TextPane().setFocus();
        CaptionChanged();
        return true;
    }

    void Copy() {
        const QSize size = pane->size().isEmpty() ? kDefaultImageSize : pane->size();
        QGuiApplication::clipboard()->setImage(pane->Image(size));
    }

    void Print() {
        QPrinter printer(QPrinter::HighResolution);
        QPrintDialog dialog(&printer, &document);
        workbench.runDialog(dialog);
        if (dialog.result() != QDialog::Accepted) return;
        QPainter painter(&printer);
        const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
        pane->Print(painter, QRect(QPoint(0, 0), page.size()));
    }

    void Save() {
        const std::string extension = pane->FileExtension();
        const bool twoD = extension == ".g2d";
        const QString filter =
            twoD ? QStringLiteral("Graph Files(*.g2d)") : QStringLiteral("Graph Files(*.g3d)");
        QString path =
            workbench.chooseSaveFile(&document, QStringLiteral("Save Graph As"), QString(), filter);
        if (path.isEmpty()) return;
        if (graph_file_kind(path.toStdString()) == 0) path += QString::fromStdString(extension);
        std::string error;
        if (!pane->SaveFile(path.toStdString(), error))
            workbench.Messages().ShowPlain(&document, QString::fromStdString(error),
                                           QStringLiteral("Save Graph As"), kBoxWarning);
    }

    void Open() {
        const QStringList chosen = workbench.chooseOpenFiles(
            &document, QStringLiteral("Open Graph File"),
            QString::fromStdString(workbench.Folders().userDataDir),
            QStringLiteral("Graph Files(*.g2d);;Graph Files(*.g3d);;All Files (*.*)"));
        if (chosen.isEmpty()) return;
        const std::string path = chosen.front().toStdString();
        if (graph_file_kind(path) == 0) {
            workbench.Messages().ShowPlain(
                &document, QString::fromUtf8(graph_message(kMsgNotAGraphFile).data()),
                QString::fromUtf8(graph_message(kMsgOpenGraphFileError).data()), kBoxWarning);
            return;
        }
        std::string error;
        const GraphDefaults defaults =
            read_graph_defaults(workbench.Folders().settingsPath.c_str());
        ShowPane();
        // An unreadable file leaves the pane as it was, as the chart did: no message.
        if (pane->OpenFile(path, defaults, document.Engine().angle_mode, error)) {
            caption = QString::fromStdString(path).toUpper();
            CaptionChanged();
        }
    }

    Workbench &workbench;
    DocumentWindow &document;
    GraphPane *pane;
    // The graph pane's caption: "EDITOR : GRAPH" after a build, the path of an opened file.
    QString caption;
};

DocumentGraphs &GraphsOf(Workbench &workbench, DocumentWindow &document) {
    // Found by name: the class has no meta-object of its own to be cast by.
    if (QObject *graphs = document.findChild<QObject *>(kObjectName, Qt::FindDirectChildrenOnly))
        return *static_cast<DocumentGraphs *>(graphs);
    return *new DocumentGraphs(workbench, document);
}

constexpr int kGraphCommands[] = {command::kShowGraphWindow,
                                  command::kShowMathWindow,
                                  command::kCopyGraph,
                                  command::kPrintGraph,
                                  command::kSaveGraphFile,
                                  command::kOpenGraphFile,
                                  command::kPointLabels,
                                  command::kRemoveAllPointLabels,
                                  command::kSet2DPerspective,
                                  command::kLogarithmicX,
                                  command::kLogarithmicY,
                                  command::kGridLines,
                                  command::kIncreaseMargins,
                                  command::kDecreaseMargins,
                                  command::kSetDefaultMargins,
                                  command::kSaveAsDefaultMargins,
                                  command::kSetDefaultOrientation,
                                  command::kSaveAsDefaultOrientation};

}  // namespace

QMenu *make_graph_popup(Workbench &workbench, QWidget *parent) {
    auto *menu = new QMenu(parent);
    menu->setAccessibleName(QStringLiteral("Graph menu"));
    CommandRouter &router = workbench.Router();
    const auto fill = [&router](QMenu &target, std::span<const int> items,
                                const auto &self) -> void {
        for (const int item : items) {
            if (item == command::kSeparator) {
                target.addSeparator();
            } else if (item < 0) {
                const MenuSpec &sub = submenus()[static_cast<std::size_t>(-1 - item)];
                QMenu *inner = target.addMenu(QString::fromUtf8(sub.title));
                self(*inner, sub.items, self);
            } else {
                target.addAction(router.PopupAction(item, &target));
            }
        }
    };
    for (const MenuSpec &bar : menu_bar())
        if (QString::fromUtf8(bar.title) == QStringLiteral("&Graph")) fill(*menu, bar.items, fill);
    menu->addSeparator();
    menu->addAction(router.PopupAction(command::kShowMathWindow, menu));
    return menu;
}

GraphPane &document_graph_pane(Workbench &workbench, DocumentWindow &document) {
    return GraphsOf(workbench, document).Pane();
}

bool build_in_graph_pane(Workbench &workbench, DocumentWindow &document, const GraphData &graph,
                         const GraphBuildOutput &output) {
    return GraphsOf(workbench, document).BuildShown(graph, output);
}

void install_graph_tools(Workbench &workbench) {
    auto before = workbench.documentTools;
    workbench.documentTools = [&workbench, before](DocumentWindow &document, int id) {
        for (int graphCommand : kGraphCommands)
            if (graphCommand == id) return GraphsOf(workbench, document).Run(id);
        return before ? before(document, id) : true;
    };
}

}  // namespace quindar
