// The chart's figures on a desktop that writes a decimal comma.

#include "chart/Texts.h"
#include "tests/support/ProgramTest.h"

using ChartWithDecimalComma = ProgramTest;

TEST_F(ChartWithDecimalComma, WritesItsFiguresAsTheDesktopDoes)
{
    start();
    EXPECT_EQ(chart::HumidityRatioFigure(0.02, 0.002).toStdString(), "0,020");
    EXPECT_EQ(chart::RoundFigure(13.5).toStdString(), "13,5");
    EXPECT_EQ(chart::TdbText(75.04).toStdString(), "75,0 °F");
    EXPECT_EQ(chart::PressureText(14.696).toStdString(), "14,696 psi");
    UnitSystem = True16;
    EXPECT_EQ(chart::HumidityRatioFigure(0.02, 0.002).toStdString(), "20");
    EXPECT_EQ(chart::HumidityRatioText(0.0141).toStdString(), "14,10 g/kg");
}
