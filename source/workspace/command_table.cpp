// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "command_table.h"

#include <algorithm>

namespace quindar {
namespace {

using namespace command;

constexpr CommandInfo kCommands[] = {
    {24331, "&New Math Editor", 19410, 0, false, "Ctrl+N", true},
    {24332, "&Open File...", 19411, 0, false, "Ctrl+O", true},
    {24339, "&Close Math Editor", 19428, 0, false, nullptr, true},
    {24333, "&Save File", 19429, 0, false, "Ctrl+S", true},
    {24334, "Save &As...", 0, 0, false, nullptr, false},
    {24340, "Print Pre&view...", 19427, 0, false, nullptr, true},
    {24337, "&Print...", 19426, 0, false, "Ctrl+P", true},
    {24338, "P&rint Setup...", 19430, 0, false, nullptr, true},
    {24345, "Export to P&DF...", 0, 0, false, nullptr, false},
    {24310, "E&xit\tAlt+F4", 0, 0, false, "Ctrl+Q", true},
    {24386, "&Help Contents\tF1", 0, 0, false, nullptr, true},
    {24391, "Help &Math Functions", 0, 0, false, nullptr, true},
    {24387, "&Index...", 0, 0, false, nullptr, true},
    {24388, "&Key Word &Search", 0, 0, false, nullptr, true},
    {24393, "&Context Help", 0, 0, false, nullptr, true},
    {24389, "&Using Help", 0, 0, false, nullptr, true},
    {18031, "&Tip Of The Day...", 19488, 0, false, nullptr, true},
    {24394, "&Examples...", 19474, 0, false, nullptr, true},
    {24395, "T&utorials...", 19500, 0, false, nullptr, true},
    {24392, "&About Quindar", 0, 0, false, nullptr, true},
    {24321, "&Undo\tCtrl+Z", 19416, 0, false, "Alt+Backspace", true},
    {24322, "Cu&t\tCtrl+X", 19413, 0, false, "Shift+Del", true},
    {24323, "&Copy\tCtrl+C", 19414, 0, false, "Ctrl+Ins", true},
    {24324, "&Paste\tCtrl+V", 19415, 0, false, "Shift+Ins", true},
    {24326, "Clear &All\tCtrl+Del", 19417, 0, false, "Ctrl+Del", true},
    {24325, "&Delete\tDel", 19432, 0, false, nullptr, true},
    {24351, "&Find...\tCtrl+F", 19418, 0, false, nullptr, true},
    {24352, "&Replace...\tCtrl+R", 19433, 0, false, nullptr, true},
    {24353, "Find &Next\tF3", 19419, 0, false, "F3", true},
    {24382, "&Sound", 0, 0, true, nullptr, true},
    {24381, "&Tool Bar", 19463, 0, true, nullptr, true},
    {32040, "S&tatus Bar", 0, 0, true, nullptr, true},
    {24385, "&Hints", 19468, 0, true, nullptr, true},
    {24383, "&Options...", 19431, 0, false, nullptr, true},
    {24384, "&Font...", 19436, 0, false, nullptr, true},
    {31581, "&Variables List", 19420, 0, true, nullptr, true},
    {31589, "V&ariables Manager...", 19405, 0, false, nullptr, true},
    {30581, "&Functions List", 19421, 0, true, nullptr, true},
    {30589, "F&unction Manager...", 19409, 19444, false, nullptr, true},
    {21553, "Function &Library...", 19422, 0, true, nullptr, true},
    {21817, "&Calculator...", 19489, 0, true, nullptr, true},
    {25130, "C&alculus...", 19486, 19487, true, nullptr, true},
    {21830, "Co&mpute All", 0, 0, false, "Ctrl+F9", false},
    {20600, "&Graph Setup...", 19447, 0, true, nullptr, true},
    {20619, "&Open Graph From File", 19452, 0, false, nullptr, true},
    {20618, "&Save Graph To File", 19453, 0, false, nullptr, true},
    {20630, "&Copy Graph To Clip Board", 19456, 0, false, nullptr, true},
    {20631, "Set &Default", 19470, 0, false, nullptr, true},
    {20632, "&Save As Default", 19473, 0, false, nullptr, true},
    {20633, "Set &2D Perspective", 19471, 0, false, nullptr, true},
    {20634, "Logarithmic &X-Axis", 19478, 0, true, nullptr, true},
    {20635, "Logarithmic &Y-Axis", 19479, 0, true, nullptr, true},
    {20636, "Grid Lines", 19480, 0, true, nullptr, true},
    {20625, "Set Point &Labels", 19455, 0, true, nullptr, true},
    {20622, "&Remove All Point Labels", 19454, 0, false, nullptr, true},
    {20617, "&Print Graph", 19467, 0, false, nullptr, true},
    {24361, "&Cascade", 19437, 0, false, nullptr, true},
    {24362, "&Tile", 19438, 0, false, nullptr, true},
    {24371, "Show &Math Window", 19466, 0, true, nullptr, true},
    {24370, "Show &Graph Window", 19465, 0, true, nullptr, true},
    {24368, "Move List Windows To &Top", 19424, 0, true, nullptr, true},
    {24369, "Move List Windows To &Right", 19425, 0, true, nullptr, true},
    {24364, "&Arrange Icons", 19439, 0, false, nullptr, true},
    {24365, "C&lose All", 19440, 0, false, nullptr, true},
    {20637, "&Increase Margins", 19482, 0, false, nullptr, true},
    {20638, "Decrease &Margins", 19483, 0, false, nullptr, true},
    {20639, "Set &Default", 19484, 0, false, nullptr, true},
    {20640, "&Save As Default", 19485, 0, false, nullptr, true},
};

constexpr int kFileMenu[] = {kFileNew,   kFileOpen,       kFileClose, kSeparator,
                             kFileSave,  kFileSaveAs,     kSeparator, kFilePrintPreview,
                             kFilePrint, kFilePrintSetup, kExportPdf, kSeparator, kExit};
constexpr int kEditMenu[] = {kEditUndo,  kSeparator, kEditCut,   kEditCopy,
                             kEditPaste, kSeparator, kEditClear, kEditDelete};
constexpr int kSearchMenu[] = {kEditFind, kEditReplace, kEditFindNext};
constexpr int kSetupMenu[] = {kSound,     kShowToolBar, kShowStatusBar, kShowHints,
                              kSeparator, kOptions,     kChooseFont};
constexpr int kUtilitiesMenu[] = {
    kVariablesList,   kVariablesManager, kSeparator, kFunctionsList, kFunctionManager, kSeparator,
    kFunctionLibrary, kCalculator,       kCalculus,  kSeparator,     kComputeAll};
constexpr int kMarginsSubmenu = -1;
constexpr int kGraphMenu[] = {
    kGraphSetup,       kSeparator,    kOpenGraphFile,         kSaveGraphFile,
    kCopyGraph,        kSeparator,    kSetDefaultOrientation, kSaveAsDefaultOrientation,
    kSet2DPerspective, kLogarithmicX, kLogarithmicY,          kGridLines,
    kMarginsSubmenu,   kSeparator,    kPointLabels,           kRemoveAllPointLabels,
    kSeparator,        kPrintGraph};
constexpr int kWindowMenu[] = {kCascade,         kTile,         kSeparator, kShowMathWindow,
                               kShowGraphWindow, kSeparator,    kListsTop,  kListsRight,
                               kSeparator,       kArrangeIcons, kCloseAll};
constexpr int kHelpMenu[] = {
    kHelpContents, kHelpMathFunctions, kHelpIndex, kHelpKey,   kSeparator, kContextHelp, kHelpUsing,
    kSeparator,    kTipOfTheDay,       kExamples,  kTutorials, kSeparator, kHelpAbout};
constexpr int kMarginsMenu[] = {kIncreaseMargins, kDecreaseMargins, kSetDefaultMargins,
                                kSaveAsDefaultMargins};

constexpr int kTextPaneMenu[] = {kEditUndo,        kSeparator,  kEditCut,        kEditCopy,
                                 kEditPaste,       kEditDelete, kSeparator,      kVariablesManager,
                                 kFunctionManager, kSeparator,  kShowGraphWindow};

constexpr MenuSpec kMenuBar[] = {
    {"&File", false, kFileMenu},          {"&Edit", true, kEditMenu},
    {"&Search", true, kSearchMenu},       {"Se&tup", true, kSetupMenu},
    {"&Utilities", true, kUtilitiesMenu}, {"&Graph", true, kGraphMenu},
    {"&Window", true, kWindowMenu},       {"&Help", false, kHelpMenu},
};

constexpr MenuSpec kSubmenus[] = {
    {"&Margins", true, kMarginsMenu},
};

constexpr int kToolBar[] = {
    kFileNew,   kFileOpen,    kFileSave,        kSeparator,        kEditCut,         kEditCopy,
    kEditPaste, kSeparator,   kEditUndo,        kSeparator,        kEditFind,        kEditFindNext,
    kSeparator, kCalculator,  kVariablesList,   kFunctionsList,    kFunctionLibrary, kCalculus,
    kSeparator, kGraphSetup,  kShowGraphWindow, kSeparator,        kShowMathWindow,  kListsRight,
    kListsTop,  kSeparator,   kFilePrint,       kFilePrintPreview, kSeparator,       kWindowCombo,
    kSeparator, kContextHelp, kTutorials,       kHelpContents,
};

// With no document the bar reads New, Open, a separator and the three help buttons.
constexpr int kShortToolBar[] = {kFileNew, kFileOpen, kContextHelp, kTutorials, kHelpContents};
constexpr int kPressableButtons[] = {kFunctionLibrary, kCalculus, kGraphSetup};

}  // namespace

std::span<const CommandInfo> command_table() {
    return kCommands;
}

const CommandInfo *find_command(int id) {
    for (const CommandInfo &command : kCommands)
        if (command.id == id) return &command;
    return nullptr;
}

int command_help_topic(const CommandInfo &command, bool fromFunctionsList) {
    return fromFunctionsList && command.listHelpTopic != 0 ? command.listHelpTopic
                                                           : command.helpTopic;
}

std::string_view command_plain_label(const CommandInfo &command, char *buffer, std::size_t size) {
    std::size_t length = 0;
    for (const char *at = command.label; *at != '\0' && *at != '\t' && length + 1 < size; ++at)
        if (*at != '&') buffer[length++] = *at;
    return std::string_view(buffer, length);
}

std::span<const MenuSpec> menu_bar() {
    return kMenuBar;
}
std::span<const MenuSpec> submenus() {
    return kSubmenus;
}
std::span<const int> tool_bar_layout() {
    return kToolBar;
}
std::span<const int> text_pane_menu() {
    return kTextPaneMenu;
}

bool in_short_tool_bar(int id) {
    return std::ranges::find(kShortToolBar, id) != std::end(kShortToolBar);
}

bool is_pressable_button(int id) {
    return std::ranges::find(kPressableButtons, id) != std::end(kPressableButtons);
}

}  // namespace quindar
