// The heating load calculator's own screen: its panel and buttons, and how it opens and closes.

#include "tests/screens/HeatingFixture.h"

using namespace forms;

using HeatingScreen = HeatingTest;

TEST_F(HeatingScreen, OpensBlankWithAllButtonsOff)
{
    open();
    EXPECT_EQ(user.window(), "HeatingLoad1");
    EXPECT_EQ(user.title(), " Heating Load Calculator - (English Units)");
    expectButtons(false, false);
    expectEmpty({"txtTdb", "txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txth", "txtSpVol",
                 "txtAirVolume", "txtHeatLoad", "lblAirVolume", "lblHeatLoad"});
    EXPECT_EQ(user.text("txtP"), "14.696");
}

TEST_F(HeatingScreen, LoadsTheAirVolumeDialogWithoutShowingIt)
{
    open();
    EXPECT_TRUE(isLoaded<cfmForm>());
    EXPECT_FALSE(User::findWindow("cfmForm")->isVisible());
}

TEST_F(HeatingScreen, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    EXPECT_EQ(User::findWindow("HeatingLoad1")->size(), QSize(800, 660));
    expectAQuarterDownInTheMiddle();
}

TEST_F(HeatingScreen, ShowsItsCaptions)
{
    open();
    expectCaptions({
        {"Frame1", "Enter One of These 5 Items, Click \"Calculate Properties\""},
        {"Frame2", "First Enter Dry Bulb Temperature and Pressure:"},
        {"Frame3", ""},
        {"Frame4", ""},
        {"Frame5", "Actions:"},
        {"Frame6", "Set Entering Air Conditions ... then click 'Entering Air'"},
        {"btnCALCULATE", "Calculate Properties"},
        {"btnSaveEnteringAir", "Save Entering Air"},
        {"btnInputLeavingAir", "Input Leaving Air"},
        {"lblTdb1", " Dry Bulb Temp"},
        {"lblP1", " Pressure"},
        {"lblEnthalpy1", "enthalpy, h"},
        {"lblSpVol1", "specific volume, v"},
        {"lblTdb2", " Deg. F"},
        {"lblP2", " psi"},
        {"lblW2", " lb. water/lb. dry air"},
    });
}

TEST_F(HeatingScreen, ShowsItsMetricCaptions)
{
    open(true);
    EXPECT_EQ(user.title(), " Heating Load Calculator - (Metric Units)");
    expectCaptions({{"lblTdb2", " Deg. C"},
                    {"lblP2", " kPa"},
                    {"lblW2", " g moisture/kg dry air"},
                    {"lblGrains1", "  "},
                    {"lblEnthalpy2", " kJ/kg"},
                    {"lblSpVol2", " m3/kg dry air"},
                    {"txtP", "101.352"}});
    EXPECT_FALSE(user.isEnabled("txtGrains"));
}

TEST_F(HeatingScreen, HoldsItsControlsInTheirFrames)
{
    open();
    expectInside("Frame2", {"txtTdb", "lblTdb1", "lblTdb2", "txtP", "lblP1", "lblP2"});
    expectInside("Frame1", {"txtGrains", "txtW", "txtTwb", "txtRH", "txttd", "lblGrains1", "lblW1", "lblTwb1",
                            "lblRH1", "lblDewPt1", "lblGrains2", "lblW2", "lblTwb2", "lblRH2", "lblDewPt2"});
    expectInside("Frame3", {"txth", "txtSpVol", "lblEnthalpy1", "lblSpVol1", "lblEnthalpy2", "lblSpVol2"});
    expectInside("Frame5", {"btnInputLeavingAir", "btnCALCULATE", "btnSaveEnteringAir"});
    expectInside("Frame4", {"txtAirVolume", "lblAirVolume", "txtHeatLoad", "lblHeatLoad"});
    EXPECT_TRUE(user.widget("Frame6")->findChildren<QWidget*>().isEmpty());
}

TEST_F(HeatingScreen, ShowsItsMenus)
{
    open();
    EXPECT_EQ(menu(), (Names{"mnuFile=&File", "mnuMain1=&Main Menu", "mnuHelp1=&Help"}));
    EXPECT_EQ(menu("mnuFile"),
              (Names{"mnuPrintDialog=&Print Results", "mnuSave=&Save Data to File", "-", "mnuExit=E&xit"}));
    EXPECT_TRUE(user.menuEntry("mnuFiledash2")->isSeparator());
    EXPECT_EQ(menu("mnuHelp1"), (Names{"mnuHelpHeat=Help for &Heating Loads",
                                       "mnuHSearch=&Search for Help On", "mnuAbout=&About Dunmoor"}));
}

TEST_F(HeatingScreen, ColoursWhatItShows)
{
    open();
    for (const char* field : {"txtAirVolume", "txtHeatLoad"})
        EXPECT_EQ(back(field), QColor(128, 255, 255)) << field;
    for (const char* field : {"txth", "txtSpVol"})
        EXPECT_EQ(back(field), QColor(255, 255, 128)) << field;
}

TEST_F(HeatingScreen, LeavesItsOutputsOutOfTheTabOrder)
{
    open();
    const Names stops = tabStopsFrom("txtTdb");
    EXPECT_EQ(std::ranges::count(stops, "txtRH"), 1);
    for (const char* output : {"txtAirVolume", "txtHeatLoad", "txth", "txtSpVol"})
        EXPECT_EQ(std::ranges::count(stops, output), 0) << output;
}

TEST_F(HeatingScreen, LeavesNothingToBeTypedIntoItsResults)
{
    open();
    saveWorkedAir();
    inputLeaving("90");
    for (const char* result : {"txtHeatLoad", "txth", "txtSpVol"})
        expectNothingCanBeTypedInto(result);
}

TEST_F(HeatingScreen, LeavesForTheMainMenuByEveryWay)
{
    start();
    expectToLeaveByEveryWay<HeatingLoad1>("btnHeating");
}

TEST_F(HeatingScreen, TurnsCalculateOnAtAnEditOfAnyItemAndLeavesTheOthers)
{
    open();
    expectEachEditToSelectItsItem([this] { expectButtons(false, true); },
                                  [this] { expectButtons(true, true); });
}

TEST_F(HeatingScreen, TurnsTheOtherButtonsOffAtAClickOnAnItem)
{
    open();
    expectEachClickToEmptyTheOthers([this] { expectButtons(false, true); },
                                    [this] { expectButtons(true, false); });
}

TEST_F(HeatingScreen, ThrowsTheDryBulbAwayAtAClickOnIt)
{
    open();
    calculate("70", "txtRH", "50");
    user.click("txtTdb");
    expectEmpty({"txtTdb", "txth", "txtSpVol"});
    EXPECT_EQ(user.text("txtRH"), "50.0");
    expectButtons(false, true);
}

TEST_F(HeatingScreen, HasNoShortcutsFromTheDryBulbOrByTheMouse)
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

TEST_F(HeatingScreen, ShowsTheEnteringStateAndOffersTheNextSteps)
{
    open();
    calculate("70", "txtRH", "50");
    expectCaptions({{"txtTwb", "58.4"},
                    {"txttd", "50.6"},
                    {"txtRH", "50.0"},
                    {"txtW", "0.00778"},
                    {"txtGrains", "54.5"},
                    {"txth", "25.30"},
                    {"txtSpVol", "13.521"}});
    expectButtons(false, true);
}

TEST_F(HeatingScreen, RefusesADryBulbOutOfRange)
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
}

TEST_F(HeatingScreen, RefusesTextThatIsNoNumber)
{
    open();
    calculate("70", "txtRH", "50");
    user.type("txtRH", "abc");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    expectButtons(false, true);
    EXPECT_EQ(user.text("txtRH"), "abc");
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

TEST_F(HeatingScreen, TurnsItsButtonsOffWhereItRefusesAMetricDryBulb)
{
    open(true);
    calculate("50.5", "txtRH", "50");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    expectButtons(false, false);
}
