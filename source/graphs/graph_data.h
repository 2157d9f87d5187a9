// SPDX-License-Identifier: GPL-3.0-or-later
// GraphData: the complete, persistent definition of one graph, and the list of a document.
#pragma once

#include <memory>
#include <string>

#include "color.h"
#include "dynarray.h"
#include "dynlist.h"
#include "function.h"
#include "graph_defaults.h"
#include "str_data_pnts.h"
#include "variable.h"

namespace quindar {

// What GetGraphType gives.
inline constexpr int kGraphNone = 0;
inline constexpr int kGraph2D = 1;
inline constexpr int kGraph3D = 2;

// The name of the working copy that Graph Setup edits.
inline constexpr const char *kTemporaryGraphName = "Temporary Graph Name";

// What to plot, over what range, titled and coloured how. No computed values: those live in
// the chart data of the graph window. One class serves as a list element (the current graph)
// and as the working copy that Graph Setup edits; copying is deep, links excepted.
class GraphData {
public:
    // Null leaves the name empty.
    explicit GraphData(const char *name = nullptr);
    GraphData(const GraphData &other);
    // Copies every field but the list links.
    GraphData &operator=(const GraphData &other);
    ~GraphData() = default;

    // The seven orientation values of the user's defaults; the Default... fields stay.
    void SetDefaultOrientation(const GraphDefaults &defaults);
    // The sixteen colours of the user's defaults.
    void SetDefaultColors(const GraphDefaults &defaults);
    // The sixteen colours into the record, for the settings layer to save as the defaults.
    void GetDefaultColors(GraphDefaults &defaults) const;
    // Digits 1 to 4 set, 5 to 7 clear.
    void SetDefault3DAttributes();

    // Text setters ignore null. The axis titles and the footer also mark the text as the
    // user's, so that automatic titles leave it alone.
    void SetName(const char *text);
    void SetDirectory(const char *text);
    void SetHeader(const char *text);
    void SetFooter(const char *text);
    void SetXAxisTitle(const char *text);
    void SetYAxisTitle(const char *text);
    void SetZAxisTitle(const char *text);

    // Automatic titles: from the axis variables and the functions.
    void SetDefaultXAxisTitle(bool force);
    void SetDefaultYAxisTitle(bool force);
    void SetDefaultZAxisTitle(bool force);
    void SetDefaultFooter(bool force);
    void ClearTitles();

    // Each keeps a copy (the argument stays the caller's); null leaves no variable. A copy
    // of fewer than one point gets 25.
    void SetXAxisVar(const Variable *variable);
    void SetZAxisVar(const Variable *variable);
    void SetCLXAxisVar(const Variable *variable);
    void SetCLZAxisVar(const Variable *variable);

    // 0 nothing to graph, 1 two-dimensional, 2 three-dimensional.
    int GetGraphType() const;
    long GetNumXAxisPoints() const;
    long GetNumZAxisPoints() const;
    // True when an X or a Z axis variable is set.
    bool DataCheck() const;
    // Digit d of GraphType3D from the right, 0 beyond its digits.
    int Get3DTypeBit(int digit) const;
    void Set3DTypeBit(int digit, int value);

    // The variables that every function has, walked as the functions name them.
    void SetComVarList();
    // Drops an axis variable that is no longer common to all functions.
    void DelUncommonVars();

    // A function of the graph (not of the engine); null when it cannot be made.
    Function *AddFunction(const char *fullName, const char *value);
    int GetNumFunctions() const { return Functions.count(); }
    // The i-th filled slot, in order; null past the end.
    Function *GetFunction(int i) const;

    int Depth2D = 20;
    int Inclination2D = 15;
    int Rotation2D = 10;
    int DefaultDepth2D = 20;
    int DefaultInclination2D = 15;
    int DefaultRotation2D = 10;
    int MarginBottom2D = 0, MarginTop2D = 0, MarginLeft2D = 0, MarginRight2D = 0;
    int DefaultMarginBottom2D = 0, DefaultMarginTop2D = 0, DefaultMarginLeft2D = 0,
        DefaultMarginRight2D = 0;
    int XAxisLogarithmic = 0;
    int YAxisLogarithmic = 0;
    int ShowGridLines = 1;
    float PerspectiveDepth = 20.0f;
    float XRotation = 25.0f;
    float YRotation = 0.34f;
    float ZRotation = 310.0f;
    float XTranslate = 0.0f, YTranslate = 0.0f;
    float Scale = 1.0f;
    float DefaultPerspectiveDepth = 20.0f;
    float DefaultXRotation = 25.0f;
    float DefaultYRotation = 0.34f;
    float DefaultZRotation = 310.0f;
    float DefaultXTranslate = 0.0f, DefaultYTranslate = 0.0f;
    float DefaultScale = 1.0f;

    TColor BackgroundColor{64, 128, 128};
    TColor ForegroundColor{0, 0, 0};
    TColor DataAreaBackgroundColor{128, 255, 255};
    TColor DataAreaForegroundColor{0, 0, 0};
    TColor FooterBackgroundColor{0, 0, 0};
    TColor FooterForegroundColor{0, 0, 0};
    TColor GraphBackgroundColor{0, 0, 0};
    TColor GraphForegroundColor{255, 255, 255};
    TColor HeaderBackgroundColor{0, 0, 0};
    TColor HeaderForegroundColor{255, 255, 255};
    TColor LegendBackgroundColor{255, 255, 255};
    TColor LegendForegroundColor{0, 0, 0};
    TColor MeshBottomColor{0, 0, 0};
    TColor MeshTopColor{0, 0, 0};
    TColor SurfaceBottomColor{0, 0, 0};
    TColor SurfaceTopColor{255, 255, 255};

    std::string Name;
    std::string Directory;
    std::string Header;
    std::string Footer;
    std::string XAxisTitle, YAxisTitle, ZAxisTitle;
    // 1: the sets of a 2-D chart share one X array; 2: each has its own. The check of the
    // Graph Setup decides it before a build; a graph with no data sets has 1.
    int DataLayout = 1;
    int GraphType2D = 1;
    int GraphType3D = 1111;
    std::unique_ptr<Variable> XAxisVar, ZAxisVar;
    // The Math Editor's own variables of the axis names, kept while a build runs.
    std::unique_ptr<Variable> CLXAxisVar, CLZAxisVar;
    bool XTitleSet = false, YTitleSet = false, ZTitleSet = false, FooterSet = false;
    bool Modified = false;
    bool NeedsData = true;
    bool NeedsAttributes = true;
    bool FunctionsVisited = false, PointsVisited = false, VariablesVisited = false,
         LabelsVisited = false, TypesVisited = false, ColorsVisited = false;
    int LabelSelection = 0;
    StrDataPnts *CurDataSet = nullptr;  // not owned
    DynArray<Function, 10> Functions;
    LinkList<Variable> CommonVars;
    LinkList<StrDataPnts> DataSets;
    double PieParam1 = 0.0;
    int PieParam2 = 1;
    int PieParam3 = 5;
    bool ReloadPoints = false;

    GraphData *next = nullptr;
    GraphData *prev = nullptr;

private:
    static void set_axis_variable(std::unique_ptr<Variable> &field, const Variable *variable);
    bool every_function_has(const std::string &variable) const;
};

// The graphs of one document, in insertion order.
using GraphList = LinkList<GraphData>;

// A new graph at the list's tail, named, with its orientation and colours from the user's
// defaults (the built-in ones when null), the default 3-D attributes, and its name as header.
GraphData *add_new_graph(GraphList &list, const char *name, const GraphDefaults *defaults);

// Copies every graph of from into to, which is emptied first; the graph of from that was
// current gives the current graph of to (null when none).
GraphData *copy_graph_list(const GraphList &from, const GraphData *current, GraphList &to);

}  // namespace quindar
