#include "core/InputLimits.h"

#include "tests/core/CoreTest.h"

using InputLimits = EnglishCore;

TEST_F(InputLimits, ClipTheTemperaturesBelowTheDryBulbAndKeepThemInDouble)
{
    StatePoint.Tdb = 70.0F;
    StatePoint.Twb = 69.99F;
    EXPECT_EQ(ClipWetBulb(0.1), nullptr);
    StatePoint.Twb = 70.0F;
    EXPECT_STREQ(ClipWetBulb(0.1), "Twb clipped at Tdb");
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.Twb.asDouble(), 70.0 - 0.1);

    StatePoint.td = 70.0F;
    EXPECT_STREQ(ClipDewPoint(0.01), "Dew Pt. clipped at Tdb");
    EXPECT_EQ(StatePoint.td.asDouble(), 70.0 - 0.01);
    EXPECT_EQ(ClipDewPoint(0.01), nullptr);
}

TEST_F(InputLimits, ClipTheRelativeHumidityToAnIntegerAboveAndADoubleBelow)
{
    StatePoint.RH = 100.0F;
    EXPECT_EQ(ClipRelativeHumidity(), nullptr);
    StatePoint.RH = 100.1F;
    EXPECT_STREQ(ClipRelativeHumidity(), "RH clipped at 100%");
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Int16);
    EXPECT_EQ(StatePoint.RH.asDouble(), 100.0);

    StatePoint.RH = 0.05F; // intentional: only 0 and below are clipped
    EXPECT_EQ(ClipRelativeHumidity(), nullptr);
    StatePoint.RH = 0.0F;
    EXPECT_STREQ(ClipRelativeHumidity(), "RH clipped at 0.1%");
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.RH.asDouble(), 0.1);
}

// The single 0.00001 lies below the double and is clipped; the single 0.1 lies above and is not.
TEST_F(InputLimits, CompareTheRatiosWithDoubles)
{
    StatePoint.W = 0.00001F;
    EXPECT_STREQ(ClipHumidityRatio(), "W clipped at 0.00001");
    EXPECT_EQ(StatePoint.W.asDouble(), 0.00001);
    StatePoint.W = 0.0000101F;
    EXPECT_EQ(ClipHumidityRatio(), nullptr);

    StatePoint.Grains = 0.1F;
    EXPECT_EQ(ClipGrains(), nullptr);
    StatePoint.Grains = 0.0F;
    EXPECT_STREQ(ClipGrains(), "grains clipped at 0.1");
    EXPECT_EQ(StatePoint.Grains.asDouble(), 0.1);
    EXPECT_STREQ(ClipGrains(), "grains clipped at 0.1"); // the double 0.1 itself is clipped again
}
