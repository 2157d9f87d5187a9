// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The build: lending the axis variables, recording the maps, solving every point.
#include "graph_builder.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "graph_messages.h"

namespace quindar {

namespace {

constexpr int kPieChart = 3;
constexpr int kLabelPrecision = 14;
// The longest call text of a point label.
constexpr std::size_t kCallTextSize = 512;

// Assigns from to to, keeping the list links of to.
void assign_keeping_links(Variable &to, const Variable &from) {
    Variable *const next = to.next;
    Variable *const prev = to.prev;
    to = from;
    to.next = next;
    to.prev = prev;
}

}  // namespace

std::string graph_window_caption(std::string_view editorCaption, std::string_view graphName) {
    if (editorCaption.empty()) return "Graph";
    std::string caption = std::string(editorCaption) + " : " + std::string(graphName);
    for (char &c : caption) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return caption;
}

int data_set_x_count(const StrDataPnts &set) {
    for (int i = set.XPoints.maxfullindex(); i >= 0; --i)
        if (set.GetXDataPoint(i) != nullptr) return i + 1;
    return 0;
}

GraphBuilder::GraphBuilder(Parser &engine, GraphData &definition, GraphBuildOutput out)
    : parser(engine), graph(definition), output(std::move(out)) {
    host = parser.get_compute_host() != nullptr ? parser.get_compute_host() : &nullHost;
}

GraphBuilder::~GraphBuilder() {
    // A build always cleans up before it returns; this only guards an escape by exception.
    if (lent) CleanUpGraph();
}

void GraphBuilder::add_error(std::string_view line) {
    if (output.add_error) output.add_error(line);
}

void GraphBuilder::progress(float value) {
    host->set_progress_percent(static_cast<int>(value));
}

bool GraphBuilder::cancel_requested() {
    if (!host->progress_cancelled()) return false;
    Cancelled = true;
    return true;
}

std::string GraphBuilder::value_text(complex value) {
    std::ostringstream stream;
    parser.stream_variable(value, stream, static_cast<int>(parser.variable_format->precision));
    return stream.str();
}

Variable *GraphBuilder::engine_variable(const std::unique_ptr<Variable> &work) {
    if (!work) return nullptr;
    const int index = parser.find_variable(work->name.c_str());
    return index < 0 ? nullptr : parser.variables[index];
}

bool GraphBuilder::Build(GraphList *list) {
    Cancelled = false;
    Refused = false;
    BuildErrors = false;
    Data2D.reset();
    Data3D.reset();
    ComputeGatePass pass(parser.compute_gate, "graph");
    if (!pass.ok()) {
        Refused = true;
        Cancelled = true;
        return false;
    }
    host->set_progress_caption(
        ("Building Graph: " + (graph.Name.empty() ? std::string("DefaultGraphName") : graph.Name))
            .c_str());
    Kind = graph.GetGraphType();
    if (!InitGraph()) {
        if (BuildErrors && output.play_sound) output.play_sound("Error.wav");
        Cancelled = true;
        CleanUpGraph();
        return false;
    }
    host->set_progress_text("Computing Data Values, Please Wait!");
    host->set_progress_percent(0);
    bool built = Kind != kGraphNone;
    if (Kind == kGraph2D) built = Create2DData();
    if (Kind == kGraph3D) built = Create3DData();
    if (built) {
        host->set_progress_text("Generating Graph!");
        host->set_progress_percent(100);
        graph.NeedsData = graph.NeedsAttributes = false;
        for (GraphData *other = list != nullptr ? list->gethead() : nullptr; other != nullptr;
             other = other->next) {
            const bool same = other->Name == graph.Name;
            other->NeedsData = other->NeedsAttributes = !same;
        }
    }
    CleanUpGraph();
    return built;
}

bool GraphBuilder::InitGraph() {
    NumXPoints = NumZPoints = 0;
    NumFunctions = graph.GetNumFunctions();
    NumDataSets = graph.DataSets.count();
    // A graph of data points needs no maps.
    if (NumFunctions == 0) return true;
    if (!SetGraphVariables()) return false;
    EquationBase = parser.equations.count();
    return BuildEquationMaps();
}

bool GraphBuilder::SetGraphVariables() {
    XAxisVarWork.reset();
    ZAxisVarWork.reset();
    if (graph.XAxisVar) XAxisVarWork = std::make_unique<Variable>(graph.XAxisVar.get());
    if (graph.ZAxisVar) ZAxisVarWork = std::make_unique<Variable>(graph.ZAxisVar.get());
    bool placed = false;
    struct Axis {
        std::unique_ptr<Variable> &work;
        void (GraphData::*snapshot)(const Variable *);
        int &points;
    };
    const Axis axes[] = {{XAxisVarWork, &GraphData::SetCLXAxisVar, NumXPoints},
                         {ZAxisVarWork, &GraphData::SetCLZAxisVar, NumZPoints}};
    for (const Axis &axis : axes) {
        if (!axis.work) continue;
        lent = true;
        if (Variable *declared = engine_variable(axis.work)) {
            (graph.*axis.snapshot)(declared);
            assign_keeping_links(*declared, *axis.work);
        } else {
            (graph.*axis.snapshot)(nullptr);
            parser.variables.add(new Variable(axis.work.get()));
        }
        axis.points = static_cast<int>(axis.work->num_points);
        placed = true;
    }
    return placed;
}

void GraphBuilder::SetComLineVariables() {
    // Z first: when both axes name one variable, the X snapshot is the one taken first.
    const std::pair<const std::unique_ptr<Variable> *, const std::unique_ptr<Variable> *> axes[] = {
        {&ZAxisVarWork, &graph.CLZAxisVar}, {&XAxisVarWork, &graph.CLXAxisVar}};
    for (const auto &[work, snapshot] : axes) {
        if (!*work) continue;
        const int index = parser.find_variable((*work)->name.c_str());
        if (index < 0) continue;
        if (*snapshot)
            assign_keeping_links(*parser.variables[index], **snapshot);
        else
            parser.delete_variable(index);
    }
}

void GraphBuilder::CleanUpGraph() {
    if (NumFunctions > 0) {
        if (lent) SetComLineVariables();
        parser.equations.flush();
        parser.current_equation = nullptr;
        parser.mapping = false;
    }
    lent = false;
}

bool GraphBuilder::BuildEquationMaps() {
    for (int i = NumFunctions - 1; i >= 0; --i) {
        const Function *function = graph.GetFunction(i);
        const std::string text = function != nullptr ? function->full_name : std::string();
        const std::string shortName = text.substr(0, text.find('['));
        const int declared = parser.find_function(text.c_str());
        if (declared < 0 && !parser.is_internal_function(shortName.c_str()) &&
            !parser.is_library_function(shortName.c_str())) {
            add_error(format_graph_message(kMsgCouldNotFind, {text}));
            BuildErrors = true;
            continue;
        }
        Variable *xVar = engine_variable(XAxisVarWork);
        if (declared >= 0) parser.reset_func_modvalue(declared);
        for (int attempt = 0;; ++attempt) {
            parser.current_equation = parser.equations.add();
            parser.ClearLastError();
            parser.mapping = true;
            parser.eval_exp(text.c_str(), true, true);
            parser.mapping = false;
            if (!parser.IsAnError()) break;
            // A function that cannot be evaluated at the low limit, such as 1/x at 0, is
            // mapped at the next point.
            if (attempt == 0 && xVar != nullptr) {
                const int again = parser.find_function(text.c_str());
                if (again >= 0) parser.reset_func_modvalue(again);
                parser.delete_equation(parser.equations.count());
                xVar->Increment();
                continue;
            }
            const char *engineText = parser.GetLastError();
            if (engineText != nullptr && *engineText != '\0' && output.add_error) {
                add_error(engineText);
                add_error(format_graph_message(kMsgCouldNotMap, {text}));
            }
            parser.ClearLastError();
            BuildErrors = true;
            break;
        }
        if (xVar != nullptr) xVar->ResetIncrement();
    }
    parser.current_equation = nullptr;
    if (parser.equations.count() - EquationBase < NumFunctions) BuildErrors = true;
    return !BuildErrors;
}

void GraphBuilder::report_point_error(const std::string &message) {
    if (!message.empty()) add_error(message);
    parser.ClearLastError();
    BuildErrors = true;
}

bool GraphBuilder::Create2DData() {
    Variable *axis = nullptr;
    int points = 0;
    if (NumFunctions > 0) {
        const std::unique_ptr<Variable> &work = XAxisVarWork ? XAxisVarWork : ZAxisVarWork;
        axis = engine_variable(work);
        if (axis == nullptr) return false;
        points = static_cast<int>(work->num_points);
    }
    long total = axis != nullptr ? axis->num_points : 0;
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next) {
        const int n = data_set_x_count(*set);
        total += n;
        points = std::max(points, n);
    }
    const int sets = NumFunctions + NumDataSets;
    if (sets <= 0 || points <= 0) return false;
    const float step = 100.0f / static_cast<float>(total > 0 ? total : 1);
    float done = 0.0f;
    Data2D.emplace(graph.DataLayout, sets, points);
    ChartData2D &data = *Data2D;
    bool negative = false;

    if (axis != nullptr) {
        axis->locked = true;
        axis->ResetIncrement();
        for (int p = 0; p < points; ++p) {
            const double x = axis->value.real;
            for (int j = 0; j < NumFunctions && !Cancelled; ++j) {
                const complex y = parser.solve_equation(EquationBase + 1 + j, false, true);
                data.set_x(j, p, x);
                if (!parser.IsAnError()) {
                    if (y.real < 0) negative = true;
                    data.set_y(j, p, y.real);
                } else {
                    const char *engineText = parser.GetLastError();
                    if (engineText != nullptr && *engineText != '\0')
                        report_point_error(format_graph_message(
                            kMsgErrorAtPoint, {axis->name, value_text(axis->value), engineText}));
                    else
                        report_point_error({});
                    data.set_y(j, p, kHoleValue);
                }
                done += step;
                progress(done);
                cancel_requested();
            }
            if (Cancelled || !axis->Increment()) break;
        }
    }

    if (!Cancelled) {
        data.set_hole(kHoleValue);
        int s = NumFunctions;
        for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr && !Cancelled;
             set = set->next, ++s) {
            const int count = data_set_x_count(*set);
            // An empty or failing X slot closes up the X values; Y keeps its own count.
            for (int axisIndex = 0; axisIndex < 2 && !Cancelled; ++axisIndex) {
                int skips = 0;
                const int last = axisIndex == 0 ? count - 1 : set->YPoints.maxfullindex();
                for (int i = 0; i <= last; ++i) {
                    const char *text =
                        axisIndex == 0 ? set->GetXDataPoint(i) : set->GetYDataPoint(i);
                    complex value;
                    if (text == nullptr || !ComputeValue(text, value)) {
                        ++skips;
                        continue;
                    }
                    if (axisIndex == 0)
                        data.set_x(s, i - skips, value.real);
                    else
                        data.set_y(s, i - skips, value.real);
                    done += step / 2;
                    progress(done);
                    if (cancel_requested()) break;
                }
            }
        }
    }
    if (!Cancelled && graph.GraphType2D == kPieChart && negative && output.show_message)
        output.show_message(graph_message(kMsgPieNegatives), graph_message(kMsgGraphingUtility));
    if (axis != nullptr) axis->locked = false;
    return !Cancelled;
}

bool GraphBuilder::Create3DData() {
    Variable *xVar = nullptr;
    Variable *zVar = nullptr;
    int nx = 0;
    int nz = 0;
    double xLow = 0, xStep = 0, zLow = 0, zStep = 0;
    if (NumFunctions > 0) {
        if (XAxisVarWork) {
            xVar = engine_variable(XAxisVarWork);
            if (xVar == nullptr) return false;
            if (NumXPoints > 0) nx = NumXPoints;
            xLow = xVar->low_limit.real;
            xStep = xVar->increment.real;
        }
        if (!ZAxisVarWork) return false;
        zVar = engine_variable(ZAxisVarWork);
        if (zVar == nullptr) return false;
        nz = NumZPoints;
        zLow = zVar->low_limit.real;
        zStep = zVar->increment.real;
        Function3D = graph.GetFunction(0)->full_name;
    }
    const bool fromDataSets = NumFunctions == 0 || xVar == nullptr || zVar == nullptr;
    const StrDataPnts *first = graph.DataSets.gethead();
    if (fromDataSets && first != nullptr) nx = data_set_x_count(*first);
    if (fromDataSets) nz = NumDataSets;
    if (nx <= 0 || nz <= 0) return false;
    Data3D.emplace(fromDataSets
                       ? ChartGrid3D::irregular(nx, nz, kHoleValue)
                       : ChartGrid3D::regular(nx, nz, kHoleValue, xStep, zStep, xLow, zLow));
    ChartGrid3D &grid = *Data3D;

    if (fromDataSets) {
        int k = 0;
        for (const StrDataPnts *set = first; set != nullptr; set = set->next, ++k) {
            complex value;
            if (const char *z = set->GetZDataPoint(); z != nullptr && ComputeValue(z, value))
                grid.z_values()[static_cast<std::size_t>(k)] = value.real;
        }
        for (int i = 0; i < nx; ++i) {
            complex value;
            if (const char *x = first->GetXDataPoint(i); x != nullptr && ComputeValue(x, value))
                grid.x_values()[static_cast<std::size_t>(i)] = value.real;
        }
        k = 0;
        for (const StrDataPnts *set = first; set != nullptr; set = set->next, ++k) {
            for (int i = 0; i <= set->YPoints.maxfullindex(); ++i) {
                complex value;
                const char *y = set->GetYDataPoint(i);
                if (y != nullptr && grid.in_range(i, k) && ComputeValue(y, value))
                    grid.set_value(i, k, value.real);
            }
        }
        return true;
    }

    const float step = 100.0f / static_cast<float>(static_cast<long>(NumXPoints) * NumZPoints);
    float done = 0.0f;
    xVar->locked = true;
    xVar->ResetIncrement();
    for (int ix = 0; ix < nx; ++ix) {
        zVar->locked = true;
        zVar->ResetIncrement();
        for (int iz = 0; iz < nz; ++iz) {
            if (host->owner_gone()) {
                Cancelled = true;
                break;
            }
            for (int map = EquationBase + 1; map <= EquationBase + NumFunctions; ++map) {
                const complex y = parser.solve_equation(map, false, true);
                if (!parser.IsAnError()) {
                    grid.set_value(ix, iz, y.real);
                } else {
                    const char *engineText = parser.GetLastError();
                    if (engineText != nullptr && *engineText != '\0')
                        report_point_error(format_graph_message(
                            kMsgErrorAtGridPoint, {xVar->name, value_text(xVar->value), zVar->name,
                                                   value_text(zVar->value), engineText}));
                    else
                        report_point_error({});
                }
                done += step;
                progress(done);
            }
            if (cancel_requested() || !zVar->Increment()) break;
        }
        if (Cancelled || !xVar->Increment()) break;
    }
    xVar->locked = false;
    zVar->locked = false;
    return !Cancelled;
}

bool GraphBuilder::ComputeValue(const char *text, complex &value) {
    const std::string copy = text;
    parser.eval_exp(copy.c_str(), value, true, false);
    if (!parser.IsAnError()) return true;
    const char *engineText = parser.GetLastError();
    if (engineText != nullptr && *engineText != '\0' && output.add_error) {
        if (output.play_sound) output.play_sound("Error.wav");
        add_error(engineText);
    }
    parser.ClearLastError();
    return false;
}

complex GraphBuilder::GetEqnDataSetValueY(complex x, complex z) {
    // The function may be written with square or round brackets.
    const std::size_t open = Function3D.find_first_of("[(");
    const std::string name = Function3D.substr(0, open);
    const int declared = parser.find_function(Function3D.c_str());
    if (declared < 0 && !parser.is_internal_function(name.c_str()) &&
        !parser.is_library_function(name.c_str()))
        return {};
    if (open == std::string::npos) return {};
    const std::size_t close = Function3D.find(Function3D[open] == '[' ? ']' : ')', open);
    if (close == std::string::npos) return {};
    std::string call = name + "[";
    std::istringstream arguments(Function3D.substr(open + 1, close - open - 1));
    std::string argument;
    for (bool firstArgument = true; std::getline(arguments, argument, ','); firstArgument = false) {
        if (!firstArgument) call += ",";
        std::ostringstream number;
        if (XAxisVarWork && argument == XAxisVarWork->name)
            parser.stream_variable(x, number, kLabelPrecision);
        else if (ZAxisVarWork && argument == ZAxisVarWork->name)
            parser.stream_variable(z, number, kLabelPrecision);
        else
            number << argument;
        call += number.str();
    }
    call += "]";
    if (call.size() >= kCallTextSize) return {};
    if (declared >= 0) parser.reset_func_modvalue(declared);
    complex value;
    parser.eval_exp(call.c_str(), value, false, true);
    if (parser.IsAnError()) {
        parser.ClearLastError();
        return {};
    }
    return value;
}

bool GraphBuilder::GetPntDataSetValueY(int set, int point, complex &value) {
    const StrDataPnts *data = graph.DataSets.gethead();
    for (int k = 0; data != nullptr && k < set; ++k) data = data->next;
    if (data == nullptr || set < 0 || point < 0 || point > data->YPoints.maxfullindex())
        return false;
    const char *text = data->GetYDataPoint(point);
    return text != nullptr && ComputeValue(text, value);
}

bool GraphBuilder::LabelValues3D(const ChartGrid3D &grid, int ix, int iz, complex &x, complex &y,
                                 complex &z) {
    if (NumFunctions == 0 && NumDataSets == 0) return false;
    if (NumFunctions > 0 && XAxisVarWork && ZAxisVarWork) {
        x = {XAxisVarWork->low_limit.real + ix * XAxisVarWork->increment.real, 0};
        z = {ZAxisVarWork->low_limit.real + iz * ZAxisVarWork->increment.real, 0};
        y = GetEqnDataSetValueY(x, z);
        return true;
    }
    x = {grid.x_at(ix), 0};
    z = {grid.z_at(iz), 0};
    y = {};
    GetPntDataSetValueY(iz, ix, y);
    return true;
}

}  // namespace quindar
