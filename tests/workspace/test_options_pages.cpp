// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Options pages' steppers, questions and apply rules, and what an apply writes.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "options_pages.h"
#include "parser.h"

namespace quindar {
namespace {

namespace fs = std::filesystem;

struct FakeDocument : OptionsDocument {
    Parser &Engine() override { return parser; }
    void MarkSettingsChanged() override { ++settingsChanged; }
    void RefillVariables() override { ++refills; }
    void GraphsNeedData() override { ++graphs; }
    Parser parser{"", ""};
    int settingsChanged = 0;
    int refills = 0;
    int graphs = 0;
};

struct TwoDocuments {
    FakeDocument current;
    FakeDocument other;
    std::vector<OptionsDocument *> list{&current, &other};
    OptionsDocuments All() const { return list; }
};

class OptionsSettingsFile : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("quindar_options_" +
                  std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }
    std::string Path() const { return (folder / "Quindar.ini").string(); }
    std::string Text() const {
        std::ifstream in(Path(), std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }
    fs::path folder;
};

TEST(OptionsPages, PrecisionStopsAtOneAndFourteenWithoutDirtying) {
    const struct {
        long start;
        bool higher;
        bool changed;
        long after;
    } cases[] = {{14, true, false, 14}, {13, true, true, 14}, {1, false, false, 1},
                 {2, false, true, 1},   {6, true, true, 7},   {6, false, true, 5}};
    for (const auto &c : cases) {
        Parser parser("", "");
        parser.answer_format->precision = c.start;
        PrecisionFormatPage page(parser, true);
        EXPECT_EQ(c.higher ? page.Higher() : page.Lower(), c.changed) << c.start;
        EXPECT_EQ(page.Shown().precision, c.after) << c.start;
        EXPECT_EQ(page.Dirty(), c.changed) << c.start;
    }
}

TEST(OptionsPages, ZeroThresholdSteps) {
    const struct {
        const char *box;
        bool up;
        int messageId;
        const char *after;
        bool changed;
    } cases[] = {
        {"1.0e-09", true, 0, "1.0e-10", true},    {"1.0e-10", false, 0, "1.0e-09", true},
        {"1.0e-14", true, 0, "1.0e-15", true},    {"1.0e-02", false, 0, "1.0e-01", true},
        {"1.0e-01", false, 0, "1.0e-01", false},  {"1.0e-306", true, 0, "1.0e-307", true},
        {"1.0e-307", true, 0, "1.0e-307", false}, {"1.0e+05", true, 0, "1.0e-06", true},
        {"x-3", false, 0, "1.0e-02", true},       {"0.001", true, 0, "0.001", false},
        {"1e-", true, 0, "1e-", false},           {"", true, kZeroPrecisionEmpty, "", false},
    };
    for (const auto &c : cases) {
        const ZeroPrecisionStep step = StepZeroPrecision(c.box, c.up);
        EXPECT_EQ(step.messageId, c.messageId) << c.box;
        EXPECT_EQ(step.text, c.after) << c.box;
        EXPECT_EQ(step.changed, c.changed) << c.box;
    }
    EXPECT_EQ(OptionsMessageText(kZeroPrecisionEmpty),
              "Please Provide An Entry For The Zero Precision!");
}

TEST(OptionsPages, ThresholdIsStoredAsA32BitFloat) {
    Parser parser("", "");
    PrecisionFormatPage page(parser, true);
    EXPECT_EQ(ZeroPrecisionText(page.Shown().zero_precision), "1.0e-14");
    page.StepZero("1.0e-14", true);
    EXPECT_EQ(page.Shown().zero_precision, 1e-15f);
    EXPECT_TRUE(page.Dirty());
    page.StepZero("1.0e-38", true);
    EXPECT_GT(page.Shown().zero_precision, 0.0f);  // a denormal, but not yet zero
    page.StepZero("1.0e-45", true);
    EXPECT_EQ(page.Shown().zero_precision, 0.0f);
    EXPECT_EQ(ZeroPrecisionText(0.1f), "1.0e-01");
}

TEST(OptionsPages, LeavingARecordAsksAboutIt) {
    Parser parser("", "");
    PrecisionFormatPage page(parser, true);
    EXPECT_EQ(page.QuestionBeforeShowing(PrecisionFormatPage::kVariables), 0);
    page.SetScientific(true);
    EXPECT_EQ(page.QuestionBeforeShowing(PrecisionFormatPage::kMathEditor), 0);
    EXPECT_EQ(page.QuestionBeforeShowing(PrecisionFormatPage::kVariables), kAskApplyToEditor);
    page.ShowWindow(PrecisionFormatPage::kVariables);  // the answer was No: still dirty
    EXPECT_EQ(page.Shown().format, kFormatDecimal);
    EXPECT_EQ(page.QuestionBeforeShowing(PrecisionFormatPage::kMathEditor), kAskApplyToVariables);
    EXPECT_EQ(page.QuestionBeforeApplyTarget(true), kAskApplyToAll);
    EXPECT_EQ(page.QuestionBeforeApplyTarget(false), kAskApplyToFile);
    EXPECT_EQ(OptionsMessageText(kAskApplyToVariables),
              "Would You Like To Apply Your Latest Changes To The Currently Defined Variables?");
}

TEST(OptionsPages, PrecisionAppliesToTheFileInFocusOrToAll) {
    for (bool all : {false, true}) {
        TwoDocuments documents;
        SheetOptions options;
        PrecisionFormatPage page(documents.current.parser, !all);
        page.SetApplyToAll(all);
        page.Lower();
        page.ShowWindow(PrecisionFormatPage::kVariables);
        page.SetLeadSign(true);
        page.ApplyChanges(documents.All(), options, nullptr);
        EXPECT_EQ(documents.current.parser.answer_format->precision, 13);
        EXPECT_TRUE(documents.current.parser.variable_format->show_lead_sign);
        EXPECT_EQ(documents.other.parser.answer_format->precision, all ? 13 : 14);
        EXPECT_EQ(documents.other.parser.variable_format->show_lead_sign, all);
        EXPECT_EQ(options.applyPrecisionToAll, all);
        EXPECT_EQ(documents.current.settingsChanged, 1);
        EXPECT_EQ(documents.current.refills, 1);
        EXPECT_EQ(documents.other.settingsChanged, 0);
        EXPECT_FALSE(page.Dirty());
    }
}

TEST_F(OptionsSettingsFile, OkWithNoChangeMarksTheDocumentAndWritesTheSixKeys) {
    TwoDocuments documents;
    documents.current.parser.answer_format->precision = 9;
    SheetOptions options;
    options.windowWidth = 200;
    options.applyTrigToAll = false;
    options.showCalcBar = false;
    options.useSquareBrackets = true;
    const AppSettings settings(Path());
    OptionsSheetState sheet;
    ASSERT_EQ(sheet.PagesToApply(), (std::vector<int>{OptionsSheetState::kPrecisionFormat}));
    PrecisionFormatPage page(documents.current.parser, options.applyPrecisionToAll);
    page.ApplyChanges(documents.All(), options, &settings);
    EXPECT_EQ(documents.current.parser.answer_format->precision, 9);
    EXPECT_EQ(documents.current.settingsChanged, 1);
    EXPECT_EQ(documents.current.refills, 1);
    EXPECT_EQ(settings.WindowWidth(), 200);
    EXPECT_TRUE(settings.ApplyPrecisionFormatToAll());
    EXPECT_FALSE(settings.ApplyTrigOptionsToAll());
    EXPECT_FALSE(settings.ShowCalcBar());
    EXPECT_TRUE(settings.CalculationMethod());
    EXPECT_TRUE(settings.UseSquareFunctionBrackets());
    const std::string text = Text();
    for (const char *key :
         {"Window Width=200", "ApplyPrecisionFormatToAll=1", "ApplyTrigOptionsToAll=0",
          "ShowCalcBar=0", "CalculationMethod=1", "UseSquareFunctionBrackets=1"})
        EXPECT_NE(text.find(key), std::string::npos) << key << " in\n" << text;
    EXPECT_EQ(text.find("MediaPlayerPath"), std::string::npos);
}

TEST_F(OptionsSettingsFile, MediaPlayerPathIsWrittenOnlyWhenThereIsOne) {
    const AppSettings settings(Path());
    EXPECT_TRUE(ApplyMediaPlayerPath(settings, std::nullopt));
    EXPECT_FALSE(fs::exists(Path()));
    EXPECT_TRUE(ApplyMediaPlayerPath(settings, "/usr/bin/player"));
    EXPECT_EQ(settings.MediaPlayerPath(), "/usr/bin/player");
}

TEST(OptionsPages, AngleModeFollowsTheRadioButBracketsReachEveryDocument) {
    for (bool all : {false, true}) {
        TwoDocuments documents;
        SheetOptions options;
        options.applyTrigToAll = all;
        MathOptionsPage page(documents.current.parser, options);
        EXPECT_EQ(page.AngleMode(), 0);
        page.SetAngleMode(1);
        page.SetUseSquareBrackets(false);
        page.SetCalculationMethod(false);
        EXPECT_TRUE(page.Changed());
        page.ApplyChanges(documents.All(), options, nullptr);
        EXPECT_EQ(documents.current.parser.angle_mode, 1);
        EXPECT_EQ(documents.other.parser.angle_mode, all ? 1 : 0);
        EXPECT_EQ(documents.current.graphs, 1);
        EXPECT_EQ(documents.other.graphs, all ? 1 : 0);
        EXPECT_FALSE(documents.current.parser.use_square_brackets);
        EXPECT_FALSE(documents.other.parser.use_square_brackets);
        EXPECT_FALSE(options.calculationMethod);
        EXPECT_EQ(options.applyTrigToAll, all);
        EXPECT_EQ(documents.current.settingsChanged, 1);
        EXPECT_FALSE(page.TrigChanged());
    }
}

TEST(OptionsPages, WithoutAnAngleChangeGraphsAreLeftAlone) {
    TwoDocuments documents;
    SheetOptions options;
    MathOptionsPage page(documents.current.parser, options);
    page.SetUseSquareBrackets(true);
    page.ApplyChanges(documents.All(), options, nullptr);
    EXPECT_EQ(documents.current.graphs + documents.other.graphs, 0);
    EXPECT_TRUE(options.useSquareBrackets);
}

TEST(OptionsPages, SheetMakesPagesWhenShownAndAppliesOnlyThose) {
    OptionsSheetState sheet;
    EXPECT_TRUE(sheet.Created(OptionsSheetState::kPrecisionFormat));
    EXPECT_FALSE(sheet.Created(OptionsSheetState::kMathematical));
    EXPECT_FALSE(sheet.ApplyEnabled());
    EXPECT_TRUE(sheet.Show(OptionsSheetState::kMediaPlayer));
    EXPECT_FALSE(sheet.Show(OptionsSheetState::kMediaPlayer));
    EXPECT_EQ(sheet.PagesToApply(), (std::vector<int>{0, 2}));
    sheet.PageChanged(OptionsSheetState::kMediaPlayer);
    EXPECT_TRUE(sheet.ApplyEnabled());
    sheet.PageUnchanged(OptionsSheetState::kMediaPlayer);
    EXPECT_FALSE(sheet.ApplyEnabled());
}

}  // namespace
}  // namespace quindar
