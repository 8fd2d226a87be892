// The standard atmosphere against the published table of the ASHRAE Handbook of Fundamentals.

#include "core/StandardAtmosphere.h"

#include <gtest/gtest.h>

namespace {

struct Row
{
    double altitude; ///< ft or m
    double pressure; ///< psi or kPa
    bool isMetric;
};

constexpr Row rows[] = {{0, 14.696, false},   {1000, 14.175, false}, {5000, 12.228, false},
                        {0, 101.325, true},   {1000, 89.874, true},  {3000, 70.108, true},
                        {-500, 107.478, true}};

} // namespace

TEST(StandardAtmosphereTest, HasThePublishedPressures)
{
    constexpr double ofTheFit = 0.003; // the table is of the atmosphere itself, the equation a fit to it
    for (const Row& row : rows)
        EXPECT_NEAR(StandardPressure(row.altitude, row.isMetric), row.pressure, ofTheFit) << row.altitude;
    EXPECT_EQ(StandardPressure(1e6, false), 0) << "above the atmosphere";
}

TEST(StandardAtmosphereTest, FindsTheAltitudeOfAPressure)
{
    for (const Row& row : rows)
        EXPECT_NEAR(StandardAltitude(StandardPressure(row.altitude, row.isMetric), row.isMetric),
                    row.altitude, 1e-6);
}
