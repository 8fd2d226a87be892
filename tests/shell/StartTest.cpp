// What the program reads when it starts.

#include "tests/support/ProgramTest.h"

#include <QFileInfo>
#include <QStandardPaths>

using MainMenu = ProgramTest;

TEST_F(MainMenu, StartsInEnglishAtStandardPressureWithAnEmptyStore)
{
    start();
    EXPECT_EQ(user.window(), "MainForm");
    EXPECT_EQ(user.title(), "Dunmoor");
    EXPECT_EQ(UnitSystem, 0);
    EXPECT_EQ(BaroPressure, 14.696F);
}

TEST_F(MainMenu, WritesNothingAtTheStart)
{
    start();
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    EXPECT_FALSE(QFileInfo::exists(folder + "/Dunmoor.ini"));
    EXPECT_EQ(stored("Metric_Units"), "(nothing)");
}

TEST_F(MainMenu, TakesTheMissingMetricPressureFor101Point352)
{
    startInMetric();
    EXPECT_EQ(UnitSystem, -1);
    EXPECT_EQ(BaroPressure, 101.352F);
}

TEST_F(MainMenu, ReadsThePressureOfTheUnitsInForce)
{
    store("Metric_Units", "true");
    store("Pressure_kPa", "95.5");
    store("Pressure_psi", "12");
    store("Baro_Pressure", "77"); // never read
    start();
    EXPECT_EQ(BaroPressure, 95.5F);
}

TEST_F(MainMenu, ReadsTheEnglishPressure)
{
    store("Metric_Units", "False");
    store("Pressure_kPa", "95.5");
    store("Pressure_psi", "12");
    store("Baro_Pressure", "77");
    start();
    EXPECT_EQ(BaroPressure, 12.0F);
}

TEST_F(MainMenu, TakesANumberForTheUnits)
{
    store("Metric_Units", "-1");
    start();
    EXPECT_EQ(UnitSystem, -1);
}

TEST_F(MainMenu, FillsTheUnitLabelsOfTheReports)
{
    start();
    EXPECT_EQ(TempUnit[0], " deg F");
    EXPECT_EQ(TempUnit[1], " deg C");
    EXPECT_EQ(HumidityUnit[1], " g water/kg dry air");
    EXPECT_EQ(HumidityUnit[2], "");
}

TEST_F(MainMenu, EndsWithTheReportWhenAStoredPressureIsNoNumber)
{
    store("Pressure_psi", "abc");
    EXPECT_EXIT(start(), testing::ExitedWithCode(1), "message: Dunmoor: Run-time error '13':\nType mismatch");
}

TEST_F(MainMenu, EndsWithTheReportWhenAStoredPressureIsEmpty)
{
    store("Pressure_psi", "");
    EXPECT_EXIT(start(), testing::ExitedWithCode(1), "message: Dunmoor: Run-time error '13':\nType mismatch");
}

TEST_F(MainMenu, EndsWithTheReportWhenTheStoredUnitsAreNoBoolean)
{
    store("Metric_Units", "maybe");
    EXPECT_EXIT(start(), testing::ExitedWithCode(1), "message: Dunmoor: Run-time error '13':\nType mismatch");
    EXPECT_EQ(stored("Baro_Pressure"), "(nothing)"); // nothing is written on this exit
}

TEST_F(MainMenu, EndsWithTheReportWhenAStoredPressureIsTooLarge)
{
    store("Pressure_psi", "1e39");
    EXPECT_EXIT(start(), testing::ExitedWithCode(1), "message: Dunmoor: Run-time error '6':\nOverflow");
}
