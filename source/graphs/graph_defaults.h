// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What a new graph takes from the user's settings: the default colours and orientation, as a
// plain record. The settings layer fills it from its file; the graph model only reads it.

#include <array>

#include "color.h"

namespace quindar {

// The sections of the settings file that the record stands for.
inline constexpr const char *kGraphColorsSection = "Graph Default Colors";
inline constexpr const char *kGraphOrientationSection = "Graph Default Orientation";

inline constexpr int kGraphColorCount = 16;

struct GraphDefaults {
    // The built-in values: the colour table's defaults and the orientation a new graph has.
    GraphDefaults();

    // "Graph Default Orientation": whole numbers, also those that end in a float field.
    int Depth2D = 20;
    int Inclination2D = 15;
    int Rotation2D = 10;
    int PerspectiveDepth = 20;
    int XRotation = 25;
    int YRotation = 0;
    int ZRotation = 310;
    // "Graph Default Colors", in the order of graph_colors().
    std::array<TColor, kGraphColorCount> colors{};

    friend bool operator==(const GraphDefaults &, const GraphDefaults &) = default;
};

}  // namespace quindar
