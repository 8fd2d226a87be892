// The user's settings store, as seen by the program and by a person with an editor.

#include "tests/platform/StoreFixture.h"

#include <QFileInfo>

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
