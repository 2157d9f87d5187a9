// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The engine's side of library functions over libraries held in memory: which library and
// which category answers a name, and what the engine asks of them.
#include <gtest/gtest.h>
#include <strings.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "function_library.h"
#include "line_table.h"
#include "parser.h"
#include "temp_folder.h"

namespace quindar {
namespace {

using testing::check_lines;
using testing::LineCase;

// Categories in order, each a list of (full name, body); counts the look-ups it answers.
class MemoryLibrary final : public FunctionLibrary {
public:
    using Category = std::pair<std::string, std::vector<LibraryDefinition>>;
    MemoryLibrary(std::vector<Category> content, int &lookups)
        : categories_(std::move(content)), lookups_(lookups) {}

    std::vector<std::string> categories() override {
        std::vector<std::string> names;
        for (const auto &category : categories_) names.push_back(category.first);
        return names;
    }
    void set_category(const std::string &category) override { current_ = category; }
    std::optional<LibraryDefinition> find_in_category(const char *name) override {
        ++lookups_;
        for (const auto &category : categories_) {
            if (category.first != current_) continue;
            for (const auto &definition : category.second) {
                const std::string short_name =
                    definition.full_name.substr(0, definition.full_name.find('['));
                if (strcasecmp(short_name.c_str(), name) == 0) return definition;
            }
        }
        return std::nullopt;
    }

private:
    std::vector<Category> categories_;
    std::string current_;
    int &lookups_;
};

// The system library of lib holds categories A and B, the user library of user category U.
void open_memory_libraries(Parser &parser, const std::string &lib, int &lookups) {
    parser.open_function_libraries([&lookups, lib](const std::string &path) {
        std::vector<MemoryLibrary::Category> content;
        if (path == lib + "Quindar.lib")
            content = {{"A", {{"ONE[x]", "x+1"}}}, {"B", {{"ONE[x]", "x+2"}, {"TWO[x]", "2*x"}}}};
        else
            content = {{"U", {{"TWO[x]", "x*x"}, {"MINE[x,y]", "x-y"}}}};
        return std::make_unique<MemoryLibrary>(std::move(content), lookups);
    });
}

TEST(LibraryLookup, FilesThatCannotBeReadAreNotOpened) {
    testing::TempFolder folder;
    const std::string lib = folder.path() + "/";
    Parser parser(lib.c_str(), lib.c_str());
    int lookups = 0;
    open_memory_libraries(parser, lib, lookups);
    EXPECT_FALSE(parser.is_library_function("ONE"));
    EXPECT_EQ(lookups, 0);
}

TEST(LibraryLookup, CategoriesInFileOrderAndTheSystemLibraryFirst) {
    testing::TempFolder folder;
    const std::string lib = folder.path() + "/lib/";
    const std::string user = folder.path() + "/user/";
    std::filesystem::create_directories(lib);
    std::filesystem::create_directories(user);
    folder.write("lib/Quindar.lib", "");
    folder.write("user/QuindarUser.lib", "");
    Parser parser(lib.c_str(), user.c_str());
    int lookups = 0;
    open_memory_libraries(parser, lib, lookups);
    const LineCase table[] = {
        {"ONE[1]", " = 2"},   // category A before B
        {"TWO[5]", " = 10"},  // the system's TWO hides the user's
        {"mine[5, 2]", " = 3"},
        {"x = 4", ""},
    };
    check_lines(parser, table);
    lookups = 0;
    EXPECT_EQ(testing::evaluate(parser, "x*2 + SIN[90] + 0*PI"), " = 9");
    EXPECT_EQ(lookups, 0);  // variables, embedded functions and constants are never looked up
    ASSERT_TRUE(parser.is_library_function("TWO"));
    EXPECT_NE(parser.get_lib_function("TWO"), nullptr);  // category B stays current
    EXPECT_EQ(parser.get_lib_function("ONE")->func_value, "x+2");
    EXPECT_EQ(parser.get_user_function("ONE"), nullptr);
}

TEST(LibraryLookup, WithoutAnOpenerNoNameIsALibraryFunction) {
    Parser parser("", "");
    EXPECT_FALSE(parser.is_library_function("ONE"));
    EXPECT_EQ(parser.get_lib_function("ONE"), nullptr);
    EXPECT_EQ(testing::evaluate(parser, "2+2"), " = 4");
}

}  // namespace
}  // namespace quindar
