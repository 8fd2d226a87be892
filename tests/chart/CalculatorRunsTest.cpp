// The last runs of the calculators on the main menu's chart, after real runs on their screens.

#include "tests/chart/ChartOnMenu.h"

TEST_F(ChartOnMenu, MarksTheMixedAirAndItsStreams)
{
    start();
    runMixedAir();
    EXPECT_EQ(layout().marks.size(), 3U);
    expectMarked({MixedOutsideAir, MixedReturnAir, MixedResultAir});
    EXPECT_FLOAT_EQ(MixedOutsideAir.Tdb, 95);
}

TEST_F(ChartOnMenu, MarksTheCoilsAndTheHumidification)
{
    start();
    runCooling();
    EXPECT_EQ(layout().marks.size(), 2U);
    runHeating();
    runHumidification();
    EXPECT_EQ(layout().marks.size(), 6U);
    expectMarked({CoolingEnteringAir, CoolingLeavingAir, HeatingEnteringAir, HeatingLeavingAir,
                  HumidOutsideAir, HumidDesiredAir});
    for (const chart::Run& run : chart::ShownRuns())
        EXPECT_TRUE(run.isJoined) << chart::TitleOf(run.calculator);
}

TEST_F(ChartOnMenu, MarksThemInMetric)
{
    startInMetric();
    runCooling();
    runHeating();
    runHumidification();
    EXPECT_EQ(layout().marks.size(), 6U);
    expectMarked({CoolingEnteringAir, CoolingLeavingAir, HeatingEnteringAir, HeatingLeavingAir,
                  HumidOutsideAir, HumidDesiredAir});
}

TEST_F(ChartOnMenu, MarksTheAirPropertiesUntilTheNextOnes)
{
    start();
    user.click("btnAirCalc");
    calculate("80", "txtRH", "40");
    user.choose("mnuMain1");
    const double w = StatePoint.W.asDouble();
    EXPECT_TRUE(isMarked(80, w));
    user.click("btnHeating"); // clears the state
    user.choose("mnuMain1");
    EXPECT_TRUE(isMarked(80, w));
    user.click("btnAirCalc");
    user.choose("mnuMain1");
    EXPECT_TRUE(isMarked(80, w)) << "nothing was calculated since";
}

TEST_F(ChartOnMenu, MarksNoAirThatAnotherCalculatorOnlyTried)
{
    start();
    user.click("btnHeating");
    calculate("70", "txtRH", "40");
    user.choose("mnuMain1");
    EXPECT_EQ(layout().marks.size(), 0U);
}

TEST_F(ChartOnMenu, FollowsTheOptions)
{
    start();
    runCooling();
    const AirSnapshot entering = CoolingEnteringAir;
    const QImage english = shown();
    changeUnits("Metric, SI");
    const QImage metric = shown();
    EXPECT_GT(PixelsThatDiffer(english, metric), 5000);
    EXPECT_EQ(layout().marks.size(), 0U);
    EXPECT_EQ(layout().plane.span.tdb.high, 50);

    changeUnits("English, I-P");
    EXPECT_EQ(shown(), english);
    inOptions([this] {
        user.type("txtBP", "12");
        user.click("btnOK");
    });
    EXPECT_GT(PixelsThatDiffer(english, shown()), 5000);
    EXPECT_EQ(layout().marks.size(), 2U);
    EXPECT_NE(tipAt(layout().placeOf({"", entering.Tdb, entering.W, 0})).find("at 14.696 psi"),
              std::string::npos);
}

TEST_F(ChartOnMenu, KeepsTheLastRunsWhileTheNextOnesAreEntered)
{
    start();
    runCooling();
    runHeating();
    runMixedAir();
    const QImage before = shown();
    user.click("btnCooling");
    calculate("90", "txtRH", "40");
    answerVolume("btnSaveEA", "800");
    user.choose("mnuMain1");
    user.click("btnHeating");
    calculate("50", "txtRH", "40");
    answerVolume("btnSaveEnteringAir", "800");
    user.choose("mnuMain1");
    user.click("btnMixedAir");
    calculate("40", "txtRH", "50");
    answerVolume("btnSaveOSA", "500");
    user.choose("mnuMain1");
    EXPECT_EQ(shown(), before);
}

TEST_F(ChartOnMenu, MarksNoHeatingWhoseDialogWasClosed)
{
    start();
    runHeating();
    const QImage before = shown();
    user.click("btnHeating");
    calculate("50", "txtRH", "40");
    answerVolume("btnSaveEnteringAir", "800");
    user.inDialog("HeatingLoad2", [this] { user.closeWindow(); });
    user.click("btnInputLeavingAir");
    user.choose("mnuMain1");
    EXPECT_EQ(shown(), before);
}

TEST_F(ChartOnMenu, MarksNoHumidificationThatFailed)
{
    start();
    user.click("btnHumidity");
    calculate("20", "txtRH", "60");
    user.inDialog("humid2", [this] {
        user.type("txtDesT", "72");
        user.type("txtDesH", "30");
        user.type("txtOSA", "much");
        user.click("btnCalcHumid");
        EXPECT_EQ(user.text("txtMassPerHour"), "");
        user.click("btnOK");
    });
    user.click("btnHumidityDesired");
    user.choose("mnuMain1");
    EXPECT_EQ(layout().marks.size(), 0U);
}

TEST_F(ChartOnMenu, MarksTheStreamsAloneWhereTheMixtureIsFog)
{
    start();
    user.click("btnMixedAir");
    calculate("95", "txtRH", "100");
    answerVolume("btnSaveOSA", "1000");
    calculate("35", "txtRH", "100");
    answerVolume("btnRA", "1000");
    user.click("btnMixedAir");
    EXPECT_EQ(user.messages.size(), 1U);
    user.click("btnOK");
    user.choose("mnuMain1");
    EXPECT_EQ(layout().marks.size(), 2U);
    expectMarked({MixedOutsideAir, MixedReturnAir});
    EXPECT_FALSE(chart::ShownRuns().front().isJoined);
}

TEST_F(ChartOnMenu, KeepsTheAirPropertiesWhereTheNextOnesAreRefused)
{
    start();
    user.click("btnAirCalc");
    calculate("80", "txtRH", "40");
    const double w = StatePoint.W.asDouble();
    calculate("70", "txtW", "0.05");
    EXPECT_EQ(user.messages.size(), 1U);
    user.choose("mnuMain1");
    EXPECT_EQ(layout().marks.size(), 1U);
    EXPECT_TRUE(isMarked(80, w));
}
