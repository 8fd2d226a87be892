// Calculate Mixed Air: the mixture, and what keeps it from being calculated.

#include "tests/screens/MixedAirFixture.h"

using MixedAirMixing = MixedAirTest;

TEST_F(MixedAirMixing, SaysThatVolumesAreMissing)
{
    open();
    calculate("95", "txtRH", "40");
    cancelSave("btnSaveOSA");
    cancelSave("btnRA");
    user.click("btnMixedAir");
    EXPECT_EQ(
        user.messages,
        (std::vector<Message>{
            {"Air Volumes Must First Be Entered Before Attempting to calculate mixed air!", "Dunmoor"}}));
    EXPECT_EQ(user.window(), "MixedAir");
    EXPECT_FALSE(isLoaded<Answers1>());
}

TEST_F(MixedAirMixing, SaysNothingWhereOneStreamIsMissing)
{
    open();
    saveOutsideAir();
    user.click("btnMixedAir");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(user.window(), "MixedAir");
    EXPECT_EQ(user.text("txtTdb"), "95");
    EXPECT_EQ(MixedResultAir.AirVolume, 1000.0F) << "written before the fault";
    EXPECT_EQ(MixedResultAir.Tdb, 0.0F);
}

TEST_F(MixedAirMixing, MixesTheTwoStreams)
{
    mixBothStreams();
    EXPECT_EQ(user.window(), "Answers1");
    EXPECT_EQ(MixedResultAir.AirVolume, 4000.0F);
    // The denser return air weighs more, so the mixture lies nearer to it than the plain mean of 80.
    EXPECT_NEAR(MixedResultAir.Tdb, 79.8, 0.1);
    const double outsideMass = 1000.0 / MixedOutsideAir.SpVol;
    const double returnMass = 3000.0 / MixedReturnAir.SpVol;
    const double w =
        (MixedOutsideAir.W * outsideMass + MixedReturnAir.W * returnMass) / (outsideMass + returnMass);
    EXPECT_NEAR(MixedResultAir.W, w, 1e-8);
    EXPECT_EQ(MixedResultAir.h, StatePoint.h);
    EXPECT_EQ(StatePoint.W.kind(), NumberKind::Single);
    EXPECT_EQ(StatePoint.Grains.kind(), NumberKind::Double) << "worked out again by the solver";
}

TEST_F(MixedAirMixing, ShowsTheMixedDryBulbBesideTheLastItemsOnComingBack)
{
    open();
    saveBothStreams();
    const std::string rh = user.text("txtRH");
    user.click("btnMixedAir");
    user.click("btnOK");
    EXPECT_EQ(user.window(), "MixedAir");
    EXPECT_EQ(user.text("txtTdb"), PlainText(MixedResultAir.Tdb));
    EXPECT_EQ(user.text("txtCFM"), "4000");
    EXPECT_EQ(user.text("txtRH"), rh);
    expectButtons(true, true, true);
}

TEST_F(MixedAirMixing, MixesEqualAirToTheSameAirAndTwiceTheVolume)
{
    open();
    calculate("75", "txtRH", "50");
    save("btnSaveOSA", "1500");
    save("btnRA", "1500");
    user.click("btnMixedAir");
    EXPECT_EQ(MixedResultAir.AirVolume, 3000.0F);
    EXPECT_NEAR(MixedResultAir.Tdb, 75.0, 1e-4);
    EXPECT_NEAR(MixedResultAir.RH, 0.5, 1e-5);
    EXPECT_NEAR(MixedResultAir.W, MixedOutsideAir.W, 1e-8);
}

TEST_F(MixedAirMixing, MixesToTheReturnAirWhereTheOutsideAirHasNoVolume)
{
    mixReturnAirAlone();
    EXPECT_EQ(MixedResultAir.AirVolume, 3000.0F);
    EXPECT_NEAR(MixedResultAir.Tdb, 75.0, 1e-4);
}

TEST_F(MixedAirMixing, GoesOnWithAMixtureAboveSaturation)
{
    open();
    calculate("32.5", "txtRH", "100");
    save("btnSaveOSA", "1000");
    calculate("100", "txtRH", "99");
    save("btnRA", "1000");
    const Single staleVolume = StatePoint.SpVol.asSingle();
    user.click("btnMixedAir");
    EXPECT_EQ(user.messages, (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(user.window(), "Answers1");
    EXPECT_GT(MixedResultAir.RH, 1.0F);
    EXPECT_EQ(MixedResultAir.SpVol, staleVolume) << "left behind by the last state";
    EXPECT_EQ(user.text("lblRH(2)"), FormatNumber(TaggedNumber(MixedResultAir.RH) * 100, "##0.0"));
    EXPECT_EQ(user.text("lblTwb(2)"), user.text("lblTwb(1)"));
    EXPECT_EQ(user.text("lbltd(2)"), user.text("lbltd(1)"));
    EXPECT_EQ(user.text("lblSpVol(2)"), user.text("lblSpVol(1)"));
}

TEST_F(MixedAirMixing, LiesNearerToTheColderStreamAtEqualVolumes)
{
    open();
    saveOutsideAir();
    calculate("50", "txtRH", "50");
    save("btnRA", "1000");
    user.click("btnMixedAir");
    const AirSnapshot& warm = MixedOutsideAir;
    const AirSnapshot& cold = MixedReturnAir;
    const double warmMass = 1000.0 / warm.SpVol;
    const double coldMass = 1000.0 / cold.SpVol;
    EXPECT_LT(MixedResultAir.W, (warm.W + cold.W) / 2);
    EXPECT_LT(MixedResultAir.h, (warm.h + cold.h) / 2);
    EXPECT_NEAR(MixedResultAir.h, (warm.h * warmMass + cold.h * coldMass) / (warmMass + coldMass), 1e-4);
}
