// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The chart decisions as "key = value" lines.
#include <cstdio>
#include <string_view>

#include "chart_decisions.h"

namespace quindar {

namespace {

class Lines {
public:
    void add(std::string_view key, std::string_view value) {
        text.append(key).append(" = ").append(value).append("\n");
    }
    void add(std::string_view key, int value) { add(key, std::to_string(value)); }
    void add(std::string_view key, bool value) { add(key, std::string_view(value ? "1" : "0")); }
    void add(std::string_view key, double value) {
        char number[32];
        std::snprintf(number, sizeof number, "%.9g", value);
        add(key, std::string_view(number));
    }
    // View values are 32-bit floats: seven digits say all they hold.
    void add(std::string_view key, float value) {
        char number[32];
        std::snprintf(number, sizeof number, "%.7g", static_cast<double>(value));
        add(key, std::string_view(number));
    }
    void add(std::string_view key, TColor color) {
        add(key, std::to_string(color.Red()) + "," + std::to_string(color.Green()) + "," +
                     std::to_string(color.Blue()));
    }
    void colors(const std::vector<ChartColor> &list) {
        for (const ChartColor &color : list) add(color.name, color.color);
    }
    void properties(std::string_view prefix, const std::vector<ChartProperty> &list) {
        for (const ChartProperty &property : list) {
            char id[8];
            std::snprintf(id, sizeof id, "%04X", static_cast<unsigned>(property.id));
            add(std::string(prefix) + id, property.value);
        }
    }
    void labels(std::string_view prefix, const std::vector<std::string> &list) {
        for (std::size_t i = 0; i < list.size(); ++i)
            add(std::string(prefix) + std::to_string(i), list[i]);
    }
    void margin(std::string_view key, const ChartMargin &margin) {
        add(key, margin.automatic ? std::string("auto") : std::to_string(margin.value));
    }
    std::string text;
};

}  // namespace

std::string describe(const ChartSpec2D &spec) {
    Lines out;
    out.add("kind", std::string_view("2D"));
    out.add("type", spec.storedType);
    out.add("chart.type", spec.chartType);
    out.add("name", spec.name);
    out.add("header", spec.header);
    out.add("footer", spec.footer);
    out.add("title.x", spec.xTitle);
    out.add("title.y", spec.yTitle);
    out.labels("set.label.", spec.setLabels);
    for (int set = 0; set < kStyledSets && set < static_cast<int>(spec.setLabels.size()); ++set) {
        const DataStyle &style = spec.styles[static_cast<std::size_t>(set)];
        const std::string key = "set.style." + std::to_string(set);
        out.add(key, std::to_string(style.linePattern) + " " + std::to_string(style.fillPattern) +
                         " " + std::to_string(style.color.Red()) + "," +
                         std::to_string(style.color.Green()) + "," +
                         std::to_string(style.color.Blue()) + " " +
                         std::to_string(style.lineWidth) + " " + std::to_string(style.pointStyle) +
                         " " + std::to_string(style.pointSize));
    }
    out.colors(spec.colors);
    out.add("depth", spec.depth);
    out.add("inclination", spec.inclination);
    out.add("rotation", spec.rotation);
    out.add("log.x", spec.logX);
    out.add("log.y", spec.logY);
    for (const int refusal : spec.refusals) out.add("refused", refusal);
    out.add("grid", spec.gridLines);
    out.margin("margin.bottom", spec.marginBottom);
    out.margin("margin.top", spec.marginTop);
    out.margin("margin.left", spec.marginLeft);
    out.margin("margin.right", spec.marginRight);
    if (spec.pie) {
        out.add("pie.param1", spec.pieParam1);
        out.add("pie.param2", spec.pieParam2);
        out.add("pie.param3", spec.pieParam3);
    }
    if (spec.hiLoOpenClose) out.add("hilo.open.close", true);
    if (spec.angleUnit != 0) out.add("angle.unit", spec.angleUnit);
    out.add("font.header", spec.headerFont);
    out.add("font.footer", spec.footerFont);
    out.properties("constant.", spec.constants);
    return out.text;
}

std::string describe(const ChartSpec3D &spec) {
    Lines out;
    out.add("kind", std::string_view("3D"));
    out.add("name", spec.name);
    out.add("header", spec.header);
    out.add("footer", spec.footer);
    out.add("chart.title.x", spec.xTitle);
    out.add("chart.title.y", spec.yTitle);
    out.add("chart.title.z", spec.zTitle);
    out.add("mesh", spec.mesh);
    out.add("shade", spec.shade);
    out.add("contour", spec.contour);
    out.add("zone", spec.zone);
    out.add("hidden", spec.hidden);
    out.add("project.zmax", spec.projectZMax);
    out.add("project.zmin", spec.projectZMin);
    out.add("bars", spec.bars);
    out.add("view.perspective", spec.perspectiveDepth);
    out.add("view.rotation.x", spec.xRotation);
    out.add("view.rotation.y", spec.yRotation);
    out.add("view.rotation.z", spec.zRotation);
    out.add("view.translate.x", spec.xTranslate);
    out.add("view.translate.y", spec.yTranslate);
    out.add("view.scale", spec.scale);
    out.labels("data.label.", spec.dataLabels);
    out.colors(spec.colors);
    out.add("grid", spec.gridLines);
    out.properties("grid.", spec.grid);
    out.add("font.header", spec.headerFont);
    out.add("font.footer", spec.footerFont);
    out.properties("constant.", spec.constants);
    return out.text;
}

}  // namespace quindar
