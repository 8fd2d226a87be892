#include "tests/core/CoreTest.h"

using StateOfTheProcess = EnglishCore;

TEST_F(StateOfTheProcess, StartsAsZero)
{
    const MoistAirState start;
    for (const TaggedNumber* field :
         {&start.Mu, &start.Grains, &start.RH, &start.SpVol, &start.PwsDew, &start.PwsWet, &start.Pws,
          &start.W, &start.Ws, &start.td, &start.P, &start.Pw, &start.Twb}) {
        EXPECT_EQ(field->kind(), NumberKind::Int16);
        EXPECT_EQ(field->asDouble(), 0.0);
    }
    for (const Single field : {start.h, start.ReservedSingle, start.WsWet, start.TAbs, start.Tdb})
        EXPECT_EQ(field, 0.0F);
}

TEST_F(StateOfTheProcess, ClearsWhatAScreenEntersAndShows)
{
    StatePoint.Mu = StatePoint.Grains = StatePoint.RH = StatePoint.SpVol = StatePoint.W = StatePoint.td =
        StatePoint.Twb = TaggedNumber(1.5);
    StatePoint.h = StatePoint.TAbs = StatePoint.Tdb = SpareSingle = 1.5F;
    AirVolume = "1000";
    HeatingLoadValue = 1.5;

    ClearStatePoint();

    for (const TaggedNumber* field :
         {&StatePoint.Mu, &StatePoint.Grains, &StatePoint.RH, &StatePoint.SpVol, &StatePoint.W,
          &StatePoint.td, &StatePoint.Twb, &AirVolume, &HeatingLoadValue}) {
        EXPECT_EQ(field->kind(), NumberKind::Int16);
        EXPECT_EQ(field->asDouble(), 0.0);
    }
    for (const Single field : {StatePoint.h, StatePoint.TAbs, StatePoint.Tdb, SpareSingle})
        EXPECT_EQ(field, 0.0F);
}

TEST_F(StateOfTheProcess, KeepsThePressuresAndTheSettingsWhenItIsCleared)
{
    StatePoint.P = StatePoint.Pw = StatePoint.Pws = StatePoint.PwsDew = StatePoint.PwsWet = StatePoint.Ws =
        TaggedNumber(1.5);
    StatePoint.WsWet = StatePoint.ReservedSingle = BaroPressure = 1.5F;
    AirVolumePreset = 1.5F;
    UnitSystem = True16;
    HumiditySelector = "Rel";
    HumidityRatioTooHigh = GrainsTooHigh = True16;
    HeatingLeavingAir.h = 1.5F;

    ClearStatePoint();

    for (const TaggedNumber* field : {&StatePoint.P, &StatePoint.Pw, &StatePoint.Pws, &StatePoint.PwsDew,
                                      &StatePoint.PwsWet, &StatePoint.Ws, &AirVolumePreset})
        EXPECT_EQ(field->asDouble(), 1.5);
    for (const Single field :
         {StatePoint.WsWet, StatePoint.ReservedSingle, BaroPressure, HeatingLeavingAir.h})
        EXPECT_EQ(field, 1.5F);
    EXPECT_EQ(UnitSystem, True16);
    EXPECT_EQ(HumiditySelector, "Rel");
    EXPECT_EQ(HumidityRatioTooHigh, True16);
    EXPECT_EQ(GrainsTooHigh, True16);
}

TEST_F(StateOfTheProcess, KeepsTheSaturationOfTheLastCalculationWhenItIsCleared)
{
    StatePoint.Tdb = 70.0F;
    StatePoint.P = 14.696F;
    StatePoint.RH = 50.0F;
    SolveFromRH();
    const Single Ws = StatePoint.Ws.asSingle();
    const Single Pws = StatePoint.Pws.asSingle();
    ClearStatePoint();
    EXPECT_GT(Ws, 0.0F);
    EXPECT_EQ(StatePoint.Ws.asSingle(), Ws);
    EXPECT_EQ(StatePoint.Pws.asSingle(), Pws);
}

TEST_F(StateOfTheProcess, ReadsAnEmptyFieldAsZero)
{
    EXPECT_EQ(ParseSingle(""), 0.0F);
    EXPECT_EQ(ErrorOf([] { ParseSingle(" "); }), TypeMismatch);
}

TEST_F(StateOfTheProcess, ReadsAFieldAsTheNearestSingle)
{
    EXPECT_EQ(ParseSingle("70.35"), 70.35F);
    EXPECT_EQ(ParseSingle("-40"), -40.0F);
    EXPECT_EQ(ParseSingle("14.696"), 14.696F);
    EXPECT_EQ(ParseSingle("1,000"), 1000.0F);
    EXPECT_EQ(ParseSingle("16777217"), 16777216.0F);
    EXPECT_EQ(ParseSingle("1e-60"), 0.0F);
    numberLocale = {",", "."};
    EXPECT_EQ(ParseSingle("14,696"), 14.696F);
}

TEST_F(StateOfTheProcess, RefusesAFieldThatIsNoNumberForASingle)
{
    EXPECT_EQ(ErrorOf([] { ParseSingle("abc"); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { ParseSingle("1e39"); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseSingle("-3.5e38"); }), Overflow);
    EXPECT_EQ(ErrorOf([] { ParseSingle("1e400"); }), Overflow);
}
