// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "wave_file.h"

#include <cstring>

namespace quindar {

namespace {

void put_u16(std::vector<std::uint8_t> &out, std::uint16_t value) {
    out.push_back(static_cast<std::uint8_t>(value & 0xff));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
}

void put_u32(std::vector<std::uint8_t> &out, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<std::uint8_t>(value >> shift));
}

void put_tag(std::vector<std::uint8_t> &out, const char *tag) {
    out.insert(out.end(), tag, tag + 4);
}

std::uint32_t get_u32(const std::vector<std::uint8_t> &in, std::size_t at) {
    return static_cast<std::uint32_t>(in[at]) | static_cast<std::uint32_t>(in[at + 1]) << 8 |
           static_cast<std::uint32_t>(in[at + 2]) << 16 |
           static_cast<std::uint32_t>(in[at + 3]) << 24;
}

std::uint16_t get_u16(const std::vector<std::uint8_t> &in, std::size_t at) {
    return static_cast<std::uint16_t>(in[at] | in[at + 1] << 8);
}

bool has_tag(const std::vector<std::uint8_t> &in, std::size_t at, const char *tag) {
    return in.size() >= at + 4 && std::memcmp(in.data() + at, tag, 4) == 0;
}

}  // namespace

std::vector<std::uint8_t> encode_wave(const std::vector<std::int16_t> &samples,
                                      std::uint32_t sampleRate) {
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
    std::vector<std::uint8_t> out;
    out.reserve(44 + dataBytes);
    put_tag(out, "RIFF");
    put_u32(out, 36 + dataBytes);
    put_tag(out, "WAVE");
    put_tag(out, "fmt ");
    put_u32(out, 16);
    put_u16(out, 1);  // PCM
    put_u16(out, 1);  // mono
    put_u32(out, sampleRate);
    put_u32(out, sampleRate * 2);
    put_u16(out, 2);
    put_u16(out, 16);
    put_tag(out, "data");
    put_u32(out, dataBytes);
    for (std::int16_t sample : samples) put_u16(out, static_cast<std::uint16_t>(sample));
    return out;
}

std::optional<WaveFormat> read_wave_format(const std::vector<std::uint8_t> &bytes) {
    if (!has_tag(bytes, 0, "RIFF") || !has_tag(bytes, 8, "WAVE")) return std::nullopt;
    WaveFormat format;
    bool haveFormat = false;
    // Chunks follow one another, each padded to an even length.
    for (std::size_t at = 12; at + 8 <= bytes.size();) {
        const std::uint32_t size = get_u32(bytes, at + 4);
        const std::size_t body = at + 8;
        if (has_tag(bytes, at, "fmt ")) {
            if (size < 16 || body + 16 > bytes.size() || get_u16(bytes, body) != 1)
                return std::nullopt;
            format.channels = get_u16(bytes, body + 2);
            format.sampleRate = get_u32(bytes, body + 4);
            format.bitsPerSample = get_u16(bytes, body + 14);
            haveFormat = true;
        } else if (has_tag(bytes, at, "data")) {
            if (!haveFormat || body + size > bytes.size()) return std::nullopt;
            format.dataBytes = size;
            return format;
        }
        at = body + size + (size & 1u);
    }
    return std::nullopt;
}

double wave_milliseconds(const WaveFormat &format) {
    const double frameBytes = format.channels * (format.bitsPerSample / 8.0);
    if (frameBytes <= 0 || format.sampleRate == 0) return 0;
    return format.dataBytes / frameBytes * 1000.0 / format.sampleRate;
}

}  // namespace quindar
