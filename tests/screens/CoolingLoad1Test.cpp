#include "tests/screens/CoolingFixture.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

/// The calculator's appearance, its menus, and the differences of its panel from the air properties
/// calculator.
using CoolingScreen = CoolingTest;

TEST_F(CoolingScreen, OpensBlankWithAllButtonsOff)
{
    open();
    EXPECT_EQ(user.window(), "CoolingLoad1");
    EXPECT_EQ(user.title(), " Cooling of Moist Air - (English Units)");
    expectButtons(false, false, false, false);
    for (const char* field : {"txtTdb", "txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txtSpVol", "txth"})
        EXPECT_EQ(user.text(field), "") << field;
    EXPECT_EQ(user.text("Frame6"), "");
    QApplication::processEvents(); // the focus comes with the window's activation
    EXPECT_EQ(user.focus(), "txtTdb");
}

TEST_F(CoolingScreen, ShowsItsCaptions)
{
    open();
    const std::pair<const char*, const char*> captions[] = {
        {"Frame5", ""},
        {"btnCALCULATE", "Calculate Properties"},
        {"btnSaveEA", "Save Entering Air"},
        {"btnSetLA", "Set Leaving Air"},
        {"btnCalcLoad", "Calculate Load"},
        {"Frame2", "Enter Entering Air Dry Bulb Temperature:"},
        {"Label1", " Dry Bulb Temp"},
        {"Label3", "Pressure"},
        {"Frame1", "Enter One of These 5 Items, Click \"Calculate Properties\""},
        {"Label2", " Wet Bulb Temp"},
        {"Label16", " Dew Point Temp"},
        {"Label12", " Relative Humidity"},
        {"Label17", " Humidity Ratio, W"},
        {"lblGrains1", " Humidity Ratio, gr"},
        {"Frame3", ""},
        {"Label8", " Specific Volume, v"},
        {"Label24", " Enthalpy, h"},
        {"lblTdb2", " Deg. F"},
        {"lblTwb2", " Deg. F"},
        {"lblDewPt2", " Deg. F"},
        {"lblRH2", " %"},
        {"lblW2", " lb. water/lb. dry air"},
        {"lblGrains2", " grains"},
        {"lblSpVol2", " ft3/lb."},
        {"lblEnthalpy2", " Btu/lb."},
        {"lblP2", " psi"},
        {"txtP", "14.696"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.text(name), caption) << name;
}

TEST_F(CoolingScreen, ShowsItsMetricCaptions)
{
    open(true);
    EXPECT_EQ(user.title(), " Cooling of Moist Air - (Metric / SI Units)");
    EXPECT_EQ(user.text("lblW2"), " g water/kg dry air");
    EXPECT_EQ(user.text("lblTdb2"), " Deg. C");
    EXPECT_EQ(user.text("lblGrains1"), "  ");
    EXPECT_EQ(user.text("lblGrains2"), "  ");
    EXPECT_FALSE(user.isEnabled("txtGrains"));
    EXPECT_EQ(user.text("lblSpVol2"), " m3/kg dry air");
    EXPECT_EQ(user.text("lblEnthalpy2"), " kJ/kg");
    EXPECT_EQ(user.text("lblP2"), " kPa");
}

TEST_F(CoolingScreen, HoldsItsControlsInTheirFrames)
{
    open();
    const auto expectInside = [this](const char* frame, const Texts& controls) {
        for (const std::string& control : controls)
            EXPECT_TRUE(user.widget(frame)->isAncestorOf(user.widget(control))) << control;
    };
    expectInside("Frame5", {"btnCALCULATE", "btnSaveEA", "btnSetLA", "btnCalcLoad"});
    expectInside("Frame2", {"txtTdb", "txtP", "Label1", "Label3"});
    expectInside("Frame1", humidityFields);
    expectInside("Frame1", {"Label2", "Label16", "Label12", "Label17", "lblGrains1"});
    expectInside("Frame3", {"txtSpVol", "Label8", "txth", "Label24"});
    for (const char* bold : {"Frame6", "Frame2", "Frame1"})
        EXPECT_TRUE(user.widget(bold)->font().bold()) << bold;
    for (const char* plain : {"Frame5", "Frame3", "txtTdb", "txtTwb"})
        EXPECT_FALSE(user.widget(plain)->font().bold()) << plain;
}

TEST_F(CoolingScreen, LaysTheBannerAcrossTheTopAndTheButtonsRightOfThePanel)
{
    open();
    const QWidget* const window = User::findWindow("CoolingLoad1");
    const auto placeOf = [&](const char* name) {
        const QWidget* const control = user.widget(name);
        return QRect(control->mapTo(window, QPoint(0, 0)), control->size());
    };
    for (const char* below : {"Frame1", "Frame2", "Frame3", "Frame5"})
        EXPECT_GE(placeOf(below).top(), placeOf("Frame6").bottom()) << below;
    EXPECT_GE(placeOf("Frame6").right(), placeOf("Frame5").right());
    for (const char* left : {"Frame1", "Frame2", "Frame3"})
        EXPECT_LT(placeOf(left).right(), placeOf("Frame5").left()) << left;
    const char* const down[] = {"btnCALCULATE", "btnSaveEA", "btnSetLA", "btnCalcLoad"};
    for (int i = 1; i < 4; ++i)
        EXPECT_GT(placeOf(down[i]).top(), placeOf(down[i - 1]).bottom()) << down[i];
    const char* const rows[] = {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains"};
    for (int i = 1; i < 5; ++i)
        EXPECT_GT(placeOf(rows[i]).top(), placeOf(rows[i - 1]).bottom()) << rows[i];
}

TEST_F(CoolingScreen, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    const QWidget* const window = User::findWindow("CoolingLoad1");
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    EXPECT_EQ(window->size(), QSize(800, 660));
    EXPECT_EQ(window->pos(), QPoint((screen.width() - 800) / 2, (screen.height() - 660) / 4));
}

TEST_F(CoolingScreen, IsTabbedThroughFromTheDryBulbToTheLastButton)
{
    open();
    EXPECT_EQ(tabOrder(), (Texts{"txtTdb", "txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "btnCALCULATE",
                                 "btnSaveEA", "btnSetLA", "btnCalcLoad"}));
    for (const char* next : {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txtTdb"}) {
        user.key(Qt::Key_Tab);
        EXPECT_EQ(user.focus(), next);
    }
}

TEST_F(CoolingScreen, ShowsItsMenus)
{
    open();
    const std::pair<const char*, const char*> captions[] = {
        {"mnuFile", "&File"},
        {"mnuPrintDialog", "&Print Results"},
        {"mnuSave", "&Save Results to File"},
        {"mnuExit", "E&xit"},
        {"mnuMain1", "&Main Menu"},
        {"mnuHelp1", "&Help"},
        {"mnuHelpCooling", "Help for &Cooling Loads"},
        {"mnuHSearch", "&Search for Help On ..."},
        {"mnuAbout", "&About Dunmoor"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.menuEntry(name)->text().toStdString(), caption) << name;
    EXPECT_TRUE(user.menuEntry("mnusep2")->isSeparator());
    EXPECT_EQ(user.menuEntry("mnuHelpCooling")->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_TRUE(user.menuEntry("mnuPrintDialog")->isEnabled());
    EXPECT_TRUE(user.menuEntry("mnuSave")->isEnabled());
}

TEST_F(CoolingScreen, LeavesForTheMainMenuByEveryWay)
{
    start();
    expectToLeaveByEveryWay<CoolingLoad1>("btnCooling");
}

TEST_F(CoolingScreen, LeavesTheStateAsTheLastScreenLeftIt)
{
    start();
    user.click("btnAirCalc");
    calculate("70", "txtRH", "50");
    user.choose("mnuMain1");
    user.click("btnCooling");
    EXPECT_EQ(StatePoint.Tdb, 70.0F);
    EXPECT_EQ(StatePoint.RH, 0.5);
    EXPECT_EQ(user.text("txtTdb"), "");
    EXPECT_EQ(user.text("txtRH"), "");
}

TEST_F(CoolingScreen, TurnsCalculateOnByAnyHumidityField)
{
    const std::string items[] = {"Wetbulb", "Dew Point", "Rel", "W", "Grains"};
    start();
    for (std::size_t i = 0; i < humidityFields.size(); ++i) {
        user.click("btnCooling");
        user.type("txtTdb", "70");
        expectButtons(false, false, false, false);
        user.type(humidityFields[i], "5");
        expectButtons(true, false, false, false);
        EXPECT_EQ(HumiditySelector, items[i]);
        user.choose("mnuExit");

        user.click("btnCooling");
        HumiditySelector = "";
        user.click(humidityFields[i]);
        expectButtons(true, false, false, false);
        EXPECT_EQ(HumiditySelector, items[i]);
        user.choose("mnuExit");
    }
}

TEST_F(CoolingScreen, EndsACalculationAtSaveEnteringAir)
{
    open();
    calculate("80", "txtRH", "50");
    expectButtons(false, true, false, false);
    EXPECT_EQ(user.focus(), "btnSaveEA");
    EXPECT_EQ(user.text("txttd"), "59.8");
    EXPECT_EQ(user.text("txtW"), "0.01093");
    EXPECT_EQ(user.text("txtSpVol"), "13.845");
    EXPECT_EQ(user.text("txth"), "31.18");
    EXPECT_EQ(user.text("Frame6"), "");
}

TEST_F(CoolingScreen, TurnsTheLaterStepsOffByAClickOnAnyHumidityField)
{
    open();
    for (const std::string& field : humidityFields) {
        calculate("80", "txtRH", "50");
        expectButtons(false, true, false, false);
        user.click(field);
        expectButtons(true, false, false, false);
        for (const std::string& other : humidityFields)
            EXPECT_EQ(user.text(other).empty(), other != field) << field << ", " << other;
        EXPECT_EQ(user.text("txth"), "");
        EXPECT_EQ(user.text("txtSpVol"), "");
    }
}

TEST_F(CoolingScreen, LeavesTheLaterStepsAloneByTyping)
{
    open();
    calculate("80", "txtRH", "50");
    for (const std::string& field : humidityFields) {
        user.type(field, "5");
        expectButtons(true, true, false, false);
    }
    saveEntering();
    expectButtons(false, false, true, false);
    user.type("txtRH", "60");
    expectButtons(true, false, true, false);
}

TEST_F(CoolingScreen, EmptiesTheResultsByAClickOnTheDryBulb)
{
    open();
    calculate("80", "txtRH", "50");
    user.click("txtTdb");
    EXPECT_EQ(user.text("txtTdb"), "80");
    EXPECT_EQ(user.text("txth"), "");
    EXPECT_EQ(user.text("txtSpVol"), "");
    EXPECT_EQ(user.text("txtRH"), "50.0");
    expectButtons(false, true, false, false);
}

TEST_F(CoolingScreen, LetsNothingBeTypedIntoTheResults)
{
    open();
    calculate("80", "txtRH", "50");
    for (const char* result : {"txth", "txtSpVol"}) {
        const std::string before = user.text(result);
        user.click(result);
        user.keys("12");
        EXPECT_EQ(user.text(result), before);
    }
}

TEST_F(CoolingScreen, CalculatesByEnterWhileTheButtonIsOn)
{
    open();
    user.type("txtTdb", "80");
    user.type("txtRH", "50");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.text("txttd"), "59.8");
    expectButtons(false, true, false, false);

    user.widget("txtRH")->setFocus();
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtRH");
    expectButtons(false, true, false, false);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(CoolingScreen, HasNoShortcutsFromTheDryBulbOrByTheMouse)
{
    open();
    HumiditySelector = "";
    user.type("txtTdb", "95");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtTdb");
    for (const char* field : {"txtRH", "txtGrains"}) {
        user.pressMouse(field);
        EXPECT_EQ(HumiditySelector, "");
    }
}

TEST_F(CoolingScreen, RefusesDryBulbsOutOfRange)
{
    open();
    calculate("125.1", "txtRH", "10");
    EXPECT_EQ(user.messages, std::vector{temperatureOutOfRange});
    expectButtons(false, false, false, false);
    calculate("80", "txtRH", "x");
    EXPECT_EQ(user.messages, (std::vector{temperatureOutOfRange, outOfRange}));
    expectButtons(false, false, false, false);
}

TEST_F(CoolingScreen, TurnsTheStepsAfterSavingOffWhereACalculationFails)
{
    openWithEnteringAir();
    user.type("txtRH", "60");
    user.type("txtTdb", "126");
    expectButtons(true, false, true, false);
    user.click("btnCALCULATE");
    expectButtons(false, false, false, false);

    calculate("80", "txtRH", "50");
    user.type("txtRH", "x");
    user.click("btnCALCULATE");
    EXPECT_EQ(user.messages, (std::vector{temperatureOutOfRange, outOfRange}));
    expectButtons(false, true, false, false);
}

TEST_F(CoolingScreen, OffersToSaveARefusedHumidityWithTheOldResultsShowing)
{
    open();
    calculate("80", "txtRH", "50");
    const std::pair<const char*, const char*> refusals[] = {
        {"txtW", "Humidity Ratio Input is High, Try Again!"},
        {"txtGrains", "Humidity Ratio Input is too High, Try Again!"}};
    for (const auto& [field, words] : refusals) {
        user.type(field, "900");
        user.click("btnCALCULATE");
        EXPECT_EQ(user.messages.back(), (Message{words, "Dunmoor"}));
        expectButtons(false, true, false, false);
        EXPECT_EQ(user.focus(), "btnSaveEA");
        EXPECT_EQ(user.text(field), "900");
        EXPECT_EQ(user.text("txth"), "31.18");
        EXPECT_EQ(user.text("txtSpVol"), "13.845");
    }
    EXPECT_EQ(user.messages.size(), 2U);
}
