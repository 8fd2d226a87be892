// A cooling load that is begun again, and the report of what is there by then.

#include "tests/screens/CoolingFixture.h"

using CoolingSteps = CoolingTest;

TEST_F(CoolingSteps, WorkOnTheSavedAirWhateverTheFieldsShow)
{
    openWithEnteringAir();
    setLeaving("65");
    user.type("txtTdb", "70");
    expectButtons(false, false, false, true);
    user.type("txtRH", "20");
    expectButtons(true, false, false, true);
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,085.3", ".", "16,085.3"}));
    expectButtons(true, false, false, false);
    EXPECT_EQ(user.text("txtTdb"), "70");
}

TEST_F(CoolingSteps, StartOverByAClickOnAHumidityField)
{
    openWithEnteringAir();
    setLeaving("65");
    user.click("txtRH");
    expectButtons(true, false, false, false);
    EXPECT_EQ(CoolingLeavingAir.Tdb, 65.0F);
    EXPECT_EQ(user.text("Frame6"), "Cooling Coil Leaving Air Conditions:");
    calculate("90", "txtRH", "40");
    EXPECT_EQ(user.text("Frame6"), "Cooling Coil Leaving Air Conditions:");
    expectButtons(false, true, false, false);
    saveEntering();
    expectCaptions({{"Frame6", "Verify Entering Air Conditions ... then click Set Leaving Air"},
                    {"Frame1", ""},
                    {"Frame2", ""}});
    expectButtons(false, false, true, false);
}

TEST_F(CoolingSteps, TurnTheLoadOffWhereACalculationBegins)
{
    openWithEnteringAir();
    setLeaving("65");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    expectButtons(false, true, false, false);
}

TEST_F(CoolingSteps, RepeatTheOldLeavingAirWhereItsDialogIsClosedByTheBox)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    calculate("90", "txtRH", "40");
    saveEntering("2000");
    inLeavingAir([this] { user.closeWindow(); });
    EXPECT_EQ(user.text("txtTdb"), "55");
    EXPECT_EQ(user.text("txtTwb"), "54.0");
    EXPECT_EQ(CoolingLeavingAir.AirVolume, 2000.0F);
    expectButtons(false, false, false, true);
}

TEST_F(CoolingSteps, ForgetThatALeavingAirWasAcceptedWhereTheScreenOpensAnew)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    user.choose("mnuExit");
    EXPECT_EQ(LeavingAirAccepted, True16);
    user.click("btnCooling");
    EXPECT_EQ(LeavingAirAccepted, False16);
    EXPECT_EQ(LeavingWetBulbGiven, True16);
    calculate("90", "txtRH", "40");
    saveEntering();
    inLeavingAir([this] { user.closeWindow(); });
    EXPECT_EQ(user.text("txtTdb"), "90");
    expectButtons(false, false, true, false);
}

TEST_F(CoolingSteps, StartBlankWhereTheScreenOpensAnewAndKeepWhatWasSaved)
{
    openWithEnteringAir();
    setLeaving("65");
    readLoads();
    user.choose("mnuMain1");
    user.click("btnCooling");
    expectButtons(false, false, false, false);
    for (const std::string& field : humidityFields)
        EXPECT_EQ(user.text(field), "");
    EXPECT_EQ(user.text("Frame6"), "");
    EXPECT_EQ(user.text("Frame2"), "Enter Entering Air Dry Bulb Temperature:");
    EXPECT_NE(user.text("Frame1"), "");
    EXPECT_EQ(StatePoint.Tdb, 65.0F);
    EXPECT_EQ(CoolingEnteringAir.Tdb, 80.0F);
    EXPECT_EQ(CoolingLeavingAir.Tdb, 65.0F);
    expectInReport({"16,085.3"});
}

TEST_F(CoolingSteps, CanBeSavedAsAReportBeforeAnythingWasCalculated)
{
    open();
    expectInReport({"Cooling Entering Air Properties", "Cooling Leaving Air Properties",
                    "Cooling Load Summary", "Total Cooling = "});
}

TEST_F(CoolingSteps, PairNewEnteringAirWithOldLoadsInAReportOfAnUnfinishedPass)
{
    openWithEnteringAir();
    setLeaving("65");
    readLoads();
    calculate("91", "txtRH", "40");
    saveEntering("2345");
    expectInReport({"91.0", "2,345.0", "65.0", "16,085.3"});
}
