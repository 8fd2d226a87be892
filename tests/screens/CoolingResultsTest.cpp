// The cooling loads that the steps end in.

#include "tests/screens/CoolingFixture.h"

using CoolingSteps = CoolingTest;

/// The total load of a wet coil, from the two saved states and the enthalpy of the condensate.
static double wetTotal(double condensateEnthalpy, double hoursFactor)
{
    const AirSnapshot& in = CoolingEnteringAir;
    const AirSnapshot& out = CoolingLeavingAir;
    const double moisture = static_cast<double>(in.W) - out.W;
    const double heat = static_cast<double>(in.h) - out.h - moisture * condensateEnthalpy;
    return hoursFactor * in.AirVolume / in.SpVol * heat;
}

TEST_F(CoolingSteps, EndInTheLoadsOfADryCoil)
{
    openWithEnteringAir();
    setLeaving("65");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,085.3", ".", "16,085.3"}));
    EXPECT_EQ(TotalLoad, SensibleLoad.asSingle());
    EXPECT_NE(LatentLoad.asDouble(), 0.0) << "what the rounding of the total left";
    EXPECT_LT(std::abs(LatentLoad.asDouble()), 0.001);
    EXPECT_EQ(user.window(), "CoolingLoad1");
    expectButtons(false, false, false, false);
    EXPECT_EQ(user.text("txtTdb"), "65");
}

TEST_F(CoolingSteps, EndInTheLoadsOfAWetCoil)
{
    openWithEnteringAir();
    setLeaving("55", "54");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "27,111.", "9,985.8", "37,096.8"}));
}

TEST_F(CoolingSteps, EndInKilowattsInMetric)
{
    openWithEnteringAir(true);
    setLeaving("20");
    EXPECT_EQ(readLoads(), (Texts{"3,600.0", "11.8", ".", "11.8"}));
    calculate("30", "txtRH", "50");
    saveEntering("3600");
    setLeaving("12", "11.5");
    EXPECT_EQ(readLoads(), (Texts{"3,600.0", "21.7", "13.6", "35.3"}));
}

TEST_F(CoolingSteps, TakeTheWetFormulaAboveTheDewPointWhereAWetBulbWasGiven)
{
    openWithEnteringAir();
    setLeaving("65", "60");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,098.3", "4,587.4", "20,685.7"}));
}

TEST_F(CoolingSteps, GoOnWithAWetBulbAboveTheDryBulb)
{
    openWithEnteringAir();
    setLeaving("60", "66");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_GT(CoolingLeavingAir.RH, 1.0F);
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "21,478.9", "-19,292.9", "2,185.9"}));
}

TEST_F(CoolingSteps, TakeTheCondensateBandThatDoesNotHoldTheWetBulb)
{
    openWithEnteringAir();
    setLeaving("33", "32.5");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "52,245.9", "31,107.3", "83,353.2"}));
    EXPECT_NEAR(TotalLoad, wetTotal(32.5 - 31.97, 60.0), 0.05);

    calculate("80", "txtRH", "50");
    saveEntering();
    setLeaving("34", "33.5");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "51,079.", "30,456.4", "81,535.4"}));
    EXPECT_NEAR(TotalLoad, wetTotal(33.5 - 31.98, 60.0), 0.05);
}

TEST_F(CoolingSteps, TakeTheOtherMetricCondensateBandJustAboveFreezing)
{
    open(true);
    calculate("30", "txtRH", "50");
    saveEntering("36000000"); // enough to distinguish the bands
    setLeaving("1", "0.5");
    readLoads();
    EXPECT_NEAR(TotalLoad, wetTotal(2.175, 1.0 / 3600.0), 0.2);
    EXPECT_GT(std::abs(TotalLoad - wetTotal(0.06 + 4.22 * 0.5, 1.0 / 3600.0)), 0.4);
}

TEST_F(CoolingSteps, ShowNoLoadsForNoVolume)
{
    open();
    calculate("80", "txtRH", "50");
    cancelVolume();
    EXPECT_EQ(CoolingEnteringAir.AirVolume, 0.0F);
    expectButtons(false, false, true, false);
    setLeaving("55", "54");
    EXPECT_EQ(readLoads(), (Texts{".0", ".", ".", "."}));
}

TEST_F(CoolingSteps, CompareWithTheDewPointRoundedToATenth)
{
    open();
    calculate("80", "txttd", "54.96");
    saveEntering();
    EXPECT_EQ(CoolingEnteringAir.td, 55.0F);
    setLeaving("54.9");
    expectButtons(false, false, true, false);
    setLeaving("55");
    expectButtons(false, false, false, true);
    EXPECT_EQ(LeavingWetBulbGiven, False16);
    EXPECT_EQ(readLoads()[2], ".");
}

TEST_F(CoolingSteps, GoOnWithTheOldResultsWhereTheLeavingAirIsRefused)
{
    open();
    calculate("80", "txttd", "55.04"); // saved as 55.0
    const std::string oldVolume = user.text("txtSpVol");
    saveEntering();
    setLeaving("55");
    EXPECT_EQ(user.messages, (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(user.text("txtTdb"), "55");
    EXPECT_EQ(user.text("txtSpVol"), oldVolume);
    expectButtons(false, false, false, true);

    const AirSnapshot& entering = CoolingEnteringAir;
    const AirSnapshot& leaving = CoolingLeavingAir;
    EXPECT_EQ(leaving.Tdb, 55.0F);
    EXPECT_GT(leaving.RH, 1.0F);
    EXPECT_GT(leaving.Mu, 1.0F);
    EXPECT_LT(leaving.Pws, entering.Pws);
    EXPECT_EQ(leaving.SpVol, entering.SpVol);
    EXPECT_EQ(leaving.h, entering.h);
    EXPECT_EQ(leaving.Grains, entering.Grains);
    EXPECT_EQ(leaving.Twb, entering.Twb);
    EXPECT_EQ(leaving.td, 55.04F);
    EXPECT_EQ(user.text("txtTwb"), FormatNumber(entering.Twb, "#0.0"));
}

TEST_F(CoolingSteps, EndTheProgramWhereNoAirWasEverSolved)
{
    open();
    calculate("70", "txtW", "0.05");
    saveEntering();
    setLeaving("50");
    EXPECT_EQ(user.messages.size(), 2U) << "both solves are refused, and neither stops the sequence";
    EXPECT_EXIT(user.click("btnCalcLoad"), testing::ExitedWithCode(1),
                "message: Dunmoor: Run-time error '11':\nDivision by zero");
}
