#include "chart/Theme.h"

#include <gtest/gtest.h>

using chart::Family;
using chart::Theme;

namespace {

QPalette desktop(const QColor& background, const QColor& letters)
{
    QPalette palette(background);
    palette.setColor(QPalette::WindowText, letters);
    return palette;
}

/// How far the lines of a family differ from the paper on a light desktop.
int strengthOf(Family family, const QColor& background)
{
    const Theme theme(desktop(background, Qt::black));
    return theme.paper().lightness() - theme.pen(family).color().lightness();
}

} // namespace

TEST(ChartTheme, DrawsItsLinesStrongerOnADesktopWithHighContrast)
{
    const QColor calm(239, 239, 239);
    for (const Family family : {Family::DryBulb, Family::RelativeHumidity, Family::WetBulb})
        EXPECT_GT(strengthOf(family, Qt::white), strengthOf(family, calm) + 20);
    EXPECT_GT(strengthOf(Family::DryBulb, Qt::white), 2 * strengthOf(Family::DryBulb, calm));
}
