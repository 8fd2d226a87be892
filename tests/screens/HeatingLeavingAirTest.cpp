// The leaving air of the heating load: what is saved, and what the calculator shows of it.

#include "tests/screens/HeatingFixture.h"

using HeatingLeavingDialog = HeatingTest;

TEST_F(HeatingLeavingDialog, ShowsTheLeavingTemperatureAndRatioBesideTheEnteringItems)
{
    open();
    saveWorkedAir();
    const char* const keptFields[] = {"txtTwb", "txtRH", "txttd", "txtGrains", "txth", "txtSpVol"};
    std::vector<std::string> kept;
    for (const char* field : keptFields)
        kept.push_back(user.text(field));
    inputLeaving("90");
    EXPECT_EQ(user.text("txtTdb"), "90");
    EXPECT_EQ(user.text("txtW"), "0.008");
    for (std::size_t i = 0; i < kept.size(); ++i)
        EXPECT_EQ(user.text(keptFields[i]), kept[i]) << keptFields[i];
    EXPECT_EQ(HumiditySelector, "W");
    expectButtons(true, true);
}

TEST_F(HeatingLeavingDialog, FreezesTheLeavingAirAtTheEnteringRatio)
{
    open();
    calculate("70", "txtRH", "50");
    saveEntering("1000");
    inputLeaving("90");
    const AirSnapshot& leaving = HeatingLeavingAir;
    EXPECT_EQ(leaving.Tdb, 90.0F);
    EXPECT_EQ(leaving.W, HeatingEnteringAir.W);
    EXPECT_EQ(leaving.P, HeatingEnteringAir.P);
    EXPECT_EQ(leaving.AirVolume, 1000.0F);
    EXPECT_LT(leaving.RH, HeatingEnteringAir.RH);
    EXPECT_GT(leaving.h, HeatingEnteringAir.h);
    EXPECT_EQ(leaving.h, StatePoint.h);
    EXPECT_EQ(leaving.Twb, StatePoint.Twb.asSingle());
}

TEST_F(HeatingLeavingDialog, IsFollowedByTheLeavingPropertiesAtAClickOnCalculate)
{
    open();
    saveWorkedAir();
    inputLeaving("90");
    user.click("btnCALCULATE");
    expectCaptions({{"txtTdb", "90"},
                    {"txtW", "0.00800"},
                    {"txtTwb", FormatNumber(HeatingLeavingAir.Twb, "#0.0")},
                    {"txtRH", FormatNumber(TaggedNumber(HeatingLeavingAir.RH) * 100, "#0.0")},
                    {"txth", "30.41"},
                    {"txtSpVol", FormatNumber(HeatingLeavingAir.SpVol, "#0.000")},
                    {"lblW2", " lb. water/lb. dry air"}});
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, IsFollowedByAClippedRatioAtAClickOnCalculateInMetric)
{
    open(true);
    saveWorkedAir();
    inputLeaving("35");
    EXPECT_EQ(user.text("txtW"), "0.008") << "kg/kg, which the click reads as g/kg";
    user.click("btnCALCULATE");
    expectWarning("lblW2", " W clipped at 0.00001");
}

TEST_F(HeatingLeavingDialog, IsFollowedByAThousandthOfALargeRatioInMetric)
{
    open(true);
    calculate("30", "txtW", "20");
    saveEntering("1700");
    inputLeaving("35");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.text("lblW2"), " g moisture/kg dry air") << "0.00002 kg/kg isn't clipped";
    EXPECT_EQ(user.text("txtW"), "0.02");
}

TEST_F(HeatingLeavingDialog, ReadsABlankAsZeroDegrees)
{
    open();
    calculate("40", "txtRH", "5");
    saveEntering("1000");
    inputLeaving("");
    EXPECT_EQ(user.text("txtTdb"), "0");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 0.0F);
    EXPECT_EQ(user.text("txtHeatLoad").front(), '-');
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, TakesTemperaturesOutsideThePanelsRange)
{
    open();
    saveWorkedAir();
    inputLeaving("200");
    EXPECT_EQ(HeatingLeavingAir.Tdb, 200.0F);
    EXPECT_NE(user.text("txtHeatLoad"), "");
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(HeatingLeavingDialog, GoesOnBelowTheDewPointAfterTheMessage)
{
    open();
    calculate("70", "txtRH", "50");
    saveEntering("1000");
    inputLeaving("40");
    EXPECT_EQ(user.messages, std::vector{refusedRatio});
    const AirSnapshot& entering = HeatingEnteringAir;
    const AirSnapshot& leaving = HeatingLeavingAir;
    EXPECT_EQ(leaving.Tdb, 40.0F);
    EXPECT_EQ(leaving.W, entering.W);
    EXPECT_GT(leaving.RH, 1.0F);
    EXPECT_EQ(leaving.SpVol, entering.SpVol) << "the previous state's";
    EXPECT_EQ(leaving.h, entering.h);
    EXPECT_EQ(leaving.td, entering.td);
    EXPECT_EQ(leaving.Twb, entering.Twb);
    EXPECT_EQ(leaving.Grains, entering.Grains);
    EXPECT_EQ(user.text("txtHeatLoad").front(), '-');
    EXPECT_EQ(user.text("txtTdb"), "40");
}
