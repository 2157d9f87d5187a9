// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "printouts.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QPrinter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "list_printout.h"

namespace quindar {
namespace {

QString FromUtf8(const std::string &text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

int ScreenDpiY() {
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? static_cast<int>(std::lround(screen->logicalDotsPerInchY())) : 96;
}

}  // namespace

QFont font_for_device(const QFont &screenFont, const QPaintDevice &device) {
    QFont font(screenFont);
    const int deviceDpi = device.logicalDpiY();
    int pixels = 0;
    if (screenFont.pixelSize() > 0)
        pixels = screenFont.pixelSize() * deviceDpi / ScreenDpiY();
    else
        pixels = static_cast<int>(std::lround(screenFont.pointSizeF() * deviceDpi / 72.0));
    font.setPixelSize(std::max(1, pixels));
    return font;
}

void DeviceFont::MakeFor(const QFont &screenFont, QPaintDevice &device) {
    font = font_for_device(screenFont, device);
    const QFontMetrics metrics(font, &device);
    lineHeight = std::max(1, metrics.lineSpacing());
    ascent = metrics.ascent();
}

void DeviceFont::DrawRow(QPainter &painter, int row, const QString &text) const {
    painter.drawText(0, row * lineHeight + ascent, text);
}

TextPrintout::TextPrintout(std::string documentText, QString headerText, QFont screen)
    : text(std::move(documentText)), header(std::move(headerText)), screenFont(std::move(screen)) {}

void TextPrintout::Prepare(QPaintDevice &device) {
    deviceFont.MakeFor(screenFont, device);
    const QFontMetrics metrics(deviceFont.font, &device);
    printing::PageMetrics page;
    page.pageWidth = device.width();
    page.pageHeight = device.height();
    page.lineHeight = deviceFont.lineHeight;
    printing::TextPaginator paginator(
        text, header.toStdString(), page, [metrics](std::string_view piece) {
            return metrics.horizontalAdvance(
                QString::fromUtf8(piece.data(), static_cast<qsizetype>(piece.size())));
        });
    offered = paginator.PageCount();
    pages = paginator.AllPages();
}

void TextPrintout::DrawPage(QPainter &painter, int page) const {
    if (page < 1 || page > PageCount()) return;
    const printing::PrintedPage &printed = pages[static_cast<std::size_t>(page - 1)];
    painter.setFont(deviceFont.font);
    painter.setPen(Qt::black);
    if (printed.header) deviceFont.DrawRow(painter, printing::kHeaderRow, header);
    for (const printing::PrintedLine &line : printed.lines)
        deviceFont.DrawRow(painter, line.row, FromUtf8(line.text));
}

ListPrintout::ListPrintout(QStringList listRows, QFont screen)
    : rows(std::move(listRows)), screenFont(std::move(screen)) {}

void ListPrintout::Prepare(QPaintDevice &device) {
    deviceFont.MakeFor(screenFont, device);
    rowsPerPage = device.height() / deviceFont.lineHeight;
    pageCount = printing::ListPageCount(static_cast<int>(rows.size()), rowsPerPage);
}

void ListPrintout::DrawPage(QPainter &painter, int page) const {
    if (page < 1 || page > pageCount) return;
    painter.setFont(deviceFont.font);
    painter.setPen(Qt::black);
    const int first = printing::ListPageFirstRow(page, rowsPerPage);
    for (int row = 0; row < rowsPerPage && first + row < rows.size(); ++row)
        deviceFont.DrawRow(painter, row, rows[first + row]);
}

bool run_printout(Printout &printout, QPrinter &printer, QString &error,
                  const PrintProgress &progress) {
    printout.Prepare(printer);
    const int count = printout.PageCount();
    if (count < 1) return true;
    int from = printer.fromPage() > 0 ? printer.fromPage() : 1;
    // The dialog's range is only an estimate for the text: printing goes on to its end.
    int to = printer.toPage() > 0 && printer.toPage() < printout.OfferedPageCount()
                 ? printer.toPage()
                 : count;
    from = std::min(from, count);
    to = std::min(std::max(to, from), count);
    QPainter painter;
    if (!painter.begin(&printer)) {
        error = QStringLiteral("The printer could not start the job.");
        return false;
    }
    for (int page = from; page <= to; ++page) {
        if (page != from && !printer.newPage()) {
            painter.end();
            error = QStringLiteral("The printer stopped at page %1.").arg(page);
            return false;
        }
        if (progress && !progress(page, to)) {
            printer.abort();
            painter.end();
            return false;
        }
        printout.DrawPage(painter, page);
    }
    if (!painter.end()) {
        error = QStringLiteral("The printer could not finish the job.");
        return false;
    }
    return true;
}

}  // namespace quindar
