// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The attribute section of graph files, and the files on disk.
#include "graph_file.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "color.h"
#include "graph_data_block.h"
#include "graph_file_section.h"

namespace quindar {

namespace {

using Keys = std::vector<std::pair<std::string, std::string>>;

constexpr const char *kMarginKeys[4] = {"MarginBottom2D", "MarginTop2D", "MarginLeft2D",
                                        "MarginRight2D"};
constexpr const char *kViewKeys[7] = {"PerspectiveDepth", "XRotation",  "YRotation", "ZRotation",
                                      "XTranslate",       "YTranslate", "Scale"};

std::string color_text(TColor color) {
    return std::to_string(color.Red()) + "," + std::to_string(color.Green()) + "," +
           std::to_string(color.Blue());
}

// "r,g,b", each field kept to 8 bits; deflt when missing or short.
TColor color_value(const GraphFileSection &section, const char *key, TColor deflt) {
    const std::optional<std::string> text = section.text(key);
    if (!text) return deflt;
    int fields[3] = {0, 0, 0};
    std::istringstream stream(*text);
    for (int &field : fields) {
        std::string part;
        if (!std::getline(stream, part, ',') || part.empty()) return deflt;
        field = static_cast<int>(std::strtol(part.c_str(), nullptr, 10));
    }
    return TColor(static_cast<std::uint8_t>(fields[0] & 0xff),
                  static_cast<std::uint8_t>(fields[1] & 0xff),
                  static_cast<std::uint8_t>(fields[2] & 0xff));
}

std::string view_text(float value) {
    char text[48];
    std::snprintf(text, sizeof text, "%.3f", static_cast<double>(value));
    return text;
}

// A view value; missing or empty gives deflt.
float view_value(const GraphFileSection &section, const std::string &key, float deflt) {
    const std::optional<std::string> text = section.text(key);
    if (!text || text->empty()) return deflt;
    return static_cast<float>(std::strtod(text->c_str(), nullptr));
}

std::string text_or_empty(const GraphFileSection &section, const char *key) {
    return section.text(key).value_or(std::string());
}

// The colours a file's section falls back on: the user's defaults, in a chart's key order.
std::vector<ChartColor> default_colors(const GraphDefaults &defaults, bool threeD) {
    GraphData plain;
    plain.SetDefaultColors(defaults);
    return threeD ? chart_spec_3d(plain).colors : chart_spec_2d(plain, 0).colors;
}

Keys title_keys(const GraphFileTitles &titles) {
    return {{"Header", titles.header},
            {"Footer", titles.footer},
            {"XAxisTitle", titles.xTitle},
            {"YAxisTitle", titles.yTitle}};
}

void read_titles(const GraphFileSection &section, GraphFileTitles &titles) {
    titles.name = section.name();
    titles.header = text_or_empty(section, "Header");
    titles.footer = text_or_empty(section, "Footer");
    titles.xTitle = text_or_empty(section, "XAxisTitle");
    titles.yTitle = text_or_empty(section, "YAxisTitle");
}

}  // namespace

GraphFile2D make_graph_file_2d(const GraphData &graph, const ChartData2D &data) {
    const ChartSpec2D spec = chart_spec_2d(graph, 0);
    GraphFile2D file;
    file.data = data;
    file.name = graph.Name;
    file.header = graph.Header;
    file.footer = graph.Footer;
    file.xTitle = graph.XAxisTitle;
    file.yTitle = graph.YAxisTitle;
    file.type = graph.GraphType2D;
    file.defaultDepth = graph.DefaultDepth2D;
    file.depth = graph.Depth2D;
    file.defaultInclination = graph.DefaultInclination2D;
    file.inclination = graph.Inclination2D;
    file.defaultRotation = graph.DefaultRotation2D;
    file.rotation = graph.Rotation2D;
    file.defaultMargins = {graph.DefaultMarginBottom2D, graph.DefaultMarginTop2D,
                           graph.DefaultMarginLeft2D, graph.DefaultMarginRight2D};
    const ChartMargin *margins[4] = {&spec.marginBottom, &spec.marginTop, &spec.marginLeft,
                                     &spec.marginRight};
    for (std::size_t i = 0; i < 4; ++i) file.margins[i] = margins[i]->value;
    file.colors = spec.colors;
    file.setLabels = spec.setLabels;
    file.setLabels.resize(static_cast<std::size_t>(data.sets()));
    file.xLogarithmic = spec.logX ? 1 : 0;
    file.yLogarithmic = spec.logY ? 1 : 0;
    file.showGridLines = graph.ShowGridLines;
    return file;
}

GraphFile3D make_graph_file_3d(const GraphData &graph, const ChartGrid3D &grid) {
    const ChartSpec3D spec = chart_spec_3d(graph);
    GraphFile3D file;
    file.grid = grid;
    file.name = graph.Name;
    file.header = graph.Header;
    file.footer = graph.Footer;
    file.xTitle = spec.xTitle;
    file.yTitle = spec.yTitle;
    file.zTitle = spec.zTitle;
    file.mesh = spec.mesh;
    file.shade = spec.shade;
    file.contour = spec.contour;
    file.zone = spec.zone;
    file.hidden = spec.hidden;
    file.projectZMin = spec.projectZMin;
    file.projectZMax = spec.projectZMax;
    file.surface = spec.bars;
    file.view = {spec.perspectiveDepth, spec.xRotation,  spec.yRotation, spec.zRotation,
                 spec.xTranslate,       spec.yTranslate, spec.scale};
    file.defaultView = {spec.defaultPerspectiveDepth,
                        spec.defaultXRotation,
                        spec.defaultYRotation,
                        spec.defaultZRotation,
                        spec.defaultXTranslate,
                        spec.defaultYTranslate,
                        spec.defaultScale};
    file.colors = spec.colors;
    file.showGridLines = graph.ShowGridLines;
    return file;
}

int graph_file_kind(const std::string &path) {
    std::string upper = path;
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    if (upper.find(".G2D") != std::string::npos) return 1;
    if (upper.find(".G3D") != std::string::npos) return 2;
    return 0;
}

std::string graph_file_text(const GraphFile2D &file) {
    Keys keys = title_keys(file);
    keys.insert(keys.end(), {{"Type", std::to_string(file.type)},
                             {"DefaultDepth", std::to_string(file.defaultDepth)},
                             {"Depth", std::to_string(file.depth)},
                             {"DefaultInclination", std::to_string(file.defaultInclination)},
                             {"Inclination", std::to_string(file.inclination)},
                             {"DefaultRotation", std::to_string(file.defaultRotation)},
                             {"Rotation", std::to_string(file.rotation)}});
    for (std::size_t i = 0; i < 4; ++i)
        keys.emplace_back(std::string("Default") + kMarginKeys[i],
                          std::to_string(file.defaultMargins[i]));
    for (std::size_t i = 0; i < 4; ++i)
        keys.emplace_back(kMarginKeys[i], std::to_string(file.margins[i]));
    for (const ChartColor &color : file.colors)
        keys.emplace_back(color.name, color_text(color.color));
    keys.emplace_back("NumDataSets", std::to_string(file.data.sets()));
    for (std::size_t i = 0; i < file.setLabels.size(); ++i)
        if (!file.setLabels[i].empty())
            keys.emplace_back("SetLabel" + std::to_string(i + 1), file.setLabels[i]);
    std::string out = data_block_text(file.data) + "\r\n";
    write_graph_file_section(out, file.name, keys);
    return out;
}

std::string graph_file_text(const GraphFile3D &file) {
    Keys keys = title_keys(file);
    keys.insert(keys.end(), {{"ZAxisTitle", file.zTitle},
                             {"Mesh", std::to_string(file.mesh)},
                             {"Shade", std::to_string(file.shade)},
                             {"Contour", std::to_string(file.contour)},
                             {"Zone", std::to_string(file.zone)},
                             {"Hidden", std::to_string(file.hidden)},
                             {"ProjectZMin", std::to_string(file.projectZMin)},
                             {"ProjectZMax", std::to_string(file.projectZMax)},
                             {"Surface", std::to_string(file.surface)}});
    for (std::size_t i = 0; i < 7; ++i) keys.emplace_back(kViewKeys[i], view_text(file.view[i]));
    for (std::size_t i = 0; i < 7; ++i)
        keys.emplace_back(std::string("Default") + kViewKeys[i], view_text(file.defaultView[i]));
    for (const ChartColor &color : file.colors)
        keys.emplace_back(color.name, color_text(color.color));
    std::string out = data_block_text(file.grid) + "\r\n";
    write_graph_file_section(out, file.name, keys);
    return out;
}

bool parse_graph_file(const std::string &text, const GraphDefaults &defaults, GraphFile2D &file,
                      std::string &error) {
    std::string_view rest;
    if (!parse_data_block(text, file.data, rest, error)) return false;
    const GraphFileSection section(rest);
    read_titles(section, file);
    file.type = section.integer("Type", 0);
    file.defaultDepth = section.integer("DefaultDepth", 20);
    file.depth = section.integer("Depth", 20);
    file.defaultInclination = section.integer("DefaultInclination", 15);
    file.inclination = section.integer("Inclination", 15);
    file.defaultRotation = section.integer("DefaultRotation", 10);
    file.rotation = section.integer("Rotation", 10);
    for (std::size_t i = 0; i < 4; ++i) {
        file.defaultMargins[i] = section.integer(std::string("Default") + kMarginKeys[i], 0);
        file.margins[i] = section.integer(kMarginKeys[i], 0);
    }
    // The graph foreground's default is looked up under a key the settings never hold, so
    // it is always the built-in colour.
    const GraphDefaults builtIn;
    const std::vector<ChartColor> fallback = default_colors(defaults, false);
    const std::vector<ChartColor> builtInColors = default_colors(builtIn, false);
    file.colors = fallback;
    for (std::size_t i = 0; i < file.colors.size(); ++i) {
        const bool foreground = std::string_view(file.colors[i].name) == "GraphForegroundColor";
        file.colors[i].color = color_value(section, file.colors[i].name,
                                           foreground ? builtInColors[i].color : fallback[i].color);
    }
    const int labelled = section.integer("NumDataSets", 0);
    file.setLabels.assign(static_cast<std::size_t>(file.data.sets()), std::string());
    for (int i = 1; i <= labelled && i <= file.data.sets(); ++i)
        file.setLabels[static_cast<std::size_t>(i - 1)] =
            text_or_empty(section, ("SetLabel" + std::to_string(i)).c_str());
    file.xLogarithmic = section.integer("XAxisLogarithmic", 0);
    file.yLogarithmic = section.integer("YAxisLogarithmic", 0);
    file.showGridLines = section.integer("ShowGridLines", 1);
    return true;
}

bool parse_graph_file(const std::string &text, const GraphDefaults &defaults, GraphFile3D &file,
                      std::string &error) {
    std::string_view rest;
    if (!parse_data_block(text, file.grid, rest, error)) return false;
    const GraphFileSection section(rest);
    read_titles(section, file);
    file.zTitle = text_or_empty(section, "ZAxisTitle");
    file.mesh = section.integer("Mesh", 0);
    file.shade = section.integer("Shade", 0);
    file.contour = section.integer("Contour", 0);
    file.zone = section.integer("Zone", 0);
    file.hidden = section.integer("Hidden", 0);
    file.projectZMin = section.integer("ProjectZMin", 0);
    file.projectZMax = section.integer("ProjectZMax", 0);
    if (section.integer("Project", 0) == 1) {
        file.projectZMax = 1;
        file.projectZMin = 2;
    }
    file.surface = section.integer("Surface", 0) == 1 ? 1 : 0;
    for (std::size_t i = 0; i < 7; ++i) {
        file.view[i] = view_value(section, kViewKeys[i], kDefaultView3D[i]);
        file.defaultView[i] =
            view_value(section, std::string("Default") + kViewKeys[i], kDefaultView3D[i]);
    }
    file.colors = default_colors(defaults, true);
    for (ChartColor &color : file.colors)
        color.color = color_value(section, color.name, color.color);
    file.showGridLines = section.integer("ShowGridLines", 1);
    return true;
}

bool save_graph_file(const std::string &path, const std::string &text, std::string &error) {
    const std::string temporary = path + ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        out << text;
        out.flush();
        if (!out) {
            error = "cannot write \"" + temporary + "\"";
            std::error_code ignored;
            std::filesystem::remove(temporary, ignored);
            return false;
        }
    }
    std::error_code code;
    std::filesystem::rename(temporary, path, code);
    if (code) {
        error = "cannot write \"" + path + "\": " + code.message();
        std::filesystem::remove(temporary, code);
        return false;
    }
    return true;
}

bool load_graph_file_text(const std::string &path, std::string &text, std::string &error) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot open \"" + path + "\"";
        return false;
    }
    std::ostringstream content;
    content << in.rdbuf();
    text = content.str();
    return true;
}

}  // namespace quindar
