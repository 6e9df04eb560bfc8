#pragma once

#include <cstdint>

namespace platform {

/// A colour by its red, green and blue parts, 0 to 255 each.
struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour Colour_Black{0, 0, 0};
inline constexpr Colour Colour_White{255, 255, 255};

}  // namespace platform
