// The air volumes of the mixed air calculator: asked for, shown, typed again, and offered elsewhere.

#include "tests/screens/MixedAirFixture.h"

using MixedAirScreen = MixedAirTest;

TEST_F(MixedAirScreen, ShowsNoVolumesForTheReturnAirUntilTheOutsideAirIsSaved)
{
    open();
    saveReturnAir();
    EXPECT_TRUE(user.isVisible("Frame4"));
    for (const char* hidden : {"lblcfm1", "lblcfm2", "lblcfm3", "txtcfm1", "txtcfm2", "txtCFM"})
        EXPECT_FALSE(user.isVisible(hidden)) << hidden;
    EXPECT_EQ(user.text("txtcfm2"), "3000");
    EXPECT_EQ(MixedReturnAir.AirVolume, 3000.0F);
    save("btnSaveOSA", "1000");
    EXPECT_TRUE(user.isVisible("txtcfm2"));
}

TEST_F(MixedAirScreen, SavesWithNoVolumeOnCancel)
{
    open();
    calculate("95", "txtRH", "40");
    cancelSave("btnSaveOSA");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Tdb, 95.0F);
    EXPECT_FALSE(user.isVisible("Frame4"));
    EXPECT_TRUE(user.isEnabled("btnMixedAir"));
    EXPECT_TRUE(user.menuEntry("mnuReview")->isVisible());
    EXPECT_FALSE(user.widget("txtcfm1")->isHidden()) << "shown, inside a frame that isn't";
}

TEST_F(MixedAirScreen, TakesATypedZeroForNoVolume)
{
    open();
    saveOutsideAir("0");
    EXPECT_FALSE(user.isVisible("Frame4"));
    EXPECT_EQ(user.text("txtcfm1"), "");
}

TEST_F(MixedAirScreen, IgnoresAVolumeTypedForTheReturnAir)
{
    open();
    saveBothStreams();
    user.type("txtcfm2", "9");
    EXPECT_EQ(MixedReturnAir.AirVolume, 3000.0F);
    user.click("btnMixedAir");
    EXPECT_EQ(MixedResultAir.AirVolume, 4000.0F);
}

TEST_F(MixedAirScreen, TakesAVolumeTypedForTheOutsideAirKeyByKey)
{
    open();
    saveOutsideAir();
    user.type("txtcfm1", "250");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 250.0F);
    EXPECT_EQ(AirVolume.text(), "250");
    user.type("txtcfm1", "");
    EXPECT_EQ(user.text("txtcfm1"), "");
    EXPECT_EQ(MixedOutsideAir.AirVolume, 250.0F) << "emptying keeps the old volume";
}

TEST_F(MixedAirScreen, LeavesNothingToBeTypedIntoTheTotal)
{
    open();
    saveBothStreams();
    user.widget("txtCFM")->setFocus();
    user.keys("12");
    EXPECT_EQ(user.text("txtCFM"), "");
}

TEST_F(MixedAirScreen, OffersTheFirstReturnVolumeAgain)
{
    open();
    saveReturnAir();
    std::string offered;
    user.inDialog("cfmForm", [&] {
        offered = user.text("txtCFMinput");
        user.click("btnOK");
    });
    user.click("btnRA");
    EXPECT_EQ(offered, "3000");
    EXPECT_EQ(AirVolumePreset, 3000.0);
}

TEST_F(MixedAirScreen, EndsTheProgramOnAVolumeThatIsNoNumber)
{
    open();
    calculate("95", "txtRH", "40");
    EXPECT_EXIT(save("btnSaveOSA", "abc"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '13':\nType mismatch");
    EXPECT_EXIT(save("btnRA", "abc"), testing::ExitedWithCode(1), "Run-time error '13'");
}

TEST_F(MixedAirScreen, EndsTheProgramAtTheKeyThatMakesTheOutsideVolumeNoNumber)
{
    open();
    saveOutsideAir();
    EXPECT_EXIT(user.type("txtcfm1", "-"), testing::ExitedWithCode(1), "Run-time error '13'");
}

TEST_F(MixedAirScreen, OffersTheReturnVolumeOnTheOtherScreensToo)
{
    open();
    saveReturnAir();
    save("btnRA", "3500");
    user.choose("mnuMain1");

    user.click("btnCooling");
    calculate("95", "txtRH", "40");
    answerVolume("btnSaveEA", "0");
    EXPECT_EQ(offeredVolume, "3000");
    EXPECT_EQ(CoolingEnteringAir.AirVolume, 0.0F);
    user.choose("mnuMain1");

    user.click("btnHeating");
    calculate("70", "txtRH", "50");
    answerVolume("btnSaveEnteringAir", "0");
    EXPECT_EQ(offeredVolume, "3000");
    EXPECT_EQ(user.text("txtAirVolume"), "0") << "a typed 0 is a volume like any other here";
    EXPECT_EQ(HeatingEnteringAir.AirVolume, 0.0F);
}
