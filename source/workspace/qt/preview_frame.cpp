// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "preview_frame.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QPainter>
#include <QPrinter>
#include <QShortcut>
#include <QToolBar>
#include <QWidget>

#include "preview_layout.h"
#include "printouts.h"

namespace quindar {
namespace {

QWidget *Gap(int width, QWidget *parent) {
    auto *gap = new QWidget(parent);
    gap->setFixedWidth(width);
    gap->setAccessibleName(QStringLiteral("Gap"));
    return gap;
}

}  // namespace

PreviewPages::PreviewPages(Printout &out, QPrinter &device, printing::PreviewNavigation &paging,
                           QWidget *parent)
    : QWidget(parent), printout(out), printer(device), navigation(paging) {
    setAccessibleName(QStringLiteral("Preview pages"));
    setAutoFillBackground(true);
    QPalette shade = palette();
    shade.setColor(QPalette::Window, QColor(128, 128, 128));
    setPalette(shade);
}

void PreviewPages::paintEvent(QPaintEvent *) {
    const int resolution = printer.resolution();
    const QRect paper = printer.pageLayout().fullRectPixels(resolution);
    const QRect printable = printer.pageLayout().paintRectPixels(resolution);
    const std::vector<printing::PreviewRect> rects = printing::PreviewPageRects(
        width(), height(), paper.width(), paper.height(), navigation.TwoUp());
    const int shown[] = {navigation.FirstPage(), navigation.SecondPage()};
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    for (std::size_t at = 0; at < rects.size() && at < 2; ++at) {
        const printing::PreviewRect &rect = rects[at];
        const QRect area(rect.x, rect.y, rect.width, rect.height);
        painter.fillRect(area.translated(3, 3), QColor(64, 64, 64));
        painter.fillRect(area, Qt::white);
        painter.setPen(Qt::black);
        painter.drawRect(area.adjusted(0, 0, -1, -1));
        if (shown[at] == 0 || paper.width() <= 0 || paper.height() <= 0) continue;
        painter.save();
        painter.setClipRect(area);
        painter.translate(rect.x, rect.y);
        painter.scale(static_cast<double>(rect.width) / paper.width(),
                      static_cast<double>(rect.height) / paper.height());
        painter.translate(printable.x() - paper.x(), printable.y() - paper.y());
        printout.DrawPage(painter, shown[at]);
        painter.restore();
    }
}

PreviewFrame::PreviewFrame(Printout &printout, QPrinter &printer, const QString &caption,
                           bool withPrint)
    : navigation(printout.PageCount()) {
    setWindowTitle(caption);
    setAccessibleName(QStringLiteral("Print Preview"));
    auto *bar = addToolBar(QStringLiteral("Preview"));
    bar->setAccessibleName(QStringLiteral("Preview tool bar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    previous = bar->addAction(QStringLiteral("Previous"));
    next = bar->addAction(QStringLiteral("Next"));
    bar->addWidget(Gap(6, bar));
    auto *upGroup = new QActionGroup(this);
    upGroup->setExclusive(true);
    oneUp = bar->addAction(QStringLiteral("One Up"));
    twoUp = bar->addAction(QStringLiteral("Two Up"));
    for (QAction *action : {oneUp, twoUp}) {
        action->setCheckable(true);
        upGroup->addAction(action);
    }
    oneUp->setChecked(true);
    bar->addWidget(Gap(12, bar));
    pageLabel = new QLabel(bar);
    pageLabel->setAccessibleName(QStringLiteral("Page"));
    pageLabel->setMinimumWidth(pageLabel->fontMetrics().averageCharWidth() * 10);
    bar->addWidget(pageLabel);
    QAction *printAction = nullptr;
    if (withPrint) {
        bar->addWidget(Gap(20, bar));
        printAction = bar->addAction(QStringLiteral("Print"));
        bar->addWidget(Gap(20, bar));
    }
    done = bar->addAction(QStringLiteral("Done"));
    for (QAction *action : bar->actions())
        if (QWidget *button = bar->widgetForAction(action);
            button && button->accessibleName().isEmpty())
            button->setAccessibleName(action->text());

    pages = new PreviewPages(printout, printer, navigation, this);
    setCentralWidget(pages);

    const int resolution = printer.resolution();
    const QRect paper = printer.pageLayout().fullRectPixels(resolution);
    twoUp->setEnabled(printing::TwoUpAllowed(paper.width(), paper.height()));

    connect(previous, &QAction::triggered, this, [this] {
        navigation.Previous();
        Refresh();
    });
    connect(next, &QAction::triggered, this, [this] {
        navigation.Next();
        Refresh();
    });
    connect(oneUp, &QAction::triggered, this, [this] {
        navigation.OneUp();
        Refresh();
    });
    connect(twoUp, &QAction::triggered, this, [this] {
        navigation.ShowTwoUp();
        Refresh();
    });
    connect(done, &QAction::triggered, this, &PreviewFrame::Finish);
    const auto printNow = [this] {
        if (print) print();
    };
    if (printAction != nullptr) connect(printAction, &QAction::triggered, this, printNow);
    auto *printKey = new QShortcut(QKeySequence::Print, this);
    connect(printKey, &QShortcut::activated, this, printNow);
    Refresh();
}

PreviewFrame::~PreviewFrame() = default;

void PreviewFrame::Refresh() {
    pageLabel->setText(QString::fromStdString(navigation.PageText()));
    previous->setEnabled(navigation.CanGoPrevious());
    next->setEnabled(navigation.CanGoNext());
    oneUp->setChecked(!navigation.TwoUp());
    twoUp->setChecked(navigation.TwoUp());
    pages->update();
}

int PreviewFrame::Run(QWidget &window) {
    setGeometry(window.geometry());
    if (window.isMaximized()) {
        showMaximized();
    } else {
        show();
    }
    window.hide();
    QEventLoop running;
    loop = &running;
    const int result = running.exec();
    loop = nullptr;
    // The user's resizing of the preview stays with the window.
    const bool maximized = isMaximized();
    const QRect place = geometry();
    hide();
    window.setGeometry(place);
    if (maximized)
        window.showMaximized();
    else
        window.show();
    return result;
}

void PreviewFrame::Finish() {
    if (loop != nullptr) loop->exit(2);
}

void PreviewFrame::closeEvent(QCloseEvent *event) {
    event->ignore();
    Finish();
}

}  // namespace quindar
