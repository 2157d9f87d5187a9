// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Writes the files the build makes rather than keeps: the sounds, and the desktop entry and MIME
// type that an installation puts in place.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>

#include "changed_file.h"
#include "file_association.h"
#include "sound_recipes.h"
#include "wave_file.h"

namespace {

bool write(const std::string &path, std::string_view content) {
    bool changed = false;
    if (quindar::write_file_if_changed(path, content, changed)) return true;
    std::fprintf(stderr, "quindar-assets: cannot write \"%s\"\n", path.c_str());
    return false;
}

bool write_sounds(const std::string &folder) {
    bool ok = true;
    for (const quindar::SoundRecipe &recipe : quindar::sound_recipes()) {
        const auto bytes =
            quindar::encode_wave(quindar::synthesize(recipe), quindar::kSoundSampleRate);
        ok = write(folder + "/" + recipe.fileName,
                   std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size())) &&
             ok;
    }
    return ok;
}

bool write_desktop_files(const std::string &folder) {
    // An installed entry finds the program on the search path and its icon in the theme.
    return write(folder + "/quindar.desktop", quindar::desktop_entry("quindar", "quindar")) &&
           write(folder + "/quindar.xml", quindar::mime_package_xml());
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 3 ||
        (std::strcmp(argv[1], "sounds") != 0 && std::strcmp(argv[1], "desktop") != 0)) {
        std::fprintf(stderr, "Usage: quindar-assets sounds|desktop FOLDER\n");
        return 2;
    }
    const std::string folder = argv[2];
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    const bool ok =
        std::strcmp(argv[1], "sounds") == 0 ? write_sounds(folder) : write_desktop_files(folder);
    return ok ? 0 : 1;
}
