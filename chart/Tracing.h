#pragma once

#include "chart/Plane.h"

#include <QLineF>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace chart {

/// The argument between low and high at which a rising function is 0, to within `tolerance` of the function;
/// an end if it has the same sign everywhere. The function can be infinite.
template <class Function>
double ZeroOf(const Function& function, double low, double high, double tolerance)
{
    double below = function(low);
    double above = function(high);
    if (!(below < 0) || !(above > 0))
        return below < 0 ? high : low;
    constexpr int mostSteps = 60;
    for (int step = 0; step < mostSteps; ++step) {
        const bool isFinite = std::isfinite(below) && std::isfinite(above) && step % 3 != 2;
        const double middle = isFinite ? low - below * (high - low) / (above - below) : (low + high) / 2;
        const double value = function(middle);
        if (std::fabs(value) <= tolerance)
            return middle;
        (value < 0 ? low : high) = middle;
        (value < 0 ? below : above) = value;
    }
    return (low + high) / 2;
}

/// The part of a parameter's interval in which a coordinate that only rises or only falls is within limits.
/// Empty (high below low) if there is none.
template <class Coordinate>
Axis PartWithin(const Axis& limits, const Axis& interval, const Coordinate& coordinate)
{
    constexpr double tolerance = 0.002; // pixels
    const double first = coordinate(interval.low);
    const double last = coordinate(interval.high);
    const bool isOutside = std::max(first, last) < limits.low || std::min(first, last) > limits.high;
    if (isOutside || std::isnan(first) || std::isnan(last))
        return {1, 0};
    const bool rises = last > first;
    const auto crossing = [&](double limit) {
        const auto beyond = [&](double p) { return rises ? coordinate(p) - limit : limit - coordinate(p); };
        return ZeroOf(beyond, interval.low, interval.high, tolerance);
    };
    return {limits.holds(first) ? interval.low : crossing(rises ? limits.low : limits.high),
            limits.holds(last) ? interval.high : crossing(rises ? limits.high : limits.low)};
}

/// The part of a curve within the plot, in chords of about the given length. Along the curve, each of the
/// coordinates must only rise or only fall. Empty if no part is longer than a point.
template <class PointAt>
QPolygonF Traced(const QRectF& plot, Axis interval, double chord, const PointAt& pointAt)
{
    constexpr double leastLength = 2;  // pixels
    constexpr double onTheEdge = 1e-6; // pixels, so that rounding does not lose a line at the edge
    const auto x = [&](double p) { return pointAt(p).x(); };
    const auto y = [&](double p) { return pointAt(p).y(); };
    if (interval.high > interval.low)
        interval = PartWithin({plot.top() - onTheEdge, plot.bottom() + onTheEdge}, interval, y);
    if (interval.high > interval.low)
        interval = PartWithin({plot.left() - onTheEdge, plot.right() + onTheEdge}, interval, x);
    if (!(interval.high > interval.low))
        return {};
    const double length = QLineF(pointAt(interval.low), pointAt(interval.high)).length();
    if (!(length >= leastLength))
        return {};
    const int parts = std::max(1, static_cast<int>(std::ceil(length / chord)));
    QPolygonF line;
    line.reserve(parts + 1);
    for (int part = 0; part <= parts; ++part)
        line << pointAt(interval.at(static_cast<double>(part) / parts));
    return line;
}

} // namespace chart
