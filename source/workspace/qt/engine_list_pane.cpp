// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "engine_list_pane.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include "calculus_tools.h"
#include "command_table.h"
#include "document_area.h"
#include "document_panes.h"
#include "document_window.h"
#include "list_deletion.h"
#include "list_window_rules.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "parser.h"
#include "workbench.h"

namespace quindar {
namespace {

// Commands of the lists' pop-up menus that the lists answer themselves.
namespace list_command {
inline constexpr int kDeleteVariable = 31584, kDeleteAllVariables = 31588, kInsertVariable = 31579,
                     kPrecisionFormat = 24199, kShowIncrementals = 24375, kPrintVariables = 24376,
                     kDeleteFunction = 30584, kDeleteAllFunctions = 30588, kInsertFunction = 30591,
                     kFunctionSolver = 30590, kPrintFunctions = 24390;
}  // namespace list_command

struct PopupItem {
    int id;  // 0: a separator
    const char *label;
};

constexpr PopupItem kVariablesPopup[] = {
    {list_command::kDeleteVariable, "&Delete Variable..."},
    {list_command::kDeleteAllVariables, "Delete &All Variables..."},
    {list_command::kInsertVariable, "&Insert Variable"},
    {0, nullptr},
    {command::kVariablesManager, "&Variables Manager..."},
    {list_command::kPrecisionFormat, "Precision/&Format..."},
    {list_command::kShowIncrementals, "&Show Incrementals"},
    {0, nullptr},
    {list_command::kPrintVariables, "&Print Variables..."},
};

constexpr PopupItem kFunctionsPopup[] = {
    {list_command::kDeleteFunction, "&Delete Function..."},
    {list_command::kDeleteAllFunctions, "Delete &All Functions..."},
    {list_command::kInsertFunction, "&Insert Function"},
    {0, nullptr},
    {command::kFunctionManager, "&Function Manager..."},
    {list_command::kFunctionSolver, "Function &Solver..."},
    {command::kCalculus, "&Calculus Utility..."},
    {0, nullptr},
    {list_command::kPrintFunctions, "&Print Functions..."},
};

// What differs between the twins.
struct ListTraits {
    const char *header;
    const char *accessibleName;
    int deleteId, deleteAllId, insertId, managerId;
};

constexpr ListTraits kVariablesTraits{"Variables",
                                      "Variables list",
                                      list_command::kDeleteVariable,
                                      list_command::kDeleteAllVariables,
                                      list_command::kInsertVariable,
                                      command::kVariablesManager};
constexpr ListTraits kFunctionsTraits{"Functions",
                                      "Functions list",
                                      list_command::kDeleteFunction,
                                      list_command::kDeleteAllFunctions,
                                      list_command::kInsertFunction,
                                      command::kFunctionManager};

const ListTraits &TraitsOf(ListKind kind) {
    return kind == ListKind::Variables ? kVariablesTraits : kFunctionsTraits;
}

std::span<const PopupItem> PopupOf(ListKind kind) {
    if (kind == ListKind::Variables) return kVariablesPopup;
    return kFunctionsPopup;
}

// Show Incrementals holds for the whole program: every open document follows it.
void ToggleShowIncrementals(Workbench &workbench) {
    workbench.showIncrementals = !workbench.showIncrementals;
    workbench.Settings().Write(settings::kIncrementalVariables, workbench.showIncrementals);
    MainFrame *frame = workbench.Frame();
    if (frame == nullptr) return;
    DocumentArea *client = frame->Client();
    for (int index = 0; index < client->Count(); ++index) {
        DocumentWindow *document = client->At(index);
        document->Engine().show_incrementals = workbench.showIncrementals;
        document->Panes().Refresh(ListEvent::ShowIncrementalsToggled);
    }
}

}  // namespace

EngineListPane::EngineListPane(ListKind listKind, DocumentPanes &owner, QWidget *parent)
    : QTreeWidget(parent), kind(listKind), panes(owner) {
    const ListTraits &traits = TraitsOf(kind);
    setColumnCount(1);
    setHeaderLabels({QString::fromLatin1(traits.header)});
    setAccessibleName(QString::fromLatin1(traits.accessibleName));
    setRootIsDecorated(false);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformRowHeights(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    header()->setStretchLastSection(false);
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (section == 0) OpenManager();
    });
}

int EngineListPane::EntryCount() const {
    Parser &parser = panes.Engine();
    return kind == ListKind::Variables ? parser.variables.count() : parser.functions.count();
}

void EngineListPane::Refill() {
    Parser &parser = panes.Engine();
    // The lists write in the document's font.
    if (font() != panes.Text().font()) setFont(panes.Text().font());
    clear();
    QList<QTreeWidgetItem *> items;
    const int count = EntryCount();
    for (int index = 0; index < count; ++index) {
        const char *line = kind == ListKind::Variables ? parser.get_var_str(index, -1, false)
                                                       : parser.get_func_str(index);
        items.append(new QTreeWidgetItem({QString::fromUtf8(line != nullptr ? line : "")}));
    }
    addTopLevelItems(items);
    FitColumn();
}

void EngineListPane::FitColumn() {
    // The whole width, or the widest line and a little more.
    int widest = 0;
    const QFontMetrics metrics(font());
    for (int row = 0; row < topLevelItemCount(); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(topLevelItem(row)->text(0)));
    setColumnWidth(0, std::max(viewport()->width(), topLevelItemCount() > 0 ? widest + 10 : 0));
}

void EngineListPane::resizeEvent(QResizeEvent *event) {
    QTreeWidget::resizeEvent(event);
    FitColumn();
}

std::vector<int> EngineListPane::SelectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows()) rows.push_back(index.row());
    return rows;
}

int EngineListPane::SelectedIndex() const {
    return quindar::SingleSelection(SelectedRows());
}

int EngineListPane::DeleteSelected() {
    return DeleteSelectedRows(SelectedRows(), [this](int index, bool update, bool ask) {
        return kind == ListKind::Variables ? panes.DeleteVariable(index, update, ask)
                                           : panes.DeleteFunction(index, update, ask);
    });
}

void EngineListPane::keyPressEvent(QKeyEvent *event) {
    QTreeWidget::keyPressEvent(event);
    if (event->key() == Qt::Key_Delete) DeleteSelected();
}

void EngineListPane::OpenManager() {
    Parser &parser = panes.Engine();
    const int index = SelectedIndex();
    const char *name = nullptr;
    if (index >= 0)
        name =
            kind == ListKind::Variables ? parser.get_var_name(index) : parser.get_func_name(index);
    const std::string chosen = name != nullptr ? name : "";
    if (kind == ListKind::Variables)
        panes.OpenVariableManager(chosen);
    else
        panes.OpenFunctionManager(chosen);
}

void EngineListPane::mouseDoubleClickEvent(QMouseEvent *event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    openedByDoubleClick = true;
    // The manager takes the selected entry by itself when a double click opened it.
    if (kind == ListKind::Variables)
        panes.OpenVariableManager({});
    else
        panes.OpenFunctionManager({});
    openedByDoubleClick = false;
}

void EngineListPane::contextMenuEvent(QContextMenuEvent *event) {
    setFocus(Qt::PopupFocusReason);
    CommandRouter &router = panes.Bench().Router();
    QMenu menu(this);
    menu.setAccessibleName(QString::fromLatin1(TraitsOf(kind).header) + QStringLiteral(" menu"));
    for (const PopupItem &item : PopupOf(kind)) {
        if (item.id == 0) {
            menu.addSeparator();
            continue;
        }
        QAction *action = menu.addAction(QString::fromLatin1(item.label));
        // The list answers its own items even before the focus has reached it.
        CommandState state;
        const bool own = CommandEnabler(item.id, state);
        if (!own) state = router.State(item.id);
        action->setEnabled(state.enabled);
        action->setCheckable(item.id == list_command::kShowIncrementals);
        action->setChecked(state.checked);
        const int id = item.id;
        connect(action, &QAction::triggered, this, [this, &router, id, own] {
            if (!own) {
                router.Execute(id);
                return;
            }
            panes.Bench().PlaySound("QClick.wav");
            CommandHandler(id);
        });
    }
    menu.exec(event->globalPos());
}

bool EngineListPane::CommandEnabler(int id, CommandState &state) {
    const ListTraits &traits = TraitsOf(kind);
    const int selected = SelectedIndex();
    if (id == traits.deleteAllId) {
        state.enabled = ListCommandEnabled(ListCommand::ClearAll, EntryCount(), selected);
        return true;
    }
    if (id == traits.deleteId || id == traits.insertId) {
        state.enabled = ListCommandEnabled(ListCommand::Delete, EntryCount(), selected);
        return true;
    }
    if (id == traits.managerId) return true;
    if (kind == ListKind::Variables && id == list_command::kShowIncrementals) {
        state.checked = panes.Bench().showIncrementals;
        return true;
    }
    if (kind == ListKind::Functions && id == list_command::kFunctionSolver) {
        state.enabled = selected >= 0;
        return true;
    }
    // Their windows are not there yet.
    if (id == list_command::kPrecisionFormat || id == list_command::kPrintVariables ||
        id == list_command::kPrintFunctions) {
        state.enabled = false;
        return true;
    }
    return false;
}

bool EngineListPane::CommandHandler(int id) {
    const ListTraits &traits = TraitsOf(kind);
    Parser &parser = panes.Engine();
    const int selected = SelectedIndex();
    if (id == traits.deleteAllId) {
        if (kind == ListKind::Variables)
            panes.DeleteAllVariables();
        else
            panes.DeleteAllFunctions();
        return true;
    }
    if (id == traits.deleteId) {
        if (kind == ListKind::Variables)
            panes.DeleteVariable(selected, true, true);
        else
            panes.DeleteFunction(selected, true, true);
        return true;
    }
    if (id == traits.insertId) {
        const char *name = kind == ListKind::Variables  ? parser.get_var_name(selected)
                           : parser.use_square_brackets ? parser.get_func_name(selected)
                                                        : parser.get_func_name_ex(selected);
        if (name != nullptr) panes.InsertIntoText(name);
        return true;
    }
    if (id == traits.managerId) {
        OpenManager();
        return true;
    }
    if (kind == ListKind::Variables && id == list_command::kShowIncrementals) {
        ToggleShowIncrementals(panes.Bench());
        return true;
    }
    if (kind == ListKind::Functions && id == list_command::kFunctionSolver) {
        OpenFunctionSolver(selected);
        return true;
    }
    return false;
}

void EngineListPane::OpenFunctionSolver(int index) {
    auto *document = qobject_cast<DocumentWindow *>(panes.parentWidget());
    // The solver takes the function as it is declared.
    const char *declared = panes.Engine().get_func_name_value(index);
    if (document == nullptr || declared == nullptr) return;
    if (FindFunctionSolver(*document) == nullptr || index != lastSolverIndex)
        quindar::OpenFunctionSolver(panes.Bench(), *document, QString::fromUtf8(declared),
                                    QString());
    lastSolverIndex = index;
}

void EngineListPane::mousePressEvent(QMouseEvent *event) {
    QTreeWidget::mousePressEvent(event);
    // While the document's solver is open it follows the function clicked.
    auto *document = qobject_cast<DocumentWindow *>(panes.parentWidget());
    if (kind == ListKind::Functions && event->button() == Qt::LeftButton && document != nullptr &&
        FindFunctionSolver(*document) != nullptr && SelectedIndex() >= 0)
        OpenFunctionSolver(SelectedIndex());
}

}  // namespace quindar
