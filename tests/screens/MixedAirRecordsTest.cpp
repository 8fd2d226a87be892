// Which fields of their records the streams, their reviews and the mixture write.

#include "tests/screens/MixedAirFixture.h"

namespace {

struct Stream
{
    const char* saveButton;
    const char* otherButton;
    const char* review;
    AirSnapshot& record;
};

/// The mixed air calculator, in both unit modes.
class MixedAirRecords : public MixedAirTest, public testing::WithParamInterface<bool>
{
protected:
    bool isMetric() const { return GetParam(); }

    void changeThePressure(const std::string& pressure)
    {
        user.choose("mnuMain1");
        user.inDialog("Settings", [this, pressure] {
            user.type("txtBP", pressure);
            user.click("btnOK");
        });
        user.choose("mnuOptions");
        user.click("btnMixedAir");
    }

    /// Saves the stream at the standard pressure, then the other one at a lower pressure, at which the first
    /// is reviewed; its record before the review is returned.
    AirSnapshot reviewAtALowerPressure(const Stream& stream)
    {
        open(isMetric());
        calculateOutsideAir();
        save(stream.saveButton, "1000");
        changeThePressure(isMetric() ? "85" : "12.5");
        calculateReturnAir();
        save(stream.otherButton, "3000");
        const AirSnapshot saved = stream.record;
        user.choose(stream.review);
        return saved;
    }

    void expectReviewed(const Stream& stream)
    {
        const AirSnapshot saved = reviewAtALowerPressure(stream);
        const AirSnapshot& now = stream.record;
        EXPECT_EQ(now.P, isMetric() ? 85000.0F : 12.5F);
        EXPECT_EQ(now.RH, StatePoint.RH.asSingle());
        EXPECT_EQ(now.SpVol, StatePoint.SpVol.asSingle());
        EXPECT_EQ(now.h, StatePoint.h);
        EXPECT_EQ(now.td, StatePoint.td.asSingle());
        EXPECT_EQ(now.Twb, StatePoint.Twb.asSingle());
        EXPECT_EQ(now.Grains, isMetric() ? 0.0F : StatePoint.Grains.asSingle());
        // At a lower pressure the same humidity ratio is a lower relative humidity and a larger volume.
        EXPECT_LT(now.RH, saved.RH);
        EXPECT_GT(now.SpVol, saved.SpVol);
        EXPECT_LT(now.td, saved.td);
        EXPECT_LT(now.Twb, saved.Twb);
        EXPECT_EQ(now.Tdb, saved.Tdb);
        EXPECT_EQ(now.W, saved.W);
        EXPECT_EQ(now.AirVolume, saved.AirVolume);
    }

    static void expectUnwrittenFields(const AirSnapshot& record)
    {
        for (const Single unwritten : {record.Mu, record.PwsDew, record.PwsWet, record.Pws,
                                       record.ReservedSingle, record.Ws, record.WsWet, record.Pw})
            EXPECT_EQ(unwritten, 0.0F);
    }

    void expectWritten(const AirSnapshot& record, Single volume)
    {
        EXPECT_EQ(record.AirVolume, volume);
        expectStateIn(record);
        EXPECT_EQ(record.Grains, isMetric() ? 0.0F : StatePoint.Grains.asSingle());
        EXPECT_EQ(record.td, StatePoint.td.asSingle());
        expectUnwrittenFields(record);
    }
};

INSTANTIATE_TEST_SUITE_P(In, MixedAirRecords, testing::Bool(),
                         [](const auto& mode) { return mode.param ? "Metric" : "English"; });

TEST_P(MixedAirRecords, TakeSevenFieldsFromTheReviewOfTheOutsideAir)
{
    expectReviewed({"btnSaveOSA", "btnRA", "mnuReviewOutsideAir", MixedOutsideAir});
}

TEST_P(MixedAirRecords, TakeSevenFieldsFromTheReviewOfTheReturnAir)
{
    expectReviewed({"btnRA", "btnSaveOSA", "mnuReviewReturnAir", MixedReturnAir});
}

TEST_P(MixedAirRecords, HoldTenFieldsOfTheOutsideAir)
{
    open(isMetric());
    calculateOutsideAir();
    save("btnSaveOSA", "1000");
    expectWritten(MixedOutsideAir, 1000.0F);
}

TEST_P(MixedAirRecords, HoldTenFieldsOfTheReturnAir)
{
    open(isMetric());
    calculateReturnAir();
    save("btnRA", "3000");
    expectWritten(MixedReturnAir, 3000.0F);
}

TEST_P(MixedAirRecords, HoldTenFieldsOfTheMixture)
{
    open(isMetric());
    calculateOutsideAir();
    save("btnSaveOSA", "1000");
    calculateReturnAir();
    save("btnRA", "3000");
    user.click("btnMixedAir");
    expectWritten(MixedResultAir, 4000.0F);
}

} // namespace
