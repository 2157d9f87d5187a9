// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Function Library's texts against the function and constant tables, and its embedded
// categories.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "embedded_tables.h"
#include "function_texts.h"

namespace quindar::mathlib {
namespace {

TEST(FunctionTexts, OneTextPerFunctionInTableOrder) {
    const auto texts = embedded_function_texts();
    ASSERT_EQ(texts.size(), 91U);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].name, kEmbeddedFunctions[i].name) << i;
        EXPECT_EQ(texts[i].prototype, kEmbeddedFunctions[i].syntax) << i;
        EXPECT_TRUE(texts[i].prototype.starts_with(texts[i].name)) << i;
        ASSERT_FALSE(texts[i].description.empty()) << i;
        EXPECT_EQ(texts[i].description.back(), '.') << texts[i].name;
    }
}

TEST(FunctionTexts, OneTextPerConstantWithItsNameAsPrototype) {
    const auto texts = constant_texts();
    ASSERT_EQ(texts.size(), 16U);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(texts[i].name, kConstants[i].name) << i;
        EXPECT_EQ(texts[i].prototype, texts[i].name) << i;
        EXPECT_FALSE(texts[i].description.empty()) << i;
    }
}

TEST(FunctionTexts, TextsGivenWordForWord) {
    EXPECT_EQ(find_function_text("SOUND")->description,
              "Speed Of Sound In Dry Air = 331.45 Meters/Second.");
    EXPECT_EQ(find_function_text("AND")->description,
              "Returns true (true has a numerical equivalent of the number 1) if all of its "
              "logical arguments are true.  The arguments are logical expressions such as 2<4 "
              "or 5!=6.");
    EXPECT_TRUE(find_function_text("PRCTLE")->description.starts_with(
        "Returns the Pth (percentile value) from the list of numbers. For example, if "
        "percentile value = 60, then 60% of the data falls below the value returned by this "
        "function."));
    EXPECT_EQ(find_function_text("NORPROB")->prototype,
              "NORPROB[mean,stdev,x1,x2] or [{num1,num2,...numN},x1,x2]");
}

TEST(FunctionTexts, FunctionsIgnoreCaseAndConstantsDoNot) {
    EXPECT_EQ(find_function_text("sqrt"), &embedded_function_texts()[0]);
    EXPECT_EQ(find_function_text("e"), &constant_texts()[1]);
    EXPECT_EQ(find_function_text("pi"), nullptr);
    EXPECT_EQ(find_function_text("E"), nullptr);
    EXPECT_EQ(find_function_text("NOSUCH"), nullptr);
    EXPECT_TRUE(is_constant_text(find_function_text("TRUE")));
    EXPECT_FALSE(is_constant_text(find_function_text("IF")));
    EXPECT_FALSE(is_constant_text(nullptr));
}

TEST(FunctionTexts, CategoriesInOrderWithTheirMembers) {
    const struct {
        const char *name;
        std::size_t count;
        const char *first;
        const char *last;
    } expected[] = {
        {"ALL", 107, "SQRT", "FALSE"},
        {"COMMON", 11, "SQRT", "CUBERT"},
        {"GENERAL MATH", 19, "SQRT", "CUBERT"},
        {"TRIGONOMETRIC", 15, "DEG", "HYPOT"},
        {"STATISTICAL", 45, "MEAN", "NCHIDEV"},
        {"COMPLEX", 7, "REAL", "CONJ"},
        {"LOGICAL", 4, "AND", "IF"},
        {"ELECTRICAL", 2, "SRESIST", "PRESIST"},
        {"TRUNC&ROUND", 4, "CEIL", "TRUNC"},
        {"CONSTANTS", 16, "PI", "FALSE"},
    };
    const auto categories = embedded_categories();
    ASSERT_EQ(categories.size(), std::size(expected));
    for (std::size_t i = 0; i < categories.size(); ++i) {
        EXPECT_EQ(categories[i].name, expected[i].name);
        const auto names = embedded_category_names(categories[i].name);
        ASSERT_EQ(names.size(), expected[i].count) << expected[i].name;
        EXPECT_EQ(names.front(), expected[i].first);
        EXPECT_EQ(names.back(), expected[i].last);
        for (auto name : names) EXPECT_NE(find_function_text(name), nullptr) << name;
    }
    EXPECT_TRUE(embedded_category_names("common").empty());
}

TEST(FunctionTexts, TableRunsFollowTheFunctionIndexes) {
    // Trigonometric, statistical and complex names are runs of the function table.
    const struct {
        const char *category;
        int first;
    } runs[] = {{"TRIGONOMETRIC", 25}, {"STATISTICAL", 40}, {"COMPLEX", 18}};
    for (const auto &run : runs) {
        const auto names = embedded_category_names(run.category);
        for (std::size_t i = 0; i < names.size(); ++i)
            EXPECT_EQ(names[i], kEmbeddedFunctions[run.first + static_cast<int>(i)].name);
    }
    std::set<std::string_view> everyName;
    for (auto name : embedded_category_names("ALL")) everyName.insert(name);
    EXPECT_EQ(everyName.size(), 107U);
}

}  // namespace
}  // namespace quindar::mathlib
