// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The keys of the application's settings file "Quindar.ini", each with its section and the
// default that a missing file, section or key means.

#include <climits>

#include "color.h"

namespace quindar {

struct FlagSetting {
    const char *section;
    const char *key;
    bool deflt;
};

// A value read outside low to high is held at the nearer end: a settings file may come from
// anywhere, and what reads it must not be asked for a million digits.
struct IntSetting {
    const char *section;
    const char *key;
    int deflt;
    int low = INT_MIN;
    int high = INT_MAX;
};

struct TextSetting {
    const char *section;
    const char *key;
    const char *deflt;
};

struct ColorSetting {
    const char *section;
    const char *key;
    TColor deflt;
};

namespace settings {

inline constexpr const char *kOptions = "OPTIONS";
inline constexpr const char *kParserOptions = "PARSER OPTIONS";
inline constexpr const char *kWindowAttributes = "WINDOW ATTRIBUTES";
inline constexpr const char *kCustomColors = "Custom Colors";
inline constexpr const char *kTipOfTheDay = "TipOfTheDay";
inline constexpr const char *kRecentFiles = "MRU";
inline constexpr const char *kGraphOrientation = "Graph Default Orientation";
inline constexpr const char *kGraphColors = "Graph Default Colors";

inline constexpr FlagSetting kSound{kOptions, "Sound", true};
inline constexpr FlagSetting kIncrementalVariables{kOptions, "IncrementalVariables", true};
inline constexpr FlagSetting kFlatButtons{kOptions, "FlatButtons", false};
// 1: Enter computes; 0: Shift+Enter computes.
inline constexpr FlagSetting kCalculationMethod{kOptions, "CalculationMethod", true};
inline constexpr FlagSetting kUseSquareFunctionBrackets{kOptions, "UseSquareFunctionBrackets",
                                                        false};
inline constexpr FlagSetting kToolBar{kOptions, "ToolBar", true};
// 1: hints on pressing; 2: hints on entering.
inline constexpr IntSetting kHints{kOptions, "Hints", 2, 1, 2};
inline constexpr FlagSetting kShowCalcBar{kOptions, "ShowCalcBar", true};
inline constexpr FlagSetting kShowTutorialDownloadDialog{kOptions, "ShowTutorialDownloadDialog",
                                                         true};
inline constexpr TextSetting kMediaPlayerPath{kOptions, "MediaPlayerPath", ""};
inline constexpr FlagSetting kVariMgrInstructions{kOptions, "VariMgrInstructions", true};
inline constexpr FlagSetting kFuncMgrInstructions{kOptions, "FuncMgrInstructions", true};
inline constexpr IntSetting kIntegrationPrecision{kOptions, "IntegrationPrecision", 6, 1, 14};
inline constexpr IntSetting kDifferentiationPrecision{kOptions, "DifferentiationPrecision", 6, 1,
                                                      14};
inline constexpr IntSetting kSolverPrecision{kOptions, "SolverPrecision", 6, 1, 14};

inline constexpr FlagSetting kApplyPrecisionFormatToAll{kParserOptions, "ApplyPrecisionFormatToAll",
                                                        true};
inline constexpr FlagSetting kApplyTrigOptionsToAll{kParserOptions, "ApplyTrigOptionsToAll", true};

inline constexpr int kWindowWidthLowest = 120;
inline constexpr int kWindowWidthHighest = 450;
inline constexpr IntSetting kWindowWidth{kWindowAttributes, "Window Width", 150, kWindowWidthLowest,
                                         kWindowWidthHighest};

// -2 and -1 mean that the key is absent; the start writes -1 and 1 in their place.
inline constexpr IntSetting kTipPos{kTipOfTheDay, "Pos", -2};
inline constexpr IntSetting kTipStartup{kTipOfTheDay, "Startup", -1};

inline constexpr int kCustomColorCount = 16;  // CustColor1 to CustColor16, default white
inline constexpr int kRecentFileCount = 6;    // MRU0 (newest) to MRU5, and "Count"

inline constexpr IntSetting kGraphOrientationKeys[] = {
    {kGraphOrientation, "Depth2D", 20},      {kGraphOrientation, "Inclination2D", 15},
    {kGraphOrientation, "Rotation", 10},     {kGraphOrientation, "PerspectiveDepth", 20},
    {kGraphOrientation, "XRotation3D", 25},  {kGraphOrientation, "YRotation3D", 0},
    {kGraphOrientation, "ZRotation3D", 310},
};

// "GraphForegrond" is the key's spelling in every settings file.
inline constexpr ColorSetting kGraphColorKeys[] = {
    {kGraphColors, "Background", TColor(64, 128, 128)},
    {kGraphColors, "Foreground", TColor(0, 0, 0)},
    {kGraphColors, "DataAreaBackground", TColor(128, 255, 255)},
    {kGraphColors, "DataAreaForeground", TColor(0, 0, 0)},
    {kGraphColors, "FooterBackground", TColor(0, 0, 0)},
    {kGraphColors, "FooterForeground", TColor(0, 0, 0)},
    {kGraphColors, "GraphBackground", TColor(0, 0, 0)},
    {kGraphColors, "GraphForegrond", TColor(255, 255, 255)},
    {kGraphColors, "HeaderBackground", TColor(0, 0, 0)},
    {kGraphColors, "HeaderForeground", TColor(255, 255, 255)},
    {kGraphColors, "LegendBackground", TColor(255, 255, 255)},
    {kGraphColors, "LegendForeground", TColor(0, 0, 0)},
    {kGraphColors, "MeshBottom", TColor(0, 0, 0)},
    {kGraphColors, "MeshTop", TColor(0, 0, 0)},
    {kGraphColors, "SurfaceBottom", TColor(0, 0, 0)},
    {kGraphColors, "SurfaceTop", TColor(255, 255, 255)},
};

}  // namespace settings
}  // namespace quindar
