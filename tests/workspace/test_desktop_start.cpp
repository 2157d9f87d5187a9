// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The desktop program's start: its folders, the portable settings file, the command line,
// the temporary files of an earlier run.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "desktop_folders.h"
#include "program_folders.h"
#include "start_request.h"
#include "temp_folder.h"
#include "tutorial_rules.h"

namespace quindar {
namespace {

using testing::TempFolder;

EnvironmentReader Environment(std::map<std::string, std::string> values) {
    return [values = std::move(values)](const char *name) -> const char * {
        const auto found = values.find(name);
        return found == values.end() ? nullptr : found->second.c_str();
    };
}

TEST(DesktopFolders, ProgramFolderWithLibraryIsPortable) {
    TempFolder root;
    std::filesystem::create_directories(root.path() + "/app/Library");
    const DesktopFolders folders = find_desktop_folders(
        root.path() + "/app", "/fallback",
        Environment({{"XDG_CONFIG_HOME", "/cfg"}, {"XDG_DATA_HOME", "/data"}}));
    EXPECT_EQ(folders.execDir, root.path() + "/app/");
    EXPECT_EQ(folders.libraryDir, root.path() + "/app/Library/");
    EXPECT_EQ(folders.examplesDir, root.path() + "/app/Examples/");
    EXPECT_EQ(folders.settingsPath, "/cfg/Quindar/Quindar.ini");
    EXPECT_EQ(folders.userDataDir, "/data/Quindar/");
    EXPECT_EQ(folders.userLibraryDir, "/data/Quindar/Library/");

    // A settings file beside the program is used in place of the user's.
    root.write("app/Quindar.ini", "[OPTIONS]\n");
    const DesktopFolders portable =
        find_desktop_folders(root.path() + "/app/", "/fallback", Environment({}));
    EXPECT_EQ(portable.settingsPath, root.path() + "/app/Quindar.ini");
    // The recent files stay in the user's file.
    EXPECT_EQ(portable.recentFilesPath, "Quindar.ini");
}

TEST(DesktopFolders, InstalledShareFolderAndFallback) {
    TempFolder root;
    std::filesystem::create_directories(root.path() + "/bin");
    std::filesystem::create_directories(root.path() + "/share/quindar/Library");
    const DesktopFolders installed = find_desktop_folders(root.path() + "/bin/", "/fallback",
                                                          Environment({{"HOME", "/home/u"}}));
    EXPECT_EQ(installed.execDir, root.path() + "/share/quindar/");
    EXPECT_EQ(installed.settingsPath, "/home/u/.config/Quindar/Quindar.ini");
    EXPECT_EQ(installed.userDataDir, "/home/u/.local/share/Quindar/");

    const DesktopFolders built =
        find_desktop_folders(root.path() + "/elsewhere/", "/source/tree",
                             Environment({{"XDG_CONFIG_HOME", "relative"}, {"HOME", "/h"}}));
    EXPECT_EQ(built.execDir, "/source/tree/");
    // A relative XDG folder is ignored, as the XDG rules say.
    EXPECT_EQ(built.settingsPath, "/h/.config/Quindar/Quindar.ini");
}

TEST(DesktopFolders, ShippedFolderOfTheProgramAndOfAnInstallation) {
    TempFolder root;
    std::filesystem::create_directories(root.path() + "/portable/Library");
    std::filesystem::create_directories(root.path() + "/bin");
    std::filesystem::create_directories(root.path() + "/share/quindar/Library");
    EXPECT_EQ(shipped_folder(root.path() + "/portable"), root.path() + "/portable/");
    EXPECT_EQ(shipped_folder(root.path() + "/bin/"), root.path() + "/share/quindar/");
    TempFolder lonely;
    EXPECT_EQ(shipped_folder(lonely.path()), "");
    EXPECT_EQ(shipped_folder(""), "");
}

TEST(DesktopFolders, CommandLineUserLibraryStaysBesideAWritableLibrary) {
    TempFolder root;
    const EnvironmentReader environment = Environment({{"XDG_DATA_HOME", "/data"}});
    EXPECT_EQ(command_line_user_library_folder(root.path(), environment), root.path() + "/");
    // A library the user cannot write to (here: one that is not there) sends the user library
    // to the user's data folder.
    EXPECT_EQ(command_line_user_library_folder(root.path() + "/gone/Library/", environment),
              "/data/Quindar/Library/");
}

TEST(DesktopFolders, StaleTemporaryNames) {
    const std::pair<const char *, bool> names[] = {
        {"qnd1234.tmp", true},   {"Qnd7.TMP", true},   {"QND.tmp", true},
        {"qnd1.tmp.bak", false}, {"aqnd1.tmp", false}, {"qndx.tm", false},
    };
    for (const auto &[name, stale] : names) EXPECT_EQ(is_stale_temporary_name(name), stale) << name;
}

struct RequestCase {
    std::vector<std::string> words;
    std::string file;
    bool unregister;
};

TEST(StartRequest, FirstPlainWordAndUnregister) {
    const RequestCase cases[] = {
        {{}, "", false},
        {{"a.qnd"}, "a.qnd", false},
        {{"\"/home/u/my work.qnd\""}, "/home/u/my work.qnd", false},
        {{"a.qnd", "b.qnd"}, "a.qnd", false},
        {{"unregister"}, "", true},
        {{"UN", "x.qnd"}, "", true},
        {{"u"}, "", true},
        {{"unregistered"}, "unregistered", false},
        {{"x.qnd", "Unreg"}, "x.qnd", true},
    };
    for (const RequestCase &entry : cases) {
        const StartRequest request = read_start_request(entry.words);
        EXPECT_EQ(request.file, entry.file);
        EXPECT_EQ(request.unregister, entry.unregister);
    }
}

}  // namespace
}  // namespace quindar

namespace quindar {
namespace {

struct PlanCase {
    bool folder;
    int count;
    bool offerWanted;
    TutorialStep step;
    bool offer;
};

TEST(TutorialRules, WhatTheCommandDoes) {
    const PlanCase cases[] = {
        {false, 0, true, TutorialStep::NoFolder, true},
        {false, 0, false, TutorialStep::NoFolder, false},
        {true, 0, true, TutorialStep::NoFiles, true},
        {true, 3, true, TutorialStep::ChooseFile, true},
        {true, 7, true, TutorialStep::ChooseFile, true},
        {true, 8, true, TutorialStep::ChooseFile, false},
        {true, 3, false, TutorialStep::ChooseFile, false},
    };
    for (const PlanCase &entry : cases) {
        const TutorialPlan plan = plan_tutorials(entry.folder, entry.count, entry.offerWanted);
        EXPECT_EQ(plan.step, entry.step) << entry.folder << entry.count << entry.offerWanted;
        EXPECT_EQ(plan.offerDownload, entry.offer)
            << entry.folder << entry.count << entry.offerWanted;
    }
}

TEST(TutorialRules, PlayerSearchOrder) {
    bool found = true;
    const auto none = [](const std::string &) { return false; };
    EXPECT_EQ(choose_media_player("/opt/player", none, found), "/opt/player");
    EXPECT_FALSE(found);
    EXPECT_EQ(choose_media_player("", none, found), "");
    EXPECT_FALSE(found);
    const auto mpvAndTotem = [](const std::string &path) {
        return path == "/usr/bin/mpv" || path == "/usr/bin/totem";
    };
    EXPECT_EQ(choose_media_player("", mpvAndTotem, found), "/usr/bin/mpv");
    EXPECT_TRUE(found);
}

}  // namespace
}  // namespace quindar
