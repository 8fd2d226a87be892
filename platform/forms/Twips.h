#pragma once

namespace forms {

/// Sizes and positions of forms are in twips: 10 per device-independent pixel.
using Twips = int;

constexpr int TwipsPerPixel = 10;

constexpr int ToPixels(Twips twips) { return twips / TwipsPerPixel; }
constexpr Twips ToTwips(int pixels) { return pixels * TwipsPerPixel; }

/// The primary screen, on which forms are placed.
struct Screen
{
    static Twips width();
    static Twips height();
};

} // namespace forms
