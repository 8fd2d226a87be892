#include "tests/core/CoreTest.h"

#include <array>
#include <bit>

using Snapshot = EnglishCore;

TEST_F(Snapshot, FreezesEveryFieldAsASingle)
{
    MoistAirState state;
    Single next = 1.0F;
    for (TaggedNumber* field : {&state.Mu, &state.Grains, &state.RH, &state.SpVol})
        *field = next += 1.0F;
    state.h = next += 1.0F;
    for (TaggedNumber* field : {&state.PwsDew, &state.PwsWet, &state.Pws, &state.W})
        *field = next += 1.0F;
    state.ReservedSingle = next += 1.0F;
    state.Ws = next += 1.0F;
    state.WsWet = next += 1.0F;
    for (TaggedNumber* field : {&state.td, &state.Pw, &state.Twb})
        *field = next += 1.0F;
    state.Tdb = next += 1.0F;
    state.P = next + 1.0F;
    state.TAbs = 999.0F;

    const AirSnapshot snapshot = AirSnapshot::of(state, 1);

    // Eighteen singles in order, without the absolute temperature.
    static_assert(sizeof(AirSnapshot) == 18 * sizeof(Single));
    const auto values = std::bit_cast<std::array<Single, 18>>(snapshot);
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(values[i], static_cast<Single>(i + 1));
    EXPECT_EQ(snapshot.AirVolume, 1.0F);
    EXPECT_EQ(snapshot.td, 14.0F);
    EXPECT_EQ(snapshot.P, 18.0F);
}

TEST_F(Snapshot, RoundsADouble)
{
    StatePoint.Twb = 69.995;
    EXPECT_EQ(AirSnapshot::of(StatePoint, 0).Twb, 69.995F);
}

TEST_F(Snapshot, ReadsTheAirVolumeAsTyped)
{
    EXPECT_EQ(AirSnapshot::of(StatePoint, "1,500.5").AirVolume, 1500.5F);
    EXPECT_EQ(ErrorOf([] { AirSnapshot::of(StatePoint, "a lot"); }), TypeMismatch);
    EXPECT_EQ(ErrorOf([] { AirSnapshot::of(StatePoint, "1e39"); }), Overflow);
}

TEST_F(Snapshot, LeavesTheLastOneInPlaceWhenItFails)
{
    HeatingEnteringAir.Tdb = 55.0F;
    StatePoint.Tdb = 70.0F;
    EXPECT_EQ(ErrorOf([] { HeatingEnteringAir = AirSnapshot::of(StatePoint, "?"); }), TypeMismatch);
    EXPECT_EQ(HeatingEnteringAir.Tdb, 55.0F);
}

TEST_F(Snapshot, OutlivesANewCalculation)
{
    StatePoint.Tdb = 70.0F;
    MixedOutsideAir = AirSnapshot::of(StatePoint, 0);
    ClearStatePoint();
    EXPECT_EQ(MixedOutsideAir.Tdb, 70.0F);
}

TEST(SnapshotsOfTheProcess, StartAsZero)
{
    for (const AirSnapshot* snapshot : {&MixedReturnAir, &MixedResultAir, &CoolingEnteringAir,
                                        &CoolingLeavingAir, &HumidOutsideAir, &HumidDesiredAir}) {
        const auto values = std::bit_cast<std::array<Single, 18>>(*snapshot);
        for (const Single value : values)
            EXPECT_EQ(value, 0.0F);
    }
}
