// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The application's settings file: where it lies, every key's default with no file at all,
// the values the start writes, the limits and fallbacks of its readers, the recent files.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "app_settings.h"
#include "documents_test_support.h"
#include "graph_data.h"
#include "ini_graph_settings.h"
#include "profile.h"

namespace quindar {
namespace {

using testing::file_content;
using testing::TempFolder;

// Sets an environment variable for one test and puts the old value back.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char *name, const char *value) : name_(name) {
        if (const char *old = std::getenv(name)) old_ = old;
        value ? ::setenv(name, value, 1) : ::unsetenv(name);
    }
    ~ScopedEnvironment() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }
    ScopedEnvironment(const ScopedEnvironment &) = delete;
    ScopedEnvironment &operator=(const ScopedEnvironment &) = delete;

private:
    const char *name_;
    std::optional<std::string> old_;
};

TEST(SettingsPath, TheUsersConfigurationFolder) {
    {
        ScopedEnvironment config("XDG_CONFIG_HOME", "/tmp/xdg");
        EXPECT_EQ(settings_file_path(), "/tmp/xdg/Quindar/Quindar.ini");
    }
    {
        ScopedEnvironment config("XDG_CONFIG_HOME", "relative/ignored");
        ScopedEnvironment home("HOME", "/home/someone");
        EXPECT_EQ(settings_file_path(), "/home/someone/.config/Quindar/Quindar.ini");
    }
    {
        ScopedEnvironment config("XDG_CONFIG_HOME", nullptr);
        ScopedEnvironment home("HOME", nullptr);
        EXPECT_EQ(settings_file_path(), "Quindar.ini");
    }
}

class Settings : public ::testing::Test {
protected:
    TempFolder folder;
    ScopedEnvironment config{"XDG_CONFIG_HOME", folder.path().c_str()};
    AppSettings settings;  // through the environment, as the program makes it
    std::string file = folder.file("Quindar/Quindar.ini");
};

TEST_F(Settings, WithNoFileEveryKeyHasItsDefault) {
    EXPECT_EQ(settings.path(), file);
    const struct {
        const char *key;
        int value;
        int deflt;
    } cases[] = {
        {"Sound", settings.Sound(), 1},
        {"IncrementalVariables", settings.IncrementalVariables(), 1},
        {"FlatButtons", settings.FlatButtons(), 0},
        {"CalculationMethod", settings.CalculationMethod(), 1},
        {"UseSquareFunctionBrackets", settings.UseSquareFunctionBrackets(), 0},
        {"ToolBar", settings.ToolBar(), 1},
        {"Hints", settings.Hints(), 2},
        {"ShowCalcBar", settings.ShowCalcBar(), 1},
        {"ShowTutorialDownloadDialog", settings.ShowTutorialDownloadDialog(), 1},
        {"VariMgrInstructions", settings.VariMgrInstructions(), 1},
        {"FuncMgrInstructions", settings.FuncMgrInstructions(), 1},
        {"IntegrationPrecision", settings.IntegrationPrecision(), 6},
        {"DifferentiationPrecision", settings.DifferentiationPrecision(), 6},
        {"SolverPrecision", settings.SolverPrecision(), 6},
        {"ApplyPrecisionFormatToAll", settings.ApplyPrecisionFormatToAll(), 1},
        {"ApplyTrigOptionsToAll", settings.ApplyTrigOptionsToAll(), 1},
        {"Window Width", settings.WindowWidth(), 150},
        {"Pos", settings.TipPos(), -2},
        {"Startup", settings.TipStartup(), -1},
    };
    for (const auto &c : cases) EXPECT_EQ(c.value, c.deflt) << c.key;
    EXPECT_EQ(settings.MediaPlayerPath(), "");
    for (int n = 1; n <= 16; ++n) EXPECT_EQ(settings.CustomColor(n), TColor::White) << n;
    EXPECT_EQ(settings.GraphDefaultOrientation(), (std::vector<int>{20, 15, 10, 20, 25, 0, 310}));
    const TColor black(0, 0, 0);
    const TColor white(255, 255, 255);
    EXPECT_EQ(settings.GraphDefaultColors(),
              (std::vector<TColor>{TColor(64, 128, 128), black, TColor(128, 255, 255), black, black,
                                   black, black, white, black, white, white, black, black, black,
                                   black, white}));
    EXPECT_TRUE(settings.RecentFiles().empty());
    EXPECT_FALSE(std::filesystem::exists(file));  // reading makes nothing
}

TEST_F(Settings, TheFirstStartMakesTheFileWithTheTipKeys) {
    settings.WriteStartValues();
    EXPECT_EQ(file_content(file), "[MRU]\r\nCount=6\r\n[TipOfTheDay]\r\nPos=-1\r\nStartup=1\r\n");
    EXPECT_TRUE(settings.Write(settings::kTipPos, 7));
    settings.WriteStartValues();  // present keys stay
    EXPECT_EQ(settings.TipPos(), 7);
    EXPECT_EQ(settings.TipStartup(), 1);
}

TEST_F(Settings, ValuesAsTheFileHoldsThem) {
    const struct {
        const char *section;
        const char *key;
        const char *text;
    } lines[] = {
        {"OPTIONS", "Sound", "0"},
        {"options", "ToolBar", "5"},  // any value but 0 is true; sections ignore case
        {"OPTIONS", "FlatButtons", "-1"},
        {"OPTIONS", "Hints", "1"},
        {"OPTIONS", "SolverPrecision", "12"},
        {"WINDOW ATTRIBUTES", "Window Width", "1000"},
        {"Custom Colors", "CustColor3", "1,2,3"},
        {"Custom Colors", "CustColor4", "1,2"},  // two fields: the default
        {"Graph Default Colors", "GraphForegrond", "9,8,7"},
        {"Graph Default Orientation", "ZRotation3D", "45"},
    };
    for (const auto &line : lines)
        ASSERT_TRUE(settings.Write(TextSetting{line.section, line.key, ""}, line.text));
    EXPECT_FALSE(settings.Sound());
    EXPECT_TRUE(settings.ToolBar());
    EXPECT_TRUE(settings.FlatButtons());
    EXPECT_EQ(settings.Hints(), 1);
    EXPECT_EQ(settings.SolverPrecision(), 12);
    EXPECT_EQ(settings.WindowWidth(), 450);
    EXPECT_EQ(settings.CustomColor(3), TColor(1, 2, 3));
    EXPECT_EQ(settings.CustomColor(4), TColor::White);
    EXPECT_EQ(settings.GraphDefaultColors()[7], TColor(9, 8, 7));
    EXPECT_EQ(settings.GraphDefaultOrientation()[6], 45);
}

TEST_F(Settings, WindowWidthIsHeldBetweenItsLimits) {
    const struct {
        int written;
        int read;
    } cases[] = {{1000, 450}, {451, 450}, {450, 450}, {200, 200},
                 {120, 120},  {119, 120}, {-5, 120}};
    for (const auto &c : cases) {
        settings.Write(settings::kWindowWidth, c.written);
        EXPECT_EQ(settings.WindowWidth(), c.read) << c.written;
    }
}

TEST_F(Settings, WritesAreReadBackInTheirForms) {
    EXPECT_TRUE(settings.Write(settings::kSound, false));
    EXPECT_TRUE(settings.Write(settings::kShowCalcBar, true));
    EXPECT_TRUE(settings.Write(settings::kMediaPlayerPath, std::string(600, 'p')));
    EXPECT_TRUE(settings.SetCustomColor(16, TColor(10, 20, 30)));
    EXPECT_FALSE(settings.SetCustomColor(17, TColor(10, 20, 30)));
    std::vector<TColor> colors(16, TColor(1, 1, 1));
    EXPECT_TRUE(settings.SaveGraphDefaultColors(colors));
    EXPECT_EQ(settings.GraphDefaultColors(), colors);
    EXPECT_FALSE(settings.Sound());
    EXPECT_TRUE(settings.ShowCalcBar());
    EXPECT_EQ(settings.MediaPlayerPath(), std::string(512, 'p'));  // a text reads 512 at most
    EXPECT_EQ(settings.CustomColor(16), TColor(10, 20, 30));
    const std::string text = file_content(file);
    EXPECT_NE(text.find("Sound=0\r\n"), std::string::npos);
    EXPECT_NE(text.find("ShowCalcBar=1\r\n"), std::string::npos);
    EXPECT_NE(text.find("CustColor16=10,20,30\r\n"), std::string::npos);
    EXPECT_NE(text.find("GraphForegrond=1,1,1\r\n"), std::string::npos);
}

TEST_F(Settings, TheSeventhRecentFilePushesTheOldestOut) {
    for (int n = 1; n <= 7; ++n) EXPECT_TRUE(settings.AddRecentFile("/f" + std::to_string(n)));
    EXPECT_EQ(settings.RecentFiles(),
              (std::vector<std::string>{"/f7", "/f6", "/f5", "/f4", "/f3", "/f2"}));
    char oldest[64];
    GetPrivateProfileString("MRU", "MRU5", "", oldest, sizeof oldest, file.c_str());
    EXPECT_STREQ(oldest, "/f2");
    settings.AddRecentFile("/f4");  // a listed path moves up instead of standing twice
    EXPECT_EQ(settings.RecentFiles(),
              (std::vector<std::string>{"/f4", "/f7", "/f6", "/f5", "/f3", "/f2"}));
    EXPECT_FALSE(settings.AddRecentFile(""));
}

TEST(SettingsFile, AFileThatCannotBeWrittenKeepsItsDefaults) {
    TempFolder folder;
    testing::write_content(folder.file("plain"), "not a folder");
    const AppSettings settings(folder.file("plain") + "/quindar/Quindar.ini");
    EXPECT_FALSE(settings.Write(settings::kSound, false));
    EXPECT_TRUE(settings.Sound());
}

TEST_F(Settings, NewGraphsTakeTheirDefaultsFromTheUsersSettingsFile) {
    std::filesystem::create_directories(folder.file("Quindar"));
    testing::write_content(file, "[Graph Default Colors]\r\nBackground=10,20,30\r\n");
    const GraphDefaults graphSettings = read_graph_defaults();
    GraphList list;
    const GraphData *graph = add_new_graph(list, "G", &graphSettings);
    EXPECT_EQ(graph->BackgroundColor, TColor(10, 20, 30));
}

}  // namespace
}  // namespace quindar
