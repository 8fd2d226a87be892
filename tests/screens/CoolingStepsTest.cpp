// The steps from the entering air to the leaving air of a cooling load.

#include "tests/screens/CoolingFixture.h"

using CoolingSteps = CoolingTest;

TEST_F(CoolingSteps, SaveTheEnteringAirWithItsVolume)
{
    open();
    calculate("80", "txtRH", "50");
    saveEntering("1,250.5");
    expectButtons(false, false, true, false);
    EXPECT_EQ(user.focus(), "btnSetLA");
    EXPECT_EQ(user.text("Frame6"), "Verify Entering Air Conditions ... then click Set Leaving Air");
    EXPECT_EQ(user.text("Frame2"), "Enter Entering Air Dry Bulb Temperature:");

    const AirSnapshot& saved = CoolingEnteringAir;
    expectFullStateIn(saved);
    EXPECT_EQ(saved.AirVolume, 1250.5F);
    EXPECT_EQ(saved.Tdb, 80.0F);
    EXPECT_EQ(saved.P, 14.696F);
    EXPECT_EQ(saved.RH, 0.5F);
    EXPECT_EQ(saved.td, 59.8F) << "rounded to a tenth";
    EXPECT_NE(StatePoint.td.asSingle(), 59.8F);
}

TEST_F(CoolingSteps, EndTheProgramOnAVolumeThatIsNoNumber)
{
    open();
    calculate("80", "txtRH", "50");
    EXPECT_EXIT(saveEntering("abc"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '13':\nType mismatch");
}

TEST_F(CoolingSteps, ShowTheLeavingAirOfADryCoil)
{
    openWithEnteringAir();
    setLeaving("65.25");
    EXPECT_EQ(user.text("txtTdb"), "65.25") << "no picture";
    expectCaptions({{"txtW", "0.01093"},
                    {"txttd", "59.8"},
                    {"txtP", "14.696"},
                    {"Frame6", "Cooling Coil Leaving Air Conditions:"},
                    {"Frame1", ""},
                    {"Frame2", ""}});
    expectButtons(false, false, false, true);
    EXPECT_EQ(user.focus(), "btnCalcLoad");
    EXPECT_EQ(HumiditySelector, "Grains") << "the last field that changed";

    EXPECT_EQ(LeavingAirAccepted, True16);
    EXPECT_EQ(LeavingWetBulbGiven, False16);
    EXPECT_EQ(CoolingLeavingAir.AirVolume, 1000.0F);
    EXPECT_EQ(CoolingLeavingAir.Tdb, 65.25F);
    EXPECT_EQ(CoolingLeavingAir.W, CoolingEnteringAir.W);
    EXPECT_EQ(CoolingLeavingAir.td, StatePoint.td.asSingle());
    EXPECT_NE(CoolingLeavingAir.td, 59.8F) << "not rounded";
    EXPECT_EQ(CoolingLeavingAir.h, StatePoint.h);
}

TEST_F(CoolingSteps, ShowTheLeavingAirOfAWetCoil)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    expectCaptions({{"txtTdb", "55"},
                    {"txtTwb", "54.0"},
                    {"txttd", "53.4"},
                    {"txtW", "0.00863"},
                    {"txtSpVol", "13.155"},
                    {"txth", "22.57"}});
    expectButtons(false, false, false, true);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    EXPECT_EQ(CoolingLeavingAir.Twb, 54.0F);
}

TEST_F(CoolingSteps, ChangeNothingWhereNoLeavingAirIsAccepted)
{
    openWithEnteringAir();
    inLeavingAir([this] { user.click("btnCancel"); });
    expectButtons(false, false, true, false);
    expectCaptions({{"txtTdb", "80"},
                    {"txtRH", "50.0"},
                    {"Frame6", "Verify Entering Air Conditions ... then click Set Leaving Air"}});
    setLeaving("80");
    expectButtons(false, false, true, false);
}

TEST_F(CoolingSteps, ShowThePressureInPaBesideKPaUntilTheNextCalculation)
{
    openWithEnteringAir(true);
    EXPECT_EQ(user.text("txtP"), "101.352");
    setLeaving("20");
    EXPECT_EQ(user.text("txtP"), "101352");
    EXPECT_EQ(user.text("lblP2"), " kPa");
    EXPECT_EQ(HumiditySelector, "Dew Point");
    EXPECT_EQ(user.text("txtGrains"), "");
    calculate("30", "txtRH", "50");
    EXPECT_EQ(user.text("txtP"), "101.352");
}
