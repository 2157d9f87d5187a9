// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The program's sounds, made from a table of notes rather than shipped as recordings.

#include <cstdint>
#include <span>
#include <vector>

namespace quindar {

inline constexpr std::uint32_t kSoundSampleRate = 22050;

enum class Wave { Sine, Square, Pluck };

// One note: a tone that may glide from one frequency to another, with a short attack and a
// fade at its end; tremolo above 0 beats its loudness.
struct Note {
    double startMs;
    double lengthMs;
    double fromHz;
    double toHz;
    Wave wave;
    double volume;  // 0 to 1
    double tremoloHz = 0;
};

struct SoundRecipe {
    const char *fileName;  // "Click.wav" and so on, as the program asks for them
    std::span<const Note> notes;
};

// Every sound of the program, the start tune first.
std::span<const SoundRecipe> sound_recipes();

// The samples of a sound: the sum of its notes, limited to the 16-bit range.
std::vector<std::int16_t> synthesize(const SoundRecipe &recipe);

}  // namespace quindar
