#pragma once

#include "chart/Layout.h"
#include "tests/chart/Modes.h"

#include <QApplication>

#include <random>
#include <sstream>
#include <string>

/// A chart as someone may have it: of any size, at any pressure that the options accept, in either form,
/// whole or zoomed, with runs, pins and overlays. The same number gives the same chart.
class Picked
{
public:
    explicit Picked(unsigned number) : random(number)
    {
        const bool isMetric = isOdd();
        Mode{isMetric ? True16 : False16, static_cast<Single>(isMetric ? between(47, 110) : between(8, 20))}
            .putInForce();
        size = {std::round(between(160, isOdd() ? 3840 : 900)),
                std::round(between(120, isOdd() ? 2160 : 900))};
        keepRuns();
        view.switches = {true, isOdd() || isOdd(), true, true, isOdd(), isOdd(), isOdd()};
        for (int pins = isOdd() ? 3 : 0; pins > 0; --pins)
            view.pins.push_back(place());
        if (isOdd())
            view.crossHair = place();
        if (isOdd())
            view.zoom = zoomed();
        if (isOdd())
            view.title = "A title";
    }

    chart::Layout layout() const { return {size, QApplication::font(), view}; }

    std::string text() const
    {
        std::ostringstream all;
        all << size.width() << " x " << size.height() << " at " << BaroPressure
            << (view.switches.mollier ? ", Mollier" : "") << (view.zoom ? ", zoomed" : "");
        if (view.zoom)
            all << ' ' << view.zoom->tdb.low << " to " << view.zoom->tdb.high << ", " << view.zoom->w.low
                << " to " << view.zoom->w.high;
        return all.str();
    }

    QSizeF size;
    chart::View view;

private:
    double between(double low, double high) { return std::uniform_real_distribution(low, high)(random); }
    bool isOdd() { return random() % 2 == 1; }

    chart::Place place()
    {
        const double tdb = IsMetric() ? between(-10, 50) : between(10, 120);
        return {tdb, between(0.02, 1) * std::min(0.03, chart::Air::inForce().saturated(tdb))};
    }

    AirSnapshot air()
    {
        const chart::Place picked = place();
        return AirOfRatio(static_cast<Single>(picked.Tdb), static_cast<Single>(picked.W));
    }

    void keepRuns()
    {
        LastRuns = {};
        if (isOdd())
            KeepLastRun(Calculator::Cooling, {{"entering", air()}, {"leaving", air()}});
        if (isOdd())
            KeepLastRun(Calculator::MixedAir, {{"outside", air()}, {"return", air()}, {"mix", air()}});
        if (isOdd()) {
            const AirSnapshot entering = air();
            KeepLastRun(Calculator::Heating, {{"entering", entering},
                                              {"leaving", AirOfRatio(IsMetric() ? 120 : 250, entering.W)}});
        }
        if (isOdd())
            KeepLastRun(Calculator::Humidification,
                        {{"outside", AirAt(IsMetric() ? -38 : -36, 70)}, {"desired", air()}});
    }

    chart::Span zoomed()
    {
        const chart::Place middle = place();
        const double width = std::pow(10, between(-0.5, 2));
        const double height = std::pow(10, between(-4, -1));
        return chart::Span{{middle.Tdb - width, middle.Tdb + width}, {middle.W - height, middle.W + height}}
            .clamped();
    }

    std::mt19937 random;
};
