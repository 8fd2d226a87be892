// Which states the chart shows.

#include "shell/chart/ChartStates.h"
#include "shell/chart/ChartLayout.h"
#include "tests/shell/chart/ChartModes.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <random>
#include <string>

namespace {

std::vector<std::string> shown()
{
    std::vector<std::string> names;
    for (const ChartRun& run : LastRuns()) {
        for (const ChartState& state : run.states)
            names.push_back(run.title + " " + state.name);
    }
    return names;
}

std::size_t processes()
{
    std::size_t count = 0;
    for (const ChartRun& run : LastRuns())
        count += run.processes.size();
    return count;
}

using Names = std::vector<std::string>;

void putMixture(Single part)
{
    MixedOutsideAir = airAt(95, 40);
    MixedReturnAir = airAt(75, 50);
    const double other = 1.0 - part;
    const auto w = static_cast<Single>(part * MixedOutsideAir.W + other * MixedReturnAir.W);
    const auto h = static_cast<Single>(part * MixedOutsideAir.h + other * MixedReturnAir.h);
    MixedResultAir = airOfRatio(DryBulbFromEnthalpy(h, w), w);
}

class ChartStates : public testing::Test
{
protected:
    void SetUp() override { ChartMode{False16, 14.696F}.putInForce(); }
};

} // namespace

TEST_F(ChartStates, AreNoneBeforeTheFirstRun)
{
    EXPECT_EQ(shown(), Names());
    UnitSystem = True16;
    EXPECT_EQ(shown(), Names());
}

TEST_F(ChartStates, AreTrueInEveryModeByEveryItem)
{
    for (const ChartMode& mode : chartModes) {
        mode.putInForce();
        HeatingEnteringAir = airAt(33, 64);
        EXPECT_EQ(shown(), Names{"Heating entering"});
        StatePoint.Twb = IsMetric() ? 20.0 : 29.0;
        SolveFromWetBulb();
        HeatingEnteringAir = AirSnapshot::of(StatePoint, 1);
        EXPECT_EQ(shown(), Names{"Heating entering"});
        StatePoint.td = IsMetric() ? 11.0 : 24.0;
        SolveFromDewPoint();
        HeatingEnteringAir = AirSnapshot::of(StatePoint, 1);
        EXPECT_EQ(shown(), Names{"Heating entering"});
    }
    ChartMode{False16, 14.696F}.putInForce();
    StatePoint.P = 14.696F;
    StatePoint.Tdb = 75;
    StatePoint.Grains = 60.3;
    SolveFromGrains();
    HeatingEnteringAir = AirSnapshot::of(StatePoint, 1);
    EXPECT_EQ(shown(), Names{"Heating entering"});
}

TEST_F(ChartStates, OfTheOtherUnitsAreNotShown)
{
    putMixture(0.25F);
    EXPECT_EQ(shown(), (Names{"Mixed air outside", "Mixed air return", "Mixed air mix"}));
    ChartMode{True16, 101.325F}.putInForce();
    EXPECT_EQ(shown(), Names());
    ChartMode{True16, 14.696F}.putInForce(); // what a refused pressure leaves
    EXPECT_EQ(shown(), Names());
    HeatingEnteringAir = airAt(20, 50);
    EXPECT_EQ(shown(), Names{"Heating entering"});
    ChartMode{False16, 14.696F}.putInForce();
    EXPECT_EQ(shown(), (Names{"Mixed air outside", "Mixed air return", "Mixed air mix"}));
}

TEST_F(ChartStates, HalfWrittenAreNotShown)
{
    HeatingEnteringAir = airAt(70, 50);
    HeatingEnteringAir.Tdb = 71; // as a refused calculation leaves it
    EXPECT_EQ(shown(), Names());
    HeatingEnteringAir = airAt(70, 50);
    HeatingEnteringAir.W = 0.009F;
    EXPECT_EQ(shown(), Names());
    HeatingEnteringAir = airAt(70, 50);
    HeatingEnteringAir.P = 12;
    EXPECT_EQ(shown(), Names());
}

TEST_F(ChartStates, AboveSaturationAreNotShown)
{
    HumidOutsideAir = airAt(40, 50);
    HumidDesiredAir = airAt(70, 100);
    EXPECT_EQ(shown(), (Names{"Humidification outside", "Humidification desired"}));
    HumidDesiredAir.W *= 1.5F;
    HumidDesiredAir.h = EnthalpyOf(70, HumidDesiredAir.W);
    HumidDesiredAir.SpVol = SpecificVolumeOf(ToAbsolute(70), HumidDesiredAir.W, HumidDesiredAir.P);
    EXPECT_EQ(shown(), Names{"Humidification outside"});
}

TEST_F(ChartStates, AreJoinedByTheProcessOfTheirRun)
{
    putMixture(0.4F);
    EXPECT_EQ(processes(), 1U);
    CoolingEnteringAir = airAt(80, 50);
    CoolingLeavingAir = airAt(55, 95);
    HeatingEnteringAir = airAt(70, 50);
    HeatingLeavingAir = airOfRatio(100, HeatingEnteringAir.W);
    HumidOutsideAir = airAt(40, 50);
    HumidDesiredAir = airAt(70, 45);
    EXPECT_EQ(processes(), 4U);
    EXPECT_EQ(shown().size(), 9U);
}

TEST_F(ChartStates, OfAnEarlierRunAreNotJoinedToALaterOne)
{
    putMixture(0.4F);
    MixedReturnAir = airAt(60, 50); // saved anew: the mixture is of other streams
    EXPECT_EQ(shown(), (Names{"Mixed air outside", "Mixed air return"}));
    EXPECT_EQ(processes(), 0U);
    HeatingEnteringAir = airAt(70, 50);
    HeatingLeavingAir = airAt(100, 20);
    EXPECT_EQ(processes(), 0U);
    CoolingEnteringAir = airAt(80, 50, 1000);
    CoolingLeavingAir = airAt(55, 95, 900);
    EXPECT_EQ(processes(), 0U);
}

TEST_F(ChartStates, KeepTheMixtureWhenAnotherScreenChangesTheOutsideVolume)
{
    putMixture(0.4F);
    MixedOutsideAir.AirVolume = 5;
    EXPECT_EQ(processes(), 1U);
}

TEST_F(ChartStates, KnowEveryMixtureAsTheCalculatorRoundsIt)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<Single> anyTdb(0, 45);
    std::uniform_real_distribution<Single> anyRH(5, 95);
    std::uniform_real_distribution<Single> anyVolume(1, 9999);
    for (const ChartMode& mode : chartModes) {
        mode.putInForce();
        const Single warmer = IsMetric() ? 0.0F : 60.0F;
        int mixtures = 0;
        for (int count = 0; count < 400; ++count) {
            MixedOutsideAir = airAt(anyTdb(random) + warmer, anyRH(random), anyVolume(random));
            MixedReturnAir = airAt(anyTdb(random) + warmer, anyRH(random), anyVolume(random));
            const TaggedNumber outside = TaggedNumber(MixedOutsideAir.AirVolume) / MixedOutsideAir.SpVol;
            const TaggedNumber back = TaggedNumber(MixedReturnAir.AirVolume) / MixedReturnAir.SpVol;
            const TaggedNumber w = (MixedOutsideAir.W * outside + MixedReturnAir.W * back) / (back + outside);
            const TaggedNumber h = (MixedOutsideAir.h * outside + MixedReturnAir.h * back) / (back + outside);
            MixedResultAir = airOfRatio(DryBulbFromEnthalpy(h.asSingle(), w.asSingle()), w.asSingle());
            if (HumidityRatioTooHigh != False16)
                continue; // fog
            ++mixtures;
            EXPECT_EQ(processes(), 1U) << MixedOutsideAir.Tdb << ", " << MixedReturnAir.Tdb;
        }
        EXPECT_GT(mixtures, 200);
    }
}

TEST_F(ChartStates, OfTheAirPropertiesAreKeptForTheChart)
{
    airAt(75, 50);
    KeepAirProperties();
    ClearStatePoint();
    EXPECT_EQ(shown(), Names{"Air properties air"});
    KeepAirProperties(); // a cleared state is no air
    EXPECT_EQ(shown(), Names{"Air properties air"});
    StatePoint.RH = "what a field held";
    KeepAirProperties();
    EXPECT_EQ(shown(), Names{"Air properties air"});
}

TEST_F(ChartStates, WidenTheSpanSoThatAllAreSeen)
{
    for (const ChartMode& mode : chartModes) {
        mode.putInForce();
        const bool isMetric = IsMetric();
        HumidOutsideAir = airAt(isMetric ? -20 : -4, 60);
        HumidDesiredAir = airAt(isMetric ? 50 : 122, 100);
        HeatingEnteringAir = airAt(20, 50);
        HeatingLeavingAir = airOfRatio(isMetric ? 110 : 230, HeatingEnteringAir.W);
        const ChartLayout chart({560, 610}, QApplication::font());
        ASSERT_EQ(chart.marks.size(), 4U);
        for (const ChartMark& mark : chart.marks)
            EXPECT_TRUE(chart.plane.plot.contains(mark.place));
    }
}

TEST_F(ChartStates, LeaveTheUsualSpanAloneWhereTheyLieInIt)
{
    HeatingEnteringAir = airAt(70, 50);
    const ChartLayout chart({560, 610}, QApplication::font());
    EXPECT_EQ(chart.plane.span.tdb.low, 30);
    EXPECT_EQ(chart.plane.span.tdb.high, 120);
    EXPECT_EQ(chart.plane.span.w.high, 0.03);
}

TEST_F(ChartStates, BeyondAnyAirDoNotStretchTheChart)
{
    HeatingEnteringAir = airAt(70, 50);
    HeatingLeavingAir = HeatingEnteringAir;
    HeatingLeavingAir.Tdb = 390; // as hot as the relations go, and off the chart
    HeatingLeavingAir.h = EnthalpyOf(390, HeatingLeavingAir.W);
    HeatingLeavingAir.SpVol = SpecificVolumeOf(ToAbsolute(390), HeatingLeavingAir.W, HeatingLeavingAir.P);
    EXPECT_EQ(shown().size(), 2U);
    const ChartLayout chart({560, 610}, QApplication::font());
    EXPECT_EQ(chart.plane.span.tdb.high, 120);
    EXPECT_EQ(chart.marks.size(), 1U);
    EXPECT_EQ(chart.labels.all().at(3).text, "2 leaving (off the chart)");
}
