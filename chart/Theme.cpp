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

/// How strong the thin lines are, from 0 (as the ground) to 1.
struct Strength
{
    float curve;
    float grid;
    float axis;
};

constexpr Strength calm{.curve = 0.51F, .grid = 0.16F, .axis = 0.67F};
constexpr Strength strong{.curve = 1, .grid = 0.43F, .axis = 1};

/// An opaque color: the toolkit paints lines that let the ground through several times slower.
QColor mixed(const QColor& color, const QColor& ground, float strength)
{
    const auto mix = [strength](float one, float other) { return one * strength + other * (1 - strength); };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

} // namespace

Theme::Theme(const QPalette& desktop)
    : palette(desktop),
      isDark(desktop.color(QPalette::Base).lightness() < 128),
      isStrong(forms::HasHighContrast(desktop))
{}

QColor Theme::axis() const
{
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window),
                 (isStrong ? strong : calm).axis);
}

QPen Theme::pen(Family family) const
{
    const QColor color = text(family);
    if (family == Family::Saturation)
        return {color, 2.2};
    const bool isGrid = family == Family::DryBulb || family == Family::HumidityRatio;
    const Strength& strength = isStrong ? strong : calm;
    QPen pen(mixed(color, paper(), isGrid ? strength.grid : strength.curve), 1);
    if (family == Family::WetBulb)
        pen.setDashPattern({7, 3});
    if (family == Family::Enthalpy)
        pen.setDashPattern({1, 3});
    return pen;
}

QPen Theme::scale(Family family) const
{
    return {mixed(text(family), palette.color(QPalette::Window), (isStrong ? strong : calm).axis), 1};
}

QColor Theme::zone() const
{
    QColor color = comfort.on(isDark);
    color.setAlpha(38); // the zones overlap
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
