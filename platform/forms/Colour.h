#pragma once

#include <cstdint>

namespace forms {

/// A color of a control: red, green and blue, from 0 to 255.
struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    friend bool operator==(const Colour&, const Colour&) = default;
};

namespace Colours {
constexpr Colour Black{0, 0, 0};
constexpr Colour White{255, 255, 255};
constexpr Colour Red{255, 0, 0};
constexpr Colour Grey{192, 192, 192};
constexpr Colour LightGrey{224, 224, 224};
constexpr Colour LightGreen{128, 255, 128};
constexpr Colour LightCyan{128, 255, 255};
constexpr Colour LightYellow{255, 255, 128};
} // namespace Colours

} // namespace forms
