// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "sound_recipes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quindar {

namespace {

// A rising arpeggio of plucked strings, C major with an added ninth.
const Note kQuindar[] = {
    {0, 420, 523.25, 523.25, Wave::Pluck, 0.35},   {110, 420, 659.25, 659.25, Wave::Pluck, 0.32},
    {220, 420, 783.99, 783.99, Wave::Pluck, 0.30}, {330, 470, 1046.5, 1046.5, Wave::Pluck, 0.28},
    {440, 360, 1174.7, 1174.7, Wave::Pluck, 0.20},
};
const Note kClick[] = {{0, 35, 900, 900, Wave::Square, 0.18}};
const Note kQClick[] = {{0, 25, 2200, 2200, Wave::Sine, 0.40}};
const Note kAdd[] = {{0, 45, 660, 660, Wave::Sine, 0.40}, {45, 50, 990, 990, Wave::Sine, 0.40}};
const Note kDelete[] = {{0, 90, 800, 200, Wave::Sine, 0.45}};
const Note kCommand[] = {{0, 60, 1320, 1320, Wave::Sine, 0.35}};
const Note kError[] = {{0, 100, 180, 180, Wave::Square, 0.22, 30}};

const SoundRecipe kRecipes[] = {
    {"Quindar.wav", kQuindar}, {"Click.wav", kClick},   {"QClick.wav", kQClick}, {"Add.wav", kAdd},
    {"Command.wav", kCommand}, {"Delete.wav", kDelete}, {"Error.wav", kError},
};

constexpr double kAttackMs = 2;
constexpr double kReleaseMs = 8;

double oscillator(Wave wave, double phase) {
    const double s = std::sin(phase);
    if (wave == Wave::Square) return s >= 0 ? 1.0 : -1.0;
    if (wave == Wave::Pluck) return 0.7 * s + 0.3 * std::sin(2 * phase);
    return s;
}

// Loudness over a note's life: a short rise, then a fade that a pluck makes exponential.
double envelope(const Note &note, double ms) {
    const double attack = std::min(1.0, ms / kAttackMs);
    const double release = std::min(1.0, (note.lengthMs - ms) / kReleaseMs);
    double shape = std::max(0.0, std::min(attack, release));
    if (note.wave == Wave::Pluck) shape *= std::exp(-ms / 140.0);
    if (note.tremoloHz > 0)
        shape *= 0.6 + 0.4 * std::sin(2 * std::numbers::pi * note.tremoloHz * ms / 1000);
    return shape;
}

}  // namespace

std::span<const SoundRecipe> sound_recipes() {
    return kRecipes;
}

std::vector<std::int16_t> synthesize(const SoundRecipe &recipe) {
    double endMs = 0;
    for (const Note &note : recipe.notes) endMs = std::max(endMs, note.startMs + note.lengthMs);
    const auto count = static_cast<std::size_t>(std::ceil(endMs * kSoundSampleRate / 1000));
    std::vector<double> mix(count, 0.0);
    for (const Note &note : recipe.notes) {
        const auto first = static_cast<std::size_t>(note.startMs * kSoundSampleRate / 1000);
        const auto length = static_cast<std::size_t>(note.lengthMs * kSoundSampleRate / 1000);
        double phase = 0;
        for (std::size_t i = 0; i < length && first + i < count; ++i) {
            const double ms = i * 1000.0 / kSoundSampleRate;
            // The frequency glides linearly; the phase integrates it so the tone stays smooth.
            const double hz = note.fromHz + (note.toHz - note.fromHz) * ms / note.lengthMs;
            phase += 2 * std::numbers::pi * hz / kSoundSampleRate;
            mix[first + i] += note.volume * envelope(note, ms) * oscillator(note.wave, phase);
        }
    }
    std::vector<std::int16_t> samples(count);
    std::transform(mix.begin(), mix.end(), samples.begin(), [](double value) {
        return static_cast<std::int16_t>(std::lround(std::clamp(value, -1.0, 1.0) * 32767));
    });
    return samples;
}

}  // namespace quindar
