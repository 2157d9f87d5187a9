// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_window.h"

#include <QFileInfo>
#include <QMenu>
#include <QVBoxLayout>

#include "command_table.h"
#include "document_file.h"
#include "document_font.h"
#include "document_panes.h"
#include "document_roster.h"
#include "library_files.h"
#include "list_window_rules.h"
#include "math_editor_widget.h"
#include "message_boxes.h"
#include "parser.h"
#include "program_folders.h"
#include "workbench.h"

namespace quindar {
namespace {

QString FromBytes(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

unsigned FlagsOf(MessageStyle style) {
    switch (style) {
        case MessageStyle::Information:
            return kBoxInformation;
        case MessageStyle::Question:
            return kBoxQuestionYesNo;
        case MessageStyle::Warning:
            break;
    }
    return kBoxWarning;
}

// Commands of the document's panes and views. The list panes, the graph view and their
// tools come with their own windows; until then the document keeps their states, and the
// graph commands stay disabled since the graph view never shows.
struct PaneCommand {
    int id;
    bool enabledWithoutGraph;
};

constexpr PaneCommand kPaneCommands[] = {
    {command::kVariablesList, true},
    {command::kFunctionsList, true},
    {command::kListsTop, true},
    {command::kListsRight, true},
    {command::kShowMathWindow, true},
    {command::kShowGraphWindow, true},
    {command::kVariablesManager, true},
    {command::kFunctionManager, true},
    {command::kCalculus, true},
    {command::kComputeAll, true},
    {command::kChooseFont, true},
    {command::kOpenGraphFile, true},
    {command::kGraphSetup, false},
    {command::kSaveGraphFile, false},
    {command::kCopyGraph, false},
    {command::kSetDefaultOrientation, false},
    {command::kSaveAsDefaultOrientation, false},
    {command::kSet2DPerspective, false},
    {command::kLogarithmicX, false},
    {command::kLogarithmicY, false},
    {command::kGridLines, false},
    {command::kPointLabels, false},
    {command::kRemoveAllPointLabels, false},
    {command::kPrintGraph, false},
    {command::kIncreaseMargins, false},
    {command::kDecreaseMargins, false},
    {command::kSetDefaultMargins, false},
    {command::kSaveAsDefaultMargins, false},
};

constexpr int kTextPaneHelpTopic = 19400;

}  // namespace

DocumentWindow::DocumentWindow(Workbench &owner, int documentNumber, QWidget *parent)
    : QWidget(parent), workbench(owner), number(documentNumber) {
    const DesktopFolders &folders = workbench.Folders();
    parser = std::make_unique<Parser>(folders.libraryDir.c_str(), folders.userLibraryDir.c_str());
    parser->show_incrementals = workbench.showIncrementals;
    parser->use_square_brackets = workbench.useSquareBrackets;
    const MessageHook boxes = [this](std::string_view text, std::string_view caption,
                                     MessageStyle style) {
        const int pressed = workbench.Messages().ShowPlain(this, FromBytes(text),
                                                           FromBytes(caption), FlagsOf(style));
        return pressed == kIdOk || pressed == kIdYes;
    };
    parser->set_message_hook(boxes);
    install_function_libraries(*parser, [this](std::string_view text, std::string_view caption) {
        workbench.Messages().ShowPlain(this, FromBytes(text), FromBytes(caption), kBoxWarning);
    });

    textPane = new MathEditorWidget(*parser, this);
    MathEditor &editor = textPane->Editor();
    editor.CalculationMethod = workbench.calculationMethod;
    editor.PlayWaveFile = [this](std::string_view name) { workbench.PlaySound(name); };
    editor.DispMessageBox = boxes;
    textPane->openFiles = [this](const QStringList &paths) { workbench.OpenFiles(paths); };
    textPane->notFound = [this](const QString &text) {
        workbench.Messages().ShowPlain(this, QStringLiteral("Cannot find \"%1\".").arg(text),
                                       QStringLiteral("Find"), kBoxInformation);
    };
    textPane->makeAction = [this](int id, QMenu *menu) {
        return workbench.Router().PopupAction(id, menu);
    };

    textPane->setFont(qfont_of(content.font));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    panes = new DocumentPanes(workbench, *textPane, *parser, boxes, this);
    panes->functionUsedInGraph = [this](const std::string &fullName) {
        for (const GraphData *graph = content.graphs.gethead(); graph; graph = graph->next)
            for (int i = 0; const Function *function = graph->GetFunction(i); ++i)
                if (function->full_name == fullName) return true;
        return false;
    };
    layout->addWidget(panes);
    setFocusProxy(textPane);
    textPane->viewport()->installEventFilter(this);
    setAccessibleName(Caption());
    setWindowTitle(Caption());

    connect(textPane, &QPlainTextEdit::cursorPositionChanged, this, &DocumentWindow::stateChanged);
    connect(textPane->document(), &QTextDocument::modificationChanged, this,
            &DocumentWindow::stateChanged);
}

DocumentWindow::~DocumentWindow() = default;

bool DocumentWindow::eventFilter(QObject *watched, QEvent *event) {
    // In context-help mode a click on the text shows the text pane's topic.
    if (event->type() == QEvent::MouseButtonPress && workbench.contextHelpMode) {
        workbench.PlaySound("QClick.wav");
        workbench.CallContextHelp(kTextPaneHelpTopic);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QString DocumentWindow::Caption() const {
    if (paneCaption)
        if (const QString pane = paneCaption(); !pane.isEmpty()) return pane;
    const std::string name = ui_string(kStrMathEditor).toStdString();
    return FromBytes(path.empty() ? untitled_caption(number, name) : file_caption(name, path));
}

bool DocumentWindow::Load(const std::string &file) {
    DocumentFile reader(*parser, content);
    reader.SetWarningHook([this](std::string_view text, std::string_view caption) {
        workbench.Messages().ShowPlain(this, FromBytes(text), FromBytes(caption), kBoxWarning);
    });
    if (!reader.Read(file.c_str())) return false;
    path = file;
    parser->data_folder = folder_of_file(path);
    textPane->setFont(qfont_of(content.font));
    textPane->SetDocumentText(content.text);
    panes->Refresh(ListEvent::PaneOpens);
    // What loading declared is what the file holds.
    parser->vars_saved = true;
    parser->funcs_saved = true;
    setWindowTitle(Caption());
    setAccessibleName(Caption());
    return true;
}

void DocumentWindow::ApplyFont(const DocumentFont &font) {
    content.font = font;
    textPane->setFont(qfont_of(content.font));
    panes->Refresh(ListEvent::PaneOpens);
    settingsChanged = true;
    emit stateChanged();
}

DocumentChanges DocumentWindow::Changes() const {
    DocumentChanges changes;
    changes.textModified = textPane->document()->isModified();
    changes.variablesSaved = parser->vars_saved;
    changes.functionsSaved = parser->funcs_saved;
    changes.graphsChanged = graphsChanged;
    changes.settingsChanged = settingsChanged;
    changes.textChanged = textChanged;
    return changes;
}

void DocumentWindow::ClearChangeFlags() {
    graphsChanged = false;
    settingsChanged = false;
    textChanged = false;
    textPane->document()->setModified(false);
}

bool DocumentWindow::WriteTo(const std::string &target) {
    content.text = textPane->DocumentText();
    DocumentFile writer(*parser, content);
    writer.SetWarningHook([this](std::string_view text, std::string_view caption) {
        workbench.Messages().ShowPlain(this, FromBytes(text), FromBytes(caption), kBoxWarning);
    });
    if (!writer.Write(target.c_str())) return false;
    ClearChangeFlags();
    emit stateChanged();
    return true;
}

bool DocumentWindow::Save() {
    if (path.empty()) return SaveAs();
    return WriteTo(path);
}

bool DocumentWindow::SaveAs() {
    const QString chosen = workbench.ChooseSaveFile(this, FromBytes(path));
    if (chosen.isEmpty()) return false;
    const std::string target = chosen.toStdString();
    if (!WriteTo(target)) return false;
    path = target;
    parser->data_folder = folder_of_file(path);
    setWindowTitle(Caption());
    setAccessibleName(Caption());
    workbench.AddRecentFile(path);
    emit captionChanged();
    return true;
}

void DocumentWindow::MarkGraphsChanged() {
    graphsChanged = true;
    emit stateChanged();
}

bool DocumentWindow::CanClose() {
    if (closeChecked) return true;
    const DocumentChanges changes = Changes();
    const CloseStep step = close_step(changes, activity ? activity() : DocumentActivity{});
    const CloseMessage message = close_message(step, !path.empty());
    bool allowed = true;
    switch (step) {
        case CloseStep::Close:
            break;
        case CloseStep::AskSaveText: {
            const std::string name =
                close_question_name(path, ui_string(kStrMathEditor).toStdString());
            const int answer = workbench.Messages().Show(this, message.text, {name}, message.title,
                                                         kBoxQuestionYesNoCancel);
            allowed = answer == kIdNo || (answer == kIdYes && Save());
            break;
        }
        case CloseStep::RefuseGraph:
        case CloseStep::RefuseDerivative:
        case CloseStep::RefuseIntegral:
            workbench.Messages().Show(this, message.text, message.title, kBoxWarning);
            allowed = false;
            break;
        case CloseStep::AskSaveAttributes: {
            const int answer =
                path.empty() ? workbench.Messages().Show(this, message.text, message.title,
                                                         kBoxQuestionYesNoCancel)
                             : workbench.Messages().Show(this, message.text, {path}, message.title,
                                                         kBoxQuestionYesNoCancel);
            allowed = answer == kIdNo || (answer == kIdYes && Save());
            break;
        }
    }
    closeChecked = allowed;
    return allowed;
}

bool DocumentWindow::CommandEnabler(int id, CommandState &state) {
    if (toolState && toolState(id, state)) return true;
    if (panes->CommandEnabler(id, state)) return true;
    switch (id) {
        case command::kFileSave:
            state.enabled = IsDirty();
            return true;
        case command::kFileSaveAs:
        case command::kFileClose:
            return true;
        case command::kShowMathWindow:
            state.checked = true;
            return true;
        case command::kShowGraphWindow:
            state.checked = false;
            return true;
        default:
            break;
    }
    for (const PaneCommand &pane : kPaneCommands) {
        if (pane.id == id) {
            state.enabled = pane.enabledWithoutGraph;
            return true;
        }
    }
    return false;
}

bool DocumentWindow::CommandHandler(int id) {
    if (panes->CommandHandler(id)) return true;
    switch (id) {
        case command::kFileSave:
            Save();
            return true;
        case command::kFileSaveAs:
            SaveAs();
            return true;
        case command::kFileClose:
            workbench.CloseDocument(this);
            return true;
        default:
            break;
    }
    for (const PaneCommand &pane : kPaneCommands)
        if (pane.id == id) {
            workbench.RunDocumentTool(*this, id);
            return true;
        }
    return false;
}

}  // namespace quindar
