// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The makers of the seven pages, each with its model, in the sheet's order. Each page's own
// file defines its maker; the sheet owns what they return.

#include <memory>

class QWidget;

namespace quindar {

class SetupPageModel;
class SetupPageWidget;
class SetupUi;
class Workbench;
class DocumentWindow;
struct GraphSetupSession;

// Where a page widget lives: the document and its session, and the sheet's SetupUi.
struct SetupPageContext {
    Workbench &workbench;
    DocumentWindow &document;
    GraphSetupSession &session;
    SetupUi &ui;
};

// A page and its model; the model is registered in the session's page table by the sheet.
struct MadeSetupPage {
    std::unique_ptr<SetupPageModel> model;
    SetupPageWidget *widget = nullptr;  // parented to `parent`
};

MadeSetupPage make_graphs_page(SetupPageContext &context, QWidget *parent);
MadeSetupPage make_functions_page(SetupPageContext &context, QWidget *parent);
MadeSetupPage make_points_page(SetupPageContext &context, QWidget *parent);
MadeSetupPage make_variables_page(SetupPageContext &context, QWidget *parent);
MadeSetupPage make_labels_page(SetupPageContext &context, QWidget *parent);
MadeSetupPage make_types_page(SetupPageContext &context, QWidget *parent);
MadeSetupPage make_colors_page(SetupPageContext &context, QWidget *parent);

}  // namespace quindar
