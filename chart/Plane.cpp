#include "chart/Plane.h"

#include "core/StatePoint.h"
#include "core/WetBulbBalance.h"

#include <algorithm>
#include <cmath>

namespace chart {
namespace {

/// The usual, the widest and the shortest span of an axis in a unit system. The ends of the span around
/// states are multiples of `round`.
struct Limits
{
    Axis usual;
    Axis widest;
    double round = 1;
    double shortest = 1;
};

constexpr Limits tdbEnglish{{30, 120}, {-60, 300}, 10, 1};
constexpr Limits tdbMetric{{0, 50}, {-50, 150}, 5, 0.5};
constexpr Limits humidity{{0, 0.03}, {0, 0.25}, 0.005, 0.0002};

const Limits& dryBulb() { return IsMetric() ? tdbMetric : tdbEnglish; }

/// The least distance between a state and the frame, as a part of the usual span.
constexpr double leastPartBeside = 0.02;

void widen(Axis& axis, const Limits& limits, double value)
{
    const double beside = leastPartBeside * limits.usual.length();
    if (value < axis.low + beside)
        axis.low = std::floor((value - beside) / limits.round) * limits.round;
    if (value > axis.high - beside)
        axis.high = std::ceil((value + beside) / limits.round) * limits.round;
    axis.low = std::max(axis.low, limits.widest.low);
    axis.high = std::min(axis.high, limits.widest.high);
}

Axis clampedAxis(const Axis& axis, const Limits& limits)
{
    const Axis& widest = limits.widest;
    if (!std::isfinite(axis.low) || !std::isfinite(axis.high))
        return limits.usual;
    const double length = std::clamp(axis.length(), limits.shortest, widest.length());
    const double middle = (axis.low + axis.high) / 2;
    const double low = std::clamp(middle - length / 2, widest.low, widest.high - length);
    return {low, low + length};
}

Axis zoomedAxis(const Axis& axis, double about, double factor)
{
    return {about - (about - axis.low) / factor, about + (axis.high - about) / factor};
}

Axis movedAxis(const Axis& axis, double parts)
{
    return {axis.low + parts * axis.length(), axis.high + parts * axis.length()};
}

/// How much an isotherm rises per degree and humidity ratio.
double rise(bool isMollier) { return isMollier ? Heat().vapor / Heat().air : 0; }

} // namespace

double Axis::step(double pixels, double leastApart) const
{
    const double least = length() * leastApart / std::max(pixels, 1.0);
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * decade >= least)
            return factor * decade;
    }
    return 10 * decade;
}

std::vector<double> Axis::multiples(double step) const
{
    constexpr double onTheEnd = 1e-6; // part of a step, so that rounding does not lose an end
    std::vector<double> found;
    const auto last = static_cast<int>(std::floor(high / step + onTheEnd));
    for (auto count = static_cast<int>(std::ceil(low / step - onTheEnd)); count <= last; ++count)
        found.push_back(count * step);
    return found;
}

Span Span::around(const std::vector<Place>& places)
{
    Span span{dryBulb().usual, humidity.usual};
    for (const Place& place : places) {
        if (!dryBulb().widest.holds(place.Tdb) || !humidity.widest.holds(place.W))
            continue;
        widen(span.tdb, dryBulb(), place.Tdb);
        widen(span.w, humidity, place.W);
    }
    return span;
}

Span Span::widest() { return {dryBulb().widest, humidity.widest}; }

Span Span::clamped() const { return {clampedAxis(tdb, dryBulb()), clampedAxis(w, humidity)}; }

double Ordinate(double tdb, double w, bool isMollier) { return tdb * (1 + rise(isMollier) * w); }

QPointF Plane::at(double tdb, double w) const
{
    const double ordinate = span.tdb.part(Ordinate(tdb, w, isMollier));
    const double ratio = span.w.part(w);
    if (isMollier)
        return {plot.left() + ratio * plot.width(), plot.bottom() - ordinate * plot.height()};
    return {plot.left() + ordinate * plot.width(), plot.bottom() - ratio * plot.height()};
}

Place Plane::placeAt(const QPointF& point) const
{
    const double across = (point.x() - plot.left()) / plot.width();
    const double up = (plot.bottom() - point.y()) / plot.height();
    const double w = span.w.at(isMollier ? across : up);
    return {span.tdb.at(isMollier ? up : across) / (1 + rise(isMollier) * w), w};
}

bool Plane::holds(const Place& place) const
{
    return span.tdb.holds(Ordinate(place.Tdb, place.W, isMollier)) && span.w.holds(place.W);
}

Span Plane::zoomed(const QPointF& about, double factor) const
{
    const Place place = placeAt(about);
    return Span{zoomedAxis(span.tdb, Ordinate(place.Tdb, place.W, isMollier), factor),
                zoomedAxis(span.w, place.W, factor)}
        .clamped();
}

Span Plane::moved(const QPointF& by) const
{
    const double across = -by.x() / plot.width();
    const double up = by.y() / plot.height();
    return Span{movedAxis(span.tdb, isMollier ? up : across), movedAxis(span.w, isMollier ? across : up)}
        .clamped();
}

double Plane::tdbStep() const
{
    return isMollier ? span.tdb.step(plot.height(), 34) : span.tdb.step(plot.width(), 40);
}

double Plane::wStep() const
{
    return isMollier ? span.w.step(plot.width(), 40) : span.w.step(plot.height(), 34);
}

} // namespace chart
