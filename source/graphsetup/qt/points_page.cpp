// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "points_page.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "points_page_model.h"
#include "points_set_name_dialog.h"
#include "setup_page_widgets.h"
#include "setup_pages.h"
#include "setup_session.h"
#include "workbench.h"

namespace quindar {

namespace {

QString qs(const std::string &text) {
    return QString::fromStdString(text);
}

constexpr const char *kPointFileFilter = "Data Files (*.txt *.dat);;All Files (*)";
// The spinner's range: the index of the top point.
constexpr int kHighestTopPoint = 32766;

// Keys that move through the grid: the arrows up and down, Enter down and Tab on.
struct GridKeyRecord {
    int key;
    GridKey move;
};
constexpr GridKeyRecord kGridKeys[] = {
    {Qt::Key_Up, GridKey::Up},      {Qt::Key_Down, GridKey::Down}, {Qt::Key_Return, GridKey::Down},
    {Qt::Key_Enter, GridKey::Down}, {Qt::Key_Tab, GridKey::Right}, {Qt::Key_Backtab, GridKey::Left},
};

}  // namespace

PointsPage::PointsPage(PointsPageModel &model, SetupPageContext &context, QWidget *parent)
    : SetupPageWidget(model, parent), points(model), context(context) {
    setAccessibleName(tr("Points"));
    auto *layout = new QVBoxLayout(this);
    BuildSetRow();
    BuildGrid();
    BuildButtons();
    layout->addStretch(1);
    nameDialog = new PointsSetNameDialog(this, [this](const QString &name) {
        const bool renamed = points.RenameCurrentSet(name.toStdString());
        if (renamed) Refresh();
        return renamed;
    });
    Refresh();
}

QPushButton *PointsPage::AddButton(const QString &text, const char *name,
                                   void (PointsPage::*slot)()) {
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void PointsPage::BuildSetRow() {
    auto *group = new QGroupBox(tr("Data Set"), this);
    auto *grid = new QGridLayout(group);
    setCombo = new QComboBox(group);
    setCombo->setEditable(true);
    setCombo->setInsertPolicy(QComboBox::NoInsert);
    setCombo->setObjectName(QStringLiteral("setName"));
    setCombo->setAccessibleName(tr("Set Name"));
    setCombo->setMinimumContentsLength(18);
    auto *label = new QLabel(tr("Set &Name:"), group);
    label->setBuddy(setCombo);
    connect(setCombo, &QComboBox::activated, this, [this](int position) {
        points.ChangeSet(position);
        Refresh();
        ApplyFocusRequest();
    });
    addSet = AddButton(tr("&Add Set"), "addSet", &PointsPage::AddSet);
    editName = AddButton(tr("&Edit Set Name"), "editSetName", &PointsPage::EditSetName);
    removeSet = AddButton(tr("Re&move"), "removeSet", &PointsPage::RemoveSet);
    prevSet = AddButton(tr("<< P&rev"), "prevSet", &PointsPage::PrevSet);
    prevSet->setAccessibleName(tr("Previous Set"));
    nextSet = AddButton(tr("Ne&xt >>"), "nextSet", &PointsPage::NextSet);
    nextSet->setAccessibleName(tr("Next Set"));
    grid->addWidget(label, 0, 0);
    grid->addWidget(setCombo, 0, 1, 1, 3);
    grid->addWidget(prevSet, 0, 4);
    grid->addWidget(nextSet, 0, 5);
    grid->addWidget(addSet, 1, 1);
    grid->addWidget(editName, 1, 2);
    grid->addWidget(removeSet, 1, 3);
    grid->setColumnStretch(1, 1);
    static_cast<QVBoxLayout *>(layout())->addWidget(group);
}

void PointsPage::BuildGrid() {
    auto *group = new QGroupBox(tr("Data Points"), this);
    auto *grid = new QGridLayout(group);
    const QString columns[] = {tr("X"), tr("Y"), tr("Z")};
    for (int c = 0; c < 3; ++c) {
        auto *heading = new QLabel(columns[c], group);
        heading->setAlignment(Qt::AlignCenter);
        grid->addWidget(heading, 0, c + 1);
    }
    for (int row = 1; row <= kGridRows; ++row) {
        auto *radio = new QRadioButton(group);
        radio->setAutoExclusive(false);
        radio->setObjectName(QStringLiteral("row%1").arg(row));
        connect(radio, &QRadioButton::clicked, this, [this, row] {
            points.ClickRow(row);
            Refresh();
        });
        radios[static_cast<std::size_t>(row - 1)] = radio;
        grid->addWidget(radio, row, 0);
    }
    for (std::size_t i = 0; i < kGridCellOrder.size(); ++i) {
        const PointCell cell = kGridCellOrder[i].cell;
        auto *edit = new QLineEdit(group);
        edit->setObjectName(QStringLiteral("cell%1").arg(kGridCellOrder[i].controlId));
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::textEdited, this,
                [this, cell](const QString &text) { points.EditText(cell, text.toStdString()); });
        edits[i] = edit;
        grid->addWidget(edit, cell.row, static_cast<int>(cell.column) + 1);
    }
    spinner = new QScrollBar(Qt::Vertical, group);
    spinner->setObjectName(QStringLiteral("pointSpinner"));
    spinner->setAccessibleName(tr("Scroll Points"));
    spinner->setRange(0, kHighestTopPoint);
    spinner->setPageStep(kGridRows);
    connect(spinner, &QScrollBar::valueChanged, this, &PointsPage::ScrollTo);
    grid->addWidget(spinner, 1, 4, kGridRows, 1);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 2);
    grid->setColumnStretch(3, 1);

    auto *buttons = new QHBoxLayout;
    first = AddButton(tr("&First"), "first", &PointsPage::First);
    last = AddButton(tr("&Last"), "last", &PointsPage::Last);
    insert = AddButton(tr("&Insert"), "insert", &PointsPage::InsertPoint);
    deletePoint = AddButton(tr("&Delete"), "delete", &PointsPage::DeletePoint);
    clear = AddButton(tr("&Clear"), "clear", &PointsPage::ClearPoints);
    for (QPushButton *button : {first, last, insert, deletePoint, clear})
        buttons->addWidget(button);
    buttons->addStretch(1);
    count = new QLabel(group);
    count->setObjectName(QStringLiteral("pointCount"));
    count->setAccessibleName(tr("Number Of Points"));
    buttons->addWidget(count);
    grid->addLayout(buttons, kGridRows + 1, 0, 1, 5);
    static_cast<QVBoxLayout *>(layout())->addWidget(group);
}

void PointsPage::BuildButtons() {
    auto *files = new QHBoxLayout;
    load = AddButton(tr("Load Data &File"), "loadFile", &PointsPage::LoadFile);
    save = AddButton(tr("&Save Data File"), "saveFile", &PointsPage::SaveFile);
    files->addWidget(load);
    files->addWidget(save);
    files->addStretch(1);
    static_cast<QVBoxLayout *>(layout())->addLayout(files);
}

QLineEdit *PointsPage::CellEdit(PointCell cell) const {
    const int order = grid_cell_order(cell);
    return order < 0 ? nullptr : edits[static_cast<std::size_t>(order)];
}

std::optional<PointCell> PointsPage::CellOf(QObject *object) const {
    for (std::size_t i = 0; i < edits.size(); ++i)
        if (edits[i] == object) return kGridCellOrder[i].cell;
    return std::nullopt;
}

void PointsPage::UpdatePage() {
    points.UpdatePage();
    Refresh();
}

bool PointsPage::KillActive() {
    if (points.LeavePage()) return true;
    Refresh();
    ApplyFocusRequest();
    return false;
}

void PointsPage::Refresh() {
    filling = true;
    // The list is refilled only when it changed, so that a name being typed stays.
    QStringList names;
    for (const std::string &name : points.SetNames()) names << qs(name);
    QStringList shown;
    for (int i = 0; i < setCombo->count(); ++i) shown << setCombo->itemText(i);
    const int position = points.CurrentSetPosition();
    if (names != shown) {
        setCombo->clear();
        setCombo->addItems(names);
    }
    if (names != shown || setCombo->currentIndex() != position) {
        setCombo->setCurrentIndex(position);
        if (position < 0) setCombo->setEditText(QString());
    }

    const PointsGrid &grid = points.Grid();
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const PointCell cell = kGridCellOrder[i].cell;
        QLineEdit *edit = edits[i];
        const QString text = qs(points.CellText(cell));
        if (edit->text() != text) edit->setText(text);
        const QString point = cell.column == PointColumn::Z
                                  ? tr("Z of the set")
                                  : tr("%1 of point %2")
                                        .arg(cell.column == PointColumn::X ? "X" : "Y")
                                        .arg(grid.PointIndex(cell.row) + 1);
        edit->setAccessibleName(point);
    }
    for (int row = 1; row <= kGridRows; ++row) {
        QRadioButton *radio = radios[static_cast<std::size_t>(row - 1)];
        radio->setText(qs(points.RowCaption(row)));
        radio->setAccessibleName(radio->text());
        radio->setChecked(grid.RowSelected() && grid.FocusRow == row);
    }
    // The bar reaches one window past the last point, where new points are typed; the keys
    // scroll on from there.
    spinner->setMaximum(std::min(std::max(grid.TopPoint, points.PointCount()), kHighestTopPoint));
    spinner->setValue(grid.TopPoint);
    count->setText(tr("Number Of Points : %1").arg(points.PointCount()));

    const PointsPageEnables on = points.Enables();
    for (QLineEdit *edit : edits) edit->setEnabled(on.dataBoxes);
    for (QRadioButton *radio : radios) radio->setEnabled(on.dataBoxes);
    spinner->setEnabled(on.dataBoxes);
    insert->setEnabled(on.insert);
    deletePoint->setEnabled(on.deletePoint);
    clear->setEnabled(on.clear);
    save->setEnabled(on.save);
    first->setEnabled(on.first);
    last->setEnabled(on.last);
    prevSet->setEnabled(on.prevSet);
    nextSet->setEnabled(on.nextSet);
    removeSet->setEnabled(on.remove);
    editName->setEnabled(on.editName);
    PaintSelection();
    filling = false;
}

void PointsPage::PaintSelection() {
    // The selected row shows white on the highlight colour.
    const PointsGrid &grid = points.Grid();
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const PointCell cell = kGridCellOrder[i].cell;
        const bool selected =
            cell.column != PointColumn::Z && grid.RowSelected() && grid.FocusRow == cell.row;
        QPalette palette = this->palette();
        if (selected) {
            palette.setColor(QPalette::Base, palette.color(QPalette::Highlight));
            palette.setColor(QPalette::Text, palette.color(QPalette::HighlightedText));
        }
        edits[i]->setPalette(palette);
    }
}

void PointsPage::ApplyFocusRequest() {
    const std::optional<PointCell> cell = points.TakeFocusRequest();
    if (!cell) return;
    QLineEdit *edit = CellEdit(*cell);
    // Not from inside the focus change that asked: that change is still going on.
    // The focus events it causes take the cell left and enter this one as the user's would;
    // entering gives up the refusal flags, so the focus comes back once and never loops.
    QTimer::singleShot(0, edit, [this, edit, target = *cell] {
        if (!edit->hasFocus()) {
            edit->setFocus(Qt::OtherFocusReason);
        } else {
            // The focus never left (a box from the page itself): it comes back all the same.
            points.EnterCell(target);
            Refresh();
        }
        edit->selectAll();
    });
}

bool PointsPage::eventFilter(QObject *watched, QEvent *event) {
    const std::optional<PointCell> cell = CellOf(watched);
    if (!cell || busy) return SetupPageWidget::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::FocusIn:
            points.EnterCell(*cell);
            ApplyFocusRequest();
            break;
        case QEvent::FocusOut:
            // A refusal shows a box; the focus changes that box makes are not the user's.
            busy = true;
            points.LeaveCell(*cell);
            busy = false;
            Refresh();
            ApplyFocusRequest();
            break;
        case QEvent::KeyPress: {
            const auto *key = static_cast<QKeyEvent *>(event);
            // Ctrl+Tab is the sheet's, which turns its pages with it.
            if (key->modifiers() & Qt::ControlModifier) break;
            for (const GridKeyRecord &record : kGridKeys) {
                if (record.key != key->key()) continue;
                busy = true;
                points.Key(record.move);
                busy = false;
                Refresh();
                ApplyFocusRequest();
                return true;
            }
            break;
        }
        default:
            break;
    }
    return SetupPageWidget::eventFilter(watched, event);
}

void PointsPage::ScrollTo(int top) {
    if (filling) return;
    points.PointsUpDown(top - points.Grid().TopPoint);
    Refresh();
    ApplyFocusRequest();
}

void PointsPage::AddSet() {
    points.AddSet(setCombo->currentText().toStdString());
    setCombo->setCurrentIndex(-1);  // the new set's name shows
    Refresh();
}

void PointsPage::RemoveSet() {
    points.RemoveSet(setCombo->currentText().toStdString());
    setCombo->setCurrentIndex(-1);
    Refresh();
}

void PointsPage::EditSetName() {
    const int position = points.CurrentSetPosition();
    if (position < 0) return;
    nameDialog->ShowFor(setCombo->itemText(position));
}

void PointsPage::PrevSet() {
    points.StepSet(-1);
    Refresh();
    ApplyFocusRequest();
}

void PointsPage::NextSet() {
    points.StepSet(1);
    Refresh();
    ApplyFocusRequest();
}

void PointsPage::First() {
    points.First();
    Refresh();
    ApplyFocusRequest();
}

void PointsPage::Last() {
    points.Last();
    Refresh();
    ApplyFocusRequest();
}

void PointsPage::InsertPoint() {
    points.InsertPoint();
    Refresh();
}

void PointsPage::DeletePoint() {
    points.DeletePoint();
    Refresh();
}

void PointsPage::ClearPoints() {
    points.ClearPoints();
    Refresh();
}

void PointsPage::LoadFile() {
    if (!points.BeginLoadFile()) return;
    const QStringList paths = context.workbench.chooseOpenFiles(this, tr("Open Data Point File"),
                                                                QString(), tr(kPointFileFilter));
    if (paths.isEmpty()) return;
    points.LoadFile(paths.front().toStdString());
    Refresh();
}

void PointsPage::SaveFile() {
    if (!points.BeginSaveFile()) return;
    const QString path = context.workbench.chooseSaveFile(
        this, tr("Save Data Point File"), qs(points.SaveProposal()), tr(kPointFileFilter));
    if (path.isEmpty()) return;
    points.SaveFile(path.toStdString());
}

// A refused cell keeps the page before its check runs.
void PointsPage::Next() {
    if (KillActive()) points.Next();
    Refresh();
}

void PointsPage::Prev() {
    if (KillActive()) points.Prev();
}

MadeSetupPage make_points_page(SetupPageContext &context, QWidget *parent) {
    MadeSetupPage made;
    auto model = std::make_unique<PointsPageModel>(context.session, context.ui);
    made.widget = new PointsPage(*model, context, parent);
    made.model = std::move(model);
    return made;
}

}  // namespace quindar
