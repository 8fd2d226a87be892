// The main menu, and the ways to end the program.

#include "shell/MainForm.h"

#include "platform/Desktop.h"
#include "screens/AirPropertiesCalc.h"
#include "tests/support/ProgramTest.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

using namespace forms;

using MainMenu = ProgramTest;

TEST_F(MainMenu, ShowsItsButtonsAndWhatTheyDo)
{
    start();
    struct Shown
    {
        const char* button;
        const char* caption;
        const char* tip;
    };
    const Shown buttons[] = {
        {"btnAirCalc", "&Air Properties", "Psychrometric Calculation"},
        {"btnMixedAir", "&Mixed Air", "Calculate Properties of a Mixture of 2 Air Volumes"},
        {"btnCooling", "&Cooling Load", "Calculate Cooling Coil Loads"},
        {"btnHeating", "&Heating Load ", "Calculate Heating Coil Loads"},
        {"btnHumidity", "H&umidification", "Calculate Humidification Requirements"},
    };
    for (const Shown& shown : buttons) {
        EXPECT_EQ(user.text(shown.button), shown.caption);
        EXPECT_EQ(user.widget(shown.button)->toolTip().toStdString(), shown.tip);
    }
    EXPECT_EQ(user.text("lblProductName"), "Dunmoor");
    EXPECT_EQ(user.text("lblProduct"), "Psychrometric Calculator");
    EXPECT_TRUE(user.isVisible("Image1"));
}

TEST_F(MainMenu, OpensEachCalculator)
{
    start();
    const std::pair<const char*, const char*> calculators[] = {{"btnAirCalc", "AirPropertiesCalc"},
                                                               {"btnMixedAir", "MixedAir"},
                                                               {"btnCooling", "CoolingLoad1"},
                                                               {"btnHeating", "HeatingLoad1"},
                                                               {"btnHumidity", "Humid1"}};
    for (const auto& [button, form] : calculators) {
        user.click(button);
        EXPECT_EQ(user.window(), form);
        EXPECT_FALSE(User::findWindow("MainForm")->isVisible());
        user.choose("mnuMain1");
        EXPECT_EQ(user.window(), "MainForm");
    }
}

TEST_F(MainMenu, ShowsItsMenus)
{
    start();
    const std::pair<const char*, const char*> captions[] = {{"mnuFile", "&File"},
                                                            {"mnuExit", "E&xit"},
                                                            {"mnuOptions", "&Options"},
                                                            {"mnuHelp", "&Help"},
                                                            {"mnuHSearch", "&Search for Help on ..."},
                                                            {"mnuAbout", "&About Dunmoor"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(user.menuEntry(name)->text().toStdString(), caption);
}

TEST_F(MainMenu, StandsAQuarterDownInTheMiddleOfTheScreen)
{
    start();
    const QWidget* const window = User::findWindow("MainForm");
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    EXPECT_EQ(window->size(), QSize(800, 660));
    EXPECT_EQ(window->pos(), QPoint((screen.width() - 800) / 2, (screen.height() - 660) / 4));
}

TEST_F(MainMenu, HidesWhileACalculatorIsUp)
{
    start();
    user.click("btnAirCalc");
    EXPECT_EQ(user.window(), "AirPropertiesCalc");
    EXPECT_FALSE(User::findWindow("MainForm")->isVisible());
    EXPECT_TRUE(isLoaded<MainForm>());
}

TEST_F(MainMenu, OpensACalculatorByItsAccessKey)
{
    start();
    user.key(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(user.window(), "AirPropertiesCalc");
}

TEST_F(MainMenu, EndsTheProcessByExitAndWritesItsTwoKeys)
{
    start();
    QTimer::singleShot(0, qApp, [this] { user.choose("mnuExit"); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(stored("Metric_Units"), "False");
    EXPECT_EQ(stored("Baro_Pressure"), "14.696");
    EXPECT_EQ(stored("Pressure_psi"), "(nothing)");
    EXPECT_FALSE(isLoaded<MainForm>());
}

TEST_F(MainMenu, EndsTheProcessByItsCloseBoxAndWritesItsTwoKeys)
{
    startInMetric();
    QTimer::singleShot(0, qApp, [this] { user.closeWindow(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(stored("Metric_Units"), "True");
    EXPECT_EQ(stored("Baro_Pressure"), "101.352");
}

TEST_F(MainMenu, EndsTheProcessAtTheEndOfTheSessionAndWritesItsTwoKeys)
{
    startInMetric();
    QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(stored("Metric_Units"), "True");
    EXPECT_EQ(stored("Baro_Pressure"), "101.352");
    EXPECT_FALSE(isLoaded<MainForm>());
}

TEST_F(MainMenu, EndsTheProcessAtTheEndOfTheSessionUnderACalculatorAndADialog)
{
    start();
    user.click("btnCooling");
    user.inDialog("About", [] { QCoreApplication::quit(); });
    QTimer::singleShot(0, qApp, [this] { user.choose("mnuAbout"); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(stored("Metric_Units"), "False");
    EXPECT_FALSE(isLoaded<MainForm>());
}

TEST_F(MainMenu, GoesOnAfterACalculatorsExit)
{
    start();
    user.click("btnAirCalc");
    user.choose("mnuExit");
    EXPECT_EQ(user.window(), "MainForm");
    EXPECT_EQ(stored("Metric_Units"), "(nothing)");
}

TEST_F(MainMenu, KnowsTheHelpFileBesideTheExecutable)
{
    start();
    EXPECT_EQ(HelpFile, ApplicationFolder() + "/dunmoor.chm");
}
TEST_F(MainMenu, BearsTheProgramsIcon)
{
    start();
    const QIcon icon = User::findWindow("MainForm")->windowIcon();
    EXPECT_FALSE(icon.pixmap(32, 32).isNull());
    EXPECT_EQ(icon.availableSizes(), (QList<QSize>{{32, 32}, {128, 128}}));
}
