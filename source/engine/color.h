// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <cstdint>

namespace quindar {

// A colour as the settings and document files hold it: red in the low byte, then green,
// then blue.
class TColor {
public:
    constexpr TColor() = default;
    constexpr TColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
        : rgb_(static_cast<std::uint32_t>(red) | static_cast<std::uint32_t>(green) << 8 |
               static_cast<std::uint32_t>(blue) << 16) {}

    constexpr int Red() const { return static_cast<int>(rgb_ & 0xff); }
    constexpr int Green() const { return static_cast<int>((rgb_ >> 8) & 0xff); }
    constexpr int Blue() const { return static_cast<int>((rgb_ >> 16) & 0xff); }
    constexpr std::uint32_t GetValue() const { return rgb_; }

    friend constexpr bool operator==(TColor, TColor) = default;

    static const TColor Black;
    static const TColor White;

private:
    std::uint32_t rgb_ = 0;
};

inline constexpr TColor TColor::Black{0, 0, 0};
inline constexpr TColor TColor::White{255, 255, 255};

}  // namespace quindar
