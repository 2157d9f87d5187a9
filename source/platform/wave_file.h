// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// RIFF wave files of 16-bit mono samples: the form of the program's sounds.

#include <cstdint>
#include <optional>
#include <vector>

namespace quindar {

struct WaveFormat {
    std::uint32_t sampleRate = 0;
    std::uint16_t channels = 0;
    std::uint16_t bitsPerSample = 0;
    std::uint32_t dataBytes = 0;
};

// The bytes of a canonical 44-byte-header wave file holding these samples.
std::vector<std::uint8_t> encode_wave(const std::vector<std::int16_t> &samples,
                                      std::uint32_t sampleRate);

// The format of a wave file's bytes, or nothing when they are not a PCM wave file.
std::optional<WaveFormat> read_wave_format(const std::vector<std::uint8_t> &bytes);

// The length in milliseconds of the sound a format describes.
double wave_milliseconds(const WaveFormat &format);

}  // namespace quindar
