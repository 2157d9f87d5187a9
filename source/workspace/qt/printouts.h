// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the program prints: the text of a Math Editor, paged by TextPaginator, and the rows of
// a list, paged by ListPageCount. A printout is laid out once for its device, so that any
// page can be drawn again, by the printer or by the preview.

#include <QFont>
#include <QString>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "text_paginator.h"

class QPaintDevice;
class QPainter;
class QPrinter;

namespace quindar {

class Printout {
public:
    virtual ~Printout() = default;
    // Lays the pages out for the device's printable area.
    virtual void Prepare(QPaintDevice &device) = 0;
    // The pages that come out.
    virtual int PageCount() const = 0;
    // The count the print dialog offers (for the text an estimate that ignores wrapping).
    virtual int OfferedPageCount() const { return PageCount(); }
    // Draws a page (from 1) in the device's coordinates of the printable area.
    virtual void DrawPage(QPainter &painter, int page) const = 0;
};

// The screen font of a pane at the same physical size on the device, sized in device pixels.
QFont font_for_device(const QFont &screenFont, const QPaintDevice &device);

// A pane's font made for a device, with the line height and ascent that place its rows.
struct DeviceFont {
    QFont font;
    int lineHeight = 1;
    int ascent = 0;
    void MakeFor(const QFont &screenFont, QPaintDevice &device);
    // Draws text on a row counted from 0 at the top of the printable area.
    void DrawRow(QPainter &painter, int row, const QString &text) const;
};

class TextPrintout : public Printout {
public:
    // text with CR LF line ends, as the editor's document text gives it.
    TextPrintout(std::string text, QString header, QFont screenFont);

    void Prepare(QPaintDevice &device) override;
    int PageCount() const override { return static_cast<int>(pages.size()); }
    int OfferedPageCount() const override { return offered; }
    void DrawPage(QPainter &painter, int page) const override;

private:
    std::string text;
    QString header;
    QFont screenFont;
    DeviceFont deviceFont;
    int offered = 0;
    std::vector<printing::PrintedPage> pages;
};

class ListPrintout : public Printout {
public:
    ListPrintout(QStringList rows, QFont screenFont);

    void Prepare(QPaintDevice &device) override;
    int PageCount() const override { return pageCount; }
    void DrawPage(QPainter &painter, int page) const override;

private:
    QStringList rows;
    QFont screenFont;
    DeviceFont deviceFont;
    int rowsPerPage = 0;
    int pageCount = 0;
};

// Told before each page is drawn, with the page and the last page of the job; false stops
// the job.
using PrintProgress = std::function<bool(int page, int lastPage)>;

// Prints the printout's pages in the printer's range (all when it names none). False with
// the reason when the job could not start or a page could not be added, and with no reason
// when progress stopped it.
bool run_printout(Printout &printout, QPrinter &printer, QString &error,
                  const PrintProgress &progress = {});

}  // namespace quindar
