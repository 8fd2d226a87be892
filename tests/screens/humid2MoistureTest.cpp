// The calculation of the second humidification screen: the desired air and the water to add.

#include "tests/screens/HumidFixture.h"

using HumidityMoisture = HumidTest;

TEST_F(HumidityMoisture, ShowsTheMoistureOfTheWorkedFigures)
{
    open();
    calculateOutsideAir();
    EXPECT_EQ(moistureFor(workedEntries), workedMoisture);
    EXPECT_NEAR(HumidDesiredAir.SpVol, 13.4, 1e-5);
    EXPECT_NEAR(HumidDesiredAir.W, 0.0082, 1e-7);
}

TEST_F(HumidityMoisture, ShowsTheMassInThreeDecimalsAndALiterForAKilogramInMetric)
{
    open(true);
    calculateOutsideAir();
    EXPECT_EQ(moistureFor({"21", "45", "", "", "3000"}), (Names{"17.616", "422.779", "17.62", "422.78"}));
}

TEST_F(HumidityMoisture, SolvesTheDesiredAirInFull)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    const AirSnapshot& air = HumidDesiredAir;
    EXPECT_EQ(air.Tdb, 64.927F);
    EXPECT_FLOAT_EQ(air.RH, 0.62705F);
    EXPECT_EQ(air.P, 14.696F);
    EXPECT_NEAR(air.Grains, 57.4, 1e-3);
    EXPECT_NEAR(air.Ws, 0.01318, 1e-5);
    EXPECT_NEAR(air.Mu, 0.62213, 1e-5);
    EXPECT_NEAR(air.h, 24.519, 1e-3);
    EXPECT_NEAR(air.td, 51.975, 1e-3);
    EXPECT_NEAR(air.Twb, 57.202, 1e-3);
    for (const Single unwritten :
         {air.AirVolume, air.PwsDew, air.PwsWet, air.Pws, air.ReservedSingle, air.WsWet, air.Pw})
        EXPECT_EQ(unwritten, 0.0F);
    EXPECT_EQ(StatePoint.Tdb, air.Tdb) << "the state keeps the desired air";
    EXPECT_EQ(StatePoint.W, air.W);
    EXPECT_EQ(StatePoint.Twb, air.Twb);
    EXPECT_EQ(StatePoint.Grains.kind(), NumberKind::Double);
}

TEST_F(HumidityMoisture, LeavesTheGrainsAloneInMetric)
{
    open(true);
    calculateOutsideAir();
    HumidDesiredAir.Grains = 12.0F;
    moistureFor({"21", "45", "", "", "3000"});
    EXPECT_EQ(HumidDesiredAir.Grains, 12.0F);
    EXPECT_EQ(HumidDesiredAir.P, 101352.0F);
    EXPECT_NEAR(HumidDesiredAir.td, 8.656, 1e-3);
}

TEST_F(HumidityMoisture, TakesThePressureOfTheSavedOutsideAir)
{
    open();
    calculateOutsideAir();
    BaroPressure = 12.0F;
    StatePoint.P = 12.0F;
    moistureFor(workedEntries);
    EXPECT_EQ(HumidDesiredAir.P, 14.696F);
    EXPECT_EQ(StatePoint.P, 14.696F);
}

TEST_F(HumidityMoisture, TreatsTheInfiltrationPerHourLikeCfm)
{
    open();
    calculateOutsideAir();
    const Names expected{"104.80", "2515.24", "12.56", "301.41"};
    EXPECT_EQ(moistureFor({"70", "40", "10000", "0.5", ""}), expected);
    EXPECT_EQ(moistureFor({"70", "40", "", "", "5000"}), expected);
    EXPECT_EQ(moistureFor({"70", "40", "10,000", "0.5", "0"}), expected) << "separators are read";
}

TEST_F(HumidityMoisture, TakesTheInfiltrationPerHourAsItIsInMetric)
{
    open(true);
    calculateOutsideAir();
    const Names expected{"8.808", "211.390", "8.81", "211.39"};
    EXPECT_EQ(moistureFor({"21", "45", "3000", "0.5", ""}), expected);
    EXPECT_EQ(moistureFor({"21", "45", "", "", "1500"}), expected);
}

TEST_F(HumidityMoisture, CountsTheLargerQuantityWhereBothAreEntered)
{
    open();
    calculateOutsideAir();
    const Names large = moistureFor({"70", "40", "", "", "1000"});
    EXPECT_EQ(moistureFor({"70", "40", "900", "1", "1000"}), large);
    EXPECT_EQ(moistureFor({"70", "40", "1000", "1", "900"}), large);
    EXPECT_EQ(moistureFor({"70", "40", "1000", "1", "1000"}), large) << "a tie";
    inRequirement([this] {
        EXPECT_EQ(user.text("txtVol"), "1000") << "nothing is cleared";
        EXPECT_EQ(user.text("txtOSA"), "1000");
        EXPECT_TRUE(user.isEnabled("txtVol"));
        EXPECT_TRUE(user.isEnabled("txtOSA"));
        user.click("btnOK");
    });
}

TEST_F(HumidityMoisture, ShowsZerosWithoutAnyQuantity)
{
    open();
    calculateOutsideAir();
    EXPECT_EQ(moistureFor({"70", "40", "", "", ""}), (Names{"0.00", "0.00", "0.00", "0.00"}));
    EXPECT_EQ(moistureFor({"70", "40", "10000", "", ""}), (Names{"0.00", "0.00", "0.00", "0.00"}));
}

TEST_F(HumidityMoisture, ShowsZerosWhereNoMoistureIsMissing)
{
    open();
    calculate("70", "txtRH", "50");
    EXPECT_EQ(moistureFor({"70", "50", "", "", "500"}), (Names{"0.00", "0.00", "0.00", "0.00"}));
}

TEST_F(HumidityMoisture, ShowsZerosWhereNoMoistureIsMissingInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    EXPECT_EQ(moistureFor({"20", "50", "", "", "500"}), (Names{"0.000", "0.000", "0.00", "0.00"}));
}

TEST_F(HumidityMoisture, ShowsANegativeRequirementForDrierAir)
{
    open();
    calculateOutsideAir();
    EXPECT_EQ(moistureFor({"", "40", "", "", "500"}), (Names{"-3.07", "-73.69", "-0.37", "-8.83"}))
        << "a blank temperature is 0 degrees";
    EXPECT_EQ(HumidDesiredAir.Tdb, 0.0F);
}

TEST_F(HumidityMoisture, TakesAHumidityAbove100Percent)
{
    open();
    calculateOutsideAir();
    EXPECT_EQ(moistureFor({"70", "110", "", "", "500"}), (Names{"34.72", "833.23", "4.16", "99.85"}));
    EXPECT_GT(HumidDesiredAir.W, HumidDesiredAir.Ws);
    EXPECT_GT(HumidDesiredAir.Mu, 1.0F);
}
