// The limits of the entries on each air-state panel: what is refused, what is clipped, and the warnings.

#include "tests/screens/PanelFixture.h"

class PanelLimits : public PanelTest
{
protected:
    struct Clip
    {
        std::string item;
        std::string typed;
        std::string shown; ///< until the results are written
        const char* label;
        const char* warning;
    };

    /// Calculates where no solver succeeds, so that the clipped text stays in its field.
    void expectClippedTexts(const std::string& tdb, const std::vector<Clip>& clips)
    {
        for (const Clip& clip : clips) {
            user.messages.clear();
            calculate(tdb, clip.item, clip.typed);
            EXPECT_EQ(user.messages, std::vector{outOfRange}) << clip.warning;
            EXPECT_EQ(user.text(clip.item), clip.shown) << clip.warning;
            expectWarning(clip.label, clip.warning);
            EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
        }
    }

    void expectClip(const std::string& tdb, double wetBulb, double dewPoint)
    {
        for (const std::string& notBelow : {tdb, std::to_string(std::stoi(tdb) + 10)}) {
            calculate(tdb, "txtTwb", notBelow);
            expectWarning("lblTwb2", " Twb clipped at Tdb");
            EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double);
            EXPECT_EQ(StatePoint.Twb, wetBulb);
            EXPECT_EQ(user.text("txtTwb"), FormatNumber(TaggedNumber(wetBulb), "#0.0"));
            calculate(tdb, "txttd", notBelow);
            expectWarning("lblDewPt2", " Dew Pt. clipped at Tdb");
            EXPECT_EQ(StatePoint.td.kind(), NumberKind::Double);
            EXPECT_EQ(StatePoint.td, dewPoint);
        }
        EXPECT_TRUE(user.messages.empty());
    }
};

RUN_ON_EVERY_PANEL(PanelLimits);

TEST_P(PanelLimits, TakeDryBulbsFromMinusFortyToOneHundredTwentyFive)
{
    open();
    for (const char* tdb : {"-40", "125"}) {
        calculate(tdb, "txtRH", "50");
        EXPECT_TRUE(user.messages.empty()) << tdb;
        EXPECT_NE(user.text("txth"), "") << tdb;
    }
    for (const char* refused : {"-40.1", "125.1"}) {
        user.messages.clear();
        expectButtonsAfterCalculating(expected().whereRefused, [&] { enter(refused, "txtRH", "50"); });
        EXPECT_EQ(user.messages, (std::vector{temperatureOutOfRange, temperatureOutOfRange})) << refused;
        expectEmpty({"txth"});
    }
}

TEST_P(PanelLimits, RefuseMetricDryBulbsAboveFiftyWithTheOtherMessage)
{
    open(true);
    for (const char* tdb : {"-40", "50"}) {
        calculate(tdb, "txtRH", "10");
        EXPECT_TRUE(user.messages.empty()) << tdb;
        EXPECT_NE(user.text("txth"), "") << tdb;
    }
    for (const char* tdb : {"50.5", "125"}) {
        user.messages.clear();
        const bool refuses = expected().limitsMetricDryBulb;
        expectButtonsAfterCalculating(refuses ? expected().whereRefused : expected().afterCalculation,
                                      [&] { enter(tdb, "txtRH", "10"); });
        EXPECT_EQ(user.messages, refuses ? (std::vector{outOfRange, outOfRange}) : std::vector<Message>{});
        EXPECT_EQ(user.text("txth").empty(), refuses);
    }
    for (const char* tdb : {"125.5", "-40.1"}) {
        user.messages.clear();
        calculate(tdb, "txtRH", "10");
        EXPECT_EQ(user.messages, std::vector{temperatureOutOfRange}) << tdb;
        EXPECT_FALSE(user.isEnabled("btnCALCULATE"));
    }
}

TEST_P(PanelLimits, ClipAWetBulbOrDewPointThatIsNotBelowTheDryBulb)
{
    open();
    expectClip("70", 70.0 - expected().wetBulbClip.english, 70.0 - expected().dewPointClip.english);
    calculate("70.35", "txttd", "70.35");
    EXPECT_EQ(StatePoint.td, static_cast<double>(70.35F) - expected().dewPointClip.english);
    calculate("70", "txtTwb", "69.999");
    expectNoWarning("lblTwb2", " Deg. F");
    calculate("70", "txttd", "69.999");
    expectNoWarning("lblDewPt2", " Deg. F");
}

TEST_P(PanelLimits, ClipAWetBulbOrDewPointInMetricByTheirOwnSteps)
{
    open(true);
    expectClip("20", 20.0 - expected().wetBulbClip.metric, 20.0 - expected().dewPointClip.metric);
}

TEST_P(PanelLimits, ClipARelativeHumidityAboveOneHundredAndAtOrBelowZero)
{
    open();
    calculate("70", "txtRH", "100");
    expectNoWarning("lblRH2", " %");
    EXPECT_EQ(user.text("txtRH"), "100.0");
    EXPECT_EQ(StatePoint.Twb.kind(), NumberKind::Double) << "saturated: just below the dry bulb";
    calculate("70", "txtRH", "100.1");
    expectWarning("lblRH2", " RH clipped at 100%");
    EXPECT_EQ(user.text("txtRH"), "100.0");
    for (const char* text : {"0", "-5", ""}) {
        calculate("70", "txtRH", text);
        expectWarning("lblRH2", " RH clipped at 0.1%");
        EXPECT_EQ(user.text("txtRH"), "0.1");
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST_P(PanelLimits, ClipAHumidityRatioThatIsTooSmall)
{
    open();
    for (const char* w : {"0", "", "0.00001", "-1"}) { // the single 0.00001 lies below the double
        calculate("70", "txtW", w);
        expectWarning("lblW2", " W clipped at 0.00001");
        EXPECT_EQ(user.text("txtW"), "0.00001");
    }
    calculate("70", "txtW", "0.000011");
    expectNoWarning("lblW2", " lb. water/lb. dry air");
}

TEST_P(PanelLimits, ClipAMetricHumidityRatioAtAHundredthOfAGram)
{
    open(true);
    calculate("20", "txtW", "0.005");
    expectWarning("lblW2", " W clipped at 0.00001");
    EXPECT_EQ(user.text("txtW"), "0.01");
    calculate("20", "txtW", "0.011");
    expectNoWarning("lblW2", expected().metricHumidityUnit);
}

TEST_P(PanelLimits, ClipGrainsThatAreTooFew)
{
    open();
    calculate("70", "txtGrains", "0"); // where typed grains are discarded, too, those of a fresh screen are 0
    expectWarning("lblGrains2", " grains clipped at 0.1");
    EXPECT_EQ(user.text("txtGrains"), "0.1");
    if (expected().discardsTypedGrains)
        return; // MixedAirScreen.ThrowsAwayTypedGrainsForTheLastOnes holds what happens to them
    for (const char* grains : {"", "-3", "0.09"}) {
        calculate("70", "txtGrains", grains);
        expectWarning("lblGrains2", " grains clipped at 0.1");
        EXPECT_EQ(user.text("txtGrains"), "0.1");
    }
    calculate("70", "txtGrains", "0.1"); // the single lies above the double
    expectNoWarning("lblGrains2", " grains");
}

TEST_P(PanelLimits, ShowTheWarningUntilTheNextCalculation)
{
    open();
    calculate("70", "txtRH", "100.1");
    enter("70", "txtRH", "50");
    expectWarning("lblRH2", " RH clipped at 100%");
    user.click("btnCALCULATE");
    expectNoWarning("lblRH2", " %");
}

TEST_P(PanelLimits, LeaveTheClippedTextAndTheWarningOnShowWhereTheSolverFails)
{
    store("Pressure_psi", "0"); // every solver divides by it, after the clip
    open();
    expectClippedTexts(
        "70", {{"txtGrains", "-1", "0.1", "lblGrains2", " grains clipped at 0.1"},
               {"txtTwb", "71", expected().wetBulbClip.textAt70, "lblTwb2", " Twb clipped at Tdb"},
               {"txttd", "71", expected().dewPointClip.textAt70, "lblDewPt2", " Dew Pt. clipped at Tdb"},
               {"txtRH", "101", "100", "lblRH2", " RH clipped at 100%"},
               {"txtRH", "-1", "0.1", "lblRH2", " RH clipped at 0.1%"},
               {"txtW", "-1", "0.00001", "lblW2", " W clipped at 0.00001"}});
}

TEST_P(PanelLimits, PutTheKilogramFigureIntoTheFieldInMetric)
{
    store("Pressure_kPa", "0");
    open(true);
    expectClippedTexts(
        "20", {{"txtW", "0.005", "0.00001", "lblW2", " W clipped at 0.00001"},
               {"txtTwb", "21", expected().wetBulbClip.textAt20, "lblTwb2", " Twb clipped at Tdb"},
               {"txttd", "21", expected().dewPointClip.textAt20, "lblDewPt2", " Dew Pt. clipped at Tdb"}});
}
