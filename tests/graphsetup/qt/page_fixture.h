// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One Graph Setup page over a document of the desktop program: the document's parser and a
// current graph "G", the session over them with a working copy the test prepares, and the
// page made by its maker in a window of its own, shown and activated once.

#include <QApplication>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>
#include <memory>

#include "desktop_harness.h"
#include "document_window.h"
#include "pages_ui_recorder.h"
#include "parser.h"
#include "setup_page_widget.h"
#include "setup_page_widgets.h"
#include "setup_session.h"

namespace quindar::testing {

using PageMaker = MadeSetupPage (*)(SetupPageContext &, QWidget *);

struct PageFixture {
    // `prepare` declares what the editor needs and fills the working copy.
    PageFixture(PageMaker maker, const std::function<void(Parser &, GraphData &)> &prepare) {
        DocumentWindow &document = *harness.Current();
        DocumentContent &content = document.Content();
        content.currentGraph = add_new_graph(content.graphs, "G", nullptr);
        session = std::make_unique<GraphSetupSession>(document.Engine(), content);
        prepare(document.Engine(), session->temp);
        SetupPageContext context{harness.Bench(), document, *session, ui};
        made = maker(context, &window);
        ui.page = made.widget;
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(made.widget);
        window.resize(720, 460);
        window.show();
        QApplication::setActiveWindow(&window);
        made.widget->SetActive();
        QCoreApplication::processEvents();
    }
    GraphData &Temp() { return session->temp; }

    DesktopHarness harness;
    PagesUiRecorder ui;
    std::unique_ptr<GraphSetupSession> session;
    // The model outlives the window that holds its page.
    MadeSetupPage made;
    QWidget window;
};

}  // namespace quindar::testing
