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

} // namespace

TEST(ChartTheme, DrawsItsCurvesOpaqueOnADesktopWithHighContrast)
{
    for (const QColor& back : {QColor(Qt::black), QColor(Qt::white)}) {
        const Theme theme(desktop(back, back == Qt::black ? Qt::white : Qt::black));
        EXPECT_EQ(theme.pen(Family::RelativeHumidity).color().alpha(), 255);
        EXPECT_EQ(theme.axis().alpha(), 255);
    }
}

TEST(ChartTheme, DrawsItsGridStrongerOnADesktopWithHighContrast)
{
    const Theme strong(desktop(Qt::white, Qt::black));
    const Theme calm(desktop(QColor(239, 239, 239), Qt::black));
    EXPECT_GT(strong.pen(Family::DryBulb).color().alpha(), 2 * calm.pen(Family::DryBulb).color().alpha());
    EXPECT_LT(calm.pen(Family::RelativeHumidity).color().alpha(), 200);
}
