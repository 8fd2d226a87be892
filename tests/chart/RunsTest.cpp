// Which of the recorded runs the chart shows, and how far it extends to include them.

#include "chart/Runs.h"
#include "chart/Layout.h"
#include "tests/chart/Modes.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <string>

namespace {

using Names = std::vector<std::string>;

Names shown()
{
    Names names;
    for (const chart::Run& run : chart::ShownRuns()) {
        for (const RunState& state : run.states)
            names.push_back(chart::TitleOf(run.calculator) + (" " + state.name));
    }
    return names;
}

std::size_t lines()
{
    std::size_t count = 0;
    for (const chart::Run& run : chart::ShownRuns())
        count += run.isJoined ? 1U : 0U;
    return count;
}

void heat(const AirSnapshot& entering, Single leavingTdb)
{
    KeepLastRun(Calculator::Heating,
                {{"entering", entering}, {"leaving", AirOfRatio(leavingTdb, entering.W)}});
}

void keepAir(const AirSnapshot& air) { KeepLastRun(Calculator::AirProperties, {{"air", air}}); }

class ChartedRuns : public testing::Test
{
protected:
    void SetUp() override { Mode{False16, 14.696F}.putInForce(); }
};

} // namespace

TEST_F(ChartedRuns, AreNoneBeforeTheFirstRun)
{
    EXPECT_EQ(shown(), Names());
    UnitSystem = True16;
    EXPECT_EQ(shown(), Names());
}

TEST_F(ChartedRuns, AreShownInTheOrderOfTheMainMenuAndJoined)
{
    KeepLastRun(Calculator::Humidification, {{"outside", AirAt(40, 50)}, {"desired", AirAt(70, 45)}});
    heat(AirAt(70, 50), 100);
    KeepLastRun(Calculator::Cooling, {{"entering", AirAt(80, 50)}, {"leaving", AirAt(55, 95)}});
    KeepLastRun(Calculator::MixedAir,
                {{"outside", AirAt(95, 40)}, {"return", AirAt(75, 50)}, {"mix", AirAt(80, 47)}});
    keepAir(AirAt(70, 50));
    EXPECT_EQ(shown(), (Names{"Air properties air", "Mixed air outside", "Mixed air return", "Mixed air mix",
                              "Cooling entering", "Cooling leaving", "Heating entering", "Heating leaving",
                              "Humidification outside", "Humidification desired"}));
    EXPECT_EQ(lines(), 4U);
    EXPECT_FALSE(chart::ShownRuns().at(1).isDirected()) << "a mixture has no direction";
    EXPECT_TRUE(chart::ShownRuns().at(2).isDirected());
}

TEST_F(ChartedRuns, OfTheOtherUnitsAreNotShown)
{
    heat(AirAt(70, 50), 100);
    keepAir(AirAt(75, 50));
    Mode{True16, 101.325F}.putInForce();
    EXPECT_EQ(shown(), Names());
    Mode{True16, 14.696F}.putInForce(); // the mode after a refused pressure
    EXPECT_EQ(shown(), Names());
    Mode{True16, 101.325F}.putInForce();
    keepAir(AirAt(20, 50));
    EXPECT_EQ(shown(), Names{"Air properties air"});
    Mode{False16, 14.696F}.putInForce();
    EXPECT_EQ(shown(), (Names{"Heating entering", "Heating leaving"}));
}

TEST_F(ChartedRuns, AtAnotherPressureAreShownStill)
{
    keepAir(AirAt(75, 50));
    Mode{False16, 12}.putInForce();
    ASSERT_EQ(shown(), Names{"Air properties air"});
    EXPECT_EQ(chart::ShownRuns().front().states.front().P, 14.696F);
}

TEST_F(ChartedRuns, ShowSaturatedAirByEveryItem)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        for (const Single tdb : {33.0F, 40.0F, 49.0F}) {
            keepAir(AirAt(tdb, 100));
            EXPECT_EQ(shown().size(), 1U) << tdb;
            StatePoint.Twb = tdb - 0.005;
            SolveFromWetBulb();
            keepAir(AirSnapshot::of(StatePoint, 0));
            EXPECT_EQ(shown().size(), 1U) << tdb;
            StatePoint.td = tdb - 0.005;
            SolveFromDewPoint();
            keepAir(AirSnapshot::of(StatePoint, 0));
            EXPECT_EQ(shown().size(), 1U) << tdb;
        }
    }
}

TEST_F(ChartedRuns, LeaveOutStatesAboveSaturationAndTheirLine)
{
    AirSnapshot desired = AirAt(70, 100);
    KeepLastRun(Calculator::Humidification, {{"outside", AirAt(40, 50)}, {"desired", desired}});
    EXPECT_EQ(shown(), (Names{"Humidification outside", "Humidification desired"}));
    EXPECT_EQ(lines(), 1U);
    desired.W *= 1.001F;
    KeepLastRun(Calculator::Humidification, {{"outside", AirAt(40, 50)}, {"desired", desired}});
    EXPECT_EQ(shown(), Names{"Humidification outside"});
    EXPECT_EQ(lines(), 0U);
    AirSnapshot fog = AirAt(60, 100);
    fog.W *= 1.1F;
    KeepLastRun(Calculator::MixedAir,
                {{"outside", AirAt(40, 100)}, {"return", AirAt(80, 100)}, {"mix", fog}});
    EXPECT_EQ(shown(), (Names{"Mixed air outside", "Mixed air return", "Humidification outside"}));
    EXPECT_EQ(lines(), 0U);
}

TEST_F(ChartedRuns, WidenTheSpanToIncludeThem)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        const bool isMetric = IsMetric();
        KeepLastRun(Calculator::Humidification, {{"outside", AirAt(isMetric ? -20 : -4, 60)},
                                                 {"desired", AirAt(isMetric ? 50 : 122, 100)}});
        heat(AirAt(20, 50), isMetric ? 110 : 230);
        const chart::Layout layout({560, 610}, QApplication::font());
        ASSERT_EQ(layout.marks.size(), 4U);
        for (const chart::Mark& mark : layout.marks)
            EXPECT_TRUE(layout.plane.plot.contains(mark.place));
    }
}

TEST_F(ChartedRuns, LeaveTheUsualSpanIfItIncludesThem)
{
    keepAir(AirAt(70, 50));
    const chart::Layout layout({560, 610}, QApplication::font());
    EXPECT_EQ(layout.plane.span.tdb.low, 30);
    EXPECT_EQ(layout.plane.span.tdb.high, 120);
    EXPECT_EQ(layout.plane.span.w.high, 0.03);
}

TEST_F(ChartedRuns, FarOutsideDoNotStretchTheChart)
{
    const AirSnapshot entering = AirAt(70, 50);
    AirSnapshot leaving = entering;
    leaving.Tdb = 390; // in the range of the relations but not of the chart
    KeepLastRun(Calculator::Heating, {{"entering", entering}, {"leaving", leaving}});
    EXPECT_EQ(shown().size(), 2U);
    const chart::Layout layout({560, 610}, QApplication::font());
    EXPECT_EQ(layout.plane.span.tdb.high, 120);
    EXPECT_EQ(layout.marks.size(), 1U);
    EXPECT_EQ(layout.labels.all().at(3).text, "2 leaving (off the chart)");
}
