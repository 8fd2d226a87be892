#include "tests/core/CoreTest.h"

#include <cmath>
#include <functional>

namespace {

void SetAir(Single Tdb, Single P)
{
    StatePoint.Tdb = Tdb;
    StatePoint.P = P;
}

void SolveRH(Single Tdb, Single P, Single percent)
{
    SetAir(Tdb, P);
    StatePoint.RH = percent;
    SolveFromRH();
}

/// Sets every field to a value that no solver would give it.
void Litter()
{
    for (TaggedNumber* field : {&StatePoint.Mu, &StatePoint.Grains, &StatePoint.RH, &StatePoint.SpVol,
                                &StatePoint.PwsDew, &StatePoint.PwsWet, &StatePoint.Pws, &StatePoint.W,
                                &StatePoint.Ws, &StatePoint.td, &StatePoint.Pw, &StatePoint.Twb})
        *field = "stale";
    StatePoint.h = StatePoint.WsWet = StatePoint.TAbs = -999.0F;
}

bool IsStale(const TaggedNumber& field) { return field.kind() == NumberKind::Text; }

} // namespace

using EnglishSolvers = EnglishCore;
using MetricSolvers = MetricCore;

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
        [] {
            StatePoint.RH = 50.0F;
            SolveFromRH();
        },
        [] {
            StatePoint.W = 0.007F;
            SolveFromW();
        },
        [] {
            StatePoint.Twb = 14.0F;
            SolveFromWetBulb();
        },
        [] {
            StatePoint.td = 9.0F;
            SolveFromDewPoint();
        },
    };
    for (const auto& solve : solvers) {
        Litter();
        SetAir(20.0F, 101352.0F);
        solve();
        EXPECT_TRUE(IsStale(StatePoint.Grains));
        EXPECT_FALSE(IsStale(StatePoint.RH));
    }
}

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

TEST_F(EnglishSolvers, TakeTheShortcutFromARatioJustBelowSaturation)
{
    const Single vapor = VaporPressureFromRH(0.9995F, SaturationPressure(ToAbsolute(70.0F)));
    const Single ratio = HumidityRatioFromVaporPressure(vapor, 14.696F);
    const std::pair<std::function<void()>, const char*> solvers[] = {{[&] {
                                                                          StatePoint.W = ratio;
                                                                          SolveFromW();
                                                                      },
                                                                      "W"},
                                                                     {[&] {
                                                                          StatePoint.Grains = ratio * 7000.0;
                                                                          SolveFromGrains();
                                                                      },
                                                                      "Grains"}};
    for (const auto& [solve, item] : solvers) {
        Litter();
        SetAir(70.0F, 14.696F);
        solve();
        EXPECT_NEAR(StatePoint.RH.asDouble(), 0.9995, 1e-6) << item;
        EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double) << item;
        EXPECT_EQ(StatePoint.Twb.asDouble(), 69.995) << item;
        EXPECT_FALSE(HumidityRatioTooHigh || GrainsTooHigh) << item;
    }
}

TEST_F(EnglishSolvers, RefuseTooManyGrainsAndLeaveTheRestOfTheState)
{
    Litter();
    SetAir(70.0F, 14.696F);
    StatePoint.Grains = 500.0F;
    SolveFromGrains();

    EXPECT_EQ(GrainsTooHigh, True16);
    EXPECT_EQ(HumidityRatioTooHigh, False16);
    EXPECT_EQ(shownMessages, std::vector<std::string>{"Humidity Ratio Input is too High, Try Again!"});
    EXPECT_GT(StatePoint.RH.asDouble(), 1.0);
    EXPECT_EQ(StatePoint.TAbs, FahrenheitToRankine(70.0F));
    for (const TaggedNumber* refused :
         {&StatePoint.W, &StatePoint.Pw, &StatePoint.Pws, &StatePoint.Ws, &StatePoint.Mu})
        EXPECT_FALSE(IsStale(*refused));
    for (const TaggedNumber* kept : {&StatePoint.SpVol, &StatePoint.td, &StatePoint.Twb})
        EXPECT_TRUE(IsStale(*kept));
    EXPECT_EQ(StatePoint.h, -999.0F);

    StatePoint.Grains = 50.0F;
    SolveFromGrains();
    EXPECT_EQ(GrainsTooHigh, False16);
    EXPECT_EQ(shownMessages.size(), 1U);
    EXPECT_FALSE(IsStale(StatePoint.Twb));
}

TEST_F(EnglishSolvers, RefuseTooHighARatioAndLeaveTheRestOfTheState)
{
    Litter();
    SetAir(70.0F, 14.696F);
    StatePoint.W = 0.1F;
    SolveFromW();

    EXPECT_EQ(HumidityRatioTooHigh, True16);
    EXPECT_EQ(GrainsTooHigh, False16);
    EXPECT_EQ(shownMessages, std::vector<std::string>{"Humidity Ratio Input is High, Try Again!"});
    EXPECT_GT(StatePoint.RH.asDouble(), 1.0);
    for (const TaggedNumber* kept : {&StatePoint.Grains, &StatePoint.SpVol, &StatePoint.td, &StatePoint.Twb})
        EXPECT_TRUE(IsStale(*kept));
    EXPECT_EQ(StatePoint.h, -999.0F);

    StatePoint.W = 0.007F;
    SolveFromW();
    EXPECT_EQ(HumidityRatioTooHigh, False16);
    EXPECT_EQ(shownMessages.size(), 1U);
}

TEST_F(EnglishSolvers, ResetOnlyTheirOwnFlag)
{
    SetAir(70.0F, 14.696F);
    HumidityRatioTooHigh = GrainsTooHigh = True16;
    StatePoint.W = 0.007F;
    SolveFromW();
    EXPECT_EQ(HumidityRatioTooHigh, False16);
    EXPECT_EQ(GrainsTooHigh, True16);

    HumidityRatioTooHigh = True16;
    StatePoint.Grains = 50.0F;
    SolveFromGrains();
    EXPECT_EQ(HumidityRatioTooHigh, True16);
    EXPECT_EQ(GrainsTooHigh, False16);
}

TEST_F(MetricSolvers, RaiseTheFlagBeforeTheirMessageIsShown)
{
    SetAir(20.0F, 101325.0F);
    StatePoint.W = 0.1F;
    static Boolean16 flagDuringMessage;
    flagDuringMessage = False16;
    ShowCoreMessage = [](const std::string&) { flagDuringMessage = HumidityRatioTooHigh; };
    SolveFromW();
    EXPECT_EQ(flagDuringMessage, True16);
}

TEST_F(EnglishSolvers, AcceptARatioThatIsExactlySaturated)
{
    SetAir(70.0F, 14.696F);
    StatePoint.W = HumidityRatioFromVaporPressure(SaturationPressure(ToAbsolute(70.0F)), 14.696F);
    SolveFromW();
    EXPECT_EQ(StatePoint.RH.asDouble(), 1.0);
    EXPECT_EQ(HumidityRatioTooHigh, False16);
    EXPECT_EQ(StatePoint.Twb.asDouble(), 69.995);
}

TEST_F(EnglishSolvers, FailWithANegativeRatioWhereTheWetBulbIsFarBelow)
{
    Litter();
    SetAir(100.0F, 14.696F);
    StatePoint.Twb = 40.0F;
    EXPECT_EQ(ErrorOf(SolveFromWetBulb), InvalidArgument);
    EXPECT_LT(StatePoint.W.asDouble(), 0.0);
    EXPECT_LT(StatePoint.RH.asDouble(), 0.0);
    EXPECT_LT(StatePoint.Pw.asDouble(), 0.0);
    EXPECT_TRUE(IsStale(StatePoint.td));
    EXPECT_TRUE(shownMessages.empty());
}

TEST_F(EnglishSolvers, ADewPointBelowTheLimitIsDryAirAndNoFault)
{
    SetAir(70.0F, 14.696F);
    StatePoint.td = -150.0F;
    SolveFromDewPoint();
    EXPECT_EQ(StatePoint.PwsDew.asDouble(), 0.0);
    EXPECT_EQ(StatePoint.Pw.asDouble(), 0.0);
    EXPECT_EQ(StatePoint.W.asDouble(), 0.0);
    EXPECT_EQ(StatePoint.RH.asDouble(), 0.0);
    EXPECT_EQ(StatePoint.Twb.asSingle(), SolveWetBulb(70.0F, 0.0F, 14.696F));
}

TEST_F(EnglishSolvers, FaultWithoutPressureAndKeepWhatTheyReached)
{
    Litter();
    SetAir(70.0F, 0.0F);
    StatePoint.RH = 50.0F;
    EXPECT_EQ(ErrorOf(SolveFromRH), DivisionByZero);
    EXPECT_EQ(StatePoint.RH.asDouble(), 0.5);
    EXPECT_GT(StatePoint.Pw.asDouble(), 0.0);
    EXPECT_LT(StatePoint.W.asDouble(), 0.0);
    EXPECT_TRUE(IsStale(StatePoint.SpVol));
    EXPECT_TRUE(IsStale(StatePoint.Twb));
}

TEST_F(EnglishSolvers, FaultWhereTheDryBulbHasNoSaturationPressure)
{
    Litter();
    SetAir(500.0F, 14.696F);
    StatePoint.W = 0.01F;
    EXPECT_EQ(ErrorOf(SolveFromW), DivisionByZero); // W / Ws with a Ws of 0
    EXPECT_EQ(StatePoint.Ws.asDouble(), 0.0);
    EXPECT_TRUE(IsStale(StatePoint.Mu));
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
