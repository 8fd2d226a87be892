// The user's store of strings, as the program and as a person with an editor see it.

#include "platform/SettingsStore.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

class Store : public testing::Test
{
protected:
    Store()
    {
        qputenv("XDG_CONFIG_HOME", folder().toUtf8());
        QDir().mkpath(folder());
    }

    QString folder() const { return place.path() + "/config"; }
    QString file() const { return folder() + "/Dunmoor.ini"; }

    static void save(const std::string& key, const std::string& text)
    {
        SaveSetting("Dunmoor", "Settings", key, text);
    }
    static std::string saved(const std::string& key)
    {
        return GetSetting("Dunmoor", "Settings", key, "(nothing)");
    }

    static std::string bytes(const QString& path)
    {
        QFile stored(path);
        return stored.open(QIODevice::ReadOnly) ? stored.readAll().toStdString() : "(no file)";
    }

    static void write(const QString& path, const QByteArray& text)
    {
        QFile stored(path);
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write(text);
    }

    QTemporaryDir place;
};

} // namespace

TEST_F(Store, GivesTheDefaultForWhatItHasNotGot)
{
    EXPECT_EQ(GetSetting("Dunmoor", "Settings", "Pressure_psi", "14.696"), "14.696");
    EXPECT_FALSE(QFileInfo::exists(file())) << "asking writes nothing";
}

TEST_F(Store, KeepsEveryTextAsItWasTyped)
{
    for (const char* text : {"14.70",
                             "",
                             " ",
                             "  14.7",
                             "14.7  ",
                             "\t14.7\t",
                             "14,696",
                             "a, b,c ,",
                             ",",
                             "\"quoted\"",
                             "\"",
                             "''",
                             "@",
                             "@Invalid()",
                             "@ByteArray(x)",
                             "@@",
                             "back\\slash",
                             "\\",
                             "\\n",
                             "line\nbreak",
                             "a;b",
                             "#c",
                             "k=v",
                             "[Settings]",
                             "%20",
                             "50 %",
                             "\u00B0C \u00E9 \u20AC",
                             "\xF0\x9F\x8C\xA1",
                             "True",
                             "1e39",
                             "0x10",
                             "007"}) {
        save("Pressure_psi", text);
        EXPECT_EQ(saved("Pressure_psi"), text);
    }
}

TEST_F(Store, KeepsALongText)
{
    const std::string text(20'000, '7');
    save("Pressure_psi", text);
    EXPECT_EQ(saved("Pressure_psi"), text);
}

TEST_F(Store, IsAFileInTheConfigurationFolderWithAKeyALine)
{
    save("Metric_Units", "True");
    save("Pressure_kPa", "101.325");
    EXPECT_EQ(bytes(file()), "[Settings]\nMetric_Units=True\nPressure_kPa=101.325\n");
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::Hidden), QStringList{"Dunmoor.ini"});
}

TEST_F(Store, MakesTheConfigurationFolder)
{
    qputenv("XDG_CONFIG_HOME", (place.path() + "/a/b").toUtf8());
    save("Metric_Units", "True");
    EXPECT_EQ(bytes(place.path() + "/a/b/Dunmoor.ini"), "[Settings]\nMetric_Units=True\n");
}

TEST_F(Store, IsInTheHomeFolderWithoutAConfigurationFolderOfItsOwn)
{
    qunsetenv("XDG_CONFIG_HOME");
    qputenv("HOME", place.path().toUtf8());
    save("Metric_Units", "True");
    EXPECT_EQ(bytes(place.path() + "/.config/Dunmoor.ini"), "[Settings]\nMetric_Units=True\n");
    EXPECT_EQ(saved("Metric_Units"), "True");
}

TEST_F(Store, TakesAKeyForTheSameInUpperAndLowerCase)
{
    save("Pressure_psi", "12");
    EXPECT_EQ(saved("Pressure_Psi"), "12");
    EXPECT_EQ(saved("PRESSURE_PSI"), "12");
    save("Pressure_Psi", "13");
    EXPECT_EQ(saved("Pressure_psi"), "13");
    EXPECT_EQ(bytes(file()), "[Settings]\nPressure_psi=13\n") << "one key, in its first spelling";
}

TEST_F(Store, ReplacesATextAndLeavesTheOtherKeys)
{
    save("Metric_Units", "True");
    save("Pressure_psi", "12");
    save("Metric_Units", "False");
    EXPECT_EQ(saved("Metric_Units"), "False");
    EXPECT_EQ(saved("Pressure_psi"), "12");
}

TEST_F(Store, LeavesOtherGroupsOfTheFile)
{
    write(file(), "[Another]\nMetric_Units=theirs\nlist=a, "
                  "b\n\n[Settings]\nPressure_psi=12\n\n[Windows]\nplace=@Point(3 4)\n");
    save("Pressure_psi", "13");
    EXPECT_EQ(bytes(file()), "[Another]\nMetric_Units=theirs\nlist=a, "
                             "b\n\n[Settings]\nPressure_psi=13\n\n[Windows]\nplace=@Point(3 4)\n");
    EXPECT_EQ(saved("Metric_Units"), "(nothing)");
}

TEST_F(Store, LeavesTheFilesOfOtherPrograms)
{
    const QByteArray theirs = "; a comment\n[Settings]\nMetric_Units = theirs\n";
    write(folder() + "/Another.ini", theirs);
    write(folder() + "/dunmoor.conf", theirs);
    save("Metric_Units", "True");
    EXPECT_EQ(bytes(folder() + "/Another.ini"), theirs.toStdString());
    EXPECT_EQ(bytes(folder() + "/dunmoor.conf"), theirs.toStdString());
    EXPECT_EQ(GetSetting("Another", "Settings", "Metric_Units", ""), "theirs");
}

TEST_F(Store, IsWrittenAtOnce)
{
    save("Metric_Units", "True");
    EXPECT_NE(bytes(file()).find("Metric_Units=True"), std::string::npos);
}

TEST_F(Store, SeesWhatSomeoneElseHasWrittenMeanwhile)
{
    save("Pressure_psi", "12");
    write(file(), "[Settings]\nPressure_psi=13.5\nPressure_kPa=99\n");
    EXPECT_EQ(saved("Pressure_psi"), "13.5");
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Pressure_kPa"), "99");
}

TEST_F(Store, ReadsWhatWasWrittenByHand)
{
    write(file(), "; my settings\r\n[Settings]\r\n"
                  "PRESSURE_PSI = 14,696 \r\n"
                  "Pressure_kPa=\"  101.3 \"\r\n"
                  "Metric_Units=\r\n"
                  "Baro_Pressure=abc def\r\n");
    EXPECT_EQ(saved("Pressure_psi"), "14,696") << "a comma without quotes";
    EXPECT_EQ(saved("Pressure_kPa"), "  101.3 ");
    EXPECT_EQ(saved("Metric_Units"), "");
    EXPECT_EQ(saved("Baro_Pressure"), "abc def");
}

TEST_F(Store, ReadsNothingFromAFileThatIsNone)
{
    write(file(), QByteArray("\x00\xFF\xFE rubbish [[[ = = \n\n ]", 22));
    EXPECT_EQ(saved("Metric_Units"), "(nothing)");
    save("Metric_Units", "True"); // whether it can be kept or not, the program goes on
}

TEST_F(Store, IsHarmlessWhereItCannotBeWritten)
{
    write(place.path() + "/occupied", "a file where the folder should be");
    qputenv("XDG_CONFIG_HOME", (place.path() + "/occupied").toUtf8());
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "(nothing)");
    EXPECT_EQ(bytes(place.path() + "/occupied"), "a file where the folder should be");
}

TEST_F(Store, IsHarmlessWhereTheFileIsAFolder)
{
    QDir().mkpath(file());
    save("Metric_Units", "True");
    EXPECT_EQ(saved("Metric_Units"), "(nothing)");
}
