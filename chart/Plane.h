#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

namespace chart {

/// An axis between two round numbers.
struct Axis
{
    double low = 0;
    double high = 0;

    double length() const { return high - low; }
    /// 0 at the low end, 1 at the high end.
    double part(double value) const { return (value - low) / length(); }
    bool holds(double value) const { return value >= low && value <= high; }

    /// The smallest step of 1, 2 or 5 times a power of ten whose multiples are at least leastApart pixels
    /// apart on an axis of this length in pixels.
    double step(double pixels, double leastApart) const;
    std::vector<double> multiples(double step) const;
};

/// The range of the chart: dry bulb in deg F or deg C, humidity ratio in lb/lb or kg/kg.
struct Span
{
    Axis tdb{};
    Axis w{};

    /// The usual span for the current units, widened to include these states (dry bulb, humidity ratio).
    /// States far outside it are ignored.
    static Span around(const std::vector<QPointF>& states);
    bool holds(double dryBulb, double humidityRatio) const
    {
        return tdb.holds(dryBulb) && w.holds(humidityRatio);
    }
};

/// Converts states to points of the picture and back.
struct Plane
{
    Span span{};
    QRectF plot{};

    QPointF at(double tdb, double w) const
    {
        return {plot.left() + span.tdb.part(tdb) * plot.width(),
                plot.bottom() - span.w.part(w) * plot.height()};
    }
    double tdbAt(double x) const
    {
        return span.tdb.low + (x - plot.left()) / plot.width() * span.tdb.length();
    }
    double wAt(double y) const { return span.w.low + (plot.bottom() - y) / plot.height() * span.w.length(); }

    /// The step between the ticks of an axis.
    double tdbStep() const { return span.tdb.step(plot.width(), 40); }
    double wStep() const { return span.w.step(plot.height(), 34); }
};

} // namespace chart
