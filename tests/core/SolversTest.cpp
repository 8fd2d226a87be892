// What the solvers give, and which fields they write.

#include "tests/core/Solvers.h"

TEST_F(EnglishSolvers, ARoomAt70AndHalfHumidity)
{
    SolveRH(70.0F, 14.696F, 50.0F);
    EXPECT_NEAR(StatePoint.W.asDouble(), 0.00778, 0.000006);
    EXPECT_NEAR(StatePoint.td.asDouble(), 50.6, 0.06);
    EXPECT_NEAR(StatePoint.Twb.asDouble(), 58.45, 0.01);
    EXPECT_EQ(StatePoint.RH.asDouble(), 0.5);
    EXPECT_NEAR(StatePoint.Grains.asDouble(), 54.47, 0.05);
}

TEST_F(MetricSolvers, ARoomAt20AndHalfHumidity)
{
    SolveRH(20.0F, 101352.0F, 50.0F);
    EXPECT_NEAR(StatePoint.W.asDouble(), 0.00726, 0.000006);
    EXPECT_NEAR(StatePoint.td.asDouble(), 9.3, 0.06);
    EXPECT_NEAR(StatePoint.Twb.asDouble(), 13.77, 0.01);
}

TEST_F(EnglishSolvers, KeepGrainsAsADoubleOfTheRatio)
{
    SolveRH(70.0F, 14.696F, 50.0F);
    EXPECT_EQ(StatePoint.Grains.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.Grains.asDouble(), 7000.0 * StatePoint.W.asDouble());
}

TEST_F(MetricSolvers, LeaveGrainsAlone)
{
    const std::vector<std::function<void()>> solvers{
        [] { StatePoint.RH = 50.0F, SolveFromRH(); },
        [] { StatePoint.W = 0.007F, SolveFromW(); },
        [] { StatePoint.Twb = 14.0F, SolveFromWetBulb(); },
        [] { StatePoint.td = 9.0F, SolveFromDewPoint(); },
    };
    for (const auto& solve : solvers) {
        Litter();
        SetAir(20.0F, 101352.0F);
        solve();
        EXPECT_TRUE(IsStale(StatePoint.Grains));
        EXPECT_FALSE(IsStale(StatePoint.RH));
    }
}

TEST_F(EnglishSolvers, GrainsBecomeARatioInDouble)
{
    SetAir(70.0F, 14.696F);
    StatePoint.Grains = 50.0F;
    SolveFromGrains();
    EXPECT_EQ(StatePoint.W.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.W.asDouble(), 50.0 / 7000.0);
    EXPECT_EQ(StatePoint.Grains.kind(), NumberKind::Single);
    EXPECT_EQ(StatePoint.Grains.asDouble(), 50.0);
}

TEST_F(EnglishSolvers, WriteTheFieldsOfTheirOwnPath)
{
    struct Path
    {
        std::function<void()> solve;
        bool absolute, wet, dew;
    };
    const std::vector<Path> paths{
        {[] { StatePoint.Grains = 50.0F, SolveFromGrains(); }, true, false, false},
        {[] { StatePoint.W = 0.007F, SolveFromW(); }, true, false, false},
        {[] { StatePoint.Twb = 58.0F, SolveFromWetBulb(); }, false, true, false},
        {[] { StatePoint.td = 50.0F, SolveFromDewPoint(); }, false, false, true},
        {[] { StatePoint.RH = 50.0F, SolveFromRH(); }, false, false, false},
    };
    for (const Path& path : paths) {
        Litter();
        SetAir(70.0F, 14.696F);
        path.solve();
        EXPECT_EQ(StatePoint.TAbs != -999.0F, path.absolute);
        EXPECT_EQ(!IsStale(StatePoint.PwsWet), path.wet);
        EXPECT_EQ(StatePoint.WsWet != -999.0F, path.wet);
        EXPECT_EQ(!IsStale(StatePoint.PwsDew), path.dew);
        for (const TaggedNumber* field :
             {&StatePoint.Mu, &StatePoint.Grains, &StatePoint.RH, &StatePoint.SpVol, &StatePoint.Pws,
              &StatePoint.W, &StatePoint.Ws, &StatePoint.td, &StatePoint.Pw, &StatePoint.Twb})
            EXPECT_FALSE(IsStale(*field));
        EXPECT_NE(StatePoint.h, -999.0F);
        EXPECT_EQ(StatePoint.ReservedSingle, 0.0F);
        EXPECT_EQ(StatePoint.Tdb, 70.0F);
        EXPECT_EQ(StatePoint.P.asSingle(), 14.696F);
    }
}

TEST_F(MetricSolvers, DivideThePressureForTheDewPoint)
{
    SolveRH(20.0F, 101325.0F, 50.0F);
    const Single kiloPascal = RoundToSingle(static_cast<double>(StatePoint.Pw.asSingle()) / 1000.0);
    EXPECT_EQ(StatePoint.td.asSingle(), DewPointFromVaporPressure(kiloPascal));
}

// The screens offer grains in English only. The solver does the same in both unit modes.
TEST_F(MetricSolvers, GrainsKeepToTheEnglishScaleAndPassPascal)
{
    SetAir(20.0F, 101325.0F);
    StatePoint.Grains = 50.0F;
    EXPECT_EQ(ErrorOf(SolveFromGrains), DivisionByZero); // 479.67 is beyond the saturation pressure in K
    EXPECT_EQ(StatePoint.TAbs, 479.67F);
    EXPECT_EQ(StatePoint.Ws.asDouble(), 0.0);
}

TEST_F(EnglishSolvers, ComputeOnADoublePressureRoundedToSingle)
{
    SetAir(70.0F, 0.0F);
    StatePoint.P = 14.696; // a double here
    StatePoint.RH = 50.0F;
    SolveFromRH();
    const Single W = StatePoint.W.asSingle();
    SolveRH(70.0F, 14.696F, 50.0F);
    EXPECT_EQ(StatePoint.W.asSingle(), W);
}
