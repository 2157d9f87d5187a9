// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Colors page without its window: the sixteen buttons, the default colours in the
// settings file, Apply and Finish.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "colors_page_model.h"
#include "graph_colors.h"
#include "graph_pages_messages.h"
#include "ini_graph_settings.h"
#include "pages_recorder.h"

namespace quindar::testing {
namespace {

class ColorsPageTest : public PagesFixture {
protected:
    ~ColorsPageTest() override { std::filesystem::remove_all(folder); }

    // A folder of the test's own for the settings file.
    static std::filesystem::path MakeFolder() {
        const auto *test = ::testing::UnitTest::GetInstance()->current_test_info();
        std::filesystem::path path = std::filesystem::temp_directory_path() /
                                     (std::string("quindar-colors-") + test->name());
        std::filesystem::remove_all(path);
        std::filesystem::create_directories(path);
        return path;
    }

    std::string SettingsText() const {
        std::ifstream in(settings);
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }

    std::filesystem::path folder = MakeFolder();
    std::string settings = (folder / "Quindar.ini").string();
    ColorsPageModel page{session, ui, settings};
};

TEST(ColorButtons, SixteenButtonsEachOverItsOwnColourWithTheMeshAndSurfaceOnesFor3DOnly) {
    const auto buttons = color_buttons();
    ASSERT_EQ(buttons.size(), 16u);
    std::set<int> ids;
    std::set<std::string> captions;
    for (const ColorButtonInfo &button : buttons) {
        ids.insert(button.buttonId);
        captions.insert(button.caption);
        // The 3-D only buttons are those of the colours no 2-D graph draws.
        for (const GraphColorInfo &color : graph_colors())
            if (color.field == button.field) {
                EXPECT_EQ(button.only3D, color.kinds == kColorFor3D) << button.caption;
            }
    }
    EXPECT_EQ(ids.size(), 16u);
    EXPECT_EQ(captions.size(), 16u);
    const struct {
        std::size_t index;
        int id;
        const char *caption;
    } spots[] = {{0, 24931, "Window Background Color"},
                 {6, 24939, "Header Background Color"},
                 {8, 24937, "Footer Background Color"},
                 {15, 24955, "Surface Top Color"}};
    for (const auto &s : spots) {
        EXPECT_EQ(buttons[s.index].buttonId, s.id);
        EXPECT_STREQ(buttons[s.index].caption, s.caption);
    }
}

TEST_F(ColorsPageTest, ColoursOfTheThreeDimensionsHideInATwoDimensionalGraph) {
    EXPECT_FALSE(page.Hide3DColors());  // nothing graphed yet
    AddFunction("f[x]");
    EXPECT_TRUE(page.Hide3DColors());
    AddDataSet("Data1", "2");
    EXPECT_FALSE(page.Hide3DColors());
}

TEST_F(ColorsPageTest, AChosenColourGoesToTheWorkingCopyAndMarksOnlyTheLooks) {
    Temp().NeedsData = false;
    Temp().NeedsAttributes = false;
    const TColor violet(120, 20, 200);
    page.SetColor(3, violet);
    EXPECT_EQ(Temp().GraphForegroundColor, violet);
    EXPECT_EQ(page.Color(3), violet);
    EXPECT_TRUE(Temp().NeedsAttributes);
    EXPECT_FALSE(Temp().NeedsData);
    EXPECT_EQ(ui.pageChanged, 1);
    page.SetColor(16, violet);
    EXPECT_EQ(ui.pageChanged, 1);
}

TEST_F(ColorsPageTest, SaveAsDefaultWritesTheSettingsOnlyWhenTheUserAgrees) {
    Temp().BackgroundColor = TColor(1, 2, 3);
    ui.Expect(kMsgSaveDefaultColors, kIdNo);
    EXPECT_FALSE(page.SaveAsDefault());
    EXPECT_FALSE(std::filesystem::exists(settings));
    EXPECT_EQ(ui.texts.back(),
              "The currently defined default color configuration will be lost, do you wish to "
              "continue?");
    EXPECT_EQ(ui.flags.back(), kBoxWarningYesNo);

    ui.Expect(kMsgSaveDefaultColors, kIdYes);
    EXPECT_TRUE(page.SaveAsDefault());
    EXPECT_NE(SettingsText().find("Background=1,2,3"), std::string::npos) << SettingsText();
    EXPECT_NE(SettingsText().find("GraphForegrond=255,255,255"), std::string::npos);
    EXPECT_EQ(read_graph_defaults(settings.c_str()).colors[0], TColor(1, 2, 3));
    // New graphs of this document take them too.
    EXPECT_EQ(session.defaults.colors[0], TColor(1, 2, 3));
    EXPECT_EQ(ui.pageChanged, 0);
}

TEST_F(ColorsPageTest, SetDefaultTakesTheSettingsColoursWhenTheUserAgrees) {
    GraphDefaults stored;
    stored.colors[1] = TColor(9, 8, 7);
    ASSERT_TRUE(save_graph_default_colors(settings.c_str(), stored));
    Temp().NeedsAttributes = false;

    ui.Expect(kMsgLoadDefaultColors, kIdNo);
    EXPECT_FALSE(page.SetDefault());
    EXPECT_EQ(Temp().ForegroundColor, TColor(0, 0, 0));
    EXPECT_EQ(ui.texts.back(),
              "The current color configuration will be replaced by the default color "
              "configuration, co you wish to continue?");

    ui.Expect(kMsgLoadDefaultColors, kIdYes);
    EXPECT_TRUE(page.SetDefault());
    EXPECT_EQ(Temp().ForegroundColor, TColor(9, 8, 7));
    EXPECT_TRUE(Temp().NeedsAttributes);
    EXPECT_EQ(ui.pageChanged, 1);
}

TEST_F(ColorsPageTest, ApplyCopiesTheSixteenColoursOnlyAfterAVisit) {
    for (std::size_t i = 0; i < color_buttons().size(); ++i)
        page.SetColor(i, TColor(static_cast<std::uint8_t>(i), 0, 0));
    page.ApplyChanges();
    EXPECT_EQ(Current().BackgroundColor, TColor(64, 128, 128));
    page.SetActive();
    EXPECT_EQ(session.curPageId, 1013);
    page.ApplyChanges();
    for (std::size_t i = 0; i < color_buttons().size(); ++i)
        EXPECT_EQ(Current().*color_buttons()[i].field, TColor(static_cast<std::uint8_t>(i), 0, 0));
    EXPECT_EQ(ui.unchanged, (std::vector<int>{kPageColors}));
    EXPECT_FALSE(Current().Modified);
}

TEST_F(ColorsPageTest, PrevGoesBackToTypes) {
    page.Prev();
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageTypes}));
}

}  // namespace
}  // namespace quindar::testing
