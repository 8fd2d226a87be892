// The record of each calculator's last run.

#include "core/LastRuns.h"

#include <gtest/gtest.h>

namespace {

AirSnapshot airOf(Single tdb, Single w, Single p)
{
    AirSnapshot air;
    air.Tdb = tdb;
    air.W = w;
    air.P = p;
    return air;
}

} // namespace

TEST(LastRunsRecord, IsEmptyBeforeTheFirstRun)
{
    for (const LastRun& run : LastRuns)
        EXPECT_TRUE(run.states.empty());
}

TEST(LastRunsRecord, KeepsTheStatesWithTheirNamesPressuresAndUnits)
{
    UnitSystem = True16;
    KeepLastRun(Calculator::Cooling,
                {{"entering", airOf(27, 0.011F, 101325)}, {"leaving", airOf(13, 0.009F, 80000)}});
    EXPECT_EQ(LastRuns.at(2), (LastRun{Calculator::Cooling,
                                       True16,
                                       {{"entering", 27, 0.011F, 101325}, {"leaving", 13, 0.009F, 80000}}}));
    EXPECT_TRUE(LastRuns.at(3).states.empty());
}

TEST(LastRunsRecord, IsReplacedByTheNextRunOfItsCalculatorAlone)
{
    KeepLastRun(Calculator::Heating, {{"entering", airOf(70, 0.006F, 14.696F)}});
    KeepLastRun(Calculator::MixedAir, {{"mix", airOf(80, 0.01F, 14.696F)}});
    KeepLastRun(Calculator::MixedAir, {{"mix", airOf(60, 0.01F, 12)}});
    EXPECT_EQ(LastRuns.at(1).states, (std::vector<RunState>{{"mix", 60, 0.01F, 12}}));
    EXPECT_EQ(LastRuns.at(3).states, (std::vector<RunState>{{"entering", 70, 0.006F, 14.696F}}));
}
