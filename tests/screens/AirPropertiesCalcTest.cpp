#include "screens/AirPropertiesCalc.h"

#include "platform/Desktop.h"
#include "tests/screens/CalculatorFixture.h"

#include <QAction>
#include <QDir>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QWidget>

class AirPropertiesScreen : public CalculatorTest
{
protected:
    void open()
    {
        start();
        user.click("btnAirCalc");
    }

    void openInMetric()
    {
        startInMetric();
        user.click("btnAirCalc");
    }
};

TEST_F(AirPropertiesScreen, OpensEmptyWithTheButtonOffUntilAHumidityFieldIsTouched)
{
    open();
    EXPECT_EQ(user.window(), "AirPropertiesCalc");
    for (const char* field : {"txtTdb", "txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txth", "txtSpVol"})
        EXPECT_EQ(user.text(field), "") << field;
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));

    user.type("txtTdb", "70");
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    user.click("txtRH");
    EXPECT_TRUE(user.isEnabled("btnCALCULATE"));
}

TEST_F(AirPropertiesScreen, TellsTheUnitSystemInItsCaptionFromTheStart)
{
    open();
    EXPECT_EQ(user.title(), " Air Properties Calculator - (English Units)");
}

TEST_F(AirPropertiesScreen, TellsMetricInItsCaptionFromTheStart)
{
    openInMetric();
    EXPECT_EQ(user.title(), " Air Properties Calculator - (Metric Units)");
}

TEST_F(AirPropertiesScreen, ShowsItsFramesAndCaptions)
{
    open();
    EXPECT_EQ(user.text("Frame5"), "Actions:");
    EXPECT_EQ(user.text("btnCALCULATE"), "Calculate Properties");
    EXPECT_EQ(user.text("Frame2"), "First Enter Dry Bulb Temperature and Pressure:");
    EXPECT_EQ(user.text("Frame1"), "Enter One of These 5 Items, Click \"Calculate Properties\"");
    EXPECT_EQ(user.text("Frame3"), "");
    EXPECT_EQ(user.text("Frame4"), "");
    EXPECT_EQ(user.text("lblEnthalpy1"), "enthalpy, h");
    EXPECT_EQ(user.text("lblSpVol1"), "specific volume, v");
    EXPECT_EQ(user.text("lblTdb1"), " Dry Bulb Temp");
    EXPECT_EQ(user.text("lblP1"), " Pressure");
    EXPECT_EQ(user.text("lblGrains1"), " Humidity ratio, gr");
    EXPECT_EQ(user.text("lblW1"), " Humidity ratio, W");
    EXPECT_EQ(user.text("lblTwb1"), " Wet Bulb Temp");
    EXPECT_EQ(user.text("lblRH1"), " Relative Humidity");
    EXPECT_EQ(user.text("lblDewPt1"), " Dew Point Temp");
}

TEST_F(AirPropertiesScreen, HoldsItsControlsInTheirFrames)
{
    open();
    const auto isInside = [this](const char* control, const char* frame) {
        return user.widget(frame)->isAncestorOf(user.widget(control));
    };
    EXPECT_TRUE(isInside("btnCALCULATE", "Frame5"));
    for (const char* control : {"txth", "txtSpVol", "lblEnthalpy1", "lblSpVol1", "lblEnthalpy2", "lblSpVol2"})
        EXPECT_TRUE(isInside(control, "Frame3")) << control;
    for (const char* control : {"txtTdb", "txtP", "lblTdb1", "lblP1", "lblTdb2", "lblP2"})
        EXPECT_TRUE(isInside(control, "Frame2")) << control;
    for (const char* control :
         {"txtGrains", "txtW", "txtTwb", "txtRH", "txttd", "lblGrains1", "lblW1", "lblTwb1", "lblRH1",
          "lblDewPt1", "lblGrains2", "lblW2", "lblTwb2", "lblRH2", "lblDewPt2"})
        EXPECT_TRUE(isInside(control, "Frame1")) << control;
    for (const char* frame : {"Frame1", "Frame2", "Frame3", "Frame5"})
        EXPECT_TRUE(isInside(frame, "Frame4")) << frame;
}

TEST_F(AirPropertiesScreen, ShowsItsMenus)
{
    open();
    const std::pair<const char*, const char*> captions[] = {
        {"mnuFile", "&File"},
        {"mnuPrintDialog", "&Print Results"},
        {"mnuSave", "&Save Results to File"},
        {"mnuExit", "E&xit"},
        {"mnuMain1", "&Main Menu"},
        {"mnuHelp1", "&Help"},
        {"mnuHelpAirPropCalc", "&Help for Air Properties Calc"},
        {"mnuHSearch", "&Search for Help On ..."},
        {"mnuAbout", "&About Dunmoor"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.menuEntry(name)->text().toStdString(), caption) << name;
    EXPECT_TRUE(user.menuEntry("mnusep2")->isSeparator());
}

TEST_F(AirPropertiesScreen, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    open();
    const QWidget* const window = User::findWindow("AirPropertiesCalc");
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    EXPECT_EQ(window->size(), QSize(800, 660));
    EXPECT_EQ(window->pos(), QPoint((screen.width() - 800) / 2, (screen.height() - 660) / 4));
}

TEST_F(AirPropertiesScreen, MakesTheProgramsFolderCurrent)
{
    QDir::setCurrent("/");
    open();
    EXPECT_EQ(QDir::currentPath().toStdString(), ApplicationFolder());
}

TEST_F(AirPropertiesScreen, LeavesForTheMainMenuByEveryWay)
{
    start();
    expectToLeaveByEveryWay<AirPropertiesCalc>("btnAirCalc");
}

TEST_F(AirPropertiesScreen, LeavesForTheMainMenuByTheMenusAccessKey)
{
    open();
    user.key(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(AirPropertiesScreen, ClearsTheStateEachTimeItOpens)
{
    open();
    user.type("txtTdb", "70");
    user.click("txtRH");
    user.type("txtRH", "50");
    user.click("btnCALCULATE");
    user.choose("mnuMain1");
    const double saturation = StatePoint.Pws.asDouble();
    EXPECT_EQ(StatePoint.Tdb, 70.0F);

    user.click("btnAirCalc");
    EXPECT_EQ(user.text("txtTdb"), "");
    EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    EXPECT_EQ(StatePoint.Tdb, 0.0F);
    EXPECT_EQ(StatePoint.Pws, saturation); // the pressures of the last calculation remain
}
