// The mixed air calculator besides its panel (see PanelExpectations.h): its streams and their records.

#include "tests/screens/MixedAirFixture.h"

#include <QMenu>

using namespace forms;

using MixedAirScreen = MixedAirTest;

TEST_F(MixedAirScreen, OpensWithNoVolumes)
{
    open();
    for (const char* hidden : {"Frame4", "lblcfm1", "lblcfm2", "lblcfm3", "txtcfm1", "txtcfm2", "txtCFM"})
        EXPECT_FALSE(user.isVisible(hidden)) << hidden;
    expectCaptions({{"lblcfm1", " Cfm Outside Air"},
                    {"lblcfm2", " Cfm Return Air"},
                    {"lblcfm3", " CFM Total Mixed Air"}});
    EXPECT_TRUE(isLoaded<cfmForm>()) << "loaded with the calculator, without being shown";
    EXPECT_EQ(User::findWindow("cfmForm")->isVisible(), false);
}

TEST_F(MixedAirScreen, NamesMetricVolumes)
{
    open(true);
    expectCaptions({{"lblcfm1", " m3/h Outside Air"},
                    {"lblcfm2", " m3/h Return Air"},
                    {"lblcfm3", " m3/h Total Mixed Air"}});
}

TEST_F(MixedAirScreen, HidesItsReviewMenu)
{
    open();
    EXPECT_EQ(menu("mnuReview"), (Names{"mnuReviewOutsideAir=&Outside Air", "mnuReviewReturnAir=&Return Air",
                                        "mnuReviewMixedAir=&Mixed Air"}));
    EXPECT_FALSE(user.menuEntry("mnuReview")->isVisible());
    EXPECT_FALSE(user.menuEntry("mnuReview")->isEnabled());
    EXPECT_FALSE(user.menuEntry("mnuReview")->menu()->isEnabled());
    EXPECT_FALSE(user.menuEntry("mnuReviewMixedAir")->isEnabled());
}

TEST_F(MixedAirScreen, TurnsItsButtonsOnAndOffAsTheStreamsComeAndGo)
{
    open();
    user.type("txtTdb", "95");
    expectButtons(false, false, false);
    user.click("txtRH");
    expectButtons(true, false, false);
    user.type("txtRH", "40");
    user.click("btnCALCULATE");
    expectButtons(true, true, false);
    save("btnSaveOSA", "1000");
    expectButtons(true, true, true);
    user.click("txtW");
    expectButtons(true, false, false);
    user.type("txtW", "0.01");
    user.click("btnCALCULATE");
    expectButtons(true, true, false);
    save("btnRA", "1000");
    expectButtons(true, true, true);
}

TEST_F(MixedAirScreen, ThrowsAwayTypedGrainsForTheLastOnes)
{
    open();
    calculate("95", "txtGrains", "60");
    EXPECT_EQ(user.text("lblGrains2"), " grains clipped at 0.1") << "on a fresh screen the last ones are 0";
    EXPECT_EQ(user.text("txtGrains"), "0.1");
    calculate("95", "txtRH", "40");
    const std::string grains = user.text("txtGrains");
    user.click("txtGrains");
    user.type("txtGrains", "20");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.text("txtGrains"), grains);
}

TEST_F(MixedAirScreen, SavesTheOutsideAirWithItsVolumeAndShowsTheVolumes)
{
    open();
    saveOutsideAir();
    EXPECT_TRUE(user.isVisible("Frame4"));
    for (const char* shown : {"lblcfm1", "lblcfm2", "lblcfm3", "txtcfm1", "txtcfm2", "txtCFM"})
        EXPECT_TRUE(user.isVisible(shown)) << shown;
    EXPECT_EQ(user.text("txtcfm1"), "1000");
    EXPECT_EQ(user.text("txtcfm2"), "");
    EXPECT_TRUE(user.menuEntry("mnuReview")->isVisible());
    EXPECT_TRUE(user.menuEntry("mnuReview")->isEnabled());
    EXPECT_TRUE(user.menuEntry("mnuReview")->menu()->isEnabled());

    EXPECT_EQ(MixedOutsideAir.AirVolume, 1000.0F);
    EXPECT_EQ(MixedOutsideAir.Tdb, 95.0F);
    EXPECT_EQ(MixedOutsideAir.RH, StatePoint.RH.asSingle());
    EXPECT_EQ(MixedOutsideAir.Grains, StatePoint.Grains.asSingle());
    EXPECT_EQ(MixedOutsideAir.h, StatePoint.h);
    EXPECT_EQ(MixedOutsideAir.P, 14.696F);
    // The fields that this calculator doesn't write stay 0.
    EXPECT_EQ(MixedOutsideAir.Mu, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Pws, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Pw, 0.0F);
    EXPECT_EQ(MixedOutsideAir.Ws, 0.0F);
}

TEST_F(MixedAirScreen, LeavesTheGrainsOfAStreamAloneInMetric)
{
    open(true);
    MixedOutsideAir.Grains = 77.0F;
    calculate("35", "txtRH", "40");
    save("btnSaveOSA", "1000");
    EXPECT_EQ(MixedOutsideAir.Grains, 77.0F);
    EXPECT_EQ(user.text("lblcfm1"), " m3/h Outside Air");
}

TEST_F(MixedAirScreen, KeepsItsStreamsWhenItIsLeft)
{
    open();
    saveBothStreams();
    user.choose("mnuExit");
    EXPECT_EQ(user.window(), "MainForm");
    EXPECT_FALSE(isLoaded<MixedAir>());
    EXPECT_EQ(MixedOutsideAir.AirVolume, 1000.0F);
    user.click("btnMixedAir");
    EXPECT_EQ(user.text("txtTdb"), "");
    EXPECT_FALSE(user.menuEntry("mnuReview")->isVisible());
}

TEST_F(MixedAirScreen, KeepsItsSizeWhenTheVolumesAppear)
{
    open();
    saveOutsideAir();
    EXPECT_EQ(User::findWindow("MixedAir")->size(), QSize(800, 660)) << "the volumes have their room";
}
