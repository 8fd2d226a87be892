// The last runs of the calculators on the main menu's chart, after real runs on their screens.

#include "tests/shell/chart/ChartFixture.h"

TEST_F(ChartOnMenu, MarksTheMixedAirAndItsStreams)
{
    start();
    runMixedAir();
    EXPECT_EQ(layout()->marks.size(), 3U);
    expectMarked({MixedOutsideAir, MixedReturnAir, MixedResultAir});
    EXPECT_FLOAT_EQ(MixedOutsideAir.Tdb, 95);
}

TEST_F(ChartOnMenu, MarksTheCoilsAndTheHumidification)
{
    start();
    runCooling();
    EXPECT_EQ(layout()->marks.size(), 2U);
    runHeating();
    runHumidification();
    EXPECT_EQ(layout()->marks.size(), 6U);
    expectMarked({CoolingEnteringAir, CoolingLeavingAir, HeatingEnteringAir, HeatingLeavingAir,
                  HumidOutsideAir, HumidDesiredAir});
    for (const ChartRun& run : LastRuns())
        EXPECT_EQ(run.processes.size(), 1U) << run.title;
}

TEST_F(ChartOnMenu, MarksThemInMetric)
{
    startInMetric();
    runCooling();
    runHeating();
    runHumidification();
    EXPECT_EQ(layout()->marks.size(), 6U);
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
    EXPECT_EQ(layout()->marks.size(), 0U);
}

TEST_F(ChartOnMenu, FollowsTheOptions)
{
    start();
    runCooling();
    const AirSnapshot entering = CoolingEnteringAir;
    const QImage english = shown();
    changeUnits("Metric, SI");
    const QImage metric = shown();
    EXPECT_GT(pixelsThatDiffer(english, metric), 5000);
    EXPECT_EQ(layout()->marks.size(), 0U);
    EXPECT_EQ(layout()->plane.span.tdb.high, 50);

    changeUnits("English, I-P");
    EXPECT_EQ(shown(), english);
    inOptions([this] {
        user.type("txtBP", "12");
        user.click("btnOK");
    });
    EXPECT_GT(pixelsThatDiffer(english, shown()), 5000);
    EXPECT_EQ(layout()->marks.size(), 2U);
    EXPECT_NE(tipAt(layout()->placeOf({"", entering.Tdb, entering.W, 0})).find("at 14.696 psi"),
              std::string::npos);
}
