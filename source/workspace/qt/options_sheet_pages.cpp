// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "options_sheet_pages.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "default_application.h"
#include "document_area.h"
#include "document_window.h"
#include "options_sheet.h"
#include "parser.h"
#include "workbench.h"

namespace quindar {
namespace {

QString FromBytes(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Control>
Control *Named(Control *control, const QString &name) {
    control->setAccessibleName(name);
    return control;
}

QRadioButton *Radio(const char *text, QWidget *parent) {
    return Named(new QRadioButton(QString::fromLatin1(text), parent), QString::fromLatin1(text));
}

QCheckBox *Check(const char *text, QWidget *parent) {
    return Named(new QCheckBox(QString::fromLatin1(text), parent), QString::fromLatin1(text));
}

QPushButton *Button(const char *text, QWidget *parent) {
    auto *button =
        Named(new QPushButton(QString::fromLatin1(text), parent), QString::fromLatin1(text));
    // Enter belongs to the sheet's OK.
    button->setAutoDefault(false);
    return button;
}

QGroupBox *Group(const char *title, QWidget *parent) {
    return Named(new QGroupBox(QString::fromLatin1(title), parent), QString::fromLatin1(title));
}

// A group of two radios, side by side or one above the other.
struct RadioPairSpec {
    const char *title;  // null: an untitled group, named by name
    const char *name;
    const char *first;
    const char *second;
    bool stacked;
};

QGroupBox *RadioPair(const RadioPairSpec &spec, QWidget *parent, QRadioButton *&first,
                     QRadioButton *&second) {
    QGroupBox *group = spec.title != nullptr
                           ? Group(spec.title, parent)
                           : Named(new QGroupBox(parent), QString::fromLatin1(spec.name));
    first = Radio(spec.first, group);
    second = Radio(spec.second, group);
    QBoxLayout *layout = spec.stacked ? static_cast<QBoxLayout *>(new QVBoxLayout(group))
                                      : static_cast<QBoxLayout *>(new QHBoxLayout(group));
    layout->addWidget(first);
    layout->addWidget(second);
    return group;
}

constexpr RadioPairSpec kApplyTarget{nullptr, "Apply To", "Apply To File In Focus",
                                     "Apply To All Files", false};
constexpr RadioPairSpec kWindowPair{"Window", nullptr, "Math Editor", "Variables", false};
constexpr RadioPairSpec kTrigPair{"Trigonometric", nullptr, "Degrees", "Radians", false};
constexpr RadioPairSpec kKeysPair{"Calculation Keys", nullptr,
                                  "Use the Enter button or F4 to calculate",
                                  "Use Shift+Enter button or F4 to calculate", true};

// The record the page opens on: the variables' when the sheet was called from the Variables
// list, the editor's otherwise.
int OpeningWindow() {
    const QWidget *focus = QApplication::focusWidget();
    const bool fromVariables = qobject_cast<const QAbstractItemView *>(focus) != nullptr &&
                               focus->accessibleName().contains(QStringLiteral("Variables"));
    return fromVariables ? PrecisionFormatPage::kVariables : PrecisionFormatPage::kMathEditor;
}

int Ask(OptionsSheet &sheet, QWidget *parent, int questionId) {
    return sheet.Bench().Messages().ShowPlain(parent, FromBytes(OptionsMessageText(questionId)),
                                              FromBytes(OptionsMessageText(kPrecisionFormatTitle)),
                                              kBoxQuestionYesNo);
}

}  // namespace

// ---------------------------------------------------------------- Precision/Format

PrecisionFormatTab::PrecisionFormatTab(OptionsSheet &owner)
    : sheet(owner),
      page(owner.Documents()[0]->Engine(), owner.Options().applyPrecisionToAll, OpeningWindow()) {
    setAccessibleName(QStringLiteral("Precision/Format"));
    QGroupBox *target = RadioPair(kApplyTarget, this, applyToFile, applyToAll);

    auto *precisionGroup = Group("Precision", this);
    precision = Named(new QLineEdit(precisionGroup), QStringLiteral("Precision"));
    precision->setEnabled(false);
    precision->setMaximumWidth(60);
    higher = Button("Higher", precisionGroup);
    lower = Button("Lower", precisionGroup);
    auto *precisionRow = new QHBoxLayout(precisionGroup);
    precisionRow->addWidget(precision);
    precisionRow->addWidget(higher);
    precisionRow->addWidget(lower);
    precisionRow->addStretch(1);

    auto *formatGroup = Group("Format", this);
    decimal = Radio("Decimal", formatGroup);
    scientific = Radio("Scientific Notation", formatGroup);
    showPoint = Check("Show Decimal Point", formatGroup);
    leadSign = Check("Show Leading Sign", formatGroup);
    auto *formatGrid = new QGridLayout(formatGroup);
    formatGrid->addWidget(decimal, 0, 0);
    formatGrid->addWidget(scientific, 1, 0);
    formatGrid->addWidget(showPoint, 0, 1);
    formatGrid->addWidget(leadSign, 1, 1);

    auto *zeroGroup = Group("Round Values Smaller Than", this);
    zeroPrecision = Named(new QLineEdit(zeroGroup), QStringLiteral("Round Values Smaller Than"));
    zeroPrecision->setEnabled(false);
    zeroPrecision->setMaximumWidth(90);
    zeroUp = Named(new QToolButton(zeroGroup), QStringLiteral("Smaller threshold"));
    zeroUp->setArrowType(Qt::UpArrow);
    zeroDown = Named(new QToolButton(zeroGroup), QStringLiteral("Larger threshold"));
    zeroDown->setArrowType(Qt::DownArrow);
    auto *arrows = new QVBoxLayout;
    arrows->setSpacing(0);
    arrows->addWidget(zeroUp);
    arrows->addWidget(zeroDown);
    auto *zeroRow = new QHBoxLayout(zeroGroup);
    zeroRow->addWidget(zeroPrecision);
    zeroRow->addLayout(arrows);
    zeroRow->addWidget(
        Named(new QLabel(QStringLiteral(" To 0.0"), zeroGroup), QStringLiteral("To 0.0")));
    zeroRow->addStretch(1);

    QGroupBox *windowGroup = RadioPair(kWindowPair, this, mathEditor, variables);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(target);
    layout->addWidget(windowGroup);
    layout->addWidget(precisionGroup);
    layout->addWidget(formatGroup);
    layout->addWidget(zeroGroup);
    layout->addStretch(1);

    (page.ApplyToAll() ? applyToAll : applyToFile)->setChecked(true);
    LoadControls();

    connect(higher, &QPushButton::clicked, this, [this] { StepPrecision(true); });
    connect(lower, &QPushButton::clicked, this, [this] { StepPrecision(false); });
    connect(zeroUp, &QToolButton::clicked, this, [this] { StepZero(true); });
    connect(zeroDown, &QToolButton::clicked, this, [this] { StepZero(false); });
    connect(decimal, &QRadioButton::clicked, this, [this] {
        page.SetScientific(false);
        Changed();
    });
    connect(scientific, &QRadioButton::clicked, this, [this] {
        page.SetScientific(true);
        Changed();
    });
    connect(showPoint, &QCheckBox::clicked, this, [this](bool on) {
        page.SetShowPoint(on);
        Changed();
    });
    connect(leadSign, &QCheckBox::clicked, this, [this](bool on) {
        page.SetLeadSign(on);
        Changed();
    });
    connect(mathEditor, &QRadioButton::clicked, this,
            [this] { ShowRecord(PrecisionFormatPage::kMathEditor); });
    connect(variables, &QRadioButton::clicked, this,
            [this] { ShowRecord(PrecisionFormatPage::kVariables); });
    connect(applyToFile, &QRadioButton::clicked, this, [this] { ChooseTarget(false); });
    connect(applyToAll, &QRadioButton::clicked, this, [this] { ChooseTarget(true); });
}

void PrecisionFormatTab::LoadControls() {
    const PrecformType &shown = page.Shown();
    (page.ShownWindow() == PrecisionFormatPage::kMathEditor ? mathEditor : variables)
        ->setChecked(true);
    precision->setText(QString::number(shown.precision));
    (shown.format == kFormatScientific ? scientific : decimal)->setChecked(true);
    showPoint->setChecked(shown.show_decimal_point);
    leadSign->setChecked(shown.show_lead_sign);
    zeroPrecision->setText(QString::fromStdString(ZeroPrecisionText(shown.zero_precision)));
}

void PrecisionFormatTab::Changed() {
    sheet.PageChanged(OptionsSheetState::kPrecisionFormat);
}

void PrecisionFormatTab::StepPrecision(bool up) {
    if (up ? page.Higher() : page.Lower()) Changed();
    precision->setText(QString::number(page.Shown().precision));
}

void PrecisionFormatTab::StepZero(bool up) {
    const ZeroPrecisionStep step = page.StepZero(zeroPrecision->text().toStdString(), up);
    if (step.messageId != 0) {
        sheet.Bench().Messages().ShowPlain(this, FromBytes(OptionsMessageText(step.messageId)),
                                           FromBytes(OptionsMessageText(kPrecisionFormatTitle)),
                                           kBoxWarning);
        return;
    }
    zeroPrecision->setText(QString::fromStdString(step.text));
    if (step.changed) Changed();
}

void PrecisionFormatTab::ShowRecord(int window) {
    const int question = page.QuestionBeforeShowing(window);
    if (question != 0 && Ask(sheet, this, question) == kIdYes) Apply();
    page.ShowWindow(window);
    LoadControls();
}

void PrecisionFormatTab::ChooseTarget(bool all) {
    const int question = page.QuestionBeforeApplyTarget(all);
    page.SetApplyToAll(all);
    if (question != 0 && Ask(sheet, this, question) == kIdYes) Apply();
}

void PrecisionFormatTab::Apply() {
    const AppSettings settings = sheet.Bench().Settings();
    page.ApplyChanges(sheet.Documents(), sheet.Options(), &settings);
    sheet.PageUnchanged(OptionsSheetState::kPrecisionFormat);
}

// ---------------------------------------------------------------- Mathematical

MathOptionsTab::MathOptionsTab(OptionsSheet &owner)
    : sheet(owner), page(owner.Documents()[0]->Engine(), owner.Options()) {
    setAccessibleName(QStringLiteral("Mathematical"));
    QGroupBox *target = RadioPair(kApplyTarget, this, applyToFile, applyToAll);
    QGroupBox *trigGroup = RadioPair(kTrigPair, this, degrees, radians);
    QGroupBox *keysGroup = RadioPair(kKeysPair, this, enterComputes, shiftEnterComputes);
    auto *bracketsGroup = Group("Function Delimiters", this);
    squareBrackets = Check("Use square brackets [ ] for function delimiters", bracketsGroup);
    (new QVBoxLayout(bracketsGroup))->addWidget(squareBrackets);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(target);
    layout->addWidget(trigGroup);
    layout->addWidget(keysGroup);
    layout->addWidget(bracketsGroup);
    layout->addStretch(1);

    const SheetOptions &options = owner.Options();
    (options.applyTrigToAll ? applyToAll : applyToFile)->setChecked(true);
    (page.AngleMode() == 0 ? degrees : radians)->setChecked(true);
    (options.calculationMethod ? enterComputes : shiftEnterComputes)->setChecked(true);
    squareBrackets->setChecked(options.useSquareBrackets);

    // Each control stores its state in the page, which then counts as changed.
    using Store = void (MathOptionsPage::*)(bool);
    const std::pair<QAbstractButton *, Store> controls[] = {
        {applyToAll, &MathOptionsPage::SetApplyToAll},
        {enterComputes, &MathOptionsPage::SetCalculationMethod},
        {squareBrackets, &MathOptionsPage::SetUseSquareBrackets},
    };
    for (const auto &[control, store] : controls)
        connect(control, &QAbstractButton::toggled, this, [this, store = store](bool on) {
            (page.*store)(on);
            sheet.PageChanged(OptionsSheetState::kMathematical);
        });
    connect(radians, &QAbstractButton::toggled, this, [this](bool on) {
        page.SetAngleMode(on ? 1 : 0);
        sheet.PageChanged(OptionsSheetState::kMathematical);
    });
}

void MathOptionsTab::Apply() {
    const AppSettings settings = sheet.Bench().Settings();
    page.ApplyChanges(sheet.Documents(), sheet.Options(), &settings);
    sheet.PageUnchanged(OptionsSheetState::kMathematical);
}

// ---------------------------------------------------------------- Media Player

MediaPlayerTab::MediaPlayerTab(OptionsSheet &owner) : sheet(owner) {
    setAccessibleName(QStringLiteral("Media Player"));
    auto *pathGroup = Group("Executable File Path", this);
    path = Named(new QLineEdit(pathGroup), QStringLiteral("Executable File Path"));
    path->setReadOnly(true);
    find = Named(new QPushButton(QStringLiteral("..."), pathGroup),
                 QStringLiteral("Find media player"));
    find->setAutoDefault(false);
    auto *pathRow = new QHBoxLayout(pathGroup);
    pathRow->addWidget(path, 1);
    pathRow->addWidget(find);
    useDefault = Check("Use system default media player to play tutorials", this);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(pathGroup);
    layout->addWidget(useDefault);
    layout->addStretch(1);

    Workbench &bench = owner.Bench();
    page.Ask = [this, &bench](int id) {
        return bench.Messages().ShowPlain(
                   this, FromBytes(FindNumberedText(kMediaPlayerMessages, id)),
                   FromBytes(FindNumberedText(kMediaPlayerMessages, kMediaPlayerTitle)),
                   kBoxQuestionYesNo) == kIdYes;
    };
    page.Tell = [this, &bench](int id) {
        bench.Messages().ShowPlain(
            this, FromBytes(FindNumberedText(kMediaPlayerMessages, id)),
            FromBytes(FindNumberedText(kMediaPlayerMessages, kMediaPlayerTitle)), kBoxWarning);
    };
    page.ChoosePlayer = [this, &bench]() -> std::optional<std::string> {
        const QStringList chosen = bench.chooseOpenFiles(
            this, QStringLiteral("Media Player Executable"), QStringLiteral("/usr/bin"),
            QStringLiteral("Executable Files(*)"));
        if (chosen.isEmpty()) return std::nullopt;
        return chosen.front().toStdString();
    };

    const std::string stored = bench.Settings().MediaPlayerPath();
    std::string fallback;
    for (const char *player : {"vlc", "mpv", "totem", "celluloid", "dragon", "smplayer"}) {
        fallback = QStandardPaths::findExecutable(QString::fromLatin1(player)).toStdString();
        if (!fallback.empty()) break;
    }
    page.Setup(stored.empty() ? std::nullopt : std::optional<std::string>(stored), SystemPlayer(),
               fallback);
    Refresh();

    connect(find, &QPushButton::clicked, this, [this] {
        if (page.FindMediaPlayer()) sheet.PageChanged(OptionsSheetState::kMediaPlayer);
        Refresh();
    });
    connect(useDefault, &QCheckBox::clicked, this, [this](bool on) {
        page.ClickUseDefault(on, SystemPlayer());
        if (page.Changed()) sheet.PageChanged(OptionsSheetState::kMediaPlayer);
        Refresh();
    });
}

// The player the desktop names for the tutorials' files; empty without a tutorial to ask for.
std::string MediaPlayerTab::SystemPlayer() const {
    const QDir tutorials(QString::fromStdString(sheet.Bench().Folders().tutorialsDir));
    if (tutorials.entryList({QStringLiteral("*.wmv")}, QDir::Files).isEmpty()) return {};
    return default_application_for(QStringLiteral("video/x-ms-wmv")).program.toStdString();
}

void MediaPlayerTab::Refresh() {
    path->setText(QString::fromStdString(page.EditText()));
    useDefault->setChecked(page.UseDefault());
}

void MediaPlayerTab::Apply() {
    page.Apply(sheet.Bench().Settings());
    sheet.PageUnchanged(OptionsSheetState::kMediaPlayer);
}

}  // namespace quindar
