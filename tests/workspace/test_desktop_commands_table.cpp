// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The command table: ids, labels, topics, keys, the menu tree and the tool bar.
#include <gtest/gtest.h>

#include <set>

#include "command_table.h"
#include "string_table.h"

namespace quindar {
namespace {

TEST(CommandTable, IdsAreUniqueAndEveryMenuItemIsACommand) {
    std::set<int> ids;
    for (const CommandInfo &command : command_table())
        EXPECT_TRUE(ids.insert(command.id).second) << command.id;
    // 62 items in the menus (Export to PDF among them), Compute All, and the four of the
    // Margins pop-up.
    EXPECT_EQ(ids.size(), 68u);
    std::size_t items = 0;
    for (const MenuSpec &menu : menu_bar()) {
        for (const int item : menu.items) {
            if (item > 0) {
                EXPECT_NE(find_command(item), nullptr) << item;
                ++items;
            }
        }
    }
    for (const MenuSpec &menu : submenus())
        for (const int item : menu.items) items += find_command(item) != nullptr ? 1 : 0;
    EXPECT_EQ(items, ids.size());
}

struct CommandCase {
    int id;
    const char *label;
    int topic;
    int listTopic;
    const char *key;
};

constexpr CommandCase kCommands[] = {
    {command::kFileSave, "&Save File", 19429, 0, "Ctrl+S"},
    {command::kFileSaveAs, "Save &As...", 0, 0, nullptr},
    {command::kExit, "E&xit\tAlt+F4", 0, 0, "Ctrl+Q"},
    {command::kExportPdf, "Export to P&DF...", 0, 0, nullptr},
    {command::kEditUndo, "&Undo\tCtrl+Z", 19416, 0, "Alt+Backspace"},
    {command::kEditCut, "Cu&t\tCtrl+X", 19413, 0, "Shift+Del"},
    {command::kEditCopy, "&Copy\tCtrl+C", 19414, 0, "Ctrl+Ins"},
    {command::kEditPaste, "&Paste\tCtrl+V", 19415, 0, "Shift+Ins"},
    {command::kEditClear, "Clear &All\tCtrl+Del", 19417, 0, "Ctrl+Del"},
    {command::kEditFindNext, "Find &Next\tF3", 19419, 0, "F3"},
    {command::kFunctionManager, "F&unction Manager...", 19409, 19444, nullptr},
    {command::kCalculus, "C&alculus...", 19486, 19487, nullptr},
    {command::kComputeAll, "Co&mpute All", 0, 0, "Ctrl+F9"},
    {command::kHelpKey, "&Key Word &Search", 0, 0, nullptr},
    {command::kGridLines, "Grid Lines", 19480, 0, nullptr},
    {command::kSaveAsDefaultMargins, "&Save As Default", 19485, 0, nullptr},
};

TEST(CommandTable, LabelsTopicsAndKeys) {
    for (const CommandCase &entry : kCommands) {
        const CommandInfo *command = find_command(entry.id);
        ASSERT_NE(command, nullptr) << entry.id;
        EXPECT_STREQ(command->label, entry.label);
        EXPECT_EQ(command_help_topic(*command, false), entry.topic) << entry.id;
        EXPECT_EQ(command_help_topic(*command, true),
                  entry.listTopic != 0 ? entry.listTopic : entry.topic);
        if (entry.key == nullptr)
            EXPECT_EQ(command->key, nullptr) << entry.id;
        else
            EXPECT_STREQ(command->key, entry.key);
    }
    char buffer[64];
    EXPECT_EQ(command_plain_label(*find_command(command::kEditClear), buffer, sizeof buffer),
              "Clear All");
    EXPECT_FALSE(find_command(command::kFileSaveAs)->hasIcon);
}

TEST(CommandTable, HintsStandUnderTheCommandsId) {
    const std::set<int> withoutHint = {24391, 20632, 20634, 20635, 20636,
                                       20637, 20638, 20639, 20640};
    for (const CommandInfo &command : command_table())
        EXPECT_EQ(application_strings().Has(command.id), !withoutHint.contains(command.id))
            << command.id;
}

TEST(CommandTable, MenuBarAndToolBar) {
    std::vector<std::string> titles;
    std::vector<bool> documentMenus;
    for (const MenuSpec &menu : menu_bar()) {
        titles.emplace_back(menu.title);
        documentMenus.push_back(menu.documentMenu);
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"&File", "&Edit", "&Search", "Se&tup", "&Utilities",
                                                "&Graph", "&Window", "&Help"}));
    EXPECT_EQ(documentMenus, (std::vector<bool>{false, true, true, true, true, true, true, false}));

    std::vector<int> buttons;
    for (const int item : tool_bar_layout())
        if (item != command::kSeparator && item != command::kWindowCombo) buttons.push_back(item);
    EXPECT_EQ(buttons, (std::vector<int>{24331, 24332, 24333, 24322, 24323, 24324, 24321, 24351,
                                         24353, 21817, 31581, 30581, 21553, 25130, 20600, 24370,
                                         24371, 24369, 24368, 24337, 24340, 24393, 24395, 24386}));
    std::vector<int> shortBar;
    for (const int item : tool_bar_layout())
        if (in_short_tool_bar(item)) shortBar.push_back(item);
    EXPECT_EQ(shortBar, (std::vector<int>{24331, 24332, 24393, 24395, 24386}));
    std::vector<int> popup;
    for (const int item : text_pane_menu())
        if (item != command::kSeparator) popup.push_back(item);
    EXPECT_EQ(popup, (std::vector<int>{24321, 24322, 24323, 24324, 24325, 31589, 30589, 24370}));
    EXPECT_TRUE(is_pressable_button(command::kGraphSetup));
    EXPECT_FALSE(is_pressable_button(command::kFileSave));
}

}  // namespace
}  // namespace quindar
