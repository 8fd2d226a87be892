// Which pressures the options take, and when the units change.

#include "tests/shell/OptionsScreen.h"

TEST_F(OptionsScreen, RefusesEnglishPressuresOutsideElevenToSixteen)
{
    start();
    expectRefused({"10.99", "16.01", "-14.7"}, psiRange);
    EXPECT_EQ(stored("Pressure_psi"), "(nothing)");
}

TEST_F(OptionsScreen, TakesElevenAndSixteenPsi)
{
    start();
    expectTaken({"11", "16"}, "Pressure_psi", "False");
}

TEST_F(OptionsScreen, RefusesMetricPressuresOutsideFortySevenToOneHundredEight)
{
    startInMetric();
    expectRefused({"46.9", "108.1"}, kPaRange);
    EXPECT_EQ(stored("Pressure_kPa"), "(nothing)");
}

TEST_F(OptionsScreen, TakesFortySevenAndOneHundredEightKPa)
{
    startInMetric();
    expectTaken({"47", "108"}, "Pressure_kPa", "True");
}

TEST_F(OptionsScreen, UsesTheDefaultsAtOnceEvenIfCancelled)
{
    start();
    inCancelledOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        user.click("btnDefault");
        EXPECT_EQ(user.text("txtBP"), "101.325");
        EXPECT_EQ(user.window(), "Settings");
        EXPECT_EQ(stored("Pressure_kPa"), "101.325");
        EXPECT_EQ(stored("Metric_Units"), "True");
    });
    EXPECT_EQ(UnitSystem, -1);
    EXPECT_EQ(BaroPressure, 101.325F);
}

TEST_F(OptionsScreen, UsesTheEnglishDefaults)
{
    store("Pressure_psi", "12");
    startInMetric();
    inCancelledOptions([this] {
        user.chooseFromList("Combo1", "English, I-P");
        EXPECT_EQ(user.text("txtBP"), "12");
        user.click("btnDefault");
        EXPECT_EQ(user.text("txtBP"), "14.696");
    });
    EXPECT_EQ(UnitSystem, 0);
    EXPECT_EQ(stored("Pressure_psi"), "14.696");
    EXPECT_EQ(stored("Metric_Units"), "False");
}

TEST_F(OptionsScreen, KeepsThePressureAsItWasTyped)
{
    start();
    for (const char* typed : {"14.70", " 15 ", "1.5e1"}) {
        inOptions([&] { confirm(typed); });
        inCancelledOptions([&] { EXPECT_EQ(user.text("txtBP"), typed); });
    }
}

TEST_F(OptionsScreen, ChangesTheUnitsBeforeItRefusesThePressure)
{
    start();
    inCancelledOptions([this] {
        user.chooseFromList("Combo1", "Metric, SI");
        confirm("14.696");
        EXPECT_EQ(user.messages, std::vector{kPaRange});
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
    inCancelledOptions([this] {
        user.chooseFromList("Combo1", "English, I-P");
        confirm("101.325");
        EXPECT_EQ(user.messages, std::vector{psiRange});
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
        EXPECT_EXIT(inOptions([&] { confirm(text); }), testing::ExitedWithCode(1),
                    "message: Dunmoor: Run-time error '13':\nType mismatch");
    }
    EXPECT_EQ(stored("Metric_Units"), "(nothing)");
}
