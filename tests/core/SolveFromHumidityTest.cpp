// A relative humidity near its limits.

#include "tests/core/Solvers.h"

#include <cmath>

TEST_F(EnglishSolvers, ReadAPercentageAsAFraction)
{
    SolveRH(70.0F, 14.696F, 60.0F);
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Single);
    EXPECT_EQ(StatePoint.RH.asSingle(), 0.6F);
}

TEST_F(EnglishSolvers, RaiseAlmostFullHumidityToFull)
{
    SolveRH(70.0F, 14.696F, 99.995F);
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.RH.asDouble(), 1.0);
    EXPECT_EQ(StatePoint.Twb.asDouble(), 69.995);

    SolveRH(70.0F, 14.696F, 99.95F);
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Single);
    EXPECT_EQ(StatePoint.RH.asSingle(), 0.9995F);
}

// So it makes no difference whether the limit itself counts as above.
TEST_F(EnglishSolvers, MeetNoHumidityExactlyAtTheUpperLimit)
{
    double percent = 99.99 - 1e-9;
    for (int i = 0; i < 200000; ++i) { // every double within about 1e-9 of the limit
        ASSERT_NE(percent / 100, 0.9999);
        percent = std::nextafter(percent, 100.0);
    }
    ASSERT_GT(percent, 99.99 + 1e-9);
    EXPECT_NE(static_cast<double>(0.9999F), 0.9999);
}

TEST_F(EnglishSolvers, ReadAClippedHumidityByItsKind)
{
    SetAir(70.0F, 14.696F);
    StatePoint.RH = 100; // the screen's upper clip
    SolveFromRH();
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.RH.asDouble(), 1.0);

    StatePoint.RH = 0.1;
    SolveFromRH();
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.RH.asDouble(), 0.001);
}

TEST_F(EnglishSolvers, RaiseADryHumidityToATenthOfAPercent)
{
    SolveRH(70.0F, 14.696F, 0.05F);
    EXPECT_EQ(StatePoint.RH.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.RH.asDouble(), 0.001);
}

TEST_F(EnglishSolvers, TakeTheDryBulbLessAHairForSaturatedAir)
{
    for (const Single percent : {100.0F, 99.95F, 99.91F}) {
        SolveRH(70.35F, 14.696F, percent);
        EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double);
        EXPECT_EQ(StatePoint.Twb.asDouble(), static_cast<double>(70.35F) - 0.005);
    }
    SolveRH(70.35F, 14.696F, 99.89F);
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Single);
}

// Rounding to single would move each of the lower two over its limit.
TEST_F(EnglishSolvers, CompareAHumidityAsItIsHeld)
{
    SetAir(70.0F, 14.696F);
    StatePoint.RH = 99.89999999999999; // divided by 100, just below 0.999
    SolveFromRH();
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Single);
    StatePoint.RH = 99.9; // just above
    SolveFromRH();
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double);
    StatePoint.RH = 99.989999; // above the single 0.9999, below the double
    SolveFromRH();
    EXPECT_EQ(StatePoint.RH.asDouble(), 99.989999 / 100.0);
}

TEST_F(EnglishSolvers, ADewPointAHairBelowTheDryBulbIsAlmostSaturated)
{
    SetAir(70.0F, 14.696F);
    StatePoint.td = 70.0F - 0.01;
    SolveFromDewPoint();
    EXPECT_LT(StatePoint.RH.asDouble(), 1.0);
    EXPECT_GE(StatePoint.RH.asDouble(), 0.999);
    EXPECT_EQ(StatePoint.Twb.asDouble(), 69.995);

    StatePoint.td = 70.0F - 0.1;
    SolveFromDewPoint();
    EXPECT_LT(StatePoint.RH.asDouble(), 0.999);
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Single);
}
