// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "points_data_sets.h"
#include "points_fixture.h"
#include "points_messages.h"

namespace quindar::testing {
namespace {

using PointsPage = PointsFixture;
const std::string kData = QUINDAR_TEST_DATA_DIR "/";

std::string Points(const StrDataPnts &set) {
    std::string text;
    for (int i = 0; i <= set.GetMaxXYZPoint(); ++i) {
        const char *x = set.GetXDataPoint(i);
        const char *y = set.GetYDataPoint(i);
        text += std::string(x ? x : "-") + "," + (y ? y : "-") + ";";
    }
    return text + (set.ZPoint ? "z=" + *set.ZPoint : "");
}

TEST_F(PointsPage, SetActiveMarksTheVisitAndStartsAtPointOne) {
    AddSet("s", {"1"}, {"2"});
    Temp().ReloadPoints = true;
    page.SetActive();
    EXPECT_TRUE(Temp().PointsVisited);
    EXPECT_EQ(session.curPageId, 1012);
    EXPECT_FALSE(Temp().ReloadPoints);
    EXPECT_EQ(page.CurrentSet(), Temp().CurDataSet);
    EXPECT_EQ(page.CellText(X(1)), "1");
    EXPECT_EQ(page.CellText(Y(1)), "2");
    EXPECT_EQ(page.RowCaption(5), "Pt 5");
    EXPECT_EQ(ui.pageChanged, 0);  // filling the cells is no edit
}

TEST_F(PointsPage, TypedTextsAreStoredAsTyped) {
    AddSet("s", {}, {});
    page.SetActive();
    const struct {
        PointCell cell;
        const char *typed;
        bool taken;
        const char *stored;
        int refusal;
    } cases[] = {
        {X(1), "2*PI", true, "2*PI", 0},
        {Y(1), "   3", true, "3", 0},
        {X(2), "1+i", false, nullptr, kMsgNotReal},
        {Y(2), "", true, nullptr, 0},
        {Z, "4", true, "4", 0},
    };
    for (const auto &c : cases) {
        if (c.refusal) ui.Expect(c.refusal);
        EXPECT_EQ(Type(c.cell, c.typed), c.taken) << c.typed;
        page.EnterCell(c.cell);  // a refused cell gives its flags up at the next focus
        const StrDataPnts &set = *page.CurrentSet();
        const int index = page.Grid().PointIndex(c.cell.row);
        const char *stored = c.cell.column == PointColumn::X   ? set.GetXDataPoint(index)
                             : c.cell.column == PointColumn::Y ? set.GetYDataPoint(index)
                                                               : set.GetZDataPoint();
        EXPECT_EQ(Text(stored), Text(c.stored)) << c.typed;
        if (c.taken && c.stored) {
            EXPECT_EQ(page.CellText(c.cell), c.stored);
        }
    }
}

TEST_F(PointsPage, AnEditMarksThePageTheGraphAndTheWorkingCopy) {
    AddSet("s", {}, {});
    page.SetActive();
    Temp().NeedsData = false;
    EXPECT_TRUE(Type(X(1), "5"));
    EXPECT_GE(ui.pageChanged, 1);
    EXPECT_TRUE(content.currentGraph->Modified);
    EXPECT_TRUE(Temp().NeedsData);
    EXPECT_TRUE(session.graphsChanged);
}

TEST_F(PointsPage, AnEngineErrorShowsItsMessageAndSelectsThePage) {
    AddSet("s", {}, {});
    page.SetActive();
    ui.Expect(0);
    EXPECT_FALSE(Type(X(1), "1+"));
    EXPECT_EQ(ui.sounds, std::vector<std::string>{"Error.wav"});
    ASSERT_EQ(ui.texts.size(), 1u);
    EXPECT_FALSE(ui.texts[0].first.empty());
    EXPECT_EQ(ui.selected, std::vector<int>{kPagePoints});
    EXPECT_EQ(page.CurrentSet()->GetXDataPoint(0), nullptr);
    EXPECT_EQ(page.CellText(X(1)), "1+");  // the text stays for the user to mend
}

TEST_F(PointsPage, ARefusedCellTakesTheFocusBackOnceWithoutALoop) {
    AddSet("s", {"1", "2", "3", "4", "5", "6", "7"}, {"1", "2", "3", "4", "5", "6", "7"});
    page.SetActive();
    ui.Expect(kMsgNotReal);
    EXPECT_FALSE(Type(Y(3), "i"));
    EXPECT_EQ(page.TakeFocusRequest(), Y(3));
    // The focus went on to X4: it comes back once, and the flags go.
    page.EnterCell(X(4));
    EXPECT_EQ(page.TakeFocusRequest(), Y(3));
    EXPECT_FALSE(page.Grid().AnyError());
    page.LeaveCell(X(4));
    page.EnterCell(Y(3));
    EXPECT_FALSE(page.TakeFocusRequest());
    EXPECT_EQ(page.Grid().CurrentEdit, Y(3));
    // Leaving it again refuses it again.
    ui.Expect(kMsgNotReal);
    page.LeaveCell(Y(3));
    EXPECT_TRUE(page.Grid().HasError(Y(3)));
    page.Last();  // the grid stands still meanwhile
    EXPECT_EQ(page.Grid().TopPoint, 0);
    EXPECT_FALSE(page.Enables().last);
}

TEST_F(PointsPage, ScrollingIsRefusedWhileTheCurrentCellIsRefused) {
    AddSet("s", {"1", "2", "3", "4", "5", "6", "7"}, {"1", "2", "3", "4", "5", "6", "7"});
    page.SetActive();
    page.EnterCell(X(1));
    page.EditText(X(1), "sqrt(-4)");
    ui.Expect(kMsgNotReal);
    EXPECT_FALSE(page.PointsUpDown(1));
    EXPECT_EQ(page.Grid().TopPoint, 0);
    page.EditText(X(1), "10");
    EXPECT_TRUE(page.PointsUpDown(1));
    EXPECT_EQ(page.Grid().TopPoint, 1);
    EXPECT_EQ(page.CellText(X(1)), "2");
    EXPECT_EQ(page.RowCaption(1), "Pt 2");
    EXPECT_EQ(Text(page.CurrentSet()->GetXDataPoint(0)), "10");
}

TEST_F(PointsPage, LastLeavesRowFiveFreeAndFirstGoesBack) {
    std::vector<const char *> xs = {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
    AddSet("s", xs, xs);
    page.SetActive();
    EXPECT_TRUE(page.Enables().last);
    EXPECT_FALSE(page.Enables().first);
    page.Last();
    EXPECT_EQ(page.Grid().TopPoint, 6);
    EXPECT_EQ(page.CellText(X(4)), "10");
    EXPECT_EQ(page.CellText(X(5)), "");
    EXPECT_FALSE(page.Enables().last);
    page.First();
    EXPECT_EQ(page.Grid().TopPoint, 0);
}

TEST_F(PointsPage, ArrowKeysMoveAndScrollTheGrid) {
    std::vector<const char *> xs = {"1", "2", "3", "4", "5", "6", "7"};
    AddSet("s", xs, xs);
    page.SetActive();
    page.ClickRow(5);
    page.EnterCell(Y(5));
    page.Key(GridKey::Down);
    EXPECT_EQ(page.Grid().TopPoint, 1);
    EXPECT_EQ(page.Grid().FocusRow, 4);  // the selection stays on point 5
    EXPECT_FALSE(page.TakeFocusRequest());
    page.Key(GridKey::Right);
    EXPECT_EQ(page.Grid().TopPoint, 2);
    EXPECT_EQ(page.TakeFocusRequest(), X(5));
    page.EnterCell(X(1));
    page.Key(GridKey::Left);
    EXPECT_EQ(page.Grid().TopPoint, 1);
    EXPECT_EQ(page.TakeFocusRequest(), Z);
    page.EnterCell(X(2));
    page.Key(GridKey::Up);
    EXPECT_EQ(page.TakeFocusRequest(), X(1));
    page.EnterCell(X(1));
    page.First();
    page.Key(GridKey::Left);  // at the top nothing moves
    EXPECT_FALSE(page.TakeFocusRequest());
}

TEST_F(PointsPage, XOfASurfaceIsTypedIntoEverySet) {
    AddSet("a", {"1"}, {"1"}, "1");
    AddSet("b", {"1"}, {"2"}, "2");
    page.SetActive();
    EXPECT_TRUE(Type(X(2), "2"));
    EXPECT_EQ(Points(*Temp().DataSets.gettail()), "1,2;2,-;z=2");
    EXPECT_TRUE(Type(X(2), ""));
    EXPECT_EQ(Points(*Temp().DataSets.gettail()), "1,2;z=2");
}

TEST_F(PointsPage, InsertAndDeleteReachEverySetOfASurface) {
    AddSet("a", {"1", "2", "3"}, {"4", "5", "6"}, "1");
    AddSet("b", {"1", "2", "3"}, {"7", "8", "9"}, "2");
    AddSet("flat", {"1", "2"}, {"0", "0"});
    page.SetActive();
    page.ClickRow(2);
    ASSERT_TRUE(page.Enables().insert);
    page.InsertPoint();
    EXPECT_EQ(Points(*Temp().DataSets.gethead()), "1,4;-,-;2,5;3,6;z=1");
    EXPECT_EQ(Points(*Temp().DataSets.gethead()->next), "1,7;-,-;2,8;3,9;z=2");
    EXPECT_EQ(Points(*Temp().DataSets.gettail()), "1,0;-,-;2,0;");
    page.DeletePoint();
    page.DeletePoint();
    EXPECT_EQ(Points(*Temp().DataSets.gethead()), "1,4;3,6;z=1");
    EXPECT_EQ(Points(*Temp().DataSets.gettail()), "1,0;");
    EXPECT_TRUE(page.Grid().FocusOn);
    page.DeletePoint();  // the last point goes: nothing is selected any more
    EXPECT_FALSE(page.Grid().FocusOn);
}

TEST_F(PointsPage, InsertWithoutAZeeStaysInItsSet) {
    AddSet("a", {"1", "2"}, {"4", "5"});
    AddSet("b", {"1", "2"}, {"7", "8"});
    page.SetActive();
    page.ClickRow(1);
    page.InsertPoint();
    EXPECT_EQ(Points(*Temp().DataSets.gethead()), "-,-;1,4;2,5;");
    EXPECT_EQ(Points(*Temp().DataSets.gettail()), "1,7;2,8;");
}

TEST_F(PointsPage, PointButtonsNeedAGraphASetAndARow) {
    const struct {
        bool graph, set, row;
        int insert, clear;
    } cases[] = {
        {false, true, true, kMsgNoGraphDefined, kMsgNoGraphDefined},
        {true, false, true, kMsgNoDataSet, kMsgNoDataSet},
        {true, true, false, kMsgNoInsertionPoint, kMsgClearSet},
    };
    for (const auto &c : cases) {
        content.currentGraph = c.graph ? content.graphs.gethead() : nullptr;
        Temp().DataSets.flush();
        Temp().CurDataSet = nullptr;
        if (c.set) AddSet("s", {"1"}, {"2"});
        Temp().ReloadPoints = true;
        page.SetActive();
        if (c.row) page.ClickRow(1);
        ui.Expect(c.insert).Expect(c.insert).Expect(c.clear, kIdCancel);
        page.InsertPoint();
        page.DeletePoint();
        page.ClearPoints();
        if (c.set) {
            EXPECT_EQ(Points(*Temp().DataSets.gethead()), "1,2;");
        }
    }
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageGraphs, kPageGraphs, kPageGraphs}));
}

TEST_F(PointsPage, ClearEmptiesXAndYButKeepsTheZ) {
    AddSet("Row", {"1", "2"}, {"3", "4"}, "9");
    page.SetActive();
    ui.Expect(kMsgClearSet, kIdYes);
    page.ClearPoints();
    EXPECT_EQ(ui.LastText(),
              "Do you really want to delete all of the data points for data set \"Row\"?");
    EXPECT_EQ(ui.boxes.back().flags, kBoxQuestionYesNoCancel);
    EXPECT_EQ(Points(*Temp().DataSets.gethead()), "-,-;z=9");
    EXPECT_EQ(page.CellText(Z), "9");
}

TEST_F(PointsPage, AddSetNamesItFromTheBoxOrCountsDataSet) {
    const struct {
        const char *typed;
        const char *name;
    } cases[] = {{"Heights", "Heights"},
                 {"", "DataSet1"},
                 {"  ", "DataSet2"},
                 {"heights", "DataSet3"},
                 {"Heights2", "Heights2"}};
    for (const auto &c : cases) {
        page.AddSet(c.typed);
        ASSERT_NE(page.CurrentSet(), nullptr);
        EXPECT_EQ(page.CurrentSet()->Name, c.name);
        EXPECT_EQ(Temp().CurDataSet, page.CurrentSet());
    }
    EXPECT_EQ(ui.pageChanged, 0);  // an empty set is no change yet
    EXPECT_EQ(page.SetNames().size(), 5u);
}

TEST_F(PointsPage, ANewSurfaceRowStartsWithTheCommonX) {
    AddSet("a", {"1", "2"}, {"4", "5"}, "1");
    page.SetActive();
    page.AddSet("b");
    EXPECT_EQ(Points(*page.CurrentSet()), "1,-;2,-;");
}

TEST_F(PointsPage, AddSetRefusesWithoutAGraphAndBesideAFunctionSurface) {
    content.currentGraph = nullptr;
    ui.Expect(kMsgNoGraphDefined);
    page.AddSet("a");
    content.currentGraph = content.graphs.gethead();
    SetAxes(true, true);
    ui.Expect(kMsgPointsWith3DFunction);
    page.AddSet("a");
    EXPECT_EQ(Temp().DataSets.count(), 0);
}

TEST_F(PointsPage, RemoveAsksOnlyForASetWithContent) {
    AddSet("empty", {}, {});
    AddSet("zonly", {}, {}, "3");
    AddSet("full", {"1"}, {"2"});
    AddSet("last", {"3"}, {"4"});
    page.SetActive();
    page.RemoveSet("empty");
    EXPECT_EQ(page.SetNames(), (std::vector<std::string>{"zonly", "full", "last"}));
    ui.Expect(kMsgDeleteSet, kIdNo);
    page.RemoveSet("zonly");
    EXPECT_EQ(ui.LastText(),
              "Do you really want to delete data set \"zonly\", you will loose all of your data "
              "points?");
    EXPECT_EQ(page.SetNames().size(), 3u);
    ui.Expect(kMsgDeleteSet, kIdYes);
    page.RemoveSet("full");
    EXPECT_EQ(page.CurrentSet()->Name, "zonly");  // the previous set takes its place
    EXPECT_TRUE(content.currentGraph->Modified);
}

TEST_F(PointsPage, RemoveNeedsANameInTheList) {
    ui.Expect(kMsgNoSetsToDelete);
    page.RemoveSet("a");
    AddSet("a", {}, {});
    ui.Expect(kMsgEnterSetName).Expect(kMsgSetNotDefined);
    page.RemoveSet(" ");
    page.RemoveSet("b");
    EXPECT_EQ(ui.LastText(),
              "The data set defined by the name \"b\" has not been defined and therefore, the data "
              "set could not be deleted!");
    page.RemoveSet("a");
    EXPECT_EQ(page.CurrentSet(), nullptr);
    EXPECT_FALSE(page.Enables().dataBoxes);
}

TEST_F(PointsPage, SetsAreChosenByPositionAndStepped) {
    AddSet("a", {"1"}, {"2"});
    AddSet("b", {"3"}, {"4"});
    AddSet("c", {"5"}, {"6"});
    page.SetActive();
    EXPECT_FALSE(page.Enables().prevSet);
    EXPECT_TRUE(page.Enables().nextSet);
    page.StepSet(1);
    EXPECT_EQ(page.CellText(X(1)), "3");
    page.ChangeSet(2);
    EXPECT_EQ(Temp().CurDataSet->Name, "c");
    EXPECT_FALSE(page.Enables().nextSet);
    page.StepSet(1);
    EXPECT_EQ(page.CurrentSetPosition(), 2);
}

TEST_F(PointsPage, RenameRefusesANameAnotherSetBeginsWith) {
    AddSet("Temperature", {}, {});
    AddSet("b", {}, {});
    Temp().CurDataSet = Temp().DataSets.gettail();
    page.SetActive();
    ui.Expect(kMsgSetNameUsed);
    EXPECT_FALSE(page.RenameCurrentSet("Temp"));
    EXPECT_EQ(ui.LastText(),
              "Data set Temp has already been used, Please select another data set name.");
    EXPECT_TRUE(page.RenameCurrentSet("Pressure"));
    EXPECT_EQ(Temp().DataSets.gettail()->Name, "Pressure");
    EXPECT_EQ(ui.pageChanged, 1);
}

TEST_F(PointsPage, ALoadedFileGoesIntoTheEmptyCurrentSetUnderItsName) {
    page.AddSet("");
    Temp().NeedsData = false;
    ASSERT_TRUE(page.BeginLoadFile());
    page.LoadFile(kData + "squares.txt");
    EXPECT_EQ(page.CurrentSet()->Name, "squares.txt");
    EXPECT_EQ(Points(*page.CurrentSet()), "1,2;2,4;3,9;");
    EXPECT_TRUE(Temp().NeedsData);
}

TEST_F(PointsPage, LoadingTwiceAndAnsweringNoMakesANumberedSet) {
    page.LoadFile(kData + "squares.txt");
    ui.Expect(kMsgAddToCurrentSet, kIdNo);
    page.LoadFile(kData + "squares.txt");
    EXPECT_EQ(page.SetNames(), (std::vector<std::string>{"squares.txt", "squares1.txt"}));
    ui.Expect(kMsgAddToCurrentSet, kIdYes);
    page.LoadFile(kData + "squares.txt");
    EXPECT_EQ(Points(*page.CurrentSet()), "1,2;2,4;3,9;1,2;2,4;3,9;");
    EXPECT_EQ(page.Grid().TopPoint, 2);  // Last
    ui.Expect(kMsgAddToCurrentSet, kIdCancel);
    page.LoadFile(kData + "squares.txt");
    EXPECT_EQ(page.SetNames().size(), 2u);
}

TEST_F(PointsPage, ABadFileShowsItsMessageAndLoadsNothing) {
    const struct {
        const char *file;
        int message;
    } cases[] = {{"missing.txt", 0}, {"blank.txt", 0}, {"labels_only.txt", kMsgNoDataInFile}};
    for (const auto &c : cases) {
        ui.Expect(c.message);
        page.LoadFile(kData + c.file);
        EXPECT_EQ(Temp().DataSets.count(), 0) << c.file;
    }
    ASSERT_EQ(ui.texts.size(), 2u);
    EXPECT_EQ(ui.texts[0].first, "Data File ' " + kData + "missing.txt ' Could Not Be Located!");
    EXPECT_EQ(ui.texts[0].second, "Load Data Point File");
    EXPECT_EQ(ui.LastText(), "No data was found in the selected file!");
}

TEST_F(PointsPage, AFileOfXOnlyIsRefusedByTheCheck) {
    page.LoadFile(kData + "x_only.txt");
    ui.Expect(kMsgNoYOrZ);
    EXPECT_FALSE(page.CheckData(Temp()));
}

TEST_F(PointsPage, DimensionsOfFileAndGraphMustAgreeOrBeConfirmed) {
    AddSet("a", {"1"}, {"2"});
    page.SetActive();
    ui.Expect(kMsg3DInto2D, kIdNo);
    page.LoadFile(kData + "row_z5.txt");
    EXPECT_EQ(Temp().DataSets.count(), 1);
    EXPECT_EQ(ui.boxes.back().flags, kBoxWarningYesNo);
    ASSERT_NE(Temp().AddFunction("f[x,z]", "x*z"), nullptr);
    SetAxes(true, true);
    ui.Expect(kMsgFunctionWith3DPoints);
    page.LoadFile(kData + "squares.txt");
    EXPECT_EQ(Temp().DataSets.count(), 1);
}

TEST_F(PointsPage, TwoDimensionalPointsJoinASurfaceOnlyWhenConfirmed) {
    AddSet("a", {"0", "1", "2"}, {"1", "1", "1"}, "1");
    AddSet("b", {"0", "1", "2"}, {"2", "2", "2"}, "2");
    page.SetActive();
    ui.Expect(kMsg2DInto3D, kIdNo);
    page.LoadFile(kData + "squares.txt");
    EXPECT_EQ(Points(*page.CurrentSet()), "0,1;1,1;2,1;z=1");
}

TEST_F(PointsPage, AppendingToARowOfASurfaceAddsXToTheOtherRows) {
    AddSet("a", {"0", "1", "2"}, {"1", "1", "1"}, "5");
    AddSet("b", {"0", "1", "2"}, {"2", "2", "2"}, "7");
    page.SetActive();
    ui.Expect(kMsgAddToCurrentSet, kIdYes).Expect(kMsgXAddedToOtherSets);
    page.LoadFile(kData + "row_z5.txt");
    EXPECT_EQ(Points(*Temp().DataSets.gethead()), "0,1;1,1;2,1;0,1;1,2;2,3;z=5");
    EXPECT_EQ(Points(*Temp().DataSets.gettail()), "0,2;1,2;2,2;0,-;1,-;2,-;z=7");
    // A file whose Z differs from the current set's keeps the set's Z.
    ui.Expect(kMsgAddToCurrentSet, kIdYes)
        .Expect(kMsgXAddedToOtherSets)
        .Expect(kMsgZOfCurrentSetKept);
    page.ChangeSet(1);
    page.LoadFile(kData + "row_z5.txt");
    EXPECT_EQ(*Temp().DataSets.gettail()->ZPoint, "7");
}

TEST_F(PointsPage, AFileOfMixedZKeepsTheFirstAndSaysSo) {
    ui.Expect(kMsgInconsistentZ);
    page.LoadFile(kData + "row_mixed_z.txt");
    EXPECT_EQ(ui.LastText(),
              "Inconsistent Z data point values have been found in the new data, only a single Z "
              "data point value can be used, the first Z data value of 5 will be used.");
    EXPECT_EQ(Points(*page.CurrentSet()), "0,1;1,2;z=5");
}

TEST_F(PointsPage, ANewSetFromAFileOfMixedZIsForcedToItsFirstZ) {
    AddSet("a", {"0", "1"}, {"1", "1"}, "1");
    AddSet("b", {"0", "1"}, {"2", "2"}, "2");
    page.SetActive();
    ui.Expect(kMsgAddToCurrentSet, kIdNo).Expect(kMsgZForcedToFirst).Expect(kMsgInconsistentZ);
    page.LoadFile(kData + "row_mixed_z.txt");
    EXPECT_EQ(page.CurrentSet()->Name, "row_mixed_z.txt");
    EXPECT_EQ(Points(*page.CurrentSet()), "0,1;1,2;z=5");
    EXPECT_EQ(page.SetNames().size(), 3u);
}

TEST_F(PointsPage, NoPointFileBesideAFunctionSurface) {
    SetAxes(true, true);
    ui.Expect(kMsgPointsWith3DFunction);
    EXPECT_FALSE(page.BeginLoadFile());
    content.currentGraph = nullptr;
    ui.Expect(kMsgNoGraphDefined);
    EXPECT_FALSE(page.BeginLoadFile());
    EXPECT_EQ(ui.selected, std::vector<int>{kPageGraphs});
}

TEST_F(PointsPage, ThreeDimensionalPointsReplaceACopiedCommonX) {
    AddSet("a", {"0", "1", "2"}, {"1", "1", "1"}, "1");
    page.SetActive();
    page.AddSet("b");  // starts with the common X only
    page.LoadFile(kData + "row_z5.txt");
    EXPECT_EQ(page.CurrentSet()->Name, "b");
    EXPECT_EQ(Points(*page.CurrentSet()), "0,1;1,2;2,3;z=5");
}

TEST_F(PointsPage, SaveWritesTheSetsTextsAndNeedsPoints) {
    ui.Expect(kMsgNoDataSet);
    EXPECT_FALSE(page.BeginSaveFile());
    AddSet("z only", {}, {}, "4");
    page.SetActive();
    ui.Expect(kMsgNothingToSave);
    EXPECT_FALSE(page.BeginSaveFile());
    EXPECT_EQ(ui.LastText(), "There are current no data points to ve saved!");
    EXPECT_TRUE(Type(X(1), "1"));
    EXPECT_TRUE(Type(Y(1), "2*PI"));
    ASSERT_TRUE(page.BeginSaveFile());
    EXPECT_EQ(page.SaveProposal(), "z only");
    const std::string path = ::testing::TempDir() + "points_page_save.txt";
    ASSERT_TRUE(page.SaveFile(path));
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_EQ(text.str(), "1, 2*PI, 4\n");
    std::filesystem::remove(path);
    ui.Expect(kMsgPointFileNotSaved);
    EXPECT_FALSE(page.SaveFile(::testing::TempDir() + "no/such/folder/p.txt"));
}

TEST_F(PointsPage, ApplyCopiesTheSetsToTheCurrentGraph) {
    AddSet("a", {"1"}, {"2"});
    AddSet("b", {"3", nullptr, "5"}, {"4", nullptr, "6"}, "9");
    Temp().CurDataSet = Temp().DataSets.gettail();
    page.ApplyChanges();  // not visited yet: nothing to do
    EXPECT_EQ(content.currentGraph->DataSets.count(), 0);
    page.SetActive();
    content.currentGraph->Modified = true;
    page.ApplyChanges();
    const GraphData &current = *content.currentGraph;
    ASSERT_EQ(current.DataSets.count(), 2);
    EXPECT_EQ(Points(*current.DataSets.gettail()), "3,4;-,-;5,6;z=9");
    EXPECT_EQ(current.CurDataSet, current.DataSets.gettail());
    EXPECT_FALSE(current.Modified);
    EXPECT_EQ(ui.unchanged, std::vector<int>{kPagePoints});
}

TEST_F(PointsPage, NextGoesToTypesOnlyWhenTheCheckPasses) {
    AddSet("a", {"1"}, {});
    page.SetActive();
    ui.Expect(kMsgNoYOrZ);
    page.Next();
    EXPECT_EQ(ui.selected, std::vector<int>{kPagePoints});
    EXPECT_TRUE(Type(Y(1), "1"));
    page.Next();
    EXPECT_EQ(ui.selected.back(), kPageTypes);
    page.Prev();
    EXPECT_EQ(ui.selected.back(), kPageGraphs);
}

}  // namespace
}  // namespace quindar::testing
