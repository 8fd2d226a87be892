// The humidification calculator's first screen besides its panel (see PanelExpectations.h): the outside air.

#include "tests/screens/HumidFixture.h"

using namespace forms;

using HumidificationScreen = HumidTest;

TEST_F(HumidificationScreen, OpensWithItsSecondScreenLoadedAndHidden)
{
    open();
    EXPECT_TRUE(isLoaded<humid2>());
    EXPECT_FALSE(User::findWindow("humid2")->isVisible());
}

TEST_F(HumidificationScreen, LeavesWithItsSecondScreenByEveryWay)
{
    start();
    const std::function<void()> ways[] = {[this] { user.choose("mnuExit"); },
                                          [this] { user.choose("mnuMain1"); },
                                          [this] { user.closeWindow(); }};
    for (const auto& leave : ways) {
        user.click("btnHumidity");
        EXPECT_TRUE(isLoaded<humid2>());
        leave();
        EXPECT_EQ(user.window(), "MainForm");
        EXPECT_FALSE(isLoaded<humid2>());
    }
}

TEST_F(HumidificationScreen, KeepsTheOutsideAirAllButItsVolume)
{
    open();
    AirVolume = 1234.0F;
    calculate("70", "txtRH", "50");
    const AirSnapshot& air = HumidOutsideAir;
    expectFullStateIn(air);
    EXPECT_EQ(air.AirVolume, 0.0F);
    EXPECT_EQ(air.RH, 0.5F);
    EXPECT_EQ(air.td, StatePoint.td.asSingle());
    EXPECT_EQ(air.Tdb, 70.0F);
    EXPECT_EQ(air.P, 14.696F);
}

TEST_F(HumidificationScreen, KeepsThePressureInPascalInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    EXPECT_EQ(HumidOutsideAir.P, 101352.0F);
}

TEST_F(HumidificationScreen, RefusesADryBulbOutOfRangeAndKeepsTheOutsideAir)
{
    open();
    calculate("-40", "txtRH", "50");
    calculate("125", "txtRH", "50");
    EXPECT_TRUE(user.messages.empty());
    user.type("txtTdb", "125.1");
    user.type("txtRH", "40");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, std::vector{temperatureOutOfRange});
    expectButtons(false, true);
    EXPECT_EQ(HumidOutsideAir.Tdb, 125.0F);
}

TEST_F(HumidificationScreen, KeepsTheOutsideAirWhereARunFails)
{
    open();
    calculate("70", "txtRH", "50");
    user.type("txtRH", "abc");
    user.click("btnCALCULATE");
    user.type("txtTwb",
              "-30"); // a negative vapor pressure, so the dew point fails within the solver
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, (std::vector{outOfRange, outOfRange}));
    expectButtons(false, true);
    EXPECT_LT(StatePoint.W, 0.0) << "the failed run got that far";
    EXPECT_EQ(HumidOutsideAir.RH, 0.5F);
    EXPECT_GT(HumidOutsideAir.W, 0.0F);
}

TEST_F(HumidificationScreen, KeepsTheFormerAirAndGoesOnAfterARefusedHumidityRatio)
{
    open();
    calculate("70", "txtRH", "50");
    const std::string w = user.text("txtW");
    const Single ratio = HumidOutsideAir.W;
    for (const auto& [field, tooHigh] : {std::pair{"txtW", "0.05"}, std::pair{"txtGrains", "500"}}) {
        user.type(field, tooHigh);
        user.click("btnCALCULATE");
        EXPECT_EQ(user.text(field), tooHigh);
        EXPECT_EQ(user.text("txtRH"), "50.0");
        EXPECT_EQ(HumidOutsideAir.W, ratio);
        expectButtons(false, true);
    }
    EXPECT_EQ(user.messages,
              (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"},
                                    {"Humidity Ratio Input is too High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(moistureFor({"70", "50", "", "", "500"}), (Names{"0.00", "0.00", "0.00", "0.00"}))
        << "the requirement comes of the former air";
}

TEST_F(HumidificationScreen, GoesOnFromZerosAfterARefusedHumidityRatioOnAFirstRun)
{
    open();
    calculate("70", "txtW", "0.05");
    expectButtons(false, true);
    EXPECT_EQ(HumidOutsideAir.P, 0.0F);
    EXPECT_EQ(moistureFor({"70", "50", "", "", "500"}), noMoisture) << "no pressure, no specific volume";
    EXPECT_EQ(HumidDesiredAir.Tdb, 70.0F);
    EXPECT_EQ(HumidDesiredAir.P, 0.0F);
    EXPECT_EQ(user.messages.size(), 1U);
}

TEST_F(HumidificationScreen, ComesBackBlankWithTheFormerAirStillInHand)
{
    open();
    calculateOutsideAir();
    moistureFor(workedEntries);
    user.choose("mnuMain1");
    user.click("btnHumidity");
    expectEmpty({"txtTdb", "txtW", "txtRH"});
    expectButtons(false, false);
    EXPECT_EQ(StatePoint.W, 0.0);
    EXPECT_EQ(HumidOutsideAir.W, 0.0015F);
    EXPECT_NEAR(HumidDesiredAir.W, 0.0082, 1e-6);
    EXPECT_NE(savedReport().find("0.0015"), std::string::npos);
}

TEST_F(HumidificationScreen, SavesAReportFromTheFirstMomentOn)
{
    open();
    const std::string report = savedReport();
    EXPECT_NE(report.find("Humidity Initial Air Properties"), std::string::npos) << report;
    EXPECT_NE(report.find("0.0%"), std::string::npos) << report;
    EXPECT_NE(report.find("cubic feet (ft3)"), std::string::npos) << report;
}

TEST_F(HumidificationScreen, MakesAFreshHiddenSecondScreenForAReport)
{
    open();
    calculateOutsideAir();
    inRequirement([this] {
        require(workedEntries);
        user.choose("mnuExit");
    });
    EXPECT_FALSE(isLoaded<humid2>());
    const std::string report = savedReport();
    EXPECT_EQ(report.find("43.14"), std::string::npos) << "no results of the closed screen: " << report;
    EXPECT_NE(report.find("gal. per day"), std::string::npos) << report;
    EXPECT_TRUE(isLoaded<humid2>());
    EXPECT_FALSE(form<humid2>().isVisible());
    EXPECT_EQ(user.window(), "Humid1");
}

TEST_F(HumidificationScreen, KeepsTheOutsideAirWhereItRefusesAMetricDryBulb)
{
    open(true);
    calculate("50", "txtRH", "50");
    calculate("50.5", "txtRH", "50");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    expectButtons(false, false);
    EXPECT_EQ(HumidOutsideAir.Tdb, 50.0F);
}
