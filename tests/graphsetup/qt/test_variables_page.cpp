// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Variables page widget over a document of the desktop program: what it shows, a refused
// limit that keeps the focus with one message only, the veto on leaving, the axis choices.

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

#include "graph_pages_messages.h"
#include "page_fixture.h"
#include "setup_page_model.h"
#include "setup_session.h"
#include "variables_page.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

// A document with f(x, z) declared and a graph of it, and the Variables page over its session.
struct VariablesFixture : PageFixture {
    VariablesFixture()
        : PageFixture(make_variables_page, [](Parser &parser, GraphData &temp) {
              parser.eval_exp("f(x,z) = x*z", true, false);
              temp.AddFunction("f[x,z]", "");
          }) {
        page = qobject_cast<VariablesPage *>(made.widget);
    }

    VariablesPage *page = nullptr;
};

void Retype(QLineEdit *edit, const QString &text) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

}  // namespace

class VariablesPageTest : public QObject {
    Q_OBJECT
private slots:
    void theMakerGivesTheVariablesPageWithItsModel();
    void activationFillsListsAxesAndEdits();
    void everyControlIsNamed();
    void aRefusedLimitKeepsTheFocusWithOneMessage();
    void aTakenLimitLandsInTheWorkingCopy();
    void leavingThePageWithARefusedTextIsVetoed();
    void choosingTheZVariableInXSwapsTheAxes();
    void clearZAxisMakesTheGraphTwoDimensional();
    void editVariablesOpensTheManagerOnTheChosenRow();
    void aCheckThatTurnsLimitsRoundShowsThem();
    void screenshot();
};

void VariablesPageTest::theMakerGivesTheVariablesPageWithItsModel() {
    VariablesFixture f;
    QVERIFY(f.page != nullptr);
    QCOMPARE(f.made.model->Index(), int{kPageVariables});
    QCOMPARE(f.made.widget->parent(), &f.window);
}

void VariablesPageTest::activationFillsListsAxesAndEdits() {
    VariablesFixture f;
    QCOMPARE(f.page->FunctionsList()->count(), 1);
    QCOMPARE(f.page->FunctionsList()->item(0)->text(), QStringLiteral("f[x,z] = x*z"));
    QCOMPARE(f.page->CommonList()->item(0)->text(), QStringLiteral("x"));
    QCOMPARE(f.page->CommonList()->item(1)->text(), QStringLiteral("z"));
    QCOMPARE(f.page->AxisBox(false)->currentText(), QStringLiteral("x"));
    QCOMPARE(f.page->AxisBox(true)->currentText(), QStringLiteral("z"));
    const struct {
        AxisText text;
        const char *shown;
    } cases[] = {{kXLow, "1"}, {kXHigh, "10"}, {kXPoints, "25"},
                 {kZLow, "1"}, {kZHigh, "10"}, {kZPoints, "25"}};
    for (const auto &c : cases)
        QCOMPARE(f.page->Edit(c.text)->text(), QString::fromLatin1(c.shown));
    QVERIFY(f.session->temp.VariablesVisited);
    QCOMPARE(f.session->curPageId, 1003);
    QCOMPARE(f.ui.pageChanged, 0);
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void VariablesPageTest::everyControlIsNamed() {
    VariablesFixture f;
    int named = 0;
    for (QWidget *control : f.page->findChildren<QWidget *>()) {
        if (!control->property(kControlIdProperty).isValid()) continue;
        QVERIFY2(!control->accessibleName().isEmpty(), qPrintable(control->objectName()));
        ++named;
    }
    // Two lists, two combo boxes, six edits, two buttons.
    QCOMPARE(named, 12);
}

void VariablesPageTest::aRefusedLimitKeepsTheFocusWithOneMessage() {
    VariablesFixture f;
    QLineEdit *low = f.page->Edit(kXLow);
    QLineEdit *high = f.page->Edit(kXHigh);
    Retype(low, QStringLiteral("10"));
    QVERIFY(f.session->temp.NeedsData);
    f.ui.Expect(kMsgLimitsEqual);
    high->setFocus();
    QTRY_VERIFY(low->hasFocus());
    QTest::qWait(50);
    QCOMPARE(low->text(), QStringLiteral("1"));
    QCOMPARE(low->selectedText(), QStringLiteral("1"));
    QCOMPARE(f.ui.shown,
             QStringList{QStringLiteral("The lower And upper range limits can not be equal!")});
    QCOMPARE(f.session->temp.XAxisVar->low_limit.real, 1.0);
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void VariablesPageTest::aTakenLimitLandsInTheWorkingCopy() {
    VariablesFixture f;
    Retype(f.page->Edit(kXHigh), QStringLiteral("2*3.5"));
    Retype(f.page->Edit(kXPoints), QStringLiteral("40"));
    f.page->Edit(kZLow)->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(f.session->temp.XAxisVar->num_points, 40L);
    QCOMPARE(f.session->temp.XAxisVar->high_limit.real, 7.0);
    // The text stands as typed.
    QCOMPARE(f.page->Edit(kXHigh)->text(), QStringLiteral("2*3.5"));
    QVERIFY(f.ui.pageChanged > 0);
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void VariablesPageTest::leavingThePageWithARefusedTextIsVetoed() {
    VariablesFixture f;
    QLineEdit *points = f.page->Edit(kZPoints);
    Retype(points, QStringLiteral("1.5"));
    f.ui.Expect(kMsgPointsNotInteger);
    QVERIFY(!f.page->KillActive());
    QCOMPARE(points->text(), QStringLiteral("25"));
    QTRY_VERIFY(points->hasFocus());
    // Put right, the page may go.
    QVERIFY(f.page->KillActive());
    QCOMPARE(f.ui.shown.size(), 1);
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void VariablesPageTest::choosingTheZVariableInXSwapsTheAxes() {
    VariablesFixture f;
    QComboBox *x = f.page->AxisBox(false);
    Retype(f.page->Edit(kZPoints), QStringLiteral("7"));
    f.page->Edit(kXLow)->setFocus();
    QCoreApplication::processEvents();
    emit x->activated(x->findText(QStringLiteral("z")));
    QCOMPARE(x->currentText(), QStringLiteral("z"));
    QCOMPARE(f.page->AxisBox(true)->currentText(), QStringLiteral("x"));
    QCOMPARE(f.page->Edit(kXPoints)->text(), QStringLiteral("7"));
    QCOMPARE(f.session->temp.XAxisVar->name, std::string("z"));
    QCOMPARE(f.session->temp.XAxisTitle, std::string("z"));
    QVERIFY(f.session->temp.NeedsData);
}

void VariablesPageTest::clearZAxisMakesTheGraphTwoDimensional() {
    VariablesFixture f;
    QCOMPARE(f.session->temp.GetGraphType(), kGraph3D);
    f.page->findChild<QPushButton *>(QStringLiteral("control%1").arg(kControlClearZAxis))->click();
    QCOMPARE(f.session->temp.GetGraphType(), kGraph2D);
    QCOMPARE(f.page->AxisBox(true)->currentIndex(), -1);
    QVERIFY(f.page->Edit(kZLow)->text().isEmpty());
}

void VariablesPageTest::editVariablesOpensTheManagerOnTheChosenRow() {
    VariablesFixture f;
    f.page->CommonList()->setCurrentRow(1);
    f.page->findChild<QPushButton *>(QStringLiteral("control%1").arg(kControlEditVariables))
        ->click();
    QCOMPARE(f.ui.editedVariables, std::vector<std::string>{"z"});
    QVERIFY(f.session->temp.NeedsData);
}

void VariablesPageTest::aCheckThatTurnsLimitsRoundShowsThem() {
    VariablesFixture f;
    Retype(f.page->Edit(kXLow), QStringLiteral("20"));
    f.page->Edit(kZLow)->setFocus();
    QCoreApplication::processEvents();
    QVERIFY(f.made.model->CheckData(f.session->temp));
    QCOMPARE(f.page->Edit(kXLow)->text(), QStringLiteral("10"));
    QCOMPARE(f.page->Edit(kXHigh)->text(), QStringLiteral("20"));
    QVERIFY2(f.ui.Leftovers().isEmpty(), qPrintable(f.ui.Leftovers()));
}

void VariablesPageTest::screenshot() {
    VariablesFixture f;
    const QString path = QStringLiteral(QUINDAR_BUILD_DIR "graph_setup_variables.png");
    QVERIFY(f.window.grab().save(path));
}

QTEST_MAIN(VariablesPageTest)
#include "test_variables_page.moc"
