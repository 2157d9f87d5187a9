// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Lines that call library functions: look-up in the system library first and then the user
// library, splicing, every message of a call or a declaration, libraries that are missing,
// edited while the engine runs, or damaged.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "../engine/line_table.h"
#include "library_files.h"
#include "parser.h"
#include "temp_folder.h"
#include "text_run.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::evaluate;
using testing::LineCase;
using testing::TempFolder;

constexpr const char *kSystem =
    "; test library\n"
    "[FIRST]\n"
    "SQUARE[x]=x^2\n"
    "SQUARE=The square of x.\n"
    "\n"
    "TWICE[x]=2*SQUARE[x]\n"
    "SELF[x]=self[x]+1\n"
    "NOTOF[x,y]=x+1\n"
    "PINGA[x]=PINGB[x]\n"
    "PINGB[x]=PINGA[x]\n"
    "EMPTYBODY[x]=\n"
    "[SECOND]\n"
    "SHARED[x]=x+1\n"
    "; a comment ends the listing\n"
    "HIDDEN[x]=x\n";

constexpr const char *kUser =
    "[MINE]\n"
    "SHARED[x]=x+100\n"
    "CUBE[x]=x^3\n"
    "square[x]=0\n";

constexpr const char *kArgumentCount =
    " ' requires ' 1 ' dependent variables, ' %d ' were used! Commas may only be used to "
    "separate function parameters or define an incremental variable!";

std::string argument_count(const char *name, int used) {
    std::string text = std::string("Function ' ") + name + kArgumentCount;
    return text.replace(text.find("%d"), 2, std::to_string(used));
}

class LibraryCalls : public ::testing::Test {
protected:
    void SetUp() override {
        folder.write("Quindar.lib", kSystem);
        folder.write("QuindarUser.lib", kUser);
        install_function_libraries(parser);
    }

    TempFolder folder;
    std::string path = folder.path() + "/";
    Parser parser{path.c_str(), path.c_str()};
};

TEST_F(LibraryCalls, SystemLibraryFirstThenUserLibrary) {
    const LineCase table[] = {
        {"SQUARE[3]", " = 9"},
        {"square(1+2)", " = 9"},  // any case; the system's SQUARE hides the user's square
        {"TWICE[3]", " = 18"},    // a library body calls another library function
        {"SHARED[1]", " = 2"},
        {"CUBE[2]", " = 8"},
        {"CUBE[SQUARE[2]] - 60", " = 4"},
        {"HIDDEN[1]", "' HIDDEN ' can not be identified as a function!"},
    };
    check_lines(parser, table);
}

TEST_F(LibraryCalls, MessagesOfCalls) {
    const std::string one_used = argument_count("SQUARE", 2);
    const std::string none_used = argument_count("SQUARE", 0);
    const LineCase table[] = {
        {"SELF[1]",
         "The library function ' SELF[x] = self[x]+1 ' can not be a function of itself!"},
        {"NOTOF[1,2]", "Invalid library function,\n' NOTOF ' is not a function of ' y '!"},
        {"SQUARE[1,2]", one_used.c_str()},
        {"SQUARE+1", none_used.c_str()},
        {"SQUARE[]", none_used.c_str()},
        {"PINGA[1]", "Not enough memory available in buffer to process expression!"},
        {"EMPTYBODY[1]", "Invalid library function,\n' EMPTYBODY ' is not a function of ' x '!"},
        {"SQUARE[2]", " = 4"},  // nothing of the failures stays behind
    };
    check_lines(parser, table);
}

TEST_F(LibraryCalls, MessagesOfDeclarations) {
    const std::string two_used =
        "Function ' SQUARE[x] ' requires ' 1 ' dependent variables, ' 2 ' were used! Commas may "
        "only be used to separate function parameters or define an incremental variable!";
    const LineCase table[] = {
        {"SQUARE[x] = x",
         "' SQUARE ' has already been defined as a mathematical library function\nYou can not "
         "redefine this function! Please choose another name!"},
        {"cube[y] = y",
         "' cube ' has already been defined as a mathematical library function\nYou can not "
         "redefine this function! Please choose another name!"},
        {"f[x] = SQUARE + x", "Bracket of type ' [ ' expected for call to function ' SQUARE ' !"},
        {"f[x] = SQUARE[x, 1]", two_used.c_str()},
        {"f[x] = SQUARE[POW[x, 2]]", ""},  // commas of a nested call do not count
        {"f[2]", " = 16"},
        {"g[x] = TWICE[x] + CUBE[x]", ""},
        {"g[1]", " = 3"},
    };
    check_lines(parser, table);
}

// Each entry of a data file is read by a second engine, which has the same libraries.
TEST_F(LibraryCalls, DataFileEntriesMayCallLibraryFunctions) {
    const std::string data = folder.write("data.txt", "SQUARE[3], CUBE[2]\n1");
    EXPECT_EQ(evaluate(parser, ("SRESIST[{" + data + "}]").c_str()), " = 18");
}

TEST_F(LibraryCalls, AnEditedUserLibraryCountsAtTheNextLine) {
    EXPECT_EQ(evaluate(parser, "CUBE[2]"), " = 8");
    folder.write("QuindarUser.lib", "[MINE]\nCUBE[x]=x^3+1\nNEWONE[x]=x-1\n");
    EXPECT_EQ(evaluate(parser, "CUBE[2]"), " = 9");
    EXPECT_EQ(evaluate(parser, "NEWONE[2]"), " = 1");
}

TEST_F(LibraryCalls, AnEditOfTheSameSizeWithinTheSameMomentCountsToo) {
    // Answers are kept between lines only while the file's bytes stay the same: neither its
    // time (too coarse for two quick writes) nor its size decides.
    for (int round = 0; round < 3; ++round) {
        folder.write("QuindarUser.lib", "[MINE]\nCUBE[x]=x^3+1\n");
        EXPECT_EQ(evaluate(parser, "CUBE[2]"), " = 9");
        EXPECT_EQ(evaluate(parser, "CUBE[2]"), " = 9");
        folder.write("QuindarUser.lib", "[MINE]\nCUBE[x]=x^3+2\n");
        EXPECT_EQ(evaluate(parser, "CUBE[2]"), " = 10");
        EXPECT_EQ(evaluate(parser, "NOSUCH[2]"), "' NOSUCH ' can not be identified as a function!");
    }
    std::filesystem::remove(folder.path() + "/QuindarUser.lib");
    EXPECT_EQ(evaluate(parser, "CUBE[2]"), "' CUBE ' can not be identified as a function!");
}

struct ShownBox {
    std::string text;
    std::string caption;
};

std::string not_opened(const std::string &path) {
    return "The Quindar function library file \" " + path +
           " \" could not be opened! If the file exist's, check your system level access "
           "privilages.";
}

TEST(LibraryFiles, MissingFilesAreToldOnceEvenWhenSilentAndTheEngineWorksOn) {
    TempFolder folder;
    const std::string path = folder.path() + "/";
    Parser parser(path.c_str(), path.c_str());
    std::vector<ShownBox> boxes;
    parser.set_message_hook([&](std::string_view text, std::string_view caption, MessageStyle) {
        boxes.push_back({std::string(text), std::string(caption)});
        return true;
    });
    parser.SetSilentMode(true);
    install_function_libraries(parser);
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].text, not_opened(path + "Quindar.lib"));
    EXPECT_EQ(boxes[1].text, not_opened(path + "QuindarUser.lib"));
    EXPECT_EQ(boxes[0].caption, "File Access");
    EXPECT_EQ(parser.get_lib_path(), path + "Quindar.lib");
    EXPECT_EQ(parser.get_user_lib_path(), path + "QuindarUser.lib");
    EXPECT_EQ(evaluate(parser, "1+1"), " = 2");
    EXPECT_EQ(evaluate(parser, "SQUARE[2]"), "' SQUARE ' can not be identified as a function!");
    EXPECT_EQ(boxes.size(), 2u);  // silent lines show nothing
}

TEST(LibraryFiles, AFolderIsNoLibrary) {
    TempFolder folder;
    const std::string path = folder.path() + "/";
    std::filesystem::create_directory(path + "Quindar.lib");
    folder.write("QuindarUser.lib", "[A]\nONE[x]=x\n");
    Parser parser(path.c_str(), path.c_str());
    int boxes = 0;
    parser.set_message_hook([&](std::string_view, std::string_view, MessageStyle) {
        ++boxes;
        return true;
    });
    install_function_libraries(parser);
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(evaluate(parser, "ONE[5]"), " = 5");
}

// Damaged files load without a crash; what does not fit the format is simply no function.
TEST(LibraryFiles, DamagedLibrariesFailCleanly) {
    TempFolder folder;
    const std::string path = folder.path() + "/";
    constexpr char kGarbage[] = "[\x01\xff=]\n\0\0[GARBAGE\n=[]=\r\r\n\0\x7f[X]\xfe\nLOST[a]=a\n";
    // A definition outside any category is none; a category after the garbage still counts.
    const std::string garbage = std::string(kGarbage, sizeof kGarbage - 1) +
                                "[OK]\nGOOD[a]=a*3\nODD[a]=a$@\nUNEVEN[a]=(a\n";
    folder.write("Quindar.lib", garbage);
    std::string huge = "[BIG]\nHUGE[x]=x";
    for (int k = 0; k < 50000; ++k) huge += "+1";
    huge += "\n";
    folder.write("QuindarUser.lib", huge);
    Parser parser(path.c_str(), path.c_str());
    install_function_libraries(parser);
    const LineCase table[] = {
        {"GOOD[2]", " = 6"},
        {"HUGE[1]", "Not enough memory available in buffer to process expression!"},
        {"ODD[1]", "' $ ' is not a legitimate mathematical character!"},
        {"UNEVEN[1]", "Unbalanced parentheses in expression!"},
        {"LOST[1]", "' LOST ' can not be identified as a function!"},
        {"NONE[1]", "' NONE ' can not be identified as a function!"},
        {"2+3", " = 5"},
    };
    check_lines(parser, table);
}

TEST(LibraryFiles, AHeadlessRunToldOfAMissingLibraryComputesWithTheOther) {
    TempFolder folder;
    const std::string path = folder.path() + "/";
    folder.write("QuindarUser.lib", kUser);
    const TextRun run = RunText("CUBE[3]\nSHARED[1]\n", RunKey::F4, path);
    EXPECT_EQ(run.text,
              "CUBE[3] = 27\nSHARED[1] = 101\n");  // the user's SHARED, lacking the system's
    EXPECT_EQ(run.warnings, std::vector<std::string>{not_opened(path + "Quindar.lib")});
    EXPECT_TRUE(run.failures.empty());

    const TextRun shipped = RunText("CIRCLEAREA[1]\n", RunKey::F4, QUINDAR_LIBRARY_DIR);
    EXPECT_EQ(shipped.text, "CIRCLEAREA[1] = 3.1415926535898\n");
    EXPECT_TRUE(shipped.warnings.empty());
}

}  // namespace
}  // namespace quindar
