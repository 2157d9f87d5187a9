// SPDX-License-Identifier: GPL-3.0-or-later
// What a document holds besides its engine: the text, the font, the calculus settings, graphs.
#pragma once

#include <cstdint>
#include <string>

#include "color.h"
#include "graph_data.h"

namespace quindar {

// The editor's font, with the fields of a platform font record. Defaults are what a
// document without a "[FONT]" section gets.
struct DocumentFont {
    std::string FaceName = "Arial";
    int Height = -13;
    int Width = 0;
    int Escapement = 0;
    int Orientation = 0;
    int Weight = 700;
    std::uint8_t Italic = 0;
    std::uint8_t Underline = 0;
    std::uint8_t StrikeOut = 0;
    std::uint8_t CharSet = 0;
    std::uint8_t OutPrecision = 3;
    std::uint8_t ClipPrecision = 2;
    std::uint8_t Quality = 1;
    std::uint8_t PitchAndFamily = 34;
    TColor Color = TColor::Black;

    friend bool operator==(const DocumentFont &, const DocumentFont &) = default;
};

// What the Integration page left in the editor; texts are expressions as typed.
struct IntegrationParameters {
    int IntType = 1;
    int IntPrecision = 14;
    int IntAccuracy = 20;
    std::string IntFunc;
    std::string IntXParam, IntXLoLimit, IntXHiLimit;
    std::string IntYParam, IntYLoLimit, IntYHiLimit;
    std::string IntZParam, IntZLoLimit, IntZHiLimit;

    friend bool operator==(const IntegrationParameters &, const IntegrationParameters &) = default;
};

// What the Differentiation page left in the editor.
struct DifferentiationParameters {
    std::string DiffFunc, DiffVar;
    std::string DiffXo, DiffXn, DiffIn;
    int DiffPrecision = 14;
    int DiffDispFunc = 1;
    int DiffDispFirstDir = 1;
    int DiffDispSecondDir = 1;
    int DiffDispThirdDir = 1;

    friend bool operator==(const DifferentiationParameters &,
                           const DifferentiationParameters &) = default;
};

// One work as a document stores it; the engine (variables, functions, formats, angle
// mode) is held beside it by whoever owns the document.
struct DocumentContent {
    // The editor's text, CR LF line ends.
    std::string text;
    DocumentFont font;
    IntegrationParameters integration;
    DifferentiationParameters differentiation;
    GraphList graphs;
    GraphData *currentGraph = nullptr;  // an element of graphs, or null
};

// A colour as documents write it: "r,g,b" in decimal.
inline std::string rgb_text(TColor color) {
    return std::to_string(color.Red()) + "," + std::to_string(color.Green()) + "," +
           std::to_string(color.Blue());
}

}  // namespace quindar
