// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The application's settings file "Quindar.ini". It lies in the user's configuration folder
// ($XDG_CONFIG_HOME/Quindar, else ~/.config/Quindar), not beside the program, which may not
// be writable. Every access reads or writes the file at once through the profile calls, so an
// object holds nothing but the path; each reader brings its default, and a missing file,
// section or key means that default, never an error.

#include <string>
#include <vector>

#include "app_setting_keys.h"
#include "color.h"

namespace quindar {

// The settings file's path for the environment as it is now: the bare name "Quindar.ini"
// when neither XDG_CONFIG_HOME nor HOME names a folder.
std::string settings_file_path();

class AppSettings {
public:
    explicit AppSettings(std::string filePath = settings_file_path());

    const std::string &path() const { return file; }

    // Any key by its record. Flags read any integer but 0 as true and are written as 0 or 1;
    // texts read at most 512 characters; a colour needs all three fields. A write makes the
    // folder and the file when they are missing, and is false when the file cannot be written.
    bool Read(const FlagSetting &setting) const;
    int Read(const IntSetting &setting) const;
    std::string Read(const TextSetting &setting) const;
    TColor Read(const ColorSetting &setting) const;
    bool Write(const FlagSetting &setting, bool value) const;
    bool Write(const IntSetting &setting, int value) const;
    bool Write(const TextSetting &setting, const std::string &value) const;
    bool Write(const ColorSetting &setting, TColor value) const;

    // OPTIONS.
    bool Sound() const { return Read(settings::kSound); }
    bool IncrementalVariables() const { return Read(settings::kIncrementalVariables); }
    bool FlatButtons() const { return Read(settings::kFlatButtons); }
    bool CalculationMethod() const { return Read(settings::kCalculationMethod); }
    bool UseSquareFunctionBrackets() const { return Read(settings::kUseSquareFunctionBrackets); }
    bool ToolBar() const { return Read(settings::kToolBar); }
    int Hints() const { return Read(settings::kHints); }
    bool ShowCalcBar() const { return Read(settings::kShowCalcBar); }
    bool ShowTutorialDownloadDialog() const { return Read(settings::kShowTutorialDownloadDialog); }
    std::string MediaPlayerPath() const { return Read(settings::kMediaPlayerPath); }
    bool VariMgrInstructions() const { return Read(settings::kVariMgrInstructions); }
    bool FuncMgrInstructions() const { return Read(settings::kFuncMgrInstructions); }
    int IntegrationPrecision() const { return Read(settings::kIntegrationPrecision); }
    int DifferentiationPrecision() const { return Read(settings::kDifferentiationPrecision); }
    int SolverPrecision() const { return Read(settings::kSolverPrecision); }

    // PARSER OPTIONS.
    bool ApplyPrecisionFormatToAll() const { return Read(settings::kApplyPrecisionFormatToAll); }
    bool ApplyTrigOptionsToAll() const { return Read(settings::kApplyTrigOptionsToAll); }

    // WINDOW ATTRIBUTES: the width of the list pane, held between 120 and 450.
    int WindowWidth() const;

    // Custom Colors: the custom colours of the colour dialog, n from 1 to 16.
    TColor CustomColor(int n) const;
    bool SetCustomColor(int n, TColor value) const;

    // TipOfTheDay: -2 and -1 while absent.
    int TipPos() const { return Read(settings::kTipPos); }
    int TipStartup() const { return Read(settings::kTipStartup); }

    // Graph Default Orientation and Graph Default Colors, in the order of their tables.
    std::vector<int> GraphDefaultOrientation() const;
    std::vector<TColor> GraphDefaultColors() const;
    bool SaveGraphDefaultColors(const std::vector<TColor> &colors) const;

    // MRU: the recent files, newest first, at most 6. Adding a path puts it first and moves
    // the others one key further (a path already listed moves up instead of standing twice);
    // the seventh falls out.
    std::vector<std::string> RecentFiles() const;
    bool AddRecentFile(const std::string &filePath) const;

    // What the start writes: "Count" of the recent files, and the tip keys when absent.
    void WriteStartValues() const;

private:
    bool WriteText(const char *section, const char *key, const std::string &value) const;

    std::string file;
};

}  // namespace quindar
