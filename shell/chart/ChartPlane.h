#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

/// One axis: its ends stand on round figures.
struct ChartAxis
{
    double low = 0;
    double high = 0;

    double length() const { return high - low; }
    /// 0 at the low end, 1 at the high end.
    double part(double value) const { return (value - low) / length(); }
    bool holds(double value) const { return value >= low && value <= high; }

    /// The multiples of 1, 2 or 5 times a power of ten that stand at least so many pixels apart.
    double step(double pixels, double leastApart) const;
    std::vector<double> multiples(double step) const;
};

/// What the chart spans: dry bulb, deg F or deg C, and humidity ratio, lb/lb or kg/kg.
struct ChartSpan
{
    ChartAxis tdb{};
    ChartAxis w{};

    /// The usual span of the units in force, widened so that all these states (dry bulb, humidity ratio) are
    /// seen, as far as moist air goes.
    static ChartSpan around(const std::vector<QPointF>& states);
    bool holds(double dryBulb, double humidityRatio) const
    {
        return tdb.holds(dryBulb) && w.holds(humidityRatio);
    }
};

/// Turns states into places on the picture and back.
struct ChartPlane
{
    ChartSpan span{};
    QRectF plot{};

    QPointF at(double tdb, double w) const
    {
        return {plot.left() + span.tdb.part(tdb) * plot.width(),
                plot.bottom() - span.w.part(w) * plot.height()};
    }
    /// Between the ticks of the axes.
    double tdbStep() const { return span.tdb.step(plot.width(), 40); }
    double wStep() const { return span.w.step(plot.height(), 34); }

    double tdbAt(double x) const
    {
        return span.tdb.low + (x - plot.left()) / plot.width() * span.tdb.length();
    }
    double wAt(double y) const { return span.w.low + (plot.bottom() - y) / plot.height() * span.w.length(); }
};
