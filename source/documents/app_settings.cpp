// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "app_settings.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "ini_file.h"
#include "profile.h"

namespace quindar {

namespace {

constexpr const char *kSettingsFileName = "Quindar.ini";
constexpr std::size_t kTextSize = 513;  // 512 characters and the NUL
constexpr TColor kCustomColorDefault = TColor::White;

std::string environment(const char *name) {
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::string custom_color_key(int n) {
    return "CustColor" + std::to_string(n);
}

std::string recent_file_key(int n) {
    return "MRU" + std::to_string(n);
}

}  // namespace

std::string settings_file_path() {
    std::string folder = environment("XDG_CONFIG_HOME");
    // Relative values are to be ignored, as the base directory rules say.
    if (folder.empty() || folder.front() != '/') {
        const std::string home = environment("HOME");
        if (home.empty()) return kSettingsFileName;
        folder = home + "/.config";
    }
    return folder + "/Quindar/" + kSettingsFileName;
}

AppSettings::AppSettings(std::string filePath) : file(std::move(filePath)) {}

bool AppSettings::Read(const FlagSetting &setting) const {
    return GetPrivateProfileInt(setting.section, setting.key, setting.deflt ? 1 : 0,
                                file.c_str()) != 0;
}

int AppSettings::Read(const IntSetting &setting) const {
    return GetPrivateProfileInt(setting.section, setting.key, setting.deflt, file.c_str());
}

std::string AppSettings::Read(const TextSetting &setting) const {
    char buffer[kTextSize];
    GetPrivateProfileString(setting.section, setting.key, setting.deflt, buffer, sizeof buffer,
                            file.c_str());
    return buffer;
}

TColor AppSettings::Read(const ColorSetting &setting) const {
    TColor value;
    IniFile(file.c_str()).GetColor(setting.section, setting.key, setting.deflt, value);
    return value;
}

bool AppSettings::WriteText(const char *section, const char *key, const std::string &value) const {
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    std::error_code ignored;
    if (!folder.empty()) std::filesystem::create_directories(folder, ignored);
    return WritePrivateProfileString(section, key, value.c_str(), file.c_str());
}

bool AppSettings::Write(const FlagSetting &setting, bool value) const {
    return WriteText(setting.section, setting.key, value ? "1" : "0");
}

bool AppSettings::Write(const IntSetting &setting, int value) const {
    return WriteText(setting.section, setting.key, std::to_string(value));
}

bool AppSettings::Write(const TextSetting &setting, const std::string &value) const {
    return WriteText(setting.section, setting.key, value);
}

bool AppSettings::Write(const ColorSetting &setting, TColor value) const {
    return WriteText(setting.section, setting.key,
                     std::to_string(value.Red()) + "," + std::to_string(value.Green()) + "," +
                         std::to_string(value.Blue()));
}

int AppSettings::WindowWidth() const {
    return std::clamp(Read(settings::kWindowWidth), settings::kWindowWidthLowest,
                      settings::kWindowWidthHighest);
}

TColor AppSettings::CustomColor(int n) const {
    const std::string key = custom_color_key(n);
    return Read(ColorSetting{settings::kCustomColors, key.c_str(), kCustomColorDefault});
}

bool AppSettings::SetCustomColor(int n, TColor value) const {
    if (n < 1 || n > settings::kCustomColorCount) return false;
    const std::string key = custom_color_key(n);
    return Write(ColorSetting{settings::kCustomColors, key.c_str(), kCustomColorDefault}, value);
}

std::vector<int> AppSettings::GraphDefaultOrientation() const {
    std::vector<int> values;
    for (const IntSetting &setting : settings::kGraphOrientationKeys)
        values.push_back(Read(setting));
    return values;
}

std::vector<TColor> AppSettings::GraphDefaultColors() const {
    std::vector<TColor> colors;
    for (const ColorSetting &setting : settings::kGraphColorKeys) colors.push_back(Read(setting));
    return colors;
}

bool AppSettings::SaveGraphDefaultColors(const std::vector<TColor> &colors) const {
    bool written = true;
    const std::size_t count = std::min(colors.size(), std::size(settings::kGraphColorKeys));
    for (std::size_t k = 0; k < count; ++k)
        written = Write(settings::kGraphColorKeys[k], colors[k]) && written;
    return written;
}

std::vector<std::string> AppSettings::RecentFiles() const {
    std::vector<std::string> paths;
    for (int n = 0; n < settings::kRecentFileCount; ++n) {
        const std::string key = recent_file_key(n);
        std::string path = Read(TextSetting{settings::kRecentFiles, key.c_str(), ""});
        if (!path.empty()) paths.push_back(std::move(path));
    }
    return paths;
}

bool AppSettings::AddRecentFile(const std::string &filePath) const {
    if (filePath.empty()) return false;
    std::vector<std::string> paths = RecentFiles();
    std::erase(paths, filePath);
    paths.insert(paths.begin(), filePath);
    paths.resize(std::min<std::size_t>(paths.size(), settings::kRecentFileCount));
    bool written = true;
    for (std::size_t n = 0; n < paths.size(); ++n)
        written = WriteText(settings::kRecentFiles, recent_file_key(static_cast<int>(n)).c_str(),
                            paths[n]) &&
                  written;
    return written;
}

void AppSettings::WriteStartValues() const {
    WriteText(settings::kRecentFiles, "Count", std::to_string(settings::kRecentFileCount));
    if (TipPos() == settings::kTipPos.deflt) Write(settings::kTipPos, -1);
    if (TipStartup() == settings::kTipStartup.deflt) Write(settings::kTipStartup, 1);
}

}  // namespace quindar
