// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "options_sheet.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "options_sheet_pages.h"
#include "workbench.h"

namespace quindar {
namespace {

// The tabs in their order, with the help topic of each.
struct OptionsTabRecord {
    const char *title;
    int helpTopic;
};
constexpr OptionsTabRecord kOptionsTabs[OptionsSheetState::kPageCount] = {
    {"Precision/Format", 19406},
    {"Mathematical", 19407},
    {"Media Player", 19492},
};

}  // namespace

Parser &DocumentOptionsTarget::Engine() {
    return document.Engine();
}
void DocumentOptionsTarget::MarkSettingsChanged() {
    document.MarkSettingsChanged();
}
// The Variables list refills itself from the engine when it shows; nothing to push here.
void DocumentOptionsTarget::RefillVariables() {}
// Graphs are computed again once the graph window exists.
void DocumentOptionsTarget::GraphsNeedData() {}

OptionsSheet::OptionsSheet(Workbench &bench, QWidget *parent) : QDialog(parent), workbench(bench) {
    setWindowTitle(QStringLiteral("Options"));
    setAccessibleName(QStringLiteral("Options"));
    setModal(true);

    const AppSettings settings = workbench.Settings();
    options.windowWidth = settings.WindowWidth();
    options.applyPrecisionToAll = settings.ApplyPrecisionFormatToAll();
    options.applyTrigToAll = settings.ApplyTrigOptionsToAll();
    options.showCalcBar = settings.ShowCalcBar();
    options.calculationMethod = workbench.calculationMethod;
    options.useSquareBrackets = workbench.useSquareBrackets;

    DocumentArea *client = workbench.Client();
    if (client != nullptr) {
        DocumentWindow *current = client->Current();
        if (current != nullptr)
            targets.push_back(std::make_unique<DocumentOptionsTarget>(*current));
        for (int at = 0; at < client->Count(); ++at)
            if (client->At(at) != current)
                targets.push_back(std::make_unique<DocumentOptionsTarget>(*client->At(at)));
    }
    for (const auto &target : targets) targetList.push_back(target.get());

    tabs = new QTabWidget(this);
    tabs->setAccessibleName(QStringLiteral("Options pages"));
    for (const OptionsTabRecord &record : kOptionsTabs) {
        // A placeholder until the page shows for the first time.
        auto *empty = new QWidget(tabs);
        empty->setAccessibleName(QString::fromLatin1(record.title));
        tabs->addTab(empty, QString::fromLatin1(record.title));
    }
    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                       QDialogButtonBox::Apply | QDialogButtonBox::Help,
                                   this);
    buttons->setAccessibleName(QStringLiteral("Sheet buttons"));
    for (QAbstractButton *button : buttons->buttons())
        button->setAccessibleName(button->text().remove(QLatin1Char('&')));
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    for (QAbstractButton *button : buttons->buttons())
        if (button != ok) static_cast<QPushButton *>(button)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &OptionsSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &OptionsSheet::Apply);
    connect(buttons->button(QDialogButtonBox::Help), &QPushButton::clicked, this, [this] {
        const int page = tabs->currentIndex();
        if (page >= 0) workbench.Services().ShowHelpTopic(kOptionsTabs[page].helpTopic);
    });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(buttons);

    // The first page is made as the sheet opens; the others when their tab is first chosen.
    ShowPage(OptionsSheetState::kPrecisionFormat);
    connect(tabs, &QTabWidget::currentChanged, this, [this](int page) {
        state.Show(page);
        ShowPage(page);
    });
    buttons->button(QDialogButtonBox::Apply)->setEnabled(state.ApplyEnabled());
}

OptionsSheet::~OptionsSheet() = default;

OptionsDocuments OptionsSheet::Documents() {
    return OptionsDocuments(targetList);
}

void OptionsSheet::ShowPage(int page) {
    const QWidget *existing[] = {precisionPage, mathPage, mediaPage};
    if (existing[page] != nullptr) return;
    // The first two pages work on a document's engine; without one they stay empty.
    if (targetList.empty() && page != OptionsSheetState::kMediaPlayer) return;
    QWidget *made = nullptr;
    switch (page) {
        case OptionsSheetState::kPrecisionFormat:
            made = precisionPage = new PrecisionFormatTab(*this);
            break;
        case OptionsSheetState::kMathematical:
            made = mathPage = new MathOptionsTab(*this);
            break;
        default:
            made = mediaPage = new MediaPlayerTab(*this);
            break;
    }
    const QSignalBlocker blocker(tabs);
    QWidget *placeholder = tabs->widget(page);
    tabs->removeTab(page);
    tabs->insertTab(page, made, QString::fromLatin1(kOptionsTabs[page].title));
    tabs->setCurrentIndex(page);
    delete placeholder;
}

void OptionsSheet::PageChanged(int page) {
    state.PageChanged(page);
    buttons->button(QDialogButtonBox::Apply)->setEnabled(state.ApplyEnabled());
}

void OptionsSheet::PageUnchanged(int page) {
    state.PageUnchanged(page);
    buttons->button(QDialogButtonBox::Apply)->setEnabled(state.ApplyEnabled());
}

void OptionsSheet::Apply() {
    for (int page : state.PagesToApply()) {
        if (page == OptionsSheetState::kPrecisionFormat && precisionPage != nullptr)
            precisionPage->Apply();
        if (page == OptionsSheetState::kMathematical && mathPage != nullptr) mathPage->Apply();
        if (page == OptionsSheetState::kMediaPlayer && mediaPage != nullptr) mediaPage->Apply();
    }
    TakeOptions();
}

void OptionsSheet::accept() {
    Apply();
    QDialog::accept();
}

// The program follows the applied options: the calculation keys of every open text pane.
void OptionsSheet::TakeOptions() {
    workbench.calculationMethod = options.calculationMethod;
    workbench.useSquareBrackets = options.useSquareBrackets;
    DocumentArea *client = workbench.Client();
    if (client == nullptr) return;
    for (int at = 0; at < client->Count(); ++at)
        client->At(at)->TextPane().Editor().CalculationMethod = options.calculationMethod;
}

}  // namespace quindar
