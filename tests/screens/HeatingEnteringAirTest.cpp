// The entering air of the heating load calculator and its air volume.

#include "tests/screens/HeatingFixture.h"

using HeatingEnteringScreen = HeatingTest;

TEST_F(HeatingEnteringScreen, SavesTheEnteringAirWithItsVolume)
{
    open();
    calculate("70", "txtRH", "50");
    saveEntering("1,000");
    EXPECT_EQ(user.text("txtAirVolume"), "1,000");
    EXPECT_EQ(user.text("lblAirVolume"), " CFM air flow ");
    EXPECT_TRUE(user.isVisible("txtAirVolume"));
    expectButtons(false, true);
    const AirSnapshot& air = HeatingEnteringAir;
    expectFullStateIn(air);
    EXPECT_EQ(air.AirVolume, 1000.0F);
    EXPECT_EQ(air.Tdb, 70.0F);
    EXPECT_EQ(air.RH, 0.5F);
    EXPECT_EQ(air.P, 14.696F);
}

TEST_F(HeatingEnteringScreen, SavesTheEnteringAirInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    saveEntering("1700");
    EXPECT_EQ(user.text("lblAirVolume"), " cubic meter per hour ");
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 1700.0F);
    EXPECT_EQ(HeatingEnteringAir.P, 101352.0F);
}

TEST_F(HeatingEnteringScreen, SavesTheEnteringAirAgainWithAnotherVolume)
{
    open();
    saveWorkedAir();
    saveEntering("250");
    EXPECT_EQ(user.text("txtAirVolume"), "250");
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 250.0F);
    EXPECT_EQ(HeatingEnteringAir.W, 0.008F);
}

TEST_F(HeatingEnteringScreen, TakesNoVolumeForZeroOnCancel)
{
    open();
    calculate("70", "txtW", "0.008");
    cancelEntering();
    EXPECT_EQ(user.text("txtAirVolume"), "0");
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 0.0F);
    EXPECT_EQ(HeatingEnteringAir.Tdb, 70.0F);
    inputLeaving("90");
    EXPECT_EQ(user.text("txtHeatLoad"), "");
}

TEST_F(HeatingEnteringScreen, SavesWithThePreviousVolumeWhereTheDialogIsClosedByItsBox)
{
    open();
    saveWorkedAir();
    calculate("60", "txtRH", "50");
    user.inDialog("cfmForm", [this] {
        user.type("txtCFMinput", "7");
        user.closeWindow();
    });
    user.click("btnSaveEnteringAir");
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 1000.0F);
    EXPECT_EQ(HeatingEnteringAir.Tdb, 60.0F);
}

TEST_F(HeatingEnteringScreen, TakesAnEditedVolumeForTheLeavingAirButNotForTheLoad)
{
    openForWorkedFigures();
    saveWorkedAir();
    user.type("txtAirVolume", "2500");
    EXPECT_EQ(user.text("txtAirVolume"), "2500");
    EXPECT_EQ(AirVolume.kind(), NumberKind::Text);
    EXPECT_EQ(AirVolume.text(), "2500");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 2500.0F) << "the mixed air's record follows";
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 1000.0F);
    inputLeaving("90");
    EXPECT_EQ(user.text("txtHeatLoad"), "21,649");
    EXPECT_EQ(HeatingLeavingAir.AirVolume, 2500.0F);
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 1000.0F);
    EXPECT_NE(savedReport().find(" Air Flow Rate =            1,000"), std::string::npos);
}

TEST_F(HeatingEnteringScreen, KeepsTheVolumeWhereItsFieldIsEmptied)
{
    open();
    saveWorkedAir();
    user.type("txtAirVolume", "");
    EXPECT_EQ(user.text("txtAirVolume"), "");
    EXPECT_EQ(AirVolume.text(), "1000");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 1000.0F);
    inputLeaving("90");
    EXPECT_EQ(HeatingLeavingAir.AirVolume, 1000.0F);
}

TEST_F(HeatingEnteringScreen, EndsTheProgramOnAVolumeThatIsNoNumber)
{
    open();
    calculate("70", "txtRH", "50");
    EXPECT_EXIT(saveEntering("abc"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '13':\nType mismatch");
}

TEST_F(HeatingEnteringScreen, EndsTheProgramAtTheKeyThatMakesTheVolumeNoNumber)
{
    open();
    saveWorkedAir();
    EXPECT_EXIT(user.type("txtAirVolume", "x"), testing::ExitedWithCode(1), "Run-time error '13'");
}

TEST_F(HeatingEnteringScreen, KeepsTheVolumeAtAltWithALetterThatIsNoAccessKey)
{
    open();
    saveWorkedAir();
    user.widget("txtAirVolume")->setFocus(Qt::TabFocusReason);
    user.key(Qt::Key_Z, Qt::AltModifier);
    EXPECT_EQ(user.text("txtAirVolume"), "1000");
}
