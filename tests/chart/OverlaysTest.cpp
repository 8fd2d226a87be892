// The comfort zones and the sensible heat ratio on the chart.

#include "chart/Overlays.h"
#include "chart/Layout.h"
#include "core/ThermalComfort.h"
#include "tests/chart/Modes.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <cmath>

namespace {

chart::Layout layoutOf(bool isMollier)
{
    chart::View view;
    view.switches.comfort = true;
    view.switches.heatRatio = true;
    view.switches.mollier = isMollier;
    return {QSizeF(1400, 1000), QApplication::font(), view};
}

double voteAt(const chart::Place& place, double clo)
{
    const double tdb = IsMetric() ? place.Tdb : (place.Tdb - 32) / 1.8;
    const double pascals = BaroPressure * (IsMetric() ? 1000 : 1000 * KiloPascalPerPsi);
    return PredictedMeanVote({tdb, tdb, 0.1, pascals * place.W / (0.62198 + place.W), 1.1, clo});
}

bool isNamed(const chart::Layout& chart, const QString& text)
{
    return std::ranges::any_of(chart.labels.all(),
                               [&](const chart::Label& label) { return label.text == text; });
}

} // namespace

TEST(ChartOverlays, AreTheComfortZonesWhereTheVoteIsSmall)
{
    for (const Mode& mode : modes) {
        for (const bool isMollier : {false, true}) {
            mode.putInForce();
            const chart::Layout chart = layoutOf(isMollier);
            ASSERT_EQ(chart.zones.size(), 2U);
            for (const double clo : {1.0, 0.5}) {
                const chart::ComfortZone& zone = chart.zones.at(clo == 1.0 ? 0 : 1);
                int inside = 0;
                for (double x = 3; x < chart.size.width(); x += 11) {
                    for (double y = 3; y < chart.size.height(); y += 11) {
                        const chart::Place place = chart.plane.placeAt({x, y});
                        const double vote = voteAt(place, clo);
                        const bool isNearEdge = std::fabs(std::fabs(vote) - 0.5) < 0.02 ||
                                                std::fabs(place.W - 0.012) < 1e-4 ||
                                                std::fabs(place.W) < 1e-4 ||
                                                std::fabs(place.W - chart.air.saturated(place.Tdb)) < 2e-4;
                        if (isNearEdge)
                            continue;
                        const bool isComfortable = std::fabs(vote) < 0.5 && place.W < 0.012 && place.W > 0 &&
                                                   place.W < chart.air.saturated(place.Tdb);
                        EXPECT_EQ(zone.area.containsPoint({x, y}, Qt::OddEvenFill), isComfortable)
                            << place.Tdb << ", " << place.W << ", " << clo << " clo";
                        inside += isComfortable ? 1 : 0;
                    }
                }
                EXPECT_GT(inside, 50);
            }
            EXPECT_TRUE(isNamed(chart, "Winter, 1.0 clo"));
            EXPECT_TRUE(isNamed(chart, "Summer, 0.5 clo"));
        }
    }
}

TEST(ChartOverlays, EndAtSaturationInDenseAir)
{
    Mode{False16, 20}.putInForce();
    const chart::Layout chart = layoutOf(false);
    for (const chart::ComfortZone& zone : chart.zones) {
        for (const QPointF& corner : zone.area) {
            const chart::Place place = chart.plane.placeAt(corner);
            EXPECT_LE(place.W, chart.air.saturated(place.Tdb) + 1e-5);
        }
    }
}

TEST(ChartOverlays, HaveTheSensibleHeatRatioOfEachCoil)
{
    for (const Mode& mode : modes) {
        for (const bool isMollier : {false, true}) {
            mode.putInForce();
            const AirSnapshot warm = AirAt(IsMetric() ? 30 : 86, 50);
            const AirSnapshot cool = AirAt(IsMetric() ? 13 : 55, 95);
            KeepLastRun(Calculator::Cooling, {{"entering", warm}, {"leaving", cool}});
            const AirSnapshot cold = AirAt(IsMetric() ? 5 : 41, 50);
            KeepLastRun(Calculator::Heating,
                        {{"entering", cold}, {"leaving", AirOfRatio(IsMetric() ? 35 : 95, cold.W)}});
            const chart::Layout chart = layoutOf(isMollier);
            ASSERT_EQ(chart.heatRatios.size(), 2U);
            const double latent = IsMetric() ? 2501 + 1.805 * warm.Tdb : 1061 + 0.444 * warm.Tdb;
            const double expected = 1 - (warm.W - cool.W) * latent / (warm.h - cool.h);
            EXPECT_NEAR(*chart.heatRatios.at(0).value, expected, 1e-4);
            EXPECT_EQ(chart.heatRatios.at(1).value, 1.0);
            EXPECT_TRUE(isNamed(chart, "SHR 1.00"));
            EXPECT_TRUE(isNamed(chart, "SHR " + QString::number(expected, 'f', 2)));
            const QLineF line = chart.heatRatios.at(0).line;
            const chart::Place end = chart.plane.placeAt(line.p2());
            EXPECT_NEAR(end.W, chart.air.saturated(end.Tdb), 1e-4) << "it ends at the dew point of the coil";
            const QLineF process = chart.processes.at(0).line;
            EXPECT_NEAR(std::remainder(line.angle() - process.angle(), 180), 0, 0.01);
        }
    }
}

TEST(ChartOverlays, HaveNoRatioWithoutALoad)
{
    modes.front().putInForce();
    LastRuns = {};
    const AirSnapshot air = AirAt(70, 50);
    KeepLastRun(Calculator::Heating, {{"entering", air}, {"leaving", air}});
    KeepLastRun(Calculator::MixedAir, {{"outside", AirAt(90, 50)}, {"return", air}});
    EXPECT_TRUE(layoutOf(false).heatRatios.empty());
    EXPECT_EQ(chart::SensibleHeatRatio({"", 70, 0.01F, 14}, {"", 70, 0.01F, 14}), std::nullopt);
    EXPECT_EQ(chart::SensibleHeatRatio({"", 70, 0.01F, 14}, {"", 70, 0.008F, 14}), 0.0);
}
