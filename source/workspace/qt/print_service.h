// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Printing of the current document on Qt Print Support: Print (the print dialog, or a PDF file
// the user chooses when no printer is installed), Print Preview, Print Setup and Export to
// PDF, all through the same printout of the text pane or of the focused list. One printer
// serves the whole run, made at first need.

#include <QString>
#include <functional>
#include <memory>

class QPrinter;
class QWidget;

namespace quindar {

class DocumentWindow;
class PreviewFrame;
class Printout;
class Workbench;

class PrintService {
public:
    explicit PrintService(Workbench &workbench);
    ~PrintService();

    QPrinter &Printer();
    // No printer is installed: printing writes a PDF file.
    bool PrintsToFile() const { return printsToFile; }

    // The program's modal dialogs, replaced by tests: the print dialog (false: cancelled), the
    // page setup dialog, and the run of the preview (by default PreviewFrame::Run).
    std::function<bool(QPrinter &printer, int pageCount, QWidget *parent)> choosePrinter;
    std::function<void(QPrinter &printer, QWidget *parent)> pageSetup;
    std::function<int(PreviewFrame &preview, QWidget &window)> runPreview;
    // The graph window prints itself while it shows; true when it took the job.
    std::function<bool(DocumentWindow &document)> printGraph;

    void Print();
    void Preview();
    void PrintSetup();
    void ExportPdf();

private:
    struct Job;
    std::unique_ptr<Job> MakeJob();
    void PrintJob(Job &job);
    bool PrintToPdf(Printout &printout, const QString &path);
    bool RunJob(Printout &printout, QPrinter &device, QString &error);
    void Report(const QString &error);

    Workbench &workbench;
    std::unique_ptr<QPrinter> printer;
    bool printsToFile = false;
};

}  // namespace quindar
