// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The graph pane of a document: builds a graph on the document's engine with its own progress
// dialog and draws the result, or shows a graph opened from a file. A click near a point
// toggles its value label; the pane copies, prints and saves what it shows.

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "chart_data.h"
#include "chart_decisions.h"
#include "graph_builder.h"
#include "graph_data.h"
#include "graph_file.h"
#include "graph_view_commands_3d.h"

class QKeyEvent;
class QLineEdit;
class QPainter;
class QStackedLayout;

namespace quindar {

class ChartView2D;
class ChartView3D;
class ChartView;
class GraphProgressDialog;

class GraphPane : public QWidget {
    Q_OBJECT
public:
    explicit GraphPane(QWidget *parent = nullptr);
    ~GraphPane() override;

    // Builds a working copy of graph on parser and draws what was computed, also after a
    // Cancel. True when the data is complete. list: the document's graphs, marked as built.
    bool Build(Parser &parser, const GraphData &graph, GraphList *list,
               const GraphBuildOutput &output);
    bool Building() const { return building; }
    // The dialog of the running build (null between builds), for Cancel.
    GraphProgressDialog *Progress() const { return progress; }

    // Shows a graph file's chart; false with the reason when it cannot be read.
    bool OpenFile(const std::string &path, const GraphDefaults &defaults, int angleMode,
                  std::string &error);
    // Writes what the pane shows as a graph file; false with the reason.
    bool SaveFile(const std::string &path, std::string &error) const;
    bool HasChart() const;
    // ".g2d" or ".g3d" for what the pane shows; empty for nothing.
    std::string FileExtension() const;

    ChartView2D &Chart2D() const { return *chart2D; }
    // The built graph the pane shows (its working copy), null for none or a file.
    const GraphData *Shown() const { return shownGraph ? &*shownGraph : nullptr; }
    // The built 2-D graph the pane shows (its working copy), null for none or a file.
    GraphData *Shown2D() { return shownGraph && data2D ? &*shownGraph : nullptr; }
    // The same for a built 3-D graph.
    GraphData *Shown3D() { return shownGraph && data3D ? &*shownGraph : nullptr; }
    // The graph file the pane shows, null for none.
    GraphFile2D *File2D() { return file2D ? &*file2D : nullptr; }
    GraphFile3D *File3D() { return file3D ? &*file3D : nullptr; }
    // Writes the shown graph file again where it was read from; false with the reason.
    bool RewriteFile(std::string &error) const { return SaveFile(filePath, error); }
    // Draws the shown graph again from its definition, keeping data and labels.
    void Redraw(int angleMode);
    // Carries a 3-D view the user turned on the chart into the shown graph, so that a redraw
    // keeps it.
    void SaveOrientation();
    // The seven view values the 3-D chart shows.
    View3DValues ShownView3D() const;
    // Set 2D Perspective: the chart alone turns to face the viewer; the graph learns of it at
    // the next SaveOrientation.
    void Perspective();
    // Smooths the 3-D chart's data once; false when no 3-D chart shows.
    bool Smooth();
    // The 3-D chart, made on the first 3-D graph; null before.
    ChartView3D *Chart3D() const { return chart3D; }
    // The chart that shows, null for none.
    ChartView *CurrentView() const;
    QImage Image(QSize size) const;
    void Print(QPainter &painter, const QRect &target) const;
    // The text that shows where no chart can (a 3-D graph without OpenGL); empty otherwise.
    QString Notice() const;

    // Turns a value into the text of a point label.
    std::function<QString(double)> formatValue;
    // A click where no chart shows, or a double click on the chart outside its titles, opens
    // Graph Setup at that point of the screen.
    std::function<void(QPoint globalPosition)> openSetup;
    // Point labels on click (the Set Point Labels command).
    bool pointLabelsOn = true;
    // The least time between two pumps of the window messages during a build.
    int pumpMilliseconds = 20;

    // The click of the chart: commits an open title editor elsewhere, then toggles the label
    // of the point under it.
    void Click(QPoint position);
    // A pick on the 3-D chart: toggles the label of grid point (ix, iz).
    void Toggle3DLabel(int ix, int iz);
    // The double click: on the header or footer an editor opens over it.
    void DoubleClick(QPoint position);
    // The title editor while it is open (kind 0 header, 1 footer), else null.
    QLineEdit *TitleEditor() const { return titleEditor; }
    // Takes the editor's text into the chart and the shown graph, and closes it.
    void CommitTitle();

protected:
    // Shift or Ctrl as the last key pressed keeps the next click from labelling: that click
    // belongs to the chart's own handling.
    void keyPressEvent(QKeyEvent *event) override;

signals:
    void built();
    // A header (kind 0) or footer (kind 1) was edited on a built graph.
    void titleEdited(int kind, const QString &text);

private:
    void Show3D(const ChartSpec3D &spec, const ChartGrid3D &grid);

    QStackedLayout *stack;
    ChartView2D *chart2D;
    ChartView3D *chart3D = nullptr;
    QLineEdit *titleEditor = nullptr;
    int titleKind = 0;
    bool modifierDown = false;
    GraphProgressDialog *progress = nullptr;
    bool building = false;
    // What the pane shows: a built graph and its data, or a file's contents.
    std::optional<GraphData> shownGraph;
    std::optional<ChartData2D> data2D;
    std::optional<ChartGrid3D> data3D;
    std::optional<GraphFile2D> file2D;
    std::optional<GraphFile3D> file3D;
    std::string filePath;
    // The last build, kept for the values of 3-D point labels, which come from the definition.
    std::unique_ptr<GraphData> labelGraph;
    std::unique_ptr<GraphBuilder> labelBuilder;
};

}  // namespace quindar
