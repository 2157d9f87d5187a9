// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Function Library's categories, names and texts over two library files, its search and
// Back, and the prototype rules of Insert.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "function_library_browser.h"
#include "function_library_catalog.h"
#include "function_library_insert.h"
#include "function_library_rules.h"
#include "memory_text_buffer.h"

namespace quindar {
namespace {

namespace fs = std::filesystem;

constexpr const char *kSystem =
    "; system library\r\n"
    "\r\n"
    "[GEOMETRY]\r\n"
    "CIRCLEAREA[r]=PI*r^2\r\n"
    "CIRCLEAREA=Area of a circle of radius r.\r\n"
    "SQUARE[a]=a^2\r\n"
    "SQUARE=Area of a square.\r\n"
    "\r\n"
    "[ALGEBRA]\r\n"
    "CUBE[a]=a^3\r\n"
    "CUBE=The third power.\r\n";

constexpr const char *kUser =
    "Free text of the user.\r\n"
    "\r\n"
    "[COMMON]\r\n"
    "DOUBLE[x]=2*x\r\n"
    "DOUBLE=Twice x.\r\n"
    "\r\n"
    "[geometry]\r\n"
    "TRIANGLE[b,h]=b*h/2\r\n"
    "TRIANGLE=Area of a triangle.\r\n"
    "\r\n"
    "[MINE]\r\n"
    "NOBODY[x]\r\n"
    "HALF[x]=x/2\r\n";

class CatalogLibraries : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() /
                 ("quindar_catalog_" +
                  std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "_" +
                  ::testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(folder);
        Write("Quindar.lib", kSystem);
        Write("QuindarUser.lib", kUser);
    }
    void TearDown() override { fs::remove_all(folder); }
    void Write(const char *name, const char *text) {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    std::string Path(const char *name) const { return (folder / name).string(); }

    fs::path folder;
};

TEST_F(CatalogLibraries, CategoriesEmbeddedFirstThenNewOnesOfEachFile) {
    VarFunIniFile system(Path("Quindar.lib").c_str());
    VarFunIniFile user(Path("QuindarUser.lib").c_str());
    FunctionLibraryCatalog catalog(&system, &user);
    const std::vector<std::string> expected{
        "ALL",      "COMMON",  "GENERAL MATH", "TRIGONOMETRIC", "STATISTICAL",
        "COMPLEX",  "LOGICAL", "ELECTRICAL",   "TRUNC&ROUND",   "CONSTANTS",
        "GEOMETRY", "ALGEBRA", "MINE"};
    EXPECT_EQ(catalog.Categories(), expected);
}

TEST_F(CatalogLibraries, NamesOfEmbeddedAndLibraryCategories) {
    VarFunIniFile system(Path("Quindar.lib").c_str());
    VarFunIniFile user(Path("QuindarUser.lib").c_str());
    FunctionLibraryCatalog catalog(&system, &user);

    const auto common = catalog.Names("COMMON");
    ASSERT_EQ(common.size(), 12U);
    EXPECT_EQ(common.front(), "SQRT");
    EXPECT_EQ(common[10], "CUBERT");
    EXPECT_EQ(common.back(), "DOUBLE");  // the user's COMMON comes behind the embedded names

    EXPECT_EQ(catalog.Names("GEOMETRY"), (std::vector<std::string>{"CIRCLEAREA", "SQUARE"}));
    // A line without "=" is no definition.
    EXPECT_EQ(catalog.Names("MINE"), (std::vector<std::string>{"HALF"}));
    EXPECT_TRUE(catalog.Names("NOWHERE").empty());

    const auto all = catalog.Names("ALL");
    ASSERT_EQ(all.size(), 107U + 3U + 3U);
    EXPECT_EQ(all[90], "PRESIST");
    EXPECT_EQ(all[91], "PI");
    EXPECT_EQ(all[106], "FALSE");
    const std::vector<std::string> libraryPart(all.begin() + 107, all.end());
    EXPECT_EQ(libraryPart, (std::vector<std::string>{"CIRCLEAREA", "SQUARE", "CUBE", "DOUBLE",
                                                     "TRIANGLE", "HALF"}));
}

TEST_F(CatalogLibraries, DescribesEmbeddedConstantAndLibraryNames) {
    VarFunIniFile system(Path("Quindar.lib").c_str());
    VarFunIniFile user(Path("QuindarUser.lib").c_str());
    FunctionLibraryCatalog catalog(&system, &user);

    LibraryEntry entry = catalog.Describe("LOG", "ALL");
    EXPECT_EQ(entry.kind, LibraryEntryKind::Embedded);
    EXPECT_EQ(entry.index, 3);
    EXPECT_EQ(entry.prototype, "LOG[number,base]");

    entry = catalog.Describe("SOUND", "CONSTANTS");
    EXPECT_EQ(entry.kind, LibraryEntryKind::Constant);
    EXPECT_EQ(entry.index, 10);
    EXPECT_EQ(entry.prototype, "SOUND");
    EXPECT_EQ(entry.description, "Speed Of Sound In Dry Air = 331.45 Meters/Second.");

    const struct {
        const char *name;
        const char *category;
        const char *prototype;
        const char *description;
        const char *foundIn;
    } cases[] = {
        {"CIRCLEAREA", "GEOMETRY", "CIRCLEAREA[r] = PI*r^2", "Area of a circle of radius r.",
         "GEOMETRY"},
        {"CUBE", "ALL", "CUBE[a] = a^3", "The third power.", "ALGEBRA"},
        {"DOUBLE", "COMMON", "DOUBLE[x] = 2*x", "Twice x.", "COMMON"},
        {"triangle", "ALL", "TRIANGLE[b,h] = b*h/2", "Area of a triangle.", "geometry"},
        {"HALF", "MINE", "HALF[x] = x/2", "", "MINE"},
    };
    for (const auto &c : cases) {
        entry = catalog.Describe(c.name, c.category);
        EXPECT_EQ(entry.kind, LibraryEntryKind::Library) << c.name;
        EXPECT_EQ(entry.prototype, c.prototype) << c.name;
        EXPECT_EQ(entry.description, c.description) << c.name;
        EXPECT_EQ(entry.category, c.foundIn) << c.name;
    }

    entry = catalog.Describe("NOSUCH", "ALL");
    EXPECT_EQ(entry.kind, LibraryEntryKind::None);
    EXPECT_TRUE(entry.prototype.empty());
    EXPECT_TRUE(entry.description.empty());
}

TEST_F(CatalogLibraries, MissingOrAbsentLibrariesLeaveTheEmbeddedTexts) {
    VarFunIniFile missing(Path("Nothing.lib").c_str());
    FunctionLibraryCatalog catalog(&missing, nullptr);
    EXPECT_EQ(catalog.Categories().size(), 10U);
    EXPECT_EQ(catalog.Names("ALL").size(), 107U);
    EXPECT_EQ(catalog.Describe("CIRCLEAREA", "ALL").kind, LibraryEntryKind::None);
    EXPECT_EQ(catalog.Describe("SQRT", "ALL").kind, LibraryEntryKind::Embedded);
}

TEST_F(CatalogLibraries, ADamagedUserLibraryLeavesTheSystemLibraryWorking) {
    const std::string damaged[] = {
        std::string("\0\x01\xFF[bad\r\n=\r\n[\r\n]]\r\n", 17),
        "[ONLY]\r\n[x]=\r\n=\r\n[]\r\nA[=B\r\n",
        "",
    };
    for (const std::string &text : damaged) {
        std::ofstream(folder / "QuindarUser.lib", std::ios::binary) << text;
        VarFunIniFile system(Path("Quindar.lib").c_str());
        VarFunIniFile user(Path("QuindarUser.lib").c_str());
        FunctionLibraryCatalog catalog(&system, &user);
        const auto categories = catalog.Categories();
        ASSERT_GE(categories.size(), 12U);
        EXPECT_EQ(categories[10], "GEOMETRY");
        for (const auto &category : categories) catalog.Names(category);
        EXPECT_EQ(catalog.Describe("CUBE", "ALL").prototype, "CUBE[a] = a^3");
        FunctionLibraryBrowser browser(catalog);
        EXPECT_TRUE(browser.Search("cu"));
    }
    // A folder where the user library should be.
    fs::remove(folder / "QuindarUser.lib");
    fs::create_directory(folder / "QuindarUser.lib");
    VarFunIniFile system(Path("Quindar.lib").c_str());
    VarFunIniFile user(Path("QuindarUser.lib").c_str());
    FunctionLibraryCatalog catalog(&system, &user);
    EXPECT_EQ(catalog.Categories().size(), 12U);
    EXPECT_EQ(catalog.Describe("CIRCLEAREA", "ALL").kind, LibraryEntryKind::Library);
}

TEST_F(CatalogLibraries, SearchSwitchesToAllAndBackReturnsToTheFoundName) {
    VarFunIniFile system(Path("Quindar.lib").c_str());
    FunctionLibraryCatalog catalog(&system, nullptr);
    FunctionLibraryBrowser browser(catalog);
    EXPECT_EQ(browser.CurrentCategory(), "ALL");
    EXPECT_EQ(browser.CurrentName(), "SQRT");
    EXPECT_FALSE(browser.BackEnabled());

    browser.SelectCategory(5);
    EXPECT_EQ(browser.CurrentCategory(), "COMPLEX");
    EXPECT_EQ(browser.CurrentName(), "REAL");

    EXPECT_TRUE(browser.Search("cm"));
    EXPECT_EQ(browser.CurrentCategory(), "ALL");
    EXPECT_EQ(browser.CurrentName(), "CMAG");
    EXPECT_FALSE(browser.BackEnabled());

    browser.SelectName(0);
    EXPECT_TRUE(browser.BackEnabled());
    browser.SelectName(21);  // CMAG again, by hand
    EXPECT_FALSE(browser.BackEnabled());
    browser.SelectCategory(10);
    EXPECT_EQ(browser.CurrentName(), "CIRCLEAREA");
    EXPECT_TRUE(browser.BackEnabled());
    EXPECT_TRUE(browser.Back());
    EXPECT_EQ(browser.CurrentCategory(), "ALL");
    EXPECT_EQ(browser.CurrentName(), "CMAG");
    EXPECT_FALSE(browser.BackEnabled());
    EXPECT_EQ(browser.CurrentEntry().prototype, "CMAG[complexNumber]");

    // A text no name begins with keeps the selection; an empty box disables Back.
    EXPECT_FALSE(browser.Search("zzz"));
    EXPECT_EQ(browser.CurrentName(), "CMAG");
    EXPECT_TRUE(browser.Search("circ"));
    EXPECT_EQ(browser.CurrentName(), "CIRCLEAREA");
    EXPECT_EQ(browser.CurrentEntry().prototype, "CIRCLEAREA[r] = PI*r^2");
    EXPECT_FALSE(browser.Search(""));
    browser.SelectName(1);
    EXPECT_FALSE(browser.BackEnabled());
}

TEST(FunctionLibraryTexts, PrototypeLosesItsBlanksAndWrapsEvery45Characters) {
    EXPECT_EQ(InsertFunctionPrototype("F[x] = 2x"), "F[x]=2x");
    const std::string prototype = "NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]";
    EXPECT_EQ(InsertFunctionPrototype(prototype),
              "NORPROB[mean,stdev,x1,x2]or[{num1,num2,...num N},x1,x2]");
    EXPECT_EQ(InsertFunctionPrototype(std::string(90, 'a')),
              std::string(45, 'a') + " " + std::string(45, 'a'));
    EXPECT_EQ(InsertFunctionPrototype(std::string(45, 'a')), std::string(45, 'a'));
    EXPECT_EQ(InsertFunctionPrototype("abcdef", 2), "ab cd ef");
}

TEST(FunctionLibraryTexts, InsertCutsAtTheEqualsSign) {
    const struct {
        const char *prototype;
        const char *inserted;
    } cases[] = {
        {"F[x] = 2x", "F[x]"},      {"F[x]=2x", "F[x]"}, {"SQRT[number]", "SQRT[number]"},
        {"G[a,b]  = a", "G[a,b] "}, {"PI", "PI"},
    };
    for (const auto &c : cases) EXPECT_EQ(CutPrototypeForInsert(c.prototype), c.inserted);
}

TEST(FunctionLibraryTexts, ParametersToSelectAfterInsert) {
    const struct {
        const char *text;
        bool found;
        const char *parameters;
    } cases[] = {
        {"F[x]", true, "x"},
        {"LOG[number,base]", true, "number,base"},
        {"MEAN[{number1,number2,...numberN}]", true, "number1,number2,...numberN"},
        {"NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]", true, "num1,num2,...numN"},
        {"F[[x]]", false, ""},
        {"PI", false, ""},
        {"F[", false, ""},
    };
    for (const auto &c : cases) {
        std::size_t begin = 0;
        std::size_t end = 0;
        const std::string_view text(c.text);
        ASSERT_EQ(ParameterRange(text, begin, end), c.found) << c.text;
        if (c.found) EXPECT_EQ(text.substr(begin, end - begin), c.parameters) << c.text;
    }
}

TEST(FunctionLibraryTexts, InsertSelectsTheParametersOnTheCaretLine) {
    const struct {
        const char *before;  // the caret stands at the end
        const char *prototype;
        bool inserted;
        const char *text;
        const char *selected;
    } cases[] = {
        {"1+", "F[x] = 2*x", true, "1+F[x]", "x"},
        {"a\r\nb", "LOG[number,base]", true, "a\r\nbLOG[number,base]", "number,base"},
        {"", "MEAN[{number1,number2,...numberN}]", true, "MEAN[{number1,number2,...numberN}]",
         "number1,number2,...numberN"},
        {"", "PI", true, "PI", ""},
        {"", "", false, "", ""},
        // The call is looked for on the line, so an earlier one of the same name is selected.
        {"G[y]+", "G[y] = y", true, "G[y]+G[y]", "y"},
    };
    for (const auto &c : cases) {
        MemoryTextBuffer buffer(c.before);
        const int end = static_cast<int>(buffer.Text().size());
        buffer.SetSelection(end, end);
        EXPECT_EQ(InsertLibraryPrototype(buffer, c.prototype), c.inserted) << c.prototype;
        EXPECT_EQ(buffer.Text(), c.text) << c.prototype;
        int start = 0;
        int stop = 0;
        buffer.GetSelection(start, stop);
        EXPECT_EQ(buffer.TextRange(start, stop), c.selected) << c.prototype;
    }
    MemoryTextBuffer buffer("G[y]+");
    buffer.SetSelection(5, 5);
    InsertLibraryPrototype(buffer, "G[y]");
    int start = 0;
    int stop = 0;
    buffer.GetSelection(start, stop);
    EXPECT_EQ(start, 2);  // inside the first G[y]
}

TEST(FunctionLibraryTexts, ButtonsHelpTopicsAndGraphRefusals) {
    LibraryEntry embedded{LibraryEntryKind::Embedded, 27, "SIN[number]", "", ""};
    LibraryEntry constant{LibraryEntryKind::Constant, 0, "PI", "", ""};
    LibraryEntry library{LibraryEntryKind::Library, -1, "G[a,b] = a+b", "", "MINE"};
    const struct {
        const LibraryEntry &entry;
        const char *category;
        bool help;
        bool solve;
    } cases[] = {{embedded, "ALL", true, true},
                 {constant, "ALL", false, false},
                 {constant, "CONSTANTS", false, false},
                 {library, "MINE", false, true},
                 {embedded, "CONSTANTS", true, false}};
    for (const auto &c : cases) {
        const LibraryButtons buttons = ButtonsFor(c.entry, c.category);
        EXPECT_EQ(buttons.helpShown, c.help) << c.entry.prototype;
        EXPECT_EQ(buttons.solveEnabled, c.solve) << c.entry.prototype;
    }
    EXPECT_EQ(FunctionHelpTopic(embedded), 20027);
    EXPECT_EQ(FunctionHelpTopic(library), 0);
    EXPECT_EQ(GraphInsertRefusal(constant, "PI"), kConstantNotGraphed);
    EXPECT_EQ(GraphInsertRefusal(library, "G[a,b]"), 0);
    EXPECT_EQ(GraphInsertRefusal(embedded, "SIN[number]"), 0);
    EXPECT_EQ(GraphInsertRefusal(library, "H[a,b,c]"), kTooManyParametersToGraph);
    EXPECT_EQ(FillMessage(FunctionLibraryMessageText(kTooManyParametersToGraph), "H[a,b,c]"),
              "Function \"H[a,b,c]\" Has Too Many Parameters To Be Graphed.");
}

}  // namespace
}  // namespace quindar
