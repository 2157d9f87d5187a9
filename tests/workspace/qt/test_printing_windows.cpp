// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Printing on the desktop: a three-page text printed and exported to PDF and read back with
// pdftotext, a focused list, an empty editor, a job that cannot start, and the preview frame
// with its paging, in place of the main window while it shows.
#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "client_tools.h"
#include "command_table.h"
#include "desktop_harness.h"
#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "preview_frame.h"
#include "printouts.h"
#include "workbench.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

// Text lines a page of the printer holds: the page's lines less the header rows and margin.
int TextLinesPerPage(QPrinter &printer, const QFont &screenFont) {
    const QFont font = font_for_device(screenFont, printer);
    const int lineHeight = QFontMetrics(font, &printer).lineSpacing();
    return std::max(7, printer.height() / lineHeight) - 6;
}

QString Line(int number) {
    return QStringLiteral("Line %1 = %2").arg(number, 3, 10, QLatin1Char('0')).arg(number * 7);
}

// A text that fills two pages and three lines of a third.
int FillThreePages(DesktopHarness &harness) {
    PrintService &printing = client_tools_of(harness.Bench())->Printing();
    MathEditorWidget &pane = harness.Current()->TextPane();
    const int perPage = TextLinesPerPage(printing.Printer(), pane.font());
    const int count = 2 * perPage + 3;
    QStringList lines;
    for (int number = 1; number <= count; ++number) lines << Line(number);
    pane.SetDocumentText(lines.join(QStringLiteral("\r\n")).toStdString());
    return count;
}

// The pages of a PDF file as pdftotext lays them out.
QStringList PdfPages(const QString &path) {
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!reader.waitForFinished(30000)) return {};
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
    if (!pages.isEmpty() && pages.back().trimmed().isEmpty()) pages.removeLast();
    return pages;
}

void CheckThreePages(const QString &path, const QString &header, int count) {
    const QStringList pages = PdfPages(path);
    QCOMPARE(pages.size(), 3);
    QCOMPARE(pages[0].count(header), 1);
    QCOMPARE(pages[1].count(header), 0);
    QCOMPARE(pages[2].count(header), 0);
    // The header stands above the text on the first page.
    QVERIFY(pages[0].indexOf(header) < pages[0].indexOf(Line(1)));
    const QString all = pages.join(QString());
    int previousPage = 0;
    for (int number = 1; number <= count; ++number) {
        QCOMPARE(all.count(Line(number)), 1);
        int page = 0;
        while (!pages[page].contains(Line(number))) ++page;
        QVERIFY(page >= previousPage);
        previousPage = page;
    }
    QVERIFY(pages[2].contains(Line(count)));
    QVERIFY(pages[2].contains(Line(count - 2)));
    QVERIFY(!pages[2].contains(Line(count - 3)));
}

}  // namespace

class PrintingWindows : public QObject {
    Q_OBJECT
private slots:
    void printWritesThreePages();
    void exportToPdfUsesTheSamePrintout();
    void aJobThatCannotStartIsToldAndChangesNothing();
    void anEmptyEditorPrintsNothing();
    void aFocusedListPrintsItsRows();
    void previewPagesOneAndTwoUp();
    void aRangeAndAStoppedJob();
    void landscapePagesHaveNoTwoUp();

private:
    QTemporaryDir output;
};

void PrintingWindows::printWritesThreePages() {
    DesktopHarness harness;
    const int count = FillThreePages(harness);
    PrintService &printing = client_tools_of(harness.Bench())->Printing();
    const QString path = output.filePath(QStringLiteral("printed.pdf"));
    // With no printer installed the print goes to a file the user names; with one, the
    // print dialog's choice is a PDF file here.
    harness.nextSaveFile = path;
    int offered = 0;
    printing.choosePrinter = [&](QPrinter &printer, int pageCount, QWidget *) {
        offered = pageCount;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        return true;
    };
    harness.Bench().Router().Execute(command::kFilePrint);
    if (!printing.PrintsToFile()) QCOMPARE(offered, 3);
    CheckThreePages(path, harness.Current()->Caption(), count);
    QVERIFY(!QFile::exists(path + QStringLiteral(".part")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void PrintingWindows::exportToPdfUsesTheSamePrintout() {
    DesktopHarness harness;
    const int count = FillThreePages(harness);
    const QString path = output.filePath(QStringLiteral("exported.pdf"));
    QAction *action = harness.Bench().Router().Action(command::kExportPdf);
    QVERIFY(action != nullptr);
    QCOMPARE(action->text(), QStringLiteral("Export to P&DF..."));
    harness.nextSaveFile = path;
    harness.Bench().Router().Execute(command::kExportPdf);
    QCOMPARE(harness.dialogTitles, QStringList{QStringLiteral("Export to PDF")});
    CheckThreePages(path, harness.Current()->Caption(), count);
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void PrintingWindows::aJobThatCannotStartIsToldAndChangesNothing() {
    DesktopHarness harness;
    MathEditorWidget &pane = harness.Current()->TextPane();
    pane.SetDocumentText("1+1\r\n2+2");
    harness.nextSaveFile = output.filePath(QStringLiteral("no/such/folder/x.pdf"));
    harness.boxes.Expect(QStringLiteral("The printer could not start the job."), kIdOk);
    harness.Bench().Router().Execute(command::kExportPdf);
    QVERIFY(!QFileInfo::exists(harness.nextSaveFile));
    QCOMPARE(pane.DocumentText(), std::string("1+1\r\n2+2"));
    QVERIFY(!harness.Current()->IsDirty());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void PrintingWindows::anEmptyEditorPrintsNothing() {
    DesktopHarness harness;
    PrintService &printing = client_tools_of(harness.Bench())->Printing();
    bool asked = false;
    printing.choosePrinter = [&](QPrinter &, int, QWidget *) { return asked = true; };
    harness.nextSaveFile = output.filePath(QStringLiteral("empty.pdf"));
    harness.Bench().Router().Execute(command::kFilePrint);
    harness.Bench().Router().Execute(command::kExportPdf);
    QVERIFY(!asked);
    QVERIFY(harness.dialogTitles.isEmpty());
    QVERIFY(!QFile::exists(output.filePath(QStringLiteral("empty.pdf"))));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void PrintingWindows::aFocusedListPrintsItsRows() {
    DesktopHarness harness;
    harness.Current()->TextPane().SetDocumentText("x = 1");
    auto *list = new QListWidget(harness.Current());
    list->setAccessibleName(QStringLiteral("Variables List"));
    for (int row = 1; row <= 5; ++row) list->addItem(QStringLiteral("var%1 = %1").arg(row));
    list->show();
    QApplication::setActiveWindow(&harness.Frame());
    list->setFocus();
    QCOMPARE(QApplication::focusWidget(), list);
    const QString path = output.filePath(QStringLiteral("list.pdf"));
    harness.nextSaveFile = path;
    harness.Bench().Router().Execute(command::kExportPdf);
    const QStringList pages = PdfPages(path);
    QCOMPARE(pages.size(), 1);
    for (int row = 1; row <= 5; ++row)
        QCOMPARE(pages[0].count(QStringLiteral("var%1 = %1").arg(row)), 1);
    QVERIFY(!pages[0].contains(QStringLiteral("x = 1")));

    // Its preview keeps the caption's case and has a Print button.
    QString caption;
    bool hasPrint = false;
    const QString fromPreview = output.filePath(QStringLiteral("list-from-preview.pdf"));
    PrintService &printing = client_tools_of(harness.Bench())->Printing();
    printing.runPreview = [&](PreviewFrame &preview, QWidget &) {
        caption = preview.windowTitle();
        for (QAction *action : preview.findChildren<QAction *>())
            hasPrint = hasPrint || action->text() == QStringLiteral("Print");
        // Its Print prints the list, though the focus has moved on.
        harness.Current()->TextPane().setFocus();
        harness.nextSaveFile = fromPreview;
        printing.choosePrinter = [&](QPrinter &printer, int, QWidget *) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(fromPreview);
            return true;
        };
        preview.print();
        return 2;
    };
    list->setFocus();
    harness.Bench().Router().Execute(command::kFilePrintPreview);
    QCOMPARE(caption, harness.Frame().windowTitle() + QStringLiteral(" (Preview Variables List)"));
    QVERIFY(hasPrint);
    const QStringList printed = PdfPages(fromPreview);
    QCOMPARE(printed.size(), 1);
    QVERIFY(printed[0].contains(QStringLiteral("var5 = 5")));
    QVERIFY(!printed[0].contains(QStringLiteral("x = 1")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void PrintingWindows::previewPagesOneAndTwoUp() {
    DesktopHarness harness;
    FillThreePages(harness);
    QStringList seen;
    bool frameHidden = false;
    bool hasPrint = true;
    QString caption;
    QTimer::singleShot(0, this, [&] {
        PreviewFrame *preview = nullptr;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *frame = qobject_cast<PreviewFrame *>(window); frame && frame->isVisible())
                preview = frame;
        if (preview == nullptr) return;
        frameHidden = !harness.Frame().isVisible();
        caption = preview->windowTitle();
        hasPrint = false;
        for (QAction *action : preview->findChildren<QAction *>())
            hasPrint = hasPrint || action->text() == QStringLiteral("Print");
        QLabel &label = preview->PageLabel();
        seen << label.text();
        preview->TwoUpAction().trigger();
        seen << label.text();
        preview->NextAction().trigger();
        seen << label.text();
        seen << (preview->NextAction().isEnabled() ? "next on" : "next off");
        preview->NextAction().trigger();
        seen << label.text();
        preview->PreviousAction().trigger();
        seen << label.text();
        seen << (preview->PreviousAction().isEnabled() ? "previous on" : "previous off");
        preview->OneUpAction().trigger();
        seen << label.text();
        preview->NextAction().trigger();
        preview->NextAction().trigger();
        preview->NextAction().trigger();
        seen << label.text();
        preview->DoneAction().trigger();
    });
    harness.Bench().Router().Execute(command::kFilePrintPreview);
    QVERIFY(frameHidden);
    QVERIFY(harness.Frame().isVisible());
    QCOMPARE(caption,
             (harness.Frame().windowTitle() + QStringLiteral(" (Preview Math Editor)")).toUpper());
    QVERIFY(!hasPrint);
    QCOMPARE(seen, (QStringList{"Page 1", "Page 1 - 2", "Page 2 - 3", "next off", "Page 2 - 3",
                                "Page 1 - 2", "previous off", "Page 1", "Page 3"}));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void PrintingWindows::aRangeAndAStoppedJob() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    QFont font(QStringLiteral("Liberation Mono"));
    font.setPointSize(10);
    const int perPage = TextLinesPerPage(printer, font);
    QStringList lines;
    for (int number = 1; number <= 3 * perPage; ++number) lines << Line(number);
    TextPrintout printout(lines.join(QStringLiteral("\r\n")).toStdString(),
                          QStringLiteral("Header"), font);

    // The dialog's range prints its pages alone, the first of them without the header.
    const QString range = output.filePath(QStringLiteral("range.pdf"));
    printer.setOutputFileName(range);
    printer.setFromTo(2, 2);
    QString error;
    QVERIFY(run_printout(printout, printer, error));
    const QStringList pages = PdfPages(range);
    QCOMPARE(pages.size(), 1);
    QVERIFY(!pages[0].contains(QStringLiteral("Header")));
    QVERIFY(pages[0].contains(Line(perPage + 1)));
    QVERIFY(pages[0].contains(Line(2 * perPage)));
    QVERIFY(!pages[0].contains(Line(perPage)));
    QVERIFY(!pages[0].contains(Line(2 * perPage + 1)));

    // Stopped before its second page, the job ends with nothing to report.
    printer.setOutputFileName(output.filePath(QStringLiteral("stopped.pdf")));
    printer.setFromTo(0, 0);
    QList<int> told;
    QVERIFY(!run_printout(printout, printer, error, [&](int page, int lastPage) {
        told << page << lastPage;
        return page < 2;
    }));
    QVERIFY(error.isEmpty());
    QCOMPARE(told, (QList<int>{1, 3, 2, 3}));
}

void PrintingWindows::landscapePagesHaveNoTwoUp() {
    DesktopHarness harness;
    FillThreePages(harness);
    PrintService &printing = client_tools_of(harness.Bench())->Printing();
    // Print Setup is where the user turns the page.
    printing.pageSetup = [](QPrinter &printer, QWidget *) {
        printer.setPageOrientation(QPageLayout::Landscape);
    };
    harness.Bench().Router().Execute(command::kFilePrintSetup);
    QCOMPARE(printing.Printer().pageLayout().orientation(), QPageLayout::Landscape);
    bool twoUpEnabled = true;
    QString label;
    printing.runPreview = [&](PreviewFrame &preview, QWidget &) {
        twoUpEnabled = preview.TwoUpAction().isEnabled();
        preview.TwoUpAction().trigger();
        label = preview.PageLabel().text();
        return 2;
    };
    harness.Bench().Router().Execute(command::kFilePrintPreview);
    QVERIFY(!twoUpEnabled);
    QCOMPARE(label, QStringLiteral("Page 1"));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

QTEST_MAIN(PrintingWindows)
#include "test_printing_windows.moc"
