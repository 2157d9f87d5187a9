// SPDX-License-Identifier: GPL-3.0-or-later
// GraphData: construction, deep copying, settings-file defaults, texts and axis variables.
#include "graph_data.h"

#include <cstdio>

#include "graph_colors.h"

namespace quindar {

namespace {

// A new axis variable of no points spans this many.
constexpr long kDefaultAxisPoints = 25;

void copy_variable(std::unique_ptr<Variable> &to, const std::unique_ptr<Variable> &from) {
    to = from ? std::make_unique<Variable>(from.get()) : nullptr;
}

}  // namespace

GraphData::GraphData(const char *name) {
    Functions.jump_on_error = false;
    SetName(name);
    SetHeader("Header");
    SetFooter("Footer");
    GraphType3D = 1;
    SetDefault3DAttributes();
}

GraphData::GraphData(const GraphData &other) : GraphData() {
    *this = other;
}

GraphData &GraphData::operator=(const GraphData &other) {
    if (this == &other) return *this;
    GraphData *const keepNext = next;
    GraphData *const keepPrev = prev;

    // The plain fields first, member by member through a copy of the values only.
    Depth2D = other.Depth2D;
    Inclination2D = other.Inclination2D;
    Rotation2D = other.Rotation2D;
    DefaultDepth2D = other.DefaultDepth2D;
    DefaultInclination2D = other.DefaultInclination2D;
    DefaultRotation2D = other.DefaultRotation2D;
    MarginBottom2D = other.MarginBottom2D;
    MarginTop2D = other.MarginTop2D;
    MarginLeft2D = other.MarginLeft2D;
    MarginRight2D = other.MarginRight2D;
    DefaultMarginBottom2D = other.DefaultMarginBottom2D;
    DefaultMarginTop2D = other.DefaultMarginTop2D;
    DefaultMarginLeft2D = other.DefaultMarginLeft2D;
    DefaultMarginRight2D = other.DefaultMarginRight2D;
    XAxisLogarithmic = other.XAxisLogarithmic;
    YAxisLogarithmic = other.YAxisLogarithmic;
    ShowGridLines = other.ShowGridLines;
    PerspectiveDepth = other.PerspectiveDepth;
    XRotation = other.XRotation;
    YRotation = other.YRotation;
    ZRotation = other.ZRotation;
    XTranslate = other.XTranslate;
    YTranslate = other.YTranslate;
    Scale = other.Scale;
    DefaultPerspectiveDepth = other.DefaultPerspectiveDepth;
    DefaultXRotation = other.DefaultXRotation;
    DefaultYRotation = other.DefaultYRotation;
    DefaultZRotation = other.DefaultZRotation;
    DefaultXTranslate = other.DefaultXTranslate;
    DefaultYTranslate = other.DefaultYTranslate;
    DefaultScale = other.DefaultScale;
    for (const GraphColorInfo &color : graph_colors()) this->*color.field = other.*color.field;
    Name = other.Name;
    Directory = other.Directory;
    Header = other.Header;
    Footer = other.Footer;
    XAxisTitle = other.XAxisTitle;
    YAxisTitle = other.YAxisTitle;
    ZAxisTitle = other.ZAxisTitle;
    DataLayout = other.DataLayout;
    GraphType2D = other.GraphType2D;
    GraphType3D = other.GraphType3D;
    copy_variable(XAxisVar, other.XAxisVar);
    copy_variable(ZAxisVar, other.ZAxisVar);
    copy_variable(CLXAxisVar, other.CLXAxisVar);
    copy_variable(CLZAxisVar, other.CLZAxisVar);
    XTitleSet = other.XTitleSet;
    YTitleSet = other.YTitleSet;
    ZTitleSet = other.ZTitleSet;
    FooterSet = other.FooterSet;
    Modified = other.Modified;
    NeedsData = other.NeedsData;
    NeedsAttributes = other.NeedsAttributes;
    FunctionsVisited = other.FunctionsVisited;
    PointsVisited = other.PointsVisited;
    VariablesVisited = other.VariablesVisited;
    LabelsVisited = other.LabelsVisited;
    TypesVisited = other.TypesVisited;
    ColorsVisited = other.ColorsVisited;
    LabelSelection = other.LabelSelection;
    PieParam1 = other.PieParam1;
    PieParam2 = other.PieParam2;
    PieParam3 = other.PieParam3;
    ReloadPoints = other.ReloadPoints;

    Functions.flush();
    for (int i = 0; i <= other.Functions.maxfullindex(); ++i) {
        if (const Function *function = other.Functions[i]) {
            auto *copy = new Function(*function);
            copy->next = copy->prev = nullptr;
            Functions.replace(copy, i);
        }
    }
    CommonVars.flush();
    for (const Variable *v = other.CommonVars.gethead(); v != nullptr; v = v->next) {
        if (Variable *copy = CommonVars.add()) {
            Variable *const link = copy->prev;
            *copy = *v;
            copy->next = nullptr;
            copy->prev = link;
        }
    }
    // The current data set is pointed at by position, since the copy has sets of its own.
    DataSets.flush();
    CurDataSet = nullptr;
    for (const StrDataPnts *set = other.DataSets.gethead(); set != nullptr; set = set->next) {
        if (StrDataPnts *copy = DataSets.add()) {
            *copy = *set;
            if (set == other.CurDataSet) CurDataSet = copy;
        }
    }
    next = keepNext;
    prev = keepPrev;
    return *this;
}

void GraphData::SetDefaultOrientation(const GraphDefaults &defaults) {
    Depth2D = defaults.Depth2D;
    Inclination2D = defaults.Inclination2D;
    Rotation2D = defaults.Rotation2D;
    PerspectiveDepth = static_cast<float>(defaults.PerspectiveDepth);
    XRotation = static_cast<float>(defaults.XRotation);
    YRotation = static_cast<float>(defaults.YRotation);
    ZRotation = static_cast<float>(defaults.ZRotation);
}

void GraphData::SetDefaultColors(const GraphDefaults &defaults) {
    const auto table = graph_colors();
    for (std::size_t i = 0; i < table.size() && i < defaults.colors.size(); ++i)
        this->*table[i].field = defaults.colors[i];
}

void GraphData::GetDefaultColors(GraphDefaults &defaults) const {
    const auto table = graph_colors();
    for (std::size_t i = 0; i < table.size() && i < defaults.colors.size(); ++i)
        defaults.colors[i] = this->*table[i].field;
}

void GraphData::SetDefault3DAttributes() {
    for (int digit = 1; digit <= 7; ++digit) Set3DTypeBit(digit, digit <= 4 ? 1 : 0);
}

void GraphData::SetName(const char *text) {
    if (text) Name = text;
}
void GraphData::SetDirectory(const char *text) {
    if (text) Directory = text;
}
void GraphData::SetHeader(const char *text) {
    if (text) Header = text;
}
void GraphData::SetFooter(const char *text) {
    if (!text) return;
    Footer = text;
    FooterSet = true;
}
void GraphData::SetXAxisTitle(const char *text) {
    if (!text) return;
    XAxisTitle = text;
    XTitleSet = true;
}
void GraphData::SetYAxisTitle(const char *text) {
    if (!text) return;
    YAxisTitle = text;
    YTitleSet = true;
}
void GraphData::SetZAxisTitle(const char *text) {
    if (!text) return;
    ZAxisTitle = text;
    ZTitleSet = true;
}

void GraphData::SetDefaultXAxisTitle(bool force) {
    if (!XAxisVar || !(!XTitleSet || XAxisTitle.empty() || force)) return;
    XAxisTitle = XAxisVar->name;
    XTitleSet = false;
}

void GraphData::SetDefaultZAxisTitle(bool force) {
    if (!ZAxisVar || !(!ZTitleSet || ZAxisTitle.empty() || force)) return;
    ZAxisTitle = ZAxisVar->name;
    ZTitleSet = false;
}

void GraphData::SetDefaultYAxisTitle(bool force) {
    if (GetNumFunctions() == 0 || !(!YTitleSet || YAxisTitle.empty() || force)) return;
    std::string title;
    for (int i = 0; const Function *function = GetFunction(i); ++i) {
        if (i > 0) title += ',';
        title += function->short_name;
    }
    YAxisTitle = title;
    YTitleSet = false;
}

void GraphData::SetDefaultFooter(bool force) {
    if (GetNumFunctions() == 0 || !(!FooterSet || force)) return;
    std::string footer;
    for (int i = 0; const Function *function = GetFunction(i); ++i) {
        if (i > 0) footer += ',';
        footer += function->full_name;
    }
    Footer = footer;
    FooterSet = false;
}

void GraphData::ClearTitles() {
    Footer = "Footer";
    XAxisTitle.clear();
    YAxisTitle.clear();
    ZAxisTitle.clear();
    XTitleSet = YTitleSet = ZTitleSet = FooterSet = false;
}

void GraphData::set_axis_variable(std::unique_ptr<Variable> &field, const Variable *variable) {
    field.reset();
    if (variable == nullptr) return;
    field = std::make_unique<Variable>(variable);
    if (field->num_points < 1) field->SetVarNumPoints(kDefaultAxisPoints);
}

void GraphData::SetXAxisVar(const Variable *variable) {
    set_axis_variable(XAxisVar, variable);
    if (!XTitleSet) SetDefaultXAxisTitle(false);
}

void GraphData::SetZAxisVar(const Variable *variable) {
    set_axis_variable(ZAxisVar, variable);
    if (!ZTitleSet) SetDefaultZAxisTitle(false);
}

void GraphData::SetCLXAxisVar(const Variable *variable) {
    set_axis_variable(CLXAxisVar, variable);
}

void GraphData::SetCLZAxisVar(const Variable *variable) {
    set_axis_variable(CLZAxisVar, variable);
}

GraphData *add_new_graph(GraphList &list, const char *name, const GraphDefaults *defaults) {
    GraphData *graph = list.add();
    if (graph == nullptr) return nullptr;
    graph->SetName(name);
    const GraphDefaults builtIn;
    graph->SetDefaultOrientation(defaults != nullptr ? *defaults : builtIn);
    graph->SetDefaultColors(defaults != nullptr ? *defaults : builtIn);
    graph->SetDefault3DAttributes();
    graph->SetHeader(name);
    return graph;
}

GraphData *copy_graph_list(const GraphList &from, const GraphData *current, GraphList &to) {
    to.flush();
    GraphData *copiedCurrent = nullptr;
    for (const GraphData *graph = from.gethead(); graph != nullptr; graph = graph->next) {
        GraphData *copy = to.add();
        if (copy == nullptr) break;
        *copy = *graph;
        if (graph == current) copiedCurrent = copy;
    }
    return copiedCurrent;
}

}  // namespace quindar
