// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_graph_setup.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include "command_router.h"
#include "command_table.h"
#include "document_area.h"
#include "document_panes.h"
#include "document_window.h"
#include "function_library_dialog.h"
#include "function_solver_dialog.h"
#include "functions_page_model.h"
#include "graph_pane.h"
#include "graph_setup_sheet.h"
#include "ini_graph_settings.h"
#include "main_frame.h"
#include "pane_graph_window.h"
#include "setup_page_widget.h"
#include "setup_session.h"
#include "workbench.h"

namespace quindar {

namespace {

const QString kObjectName = QStringLiteral("documentGraphSetup");
const QString kWiringName = QStringLiteral("graphSetupWiring");

// What a document keeps of Graph Setup between two openings of the sheet.
class DocumentGraphSetup : public QObject {
public:
    DocumentGraphSetup(Workbench &bench, DocumentWindow &owner)
        : QObject(&owner),
          workbench(bench),
          document(owner),
          session(owner.Engine(), owner.Content()),
          window(bench, owner) {
        setObjectName(kObjectName);
        session.graphsChangedHook = [this] { document.MarkGraphsChanged(); };
        // The Graph Setup button shows the sheet as pressed; other tools' states come after.
        auto before = owner.toolState;
        owner.toolState = [this, before](int id, CommandState &state) {
            if (id == command::kGraphSetup) {
                // Enabled while the graph window shows.
                state.enabled = window.Exists();
                state.checked = find_graph_setup(document) != nullptr;
                return true;
            }
            return before && before(id, state);
        };
        owner.Panes().graphFunctionsShowing = [this] { return functions_page_showing(document); };
        owner.Panes().addGraphFunction = [this](const std::string &text) {
            return add_graph_function(document, text);
        };
        // The solver made later for this document hands "Insert F[x]" to the Functions page.
        owner.installEventFilter(this);
    }

    // A sheet goes before the session its pages work on (the document made this first).
    ~DocumentGraphSetup() override {
        for (GraphSetupSheet *sheet :
             document.findChildren<GraphSetupSheet *>(Qt::FindDirectChildrenOnly))
            delete sheet;
    }

    // Sets the graph pane's way into Graph Setup once the pane exists.
    void WirePane() {
        auto *pane = document.findChild<GraphPane *>(QString(), Qt::FindDirectChildrenOnly);
        if (pane == nullptr || pane->openSetup) return;
        pane->openSetup = [this](QPoint at) { open_graph_setup(workbench, document, at); };
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == &document && event->type() == QEvent::ChildPolished) {
            auto *child = static_cast<QChildEvent *>(event)->child();
            if (auto *solver = qobject_cast<FunctionSolverDialog *>(child);
                solver != nullptr && !solver->functionsPageShowing) {
                DocumentWindow *owner = &document;
                solver->functionsPageShowing = [owner] { return functions_page_showing(*owner); };
                solver->addGraphFunction = [owner](const QString &prototype) {
                    add_graph_function(*owner, prototype.toStdString());
                };
            }
        }
        return QObject::eventFilter(watched, event);
    }

    Workbench &workbench;
    DocumentWindow &document;
    GraphSetupSession session;
    PaneGraphWindow window;
};

DocumentGraphSetup &SetupOf(Workbench &workbench, DocumentWindow &document) {
    if (QObject *found = document.findChild<QObject *>(kObjectName, Qt::FindDirectChildrenOnly))
        return *static_cast<DocumentGraphSetup *>(found);
    return *new DocumentGraphSetup(workbench, document);
}

// What Graph Setup needs of the program once its main window stands: the Function Library,
// one for the program, hands its functions to the current document's Functions page while it
// shows, and a sheet goes when another document comes forward.
class ProgramWiring : public QObject {
public:
    explicit ProgramWiring(Workbench &bench) : QObject(&bench), workbench(bench) {
        setObjectName(kWiringName);
    }

    void Wire() {
        MainFrame *frame = workbench.Frame();
        if (frame == nullptr || wired) return;
        wired = true;
        frame->installEventFilter(this);
        for (FunctionLibraryDialog *library : frame->findChildren<FunctionLibraryDialog *>())
            WireLibrary(*library);
        if (DocumentArea *client = workbench.Client())
            connect(client, &DocumentArea::currentDocumentChanged, this, [this] {
                DocumentArea *area = workbench.Client();
                DocumentWindow *current = area != nullptr ? area->Current() : nullptr;
                // No document in front (the program lost the focus) leaves the sheet open.
                if (current == nullptr || workbench.Frame() == nullptr) return;
                for (GraphSetupSheet *sheet : workbench.Frame()->findChildren<GraphSetupSheet *>())
                    if (sheet->parent() != current) sheet->reject();
            });
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::ChildPolished && watched == workbench.Frame())
            if (auto *library = qobject_cast<FunctionLibraryDialog *>(
                    static_cast<QChildEvent *>(event)->child()))
                WireLibrary(*library);
        return QObject::eventFilter(watched, event);
    }

private:
    void WireLibrary(FunctionLibraryDialog &library) {
        if (library.graphSetupOpen) return;
        Workbench *bench = &workbench;
        const auto current = [bench]() -> DocumentWindow * {
            DocumentArea *client = bench->Client();
            return client != nullptr ? client->Current() : nullptr;
        };
        library.graphSetupOpen = [current] {
            DocumentWindow *document = current();
            return document != nullptr && functions_page_showing(*document);
        };
        library.addToGraphSetup = [current](const QString &text) {
            if (DocumentWindow *document = current())
                add_graph_function(*document, text.toStdString());
        };
    }

    Workbench &workbench;
    bool wired = false;
};

ProgramWiring &WiringOf(Workbench &workbench) {
    // Found by name: the class has no meta-object of its own to be cast by.
    if (QObject *found = workbench.findChild<QObject *>(kWiringName, Qt::FindDirectChildrenOnly))
        return *static_cast<ProgramWiring *>(found);
    return *new ProgramWiring(workbench);
}

}  // namespace

GraphSetupSession &document_setup_session(Workbench &workbench, DocumentWindow &document) {
    return SetupOf(workbench, document).session;
}

SetupGraphWindow &document_setup_window(Workbench &workbench, DocumentWindow &document) {
    return SetupOf(workbench, document).window;
}

GraphSetupSheet *find_graph_setup(DocumentWindow &document) {
    return document.findChild<GraphSetupSheet *>(QString(), Qt::FindDirectChildrenOnly);
}

GraphSetupSheet *open_graph_setup(Workbench &workbench, DocumentWindow &document,
                                  std::optional<QPoint> at) {
    if (workbench.contextHelpMode) {
        workbench.PlaySound("QClick.wav");
        workbench.CallContextHelp(find_command(command::kGraphSetup)->helpTopic);
        return nullptr;
    }
    if (GraphSetupSheet *open = find_graph_setup(document)) return open;
    // One sheet in the whole program.
    if (MainFrame *frame = workbench.Frame())
        for (GraphSetupSheet *other : frame->findChildren<GraphSetupSheet *>())
            if (other->parent() != &document) other->reject();
    WiringOf(workbench).Wire();
    DocumentGraphSetup &setup = SetupOf(workbench, document);
    setup.WirePane();
    workbench.PlaySound("QClick.wav");
    setup.session.defaults = read_graph_defaults(workbench.Folders().settingsPath.c_str());
    auto *sheet = new GraphSetupSheet(workbench, document, setup.session, at);
    QObject::connect(sheet, &GraphSetupSheet::closing, &workbench,
                     [&workbench] { workbench.Router().UpdateActions(); });
    sheet->show();
    workbench.Router().UpdateActions();
    return sheet;
}

bool close_graph_setup(Workbench &workbench, DocumentWindow &document) {
    GraphSetupSheet *sheet = find_graph_setup(document);
    if (sheet == nullptr) return false;
    const bool showing = sheet->isVisible();
    sheet->reject();
    workbench.Router().UpdateActions();
    return showing;
}

bool functions_page_showing(DocumentWindow &document) {
    GraphSetupSheet *sheet = find_graph_setup(document);
    return sheet != nullptr && sheet->isVisible() && sheet->ShowingPage() == kPageFunctions;
}

bool add_graph_function(DocumentWindow &document, const std::string &rowText) {
    if (!functions_page_showing(document)) return false;
    GraphSetupSheet *sheet = find_graph_setup(document);
    SetupPageWidget *page = sheet->PageWidget(kPageFunctions);
    auto &model = static_cast<FunctionsPageModel &>(page->Model());
    const bool added = model.AddFunction(rowText);
    page->UpdatePage();
    return added;
}

void install_graph_setup_tools(Workbench &workbench) {
    auto before = workbench.documentTools;
    Workbench *bench = &workbench;
    WiringOf(workbench);
    workbench.documentTools = [before, bench](DocumentWindow &document, int id) {
        WiringOf(*bench).Wire();
        if (id == command::kGraphSetup) {
            open_graph_setup(*bench, document);
            return true;
        }
        const bool handled = before ? before(document, id) : false;
        DocumentGraphSetup &setup = SetupOf(*bench, document);
        setup.WirePane();
        // The graph window shown with nothing to draw opens Graph Setup beside it.
        if (id == command::kShowGraphWindow) {
            auto *pane = document.findChild<GraphPane *>(QString(), Qt::FindDirectChildrenOnly);
            if (pane != nullptr && !pane->isHidden() && !pane->HasChart())
                open_graph_setup(*bench, document);
        }
        return handled;
    };
}

}  // namespace quindar
