// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>

#include "file_io.h"
#include "sound_recipes.h"
#include "wave_file.h"

namespace quindar {
namespace {

TEST(Sounds, EveryNameTheProgramPlaysIsMade) {
    std::set<std::string> names;
    for (const SoundRecipe &recipe : sound_recipes()) names.insert(recipe.fileName);
    const std::set<std::string> wanted = {"Quindar.wav", "Click.wav",  "QClick.wav", "Add.wav",
                                          "Command.wav", "Delete.wav", "Error.wav"};
    EXPECT_EQ(names, wanted);
}

TEST(Sounds, ShortAudibleAndUnclipped) {
    for (const SoundRecipe &recipe : sound_recipes()) {
        const std::string name = recipe.fileName;
        const auto samples = synthesize(recipe);
        const double ms = samples.size() * 1000.0 / kSoundSampleRate;
        // A click must not hold up the command it belongs to; only the start tune is longer.
        if (name == "Quindar.wav") {
            EXPECT_GT(ms, 500) << name;
            EXPECT_LE(ms, 1000) << name;
        } else {
            EXPECT_GE(ms, 20) << name;
            EXPECT_LE(ms, 100) << name;
        }
        int peak = 0;
        for (std::int16_t s : samples) peak = std::max(peak, std::abs(static_cast<int>(s)));
        EXPECT_GT(peak, 3000) << name;
        EXPECT_LT(peak, 32767) << name;
        // Starts and ends at rest, so no sound begins or ends with a crack.
        EXPECT_LT(std::abs(static_cast<int>(samples.front())), 200) << name;
        EXPECT_LT(std::abs(static_cast<int>(samples.back())), 200) << name;
    }
}

TEST(Sounds, WaveFileCarriesFormatAndLength) {
    const std::vector<std::int16_t> samples(2205, 1000);
    const auto bytes = encode_wave(samples, 22050);
    ASSERT_EQ(bytes.size(), 44u + 4410u);
    EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 4), "RIFF");
    const auto format = read_wave_format(bytes);
    ASSERT_TRUE(format.has_value());
    EXPECT_EQ(format->sampleRate, 22050u);
    EXPECT_EQ(format->channels, 1);
    EXPECT_EQ(format->bitsPerSample, 16);
    EXPECT_EQ(format->dataBytes, 4410u);
    EXPECT_DOUBLE_EQ(wave_milliseconds(*format), 100.0);
    EXPECT_EQ(bytes[44], 1000 & 0xff);
    EXPECT_EQ(bytes[45], 1000 >> 8);
}

TEST(Sounds, DamagedWaveBytesAreRefused) {
    const auto good = encode_wave(std::vector<std::int16_t>(10, 0), 8000);
    auto truncated = good;
    truncated.resize(50);
    auto notRiff = good;
    notRiff[0] = 'X';
    auto compressed = good;
    compressed[20] = 2;
    for (const auto &bytes : {truncated, notRiff, compressed, std::vector<std::uint8_t>{}}) {
        EXPECT_FALSE(read_wave_format(bytes).has_value());
    }
}

// The files the build wrote with the generator are the recipes' sounds.
TEST(Sounds, TheBuildWroteEveryWave) {
    for (const SoundRecipe &recipe : sound_recipes()) {
        const std::string path = std::string(QUINDAR_BUILT_SOUNDS_DIR "/") + recipe.fileName;
        const auto content = read_whole_file(path);
        ASSERT_TRUE(content.has_value()) << path;
        const auto format =
            read_wave_format(std::vector<std::uint8_t>(content->begin(), content->end()));
        ASSERT_TRUE(format.has_value()) << path;
        EXPECT_EQ(format->sampleRate, kSoundSampleRate) << path;
        EXPECT_EQ(format->dataBytes, synthesize(recipe).size() * 2) << path;
    }
}

}  // namespace
}  // namespace quindar
