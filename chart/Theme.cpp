#include "chart/Theme.h"

#include "platform/forms/Picture.h"

#include <array>

namespace chart {
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
const Pair enthalpy{{138, 72, 112}, {214, 150, 190}};
const Pair comfort{{70, 160, 90}, {110, 200, 130}};
const Pair volume{{160, 112, 48}, {196, 152, 92}};

/// In the order of the main menu.
const std::array<Pair, 5> runs{{{{112, 48, 150}, {205, 150, 240}},
                                {{190, 40, 45}, {255, 125, 120}},
                                {{0, 98, 190}, {110, 180, 255}},
                                {{190, 88, 0}, {255, 170, 85}},
                                {{0, 118, 104}, {80, 210, 190}}}};

/// How opaque the thin lines are.
struct Opacity
{
    int curve;
    int grid;
    int axis;
};

constexpr Opacity calm{.curve = 130, .grid = 40, .axis = 170};
constexpr Opacity strong{.curve = 255, .grid = 110, .axis = 255};

} // namespace

Theme::Theme(const QPalette& desktop)
    : palette(desktop),
      isDark(desktop.color(QPalette::Base).lightness() < 128),
      isStrong(forms::HasHighContrast(desktop))
{}

QColor Theme::axis() const
{
    QColor color = palette.color(QPalette::WindowText);
    color.setAlpha((isStrong ? strong : calm).axis);
    return color;
}

QPen Theme::pen(Family family) const
{
    QColor color = text(family);
    if (family == Family::Saturation)
        return {color, 2.2};
    const bool isGrid = family == Family::DryBulb || family == Family::HumidityRatio;
    const Opacity& opacity = isStrong ? strong : calm;
    color.setAlpha(isGrid ? opacity.grid : opacity.curve);
    QPen pen(color, 1);
    if (family == Family::WetBulb)
        pen.setDashPattern({7, 3});
    if (family == Family::Enthalpy)
        pen.setDashPattern({1, 3});
    return pen;
}

QPen Theme::scale(Family family) const
{
    QColor color = text(family);
    color.setAlpha((isStrong ? strong : calm).axis);
    return {color, 1};
}

QColor Theme::zone() const
{
    QColor color = comfort.on(isDark);
    color.setAlpha(38);
    return color;
}

QPen Theme::zonePen() const { return {comfort.on(isDark), 1}; }

QColor Theme::text(const std::optional<Family>& family) const
{
    if (family == Family::Saturation)
        return saturation.on(isDark);
    if (family == Family::RelativeHumidity)
        return humidity.on(isDark);
    if (family == Family::WetBulb)
        return wetBulb.on(isDark);
    if (family == Family::Enthalpy)
        return enthalpy.on(isDark);
    if (family == Family::SpecificVolume)
        return volume.on(isDark);
    return palette.color(QPalette::WindowText);
}

QColor Theme::run(Calculator calculator) const
{
    return runs.at(static_cast<std::size_t>(calculator)).on(isDark);
}

} // namespace chart
