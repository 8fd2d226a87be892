// Where the options are kept, and what happens if they can't be.

#include "tests/shell/OptionsScreen.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>

static QString storeFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/Dunmoor.ini";
}

TEST_F(OptionsScreen, IsFoundAgainAfterARestart)
{
    start();
    inOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        confirm("95.0");
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
    inOptions([this] { confirm("12"); });
    EXPECT_EQ(BaroPressure, 12.0F);
    EXPECT_EQ(user.window(), "MainForm");
}

TEST_F(OptionsScreen, GoesOnWithTheNewSettingWhereTheStoreIsNoFile)
{
    const QString file = storeFile();
    QDir().mkpath(QFileInfo(file).path());
    ASSERT_EQ(mkfifo(file.toLocal8Bit(), 0600), 0);
    start();
    inOptions([this] { confirm("12"); });
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
    inOptions([this] { confirm("12"); });
    EXPECT_EQ(storeFile(), QDir::homePath() + "/.config/Dunmoor.ini");
    EXPECT_TRUE(QFileInfo(storeFile()).isFile());
    EXPECT_FALSE(QFileInfo::exists("relative"));
}
