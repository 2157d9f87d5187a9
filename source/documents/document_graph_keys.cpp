// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the numeric graph keys of a document.
#include "document_graph_keys.h"

namespace quindar {

namespace {

const GraphNumberKey kKeys2D[] = {
    {"Depth", kKind2D, &GraphData::Depth2D, nullptr, 20},
    {"Inclination", kKind2D, &GraphData::Inclination2D, nullptr, 15},
    {"DefaultInclination", kKind2D, &GraphData::DefaultInclination2D, nullptr, 15},
    {"Rotation", kKind2D, &GraphData::Rotation2D, nullptr, 10},
    {"DefaultRotation", kKind2D, &GraphData::DefaultRotation2D, nullptr, 10},
    {"MarginBottom2D", kKind2D, &GraphData::MarginBottom2D, nullptr, 0},
    {"MarginTop2D", kKind2D, &GraphData::MarginTop2D, nullptr, 0},
    {"MarginLeft2D", kKind2D, &GraphData::MarginLeft2D, nullptr, 0},
    {"MarginRight2D", kKind2D, &GraphData::MarginRight2D, nullptr, 0},
    {"DefaultMarginBottom2D", kKind2D, &GraphData::DefaultMarginBottom2D, nullptr, 0},
    {"DefaultMarginTop2D", kKind2D, &GraphData::DefaultMarginTop2D, nullptr, 0},
    {"DefaultMarginLeft2D", kKind2D, &GraphData::DefaultMarginLeft2D, nullptr, 0},
    {"DefaultMarginRight2D", kKind2D, &GraphData::DefaultMarginRight2D, nullptr, 0},
    {"XAxisLogarithmic", kKind2D, &GraphData::XAxisLogarithmic, nullptr, 0},
    {"YAxisLogarithmic", kKind2D, &GraphData::YAxisLogarithmic, nullptr, 0},
};

const GraphNumberKey kKeys3D[] = {
    {"PerspectiveDepth", kKind3D, nullptr, &GraphData::PerspectiveDepth, 20.0f},
    {"DefaultPerspectiveDepth", kKind3D, nullptr, &GraphData::DefaultPerspectiveDepth, 20.0f},
    {"XRotation", kKind3D, nullptr, &GraphData::XRotation, 25.0f},
    {"DefaultXRotation", kKind3D, nullptr, &GraphData::DefaultXRotation, 25.0f},
    {"YRotation", kKind3D, nullptr, &GraphData::YRotation, 0.34f},
    {"DefaultYRotation", kKind3D, nullptr, &GraphData::DefaultYRotation, 0.34f},
    {"ZRotation", kKind3D, nullptr, &GraphData::ZRotation, 310.0f},
    {"DefaultZRotation", kKind3D, nullptr, &GraphData::DefaultZRotation, 310.0f},
    {"XTranslate", kKind3D, nullptr, &GraphData::XTranslate, 0.0f},
    {"YTranslate", kKind3D, nullptr, &GraphData::YTranslate, 0.0f},
    {"DefaultXTranslate", kKind3D, nullptr, &GraphData::DefaultXTranslate, 0.0f},
    {"DefaultYTranslate", kKind3D, nullptr, &GraphData::DefaultYTranslate, 0.0f},
    {"Scale", kKind3D, nullptr, &GraphData::Scale, 1.0f},
    {"DefaultScale", kKind3D, nullptr, &GraphData::DefaultScale, 1.0f},
};

}  // namespace

std::span<const GraphNumberKey> graph_keys_2d() {
    return kKeys2D;
}

std::span<const GraphNumberKey> graph_keys_3d() {
    return kKeys3D;
}

}  // namespace quindar
