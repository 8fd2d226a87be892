// The humidification calculator's first screen: the outside air.

#include "tests/screens/HumidFixture.h"

using namespace forms;

using HumidificationScreen = HumidTest;

TEST_F(HumidificationScreen, OpensBlankWithItsButtonsOffAndTheSecondScreenLoaded)
{
    open();
    EXPECT_EQ(user.window(), "Humid1");
    EXPECT_EQ(user.title(), " Humidification Calculation - (English Units)");
    expectButtons(false, false);
    expectEmpty({"txtTdb", "txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txth", "txtSpVol"});
    EXPECT_EQ(user.text("txtP"), "14.696");
    EXPECT_TRUE(isLoaded<humid2>());
    EXPECT_FALSE(User::findWindow("humid2")->isVisible());
}

TEST_F(HumidificationScreen, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    EXPECT_EQ(User::findWindow("Humid1")->size(), QSize(800, 660));
    expectAQuarterDownInTheMiddle();
}

TEST_F(HumidificationScreen, ShowsItsCaptions)
{
    open();
    expectCaptions({
        {"Frame1", "Enter One of These 5 Items, Click \"Calculate Properties\""},
        {"Frame2", "Enter Outside Air Dry Bulb Temperature and Pressure:"},
        {"Frame3", ""},
        {"Frame5", "Actions :"},
        {"Frame6", "Calculate Outside Air Properties ... then click 'Humidity Desired'"},
        {"btnCALCULATE", "Calculate Properties"},
        {"btnHumidityDesired", "Humidity Desired "},
        {"lblTdb1", " Dry Bulb Temp"},
        {"lblP1", " Pressure"},
        {"lblEnthalpy1", "enthalpy, h"},
        {"lblSpVol1", "specific volume, v"},
        {"lblW2", " lb. water/lb. dry air"},
    });
}

TEST_F(HumidificationScreen, ShowsItsMetricCaptions)
{
    open(true);
    EXPECT_EQ(user.title(), " Humidification Calculation - (Metric Units)");
    expectCaptions({{"lblTdb2", " Deg. C"},
                    {"lblP2", " kPa"},
                    {"lblW2", " g moisture/kg dry air"},
                    {"lblGrains1", "  "},
                    {"txtP", "101.352"}});
    EXPECT_FALSE(user.isEnabled("txtGrains"));
}

TEST_F(HumidificationScreen, HoldsItsControlsInTheirFrames)
{
    open();
    expectInside("Frame2", {"txtTdb", "lblTdb1", "lblTdb2", "txtP", "lblP1", "lblP2"});
    expectInside("Frame1", {"txtGrains", "txtW", "txtTwb", "txtRH", "txttd", "lblGrains1", "lblW1", "lblTwb1",
                            "lblRH1", "lblDewPt1", "lblGrains2", "lblW2", "lblTwb2", "lblRH2", "lblDewPt2"});
    expectInside("Frame3", {"txth", "txtSpVol", "lblEnthalpy1", "lblSpVol1", "lblEnthalpy2", "lblSpVol2"});
    expectInside("Frame5", {"btnHumidityDesired", "btnCALCULATE"});
    EXPECT_TRUE(user.widget("Frame6")->findChildren<QWidget*>().isEmpty());
}

TEST_F(HumidificationScreen, ShowsItsMenus)
{
    open();
    EXPECT_EQ(menu(), (Names{"mnuFile=&File", "mnuMain1=&Main Menu", "mnuHelp1=&Help"}));
    EXPECT_EQ(menu("mnuFile"), (Names{"mnuPrintDialog=&Print Results", "mnuSave=&Save Results to File", "-",
                                      "mnuExit=E&xit"}));
    EXPECT_TRUE(user.menuEntry("mnuFiledash2")->isSeparator());
    EXPECT_EQ(menu("mnuHelp1"), (Names{"mnuHelpHumidity=Help for Humidity", "mnuHSearch=&Search for Help On",
                                       "mnuAbout=&About Dunmoor"}));
}

TEST_F(HumidificationScreen, LeavesWithItsSecondScreenByEveryWay)
{
    start();
    expectToLeaveByEveryWay<Humid1>("btnHumidity");
    EXPECT_FALSE(isLoaded<humid2>());
}

TEST_F(HumidificationScreen, TurnsCalculateOnAtAnEditOfAnyItemAndLeavesTheOther)
{
    open();
    expectEachEditToSelectItsItem([this] { expectButtons(false, true); },
                                  [this] { expectButtons(true, true); });
}

TEST_F(HumidificationScreen, TurnsHumidityDesiredOffAtAClickOnAnItem)
{
    open();
    expectEachClickToEmptyTheOthers([this] { expectButtons(false, true); },
                                    [this] { expectButtons(true, false); });
}

TEST_F(HumidificationScreen, KeepsTheDryBulbAtAClickOnIt)
{
    open();
    calculate("70", "txtRH", "50");
    user.click("txtTdb");
    EXPECT_EQ(user.text("txtTdb"), "70");
    EXPECT_EQ(user.text("txtRH"), "50.0");
    expectEmpty({"txth", "txtSpVol"});
    expectButtons(false, true);
}

TEST_F(HumidificationScreen, HasNoShortcutsFromTheDryBulbOrByTheMouse)
{
    open();
    user.type("txtTdb", "70");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtTdb");
    for (const char* item : {"txtRH", "txtGrains"}) {
        HumiditySelector.clear();
        user.pressMouse(item);
        EXPECT_EQ(HumiditySelector, "");
        user.releaseMouse(item);
        EXPECT_NE(HumiditySelector, "");
    }
}

TEST_F(HumidificationScreen, LeavesNothingToBeTypedIntoItsResults)
{
    open();
    calculate("70", "txtRH", "50");
    expectNothingCanBeTypedInto("txth");
    expectNothingCanBeTypedInto("txtSpVol");
}

TEST_F(HumidificationScreen, ShowsTheOutsideAirAndKeepsItAllButItsVolume)
{
    open();
    AirVolume = 1234.0F;
    calculate("70", "txtRH", "50");
    expectCaptions({{"txtTwb", "58.4"},
                    {"txttd", "50.6"},
                    {"txtRH", "50.0"},
                    {"txtW", "0.00778"},
                    {"txtGrains", "54.5"},
                    {"txth", "25.30"},
                    {"txtSpVol", "13.521"}});
    expectButtons(false, true);
    const AirSnapshot& air = HumidOutsideAir;
    EXPECT_EQ(air.AirVolume, 0.0F);
    EXPECT_EQ(air.Mu, StatePoint.Mu.asSingle());
    EXPECT_EQ(air.Grains, StatePoint.Grains.asSingle());
    EXPECT_EQ(air.RH, 0.5F);
    EXPECT_EQ(air.SpVol, StatePoint.SpVol.asSingle());
    EXPECT_EQ(air.h, StatePoint.h);
    EXPECT_EQ(air.Pws, StatePoint.Pws.asSingle());
    EXPECT_EQ(air.W, StatePoint.W.asSingle());
    EXPECT_EQ(air.Ws, StatePoint.Ws.asSingle());
    EXPECT_EQ(air.td, StatePoint.td.asSingle());
    EXPECT_EQ(air.Pw, StatePoint.Pw.asSingle());
    EXPECT_EQ(air.Twb, StatePoint.Twb.asSingle());
    EXPECT_EQ(air.Tdb, 70.0F);
    EXPECT_EQ(air.P, 14.696F);
}

TEST_F(HumidificationScreen, KeepsThePressureInPascalInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    EXPECT_EQ(HumidOutsideAir.P, 101352.0F);
    EXPECT_EQ(user.text("txtW"), "7.26");
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
