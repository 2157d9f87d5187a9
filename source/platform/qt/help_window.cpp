// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "help_window.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QToolBar>
#include <QVBoxLayout>

namespace quindar {

namespace {

constexpr int kTitleSearchBytes = 2048;
constexpr int kWidth = 760;
constexpr int kHeight = 560;

// The text of a page's <title>, or its file name.
QString page_title(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return QFileInfo(path).fileName();
    const QString head = QString::fromUtf8(file.read(kTitleSearchBytes));
    static const QRegularExpression title(QStringLiteral("<title>([^<]*)</title>"),
                                          QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = title.match(head);
    return match.hasMatch() ? match.captured(1).trimmed() : QFileInfo(path).fileName();
}

}  // namespace

HelpWindow::HelpWindow(QString helpFolder, QWidget *parent)
    : QMainWindow(parent),
      folder_(std::move(helpFolder)),
      browser_(new QTextBrowser(this)),
      indexDock_(new QDockWidget(tr("Index"), this)),
      filter_(new QLineEdit(indexDock_)),
      index_(new QListWidget(indexDock_)) {
    setWindowTitle(tr("Quindar Help"));
    setAccessibleName(tr("Quindar Help"));
    setObjectName(QStringLiteral("QuindarHelp"));
    resize(kWidth, kHeight);
    browser_->setAccessibleName(tr("Help text"));
    browser_->setSearchPaths({folder_});
    browser_->setOpenExternalLinks(true);
    setCentralWidget(browser_);

    QFile topicsFile(QDir(folder_).filePath(QLatin1String(kTopicsFile)));
    if (topicsFile.open(QIODevice::ReadOnly)) topics_.parse(topicsFile.readAll().toStdString());

    auto *bar = addToolBar(tr("Help"));
    bar->setAccessibleName(tr("Help tool bar"));
    bar->setMovable(false);
    QAction *contents = bar->addAction(tr("&Contents"), this, &HelpWindow::showContents);
    QAction *indexAction = bar->addAction(tr("&Index"), this, [this] { showIndex(); });
    QAction *back = bar->addAction(tr("&Back"), browser_, &QTextBrowser::backward);
    QAction *forward = bar->addAction(tr("&Forward"), browser_, &QTextBrowser::forward);
    contents->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
    indexAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    auto *indexPanel = new QWidget(indexDock_);
    auto *indexLayout = new QVBoxLayout(indexPanel);
    indexLayout->setContentsMargins(0, 0, 0, 0);
    filter_->setPlaceholderText(tr("Type a key word"));
    filter_->setAccessibleName(tr("Key word"));
    filter_->setClearButtonEnabled(true);
    index_->setAccessibleName(tr("Help index"));
    indexLayout->addWidget(filter_);
    indexLayout->addWidget(index_, 1);
    indexDock_->setWidget(indexPanel);
    indexDock_->setAccessibleName(tr("Help index"));
    indexDock_->setFeatures(QDockWidget::DockWidgetClosable);
    addDockWidget(Qt::LeftDockWidgetArea, indexDock_);
    indexDock_->hide();
    connect(filter_, &QLineEdit::textChanged, this, &HelpWindow::filterIndex);
    connect(index_, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { showPage(item->data(Qt::UserRole).toString()); });
    connect(index_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { showPage(item->data(Qt::UserRole).toString()); });
    connect(filter_, &QLineEdit::returnPressed, this, [this] {
        for (int row = 0; row < index_->count(); ++row) {
            if (!index_->item(row)->isHidden()) {
                showPage(index_->item(row)->data(Qt::UserRole).toString());
                return;
            }
        }
    });
}

bool HelpWindow::isAvailable() const {
    return QFileInfo(QDir(folder_).filePath(QLatin1String(kHelpContentsPage))).isFile();
}

void HelpWindow::showContents() {
    showPage(QLatin1String(kHelpContentsPage));
}

void HelpWindow::showTopic(unsigned topic) {
    showPage(QString::fromStdString(topics_.page(topic)));
}

void HelpWindow::showPage(const QString &page) {
    const QString file = page.section(QLatin1Char('#'), 0, 0);
    QUrl url = QUrl::fromLocalFile(QDir(folder_).filePath(file));
    if (page.contains(QLatin1Char('#'))) url.setFragment(page.section(QLatin1Char('#'), 1));
    browser_->setSource(url);
    show();
    raise();
    activateWindow();
}

void HelpWindow::showIndex(const QString &filter) {
    if (index_->count() == 0) fillIndex();
    indexDock_->show();
    filter_->setText(filter);
    filterIndex(filter);
    filter_->setFocus();
    if (browser_->source().isEmpty()) showContents();
    show();
    raise();
}

QString HelpWindow::currentPage() const {
    const QUrl source = browser_->source();
    QString page = QFileInfo(source.toLocalFile()).fileName();
    if (source.hasFragment()) page += QLatin1Char('#') + source.fragment();
    return page;
}

QStringList HelpWindow::indexEntries() const {
    QStringList entries;
    for (int row = 0; row < index_->count(); ++row) {
        if (!index_->item(row)->isHidden()) entries << index_->item(row)->text();
    }
    return entries;
}

void HelpWindow::fillIndex() {
    const QDir folder(folder_);
    for (const QString &name : folder.entryList({QStringLiteral("*.html")}, QDir::Files)) {
        auto *item = new QListWidgetItem(page_title(folder.filePath(name)), index_);
        item->setData(Qt::UserRole, name);
    }
    index_->sortItems();
}

void HelpWindow::filterIndex(const QString &words) {
    const QStringList parts = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int row = 0; row < index_->count(); ++row) {
        QListWidgetItem *item = index_->item(row);
        bool shown = true;
        for (const QString &part : parts)
            shown = shown && item->text().contains(part, Qt::CaseInsensitive);
        item->setHidden(!shown);
    }
}

}  // namespace quindar
