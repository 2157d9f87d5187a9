// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Options sheet on the desktop: pages made when first shown, OK and Apply over the made
// pages, the Apply button following the changes, the steppers at their limits, the questions
// of a view switch, and what reaches the documents and the options file.
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

#include "client_tools.h"
#include "command_table.h"
#include "desktop_folders.h"
#include "desktop_harness.h"
#include "document_area.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "options_sheet.h"
#include "options_sheet_pages.h"
#include "parser.h"
#include "workbench.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

QString IniText(DesktopHarness &harness) {
    QFile file(QString::fromStdString(harness.Bench().Folders().settingsPath));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

QPushButton *ApplyButton(OptionsSheet &sheet) {
    return sheet.Buttons().button(QDialogButtonBox::Apply);
}

void Click(QAbstractButton *button, int times = 1) {
    for (int at = 0; at < times; ++at) QTest::mouseClick(button, Qt::LeftButton);
}

}  // namespace

class OptionsSheetWindow : public QObject {
    Q_OBJECT
private slots:
    void commandRunsTheModalSheet();
    void okWithNoChangeWritesTheOptions();
    void pagesAreMadeWhenFirstShown();
    void precisionStopsAtItsLimits();
    void thresholdStepsWithinItsLimits();
    void applyFollowsTheChanges();
    void leavingAChangedViewAsksAboutIt();
    void angleGoesToOneDocumentBracketsToAll();
    void fromTheVariablesListTheVariablesShow();
    void enterPressesOk();
    void helpShowsThePagesTopic();
    void changingTheTargetAsksToApply();
    void mediaPlayerFromTheDesktopDefault();
};

void OptionsSheetWindow::commandRunsTheModalSheet() {
    DesktopHarness harness;
    harness.Bench().Router().Execute(command::kOptions);
    QCOMPARE(harness.dialogsRun, QStringList{QStringLiteral("Options")});
}

void OptionsSheetWindow::okWithNoChangeWritesTheOptions() {
    DesktopHarness harness;
    QVERIFY(!harness.Current()->IsDirty());
    QVERIFY(!IniText(harness).contains(QStringLiteral("CalculationMethod")));
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    QVERIFY(sheet.Buttons().button(QDialogButtonBox::Ok)->isDefault());
    Click(sheet.Buttons().button(QDialogButtonBox::Ok));
    QCOMPARE(sheet.result(), int(QDialog::Accepted));
    QVERIFY(harness.Current()->IsDirty());
    const QString ini = IniText(harness);
    for (const char *line :
         {"CalculationMethod=1", "UseSquareFunctionBrackets=0", "ShowCalcBar=1",
          "ApplyPrecisionFormatToAll=1", "ApplyTrigOptionsToAll=1", "Window Width=150"})
        QVERIFY2(ini.contains(QString::fromLatin1(line)), line);
    // The Media Player page was never shown, so its key stays unwritten.
    QVERIFY(!ini.contains(QStringLiteral("MediaPlayerPath")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void OptionsSheetWindow::pagesAreMadeWhenFirstShown() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    QCOMPARE(sheet.Tabs().count(), 3);
    QCOMPARE(sheet.Tabs().tabText(0), QStringLiteral("Precision/Format"));
    QCOMPARE(sheet.Tabs().tabText(1), QStringLiteral("Mathematical"));
    QCOMPARE(sheet.Tabs().tabText(2), QStringLiteral("Media Player"));
    QVERIFY(sheet.PrecisionPage() != nullptr);
    QVERIFY(sheet.MathPage() == nullptr);
    QVERIFY(sheet.MediaPage() == nullptr);
    sheet.Tabs().setCurrentIndex(1);
    QVERIFY(sheet.MathPage() != nullptr);
    QCOMPARE(sheet.Tabs().currentWidget(), sheet.MathPage());
    QCOMPARE(sheet.State().PagesToApply(), (std::vector<int>{0, 1}));
    QVERIFY(sheet.MediaPage() == nullptr);
    for (QWidget *child : sheet.findChildren<QWidget *>())
        if (child->isVisibleTo(&sheet) &&
            (qobject_cast<QAbstractButton *>(child) || qobject_cast<QLineEdit *>(child)))
            QVERIFY2(!child->accessibleName().isEmpty(), child->metaObject()->className());
}

void OptionsSheetWindow::precisionStopsAtItsLimits() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    PrecisionFormatTab &page = *sheet.PrecisionPage();
    Click(page.higher, 20);
    QCOMPARE(page.precision->text(), QStringLiteral("14"));
    Click(sheet.Buttons().button(QDialogButtonBox::Apply));
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    QCOMPARE(harness.Current()->Engine().answer_format->precision, 14);
    // A step past the limit changes nothing and leaves the page clean.
    Click(page.higher);
    QCOMPARE(page.precision->text(), QStringLiteral("14"));
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    Click(page.lower, 20);
    QCOMPARE(page.precision->text(), QStringLiteral("1"));
    QVERIFY(ApplyButton(sheet)->isEnabled());
}

void OptionsSheetWindow::thresholdStepsWithinItsLimits() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    PrecisionFormatTab &page = *sheet.PrecisionPage();
    const int start = page.zeroPrecision->text().mid(5).toInt();
    QCOMPARE(page.zeroPrecision->text(),
             QStringLiteral("1.0e-%1").arg(start, 2, 10, QLatin1Char('0')));
    Click(page.zeroDown, start - 9);
    QCOMPARE(page.zeroPrecision->text(), QStringLiteral("1.0e-09"));
    Click(page.zeroUp);
    QCOMPARE(page.zeroPrecision->text(), QStringLiteral("1.0e-10"));
    Click(page.zeroDown, 400);
    QCOMPARE(page.zeroPrecision->text(), QStringLiteral("1.0e-01"));
    Click(page.zeroUp, 400);
    QCOMPARE(page.zeroPrecision->text(), QStringLiteral("1.0e-307"));
    QVERIFY(ApplyButton(sheet)->isEnabled());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void OptionsSheetWindow::applyFollowsTheChanges() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    Click(sheet.PrecisionPage()->scientific);
    QVERIFY(ApplyButton(sheet)->isEnabled());
    Click(ApplyButton(sheet));
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    QCOMPARE(harness.Current()->Engine().answer_format->format, kFormatScientific);
    sheet.Tabs().setCurrentIndex(1);
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    Click(sheet.MathPage()->shiftEnterComputes);
    QVERIFY(ApplyButton(sheet)->isEnabled());
    Click(sheet.Buttons().button(QDialogButtonBox::Ok));
    QVERIFY(!harness.Bench().calculationMethod);
    QVERIFY(!harness.Current()->TextPane().Editor().CalculationMethod);
    QVERIFY(IniText(harness).contains(QStringLiteral("CalculationMethod=0")));
}

void OptionsSheetWindow::leavingAChangedViewAsksAboutIt() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    PrecisionFormatTab &page = *sheet.PrecisionPage();
    const int precision = harness.Current()->Engine().answer_format->precision;
    Click(page.lower);
    harness.boxes.Expect(
        QStringLiteral("Would You Like To Apply Your Latest Changes To The Math Editor?"), kIdNo);
    Click(page.variables);
    QCOMPARE(page.Model().ShownWindow(), int(PrecisionFormatPage::kVariables));
    QCOMPARE(harness.Current()->Engine().answer_format->precision, precision);
    harness.boxes.Expect(
        QStringLiteral(
            "Would You Like To Apply Your Latest Changes To The Currently Defined Variables?"),
        kIdYes);
    Click(page.mathEditor);
    QCOMPARE(harness.Current()->Engine().answer_format->precision, precision - 1);
    QCOMPARE(page.precision->text(), QString::number(precision - 1));
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void OptionsSheetWindow::angleGoesToOneDocumentBracketsToAll() {
    DesktopHarness harness;
    DocumentWindow *first = harness.Current();
    DocumentWindow *second = harness.Client().NewDocument();
    QCOMPARE(harness.Current(), second);
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    sheet.Tabs().setCurrentIndex(1);
    MathOptionsTab &page = *sheet.MathPage();
    Click(page.applyToFile);
    Click(page.radians);
    Click(page.squareBrackets);
    Click(sheet.Buttons().button(QDialogButtonBox::Ok));
    QCOMPARE(second->Engine().angle_mode, 1);
    QCOMPARE(first->Engine().angle_mode, 0);
    QVERIFY(second->Engine().use_square_brackets);
    QVERIFY(first->Engine().use_square_brackets);
    const QString ini = IniText(harness);
    QVERIFY(ini.contains(QStringLiteral("ApplyTrigOptionsToAll=0")));
    QVERIFY(ini.contains(QStringLiteral("UseSquareFunctionBrackets=1")));
}

void OptionsSheetWindow::fromTheVariablesListTheVariablesShow() {
    DesktopHarness harness;
    auto *list = new QListWidget(harness.Current());
    list->setAccessibleName(QStringLiteral("Variables List"));
    list->show();
    QApplication::setActiveWindow(&harness.Frame());
    list->setFocus();
    harness.Current()->Engine().variable_format->precision = 3;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    QVERIFY(sheet.PrecisionPage()->variables->isChecked());
    QCOMPARE(sheet.PrecisionPage()->precision->text(), QStringLiteral("3"));
}

void OptionsSheetWindow::mediaPlayerFromTheDesktopDefault() {
    QTemporaryDir desktop;
    const QString applications = desktop.path() + QStringLiteral("/data/applications");
    QDir().mkpath(applications);
    QDir().mkpath(desktop.path() + QStringLiteral("/tutorials"));
    QFile(desktop.path() + QStringLiteral("/tutorials/Intro.wmv")).open(QIODevice::WriteOnly);
    QFile entry(applications + QStringLiteral("/player.desktop"));
    QVERIFY(entry.open(QIODevice::WriteOnly));
    entry.write("[Desktop Entry]\nType=Application\nName=Player\nExec=/bin/true %U\n");
    entry.close();
    QFile cache(applications + QStringLiteral("/mimeinfo.cache"));
    QVERIFY(cache.open(QIODevice::WriteOnly));
    cache.write("[MIME Cache]\nvideo/x-ms-wmv=player.desktop;\n");
    cache.close();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(desktop.path() + QStringLiteral("/none")));
    qputenv("XDG_CONFIG_DIRS", QFile::encodeName(desktop.path() + QStringLiteral("/none")));
    qputenv("XDG_DATA_HOME", QFile::encodeName(desktop.path() + QStringLiteral("/data")));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(desktop.path() + QStringLiteral("/none")));
    DesktopHarness harness({}, [&](DesktopFolders &folders) {
        folders.tutorialsDir = (desktop.path() + QStringLiteral("/tutorials/")).toStdString();
    });
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    sheet.Tabs().setCurrentIndex(2);
    MediaPlayerTab &page = *sheet.MediaPage();
    QCOMPARE(page.path->text(), QStringLiteral("/bin/true"));
    QVERIFY(page.useDefault->isChecked());
    // Clearing the box asks first; No keeps the system's player.
    harness.boxes.Expect(
        QStringLiteral("Continuing will change the current media player, do you want to procede?"),
        kIdNo);
    Click(page.useDefault);
    QVERIFY(page.useDefault->isChecked());
    Click(sheet.Buttons().button(QDialogButtonBox::Ok));
    QVERIFY(IniText(harness).contains(QStringLiteral("MediaPlayerPath=/bin/true")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void OptionsSheetWindow::enterPressesOk() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    sheet.show();
    Click(sheet.PrecisionPage()->lower);
    QTest::keyClick(&sheet, Qt::Key_Return);
    QCOMPARE(sheet.result(), int(QDialog::Accepted));
    QVERIFY(IniText(harness).contains(QStringLiteral("ApplyPrecisionFormatToAll=1")));
}

void OptionsSheetWindow::changingTheTargetAsksToApply() {
    DesktopHarness harness;
    DocumentWindow *first = harness.Current();
    DocumentWindow *second = harness.Client().NewDocument();
    const int precision = second->Engine().answer_format->precision;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    PrecisionFormatTab &page = *sheet.PrecisionPage();
    Click(page.lower);
    harness.boxes.Expect(
        QStringLiteral("Would You Like To Apply Your Latest Changes To The Current File In Focus?"),
        kIdYes);
    Click(page.applyToFile);
    QCOMPARE(second->Engine().answer_format->precision, precision - 1);
    QCOMPARE(first->Engine().answer_format->precision, precision);
    QVERIFY(!ApplyButton(sheet)->isEnabled());
    // With nothing changed the other radio asks nothing.
    Click(page.applyToAll);
    QVERIFY(IniText(harness).contains(QStringLiteral("ApplyPrecisionFormatToAll=0")));
    QVERIFY2(harness.Leftovers().isEmpty(), qPrintable(harness.Leftovers()));
}

void OptionsSheetWindow::helpShowsThePagesTopic() {
    DesktopHarness harness;
    OptionsSheet sheet(harness.Bench(), &harness.Frame());
    for (int page = 0; page < 3; ++page) {
        sheet.Tabs().setCurrentIndex(page);
        Click(sheet.Buttons().button(QDialogButtonBox::Help));
    }
    QCOMPARE(harness.services.helpTopics, (QList<int>{19406, 19407, 19492}));
    QCOMPARE(sheet.result(), 0);
}

QTEST_MAIN(OptionsSheetWindow)
#include "test_options_sheet.moc"
