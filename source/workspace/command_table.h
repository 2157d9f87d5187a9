// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The vocabulary of the desktop program's commands, as data: each command's id, its menu
// label with the "&" of its mnemonic (a "\t" part shows a key without binding it), its help
// topics, whether it shows a check mark, the key bound to it, and whether it has an icon.
// A command's id is also the id of its hint in the string table and the name of its icon
// file ("<id>.svg"). The menus and the tool bar are lists of ids.

#include <span>
#include <string_view>

namespace quindar {

struct CommandInfo {
    int id;
    const char *label;
    int helpTopic;      // 0: none
    int listHelpTopic;  // the topic when the Functions list sends it; 0: same as helpTopic
    bool checkable;
    const char *key;  // a key sequence in the portable form "Ctrl+S", or null
    bool hasIcon;
};

namespace command {

// File.
inline constexpr int kFileNew = 24331, kFileOpen = 24332, kFileClose = 24339, kFileSave = 24333,
                     kFileSaveAs = 24334, kFilePrintPreview = 24340, kFilePrint = 24337,
                     kFilePrintSetup = 24338, kExportPdf = 24345, kExit = 24310;
// Help.
inline constexpr int kHelpContents = 24386, kHelpMathFunctions = 24391, kHelpIndex = 24387,
                     kHelpKey = 24388, kContextHelp = 24393, kHelpUsing = 24389,
                     kTipOfTheDay = 18031, kExamples = 24394, kTutorials = 24395,
                     kHelpAbout = 24392;
// Edit and Search.
inline constexpr int kEditUndo = 24321, kEditCut = 24322, kEditCopy = 24323, kEditPaste = 24324,
                     kEditClear = 24326, kEditDelete = 24325, kEditFind = 24351,
                     kEditReplace = 24352, kEditFindNext = 24353;
// Setup.
inline constexpr int kSound = 24382, kShowToolBar = 24381, kShowStatusBar = 32040,
                     kShowHints = 24385, kOptions = 24383, kChooseFont = 24384;
// Utilities.
inline constexpr int kVariablesList = 31581, kVariablesManager = 31589, kFunctionsList = 30581,
                     kFunctionManager = 30589, kFunctionLibrary = 21553, kCalculator = 21817,
                     kCalculus = 25130, kComputeAll = 21830;
// Graph.
inline constexpr int kGraphSetup = 20600, kOpenGraphFile = 20619, kSaveGraphFile = 20618,
                     kCopyGraph = 20630, kSetDefaultOrientation = 20631,
                     kSaveAsDefaultOrientation = 20632, kSet2DPerspective = 20633,
                     kLogarithmicX = 20634, kLogarithmicY = 20635, kGridLines = 20636,
                     kPointLabels = 20625, kRemoveAllPointLabels = 20622, kPrintGraph = 20617,
                     kIncreaseMargins = 20637, kDecreaseMargins = 20638, kSetDefaultMargins = 20639,
                     kSaveAsDefaultMargins = 20640;
// Window.
inline constexpr int kCascade = 24361, kTile = 24362, kShowMathWindow = 24371,
                     kShowGraphWindow = 24370, kListsTop = 24368, kListsRight = 24369,
                     kArrangeIcons = 24364, kCloseAll = 24365;

// Markers in menu and tool bar lists.
inline constexpr int kSeparator = 0;
inline constexpr int kWindowCombo = 24410;

}  // namespace command

// Every command of the menus, in menu order.
std::span<const CommandInfo> command_table();
// The command with that id, or null.
const CommandInfo *find_command(int id);
// The help topic of a command as sent from the Functions list or from anywhere else.
int command_help_topic(const CommandInfo &command, bool fromFunctionsList);
// The label without its "&" marks and without its "\t" part: the tool tip text.
std::string_view command_plain_label(const CommandInfo &command, char *buffer, std::size_t size);

struct MenuSpec {
    const char *title;
    // Shown only while a document is open.
    bool documentMenu;
    // Ids, command::kSeparator, or the index of a submenu in submenus as -1 - index.
    std::span<const int> items;
};

// The menu bar, left to right.
std::span<const MenuSpec> menu_bar();
// The pop-up menus inside the bar's menus.
std::span<const MenuSpec> submenus();

// The pop-up menu of the text pane.
std::span<const int> text_pane_menu();

// The tool bar, left to right, with separators and the window combo box.
std::span<const int> tool_bar_layout();
// Whether an item of the tool bar stays while no document is open.
bool in_short_tool_bar(int id);
// The buttons that stay pressed while their tool is open.
bool is_pressable_button(int id);

}  // namespace quindar
