#pragma once

namespace forms {

/// Forms and their places are measured in twips; ten of them are one device-independent pixel.
using Twips = int;

constexpr int TwipsPerPixel = 10;

constexpr int toPixels(Twips twips) { return twips / TwipsPerPixel; }
constexpr Twips toTwips(int pixels) { return pixels * TwipsPerPixel; }

/// The primary screen, on which forms place themselves.
struct Screen
{
    static Twips width();
    static Twips height();
};

} // namespace forms
