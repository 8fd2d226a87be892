// Humidity ratio, volume, enthalpy and the wet bulb balance.

#include "tests/core/CoreTest.h"

#include <cmath>

using EnglishRelations = EnglishCore;
using MetricRelations = MetricCore;

TEST_F(EnglishRelations, HumidityRatioIsNegativeWhereTheVapourPressureExceedsThePressure)
{
    EXPECT_EQ(HumidityRatioFromVaporPressure(15.0F, 14.0F), static_cast<Single>(15.0 * 0.62198 / -1.0));
    EXPECT_EQ(HumidityRatioFromVaporPressure(0.0F, 14.0F), 0.0F);
}

TEST_F(EnglishRelations, HumidityRatioFaultsWhereTheVapourPressureIsThePressure)
{
    EXPECT_EQ(ErrorOf([] { HumidityRatioFromVaporPressure(14.696F, 14.696F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { HumidityRatioFromVaporPressure(0.0F, 0.0F); }), DivisionByZero);
}

TEST_F(EnglishRelations, EveryVanishingDivisorFaults)
{
    EXPECT_EQ(ErrorOf([] { DegreeOfSaturation(0.01F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { DegreeOfSaturation(0.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { SpecificVolumeOf(530.0F, 0.01F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(0.5F, 0.3F, 0.0F); }), DivisionByZero);
    // (1 - mu) pws / P is 1: the outer divisor is 0
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(0.5F, 2.0F, 1.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(0.0F, 1.0F, 1.0F); }), DivisionByZero);
}

// The quotient pws / P is infinite here and its reciprocal would be a harmless 0. The error must still be
// reported.
TEST_F(EnglishRelations, AFaultHiddenInsideAnExpressionIsReported)
{
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(0.5F, 1.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(1.0F, 0.0F, 0.0F); }), DivisionByZero);
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(1.0F, 1.0F, -0.0F); }), DivisionByZero);
}

TEST_F(EnglishRelations, AResultTooLargeForASingleFaults)
{
    constexpr Single huge = 3e38F;
    EXPECT_EQ(ErrorOf([] { VaporPressureFromRH(huge, 2.0F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { DegreeOfSaturation(huge, 0.5F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { EnthalpyOf(huge, 10.0F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { DryBulbFromEnthalpy(huge, 0.0F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { SpecificVolumeOf(huge, 1.0F, 1e-3F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { HumidityRatioFromWetBulb(1092.9F, 0.0F, huge); }), Overflow);
    EXPECT_EQ(ErrorOf([] { VaporPressureFromHumidityRatio(huge, -0.62F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(huge, 2.0F, 1.0F); }),
              0); // both are huge, but not the quotient
    EXPECT_EQ(ErrorOf([] { RHFromDegreeOfSaturation(huge, 0.0F, 1.0F); }), 0);
    EXPECT_EQ(ErrorOf([] { DewPointFromVaporPressure(huge); }), Overflow); // in the conversion to kPa
}

TEST_F(MetricRelations, AResultTooLargeForASingleFaults)
{
    constexpr Single huge = 3e38F;
    EXPECT_EQ(ErrorOf([] { EnthalpyOf(huge, 10.0F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { DryBulbFromEnthalpy(huge, -0.5F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { SpecificVolumeOf(huge, 1.0F, 1.0F); }), Overflow);
    EXPECT_EQ(ErrorOf([] { DewPointFromVaporPressure(huge); }), 0);
}

TEST_F(EnglishRelations, AHumidityRatioNextToItsPoleIsNoFault)
{
    const Single below = std::nextafter(14.696F, 0.0F);
    EXPECT_GT(HumidityRatioFromVaporPressure(below, 14.696F), 9e6F);
    EXPECT_LT(HumidityRatioFromVaporPressure(14.696F, below), -9e6F);
}

TEST_F(EnglishRelations, UnderflowIsNoFault)
{
    EXPECT_EQ(VaporPressureFromRH(1e-30F, 1e-30F), 0.0F);
    EXPECT_EQ(DegreeOfSaturation(1e-30F, 1e30F), 0.0F);
}

TEST_F(EnglishRelations, RelativeHumidityFollowsItsDefinition)
{
    EXPECT_EQ(VaporPressureFromRH(0.5F, 0.36F), static_cast<Single>(0.5 * static_cast<double>(0.36F)));
    EXPECT_EQ(RHFromDegreeOfSaturation(1.0F, 0.36F, 14.7F), 1.0F);
    EXPECT_EQ(RHFromDegreeOfSaturation(0.0F, 0.36F, 14.7F), 0.0F);
    const double mu = 0.25F;
    const double ratio = static_cast<double>(0.36F) / static_cast<double>(14.7F);
    EXPECT_EQ(RHFromDegreeOfSaturation(0.25F, 0.36F, 14.7F),
              static_cast<Single>(mu / (1.0 - (1.0 - mu) * ratio)));
}

TEST_F(EnglishRelations, SpecificVolumeTakesItsGasConstantAsASingle)
{
    EXPECT_EQ(SpecificVolumeOf(530.0F, 0.0F, 14.0F),
              static_cast<Single>(530.0 * 1545.3199462890625 / (14.0 * 28.9645 * 144.0)));
    EXPECT_NEAR(SpecificVolumeOf(536.67F, 0.0F, 14.696F), 13.525, 0.01);
}

TEST_F(MetricRelations, SpecificVolumeTakesItsGasConstantAsASingle)
{
    EXPECT_EQ(SpecificVolumeOf(300.0F, 0.0F, 100000.0F),
              static_cast<Single>(300.0 * 8314.41015625 / (100000.0 * 28.9645)));
    EXPECT_NEAR(SpecificVolumeOf(298.15F, 0.0F, 101325.0F), 0.8443, 0.001);
}

TEST_F(EnglishRelations, EnthalpyOfDryAirAtZeroIsZero)
{
    EXPECT_EQ(EnthalpyOf(0.0F, 0.0F), 0.0F);
    EXPECT_EQ(EnthalpyOf(70.0F, 0.0F), static_cast<Single>(70.0 * 0.24));
    EXPECT_EQ(EnthalpyOf(0.0F, 1.0F), 1061.0F);
}

TEST_F(MetricRelations, EnthalpyOfDryAirAtZeroIsZero)
{
    EXPECT_EQ(EnthalpyOf(0.0F, 0.0F), 0.0F);
    EXPECT_EQ(EnthalpyOf(20.0F, 0.0F), 20.0F);
    EXPECT_EQ(EnthalpyOf(0.0F, 1.0F), 2501.0F);
}

TEST_F(EnglishRelations, DryBulbFromEnthalpyUndoesTheEnthalpy)
{
    for (int t = -40; t <= 125; ++t) {
        const Single h = EnthalpyOf(static_cast<Single>(t), 0.008F);
        EXPECT_NEAR(DryBulbFromEnthalpy(h, 0.008F), t, 2e-5);
    }
}

TEST_F(MetricRelations, DryBulbFromEnthalpyUndoesTheEnthalpy)
{
    for (int t = -40; t <= 125; ++t) {
        const Single h = EnthalpyOf(static_cast<Single>(t), 0.008F);
        EXPECT_NEAR(DryBulbFromEnthalpy(h, 0.008F), t, 2e-5);
    }
}

TEST_F(EnglishRelations, WetBulbBalanceTakesTheLatentHeatOf1093)
{
    EXPECT_EQ(HumidityRatioFromWetBulb(0.0F, 0.0F, 0.5F), 0.5F);
    const double expected =
        ((1093.0 - 0.556 * 65.0) * 0.01F - (100.0 - 65.0) * 0.24) / (100.0 * 0.444 + 1093.0 - 65.0);
    EXPECT_EQ(HumidityRatioFromWetBulb(65.0F, 100.0F, 0.01F), static_cast<Single>(expected));
}

TEST_F(MetricRelations, WetBulbBalanceTakesTheLatentHeatOf2501)
{
    const double expected =
        ((2501.0 - 2.381 * 20.0) * 0.01F - (40.0 - 20.0)) / (40.0 * 1.805 + 2501.0 - 20.0 * 4.186);
    EXPECT_EQ(HumidityRatioFromWetBulb(20.0F, 40.0F, 0.01F), static_cast<Single>(expected));
}

TEST_F(EnglishRelations, AWetBulbFarBelowTheDryBulbGivesANegativeHumidityRatio)
{
    EXPECT_LT(HumidityRatioFromWetBulb(30.0F, 100.0F, 0.003F), 0.0F);
}

TEST_F(EnglishRelations, VapourPressureAndHumidityRatioAreInverse)
{
    for (const Single pw : {0.01F, 0.1F, 0.5F, 2.0F}) {
        const Single W = HumidityRatioFromVaporPressure(pw, 14.696F);
        EXPECT_NEAR(VaporPressureFromHumidityRatio(14.696F, W), pw, pw * 2e-7);
    }
}
