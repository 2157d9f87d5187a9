// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "user_library.h"

#include <filesystem>

#include "file_io.h"

namespace quindar {

namespace {

// The paragraphs of the template in order; each is followed by two line ends.
constexpr const char *kTemplateParagraphs[] = {
    "\n******************** INSTRUCTIONS FOR EDITING THE USER FUNCTION LIBRARY "
    "************************",
    "Function categories are identified between two brackets [ ]. All functions listed below "
    "a\ncategory name (and before the next category name) are considered a part of that "
    "category.\nEvery defined function must be identified with a function category.",
    "Functions are defined by their names followed by a set of brackets [ ] enclosing all "
    "function\narguments separated by commas.  The function's value follows an equal sign after "
    "the right\nbracket. There should be no spaces in the function definitions. The function "
    "description begins\nwith the function's name followed by a brief description of how it is "
    "implemented. The\ndescription must be on a sigle line of text.",
    "Below is an example of a category called FINANCIAL with two functions called CPOUND and "
    "PVALUE.\nThe category and functions are preceded by a semicolon identifying that they are "
    "not to be\nacknowledged by Quindar as they are only examples for you to follow. DO NOT "
    "PRECEDE YOUR\nFUNCTIONS AND CATEGORIES BY A SEMICOLON UNLESS YOU DO NOT WANT THE FUNCTIONS "
    "ADDED TO THE\nFUNCTION LIBRARY.",
    "******************************* EXAMPLE ****************************",
    ";[FINANCIAL]",
    ";CPOUND[P,I,N]=P(POW[1+I,N])\n;CPOUND=Returns the future sum of money or compound amount. "
    "P is the principle value, I is the interest rate per interest period defined as a decimal "
    "(that is, 5% interest is 0.05), and N is the number of interest periods.\n;PVALUE[F,I,N]="
    "F(POW[1+I,-N])\n;PVALUE=Returns the present value or present worth. F is the future sum of "
    "money N interest periods from the present, I is the interest rate per interest period "
    "defined as a decimal (that is, 5% interest is 0.05), and N is the number of interest "
    "periods.",
    "****************************** END EXAMPLE **************************",
    "Just follow this same format. In addition, you may look at the Quindar.lib file which "
    "is\nlocated in the \"library\" subdirectory, but do change the Quindar.lib file.  Be sure "
    "to\ntest your functions in the Math Editor and the Function Library once you have "
    "completed them.",
    "********************* ADD FUNCTIONS AND CATEGORIES BELOW THIS POINT "
    "****************************",
};

}  // namespace

std::string user_library_template() {
    std::string text;
    for (const char *paragraph : kTemplateParagraphs) {
        text += paragraph;
        text += "\n\n";
    }
    return text;
}

bool create_user_library(const std::string &folder) {
    std::error_code error;
    if (!folder.empty()) std::filesystem::create_directories(folder, error);
    if (error) return false;
    const std::string path = folder + kUserLibraryName;
    if (std::filesystem::exists(path, error)) return true;
    return replace_file_content(path, user_library_template());
}

}  // namespace quindar
