// Inputs above saturation, and those that no air can have.

#include "tests/core/Solvers.h"

TEST_F(EnglishSolvers, TakeTheShortcutFromARatioJustBelowSaturation)
{
    const Single vapor = VaporPressureFromRH(0.9995F, SaturationPressure(ToAbsolute(70.0F)));
    const Single ratio = HumidityRatioFromVaporPressure(vapor, 14.696F);
    const std::pair<std::function<void()>, const char*> solvers[] = {
        {[&] { StatePoint.W = ratio, SolveFromW(); }, "W"},
        {[&] { StatePoint.Grains = ratio * 7000.0, SolveFromGrains(); }, "Grains"}};
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
