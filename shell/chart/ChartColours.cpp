#include "shell/chart/ChartColours.h"

#include <array>

namespace {

struct Pair
{
    QColor light;
    QColor dark;

    const QColor& on(bool isDark) const { return isDark ? dark : light; }
};

const Pair saturation{{16, 62, 120}, {130, 195, 255}};
const Pair humidity{{72, 118, 176}, {96, 148, 205}};
const Pair wetBulb{{46, 128, 92}, {92, 176, 136}};
const Pair volume{{160, 112, 48}, {196, 152, 92}};

/// In the order of the main menu.
const std::array<Pair, 5> runs{{{{112, 48, 150}, {205, 150, 240}},
                                {{190, 40, 45}, {255, 125, 120}},
                                {{0, 98, 190}, {110, 180, 255}},
                                {{190, 88, 0}, {255, 170, 85}},
                                {{0, 118, 104}, {80, 210, 190}}}};

constexpr int quiet = 130; // of 255: how strong a thin family is

} // namespace

ChartColours::ChartColours(const QPalette& desktop)
    : palette(desktop), isDark(desktop.color(QPalette::Base).lightness() < 128)
{}

QColor ChartColours::axis() const
{
    QColor colour = palette.color(QPalette::WindowText);
    colour.setAlpha(170);
    return colour;
}

QPen ChartColours::pen(ChartFamily family) const
{
    QColor colour = text(family);
    switch (family) {
    case ChartFamily::Saturation:
        return {colour, 2.2};
    case ChartFamily::DryBulb:
    case ChartFamily::HumidityRatio:
        colour.setAlpha(40);
        break;
    default:
        colour.setAlpha(quiet);
    }
    return {colour, 1};
}

QColor ChartColours::text(const std::optional<ChartFamily>& family) const
{
    if (family == ChartFamily::Saturation)
        return saturation.on(isDark);
    if (family == ChartFamily::RelativeHumidity)
        return humidity.on(isDark);
    if (family == ChartFamily::WetBulb)
        return wetBulb.on(isDark);
    if (family == ChartFamily::SpecificVolume)
        return volume.on(isDark);
    return palette.color(QPalette::WindowText);
}

QColor ChartColours::run(std::size_t calculator) const { return runs.at(calculator).on(isDark); }
