// Readings of the chart compared with the calculators' own solver.

#include "chart/Reading.h"
#include "chart/Layout.h"
#include "chart/Painter.h"
#include "chart/Texts.h"
#include "tests/chart/Modes.h"
#include "tests/chart/WholeState.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

#include <random>

namespace {

/// A random state at a random pressure that the options accept, put in force.
chart::Place randomPlace(std::mt19937& random, Boolean16 units)
{
    const auto between = [&random](double low, double high) {
        return std::uniform_real_distribution(low, high)(random);
    };
    const bool isMetric = units != False16;
    Mode{units, static_cast<Single>(isMetric ? between(47, 110) : between(8, 20))}.putInForce();
    const double tdb = isMetric ? between(-40, 60) : between(-40, 140);
    const chart::Air air = chart::Air::inForce();
    return {tdb, between(0.001, 1) * std::min(air.saturated(tdb), 0.2)};
}

AirSnapshot solved(const chart::Place& place)
{
    return AirOfRatio(static_cast<Single>(place.Tdb), static_cast<Single>(place.W));
}

QString valueOf(const chart::Reading& reading, const QString& name)
{
    for (const chart::Figure& figure : chart::FiguresOf(reading)) {
        if (figure.name == name)
            return figure.value;
    }
    return {};
}

} // namespace

TEST(ChartReading, IsWhatTheSolverFindsAtTenThousandPlaces)
{
    std::mt19937 random(13);
    for (const Boolean16 units : {False16, True16}) {
        int wetBulbs = 0;
        for (int count = 0; count < 10000; ++count) {
            const chart::Place place = randomPlace(random, units);
            const chart::Reading reading = chart::ReadingAt(chart::Air::inForce(), place);
            const AirSnapshot air = solved(place);
            ASSERT_EQ(reading.Tdb, air.Tdb);
            ASSERT_EQ(reading.W, air.W);
            ASSERT_EQ(reading.P, air.P);
            ASSERT_EQ(reading.RH, air.RH) << air.Tdb << ' ' << air.W;
            ASSERT_EQ(reading.td, air.td) << air.Tdb << ' ' << air.W;
            ASSERT_EQ(reading.h, air.h);
            ASSERT_EQ(reading.SpVol, air.SpVol);
            ASSERT_EQ(reading.Grains, IsMetric() ? std::nullopt : std::optional(air.Grains));
            if (reading.Twb) {
                ASSERT_EQ(*reading.Twb, air.Twb) << air.Tdb << ' ' << air.W;
                ++wetBulbs;
            }
        }
        EXPECT_GT(wetBulbs, 9800);
    }
}

TEST(ChartReading, HasNoWetBulbOutsideTheBracketOfTheSearch)
{
    Mode{False16, 14.696F}.putInForce();
    const chart::Reading hot = chart::ReadingAt(chart::Air::inForce(), {250, 0.002});
    EXPECT_FALSE(hot.Twb) << "its wet bulb is over 100 degrees lower, the search looks 70 degrees down";
    EXPECT_TRUE(hot.RH && hot.td && hot.h && hot.SpVol);
    EXPECT_EQ(valueOf(hot, "Wet bulb"), "–");
    EXPECT_GT(*hot.td, 0);
    Mode{True16, 101.325F}.putInForce();
    EXPECT_FALSE(chart::ReadingAt(chart::Air::inForce(), {110, 0.002}).Twb);
    EXPECT_TRUE(chart::ReadingAt(chart::Air::inForce(), {40, 0.002}).Twb);
}

TEST(ChartReading, LeavesOutWhatARelationRefuses)
{
    Mode{False16, 14.696F}.putInForce();
    const chart::Reading dry = chart::ReadingAt(chart::Air::inForce(), {70, 0});
    EXPECT_FALSE(dry.td) << "dry air has no dew point";
    EXPECT_EQ(valueOf(dry, "Dew point"), "–");
    EXPECT_EQ(dry.RH, 0.0F);
    EXPECT_EQ(valueOf(dry, "Humidity ratio"), "0.0000");
    for (const double tdb : {-1e30, -500.0, 0.0, 212.0, 1e30, 1e300}) {
        for (const double w : {-1.0, -0.62198, 0.0, 0.01, 1e30})
            EXPECT_NO_THROW(chart::ReadingAt(chart::Air::inForce(), {tdb, w})) << tdb << ", " << w;
    }
    EXPECT_NO_THROW(chart::ReadingAt(chart::Air(0), {70, 0.01}));
}

TEST(ChartReading, IsThatOfThePublishedExample)
{
    Mode{True16, 101.325F}.putInForce(); // example 1: 40 deg C, 20 deg C wet bulb
    const chart::Air air = chart::Air::inForce();
    const chart::Reading reading = chart::ReadingAt(air, {40, air.onWetBulb(20, 40)});
    EXPECT_NEAR(reading.W, 0.0065, 0.0001);
    EXPECT_NEAR(*reading.Twb, 20, 0.05);
    EXPECT_NEAR(*reading.td, 7.6, 0.1); // printed as 7, read off a chart
    EXPECT_NEAR(*reading.RH, 0.14, 0.01);
    EXPECT_NEAR(*reading.h, 56.7, 0.2);
    EXPECT_NEAR(*reading.SpVol, 0.896, 0.00896);
}

TEST(ChartReading, IsTheSameInBothForms)
{
    std::mt19937 random(14);
    for (const Boolean16 units : {False16, True16}) {
        for (int count = 0; count < 200; ++count) {
            const chart::Place place = randomPlace(random, units);
            chart::Layout psychrometric({900, 700}, QApplication::font());
            chart::View view;
            view.switches.mollier = true;
            chart::Layout mollier({900, 700}, QApplication::font(), view);
            const chart::Place one = psychrometric.plane.placeAt(psychrometric.plane.at(place));
            const chart::Place other = mollier.plane.placeAt(mollier.plane.at(place));
            const auto figures = chart::FiguresOf(chart::ReadingAt(psychrometric.air, one));
            const auto figuresOfMollier = chart::FiguresOf(chart::ReadingAt(mollier.air, other));
            ASSERT_EQ(figures.size(), figuresOfMollier.size());
            for (std::size_t index = 0; index < figures.size(); ++index)
                EXPECT_EQ(figures[index].value, figuresOfMollier[index].value) << place.Tdb << ' ' << place.W;
        }
    }
}

TEST(ChartReading, WritesNothing)
{
    for (const Mode& mode : modes) {
        mode.putInForce();
        const AirSnapshot air = AirAt(IsMetric() ? 25 : 77, 50);
        KeepLastRun(Calculator::Cooling, {{"entering", air}, {"leaving", AirAt(IsMetric() ? 12 : 54, 95)}});
        chart::View view;
        view.switches = {true, true, true, true, true, true, false};
        view.pins = {{air.Tdb, air.W}};
        view.crossHair = view.pins.front();
        const std::string before = wholeState();
        const auto runs = LastRuns;
        for (const bool isMollier : {false, true}) {
            view.switches.mollier = isMollier;
            const chart::Layout layout({800, 600}, QApplication::font(), view);
            QImage image(800, 600, QImage::Format_RGB32);
            QPainter painter(&image);
            chart::Paint(painter, layout, QPalette());
            chart::ReadingAt(layout.air, {air.Tdb, air.W * 0.5});
            chart::ReadingAt(layout.air, {air.Tdb, 1});
        }
        EXPECT_EQ(wholeState(), before);
        EXPECT_EQ(LastRuns, runs);
    }
}
