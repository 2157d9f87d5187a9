// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The texts of the Variables Manager, the Function Manager and the two list windows, by
// the number the application's message boxes know them by. "%s" takes a name, "%c" the
// refused character.

#include <string>
#include <string_view>

#include "message_table.h"

namespace quindar {

inline constexpr int kVariablesManagerTitle = 31500;
inline constexpr int kFunctionManagerTitle = 30500;

inline constexpr NumberedText kManagerMessages[] = {
    {31500, "Variables Manager"},
    {31520, "You must enter a valid variable name!"},
    {31521, "The first character of a variable can not be a number!"},
    {31522, "No spaces are allowed in the variables name!"},
    {31523, "No spaces are allowed between digits in the variables value!"},
    {31524, "Variable name list could not be loaded into dialog!"},
    {31525, "You have not entered a value for the variable!"},
    {31527, "You have not entered a value for '%s'!"},
    {31528, "You have not changed the value of '%s'!"},
    {31529, "'%s' could not be edited!"},
    {31531, "'%s' is not a defined variable and therefore can not be deleted!"},
    {31532, "'%s' is not a defined variable, do you still want to copy it to the Math Editor?"},
    {31533, "'%c' is not a legitimate character for a variable's name!"},
    {31534, "'%c' is not a legitimate character for mathematical expression or value!"},
    {31535, "Are you sure that you want to delete '%s'!"},
    {31536, "Are you sure that you want to delete all the variables?"},
    {31537,
     "Variable ' %s ' is used in the function body of ' %s ',\ndo you still want to delete "
     "this variable?"},
    {31539, "Variable \"%s\" has been added."},
    {31540, "Variable \"%s\" has been edited."},
    {31541,
     "Variable \"%s\" has been temporarily locked by another process and can not be "
     "edited."},
    {30500, "Function Manager"},
    {30520, "You must enter a valid function Name!"},
    {30521, "The first character of a function can not be a number!"},
    {30522, "The function name is invalid!"},
    {30523, "No spaces are allowed in the functions name!"},
    {30524, "No spaces are allowed between digits in the Ffunctions value!"},
    {30525, "The Function Name List could not be loaded into the dialog box!"},
    {30526,
     "Brackets of type [ and ] or ( or ) are used to define a function but could not be "
     "found! These brackets must contain the parameter list."},
    {30527,
     "A bracket of type [ or ] or ( or ) could not be found! These brackets must contain "
     "the parameter list."},
    {30528,
     "There are no defined functions, you must first define a function before it can be "
     "solved!"},
    {30529,
     "There are no functions selected, you must first select a function before it can be "
     "solved!"},
    {30537, "You Have Not Entered A Value For '%s'!"},
    {30538, "You Have Not Changed The Value Of '%s'!"},
    {30539, "'%s' Could Not Be Edited!"},
    {30541, "'%s' Is Not A Registered Function And Therefore Can Not Be Deleted!"},
    {30542,
     "'%s' Is Not A Registered Function, Do You Still Want To Copy It To The Math "
     "Editor?"},
    {30543, "'%c' Is Not A Legitimate Character For A Function's Name!"},
    {30544, "'%c' Is Not A Legitimate Character For A Mathematical Expression Or Value!"},
    {30545, "Are You Sure That You Want To Delete '%s'?"},
    {30546, "Are You Sure That You Want To Delete All The Functions?"},
    {30548,
     "Function \"%s\" Is Required For One Or More Defined Graphs, Do You Still Want To "
     "Delete The Function?"},
    {30550, "Function \"%s\" Has Been Added."},
    {30551, "Function \"%s\" Has Been Edited."},
};

// The text of a message number; empty for a number the managers do not own.
constexpr std::string_view ManagerMessageText(int id) {
    return FindNumberedText(kManagerMessages, id);
}

// The message's text with its "%s" places filled by the names in order, and "%c" by the
// character.
inline std::string FormatManagerMessage(int id, std::string_view first = {},
                                        std::string_view second = {}, char character = 0) {
    return FillMessage(ManagerMessageText(id), first, second, character);
}

}  // namespace quindar
