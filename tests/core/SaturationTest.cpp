// Saturation pressure and dew point.

#include "tests/core/CoreTest.h"

#include <cmath>

using EnglishRelations = EnglishCore;
using MetricRelations = MetricCore;

TEST_F(EnglishRelations, AbsoluteTemperatureIsInDegreesRankine)
{
    EXPECT_EQ(ToAbsolute(-40.0F), 419.67F);
    EXPECT_EQ(ToAbsolute(32.0F), 491.67F);
    EXPECT_EQ(FahrenheitToRankine(70.0F), 529.67F);
    EXPECT_EQ(CelsiusToKelvin(-40.0F), 233.15F);
}

TEST_F(MetricRelations, AbsoluteTemperatureIsInKelvin)
{
    EXPECT_EQ(ToAbsolute(-40.0F), 233.15F);
    EXPECT_EQ(ToAbsolute(0.0F), 273.15F);
    EXPECT_EQ(FahrenheitToRankine(70.0F), 529.67F); // the same in both unit modes
}

TEST_F(MetricRelations, AnyUnitSystemButZeroIsMetric)
{
    UnitSystem = 1;
    EXPECT_EQ(ToAbsolute(0.0F), 273.15F);
}

TEST_F(EnglishRelations, SaturationPressureMatchesItsPublishedValues)
{
    EXPECT_NEAR(SaturationPressure(491.67F), 0.08864F, 0.000006F);
    EXPECT_NEAR(SaturationPressure(527.67F), 0.33922F, 0.000006F);
}

TEST_F(MetricRelations, SaturationPressureMatchesItsPublishedValues)
{
    EXPECT_NEAR(SaturationPressure(273.15F), 611.15F, 0.005F);
    EXPECT_NEAR(SaturationPressure(293.15F), 2338.8F, 0.05F);
}

TEST_F(EnglishRelations, SaturationPressureIsZeroOutsideItsRange)
{
    EXPECT_EQ(SaturationPressure(311.0F), 0.0F);
    EXPECT_GT(SaturationPressure(std::nextafter(311.0F, 400.0F)), 0.0F);
    EXPECT_EQ(SaturationPressure(851.67F), 0.0F);
    EXPECT_GT(SaturationPressure(std::nextafter(851.67F, 0.0F)), 0.0F);
    EXPECT_EQ(SaturationPressure(0.0F), 0.0F);
    EXPECT_EQ(SaturationPressure(-500.0F), 0.0F);
    EXPECT_EQ(SaturationPressure(1e30F), 0.0F);
}

TEST_F(MetricRelations, SaturationPressureIsZeroOutsideItsRange)
{
    EXPECT_EQ(SaturationPressure(175.0F), 0.0F);
    EXPECT_GT(SaturationPressure(std::nextafter(175.0F, 400.0F)), 0.0F);
    EXPECT_EQ(SaturationPressure(473.0F), 0.0F);
    EXPECT_GT(SaturationPressure(std::nextafter(473.0F, 0.0F)), 0.0F);
}

// The branches differ at their limit, which shows the one used.
TEST_F(EnglishRelations, FreezingPointIsTakenOverIce)
{
    const Single limit = ToAbsolute(32.0F);
    const double slopeBelow = SaturationPressure(limit) - SaturationPressure(std::nextafter(limit, 0.0F));
    const double slopeAbove = SaturationPressure(std::nextafter(limit, 1e3F)) - SaturationPressure(limit);
    const double iceAtLimit =
        std::exp(-10214.165 / limit - 4.8932428 - 0.0053765794 * limit + 1.9202377e-7 * std::pow(limit, 2) +
                 3.5575832e-10 * std::pow(limit, 3) - 9.0344688e-14 * std::pow(limit, 4) +
                 4.1635019 * std::log(limit));
    EXPECT_EQ(SaturationPressure(limit), static_cast<Single>(iceAtLimit));
    EXPECT_GT(slopeBelow, 0.0);
    EXPECT_NE(slopeBelow, slopeAbove);
}

TEST_F(MetricRelations, FreezingPointIsTakenOverIce)
{
    const Single limit = ToAbsolute(0.0F);
    const double t = limit;
    const double ice =
        std::exp(-5674.5359 / t + 6.3925247 - 0.009677843 * t + 6.22115701e-7 * t * t +
                 2.0747825e-9 * t * t * t - 9.484024e-13 * t * t * t * t + 4.1635019 * std::log(t));
    const double water = std::exp(-5800.2206 / t + 1.3914993 - 0.048640239 * t + 4.1764768e-5 * t * t -
                                  1.4452093e-8 * t * t * t + 6.5459673 * std::log(t));
    EXPECT_FLOAT_EQ(SaturationPressure(limit), static_cast<Single>(ice));
    EXPECT_GT(std::fabs(water - ice), 0.01);
    EXPECT_NEAR(SaturationPressure(limit), ice, 0.001);
    EXPECT_NEAR(SaturationPressure(std::nextafter(limit, 300.0F)), water, 0.005);
}

TEST_F(MetricRelations, DewPointWantsKiloPascal)
{
    EXPECT_NEAR(DewPointFromVaporPressure(2.3388F), 20.01, 0.01);
    EXPECT_NEAR(DewPointFromVaporPressure(2338.8F), 210.0, 1.0); // Pa passed by mistake is not detected
}

TEST_F(EnglishRelations, DewPointConvertsPsiAndFahrenheit)
{
    const Single kiloPascal = RoundToSingle(0.33922F * 6.8947333);
    const Single english = DewPointFromVaporPressure(0.33922F);
    UnitSystem = True16;
    EXPECT_EQ(english, RoundToSingle(DewPointFromVaporPressure(kiloPascal) * 1.8 + 32.0));
    EXPECT_NEAR(english, 68.0, 0.1);
}

TEST_F(EnglishRelations, DewPointRefusesADryOrNegativePressure)
{
    EXPECT_EQ(ErrorOf([] { DewPointFromVaporPressure(0.0F); }), InvalidArgument);
    EXPECT_EQ(ErrorOf([] { DewPointFromVaporPressure(-0.1F); }), InvalidArgument);
}

TEST_F(MetricRelations, DewPointRefusesADryOrNegativePressure)
{
    EXPECT_EQ(ErrorOf([] { DewPointFromVaporPressure(0.0F); }), InvalidArgument);
    EXPECT_EQ(ErrorOf([] { DewPointFromVaporPressure(-100.0F); }), InvalidArgument);
}

// The first regression ends slightly above 0 and the second continues below, without smoothing.
TEST_F(MetricRelations, DewPointJumpsWhereItsRegressionsMeet)
{
    const auto first = [](Single pw) {
        const double a = RoundToSingle(std::log(static_cast<double>(pw)));
        return RoundToSingle(a * a * 0.7389 + (a * 14.526 + 6.54) + a * a * a * 0.09486 +
                             std::pow(pw, 0.1984) * 0.4569);
    };
    const auto second = [](Single pw) {
        const double a = RoundToSingle(std::log(static_cast<double>(pw)));
        return RoundToSingle(a * a * 0.4959 + (a * 12.608 + 6.09));
    };
    Single low = 0.5F;
    Single high = 0.7F;
    while (std::nextafter(low, 1.0F) < high) {
        const Single middle = (low + high) / 2;
        (first(middle) < 0.0F ? low : high) = middle;
    }
    EXPECT_GE(first(high), 0.0F);
    EXPECT_EQ(DewPointFromVaporPressure(high), first(high));
    EXPECT_EQ(DewPointFromVaporPressure(low), second(low));
    EXPECT_NE(first(low), second(low));
    EXPECT_GT(std::fabs(DewPointFromVaporPressure(high) - DewPointFromVaporPressure(low)), 0.001F);
}
