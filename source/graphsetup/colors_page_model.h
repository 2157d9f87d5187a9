// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Colors page: the sixteen colours of a graph, the user's default colours in the settings
// file.

#include <functional>
#include <span>
#include <string>

#include "color.h"
#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class GraphData;

// One colour button: its id, the caption beside it, the colour it holds, and whether only a
// 3-D graph draws that colour.
struct ColorButtonInfo {
    int buttonId;
    const char *caption;
    TColor GraphData::*field;
    bool only3D;
};

// The sixteen buttons in the page's order.
std::span<const ColorButtonInfo> color_buttons();

class ColorsPageModel : public SetupPageModel {
public:
    // `settingsPath`: the settings file that holds the default colours.
    ColorsPageModel(GraphSetupSession &session, SetupUi &ui, std::string settingsPath);

    int Index() const override { return kPageColors; }

    // A 2-D graph does not draw the mesh and surface colours: their buttons hide.
    bool Hide3DColors() const;
    // The colour of button `index` (in the order of color_buttons()).
    TColor Color(std::size_t index) const;
    // The colour dialog closed with OK on button `index`.
    void SetColor(std::size_t index, TColor color);

    // "Save As Default", after the user agreed; false when the file could not be written.
    bool SaveAsDefault();
    // "Set Default": the user's default colours into the working copy; true when taken.
    bool SetDefault();

    void ApplyChanges() override;
    // Next reads "Finish" here; the sheet builds, applies and closes, so the page has no
    // step of its own.
    void Next() override {}

private:
    std::string settingsPath;
};

}  // namespace quindar
