// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_area.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "command_table.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "tutorial_launcher.h"
#include "workbench.h"

namespace quindar {
namespace {

constexpr int kMsgAlreadyOpen = 31745;
constexpr int kMsgNotFound = 31743;
constexpr int kTitleOpenFile = 31742;

struct FileDialogRecord {
    const char *title;
    const char *filter;
};

// The open dialog and the examples.
constexpr FileDialogRecord kOpenDialogs[] = {
    {"Open Quindar File",
     "Quindar Files(*.qnd);;2-D Graph Files(*.g2d);;3-D Graph Files(*.g3d);;Text "
     "Files(*.txt);;All Files (*)"},
    {"Open Quindar Example File", "Quindar Files(*.qnd)"},
};

constexpr const char *kLoadingText = "Loading Quindar File, Please Wait!";

}  // namespace

DocumentArea::DocumentArea(Workbench &owner, QWidget *parent) : QMdiArea(parent), workbench(owner) {
    setAccessibleName(QStringLiteral("Documents"));
    // The background tile when its picture is there, a calm plain colour until then.
    const QString tile = QStringLiteral(":/icons/1079.svg");
    setBackground(QFile::exists(tile) ? QBrush(QIcon(tile).pixmap(64, 64))
                                      : QBrush(QColor(0x5a, 0x7a, 0x8c)));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    viewport()->setAcceptDrops(true);
    viewport()->installEventFilter(this);
    connect(this, &QMdiArea::subWindowActivated, this, &DocumentArea::currentDocumentChanged);
}

DocumentArea::~DocumentArea() {
    for (const auto &[key, window] : windows)
        if (window != nullptr) window->disconnect(this);
}

bool DocumentArea::LimitReached() {
    if (!roster.Full()) return false;
    workbench.Messages().Show(this, kMsgWindowLimit, kTitleClientWindowManager, kBoxWarning);
    return true;
}

QMdiSubWindow *DocumentArea::AddDocument(DocumentWindow *document) {
    const bool maximised =
        activeSubWindow() != nullptr ? activeSubWindow()->isMaximized() : roster.Count() == 0;
    const int key = nextKey++;
    QMdiSubWindow *window = addSubWindow(document);
    window->setAttribute(Qt::WA_DeleteOnClose);
    if (QFile::exists(QStringLiteral(":/icons/1002.svg")))
        window->setWindowIcon(QIcon(QStringLiteral(":/icons/1002.svg")));
    window->setWindowTitle(document->Caption());
    window->setAccessibleName(document->Caption());
    if (window->systemMenu() != nullptr)
        window->systemMenu()->setAccessibleName(QStringLiteral("Document window menu"));
    window->installEventFilter(this);
    window->setProperty("documentKey", key);
    windows[key] = window;
    roster.Add(key, document->Path());
    if (roster.Count() == 1 && workbench.firstDocumentOpened) workbench.firstDocumentOpened();
    connect(document, &DocumentWindow::captionChanged, this, [this, window, document, key] {
        window->setWindowTitle(document->Caption());
        window->setAccessibleName(document->Caption());
        roster.SetPath(key, document->Path());
        emit documentsChanged();
    });
    connect(window, &QObject::destroyed, this, [this, key] { Removed(key); });
    if (maximised)
        window->showMaximized();
    else
        window->show();
    setActiveSubWindow(window);
    document->TextPane().setFocus();
    emit documentsChanged();
    return window;
}

DocumentWindow *DocumentArea::NewDocument() {
    if (LimitReached()) return nullptr;
    auto *document = new DocumentWindow(workbench, roster.TakeNewNumber());
    AddDocument(document);
    workbench.PlaySound("Click.wav");
    return document;
}

DocumentWindow *DocumentArea::OpenFile(const QString &path, bool checked) {
    const std::string file = path.toStdString();
    if (checked) {
        if (roster.IndexOfPath(file) >= 0) {
            workbench.Messages().Show(this, kMsgAlreadyOpen, {file}, kTitleOpenFile, kBoxWarning);
            return nullptr;
        }
        if (!QFileInfo::exists(path)) {
            workbench.Messages().Show(this, kMsgNotFound, {file}, kTitleOpenFile, kBoxWarning);
            return nullptr;
        }
    }
    if (LimitReached()) return nullptr;
    if (MainFrame *frame = workbench.Frame()) frame->ShowHint(QString::fromLatin1(kLoadingText));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    auto *document = new DocumentWindow(workbench, 0);
    if (!document->Load(file)) {
        delete document;
        if (MainFrame *frame = workbench.Frame()) frame->ShowHint({});
        return nullptr;
    }
    AddDocument(document);
    workbench.AddRecentFile(file);
    if (MainFrame *frame = workbench.Frame()) frame->ShowHint({});
    return document;
}

void DocumentArea::OpenFiles(const QStringList &paths, bool checked) {
    for (const QString &path : paths) OpenFile(path, checked);
}

DocumentWindow *DocumentArea::At(int index) const {
    if (index < 0 || index >= roster.Count()) return nullptr;
    const auto found = windows.find(roster.KeyAt(index));
    return found == windows.end() ? nullptr
                                  : qobject_cast<DocumentWindow *>(found->second->widget());
}

DocumentWindow *DocumentArea::Current() const {
    QMdiSubWindow *active = activeSubWindow();
    if (active == nullptr && !subWindowList().isEmpty()) active = currentSubWindow();
    return active != nullptr ? qobject_cast<DocumentWindow *>(active->widget()) : nullptr;
}

int DocumentArea::CurrentIndex() const {
    const QMdiSubWindow *active = currentSubWindow();
    return active != nullptr ? roster.IndexOf(active->property("documentKey").toInt()) : -1;
}

void DocumentArea::Activate(int index) {
    if (index < 0 || index >= roster.Count()) return;
    QMdiSubWindow *target = windows[roster.KeyAt(index)];
    const bool maximised = activeSubWindow() != nullptr && activeSubWindow()->isMaximized();
    for (QMdiSubWindow *window : subWindowList())
        if (window != target) window->showMinimized();
    if (maximised)
        target->showMaximized();
    else
        target->showNormal();
    setActiveSubWindow(target);
    if (auto *document = qobject_cast<DocumentWindow *>(target->widget()))
        document->TextPane().setFocus();
}

void DocumentArea::Removed(int key) {
    if (windows.erase(key) == 0) return;
    const std::optional<int> next = roster.Remove(key);
    if (next) {
        // The client's own choice, after the MDI area has made its own.
        QTimer::singleShot(0, this, [this, nextKey = roster.KeyAt(*next)] {
            const auto found = windows.find(nextKey);
            if (found == windows.end() || found->second == nullptr) return;
            setActiveSubWindow(found->second);
            if (auto *document = qobject_cast<DocumentWindow *>(found->second->widget()))
                document->TextPane().setFocus();
        });
    }
    if (!workbench.closing) workbench.PlaySound("Click.wav");
    if (roster.Count() == 0 && workbench.lastDocumentClosed) workbench.lastDocumentClosed();
    emit documentsChanged();
}

bool DocumentArea::CloseDocument(DocumentWindow *document) {
    for (const auto &[key, window] : windows)
        if (window != nullptr && window->widget() == document) return window->close();
    return false;
}

bool DocumentArea::CloseAllDocuments() {
    // Every document is asked first; one refusal keeps them all, and asks them all again the
    // next time.
    for (int index = 0; index < roster.Count(); ++index) {
        DocumentWindow *document = At(index);
        if (document != nullptr && !document->CanClose()) {
            for (int other = 0; other < roster.Count(); ++other)
                if (At(other) != nullptr) At(other)->ForgetCloseAnswer();
            return false;
        }
    }
    for (int index = roster.Count() - 1; index >= 0; --index) {
        const auto found = windows.find(roster.KeyAt(index));
        if (found != windows.end() && found->second != nullptr && !found->second->close())
            return false;
    }
    return true;
}

void DocumentArea::ArrangeIcons() {
    int x = 0;
    const int bottom = viewport()->height();
    for (QMdiSubWindow *window : subWindowList()) {
        if (!window->isMinimized()) continue;
        window->move(x, bottom - window->height());
        x += window->width();
    }
}

bool DocumentArea::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Close) {
        auto *window = qobject_cast<QMdiSubWindow *>(watched);
        auto *document =
            window != nullptr ? qobject_cast<DocumentWindow *>(window->widget()) : nullptr;
        if (document != nullptr && !document->CanClose()) {
            event->ignore();
            return true;
        }
        // The document leaves the table now; its window goes when the MDI area lets it.
        if (window != nullptr) Removed(window->property("documentKey").toInt());
    }
    if (watched == viewport() &&
        (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop)) {
        auto *drop = static_cast<QDropEvent *>(event);
        if (!drop->mimeData()->hasUrls()) return false;
        drop->acceptProposedAction();
        if (event->type() == QEvent::Drop) {
            QStringList paths;
            for (const QUrl &url : drop->mimeData()->urls())
                if (url.isLocalFile()) paths << url.toLocalFile();
            workbench.OpenFiles(paths);
        }
        return true;
    }
    return QMdiArea::eventFilter(watched, event);
}

void DocumentArea::ChooseAndOpen(int titleIndex) {
    const FileDialogRecord &record = kOpenDialogs[titleIndex];
    const QString folder =
        titleIndex == 1 ? QString::fromStdString(workbench.Folders().examplesDir) : QString();
    const QStringList chosen = workbench.chooseOpenFiles(
        this, QString::fromLatin1(record.title), folder, QString::fromLatin1(record.filter));
    // The Open dialog's own choice skips the already-open and missing tests; examples do not.
    OpenFiles(chosen, titleIndex != 0);
}

bool DocumentArea::CommandEnabler(int id, CommandState &state) {
    const bool haveDocument = Current() != nullptr;
    switch (id) {
        case command::kFileNew:
        case command::kFileOpen:
        case command::kExamples:
        case command::kTutorials:
        case command::kFilePrintSetup:
        case command::kCascade:
        case command::kTile:
        case command::kArrangeIcons:
        case command::kCloseAll:
            return true;
        case command::kFileSaveAs:
        case command::kFileClose:
        case command::kOptions:
        case command::kFunctionLibrary:
        case command::kFilePrint:
        case command::kExportPdf:
            state.enabled = haveDocument;
            return true;
        case command::kFileSave:
            state.enabled = haveDocument && Current()->IsDirty();
            return true;
        case command::kFilePrintPreview:
            state.enabled = haveDocument && !Current()->TextPane().document()->isEmpty();
            return true;
        case command::kCalculator:
            state.enabled = haveDocument && !workbench.closing;
            state.checked = workbench.calculatorShowing;
            return true;
        default:
            return false;
    }
}

bool DocumentArea::CommandHandler(int id) {
    switch (id) {
        case command::kFileNew:
            NewDocument();
            return true;
        case command::kFileOpen:
            ChooseAndOpen(0);
            return true;
        case command::kExamples:
            ChooseAndOpen(1);
            return true;
        case command::kTutorials:
            play_tutorial(workbench, this);
            return true;
        case command::kFileSave:
            if (Current() != nullptr) Current()->Save();
            return true;
        case command::kFileSaveAs:
            if (Current() != nullptr) Current()->SaveAs();
            return true;
        case command::kFileClose:
            if (Current() != nullptr) CloseDocument(Current());
            return true;
        case command::kCascade:
            cascadeSubWindows();
            return true;
        case command::kTile:
            tileSubWindows();
            return true;
        case command::kArrangeIcons:
            ArrangeIcons();
            return true;
        case command::kCloseAll:
            CloseAllDocuments();
            return true;
        default:
            // Printing, Options, Function Library and the calculator come as client tools.
            workbench.RunClientTool(id);
            return true;
    }
}

}  // namespace quindar
