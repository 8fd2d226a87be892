// The heating load calculator besides its panel (see PanelExpectations.h).

#include "tests/screens/HeatingFixture.h"

using namespace forms;

using HeatingScreen = HeatingTest;

TEST_F(HeatingScreen, OpensWithNoVolumeAndNoLoad)
{
    open();
    expectEmpty({"txtAirVolume", "txtHeatLoad", "lblAirVolume", "lblHeatLoad"});
    expectInside("Frame4", {"txtAirVolume", "lblAirVolume", "txtHeatLoad", "lblHeatLoad"});
}

TEST_F(HeatingScreen, LoadsTheAirVolumeDialogWithoutShowingIt)
{
    open();
    EXPECT_TRUE(isLoaded<cfmForm>());
    EXPECT_FALSE(User::findWindow("cfmForm")->isVisible());
}

TEST_F(HeatingScreen, ColoursWhatItShows)
{
    open();
    for (const char* field : {"txtAirVolume", "txtHeatLoad"})
        EXPECT_EQ(back(field), QColor(128, 255, 255)) << field;
    for (const char* field : {"txth", "txtSpVol"})
        EXPECT_EQ(back(field), QColor(255, 255, 128)) << field;
}

TEST_F(HeatingScreen, LeavesNothingToBeTypedIntoTheLoad)
{
    open();
    saveWorkedAir();
    inputLeaving("90");
    expectNothingCanBeTypedInto("txtHeatLoad");
}

TEST_F(HeatingScreen, GoesOnAfterARefusedHumidityRatioWithTheFieldsOfTheEarlierAir)
{
    open();
    calculate("70", "txtRH", "50");
    user.type("txtW", "0.05");
    user.click("btnCALCULATE");
    user.type("txtGrains", "500");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, (std::vector<Message>{
                                 refusedRatio, {"Humidity Ratio Input is too High, Try Again!", "Dunmoor"}}));
    expectButtons(false, true);
    EXPECT_EQ(user.text("txtRH"), "50.0");
    saveEntering("1000");
    EXPECT_EQ(HeatingEnteringAir.Grains, 500.0F) << "the refused state can be saved";
}

TEST_F(HeatingScreen, ComesBackBlankWithTheFormerRunStillInHand)
{
    openForWorkedFigures();
    saveWorkedAir();
    inputLeaving("90");
    const Single load = HeatingLoadSingle;
    user.choose("mnuMain1");
    user.click("btnHeating");
    expectEmpty({"txtTdb", "txtW", "txtAirVolume", "txtHeatLoad", "lblHeatLoad"});
    expectButtons(false, false);
    EXPECT_EQ(StatePoint.Tdb, 0.0F);
    EXPECT_EQ(HeatingLoadValue.kind(), NumberKind::Int16);
    EXPECT_EQ(HeatingLoadValue, 0.0);
    EXPECT_EQ(HeatingLoadSingle, load);
    EXPECT_EQ(HeatingEnteringAir.Tdb, 70.0F);
    EXPECT_EQ(HeatingLeavingAir.Tdb, 90.0F);
    EXPECT_NE(savedReport().find("21,649"), std::string::npos);
}

TEST_F(HeatingScreen, HeatsTheFormerEnteringAirAfterComingBackWithoutAWord)
{
    openForWorkedFigures();
    saveWorkedAir();
    user.choose("mnuExit");
    user.click("btnHeating");
    calculate("60", "txtRH", "30");
    inputLeaving("90");
    EXPECT_EQ(user.text("txtHeatLoad"), "21,649");
    EXPECT_EQ(user.text("txtW"), "0.008");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingScreen, SavesAReportFromTheFirstMomentOn)
{
    open();
    const std::string report = savedReport();
    EXPECT_NE(report.find("Heating Entering Air Properties"), std::string::npos) << report;
    EXPECT_NE(report.find("0.0%"), std::string::npos) << report;
}
