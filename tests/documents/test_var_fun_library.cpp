// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "documents_test_support.h"
#include "library_lookup.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::data_file;
using testing::joined;

long plus_one(const char *text) {
    return static_cast<long>(std::strlen(text)) + 1;
}

// The buffer a list written as "a|b|c" needs: each name with its NUL, then the closing NUL.
long list_size(const char *joinedNames) {
    return plus_one(joinedNames) + 1;
}

class VarFunLibrary : public ::testing::Test {
protected:
    VarFunIniFile library{data_file("library.lib").c_str()};
};

TEST_F(VarFunLibrary, Categories) {
    const char *expected = "FINANCIAL|GEOMETRY|STATISTICS|EMPTY|NUMBERS|INDENTED";
    char buffer[128];
    EXPECT_TRUE(library.GetFunctionCatagories(buffer, sizeof buffer));
    EXPECT_EQ(joined(buffer, sizeof buffer), expected);
    EXPECT_EQ(library.SizeOfFunctionCatagories(), list_size(expected));
    struct {
        const char *name;
        bool is;
    } cases[] = {
        {"FINANCIAL", true},     {"financial", false}, {"INDENTED", true},
        {"COMMENTED", false},  // ";[COMMENTED]"
        {"NOT=CATEGORY", false}, {"NOT", false},       {"", false},
        {nullptr, false},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(library.IsFunctionCatagory(c.name), c.is) << (c.name ? c.name : "(null)");
    }
}

TEST_F(VarFunLibrary, NamesPerCategory) {
    struct {
        const char *category;
        bool stored;
        const char *expected;
    } cases[] = {
        {"FINANCIAL", true, "CPOUND[P,I,N]|PVALUE[F,I,N]"},  // descriptions are passed over
        {"GEOMETRY", true, "CIRCLE[r]|SPHERE[r]|CONE"},      // a ";" line ends the listing; a
                                                             // description with "[", "]" and "="
                                                             // counts as a definition
        {"STATISTICS", true, "MEAN2[a,b]|RANGE2[a,b]"},      // an empty line does not end it,
                                                             // a blank in front of a name does
        {"EMPTY", false, ""},
        {"NUMBERS", false, ""},   // a definition starting with a digit ends the listing
        {"INDENTED", false, ""},  // its header line is not exactly "[INDENTED]"
        {"NOPE", false, ""},
    };
    for (const auto &c : cases) {
        char buffer[128];
        std::memset(buffer, '#', sizeof buffer);
        EXPECT_EQ(library.GetFunctionNames(buffer, sizeof buffer, c.category), c.stored)
            << c.category;
        EXPECT_EQ(joined(buffer, sizeof buffer), c.expected) << c.category;
        EXPECT_EQ(library.SizeOfFunctionNames(c.category), c.stored ? list_size(c.expected) : 0)
            << c.category;
    }
}

TEST_F(VarFunLibrary, CategoryStaysTheFunctionFlag) {
    EXPECT_EQ(library.GetNumFunctions(), 0);  // no "[DECLARED FUNCTIONS]" in a library
    EXPECT_EQ(library.SizeOfFunctionNames("GEOMETRY"), list_size("CIRCLE[r]|SPHERE[r]|CONE"));
    EXPECT_STREQ(library.GetFunctionFlagStr(), "GEOMETRY");
    EXPECT_EQ(library.GetNumFunctions(), 3);
    EXPECT_TRUE(library.IsFunction("sphere"));
    // An unknown category leaves the flag alone.
    EXPECT_FALSE(library.IsFunction("sphere", "NOPE"));
    EXPECT_STREQ(library.GetFunctionFlagStr(), "GEOMETRY");
    EXPECT_EQ(library.SizeOfLongestFuncName("NOPE"), 0);
}

TEST_F(VarFunLibrary, Values) {
    struct {
        const char *name;
        const char *category;
        bool found;
        const char *expected;
    } cases[] = {
        {"CPOUND[P,I,N]", "FINANCIAL", true, "P(POW[1+I,N])"},
        {"CPOUND", "FINANCIAL", true, "Returns the future sum of money or compound amount."},
        {"cpound", "FINANCIAL", false, ""},  // keys compare exactly
        {"PVALUE[F,I,N]", "FINANCIAL", true, "F(POW[1+I,-N])"},
        {"CONE", "GEOMETRY", true, "Volume of a cone [r radius, h height] = PI*r^2*h/3"},
        {"HIDDEN[x]", "GEOMETRY", true, "x"},    // not listed, but the value scan reads on
        {"TWICE[x]", "FINANCIAL", true, "2*x"},  // to the end of the file
        {"CIRCLE[r]", "STATISTICS", false, ""},  // it stands in front of that header
        {"CIRCLE[r]", "NOPE", false, ""},
        {nullptr, "FINANCIAL", false, ""},
    };
    for (const auto &c : cases) {
        char buffer[128];
        EXPECT_EQ(library.GetFunctionValue(c.name, buffer, sizeof buffer, c.category), c.found)
            << (c.name ? c.name : "(null)");
        EXPECT_STREQ(buffer, c.expected) << (c.name ? c.name : "(null)");
    }
    char small[5];
    EXPECT_TRUE(library.GetFunctionValue("CPOUND[P,I,N]", small, sizeof small, "FINANCIAL"));
    EXPECT_STREQ(small, "P(PO");
}

TEST_F(VarFunLibrary, IsFunction) {
    struct {
        const char *name;
        const char *category;
        bool is;
    } cases[] = {
        {"cpound", "FINANCIAL", true},        {"CPOUND[P,I,N]", "FINANCIAL", true},
        {"Cpound[p,i,n]", "FINANCIAL", true}, {"CPOUND[P,I]", "FINANCIAL", false},
        {"PVALUE", "FINANCIAL", true},        {"CIRCLE", "FINANCIAL", false},
        {"cone", "GEOMETRY", true},           {"HIDDEN", "GEOMETRY", false},
        {"range2", "STATISTICS", true},       {"BLANKED", "STATISTICS", false},
        {"AFTERBLANK", "STATISTICS", false},  {"TWICE", "NUMBERS", false},
        {"CPOUND", "financial", false},       {nullptr, "FINANCIAL", false},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(library.IsFunction(c.name, c.category), c.is) << (c.name ? c.name : "(null)");
    }
}

TEST_F(VarFunLibrary, FullNames) {
    struct {
        const char *name;
        const char *category;
        int size;
        bool found;
        const char *expected;
    } cases[] = {
        {"cpound", "FINANCIAL", 64, true, "CPOUND[P,I,N]"},
        {"sphere", "GEOMETRY", 64, true, "SPHERE[r]"},
        {"cpound", "FINANCIAL", 7, true, "CPOUND"},     // cut to the buffer
        {"CONE", "GEOMETRY", 64, false, ""},            // an entry without "[" has no short name
        {"CPOUND[P,I,N]", "FINANCIAL", 64, false, ""},  // only short names are looked up
        {"nothing", "FINANCIAL", 64, false, ""},
    };
    for (const auto &c : cases) {
        char buffer[64];
        EXPECT_EQ(library.GetFuncFullName(c.name, buffer, c.size, c.category), c.found) << c.name;
        EXPECT_STREQ(buffer, c.expected) << c.name;
    }
}

TEST_F(VarFunLibrary, LongestNamesAndValues) {
    struct {
        const char *category;
        long name;
        long value;
        long both;
    } cases[] = {
        {"FINANCIAL", plus_one("CPOUND[P,I,N]"), plus_one("F(POW[1+I,-N])"),
         plus_one("CPOUND[P,I,N]") + plus_one("F(POW[1+I,-N])") + 3},
        {"GEOMETRY", plus_one("CIRCLE[r]"),
         plus_one("Volume of a cone [r radius, h height] = PI*r^2*h/3"),
         plus_one("CIRCLE[r]") + plus_one("Volume of a cone [r radius, h height] = PI*r^2*h/3") +
             3},
        {"EMPTY", 0, 0, 3},
        {"NOPE", 0, 0, 0},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(library.SizeOfLongestFuncName(c.category), c.name) << c.category;
        EXPECT_EQ(library.SizeOfLongestFuncValue(c.category), c.value) << c.category;
        EXPECT_EQ(library.SizeOfLongestFuncNameAndValue(c.category), c.both) << c.category;
    }
}

TEST_F(VarFunLibrary, SearchOverAllCategories) {
    struct {
        const char *name;
        bool found;
        const char *fullName;
        const char *value;
        const char *category;  // the function flag afterwards
    } cases[] = {
        {"pvalue", true, "PVALUE[F,I,N]", "F(POW[1+I,-N])", "FINANCIAL"},
        {"SPHERE", true, "SPHERE[r]", "4/3*PI*r^3", "GEOMETRY"},
        {"Mean2", true, "MEAN2[a,b]", "(a+b)/2", "STATISTICS"},
        {"HIDDEN", false, "", "", "INDENTED"},  // every category was tried
        {"TWICE", false, "", "", "INDENTED"},
    };
    for (const auto &c : cases) {
        auto found = find_library_function(library, c.name);
        ASSERT_EQ(found.has_value(), c.found) << c.name;
        if (found) {
            EXPECT_EQ(found->fullName, c.fullName) << c.name;
            EXPECT_EQ(found->value, c.value) << c.name;
        }
        EXPECT_STREQ(library.GetFunctionFlagStr(), c.category) << c.name;
    }
}

TEST(VarFunLibraryFile, TemplateExamplesAreNotAcknowledged) {
    testing::TempFolder folder;
    const std::string path = folder.file("QuindarUser.lib");
    testing::write_content(
        path,
        "\r\n******************** INSTRUCTIONS FOR EDITING THE USER FUNCTION LIBRARY "
        "************************\r\n\r\n"
        ";[FINANCIAL]\r\n\r\n"
        ";CPOUND[P,I,N]=P(POW[1+I,N])\n;CPOUND=Returns the future sum of money.\r\n\r\n"
        "****************************** END EXAMPLE **************************\r\n\r\n");
    VarFunIniFile library(path.c_str(), "FINANCIAL");
    EXPECT_EQ(library.SizeOfFunctionCatagories(), 0);
    EXPECT_EQ(library.SizeOfFunctionNames(), 0);
    EXPECT_FALSE(library.IsFunction("CPOUND"));
    EXPECT_FALSE(find_library_function(library, "CPOUND").has_value());
}

}  // namespace
}  // namespace quindar
