// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "colors_page_model.h"

#include <array>
#include <utility>

#include "graph_data.h"
#include "graph_pages_messages.h"
#include "ini_graph_settings.h"
#include "message_box_rules.h"
#include "page_apply.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

namespace {

constexpr std::array<ColorButtonInfo, kGraphColorCount> kButtons{{
    {24931, "Window Background Color", &GraphData::BackgroundColor, false},
    {24932, "Window Foreground Color", &GraphData::ForegroundColor, false},
    {24933, "Graph Background Color", &GraphData::GraphBackgroundColor, false},
    {24934, "Graph Text Color", &GraphData::GraphForegroundColor, false},
    {24935, "Data Area Background Color", &GraphData::DataAreaBackgroundColor, false},
    {24936, "Data Area Text Color", &GraphData::DataAreaForegroundColor, false},
    {24939, "Header Background Color", &GraphData::HeaderBackgroundColor, false},
    {24940, "Header Text Color", &GraphData::HeaderForegroundColor, false},
    {24937, "Footer Background Color", &GraphData::FooterBackgroundColor, false},
    {24938, "Footer Text Color", &GraphData::FooterForegroundColor, false},
    {24941, "Legend Background Color", &GraphData::LegendBackgroundColor, false},
    {24942, "Legend Text Color", &GraphData::LegendForegroundColor, false},
    {24943, "Mesh Bottom Color", &GraphData::MeshBottomColor, true},
    {24944, "Mesh Top Color", &GraphData::MeshTopColor, true},
    {24945, "Surface Bottom Color", &GraphData::SurfaceBottomColor, true},
    {24955, "Surface Top Color", &GraphData::SurfaceTopColor, true},
}};

}  // namespace

std::span<const ColorButtonInfo> color_buttons() {
    return kButtons;
}

ColorsPageModel::ColorsPageModel(GraphSetupSession &session, SetupUi &ui, std::string settingsPath)
    : SetupPageModel(session, ui), settingsPath(std::move(settingsPath)) {}

bool ColorsPageModel::Hide3DColors() const {
    return session.temp.GetGraphType() == kGraph2D;
}

TColor ColorsPageModel::Color(std::size_t index) const {
    if (index >= kButtons.size()) return {};
    return session.temp.*kButtons[index].field;
}

void ColorsPageModel::SetColor(std::size_t index, TColor color) {
    if (index >= kButtons.size()) return;
    session.temp.*kButtons[index].field = color;
    session.Mark(ui, false);
}

bool ColorsPageModel::SaveAsDefault() {
    if (ui.Message(kMsgSaveDefaultColors, {}, kBoxWarningYesNo) != kIdYes) return false;
    session.temp.GetDefaultColors(session.defaults);
    return save_graph_default_colors(settingsPath.c_str(), session.defaults);
}

bool ColorsPageModel::SetDefault() {
    if (ui.Message(kMsgLoadDefaultColors, {}, kBoxWarningYesNo) != kIdYes) return false;
    const GraphDefaults stored = read_graph_defaults(settingsPath.c_str());
    session.defaults.colors = stored.colors;
    session.temp.SetDefaultColors(stored);
    session.Mark(ui, false);
    return true;
}

void ColorsPageModel::ApplyChanges() {
    GraphData *current = apply_target(session, session.temp.ColorsVisited);
    if (current == nullptr) return;
    for (const ColorButtonInfo &button : kButtons)
        current->*button.field = session.temp.*button.field;
    page_applied(session, ui, Index(), *current);
}

}  // namespace quindar
