// How the chart converts states to points of the picture in both forms, zooms and moves.

#include "chart/Plane.h"
#include "tests/chart/Modes.h"

#include <gtest/gtest.h>

#include <random>

namespace {

chart::Plane planeOf(bool isMollier, const chart::Span& span = chart::Span::around({}))
{
    return {span, QRectF(40, 30, 800, 600), isMollier};
}

void expectSame(const chart::Place& one, const chart::Place& other)
{
    EXPECT_NEAR(one.Tdb, other.Tdb, 1e-9);
    EXPECT_NEAR(one.W, other.W, 1e-12);
}

} // namespace

TEST(ChartPlane, FindsThePlaceOfEveryPointInBothForms)
{
    std::mt19937 random(1);
    std::uniform_real_distribution part(-0.5, 1.5);
    for (const Mode& mode : modes) {
        mode.putInForce();
        for (const bool isMollier : {false, true}) {
            const chart::Plane plane = planeOf(isMollier);
            for (int count = 0; count < 100; ++count) {
                const chart::Place place{plane.span.tdb.at(part(random)), plane.span.w.at(part(random))};
                expectSame(plane.placeAt(plane.at(place)), place);
            }
        }
    }
}

TEST(ChartPlane, HasStraightEnthalpiesInMolliersFormAndALevelIsothermOfZero)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        const chart::Plane plane = planeOf(true, {{-20, 60}, {0, 0.04}});
        EXPECT_DOUBLE_EQ(plane.at(0, 0).y(), plane.at(0, 0.03).y());
        EXPECT_GT(plane.at(50, 0).y(), plane.at(50, 0.03).y()) << "isotherms rise";
        const double h = IsMetric() ? 70 : 30;
        const auto at = [&](double w) {
            return plane.at(DryBulbFromEnthalpy(static_cast<Single>(h), static_cast<Single>(w)), w);
        };
        const QPointF middle = (at(0.002) + at(0.02)) / 2;
        EXPECT_NEAR(at(0.011).x(), middle.x(), 1e-3);
        EXPECT_NEAR(at(0.011).y(), middle.y(), 1e-3);
    }
}

TEST(ChartPlane, ZoomsAboutThePointer)
{
    for (const bool isMollier : {false, true}) {
        modes.front().putInForce();
        chart::Plane plane = planeOf(isMollier);
        const QPointF pointer(300, 400);
        const chart::Place place = plane.placeAt(pointer);
        plane.span = plane.zoomed(pointer, 2);
        EXPECT_NEAR(plane.span.tdb.length(), 45, 1e-9);
        EXPECT_NEAR(plane.span.w.length(), 0.015, 1e-12);
        expectSame(plane.placeAt(pointer), place);
        plane.span = plane.moved({-50, 20});
        expectSame(plane.placeAt(pointer + QPointF(-50, 20)), place);
    }
}

TEST(ChartPlane, StaysWithinTheWidestSpanAndTheResolutionOfTheRelations)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        for (const bool isMollier : {false, true}) {
            chart::Plane plane = planeOf(isMollier);
            plane.span = plane.zoomed({300, 400}, 1e-9);
            EXPECT_EQ(plane.span, chart::Span::widest());
            plane.span = plane.moved({1e6, -1e6});
            EXPECT_EQ(plane.span, chart::Span::widest());
            plane.span = plane.zoomed({300, 400}, 1e30);
            EXPECT_NEAR(plane.span.tdb.length(), IsMetric() ? 0.5 : 1, 1e-9);
            EXPECT_NEAR(plane.span.w.length(), 0.0002, 1e-12);
            plane.span = plane.moved({-1e9, 1e9});
            EXPECT_GE(plane.span.tdb.low, chart::Span::widest().tdb.low);
            EXPECT_LE(plane.span.w.high, chart::Span::widest().w.high);
        }
    }
}
