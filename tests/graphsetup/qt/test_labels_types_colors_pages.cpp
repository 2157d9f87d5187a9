// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Labels, Types and Colors page widgets over a document of the desktop program: edits
// that change only the looks, the controls of the graph's own dimension, the colour dialog
// with the custom colours kept in the settings.

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include "app_settings.h"
#include "color_button.h"
#include "colors_page.h"
#include "graph_pages_messages.h"
#include "graph_types.h"
#include "labels_page.h"
#include "page_fixture.h"
#include "setup_page_model.h"
#include "types_page.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

// A document with f(x) declared and a graph of it on X, and one page over its session;
// `threeD` puts a Z variable on the graph as well. The marks start cleared.
struct LooksFixture : PageFixture {
    LooksFixture(PageMaker maker, bool threeD)
        : PageFixture(maker, [threeD](Parser &parser, GraphData &temp) {
              parser.eval_exp("f(x) = x^2", true, false);
              temp.AddFunction("f[x]", "");
              const Variable x("x", complex{0, 0}, complex{2, 0}, 5);
              temp.SetXAxisVar(&x);
              if (!threeD) return;
              const Variable z("z", complex{0, 0}, complex{1, 0}, 5);
              temp.SetZAxisVar(&z);
          }) {
        Temp().NeedsData = false;
        Temp().NeedsAttributes = false;
    }
};

int NamedControlsWithoutNames(QWidget *page) {
    int missing = 0;
    for (QWidget *control : page->findChildren<QWidget *>())
        if (control->property(kControlIdProperty).isValid() && control->accessibleName().isEmpty())
            ++missing;
    return missing;
}

// Answers the colour dialog that opens next: `color` chosen, custom colour `slot` changed.
void AnswerColorDialog(const QColor &color, int slot, const QColor &custom, bool accept) {
    QTimer::singleShot(0, [=] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            QTest::qFail("no colour dialog", __FILE__, __LINE__);
            if (QWidget *other = QApplication::activeModalWidget()) other->close();
            return;
        }
        dialog->setCurrentColor(color);
        QColorDialog::setCustomColor(slot, custom);
        if (accept)
            dialog->accept();
        else
            dialog->reject();
    });
}

}  // namespace

class LabelsTypesColorsTest : public QObject {
    Q_OBJECT
private slots:
    void labelsShowTheWorkingCopy();
    void aThreeDimensionalGraphHasAZTitle();
    void typingAHeaderMarksOnlyTheLooks();
    void anAxisTitleClearedToTheLastCharacterComesBackWhole();
    void aChosenRowShowsAndTakesItsLabel();
    void setDefaultTitlesRefillsTheEdits();
    void typesOfATwoDimensionalGraph();
    void typesOfAThreeDimensionalGraph();
    void colorsHideTheMeshAndSurfaceOfATwoDimensionalGraph();
    void aColourChosenInTheDialogLandsAndTheCustomColoursAreKept();
    void aCancelledDialogChangesNoColour();
    void setDefaultPaintsTheButtonsAgain();
    void screenshots();
};

void LabelsTypesColorsTest::labelsShowTheWorkingCopy() {
    LooksFixture f(make_labels_page, false);
    auto *page = qobject_cast<LabelsPage *>(f.made.widget);
    QVERIFY(page != nullptr);
    QCOMPARE(f.made.model->Index(), int{kPageLabels});
    QCOMPARE(page->HeaderEdit()->text(), QStringLiteral("Header"));
    QCOMPARE(page->TitleEdit(kTitleX)->text(), QStringLiteral("x"));
    QCOMPARE(page->TitleEdit(kTitleY)->text(), QStringLiteral("f"));
    QVERIFY(!page->TitleEdit(kTitleZ)->isEnabled());
    QCOMPARE(page->Rows()->count(), 1);
    QCOMPARE(page->Rows()->item(0)->text(), QStringLiteral("f[x] = x^2"));
    QCOMPARE(NamedControlsWithoutNames(page), 0);
    QVERIFY(f.Temp().LabelsVisited);
    QCOMPARE(f.ui.pageChanged, 0);
}

void LabelsTypesColorsTest::aThreeDimensionalGraphHasAZTitle() {
    LooksFixture f(make_labels_page, true);
    auto *page = qobject_cast<LabelsPage *>(f.made.widget);
    QLineEdit *title = page->TitleEdit(kTitleZ);
    QVERIFY(title->isEnabled());
    QCOMPARE(title->text(), QStringLiteral("z"));
    title->setFocus();
    QTest::keyClicks(title, QStringLiteral("2"));
    QCOMPARE(f.Temp().ZAxisTitle, std::string("z2"));
    QVERIFY(f.Temp().ZTitleSet);
}

void LabelsTypesColorsTest::typingAHeaderMarksOnlyTheLooks() {
    LooksFixture f(make_labels_page, false);
    auto *page = qobject_cast<LabelsPage *>(f.made.widget);
    page->HeaderEdit()->setFocus();
    QTest::keyClicks(page->HeaderEdit(), QStringLiteral("!"));
    QCOMPARE(f.Temp().Header, std::string("Header!"));
    QVERIFY(f.Temp().NeedsAttributes);
    QVERIFY(!f.Temp().NeedsData);
    QVERIFY(f.ui.pageChanged > 0);
}

void LabelsTypesColorsTest::anAxisTitleClearedToTheLastCharacterComesBackWhole() {
    LooksFixture f(make_labels_page, false);
    auto *page = qobject_cast<LabelsPage *>(f.made.widget);
    QLineEdit *title = page->TitleEdit(kTitleY);
    title->setFocus();
    QTest::keyClicks(title, QStringLiteral("un"));
    QCOMPARE(f.Temp().YAxisTitle, std::string("fun"));
    QVERIFY(f.Temp().YTitleSet);
    QTest::keyClick(title, Qt::Key_Backspace);
    QTest::keyClick(title, Qt::Key_Backspace);
    QCOMPARE(f.ui.shown.size(), 0);
    f.ui.Expect(kMsgAxisNeedsTitle);
    QTest::keyClick(title, Qt::Key_Backspace);
    QCOMPARE(f.ui.shown, QStringList{QStringLiteral("All your graph axes must have a label.")});
    QCOMPARE(title->text(), QStringLiteral("f"));
    QCOMPARE(f.Temp().YAxisTitle, std::string("f"));
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void LabelsTypesColorsTest::aChosenRowShowsAndTakesItsLabel() {
    LooksFixture f(make_labels_page, false);
    auto *page = qobject_cast<LabelsPage *>(f.made.widget);
    f.Temp().GetFunction(0)->SetFuncLabel("parabola");
    page->Rows()->setCurrentRow(-1);
    page->Rows()->setCurrentRow(0);
    QCOMPARE(page->LabelEdit()->text(), QStringLiteral("parabola"));
    page->LabelEdit()->setFocus();
    QTest::keyClicks(page->LabelEdit(), QStringLiteral("s"));
    QCOMPARE(f.Temp().GetFunction(0)->label, std::string("parabolas"));
    QVERIFY(f.Temp().NeedsAttributes);
}

void LabelsTypesColorsTest::setDefaultTitlesRefillsTheEdits() {
    LooksFixture f(make_labels_page, false);
    auto *page = qobject_cast<LabelsPage *>(f.made.widget);
    page->TitleEdit(kTitleX)->setText(QStringLiteral("Time"));
    QCOMPARE(f.Temp().XAxisTitle, std::string("Time"));
    page->findChild<QPushButton *>(QStringLiteral("control%1").arg(kControlSetDefaultTitles))
        ->click();
    QCOMPARE(page->TitleEdit(kTitleX)->text(), QStringLiteral("x"));
    QCOMPARE(page->FooterEdit()->text(), QStringLiteral("f[x]"));
}

void LabelsTypesColorsTest::typesOfATwoDimensionalGraph() {
    LooksFixture f(make_types_page, false);
    auto *page = qobject_cast<TypesPage *>(f.made.widget);
    QVERIFY(page != nullptr);
    QCOMPARE(f.made.model->Index(), int{kPageTypes});
    QCOMPARE(NamedControlsWithoutNames(page), 0);
    QVERIFY(page->TwoDGroup()->isEnabled());
    QVERIFY(!page->ThreeDGroup()->isEnabled());
    QVERIFY(page->TypeButton(1)->isChecked());
    for (const GraphAttribute3DInfo &info : graph_attributes_3d())
        QVERIFY(!page->AttributeButton(info.controlId)->isChecked());
    // Every type of the table has its button, named as the table says.
    for (const GraphType2DInfo &type : graph_types_2d())
        QCOMPARE(page->TypeButton(type.stored)->text(), QString::fromLatin1(type.name));
    page->TypeButton(4)->click();
    QCOMPARE(f.Temp().GraphType2D, 4);
    QVERIFY(f.Temp().NeedsAttributes);
    QVERIFY(!f.Temp().NeedsData);
    QCOMPARE(f.Temp().GetGraphType(), kGraph2D);
}

void LabelsTypesColorsTest::typesOfAThreeDimensionalGraph() {
    LooksFixture f(make_types_page, true);
    auto *page = qobject_cast<TypesPage *>(f.made.widget);
    QVERIFY(!page->TwoDGroup()->isEnabled());
    QVERIFY(page->ThreeDGroup()->isEnabled());
    for (QAbstractButton *button : page->TwoDGroup()->findChildren<QAbstractButton *>())
        QVERIFY(!button->isChecked());
    const struct {
        int controlId;
        bool checked;
    } shown[] = {{24738, true},  {24739, true},  {24740, true},  {24741, true},
                 {24744, false}, {24745, false}, {24742, false}, {kSurfaceControlId, true}};
    for (const auto &s : shown)
        QCOMPARE(page->AttributeButton(s.controlId)->isChecked(), s.checked);
    page->AttributeButton(24744)->click();
    page->AttributeButton(24742)->click();
    page->AttributeButton(24738)->click();
    QCOMPARE(f.Temp().GraphType3D, 1011110);
    QVERIFY(!page->AttributeButton(kSurfaceControlId)->isChecked());
    page->AttributeButton(kSurfaceControlId)->click();
    QCOMPARE(f.Temp().GraphType3D, 11110);
    QVERIFY(f.Temp().NeedsAttributes);
    QVERIFY(!f.Temp().NeedsData);
    QCOMPARE(f.ui.pageChanged, 4);
}

void LabelsTypesColorsTest::colorsHideTheMeshAndSurfaceOfATwoDimensionalGraph() {
    for (const bool threeD : {false, true}) {
        LooksFixture f(make_colors_page, threeD);
        auto *page = qobject_cast<ColorsPage *>(f.made.widget);
        QVERIFY(page != nullptr);
        QCOMPARE(f.made.model->Index(), int{kPageColors});
        QCOMPARE(NamedControlsWithoutNames(page), 0);
        const auto table = color_buttons();
        for (std::size_t i = 0; i < table.size(); ++i) {
            const bool shown = threeD || !table[i].only3D;
            QCOMPARE(page->Button(i)->isVisible(), shown);
            QCOMPARE(page->Caption(i)->isVisible(), shown);
            QCOMPARE(page->Caption(i)->text(), QString::fromLatin1(table[i].caption));
        }
        QCOMPARE(page->Button(0)->Color(), QColor(64, 128, 128));
    }
}

void LabelsTypesColorsTest::aColourChosenInTheDialogLandsAndTheCustomColoursAreKept() {
    LooksFixture f(make_colors_page, false);
    auto *page = qobject_cast<ColorsPage *>(f.made.widget);
    AnswerColorDialog(QColor(10, 20, 30), 2, QColor(200, 100, 50), true);
    page->Button(4)->click();
    QCOMPARE(f.Temp().DataAreaBackgroundColor, TColor(10, 20, 30));
    QCOMPARE(page->Button(4)->Color(), QColor(10, 20, 30));
    QVERIFY(f.Temp().NeedsAttributes);
    QVERIFY(!f.Temp().NeedsData);
    QCOMPARE(f.ui.pageChanged, 1);
    // On disk at once, under "Custom Colors" of the user's settings.
    QCOMPARE(f.harness.Bench().Settings().CustomColor(3), TColor(200, 100, 50));
}

void LabelsTypesColorsTest::aCancelledDialogChangesNoColour() {
    LooksFixture f(make_colors_page, false);
    auto *page = qobject_cast<ColorsPage *>(f.made.widget);
    AnswerColorDialog(QColor(10, 20, 30), 5, QColor(1, 2, 3), false);
    page->Button(0)->click();
    QCOMPARE(f.Temp().BackgroundColor, TColor(64, 128, 128));
    QCOMPARE(f.ui.pageChanged, 0);
    // The dialog's custom colours are kept all the same.
    QCOMPARE(f.harness.Bench().Settings().CustomColor(6), TColor(1, 2, 3));
}

void LabelsTypesColorsTest::setDefaultPaintsTheButtonsAgain() {
    LooksFixture f(make_colors_page, true);
    auto *page = qobject_cast<ColorsPage *>(f.made.widget);
    f.Temp().SurfaceTopColor = TColor(1, 1, 1);
    f.ui.Expect(kMsgLoadDefaultColors, kIdYes);
    page->SetDefaultButton()->click();
    QCOMPARE(f.Temp().SurfaceTopColor, TColor(255, 255, 255));
    QCOMPARE(page->Button(15)->Color(), QColor(255, 255, 255));
    f.ui.Expect(kMsgSaveDefaultColors, kIdNo);
    page->SaveAsDefaultButton()->click();
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void LabelsTypesColorsTest::screenshots() {
    const struct {
        PageMaker maker;
        bool threeD;
        const char *file;
    } pages[] = {
        {make_labels_page, false, "graph_setup_labels.png"},
        {make_types_page, false, "graph_setup_types_2d.png"},
        {make_types_page, true, "graph_setup_types_3d.png"},
        {make_colors_page, false, "graph_setup_colors_2d.png"},
        {make_colors_page, true, "graph_setup_colors_3d.png"},
    };
    for (const auto &p : pages) {
        LooksFixture f(p.maker, p.threeD);
        QVERIFY(f.window.grab().save(QStringLiteral(QUINDAR_BUILD_DIR) + QLatin1String(p.file)));
    }
}

QTEST_MAIN(LabelsTypesColorsTest)
#include "test_labels_types_colors_pages.moc"
