// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "print_service.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>

#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "preview_frame.h"
#include "printouts.h"
#include "workbench.h"

namespace quindar {
namespace {

constexpr const char *kPdfFilter = "PDF Files (*.pdf)";

// The rows of a list as they read on the screen, the columns of a row side by side.
QStringList ListRows(const QAbstractItemView &view) {
    QStringList rows;
    const QAbstractItemModel *model = view.model();
    if (model == nullptr) return rows;
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(row, column).data(Qt::DisplayRole).toString();
        rows << cells.join(QStringLiteral("    "));
    }
    return rows;
}

// The caption's words for the preview of a pane.
QString PreviewSuffix(const QWidget *list) {
    if (list == nullptr) return QStringLiteral(" (Preview Math Editor)");
    const QString name = list->accessibleName();
    if (name.contains(QStringLiteral("Variables")))
        return QStringLiteral(" (Preview Variables List)");
    if (name.contains(QStringLiteral("Functions")))
        return QStringLiteral(" (Preview Functions List)");
    return QStringLiteral(" (Preview)");
}

}  // namespace

struct PrintService::Job {
    std::unique_ptr<Printout> printout;
    QString title;
    bool text = true;
    QString previewSuffix;
};

PrintService::PrintService(Workbench &bench) : workbench(bench) {
    choosePrinter = [](QPrinter &device, int pageCount, QWidget *parent) {
        QPrintDialog dialog(&device, parent);
        dialog.setMinMax(1, std::max(1, pageCount));
        dialog.setAccessibleName(QStringLiteral("Print"));
        return dialog.exec() == QDialog::Accepted;
    };
    pageSetup = [](QPrinter &device, QWidget *parent) {
        QPageSetupDialog dialog(&device, parent);
        dialog.setAccessibleName(QStringLiteral("Print Setup"));
        dialog.exec();
    };
    runPreview = [](PreviewFrame &preview, QWidget &window) { return preview.Run(window); };
}

PrintService::~PrintService() = default;

QPrinter &PrintService::Printer() {
    if (printer == nullptr) {
        printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        // With no printer installed the job goes to a PDF file, and Print and Preview work.
        printsToFile = QPrinterInfo::availablePrinters().isEmpty();
        if (printsToFile) printer->setOutputFormat(QPrinter::PdfFormat);
    }
    return *printer;
}

std::unique_ptr<PrintService::Job> PrintService::MakeJob() {
    DocumentArea *client = workbench.Client();
    DocumentWindow *document = client != nullptr ? client->Current() : nullptr;
    if (document == nullptr) return nullptr;
    auto job = std::make_unique<Job>();
    job->title =
        document->Path().empty() ? document->Caption() : QString::fromStdString(document->Path());
    // A focused list of the document prints its rows; anything else prints the text.
    const auto *list = qobject_cast<const QAbstractItemView *>(QApplication::focusWidget());
    if (list != nullptr && document->isAncestorOf(list)) {
        job->text = false;
        job->printout = std::make_unique<ListPrintout>(ListRows(*list), list->font());
        job->previewSuffix = PreviewSuffix(list);
        return job;
    }
    MathEditorWidget &pane = document->TextPane();
    std::string text = pane.DocumentText();
    // An empty editor prints nothing.
    if (text.empty()) return nullptr;
    job->printout = std::make_unique<TextPrintout>(std::move(text), job->title, pane.font());
    job->previewSuffix = PreviewSuffix(nullptr);
    return job;
}

void PrintService::Report(const QString &error) {
    // A job the user stopped has nothing to report.
    if (error.isEmpty()) return;
    workbench.Messages().ShowPlain(workbench.Frame(), error, QStringLiteral("Print"), kBoxWarning);
}

bool PrintService::RunJob(Printout &printout, QPrinter &device, QString &error) {
    // The box shows only for a job that takes a while.
    QProgressDialog box(workbench.Frame());
    box.setWindowTitle(QStringLiteral("Printing"));
    box.setAccessibleName(QStringLiteral("Printing"));
    box.setWindowModality(Qt::ApplicationModal);
    box.setMinimumDuration(800);
    const PrintProgress progress = [&box](int page, int lastPage) {
        box.setMaximum(lastPage);
        box.setLabelText(QStringLiteral("Now printing Page %1 of %2").arg(page).arg(lastPage));
        box.setValue(page - 1);
        return !box.wasCanceled();
    };
    return run_printout(printout, device, error, progress);
}

bool PrintService::PrintToPdf(Printout &printout, const QString &path) {
    QPrinter file(QPrinter::HighResolution);
    file.setOutputFormat(QPrinter::PdfFormat);
    file.setPageLayout(Printer().pageLayout());
    file.setDocName(QFileInfo(path).fileName());
    // Written beside the target first, so a failed job leaves an existing file as it was.
    const QString partial = path + QStringLiteral(".part");
    file.setOutputFileName(partial);
    QString error;
    if (!RunJob(printout, file, error)) {
        QFile::remove(partial);
        Report(error);
        return false;
    }
    QFile::remove(path);
    if (!QFile::rename(partial, path)) {
        QFile::remove(partial);
        Report(QStringLiteral("The file \"%1\" could not be written.").arg(path));
        return false;
    }
    return true;
}

void PrintService::Print() {
    DocumentArea *client = workbench.Client();
    DocumentWindow *document = client != nullptr ? client->Current() : nullptr;
    if (document != nullptr && printGraph && printGraph(*document)) return;
    std::unique_ptr<Job> job = MakeJob();
    if (job != nullptr) PrintJob(*job);
}

void PrintService::PrintJob(Job &job) {
    QPrinter &device = Printer();
    if (printsToFile) {
        const QString suggested = QFileInfo(job.title).completeBaseName() + QStringLiteral(".pdf");
        const QString path =
            workbench.chooseSaveFile(workbench.Frame(), QStringLiteral("Print to File"), suggested,
                                     QString::fromLatin1(kPdfFilter));
        if (!path.isEmpty()) PrintToPdf(*job.printout, path);
        job.printout->Prepare(device);
        return;
    }
    device.setDocName(job.title);
    device.setFromTo(0, 0);
    job.printout->Prepare(device);
    if (!choosePrinter(device, job.printout->OfferedPageCount(), workbench.Frame())) return;
    QString error;
    if (!RunJob(*job.printout, device, error)) Report(error);
    // The preview goes on showing the printout as laid out for this printer.
    job.printout->Prepare(device);
}

void PrintService::ExportPdf() {
    std::unique_ptr<Job> job = MakeJob();
    if (job == nullptr) return;
    const QString suggested = QFileInfo(job->title).completeBaseName() + QStringLiteral(".pdf");
    const QString path =
        workbench.chooseSaveFile(workbench.Frame(), QStringLiteral("Export to PDF"), suggested,
                                 QString::fromLatin1(kPdfFilter));
    if (!path.isEmpty()) PrintToPdf(*job->printout, path);
}

void PrintService::Preview() {
    std::unique_ptr<Job> job = MakeJob();
    MainFrame *frame = workbench.Frame();
    if (job == nullptr || frame == nullptr) return;
    QPrinter &device = Printer();
    job->printout->Prepare(device);
    QString caption = frame->windowTitle() + job->previewSuffix;
    // The text's preview shows its caption in capitals, the list's as it is.
    if (job->text) caption = caption.toUpper();
    PreviewFrame preview(*job->printout, device, caption, !job->text);
    // Print from the preview prints what it shows, whatever has the focus by then.
    preview.print = [this, &job] { PrintJob(*job); };
    runPreview(preview, *frame);
}

void PrintService::PrintSetup() {
    pageSetup(Printer(), workbench.Frame());
}

}  // namespace quindar
