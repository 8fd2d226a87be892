#include "shell/Settings.h"

#include "tests/support/ProgramTest.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QWidget>

#include <sys/stat.h>

using namespace forms;

class OptionsScreen : public ProgramTest
{
protected:
    /// Opens the options, runs the actions there, and returns when the options are closed.
    void inOptions(const std::function<void()>& actions)
    {
        user.inDialog("Settings", actions);
        user.choose("mnuOptions");
        EXPECT_FALSE(isLoaded<Settings>());
    }

    static QString storeFile()
    {
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Dunmoor.ini";
    }

    static inline const Message psiRange{"Please input an atmospheric pressure between 11 and 16 psi.",
                                         "Dunmoor"};
    static inline const Message kPaRange{"Please input an atmospheric pressure between 47 and 108 kPa.",
                                         "Dunmoor"};
};

TEST_F(OptionsScreen, ShowsTheUnitsAndTheirStoredPressure)
{
    start();
    inOptions([this] {
        EXPECT_EQ(user.title(), "Options/Settings");
        EXPECT_EQ(user.text("lblUnits"), "  Units");
        EXPECT_EQ(user.text("lblBP"), "  Barometric Pressure");
        EXPECT_EQ(user.text("Combo1"), "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "14.696");
        EXPECT_EQ(user.text("Label1"), " psi");
        EXPECT_EQ(user.text("btnOK"), "OK");
        EXPECT_EQ(user.text("btnCancel"), "Cancel");
        EXPECT_EQ(user.text("btnDefault"), "Use Default Settings");
        const auto* const combo = qobject_cast<QComboBox*>(user.widget("Combo1"));
        EXPECT_EQ(combo->count(), 2);
        EXPECT_EQ(combo->itemText(0), "English, I-P");
        EXPECT_EQ(combo->itemText(1), "Metric, SI");
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, ShowsMetricWhereItIsInForce)
{
    startInMetric();
    inOptions([this] {
        EXPECT_EQ(user.text("Combo1"), "Metric, SI");
        EXPECT_EQ(user.text("txtBP"), "101.352");
        EXPECT_EQ(user.text("Label1"), " kPa");
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, StandsInTheMiddleOfTheScreen)
{
    start();
    inOptions([this] {
        const QWidget* const window = User::findWindow("Settings");
        const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
        EXPECT_EQ(window->pos(),
                  QPoint((screen.width() - window->width()) / 2, (screen.height() - window->height()) / 2));
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, RefusesEnglishPressuresOutsideElevenToSixteen)
{
    start();
    for (const char* refused : {"10.99", "16.01", "-14.7"}) {
        inOptions([&] {
            user.messages.clear();
            user.type("txtBP", refused);
            user.click("btnOK");
            EXPECT_EQ(user.messages, std::vector{psiRange}) << refused;
            EXPECT_EQ(user.window(), "Settings");
            EXPECT_EQ(BaroPressure, 14.696F);
            user.click("btnCancel");
        });
    }
    EXPECT_EQ(stored("Pressure_psi"), "(nothing)");
}

TEST_F(OptionsScreen, TakesElevenAndSixteenPsi)
{
    start();
    for (const char* taken : {"11", "16"}) {
        inOptions([&] {
            user.type("txtBP", taken);
            user.click("btnOK");
        });
        EXPECT_TRUE(user.messages.empty());
        EXPECT_EQ(BaroPressure, std::stof(taken));
        EXPECT_EQ(stored("Pressure_psi"), taken);
        EXPECT_EQ(stored("Metric_Units"), "False");
    }
}

TEST_F(OptionsScreen, RefusesMetricPressuresOutsideFortySevenToOneHundredEight)
{
    startInMetric();
    for (const char* refused : {"46.9", "108.1"}) {
        inOptions([&] {
            user.messages.clear();
            user.type("txtBP", refused);
            user.click("btnOK");
            EXPECT_EQ(user.messages, std::vector{kPaRange}) << refused;
            EXPECT_EQ(user.window(), "Settings");
            user.click("btnCancel");
        });
    }
    EXPECT_EQ(stored("Pressure_kPa"), "(nothing)");
}

TEST_F(OptionsScreen, TakesFortySevenAndOneHundredEightKPa)
{
    startInMetric();
    for (const char* taken : {"47", "108"}) {
        inOptions([&] {
            user.type("txtBP", taken);
            user.click("btnOK");
        });
        EXPECT_TRUE(user.messages.empty());
        EXPECT_EQ(BaroPressure, std::stof(taken));
        EXPECT_EQ(stored("Pressure_kPa"), taken);
        EXPECT_EQ(stored("Metric_Units"), "True");
    }
}

TEST_F(OptionsScreen, ShowsTheOtherSystemsPressureAtOnce)
{
    store("Pressure_kPa", "90.10");
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        EXPECT_EQ(user.text("txtBP"), "90.10");
        EXPECT_EQ(user.text("Label1"), " kPa");
        EXPECT_EQ(UnitSystem, 0) << "choosing alone changes nothing";
        user.chooseFromList("Combo1", "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "14.696");
        EXPECT_EQ(user.text("Label1"), " psi");
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, ShowsTheDefaultOfTheOtherSystem)
{
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        EXPECT_EQ(user.text("txtBP"), "101.352");
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, ShowsTheStoredPressureAgainWhenTheChosenEntryIsChosenAgain)
{
    start();
    inOptions([this] {
        user.type("txtBP", "12");
        user.chooseFromList("Combo1", "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "14.696");
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, UsesTheDefaultsAtOnceEvenIfCancelled)
{
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.click("btnDefault");
        EXPECT_EQ(user.text("txtBP"), "101.325");
        EXPECT_EQ(user.window(), "Settings");
        EXPECT_EQ(stored("Pressure_kPa"), "101.325");
        EXPECT_EQ(stored("Metric_Units"), "True");
        user.click("btnCancel");
    });
    EXPECT_EQ(UnitSystem, -1);
    EXPECT_EQ(BaroPressure, 101.325F);
}

TEST_F(OptionsScreen, UsesTheEnglishDefaults)
{
    store("Pressure_psi", "12");
    startInMetric();
    inOptions([this] {
        user.chooseFromList("Combo1", "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "12");
        user.click("btnDefault");
        EXPECT_EQ(user.text("txtBP"), "14.696");
        user.click("btnCancel");
    });
    EXPECT_EQ(UnitSystem, 0);
    EXPECT_EQ(stored("Pressure_psi"), "14.696");
    EXPECT_EQ(stored("Metric_Units"), "False");
}

TEST_F(OptionsScreen, KeepsThePressureAsItWasTyped)
{
    start();
    for (const char* typed : {"14.70", " 15 ", "1.5e1"}) {
        inOptions([&] {
            user.type("txtBP", typed);
            user.click("btnOK");
        });
        inOptions([&] {
            EXPECT_EQ(user.text("txtBP"), typed);
            user.click("btnCancel");
        });
    }
}

TEST_F(OptionsScreen, ChangesTheUnitsBeforeItRefusesThePressure)
{
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.type("txtBP", "14.696");
        user.click("btnOK");
        EXPECT_EQ(user.messages, std::vector{kPaRange});
        user.click("btnCancel");
    });
    EXPECT_EQ(UnitSystem, -1);
    EXPECT_EQ(BaroPressure, 14.696F);
    EXPECT_EQ(stored("Metric_Units"), "(nothing)");
    user.click("btnAirCalc");
    EXPECT_EQ(user.title(), " Air Properties Calculator - (Metric Units)");
    EXPECT_EQ(user.text("txtP"), "14.696");

    user.choose("mnuMain1");
    user.choose("mnuExit"); // stores the current units, but no pressure that is ever read
    EXPECT_EQ(stored("Metric_Units"), "True");
    EXPECT_EQ(stored("Baro_Pressure"), "14.696");
    start();
    EXPECT_EQ(UnitSystem, -1);
    EXPECT_EQ(BaroPressure, 101.352F);
}

TEST_F(OptionsScreen, ChangesBackToEnglishBeforeItRefusesThePressure)
{
    startInMetric();
    inOptions([this] {
        user.chooseFromList("Combo1", "English, I-P");
        user.type("txtBP", "101.325");
        user.click("btnOK");
        EXPECT_EQ(user.messages, std::vector{psiRange});
        user.click("btnCancel");
    });
    EXPECT_EQ(UnitSystem, 0);
    EXPECT_EQ(BaroPressure, 101.352F) << "a number of kPa, in English";
    EXPECT_EQ(stored("Metric_Units"), "True");
    EXPECT_EQ(stored("Pressure_psi"), "(nothing)");
}

TEST_F(OptionsScreen, EndsTheProgramOnAPressureThatIsNoNumber)
{
    start();
    for (const char* text : {"abc", ""}) {
        EXPECT_EXIT(inOptions([&] {
                        user.type("txtBP", text);
                        user.click("btnOK");
                    }),
                    testing::ExitedWithCode(1), "message: Dunmoor: Run-time error '13':\nType mismatch");
    }
    EXPECT_EQ(stored("Metric_Units"), "(nothing)");
}

TEST_F(OptionsScreen, UndoesNothingOnCancelAndSavesNothing)
{
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.type("txtBP", "95");
        user.click("btnCancel");
    });
    EXPECT_EQ(UnitSystem, 0);
    EXPECT_EQ(BaroPressure, 14.696F);
    EXPECT_EQ(stored("Metric_Units"), "(nothing)");
}

TEST_F(OptionsScreen, ClosesByItsCloseBoxLikeCancel)
{
    start();
    inOptions([this] { user.closeWindow(); });
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(OptionsScreen, LetsNoOtherWindowTakeInputMeanwhile)
{
    start();
    inOptions([this] {
        QWidget* const menu = User::findWindow("MainForm");
        EXPECT_TRUE(menu->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), User::findWindow("Settings"));
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, IsFoundAgainAfterARestart)
{
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.type("txtBP", "95.0");
        user.click("btnOK");
    });
    user.choose("mnuExit");
    EXPECT_EQ(stored("Baro_Pressure"), "95");
    UnitSystem = False16;
    BaroPressure = 0;
    start();
    EXPECT_EQ(UnitSystem, -1);
    EXPECT_EQ(BaroPressure, 95.0F);
    user.click("btnAirCalc");
    EXPECT_EQ(user.text("txtP"), "95");
}

TEST_F(OptionsScreen, GoesOnWhereTheStoreCannotBeWritten)
{
    qputenv("XDG_CONFIG_HOME", "/proc/none");
    start();
    inOptions([this] {
        user.type("txtBP", "12");
        user.click("btnOK");
    });
    EXPECT_EQ(BaroPressure, 12.0F);
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(OptionsScreen, GoesOnWithTheNewSettingWhereTheStoreIsNoFile)
{
    const QString file = storeFile();
    QDir().mkpath(QFileInfo(file).path());
    ASSERT_EQ(mkfifo(file.toLocal8Bit(), 0600), 0);
    start();
    inOptions([this] {
        user.type("txtBP", "12");
        user.click("btnOK");
    });
    EXPECT_EQ(BaroPressure, 12.0F);
    user.choose("mnuExit");
    ASSERT_EQ(user.messages.size(), 1U) << "it is said once";
    EXPECT_EQ(user.messages[0].text,
              "The settings can't be read:\n" + file.toStdString() +
                  "\nis not a text file of at most 1 MB. It is left as it is, and the default "
                  "settings apply.");
    EXPECT_EQ(user.messages[0].title, "Dunmoor");
    EXPECT_FALSE(QFileInfo(file).isFile());
}

TEST_F(OptionsScreen, KeepsItsSettingsInTheHomeFolderWhereTheConfigurationFolderIsRelative)
{
    qputenv("XDG_CONFIG_HOME", "relative");
    start();
    inOptions([this] {
        user.type("txtBP", "12");
        user.click("btnOK");
    });
    EXPECT_EQ(storeFile(), QDir::homePath() + "/.config/Dunmoor.ini");
    EXPECT_TRUE(QFileInfo(storeFile()).isFile());
    EXPECT_FALSE(QFileInfo::exists("relative"));
}

TEST_F(OptionsScreen, NamesItsFieldWithTheUnit)
{
    start();
    inOptions([this] {
        EXPECT_EQ(user.widget("txtBP")->accessibleName().toStdString(), "Barometric pressure, psi");
        user.chooseFromList("Combo1", "Metric, SI");
        EXPECT_EQ(user.widget("txtBP")->accessibleName().toStdString(), "Barometric pressure, kPa");
        user.click("btnCancel");
    });
}

TEST_F(OptionsScreen, MayBeClosedUnderTheContextMenuOfThePressure)
{
    start();
    inOptions([this] {
        QWidget* const field = user.widget("txtBP");
        QTimer::singleShot(0, qApp, [this] {
            EXPECT_NE(QApplication::activePopupWidget(), nullptr);
            user.closeWindow();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, field->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(field, &event);
    });
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(user.window(), "MainForm");
}
