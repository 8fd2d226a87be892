// The air-state panel, tested on the air properties calculator.

#include "tests/screens/CalculatorFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QPalette>
#include <QTest>
#include <QWidget>

class AirPanelScreen : public CalculatorTest
{
protected:
    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click("btnAirCalc");
    }
};

TEST_F(AirPanelScreen, ReadsTheWholeStateOfSeventyDegreesAtFiftyPercent)
{
    open();
    calculate("70", "txtRH", "50");
    EXPECT_EQ(user.text("txtTwb"), "58.4");
    EXPECT_EQ(user.text("txttd"), "50.6");
    EXPECT_EQ(user.text("txtRH"), "50.0");
    EXPECT_EQ(user.text("txtW"), "0.00778");
    EXPECT_EQ(user.text("txtGrains"), "54.5");
    EXPECT_EQ(user.text("txth"), "25.30");
    EXPECT_EQ(user.text("txtSpVol"), "13.521");
    EXPECT_TRUE(user.isEnabled("btnCALCULATE"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(AirPanelScreen, ReadsTheWholeStateInMetric)
{
    open(true);
    EXPECT_EQ(user.text("txtP"), "101.352");
    calculate("20", "txtRH", "50");
    EXPECT_EQ(user.text("txtTwb"), "13.8");
    EXPECT_EQ(user.text("txttd"), "9.3");
    EXPECT_EQ(user.text("txtW"), "7.26");
    EXPECT_EQ(user.text("txtGrains"), "");
    EXPECT_EQ(StatePoint.P, 101352.0);
}

TEST_F(AirPanelScreen, ShowsEnglishUnits)
{
    open();
    for (const char* degrees : {"lblTdb2", "lblTwb2", "lblDewPt2"})
        EXPECT_EQ(user.text(degrees), " Deg. F");
    EXPECT_EQ(user.text("lblW2"), " lb. water/lb. dry air");
    EXPECT_EQ(user.text("lblGrains1"), " Humidity ratio, gr");
    EXPECT_EQ(user.text("lblGrains2"), " grains");
    EXPECT_TRUE(user.isEnabled("txtGrains"));
    EXPECT_EQ(back("txtGrains"), QColor(128, 255, 128));
    EXPECT_EQ(user.text("lblSpVol2"), " ft3/lb.");
    EXPECT_EQ(user.text("lblEnthalpy2"), " Btu/lb.");
    EXPECT_EQ(user.text("lblP2"), " psi");
    EXPECT_EQ(user.text("txtP"), "14.696");
    EXPECT_EQ(user.text("lblRH2"), " %");
    for (const char* label : {"lblTwb2", "lblRH2", "lblDewPt2", "lblW2", "lblGrains2"})
        expectNoWarning(label, user.text(label));
}

TEST_F(AirPanelScreen, ShowsMetricUnits)
{
    open(true);
    for (const char* degrees : {"lblTdb2", "lblTwb2", "lblDewPt2"})
        EXPECT_EQ(user.text(degrees), " Deg. C");
    EXPECT_EQ(user.text("lblW2"), " g moisture/kg dry air");
    EXPECT_EQ(user.text("lblGrains1"), "  ");
    EXPECT_EQ(user.text("lblGrains2"), "  ");
    EXPECT_FALSE(user.isEnabled("txtGrains"));
    EXPECT_EQ(back("txtGrains"), QColor(192, 192, 192));
    EXPECT_EQ(user.text("lblSpVol2"), " m3/kg dry air");
    EXPECT_EQ(user.text("lblEnthalpy2"), " kJ/kg");
    EXPECT_EQ(user.text("lblP2"), " kPa");
    EXPECT_EQ(user.text("lblRH2"), " %");
}

TEST_F(AirPanelScreen, TakesDryBulbsFromMinusFortyToOneHundredTwentyFive)
{
    open();
    for (const char* tdb : {"-40", "125"}) {
        calculate(tdb, "txtRH", "50");
        EXPECT_TRUE(user.messages.empty()) << tdb;
        EXPECT_NE(user.text("txth"), "") << tdb;
    }
}

TEST_F(AirPanelScreen, RefusesDryBulbsOutOfRangeAndTurnsTheButtonOff)
{
    open();
    for (const char* tdb : {"125.1", "-40.1"}) {
        user.messages.clear();
        calculate(tdb, "txtRH", "50");
        EXPECT_EQ(user.messages, std::vector{temperatureOutOfRange}) << tdb;
        EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
        user.type("txtTdb", "70");
        EXPECT_FALSE(user.isEnabled("btnCALCULATE")) << "a new dry bulb alone enables nothing";
        user.click("txtRH");
        EXPECT_TRUE(user.isEnabled("btnCALCULATE"));
    }
}

TEST_F(AirPanelScreen, RefusesMetricDryBulbsAboveFiftyWithTheOtherMessage)
{
    open(true);
    calculate("50", "txtRH", "50");
    EXPECT_TRUE(user.messages.empty());
    calculate("50.5", "txtRH", "50");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    calculate("125.5", "txtRH", "50");
    EXPECT_EQ(user.messages, (std::vector{outOfRange, temperatureOutOfRange}));
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    calculate("-40.1", "txtRH", "50");
    EXPECT_EQ(user.messages.back(), temperatureOutOfRange);
}

TEST_F(AirPanelScreen, KeepsTheOldDryBulbWhenTheNewOneIsNoNumber)
{
    open();
    calculate("70", "txtRH", "50");
    calculate("abc", "txtRH", "50");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    EXPECT_EQ(StatePoint.Tdb, 70.0F);
    EXPECT_EQ(user.text("txtTdb"), "abc");
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
}

TEST_F(AirPanelScreen, RefusesAnItemThatIsNoNumber)
{
    open();
    for (const char* field : {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains"}) {
        user.messages.clear();
        calculate("70", field, "abc");
        EXPECT_EQ(user.messages, std::vector{outOfRange}) << field;
        EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
        EXPECT_EQ(user.text(field), "abc");
    }
}

TEST_F(AirPanelScreen, TakesOneHundredPercentWithoutAWarning)
{
    open();
    calculate("70", "txtRH", "100");
    expectNoWarning("lblRH2", " %");
    EXPECT_EQ(user.text("txtRH"), "100.0");
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double); // saturated: just below the dry bulb
}

TEST_F(AirPanelScreen, FlagsARelativeHumidityAboveOneHundred)
{
    open();
    calculate("70", "txtRH", "100.1");
    expectWarning("lblRH2", " RH clipped at 100%");
    EXPECT_EQ(user.text("txtRH"), "100.0");
}

TEST_F(AirPanelScreen, FlagsARelativeHumidityOfZeroOrBelowOrBlank)
{
    open();
    for (const char* text : {"0", "-5", ""}) {
        calculate("70", "txtRH", text);
        expectWarning("lblRH2", " RH clipped at 0.1%");
        EXPECT_EQ(user.text("txtRH"), "0.1");
    }
}

TEST_F(AirPanelScreen, ClearsTheWarningAtTheNextCalculation)
{
    open();
    calculate("70", "txtRH", "100.1");
    expectWarning("lblRH2", " RH clipped at 100%");
    enter("70", "txtRH", "50");
    expectWarning("lblRH2", " RH clipped at 100%");
    user.click("btnCALCULATE");
    expectNoWarning("lblRH2", " %");
}

TEST_F(AirPanelScreen, FlagsAWetBulbAtOrAboveTheDryBulb)
{
    open();
    for (const char* twb : {"70", "80"}) {
        calculate("70", "txtTwb", twb);
        expectWarning("lblTwb2", " Twb clipped at Tdb");
        EXPECT_EQ(user.text("txtTwb"), "70.0");
        EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double);
        EXPECT_EQ(StatePoint.Twb, 70.0 - 0.01);
    }
}

TEST_F(AirPanelScreen, FlagsADewPointAtOrAboveTheDryBulb)
{
    open();
    calculate("70.35", "txttd", "70.35");
    expectWarning("lblDewPt2", " Dew Pt. clipped at Tdb");
    EXPECT_EQ(StatePoint.td.kind(), NumberKind::Double);
    EXPECT_EQ(StatePoint.td, static_cast<double>(70.35F) - 0.01);
}

TEST_F(AirPanelScreen, FlagsAHumidityRatioThatIsTooSmall)
{
    open();
    for (const char* w : {"0", "", "0.00001", "-1"}) { // the single 0.00001 is less than the double
        calculate("70", "txtW", w);
        expectWarning("lblW2", " W clipped at 0.00001");
        EXPECT_EQ(user.text("txtW"), "0.00001");
    }
    calculate("70", "txtW", "0.000011");
    expectNoWarning("lblW2", " lb. water/lb. dry air");
}

TEST_F(AirPanelScreen, ClipsTheMetricHumidityRatioAtAHundredthOfAGram)
{
    open(true);
    calculate("20", "txtW", "0.005");
    expectWarning("lblW2", " W clipped at 0.00001");
    EXPECT_EQ(user.text("txtW"), "0.01");
    calculate("20", "txtW", "0.011");
    expectNoWarning("lblW2", " g moisture/kg dry air");
}

TEST_F(AirPanelScreen, FlagsGrainsThatAreTooFew)
{
    open();
    for (const char* grains : {"0", "", "-3", "0.09"}) {
        calculate("70", "txtGrains", grains);
        expectWarning("lblGrains2", " grains clipped at 0.1");
        EXPECT_EQ(user.text("txtGrains"), "0.1");
    }
    calculate("70", "txtGrains", "0.1"); // the single is greater than the double
    expectNoWarning("lblGrains2", " grains");
}

TEST_F(AirPanelScreen, LeavesTheClippedTextAndTheWarningOnShowWhereTheSolverFails)
{
    store("Pressure_psi", "0"); // every solver divides by it after the clip
    open();
    struct Clip
    {
        const char* field;
        const char* typed;
        const char* shown;
        const char* label;
        const char* warning;
    };
    const Clip clips[] = {{"txtTwb", "71", "69.99", "lblTwb2", " Twb clipped at Tdb"},
                          {"txttd", "71", "69.99", "lblDewPt2", " Dew Pt. clipped at Tdb"},
                          {"txtRH", "101", "100", "lblRH2", " RH clipped at 100%"},
                          {"txtRH", "-1", "0.1", "lblRH2", " RH clipped at 0.1%"},
                          {"txtW", "-1", "0.00001", "lblW2", " W clipped at 0.00001"},
                          {"txtGrains", "-1", "0.1", "lblGrains2", " grains clipped at 0.1"}};
    for (const Clip& clip : clips) {
        user.messages.clear();
        calculate("70", clip.field, clip.typed);
        EXPECT_EQ(user.messages, std::vector{outOfRange}) << clip.warning;
        EXPECT_EQ(user.text(clip.field), clip.shown);
        expectWarning(clip.label, clip.warning);
        EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    }
}

TEST_F(AirPanelScreen, PutsTheKilogramFigureIntoTheFieldInMetric)
{
    store("Pressure_kPa", "0");
    open(true);
    calculate("20", "txtW", "0.005");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    EXPECT_EQ(user.text("txtW"), "0.00001");
}

TEST_F(AirPanelScreen, ShiftsTheLastDigitOnASecondPressWithNothingTyped)
{
    open();
    calculate("70", "txtRH", "50");
    const std::string first = user.text("txtW");
    user.click("btnCALCULATE"); // from the grains as displayed
    EXPECT_EQ(first, "0.00778");
    EXPECT_EQ(user.text("txtW"), "0.00779");
}

TEST_F(AirPanelScreen, TakesABlankDryBulbForZeroDegrees)
{
    open();
    user.click("txtRH");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(StatePoint.Tdb, 0.0F);
    EXPECT_NE(user.text("txth"), "");
}

TEST_F(AirPanelScreen, SaysSoAndKeepsTheFieldsWhenTheHumidityRatioIsTooHigh)
{
    open();
    calculate("70", "txtW", "0.05");
    EXPECT_EQ(user.messages, (std::vector<Message>{{"Humidity Ratio Input is High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(user.text("txtW"), "0.05");
    EXPECT_EQ(user.text("txtTwb"), "");
    EXPECT_EQ(user.text("txth"), "");
    EXPECT_TRUE(user.isEnabled("btnCALCULATE"));
    EXPECT_GT(StatePoint.RH, 1.0);
}

TEST_F(AirPanelScreen, SaysSoWhenTheGrainsAreTooMany)
{
    open();
    calculate("70", "txtGrains", "500");
    EXPECT_EQ(user.messages,
              (std::vector<Message>{{"Humidity Ratio Input is too High, Try Again!", "Dunmoor"}}));
    EXPECT_EQ(user.text("txtGrains"), "500");
    EXPECT_EQ(user.text("txth"), "");
}

TEST_F(AirPanelScreen, RefusesAWetBulbFarBelowTheDryBulb)
{
    open();
    calculate("70", "txtTwb", "20");
    EXPECT_EQ(user.messages, std::vector{outOfRange});
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    EXPECT_LT(StatePoint.W, 0.0); // set before the failure
    EXPECT_EQ(user.text("txtTwb"), "20");
}

TEST_F(AirPanelScreen, EmptiesTheOtherItemsOnAClick)
{
    open();
    const auto buttonIsOn = [this] { EXPECT_TRUE(user.isEnabled("btnCALCULATE")); };
    expectEachClickToEmptyTheOthers(buttonIsOn, buttonIsOn);
}

TEST_F(AirPanelScreen, SelectsAnItemByTypingWithoutAClick)
{
    open();
    for (const auto& [field, selector] : humidityItems) {
        user.type(field, "5");
        EXPECT_EQ(HumiditySelector, selector);
        EXPECT_TRUE(user.isEnabled("btnCALCULATE"));
    }
    EXPECT_EQ(user.text("txtTwb"), "5"); // moving there by keyboard clears nothing
}

TEST_F(AirPanelScreen, SelectsGrainsAndRelativeHumidityAlreadyWhenTheMouseGoesDown)
{
    open();
    user.type("txtTwb", "60");
    user.pressMouse("txtRH");
    EXPECT_EQ(HumiditySelector, "Rel");
    user.releaseMouse("txtRH");
    user.pressMouse("txtGrains");
    EXPECT_EQ(HumiditySelector, "Grains");
    user.releaseMouse("txtGrains");
    for (const char* field : {"txtTwb", "txttd", "txtW"}) {
        user.pressMouse(field);
        EXPECT_EQ(HumiditySelector, "Grains") << field;
        // The mouse is released elsewhere, so there is no click.
        QWidget* const widget = user.widget(field);
        QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
        EXPECT_EQ(HumiditySelector, "Grains") << field;
    }
}

TEST_F(AirPanelScreen, EmptiesTheTwoResultsOnAClickOnTheDryBulb)
{
    open();
    calculate("70", "txtRH", "50");
    user.click("txtTdb");
    EXPECT_EQ(user.text("txth"), "");
    EXPECT_EQ(user.text("txtSpVol"), "");
    EXPECT_EQ(user.text("txtTdb"), "70");
    EXPECT_EQ(user.text("txtRH"), "50.0");
    EXPECT_EQ(user.text("txtTwb"), "58.4");
}

TEST_F(AirPanelScreen, EnablesNothingOnAClickOnTheDryBulb)
{
    open();
    user.click("txtTdb");
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
}

TEST_F(AirPanelScreen, GoesFromTheDryBulbToTheWetBulbOnEnter)
{
    open();
    user.type("txtTdb", "70");
    user.key(Qt::Key_Return);
    EXPECT_EQ(user.focus(), "txtTwb");
    EXPECT_EQ(user.text("txtTdb"), "70");
}

TEST_F(AirPanelScreen, LeavesNothingToBeTypedIntoTheResults)
{
    open();
    calculate("70", "txtRH", "50");
    QApplication::clipboard()->setText("99");
    for (const char* field : {"txth", "txtSpVol"}) {
        const std::string before = user.text(field);
        user.widget(field)->setFocus();
        user.keys("123abc");
        user.key(Qt::Key_Backspace);
        user.key(Qt::Key_Delete);
        user.key(Qt::Key_V, Qt::ControlModifier);
        user.key(Qt::Key_A, Qt::ControlModifier);
        user.key(Qt::Key_X, Qt::ControlModifier);
        EXPECT_EQ(user.text(field), before);
        user.key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QApplication::clipboard()->text().toStdString(), before);
        QApplication::clipboard()->setText("99");
    }
}

TEST_F(AirPanelScreen, WorksFromTheGrainsOnASecondPress)
{
    open();
    calculate("70", "txtRH", "50");
    EXPECT_EQ(HumiditySelector, "Grains");
    user.type("txtTdb", "80");
    user.click("btnCALCULATE");
    EXPECT_EQ(StatePoint.W, 54.5 / 7000.0) << "the grains as displayed";
    EXPECT_EQ(user.text("txtGrains"), "54.5");
    EXPECT_NE(user.text("txtRH"), "50.0");
}

TEST_F(AirPanelScreen, WorksFromTheDewPointOnASecondPressInMetric)
{
    open(true);
    calculate("20", "txtRH", "50");
    EXPECT_EQ(HumiditySelector, "Dew Point");
    user.click("btnCALCULATE");
    EXPECT_EQ(StatePoint.td, static_cast<double>(9.3F)) << "the dew point as displayed";
}

TEST_F(AirPanelScreen, KeepsTheSelectorWhenNoTextChanges)
{
    open();
    calculate("70", "txtGrains", "54.5");
    user.click("btnCALCULATE");
    const std::string before = HumiditySelector;
    user.click("btnCALCULATE");
    EXPECT_EQ(HumiditySelector, before);
}

TEST_F(AirPanelScreen, EndsWithTheItemThatChangedLast)
{
    open();
    // The grains already have the text that will be written, so the dew point is the last to change.
    calculate("70", "txtGrains", "54.5");
    EXPECT_EQ(user.text("txtGrains"), "54.5");
    EXPECT_EQ(HumiditySelector, "Dew Point");
}

TEST_F(AirPanelScreen, CannotChooseGrainsInMetric)
{
    open(true);
    user.click("txtGrains");
    EXPECT_NE(HumiditySelector, "Grains");
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
}

TEST_F(AirPanelScreen, KeepsThePressureToTheOptions)
{
    store("Pressure_psi", "12.5");
    open();
    EXPECT_EQ(user.text("txtP"), "12.5");
    calculate("70", "txtRH", "50");
    EXPECT_EQ(StatePoint.P, 12.5);
}

TEST_F(AirPanelScreen, WaitsAtTheMessageBox)
{
    open();
    enter("130", "txtRH", "50");
    bool isBack = false;
    bool wasSeen = false;
    user.atMessage([&] {
        wasSeen = true;
        EXPECT_FALSE(isBack);
        EXPECT_NE(user.window(), "AirPropertiesCalc"); // the form accepts no input meanwhile
    });
    user.click("btnCALCULATE");
    isBack = true;
    EXPECT_TRUE(wasSeen);
}

TEST_F(AirPanelScreen, TellsEachFieldsNameAndUnitToAssistiveTechnology)
{
    open();
    const auto name = [this](const char* field) {
        return user.widget(field)->accessibleName().toStdString();
    };
    EXPECT_EQ(name("txtTdb"), "Dry bulb temperature, Deg. F");
    EXPECT_EQ(name("txtP"), "Barometric pressure 14.696, psi");
    EXPECT_EQ(name("txtTwb"), "Wet bulb temperature, Deg. F");
    EXPECT_EQ(name("txttd"), "Dew point temperature, Deg. F");
    EXPECT_EQ(name("txtRH"), "Relative humidity, %");
    EXPECT_EQ(name("txtW"), "Humidity ratio W, lb. water/lb. dry air");
    EXPECT_EQ(name("txtGrains"), "Humidity ratio in grains, grains");
    EXPECT_EQ(name("txth"), "Enthalpy, Btu/lb.");
    EXPECT_EQ(name("txtSpVol"), "Specific volume, ft3/lb.");
}

TEST_F(AirPanelScreen, WalksThroughTheEntriesByTab)
{
    open();
    user.widget("txtTdb")->setFocus();
    for (const char* next : {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains"}) {
        user.key(Qt::Key_Tab);
        EXPECT_EQ(user.focus(), next);
        EXPECT_EQ(HumiditySelector, "") << "moving there is no click";
    }
}

/// The calculators, by their buttons on the main menu. Only the air properties calculator changes the folder.
class CurrentFolder : public CalculatorTest, public testing::WithParamInterface<const char*>
{};

INSTANTIATE_TEST_SUITE_P(Of, CurrentFolder,
                         testing::Values("btnMixedAir", "btnCooling", "btnHeating", "btnHumidity"),
                         [](const auto& button) { return std::string(button.param).substr(3); });

TEST_P(CurrentFolder, IsLeftAsItIs)
{
    QDir::setCurrent("/");
    start();
    user.click(GetParam());
    EXPECT_NE(user.window(), "MainForm");
    EXPECT_EQ(QDir::currentPath(), "/");
}
