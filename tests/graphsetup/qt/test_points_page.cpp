// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Points page of Graph Setup inside a document of the desktop program: typing into the
// grid, scrolling, Insert and Delete, point files through the file dialogs, and a refused
// cell that keeps the focus without a loop.

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>
#include <deque>
#include <memory>

#include "desktop_harness.h"
#include "document_window.h"
#include "graph_data.h"
#include "message_box_rules.h"
#include "points_messages.h"
#include "points_page.h"
#include "points_page_model.h"
#include "points_set_name_dialog.h"
#include "setup_page_widgets.h"
#include "setup_session.h"
#include "setup_ui.h"

using namespace quindar;
using namespace quindar::testing;

namespace {

const QString kData = QStringLiteral(QUINDAR_SOURCE_DIR "tests/graphsetup/data/");

// Answers the page's boxes from a script, in order; any other box is noted as unexpected.
class ScriptedSetupUi final : public SetupUi {
public:
    void Expect(int id, int answer = kIdOk) { script.push_back({id, answer}); }
    int Message(int textId, std::initializer_list<std::string_view>, unsigned) override {
        shown << textId;
        return Answer(textId);
    }
    void Sound(std::string_view) override {}
    void SelectPage(int index) override { selected << index; }
    int ShowingPage() const override { return kPagePoints; }
    void FocusControl(int, int) override {}
    void PageChanged() override { ++changed; }
    void PageUnchanged(int) override {}
    void FocusEditor() override {}
    bool AddEditFunction(const std::string &, const std::string &) override { return false; }
    bool EditVariable(const std::string &) override { return false; }
    void ShowText(std::string_view text, std::string_view) override {
        texts << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        Answer(0);
    }
    void AddError(std::string_view) override {}

    QList<int> shown, selected, unexpected;
    QStringList texts;
    int changed = 0;
    std::deque<std::pair<int, int>> script;

private:
    int Answer(int id) {
        if (script.empty() || script.front().first != id) {
            unexpected << id;
            return kIdCancel;
        }
        const int answer = script.front().second;
        script.pop_front();
        return answer;
    }
};

}  // namespace

class PointsPageTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void typedPointsGoIntoTheSet();
    void theSpinnerAndLastScrollTheGrid();
    void insertAndDeleteFollowTheSelectedRow();
    void aPointFileLoadsThroughTheDialog();
    void aBadPointFileLoadsNothing();
    void aRefusedCellKeepsTheFocusWithoutALoop();
    void theSetNameDialogRefusesATakenName();
    void setsAreAddedChosenAndRemovedFromTheList();
    void nextLeadsToTypesOnceTheCheckPasses();
    void everyControlHasAnAccessibleName();
    void screenshot();

private:
    StrDataPnts &AddSet(const char *name, int points);
    void Show();
    QLineEdit *Cell(PointCell cell) { return page->CellEdit(cell); }
    template <class T>
    T *Child(const char *name) {
        return page->findChild<T *>(QLatin1String(name));
    }
    void Click(const char *button) {
        auto *b = Child<QPushButton>(button);
        QVERIFY(b != nullptr);
        QVERIFY(b->isEnabled());
        QTest::mouseClick(b, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    void FocusAndWait(QWidget *widget) {
        widget->setFocus(Qt::MouseFocusReason);
        QCoreApplication::processEvents();
        QTRY_COMPARE(QApplication::focusWidget(), widget);
    }

    std::unique_ptr<DesktopHarness> harness;
    std::unique_ptr<GraphSetupSession> session;
    ScriptedSetupUi ui;
    std::unique_ptr<SetupPageContext> context;
    std::unique_ptr<QWidget> host;
    MadeSetupPage made;
    PointsPage *page = nullptr;
    PointsPageModel *model = nullptr;
};

void PointsPageTest::init() {
    harness = std::make_unique<DesktopHarness>();
    DocumentWindow &document = *harness->Current();
    GraphData *graph = add_new_graph(document.Content().graphs, "G", nullptr);
    document.Content().currentGraph = graph;
    session = std::make_unique<GraphSetupSession>(document.Engine(), document.Content());
    ui = ScriptedSetupUi();
    context = std::make_unique<SetupPageContext>(
        SetupPageContext{harness->Bench(), document, *session, ui});
    host = std::make_unique<QWidget>();
    host->setWindowTitle(QStringLiteral("Graph Setup"));
    auto *layout = new QVBoxLayout(host.get());
    made = make_points_page(*context, host.get());
    layout->addWidget(made.widget);
    page = static_cast<PointsPage *>(made.widget);
    model = static_cast<PointsPageModel *>(made.model.get());
    session->pages[kPagePoints] = model;
}

void PointsPageTest::cleanup() {
    QVERIFY2(ui.unexpected.isEmpty(), "a box came that the test did not expect");
    QVERIFY2(ui.script.empty(), "a scripted box never came");
    host.reset();
    made.model.reset();
    context.reset();
    session.reset();
    QVERIFY2(harness->Leftovers().isEmpty(), qPrintable(harness->Leftovers()));
    harness.reset();
}

StrDataPnts &PointsPageTest::AddSet(const char *name, int points) {
    StrDataPnts *set = session->temp.DataSets.add();
    set->SetName(name);
    for (int i = 0; i < points; ++i) {
        set->PutXDataPoint(std::to_string(i + 1).c_str(), i);
        set->PutYDataPoint(std::to_string((i + 1) * (i + 1)).c_str(), i);
    }
    if (session->temp.CurDataSet == nullptr) session->temp.CurDataSet = set;
    return *set;
}

void PointsPageTest::Show() {
    host->resize(560, 460);
    host->show();
    QVERIFY(QTest::qWaitForWindowExposed(host.get()));
    // Real focus needs the window active: always so offscreen; on a display without a window
    // manager only the screenshot runs.
    QApplication::setActiveWindow(host.get());
    host->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(host.get(), 2000));
    page->SetActive();
}

void PointsPageTest::typedPointsGoIntoTheSet() {
    StrDataPnts &set = AddSet("Squares", 0);
    Show();
    FocusAndWait(Cell({PointColumn::X, 1}));
    QTest::keyClicks(Cell({PointColumn::X, 1}), QStringLiteral("2*PI"));
    QTest::keyClick(Cell({PointColumn::X, 1}), Qt::Key_Tab);  // Tab goes right, to Y1
    QTRY_COMPARE(QApplication::focusWidget(), Cell({PointColumn::Y, 1}));
    QCOMPARE(QString::fromUtf8(set.GetXDataPoint(0)), QStringLiteral("2*PI"));
    QTest::keyClicks(Cell({PointColumn::Y, 1}), QStringLiteral(" 3"));
    QTest::keyClick(Cell({PointColumn::Y, 1}), Qt::Key_Return);  // Enter goes down
    QTRY_COMPARE(QApplication::focusWidget(), Cell({PointColumn::Y, 2}));
    QCOMPARE(QString::fromUtf8(set.GetYDataPoint(0)), QStringLiteral("3"));
    QCOMPARE(Cell({PointColumn::Y, 1})->text(), QStringLiteral("3"));  // blanks dropped
    QCOMPARE(Child<QLabel>("pointCount")->text(), QStringLiteral("Number Of Points : 1"));
    QVERIFY(session->content.currentGraph->Modified);
    QVERIFY(ui.changed > 0);
}

void PointsPageTest::theSpinnerAndLastScrollTheGrid() {
    AddSet("Squares", 10);
    Show();
    QVERIFY(!Child<QPushButton>("first")->isEnabled());
    Child<QScrollBar>("pointSpinner")->setValue(3);
    QCOMPARE(model->Grid().TopPoint, 3);
    QCOMPARE(Cell({PointColumn::X, 1})->text(), QStringLiteral("4"));
    QCOMPARE(Child<QRadioButton>("row1")->text(), QStringLiteral("Pt 4"));
    Click("last");
    QCOMPARE(model->Grid().TopPoint, 6);
    QCOMPARE(Cell({PointColumn::Y, 4})->text(), QStringLiteral("100"));
    QCOMPARE(Cell({PointColumn::X, 5})->text(), QString());
    QCOMPARE(Child<QScrollBar>("pointSpinner")->value(), 6);
    QVERIFY(!Child<QPushButton>("last")->isEnabled());
    Click("first");
    QCOMPARE(model->Grid().TopPoint, 0);
    // The arrow keys scroll past the grid's edge.
    FocusAndWait(Cell({PointColumn::X, 5}));
    QTest::keyClick(Cell({PointColumn::X, 5}), Qt::Key_Down);
    QCOMPARE(model->Grid().TopPoint, 1);
    QCOMPARE(Cell({PointColumn::X, 5})->text(), QStringLiteral("6"));
}

void PointsPageTest::insertAndDeleteFollowTheSelectedRow() {
    StrDataPnts &set = AddSet("Squares", 3);
    Show();
    QVERIFY(!Child<QPushButton>("insert")->isEnabled());
    QTest::mouseClick(Child<QRadioButton>("row2"), Qt::LeftButton);
    QVERIFY(Child<QRadioButton>("row2")->isChecked());
    Click("insert");
    QCOMPARE(set.GetXDataPoint(1), nullptr);
    QCOMPARE(QString::fromUtf8(set.GetXDataPoint(2)), QStringLiteral("2"));
    QCOMPARE(Cell({PointColumn::X, 2})->text(), QString());
    QCOMPARE(Child<QLabel>("pointCount")->text(), QStringLiteral("Number Of Points : 4"));
    Click("delete");
    Click("delete");
    QCOMPARE(QString::fromUtf8(set.GetXDataPoint(1)), QStringLiteral("3"));
    QCOMPARE(Child<QLabel>("pointCount")->text(), QStringLiteral("Number Of Points : 2"));
    // The selected row shows in the highlight colour.
    const QPalette selected = Cell({PointColumn::X, 2})->palette();
    QCOMPARE(selected.color(QPalette::Base), page->palette().color(QPalette::Highlight));
}

void PointsPageTest::aPointFileLoadsThroughTheDialog() {
    Show();
    harness->nextOpenFiles = {kData + "squares.txt"};
    Click("loadFile");
    QCOMPARE(harness->dialogTitles, QStringList{QStringLiteral("Open Data Point File")});
    QCOMPARE(session->temp.DataSets.count(), 1);
    QCOMPARE(QString::fromStdString(session->temp.CurDataSet->Name), QStringLiteral("squares.txt"));
    QCOMPARE(Child<QLabel>("pointCount")->text(), QStringLiteral("Number Of Points : 3"));
    QCOMPARE(Cell({PointColumn::Y, 3})->text(), QStringLiteral("9"));
    QCOMPARE(Child<QComboBox>("setName")->currentText(), QStringLiteral("squares.txt"));

    // Saved again through the save dialog, the file reads the same.
    const QString copy = harness->Folder() + QStringLiteral("/copy.txt");
    harness->nextSaveFile = copy;
    Click("saveFile");
    QFile file(copy);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("1, 2\n2, 4\n3, 9\n"));
}

void PointsPageTest::aBadPointFileLoadsNothing() {
    Show();
    harness->nextOpenFiles = {kData + "missing.txt"};
    ui.Expect(0);
    Click("loadFile");
    QCOMPARE(ui.texts, QStringList{QStringLiteral("Data File ' ") + kData +
                                   QStringLiteral("missing.txt ' Could Not Be Located!")});
    harness->nextOpenFiles = {kData + "labels_only.txt"};
    ui.Expect(kMsgNoDataInFile);
    Click("loadFile");
    QCOMPARE(session->temp.DataSets.count(), 0);
    QCOMPARE(Child<QComboBox>("setName")->count(), 0);
    QVERIFY(!Cell({PointColumn::X, 1})->isEnabled());
}

void PointsPageTest::aRefusedCellKeepsTheFocusWithoutALoop() {
    StrDataPnts &set = AddSet("Squares", 2);
    Show();
    QLineEdit *x1 = Cell({PointColumn::X, 1});
    FocusAndWait(x1);
    x1->selectAll();
    QTest::keyClicks(x1, QStringLiteral("1+i"));
    ui.Expect(kMsgNotReal);
    Cell({PointColumn::Y, 2})->setFocus(Qt::MouseFocusReason);
    QTRY_COMPARE(QApplication::focusWidget(), x1);
    QTest::qWait(50);  // nothing more happens: no second box, no focus going to and fro
    QCOMPARE(ui.shown, QList<int>{kMsgNotReal});
    QCOMPARE(QApplication::focusWidget(), x1);
    QCOMPARE(QString::fromUtf8(set.GetXDataPoint(0)), QStringLiteral("1"));
    QCOMPARE(x1->text(), QStringLiteral("1+i"));
    // The page refuses to be left while the cell holds the text.
    ui.Expect(kMsgNotReal);
    QVERIFY(!page->KillActive());
    QCoreApplication::processEvents();  // the focus comes back after the refusal
    QCOMPARE(QApplication::focusWidget(), x1);
    QVERIFY(!model->Grid().AnyError());
    x1->selectAll();
    QTest::keyClicks(x1, QStringLiteral("5"));
    QVERIFY(page->KillActive());
    QCOMPARE(QString::fromUtf8(set.GetXDataPoint(0)), QStringLiteral("5"));
}

void PointsPageTest::theSetNameDialogRefusesATakenName() {
    AddSet("Squares", 1);
    AddSet("Cubes", 1);
    Show();
    Click("editSetName");
    auto *dialog = page->findChild<PointsSetNameDialog *>();
    QVERIFY(dialog != nullptr);
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->NameEdit()->text(), QStringLiteral("Squares"));
    dialog->NameEdit()->setText(QStringLiteral("Cub"));
    ui.Expect(kMsgSetNameUsed);
    dialog->accept();
    QVERIFY(dialog->isVisible());
    dialog->NameEdit()->setText(QStringLiteral("Powers"));
    dialog->accept();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(QString::fromStdString(session->temp.DataSets.gethead()->Name),
             QStringLiteral("Powers"));
    QCOMPARE(Child<QComboBox>("setName")->itemText(0), QStringLiteral("Powers"));
}

void PointsPageTest::setsAreAddedChosenAndRemovedFromTheList() {
    Show();
    auto *combo = Child<QComboBox>("setName");
    QVERIFY(!Child<QPushButton>("removeSet")->isEnabled());
    combo->setEditText(QStringLiteral("Heights"));
    Click("addSet");
    combo->setEditText(QString());
    Click("addSet");
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->currentText(), QStringLiteral("DataSet1"));
    QVERIFY(Child<QPushButton>("prevSet")->isEnabled());
    QVERIFY(!Child<QPushButton>("nextSet")->isEnabled());
    Click("prevSet");
    QCOMPARE(QString::fromStdString(session->temp.CurDataSet->Name), QStringLiteral("Heights"));
    QCOMPARE(combo->currentText(), QStringLiteral("Heights"));
    combo->setCurrentIndex(1);
    emit combo->activated(1);
    QCOMPARE(QString::fromStdString(session->temp.CurDataSet->Name), QStringLiteral("DataSet1"));
    Click("removeSet");  // empty: no question
    QCOMPARE(combo->count(), 1);
    QCOMPARE(combo->currentText(), QStringLiteral("Heights"));
    QVERIFY(ui.changed > 0);
}

void PointsPageTest::nextLeadsToTypesOnceTheCheckPasses() {
    StrDataPnts &set = AddSet("Squares", 2);
    set.PutYDataPoint(nullptr, 1);
    Show();
    ui.Expect(kMsgXYCountsDiffer);
    page->Next();
    QCOMPARE(ui.selected, QList<int>{kPagePoints});
    FocusAndWait(Cell({PointColumn::Y, 2}));
    QTest::keyClicks(Cell({PointColumn::Y, 2}), QStringLiteral("4"));
    page->Next();
    QCOMPARE(ui.selected.back(), int(kPageTypes));
    page->Prev();
    QCOMPARE(ui.selected.back(), int(kPageGraphs));
}

void PointsPageTest::everyControlHasAnAccessibleName() {
    AddSet("Squares", 1);
    Show();
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || qobject_cast<QLabel *>(widget)) continue;
        // The combo box's own edit and popup list speak for it.
        bool inCombo = false;
        for (QObject *up = widget->parent(); up; up = up->parent())
            inCombo = inCombo || qobject_cast<QComboBox *>(up) != nullptr;
        if (inCombo) continue;
        QVERIFY2(!widget->accessibleName().isEmpty(),
                 qPrintable(widget->metaObject()->className() + widget->objectName()));
    }
    QCOMPARE(Cell({PointColumn::Y, 2})->accessibleName(), QStringLiteral("Y of point 2"));
}

void PointsPageTest::screenshot() {
    StrDataPnts &set = AddSet("Temperatures", 8);
    set.PutYDataPoint("2*PI", 2);
    set.PutZDataPoint("0.5");
    AddSet("Pressures", 8).PutZDataPoint("1.5");
    Show();
    QTest::mouseClick(Child<QRadioButton>("row3"), Qt::LeftButton);
    QVERIFY(QDir().mkpath(QStringLiteral(QUINDAR_BUILD_DIR "screens")));
    QVERIFY(host->grab().save(QStringLiteral(QUINDAR_BUILD_DIR "screens/points_page.png")));
}

QTEST_MAIN(PointsPageTest)
#include "test_points_page.moc"
