// The second humidification screen where an entry is blank or no number: its former results stay.

#include "tests/screens/HumidFixture.h"

using HumidityMoisture = HumidTest;

TEST_F(HumidityMoisture, ChangesNothingForABlankHumidity)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    const Single dewPoint = HumidDesiredAir.td;
    EXPECT_EQ(moistureFor({"70", "", "", "", "500"}), workedMoisture)
        << "air without vapour has no dew point";
    EXPECT_EQ(HumidDesiredAir.W, 0.0F) << "written before the failure";
    EXPECT_NEAR(HumidDesiredAir.h, 16.8, 1e-5);
    EXPECT_EQ(HumidDesiredAir.td, dewPoint);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HumidityMoisture, KeepsTheFormerResultsAndSaysNothingWhereAnEntryIsNoNumber)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    const Entries bad[] = {{"abc", "40", "", "", "900"},
                           {"70", "abc", "", "", "900"},
                           {"70", "40", "abc", "", "900"},
                           {"70", "40", "", "abc", "900"},
                           {"70", "40", "", "", "abc"}};
    for (const Entries& entries : bad)
        EXPECT_EQ(moistureFor(entries), workedMoisture);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(HumidDesiredAir.Tdb, 70.0F) << "the desired air is solved ahead of the quantities";
    EXPECT_EQ(HumidDesiredAir.RH, 0.4F);
}

TEST_F(HumidityMoisture, KeepsWhatItWroteBeforeTheFailure)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    const Single mu = HumidDesiredAir.Mu;
    const Single specificVolume = HumidDesiredAir.SpVol;
    EXPECT_EQ(moistureFor({"500", "40", "", "", "900"}), workedMoisture);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(HumidDesiredAir.Tdb, 500.0F);
    EXPECT_EQ(StatePoint.Tdb, 500.0F);
    EXPECT_EQ(StatePoint.Pws, 0.0);
    EXPECT_EQ(HumidDesiredAir.Ws, 0.0F);
    EXPECT_EQ(HumidDesiredAir.Mu, mu);
    EXPECT_EQ(HumidDesiredAir.SpVol, specificVolume);
}

TEST_F(HumidityMoisture, KeepsTheFormerResultsUntilItsButtonIsPressedAgain)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    calculate("40", "txtW", "0.003");
    inRequirement([this] {
        EXPECT_EQ(moisture(), workedMoisture);
        user.click("btnCalcHumid");
        EXPECT_NE(moisture(), workedMoisture);
        user.click("btnOK");
    });
}
